#include "dice/probability.h"
#include "engine/unattended.h"

#include <gtest/gtest.h>

#include <map>
#include <utility>
#include <vector>

#include "base/message.h"
#include "base/temporary_folder.h"
#include "log/events_log.h"
#include "log/events_log_fixture.h"
#include "play/roll_driver.h"
#include "state/books.h"
#include "state/settings.h"

namespace tessarel {
namespace {

using Pair = std::pair<int32_t, int32_t>;

Pair Drawn(Faces faces) {
  return {faces.die1, faces.die2};
}

int32_t& PairShare(Pair pair) {
  const MatrixCell cell = CellOfFaces({pair.first, pair.second});
  return At(At(Probability.ProbabilityMatrix.Shares, cell.Column), cell.Row);
}

// A matrix of these shares and nothing else.
void OnlyShares(const std::vector<std::pair<Pair, int32_t>>& shares) {
  Probability = {};
  ForEachPair(
      [](int column, int row) { At(At(Probability.ProbabilityMatrix.Shares, column), row) = 0; });
  for (const auto& [pair, share] : shares)
    PairShare(pair) = share;
}

class ProbabilityMatrixTest : public EventsLogTest {
 protected:
  void SetUp() override {
    EventsLogTest::SetUp();
    Reset();
  }
  void TearDown() override {
    Reset();
    Settings = {};
    EventsLogTest::TearDown();
  }
  static void Reset() {
    Probability = {};
    Dice = {};
    Stats = {};
    Settings = {};
    Settings.BetNeededToShoot = 0;
    Message = {};
  }
};

TEST_F(ProbabilityMatrixTest, TrueDiceAreRoundedCellByCell) {
  constexpr std::array<int32_t, 12> Totals = {0,     2778,  5556,  8333, 11111, 13889,
                                              16667, 13889, 11111, 8333, 5556,  2778};
  int sum = 0, pairs = 0;
  for (int row = 1; row <= LastTotalRow; ++row)
    EXPECT_EQ(ShareOf(TotalColumn, row), At(Totals, row));
  ForEachPair([&](int column, int row) {
    sum += ShareOf(column, row);
    ++pairs;
  });
  EXPECT_EQ(pairs, PairCount);
  EXPECT_EQ(sum, 100'008);
  for (int column = FirstPairColumn; column <= LastPairColumn; ++column) {
    EXPECT_EQ(ShareOf(column, FirstDieRow), 16667);
    EXPECT_EQ(ShareOf(column, SecondDieRow), 16667);
  }
  const ProbabilityPlane& flags = Probability.ProbabilityMatrix.Flags;
  EXPECT_EQ((std::vector<int32_t>(flags[0].begin(), flags[0].begin() + 4)),
            (std::vector<int32_t>{0, 1, 6, 0}));
}

TEST_F(ProbabilityMatrixTest, CellsStandForTheirFaces) {
  std::string seventh;
  for (int column = 2; column <= 7; ++column) {
    const Faces faces = FacesOfCell(column, 6);
    seventh += std::to_string(faces.die1) + std::to_string(faces.die2) + " ";
  }
  EXPECT_EQ(seventh, "16 25 34 43 52 61 ");
  ForEachPair([](int column, int row) {
    const Faces faces = FacesOfCell(column, row);
    EXPECT_EQ(faces.die1 + faces.die2, row + 1);
    const MatrixCell cell = CellOfFaces(faces);
    EXPECT_EQ(std::pair(cell.Column, cell.Row), std::pair(column, row));
  });
  const std::pair<int, int> unused[] = {{0, 1}, {1, 0},  {1, 12}, {3, 1},  {2, 12 + 2},
                                        {7, 7}, {3, 11}, {8, 12}, {1, 13}, {-1, 6}};
  for (const auto& [column, row] : unused) {
    EXPECT_EQ(FaultOf([&column = column, &row = row] { ShareOf(column, row); }),
              NumberOf(FaultNumber::IndexOutOfRange))
        << column << ' ' << row;
  }
}

TEST_F(ProbabilityMatrixTest, DrawGoesInRingsFromTheOutside) {
  const std::pair<int32_t, Pair> cases[] = {
      {1, {1, 1}},
      {2778, {1, 1}},
      {2779, {1, 2}},
      {6 * 2778, {1, 6}},
      {6 * 2778 + 1, {2, 6}},
      {11 * 2778, {6, 6}},
      {11 * 2778 + 1, {2, 1}},
      {97'230, {6, 2}},
      {97'231, {6, 1}},
      {100'000, {6, 1}},
      {100'001, {6, 1}},
  };
  for (const auto& [n, pair] : cases)
    EXPECT_EQ(Drawn(DrawCell(n)), pair) << n;
}

TEST_F(ProbabilityMatrixTest, EveryPairComesAsOftenAsItsShareSays) {
  PairShare({2, 3}) = 0;
  PairShare({4, 4}) = 2778 * 2;
  std::map<Pair, int32_t> count;
  for (int32_t n = 1; n <= WholeShare; ++n)
    ++count[Drawn(DrawCell(n))];
  EXPECT_EQ(count.size(), 35U);
  for (const auto& [pair, times] : count) {
    EXPECT_EQ(times, pair == Pair(6, 1) ? 2770 : PairShare(pair)) << pair.first << pair.second;
  }
}

TEST_F(ProbabilityMatrixTest, DrawAboveTheSumFallsOnTheFirstPair) {
  PairShare({6, 1}) = 2770;
  EXPECT_EQ(Drawn(DrawCell(100'000)), Pair(6, 1));
  EXPECT_EQ(Drawn(DrawCell(100'001)), Pair(1, 1));
  // Even when its own share is 0.
  PairShare({1, 1}) = 0;
  PairShare({1, 2}) = 2 * 2778;
  EXPECT_EQ(Drawn(DrawCell(1)), Pair(1, 2));
  EXPECT_EQ(Drawn(DrawCell(100'001)), Pair(1, 1));
  // A generator that has run dry asks for number 0.
  EXPECT_EQ(Drawn(DrawCell(0)), Pair(1, 1));
}

TEST_F(ProbabilityMatrixTest, SmallSumsAreScannedUntilTheyReachTheNumber) {
  OnlyShares({{{3, 4}, 1}});
  EXPECT_EQ(Drawn(DrawCell(1)), Pair(3, 4));
  for (int k = 0; k < 5; ++k) {
    const Pair pair = Drawn(DrawCell(WholeShare));
    EXPECT_TRUE(pair == Pair(3, 4) || pair == Pair(1, 1));
  }
  OnlyShares({{{3, 4}, 60'000}});
  std::map<Pair, int> count;
  for (int k = 0; k < 200; ++k)
    ++count[Drawn(DrawCell(WholeShare))];
  EXPECT_EQ(count.size(), 2U);
  EXPECT_GT(count[Pair(1, 1)], count[Pair(3, 4)] / 2);
}

TEST_F(ProbabilityMatrixTest, NegativeSharesTakeFromTheSum) {
  OnlyShares({{{1, 1}, 100}, {{1, 2}, -50}, {{1, 3}, 100}, {{6, 1}, 99'850}});
  const std::pair<int32_t, Pair> cases[] = {{1, {1, 1}},   {60, {1, 1}},  {100, {1, 1}},
                                            {101, {1, 3}}, {150, {1, 3}}, {151, {6, 1}}};
  for (const auto& [n, pair] : cases)
    EXPECT_EQ(Drawn(DrawCell(n)), pair) << n;
  OnlyShares({{{1, 1}, -5000}, {{1, 2}, 10'000}});
  EXPECT_EQ(Drawn(DrawCell(1)), Pair(1, 2));
  OnlyShares({{{1, 1}, INT32_MAX}, {{1, 2}, INT32_MAX}, {{2, 6}, INT32_MIN}});
  EXPECT_EQ(Drawn(DrawCell(WholeShare)), Pair(1, 1));
}

TEST_F(ProbabilityMatrixTest, DrawEndsWhenNothingCanBeReached) {
  const std::vector<std::pair<Pair, int32_t>> cases[] = {
      {}, {{{1, 1}, -1}}, {{{1, 1}, 5}, {{1, 2}, -10}}, {{{1, 1}, -5}, {{6, 1}, 5}}};
  for (const auto& shares : cases) {
    OnlyShares(shares);
    Table.Stop = StopCause::None;
    EXPECT_EQ(FaultOf([] { DrawCell(50); }), NumberOf(FaultNumber::InvalidCall));
    EXPECT_EQ(StopText(Table.Stop), "No dice can be drawn from the probability matrix.");
  }
  OnlyShares({{{1, 1}, 5}, {{1, 2}, -10}});
  EXPECT_EQ(Drawn(DrawCell(5)), Pair(1, 1));
}

// --- Through the generators --------------------------------------------------------------------

void Seed(int32_t generator) {
  SelectRNG(generator);
  Dice.SeedRequest = 4711;
  SeedRNG(-1);
}

int32_t Floored(double real) {
  return static_cast<int32_t>(real * 100'000) + 1;
}

template <float (*Source)(int32_t&)>
int32_t HalfToEven() {
  int32_t idum = 1;
  const double product = static_cast<double>(Source(idum)) * 100'000;
  const auto whole = static_cast<int32_t>(product);
  const double rest = product - whole;
  return whole + (rest > 0.5 || (rest == 0.5 && whole % 2 == 1) ? 1 : 0) + 1;
}

int32_t FirstTwister() {
  return Floored(TwisterReal1());
}
int32_t SecondTwister() {
  return Floored(TwisterReal2());
}
int32_t Quick() {
  return QuickRan(100'000);
}

TEST_F(ProbabilityMatrixTest, GeneratorsGiveOneNumberARoll) {
  struct Case {
    int32_t generator;
    int32_t (*odd)();
    int32_t (*even)();
  };
  constexpr Case Cases[] = {
      {1, FirstTwister, FirstTwister},
      {2, SecondTwister, SecondTwister},
      {3, Quick, Quick},
      {4, HalfToEven<Ran2>, HalfToEven<Ran2>},
      {5, HalfToEven<Ran1>, HalfToEven<Ran1>},
      {6, FirstTwister, HalfToEven<Ran1>},
      {7, SecondTwister, HalfToEven<Ran2>},
      {8, FirstTwister, FirstTwister},
  };
  constexpr int Rolls = 300;
  for (const auto& [generator, odd, even] : Cases) {
    Probability.ProbabilityMatrixActive = true;
    Seed(generator);
    std::vector<Pair> rolled, expected;
    for (int k = 0; k < Rolls; ++k)
      rolled.push_back(Drawn(MakeDice(k)));
    Seed(generator);
    for (int k = 0; k < Rolls; ++k)
      expected.push_back(Drawn(DrawCell(k % 2 != 0 ? odd() : even())));
    EXPECT_EQ(rolled, expected) << generator;
  }
}

TEST_F(ProbabilityMatrixTest, ShuffledGeneratorsRoundHalfToEven) {
  struct Case {
    float real;
    int32_t n;
  };
  constexpr Case Cases[] = {{1.0F / 64, 1563},
                            {3.0F / 64, 4689},
                            {0, 1},
                            {1, 100'001}};  // 1562.5 and 4687.5 and the ends
  Probability.ProbabilityMatrixActive = true;
  for (const auto& [real, n] : Cases) {
    for (const int32_t generator : {5, 6}) {
      Seed(generator);
      Dice.Ran1.table.fill(real);
      OnlyShares({{{1, 1}, n - 1}, {{1, 2}, 1}, {{1, 3}, 200'000}});
      Probability.ProbabilityMatrixActive = true;
      EXPECT_EQ(Drawn(MakeDice(0)), Pair(1, 2)) << real;
    }
  }
}

TEST_F(ProbabilityMatrixTest, NoGeneratorDrawsNothing) {
  Probability.ProbabilityMatrixActive = true;
  SelectRNG(0);
  EXPECT_EQ(Drawn(MakeDice(0)), Pair(0, 0));
}

TEST_F(ProbabilityMatrixTest, RollLineNamesTheMatrix) {
  struct Case {
    int32_t active;
    const char* name;
    const char* end;
  };
  constexpr Case Cases[] = {
      {0, "/tmp/loaded.prb", " from RNG #8"},
      {-1, "", " from RNG #8 using untitled probability matrix"},
      {-1, "/tmp/loaded.prb", " from RNG #8 using probability matrix: /tmp/loaded.prb"},
  };
  EventsLog.LogRolls = true;
  SelectRNG(8);
  for (const auto& [active, name, end] : Cases) {
    Probability.ProbabilityMatrixActive = active;
    Probability.ProbabilityFileName = name;
    MakeRoll();
    std::string line;
    for (const std::string& any : Lines()) {
      if (any.find(" Roll #") != std::string::npos) line = any;
    }
    EXPECT_TRUE(line.ends_with(end)) << line;
  }
}

TEST_F(ProbabilityMatrixTest, EmptyMatrixEndsTheHyperDrive) {
  OnlyShares({});
  Probability.ProbabilityMatrixActive = true;
  Table.HyperDriveOn = true;
  MakeRoll();
  EXPECT_EQ(RollsInSession(), 0);
  EXPECT_EQ(StopText(Table.LastStop), "No dice can be drawn from the probability matrix.");
}

// --- Shown and typed ---------------------------------------------------------------------------

TEST_F(ProbabilityMatrixTest, SharesAreShownInFourForms) {
  struct Case {
    int32_t display;
    double base;
    int column, row;
    const char* text;
  };
  constexpr Case Cases[] = {
      {ShownAsPercentages, 36, 2, 6, "3.000"},
      {ShownAsPercentages, 36, 1, 6, "16.667"},
      {ShownAsPercentagesFromTrue, 36, 2, 6, "+0.222"},
      {ShownAsPercentagesFromTrue, 36, 2, 1, "-0.778"},
      {ShownAsPercentagesFromTrue, 36, 1, 6, "0.000"},
      {ShownAsRolls, 36, 2, 6, "1.080"},
      {ShownAsRolls, 100'000, 1, 6, "16,667.000"},
      {ShownAsRolls, 1000, 3, 12, "166.670"},
      {ShownAsRollsFromTrue, 36, 2, 6, "+0.080"},
      {ShownAsRollsFromTrue, 36'000, 2, 1, "-280.000"},
  };
  PairShare({1, 6}) = 3000;
  PairShare({1, 1}) = 2000;
  for (const auto& [display, base, column, row, text] : Cases) {
    Probability.optProbability = display;
    Probability.RollsOutOf = base;
    EXPECT_EQ(ShownShareText(column, row), text);
    EXPECT_NEAR(ShareOfShown(column, row, ShownShare(column, row)), ShareOf(column, row), 1e-6);
  }
}

TEST_F(ProbabilityMatrixTest, TypedValuesBecomeShares) {
  struct Case {
    int32_t display;
    double base;
    int column, row;
    double typed, share;
  };
  constexpr Case Cases[] = {
      {ShownAsPercentages, 36, 2, 6, 12.5, 12'500},
      {ShownAsPercentages, 36, 2, 6, -1, 0},
      {ShownAsPercentagesFromTrue, 36, 1, 6, 1, 1000 + 600'000.0 / 36},
      {ShownAsPercentagesFromTrue, 36, 1, 11, 1, 1000 + 100'000.0 / 36},
      {ShownAsPercentagesFromTrue, 36, 7, 13, -1, 600'000.0 / 36 - 1000},
      {ShownAsPercentagesFromTrue, 36, 2, 2, -50, 0},
      {ShownAsRolls, 36, 2, 2, 9, 25'000},
      {ShownAsRolls, 8, 1, 2, 1, 12'500},
      {ShownAsRollsFromTrue, 200, 2, 2, 1, 500 + 100'000.0 / 36},
  };
  for (const auto& [display, base, column, row, typed, share] : Cases) {
    Probability.optProbability = display;
    Probability.RollsOutOf = base;
    EXPECT_NEAR(ShareOfShown(column, row, typed), share, 1e-6);
  }
  Probability.RollsOutOf = 0;
  EXPECT_EQ(FaultOf([] { ShareOfShown(2, 2, 1); }), NumberOf(FaultNumber::DivisionByZero));
}

TEST_F(ProbabilityMatrixTest, FormsAreNamedWithTheirBase) {
  Probability.RollsOutOf = 1000;
  EXPECT_EQ(ProbabilityDisplayText(ShownAsPercentagesFromTrue, true),
            "Shown as +/- from true percentages");
  EXPECT_EQ(ProbabilityDisplayText(ShownAsRolls, false), "Shown as number of rolls out of ");
  EXPECT_EQ(ProbabilityDisplayText(ShownAsRolls, true), "Shown as number of rolls out of 1000");
  Probability.RollsOutOf = 36.5;
  EXPECT_EQ(ProbabilityDisplayText(ShownAsRollsFromTrue, true),
            "Shown as +/- from true number of rolls out of 36.5");
}

TEST_F(ProbabilityMatrixTest, NewKeepsUseAndForm) {
  OnlyShares({});
  Probability.ProbabilityMatrixActive = true;
  Probability.optProbability = ShownAsRolls;
  Probability.ProbabilityFileName = "/tmp/loaded.prb";
  Probability.ProbabilityChanged = true;
  LockShare(2, 6, true);
  NewProbabilities();
  EXPECT_EQ(Probability.ProbabilityMatrix, TrueMatrix());
  EXPECT_EQ(Probability.ProbabilityFileName, "");
  EXPECT_FALSE(Probability.ProbabilityChanged);
  EXPECT_TRUE(Probability.ProbabilityMatrixActive);
  EXPECT_EQ(Probability.optProbability, ShownAsRolls);
}

}  // namespace
}  // namespace tessarel
