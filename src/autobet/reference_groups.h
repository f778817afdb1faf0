// Sorting the words of a script into the groups that make a reference: a variable or function and
// the qualifiers before, after and between. The first half of bringing references to their normal
// form; which qualifiers go together is not asked here.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "autobet/translation.h"
#include "autobet/vocabulary.h"

namespace tessarel {

// The kinds of qualifier in the order of the normal form.
enum QualifierKind : size_t { PlayerKind, HandKind, FirstKind, SecondKind, KindCount };

// Whether a variable or function with so many qualifiers takes one of a kind.
constexpr bool TakesQualifier(int count, QualifierKind kind) {
  constexpr std::array<int, KindCount> FewestWith = {1, 2, 4, 3};
  return count >= FewestWith[kind];
}

// Words that belong together: a variable or function and its qualifiers, or qualifiers alone.
// Elements are 0 while there is none.
struct ReferenceGroup {
  size_t begin = 0;                         // its first element
  size_t head = 0;                          // the variable or function
  std::array<size_t, KindCount> written{};  // the qualifiers
  std::array<int, KindCount> counts{};
  int heads = 0, size = 0;
  size_t since = 0;           // "# of rolls since last" in front of a bet
  size_t roll = 0;            // the number whose statistic is meant
  size_t awaits = 0;          // the function that has not met its argument yet
  size_t operandOf = 0;       // the group of the function of which this is the bare operand
  size_t argumentOf = 0;      // the group of the function in whose brackets this is
  bool argumentDone = false;  // only qualifiers can follow
};

// What becomes of an element in the normal form.
enum class ElementFate : uint8_t { Stays, Goes, TakesQualifiers };

struct ReferenceGroups {
  std::vector<ReferenceGroup> groups = std::vector<ReferenceGroup>(1);  // from 1, as they begin
  std::vector<ElementFate> fates;                                       // by element
  std::vector<size_t> groupOf;                                          // by element, of the heads
};

// The groups of a stream whose brackets are balanced and whose functions have an argument.
ReferenceGroups ReadReferenceGroups(const std::vector<ScriptToken>& stream);

}  // namespace tessarel
