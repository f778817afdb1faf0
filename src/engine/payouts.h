// What a decided bet is paid, and the unit in which a bet pays. Figures only: nothing here changes
// a bet.
#pragma once

#include "base/money.h"
#include "engine/decision.h"
#include "state/payoffs.h"

namespace tessarel {

// Results of a decision. For 7 Point 7 the result picks its row.
enum Result : int { Lose = -1, Win = 1, LoseOdds = -2, WinOdds = 2 };

// The row that decides a result, with the dice and the point of the roll in Table. A loss reads in
// the form of its bet.
PayoffRow DecidingRow(int number, int result);

// What `amount` wins or loses with the dice and the point of the roll in Table.
Payout FigurePayoff(int place, int number, int result, Money amount);

// The unit in which the standing bet pays, by which it is pressed.
Money PressingUnit(int place, int number);

}  // namespace tessarel
