#include "autobet/variables.h"
#include "engine/seats.h"

#include <algorithm>
#include <cmath>

#include "base/fault.h"
#include "dice/probability.h"
#include "engine/bet_handling.h"
#include "play/players.h"
#include "play/roll_fixture.h"
#include "state/scripts.h"
#include "stats/chi_square.h"

namespace tessarel {
namespace {

constexpr int8_t Session = HandCurrentSession, Hand = HandCurrent;
constexpr int None = 0;

struct ReadCase {
  Reference reference;
  double expected;
};

// Ann at place 1 shoots, Bob at place 2 plays along; place 5 is open.
class VariablesTest : public RollTest {
 protected:
  static constexpr int8_t Ann = 1, Bob = 2, Open = 5;

  void SetUp() override {
    RollTest::SetUp();
    AutoBet.CurrentScriptPlayer = Ann;
    for (const int place : {Ann, Bob}) {
      Seat(place);
      SetBankroll(place, 1000);
    }
  }
  void TearDown() override {
    RollTest::TearDown();
    AutoBet = {};
    Scripts = {};
    Probability = {};
  }

  // A natural, a point made, craps and a point missed, the last one for twice the amount.
  static void PlayAHand() {
    PutDown(Ann, bet::PassLine, 10);
    Throw({{3, 4}, {4, 2}, {3, 3}, {1, 1}});
    PutDown(Ann, bet::PassLine, 20);
    Throw({{4, 4}, {2, 5}});
  }

  // The number of the error of the statement, which is cleared.
  static int32_t TakeFault() {
    return static_cast<int32_t>(std::exchange(AutoBet.Fault, ScriptFault::None));
  }
  // The value, with the error that came with it; clears it.
  static double Read(const Reference& reference, int32_t error = None) {
    const ScriptValue value = ReadVariable(reference);
    EXPECT_EQ(TakeFault(), error);
    EXPECT_EQ(value.code, NumberToken);
    return value.value;
  }
  static double Read(int32_t number) { return Read({number, 0, 0, 0, 0}); }
  static int32_t Write(const Reference& reference, const ScriptValue& value) {
    SetVariable(reference, value);
    return TakeFault();
  }
  static int32_t Write(int32_t number, double value) {
    return Write({number, Ann, Session, ModWagered, ModCurrentAmount}, Number(value));
  }
  static int32_t Write(int32_t number, const char* text) {
    return Write({number, Ann, 0, 0, 0}, MakeText(text));
  }
  static double Statistic(int32_t function,
                          const Reference& reference,
                          std::vector<ListItem> items,
                          int32_t error = None) {
    const ScriptValue value = RollStatistic(function, reference, items);
    EXPECT_EQ(TakeFault(), error);
    return value.value;
  }

