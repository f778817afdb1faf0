#include "autobet/expressions.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "autobet/checker.h"
#include "autobet/functions.h"
#include "autobet/token_names.h"
#include "engine/bet_limits.h"
#include "state/bet_numbers.h"
#include "state/table.h"

namespace tessarel {

namespace {

// What is wrong with a statement; ends its compilation.
struct Refusal {
  std::string text;
};

[[noreturn]] void Refuse(std::string text) {
  throw Refusal{std::move(text)};
}

constexpr std::string_view LeftOver = "Unable to resolve elements.";
constexpr std::string_view Unresolved = "Unable to resolve expression.";
constexpr std::string_view NoStatement = "Improper assignment or expression.";
constexpr std::string_view QualifierSamples =
    "    =, <>, <, >, <=, or >= followed by an expression.\rFor example:\r    > 5\r    = cs1 + 4";

// Brackets and signs inside each other that the compiler follows; beyond it an expression counts as
// one that cannot be resolved.
constexpr int DeepestNesting = 1000;

// The levels of precedence; a higher one binds tighter.
enum Level : int {
  Lowest = 1,
  XorLevel = Lowest,
  OrLevel,
  AndLevel,
  NotLevel,
  RelationLevel,
  JoinLevel,
  AddLevel,
  ModuloLevel,
  WholeDivideLevel,
  MultiplyLevel,
  MinusLevel,
  PowerLevel,
};

enum class OperatorKind { Logic, Relation, Join, Arithmetic };

struct BinaryOperator {
  int32_t code;
  Level level;
  OperatorKind kind;
  Operation operation;
  std::string_view name{};
};

constexpr auto BinaryOperators = std::to_array<BinaryOperator>({
    {LogicPower, PowerLevel, OperatorKind::Arithmetic, Operation::Power},
    {LogicMultiply, MultiplyLevel, OperatorKind::Arithmetic, Operation::Multiply},
    {LogicDivide, MultiplyLevel, OperatorKind::Arithmetic, Operation::Divide},
    {LogicWholeDivide, WholeDivideLevel, OperatorKind::Arithmetic, Operation::WholeDivide},
    {LogicModulo, ModuloLevel, OperatorKind::Arithmetic, Operation::Modulo},
    {LogicAdd, AddLevel, OperatorKind::Arithmetic, Operation::Add},
    {LogicSubtract, AddLevel, OperatorKind::Arithmetic, Operation::Subtract},
    {LogicJoin, JoinLevel, OperatorKind::Join, Operation::Join},
    {LogicEqual, RelationLevel, OperatorKind::Relation, Operation::Compare},
    {LogicNotEqual, RelationLevel, OperatorKind::Relation, Operation::Compare},
    {LogicLess, RelationLevel, OperatorKind::Relation, Operation::Compare},
    {LogicGreater, RelationLevel, OperatorKind::Relation, Operation::Compare},
    {LogicLessOrEqual, RelationLevel, OperatorKind::Relation, Operation::Compare},
    {LogicGreaterOrEqual, RelationLevel, OperatorKind::Relation, Operation::Compare},
    {LogicAnd, AndLevel, OperatorKind::Logic, Operation::And, "AND"},
    {LogicOr, OrLevel, OperatorKind::Logic, Operation::Or, "OR"},
    {LogicXor, XorLevel, OperatorKind::Logic, Operation::Xor, "XOR"},
});

const BinaryOperator* OperatorOf(int32_t code) {
  const auto* const found = std::find_if(BinaryOperators.begin(), BinaryOperators.end(),
                                         [code](const auto& row) { return row.code == code; });
  return found != BinaryOperators.end() ? found : nullptr;
}

constexpr bool IsRelation(int32_t code) {
  return code >= LogicEqual && code <= LogicGreaterOrEqual;
}

// How many arguments a function takes.
struct Signature {
  int32_t function;
  int least, most;
};

constexpr int AnyNumber = -1;  // a list with qualifiers

constexpr auto Signatures = std::to_array<Signature>({
    {22, 1, 1},          {25, 1, AnyNumber},  {26, 1, AnyNumber},  {27, 1, AnyNumber},
    {28, 1, AnyNumber},  {29, 1, AnyNumber},  {30, 1, AnyNumber},  {31, 1, AnyNumber},
    {32, 1, AnyNumber},  {33, 1, AnyNumber},  {34, 1, AnyNumber},  {40, 1, AnyNumber},
    {41, 1, AnyNumber},  {42, 1, AnyNumber},  {43, 1, AnyNumber},  {44, 1, AnyNumber},
    {45, 1, AnyNumber},  {46, 1, AnyNumber},  {47, 1, AnyNumber},  {50, 1, 1},
    {100, 1, 1},         {101, 1, 1},         {102, 1, 1},         {104, 1, 1},
    {117, 1, 1},         {118, 1, 1},         {125, 1, 1},         {126, 1, AnyNumber},
    {127, 1, AnyNumber}, {128, 1, AnyNumber}, {129, 1, AnyNumber}, {130, 1, AnyNumber},
    {131, 1, AnyNumber}, {132, 1, AnyNumber}, {133, 1, AnyNumber}, {137, 1, AnyNumber},
    {139, 2, 2},         {190, 1, 1},         {191, 1, 1},         {203, 3, 3},
    {801, 2, 2},         {802, 2, 2},         {803, 2, 2},         {804, 2, 2},
    {805, 3, 3},         {806, 3, 3},         {809, 3, 3},         {810, 1, 1},
    {811, 1, 1},         {812, 1, 1},         {825, 1, 1},         {850, 1, 1},
});

const Signature* SignatureOf(int32_t function) {
  const auto* const found =
      std::find_if(Signatures.begin(), Signatures.end(),
                   [function](const auto& row) { return row.function == function; });
  return found != Signatures.end() ? found : nullptr;
}

constexpr bool IsRollStatistic(int32_t function) {
  return (function >= 25 && function <= 47) || function == 137;
}

// The command words by number, as far as compiling them goes.
namespace action {
constexpr int32_t ActivateProbabilityFile = 213, Swap = 300, PlaybackRollFile = 310;
constexpr int32_t BuyPlaceBet = 450;
constexpr int32_t FirstArithmetic = 481, LastArithmetic = 489;
}  // namespace action

constexpr std::array WithoutArgument = {100, 101, 102, 103, 114, 115, 116, 118, 119, 130};
constexpr std::array WithOneArgument = {210, 211, 212, 213, 220, 221, 223, 225, 226, 230};

template <size_t N>
constexpr bool Holds(const std::array<int, N>& list, int32_t number) {
  return std::find(list.begin(), list.end(), number) != list.end();
}

std::string BuyingHelp() {
  return std::string(NoStatement) +
         "\r\rTo buy Place bets, enter only:\r     Place bet names\r     Qualifiers (optional)\r"
         "     Players (optional)\r\rFor example:\r     Buy the Place bet on Place10\r"
         "     Buy the Place bet on Place4, Place5\r     Buy the Place bet on Place(cs1) player2\r"
         "     Buy the Place bet on > 10, Place bets";
}

std::string SwapHelp() {
  return "Missing or improper arguments.\r\rThe swap command only works with two variables at a "
         "time.";
}

std::string ListAsTargetHelp() {
  return "Improper use of list.\r\rLists defined by the keyword \"Any\" cannot be used to set or "
         "modify variables.";
}

std::string LackingBetsText(int32_t number) {
  const std::string_view family =
      number == bet::Big6 || number == bet::Big8 ? "Big" : BetName[number];
  return "Table not configured for " + std::string(family) +
         " bets.\r\rCheck 'Bets' tab on Configuration screen.";
}

// What a stretch of tokens turned out to be.
enum class Found { Nothing, Value, List };

class StatementCompiler {
 public:
  StatementCompiler(std::span<const ScriptToken> tokens, int32_t shift, ScriptProgram& program)
      : tokens_(tokens), end_(tokens.size()), shift_(shift), program_(program) {}

