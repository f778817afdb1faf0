// Plans of bet changes: what a request would do under the rules in force, what it would cost and
// what cuts it. Everything that asks whether a bet may be changed asks for a plan; it reads the
// table and writes nothing. Apply (engine/bets.h) carries it out.
#pragma once

#include <cstdint>

#include "base/indexing.h"
#include "base/money.h"
#include "engine/bet_refusals.h"
#include "engine/bet_request.h"

namespace tessarel {

enum class LimitKind : uint8_t {
  Minimum,               // raised to the least that may be bet
  Maximum,               // cut to the most
  ContractAboveMaximum,  // but a contract that is above it stays
  AdjustMaximum,         // no payable amount: the next one is above the maximum
  AdjustMinimum,         // the same below the minimum
  Bankroll,              // more than the player has
  StackMinimum,
  StackMaximum,
};

struct LimitMet {
  LimitKind kind = LimitKind::Minimum;
  Money amount;  // the limit; none for Bankroll
};

struct Plan {
  BetRequest request;
  Money before;  // what stands now
  Money change;  // what the rules leave of the request
  Money vig;     // what the bet carries afterwards
  Money cost;    // from the bankroll: the change and the vig charged up front that it moves
  RefusalKind refusal = RefusalKind::None;

  Money After() const { return before + change; }
  // The limits met, in their order.
  int LimitCount() const { return limitCount_; }
  LimitMet Limit(int index) const { return {kinds_[index], Money::FromRaw(amounts_[index])}; }
  void Add(LimitKind kind, Money amount = {}) {
    kinds_[limitCount_] = kind;
    amounts_[limitCount_++] = amount.Raw();
  }
  // Refused as a whole: nothing of the request was left for the limits.
  bool RefusedOutright() const {
    return refusal != RefusalKind::None && change == Money() && limitCount_ == 0;
  }

 private:
  // Left as they are until they are met: a plan is made for every bet of every roll.
  Indexed<LimitKind, 5> kinds_;
  Indexed<int64_t, 5> amounts_;
  int limitCount_ = 0;
};

// The plan of a request for a bet (1 to 93) or check stack (100 to 199); it changes nothing for
// other numbers.
Plan PlanChange(const BetRequest& request);

// What comes free when a standing bet is taken off as far as its contract allows.
FreedBet FreeUp(int place, int number);

}  // namespace tessarel
