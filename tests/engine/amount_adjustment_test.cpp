#include "engine/amount_adjustment.h"

#include "engine/rules_fixture.h"

namespace tessarel {
namespace {

using namespace bet;

class AmountAdjustment : public RulesTest {};

constexpr int Down = 0, Up = 1, Near = 2;
using Biases = PerPlace<int32_t> TableState::*;

// Flat bets of 10 stand under all odds, and the point is 5. Only the named bias is set; the others
// are its opposite.
TEST_F(AmountAdjustment, AmountsMoveToTheirUnitByTheBiasOfTheirKind) {
  struct Case {
    int Number;
    Biases Kind;
    int32_t Bias;
    int Request, Left;
    std::string Text;
    void (*Rule)() = [] {};
  };
  const Biases Do = &TableState::DoBias, Dont = &TableState::DontBias;
  const Biases Places = &TableState::PlaceBias, Lays = &TableState::LayBias;
  const std::string unable = "Unable to auto-adjust bet for proper odds payoff.\r\r";
  const std::string atLeast = unable + "Minimum bet for proper odds payoff is: $";
  const std::string atMost = unable + "Maximum bet for proper odds payoff is: $";
  const auto minimumTen = [] { Settings.MinPlacardBet = 10; };
  const auto thrice = [] {
    Settings.OddsCalcMethod = 1;
    Settings.OddsAllowed59 = Sum(1.5);
  };
  const Case cases[] = {
      {Place6, Places, Down, 14, 12, ""},
      {Place6, Places, Up, 14, 18, ""},
      {Place6, Places, Near, 14, 12, ""},
      {Place6, Places, Near, 15, 12, ""},
      {Place6, Places, Near, 16, 18, ""},
      {Place6, Places, Down, 12, 12, ""},
      {Place6, Places, Up, 3, 6, ""},
      {Place6, Places, Down, 3, 3, atLeast + "6"},
      {Place6, Places, Near, 3, 3, atLeast + "6"},
      {Place6, Places, Down, 11, 11, atLeast + "12", minimumTen},
      {Place6, Places, Up, 998, 998, atMost + "996"},
      {Place6, Places, Down, 1000, 996, ""},
      {Place6, Places, Up, 1000, 1000, atMost + "996"},
      {Place6, Places, Down, 24, 20,
       "You don't have enough bankroll remaining to bet the full amount requested.\r\r"
       "Your options are: \r"
       "      - Bet less on other bets.\r"
       "      - Make a withdrawal from the ATM.\r"
       "      - Allow negative bankroll.\r\r$20 which is being bet.",
       [] { SetBankrollSlots(Ann, Table.MoneyOnTable[Ann] + 20); }},
      {Buy4 + 1, Places, Down, 5, 4, ""},
      {Buy4 + 1, Places, Up, 5, 6, ""},
      {Lay5, Lays, Down, 10, 9, ""},
      {Lay5, Lays, Up, 10, 12, ""},
      {Lay5, Lays, Near, 11, 12, ""},
      {PassLineOdds, Do, Down, 7, 6, ""},
      {PassLineOdds, Do, Up, 7, 8, ""},
      {PassLineOdds, Do, Near, 7, 6, ""},
      {PassLineOdds, Do, Up, 15, 14, "", thrice},
      {PassLineOdds, Do, Up, 100, 14,
       "The maximum Pass Line Odds bet is $15\r\r$14 which is "
       "being bet.",
       thrice},
      {Come4Odds + 1, Do, Up, 7, 8, ""},
      {DontPassOdds, Dont, Down, 10, 9, ""},
      {DontPassOdds, Dont, Up, 10, 12, ""},
      {DontCome4Odds + 1, Dont, Up, 10, 12, ""},
      {Field, Places, Up, 7, 7, ""},
      {PassLine, Do, Up, 7, 17, ""},
      {Hard4, Places, Up, 7, 7, ""},
      {Place6, Places, Up, 14, 14, "", [] { Table.AutoAdjustBetAmounts[Ann] = false; }},
  };
  for (const Case& test : cases) {
    StartOver();
    Settings.Notices &= ~NoticeCharges;
    Table.AutoAdjustBetAmounts[Ann] = 1;
    Table.Point = 5;
    for (const int flat : {PassLine, Come4 + 1, DontPass, DontCome4 + 1})
      PutDown(Ann, flat, 10);
    for (const Biases kind : {Do, Dont, Places, Lays})
      (Table.*kind)[Ann] = kind == test.Kind ? test.Bias : test.Bias == Up ? Down : Up;
    test.Rule();
    Ask(test.Number, test.Request);
    EXPECT_EQ(PlainText(Bet(Ann, test.Number)), std::to_string(test.Left))
        << BetName[test.Number] << " " << test.Request;
    EXPECT_EQ(Said(), test.Text);
    EXPECT_EQ(CheckTable(), "");
  }
}

TEST_F(AmountAdjustment, StandingAmountIsLeftAloneUntilItChanges) {
  Table.AutoAdjustBetAmounts[Ann] = 1;
  PutDown(Ann, Place6, 14);
  Ask(Place6, 0);
  EXPECT_EQ(Bet(Ann, Place6), Money(14));
  Ask(Place6, -1);
  EXPECT_EQ(Bet(Ann, Place6), Money(12));
  Ask(Place6, -12);
  EXPECT_EQ(Bet(Ann, Place6), Money());
  EXPECT_EQ(Said(), "");
}

}  // namespace
}  // namespace tessarel
