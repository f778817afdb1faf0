#include <string>

#include "autobet/checker.h"
#include "autobet/token_names.h"
#include "autobet/token_walk.h"
#include "autobet/word_numbers.h"
#include "state/bet_numbers.h"
#include "texts/say.h"

namespace tessarel {

namespace {

bool IsWritable(int32_t number) {
  if (IsBet(number) || IsStack(number) || IsStackName(number)) return true;
  switch (number) {
    case variable::WinHandling:
    case variable::LossHandling:
    case variable::AutoTakeOdds:
    case variable::AutoLayOdds:
    case variable::AutoDownPlaceBets:
    case variable::AutoPassDice:
    case variable::BeginningBankroll:
    case variable::Bankroll:
    case variable::RollFileNext:
    case variable::RollsPerHour:
    case variable::Seed:
    case variable::Generator:
    case variable::CompRate:
      return true;
    default:
      return number >= variable::OddsFactor4 && number <= variable::OddsFactor10;
  }
}

// What a statement does to the bets it names.
enum class Use {
  Amounts,  // sets what is on them now
  Bets,     // turns or takes them down: of this hand or session
  Any,      // its own rules are told with the statement
};

// The actions and what they do to what they name.
struct ActionRow {
  int32_t First, Last;
  Use Targets;
  bool HasAmount;  // beside the targets, divided by "on", "to" or "from"
};
// clang-format off
constexpr ActionRow ActionRows[] = {
    {action::Swap, action::Swap, Use::Amounts, false},
    {action::BuyPlaceBet, action::BuyPlaceBet, Use::Any, false},
    {action::CallOff, action::RemoveButton, Use::Bets, false},
    {action::TakeDown, action::TakeDown, Use::Bets, false},
    {action::Bet, action::RoundUp, Use::Amounts, true},
};
// clang-format on

const ActionRow* RowOf(int32_t action) {
  for (const ActionRow& row : ActionRows) {
    if (action >= row.First && action <= row.Last) return &row;
  }
  return nullptr;
}

constexpr bool IsHead(int32_t code) {
  return code == VariableToken || code == FunctionToken;
}

// Marks the targets of the statements that stand outside conditions.
class TargetMarker {
 public:
  explicit TargetMarker(CompiledScript& script)
      : script_(script), stream_(script.TokenStream), walk_(script.TokenStream) {}

  std::optional<ScriptError> Run() {
    bool inCondition = false;
    for (size_t from = 2; from < stream_.size();) {
      const size_t to = StatementEnd(stream_, from);
      if (auto error = CheckStatement(from, to, inCondition)) return error;
      from = to + 1;
    }
    return {};
  }

 private:
  std::optional<ScriptError> CheckStatement(size_t from, size_t to, bool& inCondition) {
    const ScriptToken first = from < to ? stream_[from] : ScriptToken();
    if (first.code == LogicIf || first.code == LogicElseIf) {
      inCondition = true;
    } else if (first.code == LogicThen) {
      inCondition = false;
    } else if (inCondition && first.code == LabelToken) {
      return ErrorAt(script_, from, Say(Text::ScriptLabelInCondition));
    } else if (!inCondition && first.code == ActionToken) {
      return CheckAction(NumberIn(first), from + 1, to);
    } else if (!inCondition && (IsHead(first.code) || first.code == ListToken)) {
      return CheckAssignment(from, to);
    }
    return {};
  }

  std::optional<ScriptError> CheckAssignment(size_t from, size_t to) {
    const size_t end = FindTargets(from, to);
    if (end == to || stream_[end].code != LogicEqual) return {};
    return Mark(Use::Amounts);
  }

  std::optional<ScriptError> CheckAction(int32_t action, size_t from, size_t to) {
    const ActionRow* row = RowOf(action);
    if (row == nullptr) return {};
    if (row->HasAmount) {
      const size_t divide = FindDivision(from, to);
      if (divide == to) return {};
      if (!HoldsVariable(divide + 1, to) && HoldsVariable(from, divide)) {
        to = divide;
      } else {
        from = divide + 1;
      }
    }
    if (FindTargets(from, to) != to) return {};
    if (action != action::Swap) return Mark(row->Targets);
    for (const size_t target : targets_) {
      if (auto error = CheckTarget(target, row->Targets)) return error;
    }
    return {};
  }

