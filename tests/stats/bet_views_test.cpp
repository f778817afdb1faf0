#include <cmath>

#include "stats/bet_results.h"
#include "stats/bet_trends.h"
#include "stats/stats_fixture.h"

namespace tessarel {
namespace {

class BetViews : public StatsTest {
 protected:
  BetViews() {
    SeatPlayer(1, "Ann", 5000);
    SeatPlayer(4, "Bob", 5000);
  }
};

std::string Text(const WagerColumns& c) {
  return c.TenderedCount + "|" + c.Tendered + "|" + c.ResolvedCount + "|" + c.Resolved + "|" +
         c.WinCount + "|" + c.Wins + "|" + c.LossCount + "|" + c.Losses + "|" + c.Net + "|" +
         c.NetPercent + "|" + c.Expected;
}

NumberSet Bets(std::initializer_list<int> numbers) {
  NumberSet bets;
  for (const int number : numbers)
    bets.Add(number);
  return bets;
}

TEST_F(BetViews, ColumnsOfBetsAndTheirSum) {
  RecordBetResult(1, bet::Field, 1000, 2000);
  RecordBetResult(1, bet::Field, 500, -500);
  RecordBetResult(4, bet::Field, Money::FromRaw(2500), Money::FromRaw(-2500));
  RecordBetResult(1, bet::Place6, 12, 14);
  RecordBetResult(1, bet::Place6, 12, 0);
  ExpectedValues expected{};
  expected[bet::Field] = -0.05;
  expected[bet::Place6] = -0.015152;
  const NumberSet bets = Bets({bet::Place6, bet::Field, bet::Fire});
  const BetResultsView one = BetResults(CurrentSession, 2, bets, expected);
  ASSERT_EQ(one.Rows.size(), 3u);
  EXPECT_EQ(one.Rows[0].Name, "Place 6");
  EXPECT_EQ(Text(one.Rows[0].Columns), "1|12|1|12|1|14|0|0|14|116.67%|-0.1818");
  EXPECT_EQ(Text(one.Rows[1].Columns), "2|1,500|2|1,500|1|2,000|1|500|1,500|100%|-75");
  EXPECT_EQ(Text(one.Rows[2].Columns), "0|0|0|0|0|0|0|0|0|---|0");
  EXPECT_EQ(Text(one.Totals), "3|1,512|3|1,512|2|2,014|1|500|1,514|100.13%|-75.1818");
  const BetResultsView all =
      BetResults(CurrentSession, WholeTable, Bets({bet::Field}), expected, false);
  EXPECT_EQ(Text(all.Totals), "3|1500.25|3|1500.25|1|2000|2|500.25|1499.75|99.97%|-75.0125");
  EXPECT_EQ(Text(BetResults(LastHand, WholeTable, Bets({bet::Field}), expected).Totals),
            "0|0|0|0|0|0|0|0|0|---|0");
}

TEST_F(BetViews, EmptySelectionsShowWhatIsMissing) {
  EXPECT_EQ(BetResults(CurrentHand, 0, AllBets(), {}).Placeholder, "No players selected");
  EXPECT_EQ(BetResults(CurrentHand, 2, {}, {}).Placeholder, "No bets selected");
  const std::pair<PlaceSelection, const char*> places[] = {
      {0x1D2, "All players selected"}, {0x10, "1 player selected"}, {0x1C0, "No players selected"}};
  for (const auto& [selection, caption] : places)
    EXPECT_EQ(SelectionCaption(selection), caption);
  SeatPlayer(8, "Cyd", 1);
  EXPECT_EQ(SelectionCaption(0x12), "2 players selected");
  EXPECT_EQ(BetSelectionCaption(Bets({5})), "1 bet selected");
  EXPECT_EQ(BetSelectionCaption(Bets({5, 93})), "2 bets selected");
  EXPECT_EQ(BetSelectionCaption(AllBets()), "All bets selected");
}

TEST_F(BetViews, TrendsAreInTheOrderOfTheirRolls) {
  Roll(1, 1);
  RecordBetResult(1, bet::Field, 10, 20);
  RecordBetResult(1, bet::PassLine, 1500, -1500);
  Roll(1, 2);
  RecordBetResult(1, bet::Field, 10, -10);
  const BetTrendsView view = BetTrends(CurrentSession, 1);
  ASSERT_EQ(view.Rows.size(), 2u);
  EXPECT_EQ(view.Rows[0].Name, "Pass Line");
  ASSERT_EQ(view.Rows[0].Entries.size(), 1u);
  EXPECT_EQ(view.Rows[0].Entries[0].Text, "-1,500");
  ASSERT_EQ(view.Rows[1].Entries.size(), 2u);
  EXPECT_EQ(view.Rows[1].Entries[0].Text + view.Rows[1].Entries[1].Text, " 20-10");
  Roll(1, 1);
  RecordBetResult(1, bet::Field, 10, 30);
  EXPECT_EQ(BetTrends(CurrentHand, 1).Rows[1].Entries.back().Text, " 30");
  EXPECT_TRUE(BetTrends(CurrentHand, 4).Rows.empty());
  EXPECT_EQ(BetTrends(CurrentHand, 0).Placeholder, "No players selected");
}

TEST_F(BetViews, ThePlayedTableIsTheSumOfItsPlayers) {
  Play(4000,
       {{1, bet::PassLine, 5}, {1, bet::Field, 3}, {4, bet::DontPass, 5}, {4, bet::Field, 7}});
  ASSERT_EQ(RollsInSession(), 4000);
  ExpectedValues expected{};
  expected.fill(-0.01);
  for (const Scope scope : {CurrentHand, LastHand, CurrentSession, AllSessions}) {
    const BetResultsView whole = BetResults(scope, WholeTable, AllBets(), expected);
    EXPECT_EQ(Text(whole.Totals), Text(BetResults(scope, 0xFE, AllBets(), expected).Totals));
    WagerTotals sum = AllWagers(scope, 2, expected);
    sum.Add(AllWagers(scope, 16, expected));
    EXPECT_EQ(whole.Figures.Net(), sum.Net());
    EXPECT_NEAR(whole.Figures.Expected, sum.Expected, 1e-6);
  }
  const Money net = AllWagers(CurrentSession, 2, expected).Net();
  EXPECT_EQ(net, BankrollOf(1) - Table.InvestedBankroll[1]);
  EXPECT_EQ(Text(ColumnsOf(AllWagers(AllSessions, WholeTable, expected))),
            Text(ColumnsOf(AllWagers(CurrentSession, WholeTable, expected))));
}

}  // namespace
}  // namespace tessarel
