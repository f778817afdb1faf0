// What is said to the players at the rail: passing the dice, bankrolls and their limits, and the
// ATM. Each text is a member of one table, so that whoever checks the languages walks through all
// of them.
#pragma once

#include "texts/language.h"

namespace tessarel {

// clang-format off
struct RailTextTable {
  // Passing the dice.
  SixTexts PassTheDice = {
      "Pass the Dice",
      "Pasar los dados",
      "Würfel weitergeben",
      "Passer les dés",
      "Zarlari Devret",
      "Passa i dadi"};
  SixTexts NoPlayers = {
      "There are no players at the table.\r\rUnable to pass the dice.",
      "No hay jugadores en la mesa.\r\rNo es posible pasar los dados.",
      "Es sind keine Spieler am Tisch.\r\rDie Würfel können nicht weitergegeben werden.",
      "Il n'y a aucun joueur à la table.\r\rImpossible de passer les dés.",
      "Masada oyuncu yok.\r\rZarlar devredilemiyor.",
      "Non ci sono giocatori al tavolo.\r\rImpossibile passare i dadi."};
  SixTexts NoOtherPlayers = {
      "There are no other players at the table.\r\rUnable to pass the dice.",
      "No hay otros jugadores en la mesa.\r\rNo es posible pasar los dados.",
      "Es sind keine anderen Spieler am Tisch.\r\rDie Würfel können nicht weitergegeben werden.",
      "Il n'y a pas d'autre joueur à la table.\r\rImpossible de passer les dés.",
      "Masada baska oyuncu yok.\r\rZarlar devredilemiyor.",
      "Non ci sono altri giocatori al tavolo.\r\rImpossibile passare i dadi."};
  SixTexts OtherDeclines = {
      "Unable to pass the dice at this time.\r\r%1 doesn't want to shoot.",
      "Ahora no es posible pasar los dados.\r\r%1 no quiere tirar.",
      "Die Würfel können jetzt nicht weitergegeben werden.\r\r%1 möchte nicht würfeln.",
      "Impossible de passer les dés pour le moment.\r\r%1 ne veut pas lancer.",
      "Zarlar su anda devredilemiyor.\r\r%1 zar atmak istemiyor.",
      "Al momento non è possibile passare i dadi.\r\r%1 non vuole lanciare."};
  SixTexts AllDecline = {
      "Unable to pass the dice at this time.\r\rNone of the other players want to shoot.",
      "Ahora no es posible pasar los dados.\r\rNinguno de los demás jugadores quiere tirar.",
      "Die Würfel können jetzt nicht weitergegeben werden.\r\rKeiner der anderen Spieler möchte würfeln.",
      "Impossible de passer les dés pour le moment.\r\rAucun des autres joueurs ne veut lancer.",
      "Zarlar su anda devredilemiyor.\r\rDiger oyunculardan hiçbiri zar atmak istemiyor.",
      "Al momento non è possibile passare i dadi.\r\rNessuno degli altri giocatori vuole lanciare."};
  SixTexts OneBlocked = {
      "Unable to pass the dice at this time.\r\rThere's one other player who wants to shoot but can't because a line bet is required and Put bets are not allowed.\r\rPlease wait for a come-out roll or check the 'Allow Put bets' option on the 'Bets tab' of the configuration screen.",
      "Ahora no es posible pasar los dados.\r\rHay otro jugador que quiere tirar pero no puede, porque hace falta una apuesta de línea y no se permiten apuestas Put.\r\rEspere a una tirada de salida o marque la opción 'Permitir apuestas Put' en la ficha 'Apuestas' de la pantalla de configuración.",
      "Die Würfel können jetzt nicht weitergegeben werden.\r\rEin anderer Spieler möchte würfeln, kann es aber nicht, weil eine Line-Wette erforderlich ist und Put-Wetten nicht erlaubt sind.\r\rWarten Sie auf einen Come-out-Wurf oder wählen Sie 'Put-Wetten erlauben' auf der Registerkarte 'Wetten' der Konfiguration.",
      "Impossible de passer les dés pour le moment.\r\rUn autre joueur veut lancer mais ne le peut pas, car une mise de ligne est obligatoire et les mises Put ne sont pas autorisées.\r\rAttendez un come-out ou cochez l'option 'Autoriser les mises Put' dans l'onglet 'Mises' de l'écran de configuration.",
      "Zarlar su anda devredilemiyor.\r\rZar atmak isteyen bir oyuncu daha var, ama çizgi bahsi gerektigi ve Put bahislerine izin verilmedigi için atamiyor.\r\rAçilis atisini bekleyin veya yapilandirma ekraninin 'Bahisler' sekmesinde 'Put bahislerine izin ver' seçenegini isaretleyin.",
      "Al momento non è possibile passare i dadi.\r\rC'è un altro giocatore che vuole lanciare ma non può, perché è richiesta una puntata di linea e le puntate Put non sono consentite.\r\rAttendere un come-out o selezionare 'Consenti puntate Put' nella scheda 'Puntate' della schermata di configurazione."};
  SixTexts ManyBlocked = {  // %1 of them
      "Unable to pass the dice at this time.\r\rThere are %1 other players who want to shoot but can't because a line bet is required and Put bets are not allowed.\r\rPlease wait for a come-out roll or check the 'Allow Put bets' option on the 'Bets tab' of the configuration screen.",
      "Ahora no es posible pasar los dados.\r\rHay otros %1 jugadores que quieren tirar pero no pueden, porque hace falta una apuesta de línea y no se permiten apuestas Put.\r\rEspere a una tirada de salida o marque la opción 'Permitir apuestas Put' en la ficha 'Apuestas' de la pantalla de configuración.",
      "Die Würfel können jetzt nicht weitergegeben werden.\r\r%1 andere Spieler möchten würfeln, können es aber nicht, weil eine Line-Wette erforderlich ist und Put-Wetten nicht erlaubt sind.\r\rWarten Sie auf einen Come-out-Wurf oder wählen Sie 'Put-Wetten erlauben' auf der Registerkarte 'Wetten' der Konfiguration.",
      "Impossible de passer les dés pour le moment.\r\r%1 autres joueurs veulent lancer mais ne le peuvent pas, car une mise de ligne est obligatoire et les mises Put ne sont pas autorisées.\r\rAttendez un come-out ou cochez l'option 'Autoriser les mises Put' dans l'onglet 'Mises' de l'écran de configuration.",
      "Zarlar su anda devredilemiyor.\r\rZar atmak isteyen %1 oyuncu daha var, ama çizgi bahsi gerektigi ve Put bahislerine izin verilmedigi için atamiyorlar.\r\rAçilis atisini bekleyin veya yapilandirma ekraninin 'Bahisler' sekmesinde 'Put bahislerine izin ver' seçenegini isaretleyin.",
      "Al momento non è possibile passare i dadi.\r\rCi sono altri %1 giocatori che vogliono lanciare ma non possono, perché è richiesta una puntata di linea e le puntate Put non sono consentite.\r\rAttendere un come-out o selezionare 'Consenti puntate Put' nella scheda 'Puntate' della schermata di configurazione."};
  SixTexts PassingBack = {  // %1 passes, %2 takes
      "%1 is passing the dice back to %2 who originally started this hand.",
      "%1 devuelve los dados a %2, que empezó esta mano.",
      "%1 gibt die Würfel an %2 zurück, der diese Hand begonnen hat.",
      "%1 rend les dés à %2, qui avait commencé cette main.",
      "%1 zarlari bu eli baslatan oyuncuya geri veriyor: %2.",
      "%1 restituisce i dadi a %2, che aveva iniziato questa mano."};
  SixTexts PassingOn = {
      "%1 is passing the dice to %2 who may finish the current hand and then roll his/her own hand.",
      "%1 pasa los dados a %2, que puede terminar la mano en curso y después tirar su propia mano.",
      "%1 gibt die Würfel an %2 weiter, der die laufende Hand beenden und danach seine eigene Hand würfeln darf.",
      "%1 passe les dés à %2, qui peut terminer la main en cours puis lancer sa propre main.",
      "%1 zarlari devrediyor: %2 bu eli bitirip ardindan kendi elini atabilir.",
      "%1 passa i dadi a %2, che può finire la mano in corso e poi lanciare la propria."};
  SixTexts HandOfGonePlayer = {
      "The dice were passed during the current hand.\r\rAlthough %1 is presently shooting the dice, the current hand is being credited to another player who started the hand but is no longer at the table.",
      "Los dados se pasaron durante la mano en curso.\r\rAunque ahora tira %1, la mano se acredita a otro jugador que la empezó pero ya no está en la mesa.",
      "Die Würfel wurden während der laufenden Hand weitergegeben.\r\rObwohl jetzt %1 würfelt, wird die Hand einem anderen Spieler gutgeschrieben, der sie begonnen hat, aber nicht mehr am Tisch ist.",
      "Les dés ont été passés pendant la main en cours.\r\rBien que %1 lance les dés, la main est attribuée à un autre joueur qui l'avait commencée mais n'est plus à la table.",
      "Zarlar bu el sirasinda devredildi.\r\rSu anda zarlari %1 atsa da el, onu baslatan ama artik masada olmayan baska bir oyuncuya yaziliyor.",
      "I dadi sono stati passati durante la mano in corso.\r\rAnche se ora lancia %1, la mano è accreditata a un altro giocatore che l'aveva iniziata ma non è più al tavolo."};
  SixTexts HandOfOther = {  // %1 shoots, %2 started
      "The dice were passed during the current hand.\r\rAlthough %1 is presently shooting the dice, the current hand is being credited to %2 who started the hand.",
      "Los dados se pasaron durante la mano en curso.\r\rAunque ahora tira %1, la mano se acredita a %2, que la empezó.",
      "Die Würfel wurden während der laufenden Hand weitergegeben.\r\rObwohl jetzt %1 würfelt, wird die Hand %2 gutgeschrieben, der sie begonnen hat.",
      "Les dés ont été passés pendant la main en cours.\r\rBien que %1 lance les dés, la main est attribuée à %2, qui l'avait commencée.",
      "Zarlar bu el sirasinda devredildi.\r\rSu anda zarlari %1 atsa da el, onu baslatan oyuncuya yaziliyor: %2.",
      "I dadi sono stati passati durante la mano in corso.\r\rAnche se ora lancia %1, la mano è accreditata a %2, che l'aveva iniziata."};
  SixTexts LastHandOfGonePlayer = {
      "The last hand was shot by a player who is no longer at the table.",
      "La última mano la tiró un jugador que ya no está en la mesa.",
      "Die letzte Hand hat ein Spieler gewürfelt, der nicht mehr am Tisch ist.",
      "La dernière main a été lancée par un joueur qui n'est plus à la table.",
      "Son eli artik masada olmayan bir oyuncu atti.",
      "L'ultima mano è stata lanciata da un giocatore che non è più al tavolo."};

