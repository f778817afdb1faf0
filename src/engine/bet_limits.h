// What a bet may at most stand at, what vig it carries, and whether the layout has it at all.
// These are figures only: nothing here changes a bet.
#pragma once

#include "base/money.h"
#include "state/bet_numbers.h"
#include "state/payoffs.h"

namespace tessarel {

// The largest amount the bet may stand at, floored to the smallest check. 0 for a bet that is off
// the layout and for odds without a flat bet or point.
Money FigureMaxBet(int place, int number);

// The same of odds on a flat bet of `flat`.
Money FigureMaxOdds(int number, Money flat);

// The smallest amount the bet may stand at.
Money BetMinimum(int number);

// Whether the settings put the bet on the layout.
bool OnLayout(int number);

// The allowed multiple on a point number.
Money OddsFactor(int point);

// What odds may stand on `flat` that pay num to den, by OddsCalcMethod and at most MaxOddsBet,
// before the last rounding. `factor` is the allowed multiple.
Money FigureOddsMax(Money factor, Money flat, Money num, Money den);

// The vig on `amount` of a Buy bet (37 to 42) or Lay bet (1 to 6); 0 for other bets.
Money FigureVig(int number, Money amount);

// The row that a bet of the line and its odds are paid by while the current point is on, and the
// bet's own row for all others.
const PayoffRow& PayoffRowOf(int number);

// Point on: Pass Line Odds and Don't Pass Odds take the rows of Come Odds and Don't Come Odds.
void SetOddsPayoffRows();

}  // namespace tessarel
