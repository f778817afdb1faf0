// The roll driver: one call makes one roll, from the checks that may refuse it to the moment
// control goes back to the user. Under the Hyper-Drive and under Auto-Roll the same call keeps
// rolling until something stops it.
#pragma once

#include <cstdint>

namespace tessarel {

struct RollState {
  // The next roll was chosen by hand.
  int32_t ManualRollPending = 0, ManualDie1 = 0, ManualDie2 = 0;
};

extern RollState Roll;

// Makes a roll; see the steps in the source. It reads and writes the state of the tables. A call
// from within a roll does nothing.
void MakeRoll();

// Whether an unattended run stops after the rolls made so far because of AutoStopRolls.
bool AutoStopIsDue();

}  // namespace tessarel
