// The bet trends view: for one player, the last results of each bet he has made, in the order in
// which they came. The store remembers the last win and the last loss of a bet in a scope.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/money.h"
#include "stats/selection.h"

namespace tessarel {

struct BetTrendEntry {
  Money Roll;    // on which it was resolved, in the scope's table count
  Money Result;  // negative for a loss
  std::string Text;
};

struct BetTrendsRow {
  int Bet = 0;
  std::string Name;
  std::vector<BetTrendEntry> Entries;  // the newest one last
};

struct BetTrendsView {
  std::string Placeholder;  // stands in place of the rows
  std::vector<BetTrendsRow> Rows;
};

// Place 0: nobody is chosen.
BetTrendsView BetTrends(Scope scope, int place);

}  // namespace tessarel
