#include "dice/probability_balance.h"

#include <limits>
#include <random>

#include "dice/probability.h"
#include "reset.h"

namespace tessarel {
namespace {

class BalanceTest : public FreshTest {};

int32_t FlagOf(int column, int row) {
  return At(At(Probability.ProbabilityMatrix.Flags, column), row);
}

bool IsShare(int column, int row) {
  return IsTotalCell(column, row) || IsPairCell(column, row) || IsFaceCell(column, row);
}

template <class Visit>
void ForEachShare(Visit&& visit) {
  for (int column = TotalColumn; column <= LastPairColumn; ++column) {
    for (int row = 1; row <= SecondDieRow; ++row) {
      if (IsShare(column, row)) visit(column, row);
    }
  }
}

struct PairSums {
  int32_t all = 0;
  std::array<int32_t, 12> rows{};
  std::array<int32_t, 7> die1{}, die2{};
};

PairSums SumPairs() {
  PairSums sums;
  ForEachPair([&sums](int column, int row) {
    const Faces faces = FacesOfCell(column, row);
    const int32_t share = ShareOf(column, row);
    for (int32_t* sum :
         {&sums.all, &At(sums.rows, row), &At(sums.die1, faces.die1), &At(sums.die2, faces.die2)})
      *sum += share;
  });
  return sums;
}

struct Value {
  int column, row;
  double value;
};

struct BalanceCase {
  const char* name;
  std::vector<MatrixCell> locks;
  std::vector<Value> edits, results;
};

void SetUpLocks(const BalanceCase& test) {
  Probability = {};
  for (const MatrixCell& cell : test.locks)
    LockShare(cell.Column, cell.Row, true);
}

TEST_F(BalanceTest, SharesGiveWayByTheRules) {
  // clang-format off
  const BalanceCase cases[] = {
      {"a total: 80,000 for the 30 others", {}, {{1, 6, 20'000}}, {{1, 6, 20'000}, {2, 6, 3333},
       {7, 6, 3333}, {2, 5, 2667}, {1, 5, 13'335}, {2, 12, 16'668}}},
      {"a second total keeps the first", {}, {{1, 6, 20'000}, {1, 1, 10'000}}, {{1, 6, 20'000},
       {2, 6, 3333}, {2, 1, 10'000}, {2, 5, 2414}, {1, 5, 12'070}, {2, 13, 22'989}}},
      {"a total around its locked pair", {}, {{2, 6, 5000}, {1, 6, 20'000}}, {{2, 6, 5000},
       {3, 6, 3000}, {7, 6, 3000}, {2, 5, 2667}, {1, 6, 20'000}}},
      {"a total is not less than its locked pairs", {}, {{2, 6, 5000}, {1, 6, 3000}}, {{1, 6, 5000},
       {2, 6, 5000}, {3, 6, 0}, {2, 5, 3167}}},
      {"a total gets no more than what is left", {}, {{1, 6, 60'000}, {1, 5, 60'000}},
       {{1, 6, 60'000}, {1, 5, 40'000}, {2, 5, 8000}, {2, 1, 0}, {1, 1, 0}}},
      {"a remainder of 1 is none", {}, {{1, 6, 99'999}}, {{1, 6, 99'999}, {2, 6, 16'666},
       {2, 5, 0}}},
      {"halves round to even", {}, {{1, 6, 20'007}, {1, 5, 10'002.5}}, {{2, 6, 3334},
       {1, 5, 10'002}, {2, 5, 2000}}},
      {"a face of independent dice", {}, {{2, 12, 20'000}}, {{2, 12, 20'000}, {7, 12, 16'000},
       {2, 6, 3333}, {7, 6, 2667}, {1, 6, 16'668}, {2, 13, 16'667}}},
      {"three faces of independent dice", {}, {{2, 12, 20'000}, {7, 12, 5000}, {3, 13, 0}},
       {{2, 12, 20'000}, {7, 12, 5000}, {3, 12, 18'750}, {3, 13, 0}, {2, 13, 20'000}, {2, 6, 4000},
       {7, 6, 1000}, {2, 2, 0}, {1, 6, 16'250}}},
      {"a face cut to what its die has left", {}, {{2, 12, 70'000}, {3, 12, 70'000}},
       {{2, 12, 70'000}, {3, 12, 30'000}, {4, 12, 0}, {7, 12, 0}, {2, 1, 11'667}, {7, 6, 0}}},
      {"a face of free-form dice", {}, {{2, 1, 5000}, {2, 12, 20'000}}, {{2, 1, 5000},
       {2, 12, 20'000}, {2, 2, 3000}, {2, 6, 3000}, {7, 6, 2667}, {7, 12, 16'002},
       {2, 13, 18'335}}},
      {"a face of the second die, free form", {{1, 1}}, {{2, 13, 20'000}}, {{2, 1, 2778},
       {1, 1, 2778}, {3, 2, 3444}, {2, 13, 20'000}, {2, 2, 2667}}},
      {"a face is not less than its locked pairs", {}, {{2, 1, 5000}, {2, 12, 4000}},
       {{2, 12, 5000}, {2, 1, 5000}, {2, 2, 0}, {3, 3, 3167}}},
      {"a pair: 95,000 for the 35 others", {}, {{2, 1, 5000}}, {{2, 1, 5000}, {2, 6, 2714},
       {1, 1, 5000}, {1, 5, 13'570}, {2, 12, 18'570}}},
      {"a pair of a locked total", {{1, 6}}, {{2, 6, 5000}}, {{1, 6, 16'667}, {2, 6, 5000},
       {3, 6, 2333}, {7, 6, 2333}, {2, 5, 2778}}},
      {"a pair of a locked total is cut to it", {{1, 6}}, {{2, 6, 50'000}}, {{1, 6, 16'667},
       {2, 6, 16'667}, {3, 6, 0}, {2, 5, 2778}}},
      {"a pair of a locked face", {{2, 12}}, {{2, 6, 6667}}, {{2, 12, 16'667}, {2, 6, 6667},
       {2, 1, 2000}, {2, 5, 2000}, {3, 6, 2778}}},
      {"a pair with all three locked", {{1, 6}, {2, 12}, {7, 13}}, {{2, 6, 4000}}, {{1, 6, 16'667},
       {2, 12, 16'667}, {7, 13, 16'667}, {2, 6, 4000}, {7, 6, 2533}, {2, 5, 2533}, {3, 7, 2900}}},
      {"a pair of a second-die face without a free pair", {{3, 13}, {2, 2}, {3, 3}, {4, 4}, {5, 5},
       {6, 6}}, {{6, 7, 5000}}, {{6, 7, 5000}, {3, 3, 2778}, {2, 2, 2778}, {3, 13, 16'667}}}};
  // clang-format on
  for (const BalanceCase& test : cases) {
    SetUpLocks(test);
    for (const auto& [column, row, value] : test.edits)
      EXPECT_TRUE(BalanceMatrix(column, row, value)) << test.name;
    for (const auto& [column, row, share] : test.results)
      EXPECT_EQ(ShareOf(column, row), share) << test.name << ": " << column << ' ' << row;
    EXPECT_TRUE(Probability.ProbabilityChanged);
  }
}

TEST_F(BalanceTest, EditsFailWhenNothingIsFree) {
  // clang-format off
  const BalanceCase cases[] = {
      {"a total without a free pair", {{2, 1}}, {{1, 1, 5000}}, {}},
      {"the only pair of a locked total", {{1, 1}}, {{2, 1, 5000}}, {}},
      {"the last face of a die", {{2, 12}, {3, 12}, {4, 12}, {5, 12}, {6, 12}}, {{7, 12, 5000}},
       {}},
      {"a face whose pairs are locked", {{2, 1}, {2, 2}, {2, 3}, {2, 4}, {2, 5}, {2, 6}},
       {{2, 12, 5000}}, {}},
      {"the last total", {{1, 1}, {1, 2}, {1, 3}, {1, 4}, {1, 5}, {1, 7}, {1, 8}, {1, 9}, {1, 10},
       {1, 11}}, {{1, 6, 5000}}, {}},
      {"the last pair of a locked first-die face", {{2, 12}, {2, 1}, {2, 2}, {2, 3}, {2, 4},
       {2, 5}}, {{2, 6, 5000}}, {}}};
  // clang-format on
  for (const BalanceCase& test : cases) {
    SetUpLocks(test);
    const auto& [column, row, value] = test.edits[0];
    EXPECT_FALSE(BalanceMatrix(column, row, value)) << test.name;
    EXPECT_EQ(Probability.ProbabilityMatrix.Shares, TrueMatrix().Shares) << test.name;
    EXPECT_FALSE(Probability.ProbabilityChanged) << test.name;
    ForEachShare([](int i, int j) { EXPECT_EQ(FlagOf(i, j) % LockFlag, 0); });
    EXPECT_EQ(FlagOf(column, row), LockFlag) << test.name;
  }
}

// Edits as somebody may make them: whatever they are, what is locked stands, sums agree and the
// whole stays whole.
TEST_F(BalanceTest, SumsAgreeAfterAnyEdits) {
  std::mt19937 random(20);
  int balanced = 0;
  for (int round = 0; round < 400; ++round) {
    Probability = {};
    for (int k = 0; k < 4; ++k) {
      const int column = static_cast<int>(random() % 7) + 1;
      const int row = static_cast<int>(random() % 13) + 1;
      const double value = static_cast<double>(random() % 20'000);
      if (!IsShare(column, row)) continue;
      const ProbabilityPlanes before = Probability.ProbabilityMatrix;
      if (!BalanceMatrix(column, row, value)) {
        EXPECT_EQ(Probability.ProbabilityMatrix.Shares, before.Shares);
        continue;
      }
      ++balanced;
      const PairSums sums = SumPairs();
      EXPECT_NEAR(sums.all, WholeShare, 40);
      const bool freeForm = Probability.ProbabilityMatrix.Flags[0][0] == FreeFormMark;
      EXPECT_EQ(PercentageDiceCaption(), freeForm ? "Free Form Dice" : "Percentage Dice");
      ForEachShare([&](int i, int j) {
        const bool wasLocked = At(At(before.Flags, i), j) != 0;
        if (wasLocked && !(i == column && j == row)) {
          EXPECT_EQ(ShareOf(i, j), At(At(before.Shares, i), j));
          EXPECT_EQ(FlagOf(i, j), LockFlag);
        } else {
          EXPECT_EQ(FlagOf(i, j), i == column && j == row ? LockFlag : 0);
        }
        // What is not locked agrees to the unit; what is, to the rounding of its pairs.
        const int slack = FlagOf(i, j) != 0 || !freeForm ? 20 : 0;
        if (IsTotalCell(i, j)) {
          EXPECT_NEAR(ShareOf(i, j), At(sums.rows, j), FlagOf(i, j) != 0 ? 20 : 0);
        } else if (j == FirstDieRow) {
          EXPECT_NEAR(ShareOf(i, j), At(sums.die1, i - 1), slack);
        } else if (j == SecondDieRow) {
          EXPECT_NEAR(ShareOf(i, j), At(sums.die2, i - 1), slack);
        }
      });
      if (HasFailure()) FAIL() << "round " << round << " edit " << k;
    }
  }
  EXPECT_GT(balanced, 800);
}

TEST_F(BalanceTest, FaultsLeaveTheMatrixAlone) {
  const ProbabilityPlanes before = Probability.ProbabilityMatrix;
  const int index = NumberOf(FaultNumber::IndexOutOfRange),
            overflow = NumberOf(FaultNumber::Overflow);
  constexpr double NotANumber = std::numeric_limits<double>::quiet_NaN();
  const std::pair<Value, int> cases[] = {{{1, 12, 5}, index},
                                         {{0, 0, 5}, index},
                                         {{3, 1, 5}, index},
                                         {{2, 6, NotANumber}, overflow},
                                         {{2, 6, -1e12}, overflow}};
  for (const auto& [edit, fault] : cases)
    EXPECT_EQ(FaultOf([&edit = edit] { BalanceMatrix(edit.column, edit.row, edit.value); }), fault);
  EXPECT_EQ(FaultOf([] { MakePercentageDice({1, 3}, {}); }), index);
  EXPECT_EQ(Probability.ProbabilityMatrix, before);
  EXPECT_FALSE(Probability.ProbabilityChanged);
}

TEST_F(BalanceTest, PercentageDiceTakeFromAnAxis) {
  const struct {
    DieSkew first, second;
    std::array<int32_t, 6> die1, die2;
  } cases[] = {{{10, 0},
                {0, 2},
                {15'000, 17'500, 17'500, 17'500, 17'500, 15'000},
                {16'666, 16'666, 16'667, 16'667, 16'666, 16'666}},
               {{100, 1},
                {250, 2},
                {25'000, 0, 25'000, 25'000, 0, 25'000},
                {25'000, 25'000, 0, 0, 25'000, 25'000}},
               {{-50, 2},
                {-1000, 0},
                {12'500, 12'500, 25'000, 25'000, 12'500, 12'500},
                {50'000, 0, 0, 0, 0, 50'000}}};
  for (const auto& [first, second, die1, die2] : cases) {
    Probability = {};
    BalanceMatrix(2, 1, 30'000);  // earlier locks are gone
    MakePercentageDice(first, second);
    EXPECT_EQ(PercentageDiceCaption(), "Percentage Dice");
    EXPECT_NEAR(SumPairs().all, WholeShare, 20);
    for (int face = 1; face <= 6; ++face) {
      EXPECT_EQ(ShareOf(face + 1, FirstDieRow), At(die1, face - 1)) << face;
      EXPECT_EQ(ShareOf(face + 1, SecondDieRow), At(die2, face - 1)) << face;
    }
    ForEachShare(
        [&first = first, &second = second, &die1 = die1, &die2 = die2](int column, int row) {
          const int axis = row == FirstDieRow ? first.Axis : second.Axis;
          const bool onAxis = column == 2 + axis || column == 7 - axis;
          EXPECT_EQ(FlagOf(column, row), row > LastTotalRow && onAxis ? LockFlag : 0);
          if (!IsPairCell(column, row)) return;
          const Faces faces = FacesOfCell(column, row);
          const double product =
              static_cast<double>(At(die1, faces.die1 - 1)) * At(die2, faces.die2 - 1) / WholeShare;
          EXPECT_NEAR(ShareOf(column, row), product, 0.5);
        });
  }
}

TEST_F(BalanceTest, UnlockingFreesAllButTheFixedEntries) {
  BalanceMatrix(2, 6, 5000);
  BalanceMatrix(7, 13, 20'000);
  UnlockShares();
  ForEachShare([](int column, int row) { EXPECT_EQ(FlagOf(column, row), 0); });
  EXPECT_EQ(Probability.ProbabilityMatrix.Flags[0][1], 1);
  EXPECT_EQ(Probability.ProbabilityMatrix.Flags[0][2], 6);
  EXPECT_EQ(PercentageDiceCaption(), "Free Form Dice");
}

}  // namespace
}  // namespace tessarel
