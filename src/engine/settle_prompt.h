// The settle-bet prompt as data: what it says of a decided bet, row by row, what its seven buttons
// read, and the figures of its modify and units rows. A front end shows it and leaves the answer.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "base/money.h"
#include "engine/decision.h"
#include "engine/handling_choices.h"

namespace tessarel {

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

// The prompt for a bet that was just decided.
SettlePrompt MakeSettlePrompt(const Decision& decision, bool offersPress);

// The check value that a handling row's units above 1 stand for.
Money CheckOfUnits(Money units);

// How a unit of a handling row reads: "$", "%", or "5 Units" in the language in force.
std::string UnitsText(Money units);

}  // namespace tessarel
