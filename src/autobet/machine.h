// The machine that runs compiled statements: a stack of operands on which instructions work. The
// interpreter walks over the statements of the program and has them evaluated here. The memory it
// works in lives as long as the program, so that a cycle allocates nothing.
#pragma once

#include <cstdint>
#include <vector>

#include "autobet/program.h"
#include "autobet/values.h"

namespace tessarel {

// Puts a program with its strings in force.
void LoadProgram(ScriptProgram program, std::vector<ScriptString> strings);

// The statements in force.
const std::vector<Statement>& LoadedStatements();

// Runs the instructions of a statement up to its end or its first error, which AutoBet.Fault tells.
// Faults of the machinery come through.
void Evaluate(const Statement& statement);

// The number that a condition has left, if it ended without an error.
double TakeResult();

// Drops the texts that the last statement has made: whatever keeps one has taken a copy.
void DropMadeStrings();

}  // namespace tessarel
