// The checker: takes the lines of a script to the normal form of its tokens, in passes that each
// report one precise error or rewrite the stream. Used when a script is checked or activated,
// never while rolling.
//
// In the normal form a variable is followed by its qualifiers in the order player, hand, first
// modifier, second modifier, as many as QualifierCount says; likewise a function that names a bet,
// stack or statistic, with its argument after them. The player of a reference is a player token or
// the player function with its operand. Group words are lists of their members; targets are marked;
// control words carry the element they jump to.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "autobet/translation.h"

namespace tessarel {

// The whole chain for the script of a slot (its lines are those of the script store). On success
// `script` is ready to be compiled to a program; `lineLevels`, if given, holds the indentation of
// each line, from element 0 for line 1. A fault in a pass is an error too, at line 1.
std::optional<ScriptError> CheckScript(int slot,
                                       CompiledScript& script,
                                       std::vector<int32_t>* lineLevels = nullptr);

// Translation and the passes that rewrite the stream to its normal form; overflow fault for groups
// that would grow beyond all bounds.
std::optional<ScriptError> RewriteScript(int slot,
                                         CompiledScript& script,
                                         std::vector<int32_t>* lineLevels = nullptr);

// The passes in their order, after TranslateScript.
std::optional<ScriptError> CheckLists(CompiledScript& script);
std::optional<ScriptError> CheckReferences(int slot, CompiledScript& script);
std::optional<ScriptError> CheckThru(CompiledScript& script);
// Overflow fault when the members do not fit: groups in the player of a group multiply.
void ExpandGroups(CompiledScript& script);
std::optional<ScriptError> CheckAssignments(CompiledScript& script);
std::optional<ScriptError> CheckStructure(CompiledScript& script,
                                          std::vector<int32_t>* lineLevels = nullptr);
// A dry run of every statement by the rules of the interpreter (autobet/statements.h).
std::optional<ScriptError> CheckExpressions(CompiledScript& script);

// The error of the statement that holds `element`: from its marker to the next one.
ScriptError ErrorAt(const CompiledScript& script, size_t element, std::string text);

}  // namespace tessarel
