#include "stats/summary_view.h"

#include "stats/stats_fixture.h"
#include "stats/status_box.h"

namespace tessarel {
namespace {

class SummaryTest : public StatsTest {
 protected:
  SummaryTest() {
    SeatPlayer(1, "Ann", 1000);
    SeatPlayer(2, "Bob", 500);
  }
  static void RollWithBankroll(int place, Money bankroll) {
    SetBankrollSlots(place, bankroll);
    Roll(1, 2);
    RecordBankrolls();
  }
};

TEST_F(SummaryTest, GeneralFiguresAndBankrolls) {
  Settings.SimRollRate = 4;
  RollWithBankroll(1, 1100);
  RollWithBankroll(1, Money::FromRaw(8995000));
  const SummaryView view = Summary(CurrentSession, 2, {}, {});
  EXPECT_EQ(view.PlayerTitle, "Ann");
  ASSERT_EQ(view.General.size(), 4u);
  EXPECT_EQ(view.General[1].Table + view.General[1].Player, "22");
  EXPECT_EQ(view.General[2].Player, "0.5");
  EXPECT_EQ(Lines(view.Bankroll),
            (Strings{"Beginning bankroll=1,000", "Current bankroll=899.5", "High bankroll=1,100",
                     "Low bankroll=899.5", "Average bankroll=999.8333"}));
  const SummaryView both = Summary(CurrentSession, WholeTable, {}, {});
  EXPECT_EQ(both.PlayerTitle, "All players selected");
  EXPECT_EQ(both.General[1].Player, "4");
  EXPECT_EQ(both.Bankroll[0].Value, "1,500");
  EXPECT_EQ(both.Bankroll[4].Value, "749.9167");
  const SummaryView last = Summary(LastSession, 2, {}, {});
  EXPECT_EQ(last.Bankroll[1].Caption, "Ending bankroll");
  EXPECT_EQ(last.Bankroll[4].Value, "---");
  EXPECT_EQ(last.General[2].Player, "---");
}

TEST_F(SummaryTest, TinyFiguresAreABound) {
  Settings.SimRollRate = 36'000'000;
  RollWithBankroll(1, 1000);
  EXPECT_EQ(Summary(CurrentSession, 2, {}, {}).General[2].Player, "< 0.0001");
}

TEST_F(SummaryTest, WagersAndComps) {
  RecordBetResult(1, bet::PassLine, 10, -10);
  RecordBetResult(2, bet::Seven, 10, 40);
  ExpectedValues expected{};
  expected[bet::PassLine] = -0.014141;
  PerPlace<CompFigures> comps{};
  comps[1] = {2, 20, Money::FromRaw(12345), -0.5, 0.15};
  comps[2] = {1, 10, 0, -0.25, 0.075};
  Settings.CompBase = 1;
  const SummaryView one = Summary(CurrentHand, 2, expected, comps);
  EXPECT_EQ(Lines(one.Wagers), (Strings{"Total #=1", "Resolved=10", "Wins=0", "Losses=10",
                                        "Net=-10", "Net %=-100%", " Expected value $=-0.1414"}));
  EXPECT_EQ(Lines(one.Comps),
            (Strings{"Total # comp bets=2", "Avg comp action $=10.00", "Comp rate %=30.0",
                     "Theoretical vig $=0.50", "* Total comp action $=20.00",
                     "Avg action x time $=1.23", "Comps $=0.15"}));
  EXPECT_EQ(Summary(CurrentHand, 6, expected, comps).Comps[3].Value, "0.75");
  EXPECT_EQ(Summary(CurrentHand, 6, expected, comps).Wagers[5].Value, "150.0%");
  EXPECT_EQ(Summary(CurrentHand, 2, {}, {}).Comps[1].Value, "---");
}

TEST_F(SummaryTest, StatusBox) {
  EXPECT_TRUE(StatusBox(3).empty());
  EXPECT_EQ(Lines(StatusBox(1)), (Strings{"Bankroll:  =1,000.00", "Rail:  =1,000.00",
                                          "0 Bets:  =0.00", "Even:  =0.00"}));
  PlaceBet({1, bet::Field, 25});
  SetBankrollSlots(1, Money::FromRaw(9'500'000));
  EXPECT_EQ(Lines(StatusBox(1)),
            (Strings{"Bankroll:  =950.00", "Rail:  =925.00", "1 Bet:  =25.00", "Lost:  =50.00"}));
  SetBankrollSlots(1, 1001);
  EXPECT_EQ(Lines(StatusBox(1))[3], "Won:  =1.00");
  EXPECT_EQ(StatusBox(1)[3].Sign, 1);
  SetLanguage(German);
  PlaceBet({1, bet::Big6, 25});
  EXPECT_EQ(Lines(StatusBox(1)), (Strings{"Guthaben:  =1,001.00", "Tischrand:  =951.00",
                                          "2 Wetten:  =50.00", "Gewonnen:  =1.00"}));
}

}  // namespace
}  // namespace tessarel
