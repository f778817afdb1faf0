// The tables that the catalogues are compiled into: for each language its texts in the order of
// Text. A character from 1 to 8 stands where the value of that number goes.
#pragma once

#include <array>
#include <string_view>

#include "texts/text_keys.h"

namespace tessarel {

using TextTables = std::array<std::array<std::string_view, TextCount>, LanguageCount>;

extern const TextTables TextsOfLanguages;

}  // namespace tessarel
