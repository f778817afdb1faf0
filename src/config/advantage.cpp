#include "config/advantage.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cmath>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>

#include "base/fault.h"
#include "base/number_format.h"
#include "dice/probability.h"
#include "state/payoffs.h"
#include "state/settings.h"
#include "state/table.h"
#include "state/vig.h"

namespace tessarel {

AdvantageState Advantage;

namespace {

// --- Payoffs -----------------------------------------------------------------------------------

double Ratio(const PayoffRow& row) {
  if (row.PayDen == Money()) RaiseDivisionByZero();
  return row.PayNum.ToDouble() / row.PayDen.ToDouble();
}

double RatioOf(int number) {
  return Ratio(Payoffs.Payoff[number]);
}

// What a Lay or Buy bet pays with its vig taken into account. Vig paid with the bet counts as money
// put down, so that a loss stays 1.
double AfterVig(int number, double ratio) {
  const bool lay = InFamily(number, LayFamily);
  if (ratio <= 0 || !CarriesVig(number)) return ratio;
  const double vig = lay ? Settings.LayVigPct.ToDouble() * ratio : Settings.BuyVigPct.ToDouble();
  if (ChargesVigUpFront(number)) {
    const double stake = 1 / (1 + vig);
    return stake * ratio - (1 - stake);
  }
  return (lay ? ratio : Money::FromDouble(ratio).ToDouble()) - vig;
}

// --- Bets that a single roll decides or leaves as they are -------------------------------------

// What each pair of faces brings, in units of the stake; 0 decides nothing.
struct DiceCells {
  explicit DiceCells(double everywhere) {
    for (auto& row : Value)
      row.fill(everywhere);
  }

  void SetTotal(int total, double value) {
    for (int die1 = std::max(1, total - 6); die1 <= std::min(6, total - 1); ++die1)
      At(At(Value, die1), total - die1) = value;
  }
  void SetTotals(std::initializer_list<int> totals, double value) {
    for (const int total : totals)
      SetTotal(total, value);
  }
  void SetPair(int die1, int die2, double value) {
    At(At(Value, die1), die2) = At(At(Value, die2), die1) = value;
  }

