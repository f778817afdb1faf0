#include "state/bet_numbers.h"

#include "base/single_byte_text.h"

namespace tessarel {

int BetByName(std::string_view name) {
  for (int number = 1; number <= LastBet; ++number) {
    if (EqualIgnoringCase(BetName[static_cast<size_t>(number)], name)) return number;
  }
  return 0;
}

}  // namespace tessarel
