#include "engine/bet_numbers.h"

#include <algorithm>
#include <cctype>

namespace tessarel {

int BetByName(std::string_view name) {
  const auto sameLetter = [](char a, char b) {
    return std::tolower(static_cast<unsigned char>(a)) ==
           std::tolower(static_cast<unsigned char>(b));
  };
  for (int number = 1; number <= LastBet; ++number) {
    const std::string_view candidate = BetName[static_cast<size_t>(number)];
    if (std::equal(name.begin(), name.end(), candidate.begin(), candidate.end(), sameLetter)) {
      return number;
    }
  }
  return 0;
}

}  // namespace tessarel
