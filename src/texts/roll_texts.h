// What is said of rolls that cannot be made and of runs that end: the roll driver, the Auto-Roll
// and the Hyper-Drive. Each text is a member of one table, so that whoever checks the languages
// walks through all of them.
#pragma once

#include "texts/language.h"

namespace tessarel {

// clang-format off
struct RollTextTable {
  // The bet that the house asks for; %1 is the shooter.
  SixTexts LineBetAlone = {
      "A line bet is required to shoot.\r\r%1 must make a Pass Line bet or a Don't Pass bet.",
      "Para tirar hace falta una apuesta de línea.\r\r%1 debe hacer una apuesta Pass Line o una apuesta Don't Pass.",
      "Zum Würfeln ist eine Line-Wette erforderlich.\r\r%1 muss eine Pass Line-Wette oder eine Don't Pass-Wette setzen.",
      "Une mise de ligne est obligatoire pour lancer.\r\r%1 doit placer une mise Pass Line ou une mise Don't Pass.",
      "Zar atmak için bir çizgi bahsi gerekir.\r\r%1 bir Pass Line veya Don't Pass bahsi oynamalidir.",
      "Per lanciare è richiesta una puntata di linea.\r\r%1 deve fare una puntata Pass Line o una puntata Don't Pass."};
  SixTexts LineBetDuringPoint = {
      "A line bet is required to shoot.\r\r%1 must make a Pass Line bet or pass the dice.",
      "Para tirar hace falta una apuesta de línea.\r\r%1 debe hacer una apuesta Pass Line o pasar los dados.",
      "Zum Würfeln ist eine Line-Wette erforderlich.\r\r%1 muss eine Pass Line-Wette setzen oder die Würfel weitergeben.",
      "Une mise de ligne est obligatoire pour lancer.\r\r%1 doit placer une mise Pass Line ou passer les dés.",
      "Zar atmak için bir çizgi bahsi gerekir.\r\r%1 bir Pass Line bahsi oynamali veya zarlari devretmelidir.",
      "Per lanciare è richiesta una puntata di linea.\r\r%1 deve fare una puntata Pass Line o passare i dadi."};
  SixTexts LineBetOrPass = {
      "A line bet is required to shoot.\r\r%1 must make a Pass Line bet, a Don't Pass bet, or pass the dice.",
      "Para tirar hace falta una apuesta de línea.\r\r%1 debe hacer una apuesta Pass Line, una apuesta Don't Pass o pasar los dados.",
      "Zum Würfeln ist eine Line-Wette erforderlich.\r\r%1 muss eine Pass Line-Wette oder eine Don't Pass-Wette setzen oder die Würfel weitergeben.",
      "Une mise de ligne est obligatoire pour lancer.\r\r%1 doit placer une mise Pass Line, une mise Don't Pass ou passer les dés.",
      "Zar atmak için bir çizgi bahsi gerekir.\r\r%1 bir Pass Line veya Don't Pass bahsi oynamali ya da zarlari devretmelidir.",
      "Per lanciare è richiesta una puntata di linea.\r\r%1 deve fare una puntata Pass Line, una puntata Don't Pass o passare i dadi."};
  SixTexts AnyBetOrPass = {
      "A bet is required to shoot.\r\r%1 must make any bet or pass the dice.",
      "Para tirar hace falta una apuesta.\r\r%1 debe hacer cualquier apuesta o pasar los dados.",
      "Zum Würfeln ist eine Wette erforderlich.\r\r%1 muss irgendeine Wette setzen oder die Würfel weitergeben.",
      "Une mise est obligatoire pour lancer.\r\r%1 doit placer une mise quelconque ou passer les dés.",
      "Zar atmak için bir bahis gerekir.\r\r%1 herhangi bir bahis oynamali veya zarlari devretmelidir.",
      "Per lanciare è richiesta una puntata.\r\r%1 deve fare una puntata qualsiasi o passare i dadi."};
  SixTexts BetRequiredNote = {
      "Note: This requirement can be changed on the 'Bets tab' of the configuration screen.",
      "Nota: Esta obligación se puede cambiar en la ficha 'Apuestas' de la pantalla de configuración.",
      "Hinweis: Diese Pflicht lässt sich auf der Registerkarte 'Wetten' der Konfiguration ändern.",
      "Remarque : cette obligation peut être modifiée dans l'onglet 'Mises' de l'écran de configuration.",
      "Not: Bu zorunluluk yapilandirma ekraninin 'Bahisler' sekmesinde degistirilebilir.",
      "Nota: questo obbligo si può cambiare nella scheda 'Puntate' della schermata di configurazione."};
  SixTexts LineBetRequired = {
      "Line Bet Required",
      "Apuesta de línea obligatoria",
      "Line-Wette erforderlich",
      "Mise de ligne obligatoire",
      "Çizgi Bahsi Gerekli",
      "Puntata di linea obbligatoria"};
  SixTexts AnyBetRequired = {
      "Any Bet Required",
      "Apuesta cualquiera obligatoria",
      "Beliebige Wette erforderlich",
      "Mise quelconque obligatoire",
      "Herhangi Bir Bahis Gerekli",
      "Puntata qualsiasi obbligatoria"};
  SixTexts ShooterWithoutLineBet = {
      "Shooter has no line bet.",
      "El tirador no tiene apuesta de línea.",
      "Der Werfer hat keine Line-Wette.",
      "Le lanceur n'a pas de mise de ligne.",
      "Aticinin çizgi bahsi yok.",
      "Il lanciatore non ha una puntata di linea."};
  SixTexts ShooterWithoutBet = {
      "Shooter has no bet.",
      "El tirador no tiene apuestas.",
      "Der Werfer hat keine Wette.",
      "Le lanceur n'a pas de mise.",
      "Aticinin bahsi yok.",
      "Il lanciatore non ha puntate."};
  SixTexts NobodyToBet = {
      "No players are available to bet.",
      "No hay jugadores disponibles para apostar.",
      "Es sind keine Spieler zum Setzen verfügbar.",
      "Aucun joueur n'est disponible pour miser.",
      "Bahis yapabilecek oyuncu yok.",
      "Nessun giocatore è disponibile per puntare."};

