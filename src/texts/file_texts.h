// What is said of files: the file dialog, games and the files they use, sessions logs, the events
// log, hot keys and scripts to be saved. Each text is a member of one table, so that whoever checks
// the languages walks through all of them.
#pragma once

#include "texts/language.h"

namespace tessarel {

// clang-format off
struct FileTextTable {
  // The file dialog's titles, which also name the action. In English they differ from the general
  // table's in letter case only; in the other languages they are the same.
  SixTexts OpenSession = {
      "Open session file", "Abrir archivo de sesión", "Sitzungsdatei öffnen",
      "Ouvrir un fichier de session", "Oturum Dosyasi Aç", "Apri file di sessione"};
  SixTexts SaveSession = {
      "Save session file as", "Guardar archivo de sesión como", "Sitzungsdatei speichern unter",
      "Enregistrer le fichier de session sous", "Oturum Dosyasini Farkli Kaydet", "Salva file di sessione con nome"};
  SixTexts OpenRolls = {
      "New/open dice roll file", "Nuevo/abrir archivo de tiradas de dados", "Würfelwurfdatei anlegen/öffnen",
      "Créer/ouvrir un fichier de lancers de dés", "Zar Atisi Dosyasi Olustur/Aç", "Nuovo/apri file dei lanci di dadi"};
  SixTexts OpenPopupRolls = {
      "Open pop-up roll file", "Abrir archivo emergente de tiradas", "Popup-Wurfdatei öffnen",
      "Ouvrir un fichier de lancers pop-up", "Açilir Atis Dosyasi Aç", "Apri file di lanci pop-up"};
  SixTexts CopyRolls = {
      "Copy to dice roll file", "Copiar a un archivo de tiradas de dados", "In Würfelwurfdatei kopieren",
      "Copier dans un fichier de lancers de dés", "Zar Atisi Dosyasina Kopyala", "Copia in un file di lanci di dadi"};
  SixTexts CopyRollsAsText = {
      "Copy dice rolls to text file", "Copiar tiradas de dados a un archivo de texto", "Würfe in Textdatei kopieren",
      "Copier les lancers de dés dans un fichier texte", "Zar Atislarini Metin Dosyasina Kopyala", "Copia lanci di dadi in un file di testo"};
  SixTexts PasteRolls = {
      "Paste from dice roll file", "Pegar de un archivo de tiradas de dados", "Aus Würfelwurfdatei einfügen",
      "Coller depuis un fichier de lancers de dés", "Zar Atisi Dosyasindan Yapistir", "Incolla da un file di lanci di dadi"};
  SixTexts PasteText = {
      "Paste from ascii/text file", "Pegar de un archivo ascii/de texto", "Aus ASCII-/Textdatei einfügen",
      "Coller depuis un fichier ascii/texte", "Ascii/Metin Dosyasindan Yapistir", "Incolla da un file ascii/di testo"};
  SixTexts OpenScript = {
      "Open auto-bet file", "Abrir archivo de apuestas automáticas", "Datei für automatische Wetten öffnen",
      "Ouvrir un fichier de mises automatiques", "Otomatik Bahis Dosyasi Aç", "Apri file di puntate automatiche"};
  SixTexts PasteScript = {
      "Paste from auto-bet file", "Pegar de un archivo de apuestas automáticas", "Aus Datei für automatische Wetten einfügen",
      "Coller depuis un fichier de mises automatiques", "Otomatik Bahis Dosyasindan Yapistir", "Incolla da un file di puntate automatiche"};
  SixTexts SaveScript = {
      "Save auto-bet file as", "Guardar archivo de apuestas automáticas como", "Datei für automatische Wetten speichern unter",
      "Enregistrer le fichier de mises automatiques sous", "Otomatik Bahis Dosyasini Farkli Kaydet", "Salva file di puntate automatiche con nome"};
  SixTexts CopyScript = {
      "Copy to auto-bet file", "Copiar al archivo de apuestas automáticas", "In Datei für automatische Wetten kopieren",
      "Copier dans un fichier de mises automatiques", "Otomatik Bahis Dosyasina Kopyala", "Copia nel file di puntate automatiche"};
  SixTexts CopyScripts = {
      "Copy auto-bets to file", "Copiar las apuestas automáticas a un archivo", "Automatische Wetten in Datei kopieren",
      "Copier les mises automatiques dans un fichier", "Otomatik Bahisleri Dosyaya Kopyala", "Copia le puntate automatiche in un file"};
  SixTexts SelectHotKeyScript = {
      "Select auto-bet file for hot-key", "Elegir archivo de apuestas automáticas para la tecla rápida", "Datei für automatische Wetten zur Schnelltaste wählen",
      "Choisir le fichier de mises automatiques du raccourci", "Kisayol Tusu Için Otomatik Bahis Dosyasi Seç", "Scegli il file di puntate automatiche per il tasto rapido"};
  SixTexts OpenSessionsLog = {
      "Open sessions log", "Abrir registro de sesiones", "Sitzungsprotokoll öffnen",
      "Ouvrir un journal des sessions", "Oturum Günlügünü Aç", "Apri registro sessioni"};
  SixTexts SaveSessionsLogAs = {
      "Save sessions log as", "Guardar registro de sesiones como", "Sitzungsprotokoll speichern unter",
      "Enregistrer le journal des sessions sous", "Oturum Günlügünü Farkli Kaydet", "Salva registro sessioni con nome"};
  SixTexts RenameSessionsLog = {
      "Rename sessions log", "Cambiar nombre del registro de sesiones", "Sitzungsprotokoll umbenennen",
      "Renommer le journal des sessions", "Oturum Günlügünü Yeniden Adlandir", "Rinomina registro sessioni"};
  SixTexts OpenEventsLog = {
      "Open events log", "Abrir registro de eventos", "Ereignisprotokoll öffnen",
      "Ouvrir un journal des événements", "Olay Günlügünü Aç", "Apri registro eventi"};
  SixTexts SaveEventsLogAs = {
      "Save events log as", "Guardar registro de eventos como", "Ereignisprotokoll speichern unter",
      "Enregistrer le journal des événements sous", "Olay Günlügünü Farkli Kaydet", "Salva registro eventi con nome"};
  SixTexts OpenProbability = {
      "Open probability file", "Abrir archivo de probabilidades", "Wahrscheinlichkeitsdatei öffnen",
      "Ouvrir un fichier de probabilités", "Olasilik Dosyasi Aç", "Apri file di probabilità"};
  SixTexts SaveProbability = {
      "Save probability file as", "Guardar archivo de probabilidades como", "Wahrscheinlichkeitsdatei speichern unter",
      "Enregistrer le fichier de probabilités sous", "Olasilik Dosyasini Farkli Kaydet", "Salva file di probabilità con nome"};

