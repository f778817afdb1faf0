// The game file of a run: the one it goes on with and the one it leaves.
#pragma once

#include <string>

namespace tessarel::sim {

// Opens the game with the scripts that were active when it was saved; nothing without a name.
// Failure when it cannot be opened or one of those scripts cannot run; what else has become of its
// files is told on standard error.
void OpenNamedGame(const std::string& name);

// Saves the game; nothing without a name. Failure when the file cannot be written.
void SaveNamedGame(const std::string& name);

}  // namespace tessarel::sim
