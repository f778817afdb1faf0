#include "stats/comps.h"

#include "dice/probability.h"
#include "dice/probability_balance.h"
#include "reset.h"

namespace tessarel {
namespace {

constexpr int Slot = CurrentSession + 3;

class Comps : public FreshTest {
 protected:
  Comps() {
    Enter(bet::PassLine, 4, 100);
    Enter(bet::Seven, 6, 60);
    Enter(bet::PassLineOdds, 3, 500);  // odds count for nothing
    Stats.Hands[Slot].RollTotal = 60;
  }
  static void Enter(int number, int64_t count, Money sum) {
    BetMeasures& wagered = Stats.Bets[Slot][number].Tendered;
    wagered.Count = count;
    wagered.Sum = sum;
  }
};

TEST_F(Comps, AreFiguredFromTheBaseOfTheConfiguration) {
  constexpr double Loss = 100 * -0.014141 + 60 * -0.166667;
  const double expected[] = {0.30 * -Loss, 0.30 * 160, 0.30 * 8};  // 160 over half an hour of ten
  for (int32_t base = 0; base < 3; ++base) {
    Settings.CompBase = base;
    const CompFigures figures = FigureComps(Slot);
    EXPECT_DOUBLE_EQ(figures.Comps, expected[base]);
    EXPECT_EQ(figures.Decisions, 10);
    EXPECT_EQ(figures.Action, Money(160));
    EXPECT_EQ(figures.AverageAction, Money(8));
    EXPECT_DOUBLE_EQ(figures.TheoreticalLoss, Loss);
  }
}

TEST_F(Comps, UseTheSkewedDiceOnlyIfAskedTo) {
  BalanceMatrix(TotalColumn, 6, 30'000);  // which favours the bet on seven
  Probability.ProbabilityMatrixActive = true;
  Settings.CompBet[bet::PassLine] = false;
  const std::pair<bool, double> cases[] = {{true, 60 * -0.166667}, {false, 60 * 0.50015}};
  for (const auto& [useTrue, loss] : cases) {
    Settings.CompsUseTrueProbs = useTrue;
    const CompFigures figures = FigureComps(Slot);
    EXPECT_DOUBLE_EQ(figures.TheoreticalLoss, loss);
    EXPECT_DOUBLE_EQ(figures.Comps, 0.30 * -loss);
    EXPECT_TRUE(Probability.ProbabilityMatrixActive);
  }
}

TEST_F(Comps, CountOnlyTheChosenBetsOfTheSlot) {
  Settings.CompBet[bet::PassLine] = false;
  Settings.CompBet[bet::PassLineOdds] = true;
  EXPECT_EQ(FigureComps(Slot).Action, Money(560));
  const CompFigures other = FigureComps(Slot + 1);
  EXPECT_EQ(other.AverageAction, Money(0));
  EXPECT_EQ(other.Comps, 0);
  EXPECT_THROW(FigureComps(SlotCount), Fault);
}

}  // namespace
}  // namespace tessarel