  // Kinds of files.
  SixTexts SessionFile = {
      "Session file", "Archivo de sesión", "Sitzungsdatei",
      "Fichier de session", "Oturum dosyasi", "File di sessione"};
  SixTexts ScriptFile = {
      "Auto-bet file", "Archivo de apuestas automáticas", "Datei für automatische Wetten",
      "Fichier de mises automatiques", "Otomatik bahis dosyasi", "File di puntate automatiche"};
  SixTexts RollFile = {
      "Roll file", "Archivo de tiradas", "Wurfdatei",
      "Fichier de lancers", "Atis dosyasi", "File dei lanci"};
  SixTexts ProbabilityFile = {
      "Prob file", "Archivo de prob.", "Wahrsch.-Datei",
      "Fichier de prob.", "Olasilik dosyasi", "File di prob."};
  SixTexts SessionsLogFile = {
      "Sessions log file", "Archivo del registro de sesiones", "Sitzungsprotokolldatei",
      "Fichier du journal des sessions", "Oturum günlügü dosyasi", "File del registro sessioni"};
  SixTexts EventsLogFile = {
      "Events log file", "Archivo del registro de eventos", "Ereignisprotokolldatei",
      "Fichier du journal des événements", "Olay günlügü dosyasi", "File del registro eventi"};

  // Overwriting and deleting.
  SixTexts AskToOverwrite = {  // %1 the file
      "%1\r\rDo you want to overwrite it?",
      "%1\r\r¿Desea sobrescribirlo?",
      "%1\r\rMöchten Sie die Datei überschreiben?",
      "%1\r\rVoulez-vous le remplacer ?",
      "%1\r\rÜzerine yazmak istiyor musunuz?",
      "%1\r\rSovrascriverlo?"};
  SixTexts AskToDelete = {
      "Are you sure you want to delete:\r\r%1",
      "¿Seguro que desea eliminar:\r\r%1",
      "Möchten Sie wirklich löschen:\r\r%1",
      "Voulez-vous vraiment supprimer :\r\r%1",
      "Silmek istediginizden emin misiniz:\r\r%1",
      "Eliminare davvero:\r\r%1"};
  SixTexts DeleteFile = {
      "Delete File", "Eliminar archivo", "Datei löschen",
      "Supprimer le fichier", "Dosyayi Sil", "Elimina file"};
  SixTexts DeleteScript = {
      "Delete Auto-Bet File", "Eliminar archivo de apuestas automáticas", "Datei für automatische Wetten löschen",
      "Supprimer le fichier de mises automatiques", "Otomatik Bahis Dosyasini Sil", "Elimina file di puntate automatiche"};
  SixTexts DeleteRolls = {
      "Delete Roll File", "Eliminar archivo de tiradas", "Wurfdatei löschen",
      "Supprimer le fichier de lancers", "Atis Dosyasini Sil", "Elimina file dei lanci"};
  SixTexts DeleteProbability = {
      "Delete Probability File", "Eliminar archivo de probabilidades", "Wahrscheinlichkeitsdatei löschen",
      "Supprimer le fichier de probabilités", "Olasilik Dosyasini Sil", "Elimina file di probabilità"};
  SixTexts DeleteSessionsLog = {
      "Delete Sessions File", "Eliminar archivo de sesiones", "Sitzungsprotokolldatei löschen",
      "Supprimer le fichier de sessions", "Oturum Günlügü Dosyasini Sil", "Elimina file delle sessioni"};
  SixTexts ExistingLogInstead = {
      "The following existing Sessions Log will be opened instead:\r\r%1",
      "En su lugar se abrirá este registro de sesiones existente:\r\r%1",
      "Stattdessen wird dieses vorhandene Sitzungsprotokoll geöffnet:\r\r%1",
      "Le journal des sessions existant suivant sera ouvert à la place :\r\r%1",
      "Yerine su mevcut oturum günlügü açilacak:\r\r%1",
      "Al suo posto verrà aperto questo registro sessioni esistente:\r\r%1"};
  SixTexts NewLogInstead = {
      "The following new Sessions Log will be created and opened instead:\r\r%1",
      "En su lugar se creará y abrirá este nuevo registro de sesiones:\r\r%1",
      "Stattdessen wird dieses neue Sitzungsprotokoll angelegt und geöffnet:\r\r%1",
      "Le nouveau journal des sessions suivant sera créé et ouvert à la place :\r\r%1",
      "Yerine su yeni oturum günlügü olusturulup açilacak:\r\r%1",
      "Al suo posto verrà creato e aperto questo nuovo registro sessioni:\r\r%1"};
  SixTexts SessionsLogOf = {
      "Sessions Log (%1)", "Registro de sesiones (%1)", "Sitzungsprotokoll (%1)",
      "Journal des sessions (%1)", "Oturum Günlügü (%1)", "Registro sessioni (%1)"};

