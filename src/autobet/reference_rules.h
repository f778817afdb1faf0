// What the qualifiers of a variable or statistic function may be: the values of those that were not
// written, and the combinations that mean nothing. Used when references are brought to their normal
// form.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "autobet/translation.h"
#include "autobet/word_numbers.h"

namespace tessarel {

// The qualifiers that were written with a reference.
struct WrittenQualifiers {
  std::optional<int32_t> player;  // a PlayerWord or place
  std::optional<int32_t> hand, first, second;
};

struct Qualifiers {
  int32_t player = 0, hand = 0, first = 0, second = 0;
};

// Every qualifier of a variable or function token in a script of the place `owner`.
Qualifiers WithDefaults(const ScriptToken& head, const WrittenQualifiers& written, int owner);

// What is wrong with a reference, as the second part of its message; empty when nothing is.
std::string QualifierMisuse(const ScriptToken& head, const Qualifiers& qualifiers);

// Whether a token stands for a bet: by name, by family and number, or a group of bets.
bool NamesBet(const ScriptToken& head);

// Whether a token stands for a statistic of the totals and combinations rolled, which a set of
// rolls qualifies.
bool CountsRollsOfSet(const ScriptToken& head);

// Whether a modifier names a set of rolls.
bool IsRollSet(int32_t modifier);

// Whether a roll can be asked for in a set of rolls (0: no set named). 0 stands for all rolls.
bool IsRollOf(int32_t set, double roll);

}  // namespace tessarel
