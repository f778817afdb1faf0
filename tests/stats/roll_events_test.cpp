#include "stats/roll_events.h"

#include <algorithm>
#include <cctype>
#include <set>

#include "dice/probability.h"
#include "dice/probability_balance.h"
#include "reset.h"

namespace tessarel {
namespace {

class RollEvents : public FreshTest {};

// Whether the event's name, as a reader takes it, says that the roll is one of it.
bool NameCovers(const std::string& name, int die1, int die2) {
  const std::string pair = std::to_string(die1) + "." + std::to_string(die2);
  if (name.starts_with("Die 1")) return name.back() == '0' + die1;
  if (name.starts_with("Die 2")) return name.back() == '0' + die2;
  if (name.find('.') != std::string::npos) return name.find("(" + pair + ")") != std::string::npos;
  std::set<int> totals;
  for (size_t k = 0; k < name.size(); ++k) {
    if (!std::isdigit(static_cast<unsigned char>(name[k]))) continue;
    size_t digits = 0;
    totals.insert(std::stoi(name.substr(k), &digits));
    k += digits;
  }
  return totals.contains(die1 + die2);
}

bool Reports(int die1, int die2, int code) {
  const RollCodeList& codes = CodesOfRoll(die1, die2);
  const auto end = std::ranges::find(codes, 0);
  return std::find(codes.begin(), end, code) != end;
}

// Prime-like shares, so that a wrong cell shows.
SkewedDice OddDice() {
  SkewedDice dice{.active = true};
  int share = 101;
  for (size_t a = 1; a <= 6; ++a) {
    for (size_t b = 1; b <= 6; ++b) {
      dice.pair[a][b] = share;
      dice.total[a + b] += share;
      dice.die1[a] += share;
      dice.die2[b] += share;
      share = share * 3 % 9973;
    }
  }
  return dice;
}

TEST_F(RollEvents, NameProbabilityAndCountedRollsAgreeForEveryCode) {
  const SkewedDice dice = OddDice();
  std::set<std::string> names;
  for (int code = FirstRollEvent; code <= LastRollEvent; ++code) {
    const std::string name = RollEventName(code);
    EXPECT_TRUE(names.insert(name).second) << name;
    int pairs = 0;
    int64_t share = 0;
    for (int die1 = 1; die1 <= 6; ++die1) {
      for (int die2 = 1; die2 <= 6; ++die2) {
        EXPECT_EQ(Reports(die1, die2, code), NameCovers(name, die1, die2)) << name << die1 << die2;
        if (!NameCovers(name, die1, die2)) continue;
        ++pairs;
        share += At(At(dice.pair, die1), die2);
      }
    }
    EXPECT_DOUBLE_EQ(EventProbability(code, true), pairs * 100.0 / 36) << name;
    EXPECT_DOUBLE_EQ(EventProbability(code, dice), static_cast<double>(share) / 1000) << name;
  }
}

TEST_F(RollEvents, AnActiveMatrixGivesTheChances) {
  BalanceMatrix(TotalColumn, 6, 30'000);
  const std::tuple<int, double, double> cases[] = {{CodeOfTotal(7), 100.0 / 6, 30},
                                                   {45, 100.0 / 18, 10},  // 1.6 or 6.1
                                                   {CodeOfPair(2, 2), 100.0 / 36, 2.333},
                                                   {76, 200.0 / 9, 34.666},  // 7 or 11
                                                   {CodeOfFace(1, 3), 100.0 / 6, 16.665}};
  for (const auto& [code, truePercent, skewedPercent] : cases) {
    for (const bool active : {false, true}) {
      Probability.ProbabilityMatrixActive = active;
      EXPECT_DOUBLE_EQ(EventProbability(code, false), active ? skewedPercent : truePercent);
      EXPECT_DOUBLE_EQ(EventProbability(code, true), truePercent);
    }
  }
}

TEST_F(RollEvents, NamesReadAsInTheLists) {
  // clang-format off
  const std::pair<int, const char*> cases[] = {
      {2, "Number 2 (1.1)"}, {3, "Number 3 (1.2) or (2.1)"}, {10, "Any 10"}, {16, "Hard 10 (5.5)"},
      {61, "Number 10 (6.4)"}, {62, "Number 10 (4.6) or (6.4)"}, {20, "Craps (2, 3, 12)"},
      {76, "7 or 11"}, {78, "Die 1, face 1"}, {89, "Die 2, face 6"}};
  // clang-format on
  for (const auto& [code, name] : cases)
    EXPECT_EQ(RollEventName(code), name);
}

TEST_F(RollEvents, CodesOutsideTheTableAreFaults) {
  for (const int code : {-1, 0, 1, 90, 91})
    EXPECT_THROW(EventProbability(code, true), Fault) << code;
}

}  // namespace
}  // namespace tessarel
