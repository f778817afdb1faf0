// Ending an unattended run: whatever has to stop the Auto-Roll or the Hyper-Drive calls this.
#pragma once

#include <string>

namespace tessarel {

// Stops the Auto-Roll or Hyper-Drive if one runs, shows StopReason if there is one, and has the
// table and its views drawn again.
void StopUnattended();

}  // namespace tessarel
