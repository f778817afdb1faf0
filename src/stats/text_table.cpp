#include "stats/text_table.h"

#include <algorithm>

namespace tessarel {

namespace {

constexpr size_t Gap = 2;

size_t WidthOf(const std::string& text) {
  return static_cast<size_t>(
      std::ranges::count_if(text, [](char c) { return (c & 0xC0) != 0x80; }));
}

}  // namespace

std::string TextTable(const TextRows& rows) {
  std::vector<size_t> widths;
  for (const auto& row : rows) {
    widths.resize(std::max(widths.size(), row.size()));
    for (size_t k = 0; k < row.size(); ++k)
      widths[k] = std::max(widths[k], WidthOf(row[k]));
  }
  std::string text;
  for (const auto& row : rows) {
    std::string line;
    for (size_t k = 0; k < row.size(); ++k) {
      const std::string blanks(widths[k] - WidthOf(row[k]), ' ');
      line += k == 0 ? row[k] + blanks : std::string(Gap, ' ') + blanks + row[k];
    }
    line.erase(line.find_last_not_of(' ') + 1);
    text += line + "\n";
  }
  return text;
}

}  // namespace tessarel
