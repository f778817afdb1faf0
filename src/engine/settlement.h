// Settling bets: which bets each roll decides in which order, and how a result reaches the bankroll
// and the books. What becomes of a decided bet is the business of engine/bet_handling.h.
#pragma once

#include <optional>

#include "engine/decision.h"
#include "engine/payouts.h"

namespace tessarel {

// Decides the bet of the place of a visit (1 to 8) and books the result. A bet of zero and a bet
// that is off are not decided; odds that are off come out idle.
std::optional<Decision> DecideBet(int visit, int result, int number);

// Decides the bet and does with it what the player wants.
void ResolveBet(int visit, int result, int number);

// The Come or Don't Come box goes to a number.
void MoveBet(int place, int from, int to);

// All decisions of the roll that stands in Table, in their order: losers, one-roll bets, the point,
// winners, travel, and the special bets that complete.
void SettleRoll();

}  // namespace tessarel
