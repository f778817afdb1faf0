#include "stats/bet_trends.h"

#include <algorithm>

#include "base/number_format.h"
#include "state/books.h"

namespace tessarel {

namespace {

void AddEntry(std::vector<BetTrendEntry>& entries, const BetMeasures& measures, bool won) {
  if (measures.Count == 0) return;
  const Money result = won ? measures.Last : -measures.Last;
  entries.push_back({measures.LastRoll, result, FormatNumber(result, " #,#;-#,#")});
}

}  // namespace

BetTrendsView BetTrends(Scope scope, int place) {
  const PlaceSelection selection = place > 0 ? 1u << place : 0;
  BetTrendsView view;
  if (PresentPlaces(selection) == 0) {
    view.Placeholder = SelectionCaption(0);
    return view;
  }
  for (int bet = 1; bet <= LastBet; ++bet) {
    const BetRecord& record = Stats.Bets[scope + place][bet];
    if (record.Tendered.Count == 0) continue;
    BetTrendsRow row{bet, std::string(BetName[bet]), {}};
    AddEntry(row.Entries, record.Won, true);
    AddEntry(row.Entries, record.Lost, false);
    std::ranges::stable_sort(row.Entries, {}, &BetTrendEntry::Roll);
    view.Rows.push_back(std::move(row));
  }
  return view;
}

}  // namespace tessarel
