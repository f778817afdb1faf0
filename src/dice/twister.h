// The Mersenne Twister MT19937 as two of the generators use it: one core and two ways of spreading
// a seed over its state. A word costs a load and four shifts; every 624 words the whole state moves
// on in loops that compilers turn into vector code.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace tessarel {

// Source of core and seedings: M. Matsumoto and T. Nishimura, "Mersenne Twister: A
// 623-Dimensionally Equidistributed Uniform Pseudo-Random Number Generator", ACM TOMACS 8 (1998),
// with the seedings its authors gave in 1999 and 2002.
struct Twister {
  static constexpr size_t Length = 624;
  static constexpr uint32_t DefaultSeed = 5489;

  std::array<uint32_t, Length> words{};
  size_t next = Length;  // the word of the state to be taken next; Length: the state must move on
};

// The seeding of 2002, in which every word depends on all bits of the one before.
constexpr Twister TwisterByRecurrence(uint32_t seed) {
  Twister twister;
  uint32_t word = seed;
  for (uint32_t k = 0; k < Twister::Length; ++k) {
    if (k > 0) word = 1812433253U * (word ^ (word >> 30)) + k;
    twister.words[k] = word;
  }
  return twister;
}

// The seeding of 1999: each word is made of the upper halves of two steps of a congruential
// generator.
constexpr Twister TwisterByUpperHalves(uint32_t seed) {
  Twister twister;
  for (uint32_t& word : twister.words) {
    const uint32_t following = 69069U * seed + 1;
    word = (seed & 0xFFFF0000U) | (following >> 16);
    seed = 69069U * following + 1;
  }
  return twister;
}

// Moves the whole state on by 624 words.
void Regenerate(Twister& twister);

// The next 32 random bits.
inline uint32_t NextWord(Twister& twister) {
  if (twister.next >= Twister::Length) Regenerate(twister);
  uint32_t word = twister.words[twister.next++];
  word ^= word >> 11;
  word ^= (word << 7) & 0x9D2C5680U;
  word ^= (word << 15) & 0xEFC60000U;
  return word ^ (word >> 18);
}

// The word as a real, word / 2^32: 0 inclusive to 1 exclusive.
inline double RealOfWord(uint32_t word) {
  return word * 0x1p-32;
}

// floor(word / 2^32 x n), exact in whole numbers.
constexpr int32_t ScaleWord(uint32_t word, uint32_t n) {
  return static_cast<int32_t>((uint64_t{word} * n) >> 32);
}

}  // namespace tessarel