  SixTexts NameTooLong = {  // %1 the most characters
      "A player's name can't have more than %1 characters.",
      "El nombre de un jugador no puede tener más de %1 caracteres.",
      "Ein Spielername darf höchstens %1 Zeichen haben.",
      "Le nom d'un joueur ne peut pas dépasser %1 caractères.",
      "Bir oyuncunun adi en çok %1 karakter olabilir.",
      "Il nome di un giocatore non può superare %1 caratteri."};

  // Bankrolls and their limits.
  SixTexts AskBeginningBankroll = {
      "Enter %1's beginning bankroll:",
      "Escriba el capital inicial de %1:",
      "Geben Sie das Startguthaben von %1 ein:",
      "Saisissez le capital de départ de %1 :",
      "Baslangiç bakiyesini girin, oyuncu %1:",
      "Inserire il capitale iniziale di %1:"};
  SixTexts BeginningBankroll = {
      "Beginning Bankroll",
      "Capital inicial",
      "Startguthaben",
      "Capital de départ",
      "Baslangiç Bakiyesi",
      "Capitale iniziale"};
  SixTexts StoppedBelowLimit = {
      "Stopped by exceeding the negative bankroll limit of -$%1",
      "Detenido por superar el límite de capital negativo de -$%1",
      "Gestoppt, weil die Grenze für negatives Guthaben von -$%1 überschritten ist",
      "Arrêté : la limite de capital négatif de -$%1 est dépassée",
      "Negatif bakiye siniri asildigi için durduruldu: -$%1",
      "Fermato: superato il limite di capitale negativo di -$%1"};
  SixTexts StoppedAboveLimit = {
      "Stopped by breaking the max bankroll limit of $%1",
      "Detenido por superar el límite máximo de capital de $%1",
      "Gestoppt, weil das Höchstguthaben von $%1 gesprengt ist",
      "Arrêté : la limite maximale de capital de $%1 est dépassée",
      "Bakiye üst siniri asildigi için durduruldu: $%1",
      "Fermato: superato il limite massimo di capitale di $%1"};
  SixTexts BelowLimit = {  // %1 the player, %2 the limit
      "Sorry ... %1 has exceeded the negative bankroll limit of -$%2",
      "Lo sentimos ... %1 ha superado el límite de capital negativo de -$%2",
      "Leider ... hat %1 die Grenze für negatives Guthaben von -$%2 überschritten",
      "Désolé ... %1 a dépassé la limite de capital négatif de -$%2",
      "Üzgünüz ... %1 negatif bakiye sinirini asti: -$%2",
      "Spiacenti ... %1 ha superato il limite di capitale negativo di -$%2"};
  SixTexts AboveLimit = {
      "Congratulations!\r\r%1 broke the max bankroll limit of $%2",
      "¡Enhorabuena!\r\r%1 ha superado el límite máximo de capital de $%2",
      "Herzlichen Glückwunsch!\r\r%1 hat das Höchstguthaben von $%2 gesprengt",
      "Félicitations !\r\r%1 a dépassé la limite maximale de capital de $%2",
      "Tebrikler!\r\r%1 bakiye üst sinirini asti: $%2",
      "Congratulazioni!\r\r%1 ha superato il limite massimo di capitale di $%2"};

