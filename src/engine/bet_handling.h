// What becomes of a bet once it is decided: it comes down, stays, is pressed, parlayed or set anew,
// by the player's standing choice or by his answer to the settle-bet prompt. All of it goes through
// ChangeBet, so nothing here makes a bet that the rules forbid.
#pragma once

#include <cstdint>

#include "engine/settle_prompt.h"

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

// The three occasions; each works on CurrentBet, NetWin, GrossWin and BetCantStay as the decision
// left them.
void HandleWonBet(int place);
void HandleLostBet(int place);
// An odds bet that was not working while its flat bet was decided.
void HandleIdleOdds(int place);

// The actions. Those of a bet that may have changed end in a notice of how it stands.
void SameBet(int place);
void PressUnit(int place);
void PressDouble(int place);
void Parlay(int place);
void BetRemainder(int place);
void ModifyBet(int place, int slot);
void SetBetUnits(int place, int slot);

// The figures of a handling slot.
HandlingRow RowOfSlot(int place, int slot);

}  // namespace tessarel
