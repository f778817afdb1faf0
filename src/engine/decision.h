// What settlement found of a bet: what it was paid and how it came out. The handling of the bet and
// the settle-bet prompt act on it.
#pragma once

#include "base/money.h"

namespace tessarel {

// What a result pays on an amount, the vig taken off; below zero when it is lost.
struct Payout {
  Money gross;
  Money net;  // gross, rounded down to whole smallest checks
};

// Idle: odds that were not working while their flat bet was decided.
enum class Outcome { Won, Lost, Idle };

struct Decision {
  int place = 0, number = 0;
  int result = 0;  // of Result, engine/payouts.h
  Money amount;    // that stood when it was decided
  Payout payout;
  Outcome outcome = Outcome::Won;
  bool cantStay = false;  // the bet has to come down, whatever the player chooses
};

}  // namespace tessarel
