// Ending an unattended run: whatever has to stop the Auto-Roll or the Hyper-Drive calls this.
#pragma once

#include <string>

#include "state/table.h"

namespace tessarel {

// Stops the Auto-Roll or Hyper-Drive if one runs, says why if there is a cause, and has the table
// and its views drawn again.
void StopUnattended();

// What is said of a cause in the language in force; empty for None.
std::string StopText(StopCause cause);

}  // namespace tessarel
