// Sets of small numbers as bits, for walking only over what is there.
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>

namespace tessarel {

// A set of the numbers 0 to 64 x Words - 1.
template <size_t Words>
class BitSet {
 public:
  constexpr bool Has(int number) const { return (Word(number) & Bit(number)) != 0; }
  constexpr void Add(int number) { Word(number) |= Bit(number); }
  constexpr void Remove(int number) { Word(number) &= ~Bit(number); }
  constexpr void Set(int number, bool present) { present ? Add(number) : Remove(number); }
  constexpr void Clear() { words_ = {}; }
  constexpr bool Empty() const { return *this == BitSet(); }

  constexpr bool Intersects(const BitSet& other) const {
    uint64_t common = 0;
    for (size_t k = 0; k < words_.size(); ++k)
      common |= words_[k] & other.words_[k];
    return common != 0;
  }

  constexpr BitSet& operator|=(const BitSet& other) {
    for (size_t k = 0; k < words_.size(); ++k)
      words_[k] |= other.words_[k];
    return *this;
  }
  friend constexpr bool operator==(const BitSet&, const BitSet&) = default;

  // Calls visit(number) for each member in rising order. The set may change meanwhile; the walk
  // sees it as it was when its word was reached.
  template <class Visit>
  constexpr void ForEach(Visit&& visit) const {
    for (size_t k = 0; k < words_.size(); ++k) {
      for (uint64_t rest = words_[k]; rest != 0; rest &= rest - 1) {
        visit(static_cast<int>(k * 64) + std::countr_zero(rest));
      }
    }
  }

 private:
  static constexpr uint64_t Bit(int number) { return uint64_t{1} << (number & 63); }
  constexpr uint64_t& Word(int number) { return words_[static_cast<size_t>(number) >> 6]; }
  constexpr uint64_t Word(int number) const { return words_[static_cast<size_t>(number) >> 6]; }

  std::array<uint64_t, Words> words_{};
};

using BetSet = BitSet<2>;     // bets, 1 to 93
using NumberSet = BitSet<4>;  // bets and check stacks, 1 to 200

}  // namespace tessarel
