#include "stats/roll_totals.h"

#include <numeric>

#include "stats/roll_frequencies.h"
#include "stats/stats_fixture.h"

namespace tessarel {
namespace {

using enum RollTotalsDisplay;

using RollTotalsTest = StatsTest;

const RollTotalsRow& RowOf(const RollTotalsView& view, int event) {
  for (const RollTotalsRow& row : view.Rows) {
    if (row.Event == event) return row;
  }
  throw std::out_of_range("no such row");
}

std::string Text(const RollTotalsRow& row) {
  return row.Name + "|" + row.ActualPercent + "|" + row.ProbablePercent + "|" + row.Rolls + "|" +
         row.ProbableRolls + "|" + row.Since + "|" + row.ChiSquare;
}

TEST_F(RollTotalsTest, RowsOfAFewRolls) {
  Roll(3, 4);
  Roll(2, 2);
  Roll(1, 6);
  const RollTotalsView view = RollTotals(CurrentSession, WholeTable, Number, {});
  EXPECT_EQ(view.TotalRolls, "3");
  EXPECT_EQ(Text(RowOf(view, 7)), "Any 7|66.67|16.67|2|0.50|0|4.5");
  EXPECT_EQ(Text(RowOf(view, 4)), "Any 4|33.33|8.33|1|0.25|1|2.25");
  EXPECT_EQ(Text(RowOf(view, 2)), "Number 2 (1.1)|0|2.78|0|0.08|3|0.0833");
  EXPECT_EQ(RowOf(view, 7).ActualBar, 1);
  EXPECT_NEAR(RowOf(view, 7).ProbableBar, 0.25, 1e-12);
}

TEST_F(RollTotalsTest, EveryDisplayHoldsEveryRollOnce) {
  for (int k = 0; k < 50; ++k)
    Roll(k % 6 + 1, k % 5 + 1);
  const std::pair<RollTotalsDisplay, int> cases[] = {
      {Number, 10}, {Combinations, 35}, {Percent, 35}, {Die1, 5}, {Die2, 5}};
  for (const auto& [display, degrees] : cases) {
    const RollTotalsView view = RollTotals(AllSessions, WholeTable, display, {});
    EXPECT_EQ(view.Degrees, degrees);
    int rolls = 0;
    double probable = 0;
    for (const RollTotalsRow& row : view.Rows) {
      rolls += std::stoi(row.Rolls);
      probable += EventProbability(row.Event, true);
    }
    EXPECT_EQ(rolls, 50);
    EXPECT_NEAR(probable, 100, 1e-9);
  }
  EXPECT_EQ(RollTotals(AllSessions, WholeTable, Percent, {}).Rows[0].BarText, "4.00%");
}

TEST_F(RollTotalsTest, WithoutRollsNothingIsDivided) {
  const RollTotalsView view = RollTotals(LastHand, WholeTable, Number, {});
  EXPECT_EQ(view.PValue, "p=100%");
  EXPECT_EQ(Text(view.Rows[5]), "Any 7|0|16.67|0|0|---|0");
  EXPECT_EQ(view.Rows[5].ProbableBar, 0);
}

TEST_F(RollTotalsTest, LargeSumsAreNotSpelledOut) {
  for (int k = 0; k < 100; ++k)
    Roll(1, 1);
  const RollTotalsView view = RollTotals(CurrentSession, WholeTable, Number, {});
  EXPECT_EQ(view.ChiSquare, ">100");
  EXPECT_EQ(view.Rows[0].ChiSquare, ">100");
  EXPECT_EQ(view.PValue, "p<0.01%");
}

TEST_F(RollTotalsTest, AnItemThatCannotComeIsLeftOutOfTheSum) {
  SkewedDice dice{.active = true};
  dice.total[7] = 50000;
  dice.total[8] = 50000;
  Roll(3, 4);
  Roll(1, 1);
  const RollTotalsView view = RollTotals(CurrentSession, WholeTable, Number, dice);
  EXPECT_EQ(view.Chi, 1);  // 7 as expected, 8 missing, 2 not counted
  EXPECT_EQ(view.Degrees, 10);
}

TEST_F(RollTotalsTest, SelectionsReadTheirSlots) {
  EXPECT_EQ(RollTotals(CurrentSession, 2, Number, {}).Placeholder, "No players present");
  SeatPlayer(1, "Ann", 100);
  SeatPlayer(2, "Bob", 100);
  SeatPlayer(3, "Cyd", 100);
  EXPECT_EQ(RollTotals(CurrentSession, 0, Number, {}).Placeholder, "No players selected");
  for (int place = 0; place <= 3; ++place) {
    Table.LastShooter = place;
    for (int k = 0; k <= place; ++k)
      Roll(3, 3);
  }
  const std::pair<PlaceSelection, const char*> cases[] = {
      {1u << 1, "2"}, {1u << 1 | 1u << 3, "6"}, {0xFE, "10"}, {WholeTable, "10"}};
  for (const auto& [selection, rolls] : cases) {
    EXPECT_EQ(RowOf(RollTotals(CurrentHand, selection, Number, {}), 6).Rolls, rolls) << selection;
  }
}

TEST_F(RollTotalsTest, FrequenciesOfAnEvent) {
  EXPECT_EQ(Lines(RollFrequencies(7, {})),
            (Strings{"# rolls since last rolled:=0", "Average # of rolls:=0", "Actual % rolled:=0",
                     "Average # of rolls to achieve:=6.0"}));
  Roll(3, 4);
  for (int k = 0; k < 3; ++k)
    Roll(1, 1);
  Roll(6, 1);
  for (int k = 0; k < 2; ++k)
    Roll(6, 6);
  EXPECT_EQ(Lines(RollFrequencies(7, {})),
            (Strings{"# rolls since last rolled:=2", "Average # of rolls:=3.5",
                     "Actual % rolled:=28.571", "Average # of rolls to achieve:=6.0"}));
  Stats.RollCount[CurrentSession][0] = 2'000'000;
  EXPECT_EQ(RollFrequencies(62, {})[2].Value, "0");
  Stats.RollCount[CurrentSession][62] = 1;
  EXPECT_EQ(RollFrequencies(62, {})[2].Value, "< 0.001");
  EXPECT_EQ(RollFrequencies(7, {.active = true})[3].Value, "---");
}

}  // namespace
}  // namespace tessarel
