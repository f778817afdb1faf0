// The actions that work with files: dice roll files, probability files, sounds and the output of
// scripts. Names are taken from the program's folder.
#pragma once

#include "autobet/actions.h"
#include "state/table.h"

namespace tessarel {

// Whether the running script has a right (a row of the script store); else the run-time error.
bool HasRight(const PerPlace<bool>& right, int32_t error);

void PlayBackRollFile(const ScriptCommand& command);        // A310
void SwitchOffRollFile(const ScriptCommand& command);       // A119
void ActivateProbabilities(const ScriptCommand& command);   // A213
void SwitchOffProbabilities(const ScriptCommand& command);  // A114
void PlayScriptSound(const ScriptCommand& command);         // A212
void OpenOutputFile(const ScriptCommand& command);          // A220 appends, A221 empties
void WriteToOutputFile(const ScriptCommand& command);       // A223

}  // namespace tessarel
