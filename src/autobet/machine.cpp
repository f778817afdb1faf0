#include "autobet/machine.h"

#include <bit>
#include <cmath>
#include <span>
#include <utility>

#include "autobet/actions.h"
#include "autobet/calculation.h"
#include "autobet/function_call.h"
#include "autobet/functions.h"
#include "autobet/variables.h"
#include "base/indexing.h"
#include "state/table.h"

namespace tessarel {

namespace {

// A reference on the stack is packed into the value of a variable token.
static_assert(sizeof(Reference) == sizeof(double));

ScriptValue Pack(const Reference& reference) {
  return {VariableToken, std::bit_cast<double>(reference)};
}
Reference Unpack(const ScriptValue& value) {
  return std::bit_cast<Reference>(value.value);
}

// The program in force and the memory that its cycles work in.
struct MachineState {
  ScriptProgram Program;
  size_t LastingStrings = 1;  // those of the scripts; made ones stand after them

  std::vector<ListItem> Stack;
  std::vector<size_t> Marks;        // sizes of the stack
  std::vector<ListItem> Arguments;  // of the call that is made
  std::vector<ScriptValue> Values;  // the same for an action
  std::vector<Reference> Targets;
};

MachineState Machine;

ListItem Pop() {
  const ListItem top = Machine.Stack.back();
  Machine.Stack.pop_back();
  return top;
}

double PopNumber() {
  return NumberOf(Pop().value);
}

void Push(const ScriptValue& value) {
  Machine.Stack.push_back({0, value});
}

size_t PopMark() {
  const size_t mark = Machine.Marks.back();
  Machine.Marks.pop_back();
  return mark;
}

// The items since the last mark.
std::span<const ListItem> ItemsSinceMark() {
  return std::span(Machine.Stack).subspan(Machine.Marks.back());
}

void DropToMark() {
  Machine.Stack.resize(PopMark());
}

void SetPlayerOfReference() {
  const double place = std::round(PopNumber());
  if (!(place >= 1 && place <= LastPlace)) return FailScript(ScriptFault::Player);
  ListItem& top = Machine.Stack.back();
  Reference reference = Unpack(top.value);
  reference.player = static_cast<int8_t>(place);
  top.value = Pack(reference);
}

void NameReference(int32_t function) {
  const ScriptValue argument = Pop().value;
  ListItem& top = Machine.Stack.back();
  Reference reference = Unpack(top.value);
  reference.number = NamedVariable(function, argument);
  top.value = Pack(reference);
}

// Two references become all of the numbers from the first to the second.
void ExpandThru(bool read) {
  const Reference last = Unpack(Pop().value);
  Reference next = Unpack(Pop().value);
  if (next.player != last.player) return FailScript(ScriptFault::ThruPlayers);
  if (next.hand != last.hand) return FailScript(ScriptFault::ThruHands);
  if (next.first != last.first || next.second != last.second)
    return FailScript(ScriptFault::ThruModifiers);
  const int32_t step = next.number <= last.number ? 1 : -1;
  for (;; next.number += step) {
    Push(read ? ReadVariable(next) : Pack(next));
    if (next.number == last.number || StatementFailed()) return;
  }
}

// What is compared with Any has to fit one member, with All every one.
void CompareWithList(int32_t relation, bool all) {
  bool result = all;
  const size_t mark = Machine.Marks.back();
  const ScriptValue left = Machine.Stack[mark - 1].value;
  ForEachMember(ItemsSinceMark(), [&](const ScriptValue& member) {
    result = CompareValues(left, relation, member);
    return result == all;
  });
  DropToMark();
  Machine.Stack.back() = {0, Truth(result)};
}

void ListTruth(bool all) {
  bool result = all;
  ForEachMember(ItemsSinceMark(), [&](const ScriptValue& member) {
    result = NumberOf(member) != 0;
    return result == all;
  });
  DropToMark();
  Push(Truth(result));
}

void Call(int32_t function) {
  const std::span<const ListItem> items = ItemsSinceMark();
  std::vector<ListItem>& arguments = Machine.Arguments;
  arguments.assign(items.begin(), items.end());
  DropToMark();
  const Reference qualifiers = Unpack(Pop().value);
  Push(CallFunction(function, qualifiers, arguments));
}

// The references since the last mark that pass the qualifiers among them.
const std::vector<Reference>& TakeTargets() {
  std::vector<Reference>& targets = Machine.Targets;
  targets.clear();
  const ListItem* qualifier = nullptr;
  for (const ListItem& item : ItemsSinceMark()) {
    if (item.qualifier != 0) {
      qualifier = &item;
      continue;
    }
    const Reference target = Unpack(item.value);
    if (qualifier == nullptr ||
        CompareValues(ReadVariable(target), qualifier->qualifier, qualifier->value))
      targets.push_back(target);
  }
  DropToMark();
  return targets;
}

void Assign() {
  const ScriptValue value = Pop().value;
  for (const Reference& target : TakeTargets()) {
    if (StatementFailed()) return;
    SetVariable(target, value);
  }
}

void Command(int32_t action) {
  const std::vector<Reference>& targets = TakeTargets();
  std::vector<ScriptValue>& values = Machine.Values;
  values.clear();
  for (const ListItem& item : ItemsSinceMark())
    values.push_back(item.value);
  DropToMark();
  if (!StatementFailed()) RunCommand({action, values, targets});
}

// Within the limit of all texts, so that a script cannot double one without end.
ScriptValue Joined(const ScriptValue& left, const ScriptValue& right) {
  std::string text = TextOf(left) + TextOf(right);
  if (text.size() <= MaxTextLength) return MakeText(std::move(text));
  FailScript(ScriptFault::TextTooLong);
  return Number(0);
}

// The instructions that work on two values.
void Combine(const Instruction& instruction) {
  const ScriptValue right = Pop().value;
  ScriptValue& left = Machine.Stack.back().value;
  switch (instruction.operation) {
    case Operation::Join:
      left = Joined(left, right);
      break;
    case Operation::Compare:
      left = Truth(CompareValues(left, instruction.argument, right));
      break;
    case Operation::And:
    case Operation::Or:
    case Operation::Xor:
      left = Number(CombineBits(instruction.operation, NumberOf(left), NumberOf(right)));
      break;
    default:
      left = Number(Calculate(instruction.operation, NumberOf(left), NumberOf(right)));
  }
}

const Reference& ReferenceOf(const Instruction& instruction) {
  return At(Machine.Program.references, instruction.argument);
}

void Execute(const Instruction& instruction) {
  switch (instruction.operation) {
    case Operation::PushNumber:
      return Push(Number(instruction.number));
    case Operation::PushText:
      return Push({StringToken, static_cast<double>(instruction.argument)});
    case Operation::Read:
      return Push(ReadVariable(ReferenceOf(instruction)));
    case Operation::PushReference:
      return Push(Pack(ReferenceOf(instruction)));
    case Operation::SetPlayer:
      return SetPlayerOfReference();
    case Operation::Name:
      return NameReference(instruction.function);
    case Operation::ReadReference:
      return Push(ReadVariable(Unpack(Pop().value)));
    case Operation::Thru:
      return ExpandThru(false);
    case Operation::ReadThru:
      return ExpandThru(true);
    case Operation::Mark:
      return Machine.Marks.push_back(Machine.Stack.size());
    case Operation::Qualify:
      Machine.Stack.back().qualifier = instruction.argument;
      return;
    case Operation::CompareWithList:
      return CompareWithList(instruction.argument, instruction.detail != 0);
    case Operation::ListTruth:
      return ListTruth(instruction.detail != 0);
    case Operation::Call:
      return Call(instruction.function);
    case Operation::Negate:
      return Push(Number(-PopNumber()));
    case Operation::Not:
      return Push(Number(Complement(PopNumber())));
    case Operation::Assign:
      return Assign();
    case Operation::Command:
      return Command(instruction.argument);
    default:
      return Combine(instruction);
  }
}

}  // namespace

void LoadProgram(ScriptProgram program, std::vector<ScriptString> strings) {
  Machine.LastingStrings = strings.size();
  Machine.Program = std::move(program);
  AutoBet.Strings = std::move(strings);
}

const std::vector<Statement>& LoadedStatements() {
  return Machine.Program.statements;
}

void DropMadeStrings() {
  if (AutoBet.Strings.size() > Machine.LastingStrings)
    AutoBet.Strings.resize(Machine.LastingStrings);
}

void Evaluate(const Statement& statement) {
  DropMadeStrings();
  AutoBet.Fault = ScriptFault::None;
  Machine.Stack.clear();
  Machine.Marks.clear();
  const std::span code(Machine.Program.code);
  for (int32_t k = statement.code; k < statement.codeEnd && !StatementFailed(); ++k)
    Execute(At(code, k));
}

double TakeResult() {
  return PopNumber();
}

}  // namespace tessarel