  // Games. %1 is the file.
  SixTexts NotAGame = {
      "This is not a Tessarel game file.\r\r%1",
      "Este no es un archivo de partida de Tessarel.\r\r%1",
      "Dies ist keine Spieldatei von Tessarel.\r\r%1",
      "Ce n'est pas un fichier de partie de Tessarel.\r\r%1",
      "Bu bir Tessarel oyun dosyasi degil.\r\r%1",
      "Questo non è un file di gioco di Tessarel.\r\r%1"};
  SixTexts IncompatibleGame = {
      "This file appears to be from an incompatible version.\r\r%1",
      "Este archivo parece ser de una versión incompatible.\r\r%1",
      "Diese Datei stammt offenbar aus einer unverträglichen Version.\r\r%1",
      "Ce fichier semble provenir d'une version incompatible.\r\r%1",
      "Bu dosya uyumsuz bir sürüme ait görünüyor.\r\r%1",
      "Questo file sembra provenire da una versione incompatibile.\r\r%1"};
  SixTexts UnrecognizedGame = {
      "This is not a recognized Tessarel game file.\r\r%1",
      "Este archivo no se reconoce como partida de Tessarel.\r\r%1",
      "Dies ist keine bekannte Spieldatei von Tessarel.\r\r%1",
      "Ce fichier de partie de Tessarel n'est pas reconnu.\r\r%1",
      "Bu, taninan bir Tessarel oyun dosyasi degil.\r\r%1",
      "Questo non è un file di gioco di Tessarel riconosciuto.\r\r%1"};
  SixTexts DefaultGameInstead = {
      "The last default game file will be opened instead.",
      "En su lugar se abrirá la última partida predeterminada.",
      "Stattdessen wird die letzte Standard-Spieldatei geöffnet.",
      "Le dernier fichier de partie par défaut sera ouvert à la place.",
      "Yerine son varsayilan oyun dosyasi açilacak.",
      "Al suo posto verrà aperto l'ultimo file di gioco predefinito."};

  // The files that a game had in use. %1 is the file, %2 a player where one is named.
  SixTexts RollFileGone = {
      "The following Dice Roll file (that was in use when this game was saved) was not found:\r\r%1",
      "No se encontró el siguiente archivo de tiradas de dados (en uso cuando se guardó la partida):\r\r%1",
      "Diese Würfelwurfdatei (in Gebrauch, als das Spiel gespeichert wurde) wurde nicht gefunden:\r\r%1",
      "Le fichier de lancers de dés suivant (utilisé lors de l'enregistrement de la partie) est introuvable :\r\r%1",
      "Su zar atisi dosyasi (oyun kaydedilirken kullaniliyordu) bulunamadi:\r\r%1",
      "Il seguente file dei lanci di dadi (in uso quando la partita è stata salvata) non è stato trovato:\r\r%1"};
  SixTexts RollFileGoneTitle = {
      "Missing Dice Roll File", "Falta el archivo de tiradas de dados", "Würfelwurfdatei fehlt",
      "Fichier de lancers de dés manquant", "Zar Atisi Dosyasi Eksik", "File dei lanci di dadi mancante"};
  SixTexts RollFileChanged = {
      "The following Dice Roll file (that was in use when this game was saved) has been changed:\r\r%1",
      "El siguiente archivo de tiradas de dados (en uso cuando se guardó la partida) ha cambiado:\r\r%1",
      "Diese Würfelwurfdatei (in Gebrauch, als das Spiel gespeichert wurde) wurde geändert:\r\r%1",
      "Le fichier de lancers de dés suivant (utilisé lors de l'enregistrement de la partie) a été modifié :\r\r%1",
      "Su zar atisi dosyasi (oyun kaydedilirken kullaniliyordu) degistirilmis:\r\r%1",
      "Il seguente file dei lanci di dadi (in uso quando la partita è stata salvata) è stato modificato:\r\r%1"};
  SixTexts RollFileChangedTitle = {
      "Altered Dice Roll File", "Archivo de tiradas de dados modificado", "Würfelwurfdatei geändert",
      "Fichier de lancers de dés modifié", "Zar Atisi Dosyasi Degismis", "File dei lanci di dadi modificato"};
  SixTexts MatrixGone = {
      "The following Probability file (that was in use when this game was saved) was not found:\r\r%1",
      "No se encontró el siguiente archivo de probabilidades (en uso cuando se guardó la partida):\r\r%1",
      "Diese Wahrscheinlichkeitsdatei (in Gebrauch, als das Spiel gespeichert wurde) wurde nicht gefunden:\r\r%1",
      "Le fichier de probabilités suivant (utilisé lors de l'enregistrement de la partie) est introuvable :\r\r%1",
      "Su olasilik dosyasi (oyun kaydedilirken kullaniliyordu) bulunamadi:\r\r%1",
      "Il seguente file di probabilità (in uso quando la partita è stata salvata) non è stato trovato:\r\r%1"};
  SixTexts MatrixGoneTitle = {
      "Missing Probability File", "Falta el archivo de probabilidades", "Wahrscheinlichkeitsdatei fehlt",
      "Fichier de probabilités manquant", "Olasilik Dosyasi Eksik", "File di probabilità mancante"};
  SixTexts MatrixChanged = {
      "The following Probability file (that was in use when this game was saved) has been changed:\r\r%1",
      "El siguiente archivo de probabilidades (en uso cuando se guardó la partida) ha cambiado:\r\r%1",
      "Diese Wahrscheinlichkeitsdatei (in Gebrauch, als das Spiel gespeichert wurde) wurde geändert:\r\r%1",
      "Le fichier de probabilités suivant (utilisé lors de l'enregistrement de la partie) a été modifié :\r\r%1",
      "Su olasilik dosyasi (oyun kaydedilirken kullaniliyordu) degistirilmis:\r\r%1",
      "Il seguente file di probabilità (in uso quando la partita è stata salvata) è stato modificato:\r\r%1"};
  SixTexts MatrixChangedTitle = {
      "Altered Probability File", "Archivo de probabilidades modificado", "Wahrscheinlichkeitsdatei geändert",
      "Fichier de probabilités modifié", "Olasilik Dosyasi Degismis", "File di probabilità modificato"};
  SixTexts EventsLogGone = {
      "The following Events Log (that was open when this game was saved) was not found.\r\r%1",
      "No se encontró el siguiente registro de eventos (abierto cuando se guardó la partida).\r\r%1",
      "Dieses Ereignisprotokoll (geöffnet, als das Spiel gespeichert wurde) wurde nicht gefunden.\r\r%1",
      "Le journal des événements suivant (ouvert lors de l'enregistrement de la partie) est introuvable.\r\r%1",
      "Su olay günlügü (oyun kaydedilirken açikti) bulunamadi.\r\r%1",
      "Il seguente registro eventi (aperto quando la partita è stata salvata) non è stato trovato.\r\r%1"};
  SixTexts EventsLogGoneTitle = {
      "Missing Events Log", "Falta el registro de eventos", "Ereignisprotokoll fehlt",
      "Journal des événements manquant", "Olay Günlügü Eksik", "Registro eventi mancante"};
  SixTexts ScriptGone = {
      "%2's auto-bet file was not found:\r\r%1",
      "No se encontró el archivo de apuestas automáticas de %2:\r\r%1",
      "Die Datei für automatische Wetten von %2 wurde nicht gefunden:\r\r%1",
      "Le fichier de mises automatiques de %2 est introuvable :\r\r%1",
      "%2 adli oyuncunun otomatik bahis dosyasi bulunamadi:\r\r%1",
      "Il file di puntate automatiche di %2 non è stato trovato:\r\r%1"};
  SixTexts ScriptGoneTitle = {
      "Auto-Bet File Not Found", "Archivo de apuestas automáticas no encontrado", "Datei für automatische Wetten nicht gefunden",
      "Fichier de mises automatiques introuvable", "Otomatik Bahis Dosyasi Bulunamadi", "File di puntate automatiche non trovato"};
  SixTexts ScriptChanged = {
      "%2's auto-Bet file has been changed:\r\r%1",
      "El archivo de apuestas automáticas de %2 ha cambiado:\r\r%1",
      "Die Datei für automatische Wetten von %2 wurde geändert:\r\r%1",
      "Le fichier de mises automatiques de %2 a été modifié :\r\r%1",
      "%2 adli oyuncunun otomatik bahis dosyasi degistirilmis:\r\r%1",
      "Il file di puntate automatiche di %2 è stato modificato:\r\r%1"};
  SixTexts ScriptChangedTitle = {
      "Auto-Bet File Changed", "Archivo de apuestas automáticas modificado", "Datei für automatische Wetten geändert",
      "Fichier de mises automatiques modifié", "Otomatik Bahis Dosyasi Degismis", "File di puntate automatiche modificato"};
  SixTexts ScriptUnreadable = {
      "An error occurred while attempting to load %2's auto-bet file:\r\r%1",
      "Se produjo un error al cargar el archivo de apuestas automáticas de %2:\r\r%1",
      "Beim Laden der Datei für automatische Wetten von %2 ist ein Fehler aufgetreten:\r\r%1",
      "Une erreur s'est produite au chargement du fichier de mises automatiques de %2 :\r\r%1",
      "%2 adli oyuncunun otomatik bahis dosyasi yüklenirken hata olustu:\r\r%1",
      "Si è verificato un errore durante il caricamento del file di puntate automatiche di %2:\r\r%1"};
  SixTexts LogGoneExistingInstead = {  // %1 the log that is gone, %3 the one that is opened
      "The following Sessions Log for %2 was not found: \r\r%1\r\rThe following existing Sessions Log will be opened instead:\r\r%3",
      "No se encontró este registro de sesiones de %2: \r\r%1\r\rEn su lugar se abrirá este registro de sesiones existente:\r\r%3",
      "Dieses Sitzungsprotokoll von %2 wurde nicht gefunden: \r\r%1\r\rStattdessen wird dieses vorhandene Sitzungsprotokoll geöffnet:\r\r%3",
      "Le journal des sessions suivant de %2 est introuvable : \r\r%1\r\rLe journal des sessions existant suivant sera ouvert à la place :\r\r%3",
      "%2 adli oyuncunun su oturum günlügü bulunamadi: \r\r%1\r\rYerine su mevcut oturum günlügü açilacak:\r\r%3",
      "Questo registro sessioni di %2 non è stato trovato: \r\r%1\r\rAl suo posto verrà aperto questo registro sessioni esistente:\r\r%3"};
  SixTexts LogGoneNewInstead = {
      "The following Sessions Log for %2 was not found: \r\r%1\r\rThe following new Sessions Log will be created and opened instead:\r\r%3",
      "No se encontró este registro de sesiones de %2: \r\r%1\r\rEn su lugar se creará y abrirá este nuevo registro de sesiones:\r\r%3",
      "Dieses Sitzungsprotokoll von %2 wurde nicht gefunden: \r\r%1\r\rStattdessen wird dieses neue Sitzungsprotokoll angelegt und geöffnet:\r\r%3",
      "Le journal des sessions suivant de %2 est introuvable : \r\r%1\r\rLe nouveau journal des sessions suivant sera créé et ouvert à la place :\r\r%3",
      "%2 adli oyuncunun su oturum günlügü bulunamadi: \r\r%1\r\rYerine su yeni oturum günlügü olusturulup açilacak:\r\r%3",
      "Questo registro sessioni di %2 non è stato trovato: \r\r%1\r\rAl suo posto verrà creato e aperto questo nuovo registro sessioni:\r\r%3"};
  SixTexts LogGoneTitle = {
      "Sessions Log Not Found", "Registro de sesiones no encontrado", "Sitzungsprotokoll nicht gefunden",
      "Journal des sessions introuvable", "Oturum Günlügü Bulunamadi", "Registro sessioni non trovato"};

