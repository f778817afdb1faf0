#include "stats/status_box.h"

#include "base/number_format.h"
#include "state/table.h"
#include "stats/view_text.h"
#include "texts/say.h"

namespace tessarel {

namespace {

// The two spaces stand between a caption and its figure.

// Between a caption and its amount, which the captions carry.
constexpr const char* Gap = "  ";

std::string Cents(Money amount) {
  return FormatNumber(amount, "#,0.00;-#,0.00;0.00");
}

std::string BetCountCaption(int64_t bets) {
  if (bets == 1) return Say(Text::StatusOneBet) + Gap;
  return Say(Text::StatusBets, CountText(bets)) + Gap;
}

// What the session brought, ATM moves aside.
StatusRow ResultRow(Money net) {
  const int sign = net > Money() ? 1 : net < Money() ? -1 : 0;
  const Text caption = sign > 0 ? Text::StatusWon : sign < 0 ? Text::StatusLost : Text::StatusEven;
  return {SayChosen(caption) + Gap, Cents(Abs(net)), sign};
}

}  // namespace

std::vector<StatusRow> StatusBox(int place) {
  if (!IsTaken(Table, place)) return {};
  const Money bankroll = BankrollOf(place);
  const Money onTable = Table.MoneyOnTable[place];
  int64_t bets = 0;
  Table.Standing[place].ForEach([&bets](int) { ++bets; });
  return {
      {Say(Text::StatusBankroll) + Gap, Cents(bankroll)},
      {Say(Text::StatusRail) + Gap, Cents(bankroll - onTable)},
      {BetCountCaption(bets), Cents(onTable)},
      ResultRow(bankroll - Table.InvestedBankroll[place]),
  };
}

}  // namespace tessarel
