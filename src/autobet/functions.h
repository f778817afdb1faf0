// The functions of the language: text, numbers, lists, prompts, and the families that turn a number
// into a bet or check stack. Called by the interpreter with arguments that the checker has counted.
#pragma once

#include <cstdint>
#include <span>

#include "autobet/values.h"

namespace tessarel {

// The number of the variable that a function names with its argument (NamesVariable of
// autobet/word_numbers.h). On a run-time error AutoBet.Fault is set and the number is 0.
int32_t NamedVariable(int32_t function, const ScriptValue& argument);

// The result of any other function; `reference` carries the qualifiers of those that take them
// (autobet/function_table.h). On a run-time error AutoBet.Fault is set and the result is 0.
ScriptValue CallFunction(int32_t function,
                         const Reference& reference,
                         std::span<const ListItem> arguments);

}  // namespace tessarel
