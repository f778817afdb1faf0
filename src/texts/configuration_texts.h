// What is said of the configuration: the refusals of the pass on closing, the questions before a
// change that touches the table, and the lists that it shows. Each text is a member of one table,
// so that whoever checks the languages walks through all of them.
#pragma once

#include <array>

#include "texts/language.h"

namespace tessarel {

// clang-format off
struct ConfigurationTextTable {
  // Checks and limits.
  SixTexts ChecksNotPositive = {
      "Check values must be greater than zero.",
      "Los valores de las fichas deben ser mayores que cero.",
      "Die Jetonwerte müssen größer als null sein.",
      "Les valeurs des jetons doivent être supérieures à zéro.",
      "Çek degerler sifirdan büyük olmalidir.",
      "I valori delle fiches devono essere maggiori di zero."};
  SixTexts ChecksNotAscending = {
      "Checks must be listed in ascending order with the lowest value check in the leftmost position.",
      "Las fichas deben figurar en orden ascendente, con la de menor valor en el extremo izquierdo.",
      "Die Jetons müssen aufsteigend geordnet sein, der kleinste ganz links.",
      "Les jetons doivent être rangés par ordre croissant, le plus petit tout à gauche.",
      "Çekler artan sirada olmali, en düsük degerli çek en solda durmalidir.",
      "Le fiches devono essere in ordine crescente, con quella di valore più basso all'estrema sinistra."};
  SixTexts ChecksNotDivisible = {
      "All checks must be wholly divisible by the smallest check.",
      "Todas las fichas deben ser múltiplos exactos de la ficha menor.",
      "Alle Jetons müssen durch den kleinsten Jeton ohne Rest teilbar sein.",
      "Tous les jetons doivent être des multiples exacts du plus petit jeton.",
      "Tüm çekler en küçük çeke tam bölünebilmelidir.",
      "Tutte le fiches devono essere multipli esatti della fiche più piccola."};
  SixTexts MinimumBelowCheck = {
      "The minimum bet cannot be less than the smallest check denomination of %1",
      "La apuesta mínima no puede ser inferior a la ficha de menor valor, %1",
      "Der Mindesteinsatz darf nicht unter dem kleinsten Jetonwert liegen: %1",
      "La mise minimale ne peut pas être inférieure au plus petit jeton, %1",
      "En düsük bahis, en küçük çek degerinden az olamaz: %1",
      "La puntata minima non può essere inferiore alla fiche più piccola, %1"};
  SixTexts PropMinimumBelowCheck = {
      "The minimum prop bet cannot be less than the smallest check denomination of %1",
      "La apuesta prop mínima no puede ser inferior a la ficha de menor valor, %1",
      "Der Mindesteinsatz für Prop-Wetten darf nicht unter dem kleinsten Jetonwert liegen: %1",
      "La mise prop minimale ne peut pas être inférieure au plus petit jeton, %1",
      "En düsük prop bahsi, en küçük çek degerinden az olamaz: %1",
      "La puntata prop minima non può essere inferiore alla fiche più piccola, %1"};
  SixTexts MinimumNotMultiple = {
      "The minimum bet must be a multiple of the smallest check denomination, such as %1,  %2,  %3 ...",
      "La apuesta mínima debe ser múltiplo de la ficha de menor valor, como %1,  %2,  %3 ...",
      "Der Mindesteinsatz muss ein Vielfaches des kleinsten Jetonwerts sein, etwa %1,  %2,  %3 ...",
      "La mise minimale doit être un multiple du plus petit jeton, par exemple %1,  %2,  %3 ...",
      "En düsük bahis, en küçük çek degerinin kati olmalidir, örnegin %1,  %2,  %3 ...",
      "La puntata minima deve essere un multiplo della fiche più piccola, per esempio %1,  %2,  %3 ..."};
  SixTexts PropMinimumNotMultiple = {
      "The minimum prop bet must be a multiple of the smallest check denomination, such as %1,  %2,  %3 ...",
      "La apuesta prop mínima debe ser múltiplo de la ficha de menor valor, como %1,  %2,  %3 ...",
      "Der Mindesteinsatz für Prop-Wetten muss ein Vielfaches des kleinsten Jetonwerts sein, etwa %1,  %2,  %3 ...",
      "La mise prop minimale doit être un multiple du plus petit jeton, par exemple %1,  %2,  %3 ...",
      "En düsük prop bahsi, en küçük çek degerinin kati olmalidir, örnegin %1,  %2,  %3 ...",
      "La puntata prop minima deve essere un multiplo della fiche più piccola, per esempio %1,  %2,  %3 ..."};
  SixTexts MaximumBelowMinimum = {
      "The maximum bet must be greater than or equal to the minimum bet.",
      "La apuesta máxima debe ser mayor o igual que la mínima.",
      "Der Höchsteinsatz muss mindestens so groß wie der Mindesteinsatz sein.",
      "La mise maximale doit être supérieure ou égale à la mise minimale.",
      "En yüksek bahis, en düsük bahse esit veya ondan büyük olmalidir.",
      "La puntata massima deve essere maggiore o uguale a quella minima."};
  SixTexts LargestBetTooSmall = {  // %1 the bet, %2 its maximum
      "Based on the selected payoffs, the maximum %1 bet is %2.\r\rThis is less than the minimum prop bet and must be adjusted.\r\rPlease do one or more of the following:\r-- lower the minimum prop bet\r-- raise the maximum prob bet payoff\r-- raise the maximum bet, or\r-- raise the individual payoff(s) on %1.",
      "Con los pagos elegidos, la apuesta máxima en %1 es %2.\r\rEs inferior a la apuesta prop mínima y hay que ajustarla.\r\rHaga una o varias de estas cosas:\r-- bajar la apuesta prop mínima\r-- subir el pago máximo de las apuestas prop\r-- subir la apuesta máxima, o\r-- subir los pagos de %1.",
      "Nach den gewählten Auszahlungen ist der Höchsteinsatz auf %1 %2.\r\rDas ist weniger als der Mindesteinsatz für Prop-Wetten und muss angepasst werden.\r\rBitte tun Sie mindestens eines davon:\r-- den Mindesteinsatz für Prop-Wetten senken\r-- die höchste Auszahlung für Prop-Wetten anheben\r-- den Höchsteinsatz anheben oder\r-- die einzelnen Auszahlungen auf %1 anheben.",
      "D'après les paiements choisis, la mise maximale sur %1 est de %2.\r\rElle est inférieure à la mise prop minimale et doit être ajustée.\r\rVeuillez effectuer au moins une de ces actions :\r-- baisser la mise prop minimale\r-- augmenter le paiement maximal des mises prop\r-- augmenter la mise maximale, ou\r-- augmenter les paiements de %1.",
      "Seçilen ödemelere göre en yüksek %1 bahsi: %2.\r\rBu, en düsük prop bahsinden azdir ve düzeltilmelidir.\r\rLütfen asagidakilerden en az birini yapin:\r-- en düsük prop bahsini azaltin\r-- prop bahislerinin en yüksek ödemesini artirin\r-- en yüksek bahsi artirin veya\r-- %1 ödemelerini artirin.",
      "In base ai pagamenti scelti, la puntata massima su %1 è %2.\r\rÈ inferiore alla puntata prop minima e va corretta.\r\rFare almeno una di queste cose:\r-- abbassare la puntata prop minima\r-- alzare il pagamento massimo delle puntate prop\r-- alzare la puntata massima, oppure\r-- alzare i singoli pagamenti di %1."};

