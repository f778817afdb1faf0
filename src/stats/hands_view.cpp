#include "stats/hands_view.h"

#include <algorithm>

#include "base/number_format.h"
#include "state/books.h"
#include "stats/view_text.h"
#include "texts/say.h"

namespace tessarel {

namespace {

// The hands of a selection put together: counts add up, records are the highest of all.
struct HandSums {
  int64_t Hands = 0, Rolls = 0;
  int32_t MostRolls = 0, MostComeoutRolls = 0, MostPasses = 0, MostMisses = 0;
  std::array<std::array<int64_t, 4>, 13> Table{};  // dice total, HandRow

  int64_t RowSum(HandRow row) const {
    int64_t sum = 0;
    for (const auto& ofTotal : Table)
      sum += At(ofTotal, row);
    return sum;
  }
};

void AddSlot(HandSums& sums, int slot) {
  const HandFigures& figures = Stats.Hands[slot];
  sums.Hands += figures.HandCount;
  sums.Rolls += Stats.RollCount[slot][0];
  sums.MostRolls = std::max(sums.MostRolls, figures.MostRolls);
  sums.MostComeoutRolls = std::max(sums.MostComeoutRolls, figures.MostComeoutRolls);
  sums.MostPasses = std::max(sums.MostPasses, figures.MostPasses);
  sums.MostMisses = std::max(sums.MostMisses, figures.MostMisses);
  for (size_t total = 2; total <= 12; ++total) {
    for (size_t row = HandComeoutRolls; row <= HandMisses; ++row)
      sums.Table[total][row] += Stats.HandTable[slot][total][row];
  }
}

std::string Average(int64_t sum, int64_t hands) {
  if (hands == 0) return std::string(NotAvailable);
  return TwoDecimals(static_cast<double>(sum) / static_cast<double>(hands));
}

std::string TableText(int64_t count, int64_t hands, HandUnits units) {
  if (units == HandUnits::Counts) return CountText(count);
  const double rate = hands == 0 ? 0 : static_cast<double>(count) / static_cast<double>(hands);
  return FormatNumber(rate, "#,#.00;-#,#;0");
}

}  // namespace

HandsView Hands(Scope scope, PlaceSelection selection, HandUnits units) {
  HandsView view;
  view.Placeholder = Placeholder(selection);
  if (!view.Placeholder.empty()) return view;
  HandSums sums;
  ForEachSlot(scope, selection, [&sums](int slot) { AddSlot(sums, slot); });
  view.Figures = {
      {Say(Text::TotalHands), CountText(sums.Hands)},
      {Say(Text::TotalRolls), CountText(sums.Rolls)},
      {Say(Text::AverageRollsOfHand), Average(sums.Rolls, sums.Hands)},
      {Say(Text::MostRollsOfHand), CountText(sums.MostRolls)},
      {Say(Text::AverageComeOutRolls), Average(sums.RowSum(HandComeoutRolls), sums.Hands)},
      {Say(Text::MostComeOutRolls), CountText(sums.MostComeoutRolls)},
      {Say(Text::AveragePasses), Average(sums.RowSum(HandPasses), sums.Hands)},
      {Say(Text::MostPassesOfHand), CountText(sums.MostPasses)},
      {Say(Text::AverageMisses), Average(sums.RowSum(HandMisses), sums.Hands)},
      {Say(Text::MostMissesOfHand), CountText(sums.MostMisses)},
  };
  for (int total = 2; total <= 12; ++total) {
    const auto text = [&](HandRow row) {
      return TableText(At(At(sums.Table, total), row), sums.Hands, units);
    };
    At(view.Table, total - 2) = {total, text(HandComeoutRolls), text(HandPasses), text(HandMisses)};
  }
  return view;
}

}  // namespace tessarel
