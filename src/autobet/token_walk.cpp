#include "autobet/token_walk.h"

#include <algorithm>

#include "autobet/function_table.h"

namespace tessarel {

bool TakesBareOperand(int32_t function) {
  return NamesVariable(function) || function == function::AverageBankroll ||
         function == function::Player;
}

int QualifiersOf(const ScriptToken& head) {
  if (IsVariable(head.code)) return QualifierCount(NumberIn(head));
  if (IsFunction(head.code)) return FunctionQualifierCount(NumberIn(head));
  return 0;
}

size_t StatementEnd(const std::vector<ScriptToken>& stream, size_t element) {
  while (element < stream.size() && !IsMarker(stream[element].code))
    ++element;
  return element;
}

TokenWalk::TokenWalk(const std::vector<ScriptToken>& stream)
    : stream_(stream), matches_(stream.size()) {
  std::vector<size_t> open;
  for (size_t k = 1; k < stream.size(); ++k) {
    if (stream[k].code == LogicOpen) open.push_back(k);
    if (stream[k].code != LogicClose || open.empty()) continue;
    matches_[k] = open.back();
    matches_[open.back()] = k;
    open.pop_back();
  }
}

int32_t TokenWalk::CodeAt(size_t element) const {
  return element < stream_.size() ? stream_[element].code : static_cast<int32_t>(MarkerToken);
}

size_t TokenWalk::PlayerFunctionEnd(size_t element) const {
  const size_t operand = element + 1;
  return (CodeAt(operand) == LogicOpen ? Match(operand) : operand) + 1;
}

size_t TokenWalk::PlayerEnd(size_t head) const {
  if (QualifiersOf(stream_[head]) == 0) return head + 1;
  const size_t player = head + 1;
  return IsFunction(CodeAt(player)) ? PlayerFunctionEnd(player) : player + 1;
}

size_t TokenWalk::QualifiersEnd(size_t head) const {
  const int count = QualifiersOf(stream_[head]);
  return PlayerEnd(head) + static_cast<size_t>(std::max(count - 1, 0));
}

size_t TokenWalk::End(size_t head) const {
  size_t end = QualifiersEnd(head);
  if (!IsFunction(stream_[head].code)) return end;
  if (CodeAt(end) == LogicOpen) return Match(end) + 1;
  if (!TakesBareOperand(NumberIn(stream_[head]))) return end;
  if (CodeAt(end) == NumberToken) return end + 1;
  return IsVariable(CodeAt(end)) ? QualifiersEnd(end) : end;
}

}  // namespace tessarel
