// The probability matrix: what chance each of the 36 pairs of faces has when the dice are skewed.
// Generators draw from it while it is active, the configuration screen edits it, statistics and
// house advantage read its shares. Whatever it holds, a draw ends.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "dice/generators.h"

namespace tessarel {

// The columns and rows of a plane: plane[column][row]. In rows 1 to 11 (the totals 2 to 12) column
// 1 is the total and columns 2 to 7 hold its pairs, as many as there are; in rows 12 and 13 columns
// 2 to 7 are the faces 1 to 6 of the first and the second die. The rest is unused.
using ProbabilityPlane = std::array<std::array<int32_t, 14>, 8>;
inline constexpr int TotalColumn = 1, FirstPairColumn = 2, LastPairColumn = 7;
inline constexpr int LastTotalRow = 11, FirstDieRow = 12, SecondDieRow = 13;
inline constexpr int PairCount = 36, FaceCount = 6;

// The values are shares of this many.
inline constexpr int32_t WholeShare = 100'000;

struct ProbabilityPlanes {
  // Where a value is locked against balancing: 128. The entries 1 and 2 of column 0 are fixed, and
  // entry 0 tells how the pairs were made: -1 each on its own, 0 from the shares of the faces.
  ProbabilityPlane Flags{};
  ProbabilityPlane Shares{};

  friend bool operator==(const ProbabilityPlanes&, const ProbabilityPlanes&) = default;
};

inline constexpr int32_t LockFlag = 128;
inline constexpr int32_t FreeFormMark = -1;

// How many pairs make the total of a row, 1 to 11.
constexpr int PairsInRow(int row) {
  return row <= 6 ? row : 12 - row;
}
constexpr bool IsPairCell(int column, int row) {
  return column >= FirstPairColumn && column <= LastPairColumn && row >= column - 1 &&
         row <= 13 - column;
}
constexpr bool IsTotalCell(int column, int row) {
  return column == TotalColumn && row >= 1 && row <= LastTotalRow;
}
constexpr bool IsFaceCell(int column, int row) {
  return column >= FirstPairColumn && column <= LastPairColumn &&
         (row == FirstDieRow || row == SecondDieRow);
}

// The faces of a pair's cell, and the cell of a pair of faces, 1 to 6.
constexpr Faces FacesOfCell(int column, int row) {
  return row < 7 ? Faces{column - 1, row - column + 2} : Faces{column + row - 7, 8 - column};
}
struct MatrixCell {
  int Column, Row;
};
constexpr MatrixCell CellOfFaces(Faces faces) {
  const int row = faces.die1 + faces.die2 - 1;
  return {row < 7 ? faces.die1 + 1 : 8 - faces.die2, row};
}

// Calls visit(column, row) for each pair, in the order of the draw: from the outside of the square
// of pairs inward.
template <class Visit>
constexpr void ForEachPair(Visit&& visit) {
  for (int column = FirstPairColumn; column <= LastPairColumn; ++column) {
    for (int row = column - 1; row <= 13 - column; ++row)
      visit(column, row);
  }
}

// How many of the 36 pairs a cell stands for.
constexpr int PairsOfCell(int column, int row) {
  if (row > LastTotalRow) return FaceCount;
  return column == TotalColumn ? PairsInRow(row) : 1;
}

// The matrix of true dice, each value rounded on its own: the pairs sum to 100,008.
constexpr ProbabilityPlanes TrueMatrix() {
  ProbabilityPlanes planes;
  planes.Flags[0][1] = 1;
  planes.Flags[0][2] = FaceCount;
  for (int column = TotalColumn; column <= LastPairColumn; ++column) {
    for (int row = 1; row <= SecondDieRow; ++row) {
      if (!IsTotalCell(column, row) && !IsPairCell(column, row) && !IsFaceCell(column, row)) {
        continue;
      }
      planes.Shares[static_cast<size_t>(column)][static_cast<size_t>(row)] =
          (PairsOfCell(column, row) * WholeShare + PairCount / 2) / PairCount;
    }
  }
  return planes;
}

// The values of optProbability.
enum ProbabilityDisplay : int32_t {
  ShownAsPercentages,
  ShownAsPercentagesFromTrue,
  ShownAsRolls,
  ShownAsRollsFromTrue,
};

struct ProbabilityState {
  ProbabilityPlanes ProbabilityMatrix = TrueMatrix();
  bool ProbabilityMatrixActive = false;
  bool ProbabilityChanged = false;  // the matrix differs from its file
  std::string ProbabilityFileName;  // full name; empty when the matrix is untitled
  int32_t optProbability = ShownAsPercentages;
  double RollsOutOf = 36;  // the base of the numbers of rolls
};

extern ProbabilityState Probability;

// The share of a total, a pair or a face. Index fault for cells that are none of these.
int32_t ShareOf(int column, int row);

// The pair that the number n, 1 to 100,001, falls on when the shares are laid end to end. When they
// sum to less than n, the scan is repeated with numbers from outside the dice on top of the sum so
// far. Fault, with the cause of the stop set, when no number can ever be reached.
Faces DrawCell(int32_t n);

// Makes the dice true and the matrix untitled; asks nothing.
void NewProbabilities();

// Locks a total, a pair or a face against balancing, or frees it; frees all. Index fault for other
// cells.
void LockShare(int column, int row, bool lock);
void UnlockShares();

// "Free Form Dice" or "Percentage Dice": how the pairs were made.
std::string_view PercentageDiceCaption();

// The form in which values are shown, as the option group and the report name it; with `base`, the
// number of rolls after the forms that have one.
std::string ProbabilityDisplayText(int32_t display, bool base);

// A share in the form of optProbability, and back. Typed values become shares of at least 0. Index
// fault for cells that hold no share, division by zero fault for rolls out of none.
double ShownShare(int column, int row);
std::string ShownShareText(int column, int row);
double ShareOfShown(int column, int row, double shown);

}  // namespace tessarel
