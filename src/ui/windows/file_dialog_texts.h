// The texts of the file dialog: the verb on its button for each action, and its captions.
#pragma once

#include "texts/language.h"

namespace tessarel::file_text {

// clang-format off
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
