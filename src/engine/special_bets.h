// The marks and counts that the special bets run on.
#pragma once

#include <cstdint>

#include "state/bet_numbers.h"

namespace tessarel {

// Bit n of MarkedNumbers stands for the total n.
inline constexpr int32_t SmallMarks = 124;  // 2 to 6
inline constexpr int32_t TallMarks = 7936;  // 8 to 12
inline constexpr int32_t AllMarks = SmallMarks | TallMarks;

// The marks that complete All Small, All Tall or Make All.
constexpr int32_t MarksOf(int number) {
  return number == bet::AllSmall ? SmallMarks : number == bet::AllTall ? TallMarks : AllMarks;
}

// Before the roll in Table is settled: marks its total and counts it for 4 Rolls No 7.
void MarkRoll();

}  // namespace tessarel
