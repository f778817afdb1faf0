#include "config/advantage_list.h"

#include <gtest/gtest.h>

#include "base/clock.h"
#include "state/payoffs.h"
#include "state/settings.h"

namespace tessarel {
namespace {

class AdvantageList : public ::testing::Test {
 protected:
  void SetUp() override { Reset(); }
  void TearDown() override {
    Reset();
    ReleaseClock();
  }
  static void Reset() {
    Settings = {};
    Advantage = {};
    DefaultPayoffs();
  }
};

using Figures = std::array<std::string, AdvantageFigureCount>;

TEST_F(AdvantageList, CaptionsOfTheBets) {
  struct {
    int Number;
    std::string Caption;
  } const cases[] = {
      {bet::Lay4, "Lay 4"},
      {bet::DontCome4, "DP/DC 4"},
      {bet::DontCome10Odds, "DP/DC 10 Odds"},
      {bet::Come10, "Pass/Come 10"},
      {bet::Come6Odds, "Pass/Come 6 Odds"},
      {bet::Place9, "Place 9"},
      {bet::PassLine, "Passline/Come"},
      {bet::PassLineOdds, "Passline/Come Odds"},
      {bet::Come, "Passline/Come (c.o.)"},
      {bet::DontPass, "Don't Pass/Come"},
      {bet::DontPassOdds, "Don't Pass/Come Odds"},
      {bet::DontCome, "Don't Pass/Come (c.o.)"},
      {bet::Field, "Field"},
      {bet::World, "World"},
      {bet::SevenPoint7, "7 Point 7"},
      {bet::Fire, "Fire"},
  };
  for (const auto& c : cases)
    EXPECT_EQ(AdvantageRowOf(c.Number).Caption, c.Caption);
}

TEST_F(AdvantageList, PercentagesWithTheSignForTheColour) {
  EXPECT_EQ(AdvantageNote(), "All figures shown in percentage");
  EXPECT_EQ(Wording(AdvantageColumns()[1]), "EV/Roll");
  struct {
    int Number;
    Figures Expected;
    int Sign;
  } const cases[] = {
      {bet::PassLine, {"-0.42", "54.42", "-1.41", "99.99", "-50.27"}, -1},
      {bet::Come4Odds, {"0.00", "70.71", "0.00", "141.42", "0.00"}, 0},
      {bet::DontCome4, {"8.33", "49.30", "33.33", "94.28", "1000.00"}, 1},
  };
  for (const auto& c : cases) {
    const AdvantageRow row = AdvantageRowOf(c.Number);
    EXPECT_EQ(row.Figures, c.Expected) << row.Caption;
    EXPECT_EQ(row.Sign, c.Sign) << row.Caption;
  }
}

TEST_F(AdvantageList, RollsDecisionsAndTimes) {
  Advantage.ShowMiscData = true;
  EXPECT_EQ(AdvantageNote(), "");
  EXPECT_EQ(Wording(AdvantageColumns()[5]), "Time/Dec");
  EXPECT_EQ(AdvantageRowOf(bet::PassLine).Figures,
            (Figures{"3.38", "0.30", "35.55", "0.59", "0:01:41.3"}));
  Settings.SimRollRate = 1;
  EXPECT_EQ(AdvantageRowOf(bet::Place4).Figures,
            (Figures{"4.00", "0.25", "0.25", "0.00", "4:00:00.0"}));
  Settings.SimRollRate = 30'001;  // 0.11999 seconds a roll
  EXPECT_EQ(AdvantageRowOf(bet::Seven).Figures[4], "0:00:00.1");
  Settings.SimRollRate = Money::FromRaw(600'010);  // 59.999 seconds a roll
  EXPECT_EQ(AdvantageRowOf(bet::Seven).Figures[4], "0:01:00.0");

  // Nothing ever decides a Field that pays nothing.
  for (PayoffRow& row : Payoffs.FieldPayoff)
    row.PayNum = 0;
  EXPECT_EQ(AdvantageRowOf(bet::Field).Figures, (Figures{"0.00", "0.00", "0.00", "0.00", "0.00"}));
}

TEST_F(AdvantageList, HeadingOfTheReport) {
  HoldClock({.year = 2026, .month = 11, .day = 22});
  EXPECT_EQ(
      AdvantageReportHeading({}),
      (std::vector<std::string>{"Tessarel Advantage", "22-Nov-26", "Game file:  untitled",
                                "Figured using true probabilities", "Sim roll rate/hour:  120.0",
                                "These columns given in percent"}));
  const auto lines = AdvantageReportHeading({"a.tsg", true, "b.prb"});
  EXPECT_EQ(lines[2], "Game file:  a.tsg");
  EXPECT_EQ(lines[3], "Probability file:  b.prb");
}

}  // namespace
}  // namespace tessarel
