#include "dice/probability.h"
#include "engine/unattended.h"

#include <map>

#include "log/events_log.h"
#include "log/events_log_reader.h"
#include "play/roll_driver.h"
#include "reset.h"

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

class ProbabilityMatrixTest : public FolderTest {
 protected:
  ProbabilityMatrixTest() { Settings.BetNeededToShoot = 0; }
};

TEST_F(ProbabilityMatrixTest, TrueDiceAreRoundedCellByCell) {
  constexpr int32_t Totals[] = {2778,  5556,  8333, 11111, 13889, 16667,
                                13889, 11111, 8333, 5556,  2778};
  for (int row = 1; row <= LastTotalRow; ++row)
    EXPECT_EQ(ShareOf(TotalColumn, row), Totals[row - 1]);
  int sum = 0, pairs = 0;
  ForEachPair([&](int column, int row) {
    sum += ShareOf(column, row);
    ++pairs;
  });
  EXPECT_EQ(pairs, PairCount);
  EXPECT_EQ(sum, 100'008);
  EXPECT_EQ(ShareOf(FirstPairColumn, FirstDieRow), 16667);
  EXPECT_EQ(ShareOf(LastPairColumn, SecondDieRow), 16667);
  const auto& flags = Probability.ProbabilityMatrix.Flags[0];
  EXPECT_EQ((std::array{flags[0], flags[1], flags[2], flags[3]}),
            (std::array<int32_t, 4>{0, 1, 6, 0}));
}

TEST_F(ProbabilityMatrixTest, CellsStandForTheirFaces) {
  EXPECT_EQ(Drawn(FacesOfCell(3, 6)), Pair(2, 5));
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
  // clang-format off
  const std::pair<int32_t, Pair> cases[] = {
      {0, {1, 1}}, {1, {1, 1}}, {2778, {1, 1}}, {2779, {1, 2}}, {6 * 2778, {1, 6}},
      {6 * 2778 + 1, {2, 6}}, {11 * 2778, {6, 6}}, {11 * 2778 + 1, {2, 1}}, {97'230, {6, 2}},
      {97'231, {6, 1}}, {100'001, {6, 1}}};
  // clang-format on
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

TEST_F(ProbabilityMatrixTest, GeneratorsGiveOneNumberARoll) {
  using Source = int32_t (*)();
  const Source first = [] { return Floored(TwisterReal1()); },
               second = [] { return Floored(TwisterReal2()); },
               quick = [] { return QuickRan(100'000); };
  const std::pair<Source, Source> cases[] = {{first, first},
                                             {second, second},
                                             {quick, quick},
                                             {HalfToEven<Ran2>, HalfToEven<Ran2>},
                                             {HalfToEven<Ran1>, HalfToEven<Ran1>},
                                             {first, HalfToEven<Ran1>},
                                             {second, HalfToEven<Ran2>},
                                             {first, first}};
  constexpr int Rolls = 300;
  int32_t generator = 0;
  for (const auto& [odd, even] : cases) {
    ++generator;
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

// 1562.5 and 4687.5 and the ends.
TEST_F(ProbabilityMatrixTest, ShuffledGeneratorsRoundHalfToEven) {
  const std::pair<float, int32_t> cases[] = {
      {1.0F / 64, 1563}, {3.0F / 64, 4689}, {0, 1}, {1, 100'001}};
  for (const auto& [real, n] : cases) {
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
  SelectRNG(0);
  for (const bool active : {false, true}) {
    Probability.ProbabilityMatrixActive = active;
    EXPECT_EQ(Drawn(MakeDice(0)), Pair(0, 0));
  }
}

TEST_F(ProbabilityMatrixTest, RollLineNamesTheMatrix) {
  const std::tuple<bool, const char*, const char*> cases[] = {
      {false, "/tmp/loaded.prb", " from RNG #8"},
      {true, "", " from RNG #8 using untitled probability matrix"},
      {true, "/tmp/loaded.prb", " from RNG #8 using probability matrix: /tmp/loaded.prb"}};
  EventsLog.LogOn = EventsLog.LogRolls = EventsLog.KeepLatestRollOnTop = true;
  SelectRNG(8);
  for (const auto& [active, name, end] : cases) {
    Probability.ProbabilityMatrixActive = active;
    Probability.ProbabilityFileName = name;
    MakeRoll();
    EXPECT_TRUE(EventLine(EventsLog.LatestRollLine).ends_with(end));
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
  const struct {
    int32_t display;
    double base;
    int column, row;
    const char* text;
    // clang-format off
  } cases[] = {
      {ShownAsPercentages, 36, 2, 6, "3.000"}, {ShownAsPercentages, 36, 1, 6, "16.667"},
      {ShownAsPercentagesFromTrue, 36, 2, 6, "+0.222"},
      {ShownAsPercentagesFromTrue, 36, 2, 1, "-0.778"},
      {ShownAsPercentagesFromTrue, 36, 1, 6, "0.000"}, {ShownAsRolls, 36, 2, 6, "1.080"},
      {ShownAsRolls, 100'000, 1, 6, "16,667.000"}, {ShownAsRolls, 1000, 3, 12, "166.670"},
      {ShownAsRollsFromTrue, 36, 2, 6, "+0.080"}, {ShownAsRollsFromTrue, 36'000, 2, 1, "-280.000"}};
  // clang-format on
  PairShare({1, 6}) = 3000;
  PairShare({1, 1}) = 2000;
  for (const auto& [display, base, column, row, text] : cases) {
    Probability.optProbability = display;
    Probability.RollsOutOf = base;
    EXPECT_EQ(ShownShareText(column, row), text);
    EXPECT_NEAR(ShareOfShown(column, row, ShownShare(column, row)), ShareOf(column, row), 1e-6);
  }
}

TEST_F(ProbabilityMatrixTest, TypedValuesBecomeShares) {
  const struct {
    int32_t display;
    double base;
    int column, row;
    double typed, share;
    // clang-format off
  } cases[] = {
      {ShownAsPercentages, 36, 2, 6, 12.5, 12'500}, {ShownAsPercentages, 36, 2, 6, -1, 0},
      {ShownAsPercentagesFromTrue, 36, 1, 6, 1, 1000 + 600'000.0 / 36},
      {ShownAsPercentagesFromTrue, 36, 1, 11, 1, 1000 + 100'000.0 / 36},
      {ShownAsPercentagesFromTrue, 36, 7, 13, -1, 600'000.0 / 36 - 1000},
      {ShownAsPercentagesFromTrue, 36, 2, 2, -50, 0}, {ShownAsRolls, 36, 2, 2, 9, 25'000},
      {ShownAsRolls, 8, 1, 2, 1, 12'500},
      {ShownAsRollsFromTrue, 200, 2, 2, 1, 500 + 100'000.0 / 36}};
  // clang-format on
  for (const auto& [display, base, column, row, typed, share] : cases) {
    Probability.optProbability = display;
    Probability.RollsOutOf = base;
    EXPECT_NEAR(ShareOfShown(column, row, typed), share, 1e-6);
  }
  Probability.RollsOutOf = 0;
  EXPECT_EQ(FaultOf([] { ShareOfShown(2, 2, 1); }), NumberOf(FaultNumber::DivisionByZero));
}

TEST_F(ProbabilityMatrixTest, FormsAreNamedWithTheirBase) {
  const std::tuple<double, int32_t, bool, const char*> cases[] = {
      {1000, ShownAsPercentagesFromTrue, true, "Shown as +/- from true percentages"},
      {1000, ShownAsRolls, false, "Shown as number of rolls out of "},
      {1000, ShownAsRolls, true, "Shown as number of rolls out of 1000"},
      {36.5, ShownAsRollsFromTrue, true, "Shown as +/- from true number of rolls out of 36.5"}};
  for (const auto& [base, display, withBase, text] : cases) {
    Probability.RollsOutOf = base;
    EXPECT_EQ(ProbabilityDisplayText(display, withBase), text);
  }
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
