#include "autobet/token_names.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "base/single_byte_text.h"
#include "state/bet_numbers.h"

namespace tessarel {

namespace {

struct NamedNumber {
  int32_t Number;
  std::string_view Name;
};

// By number, ascending. 44 counts misses, yet scripts have always been told of "% misses".
// clang-format off
constexpr NamedNumber FunctionNames[] = {
    {1, "Lay"}, {2, "DontCome"}, {3, "DontComeOdds"}, {4, "Come"}, {5, "ComeOdds"}, {6, "Place"},
    {7, "Buy"}, {8, "Big"}, {9, "Hardway"}, {10, "Hop"},
    {21, "Checkstack"}, {22, "Average bankroll"},
    {25, "% of rolls probable"}, {26, "# of rolls probable"}, {27, "% of rolls"},
    {28, "# of rolls"}, {29, "# of rolls since last"}, {30, "% of rolls probable true"},
    {31, "# of rolls probable true"}, {32, "# of rolls probable skew"},
    {33, "% of rolls probable skew"}, {34, "chisquare"},
    {40, "# comeout rolls"}, {41, "% comeout rolls"}, {42, "# passes"}, {43, "% passes"},
    {44, "% misses"}, {45, "% misses"}, {46, "# of points"}, {47, "% of points"},
    {50, "Player"},
    {100, "Sqr"}, {101, "Int"}, {102, "Abs"}, {104, "Asc"}, {110, "Average Bankroll"},
    {117, "Val"}, {118, "Len"}, {125, "Input"}, {126, "Highest"}, {127, "Lowest"},
    {128, "Average"}, {129, "StdDev"}, {130, "Sum"}, {131, "Count"}, {132, "Highest$"},
    {133, "Lowest$"}, {137, "Pvalue"}, {139, "Round"}, {190, "Die"}, {191, "Odds allowed factor"},
    {203, "Instr"},
    {800, "Checkstack Name"}, {801, "Left$"}, {802, "Right$"}, {803, "RemoveLeft$"},
    {804, "RemoveRight$"}, {805, "Mid$"}, {806, "RemoveMid$"}, {809, "Insert$"}, {810, "Str$"},
    {811, "Chr$"}, {812, "Space$"}, {825, "Input$"}, {850, "Playername"},
};

constexpr NamedNumber VariableNames[] = {
    {651, "Available bankroll"}, {670, "Autohandle winning bets"},
    {671, "Autohandle losing bets"}, {700, "Autotake full odds"}, {701, "Autolay full odds"},
    {702, "Autodown place bets"}, {703, "Autopass the dice"}, {980, "Checkstacks"},
    {1100, "Comps"}, {1200, "Simulated hours"}, {1301, "Bankroll"}, {1302, "High bankroll"},
    {1303, "Low bankroll"},
    {1500, "# of hands"}, {1501, "Most rolls in a hand"}, {1502, "Avg rolls per hand"},
    {1503, "Most comeout rolls in a hand"}, {1504, "Avg comeout rolls per hand"},
    {1505, "Most passes in a hand"}, {1506, "Avg passes per hand"},
    {1507, "Most misses in a hand"}, {1508, "Avg misses per hand"},
    {2600, "# of comeout rolls"}, {2601, "% of comeout rolls"}, {2602, "# of passes"},
    {2603, "% of passes"}, {2604, "# of misses"}, {2605, "% of misses"},
    {4000, "lay bets"}, {4001, "inside lay bets"}, {4002, "outside lay bets"},
    {4010, "dont come bets"}, {4011, "inside dont come bets"}, {4012, "outside dont come bets"},
    {4020, "dont come odds bets"}, {4021, "inside dont come odds bets"},
    {4022, "outside dont come odds bets"},
    {4030, "come bets"}, {4031, "inside come bets"}, {4032, "outside come bets"},
    {4040, "come odds bets"}, {4041, "inside come odds bets"}, {4042, "outside come odds bets"},
    {4050, "place bets"}, {4051, "inside place bets"}, {4052, "outside place bets"},
    {4060, "buy bets"}, {4061, "inside buy bets"}, {4062, "outside buy bets"},
    {4070, "big bets"}, {4071, "hardway bets"}, {4072, "hop bets"},
    {4501, "% of rolls probable"}, {4502, "# of rolls probable"}, {4503, "% of rolls"},
    {4504, "# of rolls"}, {4505, "# of rolls since last"}, {4506, "% of rolls probable true"},
    {4507, "# of rolls probable true"}, {4508, "# of rolls probable skew"},
    {4509, "% of rolls probable skew"}, {4510, "chisquare"}, {4511, "Pvalue"},
    {4512, "Degrees of freedom"}, {4606, "# of points"}, {4607, "% of points"},
    {5000, "Initializing script"}, {5001, "Beginning new session"},
    {5002, "Beginning new hand (new shooter)"}, {5005, "Dice roll file end reached"},
    {5006, "Dice roll file next roll #"}, {5007, "Dice roll file length"}, {5200, "Shooter"},
    {5201, "Last shooter"}, {5203, "Bettor"}, {5300, "Shooter passes"}, {5301, "Shooter misses"},
    {5500, "Point"}, {5501, "Last point"}, {5510, "Dice total"}, {5511, "Dice combo"},
    {5512, "Die1"}, {5513, "Die2"}, {5603, "Rolls per hour"}, {5610, "Minimum bet"},
    {5611, "Maximum bet"}, {5612, "Odds allowed factor4"}, {5613, "Odds allowed factor5"},
    {5614, "Odds allowed factor6"}, {5615, "Odds allowed factor8"},
    {5616, "Odds allowed factor9"}, {5617, "Odds allowed factor10"}, {5655, "Seed"},
    {5672, "RNG"}, {5691, "Comp rate"}, {5693, "Date/Time"}, {5694, "Date"}, {5695, "Time"},
    {5697, "Answer"}, {5698, "Rnd"}, {5704, "Next roll is a comeout roll"},
    {5705, "Next roll is not a comeout roll"}, {5706, "Last roll was a comeout roll"},
    {5707, "Last roll was not a comeout roll"}, {5708, "Seven out"},
};
// clang-format on
static_assert(std::ranges::is_sorted(FunctionNames, {}, &NamedNumber::Number));
static_assert(std::ranges::is_sorted(VariableNames, {}, &NamedNumber::Number));

template <size_t N>
std::string_view Find(const NamedNumber (&names)[N], int32_t number) {
  const auto* const row = std::ranges::lower_bound(names, number, {}, &NamedNumber::Number);
  return row != std::end(names) && row->Number == number ? row->Name : std::string_view();
}

}  // namespace

std::string FunctionName(int32_t number) {
  const std::string_view name = Find(FunctionNames, number);
  return name.empty() ? std::string() : Quoted(name);
}

std::string VariableName(int32_t number) {
  constexpr int32_t FirstStackName = 800;
  if (number >= 1 && number <= LastBet) return Quoted(BetName[static_cast<size_t>(number)]);
  if (IsStack(number)) return Quoted("Checkstack" + std::to_string(number - FirstStack));
  if (number >= FirstStackName && number < FirstStackName + StackCount) {
    return Quoted("Checkstackname" + std::to_string(number - FirstStackName));
  }
  const std::string_view name = Find(VariableNames, number);
  return Quoted(name.empty() ? "Variable" : name);
}

}  // namespace tessarel