  void Condition();
  void Order();  // an assignment or an action

 private:
  static constexpr int32_t End = -1000;  // behind the last token

  int32_t Code() const { return at_ < end_ ? tokens_[at_].code : End; }
  bool AtEnd() const { return at_ >= end_; }
  void Expect(int32_t code, std::string_view text) {
    if (Code() != code) Refuse(std::string(text));
    ++at_;
  }
  void ExpectEnd() const {
    if (!AtEnd()) Refuse(std::string(LeftOver));
  }

  size_t Emit(Operation operation, int32_t argument = 0, double number = 0) {
    program_.code.push_back({operation, 0, 0, argument, number});
    return program_.code.size() - 1;
  }
  int32_t Keep(const Reference& reference) {
    program_.references.push_back(reference);
    return static_cast<int32_t>(program_.references.size() - 1);
  }

  Found Binary(int level);
  Found Prefixed(int level);
  Found Primary();
  void RightSide(const BinaryOperator& op);
  Found InBrackets();

  bool AtReference() const;
  void ReferenceOnStack();
  Reference Qualifiers(int count);
  void PlayerOfReference(Reference& reference);
  void NamedReference();
  Found ReferenceValue();
  Found FunctionValue();
  void Arguments(const Signature& signature, const std::string& name, bool namesSet);
  Found ListOf(int32_t* word);
  bool ItemIsThru() const;
  bool AtAllRolls() const;
  void AllRolls();
  void Thru(Operation operation);
  void ListItems(int32_t function);
  void QualifierItem(int32_t function);

