#include "config/advantage.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <functional>
#include <map>
#include <span>

#include "dice/probability.h"
#include "dice/probability_balance.h"
#include "reset.h"

namespace tessarel {
namespace {

using namespace bet;

// --- The bets as they are played, roll by roll -------------------------------------------------

// What a standing bet remembers between two rolls.
struct Life {
  int Point = 0, Count = 0;
  unsigned Marks = 0;
  auto operator<=>(const Life&) const = default;
};

// What a roll does to a bet: it ends with a result or lives on.
struct Step {
  std::optional<double> Result;
  Life Next;
};

Step Ends(double result) {
  return {result, {}};
}
Step GoesOn(const Life& life) {
  return {{}, life};
}

double Pays(const PayoffRow& row) {
  return row.PayNum.ToDouble() / row.PayDen.ToDouble();
}
double Pays(int number) {
  return Pays(Payoffs.Payoff[number]);
}

// A bet on a number of 1 unit, as a share of the money put down with its vig.
double NumberBetWins(int number) {
  const double win = Pays(number);
  const bool lay = InFamily(number, LayFamily);
  if (!lay && !InFamily(number, BuyFamily)) return win;
  const double vig = lay ? Settings.LayVigPct.ToDouble() * win : Settings.BuyVigPct.ToDouble();
  return (lay ? Settings.LayVigAllBets : Settings.BuyVigAllBets) ? (win - vig) / (1 + vig)
                                                                 : win - vig;
}

bool IsOneOf(int total, std::initializer_list<int> totals) {
  return std::ranges::find(totals, total) != totals.end();
}

double MidwayResult(int total, bool hard) {
  if (total < 6 || total > 8) return -1;
  return Pays(Payoffs.MidwayPayoff[total == 7 ? 3 : total == 6 ? 2 - hard : 4 + hard]);
}

// The result of a bet that no roll leaves as it is.
double OneRollResult(int number, int die1, int die2) {
  const int total = die1 + die2;
  const auto wins = [number](bool won) { return won ? Pays(number) : -1; };
  const auto split = [&](std::initializer_list<int> parts) {
    double sum = 0;
    for (const int part : parts)
      sum += OneRollResult(part, die1, die2);
    return std::abs(sum) < 1e-9 ? 0 : sum / static_cast<double>(parts.size());
  };
  if (IsOneOf(number, {Two, Three})) return wins(total == number - Two + 2);
  if (IsOneOf(number, {Eleven, Twelve})) return wins(total == number - Eleven + 11);
  if (number == Seven) return wins(total == 7);
  if (number == Craps) return wins(IsOneOf(total, {2, 3, 12}));
  if (number == CAndE) return split({Craps, Eleven});
  if (number == Horn) return split({Two, Three, Eleven, Twelve});
  if (number == World) return split({Two, Three, Seven, Eleven, Twelve});
  if (number == Over7) return wins(total > 7);
  if (number == Under7) return wins(total < 7);
  if (number == Midway) return MidwayResult(total, die1 == die2);
  if (number == Field) return Pays(Payoffs.FieldPayoff[PairIndex(die1, die2)]);
  const auto [low, high] = std::minmax(die1, die2);
  return wins(BetName[number] == "Hop " + std::to_string(low) + std::to_string(high));
}

// A bet that a roll wins, loses or leaves as it is; 0 when it is left.
double RollResult(int number, int die1, int die2) {
  const int total = die1 + die2;
  const auto race = [total](bool made, bool lost, double win) {
    return made ? win : lost ? -1 : 0;
  };
  if (number <= DontCome10Odds)
    return race(total == 7, total == PointOf(number), NumberBetWins(number));
  if (number <= Buy10) return race(total == PointOf(number), total == 7, NumberBetWins(number));
  if (IsOneOf(number, {Big6, Big8}))
    return race(total == (number == Big6 ? 6 : 8), total == 7, Pays(number));
  if (number >= Hard4 && number <= Hard10) {
    const bool rolled = total == 4 + 2 * (number - Hard4);
    return race(rolled && die1 == die2, rolled || total == 7, Pays(number));
  }
  const bool natural = IsOneOf(total, {7, 11}), craps = IsOneOf(total, {2, 3, 12});
  if (number == Come) return race(natural, craps, Pays(Come));
  if (number == DontCome)
    return race(craps && total != Settings.BarNumber, natural, Pays(DontCome));
  return OneRollResult(number, die1, die2);
}

Step PlayLine(int number, const Life& life, int total) {
  const bool dont = IsOneOf(number, {DontPass, DontPassOdds});
  const bool odds = IsOneOf(number, {PassLineOdds, DontPassOdds});
  if (life.Point == 0) {
    if (IsPointNumber(total)) return GoesOn({.Point = total});
    if (dont && total == Settings.BarNumber)
      return Advantage.IncludeZeroOutcomes ? Ends(0) : GoesOn({});
    return Ends(IsOneOf(total, {7, 11}) != dont ? Pays(dont ? DontPass : Come) : -1);
  }
  if (total != 7 && total != life.Point) return GoesOn(life);
  if ((total == 7) != dont) return Ends(-1);
  const Family flat = dont ? DontComeFamily : ComeFamily;
  const Family onPoint = dont ? DontComeOddsFamily : ComeOddsFamily;
  return Ends(Pays(BetOn(odds ? onPoint : flat, life.Point)));
}

Step PlayHand(int number, Life life, int total) {
  const int last = number == SharpShooter ? 10 : 11;
  if (life.Point == 0) {
    if (IsPointNumber(total)) life.Point = total;
    if (number == RideTheLine && IsOneOf(total, {7, 11}))
      life.Count = std::min(life.Count + 1, last);
    return GoesOn(life);
  }
  if (total == 7) {
    return Ends(Pays(number == SharpShooter  ? Payoffs.SharpShooterPayoff[life.Count + 1]
                     : number == RideTheLine ? Payoffs.RideTheLinePayoff[life.Count + 1]
                                             : Payoffs.FirePayoff[std::popcount(life.Marks)]));
  }
  if (total != life.Point) return GoesOn(life);
  if (number == Fire) {
    life.Marks |= 1u << total;
  } else {
    life.Count = std::min(life.Count + 1, last);
  }
  life.Point = 0;
  return GoesOn(life);
}

Step PlayCollecting(int number, Life life, int total) {
  const unsigned small = 0x7C, tall = 0x1F00;  // totals 2 to 6 and 8 to 12
  const unsigned wanted = (number != AllTall ? small : 0) | (number != AllSmall ? tall : 0);
  if (total == 7) return Ends(-1);
  life.Marks |= 1u << total & wanted;
  return life.Marks == wanted ? Ends(Pays(number)) : GoesOn(life);
}

Step PlaySeven(int number, const Life& life, int total) {
  if (life.Point == 0 && IsPointNumber(total)) return GoesOn({.Point = total});
  if (total != 7 || (number == Point7 && life.Point == 0)) return Ends(-1);
  return Ends(number == Point7 ? Pays(number)
                               : Pays(Payoffs.SevenPointSevenPayoff[life.Point == 0 ? 1 : 2]));
}

bool IsLine(int number) {
  return IsOneOf(number, {PassLine, PassLineOdds, DontPass, DontPassOdds});
}
bool IsHandBet(int number) {
  return number >= SharpShooter;
}
// Bets whose result spans several rolls, without those on a hand.
bool IsLongBet(int number) {
  return IsLine(number) || (number >= AllSmall && number <= SevenPoint7);
}

Step Play(int number, Life life, int die1, int die2) {
  const int total = die1 + die2;
  if (IsLine(number)) return PlayLine(number, life, total);
  if (IsHandBet(number)) return PlayHand(number, life, total);
  if (IsOneOf(number, {AllSmall, AllTall, MakeAll})) return PlayCollecting(number, life, total);
  if (IsOneOf(number, {Point7, SevenPoint7})) return PlaySeven(number, life, total);
  if (number == FourRollsNo7) {
    if (total == 7) return Ends(-1);
    return ++life.Count == 4 ? Ends(Pays(number)) : GoesOn(life);
  }
  const double result = RollResult(number, die1, die2);
  return result != 0 || Advantage.IncludeZeroOutcomes ? Ends(result) : GoesOn({});
}

template <class Visit>
void ForEachRoll(Visit&& visit) {
  for (int die1 = 1; die1 <= 6; ++die1) {
    for (int die2 = 1; die2 <= 6; ++die2)
      visit(die1, die2);
  }
}

// --- Their exact figures, by solving the chain of their lives ----------------------------------

struct Figures {
  double Value = 0, Square = 0, Rolls = 0;  // of a decision: mean result, its square, mean rolls
  void Add(double chance, const Figures& other) {
    Value += chance * other.Value;
    Square += chance * other.Square;
    Rolls += chance * other.Rolls;
  }
};

class Chain {
 public:
  Chain(int number, const DiceProbabilities& dice) : number_(number), dice_(dice) {
    if (!IsOneOf(number, {PassLineOdds, DontPassOdds})) starts_[Find({})] = 1;
    double any = 0;
    for (const int point : PointNumbers)
      any += At(dice.total, point);
    for (const int point : PointNumbers) {
      if (IsOneOf(number, {PassLineOdds, DontPassOdds}) && At(dice.total, point) != 0)
        starts_[Find({.Point = point})] = At(dice.total, point) / any;
    }
    for (size_t k = 0; k < nodes_.size(); ++k)
      Expand(k);
  }