  // Bets that work on the come-out roll.
  SixTexts WorkOnComeOut = {
      "Work On Come-out Roll",
      "Activas en la tirada de salida",
      "Beim Come-out-Wurf aktiv",
      "Actives au come-out",
      "Açilis Atisinda Çalisanlar",
      "Attive al come-out"};
  SixTexts HouseWorkingChanged = {
      "You've changed the house standard for bets that work on the come-out roll.\r\rNew players will be initialized to the new house standard when they buy-in, but players who are already present will retain their personal settings unless you change them on the Auto-play screen (at any time) or here now.\r\rWould you like to make any of the present players' settings match the new house standard now?",
      "Ha cambiado la norma de la casa para las apuestas activas en la tirada de salida.\r\rLos jugadores nuevos tomarán la nueva norma al entrar en juego, pero los presentes conservan sus ajustes personales salvo que usted los cambie en la pantalla Auto-play (cuando quiera) o aquí ahora.\r\r¿Desea que los ajustes de alguno de los jugadores presentes sigan ahora la nueva norma de la casa?",
      "Sie haben den Hausstandard für Wetten geändert, die beim Come-out-Wurf aktiv sind.\r\rNeue Spieler erhalten beim Einstieg den neuen Hausstandard, anwesende Spieler behalten aber ihre eigenen Einstellungen, sofern Sie diese nicht auf dem Auto-Play-Bildschirm (jederzeit) oder jetzt hier ändern.\r\rMöchten Sie jetzt Einstellungen anwesender Spieler an den neuen Hausstandard angleichen?",
      "Vous avez modifié la norme de la maison pour les mises actives au come-out.\r\rLes nouveaux joueurs recevront cette norme en entrant en jeu, mais les joueurs présents gardent leurs réglages personnels, sauf si vous les changez dans l'écran Auto-play (à tout moment) ou ici maintenant.\r\rVoulez-vous aligner maintenant les réglages de joueurs présents sur la nouvelle norme de la maison ?",
      "Açilis atisinda çalisan bahisler için ev kuralini degistirdiniz.\r\rYeni oyuncular oyuna girerken yeni ev kuralini alir, ama masadaki oyuncular, siz Auto-play ekraninda (istediginiz zaman) veya simdi burada degistirmedikçe kendi ayarlarini korur.\r\rMasadaki oyunculardan bazilarinin ayarlarini simdi yeni ev kuralina uydurmak ister misiniz?",
      "È stato cambiato lo standard della casa per le puntate attive al come-out.\r\rI nuovi giocatori riceveranno il nuovo standard quando entrano in gioco, ma quelli già presenti mantengono le loro impostazioni personali, a meno di cambiarle nella schermata Auto-play (in qualsiasi momento) o qui adesso.\r\rAdeguare adesso le impostazioni di qualche giocatore presente al nuovo standard della casa?"};
  SixTexts AskPlayerWorking = {
      "Would you like to make %1's settings match the house standard?",
      "¿Desea que los ajustes de %1 sigan la norma de la casa?",
      "Möchten Sie die Einstellungen von %1 an den Hausstandard angleichen?",
      "Voulez-vous aligner les réglages de %1 sur la norme de la maison ?",
      "%1 adli oyuncunun ayarlari ev kuralina uydurulsun mu?",
      "Adeguare le impostazioni di %1 allo standard della casa?"};

