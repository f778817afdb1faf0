#include "autobet/roll_figures.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <optional>

#include "autobet/bet_figures.h"
#include "autobet/variables.h"
#include "state/books.h"
#include "state/table.h"
#include "stats/chi_square.h"
#include "stats/roll_events.h"
#include "stats/selection.h"

namespace tessarel {

namespace {

// One roll of a set: how scripts write it, and the codes under which it is counted.
struct RollOfSet {
  double value = 0;
  std::array<int, 2> codes{};  // 0 none
};

// A set of rolls of which each throw makes exactly one.
struct RollSet {
  std::array<RollOfSet, 36> rolls{};
  int count = 0;
  ScriptFault outOfRange = ScriptFault::RollTotal;

  void Add(double value, int code, int other = 0) { At(rolls, count++) = {value, {code, other}}; }
};

// Rolls of a set, or totals, by bit.
using RollMask = uint64_t;

constexpr RollMask AllOf(int count) {
  return (RollMask{1} << count) - 1;
}

double PairValue(int die1, int die2) {
  return (10 * die1 + die2) / 10.0;
}

RollSet BasicNumbers() {
  RollSet set;
  for (int total = 2; total <= 12; ++total)
    set.Add(total, CodeOfTotal(total));
  return set;
}

RollSet PointSet() {
  RollSet set;
  set.outOfRange = ScriptFault::PointNumber;
  for (const int point : PointNumbers)
    set.Add(point, CodeOfTotal(point));
  return set;
}

RollSet Combinations(bool ordered) {
  RollSet set;
  set.outOfRange = ScriptFault::RollPair;
  for (int die1 = 1; die1 <= 6; ++die1) {
    for (int die2 = ordered ? 1 : die1; die2 <= 6; ++die2) {
      const int mirrored = ordered || die1 == die2 ? 0 : CodeOfPair(die2, die1);
      set.Add(PairValue(die1, die2), CodeOfPair(die1, die2), mirrored);
    }
  }
  return set;
}

RollSet Faces(int die) {
  RollSet set;
  set.outOfRange = ScriptFault::RollFace;
  for (int face = 1; face <= 6; ++face)
    set.Add(face, CodeOfFace(die, face));
  return set;
}

RollSet SetOf(int firstModifier) {
  switch (firstModifier) {
    case ModCombos21:
      return Combinations(false);
    case ModCombos36:
      return Combinations(true);
    case ModDie1Faces:
      return Faces(1);
    case ModDie2Faces:
      return Faces(2);
    default:
      return BasicNumbers();
  }
}

RollMask WithValue(const RollSet& set, double value) {
  for (int k = 0; k < set.count; ++k) {
    if (std::abs(At(set.rolls, k).value - value) < 1e-6) return RollMask{1} << k;
  }
  return 0;
}

// 4.3 for 3.4.
double Mirrored(double pair) {
  const double faces = std::nearbyint(10 * pair);
  return std::fmod(faces, 10) + std::floor(faces / 10) / 10;
}

// The roll of the set that a number names. The order of the faces does not matter where the set
// does not tell it apart.
RollMask Named(const RollSet& set, double number) {
  RollMask mask = WithValue(set, number);
  if (mask == 0 && set.outOfRange == ScriptFault::RollPair) mask = WithValue(set, Mirrored(number));
  // No two dice make a one, which yet is within the limits.
  const bool one = set.outOfRange == ScriptFault::RollTotal && number == 1;
  if (mask == 0 && !one) FailScript(set.outOfRange);
  return mask;
}

RollMask Passing(const RollSet& set, const ListItem& qualifier) {
  RollMask mask = 0;
  for (int k = 0; k < set.count; ++k) {
    const ScriptValue roll = Number(At(set.rolls, k).value);
    if (CompareValues(roll, qualifier.qualifier, qualifier.value)) mask |= RollMask{1} << k;
  }
  return mask;
}

// The rolls that arguments name: all of the set without any. A qualifier with no members after it
// has the whole set to choose from.
RollMask Select(const RollSet& set, std::span<const ListItem> items) {
  if (items.empty()) return AllOf(set.count);
  RollMask mask = 0;
  for (size_t k = 0; k < items.size(); ++k) {
    const bool alone = k + 1 == items.size() || items[k + 1].qualifier != 0;
    if (items[k].qualifier != 0 && alone) mask |= Passing(set, items[k]);
  }
  ForEachMember(items, [&](const ScriptValue& member) {
    mask |= Named(set, NumberOf(member));
    return true;
  });
  return mask;
}

template <class Visit>
void ForEachSelected(const RollSet& set, RollMask mask, Visit&& visit) {
  for (RollMask rest = mask; rest != 0; rest &= rest - 1)
    visit(At(set.rolls, std::countr_zero(rest)));
}

double Percent(double part, double whole) {
  return whole > 0 ? 100 * part / whole : 0;
}

// --- How often rolls come ----------------------------------------------------------------------

int64_t CountOf(const RollOfSet& roll, int slot) {
  int64_t count = 0;
  for (const int code : roll.codes) {
    if (code != 0) count += Stats.RollCount[slot][code];
  }
  return count;
}

double ProbabilityOf(const RollOfSet& roll, const SkewedDice& dice) {
  double percent = 0;
  for (const int code : roll.codes) {
    if (code != 0) percent += EventProbability(code, dice);
  }
  return percent;
}

// The series of the last comings is the running session's.
double SinceAny(const RollSet& set, RollMask mask, int slot) {
  if (!IsCounted(static_cast<Scope>(slot / SlotsInScope * SlotsInScope))) return 0;
  int32_t since = RollsInSession();
  ForEachSelected(set, mask, [&since](const RollOfSet& roll) {
    for (const int code : roll.codes) {
      if (code != 0) since = std::min(since, RollsSince(code));
    }
  });
  return since;
}

SkewedDice DiceFor(int32_t function) {
  switch (function) {
    case function::TruePercent:
    case function::TrueCount:
      return {};
    case function::SkewedPercent:
    case function::SkewedCount:
      return SkewedDiceOfMatrix();
    default:
      return SkewedDiceInForce();
  }
}

// The sum of `figure` over the selected rolls.
template <class Figure>
double SumOver(const RollSet& set, RollMask mask, Figure&& figure) {
  double sum = 0;
  ForEachSelected(set, mask, [&](const RollOfSet& roll) { sum += figure(roll); });
  return sum;
}

double DiceFigure(int32_t function, const RollSet& set, RollMask mask, int slot) {
  const double rolls = Stats.RollCount[slot][0];
  const auto count = [slot](const RollOfSet& roll) {
    return static_cast<double>(CountOf(roll, slot));
  };
  if (function == function::RollsSinceLast) return SinceAny(set, mask, slot);
  if (function == function::RolledCount) return SumOver(set, mask, count);
  if (function == function::RolledPercent) return Percent(SumOver(set, mask, count), rolls);
  const SkewedDice dice = DiceFor(function);
  if (function == function::ChiSquare || function == function::PValue) {
    const double chi = SumOver(set, mask, [&](const RollOfSet& roll) {
      return ChiSquareTerm(count(roll), ProbabilityOf(roll, dice) * rolls / 100);
    });
    return function == function::ChiSquare ? chi : ChiSquareTail(chi, std::popcount(mask) - 1);
  }
  const double percent =
      SumOver(set, mask, [&](const RollOfSet& roll) { return ProbabilityOf(roll, dice); });
  const bool asCount = function == function::ProbableCount || function == function::TrueCount ||
                       function == function::SkewedCount;
  return asCount ? percent * rolls / 100 : percent;
}

// --- Come-outs, passes, misses -----------------------------------------------------------------

constexpr RollMask TotalsMask(std::initializer_list<int> totals) {
  RollMask mask = 0;
  for (const int total : totals)
    mask |= RollMask{1} << total;
  return mask;
}
constexpr RollMask AllTotals = AllOf(13);
constexpr RollMask PointTotals = TotalsMask({4, 5, 6, 8, 9, 10});
constexpr int SevenOut = 7;  // the one total that misses a point

// The totals by which a row of the hand table counts naturals or points.
RollMask TotalsOfKind(HandRow row, int secondModifier) {
  const bool misses = row == HandMisses;
  if (secondModifier == ModPoints) return misses ? TotalsMask({SevenOut}) : PointTotals;
  if (secondModifier != ModNaturals) return AllTotals;
  if (misses) return TotalsMask({2, 3, 12});
  return row == HandPasses ? TotalsMask({7, 11}) : TotalsMask({2, 3, 7, 11, 12});
}

int64_t RowSum(int slot, HandRow row, RollMask totals) {
  int64_t sum = 0;
  for (int total = 2; total <= 12; ++total) {
    if ((totals >> total & 1) != 0) sum += Stats.HandTable[slot][total][row];
  }
  return sum;
}

RollMask TotalsOf(const RollSet& set, RollMask mask) {
  RollMask totals = 0;
  ForEachSelected(set, mask, [&totals](const RollOfSet& roll) {
    totals |= RollMask{1} << static_cast<int>(roll.value);
  });
  return totals;
}

// A share of the come-outs is a share of all rolls as long as nothing chooses among them; passes
// and misses are shares of both together.
double WholeOf(HandRow row, bool all, int slot) {
  if (row != HandComeoutRolls)
    return static_cast<double>(RowSum(slot, HandPasses, AllTotals) +
                               RowSum(slot, HandMisses, AllTotals));
  if (all) return Stats.RollCount[slot][0];
  return static_cast<double>(RowSum(slot, row, AllTotals));
}

double ComeoutFigure(int32_t function,
                     const Reference& reference,
                     std::span<const ListItem> arguments,
                     int slot) {
  const int pair = (function - function::ComeoutCount) / 2;
  const HandRow row = pair == 0 ? HandComeoutRolls : pair == 1 ? HandPasses : HandMisses;
  const RollMask kind = TotalsOfKind(row, reference.second);
  const RollSet set = BasicNumbers();
  const RollMask totals = kind & TotalsOf(set, Select(set, arguments));
  const auto count = static_cast<double>(RowSum(slot, row, totals));
  const bool asCount = function == function::ComeoutCount || function == function::PassCount ||
                       function == function::MissCount;
  return asCount ? count
                 : Percent(count, WholeOf(row, arguments.empty() && kind == AllTotals, slot));
}

// --- Points ------------------------------------------------------------------------------------

// Whether the point that is on now was established in the hands of a slot.
bool HasRunningPoint(int slot, int point) {
  const int place = slot % SlotsInScope;
  return Table.Point == point && IsCounted(static_cast<Scope>(slot - place)) &&
         (place == 0 || place == Table.LastShooter);
}

// Every miss of a point is the same seven, so a point's misses are what is neither passed nor still
// on.
int64_t MissedPoints(int slot, int point) {
  const auto& row = Stats.HandTable[slot][point];
  const int32_t running = HasRunningPoint(slot, point) ? 1 : 0;
  return std::max(row[HandComeoutRolls] - row[HandPasses] - running, 0);
}

int64_t PointsOf(int slot, int firstModifier, RollMask points) {
  if (firstModifier == ModPassed) return RowSum(slot, HandPasses, points);
  if (firstModifier != ModMissed) return RowSum(slot, HandComeoutRolls, points);
  if (points == PointTotals) return RowSum(slot, HandMisses, TotalsMask({SevenOut}));
  int64_t sum = 0;
  for (const int point : PointNumbers) {
    if ((points >> point & 1) != 0) sum += MissedPoints(slot, point);
  }
  return sum;
}

// Established points are a share of all that were established, the others of those decided.
double PointFigure(int32_t function,
                   const Reference& reference,
                   std::span<const ListItem> arguments,
                   int slot) {
  const RollSet set = PointSet();
  const RollMask points = TotalsOf(set, Select(set, arguments));
  const auto figure = [slot](int modifier, RollMask of) {
    return static_cast<double>(PointsOf(slot, modifier, of));
  };
  const double count = figure(reference.first, points);
  if (function == function::PointCount) return count;
  const bool decided = reference.first == ModPassed || reference.first == ModMissed;
  return Percent(count, decided ? figure(ModPassed, points) + figure(ModMissed, points)
                                : figure(ModEstablished, PointTotals));
}

}  // namespace

int DegreesOfFreedom(int firstModifier) {
  return SetOf(firstModifier).count - 1;
}

double LineBetCount(int place, const Reference& reference) {
  const int slot = SlotOf(place, reference.hand);
  if (reference.first == ModEstablished)
    return static_cast<double>(PointsOf(slot, ModEstablished, PointTotals));
  const HandRow row = reference.first == ModPassed ? HandPasses : HandMisses;
  return static_cast<double>(RowSum(slot, row, TotalsOfKind(row, reference.second)));
}

ScriptValue RollStatistic(int32_t function,
                          const Reference& reference,
                          std::span<const ListItem> arguments) {
  const int place = ResolvePlayer(reference.player);
  if (place < 0 || (place > 0 && !IsTaken(Table, place))) return Number(0);
  const int slot = SlotOf(place, reference.hand);
  double figure = 0;
  if (function >= function::ComeoutCount && function <= function::MissPercent) {
    figure = ComeoutFigure(function, reference, arguments, slot);
  } else if (function == function::PointCount || function == function::PointPercent) {
    figure = PointFigure(function, reference, arguments, slot);
  } else {
    const RollSet set = SetOf(reference.first);
    figure = DiceFigure(function, set, Select(set, arguments), slot);
  }
  return Number(StatementFailed() ? 0 : figure);
}

}  // namespace tessarel
