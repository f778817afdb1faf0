#include "stats/report.h"

#include "stats/stats_fixture.h"
#include "stats/text_table.h"
#include "texts/say.h"

namespace tessarel {
namespace {

class ReportTest : public StatsTest {
 protected:
  ReportTest() { HoldClock({.year = 2026, .month = 11, .day = 22}); }
};

TEST_F(ReportTest, Headers) {
  EXPECT_EQ(ReportHeader(Wording(Text::HandsReport), ""),
            "Tessarel Hands\n22-Nov-26\nGame file:  untitled\n");
  EXPECT_EQ(ReportHeader(Wording(Text::HandsReport), "/home/ann/my game.tsg"),
            "Tessarel Hands\n22-Nov-26\nGame file:  my game.tsg\n");
  SeatPlayer(1, "Ann", 10);
  SeatPlayer(2, "Bob", 10);
  EXPECT_EQ(SelectionHeader(LastHand, 2), "Last hand\nPlayer:  Ann\n");
  EXPECT_EQ(SelectionHeader(LastSession, 6), "Last session\nAll players selected\n");
}

TEST_F(ReportTest, ColumnsAlignByCharacters) {
  EXPECT_EQ(TextTable({{"", "Zoë"}, {"Net", "1,000", "x"}, {"Wins", "5"}}),
            "        Zoë\nNet   1,000  x\nWins      5\n");
}

TEST_F(ReportTest, TheReportHoldsEveryBlockInOrder) {
  SeatPlayer(1, "Ann", 1000);
  SeatPlayer(2, "Bob", 2000);
  Play(300, {{1, bet::PassLine, 10}});
  ReportInputs inputs;
  inputs.Expected[bet::PassLine] = -0.014141;
  inputs.Comps[1].Comps = 1.25;
  inputs.StopReason = "Shooter has no bet.";
  const std::string text = TextReport(inputs);
  size_t at = 0;
  // clang-format off
  for (const char* part : {
      "Tessarel Summary\n22-Nov-26\nGame file:  untitled\nCurrent session\n",
      "All players selected\nShooter has no bet.\n\n", "Total rolls     300", "Wagers\n",
      "\nExpected value $  ", "Tessarel Bet Results\n", "Player:  Ann\n", "\nPass Line  ",
      "\nTotal  ", "Expected value $-", "Player:  Bob\nNo bets were resolved.\n",
      "Tessarel Hands\n", "Avg rolls per hand", "Tessarel Roll Totals\n", "\nAny 7  ",
      "with 10 degrees of freedom, p=", "\nNumber 7 (1.6)", "with 35 degrees of freedom, p=",
      "\nDie 1, face 1  ", "\nDie 2, face 6  ", "Tessarel Bankroll\n", "Beginning bankroll  ",
      "Comps\n", "Comps $              1.25     0"}) {
    // clang-format on
    at = text.find(part, at);
    ASSERT_NE(at, std::string::npos) << part << "\n" << text;
  }
}

TEST_F(ReportTest, AnEmptyTableHasAReportToo) {
  const std::string text = TextReport({});
  EXPECT_NE(text.find("No players present\n"), std::string::npos);
  EXPECT_NE(text.find("chi-square 0 with 10 degrees of freedom, p=100%\n"), std::string::npos);
}

}  // namespace
}  // namespace tessarel
