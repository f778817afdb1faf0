// The bet results view: what each bet brought in a scope to the selected places, beside what it was
// expected to bring. The totals are also the wagers of the summary.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "base/money.h"
#include "base/number_set.h"
#include "state/books.h"
#include "stats/selection.h"

namespace tessarel {

// Per bet 1 to 93: the expected value of a decision, as a fraction of the stake.
using ExpectedValues = std::array<double, LastBet + 1>;

// Wagers of a bet or of several added up. Those resolved are those that were won or lost.
struct WagerTotals {
  Money TenderedCount, Tendered;
  Money WinCount, Wins;
  Money LossCount, Losses;
  double Expected = 0;  // in money

  Money Net() const { return Wins - Losses; }
  void Add(const BetRecord& record, double expectedValue);
  void Add(const WagerTotals& other);
};

// One line of columns.
struct WagerColumns {
  std::string TenderedCount, Tendered;
  std::string ResolvedCount, Resolved;
  std::string WinCount, Wins;
  std::string LossCount, Losses;
  std::string Net, NetPercent;  // NotAvailable when nothing was resolved
  std::string Expected;
};

struct BetResultsRow {
  int Bet = 0;
  std::string Name;
  WagerTotals Figures;
  WagerColumns Columns;
};

struct BetResultsView {
  std::string Placeholder;  // stands in place of everything else
  std::vector<BetResultsRow> Rows;
  WagerTotals Figures;
  WagerColumns Totals;
};

BetResultsView BetResults(Scope scope,
                          PlaceSelection selection,
                          const NumberSet& bets,
                          const ExpectedValues& expected,
                          bool useSeparator = true);

// What the selected places wagered on one bet, and on all.
WagerTotals WagersOn(int bet, Scope scope, PlaceSelection selection, double expectedValue);
WagerTotals AllWagers(Scope scope, PlaceSelection selection, const ExpectedValues& expected);

WagerColumns ColumnsOf(const WagerTotals& totals, bool useSeparator = true);

}  // namespace tessarel