  // The ATM. %1 is the player in a reason.
  SixTexts AtmAmounts = {
      "Requested amount:  $%1\rAllowed amount:  $%2",
      "Importe solicitado:  $%1\rImporte permitido:  $%2",
      "Gewünschter Betrag:  $%1\rErlaubter Betrag:  $%2",
      "Montant demandé :  $%1\rMontant autorisé :  $%2",
      "Istenen tutar:  $%1\rIzin verilen tutar:  $%2",
      "Importo richiesto:  $%1\rImporto consentito:  $%2"};
  SixTexts AtmBelowWagered = {
      "The full amount of this transaction was not allowed because %1's bankroll would've dropped below the amount currently wagered.\r\rYou can deposit more by checking the box marked, \"Allow negative bankroll\" on the Configuration screen, and/or by reducing the amount currently wagered.",
      "No se permitió el importe completo de la operación porque el capital de %1 habría quedado por debajo del importe apostado.\r\rPuede ingresar más si marca la casilla \"Permitir capital negativo\" en la pantalla de configuración o si reduce el importe apostado.",
      "Der volle Betrag wurde nicht erlaubt, weil das Guthaben von %1 unter den gesetzten Betrag gefallen wäre.\r\rSie können mehr einzahlen, wenn Sie in der Konfiguration \"Negatives Guthaben erlauben\" wählen und/oder den gesetzten Betrag verringern.",
      "Le montant total de cette opération n'a pas été autorisé, car le capital de %1 serait tombé sous le montant actuellement misé.\r\rVous pouvez déposer davantage en cochant la case \"Autoriser un capital négatif\" dans l'écran de configuration et/ou en réduisant le montant misé.",
      "Islem tutarinin tamamina izin verilmedi, çünkü %1 adli oyuncunun bakiyesi oynanan tutarin altina düserdi.\r\rYapilandirma ekraninda \"Negatif bakiyeye izin ver\" kutusunu isaretleyerek ve/veya oynanan tutari azaltarak daha fazla yatirabilirsiniz.",
      "L'intero importo dell'operazione non è stato consentito perché il capitale di %1 sarebbe sceso sotto l'importo puntato.\r\rÈ possibile versare di più selezionando \"Consenti capitale negativo\" nella schermata di configurazione e/o riducendo l'importo puntato."};
  SixTexts AtmBelowZero = {
      "The full amount of this transaction was not allowed because %1's bankroll would've become negative.\r\rYou can deposit more by checking the box marked, \"Allow negative bankroll\" on the Configuration screen",
      "No se permitió el importe completo de la operación porque el capital de %1 habría quedado negativo.\r\rPuede ingresar más si marca la casilla \"Permitir capital negativo\" en la pantalla de configuración",
      "Der volle Betrag wurde nicht erlaubt, weil das Guthaben von %1 negativ geworden wäre.\r\rSie können mehr einzahlen, wenn Sie in der Konfiguration \"Negatives Guthaben erlauben\" wählen",
      "Le montant total de cette opération n'a pas été autorisé, car le capital de %1 serait devenu négatif.\r\rVous pouvez déposer davantage en cochant la case \"Autoriser un capital négatif\" dans l'écran de configuration",
      "Islem tutarinin tamamina izin verilmedi, çünkü %1 adli oyuncunun bakiyesi eksiye düserdi.\r\rYapilandirma ekraninda \"Negatif bakiyeye izin ver\" kutusunu isaretleyerek daha fazla yatirabilirsiniz",
      "L'intero importo dell'operazione non è stato consentito perché il capitale di %1 sarebbe diventato negativo.\r\rÈ possibile versare di più selezionando \"Consenti capitale negativo\" nella schermata di configurazione"};
  SixTexts AtmBelowLimit = {  // %2 the limit
      "The full amount of this transaction was not allowed because it would've caused %1's bankroll to drop below the negative bank limit of $%2",
      "No se permitió el importe completo de la operación porque el capital de %1 habría quedado por debajo del límite negativo de $%2",
      "Der volle Betrag wurde nicht erlaubt, weil das Guthaben von %1 unter die negative Grenze von $%2 gefallen wäre",
      "Le montant total de cette opération n'a pas été autorisé, car le capital de %1 serait tombé sous la limite négative de $%2",
      "Islem tutarinin tamamina izin verilmedi, çünkü %1 adli oyuncunun bakiyesi negatif sinirin altina düserdi: $%2",
      "L'intero importo dell'operazione non è stato consentito perché il capitale di %1 sarebbe sceso sotto il limite negativo di $%2"};
  SixTexts AtmAboveLimit = {
      "The full amount of this transaction was not allowed because it would've caused %1's bankroll to exceed the max bank limit of $%2",
      "No se permitió el importe completo de la operación porque el capital de %1 habría superado el límite máximo de $%2",
      "Der volle Betrag wurde nicht erlaubt, weil das Guthaben von %1 die Höchstgrenze von $%2 überschritten hätte",
      "Le montant total de cette opération n'a pas été autorisé, car le capital de %1 aurait dépassé la limite maximale de $%2",
      "Islem tutarinin tamamina izin verilmedi, çünkü %1 adli oyuncunun bakiyesi üst siniri asardi: $%2",
      "L'intero importo dell'operazione non è stato consentito perché il capitale di %1 avrebbe superato il limite massimo di $%2"};
  SixTexts AtmDeposit = {
      "ATM Deposit",
      "Ingreso en el cajero automático",
      "Einzahlung am Geldautomaten",
      "Dépôt au distributeur",
      "ATM'ye Para Yatirma",
      "Versamento al bancomat"};
  SixTexts AtmWithdrawal = {
      "ATM Withdrawal",
      "Retirada del cajero automático",
      "Abhebung am Geldautomaten",
      "Retrait au distributeur",
      "ATM'den Para Çekme",
      "Prelievo dal bancomat"};
};
// clang-format on

inline constexpr RailTextTable RailTexts{};

}  // namespace tessarel
