// The actions that work with files: dice roll files, probability files, sounds and the output of
// scripts. Names are taken from the program's folder.
#pragma once

#include "autobet/actions.h"
#include "state/table.h"

namespace tessarel {

// Whether the running script has a right (a row of the script store); else the statement fails.
bool HasRight(const PerPlace<bool>& right, ScriptFault fault);

void PlayBackRollFile(const ScriptCommand& command);
void SwitchOffRollFile(const ScriptCommand& command);
void ActivateProbabilities(const ScriptCommand& command);
void SwitchOffProbabilities(const ScriptCommand& command);
void PlayScriptSound(const ScriptCommand& command);
void OpenOutputFile(const ScriptCommand& command);  // appending to it or emptying it
void WriteToOutputFile(const ScriptCommand& command);

}  // namespace tessarel
