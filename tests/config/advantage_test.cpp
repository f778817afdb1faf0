#include "config/advantage.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <cmath>
#include <functional>
#include <map>
#include <numeric>
#include <optional>
#include <span>
#include <vector>

#include "base/fault.h"
#include "dice/probability.h"
#include "dice/probability_balance.h"
#include "state/payoffs.h"
#include "state/settings.h"
#include "state/table.h"

namespace tessarel {
namespace {

// --- The bets as they are played, roll by roll -------------------------------------------------

// What a standing bet remembers between two rolls.
struct Life {
  int Point = 0, Count = 0;
  unsigned Marks = 0;
  auto operator<=>(const Life&) const = default;
};

// What a roll does to a bet: it ends with a result or goes on.
struct Step {
  bool Ends = false;
  double Result = 0;
  Life Next;
};

Step Ends(double result) {
  return {true, result, {}};
}
Step GoesOn(const Life& life) {
  return {false, 0, life};
}

double Pays(const PayoffRow& row) {
  return row.PayNum.ToDouble() / row.PayDen.ToDouble();
}
double Pays(int number) {
  return Pays(Payoffs.Payoff[number]);
}

// A Lay or Buy bet of 1 unit, as a share of the money put down with its vig.
double NumberBetWins(int number) {
  const double win = Pays(number);
  const bool lay = InFamily(number, LayFamily), buy = InFamily(number, BuyFamily);
  if (!lay && !buy) return win;
  const double vig = lay ? Settings.LayVigPct.ToDouble() * win : Settings.BuyVigPct.ToDouble();
  const bool upFront = (lay ? Settings.LayVigAllBets : Settings.BuyVigAllBets) != 0;
  return upFront ? (win - vig) / (1 + vig) : win - vig;
}

bool IsOneOf(int total, std::initializer_list<int> totals) {
  return std::find(totals.begin(), totals.end(), total) != totals.end();
}

double HopResult(int number, int die1, int die2) {
  int hop = bet::Hop13;
  for (int low = 1; low <= 6; ++low) {
    for (int high = low; high <= 6; ++high) {
      if (IsOneOf(low + high, {2, 3, 11, 12})) continue;
      if (hop++ != number) continue;
      const bool rolled = std::min(die1, die2) == low && std::max(die1, die2) == high;
      return rolled ? Pays(number) : -1;
    }
  }
  return 0;
}

double MidwayResult(int die1, int die2) {
  const bool hard = die1 == die2;
  switch (die1 + die2) {
    case 6:
      return Pays(Payoffs.MidwayPayoff[hard ? 1 : 2]);
    case 7:
      return Pays(Payoffs.MidwayPayoff[3]);
    case 8:
      return Pays(Payoffs.MidwayPayoff[hard ? 5 : 4]);
    default:
      return -1;
  }
}

double SplitResult(std::initializer_list<int> parts, int die1, int die2);

// The result of a bet that no roll leaves as it is.
double OneRollResult(int number, int die1, int die2) {
  const int total = die1 + die2;
  const auto if_ = [number](bool wins) { return wins ? Pays(number) : -1; };
  using namespace bet;
  switch (number) {
    case Two:
    case Three:
      return if_(total == number - Two + 2);
    case Seven:
      return if_(total == 7);
    case Eleven:
    case Twelve:
      return if_(total == number - Eleven + 11);
    case Craps:
      return if_(IsOneOf(total, {2, 3, 12}));
    case CAndE:
      return SplitResult({Craps, Eleven}, die1, die2);
    case Horn:
      return SplitResult({Two, Three, Eleven, Twelve}, die1, die2);
    case World:
      return SplitResult({Two, Three, Seven, Eleven, Twelve}, die1, die2);
    case Over7:
      return if_(total > 7);
    case Under7:
      return if_(total < 7);
    case Midway:
      return MidwayResult(die1, die2);
    case Field:
      return Pays(Payoffs.FieldPayoff[PairIndex(die1, die2)]);
    default:
      return HopResult(number, die1, die2);
  }
}

double SplitResult(std::initializer_list<int> parts, int die1, int die2) {
  double sum = 0;
  for (const int part : parts)
    sum += OneRollResult(part, die1, die2);
  return std::abs(sum) < 1e-9 ? 0 : sum / static_cast<double>(parts.size());
}

// A bet that a roll wins, loses or leaves as it is; 0 when it is left.
double RollResult(int number, int die1, int die2) {
  const int total = die1 + die2;
  using namespace bet;
  if (number <= DontCome10Odds)
    return total == 7 ? NumberBetWins(number) : total == PointOf(number) ? -1 : 0;
  if (number <= Buy10)
    return total == 7 ? -1 : total == PointOf(number) ? NumberBetWins(number) : 0;
  if (number == Big6 || number == Big8)
    return total == 7 ? -1 : total == (number == Big6 ? 6 : 8) ? Pays(number) : 0;
  if (number >= Hard4 && number <= Hard10) {
    const int hard = 4 + 2 * (number - Hard4);
    return total == 7 ? -1 : total != hard ? 0 : die1 == die2 ? Pays(number) : -1;
  }
  if (number == Come)
    return IsOneOf(total, {7, 11}) ? Pays(Come) : IsOneOf(total, {2, 3, 12}) ? -1 : 0;
  if (number == DontCome) {
    if (total == Settings.BarNumber || IsPointNumber(total)) return 0;
    return IsOneOf(total, {7, 11}) ? -1 : Pays(DontCome);
  }
  return OneRollResult(number, die1, die2);
}

Step PlayLine(int number, const Life& life, int total) {
  using namespace bet;
  const bool dont = number == DontPass || number == DontPassOdds;
  const bool odds = number == PassLineOdds || number == DontPassOdds;
  if (life.Point == 0) {
    if (IsPointNumber(total)) return GoesOn({.Point = total});
    if (dont && total == Settings.BarNumber)
      return Advantage.IncludeZeroOutcomes ? Ends(0) : GoesOn({});
    return Ends(IsOneOf(total, {7, 11}) != dont ? Pays(dont ? DontPass : Come) : -1);
  }
  if (total != 7 && total != life.Point) return GoesOn(life);
  if ((total == 7) != dont) return Ends(-1);
  const Family family = dont   ? odds ? DontComeOddsFamily : DontComeFamily
                        : odds ? ComeOddsFamily
                               : ComeFamily;
  return Ends(Pays(BetOn(family, life.Point)));
}

Step PlayHand(int number, Life life, int total) {
  if (life.Point == 0) {
    if (IsPointNumber(total)) life.Point = total;
    if (number == bet::RideTheLine && IsOneOf(total, {7, 11}))
      life.Count = std::min(life.Count + 1, 11);
    return GoesOn(life);
  }
  if (total == 7) {
    const int made = std::popcount(life.Marks);
    return Ends(Pays(number == bet::SharpShooter  ? Payoffs.SharpShooterPayoff[life.Count + 1]
                     : number == bet::RideTheLine ? Payoffs.RideTheLinePayoff[life.Count + 1]
                                                  : Payoffs.FirePayoff[made]));
  }
  if (total != life.Point) return GoesOn(life);
  if (number == bet::Fire) {
    life.Marks |= 1u << total;
  } else {
    life.Count = std::min(life.Count + 1, number == bet::SharpShooter ? 10 : 11);
  }
  life.Point = 0;
  return GoesOn(life);
}

Step PlayCollecting(int number, Life life, int total) {
  const unsigned small = 0x7C, tall = 0x1F00;  // totals 2 to 6 and 8 to 12
  const unsigned wanted =
      (number != bet::AllTall ? small : 0) | (number != bet::AllSmall ? tall : 0);
  if (total == 7) return Ends(-1);
  life.Marks |= 1u << total & wanted;
  return life.Marks == wanted ? Ends(Pays(number)) : GoesOn(life);
}

Step Play(int number, Life life, int die1, int die2) {
  const int total = die1 + die2;
  using namespace bet;
  switch (number) {
    case PassLine:
    case PassLineOdds:
    case DontPass:
    case DontPassOdds:
      return PlayLine(number, life, total);
    case FourRollsNo7:
      if (total == 7) return Ends(-1);
      return ++life.Count == 4 ? Ends(Pays(number)) : GoesOn(life);
    case Point7:
    case SevenPoint7: {
      const auto& rows = Payoffs.SevenPointSevenPayoff;
      if (life.Point == 0 && IsPointNumber(total)) return GoesOn({.Point = total});
      if (total != 7 || (number == Point7 && life.Point == 0)) return Ends(-1);
      return Ends(number == Point7 ? Pays(number) : Pays(rows[life.Point == 0 ? 1 : 2]));
    }
    case AllSmall:
    case AllTall:
    case MakeAll:
      return PlayCollecting(number, life, total);
    case SharpShooter:
    case RideTheLine:
    case Fire:
      return PlayHand(number, life, total);
    default: {
      const double result = RollResult(number, die1, die2);
      return result != 0 || Advantage.IncludeZeroOutcomes ? Ends(result) : GoesOn({});
    }
  }
}

// --- Their exact figures, by solving the chain of their lives ----------------------------------

struct Figures {
  double Value = 0, Square = 0, Rolls = 0;  // of a decision: mean result, its square, mean rolls
};

class Chain {
 public:
  Chain(int number, const DiceProbabilities& dice) : number_(number), dice_(dice) {
    if (number != bet::PassLineOdds && number != bet::DontPassOdds) {
      starts_.push_back({Find({}), 1});
    } else {
      double any = 0;
      for (const int point : PointNumbers)
        any += At(dice.total, point);
      for (const int point : PointNumbers) {
        if (At(dice.total, point) != 0)
          starts_.push_back({Find({.Point = point}), At(dice.total, point) / any});
      }
    }
    for (size_t k = 0; k < nodes_.size(); ++k)
      Expand(k);
  }

