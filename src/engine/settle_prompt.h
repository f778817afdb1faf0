// The settle-bet prompt as data: what it says of a decided bet, row by row, what its seven buttons
// read, and the figures of its modify and units rows. A front end shows it and leaves the answer.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "base/money.h"

namespace tessarel {

enum class Outcome { Won, Lost, Idle };

// A "modify" or "set" row of the prompt.
struct HandlingRow {
  Money amount;
  int32_t operation = 0;  // 0 plus, 1 minus, 2 times, 3 divide
  Money units;            // 0 dollars, 1 percent, 2 to 6 the check value of that number less 1
};

struct SettlePrompt {
  int place = 0;
  int number = 0;
  Outcome outcome = Outcome::Won;
  bool offersPress = true;  // the buttons of a win; else those of a loss
  std::array<std::string, 2> title;
  struct Row {
    std::string caption, figure;
  };
  std::vector<Row> rows;
  std::array<std::string, 5> buttons;  // the last two of the seven belong to the rows below
  HandlingRow modify, set;
  int button = 0;  // the answer, 0 to 6
};

// The prompt for CurrentBet as it was just decided.
SettlePrompt MakeSettlePrompt(int place, Outcome outcome, bool offersPress);

// The check value that a handling row's units above 1 stand for.
Money CheckOfUnits(Money units);

// How a unit of a handling row reads: "$", "%", or "5 Units" in the language in force.
std::string UnitsText(Money units);

}  // namespace tessarel