  // Sessions logs.
  SixTexts NotASessionsLog = {
      "This file is either from an older version, has been corrupted, or is not a true Tessarel Sessions Log.",
      "Este archivo es de una versión anterior, está dañado o no es un verdadero registro de sesiones de Tessarel.",
      "Diese Datei stammt aus einer älteren Version, ist beschädigt oder kein echtes Sitzungsprotokoll von Tessarel.",
      "Ce fichier provient d'une version antérieure, est endommagé ou n'est pas un véritable journal des sessions de Tessarel.",
      "Bu dosya eski bir sürümden, bozulmus veya gerçek bir Tessarel oturum günlügü degil.",
      "Questo file proviene da una versione precedente, è danneggiato o non è un vero registro sessioni di Tessarel."};
  SixTexts SessionGoesIntoNewLog = {
      "There's currently a session in progress which will be added to your new Sessions Log when it's finished.\r\rIf you don't want this to happen, then you should select \"New\" from the Game menu on the game table.\r\rWould you like to continue with this action anyway?",
      "Hay una sesión en curso que se añadirá a su nuevo registro de sesiones cuando termine.\r\rSi no lo desea, elija \"Nueva\" en el menú Partida de la mesa.\r\r¿Desea continuar de todos modos?",
      "Zurzeit läuft eine Sitzung, die nach ihrem Ende in Ihr neues Sitzungsprotokoll aufgenommen wird.\r\rMöchten Sie das nicht, so wählen Sie am Spieltisch \"Neu\" im Menü Spiel.\r\rMöchten Sie trotzdem fortfahren?",
      "Une session est en cours ; elle sera ajoutée à votre nouveau journal des sessions quand elle sera terminée.\r\rSi vous ne le souhaitez pas, choisissez \"Nouvelle\" dans le menu Partie de la table.\r\rVoulez-vous continuer malgré tout ?",
      "Su anda süren bir oturum var; bittiginde yeni oturum günlügünüze eklenecek.\r\rBunu istemiyorsaniz oyun masasindaki Oyun menüsünden \"Yeni\" seçin.\r\rYine de devam etmek istiyor musunuz?",
      "È in corso una sessione che, una volta finita, verrà aggiunta al nuovo registro sessioni.\r\rPer evitarlo, selezionare \"Nuovo\" dal menu Gioco del tavolo.\r\rContinuare comunque?"};
  SixTexts SessionGoesIntoNewLogs = {
      "There's currently a session in progress which will be added to your new Sessions Logs when it's finished.\r\rIf you don't want this to happen, then you should select \"New\" from the Game menu on the game table.\r\rWould you like to continue with this action anyway?",
      "Hay una sesión en curso que se añadirá a sus nuevos registros de sesiones cuando termine.\r\rSi no lo desea, elija \"Nueva\" en el menú Partida de la mesa.\r\r¿Desea continuar de todos modos?",
      "Zurzeit läuft eine Sitzung, die nach ihrem Ende in Ihre neuen Sitzungsprotokolle aufgenommen wird.\r\rMöchten Sie das nicht, so wählen Sie am Spieltisch \"Neu\" im Menü Spiel.\r\rMöchten Sie trotzdem fortfahren?",
      "Une session est en cours ; elle sera ajoutée à vos nouveaux journaux des sessions quand elle sera terminée.\r\rSi vous ne le souhaitez pas, choisissez \"Nouvelle\" dans le menu Partie de la table.\r\rVoulez-vous continuer malgré tout ?",
      "Su anda süren bir oturum var; bittiginde yeni oturum günlüklerinize eklenecek.\r\rBunu istemiyorsaniz oyun masasindaki Oyun menüsünden \"Yeni\" seçin.\r\rYine de devam etmek istiyor musunuz?",
      "È in corso una sessione che, una volta finita, verrà aggiunta ai nuovi registri sessioni.\r\rPer evitarlo, selezionare \"Nuovo\" dal menu Gioco del tavolo.\r\rContinuare comunque?"};
  SixTexts SessionGoesIntoNewLogTitle = {
      "Session in progress will be added to new Sessions Log",
      "La sesión en curso se añadirá al nuevo registro de sesiones",
      "Laufende Sitzung kommt in das neue Sitzungsprotokoll",
      "La session en cours sera ajoutée au nouveau journal des sessions",
      "Süren oturum yeni oturum günlügüne eklenecek",
      "La sessione in corso verrà aggiunta al nuovo registro sessioni"};
  SixTexts SessionGoesIntoNewLogsTitle = {
      "Session in progress will be added to new Sessions Logs",
      "La sesión en curso se añadirá a los nuevos registros de sesiones",
      "Laufende Sitzung kommt in die neuen Sitzungsprotokolle",
      "La session en cours sera ajoutée aux nouveaux journaux des sessions",
      "Süren oturum yeni oturum günlüklerine eklenecek",
      "La sessione in corso verrà aggiunta ai nuovi registri sessioni"};
  SixTexts LogOfAnotherPlayer = {
      "This file is the sessions log of another player.",
      "Este archivo es el registro de sesiones de otro jugador.",
      "Diese Datei ist das Sitzungsprotokoll eines anderen Spielers.",
      "Ce fichier est le journal des sessions d'un autre joueur.",
      "Bu dosya baska bir oyuncunun oturum günlügü.",
      "Questo file è il registro sessioni di un altro giocatore."};
  SixTexts AskToRenameLog = {  // %1 the player
      "%1's log needs to be re-named if you want to save it.\r\rDo you want to re-name it now?",
      "Hay que cambiar el nombre del registro de %1 si desea guardarlo.\r\r¿Desea cambiarlo ahora?",
      "Das Protokoll von %1 muss umbenannt werden, wenn Sie es behalten möchten.\r\rMöchten Sie es jetzt umbenennen?",
      "Le journal de %1 doit être renommé si vous voulez le conserver.\r\rVoulez-vous le renommer maintenant ?",
      "Saklamak istiyorsaniz %1 adli oyuncunun günlügü yeniden adlandirilmalidir.\r\rSimdi yeniden adlandirmak istiyor musunuz?",
      "Per conservarlo, il registro di %1 va rinominato.\r\rRinominarlo adesso?"};
  SixTexts SaveSessionsLog = {
      "Save Sessions Log", "Guardar registro de sesiones", "Sitzungsprotokoll speichern",
      "Enregistrer le journal des sessions", "Oturum Günlügünü Kaydet", "Salva registro sessioni"};
  SixTexts AskSessionsToDelete = {
      "Enter the session number (or range of session numbers) that you'd like to delete:",
      "Escriba el número de sesión (o intervalo de números) que desea eliminar:",
      "Geben Sie die Nummer der Sitzung (oder einen Bereich) ein, die Sie löschen möchten:",
      "Saisissez le numéro de session (ou l'intervalle de numéros) à supprimer :",
      "Silmek istediginiz oturum numarasini (veya numara araligini) girin:",
      "Inserire il numero (o l'intervallo di numeri) delle sessioni da eliminare:"};
  SixTexts DeleteSessions = {
      "Delete Sessions", "Eliminar sesiones", "Sitzungen löschen",
      "Supprimer des sessions", "Oturumlari Sil", "Elimina sessioni"};
  SixTexts NoSessionsDeleted = {
      "No sessions deleted.  Entry out of range.",
      "No se eliminó ninguna sesión.  Valor fuera de rango.",
      "Keine Sitzungen gelöscht.  Eingabe außerhalb des Bereichs.",
      "Aucune session supprimée.  Saisie hors limites.",
      "Hiçbir oturum silinmedi.  Giris aralik disinda.",
      "Nessuna sessione eliminata.  Valore fuori intervallo."};
  SixTexts AskToDeleteAllSessions = {
      "Are you sure you want to delete ALL of %1's recorded sessions?",
      "¿Seguro que desea eliminar TODAS las sesiones registradas de %1?",
      "Möchten Sie wirklich ALLE aufgezeichneten Sitzungen von %1 löschen?",
      "Voulez-vous vraiment supprimer TOUTES les sessions enregistrées de %1 ?",
      "%1 adli oyuncunun kayitli TÜM oturumlarini silmek istediginizden emin misiniz?",
      "Eliminare davvero TUTTE le sessioni registrate di %1?"};
  SixTexts DeleteAllSessions = {
      "Delete All Sessions", "Eliminar todas las sesiones", "Alle Sitzungen löschen",
      "Supprimer toutes les sessions", "Tüm Oturumlari Sil", "Elimina tutte le sessioni"};
  SixTexts CannotMergeWithItself = {
      "A sessions log cannot be merged with itself.",
      "Un registro de sesiones no se puede combinar consigo mismo.",
      "Ein Sitzungsprotokoll kann nicht mit sich selbst zusammengeführt werden.",
      "Un journal des sessions ne peut pas être fusionné avec lui-même.",
      "Bir oturum günlügü kendisiyle birlestirilemez.",
      "Un registro sessioni non può essere unito a se stesso."};
  SixTexts MergeSessionsLogs = {
      "Merge Sessions Logs", "Combinar registros de sesiones", "Sitzungsprotokolle zusammenführen",
      "Fusionner les journaux des sessions", "Oturum Günlüklerini Birlestir", "Unisci registri sessioni"};
  SixTexts AskToRenamePlayersLog = {  // %1 the player, %2 the log
      "Would you also like to change %1's sessions log filename?\r\rCurrently:\r\r%2",
      "¿Desea cambiar también el nombre del registro de sesiones de %1?\r\rActualmente:\r\r%2",
      "Möchten Sie auch den Dateinamen des Sitzungsprotokolls von %1 ändern?\r\rZurzeit:\r\r%2",
      "Voulez-vous aussi changer le nom du journal des sessions de %1 ?\r\rActuellement :\r\r%2",
      "%1 adli oyuncunun oturum günlügü dosya adi da degistirilsin mi?\r\rSu anda:\r\r%2",
      "Cambiare anche il nome del file del registro sessioni di %1?\r\rAttualmente:\r\r%2"};
  SixTexts RenameSessionsLogTitle = {
      "Rename Sessions Log", "Cambiar nombre del registro de sesiones", "Sitzungsprotokoll umbenennen",
      "Renommer le journal des sessions", "Oturum Günlügünü Yeniden Adlandir", "Rinomina registro sessioni"};
  SixTexts Find = {"Find", "Buscar", "Suchen", "Rechercher", "Bul", "Trova"};
  SixTexts ValueNotFound = {
      "The value %1 was not found.",
      "No se encontró el valor %1.",
      "Der Wert %1 wurde nicht gefunden.",
      "La valeur %1 est introuvable.",
      "%1 degeri bulunamadi.",
      "Il valore %1 non è stato trovato."};
  SixTexts AskValueToFind = {  // %1 the statistic
      "Enter the value you'd like to find for:\r\r%1\r\rIf found, the line will scroll to the top of the data box.",
      "Escriba el valor que desea buscar para:\r\r%1\r\rSi se encuentra, la línea pasará a la parte superior del cuadro de datos.",
      "Geben Sie den Wert ein, den Sie suchen, für:\r\r%1\r\rWird er gefunden, rückt die Zeile an den Anfang des Datenfelds.",
      "Saisissez la valeur à rechercher pour :\r\r%1\r\rSi elle est trouvée, la ligne passera en haut de la zone de données.",
      "Aranacak degeri girin:\r\r%1\r\rBulunursa satir veri kutusunun en üstüne kaydirilir.",
      "Inserire il valore da cercare per:\r\r%1\r\rSe viene trovato, la riga scorrerà in cima al riquadro dei dati."};
  SixTexts AskBreakPoint = {
      "Enter the break point for:\r\r%1",
      "Escriba el punto de corte para:\r\r%1",
      "Geben Sie den Grenzwert ein für:\r\r%1",
      "Saisissez le seuil pour :\r\r%1",
      "Kirilma noktasini girin:\r\r%1",
      "Inserire il valore di soglia per:\r\r%1"};
  SixTexts SetBreakPoint = {
      "Set Break Point", "Fijar punto de corte", "Grenzwert festlegen",
      "Fixer le seuil", "Kirilma Noktasini Ayarla", "Imposta valore di soglia"};

