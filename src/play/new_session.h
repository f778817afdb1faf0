// A new session: what of the last one is closed and logged, and what is cleared, kept and begun
// anew.
#pragma once

#include <cstdint>

namespace tessarel {

// What a new session does with the roll file. Any other value closes it.
enum RollFileAction : int32_t { RewindRollFile = 1, ContinueRollFile = 2, CloseRollFileNow = 0 };

struct SessionOptions {
  bool keepSessions = false;  // non-zero: the data of former sessions
  bool keepStacks = false;    // check stacks with their names
  bool keepLogs = false;      // sessions logs
  int32_t rollFileAction = CloseRollFileNow;
};

// Starts a new session. Not to be called during a roll.
void NewSession(const SessionOptions& options);

}  // namespace tessarel
