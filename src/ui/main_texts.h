// Captions of the main window's menus and its few messages, in six languages.
#pragma once

#include "texts/language.h"

namespace tessarel::texts {

// clang-format off
inline constexpr SixTexts
    // Menus
    MenuGame = {"&Game", "&Partida", "&Spiel", "&Partie", "&Oyun", "&Gioco"},
    MenuPlayers = {"&Players", "Ju&gadores", "S&pieler", "Jo&ueurs", "O&yuncular", "G&iocatori"},
    MenuBets = {"&Bets", "&Apuestas", "&Wetten", "&Mises", "&Bahisler", "&Puntate"},
    MenuDice = {"&Dice", "&Dados", "Wü&rfel", "&Dés", "&Zarlar", "&Dadi"},
    MenuView = {"&View", "&Ver", "&Ansicht", "&Affichage", "&Görünüm", "&Vista"},
    MenuOptions = {"&Options", "&Opciones", "&Optionen", "&Options", "&Seçenekler", "&Opzioni"},
    MenuAuto = {"&Auto", "Au&to", "Au&tomatik", "Au&to", "Oto&matik", "&Auto"},
    MenuWindow = {"&Window", "Ve&ntana", "&Fenster", "&Fenêtre", "&Pencere", "&Finestra"},
    MenuHelp = {"&Help", "A&yuda", "&Hilfe", "Aid&e", "Yar&dim", "Ai&uto"},
    // Game
    GameNew = {"&New...", "&Nueva...", "&Neu...", "&Nouvelle...", "&Yeni...", "&Nuovo..."},
    GameOpen = {"&Open...", "&Abrir...", "Ö&ffnen...", "&Ouvrir...", "&Aç...", "&Apri..."},
    GameSave = {"&Save", "&Guardar", "&Speichern", "&Enregistrer", "&Kaydet", "&Salva"},
    GameSaveAs = {"Save &As...", "Guardar &como...", "Speichern &unter...", "Enregistrer &sous...",
                  "&Farkli kaydet...", "Salva &con nome..."},
    GameExit = {"E&xit", "&Salir", "&Beenden", "&Quitter", "&Çikis", "&Esci"},
    // Players
    PlayersAdd = {"&Add a player...", "&Añadir un jugador...", "Spieler &hinzufügen...",
                  "&Ajouter un joueur...", "Oyuncu &ekle...", "&Aggiungi un giocatore..."},
    PlayersRename = {"&Rename...", "&Renombrar...", "&Umbenennen...", "&Renommer...",
                     "&Adini degistir...", "&Rinomina..."},
    PlayersRemove = {"Re&move...", "Re&tirar...", "&Entfernen...", "Re&tirer...", "&Çikar...",
                     "Rim&uovi..."},
    PlayersMove = {"M&ove to another place", "&Mover a otro puesto", "An anderen &Platz setzen",
                   "&Déplacer vers une autre place", "&Baska yere tasi",
                   "&Sposta a un altro posto"},
    PlayersBuyIn = {"&Buy in...", "&Comprar fichas...", "E&inkaufen...", "Ac&heter des jetons...",
                    "&Fis al...", "&Compra fiches..."},
    PlayersPassDice = {"&Pass the dice", "&Pasar los dados", "Würfel &weitergeben",
                       "&Passer les dés", "&Zarlari geçir", "&Passa i dadi"},
    // Bets
    BetsRemove = {"&Take down a bet", "&Retirar una apuesta", "Wette &herunternehmen",
                  "&Retirer une mise", "Bir bahsi &kaldir", "&Ritira una puntata"},
    BetsRemoveAll = {"Take down &all bets", "Retirar &todas las apuestas",
                     "&Alle Wetten herunternehmen", "Retirer &toutes les mises",
                     "&Bütün bahisleri kaldir", "Ritira &tutte le puntate"},
    BetsBuy = {"&Buy a Place bet", "&Comprar una apuesta Place", "Place-Wette &kaufen",
               "&Acheter une mise Place", "Place bahsini &satin al", "&Compra una puntata Place"},
    BetsCallOn = {"Call a bet O&N", "Activar una apuesta (O&N)", "Wette auf O&N setzen",
                  "Annoncer une mise O&N", "Bir bahsi O&N yap", "Chiama una puntata O&N"},
    BetsCallAllOn = {"Call all bets ON", "Activar todas las apuestas (ON)",
                     "Alle Wetten auf ON setzen", "Annoncer toutes les mises ON",
                     "Bütün bahisleri ON yap", "Chiama tutte le puntate ON"},
    BetsCallOff = {"Call a bet O&FF", "Desactivar una apuesta (O&FF)", "Wette auf O&FF setzen",
                   "Annoncer une mise O&FF", "Bir bahsi O&FF yap", "Chiama una puntata O&FF"},
    BetsCallAllOff = {"Call all bets OFF", "Desactivar todas las apuestas (OFF)",
                      "Alle Wetten auf OFF setzen", "Annoncer toutes les mises OFF",
                      "Bütün bahisleri OFF yap", "Chiama tutte le puntate OFF"},
    BetsTakeOdds = {"Take f&ull odds", "Tomar odds co&mpletas", "&Volle Odds nehmen",
                    "Prendre les odds &maximales", "&Tam odds al", "Prendi odds &massime"},
    BetsLayOdds = {"&Lay full odds", "&Dar odds completas", "Volle Odds &legen",
                   "&Donner les odds maximales", "Tam odds &ver", "&Dai odds massime"},
    BetsKeyIn = {"&Key in bet amounts", "Te&clear cantidades", "&Beträge eintippen",
                 "&Saisir les montants", "T&utarlari yaz", "&Digita gli importi"},
    // Dice
    DiceRoll = {"&Roll the dice", "&Tirar los dados", "&Würfeln", "&Lancer les dés",
                "Zarlari &at", "&Lancia i dadi"},
    DiceOwn = {"Roll your &own numbers", "Elegir los &números", "&Eigene Zahlen würfeln",
               "&Choisir les nombres", "&Kendi sayilarin", "&Scegli i numeri"},
    DiceAction = {"Dice &action", "&Acción de los dados", "Würfel&bewegung",
                  "&Mouvement des dés", "Zar &hareketi", "&Movimento dei dadi"},
    DiceNormal = {"&Normal", "&Normal", "&Normal", "&Normal", "&Normal", "&Normale"},
    DiceStationary = {"&Stationary", "&Fijos", "&Ortsfest", "&Sur place", "&Sabit", "&Fermi"},
    DiceCenter = {"&Center", "&Centro", "&Mitte", "&Centre", "&Orta", "&Centro"},
    DiceWindowed = {"&Window", "&Ventana", "&Fenster", "&Fenêtre", "&Pencere", "Fi&nestra"},
    // View
    ViewPropositions = {"&Proposition bets", "Apuestas de &proposición", "&Propositionswetten",
                        "Mises de &proposition", "&Proposition bahisleri",
                        "Puntate &proposition"},
    ViewAmounts = {"Bet &amounts", "&Cantidades apostadas", "&Wettbeträge",
                   "&Montants des mises", "Bahis &tutarlari", "&Importi puntati"},
    ViewFlash = {"&Flash bets", "&Destellar las apuestas", "Wetten &blinken lassen",
                 "&Faire clignoter les mises", "Bahisleri &yanip söndür",
                 "&Fai lampeggiare le puntate"},
    ViewStatus = {"&Status box", "Cuadro de &estado", "&Statusfeld", "Cadre d'&état",
                  "&Durum kutusu", "Riquadro di &stato"},
    ViewStatusSize = {"Status box si&ze", "Ta&maño del cuadro", "&Größe des Statusfelds",
                      "&Taille du cadre", "Durum kutusu &boyu", "&Grandezza del riquadro"},
    SizeSmall = {"&Small", "&Pequeño", "&Klein", "&Petit", "&Küçük", "&Piccolo"},
    SizeMedium = {"&Medium", "&Mediano", "&Mittel", "&Moyen", "&Orta", "&Medio"},
    SizeLarge = {"&Large", "&Grande", "&Groß", "&Grand", "&Büyük", "&Grande"},
    ViewMove = {"&Move the table", "M&over la mesa", "&Tisch bewegen", "Déplacer la ta&ble",
                "Masayi &oynat", "&Muovi il tavolo"},
    ViewZoomIn = {"Zoom &in", "Acer&car", "Ver&größern", "Zoom &avant", "&Yaklas", "&Ingrandisci"},
    ViewZoomOut = {"Zoom &out", "A&lejar", "Ver&kleinern", "Zoom a&rrière", "&Uzaklas",
                   "&Rimpicciolisci"},
    ViewWhole = {"&Whole table", "Mesa &entera", "&Ganzer Tisch", "Table &entière", "&Tüm masa",
                 "Tavolo in&tero"},
    ViewTurnLeft = {"Turn &left", "Girar a la &izquierda", "Nach &links drehen",
                    "Tourner à &gauche", "S&ola çevir", "Gira a &sinistra"},
    ViewTurnRight = {"Turn &right", "Girar a la &derecha", "Nach &rechts drehen",
                     "Tourner à &droite", "S&aga çevir", "Gira a &destra"},
    ViewSave = {"Sa&ve view", "&Guardar vista", "Ansicht &speichern", "&Enregistrer la vue",
                "Görünümü &kaydet", "Sal&va vista"},
    ViewRestore = {"&Restore view", "&Recuperar vista", "Ansicht &wiederherstellen",
                   "&Rappeler la vue", "Görünümü &geri getir", "&Richiama vista"},
    ViewNumber = {"View %1", "Vista %1", "Ansicht %1", "Vue %1", "Görünüm %1", "Vista %1"},
    ViewColours = {"Table &colors", "Color&es de la mesa", "Tisch&farben",
                   "&Couleurs de la table", "Masa &renkleri", "&Colori del tavolo"},
    ViewStartUpColours = {"&Start-up colors", "Colores &iniciales", "&Startfarben",
                          "Couleurs de &départ", "&Ilk renkler", "Colori i&niziali"},
    // Options
    OptionsTips = {"&InfoTips", "&InfoTips", "&InfoTips", "&InfoTips", "&InfoTips", "&InfoTips"},
    TipsNone = {"&Don't show any info", "&No mostrar información", "&Keine Angaben",
                "&N'afficher aucune information", "&Hiç bilgi gösterme",
                "&Non mostrare informazioni"},
    TipsAmounts = {"Show &amounts only", "Solo &cantidades", "Nur &Beträge",
                   "&Montants seulement", "Yalniz &tutarlar", "Solo &importi"},
    TipsNames = {"Show &names only", "Solo n&ombres", "Nur &Namen", "Nom&s seulement",
                 "Yalniz &adlar", "Solo n&omi"},
    TipsBoth = {"Show names a&nd amounts only", "Nombres y c&antidades", "Na&men und Beträge",
                "Noms &et montants", "Adlar &ve tutarlar", "Nomi &e importi"},
    TipsAll = {"Show all &info", "&Toda la información", "&Alle Angaben",
               "&Toutes les informations", "Bütün &bilgiler", "&Tutte le informazioni"},
    OptionsSnap = {"&Snap mouse-pointer", "A&justar el puntero", "&Mauszeiger einrasten",
                   "&Aimanter le pointeur", "&Fare imlecini çek", "&Aggancia il puntatore"},
    OptionsArrange = {"&Auto-arrange checks", "&Ordenar las fichas", "&Jetons ordnen",
                      "&Ranger les jetons", "Fisleri &diz", "&Ordina le fiches"},
    OptionsSilence = {"&Disable all game sounds", "&Desactivar los sonidos",
                      "Alle &Klänge aus", "&Couper tous les sons", "&Bütün sesleri kapat",
                      "&Disattiva i suoni"},
    OptionsVolume = {"&Volume", "&Volumen", "&Lautstärke", "&Volume", "&Ses düzeyi", "&Volume"},
    OptionsFont = {"&Font size", "&Tamaño de letra", "&Schriftgröße", "&Taille des caractères",
                   "&Yazi boyu", "&Grandezza caratteri"},
    OptionsNotices = {"&Notices", "A&visos", "&Hinweise", "A&vis", "&Uyarilar", "A&vvisi"},
    OptionsLanguage = {"&Language...", "&Idioma...", "Sp&rache...", "&Langue...", "&Dil...", "&Lingua..."},
    // Auto
    AutoRoll = {"&Auto-Roll", "&Auto-Roll", "&Auto-Roll", "&Auto-Roll", "&Auto-Roll",
                "&Auto-Roll"},
    AutoHyper = {"&Hyper-Drive", "&Hyper-Drive", "&Hyper-Drive", "&Hyper-Drive", "&Hyper-Drive",
                 "&Hyper-Drive"},
    AutoDelay = {"Set Auto-Roll time &delay...", "&Pausa entre tiros...",
                 "&Pause zwischen den Würfen...", "&Pause entre les lancers...",
                 "Atislar arasi &süre...", "&Pausa fra i tiri..."},
    AutoStop = {"Set auto-&stop...", "Parada a&utomática...", "Automatischer &Halt...",
                "A&rrêt automatique...", "Otomatik &durus...", "A&rresto automatico..."},
    AutoThrottle = {"Hyper-Drive &throttle", "&Freno del Hyper-Drive", "Hyper-Drive &drosseln",
                    "&Frein de l'Hyper-Drive", "Hyper-Drive &freni", "&Freno dell'Hyper-Drive"},
    AutoStopScripts = {"Stop auto-&betting", "Detener las apuestas a&utomáticas",
                       "Automatische Wetten &beenden", "Arrêter les mises automati&ques",
                       "Otomatik &bahsi durdur", "Ferma le puntate a&utomatiche"},
    // Window
    WindowConsole = {"Dice &Rolls", "&Tiros de dados", "&Würfelpult", "&Lancers de dés",
                     "Zar &atislari", "&Lanci di dadi"},
    WindowDice = {"&Dice", "&Dados", "W&ürfel", "&Dés", "&Zarlar", "&Dadi"},
    // Help
    HelpContents = {"&Contents", "&Contenido", "&Inhalt", "&Sommaire", "&Içindekiler",
                    "&Sommario"},
    HelpAbout = {"&About Tessarel", "&Acerca de Tessarel", "Ü&ber Tessarel",
                 "À &propos de Tessarel", "Tessarel &hakkinda", "&Informazioni su Tessarel"},
    AboutText = {"Tessarel %1\r\rA craps table to learn the game on and to find out what a betting "
                 "system really does.",
                 "Tessarel %1\r\rUna mesa de craps para aprender el juego y descubrir lo que un "
                 "sistema de apuestas hace de verdad.",
                 "Tessarel %1\r\rEin Craps-Tisch, um das Spiel zu lernen und herauszufinden, was "
                 "ein Wettsystem wirklich bringt.",
                 "Tessarel %1\r\rUne table de craps pour apprendre le jeu et découvrir ce que fait "
                 "vraiment un système de mises.",
                 "Tessarel %1\r\rOyunu ögrenmek ve bir bahis sisteminin gerçekte ne yaptigini "
                 "görmek için bir craps masasi.",
                 "Tessarel %1\r\rUn tavolo di craps per imparare il gioco e scoprire che cosa fa "
                 "davvero un sistema di puntata."},
    // Messages
    FolderTitle = {"Nothing is kept", "No se guarda nada", "Nichts wird aufbewahrt",
                   "Rien n'est conservé", "Hiçbir sey saklanmiyor", "Nulla viene conservato"},
    FolderIsReadOnly = {
        "The table cannot be kept for the next time, because nothing can be written to the "
        "folder\r%1\r\rTo keep it, use Save As on the Game menu and choose another folder.",
        "La mesa no se puede guardar para la próxima vez, porque no se puede escribir en la "
        "carpeta\r%1\r\rPara conservarla, use Guardar como en el menú Partida y elija otra carpeta.",
        "Der Tisch kann nicht für das nächste Mal aufbewahrt werden, weil in diesen Ordner nicht "
        "geschrieben werden kann:\r%1\r\rMit \"Speichern unter\" im Menü Spiel können Sie ihn in "
        "einem anderen Ordner speichern.",
        "La table ne peut pas être conservée pour la prochaine fois, car rien ne peut être écrit "
        "dans le dossier\r%1\r\rPour la conserver, choisissez Enregistrer sous dans le menu Partie "
        "et prenez un autre dossier.",
        "Masa bir dahaki sefere saklanamiyor, çünkü su klasöre yazilamiyor:\r%1\r\rSaklamak için "
        "Oyun menüsündeki Farkli kaydet ile baska bir klasör seçin.",
        "Il tavolo non può essere conservato per la prossima volta, perché non si può scrivere "
        "nella cartella\r%1\r\rPer conservarlo usare Salva con nome nel menu Gioco e scegliere "
        "un'altra cartella."},
    UnfinishedTitle = {"Unfinished game", "Partida interrumpida", "Unterbrochenes Spiel",
                       "Partie interrompue", "Yarim kalan oyun", "Partita interrotta"},
    UnfinishedQuestion = {"Tessarel did not end in the usual way the last time. The table was "
                          "saved on %1.\r\rWould you like to go on from there?",
                          "La última vez Tessarel no terminó del modo habitual. La mesa se guardó "
                          "el %1.\r\r¿Desea continuar desde ahí?",
                          "Tessarel wurde das letzte Mal nicht ordentlich beendet. Der Tisch wurde "
                          "am %1 gespeichert.\r\rMöchten Sie dort weiterspielen?",
                          "La dernière fois, Tessarel ne s'est pas terminé normalement. La table a "
                          "été enregistrée le %1.\r\rVoulez-vous reprendre à partir de là ?",
                          "Tessarel geçen sefer olagan biçimde kapanmadi. Masa %1 tarihinde "
                          "kaydedildi.\r\rOradan devam etmek ister misiniz?",
                          "L'ultima volta Tessarel non è terminato normalmente. Il tavolo è stato "
                          "salvato il %1.\r\rContinuare da lì?"},
    ScriptErrorTitle = {"Auto-Bet Error", "Error de Auto-Bet", "Auto-Bet-Fehler",
                        "Erreur Auto-Bet", "Auto-Bet hatasi", "Errore di Auto-Bet"},
    Zoom = {"&Zoom", "&Zoom", "&Zoom", "&Zoom", "&Yakinlik", "&Zoom"},
    Rotation = {"&Rotation", "&Giro", "&Drehung", "&Rotation", "&Dönüs", "&Rotazione"};
// clang-format on

}  // namespace tessarel::texts
