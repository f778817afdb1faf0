#include "engine/bet_limits.h"

#include "engine/rules_fixture.h"

namespace tessarel {
namespace {

using namespace bet;

class BetLimits : public RulesTest {};

TEST_F(BetLimits, OddsMethodsMultiplyTheFlatBet) {
  struct Case {
    int Method;
    double Factor, Flat;
    int Num, Den;
    double Limit;
  };
  const Case cases[] = {
      {1, 2.5, 5, 2, 1, 12.5},
      {1, 5, 7, 6, 5, 35},
      // Minor push: 15 lies between 14 and 16 < 20; 7 x 2 between 10 and 15 < 21.
      {2, 2, 5, 3, 2, 10},
      {2, 3, 5, 3, 2, 16},
      {2, 2, 7, 6, 5, 15},
      {2, 1, 3, 6, 5, 5},
      {2, 1, 2, 6, 5, 2},
      {2, 3, 5, 2, 1, 15},
      {2, 1, 1, 3, 2, 1},
      // Color push: 28 at 3:2 to 30, which wins nine 5s; 440 to 450, which wins 27 25s.
      {3, 4, 5, 3, 2, 20},
      {3, 4, 7, 3, 2, 30},
      {3, 4, 25, 3, 2, 100},
      {3, 5, 30, 6, 5, 150},
      {3, 5, 27, 6, 5, 150},
      {3, 5, 3, 6, 5, 15},
      {3, 4, 110, 3, 2, 450},
      {3, 5, 4, 6, 5, 20},
      // Single odds: one 5 makes two; seven 5s make ten and one 25 makes five.
      {4, 1, 5, 3, 2, 10},
      {4, 1, 5, 2, 1, 5},
      {4, 1, 3, 6, 5, 5},
      {4, 1, 10, 6, 5, 25},
      {4, 2, 25, 3, 2, 50},
      {4, 1, 35, 6, 5, 125},
      {4, 1.5, 5, 3, 2, 10},
      // Single odds multiplied: one 5 makes two, times 2 and 3.
      {5, 2, 5, 3, 2, 20},
      {5, 3, 5, 2, 1, 15},
      {5, 3, 7, 6, 5, 75},
      {5, 3, 4, 3, 2, 12},
      {5, 2.5, 3, 3, 2, 10},
      // Chosen by the factor.
      {0, 2.5, 5, 3, 2, 12.5},
      {0, 1, 5, 3, 2, 10},
      {0, 2, 7, 6, 5, 15},
      {0, 3, 7, 6, 5, 75},
      {0, 4, 7, 3, 2, 30},
      {0, 10, 7, 6, 5, 75},
      // Nothing to multiply.
      {0, 4, 0, 3, 2, 0},
      {2, 2, 0, 3, 2, 0},
      {4, 1, 0, 3, 2, 0},
      // The largest odds bet.
      {1, 5, 700, 6, 5, 3000},
      {5, 3, 1000, 3, 2, 3000},
  };
  for (const Case& test : cases) {
    Settings.OddsCalcMethod = test.Method;
    const Money limit = FigureOddsMax(Sum(test.Factor), Sum(test.Flat), test.Num, test.Den);
    EXPECT_EQ(PlainText(limit), PlainText(Sum(test.Limit)))
        << "method " << test.Method << ", " << test.Factor << " times " << test.Flat << " at "
        << test.Num << ":" << test.Den;
  }
  Settings.MaxOddsBet = 0;
  Settings.OddsCalcMethod = 1;
  EXPECT_EQ(FigureOddsMax(5, 1000, 6, 5), Money(5000));
}

// The limit of the third method as it is defined: one check more at a time.
Money CountedColorPush(Money factor, Money flat, int num, int den) {
  Money limit = factor * flat;
  for (size_t check = 5; check >= 2; --check) {
    const Money value = Settings.Denomination[check];
    Money stake = limit;
    while (stake < (factor + 1) * flat && stake.Raw() * num % (value.Raw() * den) != 0)
      stake += SmallestCheck();
    if (flat >= value && stake < (factor + 1) * flat) limit = stake;
  }
  return limit;
}

TEST_F(BetLimits, ColorPushIsWhatCountingCheckByCheckFinds) {
  Settings.OddsCalcMethod = 3;
  Settings.MaxOddsBet = 0;
  for (const double smallest : {1.0, 0.25, 0.5, 5.0}) {
    UseChecks(smallest, 5, 25, 100, 500);
    for (int step = 1; step <= 300; ++step) {
      const Money flat = SmallestCheck() * step;
      const Money factor = Money::FromRaw(10000 + step % 7 * 7500);
      for (const auto& [num, den] : {std::pair(6, 5), {5, 6}, {3, 2}, {2, 3}, {2, 1}, {11, 7}}) {
        ASSERT_EQ(PlainText(FigureOddsMax(factor, flat, num, den)),
                  PlainText(CountedColorPush(factor, flat, num, den)))
            << PlainText(factor) << " times " << PlainText(flat) << " at " << num << ":" << den;
      }
    }
  }
}

TEST_F(BetLimits, OddsMethodsAreExactWithTinyChecks) {
  UseChecks(0.0001, 5, 25, 100, 500);
  Settings.MaxOddsBet = 0;
  Settings.OddsCalcMethod = 3;
  // 2800 at 3:2 to 3000, which wins nine 500s, two million checks away.
  EXPECT_EQ(FigureOddsMax(4, 700, 3, 2), Money(3000));
  const Money huge = BankrollLimit;
  for (int32_t method = 0; method <= 5; ++method) {
    Settings.OddsCalcMethod = method;
    for (int call = 0; call < 500; ++call) {
      ASSERT_GE(FigureOddsMax(1000, huge - call, 6, 5), Money(1000) * (huge - call)) << method;
    }
  }
}

TEST_F(BetLimits, OddsLimitsFollowPointAndFlatBet) {
  struct Case {
    int Number, Flat;
    double OnFlat;
    int Point;
    double Limit;
    void (*Rule)() = [] {};
  };
  // Three, four and five times the flat bet: always six times it to win or to lay.
  const Case cases[] = {
      {PassLineOdds, PassLine, 10, 4, 30},
      {PassLineOdds, PassLine, 10, 9, 40},
      {PassLineOdds, PassLine, 10, 8, 50},
      {PassLineOdds, PassLine, 10, 0, 0},
      {PassLineOdds, PassLine, 0, 8, 0},
      {DontPassOdds, DontPass, 10, 10, 60},
      {DontPassOdds, DontPass, 10, 5, 60},
      {DontPassOdds, DontPass, 10, 6, 60},
      {DontPassOdds, DontPass, 10, 0, 0},
      {Come4Odds, Come4, 10, 0, 30},
      {Come8Odds, Come4 + 3, 10, 6, 50},
      {DontCome4Odds, DontCome4, 10, 0, 60},
      {DontCome6Odds, DontCome4 + 2, 10, 5, 60},
      {DontCome10Odds, DontCome10, 0, 5, 0},
      // The cap is on what the odds win; 3000 to win are laid with 6000.
      {DontPassOdds, DontPass, 1000, 4, 4000, [] { Settings.MaxOddsBet = 2000; }},
      // 7.50 to win would be laid with 9.
      {DontPassOdds, DontPass, 5, 6, 5,
       [] {
         UseChecks(5, 10, 25, 100, 500);
         Settings.OddsAllowed68 = Sum(1.5);
       }},
      {PassLineOdds, PassLine, 5, 6, 5,
       [] {
         UseChecks(5, 10, 25, 100, 500);
         Settings.OddsAllowed68 = Sum(1.5);
       }},
      {PassLineOdds, PassLine, 0.25, 6, 1.25, [] { UseChecks(0.25, 1, 5, 25, 100); }},
  };
  for (const Case& test : cases) {
    StartOver();
    Table.Point = test.Point;
    test.Rule();
    PutDown(Ann, test.Flat, Sum(test.OnFlat));
    EXPECT_EQ(PlainText(FigureMaxBet(Ann, test.Number)), PlainText(Sum(test.Limit)))
        << BetName[test.Number] << " on " << test.Point;
  }
}

TEST_F(BetLimits, EveryBetHasItsLimitInWholeChecks) {
  struct Case {
    int Number;
    double ByOnes, ByQuarters, ByFives;
  };
  // 3000 to win at most.
  const Case cases[] = {
      {Place6, 1003, 1003, 1000}, {PassLine, 1003, 1003, 1000},
      {Field, 1003, 1003, 1000},  {Big6, 1003, 1003, 1000},
      {Lay4, 2006, 2006, 2005},   {Lay5, 1504, 1504.5, 1500},
      {Lay6, 1203, 1203.5, 1200}, {Hard4, 428, 428.5, 425},
      {Hard6, 333, 333.25, 330},  {Two, 100, 100, 100},
      {Three, 200, 200, 200},     {Seven, 750, 750, 750},
      {Craps, 428, 428.5, 425},   {CAndE, 400, 400, 400},
      {Horn, 400, 400, 400},      {World, 500, 500, 500},
      {Over7, 1003, 1003, 1000},  {Hop13, 200, 200, 200},
      {Hop22, 100, 100, 100},     {AllSmall, 88, 88, 85},
      {MakeAll, 17, 17, 15},      {FourRollsNo7, 1003, 1003, 1000},
      {Point7, 428, 428.5, 425},  {SevenPoint7, 1000, 1000, 1000},
      {Midway, 1003, 1003, 1000}, {SharpShooter, 10, 10, 10},
      {RideTheLine, 30, 30, 30},  {Fire, 5, 5, 5},
  };
  Settings.MaxPlacardBet = 1003;
  for (const Case& test : cases) {
    UseChecks(1, 5, 25, 100, 500);
    EXPECT_EQ(PlainText(FigureMaxBet(Ann, test.Number)), PlainText(Sum(test.ByOnes)))
        << BetName[test.Number];
    UseChecks(0.25, 1, 5, 25, 100);
    EXPECT_EQ(PlainText(FigureMaxBet(0, test.Number)), PlainText(Sum(test.ByQuarters)))
        << BetName[test.Number];
    UseChecks(5, 10, 25, 100, 500);
    EXPECT_EQ(PlainText(FigureMaxBet(Ann, test.Number)), PlainText(Sum(test.ByFives)))
        << BetName[test.Number];
  }
}

TEST_F(BetLimits, BetsOffTheLayoutHaveNone) {
  for (const auto option : {&SettingsState::UseBig68, &SettingsState::UseMidwayBet,
                            &SettingsState::UseFireBet, &SettingsState::UseSpecialPropBets}) {
    StartOver();
    Settings.*option = 0;
    for (int number = Field; number <= LastBet; ++number) {
      const bool big = number == Big6 || number == Big8;
      const auto owner = number == Fire       ? &SettingsState::UseFireBet
                         : number == Midway   ? &SettingsState::UseMidwayBet
                         : number >= AllSmall ? &SettingsState::UseSpecialPropBets
                                              : &SettingsState::UseBig68;
      const bool off = owner == option && (number >= AllSmall || big);
      EXPECT_EQ(FigureMaxBet(Ann, number) == Money(), off) << BetName[number];
    }
  }
}

TEST_F(BetLimits, VigIsRoundedToChecksAndNeverMissing) {
  struct Case {
    int Number;
    double Amount, Check;
    double Normally, Down, Up;
  };
  const Case cases[] = {
      {Buy4, 20, 1, 1, 1, 1},
      {Buy4, 30, 1, 2, 1, 2},
      {Buy4, 25, 1, 1, 1, 2},
      {Buy10, 1, 1, 1, 1, 1},
      {Buy4, 0, 1, 0, 0, 0},
      {Buy4, 30, 0.25, 1.5, 1.5, 1.5},
      {Buy4, 32, 0.25, 1.5, 1.5, 1.75},
      {Buy4, 7, 0.1, 0.4, 0.3, 0.4},  // 0.35: three and a half checks
      {Buy4, 30, 5, 5, 5, 5},
      {Buy4, 150, 5, 10, 5, 10},
      {Lay4, 10, 1, 1, 1, 1},  // wins 5, 0.25
      {Lay4, 100, 1, 3, 2, 3},
      {Lay6, 120, 1, 5, 5, 5},
      {Lay5, 100, 1, 3, 3, 4},  // wins 66.67, 3.3333
      {Place6, 100, 1, 0, 0, 0},
      {PassLine, 100, 1, 0, 0, 0},
  };
  const auto vig = [](const Case& test, int32_t rounding) {
    Settings.RoundBuyVig = Settings.RoundLayVig = rounding;
    const Money amount = Sum(test.Amount);
    return PlainText(FigureVig(test.Number, amount));
  };
  for (const Case& test : cases) {
    Settings.Denomination[1] = Sum(test.Check);
    const std::string_view name = BetName[test.Number];
    EXPECT_EQ(vig(test, 0), PlainText(Sum(test.Normally))) << name << " " << test.Amount;
    EXPECT_EQ(vig(test, 1), PlainText(Sum(test.Down))) << name << " " << test.Amount;
    EXPECT_EQ(vig(test, 2), PlainText(Sum(test.Up))) << name << " " << test.Amount;
  }
  Settings.BuyVigPct = Settings.LayVigPct = 0;
  EXPECT_EQ(FigureVig(Buy4, 100) + FigureVig(Lay4, 100), Money());
}

TEST_F(BetLimits, PayoffUnitsAreTheSmallestThatPayWholeChecks) {
  struct Case {
    int Number;
    double Check, Unit;
  };
  const Case cases[] = {
      {Place4, 1, 5},       {Place6, 1, 6}, {Place6, 0.25, 1.5}, {Buy4, 1, 1},
      {Lay5, 1, 3},         {Lay6, 5, 30},  {Come6Odds, 1, 5},   {Come4Odds, 0.25, 0.25},
      {Come4Odds + 1, 1, 2}};
  for (const Case& test : cases) {
    UseChecks(test.Check, 5, 25, 100, 500);
    EXPECT_EQ(PlainText(Payoffs.Payoff[test.Number].PayUnit), PlainText(Sum(test.Unit)))
        << BetName[test.Number];
  }
  // The search ends after a million checks.
  UseChecks(1, 5, 25, 100, 500);
  for (PayoffRow& row : Payoffs.Payoff)
    row.PayDen = 1'000'001;
  Payoffs.Payoff[Place6].PayNum = 1;
  Payoffs.Payoff[Place6].PayDen = 1'000'000;
  for (int call = 0; call < 100; ++call)
    FigurePayoffUnits();
  EXPECT_EQ(Payoffs.Payoff[Place6].PayUnit, Money(1'000'000));
  EXPECT_EQ(Payoffs.Payoff[Place8].PayUnit, Money());
  Payoffs.Payoff[Place8].PayDen = 0;
  FigurePayoffUnits();
  EXPECT_EQ(Payoffs.Payoff[Place8].PayUnit, Money());
}

}  // namespace
}  // namespace tessarel
