#include "autobet/statements.h"

#include <algorithm>

#include "autobet/expressions.h"
#include "autobet/token_walk.h"
#include "autobet/word_numbers.h"
#include "state/bet_numbers.h"
#include "texts/say.h"

namespace tessarel {

namespace {

// Only Place bets are bought, and only now.
void CheckBoughtBet(const Reference& reference) {
  if (!InFamily(reference.number, PlaceFamily)) Refuse(Text::ScriptBuyHelp);
  if (reference.hand != HandCurrent && reference.hand != HandCurrentSession)
    Refuse(Text::ScriptBuyNow);
}

// Compiles an assignment or an action.
class OrderCompiler : public ExpressionCompiler {
 public:
  using ExpressionCompiler::ExpressionCompiler;

  void Order();

 private:
  // A stretch of the tokens of the statement.
  struct Side {
    size_t begin, end;
  };

  void Assignment();
  void Targets();
  void Target();
  void TargetsInBrackets();
  void Action();
  void ArgumentsOf(int32_t number);
  void TargetsOf(int32_t number);
  void BuyPlaceBets();
  void OneArgument(bool mayBeMissing);
  bool AtFromRoll() const;
  void PlaybackArguments();
  void SwapTargets();
  size_t FindDivision() const;
  bool TargetsStandBehind(size_t division) const;
  void BetArithmetic();
  void Enter(Side side, CheckedText<0> refusalOfNothing);
};

void OrderCompiler::Order() {
  if (Code() == ActionToken) {
    Action();
  } else {
    Assignment();
  }
  ExpectEnd();
}

void OrderCompiler::Assignment() {
  const bool begins = AtReference() || Code() == ListToken;
  const auto equals = std::find_if(tokens_.begin(), tokens_.end(), [](const ScriptToken& token) {
    return token.code == LogicEqual;
  });
  if (!begins || equals == tokens_.end()) Refuse(Text::ScriptNoStatement);
  Emit(Operation::Mark);
  Targets();
  Expect(LogicEqual, Text::ScriptNoStatement);
  if (AtEnd()) Refuse(Text::ScriptOperandMissing);
  if (Expression() != Found::Value) Refuse(Text::ScriptNoStatement);
  Emit(Operation::Assign);
}

void OrderCompiler::Target() {
  if (IsRelation(Code())) return QualifierItem(0);
  if (Code() == ListToken) {
    if (TakeNumber() == ListAny) Refuse(Text::ScriptAnyAsTarget);
    if (Code() != LogicOpen) Refuse(Text::ScriptLeftOver);
  }
  if (Code() == LogicOpen) return TargetsInBrackets();
  if (!AtReference()) {
    if (checkTarget_ != nullptr) Refuse(Text::ScriptBuyHelp);
    Refuse(SayChosen(AtEnd() ? Text::ScriptOperandMissing : Text::ScriptNoStatement));
  }
  if (ItemIsThru()) return Thru(Operation::Thru);
  ReferenceOnStack();
}

void OrderCompiler::TargetsInBrackets() {
  const Nesting nesting(depth_);
  ++at_;
  Targets();
  Expect(LogicClose);
  if (Code() == EmptyToken) ++at_;
}

// Bets and variables to be changed, with qualifiers.
void OrderCompiler::Targets() {
  Target();
  while (Code() == LogicSeparator) {
    ++at_;
    Target();
  }
}

void OrderCompiler::Action() {
  const int32_t number = TakeNumber();
  if (IsBetArithmetic(number)) {
    BetArithmetic();
  } else {
    Emit(Operation::Mark);
    ArgumentsOf(number);
    Emit(Operation::Mark);
    TargetsOf(number);
  }
  Emit(Operation::Command, number);
}

void OrderCompiler::ArgumentsOf(int32_t number) {
  if (number == action::PlayBackRollFile) return PlaybackArguments();
  if (TakesArgument(number)) OneArgument(number == action::ProbabilitiesOn);
}

void OrderCompiler::TargetsOf(int32_t number) {
  if (number == action::Swap) return SwapTargets();
  if (number == action::BuyPlaceBet) return BuyPlaceBets();
  if (!ChangesBets(number)) return;
  if (AtEnd()) Refuse(Text::ScriptActionLacksArgument);
  Targets();
}

void OrderCompiler::BuyPlaceBets() {
  checkTarget_ = CheckBoughtBet;
  if (AtEnd()) Refuse(Text::ScriptBuyHelp);
  Targets();
  if (!AtEnd()) Refuse(Text::ScriptBuyHelp);
}

void OrderCompiler::OneArgument(bool mayBeMissing) {
  if (AtEnd()) {
    if (mayBeMissing) return;
    Refuse(Text::ScriptActionLacksArgument);
  }
  if (Expression() != Found::Value) Refuse(Text::ScriptActionArgumentUnfit);
}

bool OrderCompiler::AtFromRoll() const {
  return Code() == StringToken && NumberIn(tokens_[at_]) == FromRollString;
}

void OrderCompiler::PlaybackArguments() {
  if (AtEnd()) Refuse(Text::ScriptActionLacksArgument);
  if (AtFromRoll()) {
    Emit(Operation::PushText, EmptyString);
  } else if (Expression() != Found::Value) {
    Refuse(Text::ScriptActionArgumentUnfit);
  }
  if (!AtFromRoll()) return;
  Emit(Operation::PushText, FromRollString);
  ++at_;
  OneArgument(false);
}

void OrderCompiler::SwapTargets() {
  for (int side = 0; side < 2; ++side) {
    if (!AtReference()) Refuse(Text::ScriptSwapHelp);
    ReferenceOnStack();
    const int32_t code = Code();
    if (side == 1) break;
    if (code != LogicSeparator && code != LogicAnd && code != LogicOn) Refuse(Text::ScriptSwapHelp);
    ++at_;
  }
  if (!AtEnd()) Refuse(Text::ScriptSwapHelp);
}

// The "on", "to" or "from" between the sides of a statement; the end without one.
size_t OrderCompiler::FindDivision() const {
  int depth = 0;
  for (size_t k = at_; k < end_; ++k) {
    const int32_t code = tokens_[k].code;
    depth += code == LogicOpen ? 1 : code == LogicClose ? -1 : 0;
    if (depth == 0 && (code == LogicOn || code == LogicFrom)) return k;
  }
  return end_;
}

bool OrderCompiler::TargetsStandBehind(size_t division) const {
  const auto before = tokens_.subspan(at_, division - at_);
  const auto behind = tokens_.subspan(division + 1, end_ - division - 1);
  const auto isTarget = [](const ScriptToken& token) {
    return token.code == VariableTarget || token.code == FunctionTarget;
  };
  return std::any_of(behind.begin(), behind.end(), isTarget) ||
         (!behind.empty() && behind.front().code == ListToken) ||
         std::none_of(before.begin(), before.end(), isTarget);
}

// Goes on with one side of the statement as if that were all of it.
void OrderCompiler::Enter(Side side, CheckedText<0> refusalOfNothing) {
  Emit(Operation::Mark);
  at_ = side.begin;
  end_ = side.end;
  if (AtEnd()) Refuse(refusalOfNothing);
}

// The amount and the targets stand on either side of the division.
void OrderCompiler::BetArithmetic() {
  if (AtEnd()) Refuse(Text::ScriptActionLacksArgument);
  const size_t division = FindDivision(), end = end_;
  if (division == end) Refuse(Text::ScriptNoStatement);
  const Side front = {at_, division}, back = {division + 1, end};
  const bool targetsBehind = TargetsStandBehind(division);

  Enter(targetsBehind ? front : back, Text::ScriptActionLacksArgument);
  if (Expression() != Found::Value) Refuse(Text::ScriptActionArgumentUnfit);
  ExpectEnd();

  Enter(targetsBehind ? back : front, Text::ScriptOperandMissing);
  Targets();
  ExpectEnd();
  at_ = end_ = end;
}

// Runs one of the routines of a compiler; what it refuses is the result.
template <class Compiler>
std::optional<std::string> Compiled(Compiler compiler, void (Compiler::*compile)()) {
  try {
    (compiler.*compile)();
  } catch (StatementRefusal& refusal) {
    return std::move(refusal.text);
  }
  return std::nullopt;
}

}  // namespace

std::optional<std::string> CompileCondition(std::span<const ScriptToken> tokens,
                                            int32_t shift,
                                            ScriptProgram& program) {
  return Compiled(ExpressionCompiler(tokens, shift, program), &ExpressionCompiler::Condition);
}

std::optional<std::string> CompileOrder(std::span<const ScriptToken> tokens,
                                        int32_t shift,
                                        ScriptProgram& program) {
  return Compiled(OrderCompiler(tokens, shift, program), &OrderCompiler::Order);
}

}  // namespace tessarel
