#include "stats/status_box.h"

#include "base/number_format.h"
#include "state/table.h"
#include "stats/view_text.h"
#include "texts/language.h"

namespace tessarel {

namespace {

// The two spaces stand between a caption and its figure.
// clang-format off
constexpr SixTexts BankrollCaption = {
    "Bankroll:  ", "Capital:  ", "Guthaben:  ", "Capital :  ", "Bakiye:  ", "Capitale:  "};
constexpr SixTexts RailCaption = {
    "Rail:  ", "Barandilla:  ", "Tischrand:  ", "Rebord :  ", "Kenarda:  ", "Sponda:  "};
constexpr SixTexts BetCaption = {
    "1 Bet:  ", "1 apuesta:  ", "1 Wette:  ", "1 mise :  ", "1 bahis:  ", "1 puntata:  "};
constexpr SixTexts BetsCaption = {
    "%1 Bets:  ", "%1 apuestas:  ", "%1 Wetten:  ", "%1 mises :  ", "%1 bahis:  ",
    "%1 puntate:  "};
constexpr SixTexts WonCaption = {
    "Won:  ", "Ganado:  ", "Gewonnen:  ", "Gagné :  ", "Kazanç:  ", "Vinto:  "};
constexpr SixTexts LostCaption = {
    "Lost:  ", "Perdido:  ", "Verloren:  ", "Perdu :  ", "Kayip:  ", "Perso:  "};
constexpr SixTexts EvenCaption = {
    "Even:  ", "En paz:  ", "Ausgeglichen:  ", "Égalité :  ", "Basabas:  ", "In pari:  "};
// clang-format on

std::string Text(Money amount) {
  return FormatNumber(amount, "#,0.00;-#,0.00;0.00");
}

std::string BetCountCaption(int64_t bets) {
  if (bets == 1) return std::string(Localized(BetCaption));
  return FillIn(BetsCaption, {CountText(bets)});
}

// What the session brought, ATM moves aside.
StatusRow ResultRow(Money net) {
  const int sign = net > Money() ? 1 : net < Money() ? -1 : 0;
  const SixTexts& caption = sign > 0 ? WonCaption : sign < 0 ? LostCaption : EvenCaption;
  return {std::string(Localized(caption)), Text(Abs(net)), sign};
}

}  // namespace

std::vector<StatusRow> StatusBox(int place) {
  if (!IsTaken(Table, place)) return {};
  const Money bankroll = BankrollOf(place);
  const Money onTable = Table.MoneyOnTable[place];
  int64_t bets = 0;
  Table.Standing[place].ForEach([&bets](int) { ++bets; });
  return {
      {std::string(Localized(BankrollCaption)), Text(bankroll)},
      {std::string(Localized(RailCaption)), Text(bankroll - onTable)},
      {BetCountCaption(bets), Text(onTable)},
      ResultRow(bankroll - Table.InvestedBankroll[place]),
  };
}

}  // namespace tessarel