  std::array<std::array<double, 7>, 7> Value;
};

// A proposition of one roll: the stake is split evenly among its parts, of which one wins at the
// payoff of its own row and the others lose.
struct Proposition {
  struct Win {
    int Total = 0, Row = 0;
  };
  int Bet, Parts;
  std::array<Win, 5> Wins;
};

// clang-format off
constexpr Proposition Propositions[] = {
    {bet::Two,    1, {{{2, bet::Two}}}},
    {bet::Three,  1, {{{3, bet::Three}}}},
    {bet::Seven,  1, {{{7, bet::Seven}}}},
    {bet::Eleven, 1, {{{11, bet::Eleven}}}},
    {bet::Twelve, 1, {{{12, bet::Twelve}}}},
    {bet::Craps,  1, {{{2, bet::Craps}, {3, bet::Craps}, {12, bet::Craps}}}},
    {bet::CAndE,  2, {{{2, bet::Craps}, {3, bet::Craps}, {12, bet::Craps}, {11, bet::Eleven}}}},
    {bet::Horn,   4, {{{2, bet::Two}, {3, bet::Three}, {11, bet::Eleven}, {12, bet::Twelve}}}},
    {bet::World,  5, {{{2, bet::Two}, {3, bet::Three}, {11, bet::Eleven}, {12, bet::Twelve},
                       {7, bet::Seven}}}},
    {bet::Over7,  1, {{{8, bet::Over7}, {9, bet::Over7}, {10, bet::Over7}, {11, bet::Over7},
                       {12, bet::Over7}}}},
    {bet::Under7, 1, {{{2, bet::Under7}, {3, bet::Under7}, {4, bet::Under7}, {5, bet::Under7},
                       {6, bet::Under7}}}},
};
// clang-format on
static_assert(std::size(Propositions) == bet::Under7 - bet::Two + 1 &&
              std::end(Propositions)[-1].Bet == bet::Under7);

void SetProposition(DiceCells& cells, int number) {
  const Proposition& proposition = Propositions[number - bet::Two];
  const int losing = proposition.Parts - 1;
  for (const Proposition::Win& win : proposition.Wins) {
    if (win.Total != 0) cells.SetTotal(win.Total, (RatioOf(win.Row) - losing) / proposition.Parts);
  }
}

void SetNumberBet(DiceCells& cells, int total, double onTotal, double onSeven) {
  cells.SetTotal(total, onTotal);
  cells.SetTotal(7, onSeven);
}

void SetHardWay(DiceCells& cells, int number) {
  const int face = number - bet::Hard4 + 2;
  SetNumberBet(cells, 2 * face, -1, -1);
  cells.SetPair(face, face, RatioOf(number));
}

void SetHop(DiceCells& cells, int number) {
  const HopPair faces = FacesOfHop(number);
  cells.SetPair(faces.low, faces.high, RatioOf(number));
}

// A come-out that ends on the roll: a number leaves the bet undecided here, since it then travels.
void SetComeBox(DiceCells& cells, int number) {
  const double ratio = RatioOf(number);
  if (number == bet::Come) {
    cells.SetTotals({7, 11}, ratio);
    cells.SetTotals({2, 3, 12}, -1);
  } else {
    cells.SetTotals({7, 11}, -1);
    cells.SetTotals({3, Settings.BarNumber == 2 ? 12 : 2}, ratio);
  }
}

void SetField(DiceCells& cells) {
  for (int die1 = 1; die1 <= 6; ++die1) {
    for (int die2 = die1; die2 <= 6; ++die2)
      cells.SetPair(die1, die2, Ratio(Payoffs.FieldPayoff[PairIndex(die1, die2)]));
  }
}

void SetMidway(DiceCells& cells) {
  const auto ratio = [](int row) { return Ratio(Payoffs.MidwayPayoff[row]); };
  cells.SetTotal(6, ratio(2));
  cells.SetTotal(7, ratio(3));
  cells.SetTotal(8, ratio(4));
  cells.SetPair(3, 3, ratio(1));
  cells.SetPair(4, 4, ratio(5));
}

DiceCells CellsOf(int number) {
  DiceCells cells(number >= bet::Two ? -1 : 0);
  if (number <= bet::DontCome10Odds) {
    SetNumberBet(cells, PointOf(number), -1, AfterVig(number, RatioOf(number)));
  } else if (number <= bet::Buy10) {
    SetNumberBet(cells, PointOf(number), AfterVig(number, RatioOf(number)), -1);
  } else if (number == bet::Come || number == bet::DontCome) {
    SetComeBox(cells, number);
  } else if (number == bet::Field) {
    SetField(cells);
  } else if (number == bet::Big6 || number == bet::Big8) {
    SetNumberBet(cells, number == bet::Big6 ? 6 : 8, RatioOf(number), -1);
  } else if (number <= bet::Hard10) {
    SetHardWay(cells, number);
  } else if (number <= bet::Under7) {
    SetProposition(cells, number);
  } else if (number <= bet::Hop55) {
    SetHop(cells, number);
  } else {
    SetMidway(cells);
  }
  return cells;
}

// Calls visit(value, chance) for each of the 36 pairs.
template <class Visit>
void ForEachCell(const DiceCells& cells, const DiceProbabilities& dice, Visit&& visit) {
  for (size_t die1 = 1; die1 <= 6; ++die1) {
    for (size_t die2 = 1; die2 <= 6; ++die2)
      visit(cells.Value[die1][die2], dice.pair[die1][die2]);
  }
}

// A figure as it comes back from its text with a few decimals. Away from a tie plain arithmetic
// gives the same number without making the text; `scale` is ten to the number of decimals.
double AsWritten(double value, double scale, std::string_view pattern) {
  constexpr double NearTie = 1e-3, Large = 1e9;
  if (!std::isfinite(value)) return 0;
  const double scaled = value * scale, whole = std::round(scaled);
  if (std::abs(whole) < Large && std::abs(std::abs(scaled - whole) - 0.5) > NearTie)
    return whole == 0 ? 0 : whole / scale;
  const std::string text = FormatNumber(value, pattern);
  double written = 0;
  std::from_chars(text.data(), text.data() + text.size(), written);
  return written;
}

AdvantageResult FigureCells(const DiceCells& cells, const DiceProbabilities& dice) {
  const bool includeZero = Advantage.IncludeZeroOutcomes;
  AdvantageResult result;
  double deciding = 0;
  ForEachCell(cells, dice, [&](double value, double chance) {
    result.EvPerRoll += value * chance;
    if (value != 0) deciding += chance;
  });
  if (includeZero) deciding = 1;
  if (deciding == 0) return {};
  result.EvPerDec = result.EvPerRoll / deciding;
  result.RollsPerDec = AsWritten(1 / deciding, 100, "#.##");
  double perRoll = 0, perDecision = 0;
  ForEachCell(cells, dice, [&](double value, double chance) {
    const double fromRoll = value - result.EvPerRoll, fromDecision = value - result.EvPerDec;
    perRoll += fromRoll * fromRoll * chance;
    if (value != 0 || includeZero) perDecision += fromDecision * fromDecision * chance / deciding;
  });
  result.StDevPerRoll = std::sqrt(perRoll);
  result.StDevPerDec = std::sqrt(perDecision);
  return result;
}

// --- Bets that take more than one roll ---------------------------------------------------------

// How a bet can end, with the chance of each outcome, and the rolls it takes on the average.
struct Outcomes {
  void Add(double chance, double result) {
    List[Count++] = {chance, result};
    Decided += chance;
    Expectation += chance * result;
  }
  // Outcomes that the first roll brings.
  void AddRolled(const DiceProbabilities& dice, std::initializer_list<int> totals, double result) {
    for (const int total : totals) {
      Add(At(dice.total, total), result);
      Rolls += At(dice.total, total);
    }
  }

