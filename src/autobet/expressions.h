// Expressions, assignments and actions of a script: turns the tokens of one statement into
// instructions, or says precisely what is wrong with them.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>

#include "autobet/program.h"

namespace tessarel {

// Compiles a statement that is no control word into `program` (its code and references). `shift` is
// added to the indices of strings. In a condition the statement leaves one value, else it has to be
// an assignment or an action. Returns what is wrong, as text for the message box.
std::optional<std::string> CompileStatement(std::span<const ScriptToken> tokens,
                                            bool condition,
                                            int32_t shift,
                                            ScriptProgram& program);

}  // namespace tessarel
