// The life of the program and of its sessions: how it comes up, what a new session clears and
// keeps, and how it goes down.
#pragma once

#include <cstdint>
#include <string>

namespace tessarel {

// What a new session does with the roll file. Any other value closes it.
enum RollFileAction : int32_t { RewindRollFile = 1, ContinueRollFile = 2, CloseRollFileNow = 0 };

struct SessionOptions {
  int32_t keepSessions = 0;  // non-zero: the data of former sessions
  int32_t keepStacks = 0;    // check stacks with their names
  int32_t keepLogs = 0;      // sessions logs
  int32_t rollFileAction = CloseRollFileNow;
};

// Starts a new session. Not to be called during a roll.
void NewSession(const SessionOptions& options);

// Puts every module in its start-up state in `appFolder`, the program's folder: default settings,
// payoffs and units, every generator seeded from the clock, an empty table. Warns of missing
// support files. Nothing is read from disk.
void StartUp(const std::string& appFolder);

// Before the program ends: asks whether an unattended run may be stopped, and stops it. Returns
// false when the answer is no, with everything as it was.
bool AskToLeave();

// Closes what is open. What was recorded is on disk when it returns.
void ShutDown();

}  // namespace tessarel
