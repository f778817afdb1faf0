#include "config/advantage_list.h"

#include "config/advantage.h"
#include "reset.h"
#include "texts/say.h"

namespace tessarel {
namespace {

class AdvantageList : public FreshTest {};

using Figures = std::array<std::string, AdvantageFigureCount>;

TEST_F(AdvantageList, CaptionsOfTheBets) {
  // clang-format off
  const std::pair<int, const char*> cases[] = {
      {bet::Lay4, "Lay 4"}, {bet::DontCome4, "DP/DC 4"}, {bet::DontCome10Odds, "DP/DC 10 Odds"},
      {bet::Come10, "Pass/Come 10"}, {bet::Come6Odds, "Pass/Come 6 Odds"},
      {bet::PassLine, "Passline/Come"}, {bet::PassLineOdds, "Passline/Come Odds"},
      {bet::Come, "Passline/Come (c.o.)"}, {bet::DontPass, "Don't Pass/Come"},
      {bet::DontPassOdds, "Don't Pass/Come Odds"}, {bet::DontCome, "Don't Pass/Come (c.o.)"},
      {bet::Fire, "Fire"}};
  // clang-format on
  for (const auto& [number, caption] : cases)
    EXPECT_EQ(AdvantageRowOf(number).Caption, caption);
}

TEST_F(AdvantageList, PercentagesWithTheSignForTheColour) {
  EXPECT_EQ(AdvantageNote(), "All figures shown in percentage");
  EXPECT_EQ(Wording(AdvantageColumns()[1]), "EV/Roll");
  const std::tuple<int, Figures, int> cases[] = {
      {bet::PassLine, {"-0.42", "54.42", "-1.41", "99.99", "-50.27"}, -1},
      {bet::Come4Odds, {"0.00", "70.71", "0.00", "141.42", "0.00"}, 0},
      {bet::DontCome4, {"8.33", "49.30", "33.33", "94.28", "1000.00"}, 1}};
  for (const auto& [number, figures, sign] : cases) {
    EXPECT_EQ(AdvantageRowOf(number).Figures, figures) << number;
    EXPECT_EQ(AdvantageRowOf(number).Sign, sign) << number;
  }
}

TEST_F(AdvantageList, RollsDecisionsAndTimes) {
  Advantage.ShowMiscData = true;
  EXPECT_EQ(AdvantageNote(), "");
  EXPECT_EQ(Wording(AdvantageColumns()[5]), "Time/Dec");
  const std::tuple<int, Money, Figures> cases[] = {
      {bet::PassLine, 120, {"3.38", "0.30", "35.55", "0.59", "0:01:41.3"}},
      {bet::Place4, 1, {"4.00", "0.25", "0.25", "0.00", "4:00:00.0"}},
      // 0.11999 and 59.999 seconds a roll
      {bet::Seven, 30'001, {"1.00", "1.00", "30001.00", "500.02", "0:00:00.1"}},
      {bet::Seven, Money::FromRaw(600'010), {"1.00", "1.00", "60.00", "1.00", "0:01:00.0"}}};
  for (const auto& [number, rollRate, figures] : cases) {
    Settings.SimRollRate = rollRate;
    EXPECT_EQ(AdvantageRowOf(number).Figures, figures) << number;
  }
  // Nothing ever decides a Field that pays nothing.
  for (PayoffRow& row : Payoffs.FieldPayoff)
    row.PayNum = 0;
  EXPECT_EQ(AdvantageRowOf(bet::Field).Figures, (Figures{"0.00", "0.00", "0.00", "0.00", "0.00"}));
}

TEST_F(AdvantageList, HeadingOfTheReport) {
  HoldClock({.year = 2026, .month = 11, .day = 22});
  EXPECT_EQ(AdvantageReportHeading({}),
            (Strings{"Tessarel Advantage", "22-Nov-26", "Game file:  untitled",
                     "Figured using true probabilities", "Sim roll rate/hour:  120.0",
                     "These columns given in percent"}));
  const Strings lines = AdvantageReportHeading({"a.tsg", true, "b.prb"});
  EXPECT_EQ(lines[2] + lines[3], "Game file:  a.tsgProbability file:  b.prb");
}

}  // namespace
}  // namespace tessarel
