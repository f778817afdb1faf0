#include "autobet/older_scripts.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "base/single_byte_text.h"

namespace tessarel {

namespace {

constexpr std::array<std::string_view, 3> Headers = {
    "Ostrelvane AutoBets, Data Format 5.0",
    "Tessarel AutoBets, Data Format 3.9",
    "Tessarel AutoBets, Data Format 5.0",
};

// A record: the text, the kind as two bytes, lowest first, and filler.
constexpr size_t RecordSize = 256, TextSize = 128, KindEnd = TextSize + 2;

int KindOf(std::string_view record) {
  const auto low = static_cast<uint8_t>(record[TextSize]);
  const auto high = static_cast<uint8_t>(record[TextSize + 1]);
  return low + 256 * high;
}

constexpr bool BeginsLine(int kind) {
  return kind == 1 || kind == 2 || kind == 13;
}

std::string_view WithoutPadding(std::string_view field) {
  constexpr std::string_view Padding(" \0", 2);
  return field.substr(0, field.find_last_not_of(Padding) + 1);
}

}  // namespace

bool IsOlderScript(std::string_view bytes) {
  return std::ranges::any_of(
      Headers, [bytes](std::string_view header) { return bytes.starts_with(header); });
}

std::vector<std::string> OlderScriptLines(std::string_view bytes) {
  std::vector<std::string> lines;
  bool fieldWasFull = false;
  for (size_t at = RecordSize; at + KindEnd <= bytes.size(); at += RecordSize) {
    const std::string_view record = bytes.substr(at, KindEnd);
    const std::string_view piece = WithoutPadding(record.substr(0, TextSize));
    if (piece.empty()) continue;
    if (lines.empty() || BeginsLine(KindOf(record))) {
      lines.emplace_back();
    } else if (!fieldWasFull) {
      lines.back() += ' ';  // a piece that fills its field runs on into the next
    }
    lines.back() += FromSingleByte(piece);
    fieldWasFull = piece.size() == TextSize;
  }
  return lines;
}

}  // namespace tessarel
