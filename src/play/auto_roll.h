// Starting and stopping unattended play: Auto-Roll, which shows every roll and pauses between them,
// and the Hyper-Drive, which rolls at full speed and shows nothing. The windows' buttons and menus
// call these; the rolls themselves and what stops them are the roll driver's.
#pragma once

#include <string_view>

namespace tessarel {

enum class UnattendedMode { AutoRoll, HyperDrive };

// The single switch: stops what runs, else starts `mode`.
void ToggleAutoRoll(UnattendedMode mode = UnattendedMode::HyperDrive);

// Play until something stops it, and return then. Nothing happens during a roll or a run.
void StartAutoRoll();
void StartHyperDrive();

// Stops either; the cause, if there is one, is told.
void StopAutoRoll();

// Asks whether the run that is on is to be stopped. Returns whether none goes on.
bool AskToStopRun();

// What the buttons say in the language in force.
std::string_view HyperDriveCaption();
std::string_view AutoRollCaption();

// Ask for AutoStopRolls (the whole part of the reply, at least 0) and RollDelay (0 to 300). A
// Cancel and what is no number leave the value.
void AskSetAutoStop();
void AskSetTimeDelay();

// Before a player does something by hand: while a script's cycle runs, asks whether to stop it.
// Returns whether the action may be done; the cycle and an unattended run are stopped then.
bool ConfirmScriptActive();

// Ends the running cycle of the scripts, a step of it that waits to be shown, and an unattended
// run; the Hyper-Drive tells why.
void InterruptAutoBetting();

}  // namespace tessarel
