// The pop-up roll file: a text file that some other program drops at a known place and whose first
// two digits from 1 to 6 are the dice of the next roll. The roll driver waits for it and takes it;
// the file is gone afterwards.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "dice/generators.h"

namespace tessarel {

struct PopupRollState {
  std::string PopupRollFileName;  // full name; empty without one
  bool PopupRollActive = false;
  bool Waiting = false;  // a roll waits for the file; the table's status says so
};

extern PopupRollState PopupRoll;

// Takes the dice from the file of this name from now on; it need not be there yet. A relative name
// is taken from the program's folder.
void OpenPopupRoll(const std::string& name);
void ClosePopupRoll();

// Waits until the file is there, running pending events: without end in an unattended run, else for
// half a second. Returns false when there is no roll then. A pop-up that is closed meanwhile ends
// the wait with true, since the next source has the dice.
bool WaitForPopupRoll();

// Takes two dice and deletes the file. Empty, with the file left alone, when it holds fewer or
// cannot be read or deleted; the cause of the stop then says why, and it has been reported (too few
// dice: not under the Hyper-Drive).
std::optional<Faces> TakePopupRoll();

}  // namespace tessarel
