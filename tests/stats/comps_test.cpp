#include "stats/comps.h"

#include <gtest/gtest.h>

#include "base/fault.h"
#include "config/advantage.h"
#include "config/payoffs.h"
#include "config/settings.h"
#include "stats/store.h"

namespace tessarel {
namespace {

constexpr int Slot = CurrentSession + 3;

class Comps : public ::testing::Test {
 protected:
  void SetUp() override {
    Reset();
    Enter(bet::PassLine, 4, 100);
    Enter(bet::Seven, 6, 60);
    Enter(bet::PassLineOdds, 3, 500);  // odds count for nothing
    At(Stats.Hands, Slot).RollTotal = 60;
  }
  void TearDown() override { Reset(); }

  static void Reset() {
    Stats = {};
    Settings = {};
    Advantage = {};
    DefaultPayoffs();
  }
  static void Enter(int number, Money count, Money sum) {
    BetMeasures& wagered = At(At(Stats.Bets, Slot), number).Tendered;
    wagered.Count = count;
    wagered.Sum = sum;
  }
};

TEST_F(Comps, AreFiguredFromTheBaseOfTheConfiguration) {
  constexpr double Loss = 100 * -0.014141 + 60 * -0.166667;
  const struct {
    int32_t Base;
    double Expected;
  } cases[] = {
      {0, 0.30 * -Loss}, {1, 0.30 * 160}, {2, 0.30 * 8},  // 160 over 10 wagers in half an hour
  };
  for (const auto& c : cases) {
    Settings.CompBase = c.Base;
    const CompFigures figures = FigureComps(Slot);
    EXPECT_DOUBLE_EQ(figures.Comps, c.Expected);
    EXPECT_EQ(figures.Decisions, Money(10));
    EXPECT_EQ(figures.Action, Money(160));
    EXPECT_EQ(figures.AverageAction, Money(8));
    EXPECT_DOUBLE_EQ(figures.TheoreticalLoss, Loss);
  }
}

TEST_F(Comps, CountOnlyTheChosenBetsOfTheSlot) {
  At(Settings.CompBet, bet::PassLine) = 0;
  At(Settings.CompBet, bet::PassLineOdds) = -1;
  EXPECT_EQ(FigureComps(Slot).Action, Money(560));
  const CompFigures other = FigureComps(Slot + 1);
  EXPECT_EQ(other.AverageAction, Money(0));
  EXPECT_EQ(other.Comps, 0);
  EXPECT_THROW(FigureComps(SlotCount), Fault);
}

}  // namespace
}  // namespace tessarel