  // Empty when the bet may stand for ever.
  std::optional<Figures> Solve() {
    if (starts_.empty() || !AlwaysEnds()) return std::nullopt;
    double change = 1;
    while (change > 1e-13) {
      change = 0;
      for (size_t k = nodes_.size(); k-- > 0;)
        change = std::max(change, Improve(k));
    }
    Figures figures;
    for (const auto& [start, chance] : starts_) {
      figures.Value += chance * nodes_[start].Now.Value;
      figures.Square += chance * nodes_[start].Now.Square;
      figures.Rolls += chance * nodes_[start].Now.Rolls;
    }
    return figures;
  }

 private:
  struct Node {
    Life State{};
    Figures Own{}, Now{};             // what the next roll ends; all that is to come
    std::map<size_t, double> Next{};  // where it leads otherwise
    double Ending = 0;
  };

  size_t Find(const Life& life) {
    const auto [place, isNew] = index_.try_emplace(life, nodes_.size());
    if (isNew) nodes_.push_back({.State = life});
    return place->second;
  }

  void Expand(size_t k) {
    for (int die1 = 1; die1 <= 6; ++die1) {
      for (int die2 = 1; die2 <= 6; ++die2) {
        const double chance = At(At(dice_.pair, die1), die2);
        if (chance == 0) continue;
        const Step step = Play(number_, nodes_[k].State, die1, die2);
        if (!step.Ends) {
          const size_t next = Find(step.Next);
          nodes_[k].Next[next] += chance;
          continue;
        }
        nodes_[k].Ending += chance;
        nodes_[k].Own.Value += chance * step.Result;
        nodes_[k].Own.Square += chance * step.Result * step.Result;
      }
    }
  }

