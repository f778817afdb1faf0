// The texts of the New dialog.
#pragma once

#include "texts/language.h"

namespace tessarel::new_game_text {

// clang-format off
inline constexpr SixTexts
    Title        = {"New Game", "Nueva partida", "Neues Spiel", "Nouvelle partie", "Yeni Oyun",
                    "Nuova partita"},
    Question     = {"What does the new session take over?",
                    "¿Qué se conserva en la nueva sesión?",
                    "Was übernimmt die neue Sitzung?",
                    "Que conserve la nouvelle session ?",
                    "Yeni oturumda neler korunsun?",
                    "Che cosa conserva la nuova sessione?"},
    Checkstacks  = {"&Check stacks with their names", "&Pilas de fichas con sus nombres",
                    "Jeton&stapel mit ihren Namen", "&Piles de jetons avec leurs noms",
                    "&Adlariyla birlikte fis yiginlari", "&Pile di fiches con i loro nomi"},
    PrevSessions = {"Data of &previous sessions", "Datos de &sesiones anteriores",
                    "&Daten früherer Sitzungen", "&Données des sessions précédentes",
                    "Önceki &oturumlarin verileri", "&Dati delle sessioni precedenti"},
    SessionsLogs = {"Sessions &logs", "&Registros de sesiones", "Sitzungs&protokolle",
                    "&Journaux des sessions", "Oturum &kayitlari", "&Registri delle sessioni"},
    AutoBets     = {"&Auto-bets", "Apuestas a&utomáticas", "&Automatische Wetten",
                    "Mises a&utomatiques", "Oto&matik bahisler", "Puntate a&utomatiche"},
    RollFile     = {"Dice roll &file", "&Archivo de tiradas", "&Würfeldatei",
                    "&Fichier de lancers", "&Zar atisi dosyasi", "&File dei lanci"},
    Rewind       = {"&Rewind and playback", "Re&bobinar y reproducir",
                    "&Zurückspulen und wiedergeben", "&Rembobiner et lire",
                    "&Basa sarip oynat", "Ria&vvolgi e riproduci"},
    NoRollFile   = {"no file is open", "ningún archivo abierto", "keine Datei geöffnet",
                    "aucun fichier ouvert", "açik dosya yok", "nessun file aperto"},
    Start        = {"&Start Session", "&Empezar la sesión", "Sitzung &beginnen",
                    "C&ommencer la session", "Oturumu ba&slat", "&Inizia sessione"};
// clang-format on

}  // namespace tessarel::new_game_text
