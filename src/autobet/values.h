// What scripts calculate with at run time: numbers and texts as tokens, references to variables,
// and the state of the cycle that runs. The interpreter owns the cycle; the readers and writers of
// variables, the functions and the actions all work on what stands here.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "autobet/script_faults.h"
#include "autobet/translation.h"
#include "autobet/vocabulary.h"
#include "autobet/word_numbers.h"

namespace tessarel {

// A value is a token: a number (NumberToken) or a text (StringToken with a StringValue or an index
// of AutoBet.Strings). Values are small and are copied.
using ScriptValue = ScriptToken;

inline constexpr double TrueValue = -1, FalseValue = 0;

constexpr ScriptValue Number(double value) {
  return {NumberToken, value};
}
constexpr double TruthNumber(bool truth) {
  return truth ? TrueValue : FalseValue;
}
constexpr ScriptValue Truth(bool truth) {
  return Number(TruthNumber(truth));
}
constexpr bool IsText(const ScriptValue& value) {
  return value.code == StringToken;
}

// The values of a text that is no index of the strings.
enum StringValue : int32_t {
  EmptyString = 0,
  DateString = -1,
  TimeString = -2,
  InputPromptString = -10,
  InputTextPromptString = -11,
  FromRollString = -15,     // empty: marks the words "from roll"
  PlayerNameString = -900,  // less the place
};
constexpr ScriptValue TextValue(int32_t index) {
  return {StringToken, static_cast<double>(index)};
}
// The name of a check stack (0 to 99) of a place.
inline constexpr int32_t StackNameStep = 1000;  // from place to place
constexpr ScriptValue StackNameValue(int place, int stack) {
  return TextValue(-(place * StackNameStep + variable::FirstStackName + stack));
}

// A variable with its qualifiers as they are written: a bet, a check stack, a statistic. What a
// number has no use for is 0.
struct Reference {
  int32_t number = 0;  // of autobet/word_numbers.h
  int8_t player = 0;   // a PlayerWord or place; ResolvePlayer tells the place
  int8_t hand = 0;     // HandScope
  int8_t first = 0;    // FirstModifier
  int8_t second = 0;   // SecondModifier
  bool operator==(const Reference&) const = default;
};

// An element of a list or an argument of a function: a member, or a qualifier that the members
// after it have to pass.
struct ListItem {
  int32_t qualifier = 0;  // 0 a member, else LogicEqual to LogicGreaterOrEqual
  ScriptValue value;
};

struct AutoBetState {
  // The strings of the compiled scripts, and after them those made by the running statement;
  // from 1.
  std::vector<ScriptString> Strings = std::vector<ScriptString>(1);

  bool ScriptRunning = false;       // -1 in a cycle; set to 0, the cycle stops
  bool AutoBetMessageStop = false;  // -1: a user has stopped the cycle; a waiting step ends then
  int32_t CurrentScriptPlayer = 0;  // whose script runs
  bool Initializing = false;        // the cycle is one before the first roll
  bool NewSessionBegins = false;    // the cycle is the first of a session
  bool HotKeyRun = false;
  bool TableWasReset = false;  // a statement has started a new session
  bool ShowSteps = false;
  ScriptFault Fault = ScriptFault::None;  // of the running statement
  std::string FaultText;                  // of ScriptFault::Machinery
  int32_t Answer = 0;        // to the last question of any script: AnswerYes or AnswerNo
  int32_t BettorOnView = 0;  // the place a window has selected; 0 without a window
  uint64_t RandomState = 0;  // behind the random values of scripts; 0 not begun
};

extern AutoBetState AutoBet;

// The place of the selected bettor: the one on view, else the first seated player, else 0.
int SelectedBettor();

// The place a player qualifier stands for now: 0 the house, 1 to 8; -1 for nobody.
int ResolvePlayer(int player);

// Whether the running script may act for a place; fails the statement for an open place, and for
// another player's without the right.
bool MayActFor(int place);

// The running statement ends with this fault, unless it has one already.
void FailScript(ScriptFault fault);
inline bool StatementFailed() {
  return AutoBet.Fault != ScriptFault::None;
}

// The text of a text value; a number's text form.
std::string TextOf(const ScriptValue& value);

// The number of a value; a text is read up to its first character that is not part of a number,
// blanks skipped, 0 without one.
double NumberOf(const ScriptValue& value);
double LeadingNumber(std::string_view text);

// A text made at run time; it lives until the statement ends.
ScriptValue MakeText(std::string text);

// a op b, op LogicEqual to LogicGreaterOrEqual: as numbers if a is a number, else as texts byte by
// byte.
bool CompareValues(const ScriptValue& a, int32_t op, const ScriptValue& b);

// Calls visit(value) for each member that passes the qualifier in force, in order, until visit
// returns false.
template <class Visit>
void ForEachMember(std::span<const ListItem> items, Visit&& visit) {
  const ListItem* qualifier = nullptr;
  for (const ListItem& item : items) {
    if (item.qualifier != 0) {
      qualifier = &item;
      continue;
    }
    if (qualifier != nullptr && !CompareValues(item.value, qualifier->qualifier, qualifier->value))
      continue;
    if (!visit(item.value)) return;
  }
}

}  // namespace tessarel
