#include <string>
#include <unordered_map>

#include "autobet/checker.h"
#include "autobet/function_table.h"
#include "autobet/number_text.h"
#include "autobet/token_names.h"
#include "autobet/token_walk.h"
#include "base/single_byte_text.h"
#include "texts/say.h"

namespace tessarel {

namespace {

std::optional<ScriptError> CheckBrackets(const CompiledScript& script) {
  const auto& stream = script.TokenStream;
  int depth = 0;
  for (size_t k = 2; k < stream.size(); ++k) {
    const int32_t code = stream[k].code;
    if (code == LogicOpen) ++depth;
    if (code == LogicClose) --depth;
    if (depth < 0 || (depth > 0 && IsMarker(code)))
      return ErrorAt(script, k - 1, Say(Text::ScriptBracketMissing));
  }
  return {};
}

// A text or number that is all of its statement names a place to jump to. The words for the date
// and time and the empty text are no names.
bool IsLabel(const std::vector<ScriptToken>& stream, size_t element) {
  const auto& [code, value] = stream[element];
  return (code == NumberToken || (code == StringToken && value > 0)) &&
         IsMarker(stream[element - 1].code) &&
         (element + 1 == stream.size() || IsMarker(stream[element + 1].code));
}

std::optional<ScriptError> EnterLabels(CompiledScript& script) {
  auto& stream = script.TokenStream;
  std::unordered_map<std::string, int32_t> lines;
  for (size_t k = 2; k < stream.size(); ++k) {
    if (!IsLabel(stream, k)) continue;
    const bool isNumber = stream[k].code == NumberToken;
    if (isNumber) {
      script.ScriptStringTable.push_back({NumberText(stream[k].value)});
      stream[k].value = static_cast<double>(script.ScriptStringTable.size() - 1);
    }
    stream[k].code = LabelToken;
    const std::string& name = script.ScriptStringTable[static_cast<size_t>(stream[k].value)].text;
    const int32_t line = stream[k - 1].code - MarkerToken;
    const auto [other, isNew] = lines.try_emplace(LowerCase(TrimSpaces(name)), line);
    if (isNew) continue;
    const Text text = isNumber ? Text::ScriptDoubleLineNumber : Text::ScriptDoubleLabel;
    return ErrorAt(script, k, SayChosen(text, other->second));
  }
  return {};
}

// Lists get their end after the closing bracket.
std::optional<ScriptError> CloseLists(CompiledScript& script) {
  auto& stream = script.TokenStream;
  const TokenWalk walk(stream);
  std::vector<bool> endsList(stream.size());
  for (size_t k = 1; k < stream.size(); ++k) {
    if (stream[k].code != ListToken) continue;
    if (k + 1 == stream.size() || stream[k + 1].code != LogicOpen) {
      const bool any = NumberIn(stream[k]) == ListAny;
      return ErrorAt(script, k,
                     SayChosen(any ? Text::ScriptAnyLacksBrackets : Text::ScriptAllLacksBrackets));
    }
    endsList[walk.Match(k + 1)] = true;
  }
  std::vector<ScriptToken> closed;
  for (size_t k = 0; k < stream.size(); ++k) {
    closed.push_back(stream[k]);
    if (endsList[k]) closed.push_back({EmptyToken, 0});
  }
  stream = std::move(closed);
  return {};
}

// Whether what follows a function can be its argument. Those with qualifiers may have some of them
// in between.
bool HasOperand(const std::vector<ScriptToken>& stream, const TokenWalk& walk, size_t element) {
  const int32_t function = NumberIn(stream[element]);
  size_t operand = element + 1;
  while (FunctionQualifierCount(function) > 0 && operand < stream.size()) {
    if (IsPlayerFunction(stream[operand])) {
      operand = walk.PlayerFunctionEnd(operand);
    } else if (IsQualifier(stream[operand].code)) {
      ++operand;
    } else {
      break;
    }
  }
  if (operand >= stream.size()) return false;
  const int32_t code = stream[operand].code;
  const bool plain = FunctionQualifierCount(function) == 0;
  if (code == LogicOpen || (plain && code == StringToken)) return true;
  return (plain || TakesBareOperand(function)) && (code == NumberToken || code == VariableToken);
}

std::optional<ScriptError> CheckFunctionOperands(const CompiledScript& script) {
  const auto& stream = script.TokenStream;
  const TokenWalk walk(stream);
  for (size_t k = 1; k < stream.size(); ++k) {
    if (stream[k].code != FunctionToken || HasOperand(stream, walk, k)) continue;
    const int32_t function = NumberIn(stream[k]);
    const Text text =
        NamesBet(function) ? Text::ScriptBetLacksNumber : Text::ScriptFunctionLacksOperand;
    return ErrorAt(script, k, SayChosen(text, FunctionName(function)));
  }
  return {};
}

}  // namespace

std::optional<ScriptError> CheckLists(CompiledScript& script) {
  if (auto error = CheckBrackets(script)) return error;
  if (auto error = EnterLabels(script)) return error;
  if (auto error = CloseLists(script)) return error;
  return CheckFunctionOperands(script);
}

}  // namespace tessarel
