#include "app/sim/output.h"

#include <cstdio>

#include "app/sim/failure.h"

namespace tessarel::sim {

void WriteOut(std::string_view text) {
  const bool whole = std::fwrite(text.data(), 1, text.size(), stdout) == text.size();
  if (!whole || std::fflush(stdout) != 0) {
    throw Failure(CannotBeDone, "Standard output cannot be written.");
  }
}

}  // namespace tessarel::sim
