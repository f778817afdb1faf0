#include "autobet/reference_rules.h"

#include <initializer_list>

#include "autobet/token_names.h"
#include "autobet/token_walk.h"

namespace tessarel {

namespace {

// Variables and functions that share a rule.
struct HeadRange {
  int32_t Code, First, Last;
};
// clang-format off
constexpr HeadRange Bets[] = {
    {VariableToken, 1, 93}, {VariableToken, 4000, 4100}, {FunctionToken, 1, 10},
};
constexpr HeadRange RollStatistics[] = {
    {VariableToken, 4501, 4512}, {FunctionToken, 25, 34}, {FunctionToken, 137, 137},
};
constexpr HeadRange PointStatistics[] = {{VariableToken, 4606, 4607}, {FunctionToken, 46, 47}};
// Figures of the table, not of one player.
constexpr HeadRange TableFigures[] = {
    {VariableToken, 4501, 4512}, {VariableToken, 4606, 4607}, {VariableToken, 1501, 1508},
    {VariableToken, 1200, 1200}, {FunctionToken, 25, 47}, {FunctionToken, 137, 137},
};
constexpr HeadRange HandRecords[] = {{VariableToken, 1501, 1508}};
constexpr HeadRange SessionFigures[] = {
    {VariableToken, 1100, 1100}, {VariableToken, 1200, 1200}, {FunctionToken, 22, 22},
};
// clang-format on

template <size_t N>
bool IsIn(const HeadRange (&ranges)[N], const ScriptToken& head) {
  for (const HeadRange& range : ranges) {
    if (head.code == range.Code && head.value >= range.First && head.value <= range.Last)
      return true;
  }
  return false;
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

// With which other qualifiers the second modifiers of a bet go.
struct BetRule {
  int32_t FirstSecond, LastSecond;
  uint64_t Firsts, Hands;
  std::string_view Text;
};
// clang-format off
constexpr BetRule BetRules[] = {
    {ModTotalNumber, ModTotalAmount, Decided, AnyHand, "'Total' only applies to resolved wagers."},
    {ModHigh, ModHigh, Decided, AnyHand, "'High' only applies to resolved wagers."},
    {ModLow, ModLow, Decided, AnyHand, "'Low' only applies to resolved wagers."},
    {ModAverage, ModAverage, Decided, AnyHand, "'Average' only applies to resolved wagers."},
    {ModLastAmount, ModLastAmount, Decided, AnyHand, "'Last' only applies to resolved wagers."},
    {ModRollsSinceLast, ModRollsSinceLast, Set({ModWagered, ModWins, ModLosses}), AnyHand,
     "'# rolls since last'\ronly applies to wagers, wins, and losses."},
    {ModExpectedValue, ModExpectedValue, Set({ModNet, ModNetPercent}), AnyHand,
     "'Expected value'\ronly available as net or net %"},
    {ModCurrentNumber, ModCurrentAmount, OnTable, AnyHand,
     "'Current' only applies to tendered wagers."},
    {ModCurrentNumber, ModCurrentAmount, AnyFirst, Running,
     "'Current' only applies to\rcurrent hand, current session, or all sessions."},
    {ModPriorNumber, ModPriorAmount, OnTable, AnyHand, "'Prior' only applies to tendered wagers."},
    {ModPriorNumber, ModPriorAmount, AnyFirst, Running,
     "'Prior' only applies to current hand, current session, or all sessions."},
    {ModWorking, ModWorking, AnyFirst, ThisSession,
     "'Working' only applies to current hand or session."},
    {ModCalledOn, ModCalledOn, AnyFirst, ThisSession,
     "'Called on' only applies to current hand or session."},
    {ModCalledOff, ModCalledOff, AnyFirst, ThisSession,
     "'Called off' only applies to current hand or session."},
    {ModVig, ModVig, AnyFirst, ThisSession, "'Vig' only applies to current hand or session."},
};
// clang-format on

std::string NameOf(const ScriptToken& head) {
  return IsFunction(head.code) ? FunctionName(NumberIn(head)) : VariableName(NumberIn(head));
}

std::string BetMisuse(const Qualifiers& qualifiers) {
  if (IsRollSet(qualifiers.first)) return RollLimitsText();
  for (const BetRule& rule : BetRules) {
    if (qualifiers.second < rule.FirstSecond || qualifiers.second > rule.LastSecond) continue;
    if (!Has(rule.Firsts, qualifiers.first) || !Has(rule.Hands, qualifiers.hand))
      return std::string(rule.Text);
  }
  return {};
}

}  // namespace

bool NamesBet(const ScriptToken& head) {
  return IsIn(Bets, head);
}

bool IsRollStatistic(const ScriptToken& head) {
  return IsIn(RollStatistics, head);
}

int32_t RollFunctionOf(int32_t variable) {
  constexpr int32_t FirstVariable = 4501, LastVariable = 4510, FirstFunction = 25;
  constexpr int32_t PValue = 4511, PValueFunction = 137;
  if (variable == PValue) return PValueFunction;
  return variable >= FirstVariable && variable <= LastVariable
             ? variable - FirstVariable + FirstFunction
             : 0;
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

std::string RollLimitsText() {
  return "Reference to rolls out of limits.";
}

std::string HouseWagerMisuse() {
  return "Wagers must be referenced by individual players.  If all players are desired \r\rthen "
         "include the separate players in an expression or function.  For example, \r\r"
         "Expression: passline player1 + passline player2\r"
         "Function: sum(passline player4, passline player6)";
}

Qualifiers WithDefaults(const ScriptToken& head, const WrittenQualifiers& written, int owner) {
  const bool rolls = IsRollStatistic(head), points = IsIn(PointStatistics, head);
  const bool expectedValue = written.second == ModExpectedValue;
  const int32_t first = points          ? ModEstablished
                        : rolls         ? 0
                        : expectedValue ? ModNetPercent
                                        : ModWagered;
  const int32_t second = !NamesBet(head)  ? ModTotal
                         : !written.first ? ModCurrentAmount
                                          : ModLastRollAmount;
  return {.player = written.player.value_or(IsIn(TableFigures, head) ? PlayerNobody : owner),
          .hand = written.hand.value_or(HandCurrentSession),
          .first = written.first.value_or(first),
          .second = written.second.value_or(second)};
}

std::string QualifierMisuse(const ScriptToken& head, const Qualifiers& qualifiers) {
  constexpr uint64_t Sessions = Set({HandCurrentSession, HandLastSession, HandAllSessions});
  constexpr uint64_t CountedSessions = Set({HandCurrentSession, HandAllSessions});
  if (IsIn(HandRecords, head) && !Has(Sessions, qualifiers.hand))
    return NameOf(head) + " only applies to\rcurrent session, last session, or all sessions.";
  if (IsIn(SessionFigures, head) && !Has(CountedSessions, qualifiers.hand))
    return NameOf(head) + " only applies to\rcurrent session or all sessions.";
  if (IsRollStatistic(head) && qualifiers.first != 0 && !IsRollSet(qualifiers.first))
    return RollLimitsText();
  if (IsIn(PointStatistics, head) && IsRollSet(qualifiers.first)) return RollLimitsText();
  return NamesBet(head) ? BetMisuse(qualifiers) : std::string();
}

}  // namespace tessarel
