// The scripts of a run: found, checked and switched on before the first roll.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "app/sim/run_options.h"
#include "autobet/translation.h"

namespace tessarel::sim {

// Puts the script file in a slot 0 to 8. Failure, with the file's name, when that cannot be done.
void LoadScript(int slot, const std::string& file);

// "FILE:LINE:COLUMN: error: TEXT" on one line, both counted from 1.
std::string ErrorLine(const std::string& file, const ScriptError& error);

// Gives the scripts to their players and activates them. Failure with its ErrorLine at the first
// one that cannot run.
void LoadScripts(const std::vector<ScriptArgument>& scripts);

// Activates again the scripts that were active when the game was saved. Failure at the first one
// that is gone or cannot run.
void ActivateSavedScripts();

}  // namespace tessarel::sim