  void Targets();
  void Target();
  void Assignment();
  void Action();
  void OneArgument(bool mayBeMissing);
  void PlaybackArguments();
  void SwapArguments();
  void BetArithmetic();
  [[noreturn]] void RefuseTarget() const;
  static void CheckBoughtBet(const Reference& reference);

  std::span<const ScriptToken> tokens_;
  size_t at_ = 0, end_;
  int32_t shift_;
  int depth_ = 0;
  bool buys_ = false;  // the targets are Place bets to be bought
  ScriptProgram& program_;
};

// Counts how deep the compiler is in brackets and signs.
class Nesting {
 public:
  explicit Nesting(int& depth) : depth_(depth) {
    if (++depth_ > DeepestNesting) Refuse(std::string(Unresolved));
  }
  ~Nesting() { --depth_; }
  Nesting(const Nesting&) = delete;
  Nesting& operator=(const Nesting&) = delete;

 private:
  int& depth_;
};

std::string LogicText(std::string_view problem, const BinaryOperator& op) {
  return std::string(problem) + std::string(op.name);
}

[[noreturn]] void RefuseOperand(const BinaryOperator& op, Found operand) {
  switch (op.kind) {
    case OperatorKind::Relation:
      Refuse("Improper use of relational operator");
    case OperatorKind::Join:
      Refuse("Unable to concatenate elements.");
    default:
      Refuse(operand == Found::List ? "Unable to perform requested math."
                                    : "Improper use of arithmetic operator.");
  }
}

Found StatementCompiler::Binary(int level) {
  Found left = Prefixed(level);
  while (true) {
    const BinaryOperator* const op = OperatorOf(Code());
    const bool binds = op != nullptr && op->level >= level;
    if (left == Found::List && op != nullptr && op->kind != OperatorKind::Logic)
      RefuseOperand(*op, left);
    if (!binds) return left;
    if (left == Found::Nothing) {
      if (op->kind != OperatorKind::Logic) RefuseOperand(*op, left);
      Refuse(LogicText(at_ == 0 ? "Missing expression before logical "
                                : "Missing or inappropriate expression before logical ",
                       *op));
    }
    ++at_;
    RightSide(*op);
    left = Found::Value;
  }
}

void StatementCompiler::RightSide(const BinaryOperator& op) {
  if (op.kind == OperatorKind::Relation && Code() == ListToken) {
    int32_t word = 0;
    Emit(Operation::Mark);
    ListOf(&word);
    program_.code[Emit(Operation::CompareWithList, op.code)].detail = word == ListAll;
    return;
  }
  const bool missing = AtEnd();
  const Found right = Binary(op.level + 1);
  if (right != Found::Value) {
    if (op.kind != OperatorKind::Logic) RefuseOperand(op, right);
    Refuse(LogicText(missing ? "Missing expression after logical "
                             : "Missing or inappropriate expression after logical ",
                     op));
  }
  Emit(op.operation, op.kind == OperatorKind::Relation ? op.code : 0);
}

Found StatementCompiler::Prefixed(int level) {
  if (Code() == LogicNot && level <= NotLevel) {
    const Nesting nesting(depth_);
    ++at_;
    if (Binary(NotLevel) != Found::Value) Refuse("Improper argument for NOT operation.");
    Emit(Operation::Not);
    return Found::Value;
  }
  if (Code() == LogicSubtract) {
    const Nesting nesting(depth_);
    ++at_;
    const Found operand = Binary(MinusLevel);
    if (operand != Found::Value)
      RefuseOperand({LogicSubtract, MinusLevel, OperatorKind::Arithmetic, Operation::Negate},
                    operand);
    Instruction& last = program_.code.back();
    if (last.operation == Operation::PushNumber)
      last.number = -last.number;
    else
      Emit(Operation::Negate);
    return Found::Value;
  }
  if (Code() != ListToken) return Primary();
  int32_t word = 0;
  Emit(Operation::Mark);
  ListOf(&word);
  if (level > RelationLevel) return Found::List;
  if (const BinaryOperator* op = OperatorOf(Code());
      op != nullptr && op->kind != OperatorKind::Logic)
    return Found::List;
  program_.code[Emit(Operation::ListTruth)].detail = word == ListAll;
  return Found::Value;
}

Found StatementCompiler::Primary() {
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

Found StatementCompiler::InBrackets() {
  const Nesting nesting(depth_);
  ++at_;
  if (Binary(Lowest) != Found::Value) Refuse(std::string(Unresolved));
  Expect(LogicClose, LeftOver);
  return Found::Value;
}

bool StatementCompiler::AtReference() const {
  const int32_t code = Code();
  if (code == VariableToken || code == VariableTarget) return true;
  return (code == FunctionToken || code == FunctionTarget) &&
         NamesVariable(static_cast<int32_t>(tokens_[at_].value));
}

// The player's token, or the function that names him by an expression.
void StatementCompiler::PlayerOfReference(Reference& reference) {
  if (Code() == PlayerToken) {
    reference.player = static_cast<int8_t>(tokens_[at_++].value);
    return;
  }
  Expect(FunctionToken, LeftOver);
  if (Primary() != Found::Value) Refuse(std::string(LeftOver));
  Emit(Operation::SetPlayer);
}

Reference StatementCompiler::Qualifiers(int count) {
  Reference reference;
  const auto take = [this](TokenCode kind) {
    const auto value = static_cast<int8_t>(at_ < end_ ? tokens_[at_].value : 0);
    Expect(kind, LeftOver);
    return value;
  };
  if (count >= 1) PlayerOfReference(reference);
  if (count >= 2) reference.hand = take(HandToken);
  if (count >= 4) reference.first = take(FirstModifierToken);
  if (count >= 3) reference.second = take(SecondModifierToken);
  return reference;
}

void StatementCompiler::ReferenceOnStack() {
  if (Code() == FunctionToken || Code() == FunctionTarget) return NamedReference();
  const bool isTarget = Code() == VariableTarget;
  const auto number = static_cast<int32_t>(tokens_[at_++].value);
  if (IsBet(number) && !OnLayout(number)) Refuse(LackingBetsText(number));
  const size_t push = Emit(Operation::PushReference);
  Reference reference = Qualifiers(QualifierCount(number));
  reference.number = number;
  if (buys_ && isTarget) CheckBoughtBet(reference);
  program_.code[push].argument = Keep(reference);
}

void StatementCompiler::NamedReference() {
  const auto function = static_cast<int32_t>(tokens_[at_++].value);
  if (function == 8 && !OnLayout(bet::Big6)) Refuse(LackingBetsText(bet::Big6));
  const size_t push = Emit(Operation::PushReference);
  program_.code[push].argument = Keep(Qualifiers(FunctionQualifierCount(function)));
  const Nesting nesting(depth_);
  if (Primary() != Found::Value)
    Refuse("Missing expression in " + FunctionName(function) + " function.");
  program_.code[Emit(Operation::Name)].function = static_cast<int16_t>(function);
}

Found StatementCompiler::ReferenceValue() {
  ReferenceOnStack();
  Instruction& last = program_.code.back();
  if (last.operation == Operation::PushReference)
    last.operation = Operation::Read;
  else
    Emit(Operation::ReadReference);
  return Found::Value;
}

Found StatementCompiler::FunctionValue() {
  if (AtReference()) return ReferenceValue();
  const auto function = static_cast<int32_t>(tokens_[at_++].value);
  const std::string name = FunctionName(function);
  const Signature* const signature = SignatureOf(function);
  if (signature == nullptr) Refuse(std::string(LeftOver));
  const size_t push = Emit(Operation::PushReference);
  const Reference reference = Qualifiers(FunctionQualifierCount(function));
  program_.code[push].argument = Keep(reference);
  Emit(Operation::Mark);
  const Nesting nesting(depth_);
  if (Code() == LogicOpen) {
    Arguments(*signature, name, IsRollStatistic(function) && reference.first >= ModBasicNumbers);
  } else if (signature->least > 1 || Primary() != Found::Value) {
    Refuse("Missing expression in " + name + " function.");
  }
  program_.code[Emit(Operation::Call)].function = static_cast<int16_t>(function);
  return Found::Value;
}

// A set of rolls alone in the brackets (`namesSet`) means all of its rolls.
void StatementCompiler::Arguments(const Signature& signature,
                                  const std::string& name,
                                  bool namesSet) {
  const std::string in = " in " + name + " function.";
  ++at_;
  if (Code() == LogicClose && namesSet) {
    AllRolls();
  } else if (Code() == LogicClose) {
    Refuse("Missing expression" + in);
  } else if (signature.most == AnyNumber) {
    ListItems(signature.function);
  } else {
    for (int count = 1;; ++count) {
      if (count > signature.most) Refuse("Too many expressions" + in);
      if (Code() == ListToken || IsRelation(Code()) || ItemIsThru())
        Refuse("Inappropriate expression" + in);
      const bool missing = Code() == LogicSeparator || Code() == LogicClose || AtEnd();
      if (Binary(Lowest) != Found::Value)
        Refuse((missing ? "Missing expression" : "Improper expression") + in);
      if (Code() != LogicSeparator) {
        if (count < signature.least) Refuse("Missing expression" + in);
        break;
      }
      ++at_;
    }
  }
  Expect(LogicClose, "Improper expression" + in);
}

// Any or All with its members; the mark stands already.
Found StatementCompiler::ListOf(int32_t* word) {
  const Nesting nesting(depth_);
  *word = static_cast<int32_t>(tokens_[at_++].value);
  Expect(LogicOpen, LeftOver);
  ListItems(0);
  Expect(LogicClose, LeftOver);
  if (Code() == EmptyToken) ++at_;
  return Found::List;
}

// Whether the item that begins here is a range.
bool StatementCompiler::ItemIsThru() const {
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

void StatementCompiler::Thru(Operation operation) {
  if (!AtReference()) Refuse(std::string(LeftOver));
  ReferenceOnStack();
  Expect(LogicThru, LeftOver);
  if (!AtReference()) Refuse(std::string(LeftOver));
  ReferenceOnStack();
  Emit(operation);
}

void StatementCompiler::QualifierItem(int32_t function) {
  const int32_t relation = tokens_[at_++].code;
  if (Binary(JoinLevel) == Found::Value) {
    Emit(Operation::Qualify, relation);
    return;
  }
  if (function == 0)
    Refuse("Improper qualifier in list.\r\rAcceptable qualifier format:\r" +
           std::string(QualifierSamples));
  const std::string missing =
      "Missing or improper qualifier in " + FunctionName(function) + " function.\r\r";
  if (IsRollStatistic(function))
    Refuse(missing +
           "Expected qualifier format:\r>, <, or = followed by number or non-string variable");
  Refuse(missing + "Acceptable qualifier format:\r" + std::string(QualifierSamples));
}

// The words "all rolls" have become the number 0.
bool StatementCompiler::AtAllRolls() const {
  if (Code() != NumberToken || tokens_[at_].value != 0 || at_ + 1 >= end_) return false;
  const int32_t behind = tokens_[at_ + 1].code;
  return behind == LogicSeparator || behind == LogicClose;
}

// Every roll of the set is above 0.
void StatementCompiler::AllRolls() {
  Emit(Operation::PushNumber);
  Emit(Operation::Qualify, LogicGreater);
}

// The items of a list, or of a function that takes one, up to the closing bracket.
void StatementCompiler::ListItems(int32_t function) {
  const std::string improper =
      function == 0 ? "Inappropriate expression in list."
                    : "Inappropriate expression in " + FunctionName(function) + " function.";
  while (true) {
    if (IsRelation(Code())) {
      QualifierItem(function);
    } else if (IsRollStatistic(function) && AtAllRolls()) {
      ++at_;
      AllRolls();
    } else if (ItemIsThru()) {
      Thru(Operation::ReadThru);
    } else if (Code() == ListToken || Binary(Lowest) != Found::Value) {
      Refuse(improper);
    }
    if (Code() != LogicSeparator) return;
    ++at_;
  }
}

void StatementCompiler::Condition() {
  if (Binary(Lowest) == Found::Nothing) Refuse(std::string(AtEnd() ? Unresolved : LeftOver));
  ExpectEnd();
}

void StatementCompiler::Order() {
  if (Code() == ActionToken) {
    Action();
  } else {
    Assignment();
  }
  ExpectEnd();
}

void StatementCompiler::Assignment() {
  const bool begins = AtReference() || Code() == ListToken;
  const auto equals = std::find_if(tokens_.begin(), tokens_.end(), [](const ScriptToken& token) {
    return token.code == LogicEqual;
  });
  if (!begins || equals == tokens_.end()) Refuse(std::string(NoStatement));
  Emit(Operation::Mark);
  Targets();
  Expect(LogicEqual, NoStatement);
  if (AtEnd()) Refuse("Missing operand.");
  if (Binary(Lowest) != Found::Value) Refuse(std::string(NoStatement));
  Emit(Operation::Assign);
}

void StatementCompiler::Target() {
  if (IsRelation(Code())) return QualifierItem(0);
  if (Code() == ListToken) {
    if (static_cast<int32_t>(tokens_[at_].value) == ListAny) Refuse(ListAsTargetHelp());
    ++at_;
    if (Code() != LogicOpen) Refuse(std::string(LeftOver));
  }
  if (Code() == LogicOpen) {
    const Nesting nesting(depth_);
    ++at_;
    Targets();
    Expect(LogicClose, LeftOver);
    if (Code() == EmptyToken) ++at_;
    return;
  }
  if (!AtReference()) RefuseTarget();
  if (ItemIsThru()) return Thru(Operation::Thru);
  ReferenceOnStack();
}

void StatementCompiler::RefuseTarget() const {
  if (buys_) Refuse(BuyingHelp());
  Refuse(AtEnd() ? "Missing operand." : std::string(NoStatement));
}

// Bets and variables to be changed, with qualifiers.
void StatementCompiler::Targets() {
  Target();
  while (Code() == LogicSeparator) {
    ++at_;
    Target();
  }
}

void StatementCompiler::Action() {
  const auto number = static_cast<int32_t>(tokens_[at_++].value);
  if (Holds(WithoutArgument, number)) {
    Emit(Operation::Mark);
    Emit(Operation::Mark);
  } else if (Holds(WithOneArgument, number)) {
    Emit(Operation::Mark);
    OneArgument(number == action::ActivateProbabilityFile);
    Emit(Operation::Mark);
  } else if (number == action::Swap) {
    SwapArguments();
  } else if (number == action::PlaybackRollFile) {
    Emit(Operation::Mark);
    PlaybackArguments();
    Emit(Operation::Mark);
  } else if (number >= action::FirstArithmetic && number <= action::LastArithmetic) {
    BetArithmetic();
  } else {
    buys_ = number == action::BuyPlaceBet;
    if (AtEnd()) Refuse(buys_ ? BuyingHelp() : std::string("Missing argument."));
    Emit(Operation::Mark);
    Emit(Operation::Mark);
    Targets();
    if (buys_ && !AtEnd()) Refuse(BuyingHelp());
  }
  Emit(Operation::Command, number);
}

void StatementCompiler::OneArgument(bool mayBeMissing) {
  if (AtEnd()) {
    if (mayBeMissing) return;
    Refuse("Missing argument.");
  }
  if (Binary(Lowest) != Found::Value) Refuse("Improper argument.");
}

void StatementCompiler::PlaybackArguments() {
  const auto atFromRoll = [this] {
    return Code() == StringToken && static_cast<int32_t>(tokens_[at_].value) == FromRollString;
  };
  if (AtEnd()) Refuse("Missing argument.");
  if (atFromRoll()) {
    Emit(Operation::PushText, EmptyString);
  } else if (Binary(Lowest) != Found::Value) {
    Refuse("Improper argument.");
  }
  if (!atFromRoll()) return;
  Emit(Operation::PushText, FromRollString);
  ++at_;
  OneArgument(false);
}

void StatementCompiler::SwapArguments() {
  Emit(Operation::Mark);
  Emit(Operation::Mark);
  for (int side = 0; side < 2; ++side) {
    if (!AtReference()) Refuse(SwapHelp());
    ReferenceOnStack();
    const int32_t code = Code();
    if (side == 1) break;
    if (code != LogicSeparator && code != LogicAnd && code != LogicOn) Refuse(SwapHelp());
    ++at_;
  }
  if (!AtEnd()) Refuse(SwapHelp());
}

// The amount and the targets stand on either side of the separator.
void StatementCompiler::BetArithmetic() {
  const size_t begin = at_, end = end_;
  if (AtEnd()) Refuse("Missing argument.");
  size_t separator = begin;
  for (int depth = 0; separator < end; ++separator) {
    const int32_t code = tokens_[separator].code;
    depth += code == LogicOpen ? 1 : code == LogicClose ? -1 : 0;
    if (depth == 0 && (code == LogicOn || code == LogicFrom)) break;
  }
  if (separator == end) Refuse(std::string(NoStatement));
  const auto isTarget = [](const ScriptToken& token) {
    return token.code == VariableTarget || token.code == FunctionTarget;
  };
  const auto before = tokens_.subspan(begin, separator - begin);
  const auto behind = tokens_.subspan(separator + 1, end - separator - 1);
  const bool targetsBehind = std::any_of(behind.begin(), behind.end(), isTarget) ||
                             (!behind.empty() && behind.front().code == ListToken) ||
                             std::none_of(before.begin(), before.end(), isTarget);
  const size_t amountFrom = targetsBehind ? begin : separator + 1;
  const size_t targetsFrom = targetsBehind ? separator + 1 : begin;

  Emit(Operation::Mark);
  at_ = amountFrom;
  end_ = targetsBehind ? separator : end;
  if (AtEnd()) Refuse("Missing argument.");
  if (Binary(Lowest) != Found::Value) Refuse("Improper argument.");
  ExpectEnd();

  Emit(Operation::Mark);
  at_ = targetsFrom;
  end_ = targetsBehind ? end : separator;
  if (AtEnd()) Refuse("Missing operand.");
  Targets();
  ExpectEnd();
  at_ = end_ = end;
}

// Only Place bets are bought, and only now.
void StatementCompiler::CheckBoughtBet(const Reference& reference) {
  if (!InFamily(reference.number, PlaceFamily)) Refuse(BuyingHelp());
  if (reference.hand != HandCurrent && reference.hand != HandCurrentSession)
    Refuse(std::string(NoStatement) +
           "\r\rYou can only buy bets in the current hand or current session.");
}

}  // namespace

std::optional<std::string> CompileStatement(std::span<const ScriptToken> tokens,
                                            bool condition,
                                            int32_t shift,
                                            ScriptProgram& program) {
  StatementCompiler compiler(tokens, shift, program);
  try {
    if (condition)
      compiler.Condition();
    else
      compiler.Order();
  } catch (Refusal& refusal) {
    return std::move(refusal.text);
  }
  return std::nullopt;
}

}  // namespace tessarel
