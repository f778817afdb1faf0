// What scripts read of the dice: how often rolls came against what was probable, and what became of
// the come-outs and points. RollStatistic of autobet/variables.h stands on the same figures.
#pragma once

#include "autobet/values.h"

namespace tessarel {

// The degrees of freedom of the set of rolls that a first modifier names.
int DegreesOfFreedom(int firstModifier);

// Points established, passes or misses of a place's hands by the modifiers of `reference`.
double LineBetCount(int place, const Reference& reference);

}  // namespace tessarel