  // The events log.
  SixTexts AskToRenameEventsLog = {
      "This log needs to be re-named if you want to save it.\r\rDo you want to re-name it now?",
      "Hay que cambiar el nombre de este registro si desea guardarlo.\r\r¿Desea cambiarlo ahora?",
      "Dieses Protokoll muss umbenannt werden, wenn Sie es behalten möchten.\r\rMöchten Sie es jetzt umbenennen?",
      "Ce journal doit être renommé si vous voulez le conserver.\r\rVoulez-vous le renommer maintenant ?",
      "Saklamak istiyorsaniz bu günlük yeniden adlandirilmalidir.\r\rSimdi yeniden adlandirmak istiyor musunuz?",
      "Per conservarlo, questo registro va rinominato.\r\rRinominarlo adesso?"};
  SixTexts SaveEventsLog = {
      "Save Events Log?", "¿Guardar el registro de eventos?", "Ereignisprotokoll speichern?",
      "Enregistrer le journal des événements ?", "Olay Günlügü Kaydedilsin mi?", "Salvare il registro eventi?"};
  SixTexts TextNotFound = {
      "Text not found.", "Texto no encontrado.", "Text nicht gefunden.",
      "Texte introuvable.", "Metin bulunamadi.", "Testo non trovato."};
  SixTexts SearchResults = {
      "Search Results", "Resultados de la búsqueda", "Suchergebnis",
      "Résultats de la recherche", "Arama Sonuçlari", "Risultati della ricerca"};
  SixTexts AskTextToFind = {
      "Enter the text you'd like to find.\r\rIf found, the line will scroll to the top of the events log.",
      "Escriba el texto que desea buscar.\r\rSi se encuentra, la línea pasará a la parte superior del registro de eventos.",
      "Geben Sie den Text ein, den Sie suchen.\r\rWird er gefunden, rückt die Zeile an den Anfang des Ereignisprotokolls.",
      "Saisissez le texte à rechercher.\r\rS'il est trouvé, la ligne passera en haut du journal des événements.",
      "Aranacak metni girin.\r\rBulunursa satir olay günlügünün en üstüne kaydirilir.",
      "Inserire il testo da cercare.\r\rSe viene trovato, la riga scorrerà in cima al registro eventi."};
  SixTexts NoEventsToPrint = {
      "There are no logged events to print.",
      "No hay eventos registrados que imprimir.",
      "Es sind keine Ereignisse zu drucken.",
      "Il n'y a aucun événement à imprimer.",
      "Yazdirilacak kayitli olay yok.",
      "Non ci sono eventi registrati da stampare."};
  SixTexts PrintEventsLog = {
      "Print Events Log", "Imprimir registro de eventos", "Ereignisprotokoll drucken",
      "Imprimer le journal des événements", "Olay Günlügünü Yazdir", "Stampa registro eventi"};

