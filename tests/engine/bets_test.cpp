#include "engine/bets.h"

#include <random>

#include "engine/bet_limits.h"
#include "engine/rules_fixture.h"

namespace tessarel {
namespace {

using namespace bet;

class Bets : public RulesTest {};

constexpr int Come6 = Come4 + 2, DontCome6 = DontCome4 + 2, DontCome6Laid = DontCome6Odds;
constexpr int Buy6 = Buy4 + 2;

const std::string PutNote =
    "\r\r(Unless you check \"Allow Put Bets\" on the Configuration screen.)";

std::string Standing(const std::string& amount, bool changed) {
  return "\r\r$" + amount + (changed ? " which is being bet." : " which is already bet.");
}

// What stands before, what is asked, what stands afterwards and what is said.
struct Case {
  int Number;
  double Amount, Contract, Request, Left;
  std::string Text;
  int Point = 6;
  void (*Rule)() = [] {};
};

void Expect(const Case& test, Money changed, Money left, const std::string& said) {
  const std::string which = std::string(BetName[test.Number]) + " " +
                            PlainText(Money::FromDouble(test.Amount)) + " asked for " +
                            PlainText(Money::FromDouble(test.Request));
  EXPECT_EQ(PlainText(left), PlainText(Money::FromDouble(test.Left))) << which;
  EXPECT_EQ(PlainText(changed), PlainText(Money::FromDouble(test.Left - test.Amount))) << which;
  EXPECT_EQ(said, test.Text) << which;
  EXPECT_EQ(CheckTable(), "") << which;
}

TEST_F(Bets, RulesOfTheMomentCutWhatIsAsked) {
  const auto noPuts = [] { Settings.AllowPutBets = false; };
  const auto minimumTen = [] { Settings.MinPlacardBet = 10; };
  const auto marks2 = [] { Table.MarkedNumbers = 1 << 2; };
  const auto marks8 = [] { Table.MarkedNumbers = 1 << 8; };
  const auto counting = [] { Table.FourRollCount = 1; };
  const auto inHand = [] { Stats.RollCount[CurrentHand][0] = 1; };
  const auto pass = [] { PutDown(Ann, PassLine, 10); };
  const std::string keepPass =
      "You may not decrease or remove a Pass Line bet while a point is established.";
  const std::string keepYours =
      "You may not decrease or remove your Pass Line bet while a point is established.";
  const std::string keepCome =
      "You may not decrease or remove a Come bet which is established on a point.";
  const std::string keepSeven =
      "You may not decrease or remove a 7 Point 7 bet which is established on a point.";
  const std::string raise = "You may not make or increase a ";
  const std::string passOdds =
      "You may not make a Pass Line Odds bet unless you also have a Pass Line bet and a point is "
      "established.";
  const std::string dontOdds =
      "You may not make a Don't Pass Odds bet unless you also have a Don't Pass bet and a point is "
      "established.";
  const Case cases[] = {
      // Down.
      {PassLine, 10, 10, -5, 10, keepPass},
      {PassLine, 15, 10, -5, 10, ""},
      {PassLine, 15, 10, -6, 10, ""},
      {PassLine, 15, 10, -15, 10, ""},
      {PassLine, 10, 10, -10, 0, "", 0},
      {Come6, 10, 10, -10, 10, keepCome},
      {Come6, 10, 10, -1, 10, keepCome, 0},
      {Come6, 15, 10, -12, 10, ""},
      {SevenPoint7, 10, 10, -10, 10, keepSeven},
      {SevenPoint7, 15, 10, -15, 10, ""},
      {SevenPoint7, 10, 10, -10, 0, "", 0},
      {DontPass, 10, 10, -10, 0, ""},
      {DontCome6, 10, 10, -4, 6, ""},
      {PassLine, 5, 10, -1, 5, keepPass},
      // The same bet.
      {PassLine, 5, 10, 0, 10, keepYours + Standing("10", true)},
      {Come6, 5, 10, 0, 10, keepCome + Standing("10", true)},
      {SevenPoint7, 5, 10, 0, 10, keepSeven + Standing("10", true)},
      {PassLine, 5, 10, 0, 5, "", 0},
      {PassLine, 10, 10, 0, 10, "", 6, noPuts},
      {PassLine, 5, 5, 0, 5, "", 6, minimumTen},
      {PassLine, 3, 5, 0, 5, keepYours + Standing("5", true), 6, minimumTen},
      // Up.
      {PassLine, 5, 10, 2, 10, keepPass + Standing("10", true)},
      {PassLine, 10, 10, 10, 20, ""},
      {PassLine, 0, 0, 10, 0, raise + "Pass Line bet while a point is established." + PutNote, 6,
       noPuts},
      {PassLine, 5, 10, 10, 10,
       raise + "Pass Line bet while a point is established." + PutNote + Standing("10", true), 6,
       noPuts},
      {PassLine, 5, 10, 5, 10, "", 6, noPuts},
      {PassLine, 0, 0, 10, 10, "", 0, noPuts},
      {Come, 0, 0, 10, 0, "You may not make a Come bet until a point is established.", 0},
      {Come, 0, 0, 10, 10, ""},
      {DontPass, 0, 0, 10, 0, raise + "Don't Pass bet while a point is established."},
      {DontPass, 5, 10, 5, 10, ""},
      {DontPass, 5, 10, 6, 10,
       raise + "Don't Pass bet while a point is established." + Standing("10", true)},
      {DontPass, 0, 0, 10, 10, "", 0},
      {DontCome, 0, 0, 10, 0, "You may not make a Don't Come bet until a point is established.", 0},
      {PassLineOdds, 0, 0, 10, 0, passOdds},
      {PassLineOdds, 0, 0, 10, 0, passOdds, 0, pass},
      {PassLineOdds, 0, 0, 10, 10, "", 6, pass},
      {DontPassOdds, 0, 0, 10, 0, dontOdds},
      {DontPassOdds, 0, 20, 10, 0, dontOdds},
      {DontPassOdds, 0, 0, 10, 0, dontOdds, 0, [] { PutDown(Ann, DontPass, 10); }},
      {Come6, 5, 10, 2, 10, keepCome + Standing("10", true)},
      {Come6, 0, 0, 10, 10, ""},
      {Come6, 0, 0, 10, 0, raise + "Come bet directly on a point number." + PutNote, 6, noPuts},
      {Come6, 5, 10, 10, 10,
       raise + "Come bet directly on a point number." + PutNote + Standing("10", true), 6, noPuts},
      {Come4Odds, 0, 0, 10, 0,
       "You may not make a Come 4 Odds bet until you've established a Come 4 bet."},
      {Come4Odds, 0, 0, 10, 10, "", 0, [] { PutDown(Ann, Come4, 10); }},
      {DontCome10Odds, 0, 0, 10, 0,
       "You may not make a Don't Come 10 Odds bet until you've established a Don't Come 10 bet."},
      {DontCome6, 0, 0, 10, 0, raise + "Don't Come bet directly on a point number."},
      {DontCome6, 5, 10, 5, 10, "", 0},
      {AllSmall, 0, 0, 5, 0,
       "You may not make or increase an All Small bet while any small numbers are marked.", 6,
       marks2},
      {AllSmall, 0, 0, 5, 5, "", 6, marks8},
      {AllSmall, 5, 10, 3, 8,
       "You may not make or increase an All Small bet while any small numbers are marked." +
           Standing("8", true),
       6, marks2},
      {AllTall, 0, 0, 5, 0,
       "You may not make or increase an All Tall bet while any tall numbers are marked.", 6,
       marks8},
      {AllTall, 0, 0, 5, 5, "", 6, marks2},
      {MakeAll, 0, 0, 5, 0, raise + "Make All bet while any numbers are marked.", 6, marks2},
      {MakeAll, 0, 0, 5, 0, raise + "Make All bet while any numbers are marked.", 6, marks8},
      {FourRollsNo7, 0, 0, 5, 0, raise + "4 Rolls No 7 bet if the count is in progress.", 6,
       counting},
      {FourRollsNo7, 0, 0, 5, 5, ""},
      {Point7, 0, 0, 5, 0, raise + "Point 7 bet unless the shooter is on a come-out roll."},
      {Point7, 2, 5, 3, 5, ""},
      {SevenPoint7, 5, 10, 2, 10,
       "You may not decrease or remove a 7 Point 7 bet while a point is established." +
           Standing("10", true)},
      {SevenPoint7, 0, 0, 5, 0, raise + "7 Point 7 bet unless the shooter is on a come-out roll."},
      {SevenPoint7, 0, 0, 5, 5, "", 0},
      {SharpShooter, 0, 0, 5, 0, raise + "Sharp Shooter bet after the shooter has started a hand.",
       0, inHand},
      {RideTheLine, 0, 0, 5, 0, raise + "Ride The Line bet after the shooter has started a hand.",
       0, inHand},
      {Fire, 0, 0, 5, 0, raise + "Fire bet after the shooter has started a hand.", 0, inHand},
      {Fire, 2, 5, 3, 5, "", 0, inHand},
      {Fire, 0, 0, 5, 5, ""},
  };
  for (const Case& test : cases) {
    StartOver();
    Table.Point = test.Point;
    PutDown(Ann, test.Number, Sum(test.Amount));
    SetBetContract(Ann, test.Number, Sum(test.Contract));
    test.Rule();
    Ask(test.Number, Sum(test.Request));
    if (!test.Text.empty()) {
      ASSERT_EQ(Shown.size(), 1u) << BetName[test.Number];
      EXPECT_EQ(Shown[0].Title, std::string(BetName[test.Number]) + " Bet");
      EXPECT_EQ(Shown[0].Flags, msg::OkAlert | msg::HideNotice1);
    }
    Case told = test;
    if (!told.Text.empty()) told.Text = "Ann,\r\r" + told.Text;
    Expect(told, Changed, Bet(Ann, test.Number), Said());
  }
}

TEST_F(Bets, AmountsAreBroughtIntoTheirLimits) {
  const auto minimums = [] {
    Settings.MinPlacardBet = 10;
    Settings.MinPlacardPropBet = 2;
  };
  const auto maximumHundred = [] { Settings.MaxPlacardBet = 100; };
  const auto fives = [] { UseChecks(5, 10, 25, 100, 500); };
  const std::string however =
      "The maximum Pass Line bet is $100\r\rHowever, because the Pass Line is a contract bet and "
      "you established it at $500 before you recently lowered the maximum Pass Line allowed on "
      "the Configuration screen, it must remain unchanged until it resolves.";
  const Case cases[] = {
      {Place6, 0, 0, 2.5, 3, ""},
      {Place6, 10, 0, -2.5, 7, ""},
      {Place6, 10, 0, -0.0001, 9, ""},
      {Place6, 10, 0, -20, 0, ""},
      {Place6, 0, 0, -5, 0, ""},
      {Place6, 5, 0, 6, 15, "", 6, fives},
      {Place6, 15, 0, -6, 5, "", 6, fives},
      {Place6, 0, 0, 3, 10, "The minimum Place 6 bet is $10" + Standing("10", true), 6, minimums},
      {Place6, 15, 0, -6, 0, "", 6, minimums},
      {Hard4, 0, 0, 1, 2, "The minimum Hard 4 bet is $2" + Standing("2", true), 6, minimums},
      {Big8, 0, 0, 1, 10, "The minimum Big 8 bet is $10" + Standing("10", true), 6, minimums},
      {PassLine, 15, 5, -7, 5, "", 6, minimums},
      {Place6, 0, 0, 2000, 1000, "The maximum Place 6 bet is $1,000" + Standing("1,000", true)},
      {Place6, 1000, 0, 5, 1000, "The maximum Place 6 bet is $1,000" + Standing("1,000", false)},
      {Place6, 500, 0, 0, 100, "The maximum Place 6 bet is $100" + Standing("100", true), 6,
       maximumHundred},
      {Place6, 500, 0, -100, 100, "The maximum Place 6 bet is $100" + Standing("100", true), 6,
       maximumHundred},
      {PassLine, 500, 500, 0, 500, however + Standing("500", false), 6, maximumHundred},
      {PassLine, 700, 500, -100, 500, however + Standing("500", true), 6, maximumHundred},
      {PassLine, 500, 500, 0, 100, "The maximum Pass Line bet is $100" + Standing("100", true), 0,
       maximumHundred},
      {Fire, 0, 0, 5, 0, "The maximum Fire bet is $0" + Standing("0", false), 0,
       [] { Settings.UseFireBet = false; }},
  };
  for (const Case& test : cases) {
    StartOver();
    Table.Point = test.Point;
    test.Rule();
    PutDown(Ann, test.Number, Sum(test.Amount));
    SetBetContract(Ann, test.Number, Sum(test.Contract));
    Ask(test.Number, Sum(test.Request));
    if (!test.Text.empty()) {
      ASSERT_EQ(Shown.size(), 1u) << BetName[test.Number];
      EXPECT_EQ(Shown[0].Flags, msg::OkAlert | msg::HideNotice2);
    }
    Expect(test, Changed, Bet(Ann, test.Number), Said());
  }
}

// Ann has 50, of which `elsewhere` is on the Field.
TEST_F(Bets, BankrollCutsWhatItCannotPay) {
  struct BankrollCase {
    int Number;
    double Elsewhere, Amount, Request, Left;
    const char* Notice;
    void (*Rule)() = [] {};
  };
  const auto winnersPay = [] { Settings.BuyVigAllBets = Settings.LayVigAllBets = false; };
  const auto minimumTen = [] { Settings.MinPlacardBet = 10; };
  const BankrollCase cases[] = {
      {Place6, 0, 0, 50, 50, nullptr},
      {Place6, 0, 0, 60, 50, "$50 which is being bet."},
      {Place6, 45, 5, 10, 5, "$5 which is already bet."},
      {Place6, 45, 0, 10, 0, "$0 which is already bet.", minimumTen},
      {Place6, 50, 12, 0, 0, "$0 which is being bet."},
      {Place6, 60, 20, -4, 0, "$0 which is being bet."},
      {Place6, 44.5, 0, 10, 5, "$5 which is being bet."},
      {Place6, 0, 0, 60, 60, nullptr, [] { Table.AllowNegBankroll[Ann] = true; }},
      // 48 carries a vig of 2.40, rounded to 2; 49 and its 2.45 would make 51.
      {Buy4, 0, 0, 50, 48, "$48 which is being bet."},
      {Buy4, 0, 0, 50, 50, nullptr, winnersPay},
      // 49 would win 24.50 and carries 1.225, rounded to 1.
      {Lay4, 0, 0, 50, 49, "$49 which is being bet."},
      {Lay4, 0, 0, 50, 50, nullptr, winnersPay},
  };
  for (const BankrollCase& test : cases) {
    StartOver();
    SetBankrollSlots(Ann, 50);
    Settings.Notices &= ~NoticeCharges;
    test.Rule();
    PutDown(Ann, Field, Sum(test.Elsewhere));
    PutDown(Ann, test.Number, Sum(test.Amount));
    Ask(test.Number, Sum(test.Request));
    const std::string text =
        test.Notice == nullptr
            ? ""
            : std::string(
                  "You don't have enough bankroll remaining to bet the full amount requested.\r\r"
                  "Your options are: \r"
                  "      - Bet less on other bets.\r"
                  "      - Make a withdrawal from the ATM.\r"
                  "      - Allow negative bankroll.\r\r") +
                  test.Notice;
    Expect({test.Number, test.Amount, 0, test.Request, test.Left, text}, Changed,
           Bet(Ann, test.Number), Said());
  }
}

TEST_F(Bets, CheckStacksKeepTheirOwnLimits) {
  constexpr int Stack7 = FirstStack + 7;
  const Money top = Money::FromRaw(999'999'999'999'999'999);
  struct StackCase {
    Money Amount, Change, Left;
    std::string Text;
  };
  const std::string minimum = "The minimum CheckStack value is: $0\r\r$0 which is ";
  const std::string maximum =
      "The maximum CheckStack value is: $99,999,999,999,999.9999\r\r$99,999,999,999,999.9999 "
      "which is ";
  const StackCase cases[] = {
      {0, Sum(2.5), Sum(2.5), ""},
      {10, -10, 0, ""},
      {10, -11, 0, minimum + "being stacked."},
      {0, -1, 0, minimum + "already stacked."},
      {1, top - 1, top, ""},
      {2, top - 1, top, maximum + "being stacked."},
      {top, 1, top, maximum + "already stacked."},
  };
  for (const StackCase& test : cases) {
    SetBetAmount(Ann, Stack7, test.Amount);
    Ask(Stack7, test.Change);
    EXPECT_EQ(PlainText(Bet(Ann, Stack7)), PlainText(test.Left));
    EXPECT_EQ(PlainText(Changed), PlainText(test.Left - test.Amount));
    for (const ShownMessage& message : Shown)
      EXPECT_EQ(message.Title, "CheckStack #7");
    EXPECT_EQ(Said(), test.Text);
  }
  EXPECT_EQ(Table.MoneyOnTable[Ann], Money());
}

TEST_F(Bets, ChangesOfVigAreTold) {
  struct Step {
    int Number;
    int Change;
    std::string Text;
    int OnTable;
  };
  const Step upFront[] = {
      {Buy4, 20, "Total vig charge $1\rVig increased by $1", 21},
      {Buy4, 5, "", 26},
      {Buy4, 35, "Total vig charge $3\rVig increased by $2", 63},
      {Buy4, -20, "Total vig charge $2\rVig decreased by $1", 42},
      {Buy4, -40, "Vig charge returned $2", 0},
      {Lay4, 10, "Total vig charge $1\rVig increased by $1", 11},
      {Lay4, -10, "Vig charge returned $1", 0},
  };
  for (const Step& step : upFront) {
    Ask(step.Number, step.Change);
    for (const ShownMessage& message : Shown) {
      EXPECT_EQ(message.Title, std::string(BetName[step.Number]) + " Bet");
      EXPECT_EQ(message.Flags & msg::HideNotice4, msg::HideNotice4);
    }
    EXPECT_EQ(Said(), step.Text) << step.Change;
    EXPECT_EQ(Table.MoneyOnTable[Ann], Money(step.OnTable));
    EXPECT_EQ(CheckTable(), "");
  }
  Settings.BuyVigAllBets = Settings.LayVigAllBets = false;
  const Step onWinners[] = {
      {Buy4, 20, "If you win, the vig charge will be $1\rVig increased by $1", 20},
      {Lay4, 100, "If you win, the vig charge will be $3\rVig increased by $3", 120},
      {Lay4, -60, "If you win, the vig charge will be $1\rVig decreased by $2", 60},
  };
  for (const Step& step : onWinners) {
    Ask(step.Number, step.Change);
    EXPECT_EQ(Said(), step.Text) << step.Change;
    EXPECT_EQ(Table.MoneyOnTable[Ann], Money(step.OnTable));
  }
}

TEST_F(Bets, EveryKindOfMessageCanBeSilencedAndItsRuleHolds) {
  struct Kind {
    void (*Try)(Telling telling);
    int32_t Notice;
    int Number;
    int Left;
  };
  const Kind kinds[] = {
      {[](Telling t) {
         ChangeBet({Ann, Come, 10}, t);
       },
       NoticeActionsNotAllowed, Come, 0},
      {[](Telling t) {
         ChangeBet({Ann, Place6, 5000}, t);
       },
       NoticeLimits, Place6, 1000},
      {[](Telling t) {
         ChangeBet({Ann, FirstStack, -1}, t);
       },
       NoticeLimits, FirstStack, 0},
      {[](Telling t) {
         ChangeBet({Ann, Buy4, 20}, t);
       },
       NoticeCharges, Buy4, 20},
      {[](Telling t) { CallBet(Ann, PassLine, CallOff, t); }, NoticeActionsNotAllowed, PassLine, 0},
      {[](Telling t) {
         PutDown(Ann, Field, 5);
         BuyPlaceBet(Ann, Field, t);
       },
       NoticeActionsNotAllowed, Field, 5},
  };
  for (const Kind& kind : kinds) {
    for (int silencer = 0; silencer <= 3; ++silencer) {
      StartOver();
      if (silencer == 1) Settings.Notices &= ~kind.Notice;
      if (silencer == 2) Table.HyperDriveOn = true;
      kind.Try(silencer == 3 ? Telling::Silent : Telling::Aloud);
      EXPECT_EQ(Shown.size(), silencer == 0 ? 1u : 0u) << kind.Number << " by " << silencer;
      EXPECT_EQ(Bet(Ann, kind.Number), Money(kind.Left)) << kind.Number << " by " << silencer;
    }
  }
}

TEST_F(Bets, OddsFollowTheirFlatBet) {
  struct FollowCase {
    int Point, Flat, Odds;
    int FlatBefore, OddsBefore, Change;
    bool KeepFull;
    int OddsAfter;
  };
  // Three, four and five times the flat bet; laid to win as much.
  const FollowCase cases[] = {
      {6, PassLine, PassLineOdds, 10, 50, -5, false, 25},
      {6, PassLine, PassLineOdds, 10, 20, 10, false, 20},
      {6, PassLine, PassLineOdds, 10, 20, 10, true, 100},
      {6, PassLine, PassLineOdds, 10, 50, -10, true, 0},
      {0, PassLine, PassLineOdds, 10, 0, 10, true, 0},
      {5, DontPass, DontPassOdds, 20, 60, -10, true, 60},
      {5, DontPass, DontPassOdds, 20, 120, -10, false, 60},
      {4, DontPass, DontPassOdds, 20, 30, -20, false, 0},
      {0, DontPass, DontPassOdds, 0, 0, 10, true, 0},
      {8, Come6, Come6Odds, 10, 50, -5, false, 25},
      {0, Come6, Come6Odds, 10, 0, 10, true, 100},
      {0, DontCome6, DontCome6Laid, 20, 120, -10, false, 60},
      {8, DontCome6, DontCome6Laid, 20, 0, -10, true, 60},
      {8, Place6, Come6Odds, 12, 0, 12, true, 0},
  };
  for (const FollowCase& test : cases) {
    StartOver();
    Table.Point = test.Point;
    Table.AutoTakeFullOdds[Ann] = Table.AutoLayFullOdds[Ann] = test.KeepFull;
    PutDown(Ann, test.Flat, test.FlatBefore);
    PutDown(Ann, test.Odds, test.OddsBefore);
    Place(test.Flat, test.Change);
    EXPECT_EQ(PlainText(Bet(Ann, test.Odds)), std::to_string(test.OddsAfter))
        << BetName[test.Odds] << " after " << test.Change;
    EXPECT_EQ(Changed, Money(test.Change));
    EXPECT_EQ(Said(), "");
    EXPECT_EQ(CheckTable(), "");
  }
}

TEST_F(Bets, ReplacedBetIsTheLargestAllowedAndNoLongerCalled) {
  Table.Point = 6;
  PutDown(Ann, PassLine, 10);
  PutDown(Ann, PassLineOdds, 20);
  SetBetWorking(Ann, PassLineOdds, CalledOff);
  ReplaceBet(Ann, PassLineOdds);
  EXPECT_EQ(Bet(Ann, PassLineOdds), Money(50));
  EXPECT_EQ(Table.BetWorking[Ann][PassLineOdds], IsWorking);
  SetBankrollSlots(Ann, 35);
  ReplaceBet(Ann, PassLineOdds);
  EXPECT_EQ(Bet(Ann, PassLineOdds), Money(25));
  EXPECT_EQ(Said(), "");
}

TEST_F(Bets, FullOddsAreSetOnEveryFlatBetOfTheirSide) {
  const auto amounts = [] {
    std::string text;
    for (const int number : {PassLineOdds, Come4Odds, Come6Odds, DontPassOdds, DontCome4Odds})
      text += PlainText(Bet(Ann, number)) + " ";
    return text;
  };
  for (const int flat : {PassLine, Come4, DontPass, DontCome4})
    PutDown(Ann, flat, 10);
  BetFullOdds(Ann);
  BetFullLay(Ann);
  EXPECT_EQ(amounts(), "0 0 0 0 0 ");
  Table.Point = 6;
  BetFullOdds(Ann);
  EXPECT_EQ(amounts(), "50 30 0 0 0 ");
  BetFullLay(Ann);
  EXPECT_EQ(amounts(), "50 30 0 60 60 ");
}

TEST_F(Bets, PlaceBetIsBoughtWithItsCalledState) {
  for (const int32_t working : {CalledOff, NotWorking, IsWorking, CalledOn}) {
    StartOver();
    Settings.Notices &= ~NoticeCharges;
    PutDown(Ann, Place6, 12);
    SetBetWorking(Ann, Place6, working);
    BuyPlaceBet(Ann, Place6);
    EXPECT_EQ(Bet(Ann, Place6), Money());
    EXPECT_EQ(Bet(Ann, Buy6), Money(12));
    EXPECT_EQ(Table.MoneyOnTable[Ann], Money(13));
    const bool called = working == CalledOff || working == CalledOn;
    EXPECT_EQ(Table.BetWorking[Ann][Buy6], called ? working : NotWorking);
    BuyPlaceBet(Ann, Buy6);
    BuyPlaceBet(Ann, Place6);
    EXPECT_EQ(Bet(Ann, Buy6), Money(12));
    EXPECT_EQ(Said(), "");
  }
  PutDown(Ann, Big6, 12);
  BuyPlaceBet(Ann, Big6);
  ASSERT_EQ(Shown.size(), 1u);
  EXPECT_EQ(Shown[0].Text, "You may only buy Place bets.");
  EXPECT_EQ(Shown[0].Title, "Action not allowed");
}

TEST_F(Bets, LineTravelledAndHandBetsCannotBeCalled) {
  for (int number = 1; number <= LastBet; ++number) {
    const bool box = number == Come || number == DontCome;
    const bool line = number == PassLine || number == DontPass;
    const bool travelled = (number >= 7 && number <= 12) || (number >= 19 && number <= 24);
    const bool refused = box || line || travelled || (number >= 84 && number != 90);
    CallBet(Ann, number, CallOff);
    EXPECT_EQ(Table.BetWorking[Ann][static_cast<size_t>(number)] == CalledOff, !refused) << number;
    ASSERT_EQ(Shown.size(), refused ? 1u : 0u) << number;
    if (!refused) continue;
    EXPECT_EQ(Shown[0].Title, "Action not allowed");
    EXPECT_EQ(Said(), "You may not call the " + std::string(BetName[number]) + " bet ON or OFF.");
  }
}

TEST_F(Bets, NumbersThatAreNoBetAreNeitherCalledNorBought) {
  for (const int number : {-7, 0, 94, 100, 105, 199, 200, 1000}) {
    CallBet(Ann, number, CallOff);
    BuyPlaceBet(Ann, number);
    EXPECT_EQ(Said(), "") << number;
  }
  EXPECT_EQ(Table.BetWorking[Ann][0], NotWorking);
}

TEST_F(Bets, CallingBackReturnsToTheNormalState) {
  struct CallCase {
    int Point;
    int32_t Before;
    CallState Call;
    int32_t After;
  };
  // Place bets do not work on the come-out by default.
  const CallCase cases[] = {
      {0, NotWorking, CallOff, CalledOff}, {0, NotWorking, CallOn, CalledOn},
      {0, CalledOn, CallOff, NotWorking},  {0, CalledOff, CallOn, NotWorking},
      {6, IsWorking, CallOff, CalledOff},  {6, IsWorking, CallOn, CalledOn},
      {6, CalledOn, CallOff, IsWorking},   {6, CalledOff, CallOn, IsWorking},
      {6, CalledOff, CallOff, CalledOff},  {6, CalledOn, CallOn, CalledOn},
  };
  for (const CallCase& test : cases) {
    Table.Point = test.Point;
    SetBetWorking(Ann, Place6, test.Before);
    CallBet(Ann, Place6, test.Call);
    EXPECT_EQ(Table.BetWorking[Ann][Place6], test.After) << test.Before << " " << test.Call;
  }
}

TEST_F(Bets, BetThatComesOffWorksNormallyAgain) {
  for (const int point : {0, 6}) {
    Table.Point = point;
    PutDown(Ann, Place6, 12);
    SetBetWorking(Ann, Place6, CalledOn);
    Ask(Place6, -6);
    EXPECT_EQ(Table.BetWorking[Ann][Place6], CalledOn);
    RemoveBet(Ann, Place6);
    EXPECT_EQ(Table.BetWorking[Ann][Place6], point == 0 ? NotWorking : IsWorking);
  }
}

TEST_F(Bets, ContractBetIsTakenDownButNotRemoved) {
  Table.Point = 6;
  PutDown(Ann, PassLine, 10);
  SetBetContract(Ann, PassLine, 10);
  RemoveBet(Ann, PassLine);
  EXPECT_EQ(Bet(Ann, PassLine), Money(10));
  EXPECT_EQ(Said(),
            "Ann,\r\rYou may not decrease or remove a Pass Line bet while a point is established.");
  TakeDownBet(Ann, PassLine);
  EXPECT_EQ(Bet(Ann, PassLine), Money());
  EXPECT_EQ(Said(), "");
}

TEST_F(Bets, OpenViewsFollowChangesOutsideRolls) {
  static int refreshed;
  refreshed = 0;
  FrontEnd.RefreshViews = [] { ++refreshed; };
  Ask(Place6, 12);
  Ask(FirstStack, 12);
  EXPECT_EQ(refreshed, 2);
  Table.RollInProgress = true;
  Ask(Place6, 12);
  Table.RollInProgress = false;
  Table.HyperDriveOn = true;
  Ask(Place6, 12);
  EXPECT_EQ(refreshed, 2);
}

// Whatever is asked for under whatever rules: sums agree, and nobody bets what he has not got.
TEST_F(Bets, RandomRequestsKeepTheTableRight) {
  std::mt19937 random(20);
  const auto pick = [&random](int count) { return static_cast<int>(random() % unsigned(count)); };
  for (int round = 0; round < 60; ++round) {
    StartOver();
    Table.HyperDriveOn = true;
    if (pick(2) != 0) UseChecks(0.25, 1, 5, 25, 100);
    Settings.AllowPutBets = -pick(2);
    Settings.BuyVigAllBets = Settings.LayVigAllBets = -pick(2);
    Settings.RoundBuyVig = Settings.RoundLayVig = pick(3);
    Settings.OddsCalcMethod = pick(6);
    Table.AutoAdjustBetAmounts[Ann] = pick(2);
    Table.DoBias[Ann] = Table.DontBias[Ann] = Table.PlaceBias[Ann] = Table.LayBias[Ann] = pick(3);
    Table.AutoTakeFullOdds[Ann] = Table.AutoLayFullOdds[Ann] = -pick(2);
    Table.Point = pick(2) == 0 ? 0 : At(PointNumbers, pick(FamilySize));
    const Money bankroll = 1 + pick(3000);
    SetBankrollSlots(Ann, bankroll);
    for (int step = 0; step < 100; ++step) {
      const int number = 1 + pick(LastBet);
      const Money before = Bet(Ann, number);
      const Money request = Money::FromRaw(pick(20'000'000) - 5'000'000);
      const auto standing = std::pair(Table.BetAmount, Table.MoneyOnTable);
      const Plan plan = PlanChange({Ann, number, request});
      ASSERT_TRUE(standing == std::pair(Table.BetAmount, Table.MoneyOnTable));
      const bool follows = OddsOn(number) != 0;
      Place(number, request);
      ASSERT_EQ(Changed, plan.change);
      if (!follows) {
        ASSERT_EQ(Table.MoneyOnTable[Ann], standing.second[Ann] + plan.cost);
      }
      const Money after = Bet(Ann, number);
      ASSERT_EQ(CheckTable(), "");
      ASSERT_EQ(Changed, after - before);
      ASSERT_TRUE(IsMultiple(after, SmallestCheck()));
      ASSERT_LE(Table.MoneyOnTable[Ann], bankroll);
      ASSERT_LE(after, FigureMaxBet(Ann, number)) << BetName[number];
      ASSERT_TRUE(after == Money() || after >= BetMinimum(number)) << BetName[number];
    }
  }
}

}  // namespace
}  // namespace tessarel
