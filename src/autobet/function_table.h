// The functions of the language as the checker sees them: what messages call them, which qualifiers
// they carry and how many arguments they take.
#pragma once

#include <cstdint>
#include <string_view>

namespace tessarel {

struct FunctionTraits {
  static constexpr int AnyNumber = -1;  // a list, with qualifiers

  int32_t Number = 0;
  std::string_view Name;
  int Qualifiers = 0;  // as QualifierCount of variables (autobet/word_numbers.h)
  int LeastArguments = 0;
  int MostArguments = LeastArguments;  // 0: a function that names a variable, with a number

  constexpr bool TakesList() const { return MostArguments == AnyNumber; }
};

// Null for a number without a function.
const FunctionTraits* FindFunction(int32_t number);

// 0 for a number without a function.
int FunctionQualifierCount(int32_t number);

}  // namespace tessarel
