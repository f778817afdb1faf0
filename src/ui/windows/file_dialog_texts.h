// The texts of the file dialog: its title and the verb on its button for each action.
#pragma once

#include <array>

#include "config/language.h"
#include "files/file_dialog.h"

namespace tessarel::file_text {

// clang-format off
// In the order of FileAction.
inline constexpr std::array<SixTexts, FileActionCount> Titles = {{
    {"Open session file", "Abrir archivo de sesión", "Sitzungsdatei öffnen",
     "Ouvrir un fichier de session", "Oturum dosyasi aç", "Apri file di sessione"},
    {"Save session file as", "Guardar archivo de sesión como", "Sitzungsdatei speichern unter",
     "Enregistrer le fichier de session sous", "Oturum dosyasini farkli kaydet",
     "Salva file di sessione con nome"},
    {"New/open dice roll file", "Crear o abrir archivo de tiradas",
     "Würfeldatei anlegen oder öffnen", "Créer ou ouvrir un fichier de lancers",
     "Zar atisi dosyasi olustur veya aç", "Crea o apri file dei lanci"},
    {"Open pop-up roll file", "Abrir archivo de tiradas emergentes", "Pop-up-Würfeldatei öffnen",
     "Ouvrir un fichier de lancers pop-up", "Anlik atis dosyasi aç", "Apri file di lanci pop-up"},
    {"Copy to dice roll file", "Copiar a archivo de tiradas", "In Würfeldatei kopieren",
     "Copier vers un fichier de lancers", "Zar atisi dosyasina kopyala",
     "Copia in file dei lanci"},
    {"Copy dice rolls to text file", "Copiar tiradas a archivo de texto",
     "Würfe in Textdatei kopieren", "Copier les lancers vers un fichier texte",
     "Atislari metin dosyasina kopyala", "Copia i lanci in file di testo"},
    {"Paste from dice roll file", "Pegar desde archivo de tiradas", "Aus Würfeldatei einfügen",
     "Coller depuis un fichier de lancers", "Zar atisi dosyasindan yapistir",
     "Incolla da file dei lanci"},
    {"Paste from ascii/text file", "Pegar desde archivo de texto", "Aus Textdatei einfügen",
     "Coller depuis un fichier texte", "Metin dosyasindan yapistir", "Incolla da file di testo"},
    {"Open auto-bet file", "Abrir archivo de apuestas automáticas", "Auto-Bet-Datei öffnen",
     "Ouvrir un fichier de mises automatiques", "Otomatik bahis dosyasi aç",
     "Apri file di puntate automatiche"},
    {"Paste from auto-bet file", "Pegar desde archivo de apuestas automáticas",
     "Aus Auto-Bet-Datei einfügen", "Coller depuis un fichier de mises automatiques",
     "Otomatik bahis dosyasindan yapistir", "Incolla da file di puntate automatiche"},
    {"Save auto-bet file as", "Guardar archivo de apuestas automáticas como",
     "Auto-Bet-Datei speichern unter", "Enregistrer le fichier de mises automatiques sous",
     "Otomatik bahis dosyasini farkli kaydet", "Salva file di puntate automatiche con nome"},
    {"Copy to auto-bet file", "Copiar a archivo de apuestas automáticas",
     "In Auto-Bet-Datei kopieren", "Copier vers un fichier de mises automatiques",
     "Otomatik bahis dosyasina kopyala", "Copia in file di puntate automatiche"},
    {"Copy auto-bets to file", "Copiar apuestas automáticas a archivo",
     "Auto-Bets in Datei kopieren", "Copier les mises automatiques vers un fichier",
     "Otomatik bahisleri dosyaya kopyala", "Copia le puntate automatiche in file"},
    {"Select auto-bet file for hot-key", "Elegir archivo de apuestas para la tecla rápida",
     "Auto-Bet-Datei für Hotkey wählen", "Choisir le fichier de mises du raccourci",
     "Kisayol için bahis dosyasi seç", "Scegli il file di puntate per il tasto rapido"},
    {"Open sessions log", "Abrir registro de sesiones", "Sitzungsprotokoll öffnen",
     "Ouvrir un journal des sessions", "Oturum kaydini aç", "Apri registro delle sessioni"},
    {"Save sessions log as", "Guardar registro de sesiones como",
     "Sitzungsprotokoll speichern unter", "Enregistrer le journal des sessions sous",
     "Oturum kaydini farkli kaydet", "Salva registro delle sessioni con nome"},
    {"Rename sessions log", "Cambiar el nombre del registro de sesiones",
     "Sitzungsprotokoll umbenennen", "Renommer le journal des sessions",
     "Oturum kaydinin adini degistir", "Rinomina registro delle sessioni"},
    {"Open events log", "Abrir registro de eventos", "Ereignisprotokoll öffnen",
     "Ouvrir un journal des événements", "Olay kaydini aç", "Apri registro degli eventi"},
    {"Save events log as", "Guardar registro de eventos como", "Ereignisprotokoll speichern unter",
     "Enregistrer le journal des événements sous", "Olay kaydini farkli kaydet",
     "Salva registro degli eventi con nome"},
    {"Open probability file", "Abrir archivo de probabilidades",
     "Wahrscheinlichkeitsdatei öffnen", "Ouvrir un fichier de probabilités",
     "Olasilik dosyasi aç", "Apri file di probabilità"},
    {"Save probability file as", "Guardar archivo de probabilidades como",
     "Wahrscheinlichkeitsdatei speichern unter", "Enregistrer le fichier de probabilités sous",
     "Olasilik dosyasini farkli kaydet", "Salva file di probabilità con nome"},
}};

inline constexpr SixTexts
    Open   = {"&Open", "&Abrir", "Ö&ffnen", "&Ouvrir", "&Aç", "&Apri"},
    Save   = {"&Save", "&Guardar", "&Speichern", "&Enregistrer", "&Kaydet", "&Salva"},
    Copy   = {"&Copy", "&Copiar", "&Kopieren", "&Copier", "&Kopyala", "&Copia"},
    Paste  = {"&Paste", "&Pegar", "&Einfügen", "&Coller", "&Yapistir", "&Incolla"},
    Select = {"&Select", "&Elegir", "Aus&wählen", "&Choisir", "&Seç", "&Scegli"},
    Rename = {"&Rename", "&Renombrar", "&Umbenennen", "&Renommer", "&Yeniden adlandir",
              "&Rinomina"};

inline constexpr SixTexts
    Name  = {"File &name:", "&Nombre:", "Datei&name:", "&Nom :", "Dosya a&di:", "&Nome:"},
    Shows = {"File &type:", "&Tipo:", "Datei&typ:", "&Type :", "Dosya &türü:", "&Tipo:"},
    Empty = {"No files of this type here", "Aquí no hay archivos de este tipo",
             "Hier sind keine Dateien dieses Typs", "Aucun fichier de ce type ici",
             "Burada bu türde dosya yok", "Nessun file di questo tipo qui"};
// clang-format on

}  // namespace tessarel::file_text
