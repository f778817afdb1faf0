#include "stats/roll_totals.h"

#include <algorithm>

#include "state/books.h"
#include "stats/chi_square.h"
#include "stats/significant.h"
#include "stats/view_text.h"

namespace tessarel {

namespace {

constexpr double LargestShownChi = 100;

std::string ChiText(double chi) {
  return chi >= LargestShownChi ? ">100" : FormatSignificant(chi, 4);
}

// The rolls of the selection that made an event; item 0 is all of them.
int64_t CountOf(Scope scope, PlaceSelection selection, int item) {
  int64_t count = 0;
  ForEachSlot(scope, selection, [&](int slot) { count += Stats.RollCount[slot][item]; });
  return count;
}

void AddFaces(std::vector<int>& events, int die) {
  for (int face = 1; face <= 6; ++face)
    events.push_back(CodeOfFace(die, face));
}

void AddPairs(std::vector<int>& events) {
  for (int die1 = 1; die1 <= 6; ++die1) {
    for (int die2 = 1; die2 <= 6; ++die2)
      events.push_back(CodeOfPair(die1, die2));
  }
}

void ScaleBars(std::vector<RollTotalsRow>& rows) {
  double longest = 0;
  for (const RollTotalsRow& row : rows)
    longest = std::max({longest, row.ActualBar, row.ProbableBar});
  if (longest == 0) return;
  for (RollTotalsRow& row : rows) {
    row.ActualBar /= longest;
    row.ProbableBar /= longest;
  }
}

}  // namespace

std::vector<int> EventsOf(RollTotalsDisplay display) {
  std::vector<int> events;
  switch (display) {
    case RollTotalsDisplay::Number:
      for (int total = 2; total <= 12; ++total)
        events.push_back(CodeOfTotal(total));
      break;
    case RollTotalsDisplay::Combinations:
    case RollTotalsDisplay::Percent:
      AddPairs(events);
      break;
    case RollTotalsDisplay::Die1:
    case RollTotalsDisplay::Die2:
      AddFaces(events, display == RollTotalsDisplay::Die1 ? 1 : 2);
  }
  return events;
}

RollTotalsView RollTotals(Scope scope,
                          PlaceSelection selection,
                          RollTotalsDisplay display,
                          const SkewedDice& dice) {
  RollTotalsView view;
  view.Placeholder = Placeholder(selection);
  if (!view.Placeholder.empty()) return view;
  const auto rolls = static_cast<double>(CountOf(scope, selection, 0));
  view.TotalRolls = CountText(CountOf(scope, selection, 0));
  for (const int event : EventsOf(display)) {
    const int64_t count = CountOf(scope, selection, event);
    const double probable = EventProbability(event, dice);
    const double actual = rolls > 0 ? 100 * static_cast<double>(count) / rolls : 0;
    const double expected = probable * rolls / 100;
    const double term = ChiSquareTerm(static_cast<double>(count), expected);
    view.Chi += term;
    const std::string share = TwoDecimals(actual);
    view.Rows.push_back(
        {.Event = event,
         .Name = RollEventName(event),
         .ActualPercent = share,
         .ProbablePercent = TwoDecimals(probable),
         .Rolls = CountText(count),
         .ProbableRolls = TwoDecimals(expected),
         .Since = IsCounted(scope) ? CountText(RollsSince(event)) : std::string(NotAvailable),
         .ChiSquare = ChiText(term),
         .BarText = display == RollTotalsDisplay::Percent ? share + "%" : CountText(count),
         .ActualBar = actual,
         .ProbableBar = rolls > 0 ? probable : 0});
  }
  ScaleBars(view.Rows);
  view.Degrees = static_cast<int>(view.Rows.size()) - 1;
  view.P = ChiSquareTail(view.Chi, view.Degrees);
  view.ChiSquare = ChiText(view.Chi);
  view.PValue = PText(view.P);
  return view;
}

}  // namespace tessarel