  bool AlwaysEnds() const {
    std::vector<char> ends(nodes_.size(), 0);
    for (bool found = true; found;) {
      found = false;
      for (size_t k = 0; k < nodes_.size(); ++k) {
        if (ends[k] != 0) continue;
        bool now = nodes_[k].Ending > 0;
        for (const auto& [next, chance] : nodes_[k].Next)
          now = now || ends[next] != 0;
        if (now) ends[k] = found = true;
      }
    }
    return std::accumulate(ends.begin(), ends.end(), size_t{0}) == ends.size();
  }

  double Improve(size_t k) {
    Node& node = nodes_[k];
    Figures sum = node.Own;
    sum.Rolls = 1;
    double leaving = 1;
    for (const auto& [next, chance] : node.Next) {
      if (next == k) {
        leaving -= chance;
        continue;
      }
      sum.Value += chance * nodes_[next].Now.Value;
      sum.Square += chance * nodes_[next].Now.Square;
      sum.Rolls += chance * nodes_[next].Now.Rolls;
    }
    const double before = node.Now.Rolls;
    const double squareBefore = node.Now.Square;
    node.Now = {sum.Value / leaving, sum.Square / leaving, sum.Rolls / leaving};
    return std::max(std::abs(node.Now.Rolls - before) / node.Now.Rolls,
                    std::abs(node.Now.Square - squareBefore) / (1 + node.Now.Square));
  }

