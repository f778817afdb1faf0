#include "stats/status_box.h"

#include "base/number_format.h"
#include "state/table.h"
#include "stats/view_text.h"
#include "texts/say.h"

namespace tessarel {

namespace {

// The two spaces stand between a caption and its figure.

std::string Text(Money amount) {
  return FormatNumber(amount, "#,0.00;-#,0.00;0.00");
}

std::string BetCountCaption(int64_t bets) {
  if (bets == 1) return Say(Text::StatusOneBet);
  return Say(Text::StatusBets, CountText(bets));
}

// What the session brought, ATM moves aside.
StatusRow ResultRow(Money net) {
  const int sign = net > Money() ? 1 : net < Money() ? -1 : 0;
  Text caption = sign > 0 ? Text::StatusWon : sign < 0 ? Text::StatusLost : Text::StatusEven;
  return {std::string(Wording(caption)), Text(Abs(net)), sign};
}

}  // namespace

std::vector<StatusRow> StatusBox(int place) {
  if (!IsTaken(Table, place)) return {};
  const Money bankroll = BankrollOf(place);
  const Money onTable = Table.MoneyOnTable[place];
  int64_t bets = 0;
  Table.Standing[place].ForEach([&bets](int) { ++bets; });
  return {
      {Say(Text::StatusBankroll), Text(bankroll)},
      {Say(Text::StatusRail), Text(bankroll - onTable)},
      {BetCountCaption(bets), Text(onTable)},
      ResultRow(bankroll - Table.InvestedBankroll[place]),
  };
}

}  // namespace tessarel
