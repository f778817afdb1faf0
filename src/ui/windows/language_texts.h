// The texts of the list of languages.
#pragma once

#include "texts/language.h"

namespace tessarel::language_text {

// clang-format off
// Each language by its own name, whichever is in force.
inline constexpr SixTexts
    NativeNames = {"English", "Español", "Deutsch", "Français", "Türk", "Italiano"};

inline constexpr SixTexts
    Title  = {"Language", "Idioma", "Sprache", "Langue", "Dil", "Lingua"},
    Choose = {"&Choose", "&Elegir", "&Wählen", "&Choisir", "&Seç", "&Scegli"};
// clang-format on

}  // namespace tessarel::language_text
