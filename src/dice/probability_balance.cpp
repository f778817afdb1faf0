#include "dice/probability_balance.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <limits>

#include "base/fault.h"
#include "dice/probability.h"
#include "state/table.h"

namespace tessarel {

namespace {

// Bits that join the lock in the flags of pairs: the total or the face that a pair belongs to is
// locked.
enum Mark : int32_t { FirstDieMark = 1, SecondDieMark = 2, TotalMark = 4 };

// A stretch of the matrix that makes up a total or a face, by the mark its pairs get.
struct Group {
  Mark mark;
  int column, row;  // the cell of the total or face

  bool Holds(int pairColumn, int pairRow) const {
    if (mark == TotalMark) return pairRow == row;
    const Faces faces = FacesOfCell(pairColumn, pairRow);
    return (mark == FirstDieMark ? faces.die1 : faces.die2) == column - 1;
  }
  int Size() const { return mark == TotalMark ? PairsInRow(row) : FaceCount; }
};

Group GroupOf(int column, int row) {
  return {row == FirstDieRow    ? FirstDieMark
          : row == SecondDieRow ? SecondDieMark
                                : TotalMark,
          column, row};
}

// The pairs that cannot move, with their sum.
struct Bound {
  int count = 0;
  int64_t sum = 0;

  void Add(int32_t share) {
    ++count;
    sum += share;
  }
};

int32_t Rounded(double value) {
  const double whole = std::nearbyint(value);
  const bool fits =
      whole >= std::numeric_limits<int32_t>::min() && whole <= std::numeric_limits<int32_t>::max();
  if (!fits) RaiseOverflow();
  return static_cast<int32_t>(whole);
}

// A remainder of less than 2 is what rounding has left over.
double Remainder(double left) {
  return left < 2 ? 0 : left;
}

// The percentage at which a die falls on its axis always.
constexpr double AxisHasAll = -200;

// An edit in progress, on a copy of the matrix.
struct Edit {
  ProbabilityPlanes planes;
  int column, row;
  double value;