  // The "on", "to" or "from" between the sides of a statement; `to` without one.
  size_t FindDivision(size_t from, size_t to) const {
    for (size_t k = from; k < to; ++k) {
      if (stream_[k].code == LogicOn || stream_[k].code == LogicFrom) return k;
      if (stream_[k].code == LogicOpen) k = walk_.Match(k);
    }
    return to;
  }

  bool HoldsVariable(size_t from, size_t to) const {
    for (size_t k = from; k < to; ++k) {
      if (stream_[k].code == VariableToken) return true;
      if (stream_[k].code == FunctionToken && NamesVariable(NumberIn(stream_[k]))) return true;
    }
    return false;
  }

  // Gathers the variables of a list, with or without brackets and the words "any" and "all",
  // qualifiers between them left out. Returns where what is no part of such a list begins.
  size_t FindTargets(size_t from, size_t to) {
    targets_.clear();
    int brackets = 0;
    bool itemBegins = true;
    size_t k = from;
    while (k < to) {
      const int32_t code = stream_[k].code;
      if (itemBegins && IsRelation(code)) {
        k = ItemEnd(k, to);
        itemBegins = false;
      } else if (itemBegins && IsHead(code)) {
        targets_.push_back(k);
        k = walk_.End(k);
        itemBegins = false;
      } else if (itemBegins && (code == ListToken || code == LogicOpen)) {
        ++brackets;
        k += code == ListToken ? 2 : 1;
      } else if (!itemBegins && brackets > 0 && code == LogicClose) {
        --brackets;
        k += k + 1 < to && stream_[k + 1].code == EmptyToken ? 2 : 1;
      } else if (!itemBegins && (code == LogicSeparator || code == LogicThru)) {
        itemBegins = true;
        ++k;
      } else {
        break;
      }
    }
    return k;
  }

  size_t ItemEnd(size_t from, size_t to) const {
    size_t k = from;
    while (k < to && stream_[k].code != LogicSeparator && stream_[k].code != LogicClose)
      k = stream_[k].code == LogicOpen ? walk_.Match(k) + 1 : k + 1;
    return k;
  }

  std::optional<ScriptError> Mark(Use use) {
    for (const size_t target : targets_) {
      if (auto error = CheckTarget(target, use)) return error;
      ScriptToken& token = stream_[target];
      token.code = token.code == VariableToken ? VariableTarget : FunctionTarget;
    }
    return {};
  }

  std::optional<ScriptError> CheckTarget(size_t target, Use use) const {
    const ScriptToken& token = stream_[target];
    const int32_t number = NumberIn(token);
    std::string text;
    if (token.code == FunctionToken && !NamesVariable(number)) {
      text = Say(Text::ScriptReadOnlyFunction, FunctionName(number));
    } else if (token.code == VariableToken && !IsWritable(number)) {
      text = Say(Text::ScriptReadOnlyVariable, VariableName(number));
    } else if (token.code == VariableToken ? IsBet(number) : NamesBet(number)) {
      text = BetFault(target, use);
    }
    if (text.empty()) return {};
    return ErrorAt(script_, target, std::move(text));
  }

  std::string BetFault(size_t target, Use use) const {
    const size_t qualifiers = walk_.PlayerEnd(target);
    const int32_t hand = NumberIn(stream_[qualifiers]);
    const int32_t first = NumberIn(stream_[qualifiers + 1]);
    const int32_t second = NumberIn(stream_[qualifiers + 2]);
    if (use == Use::Any) return {};
    if (hand != HandCurrent && hand != HandCurrentSession) return Say(Text::ScriptBetOfPast);
    if (use == Use::Bets) return {};
    if (first != ModTendered && first != ModWagered) return Say(Text::ScriptNoCurrentWager);
    if (second != ModCurrentAmount) return Say(Text::ScriptNoCurrentAmount);
    return {};
  }

  CompiledScript& script_;
  std::vector<ScriptToken>& stream_;
  const TokenWalk walk_;
  std::vector<size_t> targets_;  // of the statement
};

}  // namespace

std::optional<ScriptError> CheckAssignments(CompiledScript& script) {
  return TargetMarker(script).Run();
}

}  // namespace tessarel