  // Empty when the bet may stand for ever.
  std::optional<Figures> Solve() {
    if (starts_.empty() || !AlwaysEnds()) return std::nullopt;
    for (double change = 1; change > 1e-13;) {
      change = 0;
      for (size_t k = nodes_.size(); k-- > 0;)
        change = std::max(change, Improve(k));
    }
    Figures figures;
    for (const auto& [start, chance] : starts_)
      figures.Add(chance, nodes_[start].Now);
    return figures;
  }

 private:
  struct Node {
    Life State{};
    Figures Own{}, Now{};             // what the next roll ends; all that is to come
    std::map<size_t, double> Next{};  // where it leads otherwise
    bool CanEnd = false;
  };

  size_t Find(const Life& life) {
    const auto [place, isNew] = index_.try_emplace(life, nodes_.size());
    if (isNew) nodes_.push_back({.State = life});
    return place->second;
  }

  void Expand(size_t k) {
    nodes_[k].Own.Rolls = 1;
    ForEachRoll([&](int die1, int die2) {
      const double chance = At(At(dice_.pair, die1), die2);
      if (chance == 0) return;
      const Step step = Play(number_, nodes_[k].State, die1, die2);
      if (!step.Result) {
        const size_t next = Find(step.Next);
        nodes_[k].Next[next] += chance;
        return;
      }
      nodes_[k].CanEnd = true;
      nodes_[k].Own.Add(chance, {*step.Result, *step.Result * *step.Result, 0});
    });
  }

