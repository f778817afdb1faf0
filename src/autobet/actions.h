// The actions of the language: what a statement that begins with a command word does to the table,
// the files and the program. Called by the interpreter with what the statement names, evaluated.
#pragma once

#include <cstdint>
#include <span>

#include "autobet/values.h"

namespace tessarel {

struct ScriptCommand {
  int32_t action = 0;                        // the number of the action word
  std::span<const ScriptValue> arguments{};  // values: texts, amounts
  std::span<const Reference> targets{};      // bets and variables, those that pass its qualifiers
};

// Performs an action. On a run-time error AutoBet.Fault is set; the targets before the one at
// fault are done. Faults of files are run-time errors, other faults come through.
void RunCommand(const ScriptCommand& command);

// Whether the message boxes and questions of scripts are shown in the mode in force.
bool ScriptMessagesShown();

}  // namespace tessarel
