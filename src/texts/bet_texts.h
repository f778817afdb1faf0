// What the table says of a single bet: limits, refusals, vig, check stacks, the handling of decided
// bets and the settle prompt. Each text is a member of one table, so that whoever checks the
// languages walks through all of them. "%1" and up stand for the parts that vary.
#pragma once

#include "texts/language.h"

namespace tessarel {

// clang-format off
struct BetTextTable {
  // Limits and amounts. %1 is a bet's name where one is named, and amounts follow "$".
  SixTexts BetTitle = {
      "%1 Bet", "Apuesta %1", "%1-Wette", "Mise %1", "%1 Bahsi", "Puntata %1"};
  SixTexts MinimumBet = {
      "The minimum %1 bet is $%2",
      "La apuesta mínima en %1 es de $%2",
      "Der Mindesteinsatz auf %1 ist $%2",
      "La mise minimale sur %1 est de $%2",
      "En düsük %1 bahsi: $%2",
      "La puntata minima su %1 è di $%2"};
  SixTexts MaximumBet = {
      "The maximum %1 bet is $%2",
      "La apuesta máxima en %1 es de $%2",
      "Der Höchsteinsatz auf %1 ist $%2",
      "La mise maximale sur %1 est de $%2",
      "En yüksek %1 bahsi: $%2",
      "La puntata massima su %1 è di $%2"};
  SixTexts ContractAboveMaximum = {
      "However, because the %1 is a contract bet and you established it at $%2 before you recently lowered the maximum %1 allowed on the Configuration screen, it must remain unchanged until it resolves.",
      "No obstante, como %1 es una apuesta de contrato y usted la fijó en $%2 antes de rebajar su máximo en la pantalla de configuración, debe quedar sin cambios hasta que se resuelva.",
      "Da %1 jedoch eine gebundene Wette ist und mit $%2 stand, bevor Sie ihren Höchsteinsatz in der Konfiguration gesenkt haben, muss sie bis zur Entscheidung unverändert stehen bleiben.",
      "Toutefois, comme %1 est une mise contractuelle que vous avez établie à $%2 avant d'en abaisser le maximum dans l'écran de configuration, elle doit rester inchangée jusqu'à sa résolution.",
      "Ancak %1 baglayici bir bahis oldugundan ve yapilandirma ekraninda üst siniri düsürmenizden önce $%2 olarak konuldugundan, sonuçlanana kadar degismeden kalmalidir.",
      "Tuttavia, poiché %1 è una puntata vincolata, fissata a $%2 prima che ne venisse abbassato il massimo nella schermata di configurazione, deve restare invariata finché non si risolve."};
  SixTexts UnableToAdjustMaximum = {
      "Unable to auto-adjust bet for proper odds payoff.\r\rMaximum bet for proper odds payoff is: $%1",
      "No es posible ajustar la apuesta para un pago exacto de las odds.\r\rLa apuesta máxima para un pago exacto es: $%1",
      "Der Einsatz lässt sich nicht für eine glatte Odds-Auszahlung anpassen.\r\rHöchsteinsatz für eine glatte Auszahlung: $%1",
      "Impossible d'ajuster la mise pour un paiement exact des odds.\r\rMise maximale pour un paiement exact : $%1",
      "Bahis, odds'un tam ödenmesi için ayarlanamiyor.\r\rTam ödeme için en yüksek bahis: $%1",
      "Impossibile adeguare la puntata per un pagamento esatto delle odds.\r\rPuntata massima per un pagamento esatto: $%1"};
  SixTexts UnableToAdjustMinimum = {
      "Unable to auto-adjust bet for proper odds payoff.\r\rMinimum bet for proper odds payoff is: $%1",
      "No es posible ajustar la apuesta para un pago exacto de las odds.\r\rLa apuesta mínima para un pago exacto es: $%1",
      "Der Einsatz lässt sich nicht für eine glatte Odds-Auszahlung anpassen.\r\rMindesteinsatz für eine glatte Auszahlung: $%1",
      "Impossible d'ajuster la mise pour un paiement exact des odds.\r\rMise minimale pour un paiement exact : $%1",
      "Bahis, odds'un tam ödenmesi için ayarlanamiyor.\r\rTam ödeme için en düsük bahis: $%1",
      "Impossibile adeguare la puntata per un pagamento esatto delle odds.\r\rPuntata minima per un pagamento esatto: $%1"};
  SixTexts NotEnoughBankroll = {
      "You don't have enough bankroll remaining to bet the full amount requested.\r\rYour options are: \r      - Bet less on other bets.\r      - Make a withdrawal from the ATM.\r      - Allow negative bankroll.",
      "No le queda capital suficiente para apostar todo el importe solicitado.\r\rSus opciones son: \r      - Apostar menos en otras apuestas.\r      - Retirar dinero del cajero automático.\r      - Permitir capital negativo.",
      "Ihr Guthaben reicht nicht, um den vollen Betrag zu setzen.\r\rSie haben folgende Möglichkeiten: \r      - Bei anderen Wetten weniger setzen.\r      - Geld am Geldautomaten abheben.\r      - Negatives Guthaben erlauben.",
      "Il ne vous reste pas assez de capital pour miser la totalité du montant demandé.\r\rVos options : \r      - Miser moins sur d'autres mises.\r      - Faire un retrait au distributeur.\r      - Autoriser un capital négatif.",
      "Istenen tutarin tamamini oynamak için yeterli bakiyeniz kalmadi.\r\rSeçenekleriniz: \r      - Diger bahislere daha az koyun.\r      - ATM'den para çekin.\r      - Negatif bakiyeye izin verin.",
      "Il capitale rimasto non basta per puntare l'intero importo richiesto.\r\rLe possibilità sono: \r      - Puntare meno sulle altre puntate.\r      - Prelevare dal bancomat.\r      - Consentire un capitale negativo."};
  SixTexts AlreadyBet = {
      "$%1 which is already bet.",
      "$%1 ya están apostados.",
      "$%1 sind bereits gesetzt.",
      "$%1 sont déjà misés.",
      "$%1 zaten oynanmis durumda.",
      "$%1 sono già puntati."};
  SixTexts BeingBet = {
      "$%1 which is being bet.",
      "$%1 es lo que se apuesta.",
      "$%1 werden gesetzt.",
      "$%1 sont misés.",
      "$%1 oynaniyor.",
      "$%1 vengono puntati."};

