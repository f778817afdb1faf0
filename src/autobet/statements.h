// Statements of a script: turns the tokens of one into instructions, or says precisely what is
// wrong with them.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>

#include "autobet/program.h"

namespace tessarel {

// Compile a statement that is no control word into `program` (its code and references). `shift` is
// added to the indices of strings. A condition leaves one value; an order is an assignment or an
// action. They return what is wrong, as text for the message box.
std::optional<std::string> CompileCondition(std::span<const ScriptToken> tokens,
                                            int32_t shift,
                                            ScriptProgram& program);
std::optional<std::string> CompileOrder(std::span<const ScriptToken> tokens,
                                        int32_t shift,
                                        ScriptProgram& program);

}  // namespace tessarel
