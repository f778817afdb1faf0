#include "autobet/text_functions.h"

#include <algorithm>
#include <optional>

#include "autobet/number_text.h"
#include "base/single_byte_text.h"

namespace tessarel {

namespace {

struct Stretch {
  size_t Start, Length;
};

ScriptValue TextResult(const std::string& bytes) {
  if (bytes.size() > MaxTextLength) {
    FailScript(ScriptFault::TextTooLong);
    return Number(0);
  }
  return MakeText(FromSingleByte(bytes));
}

// The stretch of a text of `size` characters that a call names, as far as the text has it. Nothing
// for a position below 1 and a count below 0.
std::optional<Stretch> StretchOf(const FunctionCall& call, size_t size) {
  const bool middle = call.Number == function::Mid || call.Number == function::RemoveMid;
  const bool right = call.Number == function::Right || call.Number == function::RemoveRight;
  const int32_t position = middle ? call.WholeAt(1) : 1;
  const bool toTheEnd = middle && call.Arguments.size() < 3;
  const int32_t count = toTheEnd ? MaxTextLength : call.WholeAt(middle ? 2 : 1);
  if (position < 1 || count < 0) return std::nullopt;
  const size_t start = std::min(static_cast<size_t>(position - 1), size);
  const size_t length = std::min(static_cast<size_t>(count), size - start);
  return Stretch{right ? size - length : start, length};
}

}  // namespace

ScriptValue CodeOfText(const FunctionCall& call) {
  const std::string bytes = call.BytesAt(0);
  return Number(bytes.empty() ? 0 : static_cast<uint8_t>(bytes.front()));
}

ScriptValue ValueOfText(const FunctionCall& call) {
  return Number(call.NumberAt(0));
}

ScriptValue LengthOfText(const FunctionCall& call) {
  return Number(static_cast<double>(call.BytesAt(0).size()));
}

ScriptValue FindInText(const FunctionCall& call) {
  const int32_t start = call.WholeAt(0);
  if (start < 1) return Refused(call);
  const std::string text = call.BytesAt(1);
  const auto from = static_cast<size_t>(start - 1);
  const size_t found = from < text.size() ? text.find(call.BytesAt(2), from) : std::string::npos;
  return Number(found == std::string::npos ? 0 : static_cast<double>(found + 1));
}

ScriptValue KeepStretch(const FunctionCall& call) {
  const std::string text = call.BytesAt(0);
  const auto stretch = StretchOf(call, text.size());
  return stretch ? TextResult(text.substr(stretch->Start, stretch->Length)) : Refused(call);
}

ScriptValue RemoveStretch(const FunctionCall& call) {
  std::string text = call.BytesAt(0);
  const auto stretch = StretchOf(call, text.size());
  return stretch ? TextResult(text.erase(stretch->Start, stretch->Length)) : Refused(call);
}

ScriptValue InsertText(const FunctionCall& call) {
  std::string text = call.BytesAt(0);
  const int32_t position = call.WholeAt(1);
  if (position < 1) return Refused(call);
  return TextResult(
      text.insert(std::min(static_cast<size_t>(position - 1), text.size()), call.BytesAt(2)));
}

ScriptValue TextOfNumber(const FunctionCall& call) {
  return TextResult(NumberText(call.NumberAt(0)));
}

ScriptValue TextOfCode(const FunctionCall& call) {
  const int32_t code = call.WholeAt(0);
  if (code < 0 || code > 255) return Refused(call);
  return TextResult(std::string(1, static_cast<char>(code)));
}

ScriptValue BlankText(const FunctionCall& call) {
  const int32_t count = call.WholeAt(0);
  if (count < 0 || count > MaxTextLength) return Refused(call);
  return TextResult(std::string(static_cast<size_t>(count), ' '));
}

}  // namespace tessarel