  // Bets taken off the layout.
  SixTexts RemoveBets = {
      "Remove Bets",
      "Retirar apuestas",
      "Wetten entfernen",
      "Retirer des mises",
      "Bahisleri Kaldir",
      "Rimuovi puntate"};
  SixTexts SpecialPropsBound = {
      "You can't uncheck special prop bets now because there are currently one or more wagers on 7 Point 7 which is a contract bet and can't be removed it until it resolves.",
      "Ahora no puede desmarcar las apuestas prop especiales porque hay una o más apuestas en 7 Point 7, que es una apuesta de contrato y no se puede retirar hasta que se resuelva.",
      "Die besonderen Prop-Wetten lassen sich jetzt nicht abwählen, weil auf 7 Point 7 gesetzt ist; das ist eine gebundene Wette, die bis zur Entscheidung stehen bleibt.",
      "Vous ne pouvez pas décocher les mises prop spéciales maintenant, car il y a une ou plusieurs mises sur 7 Point 7, une mise contractuelle qui ne peut être retirée avant sa résolution.",
      "Özel prop bahislerinin isareti simdi kaldirilamaz, çünkü 7 Point 7 üzerinde bir veya daha fazla bahis var; bu baglayici bir bahistir ve sonuçlanana kadar kaldirilamaz.",
      "Ora non è possibile deselezionare le puntate prop speciali perché ci sono una o più puntate su 7 Point 7, che è una puntata vincolata e non può essere tolta finché non si risolve."};
  SixTexts WagersWillBeRemoved = {  // %1 the bets
      "One or more wagers on %1 will be removed from the table.\r\rWould you like to continue?",
      "Se retirarán de la mesa una o más apuestas en %1.\r\r¿Desea continuar?",
      "Wetten auf %1 werden vom Tisch entfernt.\r\rMöchten Sie fortfahren?",
      "Une ou plusieurs mises sur %1 seront retirées de la table.\r\rVoulez-vous continuer ?",
      "%1 üzerindeki bir veya daha fazla bahis masadan kaldirilacak.\r\rDevam etmek istiyor musunuz?",
      "Una o più puntate su %1 saranno tolte dal tavolo.\r\rContinuare?"};
  SixTexts SpecialPropNames = {
      "All Small, All Tall, Make All, Four Rolls No 7, 7 Point 7, Point 7, Sharpshooter, or Ride The Line",
      "All Small, All Tall, Make All, Four Rolls No 7, 7 Point 7, Point 7, Sharpshooter o Ride The Line",
      "All Small, All Tall, Make All, Four Rolls No 7, 7 Point 7, Point 7, Sharpshooter oder Ride The Line",
      "All Small, All Tall, Make All, Four Rolls No 7, 7 Point 7, Point 7, Sharpshooter ou Ride The Line",
      "All Small, All Tall, Make All, Four Rolls No 7, 7 Point 7, Point 7, Sharpshooter veya Ride The Line",
      "All Small, All Tall, Make All, Four Rolls No 7, 7 Point 7, Point 7, Sharpshooter o Ride The Line"};