  // Vig.
  SixTexts VigReturned = {
      "Vig charge returned $%1",
      "Comisión devuelta $%1",
      "Kommission zurückerstattet $%1",
      "Commission rendue $%1",
      "Iade edilen komisyon $%1",
      "Commissione restituita $%1"};
  SixTexts VigCharged = {
      "Total vig charge $%1",
      "Comisión total $%1",
      "Kommission insgesamt $%1",
      "Commission totale $%1",
      "Toplam komisyon $%1",
      "Commissione totale $%1"};
  SixTexts VigIfWon = {
      "If you win, the vig charge will be $%1",
      "Si gana, la comisión será de $%1",
      "Wenn Sie gewinnen, beträgt die Kommission $%1",
      "Si vous gagnez, la commission sera de $%1",
      "Kazanirsaniz komisyon $%1 olacak",
      "In caso di vincita la commissione sarà di $%1"};
  SixTexts VigIncreased = {
      "Vig increased by $%1",
      "Comisión aumentada en $%1",
      "Kommission erhöht um $%1",
      "Commission augmentée de $%1",
      "Komisyon artisi: $%1",
      "Commissione aumentata di $%1"};
  SixTexts VigDecreased = {
      "Vig decreased by $%1",
      "Comisión reducida en $%1",
      "Kommission verringert um $%1",
      "Commission réduite de $%1",
      "Komisyon indirimi: $%1",
      "Commissione ridotta di $%1"};

