#include "autobet/reference_rules.h"

#include <initializer_list>

#include "autobet/token_names.h"
#include "autobet/token_walk.h"
#include "autobet/word_numbers.h"
#include "texts/say.h"

namespace tessarel {

namespace {

constexpr bool IsWithin(int32_t number, int32_t first, int32_t last) {
  return number >= first && number <= last;
}

// Variables and functions that share a rule.
bool CountsPoints(const ScriptToken& head) {
  const int32_t number = NumberIn(head);
  return IsFunction(head.code) ? IsWithin(number, function::PointCount, function::PointPercent)
                               : IsWithin(number, variable::PointCount, variable::PointPercent);
}

bool IsHandRecord(const ScriptToken& head) {
  return IsVariable(head.code) &&
         IsWithin(NumberIn(head), variable::MostRolls, variable::MissesPerHand);
}

// Figures of the table, not of one player.
bool IsTableFigure(const ScriptToken& head) {
  if (IsFunction(head.code)) return IsRollStatistic(NumberIn(head));
  return CountsRollsOfSet(head) || CountsPoints(head) || IsHandRecord(head) ||
         NumberIn(head) == variable::SimulatedHours;
}

bool IsSessionFigure(const ScriptToken& head) {
  const int32_t number = NumberIn(head);
  if (IsFunction(head.code)) return number == function::AverageBankroll;
  return number == variable::Comps || number == variable::SimulatedHours;
}

// A set of modifiers or scopes.
constexpr uint64_t Set(std::initializer_list<int> members) {
  uint64_t set = 0;
  for (const int member : members)
    set |= uint64_t{1} << member;
  return set;
}
constexpr bool Has(uint64_t set, int32_t member) {
  return (set >> member & 1) != 0;
}

constexpr uint64_t AnyFirst = ~uint64_t{0}, AnyHand = ~uint64_t{0};
constexpr uint64_t Decided =
    ~Set({ModTendered, ModEstablished, ModPassed, ModMissed});  // what has a count and amounts
constexpr uint64_t OnTable = Set({ModTendered, ModWagered});
constexpr uint64_t ThisSession = Set({HandCurrent, HandCurrentSession});
constexpr uint64_t Running = Set({HandCurrent, HandCurrentSession, HandAllSessions});

// With which other qualifiers the second modifiers of a bet go, and how a misuse of the modifier,
// which is `Word`, is told.
struct BetRule {
  int32_t FirstSecond, LastSecond;
  uint64_t Firsts, Hands;
  Text Misuse;
  std::string_view Word;
};
constexpr uint64_t Counted = Set({ModWagered, ModWins, ModLosses});
constexpr uint64_t Net = Set({ModNet, ModNetPercent});
// clang-format off
constexpr BetRule BetRules[] = {
    {ModTotalNumber, ModTotalAmount, Decided, AnyHand, Text::ScriptResolvedOnly, "Total"},
    {ModHigh, ModHigh, Decided, AnyHand, Text::ScriptResolvedOnly, "High"},
    {ModLow, ModLow, Decided, AnyHand, Text::ScriptResolvedOnly, "Low"},
    {ModAverage, ModAverage, Decided, AnyHand, Text::ScriptResolvedOnly, "Average"},
    {ModLastAmount, ModLastAmount, Decided, AnyHand, Text::ScriptResolvedOnly, "Last"},
    {ModRollsSinceLast, ModRollsSinceLast, Counted, AnyHand, Text::ScriptResultsOnly,
     "# rolls since last"},
    {ModExpectedValue, ModExpectedValue, Net, AnyHand, Text::ScriptNetOnly, "Expected value"},
    {ModCurrentNumber, ModCurrentAmount, OnTable, AnyHand, Text::ScriptTenderedOnly, "Current"},
    {ModCurrentNumber, ModCurrentAmount, AnyFirst, Running, Text::ScriptCurrentScopes, "Current"},
    {ModPriorNumber, ModPriorAmount, OnTable, AnyHand, Text::ScriptTenderedOnly, "Prior"},
    {ModPriorNumber, ModPriorAmount, AnyFirst, Running, Text::ScriptPriorScopes, "Prior"},
    {ModWorking, ModWorking, AnyFirst, ThisSession, Text::ScriptPresentOnly, "Working"},
    {ModCalledOn, ModCalledOn, AnyFirst, ThisSession, Text::ScriptPresentOnly, "Called on"},
    {ModCalledOff, ModCalledOff, AnyFirst, ThisSession, Text::ScriptPresentOnly, "Called off"},
    {ModVig, ModVig, AnyFirst, ThisSession, Text::ScriptPresentOnly, "Vig"},
};
// clang-format on

std::string NameOf(const ScriptToken& head) {
  return IsFunction(head.code) ? FunctionName(NumberIn(head)) : VariableName(NumberIn(head));
}

std::string BetMisuse(const Qualifiers& qualifiers) {
  if (IsRollSet(qualifiers.first)) return Say(Text::ScriptRollLimits);
  for (const BetRule& rule : BetRules) {
    if (qualifiers.second < rule.FirstSecond || qualifiers.second > rule.LastSecond) continue;
    if (!Has(rule.Firsts, qualifiers.first) || !Has(rule.Hands, qualifiers.hand))
      return SayChosen(rule.Misuse, rule.Word);
  }
  return {};
}

}  // namespace

bool NamesBet(const ScriptToken& head) {
  const int32_t number = NumberIn(head);
  if (IsFunction(head.code)) return NamesBet(number);
  return IsVariable(head.code) &&
         (IsBet(number) || IsWithin(number, variable::LayBets, variable::AllBets));
}

bool CountsRollsOfSet(const ScriptToken& head) {
  const int32_t number = NumberIn(head);
  if (IsFunction(head.code)) return CountsRollsOfSet(number);
  return IsVariable(head.code) &&
         IsWithin(number, variable::ProbablePercent, variable::DegreesOfFreedom);
}

bool IsRollSet(int32_t modifier) {
  return modifier >= ModBasicNumbers && modifier <= ModDie2Faces;
}

bool IsRollOf(int32_t set, double roll) {
  struct RollLimits {
    int32_t FirstSet, LastSet;
    double Low, High;
  };
  constexpr RollLimits Limits[] = {
      {0, 0, 1, 12},
      {ModBasicNumbers, ModBasicNumbers, 1, 12},
      {ModCombos21, ModCombos36, 1.1, 6.6},
      {ModDie1Faces, ModDie2Faces, 1, 6},
  };
  if (roll == 0) return true;
  for (const RollLimits& limits : Limits) {
    if (set >= limits.FirstSet && set <= limits.LastSet)
      return roll >= limits.Low && roll <= limits.High;
  }
  return false;
}

Qualifiers WithDefaults(const ScriptToken& head, const WrittenQualifiers& written, int owner) {
  const bool rolls = CountsRollsOfSet(head), points = CountsPoints(head);
  const bool expectedValue = written.second == ModExpectedValue;
  const int32_t first = points          ? ModEstablished
                        : rolls         ? 0
                        : expectedValue ? ModNetPercent
                                        : ModWagered;
  const int32_t second = !NamesBet(head)  ? ModTotal
                         : !written.first ? ModCurrentAmount
                                          : ModLastRollAmount;
  return {.player = written.player.value_or(IsTableFigure(head) ? PlayerNobody : owner),
          .hand = written.hand.value_or(HandCurrentSession),
          .first = written.first.value_or(first),
          .second = written.second.value_or(second)};
}

std::string QualifierMisuse(const ScriptToken& head, const Qualifiers& qualifiers) {
  constexpr uint64_t Sessions = Set({HandCurrentSession, HandLastSession, HandAllSessions});
  constexpr uint64_t CountedSessions = Set({HandCurrentSession, HandAllSessions});
  if (IsHandRecord(head) && !Has(Sessions, qualifiers.hand))
    return Say(Text::ScriptSessionsOnly, NameOf(head));
  if (IsSessionFigure(head) && !Has(CountedSessions, qualifiers.hand))
    return Say(Text::ScriptCountedSessionsOnly, NameOf(head));
  if (CountsRollsOfSet(head) && qualifiers.first != 0 && !IsRollSet(qualifiers.first))
    return Say(Text::ScriptRollLimits);
  if (CountsPoints(head) && IsRollSet(qualifiers.first)) return Say(Text::ScriptRollLimits);
  return NamesBet(head) ? BetMisuse(qualifiers) : std::string();
}

}  // namespace tessarel
