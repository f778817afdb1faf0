#include "autobet/values.h"

#include <bit>
#include <charconv>

#include "autobet/number_text.h"
#include "base/clock.h"
#include "state/scripts.h"
#include "state/table.h"
#include "texts/say.h"

namespace tessarel {

AutoBetState AutoBet;

int SelectedBettor() {
  if (AutoBet.BettorOnView > 0 && IsTaken(Table, AutoBet.BettorOnView)) return AutoBet.BettorOnView;
  return Table.TakenPlaces != 0 ? std::countr_zero(Table.TakenPlaces) : 0;
}

namespace {

// Words stand for 0 while nobody is what they say.
int PlaceOfWord(int player) {
  switch (player) {
    case PlayerShooter:
      return Table.Shooter;
    case PlayerLastShooter:
    // Whoever rolls, the hand stays credited to the player who began it.
    case PlayerOriginalShooter:
      return Table.LastShooter;
    case PlayerBettor:
      return SelectedBettor();
    case PlayerAutoBettor:
      return AutoBet.CurrentScriptPlayer;
    default:
      return 0;
  }
}

}  // namespace

int ResolvePlayer(int player) {
  if (player >= 0 && player <= LastPlace) return player;
  const int place = PlaceOfWord(player);
  return place > 0 ? place : -1;
}

void FailScript(ScriptFault fault) {
  if (!StatementFailed()) AutoBet.Fault = fault;
}

bool MayActFor(int place) {
  if (place < 1 || place > LastPlace || !IsTaken(Table, place)) {
    FailScript(ScriptFault::NoPlayer);
    return false;
  }
  const int owner = AutoBet.CurrentScriptPlayer;
  if (place == owner || Scripts.AllowAct4Others[owner]) return true;
  FailScript(ScriptFault::OtherPlayer);
  return false;
}

namespace {

std::string TextOfSpecial(int32_t value) {
  switch (value) {
    case DateString:
      return DateText(Now());
    case TimeString:
      return TimeText(Now());
    case InputPromptString:
      return Say(Text::ScriptAskNumber);
    case InputTextPromptString:
      return Say(Text::ScriptAskText);
    default:
      break;
  }
  const int named = PlayerNameString - value;
  if (named >= 1 && named <= LastPlace) return Table.PlayerName[named];
  const int place = -value / StackNameStep;
  const int stack = -value % StackNameStep - variable::FirstStackName;
  if (place >= 1 && place <= LastPlace && stack >= 0 && stack < StackCount)
    return Table.CheckStackName[place][stack];
  return {};
}

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

}  // namespace

std::string TextOf(const ScriptValue& value) {
  if (!IsText(value)) return NumberText(value.value);
  const auto index = static_cast<int32_t>(value.value);
  if (index <= 0) return TextOfSpecial(index);
  return AutoBet.Strings[index].text;
}

double LeadingNumber(std::string_view text) {
  std::string digits;
  bool point = false;
  for (const char c : text) {
    if (c == ' ' || c == '\t' || c == '\r' || c == '\n') continue;
    if (digits.empty() && (c == '-' || c == '+')) {
      digits += c;
    } else if (IsDigit(c)) {
      digits += c;
    } else if (c == '.' && !point) {
      point = true;
      digits += c;
    } else {
      break;
    }
  }
  const bool plus = !digits.empty() && digits.front() == '+';
  double number = 0;
  std::from_chars(digits.data() + (plus ? 1 : 0), digits.data() + digits.size(), number,
                  std::chars_format::fixed);
  return number;
}

double NumberOf(const ScriptValue& value) {
  return IsText(value) ? LeadingNumber(TextOf(value)) : value.value;
}

ScriptValue MakeText(std::string text) {
  if (text.empty()) return TextValue(EmptyString);
  AutoBet.Strings.push_back({std::move(text), 0});
  return TextValue(static_cast<int32_t>(AutoBet.Strings.size() - 1));
}

namespace {

template <class Side>
bool Compare(const Side& a, int32_t op, const Side& b) {
  switch (op) {
    case LogicEqual:
      return a == b;
    case LogicNotEqual:
      return a != b;
    case LogicLess:
      return a < b;
    case LogicGreater:
      return a > b;
    case LogicLessOrEqual:
      return a <= b;
    default:
      return a >= b;
  }
}

}  // namespace

bool CompareValues(const ScriptValue& a, int32_t op, const ScriptValue& b) {
  if (IsText(a)) return Compare(TextOf(a), op, TextOf(b));
  return Compare(a.value, op, NumberOf(b));
}

}  // namespace tessarel