  // Limits of a session.
  SixTexts MaximumRolls = {
      "Sorry ... the maximum limit of 2,000,000,000 rolls has been reached.",
      "Lo sentimos ... se ha alcanzado el límite máximo de 2,000,000,000 de tiradas.",
      "Leider ... ist die Höchstzahl von 2,000,000,000 Würfen erreicht.",
      "Désolé ... la limite maximale de 2,000,000,000 lancers est atteinte.",
      "Üzgünüz ... 2,000,000,000 atislik üst sinira ulasildi.",
      "Spiacenti ... è stato raggiunto il limite massimo di 2,000,000,000 lanci."};
  SixTexts MaximumRollsTitle = {
      "Reached Maximum Roll Limit",
      "Límite máximo de tiradas alcanzado",
      "Höchstzahl der Würfe erreicht",
      "Limite maximale de lancers atteinte",
      "Atis Üst Sinirina Ulasildi",
      "Raggiunto il limite massimo di lanci"};
  SixTexts StoppedByMaximumRolls = {
      "Stopped due to reaching the maximum limit of 2,000,000,000 rolls.",
      "Detenido por alcanzar el límite máximo de 2,000,000,000 de tiradas.",
      "Gestoppt, weil die Höchstzahl von 2,000,000,000 Würfen erreicht ist.",
      "Arrêté : la limite maximale de 2,000,000,000 lancers est atteinte.",
      "2,000,000,000 atislik üst sinira ulasildigi için durduruldu.",
      "Fermato: raggiunto il limite massimo di 2,000,000,000 lanci."};
  SixTexts ResetTable = {
      "Select \"New\" from the \"Game\" menu to reset the table.",
      "Elija \"Nueva\" en el menú \"Partida\" para reiniciar la mesa.",
      "Wählen Sie \"Neu\" im Menü \"Spiel\", um den Tisch zurückzusetzen.",
      "Choisissez \"Nouvelle\" dans le menu \"Partie\" pour réinitialiser la table.",
      "Masayi sifirlamak için \"Oyun\" menüsünden \"Yeni\" seçin.",
      "Selezionare \"Nuovo\" dal menu \"Gioco\" per reimpostare il tavolo."};
  SixTexts NoGenerator = {
      "No dice: random number generator #0 is selected.",
      "Sin dados: está seleccionado el generador de números aleatorios n.º 0.",
      "Keine Würfel: Der Zufallszahlengenerator Nr. 0 ist gewählt.",
      "Pas de dés : le générateur de nombres aléatoires n° 0 est sélectionné.",
      "Zar yok: 0 numarali rastgele sayi üreteci seçili.",
      "Niente dadi: è selezionato il generatore di numeri casuali n. 0."};

