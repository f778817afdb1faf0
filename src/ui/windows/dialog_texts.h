// Captions that several windows share.
#pragma once

#include "texts/language.h"

namespace tessarel::dialog_text {

// clang-format off
inline constexpr SixTexts
    Ok     = {"OK", "Aceptar", "OK", "OK", "Tamam", "OK"},
    Cancel = {"Cancel", "Cancelar", "Abbrechen", "Annuler", "Iptal", "Annulla"},
    Help   = {"Help", "Ayuda", "Hilfe", "Aide", "Yardim", "Aiuto"},
    Close  = {"Close", "Cerrar", "Schließen", "Fermer", "Kapat", "Chiudi"};
// clang-format on

}  // namespace tessarel::dialog_text
