// Where the desktop program finds what ships with it and keeps what it writes.
#pragma once

#include <string>

namespace tessarel {

// The program's folder: TESSAREL_HOME if it is set, else the folder of the executable when it can
// be written to, else the user's data folder for applications. It exists when this returns, as far
// as it can be made.
std::string ProgramFolder();

// The folder of sounds, fonts, icons, help and sample scripts: beside the executable, in the share
// folder it is installed with, or where it was built.
std::string DataFolder();

}  // namespace tessarel
