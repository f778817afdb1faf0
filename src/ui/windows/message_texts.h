// The texts of the message box itself; what it says comes from its callers.
#pragma once

#include "texts/language.h"

namespace tessarel::message_text {

// clang-format off
inline constexpr SixTexts Hide = {
    "Don't show messages like this again",
    "No volver a mostrar mensajes como este",
    "Solche Meldungen nicht mehr anzeigen",
    "Ne plus afficher les messages de ce genre",
    "Bu tür iletileri bir daha gösterme",
    "Non mostrare più messaggi come questo"};
// clang-format on

}  // namespace tessarel::message_text
