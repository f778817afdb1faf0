#include "stats/bankroll_graph.h"
#include "engine/seats.h"

#include "stats/stats_fixture.h"

namespace tessarel {
namespace {

using BankrollGraphTest = StatsTest;

TEST_F(BankrollGraphTest, AveragesAreThoseOfThePointsAlsoWhenTheRingHasTurned) {
  SeatPlayer(1, "Ann", 9000);
  std::vector<Money> after = {Money()};
  const auto play = [&](int rolls) {
    for (int k = 0; k < rolls; ++k) {
      Play(1, {{1, bet::Field, k % 9 + 1}});
      after.push_back(BankrollOf(1));
    }
  };
  for (const int more : {3, 400, 900}) {
    play(more);
    const int32_t rolls = RollsInSession();
    const int32_t oldest = std::max(1, rolls - GraphLength + 1);
    EXPECT_EQ(HeldRolls(1), (RollSpan{oldest, rolls}));
    EXPECT_EQ(GraphPoint(1, oldest - 1), std::nullopt);
    for (const int32_t count : {0, 1, 120, 525}) {
      const GraphLine line = LineOf(1, {1, rolls}, count);
      ASSERT_EQ(line.FirstRoll, oldest);
      ASSERT_EQ(line.Points.size(), static_cast<size_t>(rolls - oldest + 1));
      for (int32_t roll = oldest; roll <= rolls; roll += 7) {
        const int32_t first = count == 0 ? 1 : std::max(1, roll - count + 1);
        EXPECT_EQ(At(line.Points, roll - oldest), At(after, roll));
        const std::optional<double> average = At(line.Averages, roll - oldest);
        EXPECT_EQ(average.has_value(), count == 0 || first >= oldest) << roll;
        if (!average) continue;
        Money sum;
        for (int32_t k = first; k <= roll; ++k)
          sum += At(after, k);
        EXPECT_NEAR(*average, sum.ToDouble() / (roll - first + 1), 1e-9) << roll << " " << count;
      }
    }
  }
}

TEST_F(BankrollGraphTest, ALateComersLineBeginsWhenHeJoins) {
  Play(10, {});
  SeatPlayer(5, "Ann", 100);
  EXPECT_EQ(HeldRolls(5), (RollSpan{11, 10}));
  Play(4, {});
  const GraphLine line = LineOf(5, {1, 150}, 120);
  EXPECT_EQ(line.FirstRoll, 11);
  EXPECT_EQ(line.Points, std::vector<Money>(4, 100));
  EXPECT_EQ(line.Averages.front(), 100);
  EXPECT_TRUE(LineOf(6, {1, 150}, 0).Points.empty());
}

TEST_F(BankrollGraphTest, TheWindowShowsPagesOrTheNewestRolls) {
  const std::tuple<int32_t, int32_t, int32_t, int32_t, RollSpan> cases[] = {
      {0, 0, PlotByPage, 0, {1, 150}},          {150, 150, PlotByPage, 0, {1, 150}},
      {151, 151, PlotByPage, 0, {151, 300}},    {151, 151, PlotByPage, 100, {51, 200}},
      {151, 151, PlotByPage, 999, {1, 150}},    {10, 10, PlotByScrolling, 0, {1, 150}},
      {151, 151, PlotByScrolling, 0, {2, 151}}, {5000, 1050, PlotByScrolling, 9999, {3951, 4100}}};
  for (const auto& [rolls, held, plot, back, window] : cases)
    EXPECT_EQ(GraphWindow(rolls, held, 150, plot, back), window) << rolls << " " << back;
}

TEST_F(BankrollGraphTest, TheScaleFollowsTheLine) {
  const GraphRange base{0, 100};
  const std::tuple<int32_t, GraphRange, VisibleLine, GraphRange> cases[] = {
      {AdjustByHand, base, {-50, 500, 500}, base},
      {AutoShift, base, {0, 100, 50}, base},
      {AutoShift, base, {60, 130, 130}, {30, 130}},
      {AutoShift, base, {-20, 40, -20}, {-20, 80}},
      {AutoShift, base, {10, 150, 150}, {50, 150}},  // higher than the range
      {AutoExpand, base, {60, 130, 130}, {0, 200}},
      {AutoExpand, base, {-150, 40, 40}, {-300, 100}},
      {AutoExpand, {0, 200}, {10, 20, 20}, {0, 200}},
      {AutoExpand, {5, 5}, {5, 7, 7}, {5, 7}},
      {AutoSnapBack, base, {60, 130, 130}, {0, 200}},
      {AutoSnapBack, {0, 200}, {20, 130, 90}, {0, 200}},
      {AutoSnapBack, {0, 200}, {20, 100, 90}, base},
  };
  for (const auto& [type, now, line, then] : cases) {
    const GraphRange range = AdjustRange(type, now, base, line);
    EXPECT_EQ(range, then) << type << " " << PlainText(range.Low) << " " << PlainText(range.High);
  }
  EXPECT_EQ(BaseRange(1000), (GraphRange{925, 1075}));
  EXPECT_EQ(ShiftRange(base, -3), (GraphRange{-30, 70}));
  EXPECT_EQ(ZoomRange(base, true), (GraphRange{-50, 150}));
  EXPECT_EQ(ZoomRange(base, false), (GraphRange{25, 75}));
}

TEST_F(BankrollGraphTest, Labels) {
  SeatPlayer(1, "Ann", 1000);
  Play(3, {});
  Settings.SimRollRate = 120;
  SetBankroll(1, Money::FromRaw(12'345'600));
  GraphLabels labels = LabelsOfGraph(1, {1, 1500});
  EXPECT_EQ(labels.Current + labels.High + labels.Low,
            "  Current:  1,234.56High:  1,234.56  Low:  1,234.56");
  EXPECT_EQ(labels.Note, "3 rolls @ 120 rolls/hr = .03 sim hrs");
  EXPECT_EQ(labels.Legend + labels.PrintedLegend, "120 roll avg120 roll moving average");
  EXPECT_EQ(labels.RollsLeft + "-" + labels.RollsRight, "1-1,500");
  BankrollGraph.MovingAverageRolls = 0;
  EXPECT_EQ(LabelsOfGraph(1, {}).Legend, "All rolls avg");

  Table.GraphBankroll[1][1] = 900;
  ReferenceLabels lines = LabelsOfReferenceLines(1, {1, 525});
  EXPECT_EQ(lines.Bankroll1 + lines.Bankroll2 + lines.BankrollDifference, "---------");
  EXPECT_EQ(lines.RollsDifference, "175");
  BankrollGraph.RefRolls1 = 2;
  BankrollGraph.RefRolls2 = 0;
  lines = LabelsOfReferenceLines(1, {1, 525});
  EXPECT_EQ(lines.Bankroll1 + " " + lines.Bankroll2 + " " + lines.BankrollDifference,
            "1,000 900 -100");
}

TEST_F(BankrollGraphTest, TheMovingAverageIsAWholeNumberUpTo525) {
  Answers = {"526", "-1", "1.5", "x", "525"};
  EXPECT_TRUE(SetMovingAverage());
  EXPECT_EQ(BankrollGraph.MovingAverageRolls, 525);
  ASSERT_EQ(Shown.size(), 5u);
  EXPECT_EQ(Shown[4].Text,
            "The number of rolls must be a whole number from 0 to 525.\r\r" + Shown[0].Text);
  Answers = {"526", AnswerCancel};
  EXPECT_FALSE(SetMovingAverage());
  EXPECT_EQ(BankrollGraph.MovingAverageRolls, 525);
  Answers = {"0"};
  EXPECT_TRUE(SetMovingAverage());
  EXPECT_EQ(BankrollGraph.MovingAverageRolls, 0);
}

TEST_F(BankrollGraphTest, AutoPrintIsConfirmed) {
  const std::tuple<int32_t, bool, bool> cases[] = {
      {AnswerNo, true, false}, {AnswerYes, true, true}, {AnswerNo, false, true}};
  for (const auto& [answer, on, done] : cases) {
    Always = answer;
    EXPECT_EQ(SetAutoPrint(on), done);
    EXPECT_EQ(BankrollGraph.AutoPrint, on && done);
  }
}

}  // namespace
}  // namespace tessarel
