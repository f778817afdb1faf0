// Arrays that are indexed by places, bets and codes, which are ints and enums, and the one checked
// access for indices that come from outside.
#pragma once

#include <array>
#include <cstddef>
#include <iterator>

#include "base/fault.h"

namespace tessarel {

// A std::array that takes any integral index as it stands. Unchecked as that one is; builds with
// library assertions check it.
template <class T, size_t Size>
struct Indexed : std::array<T, Size> {
  constexpr T& operator[](auto index) {
    return std::array<T, Size>::operator[](static_cast<size_t>(index));
  }
  constexpr const T& operator[](auto index) const {
    return std::array<T, Size>::operator[](static_cast<size_t>(index));
  }
};

inline constexpr int LastPlace = 8;

template <class T>
using PerPlace = Indexed<T, LastPlace + 1>;  // 0 the house, 1 to 8

// The checked element of an array or vector: an index outside it raises the index fault.
template <class Array>
constexpr auto& At(Array& array, auto index) {
  const auto element = static_cast<size_t>(index);
  if (element >= std::size(array)) RaiseIndexOutOfRange();
  return array[element];
}

}  // namespace tessarel