  // Vig and bankrolls.
  SixTexts Vigorish = {
      "Vigorish", "Comisión", "Kommission", "Commission", "Komisyon", "Commissione"};
  SixTexts VigNotPayable = {
      "You're not allowed to change this setting at this time because one or more players doesn't have enough bankroll remaining to pay the added up-front vig that would be required.\r\rThis can be remedied by doing one or more of the following:\r -- Make a withdrawal from the ATM\r -- Reduce the amount on current bets\r -- Check Allow negative bankroll",
      "Ahora no se puede cambiar este ajuste porque a uno o más jugadores no les queda capital suficiente para pagar la comisión adicional por adelantado.\r\rPuede remediarlo con una o varias de estas medidas:\r -- Retirar dinero del cajero automático\r -- Reducir el importe de las apuestas actuales\r -- Marcar Permitir capital negativo",
      "Diese Einstellung lässt sich jetzt nicht ändern, weil das Guthaben mindestens eines Spielers nicht für die zusätzliche Kommission reicht, die im Voraus fällig wäre.\r\rAbhilfe schafft mindestens eines davon:\r -- Geld am Geldautomaten abheben\r -- Die laufenden Einsätze verringern\r -- Negatives Guthaben erlauben",
      "Ce réglage ne peut pas être modifié pour le moment, car il ne reste pas assez de capital à un ou plusieurs joueurs pour payer la commission supplémentaire due d'avance.\r\rVous pouvez y remédier par une ou plusieurs de ces actions :\r -- Faire un retrait au distributeur\r -- Réduire le montant des mises en cours\r -- Cocher Autoriser un capital négatif",
      "Bu ayar su anda degistirilemez, çünkü bir veya daha fazla oyuncunun kalan bakiyesi pesin alinacak ek komisyonu ödemeye yetmiyor.\r\rAsagidakilerden en az biriyle çözülebilir:\r -- ATM'den para çekin\r -- Mevcut bahislerin tutarini azaltin\r -- Negatif bakiyeye izin verin",
      "Al momento non è possibile cambiare questa impostazione perché a uno o più giocatori non resta capitale sufficiente per pagare la commissione aggiuntiva anticipata.\r\rSi può rimediare in uno o più di questi modi:\r -- Prelevare dal bancomat\r -- Ridurre l'importo delle puntate in corso\r -- Selezionare Consenti capitale negativo"};
  SixTexts AllowNegativeBankroll = {
      "Allow negative bankroll",
      "Permitir capital negativo",
      "Negatives Guthaben erlauben",
      "Autoriser un capital négatif",
      "Negatif bakiyeye izin ver",
      "Consenti capitale negativo"};
  SixTexts BankrollIsNegative = {  // %1 the player
      "%1 currently has a negative bankroll.\r\rSome options:\r -- Win some more money\r -- Withdraw some money from the ATM\r -- Start a new session",
      "%1 tiene ahora un capital negativo.\r\rAlgunas opciones:\r -- Ganar más dinero\r -- Retirar dinero del cajero automático\r -- Iniciar una nueva sesión",
      "%1 hat zurzeit ein negatives Guthaben.\r\rEinige Möglichkeiten:\r -- Mehr Geld gewinnen\r -- Geld am Geldautomaten abheben\r -- Eine neue Sitzung beginnen",
      "%1 a actuellement un capital négatif.\r\rQuelques options :\r -- Gagner davantage d'argent\r -- Faire un retrait au distributeur\r -- Commencer une nouvelle session",
      "%1 adli oyuncunun bakiyesi su anda negatif.\r\rBazi seçenekler:\r -- Biraz daha para kazanin\r -- ATM'den para çekin\r -- Yeni bir oturum baslatin",
      "%1 ha attualmente un capitale negativo.\r\rAlcune possibilità:\r -- Vincere altro denaro\r -- Prelevare dal bancomat\r -- Iniziare una nuova sessione"};
  SixTexts BetsExceedBankroll = {
      "%1's current bets exceed current bankroll.\r\rSome options:\r -- Reduce the amount of current bets\r -- Win some more money\r -- Withdraw some money from the ATM\r -- Start a new session",
      "Las apuestas actuales de %1 superan su capital.\r\rAlgunas opciones:\r -- Reducir el importe de las apuestas actuales\r -- Ganar más dinero\r -- Retirar dinero del cajero automático\r -- Iniciar una nueva sesión",
      "Die laufenden Einsätze von %1 übersteigen das Guthaben.\r\rEinige Möglichkeiten:\r -- Die laufenden Einsätze verringern\r -- Mehr Geld gewinnen\r -- Geld am Geldautomaten abheben\r -- Eine neue Sitzung beginnen",
      "Les mises en cours de %1 dépassent son capital.\r\rQuelques options :\r -- Réduire le montant des mises en cours\r -- Gagner davantage d'argent\r -- Faire un retrait au distributeur\r -- Commencer une nouvelle session",
      "%1 adli oyuncunun mevcut bahisleri bakiyesini asiyor.\r\rBazi seçenekler:\r -- Mevcut bahislerin tutarini azaltin\r -- Biraz daha para kazanin\r -- ATM'den para çekin\r -- Yeni bir oturum baslatin",
      "Le puntate in corso di %1 superano il capitale.\r\rAlcune possibilità:\r -- Ridurre l'importo delle puntate in corso\r -- Vincere altro denaro\r -- Prelevare dal bancomat\r -- Iniziare una nuova sessione"};
  SixTexts PlayersNeeded = {
      "You need to add one or more players before you can set bankroll parameters.\r\rTo add a player return to the main table and click on the Players menu.",
      "Debe añadir uno o más jugadores antes de fijar los parámetros del capital.\r\rPara añadir un jugador, vuelva a la mesa y abra el menú Jugadores.",
      "Fügen Sie erst mindestens einen Spieler hinzu, bevor Sie Guthaben einstellen.\r\rKehren Sie dazu an den Tisch zurück und öffnen Sie das Menü Spieler.",
      "Ajoutez au moins un joueur avant de régler les paramètres du capital.\r\rPour ajouter un joueur, revenez à la table et ouvrez le menu Joueurs.",
      "Bakiye ayarlarini yapmadan önce en az bir oyuncu eklemelisiniz.\r\rOyuncu eklemek için ana masaya dönüp Oyuncular menüsüne tiklayin.",
      "Prima di impostare i parametri del capitale occorre aggiungere uno o più giocatori.\r\rPer aggiungere un giocatore tornare al tavolo e aprire il menu Giocatori."};
  SixTexts MissingPlayers = {
      "Missing Players",
      "Faltan jugadores",
      "Keine Spieler",
      "Joueurs manquants",
      "Oyuncu Yok",
      "Mancano i giocatori"};

