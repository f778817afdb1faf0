// The texts of the small windows over the table.
#pragma once

#include "texts/language.h"

namespace tessarel {

// clang-format off

// The console.
inline constexpr SixTexts ConsoleTitle = {
    "Dice Rolls", "Tiradas de dados", "Würfe", "Lancers de dés", "Zar Atislari", "Lanci dei dadi"};

inline constexpr std::array<SixTexts, 4> DisplayCaptions = {{
    {"&11 basic numbers", "&11 números básicos", "&11 einfache Zahlen",
     "&11 nombres de base", "&11 temel sayi", "&11 numeri base"},
    {"&36 combos (triangle)", "&36 combinaciones (triángulo)", "&36 Kombinationen (Dreieck)",
     "&36 combinaisons (triangle)", "&36 kombinasyon (üçgen)", "&36 combinazioni (triangolo)"},
    {"3&6 combos (box)", "3&6 combinaciones (cuadro)", "3&6 Kombinationen (Quadrat)",
     "3&6 combinaisons (carré)", "3&6 kombinasyon (kare)", "3&6 combinazioni (quadrato)"},
    {"&Individual dice faces", "Caras de dados &sueltas", "&Einzelne Würfelseiten",
     "Faces des dés une à &une", "&Tek tek zar yüzleri", "Facce &singole dei dadi"},
}};

inline constexpr SixTexts DisplayMenu = {
    "&Display", "&Vista", "&Ansicht", "&Affichage", "&Görünüm", "&Visualizza"};
inline constexpr SixTexts RollMenu = {
    "&Roll", "&Tirar", "&Würfeln", "&Lancer", "&Atis", "&Lancia"};
inline constexpr SixTexts RollCounterCaption = {
    "Roll &counter", "&Contador de tiradas", "Wurf&zähler", "&Compteur de lancers",
    "Atis &sayaci", "&Contatore dei lanci"};
inline constexpr SixTexts HyperDriveButtonCaption = {
    "&Hyper-Drive button", "Botón &Hyper-Drive", "&Hyper-Drive-Schalter", "Bouton &Hyper-Drive",
    "&Hyper-Drive dügmesi", "Pulsante &Hyper-Drive"};
inline constexpr SixTexts RandomButtonCaption = {
    "Random Roll &button", "&Botón de tirada al azar", "Schalter Zufalls&wurf",
    "&Bouton de lancer aléatoire", "&Rastgele atis dügmesi", "&Pulsante di lancio casuale"};
inline constexpr SixTexts RandomRollCaption = {
    "&Random Roll", "Tirada al &azar", "&Zufallswurf", "Lancer &aléatoire", "&Rastgele Atis",
    "Lancio &casuale"};
inline constexpr SixTexts ButtonColorMenu = {
    "Button c&olor", "C&olor de los botones", "&Farbe der Felder", "C&ouleur des boutons",
    "&Dügme rengi", "C&olore dei pulsanti"};
inline constexpr std::array<SixTexts, 6> ButtonColorCaptions = {{
    {"&Numbers", "&Números", "&Zahlen", "&Nombres", "&Sayilar", "&Numeri"},
    {"&Seven", "&Siete", "&Sieben", "&Sept", "&Yedi", "&Sette"},
    {"&Craps (2, 3, 12)", "&Craps (2, 3, 12)", "&Craps (2, 3, 12)", "&Craps (2, 3, 12)",
     "&Craps (2, 3, 12)", "&Craps (2, 3, 12)"},
    {"&Eleven", "&Once", "&Elf", "&Onze", "&On bir", "&Undici"},
    {"&Hard ways", "&Dobles", "&Pasch", "&Doubles", "&Çift zarlar", "&Doppi"},
    {"Single &dice", "D&ados sueltos", "E&inzelne Würfel", "Dés seu&ls", "&Tek zarlar",
     "D&adi singoli"},
}};
inline constexpr SixTexts DefaultColorsCaption = {
    "De&fault colors", "Colores &predeterminados", "Standard&farben", "Couleurs par défau&t",
    "&Varsayilan renkler", "Colori &predefiniti"};
inline constexpr SixTexts HideCaption = {
    "Hid&e", "Oc&ultar", "&Verbergen", "&Masquer", "&Gizle", "&Nascondi"};

inline constexpr SixTexts AutoStopCaption = {
    "Set Auto-&Stop (%1)...", "Fijar Auto-&Stop (%1)...", "Auto-&Stop festlegen (%1)...",
    "Régler l'Auto-&Stop (%1)...", "Auto-&Stop ayarla (%1)...", "Imposta Auto-&Stop (%1)..."};
inline constexpr SixTexts NoAutoStop = {"none", "ninguno", "keiner", "aucun", "yok", "nessuno"};
inline constexpr SixTexts TimeDelayCaption = {
    "Set Auto-Roll Time &Delay (%1 s)...", "Fijar pausa &de Auto-Roll (%1 s)...",
    "Auto-Roll-&Pause festlegen (%1 s)...", "Régler la &pause d'Auto-Roll (%1 s)...",
    "Auto-Roll &beklemesini ayarla (%1 sn)...", "Imposta &pausa di Auto-Roll (%1 s)..."};
inline constexpr SixTexts ThrottleCaption = {
    "&Throttle", "F&reno", "&Drossel", "&Frein", "&Yavaslatma", "F&reno"};
inline constexpr SixTexts ThrottleNote = {
    "Slows the Hyper-Drive down: 0 is full speed",
    "Frena el Hyper-Drive: 0 es a toda velocidad",
    "Bremst den Hyper-Drive: 0 ist volle Geschwindigkeit",
    "Ralentit l'Hyper-Drive : 0 donne la pleine vitesse",
    "Hyper-Drive'i yavaslatir: 0 tam hizdir",
    "Rallenta l'Hyper-Drive: 0 è la velocità massima"};
inline constexpr SixTexts RollCountText = {
    "Rolls: %1", "Tiradas: %1", "Würfe: %1", "Lancers : %1", "Atis: %1", "Lanci: %1"};
inline constexpr SixTexts RollsPerSecondText = {
    "%1 rolls/s", "%1 tiradas/s", "%1 Würfe/s", "%1 lancers/s", "%1 atis/sn", "%1 lanci/s"};

// What a click will do.
inline constexpr SixTexts ChooseHint = {
    "Click what the next roll is to be", "Haga clic en la próxima tirada",
    "Klicken Sie den nächsten Wurf an", "Cliquez sur le prochain lancer",
    "Bir sonraki atisi tiklayin", "Fare clic sul prossimo lancio"};
inline constexpr SixTexts TotalHint = {
    "Roll a total of %1", "Tirar un total de %1", "Die Summe %1 würfeln",
    "Lancer un total de %1", "Toplam %1 at", "Lancia un totale di %1"};
inline constexpr SixTexts PairHint = {
    "Roll %1 + %2 = %3", "Tirar %1 + %2 = %3", "%1 + %2 = %3 würfeln",
    "Lancer %1 + %2 = %3", "%1 + %2 = %3 at", "Lancia %1 + %2 = %3"};
inline constexpr SixTexts SingleHint = {
    "Die %1 shows %2; then pick the other", "Dado %1: %2; después elija el otro",
    "Würfel %1 zeigt %2; dann den anderen wählen", "Dé %1 : %2 ; puis choisir l'autre",
    "Zar %1: %2; sonra digerini seçin", "Dado %1: %2; poi scegliere l'altro"};
inline constexpr SixTexts StopHint = {
    "A click stops the run", "Un clic detiene la serie", "Ein Klick hält den Lauf an",
    "Un clic arrête la série", "Bir tiklama seriyi durdurur", "Un clic ferma la serie"};

// The window of the dice.
inline constexpr SixTexts DiceTitle = {"Dice", "Dados", "Würfel", "Dés", "Zarlar", "Dadi"};
inline constexpr SixTexts NoRollYet = {
    "No roll yet", "Aún sin tiradas", "Noch kein Wurf", "Aucun lancer", "Henüz atis yok",
    "Ancora nessun lancio"};
inline constexpr std::array<SixTexts, 11> TotalWords = {{
    {"Two", "Dos", "Zwei", "Deux", "Iki", "Due"},
    {"Three", "Tres", "Drei", "Trois", "Üç", "Tre"},
    {"Four", "Cuatro", "Vier", "Quatre", "Dört", "Quattro"},
    {"Five", "Cinco", "Fünf", "Cinq", "Bes", "Cinque"},
    {"Six", "Seis", "Sechs", "Six", "Alti", "Sei"},
    {"Seven", "Siete", "Sieben", "Sept", "Yedi", "Sette"},
    {"Eight", "Ocho", "Acht", "Huit", "Sekiz", "Otto"},
    {"Nine", "Nueve", "Neun", "Neuf", "Dokuz", "Nove"},
    {"Ten", "Diez", "Zehn", "Dix", "On", "Dieci"},
    {"Eleven", "Once", "Elf", "Onze", "On bir", "Undici"},
    {"Twelve", "Doce", "Zwölf", "Douze", "On iki", "Dodici"},
}};
inline constexpr SixTexts HardWayCall = {
    "the hard way", "por dobles", "im Pasch", "en double", "çift zar", "con il doppio"};
inline constexpr SixTexts CrapsCall = {"craps", "craps", "Craps", "craps", "craps", "craps"};

// clang-format on

}  // namespace tessarel