  // Check stacks.
  SixTexts StackMinimum = {
      "The minimum CheckStack value is: $%1",
      "El valor mínimo de CheckStack es: $%1",
      "Der Mindestwert für CheckStack ist: $%1",
      "La valeur minimale de CheckStack est : $%1",
      "En düsük CheckStack degeri: $%1",
      "Il valore minimo di CheckStack è: $%1"};
  SixTexts StackMaximum = {
      "The maximum CheckStack value is: $%1",
      "El valor máximo de CheckStack es: $%1",
      "Der Höchstwert für CheckStack ist: $%1",
      "La valeur maximale de CheckStack est : $%1",
      "En yüksek CheckStack degeri: $%1",
      "Il valore massimo di CheckStack è: $%1"};
  SixTexts AlreadyStacked = {
      "$%1 which is already stacked.",
      "$%1 ya están apilados.",
      "$%1 sind bereits gestapelt.",
      "$%1 sont déjà empilés.",
      "$%1 zaten yigilmis durumda.",
      "$%1 sono già impilati."};
  SixTexts BeingStacked = {
      "$%1 which is being stacked.",
      "$%1 es lo que se apila.",
      "$%1 werden gestapelt.",
      "$%1 sont empilés.",
      "$%1 yigiliyor.",
      "$%1 vengono impilati."};
  SixTexts StacksMustDiffer = {
      "Each CheckStack entry should be a different number.",
      "Cada entrada de CheckStack debe ser un número distinto.",
      "Jeder CheckStack-Eintrag muss eine andere Zahl sein.",
      "Chaque entrée de CheckStack doit être un nombre différent.",
      "Her CheckStack girisi farkli bir sayi olmalidir.",
      "Ogni voce di CheckStack deve essere un numero diverso."};
  SixTexts SetVisibleStacks = {
      "Set Visible CheckStacks",
      "Elegir CheckStacks visibles",
      "Sichtbare CheckStacks festlegen",
      "Choisir les CheckStacks visibles",
      "Görünür CheckStack'leri Belirle",
      "Imposta CheckStack visibili"};

