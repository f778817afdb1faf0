#include "autobet/checker.h"

#include "autobet/token_walk.h"
#include "base/fault.h"
#include "state/scripts.h"
#include "texts/say.h"

namespace tessarel {

std::optional<ScriptError> RewriteScript(int slot,
                                         CompiledScript& script,
                                         std::vector<int32_t>* lineLevels) {
  const auto& lines = Scripts.Places[slot].lines;
  if (auto error = TranslateScript(slot, lines, script)) return error;
  if (auto error = CheckLists(script)) return error;
  if (auto error = CheckReferences(slot, script)) return error;
  if (auto error = CheckThru(script)) return error;
  ExpandGroups(script);
  if (auto error = CheckAssignments(script)) return error;
  return CheckStructure(script, lineLevels);
}

std::optional<ScriptError> CheckScript(int slot,
                                       CompiledScript& script,
                                       std::vector<int32_t>* lineLevels) {
  try {
    if (auto error = RewriteScript(slot, script, lineLevels)) return error;
    return CheckExpressions(script);
  } catch (const Fault& fault) {
    return ScriptError{.line = 1,
                       .endLine = 1,
                       .text = Say(Text::ScriptFaultInCheck, fault.Description, fault.Number)};
  }
}

ScriptError ErrorAt(const CompiledScript& script, size_t element, std::string text) {
  const auto& stream = script.TokenStream;
  size_t start = element;
  while (start > 1 && !IsMarker(stream[start].code))
    --start;
  const size_t end = StatementEnd(stream, start + 1);
  const ScriptToken from = stream[start];
  const ScriptToken to = end < stream.size() ? stream[end] : from;
  return {.line = from.code - MarkerToken,
          .startColumn = NumberIn(from),
          .endLine = to.code - MarkerToken,
          .endColumn = NumberIn(to),
          .text = std::move(text)};
}

}  // namespace tessarel
