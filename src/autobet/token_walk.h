// Finding one's way in a token stream: which bracket closes which, and how far a variable or
// function reaches with its qualifiers and argument. Shared by the passes of the checker; all
// routines but the constructor take constant time, whatever the depth of the brackets.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "autobet/translation.h"
#include "autobet/vocabulary.h"
#include "autobet/word_numbers.h"

namespace tessarel {

// The number of a token of one of the word classes.
constexpr int32_t NumberIn(const ScriptToken& token) {
  return static_cast<int32_t>(token.value);
}

constexpr bool IsQualifier(int32_t code) {
  return code <= PlayerToken && code >= SecondModifierToken;
}
constexpr bool IsVariable(int32_t code) {
  return code == VariableToken || code == VariableTarget;
}
constexpr bool IsFunction(int32_t code) {
  return code == FunctionToken || code == FunctionTarget;
}
constexpr bool IsRelation(int32_t code) {
  return code >= LogicEqual && code <= LogicGreaterOrEqual;
}

// The function that stands for a player, not for a value, beside a variable.
constexpr bool IsPlayerFunction(const ScriptToken& token) {
  return IsFunction(token.code) && NumberIn(token) == function::Player;
}

// Whether the argument of a function may be a number or variable without brackets.
bool TakesBareOperand(int32_t function);

// How many qualifiers follow a variable or function token in the normal form; 0 for any other.
int QualifiersOf(const ScriptToken& head);

// The end of the statement that holds `element`: its next marker, or the end of the stream.
size_t StatementEnd(const std::vector<ScriptToken>& stream, size_t element);

// A stream whose brackets are balanced. It must not grow or shrink while it is walked.
class TokenWalk {
 public:
  explicit TokenWalk(const std::vector<ScriptToken>& stream);

  // The element of the bracket that belongs to a bracket.
  size_t Match(size_t bracket) const { return matches_[bracket]; }

  // Behind a player function that stands for a player at `element`, with its operand.
  size_t PlayerFunctionEnd(size_t element) const;

  // For a variable or function in the normal form: after the first qualifier, after all of them,
  // and after the argument. Another element ends after itself.
  size_t PlayerEnd(size_t head) const;
  size_t QualifiersEnd(size_t head) const;
  size_t End(size_t head) const;

 private:
  int32_t CodeAt(size_t element) const;

  const std::vector<ScriptToken>& stream_;
  std::vector<size_t> matches_;
};

}  // namespace tessarel
