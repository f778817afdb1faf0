// What becomes of a bet once it is decided: it comes down, stays, is pressed, parlayed or set anew,
// by the player's standing choice or by his answer to the settle-bet prompt. All of it goes through
// ChangeBet, so nothing here makes a bet that the rules forbid.
#pragma once

#include "engine/decision.h"
#include "engine/handling_choices.h"

namespace tessarel {

// Does with a decided bet what its player wants. What can't stay comes down.
void HandleBet(const Decision& decision);

}  // namespace tessarel
