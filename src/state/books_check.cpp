#include "state/books_check.h"

#include "state/books.h"
#include "state/table.h"

namespace tessarel {

std::string CheckBooks() {
  std::string fault;
  ForEachPlayer([&fault](int place) {
    Money expected = Table.InvestedBankroll[place];
    for (const BetRecord& record : Stats.Bets[place + CurrentSession]) {
      expected += record.Won.Sum - record.Lost.Sum;
    }
    if (expected != BankrollOf(place)) {
      fault = "place " + std::to_string(place) + ": bankroll " + PlainText(BankrollOf(place)) +
              ", the books say " + PlainText(expected);
    }
  });
  return fault;
}

}  // namespace tessarel
