#include "autobet/token_names.h"

#include <algorithm>
#include <string_view>

#include "autobet/function_table.h"
#include "autobet/word_numbers.h"
#include "base/single_byte_text.h"
#include "state/bet_numbers.h"

namespace tessarel {

namespace {

struct NamedNumber {
  int32_t Number;
  std::string_view Name;
};

// By number, ascending.
// clang-format off
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
static_assert(std::ranges::is_sorted(VariableNames, {}, &NamedNumber::Number));

}  // namespace

std::string FunctionName(int32_t number) {
  const FunctionTraits* const traits = FindFunction(number);
  return traits == nullptr ? std::string() : Quoted(traits->Name);
}

std::string VariableName(int32_t number) {
  if (IsBet(number)) return Quoted(BetName[static_cast<size_t>(number)]);
  if (IsStack(number)) return Quoted("Checkstack" + std::to_string(number - FirstStack));
  if (IsStackName(number))
    return Quoted("Checkstackname" + std::to_string(number - variable::FirstStackName));
  const auto* const row = std::ranges::lower_bound(VariableNames, number, {}, &NamedNumber::Number);
  const bool named = row != std::end(VariableNames) && row->Number == number;
  return Quoted(named ? row->Name : "Variable");
}

}  // namespace tessarel
