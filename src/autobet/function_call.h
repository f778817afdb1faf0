// The call of a function as the routines that work it out see it: its number, its qualifiers and
// its arguments as numbers and texts.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

#include "autobet/values.h"

namespace tessarel {

// The longest text that a function makes.
inline constexpr int32_t MaxTextLength = 1'000'000;

// The nearest whole number, ties to even, kept within two thousand million; a number that is none
// is the lowest.
int32_t WholeOf(double number);

struct FunctionCall {
  int32_t Number = 0;
  const Reference& Qualifiers;
  std::span<const ListItem> Arguments;

  // The argument from 0; the number 0 where the call has none.
  ScriptValue Argument(size_t k) const {
    return k < Arguments.size() ? Arguments[k].value : tessarel::Number(0);
  }
  double NumberAt(size_t k) const { return NumberOf(Argument(k)); }
  int32_t WholeAt(size_t k) const { return WholeOf(NumberAt(k)); }
  // One byte a character, so that positions count characters.
  std::string BytesAt(size_t k) const;
};

// The argument is out of limits: the error has the number of the function.
ScriptValue Refused(const FunctionCall& call);

}  // namespace tessarel
