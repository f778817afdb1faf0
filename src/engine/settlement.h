// Settling bets: what a result pays, how it reaches the bankroll, and which bets each roll touches
// in which order.
#pragma once

#include "base/money.h"

namespace tessarel {

// Results of ResolveBet and FigurePayoff. For 7 Point 7 the result picks its row.
enum Result : int { Lose = -1, Win = 1, LoseOdds = -2, WinOdds = 2 };

// Decides the bet of the place of a visit (1 to 8). A bet of zero and a bet that is off are not
// decided; odds that are off go through HandleIdleOdds.
void ResolveBet(int visit, int result, int number);

// Leaves what `amount` wins or loses in Table.GrossWin and Table.NetWin (rounded down to whole
// smallest checks).
void FigurePayoff(int place, int number, int result, Money amount);

// The Come or Don't Come box goes to a number.
void MoveBet(int place, int from, int to);

// All decisions of the roll that stands in Table, in their order: losers, one-roll bets, the point,
// winners, travel, and the special bets that complete.
void SettleRoll();

// Finds the unit in which a bet pays, for pressing: Table.ChipUnit.
void FigureUnit(int place, int number);

}  // namespace tessarel
