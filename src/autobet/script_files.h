// Script files and what is done with scripts as a whole: reading the current and the older form,
// saving, activating, hot keys.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "state/scripts.h"

namespace tessarel {

// The lines of a script file of either form; the wording of the older form is brought up to date.
// False when there is no such file. File faults when it cannot be read.
bool ReadScriptLines(const std::string& path, std::vector<std::string>& lines);

// Puts a script file in a slot 0 to 8. False, with nothing changed, when there is no such file.
bool ReadScriptFile(int slot, const std::string& path);

// Writes the script to its ScriptFile, one line a line. File faults when it cannot be written; the
// old file then stands.
void SaveScriptFile(int slot);
// The same to another file, which becomes the ScriptFile.
void SaveScriptFileAs(int slot, const std::string& path);

// A line of the older language in the current wording.
std::string UpgradeWording(std::string_view line);

// Place 1 to 8, or 9 for all: activates scripts, then asks whether they are to run for one cycle
// before the roll.
void ActivateScript(int place);

// Runs the active scripts for one cycle as a new session does: initialising, if they compile.
void InitializeScripts();

// Runs a script file once as a hot key does; not during a roll.
void RunHotKeyScript(const std::string& path);

}  // namespace tessarel
