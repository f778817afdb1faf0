#include "stats/status_box.h"

#include "base/number_format.h"
#include "engine/table.h"
#include "stats/view_text.h"

namespace tessarel {

namespace {

std::string Text(Money amount) {
  return FormatNumber(amount, "#,0.00;-#,0.00;0.00");
}

// What the session brought, ATM moves aside.
StatusRow ResultRow(Money net) {
  const char* const caption = net > Money() ? "Won:  " : net < Money() ? "Lost:  " : "Even:  ";
  return {caption, Text(Abs(net))};
}

}  // namespace

std::vector<StatusRow> StatusBox(int place) {
  if (!IsTaken(Table, place)) return {};
  const Money bankroll = BankrollOf(place);
  const Money onTable = At(Table.MoneyOnTable, place);
  int64_t bets = 0;
  At(Table.Standing, place).ForEach([&bets](int) { ++bets; });
  return {
      {"Bankroll:  ", Text(bankroll)},
      {"Rail:  ", Text(bankroll - onTable)},
      {CountText(bets) + (bets == 1 ? " Bet:  " : " Bets:  "), Text(onTable)},
      ResultRow(bankroll - At(Table.InvestedBankroll, place)),
  };
}

}  // namespace tessarel
