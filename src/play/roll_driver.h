// The roll driver: one call makes one roll, from the checks that may refuse it to the moment
// control goes back to the user. Under the Hyper-Drive and under Auto-Roll the same call keeps
// rolling until something stops it.
#pragma once

#include <optional>

#include "dice/faces.h"

namespace tessarel {

// Makes a roll; see the steps in the source. It reads and writes the state of the tables. A call
// from within a roll does nothing. `chosen` is a roll picked by hand, which comes before all other
// dice; it is thrown once.
void MakeRoll(std::optional<Faces> chosen = std::nullopt);

// Whether an unattended run stops after the rolls made so far because of AutoStopRolls.
bool AutoStopIsDue();

}  // namespace tessarel
