// Token streams in words, for tests that compare them: "@2:5" a statement from line 2, column 5 on;
// letters as in the vocabulary, in lower case for targets; numbers as they are; "L9>24" a logic
// token with its jump; "script 1" the header.
#pragma once

#include <map>
#include <span>
#include <string>

#include "autobet/number_text.h"
#include "autobet/translation.h"
#include "autobet/vocabulary.h"

namespace tessarel {

inline std::string ShownToken(const ScriptToken& token) {
  static const std::map<int32_t, std::string> letters = {
      {HeaderToken, "script "}, {FunctionToken, "F"},      {FunctionTarget, "f"},
      {VariableToken, "V"},     {VariableTarget, "v"},     {PlayerToken, "P"},
      {HandToken, "H"},         {FirstModifierToken, "X"}, {SecondModifierToken, "Y"},
      {NumberToken, ""},        {StringToken, "S"},        {ActionToken, "A"},
      {LabelToken, "label"},    {ListToken, "I"},          {EmptyToken, "U"}};
  const auto& [code, value] = token;
  if (IsMarker(code)) return "@" + std::to_string(code - MarkerToken) + ":" + NumberText(value);
  if (code <= 0) return letters.at(code) + NumberText(value);
  return "L" + std::to_string(code) + (value != 0 ? ">" + NumberText(value) : "");
}

inline std::string ShownTokens(std::span<const ScriptToken> tokens) {
  std::string text;
  for (const ScriptToken& token : tokens)
    text += (text.empty() ? "" : " ") + ShownToken(token);
  return text;
}

}  // namespace tessarel
