// Bringing a bet to an amount that its payoff pays in whole checks, by the player's own bias.
#pragma once

#include "base/money.h"
#include "engine/bet_request.h"

namespace tessarel {

struct Adjustment {
  bool possible = false;
  Money total;                  // the adjusted bet, or the limit to be told when not possible
  bool limitIsMaximum = false;  // which limit stood in the way
};

// The total that the requested bet may be brought to from `total`; `limit` is the most it may stand
// at. Only Place, Buy, Lay and odds bets have a unit; for all others, and for rows without one, the
// total stands.
Adjustment AdjustForOddsPayoff(const BetRequest& request, Money total, Money limit);

}  // namespace tessarel
