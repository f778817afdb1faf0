#include "autobet/expressions.h"

#include "autobet/token_names.h"
#include "autobet/token_walk.h"
#include "autobet/word_numbers.h"
#include "engine/bet_limits.h"
#include "state/bet_numbers.h"
#include "texts/say.h"

namespace tessarel {

namespace {

// Brackets and signs inside each other that the compiler follows; beyond it an expression counts as
// one that cannot be resolved.
constexpr int DeepestNesting = 1000;

[[noreturn]] void RefuseLackingBet(int32_t number) {
  const bool big = number == bet::Big6 || number == bet::Big8;
  Refuse(Say(Text::ScriptBetNotOffered, big ? "Big" : BetName[number]));
}

// "AND", "OR" or "XOR" has nothing to work on, or nothing that fits.
[[noreturn]] void RefuseLogic(const BinaryOperator& op, Text text) {
  Refuse(SayChosen(text, op.name));
}

[[noreturn]] void RefuseOperand(const BinaryOperator& op, Found operand) {
  switch (op.kind) {
    case OperatorKind::Relation:
      Refuse(Text::ScriptRelationMisused);
    case OperatorKind::Join:
      Refuse(Text::ScriptJoinMisused);
    default:
      if (operand == Found::List) Refuse(Text::ScriptListInMath);
      Refuse(Text::ScriptArithmeticMisused);
  }
}

}  // namespace

void Refuse(std::string text) {
  throw StatementRefusal{std::move(text)};
}

void Refuse(CheckedText<0> text) {
  Refuse(Say(text));
}

Nesting::Nesting(int& depth) : depth_(depth) {
  if (++depth_ > DeepestNesting) Refuse(Text::ScriptUnresolved);
}

void ExpressionCompiler::Expect(int32_t code, CheckedText<0> text) {
  if (Code() != code) Refuse(text);
  ++at_;
}

void ExpressionCompiler::ExpectEnd() const {
  if (!AtEnd()) Refuse(Text::ScriptLeftOver);
}

size_t ExpressionCompiler::Emit(Operation operation, int32_t argument, double number) {
  program_.code.push_back({operation, 0, 0, argument, number});
  return program_.code.size() - 1;
}

int32_t ExpressionCompiler::Keep(const Reference& reference) {
  program_.references.push_back(reference);
  return static_cast<int32_t>(program_.references.size() - 1);
}

void ExpressionCompiler::Condition() {
  if (Expression() == Found::Nothing)
    Refuse(SayChosen(AtEnd() ? Text::ScriptUnresolved : Text::ScriptLeftOver));
  ExpectEnd();
}

Found ExpressionCompiler::Binary(int level) {
  Found left = Prefixed(level);
  while (true) {
    const BinaryOperator* const op = OperatorOf(Code());
    const bool binds = op != nullptr && op->level >= level;
    if (left == Found::List && op != nullptr && op->kind != OperatorKind::Logic)
      RefuseOperand(*op, left);
    if (!binds) return left;
    if (left == Found::Nothing) {
      if (op->kind != OperatorKind::Logic) RefuseOperand(*op, left);
      RefuseLogic(*op, at_ == 0 ? Text::ScriptLogicLacksLeft : Text::ScriptLogicLeftUnfit);
    }
    ++at_;
    RightSide(*op);
    left = Found::Value;
  }
}

void ExpressionCompiler::RightSide(const BinaryOperator& op) {
  if (op.kind == OperatorKind::Relation && Code() == ListToken) {
    const int32_t word = MarkedList();
    program_.code[Emit(Operation::CompareWithList, op.code)].detail = word == ListAll;
    return;
  }
  const bool missing = AtEnd();
  const Found right = Binary(op.level + 1);
  if (right != Found::Value) {
    if (op.kind != OperatorKind::Logic) RefuseOperand(op, right);
    RefuseLogic(op, missing ? Text::ScriptLogicLacksRight : Text::ScriptLogicRightUnfit);
  }
  Emit(op.operation, op.kind == OperatorKind::Relation ? op.code : 0);
}

Found ExpressionCompiler::Prefixed(int level) {
  if (Code() == LogicNot && level <= NotLevel) return Not();
  if (Code() == LogicSubtract) return Minus();
  if (Code() != ListToken) return Primary();
  const int32_t word = MarkedList();
  if (level > RelationLevel) return Found::List;
  if (const BinaryOperator* op = OperatorOf(Code());
      op != nullptr && op->kind != OperatorKind::Logic)
    return Found::List;
  program_.code[Emit(Operation::ListTruth)].detail = word == ListAll;
  return Found::Value;
}

Found ExpressionCompiler::Not() {
  const Nesting nesting(depth_);
  ++at_;
  if (Binary(NotLevel) != Found::Value) Refuse(Text::ScriptNotMisused);
  Emit(Operation::Not);
  return Found::Value;
}

Found ExpressionCompiler::Minus() {
  const Nesting nesting(depth_);
  ++at_;
  const Found operand = Binary(MinusLevel);
  if (operand != Found::Value) RefuseOperand(UnaryMinus, operand);
  Instruction& last = program_.code.back();
  if (last.operation == Operation::PushNumber)
    last.number = -last.number;
  else
    Emit(Operation::Negate);
  return Found::Value;
}

Found ExpressionCompiler::Primary() {
  switch (Code()) {
    case NumberToken:
      Emit(Operation::PushNumber, 0, tokens_[at_++].value);
      return Found::Value;
    case StringToken: {
      const auto index = static_cast<int32_t>(tokens_[at_].value);
      if (index == FromRollString) return Found::Nothing;
      ++at_;
      Emit(Operation::PushText, index > 0 ? index + shift_ : index);
      return Found::Value;
    }
    case VariableToken:
    case VariableTarget:
      return ReferenceValue();
    case FunctionToken:
    case FunctionTarget:
      return FunctionValue();
    case LogicOpen:
      return InBrackets();
    default:
      return Found::Nothing;
  }
}

Found ExpressionCompiler::InBrackets() {
  const Nesting nesting(depth_);
  ++at_;
  if (Expression() != Found::Value) Refuse(Text::ScriptUnresolved);
  Expect(LogicClose);
  return Found::Value;
}

bool ExpressionCompiler::AtReference() const {
  if (IsVariable(Code())) return true;
  return IsFunction(Code()) && NamesVariable(NumberIn(tokens_[at_]));
}

// The player's token, or the function that names him by an expression.
void ExpressionCompiler::PlayerOfReference(Reference& reference) {
  if (Code() == PlayerToken) {
    reference.player = static_cast<int8_t>(tokens_[at_++].value);
    return;
  }
  Expect(FunctionToken);
  if (Primary() != Found::Value) Refuse(Text::ScriptLeftOver);
  Emit(Operation::SetPlayer);
}

Reference ExpressionCompiler::Qualifiers(int count) {
  Reference reference;
  const auto take = [this](TokenCode kind) {
    const auto value = static_cast<int8_t>(at_ < end_ ? tokens_[at_].value : 0);
    Expect(kind);
    return value;
  };
  if (count >= 1) PlayerOfReference(reference);
  if (count >= 2) reference.hand = take(HandToken);
  if (count >= 4) reference.first = take(FirstModifierToken);
  if (count >= 3) reference.second = take(SecondModifierToken);
  return reference;
}

void ExpressionCompiler::ReferenceOnStack() {
  if (IsFunction(Code())) return NamedReference();
  const bool isTarget = Code() == VariableTarget;
  const int32_t number = TakeNumber();
  if (IsBet(number) && !OnLayout(number)) RefuseLackingBet(number);
  const size_t push = Emit(Operation::PushReference);
  Reference reference = Qualifiers(QualifierCount(number));
  reference.number = number;
  if (checkTarget_ != nullptr && isTarget) checkTarget_(reference);
  program_.code[push].argument = Keep(reference);
}

void ExpressionCompiler::NamedReference() {
  const int32_t function = TakeNumber();
  if (function == function::Big && !OnLayout(bet::Big6)) RefuseLackingBet(bet::Big6);
  const size_t push = Emit(Operation::PushReference);
  program_.code[push].argument = Keep(Qualifiers(FunctionQualifierCount(function)));
  const Nesting nesting(depth_);
  if (Primary() != Found::Value) Refuse(Say(Text::ScriptArgumentMissing, FunctionName(function)));
  program_.code[Emit(Operation::Name)].function = static_cast<int16_t>(function);
}

Found ExpressionCompiler::ReferenceValue() {
  ReferenceOnStack();
  Instruction& last = program_.code.back();
  if (last.operation == Operation::PushReference)
    last.operation = Operation::Read;
  else
    Emit(Operation::ReadReference);
  return Found::Value;
}

Found ExpressionCompiler::FunctionValue() {
  if (AtReference()) return ReferenceValue();
  const int32_t function = TakeNumber();
  const FunctionTraits* const traits = FindFunction(function);
  if (traits == nullptr || traits->MostArguments == 0) Refuse(Text::ScriptLeftOver);
  const size_t push = Emit(Operation::PushReference);
  const Reference reference = Qualifiers(traits->Qualifiers);
  program_.code[push].argument = Keep(reference);
  Emit(Operation::Mark);
  const Nesting nesting(depth_);
  if (Code() == LogicOpen) {
    Arguments(*traits, IsRollStatistic(function) && reference.first >= ModBasicNumbers);
  } else if (traits->LeastArguments > 1 || Primary() != Found::Value) {
    Refuse(Say(Text::ScriptArgumentMissing, FunctionName(function)));
  }
  program_.code[Emit(Operation::Call)].function = static_cast<int16_t>(function);
  return Found::Value;
}

// A set of rolls alone in the brackets (`namesSet`) means all of its rolls.
void ExpressionCompiler::Arguments(const FunctionTraits& function, bool namesSet) {
  ++at_;
  if (Code() == LogicClose && namesSet) {
    AllRolls();
  } else if (Code() == LogicClose) {
    Refuse(Say(Text::ScriptArgumentMissing, FunctionName(function.Number)));
  } else if (function.TakesList()) {
    ListItems(function.Number);
  } else {
    CountedArguments(function);
  }
  if (Code() != LogicClose)
    Refuse(Say(Text::ScriptArgumentImproper, FunctionName(function.Number)));
  ++at_;
}

void ExpressionCompiler::CountedArguments(const FunctionTraits& function) {
  const auto refuse = [&function](Text text) {
    Refuse(SayChosen(text, FunctionName(function.Number)));
  };
  for (int count = 1;; ++count, ++at_) {
    if (count > function.MostArguments) refuse(Text::ScriptArgumentsTooMany);
    if (Code() == ListToken || IsRelation(Code()) || ItemIsThru())
      refuse(Text::ScriptArgumentUnfit);
    const bool missing = Code() == LogicSeparator || Code() == LogicClose || AtEnd();
    if (Expression() != Found::Value)
      refuse(missing ? Text::ScriptArgumentMissing : Text::ScriptArgumentImproper);
    if (Code() == LogicSeparator) continue;
    if (count < function.LeastArguments) refuse(Text::ScriptArgumentMissing);
    return;
  }
}

// Any or All with its members after a mark; returns the word.
int32_t ExpressionCompiler::MarkedList() {
  Emit(Operation::Mark);
  const Nesting nesting(depth_);
  const int32_t word = TakeNumber();
  Expect(LogicOpen);
  ListItems(0);
  Expect(LogicClose);
  if (Code() == EmptyToken) ++at_;
  return word;
}

bool ExpressionCompiler::ItemIsThru() const {
  int depth = 0;
  for (size_t k = at_; k < end_; ++k) {
    const int32_t code = tokens_[k].code;
    if (code == LogicOpen) ++depth;
    if (code == LogicClose && --depth < 0) return false;
    if (depth > 0) continue;
    if (code == LogicThru) return true;
    if (code == LogicSeparator) return false;
  }
  return false;
}

void ExpressionCompiler::Thru(Operation operation) {
  if (!AtReference()) Refuse(Text::ScriptLeftOver);
  ReferenceOnStack();
  Expect(LogicThru);
  if (!AtReference()) Refuse(Text::ScriptLeftOver);
  ReferenceOnStack();
  Emit(operation);
}

void ExpressionCompiler::QualifierItem(int32_t function) {
  const int32_t relation = tokens_[at_++].code;
  if (Binary(JoinLevel) == Found::Value) {
    Emit(Operation::Qualify, relation);
    return;
  }
  if (function == 0) Refuse(Text::ScriptListQualifier);
  Refuse(SayChosen(
      IsRollStatistic(function) ? Text::ScriptRollQualifier : Text::ScriptFunctionQualifier,
      FunctionName(function)));
}

// The words "all rolls" have become the number 0.
bool ExpressionCompiler::AtAllRolls() const {
  if (Code() != NumberToken || tokens_[at_].value != 0 || at_ + 1 >= end_) return false;
  const int32_t behind = tokens_[at_ + 1].code;
  return behind == LogicSeparator || behind == LogicClose;
}

// Every roll of the set is above 0.
void ExpressionCompiler::AllRolls() {
  Emit(Operation::PushNumber);
  Emit(Operation::Qualify, LogicGreater);
}

// The items of a list, or of a function that takes one, up to the closing bracket.
void ExpressionCompiler::ListItems(int32_t function) {
  while (true) {
    if (IsRelation(Code())) {
      QualifierItem(function);
    } else if (IsRollStatistic(function) && AtAllRolls()) {
      ++at_;
      AllRolls();
    } else if (ItemIsThru()) {
      Thru(Operation::ReadThru);
    } else if (Code() == ListToken || Expression() != Found::Value) {
      if (function == 0) Refuse(Text::ScriptListItemUnfit);
      Refuse(Say(Text::ScriptArgumentUnfit, FunctionName(function)));
    }
    if (Code() != LogicSeparator) return;
    ++at_;
  }
}

}  // namespace tessarel
