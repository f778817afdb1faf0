#include "app/sim/output.h"

#include <algorithm>
#include <cstdio>

#include "app/sim/failure.h"

namespace tessarel::sim {

void WriteOut(std::string_view text) {
  const bool whole = std::fwrite(text.data(), 1, text.size(), stdout) == text.size();
  if (!whole || std::fflush(stdout) != 0) {
    throw Failure(CannotBeDone, "Standard output cannot be written.");
  }
}

std::string Left(std::string text, size_t width) {
  text.resize(std::max(width, text.size()), ' ');
  return text;
}

std::string Right(const std::string& text, size_t width) {
  return std::string(width > text.size() ? width - text.size() : 0, ' ') + text;
}

}  // namespace tessarel::sim