  // The simulated roll rate.
  SixTexts RollRateNotPositive = {
      "The simulated roll rate must be greater than zero.",
      "El ritmo simulado de tiradas debe ser mayor que cero.",
      "Die simulierte Wurfrate muss größer als null sein.",
      "Le rythme de lancers simulé doit être supérieur à zéro.",
      "Benzetimli atis hizi sifirdan büyük olmalidir.",
      "Il ritmo simulato dei lanci deve essere maggiore di zero."};
  SixTexts RollRateTooHigh = {  // %1 the unit, %2 the maximum with its full stop
      "The maximum simulated %1 rate is %2",
      "El ritmo simulado máximo en %1 es %2",
      "Die höchste simulierte Rate in %1 ist %2",
      "Le rythme simulé maximal en %1 est de %2",
      "En yüksek benzetimli hiz, %1: %2",
      "Il ritmo simulato massimo in %1 è %2"};
  SixTexts RollsPerHour = {"Roll / hr", "Tirada / h", "Wurf / Std.", "Lancer / h", "Atis / sa", "Lancio / ora"};
  SixTexts RollsPerMinute = {"Roll / min", "Tirada / min", "Wurf / Min.", "Lancer / min", "Atis / dk", "Lancio / min"};
  SixTexts RollsPerSecond = {"Roll / sec", "Tirada / s", "Wurf / Sek.", "Lancer / s", "Atis / sn", "Lancio / s"};
  SixTexts HoursPerRoll = {"Hrs / roll", "H / tirada", "Std. / Wurf", "H / lancer", "Sa / atis", "Ore / lancio"};
  SixTexts MinutesPerRoll = {"Mins / roll", "Min / tirada", "Min. / Wurf", "Min / lancer", "Dk / atis", "Min / lancio"};
  SixTexts SecondsPerRoll = {"Secs / roll", "S / tirada", "Sek. / Wurf", "S / lancer", "Sn / atis", "S / lancio"};