  // Refusals.
  SixTexts DecreasePassLine = {
      "You may not decrease or remove a Pass Line bet while a point is established.",
      "No puede reducir ni retirar una apuesta Pass Line mientras haya un punto establecido.",
      "Sie dürfen eine Pass Line-Wette nicht verringern oder entfernen, solange ein Point steht.",
      "Vous ne pouvez ni réduire ni retirer une mise Pass Line tant qu'un point est établi.",
      "Point belirlenmisken Pass Line bahsini azaltamaz veya kaldiramazsiniz.",
      "Non è possibile ridurre né ritirare una puntata Pass Line mentre è stabilito un punto."};
  SixTexts KeepPassLine = {
      "You may not decrease or remove your Pass Line bet while a point is established.",
      "No puede reducir ni retirar su apuesta Pass Line mientras haya un punto establecido.",
      "Sie dürfen Ihre Pass Line-Wette nicht verringern oder entfernen, solange ein Point steht.",
      "Vous ne pouvez ni réduire ni retirer votre mise Pass Line tant qu'un point est établi.",
      "Point belirlenmisken kendi Pass Line bahsinizi azaltamaz veya kaldiramazsiniz.",
      "Non può ridurre né ritirare la Sua puntata Pass Line mentre è stabilito un punto."};
  SixTexts DecreaseCome = {
      "You may not decrease or remove a Come bet which is established on a point.",
      "No puede reducir ni retirar una apuesta Come establecida en un punto.",
      "Sie dürfen eine Come-Wette, die auf einem Point steht, nicht verringern oder entfernen.",
      "Vous ne pouvez ni réduire ni retirer une mise Come établie sur un point.",
      "Bir point'e yerlesmis Come bahsini azaltamaz veya kaldiramazsiniz.",
      "Non è possibile ridurre né ritirare una puntata Come stabilita su un punto."};
  SixTexts DecreaseEstablished = {
      "You may not decrease or remove a %1 bet which is established on a point.",
      "No puede reducir ni retirar una apuesta %1 establecida en un punto.",
      "Sie dürfen eine %1-Wette, die auf einem Point steht, nicht verringern oder entfernen.",
      "Vous ne pouvez ni réduire ni retirer une mise %1 établie sur un point.",
      "Bir point'e yerlesmis %1 bahsini azaltamaz veya kaldiramazsiniz.",
      "Non è possibile ridurre né ritirare una puntata %1 stabilita su un punto."};
  SixTexts DecreaseDuringPoint = {
      "You may not decrease or remove a %1 bet while a point is established.",
      "No puede reducir ni retirar una apuesta %1 mientras haya un punto establecido.",
      "Sie dürfen eine %1-Wette nicht verringern oder entfernen, solange ein Point steht.",
      "Vous ne pouvez ni réduire ni retirer une mise %1 tant qu'un point est établi.",
      "Point belirlenmisken %1 bahsini azaltamaz veya kaldiramazsiniz.",
      "Non è possibile ridurre né ritirare una puntata %1 mentre è stabilito un punto."};
  SixTexts PutPassLine = {
      "You may not make or increase a Pass Line bet while a point is established.",
      "No puede hacer ni aumentar una apuesta Pass Line mientras haya un punto establecido.",
      "Sie dürfen eine Pass Line-Wette nicht setzen oder erhöhen, solange ein Point steht.",
      "Vous ne pouvez ni placer ni augmenter une mise Pass Line tant qu'un point est établi.",
      "Point belirlenmisken Pass Line bahsi oynayamaz veya artiramazsiniz.",
      "Non è possibile fare né aumentare una puntata Pass Line mentre è stabilito un punto."};
  SixTexts PutCome = {
      "You may not make or increase a Come bet directly on a point number.",
      "No puede hacer ni aumentar una apuesta Come directamente en un número de punto.",
      "Sie dürfen eine Come-Wette nicht direkt auf einer Point-Zahl setzen oder erhöhen.",
      "Vous ne pouvez ni placer ni augmenter une mise Come directement sur un numéro de point.",
      "Dogrudan bir point sayisina Come bahsi oynayamaz veya artiramazsiniz.",
      "Non è possibile fare né aumentare una puntata Come direttamente su un numero punto."};
  SixTexts UnlessPutBets = {
      "(Unless you check \"Allow Put Bets\" on the Configuration screen.)",
      "(A menos que marque \"Permitir apuestas Put\" en la pantalla de configuración.)",
      "(Es sei denn, Sie wählen in der Konfiguration \"Put-Wetten erlauben\".)",
      "(Sauf si vous cochez \"Autoriser les mises Put\" dans l'écran de configuration.)",
      "(Yapilandirma ekraninda \"Put bahislerine izin ver\" kutusunu isaretlemedikçe.)",
      "(A meno che non si selezioni \"Consenti puntate Put\" nella schermata di configurazione.)"};
  SixTexts ComeWithoutPoint = {
      "You may not make a Come bet until a point is established.",
      "No puede hacer una apuesta Come hasta que haya un punto establecido.",
      "Sie dürfen eine Come-Wette erst setzen, wenn ein Point steht.",
      "Vous ne pouvez pas placer de mise Come avant qu'un point soit établi.",
      "Point belirlenmeden Come bahsi oynayamazsiniz.",
      "Non è possibile fare una puntata Come finché non è stabilito un punto."};
  SixTexts DontPassDuringPoint = {
      "You may not make or increase a Don't Pass bet while a point is established.",
      "No puede hacer ni aumentar una apuesta Don't Pass mientras haya un punto establecido.",
      "Sie dürfen eine Don't Pass-Wette nicht setzen oder erhöhen, solange ein Point steht.",
      "Vous ne pouvez ni placer ni augmenter une mise Don't Pass tant qu'un point est établi.",
      "Point belirlenmisken Don't Pass bahsi oynayamaz veya artiramazsiniz.",
      "Non è possibile fare né aumentare una puntata Don't Pass mentre è stabilito un punto."};
  SixTexts DontComeWithoutPoint = {
      "You may not make a Don't Come bet until a point is established.",
      "No puede hacer una apuesta Don't Come hasta que haya un punto establecido.",
      "Sie dürfen eine Don't Come-Wette erst setzen, wenn ein Point steht.",
      "Vous ne pouvez pas placer de mise Don't Come avant qu'un point soit établi.",
      "Point belirlenmeden Don't Come bahsi oynayamazsiniz.",
      "Non è possibile fare una puntata Don't Come finché non è stabilito un punto."};
  SixTexts OddsWithoutPassLine = {
      "You may not make a Pass Line Odds bet unless you also have a Pass Line bet and a point is established.",
      "Solo puede hacer una apuesta Pass Line Odds si tiene también una apuesta Pass Line y hay un punto establecido.",
      "Sie dürfen eine Pass Line Odds-Wette nur setzen, wenn Sie auch eine Pass Line-Wette haben und ein Point steht.",
      "Vous ne pouvez placer une mise Pass Line Odds que si vous avez aussi une mise Pass Line et qu'un point est établi.",
      "Pass Line bahsiniz yoksa veya point belirlenmemisse Pass Line Odds bahsi oynayamazsiniz.",
      "È possibile fare una puntata Pass Line Odds solo se c'è anche una puntata Pass Line ed è stabilito un punto."};
  SixTexts OddsWithoutDontPass = {
      "You may not make a Don't Pass Odds bet unless you also have a Don't Pass bet and a point is established.",
      "Solo puede hacer una apuesta Don't Pass Odds si tiene también una apuesta Don't Pass y hay un punto establecido.",
      "Sie dürfen eine Don't Pass Odds-Wette nur setzen, wenn Sie auch eine Don't Pass-Wette haben und ein Point steht.",
      "Vous ne pouvez placer une mise Don't Pass Odds que si vous avez aussi une mise Don't Pass et qu'un point est établi.",
      "Don't Pass bahsiniz yoksa veya point belirlenmemisse Don't Pass Odds bahsi oynayamazsiniz.",
      "È possibile fare una puntata Don't Pass Odds solo se c'è anche una puntata Don't Pass ed è stabilito un punto."};
  SixTexts OddsWithoutFlat = {  // %1 the odds, %2 the bet under them
      "You may not make a %1 bet until you've established a %2 bet.",
      "No puede hacer una apuesta %1 hasta haber establecido una apuesta %2.",
      "Sie dürfen eine %1-Wette erst setzen, wenn Ihre %2-Wette steht.",
      "Vous ne pouvez pas placer de mise %1 avant d'avoir établi une mise %2.",
      "%2 bahsiniz yerlesmeden %1 bahsi oynayamazsiniz.",
      "Non è possibile fare una puntata %1 finché non si è stabilita una puntata %2."};
  SixTexts DontComeOnNumber = {
      "You may not make or increase a Don't Come bet directly on a point number.",
      "No puede hacer ni aumentar una apuesta Don't Come directamente en un número de punto.",
      "Sie dürfen eine Don't Come-Wette nicht direkt auf einer Point-Zahl setzen oder erhöhen.",
      "Vous ne pouvez ni placer ni augmenter une mise Don't Come directement sur un numéro de point.",
      "Dogrudan bir point sayisina Don't Come bahsi oynayamaz veya artiramazsiniz.",
      "Non è possibile fare né aumentare una puntata Don't Come direttamente su un numero punto."};
  SixTexts SmallNumbersMarked = {
      "You may not make or increase an %1 bet while any small numbers are marked.",
      "No puede hacer ni aumentar una apuesta %1 mientras haya números bajos marcados.",
      "Sie dürfen eine %1-Wette nicht setzen oder erhöhen, solange kleine Zahlen markiert sind.",
      "Vous ne pouvez ni placer ni augmenter une mise %1 tant que de petits numéros sont marqués.",
      "Isaretli küçük sayi varken %1 bahsi oynayamaz veya artiramazsiniz.",
      "Non è possibile fare né aumentare una puntata %1 mentre sono segnati numeri bassi."};
  SixTexts TallNumbersMarked = {
      "You may not make or increase an %1 bet while any tall numbers are marked.",
      "No puede hacer ni aumentar una apuesta %1 mientras haya números altos marcados.",
      "Sie dürfen eine %1-Wette nicht setzen oder erhöhen, solange große Zahlen markiert sind.",
      "Vous ne pouvez ni placer ni augmenter une mise %1 tant que de grands numéros sont marqués.",
      "Isaretli büyük sayi varken %1 bahsi oynayamaz veya artiramazsiniz.",
      "Non è possibile fare né aumentare una puntata %1 mentre sono segnati numeri alti."};
  SixTexts AnyNumbersMarked = {
      "You may not make or increase a %1 bet while any numbers are marked.",
      "No puede hacer ni aumentar una apuesta %1 mientras haya números marcados.",
      "Sie dürfen eine %1-Wette nicht setzen oder erhöhen, solange Zahlen markiert sind.",
      "Vous ne pouvez ni placer ni augmenter une mise %1 tant que des numéros sont marqués.",
      "Isaretli sayi varken %1 bahsi oynayamaz veya artiramazsiniz.",
      "Non è possibile fare né aumentare una puntata %1 mentre sono segnati dei numeri."};
  SixTexts CountInProgress = {
      "You may not make or increase a %1 bet if the count is in progress.",
      "No puede hacer ni aumentar una apuesta %1 con la cuenta en curso.",
      "Sie dürfen eine %1-Wette nicht setzen oder erhöhen, wenn die Zählung läuft.",
      "Vous ne pouvez ni placer ni augmenter une mise %1 quand le décompte est en cours.",
      "Sayim sürerken %1 bahsi oynayamaz veya artiramazsiniz.",
      "Non è possibile fare né aumentare una puntata %1 se il conteggio è in corso."};
  SixTexts NotOnComeOut = {
      "You may not make or increase a %1 bet unless the shooter is on a come-out roll.",
      "No puede hacer ni aumentar una apuesta %1 salvo en una tirada de salida del tirador.",
      "Sie dürfen eine %1-Wette nur setzen oder erhöhen, wenn der Werfer vor einem Come-out-Wurf steht.",
      "Vous ne pouvez placer ou augmenter une mise %1 que lors d'un come-out du lanceur.",
      "Atici açilis atisinda degilse %1 bahsi oynayamaz veya artiramazsiniz.",
      "È possibile fare o aumentare una puntata %1 solo se il lanciatore è al come-out."};
  SixTexts HandStarted = {
      "You may not make or increase a %1 bet after the shooter has started a hand.",
      "No puede hacer ni aumentar una apuesta %1 después de que el tirador haya empezado una mano.",
      "Sie dürfen eine %1-Wette nicht mehr setzen oder erhöhen, wenn der Werfer eine Hand begonnen hat.",
      "Vous ne pouvez ni placer ni augmenter une mise %1 après que le lanceur a commencé une main.",
      "Atici bir ele basladiktan sonra %1 bahsi oynayamaz veya artiramazsiniz.",
      "Non è possibile fare né aumentare una puntata %1 dopo che il lanciatore ha iniziato una mano."};

