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

// Performs an action. On a run-time error AutoBet.ScriptError is set; the targets before the one at
// fault are done. Faults of files are run-time errors, other faults come through.
void RunCommand(const ScriptCommand& command);

// Whether the message boxes and questions of scripts are shown in the mode in force.
bool ScriptMessagesShown();

// Starts a new session that keeps the data of former ones and the sessions logs, and as asked the
// check stacks and the roll file where it stands. Set by whoever owns the sessions, which lie above
// the language; does nothing until then.
extern void (*StartSessionForScript)(bool keepStacks, bool keepRollFile);

}  // namespace tessarel