  template <size_t N>
  static void ExpectReads(const ReadCase (&cases)[N]) {
    for (const ReadCase& row : cases) {
      EXPECT_NEAR(Read(row.reference), row.expected, 1e-9)
          << row.reference.number << " of " << int{row.reference.player} << " in "
          << int{row.reference.hand};
    }
  }
};

// The scripts in tests/scripts tell what the figures of the running session are.
TEST_F(VariablesTest, WhatABetBroughtInEachScope) {
  struct Case {
    int8_t first, second;
    double expected;
    int8_t hand;
    int32_t error = None;
  };
  PlayAHand();  // +10, +10, -10, -20 on rolls 1, 3, 4 and 6
  // clang-format off
  const Case cases[] = {
      {ModWagered, ModTotalNumber, 4, Session}, {ModNet, ModLastRollAmount, -20, Session},
      {ModNetPercent, ModLastRollAmount, -100, Session},
      {ModNet, ModExpectedValue, 50 * -0.014141, Session},
      {ModNet, ModLastAmount, -20, Session}, {ModNet, ModTotalNumber, 0, Session},
      {ModMissed, ModNaturals, 1, Session}, {ModPassed, ModPoints, 1, Session},
      {ModLosses, ModTotalNumber, 2, HandLast}, {ModLosses, ModLastRollAmount, 20, HandLast},
      {ModLosses, ModTotalNumber, 0, Hand}, {ModWins, ModRollsSinceLast, 3, HandAllSessions},
      {ModWagered, ModAverage, 0, Hand, 300}, {ModWins, ModAverage, 0, Hand, 301},
      {ModLosses, ModAmountPerHour, 0, Hand, 302}, {ModNetPercent, ModTotalAmount, 0, Hand, 300},
  };
  // clang-format on
  const auto read = [](const Case& row) {
    return Read({bet::PassLine, Ann, row.hand, row.first, row.second}, row.error);
  };
  for (const Case& row : cases) {
    EXPECT_NEAR(read(row), row.expected, 1e-9) << int{row.first} << " " << int{row.second};
  }
  ExpectReads({{{bet::Field, Ann, Session, ModPassed, ModTotal}, 0},
               {{bet::PassLine, Open, Session, ModWagered, ModAverage}, 0},
               {{bet::PassLine, 15, Session, ModWagered, ModCurrentAmount}, 0}});
  Throw(6, 3);
  EXPECT_EQ(read({ModLosses, ModLastRollAmount, 0, Session}), 0);
  EXPECT_EQ(read({ModLosses, ModLastRollAmount, 0, HandLast}), 20);
  EXPECT_EQ(read({ModNetPercent, ModLastRollAmount, 0, Session, 300}), 0);
}

TEST_F(VariablesTest, WhoIsMeant) {
  SetBankrollSlots(Bob, 77);
  EXPECT_EQ(Read(variable::Bettor), Ann);
  AutoBet.BettorOnView = Bob;
  EXPECT_EQ(Read({variable::Bankroll, PlayerBettor, Session, 0, 0}), 77);
  // Without a shooter the word is nobody, and not the house.
  Table.Shooter = 0;
  EXPECT_EQ(ResolvePlayer(PlayerShooter), -1);
  EXPECT_EQ(Write({100, PlayerShooter, 0, 0, 0}, Number(1)), 851);
}

TEST_F(VariablesTest, FiguresOfTheTableAndOfPartsOfTheSession) {
  PlayAHand();  // bankroll 1010, 1010, 1020, 1010, 1010, 990
  Throw(6, 6);
  const auto of = [](int32_t number, int8_t player, int8_t hand = Session) {
    return Reference{number, player, hand, 0, 0};
  };
  constexpr double Comps = 50 * 0.014141 * 0.3;
  // clang-format off
  ExpectReads({
      {of(variable::AverageBankroll, Ann), (1000 + 1010 * 4 + 1020 + 990 * 2) / 8.0},
      {of(variable::SimulatedHours, 0), 7 / 120.0}, {of(variable::Hands, 0), 2},
      {of(variable::Hands, Ann), 1}, {of(variable::Hands, 0, HandLast), 1},
      {of(variable::RollsPerHand, Ann), 6}, {of(variable::RollsPerHand, 0), 7},
      {of(variable::Comps, Ann), Comps}, {of(variable::Comps, 0), Comps},
      {of(variable::Bankroll, Open), 0},
  });
  // clang-format on
  EXPECT_EQ(AverageBankroll(Ann, 3), (1010 + 990 * 2) / 3.0);
  EXPECT_EQ(AverageBankroll(Ann, 525), (1010 * 4 + 1020 + 990 * 2) / 7.0);
  EXPECT_EQ(AverageBankroll(Open, 3), 0);
}

TEST_F(VariablesTest, RollsAsTheyAreNamed) {
  struct Case {
    int32_t function;
    int8_t set;
    std::vector<ListItem> items;
    double expected;
    int8_t player = 0;
  };
  Throw({{3, 4}, {4, 3}, {2, 2}, {6, 1}});
  const ListItem seven = {0, Number(7)}, four = {0, Number(4)}, one = {0, Number(1)};
  const ListItem above4 = {LogicGreater, Number(4)}, pair = {0, Number(4.3)};
  const ListItem lastPair = {0, ReadVariable({variable::DicePair, 0, 0, 0, 0})};
  // clang-format off
  const Case cases[] = {
      {function::RolledPercent, 0, {seven, seven, one}, 75},
      {function::RolledCount, 0, {above4, seven, four}, 3},
      {function::RollsSinceLast, 0, {four, seven}, 0},
      {function::ProbableCount, ModCombos21, {pair}, 8 / 36.0},
      {function::RolledCount, ModCombos36, {lastPair}, 1},
      {function::ChiSquare, 0, {}, 12.5}, {function::PValue, 0, {}, ChiSquareTail(12.5, 10)},
      {function::RolledCount, 0, {seven}, 3, Ann}, {function::RolledCount, 0, {seven}, 0, Bob},
      {function::RolledCount, 0, {seven}, 0, Open},
  };
  // clang-format on
  for (const Case& row : cases) {
    EXPECT_NEAR(Statistic(row.function, {0, row.player, Session, row.set, 0}, row.items),
                row.expected, 1e-9)
        << row.function << " at " << &row - cases;
  }
}

TEST_F(VariablesTest, SetsOfRollsHaveTheirLimits) {
  struct Case {
    int8_t set;
    double low, high;
    int32_t error;
    int rolls;
  };
  for (const Case& row :
       {Case{0, 1, 12, 1001, 11}, Case{ModBasicNumbers, 1, 12, 1001, 11},
        Case{ModCombos21, 1.1, 6.6, 1009, 21}, Case{ModCombos36, 1.1, 6.6, 1009, 36},
        Case{ModDie1Faces, 1, 6, 1010, 6}, Case{ModDie2Faces, 1, 6, 1010, 6}}) {
    const Reference reference = {0, 0, Session, row.set, 0};
    for (const double number : {row.low, row.high})
      Statistic(function::RolledCount, reference, {{0, Number(number)}});
    for (const double number : {row.low - 1, row.high + 1, 2.75, 1.7, 1e300})
      Statistic(function::RolledCount, reference, {{0, Number(number)}}, row.error);
    EXPECT_EQ(Read({variable::DegreesOfFreedom, 0, Session, row.set, 0}), row.rolls - 1);
    EXPECT_NEAR(Read({4506, 0, Session, row.set, 0}), 100, 1e-9);
  }
  Statistic(function::PointCount, {0, 0, Session, ModPassed, 0}, {{0, Number(7)}}, 1002);
  Statistic(function::ComeoutCount, {0, 0, Session, 0, 0}, {{0, Number(13)}}, 1001);
}

TEST_F(VariablesTest, SkewedDice) {
  Throw(1, 2);
  Probability.ProbabilityMatrix.Shares[TotalColumn][6] = 50'000;  // the sevens
  const Reference table = {0, 0, Session, 0, 0};
  const std::vector<ListItem> seven = {{0, Number(7)}};
  EXPECT_NEAR(Statistic(function::ProbablePercent, table, seven), 100 / 6.0, 1e-9);
  EXPECT_EQ(Statistic(function::SkewedPercent, table, seven), 50);
  Probability.ProbabilityMatrixActive = true;
  EXPECT_EQ(Statistic(function::ProbablePercent, table, seven), 50);
  EXPECT_EQ(Statistic(function::SkewedCount, table, seven), 0.5);
  EXPECT_NEAR(Statistic(function::TrueCount, table, seven), 1 / 6.0, 1e-9);
}

// Every miss of a point is the same seven, so it must not be taken for one of the point that is on.
TEST_F(VariablesTest, PointsMissedWithoutTheOneThatIsOn) {
  // Come-outs 7, 6, 2, 8, 11, 6 and 9; 6 and 9 are made, 8 is missed and 6 is on at the end.
  Throw({{3, 4}, {2, 4}, {3, 3}, {1, 1}, {4, 4}, {5, 2}, {5, 6}, {4, 5}, {3, 6}, {1, 5}});
  const ListItem six = {0, Number(6)}, eight = {0, Number(8)}, below8 = {LogicLess, Number(8)};
  const auto points = [](int32_t function, int8_t first, const std::vector<ListItem>& items) {
    return Statistic(function, {0, 0, Session, first, 0}, items);
  };
  EXPECT_EQ(points(function::PointCount, ModMissed, {six}), 0);
  EXPECT_EQ(points(function::PointCount, ModMissed, {six, eight}), 1);
  EXPECT_EQ(points(function::PointPercent, ModEstablished, {six}), 50);
  EXPECT_EQ(points(function::PointPercent, ModPassed, {below8}), 100);
  EXPECT_NEAR(points(function::PointPercent, ModPassed, {}), 100 * 2 / 3.0, 1e-9);
}

TEST_F(VariablesTest, BetsAndStacksTakeWhatTheRulesLeave) {
  EXPECT_EQ(Write(bet::PassLine, 12.5), None);
  EXPECT_EQ(Read({bet::PassLine, Ann, Session, ModWagered, ModCurrentAmount}), 13);  // whole checks
  EXPECT_EQ(Write(bet::PassLine, 1e30), None);
  EXPECT_EQ(Read({bet::PassLine, Ann, Session, ModWagered, ModCurrentAmount}), 1000);
  EXPECT_EQ(Write(bet::PassLine, -5), None);
  EXPECT_EQ(Read({bet::PassLine, Ann, Session, ModWagered, ModCurrentAmount}), 0);
  EXPECT_EQ(Write(bet::PassLineOdds, 10), None);  // no point to lay them on
  EXPECT_EQ(Bet(Ann, bet::PassLineOdds), Money());
  EXPECT_EQ(Write(107, 0.12345), None);
  EXPECT_EQ(Read({107, Ann, 0, 0, 0}), 0.1234);
  EXPECT_EQ(Write(107, 1e30), None);
  EXPECT_GT(Read({107, Ann, 0, 0, 0}), 99e12);
  EXPECT_THROW(Write(107, std::nan("")), Fault);
  EXPECT_EQ(TextOf(ReadVariable({807, Ann, 0, 0, 0})), "");
  EXPECT_EQ(Write(807, "Mine"), None);
  EXPECT_EQ(TextOf(ReadVariable({807, Ann, 0, 0, 0})), "Mine");
  EXPECT_EQ(Write(807, 2.5), None);
  EXPECT_EQ(TextOf(ReadVariable({807, Ann, 0, 0, 0})), "2.5");
  EXPECT_TRUE(Shown.empty());
}

TEST_F(VariablesTest, OthersNeedTheRight) {
  const Reference bobs = {100, Bob, 0, 0, 0}, openPlaces = {100, Open, 0, 0, 0};
  for (const int32_t right : {0, -1}) {
    Scripts.AllowAct4Others[Ann] = right;
    EXPECT_EQ(Write(bobs, Number(5)), right == 0 ? 852 : None);
    EXPECT_EQ(Read(bobs), right == 0 ? 0 : 5);
    EXPECT_EQ(Write(openPlaces, Number(5)), 851);
    EXPECT_EQ(Write({variable::RollsPerHour, Bob, 0, 0, 0}, Number(90)),
              None);  // the table is everybody's
  }
}

TEST_F(VariablesTest, HandlingByWordsAndNumbers) {
  struct Case {
    int32_t number;
    const char* words;
    int mode, error;
    int slot = 0, operation = 0;
    double amount = 0;
  };
  // clang-format off
  const Case cases[] = {
      {670, "manual", 1, 0}, {670, "Take bet and winnings", 2, 0},
      {670, "same bet / take winnings", 3, 0}, {670, "same bet", 3, 0}, {670, "press 1 unit", 4, 0},
      {670, "PRESS DOUBLE", 5, 0}, {670, "parlay", 6, 0},
      {670, "same bet +5", 7, 0, AutoWinModify, 0, 5},
      {670, "same bet * 1.5 times", 7, 0, AutoWinModify, 2, 1.5},
      {670, "same bet / 2", 7, 0, AutoWinModify, 3, 2}, {670, "bet $10", 8, 0, AutoWinSet, 0, 10},
      {670, "same bet plus 1 unit", 8, 860}, {670, "same bet / 0", 8, 860}, {670, "bet", 8, 860},
      {670, "bet 99999999", 8, 860}, {671, "no bet", 2, 0},
      {671, "no bet/take remainder (if any)", 2, 0}, {671, "same bet", 3, 0},
      {671, "bet remainder", 4, 0}, {671, "same bet plus 1 unit", 5, 0}, {671, "double bet", 6, 0},
      {671, "same bet - 3", 7, 0, AutoLossModify, 1, 3}, {671, "bet 25", 8, 0, AutoLossSet, 0, 25},
      {671, "parlay", 8, 861},
  };
  // clang-format on
  Table.HandleUnits[Ann].fill(3);
  for (const Case& row : cases) {
    SCOPED_TRACE(row.words);
    EXPECT_EQ(Write(row.number, row.words), row.error);
    EXPECT_EQ(Read({row.number, Ann, 0, 0, 0}), row.mode);
    if (row.slot == 0) continue;
    const HandlingRow figures = RowOfSlot(Ann, row.slot);
    EXPECT_EQ(figures.amount.ToDouble(), row.amount);
    EXPECT_EQ(figures.operation, row.operation);
    EXPECT_EQ(figures.units, Money());
  }
  EXPECT_EQ(Write(670, 8), None);
  EXPECT_EQ(Write(670, 9), 860);
  EXPECT_EQ(Write(671, 0.4), 861);
  EXPECT_EQ(Table.HandleWinningBets[Ann], 7);
}

TEST_F(VariablesTest, TheBankrollIsSetBeforeTheFirstRoll) {
  EXPECT_EQ(Write(1300, 250.5), None);
  for (const int32_t number : {1300, 1301, 1302, 1303})
    EXPECT_EQ(Read({number, Ann, Session, 0, 0}), 250.5);
  EXPECT_EQ(Read({1303, Ann, HandAllSessions, 0, 0}), 250.5);
  EXPECT_EQ(Write(1301, -7), None);
  EXPECT_EQ(Read({1301, Ann, Session, 0, 0}), 0);
  EXPECT_EQ(Write(1301, 1e18), None);
  EXPECT_EQ(BankrollOf(Ann), BankrollLimit);
  Throw(1, 2);
  EXPECT_EQ(Write(1301, 500), 870);
  EXPECT_EQ(BankrollOf(Ann), BankrollLimit);
}

TEST_F(VariablesTest, SettingsKeepTheirLimits) {
  struct Case {
    int32_t number;
    double good, bad;
    int32_t error;
  };
  for (const Case& row :
       {Case{5603, 0.0001, 0, 900}, Case{5603, 36e6, 36e6 + 1, 900}, Case{5612, 0, -1, 914},
        Case{5615, 9999, 9999.5, 914}, Case{5655, 1, 0, 905}, Case{5655, 2147483, 2147483648., 905},
        Case{5672, 8, 8.6, 911}, Case{5672, 0, -1, 911}, Case{5691, 1, 1.01, 912},
        Case{5691, 0.25, -0.1, 912}}) {
    SCOPED_TRACE(row.number);
    EXPECT_EQ(Write(row.number, row.good), None);
    EXPECT_EQ(Write(row.number, row.bad), row.error);
    EXPECT_EQ(Write(row.number, 1e300), row.error);
    EXPECT_EQ(Read(row.number), row.good);
  }
  EXPECT_EQ(Write(5612, 7), None);
  EXPECT_EQ(Read(5617), 7);
  Dice.CurrentRNG = 3;
  EXPECT_EQ(Write(5655, 1'000'000), 905);
  Dice.SupportFilesMissing = FirstTwister;
  EXPECT_EQ(Write(5672, 1), 910);
  EXPECT_EQ(Dice.CurrentRNG, 3);
}

TEST_F(VariablesTest, RandomValuesLeaveTheDiceAlone) {
  Twister before = Dice.Twister1;
  std::array<int, 10> tenths{};
  for (int k = 0; k < 10'000; ++k)
    ++tenths.at(static_cast<size_t>(Read(variable::Random) * 10));
  EXPECT_GT(*std::ranges::min_element(tenths), 800);
  EXPECT_EQ(NextWord(Dice.Twister1), NextWord(before));
}

TEST(ValuesTest, LeadingNumbers) {
  const std::pair<const char*, double> cases[] = {{"12 rolls", 12}, {" - 1 2.5.7", -12.5},
                                                  {"+.5x", 0.5},    {"1,000", 1},
                                                  {"$5", 0},        {"1e3", 1},
                                                  {"", 0},          {"-", 0},
                                                  {"5-3", 5}};
  for (const auto& [text, number] : cases)
    EXPECT_EQ(LeadingNumber(text), number) << text;
}

}  // namespace
}  // namespace tessarel
