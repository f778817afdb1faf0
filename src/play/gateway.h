// The gateway for everything that a person or a hot key does to the table. A command that meets a
// fault is reported once and leaves the table as it was.
#pragma once

#include <functional>
#include <string_view>

namespace tessarel {

// Runs a command, named `name` in the report of a fault. On a fault the table, its statistics and
// its scripts are put back to where they stood, and false is returned. A command within a command
// is part of the outer one. Rolls are no commands: the roll driver has its own trap, since a run is
// too fast for copies of the table.
bool RunCommand(std::string_view name, const std::function<void()>& command);

}  // namespace tessarel
