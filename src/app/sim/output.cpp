#include "app/sim/output.h"

#include <algorithm>
#include <cstdio>

#include "app/sim/failure.h"
#include "texts/say.h"

namespace tessarel::sim {

namespace {

// What fills `text` up to `width` characters.
std::string BlanksBeside(std::string_view text, size_t width) {
  const auto begins = [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0) != 0x80; };
  const auto length = static_cast<size_t>(std::ranges::count_if(text, begins));
  return std::string(width > length ? width - length : 0, ' ');
}

}  // namespace

void WriteOut(std::string_view text) {
  const bool whole = std::fwrite(text.data(), 1, text.size(), stdout) == text.size();
  if (!whole || std::fflush(stdout) != 0) {
    throw Failure(CannotBeDone, Say(Text::SimOutputNotWritten));
  }
}

std::string Left(const std::string& text, size_t width) {
  return text + BlanksBeside(text, width);
}

std::string Right(const std::string& text, size_t width) {
  return BlanksBeside(text, width) + text;
}

}  // namespace tessarel::sim