  // Payoffs. %1 is a row or a bet.
  SixTexts PayoffNotPositive = {
      "The payoff on %1 must be positive.",
      "El pago de %1 debe ser positivo.",
      "Die Auszahlung auf %1 muss positiv sein.",
      "Le paiement de %1 doit être positif.",
      "%1 ödemesi pozitif olmalidir.",
      "Il pagamento di %1 deve essere positivo."};
  SixTexts PayoffsNotPositive = {
      "The payoffs on %1 must be positive.",
      "Los pagos de %1 deben ser positivos.",
      "Die Auszahlungen auf %1 müssen positiv sein.",
      "Les paiements de %1 doivent être positifs.",
      "%1 ödemeleri pozitif olmalidir.",
      "I pagamenti di %1 devono essere positivi."};
  SixTexts LossExceedsWager = {
      "Any loss on the %1 bet cannot exceed the amount wagered.",
      "Ninguna pérdida de la apuesta %1 puede superar el importe apostado.",
      "Kein Verlust der %1-Wette darf den Einsatz übersteigen.",
      "Aucune perte sur la mise %1 ne peut dépasser le montant misé.",
      "%1 bahsindeki hiçbir kayip oynanan tutari asamaz.",
      "Nessuna perdita sulla puntata %1 può superare l'importo puntato."};
  SixTexts NoPositivePayoff = {
      "At least one of the %1 bet payoffs must be positive.",
      "Al menos un pago de la apuesta %1 debe ser positivo.",
      "Mindestens eine Auszahlung der %1-Wette muss positiv sein.",
      "Au moins un paiement de la mise %1 doit être positif.",
      "%1 bahsinin ödemelerinden en az biri pozitif olmalidir.",
      "Almeno un pagamento della puntata %1 deve essere positivo."};
  SixTexts MaxFireBelowMinimum = {
      "The max Fire bet cannot be less than the minimum prop bet.",
      "La apuesta Fire máxima no puede ser inferior a la apuesta prop mínima.",
      "Der Höchsteinsatz auf Fire darf nicht unter dem Mindesteinsatz für Prop-Wetten liegen.",
      "La mise Fire maximale ne peut pas être inférieure à la mise prop minimale.",
      "En yüksek Fire bahsi, en düsük prop bahsinden az olamaz.",
      "La puntata Fire massima non può essere inferiore alla puntata prop minima."};
  SixTexts AskDefaultPayoffs = {
      "Do you want to restore all payoffs to their original Tessarel values?",
      "¿Desea restablecer todos los pagos a sus valores originales de Tessarel?",
      "Möchten Sie alle Auszahlungen auf die ursprünglichen Werte von Tessarel zurücksetzen?",
      "Voulez-vous rétablir tous les paiements aux valeurs d'origine de Tessarel ?",
      "Tüm ödemeler Tessarel'in özgün degerlerine döndürülsün mü?",
      "Ripristinare tutti i pagamenti ai valori originali di Tessarel?"};
  SixTexts RestoreDefaultPayoffs = {
      "Restore Default Payoffs",
      "Restablecer pagos predeterminados",
      "Standardauszahlungen wiederherstellen",
      "Rétablir les paiements par défaut",
      "Varsayilan Ödemeleri Geri Yükle",
      "Ripristina pagamenti predefiniti"};
  // The rows of a bet that is paid by count; %1 is "3" or "10+".
  SixTexts PointRow = {
      "      %1 point", "      %1 punto", "      %1 Point", "      %1 point", "      %1 point", "      %1 punto"};
  SixTexts PointsRow = {
      "      %1 points", "      %1 puntos", "      %1 Points", "      %1 points", "      %1 point", "      %1 punti"};
  SixTexts PassRow = {
      "      %1 pass", "      %1 pase", "      %1 Pass", "      %1 passe", "      %1 pas", "      %1 pass"};
  SixTexts PassesRow = {
      "      %1 passes", "      %1 pases", "      %1 Passes", "      %1 passes", "      %1 pas", "      %1 pass"};

