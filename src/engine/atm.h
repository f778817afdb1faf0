// The ATM: money between a player's bankroll and the world outside.
#pragma once

#include "base/money.h"

namespace tessarel {

// Moves `amount` (above zero) from the bankroll (a deposit) or to it (a withdrawal), as far as the
// limits allow; `tell` shows why less was moved. Returns what was moved. Does nothing for place 0
// or an open place.
Money ATM(int place, bool deposit, Money amount, bool tell);

}  // namespace tessarel
