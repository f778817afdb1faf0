#include "dice/twister.h"

namespace tessarel {

namespace {

// The distance of the word that is mixed in, and the length of the stretch that reaches it without
// wrapping round.
constexpr size_t Offset = 397;
constexpr size_t Stretch = Twister::Length - Offset;

constexpr uint32_t Mixed(uint32_t upper, uint32_t lower, uint32_t distant) {
  const uint32_t joined = (upper & 0x80000000U) | (lower & 0x7FFFFFFFU);
  return distant ^ (joined >> 1) ^ ((0U - (joined & 1)) & 0x9908B0DFU);
}

}  // namespace

void Regenerate(Twister& twister) {
  uint32_t* const words = twister.words.data();
  for (size_t k = 0; k < Stretch; ++k)
    words[k] = Mixed(words[k], words[k + 1], words[k + Offset]);
  for (size_t k = Stretch; k < Twister::Length - 1; ++k)
    words[k] = Mixed(words[k], words[k + 1], words[k - Stretch]);
  const size_t last = Twister::Length - 1;
  words[last] = Mixed(words[last], words[0], words[Offset - 1]);
  twister.next = 0;
}

}  // namespace tessarel
