// Captions of the bar below the table, in six languages.
#pragma once

#include "texts/language.h"

namespace tessarel::texts {

// clang-format off
inline constexpr SixTexts
    Roll = {"&Roll", "&Tirar", "&Würfeln", "&Lancer", "&At", "&Lancia"},
    RollTip = {"Roll the dice (F2, or the right mouse button on the table)",
               "Tirar los dados (F2 o botón derecho en la mesa)",
               "Würfel werfen (F2 oder rechte Maustaste auf dem Tisch)",
               "Lancer les dés (F2 ou bouton droit sur la table)",
               "Zarlari at (F2 ya da masada sag fare tusu)",
               "Lancia i dadi (F2 o tasto destro sul tavolo)"},
    AutoRollTip = {"Roll again and again, with a pause you can set",
                   "Tirar una y otra vez, con la pausa elegida",
                   "Immer wieder würfeln, mit einstellbarer Pause",
                   "Lancer encore et encore, avec une pause réglable",
                   "Ayarlanan arayla tekrar tekrar at",
                   "Lancia di continuo, con la pausa scelta"},
    HyperDriveTip = {"Roll at full speed without showing anything",
                     "Tirar a toda velocidad sin mostrar nada",
                     "Mit voller Geschwindigkeit würfeln, ohne etwas zu zeigen",
                     "Lancer à pleine vitesse sans rien montrer",
                     "Hiçbir sey göstermeden tam hizda at",
                     "Lancia a tutta velocità senza mostrare nulla"},
    ComeOut = {"Come-out roll", "Tiro de salida", "Come-out-Wurf", "Lancer d'ouverture",
               "Açilis atisi", "Tiro d'apertura"},
    PointIs = {"Point: %1", "Punto: %1", "Point: %1", "Point : %1", "Point: %1", "Punto: %1"},
    Counts = {"Roll %1   Hand %2", "Tiro %1   Mano %2", "Wurf %1   Hand %2",
              "Lancer %1   Main %2", "Atis %1   El %2", "Tiro %1   Mano %2"},
    RollsASecond = {"%1 rolls/s", "%1 tiros/s", "%1 Würfe/s", "%1 lancers/s", "%1 atis/sn",
                    "%1 tiri/s"},
    BetWithCheck = {"Bet $%1 with each click", "Apostar $%1 con cada clic",
                    "Mit jedem Klick $%1 setzen", "Miser %1 $ à chaque clic",
                    "Her tiklamada $%1 oyna", "Punta $%1 a ogni clic"},
    ChecksName = {"Checks to bet with", "Fichas para apostar", "Jetons zum Setzen",
                  "Jetons pour miser", "Oynanacak fisler", "Fiches da puntare"},
    KeyedAmountName = {"Keyed bet amount", "Cantidad tecleada", "Eingetippter Betrag",
                       "Montant saisi", "Yazilan tutar", "Importo digitato"};
// clang-format on

}  // namespace tessarel::texts
