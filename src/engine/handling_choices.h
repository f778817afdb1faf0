// What a player may have chosen for his decided bets, and the rows of figures that go with the
// choice.
#pragma once

#include <cstdint>

#include "state/table.h"

namespace tessarel {

// The values of HandleWinningBets and HandleLosingBets; 0 asks, and takes the bet down under the
// Hyper-Drive, where nothing may ask.
enum WinHandling : int32_t {
  WinPrompt,
  WinTakeDown,
  WinSameBet,
  WinPressUnit,
  WinPressDouble,
  WinParlay,
  WinModify,
  WinSetUnits,
};
enum LossHandling : int32_t {
  LossPrompt,
  LossTakeDown,
  LossSameBet,
  LossRemainder,
  LossPressUnit,
  LossPressDouble,
  LossModify,
  LossSetUnits,
};

// The slots of the modify and units rows.
enum HandlingSlot : int {
  PromptWinModify = 5,
  PromptWinSet = 6,
  PromptLossModify = 7,
  PromptLossSet = 8,
  AutoWinModify = 9,
  AutoLossModify = 10,
  AutoWinSet = 11,
  AutoLossSet = 12,
};

// A "modify" or "set" row.
struct HandlingRow {
  Money amount;
  int32_t operation = 0;  // 0 plus, 1 minus, 2 times, 3 divide
  Money units;            // 0 dollars, 1 percent, 2 to 6 the check value of that number less 1
};

// The figures of a handling slot.
inline HandlingRow RowOfSlot(int place, int slot) {
  return {Table.HandleAmount[place][slot], Table.HandleOperator[place][slot],
          Table.HandleUnits[place][slot]};
}

inline void StoreRow(int place, int slot, const HandlingRow& row) {
  Table.HandleAmount[place][slot] = row.amount;
  Table.HandleOperator[place][slot] = row.operation;
  Table.HandleUnits[place][slot] = row.units;
}

}  // namespace tessarel
