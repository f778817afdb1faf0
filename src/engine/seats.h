// What a place of the rail is brought to by itself, whoever stands there: its defaults, its money,
// and empty. Who may join, leave or shoot is decided by the commands of the rail.
#pragma once

#include "base/money.h"

namespace tessarel {

// The come-out standard of the house, the working states that follow from it and the usual visible
// stacks for a place that nobody has.
void OpenPlaceDefaults(int place);

// Sets a place's bankroll, with its beginning, high and low, in the counted scopes.
void SetBankroll(int place, Money amount);

// Leaves a place as if nobody had ever stood there. Who has the dice is the caller's business.
void ClearPlace(int place);

}  // namespace tessarel
