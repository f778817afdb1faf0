// Captions of the help window, in six languages.
#pragma once

#include "texts/language.h"

namespace tessarel::help_text {

// clang-format off
inline constexpr SixTexts
    Title    = {"Tessarel Help", "Ayuda de Tessarel", "Tessarel-Hilfe", "Aide de Tessarel",
                "Tessarel Yardim", "Aiuto di Tessarel"},
    Topics   = {"Topics", "Temas", "Themen", "Rubriques", "Konular", "Argomenti"},
    Back     = {"Back (Alt+Left)", "Atrás (Alt+Izquierda)", "Zurück (Alt+Links)",
                "Précédent (Alt+Gauche)", "Geri (Alt+Sol)", "Indietro (Alt+Sinistra)"},
    Forward  = {"Forward (Alt+Right)", "Adelante (Alt+Derecha)", "Vor (Alt+Rechts)",
                "Suivant (Alt+Droite)", "Ileri (Alt+Sag)", "Avanti (Alt+Destra)"},
    Find     = {"Find in this page (Ctrl+F)", "Buscar en esta página (Ctrl+F)",
                "Auf dieser Seite suchen (Strg+F)", "Chercher dans cette page (Ctrl+F)",
                "Bu sayfada ara (Ctrl+F)", "Cerca in questa pagina (Ctrl+F)"},
    Found    = {"%1 of %2", "%1 de %2", "%1 von %2", "%1 sur %2", "%1 / %2", "%1 di %2"},
    NotFound = {"Not on this page", "No está en esta página", "Nicht auf dieser Seite",
                "Absent de cette page", "Bu sayfada yok", "Non in questa pagina"},
    Missing  = {"The help pages are missing. They belong in this folder:",
                "Faltan las páginas de ayuda. Su carpeta es esta:",
                "Die Hilfeseiten fehlen. Sie gehören in diesen Ordner:",
                "Les pages d'aide manquent. Leur place est dans ce dossier :",
                "Yardim sayfalari yok. Bu klasörde bulunmalari gerekir:",
                "Mancano le pagine dell'aiuto. Il loro posto è in questa cartella:"};
// clang-format on

}  // namespace tessarel::help_text