  int number_;
  DiceProbabilities dice_;
  std::map<Life, size_t> index_;
  std::vector<Node> nodes_;
  std::vector<std::pair<size_t, double>> starts_;
};

// --- The comparison ----------------------------------------------------------------------------

bool IsHandBet(int number) {
  return number >= bet::SharpShooter;
}

// Bets whose result spans several rolls, without those on a hand.
bool IsLongBet(int number) {
  return IsOneOf(number, {bet::PassLine, bet::PassLineOdds, bet::DontPass, bet::DontPassOdds}) ||
         (number >= bet::AllSmall && number <= bet::SevenPoint7);
}

constexpr double SixDecimals = 5.001e-7;

void ExpectFigures(int number, const DiceProbabilities& dice) {
  SCOPED_TRACE(BetName[number]);
  const AdvantageResult result = FigureAdvantage(number, dice);
  const std::optional<Figures> played = Chain(number, dice).Solve();
  if (!played) {
    EXPECT_EQ(result.RollsPerDec, 0);
    EXPECT_EQ(result.EvPerRoll, 0);
    EXPECT_EQ(result.StDevPerRoll, 0);
    if (!IsHandBet(number)) {
      EXPECT_EQ(result.EvPerDec, 0);
    }
    return;
  }
  const auto [value, square, rolls] = *played;
  const double perRoll = value / rolls;
  // The difference of two squares that are equal but for their last digits is none.
  const auto apart = [square = square](double difference) {
    return difference < 1e-12 * square ? 0 : difference;
  };
  const double variance = apart(square - value * value);
  const bool oneRoll = !IsLongBet(number) && !IsHandBet(number);
  const bool zeroes = Advantage.IncludeZeroOutcomes;
  EXPECT_NEAR(result.EvPerRoll, perRoll, SixDecimals);
  EXPECT_NEAR(result.EvPerDec, IsHandBet(number) && zeroes ? perRoll : value, SixDecimals);
  EXPECT_NEAR(result.RollsPerDec, rolls, oneRoll ? 0.0050001 : SixDecimals);

  double rollVariance = apart(square / rolls - perRoll * perRoll);
  if (IsHandBet(number)) rollVariance = variance / rolls;
  if (IsLongBet(number))
    rollVariance = apart(square - 2 * perRoll * value + perRoll * perRoll) / rolls;
  const double barred = number == bet::DontPass ? At(dice.total, Settings.BarNumber) : 0;
  if (barred != 0 && zeroes) return;
  EXPECT_NEAR(result.StDevPerRoll, std::sqrt(rollVariance), SixDecimals);
  EXPECT_NEAR(result.StDevPerDec,
              std::sqrt(IsHandBet(number) && zeroes ? rollVariance : variance * (1 - barred)),
              SixDecimals);
}

// Dice from weights of the ordered pairs.
DiceProbabilities Loaded(const std::function<double(int, int)>& weight) {
  DiceProbabilities dice;
  double sum = 0;
  for (int die1 = 1; die1 <= 6; ++die1) {
    for (int die2 = 1; die2 <= 6; ++die2)
      sum += weight(die1, die2);
  }
  for (int die1 = 1; die1 <= 6; ++die1) {
    for (int die2 = 1; die2 <= 6; ++die2)
      At(dice.total, die1 + die2) += At(At(dice.pair, die1), die2) = weight(die1, die2) / sum;
  }
  return dice;
}

struct {
  const char* Name;
  DiceProbabilities Dice;
} const DiceCases[] = {
    {"true dice", TrueDice()},
    {"loaded faces", Loaded([](int a, int b) { return (4.0 + a) * (9.0 - b); })},
    {"loaded pairs", Loaded([](int a, int b) { return 1.0 + (7 * a + 5 * b + a * b) % 11; })},
    {"few sevens", Loaded([](int a, int b) { return a + b == 7 ? 0.02 : 1.0; })},
    {"no sevens", Loaded([](int a, int b) { return a + b == 7 ? 0.0 : 1.0 * a + b; })},
    {"no fours", Loaded([](int a, int b) { return a + b == 4 ? 0.0 : 1.0; })},
    {"no sevens and tens",
     Loaded([](int a, int b) { return a + b == 7 || a + b == 10 ? 0.0 : 1.0; })},
    {"no points", Loaded([](int a, int b) { return IsPointNumber(a + b) ? 0.0 : 1.0; })},
    {"sevens only", Loaded([](int a, int b) { return a + b == 7 ? 1.0 : 0.0; })},
};

class HouseAdvantage : public ::testing::Test {
 protected:
  void SetUp() override { Reset(); }
  void TearDown() override { Reset(); }
  static void Reset() {
    Settings = {};
    Advantage = {};
    DefaultPayoffs();
  }

