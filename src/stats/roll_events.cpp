#include "stats/roll_events.h"

#include <bit>
#include <string_view>

#include "base/fault.h"
#include "dice/probability.h"
#include "state/table.h"
#include "texts/say.h"

namespace tessarel {

namespace {

constexpr RollEvent Totals(std::initializer_list<int> totals) {
  RollEvent event;
  for (const int total : totals)
    event.Totals = static_cast<uint16_t>(event.Totals | 1u << total);
  return event;
}
constexpr RollEvent Pair(uint8_t pair, uint8_t other = 0) {
  return {.Pairs = {pair, other}};
}
constexpr RollEvent FirstDie(uint8_t face) {
  return {.Die1 = face};
}
constexpr RollEvent SecondDie(uint8_t face) {
  return {.Die2 = face};
}

// clang-format off
constexpr std::array<RollEvent, LastRollEvent + 1> Events = {{
    {}, {},
    // 2 to 12: the totals.
    Totals({2}), Totals({3}), Totals({4}), Totals({5}), Totals({6}), Totals({7}), Totals({8}),
    Totals({9}), Totals({10}), Totals({11}), Totals({12}),
    // 13 to 16: the hard ways.
    Pair(22), Pair(33), Pair(44), Pair(55),
    // 17 to 21: points, inside, outside, craps, field.
    Totals({4, 5, 6, 8, 9, 10}), Totals({5, 6, 8, 9}), Totals({4, 5, 9, 10}), Totals({2, 3, 12}),
    Totals({2, 3, 4, 9, 10, 11, 12}),
    // 22 to 64: the ordered pairs of each total, then both orders together.
    Pair(12), Pair(21),
    Pair(13), Pair(31), Pair(13, 31),
    Pair(14), Pair(41), Pair(23), Pair(32), Pair(14, 41), Pair(23, 32),
    Pair(15), Pair(51), Pair(24), Pair(42), Pair(15, 51), Pair(24, 42),
    Pair(16), Pair(61), Pair(25), Pair(52), Pair(34), Pair(43),
    Pair(16, 61), Pair(25, 52), Pair(34, 43),
    Pair(26), Pair(62), Pair(35), Pair(53), Pair(26, 62), Pair(35, 53),
    Pair(36), Pair(63), Pair(45), Pair(54), Pair(36, 63), Pair(45, 54),
    Pair(46), Pair(64), Pair(46, 64),
    Pair(56), Pair(65),
    // 65 to 77: more groups of totals.
    Totals({2, 3, 7, 11, 12}), Totals({2, 3, 11, 12}), Totals({4, 5, 6}), Totals({8, 9, 10}),
    Totals({2, 12}), Totals({3, 11}), Totals({4, 10}), Totals({5, 9}), Totals({6, 8}),
    Totals({2, 3}), Totals({3, 12}), Totals({7, 11}), Totals({11, 12}),
    // 78 to 89: the faces of either die.
    FirstDie(1), FirstDie(2), FirstDie(3), FirstDie(4), FirstDie(5), FirstDie(6),
    SecondDie(1), SecondDie(2), SecondDie(3), SecondDie(4), SecondDie(5), SecondDie(6),
}};
// clang-format on

// The text of a group with a name of its own; any other is just its totals.
constexpr std::optional<CheckedText<1>> GroupName(int code) {
  switch (code) {
    case 17:
      return CheckedText<1>(Text::EventPointNumbers);
    case 18:
      return CheckedText<1>(Text::EventInsideNumbers);
    case 19:
      return CheckedText<1>(Text::EventOutsideNumbers);
    case 20:
      return CheckedText<1>(Text::EventCraps);
    case 21:
      return CheckedText<1>(Text::EventField);
    case 65:
      return CheckedText<1>(Text::EventComeOutDecisions);
    case 66:
      return CheckedText<1>(Text::EventHorn);
    case 67:
      return CheckedText<1>(Text::EventLowPoints);
    case 68:
      return CheckedText<1>(Text::EventHighPoints);
    default:
      return std::nullopt;
  }
}

// "(4.6)".
std::string PairText(int pair) {
  return "(" + std::to_string(pair / 10) + "." + std::to_string(pair % 10) + ")";
}

std::string GroupText(int code, uint16_t totals) {
  std::vector<std::string> numbers;
  for (unsigned rest = totals; rest != 0; rest &= rest - 1)
    numbers.push_back(std::to_string(std::countr_zero(rest)));
  std::string list = numbers.front();
  if (numbers.size() == 2) {
    list = Say(Text::OneOrOther, list, numbers.back());
  } else {
    for (size_t k = 1; k < numbers.size(); ++k)
      list += ", " + numbers[k];
  }
  const auto name = GroupName(code);
  return name ? Say(*name, list) : list;
}

// The totals that only one pair, or one pair in two orders, makes are named by their pairs.
std::string TotalText(int total) {
  switch (total) {
    case 2:
      return Say(Text::EventNumber, total, "(1.1)");
    case 3:
      return Say(Text::EventNumber, total, Say(Text::OneOrOther, "(1.2)", "(2.1)"));
    case 11:
      return Say(Text::EventNumber, total, Say(Text::OneOrOther, "(5.6)", "(6.5)"));
    case 12:
      return Say(Text::EventNumber, total, "(6.6)");
    default:
      return Say(Text::EventAnyTotal, total);
  }
}

std::string PairsText(const std::array<uint8_t, 2>& pairs) {
  const int die1 = pairs[0] / 10, die2 = pairs[0] % 10;
  const std::string first = PairText(pairs[0]);
  if (die1 == die2) return Say(Text::EventHard, die1 + die2, first);
  const bool both = pairs[1] != 0;
  return Say(Text::EventNumber, die1 + die2,
             both ? Say(Text::OneOrOther, first, PairText(pairs[1])) : first);
}

// In 1/100,000.
int64_t ShareOf(const RollEvent& event, const SkewedDice& dice) {
  int64_t share = At(dice.die1, event.Die1) + int64_t{At(dice.die2, event.Die2)};
  for (unsigned rest = event.Totals; rest != 0; rest &= rest - 1)
    share += At(dice.total, std::countr_zero(rest));
  for (const int pair : event.Pairs)
    share += At(At(dice.pair, pair / 10), pair % 10);
  return share;
}

constexpr SkewedDice TrueDice = [] {
  // Counts of ordered pairs in place of shares; index 0 stays empty.
  SkewedDice dice;
  for (size_t die1 = 1; die1 <= 6; ++die1) {
    dice.die1[die1] = dice.die2[die1] = 6;
    for (size_t die2 = 1; die2 <= 6; ++die2) {
      dice.pair[die1][die2] = 1;
      ++dice.total[die1 + die2];
    }
  }
  return dice;
}();

}  // namespace

const RollEvent& RollEventOf(int code) {
  if (code < FirstRollEvent || code > LastRollEvent) RaiseIndexOutOfRange();
  return At(Events, code);
}

std::string RollEventName(int code) {
  const RollEvent& event = RollEventOf(code);
  if (event.Die1 != 0) return Say(Text::EventDie1Face, int{event.Die1});
  if (event.Die2 != 0) return Say(Text::EventDie2Face, int{event.Die2});
  if (event.Pairs[0] != 0) return PairsText(event.Pairs);
  return std::has_single_bit(event.Totals) ? TotalText(std::countr_zero(event.Totals))
                                           : GroupText(code, event.Totals);
}

int CodeOfPair(int die1, int die2) {
  const auto pair = static_cast<uint8_t>(10 * die1 + die2);
  if (pair == 11) return CodeOfTotal(2);
  if (pair == 66) return CodeOfTotal(12);
  for (int code = FirstRollEvent; code <= LastRollEvent; ++code) {
    if (At(Events, code).Pairs == std::array<uint8_t, 2>{pair, 0}) return code;
  }
  RaiseIndexOutOfRange();
}

SkewedDice SkewedDiceInForce() {
  return Probability.ProbabilityMatrixActive ? SkewedDiceOfMatrix() : SkewedDice{};
}

SkewedDice SkewedDiceOfMatrix() {
  SkewedDice dice;
  dice.active = true;
  for (int row = 1; row <= LastTotalRow; ++row)
    At(dice.total, row + 1) = ShareOf(TotalColumn, row);
  ForEachPair([&dice](int column, int row) {
    const Faces faces = FacesOfCell(column, row);
    At(At(dice.pair, faces.die1), faces.die2) = ShareOf(column, row);
  });
  for (int face = 1; face <= FaceCount; ++face) {
    At(dice.die1, face) = ShareOf(face + 1, FirstDieRow);
    At(dice.die2, face) = ShareOf(face + 1, SecondDieRow);
  }
  return dice;
}

double EventProbability(int code, const SkewedDice& dice) {
  const RollEvent& event = RollEventOf(code);
  if (dice.active) return static_cast<double>(ShareOf(event, dice)) / 1000;
  return static_cast<double>(ShareOf(event, TrueDice)) * 100 / 36;
}

double EventProbability(int code, bool useTrueDice) {
  return EventProbability(code, useTrueDice ? SkewedDice{} : SkewedDiceInForce());
}

}  // namespace tessarel