  // How a decided bet goes on: %1 the player, %2 the bet.
  SixTexts BetUnchanged = {
      "%1,\r\r%2 bet remains the same.",
      "%1,\r\rla apuesta %2 no cambia.",
      "%1,\r\rdie %2-Wette bleibt gleich.",
      "%1,\r\rla mise %2 reste inchangée.",
      "%1,\r\r%2 bahsi ayni kaldi.",
      "%1,\r\rla puntata %2 rimane invariata."};
  SixTexts BetIncreased = {
      "%1,\r\r%2 bet increased by: $%3",
      "%1,\r\rla apuesta %2 aumenta en: $%3",
      "%1,\r\rdie %2-Wette wurde erhöht um: $%3",
      "%1,\r\rla mise %2 augmente de : $%3",
      "%1,\r\r%2 bahsi artirildi: $%3",
      "%1,\r\rla puntata %2 aumenta di: $%3"};
  SixTexts BetDecreased = {
      "%1,\r\r%2 bet decreased by: $%3",
      "%1,\r\rla apuesta %2 se reduce en: $%3",
      "%1,\r\rdie %2-Wette wurde verringert um: $%3",
      "%1,\r\rla mise %2 diminue de : $%3",
      "%1,\r\r%2 bahsi azaltildi: $%3",
      "%1,\r\rla puntata %2 diminuisce di: $%3"};
  SixTexts SameBetPlus = {
      "Same bet plus %1",
      "Misma apuesta más %1",
      "Gleiche Wette plus %1",
      "Même mise plus %1",
      "Ayni bahis arti %1",
      "Stessa puntata più %1"};
  SixTexts SameBetMinus = {
      "Same bet minus %1",
      "Misma apuesta menos %1",
      "Gleiche Wette minus %1",
      "Même mise moins %1",
      "Ayni bahis eksi %1",
      "Stessa puntata meno %1"};
  SixTexts SameBetTimes = {
      "Same bet times %1",
      "Misma apuesta por %1",
      "Gleiche Wette mal %1",
      "Même mise fois %1",
      "Ayni bahis çarpi %1",
      "Stessa puntata per %1"};
  SixTexts SameBetDividedBy = {
      "Same bet divided by %1",
      "Misma apuesta dividida por %1",
      "Gleiche Wette geteilt durch %1",
      "Même mise divisée par %1",
      "Ayni bahis bölü %1",
      "Stessa puntata divisa per %1"};
  SixTexts Units = {
      "%1 Units", "Unidades de %1", "%1er-Einheiten", "Unités de %1", "%1 Birim", "Unità da %1"};