  // Ends of a run.
  SixTexts StoppedByAutoStop = {
      "Stopped by Auto-Stop.",
      "Detenido por la parada automática.",
      "Durch Auto-Stop gestoppt.",
      "Arrêté par l'arrêt automatique.",
      "Otomatik durdurma ile durduruldu.",
      "Fermato dall'arresto automatico."};
  SixTexts AutoStopNotice = {  // the same in a box of its own, without the full stop
      "Stopped by Auto-Stop",
      "Detenido por la parada automática",
      "Durch Auto-Stop gestoppt",
      "Arrêté par l'arrêt automatique",
      "Otomatik durdurma ile durduruldu",
      "Fermato dall'arresto automatico"};
  SixTexts AutoBettingInterrupted = {
    "Auto-betting interrupted.",         "Apuestas automáticas interrumpidas.",
    "Automatisches Wetten abgebrochen.", "Mises automatiques interrompues.",
    "Otomatik bahis kesildi.",           "Puntate automatiche interrotte."};
  SixTexts StoppedByCommand = {
      "Stopped by Auto-Bet command.",
      "Detenido por una orden de apuesta automática.",
      "Durch einen Befehl der automatischen Wette gestoppt.",
      "Arrêté par une commande de mise automatique.",
      "Otomatik bahis komutuyla durduruldu.",
      "Fermato da un comando di puntata automatica."};
  SixTexts AutoRollStopped = {
      "Auto-Roll Stopped",
      "Auto-Roll detenido",
      "Auto-Roll gestoppt",
      "Auto-Roll arrêté",
      "Auto-Roll Durduruldu",
      "Auto-Roll fermato"};
  SixTexts HyperDriveStopped = {
      "Hyper-Drive Stopped",
      "Hyper-Drive detenido",
      "Hyper-Drive gestoppt",
      "Hyper-Drive arrêté",
      "Hyper-Drive Durduruldu",
      "Hyper-Drive fermato"};

  // Questions about runs.
  SixTexts AskAutoStop = {
      "How often (number of rolls) would you like Auto-Roll / Hyper-Drive to automatically stop?  (This is in addition to any auto-stops commanded through auto-betting.  Enter 0 for no automatic stopping.)",
      "¿Cada cuántas tiradas desea que Auto-Roll / Hyper-Drive se detenga automáticamente?  (Además de las paradas ordenadas por las apuestas automáticas.  Escriba 0 para no parar automáticamente.)",
      "Nach jeweils wie vielen Würfen soll Auto-Roll / Hyper-Drive automatisch stoppen?  (Zusätzlich zu den Stopps, die automatische Wetten auslösen.  0 bedeutet kein automatisches Stoppen.)",
      "Tous les combien de lancers l'Auto-Roll / Hyper-Drive doit-il s'arrêter automatiquement ?  (En plus des arrêts commandés par les mises automatiques.  Saisissez 0 pour aucun arrêt automatique.)",
      "Auto-Roll / Hyper-Drive kaç atista bir otomatik olarak dursun?  (Otomatik bahislerin verdigi durdurma komutlarina ektir.  Otomatik durdurma istemiyorsaniz 0 girin.)",
      "Ogni quanti lanci Auto-Roll / Hyper-Drive deve fermarsi automaticamente?  (In aggiunta agli arresti comandati dalle puntate automatiche.  Inserire 0 per nessun arresto automatico.)"};
  SixTexts AutoStopTitle = {
      "Set Auto-Roll / Hyper-Drive Auto-Stop",
      "Fijar la parada automática de Auto-Roll / Hyper-Drive",
      "Auto-Stop für Auto-Roll / Hyper-Drive festlegen",
      "Régler l'arrêt automatique de l'Auto-Roll / Hyper-Drive",
      "Auto-Roll / Hyper-Drive Otomatik Durdurmasini Ayarla",
      "Imposta l'arresto automatico di Auto-Roll / Hyper-Drive"};
  SixTexts ScriptProcessing = {  // whose script is running
      "%1's script processing.",
      "El script de %1 está en ejecución.",
      "Das Skript von %1 wird ausgeführt.",
      "Le script de %1 est en cours.",
      "Çalisan betik, oyuncu: %1.",
      "È in esecuzione lo script di %1."};
};
// clang-format on

inline constexpr RollTextTable RollTexts{};

}  // namespace tessarel
