// How names typed by a user are matched: as spelled, letter case ignored (in ASCII).
#pragma once

#include <algorithm>
#include <cctype>
#include <string_view>

namespace tessarel {

inline bool SameName(std::string_view a, std::string_view b) {
  return std::ranges::equal(
      a, b, [](unsigned char x, unsigned char y) { return std::tolower(x) == std::tolower(y); });
}

}  // namespace tessarel