  // The settle prompt.
  SixTexts PointWon = {
      "(%1 point won)", "(%1 punto ganado)", "(%1 Point gewonnen)",
      "(%1 point gagné)", "(%1 point kazanildi)", "(%1 punto vinto)"};
  SixTexts PointsWon = {
      "(%1 points won)", "(%1 puntos ganados)", "(%1 Points gewonnen)",
      "(%1 points gagnés)", "(%1 point kazanildi)", "(%1 punti vinti)"};
  SixTexts PassMade = {
      "(%1 pass made)", "(%1 pase logrado)", "(%1 Pass geschafft)",
      "(%1 passe réussie)", "(%1 pas yapildi)", "(%1 pass riuscito)"};
  SixTexts PassesMade = {
      "(%1 passes made)", "(%1 pases logrados)", "(%1 Passes geschafft)",
      "(%1 passes réussies)", "(%1 pas yapildi)", "(%1 pass riusciti)"};
  SixTexts PointMade = {
      "(%1 point made)", "(%1 punto logrado)", "(%1 Point geschafft)",
      "(%1 point réussi)", "(%1 point yapildi)", "(%1 punto realizzato)"};
  SixTexts PointsMade = {
      "(%1 points made)", "(%1 puntos logrados)", "(%1 Points geschafft)",
      "(%1 points réussis)", "(%1 point yapildi)", "(%1 punti realizzati)"};
  SixTexts PaysTo = {"%1 to %2", "%1 a %2", "%1 zu %2", "%1 contre %2", "%1:%2", "%1 a %2"};
  SixTexts PaysFor = {"%1 for %2", "%1 por %2", "%1 für %2", "%1 pour %2", "%1 / %2", "%1 per %2"};
  SixTexts PartOfBet = {
      "1/%1 of bet:", "1/%1 de la apuesta:", "1/%1 der Wette:",
      "1/%1 de la mise :", "Bahsin 1/%1:", "1/%1 della puntata:"};
  SixTexts LessPartOfBet = {
      "Less %1/%2 of bet:", "Menos %1/%2 de la apuesta:", "Abzüglich %1/%2 der Wette:",
      "Moins %1/%2 de la mise :", "Eksi bahsin %1/%2:", "Meno %1/%2 della puntata:"};
  SixTexts VigPercent = {
      "%1% vig:", "%1% de comisión:", "%1% Kommission:",
      "%1 % de commission :", "%%1 komisyon:", "%1% di commissione:"};
  SixTexts NetPayoff = {
      "Net payoff: ", "Pago neto: ", "Nettoauszahlung: ",
      "Paiement net : ", "Net ödeme: ", "Pagamento netto: "};
  SixTexts NetPayoffRounded = {
      "Net payoff (rounded): ", "Pago neto (redondeado): ", "Nettoauszahlung (gerundet): ",
      "Paiement net (arrondi) : ", "Net ödeme (yuvarlanmis): ", "Pagamento netto (arrotondato): "};
  SixTexts LossAt = {
      "Loss at %1", "Pérdida a %1", "Verlust zu %1", "Perte à %1", "Kayip orani %1", "Perdita a %1"};
  SixTexts NetLoss = {
      "Net loss: ", "Pérdida neta: ", "Nettoverlust: ",
      "Perte nette : ", "Net kayip: ", "Perdita netta: "};
  SixTexts NetLossRounded = {
      "Net loss (rounded): ", "Pérdida neta (redondeada): ", "Nettoverlust (gerundet): ",
      "Perte nette (arrondie) : ", "Net kayip (yuvarlanmis): ", "Perdita netta (arrotondata): "};
  SixTexts Remainder = {"Remainder: ", "Resto: ", "Rest: ", "Reste : ", "Kalan: ", "Resto: "};
  SixTexts WasNotWorking = {
      "wasn't working!", "¡no estaba activa!", "war nicht aktiv!",
      "n'était pas active !", "çalismiyordu!", "non era attiva!"};
  // The buttons of a lost bet. UnitToBet has no mark of its own.
  SixTexts NoBet = {
      "&No Bet", "&Sin apuesta", "&Keine Wette", "&Pas de mise", "Bahis &yok", "&Nessuna puntata"};
  SixTexts SameBet = {
      "&Same Bet", "&Misma apuesta", "&Gleiche Wette", "&Même mise", "&Ayni bahis", "&Stessa puntata"};
  SixTexts BetRemainder = {
      "Bet &Remainder", "Apostar el &resto", "&Rest setzen", "Miser le &reste", "Ka&lani oyna", "Punta il &resto"};
  SixTexts UnitToBet = {
      "%1 to Bet", "Añadir %1", "%1 dazusetzen", "Ajouter %1", "Bahse %1 ekle", "Aggiungi %1"};
  SixTexts DoubleBet = {
      "&Double Bet", "&Doblar apuesta", "Wette &verdoppeln", "&Doubler la mise", "&Ikiye katla", "Ra&ddoppia"};
};
// clang-format on

inline constexpr BetTextTable BetTexts{};

}  // namespace tessarel
