// The words in which scripts choose what becomes of won and lost bets.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "base/money.h"

namespace tessarel {

struct HandlingChoice {
  int32_t mode = 0;  // WinHandling or LossHandling
  // Only of the modes that modify a bet or set it: dollars, and 0 plus, 1 minus, 2 times, 3 divide.
  bool hasAmount = false;
  int32_t operation = 0;
  Money amount;
};

// What "parlay", "Same bet + 5" or "bet 10" choose, in any letter case and with blanks anywhere.
// Empty for other words, for a missing amount and for one outside 0 to the bankroll limit.
std::optional<HandlingChoice> WinHandlingOf(std::string_view words);
std::optional<HandlingChoice> LossHandlingOf(std::string_view words);

}  // namespace tessarel