  bool AlwaysEnds() {
    for (bool found = true; found;) {
      found = false;
      for (Node& node : nodes_) {
        const auto leadsOut = [this](const auto& next) { return nodes_[next.first].CanEnd; };
        if (node.CanEnd || !std::ranges::any_of(node.Next, leadsOut)) continue;
        node.CanEnd = found = true;
      }
    }
    return std::ranges::all_of(nodes_, &Node::CanEnd);
  }

  double Improve(size_t k) {
    Node& node = nodes_[k];
    Figures sum = node.Own;
    double leaving = 1;
    for (const auto& [next, chance] : node.Next) {
      if (next == k) {
        leaving -= chance;
      } else {
        sum.Add(chance, nodes_[next].Now);
      }
    }
    const Figures before = std::exchange(node.Now, {});
    node.Now.Add(1 / leaving, sum);
    return std::max(std::abs(node.Now.Rolls - before.Rolls) / node.Now.Rolls,
                    std::abs(node.Now.Square - before.Square) / (1 + node.Now.Square));
  }

  int number_;
  DiceProbabilities dice_;
  std::map<Life, size_t> index_;
  std::vector<Node> nodes_;
  std::map<size_t, double> starts_;
};

// --- The comparison ----------------------------------------------------------------------------

constexpr double SixDecimals = 5.001e-7;

void ExpectFigures(int number, const DiceProbabilities& dice) {
  SCOPED_TRACE(BetName[number]);
  const AdvantageResult result = FigureAdvantage(number, dice);
  const std::optional<Figures> played = Chain(number, dice).Solve();
  const bool hand = IsHandBet(number), zeroes = Advantage.IncludeZeroOutcomes;
  if (!played) {
    EXPECT_EQ(result.RollsPerDec, 0);
    EXPECT_EQ(result.EvPerRoll, 0);
    EXPECT_EQ(result.StDevPerRoll, 0);
    EXPECT_TRUE(hand || result.EvPerDec == 0);
    return;
  }
  const auto [value, square, rolls] = *played;
  const double perRoll = value / rolls;
  // The difference of two squares that are equal but for their last digits is none.
  const auto apart = [square = square](double difference) {
    return difference < 1e-12 * square ? 0 : difference;
  };
  const double variance = apart(square - value * value);
  EXPECT_NEAR(result.EvPerRoll, perRoll, SixDecimals);
  EXPECT_NEAR(result.EvPerDec, hand && zeroes ? perRoll : value, SixDecimals);
  EXPECT_NEAR(result.RollsPerDec, rolls, IsLongBet(number) || hand ? SixDecimals : 0.0050001);

  double rollVariance = apart(square / rolls - perRoll * perRoll);
  if (hand) rollVariance = variance / rolls;
  if (IsLongBet(number))
    rollVariance = apart(square - 2 * perRoll * value + perRoll * perRoll) / rolls;
  const double barred = number == DontPass ? At(dice.total, Settings.BarNumber) : 0;
  if (barred != 0 && zeroes) return;
  EXPECT_NEAR(result.StDevPerRoll, std::sqrt(rollVariance), SixDecimals);
  EXPECT_NEAR(result.StDevPerDec,
              std::sqrt(hand && zeroes ? rollVariance : variance * (1 - barred)), SixDecimals);
}

// Dice from weights of the ordered pairs.
DiceProbabilities Loaded(const std::function<double(int, int)>& weight) {
  DiceProbabilities dice;
  double sum = 0;
  ForEachRoll([&](int die1, int die2) { sum += weight(die1, die2); });
  ForEachRoll([&](int die1, int die2) {
    At(dice.total, die1 + die2) += At(At(dice.pair, die1), die2) = weight(die1, die2) / sum;
  });
  return dice;
}

const DiceProbabilities NoSevensAndTens =
    Loaded([](int a, int b) { return a + b == 7 || a + b == 10 ? 0.0 : 1.0; });

const std::pair<const char*, DiceProbabilities> DiceCases[] = {
    {"true dice", TrueDice()},
    {"loaded faces", Loaded([](int a, int b) { return (4.0 + a) * (9.0 - b); })},
    {"loaded pairs", Loaded([](int a, int b) { return 1.0 + (7 * a + 5 * b + a * b) % 11; })},
    {"few sevens", Loaded([](int a, int b) { return a + b == 7 ? 0.02 : 1.0; })},
    {"no sevens", Loaded([](int a, int b) { return a + b == 7 ? 0.0 : 1.0 * a + b; })},
    {"no fours", Loaded([](int a, int b) { return a + b == 4 ? 0.0 : 1.0; })},
    {"no sevens and tens", NoSevensAndTens},
    {"no points", Loaded([](int a, int b) { return IsPointNumber(a + b) ? 0.0 : 1.0; })},
    {"sevens only", Loaded([](int a, int b) { return a + b == 7 ? 1.0 : 0.0; })},
};

class HouseAdvantage : public FreshTest {
 protected:
  static void ExpectAllFigures() {
    for (const auto& [name, dice] : DiceCases) {
      SCOPED_TRACE(name);
      for (int number = 1; number <= LastBet; ++number)
        ExpectFigures(number, dice);
    }
  }
};

TEST_F(HouseAdvantage, AgreesWithTheBetsAsPlayed) {
  ExpectAllFigures();
}

TEST_F(HouseAdvantage, FollowsThePayoffsAndTheBarredNumber) {
  int next = 0;  // every row of every table pays something else
  for (const std::span<PayoffRow> rows :
       {std::span<PayoffRow>(Payoffs.Payoff), std::span<PayoffRow>(Payoffs.FieldPayoff),
        std::span<PayoffRow>(Payoffs.SevenPointSevenPayoff),
        std::span<PayoffRow>(Payoffs.MidwayPayoff),
        std::span<PayoffRow>(Payoffs.SharpShooterPayoff),
        std::span<PayoffRow>(Payoffs.RideTheLinePayoff),
        std::span<PayoffRow>(Payoffs.FirePayoff)}) {
    for (PayoffRow& row : rows) {
      ++next;
      row.PayNum = next * 7 % 101 + 1;
      row.PayDen = next % 7 + 1;
    }
  }
  Payoffs.FieldPayoff[5].PayNum = 0;
  Payoffs.FieldPayoff[9].PayNum = -Payoffs.FieldPayoff[9].PayDen;
  Settings.BarNumber = 2;
  ExpectAllFigures();
}

TEST_F(HouseAdvantage, FollowsTheVigOnWinsOnly) {
  Settings.BuyVigAllBets = Settings.LayVigAllBets = false;
  Settings.BuyVigPct = Money::FromRaw(400);
  Settings.LayVigPct = Money::FromRaw(250);
  ExpectAllFigures();
}

TEST_F(HouseAdvantage, CountsZeroOutcomesAsDecisions) {
  Advantage.IncludeZeroOutcomes = true;
  ExpectAllFigures();

  // The barred number adds a decision, though no term to the deviation.
  const AdvantageResult dontPass = FigureAdvantage(DontPass, TrueDice());
  const double value = -3.0 / 220, decided = 35.0 / 36;
  EXPECT_DOUBLE_EQ(dontPass.EvPerDec, -0.013636);
  EXPECT_NEAR(dontPass.StDevPerDec,
              std::sqrt(decided - 2 * value * value + decided * value * value), SixDecimals);
}

TEST_F(HouseAdvantage, KnownFigures) {
  // A laid 4 with 5 percent up front wins 0.463415 of the money put down; a seven returns the World
  // bet. Hands that never end pay for all that can be made.
  const DiceProbabilities& sevens = std::end(DiceCases)[-1].second;
  const std::tuple<int, DiceProbabilities, double> cases[] = {{PassLine, TrueDice(), -0.014141},
                                                              {DontPass, TrueDice(), -0.014026},
                                                              {PassLineOdds, TrueDice(), 0},
                                                              {Hard8, TrueDice(), -0.090909},
                                                              {World, TrueDice(), -0.16},
                                                              {AllSmall, TrueDice(), -0.077613},
                                                              {MakeAll, TrueDice(), -0.074644},
                                                              {Fire, TrueDice(), -0.207628},
                                                              {Lay4, sevens, 0.463415},
                                                              {SharpShooter, NoSevensAndTens, 299},
                                                              {RideTheLine, NoSevensAndTens, 100},
                                                              {Fire, NoSevensAndTens, 249}};
  for (const auto& [number, dice, perDecision] : cases)
    EXPECT_DOUBLE_EQ(FigureAdvantage(number, dice).EvPerDec, perDecision) << BetName[number];
  EXPECT_DOUBLE_EQ(FigureAdvantage(PassLine).RollsPerDec, 557.0 / 165);
}

// Sevens at 30 percent, 5 a pair, and all other pairs at 2.333: not quite 100 together.
TEST_F(HouseAdvantage, FollowsAnActiveMatrix) {
  BalanceMatrix(TotalColumn, 6, 30'000);
  EXPECT_DOUBLE_EQ(FigureAdvantage(Seven).EvPerDec, -0.166667) << "not active yet";
  Probability.ProbabilityMatrixActive = true;
  EXPECT_DOUBLE_EQ(FigureAdvantage(Seven).EvPerRoll, 0.5001);
  EXPECT_DOUBLE_EQ(FigureAdvantage(Seven).EvPerDec, 0.50015);
  EXPECT_DOUBLE_EQ(FigureAdvantage(Place6).EvPerRoll, -0.163908);
  EXPECT_DOUBLE_EQ(FigureAdvantage(FourRollsNo7).RollsPerDec, 2.533);
}

// A file of dice may hold anything: totals that are not the sums of their pairs, shares below zero.
TEST_F(HouseAdvantage, AnyDiceAreFigured) {
  DiceProbabilities dice = TrueDice();
  dice.pair[3][3] = 2 / 36.0;
  EXPECT_DOUBLE_EQ(FigureAdvantage(Hop33, dice).EvPerRoll,
                   std::round((30 * 2 - 35) / 36.0 * 1e6) / 1e6);
  EXPECT_DOUBLE_EQ(FigureAdvantage(PassLine, dice).EvPerDec, -0.014141);
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
  // 1 / 0.32 is 3.125, rounded away from zero.
  dice = {};
  dice.total[6] = dice.pair[3][3] = dice.total[7] = dice.pair[3][4] = 0.16;
  dice.total[2] = dice.pair[1][1] = 0.68;
  EXPECT_EQ(FigureAdvantage(Place6, dice).RollsPerDec, 3.13);
}

TEST_F(HouseAdvantage, RefusesWhatIsNoBetAndWhatCannotBeDivided) {
  Payoffs.Payoff[Place6].PayDen = 0;
  for (const int number : {0, LastBet + 1, +Place6})
    EXPECT_THROW(FigureAdvantage(number), Fault) << number;
}

}  // namespace
}  // namespace tessarel
