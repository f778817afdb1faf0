// How the program comes up: a table by the house's defaults, then the game that was left.
#pragma once

#include <string>
#include <string_view>

namespace tessarel {

// Puts every module in its start-up state in `appFolder`, the program's folder: default settings,
// payoffs and units, every generator seeded from the clock, an empty table. Warns of missing
// support files. Nothing is read from disk.
void StartUp(const std::string& appFolder);

// Opens the game file named on the command line, else the automatic one of the program's folder;
// with neither, the table is as StartUp leaves it. What cannot be opened is told. The hot keys stay
// as they are.
void OpenDefaultGame(std::string_view commandLine);

}  // namespace tessarel
