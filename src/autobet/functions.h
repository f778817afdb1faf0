// The functions of the language: text, numbers, lists, prompts, and the families that turn a number
// into a bet or check stack. Called by the interpreter with arguments that the checker has counted.
#pragma once

#include <cstdint>
#include <span>

#include "autobet/values.h"

namespace tessarel {

// The functions that name a variable by its number: the bet families, cs, csn.
constexpr bool NamesVariable(int32_t function) {
  return (function >= 1 && function <= 10) || function == 21 || function == 800;
}

// The number of the variable that such a function names with its argument. On a run-time error
// AutoBet.ScriptError is set and the number is 0.
int32_t NamedVariable(int32_t function, const ScriptValue& argument);

// The result of any other function; `reference` carries the qualifiers of those that take them
// (F022, F025 to F047, F137). On a run-time error AutoBet.ScriptError is set and the result is 0.
ScriptValue CallFunction(int32_t function,
                         const Reference& reference,
                         std::span<const ListItem> arguments);

}  // namespace tessarel
