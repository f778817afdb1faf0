// What scripts read of a bet: how it stands, and what it brought in a scope of the statistics.
// Variables at run time are read through here.
#pragma once

#include "autobet/values.h"

namespace tessarel {

// The row of the statistics for a place (0 the table) under a hand scope; any other scope is taken
// as the current session.
int SlotOf(int place, int hand);

// The figure of bet 1 to 93 of a taken place by the modifiers of `reference`; 0 where none is kept.
// Averages and shares of nothing and the vig of a bet that has none fail the statement.
double BetFigure(int place, const Reference& reference);

}  // namespace tessarel
