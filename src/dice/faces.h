// What two dice show.
#pragma once

#include <cstdint>

namespace tessarel {

// Two faces as a generator yields them. The formulas of RNG #5 and #6 can yield a 7.
struct Faces {
  int32_t die1, die2;
};

}  // namespace tessarel
