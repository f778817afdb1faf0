// The roll frequencies view: for one event, how long it takes on average in the session, how long
// it should take, and how long since it last came.
#pragma once

#include <string>
#include <vector>

#include "stats/roll_events.h"

namespace tessarel {

struct RollFrequencyRow {
  std::string Caption, Value;
};

// "# rolls since last rolled:", "Average # of rolls:", "Actual % rolled:" and "Average # of rolls
// to achieve:". Index fault for a code that is no event.
std::vector<RollFrequencyRow> RollFrequencies(int event, const SkewedDice& dice);

// The events one can choose from, by name in the order of the list: totals, hard ways, pairs,
// groups and faces.
struct RollEventChoice {
  int Event = 0;
  std::string Name;
};
std::vector<RollEventChoice> RollEventChoices();

}  // namespace tessarel
