#include "stats/session_statistics.h"

#include <limits>

#include "stats/stats_fixture.h"

namespace tessarel {
namespace {

constexpr int64_t Least = std::numeric_limits<int64_t>::min();
constexpr int64_t Greatest = std::numeric_limits<int64_t>::max();

std::vector<Session> WithNets(const std::vector<Money>& nets) {
  std::vector<Session> sessions(nets.size());
  for (size_t k = 0; k < nets.size(); ++k)
    sessions[k][SessionNet] = nets[k];
  return sessions;
}

SessionStatistics Figures(const std::vector<Money>& nets, const SessionsViewState& view = {}) {
  return FigureSessions(WithNets(nets), std::nullopt, view);
}

std::vector<std::string> RowsOf(const SessionStatistics& statistics) {
  std::vector<std::string> rows;
  for (const SessionRow& row : statistics.Rows) {
    const auto texts = SessionRowTexts(row, statistics.Stat);
    rows.push_back(texts[0] + ": " + texts[1]);
  }
  return rows;
}

using SessionStatisticsTest = StatsTest;

TEST_F(SessionStatisticsTest, FiguresOfSessionsBesideTheirValuesByHand) {
  const Money half = Money::FromRaw(5000);
  const SessionStatistics four = Figures({-20, 1200, 0, 100 + half});
  EXPECT_EQ(Lines(SessionStatLines(four)),
            (Strings{"Sessions=4", "Total=1280.5", "Mean=320.125", "Median=50.25",
                     "Standard deviation=588.9482681", "Lowest=-20", "Highest=1200"}));
  EXPECT_EQ(Figures({7, 1, 3}).Median, 3);
  EXPECT_EQ(Figures({7}).Deviation, 0);
  EXPECT_EQ(Lines(SessionStatLines(Figures({}))), (Strings{"Sessions=0"}));
}

TEST_F(SessionStatisticsTest, EveryStatisticReadsItsOwnFigure) {
  const Session session{1234, 1235, 1236, 1237,  -1238,
                        1239, 1240, 1241, -1242, Money::FromRaw(-141)};
  const char* const texts[] = {"1,234", "1,235", "1,236", "1,237", "-1,238", "1239",
                               "1240",  "1241",  "-1242", "-1.41", "1"};
  for (int stat = 0; stat <= CountOfSessions; ++stat)
    EXPECT_EQ(SessionValueText(SessionValue(session, stat), stat), texts[stat]) << stat;
}

TEST_F(SessionStatisticsTest, IncludedAreTheSessionsOfTheChosenKinds) {
  const std::vector<Session> finished = WithNets({5, -3, 0, 8});
  const Session running = WithNets({-20}).front();
  const std::tuple<int32_t, int32_t, Strings> cases[] = {
      {include::All, AsPlayed, {"1: 5", "2: -3", "3: 0", "4: 8", "5: -20 *"}},
      {include::All, LowestFirst, {"5: -20 *", "2: -3", "3: 0", "1: 5", "4: 8"}},
      {include::All, HighestFirst, {"4: 8", "1: 5", "3: 0", "2: -3", "5: -20 *"}},
      {include::Winning, AsPlayed, {"1: 5", "4: 8"}},
      {include::Losing, AsPlayed, {"2: -3"}},
      {include::Even, AsPlayed, {"3: 0"}},
      {include::InProgress, AsPlayed, {"5: -20 *"}},
      {0, AsPlayed, {}}};
  for (const auto& [included, display, rows] : cases) {
    SessionsViewState view;
    view.Include = included;
    view.Display = display;
    const SessionStatistics statistics = FigureSessions(finished, running, view);
    EXPECT_EQ(RowsOf(statistics), rows);
    EXPECT_EQ(statistics.Current, Money(-20));
  }
}

TEST_F(SessionStatisticsTest, SharesCountTheEndsThatBelongToThem) {
  const SessionStatistics statistics = Figures({1, 2, 2, 3, 12});  // mean 4, deviation 4.52...
  EXPECT_EQ(SessionsBelow(statistics, 2).Count, 1);
  EXPECT_EQ(SessionsAtOrAbove(statistics, 2).Count, 4);
  EXPECT_EQ(SessionsBetween(statistics, 3, 2).Count, 3);
  EXPECT_EQ(SessionsWithin(statistics, 1).Count, 4);
  EXPECT_EQ(SessionsWithin(statistics, 1.8).Count, 5);
  EXPECT_EQ(SessionsWithin(Figures({Money::FromRaw(1), Money::FromRaw(1)}), 0).Count, 2);
  EXPECT_EQ(SessionShareTexts(SessionsAtOrAbove(statistics, 2)),
            (std::array<std::string, 2>{"4", "80%"}));
  EXPECT_EQ(SessionsBelow(Figures({}), 2).Share, 0);
}

TEST_F(SessionStatisticsTest, BarsAreOfRoundWidthWithAnEdgeAtZero) {
  const SessionHistogram bars = BarsOfSessions(Figures({-130, -1, 0, 99, 100, 470}), ExtraWideBars);
  EXPECT_EQ(bars.Width, Money(50));
  EXPECT_EQ(bars.LowerEdge(0), -150);
  EXPECT_EQ(bars.PositionOf(25), 3.5);
  EXPECT_EQ(bars.Counts, (std::vector<int64_t>{1, 0, 1, 1, 1, 1, 0, 0, 0, 0, 0, 0, 1}));
  EXPECT_EQ(BarsOfSessions(Figures({7, 7}), FineBars).Counts, std::vector<int64_t>{2});
  EXPECT_TRUE(BarsOfSessions(Figures({}), FineBars).Counts.empty());
  const int widths[] = {100, 200, 500, 1000};
  for (const BarWidth width : {FineBars, MediumBars, WideBars, ExtraWideBars})
    EXPECT_EQ(BarsOfSessions(Figures({-5'000, 5'000}), width).Width, widths[width]);
}

TEST_F(SessionStatisticsTest, AmountsOfAnySizeDoNoHarm) {
  const SessionStatistics statistics =
      Figures({Money::FromRaw(Greatest), Money::FromRaw(Greatest), Money::FromRaw(Least)});
  EXPECT_EQ(statistics.Total.Raw(), Greatest - 1);
  EXPECT_EQ(Figures({Money::FromRaw(Least), -1}).Total.Raw(), Least);
  for (const BarWidth width : {FineBars, ExtraWideBars}) {
    const SessionHistogram bars = BarsOfSessions(statistics, width);
    EXPECT_LE(bars.Counts.size(), 101u);
    EXPECT_EQ(bars.Counts.back(), 2);
  }
}

TEST_F(SessionStatisticsTest, TheSessionSoFarIsThatOfThePlaceAlone) {
  SeatPlayer(3, "Ann", 1000);
  SeatPlayer(4, "Bob", 1000);
  EXPECT_EQ(SessionSoFar(3)[SessionAdvantage], Money());
  Roll(3, 4);
  RecordBetResult(3, bet::Field, 30, -30);
  RecordBetResult(3, bet::PassLine, 10, 20);
  RecordBetResult(4, bet::PassLine, 500, 500);
  Table.InvestedBankroll[3] = 1200;
  SetBankrollSlots(3, 1190);
  const Money advantage = Money::FromRaw(-2500);
  EXPECT_EQ(SessionSoFar(3), (Session{1, 2, 1, 1, 0, 40, 20, 30, -10, advantage, 1200, 1190}));
}

}  // namespace
}  // namespace tessarel