  struct Outcome {
    double Chance, Result;
  };
  std::array<Outcome, 18> List;  // the most are the 5 of a come-out and 2 a point
  size_t Count = 0;
  double Decided = 0, Expectation = 0, Rolls = 0;
};

enum class Weights { PerDecision, AsTheyStand };

// The outcomes may leave out what decides nothing: then they are weighed per decision, or else as
// they stand.
AdvantageResult FigureOutcomes(const Outcomes& outcomes, Weights weights) {
  if (outcomes.Decided == 0 || outcomes.Rolls == 0) return {};
  const double deciding = weights == Weights::PerDecision ? outcomes.Decided : 1;
  AdvantageResult result;
  result.EvPerDec = outcomes.Expectation / deciding;
  result.RollsPerDec = outcomes.Rolls / deciding;
  result.EvPerRoll = outcomes.Expectation / outcomes.Rolls;
  double perRoll = 0, perDecision = 0;
  for (const auto& [chance, value] : std::span(outcomes.List).first(outcomes.Count)) {
    const double fromRoll = value - result.EvPerRoll, fromDecision = value - result.EvPerDec;
    perRoll += fromRoll * fromRoll * chance / outcomes.Rolls;
    perDecision += fromDecision * fromDecision * chance;
  }
  result.StDevPerRoll = std::sqrt(perRoll);
  result.StDevPerDec = std::sqrt(perDecision);
  return result;
}

// A point that can be set: its chance and the chances of its end against seven.
struct PointChances {
  int Index;       // 0 to 5, as in the families
  double Set;      // the total's chance in one roll
  double Made;     // before a seven
  double Missed;   // the seven first
  double Resolve;  // either of them in one roll
};

template <class Visit>
void ForEachPoint(const DiceProbabilities& dice, Visit&& visit) {
  const double seven = dice.total[7];
  for (const int point : PointNumbers) {
    const double chance = At(dice.total, point), resolve = chance + seven;
    if (resolve == 0) continue;
    visit(PointChances{PointIndex(point), chance, chance / resolve, seven / resolve, resolve});
  }
}

// The chance that a roll is a point number.
double AnyPoint(const DiceProbabilities& dice) {
  double sum = 0;
  for (const int point : PointNumbers)
    sum += At(dice.total, point);
  return sum;
}

Outcomes FigurePassLine(const DiceProbabilities& dice) {
  Outcomes line;
  line.AddRolled(dice, {2, 3, 12}, -1);
  line.AddRolled(dice, {7, 11}, RatioOf(bet::Come));
  ForEachPoint(dice, [&](const PointChances& point) {
    line.Add(point.Set * point.Made, RatioOf(bet::Come4 + point.Index));
    line.Add(point.Set * point.Missed, -1);
    line.Rolls += point.Set * (1 / point.Resolve + 1);
  });
  return line;
}

Outcomes FigureDontPass(const DiceProbabilities& dice) {
  const int barred = Settings.BarNumber == 2 ? 2 : 12;
  Outcomes line;
  line.AddRolled(dice, {3, 14 - barred}, RatioOf(bet::DontPass));
  line.AddRolled(dice, {7, 11}, -1);
  line.Rolls += At(dice.total, barred);
  ForEachPoint(dice, [&](const PointChances& point) {
    line.Add(point.Set * point.Missed, RatioOf(bet::DontCome4 + point.Index));
    line.Add(point.Set * point.Made, -1);
    line.Rolls += point.Set * (1 / point.Resolve + 1);
  });
  return line;
}

// Odds live on a point only, so they begin with one, whichever it is.
Outcomes FigureLineOdds(const DiceProbabilities& dice, bool taken) {
  const double anyPoint = AnyPoint(dice);
  Outcomes odds;
  if (anyPoint == 0) return odds;
  ForEachPoint(dice, [&](const PointChances& point) {
    const double share = point.Set / anyPoint;
    const int row = (taken ? bet::Come4Odds : bet::DontCome4Odds) + point.Index;
    odds.Add(share * (taken ? point.Made : point.Missed), RatioOf(row));
    odds.Add(share * (taken ? point.Missed : point.Made), -1);
    odds.Rolls += share / point.Resolve;
  });
  return odds;
}

Outcomes FigureFourRollsNo7(const DiceProbabilities& dice) {
  const double seven = dice.total[7], other = 1 - seven;
  const double wins = other * other * other * other;
  Outcomes rolls;
  rolls.Add(wins, RatioOf(bet::FourRollsNo7));
  rolls.Add(1 - wins, -1);
  rolls.Rolls = seven + 2 * other * seven + 3 * other * other * seven + 4 * other * other * other;
  return rolls;
}

// The come-out must bring a point and the next roll a seven.
void AddSevenAfterPoint(Outcomes& rolls, const DiceProbabilities& dice, double ratio) {
  for (const int point : PointNumbers) {
    const double chance = At(dice.total, point);
    rolls.Add(chance * dice.total[7], ratio);
    rolls.Add(chance * (1 - dice.total[7]), -1);
    rolls.Rolls += 2 * chance;
  }
}

Outcomes FigurePoint7(const DiceProbabilities& dice) {
  Outcomes rolls;
  rolls.AddRolled(dice, {2, 3, 7, 11, 12}, -1);
  AddSevenAfterPoint(rolls, dice, RatioOf(bet::Point7));
  return rolls;
}

Outcomes FigureSevenPoint7(const DiceProbabilities& dice) {
  Outcomes rolls;
  rolls.AddRolled(dice, {2, 3, 11, 12}, -1);
  rolls.AddRolled(dice, {7}, Ratio(Payoffs.SevenPointSevenPayoff[1]));
  AddSevenAfterPoint(rolls, dice, Ratio(Payoffs.SevenPointSevenPayoff[2]));
  return rolls;
}

// --- Bets that collect numbers before a seven --------------------------------------------------

// The chance of a seven before all numbers are rolled, and the rolls until one or the other, by
// inclusion and exclusion over the sets of numbers that are all still missing.
Outcomes FigureCollecting(int number, std::span<const int> numbers, const DiceProbabilities& dice) {
  const double seven = dice.total[7];
  std::array<double, 1 << 10> sums;  // the chance that a roll is in the set
  sums[0] = 0;
  double losing = 0, rollsToAll = 0;
  for (size_t set = 1; set < size_t{1} << numbers.size(); ++set) {
    const int added = numbers[static_cast<size_t>(std::countr_zero(set))];
    sums[set] = sums[set & (set - 1)] + At(dice.total, added);
    const double sign = std::popcount(set) % 2 == 1 ? 1 : -1;
    if (seven != 0) {
      losing += sign * seven / (seven + sums[set]);
    } else if (sums[set] == 0) {
      return {};  // nothing ends the bet
    } else {
      rollsToAll += sign / sums[set];
    }
  }
  constexpr double TenDecimals = 1e10;
  Outcomes hand;
  hand.Add(std::round((1 - losing) * TenDecimals) / TenDecimals, RatioOf(number));
  hand.Add(losing, -1);
  hand.Rolls = seven != 0 ? losing / seven : rollsToAll;
  return hand;
}

Outcomes FigureAllSmall(const DiceProbabilities& dice) {
  return FigureCollecting(bet::AllSmall, std::array{2, 3, 4, 5, 6}, dice);
}

Outcomes FigureAllTall(const DiceProbabilities& dice) {
  return FigureCollecting(bet::AllTall, std::array{8, 9, 10, 11, 12}, dice);
}

Outcomes FigureMakeAll(const DiceProbabilities& dice) {
  return FigureCollecting(bet::MakeAll, std::array{2, 3, 4, 5, 6, 8, 9, 10, 11, 12}, dice);
}

// --- Bets on a whole hand ----------------------------------------------------------------------

// The rolls from the first come-out to the seven-out; 0 when the hand never ends.
double RollsPerHand(const DiceProbabilities& dice) {
  const auto& total = dice.total;
  double rolls = total[2] + total[3] + total[7] + total[11] + total[12], ending = 0;
  ForEachPoint(dice, [&](const PointChances& point) {
    rolls += (1 / point.Resolve + 1) * point.Set;
    ending += point.Set * point.Missed;
  });
  return ending == 0 ? 0 : rolls / ending;
}

// chances[k] goes with rows[k].
AdvantageResult FigureHand(std::span<const double> chances,
                           std::span<const PayoffRow> rows,
                           double rolls) {
  double expectation = 0, perDecision = 0;
  for (size_t k = 0; k < chances.size(); ++k)
    expectation += chances[k] * Ratio(rows[k]);
  for (size_t k = 0; k < chances.size(); ++k) {
    const double from = Ratio(rows[k]) - expectation;
    perDecision += from * from * chances[k];
  }
  AdvantageResult result{.EvPerDec = expectation, .RollsPerDec = rolls};
  result.StDevPerDec = std::sqrt(perDecision);
  if (rolls != 0) {
    result.EvPerRoll = expectation / rolls;
    result.StDevPerRoll = std::sqrt(perDecision / rolls);
  }
  if (Advantage.IncludeZeroOutcomes) {
    result.EvPerDec = result.EvPerRoll;
    result.StDevPerDec = result.StDevPerRoll;
  }
  return result;
}

// The chances of 0, 1, 2 ... successes before the first failure; the last row takes all longer
// runs.
template <size_t Rows>
std::array<double, Rows> RunChances(double success) {
  std::array<double, Rows> chances;
  double power = 1;
  for (size_t k = 0; k + 1 < Rows; ++k) {
    chances[k] = power * (1 - success);
    power *= success;
  }
  chances[Rows - 1] = power;
  return chances;
}

AdvantageResult FigureSharpShooter(const DiceProbabilities& dice) {
  const double anyPoint = AnyPoint(dice);
  if (anyPoint == 0) return {};
  double made = 0;
  ForEachPoint(dice, [&](const PointChances& point) { made += point.Set / anyPoint * point.Made; });
  return FigureHand(RunChances<11>(made), std::span(Payoffs.SharpShooterPayoff).subspan(1),
                    RollsPerHand(dice));
}

// Craps on the come-out neither makes nor ends a run, so the other totals share its chance.
AdvantageResult FigureRideTheLine(const DiceProbabilities& dice) {
  const double anyPoint = AnyPoint(dice);
  if (anyPoint == 0) return {};
  const double counted = anyPoint + dice.total[7] + dice.total[11];
  double pass = dice.total[7] + dice.total[11];
  ForEachPoint(dice, [&](const PointChances& point) { pass += point.Set * point.Made; });
  return FigureHand(RunChances<12>(pass / counted), std::span(Payoffs.RideTheLinePayoff).subspan(1),
                    RollsPerHand(dice));
}

// The chances of ending a hand with 0 to 6 different points made. `next` are the chances that the
// next point to be settled is made as this one, and `out` that it ends the hand.
std::array<double, 7> FireChances(const std::array<double, FamilySize>& next, double out) {
  std::array<double, 7> chances{};
  if (out == 0) {
    chances[static_cast<size_t>(std::ranges::count_if(next, [](double f) { return f != 0; }))] = 1;
    return chances;
  }
  // Within a set of points: the chance that only its points are made before the hand ends, summed
  // over the sets of each size.
  std::array<double, 7> within{};
  for (unsigned set = 0; set < 1u << FamilySize; ++set) {
    double outside = out;
    for (size_t k = 0; k < FamilySize; ++k) {
      if ((set >> k & 1) == 0) outside += next[k];
    }
    within[static_cast<size_t>(std::popcount(set))] += out / outside;
  }
  for (size_t made = 0; made <= FamilySize; ++made) {
    double sets = 1;  // how many sets of `made` points hold one of `size` points, with its sign
    for (size_t size = made + 1; size-- > 0;) {
      chances[made] += sets * within[size];
      if (size > 0) {
        sets *= -static_cast<double>(FamilySize - size + 1) / static_cast<double>(made - size + 1);
      }
    }
  }
  return chances;
}

AdvantageResult FigureFire(const DiceProbabilities& dice) {
  const double anyPoint = AnyPoint(dice);
  if (anyPoint == 0) return {};
  std::array<double, FamilySize> next{};
  double out = 0;
  ForEachPoint(dice, [&](const PointChances& point) {
    At(next, point.Index) = point.Set / anyPoint * point.Made;
    out += point.Set / anyPoint * point.Missed;
  });
  return FigureHand(FireChances(next, out), Payoffs.FirePayoff, RollsPerHand(dice));
}

// --- All bets ----------------------------------------------------------------------------------

AdvantageResult FigureUnrounded(int number, const DiceProbabilities& dice) {
  const Weights ofLine =
      Advantage.IncludeZeroOutcomes ? Weights::AsTheyStand : Weights::PerDecision;
  switch (number) {
    case bet::PassLine:
      return FigureOutcomes(FigurePassLine(dice), ofLine);
    case bet::DontPass:
      return FigureOutcomes(FigureDontPass(dice), ofLine);
    case bet::PassLineOdds:
    case bet::DontPassOdds:
      return FigureOutcomes(FigureLineOdds(dice, number == bet::PassLineOdds), ofLine);
    case bet::FourRollsNo7:
      return FigureOutcomes(FigureFourRollsNo7(dice), Weights::PerDecision);
    case bet::Point7:
      return FigureOutcomes(FigurePoint7(dice), Weights::PerDecision);
    case bet::SevenPoint7:
      return FigureOutcomes(FigureSevenPoint7(dice), Weights::PerDecision);
    case bet::AllSmall:
      return FigureOutcomes(FigureAllSmall(dice), Weights::AsTheyStand);
    case bet::AllTall:
      return FigureOutcomes(FigureAllTall(dice), Weights::AsTheyStand);
    case bet::MakeAll:
      return FigureOutcomes(FigureMakeAll(dice), Weights::AsTheyStand);
    case bet::SharpShooter:
      return FigureSharpShooter(dice);
    case bet::RideTheLine:
      return FigureRideTheLine(dice);
    case bet::Fire:
      return FigureFire(dice);
    default:
      return FigureCells(CellsOf(number), dice);
  }
}

}  // namespace

DiceProbabilities TrueDice() {
  DiceProbabilities dice;
  for (int die1 = 1; die1 <= 6; ++die1) {
    for (int die2 = 1; die2 <= 6; ++die2)
      At(At(dice.pair, die1), die2) = 1.0 / 36;
  }
  for (int total = 2; total <= 12; ++total)
    At(dice.total, total) = (6 - std::abs(total - 7)) / 36.0;
  return dice;
}

DiceProbabilities DiceInForce() {
  if (!Probability.ProbabilityMatrixActive) return TrueDice();
  DiceProbabilities dice;
  const auto probability = [](int column, int row) {
    return static_cast<double>(ShareOf(column, row)) / WholeShare;
  };
  for (int row = 1; row <= LastTotalRow; ++row)
    At(dice.total, row + 1) = probability(TotalColumn, row);
  ForEachPair([&](int column, int row) {
    const Faces faces = FacesOfCell(column, row);
    At(At(dice.pair, faces.die1), faces.die2) = probability(column, row);
  });
  return dice;
}

AdvantageResult FigureAdvantage(int number, const DiceProbabilities& dice) {
  if (number < 1 || number > LastBet) RaiseIndexOutOfRange();
  AdvantageResult result = FigureUnrounded(number, dice);
  for (const auto figure : {&AdvantageResult::EvPerRoll, &AdvantageResult::EvPerDec,
                            &AdvantageResult::StDevPerRoll, &AdvantageResult::StDevPerDec}) {
    result.*figure = AsWritten(result.*figure, 1e6, "#.######;-#.######;0.000");
  }
  if (!std::isfinite(result.RollsPerDec)) result.RollsPerDec = 0;  // shares that cancel each other
  return result;
}

AdvantageResult FigureAdvantage(int number) {
  return FigureAdvantage(number, DiceInForce());
}

}  // namespace tessarel
