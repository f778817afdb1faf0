#include "dice/probability.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <random>

#include "base/fault.h"
#include "base/number_format.h"
#include "state/table.h"
#include "texts/say.h"

namespace tessarel {

ProbabilityState Probability;

namespace {

constexpr std::string_view NothingToDraw = "No dice can be drawn from the probability matrix";

constexpr bool IsFromTrue(int32_t display) {
  return display == ShownAsPercentagesFromTrue || display == ShownAsRollsFromTrue;
}
constexpr bool IsInRolls(int32_t display) {
  return display == ShownAsRolls || display == ShownAsRollsFromTrue;
}

constexpr double UnitsInPercent = WholeShare / 100.0;

void CheckCell(int column, int row) {
  if (!IsTotalCell(column, row) && !IsPairCell(column, row) && !IsFaceCell(column, row)) {
    RaiseIndexOutOfRange();
  }
}

// The share that true dice give.
double TrueShare(int column, int row) {
  return PairsOfCell(column, row) * static_cast<double>(WholeShare) / PairCount;
}

// One scan for n. The sum goes on from where it stands, while the step that is looked for starts
// at 0.
bool ScanFor(int32_t n, int64_t& sum, Faces& faces) {
  int64_t before = 0;
  for (int column = FirstPairColumn; column <= LastPairColumn; ++column) {
    const auto& shares = At(Probability.ProbabilityMatrix.Shares, column);
    for (int row = column - 1; row <= 13 - column; ++row) {
      sum += At(shares, row);
      if (sum >= n && n > before) {
        faces = FacesOfCell(column, row);
        return true;
      }
      before = sum;
    }
  }
  return false;
}

// Negative shares can keep the sum below 1 for ever, and zeros do.
void RequireReachable(int64_t sum) {
  const int64_t start = sum;
  int64_t highest = std::numeric_limits<int64_t>::min();
  ForEachPair([&](int column, int row) {
    sum += At(At(Probability.ProbabilityMatrix.Shares, column), row);
    highest = std::max(highest, sum);
  });
  if (highest >= 1 || sum > start) return;
  Table.Stop = StopCause::NothingToDraw;
  throw Fault(FaultNumber::InvalidCall, std::string(NothingToDraw));
}

// Scans with numbers from outside the dice until one is found. Some matrices take a hundred
// thousand scans, so the machine is asked for a seed only.
Faces DrawAgain(int64_t sum) {
  std::minstd_rand random(static_cast<uint32_t>(PlatformRandom(INT32_MAX)));
  std::uniform_int_distribution<int32_t> numbers(1, WholeShare);
  Faces faces{};
  do {
    RequireReachable(sum);
  } while (!ScanFor(numbers(random), sum, faces));
  return faces;
}

std::string PlainNumber(double value) {
  return FormatNumber(value, value == std::floor(value) ? "0" : "0.####");
}

}  // namespace

int32_t ShareOf(int column, int row) {
  CheckCell(column, row);
  return At(At(Probability.ProbabilityMatrix.Shares, column), row);
}

Faces DrawCell(int32_t n) {
  Faces faces{};
  int64_t sum = 0;
  return ScanFor(n, sum, faces) ? faces : DrawAgain(sum);
}

void NewProbabilities() {
  Probability.ProbabilityMatrix = TrueMatrix();
  Probability.ProbabilityFileName.clear();
  Probability.ProbabilityChanged = false;
}

void LockShare(int column, int row, bool lock) {
  CheckCell(column, row);
  At(At(Probability.ProbabilityMatrix.Flags, column), row) = lock ? LockFlag : 0;
}

void UnlockShares() {
  for (int column = TotalColumn; column <= LastPairColumn; ++column) {
    auto& flags = At(Probability.ProbabilityMatrix.Flags, column);
    std::fill(flags.begin() + 1, flags.end(), 0);
  }
}

std::string_view PercentageDiceCaption() {
  const bool freeForm = Probability.ProbabilityMatrix.Flags[0][0] == FreeFormMark;
  return Wording(freeForm ? Text::FreeFormDice : Text::PercentageDice);
}

std::string ProbabilityDisplayText(int32_t display, bool base) {
  if (display < ShownAsPercentages || display > ShownAsRollsFromTrue) RaiseIndexOutOfRange();
  constexpr std::array Captions = {Text::ShownAsPercentages, Text::ShownAsPercentagesFromTrue,
                                   Text::ShownAsRolls, Text::ShownAsRollsFromTrue};
  const Text caption = At(Captions, display);
  if (!IsInRolls(display)) return SayChosen(caption);
  return SayChosen(caption, base ? PlainNumber(Probability.RollsOutOf) : "");
}

double ShownShare(int column, int row) {
  double shown = ShareOf(column, row);
  if (IsFromTrue(Probability.optProbability)) shown -= TrueShare(column, row);
  shown /= UnitsInPercent;
  return IsInRolls(Probability.optProbability) ? shown * Probability.RollsOutOf / 100 : shown;
}

std::string ShownShareText(int column, int row) {
  const bool fromTrue = IsFromTrue(Probability.optProbability);
  return FormatNumber(ShownShare(column, row),
                      fromTrue ? "+#,0.000;-#,0.000;0.000" : "#,0.000;-#,0.000;0.000");
}

double ShareOfShown(int column, int row, double shown) {
  CheckCell(column, row);
  if (IsInRolls(Probability.optProbability)) {
    if (Probability.RollsOutOf == 0) RaiseDivisionByZero();
    shown = shown * 100 / Probability.RollsOutOf;
  }
  double share = shown * UnitsInPercent;
  if (IsFromTrue(Probability.optProbability)) share += TrueShare(column, row);
  if (!std::isfinite(share)) RaiseOverflow();
  return std::max(share, 0.0);
}

}  // namespace tessarel
