#include "autobet/checker.h"

#include "autobet/token_walk.h"
#include "base/fault.h"
#include "state/scripts.h"

namespace tessarel {

namespace {

// Which functions carry how many qualifiers; all others none.
struct QualifierRow {
  int32_t First, Last;
  int Count;
};
// clang-format off
constexpr QualifierRow FunctionRows[] = {
    {1, 10, 4}, {21, 21, 1}, {22, 22, 2}, {25, 34, 4}, {40, 45, 3}, {46, 47, 4}, {137, 137, 4},
    {800, 800, 1},
};
constexpr QualifierRow VariableRows[] = {
    {1, 93, 4}, {94, 999, 1}, {1000, 1999, 2}, {2000, 2999, 3}, {3000, 4999, 4},
};
// clang-format on

template <size_t N>
int CountOf(const QualifierRow (&rows)[N], int32_t number) {
  for (const QualifierRow& row : rows) {
    if (number >= row.First && number <= row.Last) return row.Count;
  }
  return 0;
}

}  // namespace

int QualifierCount(int32_t variable) {
  return CountOf(VariableRows, variable);
}

int FunctionQualifierCount(int32_t function) {
  return CountOf(FunctionRows, function);
}

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
                       .text = fault.Description + ", Error #" + std::to_string(fault.Number)};
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