  // Hot keys and scripts.
  SixTexts HotKeyNeedsFile = {
      "Please enter an Auto-Bet filename to define this Hot-Key.",
      "Escriba un nombre de archivo de apuestas automáticas para definir esta tecla rápida.",
      "Geben Sie den Namen einer Datei für automatische Wetten ein, um diese Schnelltaste zu belegen.",
      "Saisissez un nom de fichier de mises automatiques pour définir ce raccourci.",
      "Bu kisayol tusunu tanimlamak için bir otomatik bahis dosyasi adi girin.",
      "Inserire il nome di un file di puntate automatiche per definire questo tasto rapido."};
  SixTexts HotKey = {
      "Hot-Key", "Tecla rápida", "Schnelltaste", "Raccourci", "Kisayol Tusu", "Tasto rapido"};
  SixTexts AskToSaveScript = {  // %1 the player
      "Would you like to save %1's auto-bet script?",
      "¿Desea guardar el script de apuestas automáticas de %1?",
      "Möchten Sie das Skript der automatischen Wetten von %1 speichern?",
      "Voulez-vous enregistrer le script de mises automatiques de %1 ?",
      "%1 adli oyuncunun otomatik bahis betigi kaydedilsin mi?",
      "Salvare lo script di puntate automatiche di %1?"};
  SixTexts LeaveUnsaved = {
      "The table could not be saved and will be lost.\r\rDo you want to leave all the same?",
      "No se pudo guardar la mesa y se perderá.\r\r¿Desea salir de todos modos?",
      "Der Tisch konnte nicht gespeichert werden und geht verloren.\r\rMöchten Sie trotzdem beenden?",
      "La table n'a pas pu être enregistrée et sera perdue.\r\rVoulez-vous quitter quand même ?",
      "Masa kaydedilemedi ve kaybolacak.\r\rYine de çikmak istiyor musunuz?",
      "Non è stato possibile salvare il tavolo, che andrà perduto.\r\rUscire comunque?"};
  SixTexts HotKeyScriptError = {
      "The Auto-Bet script for this hot-key contains a syntax error which must be corrected before you can use it.",
      "El script de apuestas automáticas de esta tecla rápida contiene un error de sintaxis que debe corregir antes de usarlo.",
      "Das Skript der automatischen Wetten zu dieser Schnelltaste enthält einen Syntaxfehler, der vor der Benutzung behoben werden muss.",
      "Le script de mises automatiques de ce raccourci contient une erreur de syntaxe à corriger avant de l'utiliser.",
      "Bu kisayol tusunun otomatik bahis betiginde, kullanmadan önce düzeltilmesi gereken bir sözdizimi hatasi var.",
      "Lo script di puntate automatiche di questo tasto rapido contiene un errore di sintassi da correggere prima di usarlo."};
  SixTexts FaultyScript = {  // %1 the player
      "%1's auto-bet script contains an error which must be corrected before you can run it.\r\rSelect %1 on the auto-bet screen and click the \"Check Script\" button to see the error.",
      "El script de apuestas automáticas de %1 contiene un error que debe corregir antes de ejecutarlo.\r\rSeleccione a %1 en la pantalla de apuestas automáticas y pulse el botón \"Comprobar script\" para ver el error.",
      "Das Skript der automatischen Wetten von %1 enthält einen Fehler, der vor dem Ausführen behoben werden muss.\r\rWählen Sie %1 im Fenster der automatischen Wetten und klicken Sie auf \"Skript prüfen\", um den Fehler zu sehen.",
      "Le script de mises automatiques de %1 contient une erreur à corriger avant de l'exécuter.\r\rSélectionnez %1 dans l'écran des mises automatiques et cliquez sur le bouton \"Vérifier le script\" pour voir l'erreur.",
      "%1 adli oyuncunun otomatik bahis betiginde, çalistirmadan önce düzeltilmesi gereken bir hata var.\r\rHatayi görmek için otomatik bahis ekraninda %1 adini seçip \"Betigi Denetle\" dügmesine tiklayin.",
      "Lo script di puntate automatiche di %1 contiene un errore da correggere prima di eseguirlo.\r\rSelezionare %1 nella schermata delle puntate automatiche e fare clic su \"Controlla script\" per vedere l'errore."};
  SixTexts FaultyScriptTitle = {
      "Auto-bet script error", "Error en el script de apuestas automáticas", "Fehler im Skript der automatischen Wetten",
      "Erreur du script de mises automatiques", "Otomatik bahis betigi hatasi", "Errore nello script di puntate automatiche"};
  SixTexts ScriptErrorTitle = {
      "Auto-Bet Script Error", "Error en el script de apuestas automáticas", "Fehler im Skript der automatischen Wetten",
      "Erreur du script de mises automatiques", "Otomatik Bahis Betigi Hatasi", "Errore nello script di puntate automatiche"};
  SixTexts AllScriptsActivated = {
      "All players' auto-bet scripts have been activated.\r\rYou have an opportunity now to run each script for one cycle BEFORE the dice roll in order to check and set any initial conditions.  This is called initializing. If you're not ready yet, then just recheck the active checkbox later or note that all players' active auto-bets are automatically initialized whenever NEW is selected from the GAME menu.\r\rWould you like to initialize all auto-bet scripts now?",
      "Se han activado los scripts de apuestas automáticas de todos los jugadores.\r\rAhora puede ejecutar cada script durante un ciclo ANTES de la tirada para comprobar y fijar las condiciones iniciales.  A esto se le llama inicializar. Si aún no está listo, vuelva a marcar la casilla de activo más tarde; además, las apuestas automáticas activas de todos los jugadores se inicializan solas al elegir NUEVA en el menú PARTIDA.\r\r¿Desea inicializar ahora todos los scripts de apuestas automáticas?",
      "Die Skripte der automatischen Wetten aller Spieler wurden aktiviert.\r\rSie können jetzt jedes Skript VOR dem Wurf einen Zyklus lang ausführen, um Anfangsbedingungen zu prüfen und zu setzen.  Das heißt Initialisieren. Sind Sie noch nicht so weit, aktivieren Sie das Kästchen später erneut; außerdem werden alle aktiven automatischen Wetten initialisiert, sobald im Menü SPIEL der Punkt NEU gewählt wird.\r\rMöchten Sie jetzt alle Skripte der automatischen Wetten initialisieren?",
      "Les scripts de mises automatiques de tous les joueurs ont été activés.\r\rVous pouvez maintenant exécuter chaque script pendant un cycle AVANT le lancer afin de vérifier et de fixer les conditions initiales.  C'est l'initialisation. Si vous n'êtes pas prêt, recochez la case plus tard ; les mises automatiques actives de tous les joueurs sont aussi initialisées dès que NOUVELLE est choisi dans le menu PARTIE.\r\rVoulez-vous initialiser tous les scripts de mises automatiques maintenant ?",
      "Tüm oyuncularin otomatik bahis betikleri etkinlestirildi.\r\rBaslangiç kosullarini denetlemek ve ayarlamak için her betigi zar atisindan ÖNCE bir çevrim çalistirabilirsiniz.  Buna baslatma denir. Henüz hazir degilseniz etkin kutusunu sonra yeniden isaretleyin; ayrica OYUN menüsünden YENI seçildiginde tüm oyuncularin etkin otomatik bahisleri kendiliginden baslatilir.\r\rTüm otomatik bahis betiklerini simdi baslatmak ister misiniz?",
      "Gli script di puntate automatiche di tutti i giocatori sono stati attivati.\r\rOra è possibile eseguire ogni script per un ciclo PRIMA del lancio, per verificare e impostare le condizioni iniziali.  Questo si chiama inizializzare. Se non è ancora il momento, basta selezionare di nuovo la casella più tardi; le puntate automatiche attive di tutti i giocatori vengono comunque inizializzate quando si sceglie NUOVO dal menu GIOCO.\r\rInizializzare adesso tutti gli script di puntate automatiche?"};
  SixTexts ScriptActivated = {  // %1 the player
      "%1's auto-bet script has been activated.\r\rYou have an opportunity now to run %1's script for one cycle BEFORE the dice roll in order to check and set any initial conditions.  This is called initializing. If you're not ready yet, then just recheck the active checkbox later or note that all players' active auto-bets are automatically initialized whenever NEW is selected from the GAME menu.\r\rWould you like to initialize %1's auto-bet script now?",
      "Se ha activado el script de apuestas automáticas de %1.\r\rAhora puede ejecutarlo durante un ciclo ANTES de la tirada para comprobar y fijar las condiciones iniciales.  A esto se le llama inicializar. Si aún no está listo, vuelva a marcar la casilla de activo más tarde; además, las apuestas automáticas activas de todos los jugadores se inicializan solas al elegir NUEVA en el menú PARTIDA.\r\r¿Desea inicializar ahora el script de apuestas automáticas de %1?",
      "Das Skript der automatischen Wetten von %1 wurde aktiviert.\r\rSie können es jetzt VOR dem Wurf einen Zyklus lang ausführen, um Anfangsbedingungen zu prüfen und zu setzen.  Das heißt Initialisieren. Sind Sie noch nicht so weit, aktivieren Sie das Kästchen später erneut; außerdem werden alle aktiven automatischen Wetten initialisiert, sobald im Menü SPIEL der Punkt NEU gewählt wird.\r\rMöchten Sie das Skript von %1 jetzt initialisieren?",
      "Le script de mises automatiques de %1 a été activé.\r\rVous pouvez maintenant l'exécuter pendant un cycle AVANT le lancer afin de vérifier et de fixer les conditions initiales.  C'est l'initialisation. Si vous n'êtes pas prêt, recochez la case plus tard ; les mises automatiques actives de tous les joueurs sont aussi initialisées dès que NOUVELLE est choisi dans le menu PARTIE.\r\rVoulez-vous initialiser le script de mises automatiques de %1 maintenant ?",
      "%1 adli oyuncunun otomatik bahis betigi etkinlestirildi.\r\rBaslangiç kosullarini denetlemek ve ayarlamak için betigi zar atisindan ÖNCE bir çevrim çalistirabilirsiniz.  Buna baslatma denir. Henüz hazir degilseniz etkin kutusunu sonra yeniden isaretleyin; ayrica OYUN menüsünden YENI seçildiginde tüm oyuncularin etkin otomatik bahisleri kendiliginden baslatilir.\r\r%1 adli oyuncunun otomatik bahis betigini simdi baslatmak ister misiniz?",
      "Lo script di puntate automatiche di %1 è stato attivato.\r\rOra è possibile eseguirlo per un ciclo PRIMA del lancio, per verificare e impostare le condizioni iniziali.  Questo si chiama inizializzare. Se non è ancora il momento, basta selezionare di nuovo la casella più tardi; le puntate automatiche attive di tutti i giocatori vengono comunque inizializzate quando si sceglie NUOVO dal menu GIOCO.\r\rInizializzare adesso lo script di puntate automatiche di %1?"};
};
// clang-format on

inline constexpr FileTextTable FileTexts{};

}  // namespace tessarel
