#include "stats/bet_results.h"

#include "base/number_format.h"
#include "stats/view_text.h"

namespace tessarel {

namespace {

std::string NetPercent(double net, double resolved) {
  if (!(resolved > 0)) return std::string(NotAvailable);
  const double share = net / resolved;
  const bool all = share == 1 || share == -1;
  return FormatNumber(share, all ? "0%;-0%" : "#,0.0#%;-#,0.0#%;0%");
}

}  // namespace

void WagerTotals::Add(const BetRecord& record, double expectedValue) {
  TenderedCount += record.Tendered.Count;
  Tendered += record.Tendered.Sum;
  WinCount += record.Won.Count;
  Wins += record.Won.Sum;
  LossCount += record.Lost.Count;
  Losses += record.Lost.Sum;
  Expected += record.Tendered.Sum.ToDouble() * expectedValue;
}

void WagerTotals::Add(const WagerTotals& other) {
  TenderedCount += other.TenderedCount;
  Tendered += other.Tendered;
  WinCount += other.WinCount;
  Wins += other.Wins;
  LossCount += other.LossCount;
  Losses += other.Losses;
  Expected += other.Expected;
}

WagerColumns ColumnsOf(const WagerTotals& totals, bool useSeparator) {
  const auto count = [useSeparator](int64_t value) { return CountText(value, useSeparator); };
  const auto amount = [useSeparator](Money value) { return AmountText(value, useSeparator); };
  return {
      .TenderedCount = count(totals.TenderedCount),
      .Tendered = amount(totals.Tendered),
      .ResolvedCount = count(totals.WinCount + totals.LossCount),
      .Resolved = amount(totals.Tendered),
      .WinCount = count(totals.WinCount),
      .Wins = amount(totals.Wins),
      .LossCount = count(totals.LossCount),
      .Losses = amount(totals.Losses),
      .Net = amount(totals.Net()),
      .NetPercent = NetPercent(totals.Net().ToDouble(), totals.Tendered.ToDouble()),
      .Expected = amount(Money::FromDouble(totals.Expected)),
  };
}

WagerTotals WagersOn(int bet, Scope scope, PlaceSelection selection, double expectedValue) {
  WagerTotals totals;
  ForEachPlaceSlot(scope, selection,
                   [&](int slot) { totals.Add(Stats.Bets[slot][bet], expectedValue); });
  return totals;
}

WagerTotals AllWagers(Scope scope, PlaceSelection selection, const ExpectedValues& expected) {
  WagerTotals totals;
  for (int bet = 1; bet <= LastBet; ++bet)
    totals.Add(WagersOn(bet, scope, selection, At(expected, bet)));
  return totals;
}

BetResultsView BetResults(Scope scope,
                          PlaceSelection selection,
                          const NumberSet& bets,
                          const ExpectedValues& expected,
                          bool useSeparator) {
  BetResultsView view;
  view.Placeholder = Placeholder(selection);
  if (view.Placeholder.empty() && bets.Empty()) view.Placeholder = BetSelectionCaption(bets);
  if (!view.Placeholder.empty()) return view;
  bets.ForEach([&](int bet) {
    const WagerTotals figures = WagersOn(bet, scope, selection, At(expected, bet));
    view.Figures.Add(figures);
    view.Rows.push_back(
        {bet, std::string(BetName[bet]), figures, ColumnsOf(figures, useSeparator)});
  });
  view.Totals = ColumnsOf(view.Figures, useSeparator);
  return view;
}

}  // namespace tessarel