  // Checks back to their original values.
  SixTexts AskDefaultChecks = {
      "Do you want to restore all checks to their original Tessarel values?",
      "¿Desea restablecer todas las fichas a sus valores originales de Tessarel?",
      "Möchten Sie alle Jetons auf die ursprünglichen Werte von Tessarel zurücksetzen?",
      "Voulez-vous rétablir tous les jetons aux valeurs d'origine de Tessarel ?",
      "Tüm çekler Tessarel'in özgün degerlerine döndürülsün mü?",
      "Ripristinare tutte le fiches ai valori originali di Tessarel?"};
  SixTexts RestoreDefaultChecks = {
      "Restore Default Denominations",
      "Restablecer valores predeterminados",
      "Standardwerte wiederherstellen",
      "Rétablir les valeurs par défaut",
      "Varsayilan Degerleri Geri Yükle",
      "Ripristina valori predefiniti"};

  // Lists.
  SixTexts FiguresInPercent = {
      "All figures shown in percentage",
      "Todas las cifras en porcentaje",
      "Alle Angaben in Prozent",
      "Tous les chiffres en pourcentage",
      "Tüm degerler yüzde olarak",
      "Tutte le cifre in percentuale"};
  SixTexts ActionsNotAllowed = {
      "Actions not allowed",
      "Acciones no permitidas",
      "Nicht erlaubte Aktionen",
      "Actions non autorisées",
      "Izin verilmeyen islemler",
      "Azioni non consentite"};
  SixTexts LimitsReached = {
      "Betting limits reached",
      "Límites de apuesta alcanzados",
      "Einsatzgrenzen erreicht",
      "Limites de mise atteintes",
      "Bahis sinirlarina ulasilmasi",
      "Limiti di puntata raggiunti"};
  SixTexts ChargesAndChange = {
      "Charges and/or change",
      "Comisiones y/o cambio",
      "Kommissionen und/oder Wechselgeld",
      "Commissions et/ou monnaie",
      "Komisyonlar ve/veya para üstü",
      "Commissioni e/o resto"};
  SixTexts AutoBetMessages = {
      "Auto-bet messages normal play",
      "Mensajes de apuestas automáticas en juego normal",
      "Meldungen automatischer Wetten im Normalspiel",
      "Messages des mises automatiques en jeu normal",
      "Normal oyunda otomatik bahis iletileri",
      "Messaggi delle puntate automatiche nel gioco normale"};
  SixTexts AutoBetMessagesHyper = {
      "Auto-bet messages hyper-drive",
      "Mensajes de apuestas automáticas en Hyper-Drive",
      "Meldungen automatischer Wetten im Hyper-Drive",
      "Messages des mises automatiques en Hyper-Drive",
      "Hyper-Drive'da otomatik bahis iletileri",
      "Messaggi delle puntate automatiche in Hyper-Drive"};
  std::array<SixTexts, 6> OddsCalcMethods = {{
      {"Auto select", "Selección automática", "Automatische Wahl", "Choix automatique", "Otomatik seçim", "Selezione automatica"},
      {"X Flat - No Push", "X base - sin push", "X Flat - kein Push", "X base - sans push", "X Flat - Push yok", "X base - senza push"},
      {"X Flat w/ Minor Push", "X base con push menor", "X Flat mit kleinem Push", "X base avec petit push", "X Flat, küçük Push", "X base con push minore"},
      {"X Flat w/ Color Push", "X base con push de color", "X Flat mit Farb-Push", "X base avec push de couleur", "X Flat, renk Push", "X base con push di colore"},
      {"X Flat - Single Odds", "X base - odds simples", "X Flat - einfache Odds", "X base - odds simples", "X Flat - tek Odds", "X base - odds singole"},
      {"Flat - Single Odds X", "Base - odds simples X", "Flat - einfache Odds X", "Base - odds simples X", "Flat - tek Odds X", "Base - odds singole X"}}};
  std::array<SixTexts, 3> BetsNeededToShoot = {{
      {"No bets required to shoot", "No hace falta apostar para tirar", "Zum Würfeln keine Wette nötig", "Aucune mise requise pour lancer", "Atis için bahis gerekmez", "Nessuna puntata richiesta per lanciare"},
      {"Line bet required to shoot", "Hace falta una apuesta de línea para tirar", "Zum Würfeln Line-Wette nötig", "Mise de ligne requise pour lancer", "Atis için çizgi bahsi gerekir", "Puntata di linea richiesta per lanciare"},
      {"Any bet required to shoot", "Hace falta alguna apuesta para tirar", "Zum Würfeln beliebige Wette nötig", "Mise quelconque requise pour lancer", "Atis için herhangi bir bahis gerekir", "Puntata qualsiasi richiesta per lanciare"}}};
  std::array<SixTexts, 3> VigRoundings = {{
      {"Rounded normally", "Redondeo normal", "Normal gerundet", "Arrondi normal", "Normal yuvarlanir", "Arrotondamento normale"},
      {"Rounded down", "Redondeo a la baja", "Abgerundet", "Arrondi au-dessous", "Asagi yuvarlanir", "Arrotondamento per difetto"},
      {"Rounded up", "Redondeo al alza", "Aufgerundet", "Arrondi au-dessus", "Yukari yuvarlanir", "Arrotondamento per eccesso"}}};
};
// clang-format on

inline constexpr ConfigurationTextTable ConfigurationTexts{};

}  // namespace tessarel
