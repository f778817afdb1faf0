// The house advantage: what any bet is worth under the house rules, the payoffs and the dice in
// force, by exact arithmetic on the 36 rolls. The advantage list, the statistics views and scripts
// ask for it; nothing is kept between two calls.
#pragma once

#include <array>
#include <cstdint>

#include "state/bet_numbers.h"

namespace tessarel {

// The options of the advantage list. They are saved with the configuration.
struct AdvantageState {
  bool IncludeZeroOutcomes = false;  // rolls that decide nothing count as decisions
  bool ShowMiscData = false;         // the list shows rolls, decisions and times
};

extern AdvantageState Advantage;

// One roll of the dice: the chances of the totals and of the ordered pairs of faces. A set of dice
// may state both by itself, so they need not agree.
struct DiceProbabilities {
  std::array<double, 13> total{};               // 2 to 12
  std::array<std::array<double, 7>, 7> pair{};  // faces 1 to 6 of the first and the second die
};

DiceProbabilities TrueDice();

// The dice that the table rolls with.
DiceProbabilities DiceInForce();

// Fractions of the stake (of stake and vig together where vig is charged up front) and a count of
// rolls. All carry six decimals except RollsPerDec; a bet that is never decided has RollsPerDec 0.
struct AdvantageResult {
  double EvPerRoll = 0;
  double EvPerDec = 0;
  double RollsPerDec = 0;
  double StDevPerRoll = 0;
  double StDevPerDec = 0;
};

// The figures of bet 1 to 93, with given dice or with those in force. Index fault for other
// numbers, division fault for a payoff whose PayDen is zero.
AdvantageResult FigureAdvantage(int number, const DiceProbabilities& dice);
AdvantageResult FigureAdvantage(int number);

}  // namespace tessarel