  int32_t& Flag(int i, int j) { return At(At(planes.Flags, i), j); }
  int32_t& Share(int i, int j) { return At(At(planes.Shares, i), j); }
  int32_t& DiceForm() { return planes.Flags[0][0]; }
};

template <class Visit>
void ForEachGroup(Visit&& visit) {
  for (int row = 1; row <= LastTotalRow; ++row)
    visit(GroupOf(TotalColumn, row));
  for (const int row : {FirstDieRow, SecondDieRow}) {
    for (int column = FirstPairColumn; column <= LastPairColumn; ++column)
      visit(GroupOf(column, row));
  }
}

template <class Visit>
void ForEachPairOf(const Group& group, Visit&& visit) {
  ForEachPair([&](int i, int j) {
    if (group.Holds(i, j)) visit(i, j);
  });
}

void MarkLockedGroups(Edit& edit) {
  ForEachGroup([&edit](const Group& group) {
    if (edit.Flag(group.column, group.row) <= 0) return;
    ForEachPairOf(group, [&](int i, int j) { edit.Flag(i, j) |= group.mark; });
  });
}

// The pairs of a locked group that are bound by more than the group itself.
Bound BoundInside(Edit& edit, const Group& group) {
  Bound bound;
  ForEachPairOf(group, [&](int i, int j) {
    if (edit.Flag(i, j) > group.mark) bound.Add(edit.Share(i, j));
  });
  return bound;
}

template <class Excluded>
Bound BoundPairs(Edit& edit, Excluded&& excluded) {
  Bound bound;
  ForEachPair([&](int i, int j) {
    if (!excluded(i, j) && edit.Flag(i, j) > 0) bound.Add(edit.Share(i, j));
  });
  return bound;
}

// Gives the pairs of a group that are bound by nothing else the same share.
void FillInside(Edit& edit, const Group& group, double share) {
  ForEachPairOf(group, [&](int i, int j) {
    if (edit.Flag(i, j) == group.mark) edit.Share(i, j) = Rounded(share);
  });
}

void FillUnbound(Edit& edit, double share) {
  ForEachPair([&](int i, int j) {
    if (edit.Flag(i, j) == 0) edit.Share(i, j) = Rounded(share);
  });
}

// A total, or a face of free-form dice: its pairs share the value, all others the rest.
bool BalanceGroup(Edit& edit) {
  edit.DiceForm() = FreeFormMark;
  const Group group = GroupOf(edit.column, edit.row);
  const Bound inside = BoundInside(edit, group);
  const Bound outside = BoundPairs(edit, [&](int i, int j) { return group.Holds(i, j); });
  const int freeInside = group.Size() - inside.count;
  const int freeOutside = PairCount - group.Size() - outside.count;
  if (freeInside == 0 || freeOutside == 0) return false;

  const double left = Remainder(static_cast<double>(WholeShare - outside.sum));
  edit.value = std::max(std::min(edit.value, left), static_cast<double>(inside.sum));
  FillInside(edit, group, (edit.value - static_cast<double>(inside.sum)) / freeInside);
  FillUnbound(edit, Remainder(left - edit.value) / freeOutside);
  return true;
}

// A face of independent dice: the other faces of the die share the rest, and every pair is the
// product of its faces.
bool BalanceFaces(Edit& edit) {
  edit.DiceForm() = 0;
  Bound bound;
  for (int i = FirstPairColumn; i <= LastPairColumn; ++i) {
    if (edit.Flag(i, edit.row) > 0) bound.Add(edit.Share(i, edit.row));
  }
  const int free = FaceCount - bound.count;
  if (free == 0) return false;

  edit.value = std::min(edit.value, Remainder(static_cast<double>(WholeShare - bound.sum)));
  edit.Share(edit.column, edit.row) = Rounded(edit.value);
  const double rest = static_cast<double>(WholeShare) - edit.value - static_cast<double>(bound.sum);
  for (int i = FirstPairColumn; i <= LastPairColumn; ++i) {
    if (edit.Flag(i, edit.row) == 0) edit.Share(i, edit.row) = Rounded(rest / free);
  }
  ForEachPair([&edit](int i, int j) {
    const Faces faces = FacesOfCell(i, j);
    const double first = edit.Share(faces.die1 + 1, FirstDieRow);
    edit.Share(i, j) = Rounded(first * edit.Share(faces.die2 + 1, SecondDieRow) * 0.00001);
  });
  return true;
}

// What a locked total or face leaves to the edited pair and its free neighbours.
struct Limit {
  Group group;
  int free = 0;     // 0: no limit
  double rest = 0;  // of the group's share, for the edited pair and the free ones
};

// The limits of a pair: its total, its first and its second die's face, in this order. Only with
// the last is it no failure that nothing is free.
bool FindLimits(Edit& edit, std::array<Limit, 3>& limits) {
  for (Limit& limit : limits) {
    const Group& group = limit.group;
    if (edit.Flag(group.column, group.row) <= 0) continue;
    const Bound bound = BoundInside(edit, group);
    limit.free = group.Size() - bound.count;
    if (limit.free == 0 && group.mark != SecondDieMark) return false;
    if (limit.free == 0) continue;
    limit.rest = static_cast<double>(edit.Share(group.column, group.row) - bound.sum);
    edit.value = std::min(edit.value, limit.rest);
  }
  return true;
}

bool BalancePair(Edit& edit) {
  edit.DiceForm() = FreeFormMark;
  const Faces faces = FacesOfCell(edit.column, edit.row);
  std::array<Limit, 3> limits = {{{GroupOf(TotalColumn, edit.row)},
                                  {GroupOf(faces.die1 + 1, FirstDieRow)},
                                  {GroupOf(faces.die2 + 1, SecondDieRow)}}};
  if (!FindLimits(edit, limits)) return false;
  for (const Limit& limit : limits) {
    if (limit.free > 0) FillInside(edit, limit.group, (limit.rest - edit.value) / limit.free);
  }
  const Bound bound = BoundPairs(edit, [](int, int) { return false; });
  const double left = std::max(0.0, static_cast<double>(WholeShare - bound.sum));
  edit.value = std::min(edit.value, left);
  if (bound.count < PairCount) FillUnbound(edit, (left - edit.value) / (PairCount - bound.count));
  return true;
}

bool AnyTotalOrPairLocked(Edit& edit) {
  bool locked = false;
  for (int j = 1; j <= LastTotalRow; ++j)
    locked |= edit.Flag(TotalColumn, j) >= LockFlag;
  ForEachPair([&](int i, int j) { locked |= edit.Flag(i, j) >= LockFlag; });
  return locked;
}

bool Balance(Edit& edit) {
  if (edit.column == TotalColumn) return BalanceGroup(edit);
  if (edit.row <= LastTotalRow) return BalancePair(edit);
  return AnyTotalOrPairLocked(edit) ? BalanceGroup(edit) : BalanceFaces(edit);
}

// Totals, and the faces of free-form dice, follow their pairs unless they are locked.
void SumGroups(Edit& edit) {
  ForEachGroup([&edit](const Group& group) {
    if (edit.Flag(group.column, group.row) >= LockFlag) return;
    if (group.mark != TotalMark && edit.DiceForm() != FreeFormMark) return;
    int64_t sum = 0;
    ForEachPairOf(group, [&](int i, int j) { sum += edit.Share(i, j); });
    edit.Share(group.column, group.row) = Rounded(static_cast<double>(sum));
  });
}

void RemoveMarks(Edit& edit) {
  for (int i = TotalColumn; i <= LastPairColumn; ++i) {
    for (int j = 1; j <= SecondDieRow; ++j)
      edit.Flag(i, j) = edit.Flag(i, j) >= LockFlag ? LockFlag : 0;
  }
}

}  // namespace

bool BalanceMatrix(int column, int row, double value) {
  const int32_t before = ShareOf(column, row);
  Edit edit = {Probability.ProbabilityMatrix, column, row, value};
  edit.Share(column, row) = 0;
  edit.Flag(column, row) = LockFlag;
  MarkLockedGroups(edit);
  const bool balanced = Balance(edit);
  edit.Share(column, row) = balanced ? Rounded(edit.value) : before;
  if (balanced) SumGroups(edit);
  RemoveMarks(edit);
  Probability.ProbabilityMatrix = edit.planes;
  if (balanced) Probability.ProbabilityChanged = true;
  return balanced;
}

void MakePercentageDice(const DieSkew& first, const DieSkew& second) {
  for (const DieSkew& die : {first, second}) {
    if (die.Axis < 0 || die.Axis >= FaceCount / 2) RaiseIndexOutOfRange();
    if (std::isnan(die.Percent)) RaiseOverflow();
  }
  UnlockShares();
  const auto set = [](int row, const DieSkew& die) {
    const double p = std::clamp(die.Percent, AxisHasAll, 100.0) / 100;
    const int32_t share = Rounded((1 - p) / FaceCount * WholeShare);
    const std::array<int, 2> axis = {FirstPairColumn + die.Axis, LastPairColumn - die.Axis};
    for (const int column : axis) {
      At(At(Probability.ProbabilityMatrix.Shares, column), row) = share;
      LockShare(column, row, true);
    }
    for (const int column : axis)
      BalanceMatrix(column, row, share);
  };
  set(FirstDieRow, first);
  set(SecondDieRow, second);
}

}  // namespace tessarel
