// The captions of the settle-bet prompt that are not part of the prompt's own data. No shortcut
// collides with those of the five buttons above these two, which stay English after a loss.
#pragma once

#include "texts/language.h"

namespace tessarel::settle_text {

// clang-format off
inline constexpr SixTexts
    Title  = {"Settle Bet", "Resolver la apuesta", "Wette abrechnen", "Régler la mise",
              "Bahsi Sonuçlandir", "Decidi la puntata"},
    Modify = {"&Change bet by", "&Cambiar apuesta", "&Wette ändern um", "&Changer la mise de",
              "Bahsi de&gistir", "&Cambia puntata di"},
    Set    = {"Set bet t&o", "&Fijar apuesta en", "Wette &festlegen auf", "&Fixer la mise à",
              "Bahsi b&elirle", "&Fissa puntata a"};
// clang-format on

}  // namespace tessarel::settle_text
