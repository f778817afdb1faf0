// What is asked of a bet: the wish, and what holds for this one only. Plans (engine/bet_plan.h) and
// changes (engine/bets.h) are made from it.
#pragma once

#include "base/money.h"

namespace tessarel {

// A bet that comes off before another is made: how much of it has to stay, and the money that is
// free with the rest, odds and vig included.
struct FreedBet {
  int number = 0;  // 0: none
  Money left, money;
};

struct BetRequest {
  int place = 0, number = 0;
  Money change;          // below zero takes off
  bool travels = false;  // goes with a box to its number: without the rules on numbers, unheard
  bool nearest = false;  // adjusted to the nearest amount, whatever the player's bias is
  FreedBet freed = {};   // planned as if this bet had come off
};

// Whether the player hears of what the rules do to a request. Under the Hyper-Drive nobody does.
enum class Telling : bool { Aloud, Silent };

}  // namespace tessarel