  static void ExpectAllFigures() {
    for (const auto& [name, dice] : DiceCases) {
      SCOPED_TRACE(name);
      for (int number = 1; number <= LastBet; ++number)
        ExpectFigures(number, dice);
    }
  }

  // Every row of every table pays something else.
  static void ChangeAllPayoffs() {
    int next = 0;
    const auto change = [&next](std::span<PayoffRow> rows) {
      for (PayoffRow& row : rows) {
        ++next;
        row.PayNum = next * 7 % 101 + 1;
        row.PayDen = next % 7 + 1;
      }
    };
    change(Payoffs.Payoff);
    change(Payoffs.FieldPayoff);
    change(Payoffs.SevenPointSevenPayoff);
    change(Payoffs.MidwayPayoff);
    change(Payoffs.SharpShooterPayoff);
    change(Payoffs.RideTheLinePayoff);
    change(Payoffs.FirePayoff);
    Payoffs.FieldPayoff[5].PayNum = 0;
    Payoffs.FieldPayoff[9].PayNum = -Payoffs.FieldPayoff[9].PayDen;
  }
};

TEST_F(HouseAdvantage, AgreesWithTheBetsAsPlayed) {
  ExpectAllFigures();
}

TEST_F(HouseAdvantage, FollowsThePayoffsAndTheBarredNumber) {
  ChangeAllPayoffs();
  Settings.BarNumber = 2;
  ExpectAllFigures();
}

TEST_F(HouseAdvantage, FollowsTheVigOnWinsOnly) {
  Settings.BuyVigAllBets = Settings.LayVigAllBets = false;
  Settings.BuyVigPct = Money::FromRaw(400);
  Settings.LayVigPct = Money::FromRaw(250);
  for (const auto& [name, dice] : DiceCases) {
    SCOPED_TRACE(name);
    for (const Family family : {LayFamily, BuyFamily}) {
      for (const int point : PointNumbers)
        ExpectFigures(BetOn(family, point), dice);
    }
  }
}

TEST_F(HouseAdvantage, CountsZeroOutcomesAsDecisions) {
  Advantage.IncludeZeroOutcomes = true;
  ExpectAllFigures();

  // The barred number adds a decision, though no term to the deviation.
  const AdvantageResult dontPass = FigureAdvantage(bet::DontPass, TrueDice());
  const double value = -3.0 / 220, decided = 35.0 / 36;
  EXPECT_DOUBLE_EQ(dontPass.EvPerDec, -0.013636);
  EXPECT_NEAR(dontPass.StDevPerDec,
              std::sqrt(decided - 2 * value * value + decided * value * value), SixDecimals);
}

TEST_F(HouseAdvantage, KnownFigures) {
  struct {
    int Number;
    double EvPerRoll, EvPerDec, RollsPerDec;
  } const cases[] = {
      {bet::PassLine, -0.004189, -0.014141, 557.0 / 165},
      {bet::DontPass, -0.004039, -0.014026, 557.0 / 165 * 36 / 35},
      {bet::Place6, -0.00463, -0.015152, 3.27},
      {bet::PassLineOdds, 0, 0, 0.25 * 4 + 1.0 / 3 * 3.6 + 5.0 / 12 * 36 / 11},
      {bet::Seven, -0.166667, -0.166667, 1},
      {bet::Hard8, -0.027778, -0.090909, 3.27},
      {bet::World, -0.133333, -0.16, 1.2},  // a seven only returns the bet
  };
  for (const auto& c : cases) {
    const AdvantageResult result = FigureAdvantage(c.Number);
    EXPECT_DOUBLE_EQ(result.EvPerRoll, c.EvPerRoll) << BetName[c.Number];
    EXPECT_DOUBLE_EQ(result.EvPerDec, c.EvPerDec) << BetName[c.Number];
    EXPECT_DOUBLE_EQ(result.RollsPerDec, c.RollsPerDec) << BetName[c.Number];
  }
  EXPECT_DOUBLE_EQ(FigureAdvantage(bet::AllSmall).EvPerDec, -0.077613);
  EXPECT_DOUBLE_EQ(FigureAdvantage(bet::MakeAll).EvPerDec, -0.074644);
  EXPECT_DOUBLE_EQ(FigureAdvantage(bet::Fire).EvPerDec, -0.207628);

  // A laid 4 with 5 percent up front wins 0.463415 of the money put down.
  DiceProbabilities sevens;
  sevens.total[7] = sevens.pair[3][4] = 1;
  EXPECT_DOUBLE_EQ(FigureAdvantage(bet::Lay4, sevens).EvPerDec, 0.463415);
}

TEST_F(HouseAdvantage, HandsThatNeverEndPayForAllThatCanBeMade) {
  const DiceProbabilities& noSevensAndTens = DiceCases[6].Dice;
  EXPECT_DOUBLE_EQ(FigureAdvantage(bet::SharpShooter, noSevensAndTens).EvPerDec, 299);
  EXPECT_DOUBLE_EQ(FigureAdvantage(bet::RideTheLine, noSevensAndTens).EvPerDec, 100);
  EXPECT_DOUBLE_EQ(FigureAdvantage(bet::Fire, noSevensAndTens).EvPerDec, 249);
}

// Sevens at 30 percent, 5 a pair, and all other pairs at 2.333: not quite 100 together.
TEST_F(HouseAdvantage, FollowsAnActiveMatrix) {
  BalanceMatrix(TotalColumn, 6, 30'000);
  EXPECT_DOUBLE_EQ(FigureAdvantage(bet::Seven).EvPerDec, -0.166667) << "not active yet";
  Probability.ProbabilityMatrixActive = true;
  const AdvantageResult seven = FigureAdvantage(bet::Seven);
  EXPECT_DOUBLE_EQ(seven.EvPerRoll, 0.5001);
  EXPECT_DOUBLE_EQ(seven.EvPerDec, 0.50015);
  EXPECT_DOUBLE_EQ(FigureAdvantage(bet::Place6).EvPerRoll, -0.163908);
  EXPECT_DOUBLE_EQ(FigureAdvantage(bet::FourRollsNo7).RollsPerDec, 2.533);
  Probability = {};
}

TEST_F(HouseAdvantage, TotalsAndPairsOfTheDiceAreReadApart) {
  DiceProbabilities dice = TrueDice();
  dice.pair[3][3] = 2 / 36.0;
  EXPECT_DOUBLE_EQ(FigureAdvantage(bet::Hop33, dice).EvPerRoll,
                   std::round((30 * 2 - 35) / 36.0 * 1e6) / 1e6);
  EXPECT_DOUBLE_EQ(FigureAdvantage(bet::PassLine, dice).EvPerDec, -0.014141);
}

// A file of dice may hold anything, shares below zero included.
TEST_F(HouseAdvantage, StaysFiniteForAnyDice) {
  DiceProbabilities dice = TrueDice();
  for (const int total : PointNumbers) {
    At(dice.total, total) = -dice.total[7];
    At(dice.pair[1], total / 2) = -0.5;
  }
  for (int number = 1; number <= LastBet; ++number) {
    const AdvantageResult result = FigureAdvantage(number, dice);
    for (const double figure : {result.EvPerRoll, result.EvPerDec, result.RollsPerDec,
                                result.StDevPerRoll, result.StDevPerDec})
      EXPECT_TRUE(std::isfinite(figure)) << BetName[number];
  }
}

TEST_F(HouseAdvantage, RollsRoundAwayFromZeroAtATie) {
  // 1 / 0.32 is 3.125.
  DiceProbabilities dice;
  dice.total[6] = dice.pair[3][3] = 0.16;
  dice.total[7] = dice.pair[3][4] = 0.16;
  dice.total[2] = dice.pair[1][1] = 0.68;
  EXPECT_EQ(FigureAdvantage(bet::Place6, dice).RollsPerDec, 3.13);
}

TEST_F(HouseAdvantage, RefusesWhatIsNoBetAndWhatCannotBeDivided) {
  EXPECT_THROW(FigureAdvantage(0), Fault);
  EXPECT_THROW(FigureAdvantage(LastBet + 1), Fault);
  Payoffs.Payoff[bet::Place6].PayDen = 0;
  EXPECT_THROW(FigureAdvantage(bet::Place6), Fault);
}

}  // namespace
}  // namespace tessarel
