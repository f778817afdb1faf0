#include "autobet/interpreter.h"

#include <bit>
#include <cmath>
#include <span>
#include <utility>
#include <vector>

#include "autobet/actions.h"
#include "autobet/calculation.h"
#include "autobet/checker.h"
#include "autobet/function_call.h"
#include "autobet/functions.h"
#include "autobet/program.h"
#include "autobet/script_errors.h"
#include "autobet/variables.h"
#include "base/clock.h"
#include "base/fault.h"
#include "base/front_end.h"
#include "base/message.h"
#include "base/trap.h"
#include "state/table.h"
#include "texts/say.h"

namespace tessarel {

namespace {

constexpr int32_t FaultError = 10000;
constexpr int32_t PlayerError = 50;
constexpr int32_t TextError = 998;

// Deeper than any recursion that ends, and little enough to hold in memory.
constexpr size_t DeepestSubroutine = 10'000'000;

// A reference on the stack is packed into the value of a variable token.
static_assert(sizeof(Reference) == sizeof(double));

ScriptValue Pack(const Reference& reference) {
  return {VariableToken, std::bit_cast<double>(reference)};
}
Reference Unpack(const ScriptValue& value) {
  return std::bit_cast<Reference>(value.value);
}

// The program in force and the memory that its cycles work in, which lives as long as the program
// does so that a cycle allocates nothing.
struct InterpreterState {
  ScriptProgram Program;
  size_t LastingStrings = 1;  // those of the scripts; made ones stand behind them

  std::vector<ListItem> Stack;
  std::vector<size_t> Marks;        // sizes of the stack
  std::vector<ListItem> Arguments;  // of the call that is made
  std::vector<ScriptValue> Values;  // the same for an action
  std::vector<Reference> Targets;
  std::vector<int32_t> SubroutineStack;  // statements to return to
};

InterpreterState Interpreter;

ListItem Pop() {
  const ListItem top = Interpreter.Stack.back();
  Interpreter.Stack.pop_back();
  return top;
}

double PopNumber() {
  return NumberOf(Pop().value);
}

void Push(const ScriptValue& value) {
  Interpreter.Stack.push_back({0, value});
}

size_t PopMark() {
  const size_t mark = Interpreter.Marks.back();
  Interpreter.Marks.pop_back();
  return mark;
}

// The items since the last mark.
std::span<const ListItem> ItemsSinceMark() {
  return std::span(Interpreter.Stack).subspan(Interpreter.Marks.back());
}

void DropToMark() {
  Interpreter.Stack.resize(PopMark());
}

void SetPlayerOfReference() {
  const double place = std::round(PopNumber());
  if (!(place >= 1 && place <= LastPlace)) return FailScript(PlayerError);
  ListItem& top = Interpreter.Stack.back();
  Reference reference = Unpack(top.value);
  reference.player = static_cast<int8_t>(place);
  top.value = Pack(reference);
}

void NameReference(int32_t function) {
  const ScriptValue argument = Pop().value;
  ListItem& top = Interpreter.Stack.back();
  Reference reference = Unpack(top.value);
  reference.number = NamedVariable(function, argument);
  top.value = Pack(reference);
}

// Two references become all of the numbers from the first to the second.
void ExpandThru(bool read) {
  const Reference last = Unpack(Pop().value);
  Reference next = Unpack(Pop().value);
  if (next.player != last.player) return FailScript(51);
  if (next.hand != last.hand) return FailScript(52);
  if (next.first != last.first || next.second != last.second) return FailScript(53);
  const int32_t step = next.number <= last.number ? 1 : -1;
  for (;; next.number += step) {
    Push(read ? ReadVariable(next) : Pack(next));
    if (next.number == last.number || AutoBet.ScriptError != 0) return;
  }
}

// What is compared with Any has to fit one member, with All every one.
void CompareWithList(int32_t relation, bool all) {
  bool result = all;
  const size_t mark = Interpreter.Marks.back();
  const ScriptValue left = Interpreter.Stack[mark - 1].value;
  ForEachMember(ItemsSinceMark(), [&](const ScriptValue& member) {
    result = CompareValues(left, relation, member);
    return result == all;
  });
  DropToMark();
  Interpreter.Stack.back() = {0, Truth(result)};
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
  std::vector<ListItem>& arguments = Interpreter.Arguments;
  arguments.assign(items.begin(), items.end());
  DropToMark();
  const Reference qualifiers = Unpack(Pop().value);
  Push(CallFunction(function, qualifiers, arguments));
}

// The references since the last mark that pass the qualifiers among them.
const std::vector<Reference>& TakeTargets() {
  std::vector<Reference>& targets = Interpreter.Targets;
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
    if (AutoBet.ScriptError != 0) return;
    SetVariable(target, value);
  }
}

void Command(int32_t action) {
  const std::vector<Reference>& targets = TakeTargets();
  std::vector<ScriptValue>& values = Interpreter.Values;
  values.clear();
  for (const ListItem& item : ItemsSinceMark())
    values.push_back(item.value);
  DropToMark();
  if (AutoBet.ScriptError == 0) RunCommand({action, values, targets});
}

// Within the limit of all texts, so that a script cannot double one without end.
ScriptValue Joined(const ScriptValue& left, const ScriptValue& right) {
  std::string text = TextOf(left) + TextOf(right);
  if (text.size() <= MaxTextLength) return MakeText(std::move(text));
  FailScript(TextError);
  return Number(0);
}

// The instructions that work on two values.
void Combine(const Instruction& instruction) {
  const ScriptValue right = Pop().value;
  ScriptValue& left = Interpreter.Stack.back().value;
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
  return At(Interpreter.Program.references, instruction.argument);
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
      return Interpreter.Marks.push_back(Interpreter.Stack.size());
    case Operation::Qualify:
      Interpreter.Stack.back().qualifier = instruction.argument;
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

// The texts of a statement end with it: whatever keeps one has taken a copy.
inline void DropMadeStrings() {
  if (AutoBet.Strings.size() > Interpreter.LastingStrings)
    AutoBet.Strings.resize(Interpreter.LastingStrings);
}

// Runs the instructions of a statement up to its end or its first error.
void Evaluate(const Statement& statement) {
  DropMadeStrings();
  AutoBet.ScriptError = 0;
  Interpreter.Stack.clear();
  Interpreter.Marks.clear();
  const std::span code(Interpreter.Program.code);
  for (int32_t k = statement.code; k < statement.codeEnd && AutoBet.ScriptError == 0; ++k)
    Execute(At(code, k));
}

constexpr std::string_view JumpText = "A jump will be made to the designated label.\rLabel.";

// One cycle over the program.
class Cycle {
 public:
  void Run();

 private:
  void RunStatements();
  void RunStatement(const Statement& statement);
  void RunCondition();
  void RunAction(const Statement& statement);
  void Then(const Statement& statement);
  bool BeginsHere(const Statement& statement, std::string_view text);
  void Return();
  void StartOver();
  void Fail(const Fault& fault);
  void ReportError(std::string_view outcome) const;
  void Step(std::string_view text) const {
    if (AutoBet.ShowSteps) ShowStep(std::string(text));
  }
  void ShowStep(std::string text) const;
  const Statement& Current() const { return Interpreter.Program.statements[pointer_]; }
  void JumpTo(int32_t statement) { pointer_ = static_cast<size_t>(statement); }
  // For jumps whose own step text speaks for the label, endif or loop they lead to.
  void JumpBehind(int32_t statement) { JumpTo(statement + 1); }

  // After so many statements waiting events run, so that an endless script can be stopped.
  static constexpr int StatementsBetweenEvents = 4096;

  size_t pointer_ = 0;
  bool conditionIsTrue_ = false;
  bool jumpedHere_ = false;  // a false condition led to this else, elseif or endif
  int untilEvents_ = StatementsBetweenEvents;
};

void Cycle::ShowStep(std::string text) const {
  const int place = AutoBet.CurrentScriptPlayer;
  std::string title = "Auto-Bet Steps";
  if (place > 0) title += " (" + Table.PlayerName[place] + ")";
  FrontEnd.ShowStep({place, Current().line, std::move(text), std::move(title)});
}

void Cycle::ReportError(std::string_view outcome) const {
  if (Table.HyperDriveOn) return;
  const std::string text = ScriptErrorText(AutoBet.ScriptError);
  FrontEnd.ReportScriptError(AutoBet.CurrentScriptPlayer, Current().line, text);
  if (AutoBet.ShowSteps) ShowStep(std::string(outcome) + "\r" + text);
}

// The condition and the then behind it, at which the pointer stands when it goes on or jumps.
void Cycle::RunCondition() {
  conditionIsTrue_ = false;
  Evaluate(Current());
  if (AutoBet.ScriptError != 0) {
    ReportError("Unable to evaluate.");
  } else {
    conditionIsTrue_ = PopNumber() != 0;
    Step(conditionIsTrue_ ? "Condition is true." : "Condition is false.");
  }
  ++pointer_;
  Then(Current());
}

// The script of the session that a statement has started begins with its first statement.
void Cycle::StartOver() {
  Step("The table has been reset and the script will now start over.");
  AutoBet.TableWasReset = false;
  AutoBet.Initializing = false;
  AutoBet.NewSessionBegins = true;
  Interpreter.SubroutineStack.clear();
  pointer_ = 0;
}

void Cycle::RunAction(const Statement& statement) {
  const bool showed = AutoBet.ShowSteps;
  Evaluate(statement);
  if (AutoBet.TableWasReset) return StartOver();
  if (AutoBet.ScriptError != 0)
    ReportError("No action taken.");
  else if (showed)
    Step("Action taken.");
  ++pointer_;
}

void Cycle::Then(const Statement& statement) {
  if (conditionIsTrue_) {
    Step(
        "End of condition block and beginning of action block.\r"
        "Conditions were true, so next action block will be performed.");
    ++pointer_;
    return;
  }
  Step(
      "End of condition block and beginning of action block.\r"
      "Conditions were false, so next action block will be skipped.");
  jumpedHere_ = true;
  JumpTo(statement.target);
}

// An else or elseif: reached out of a block it ends the structure, else it begins the next part.
// Returns whether it begins it.
bool Cycle::BeginsHere(const Statement& statement, std::string_view text) {
  if (std::exchange(jumpedHere_, false)) {
    Step(text);
    ++pointer_;
    return true;
  }
  Step("End of action block.\rEnd of If/Then structure.");
  JumpBehind(statement.target);
  return false;
}

void Cycle::Return() {
  std::vector<int32_t>& stack = Interpreter.SubroutineStack;
  if (!stack.empty()) {
    Step("Return to place where subroutine was initiated.");
    JumpTo(stack.back());
    stack.pop_back();
  }
  ++pointer_;
}

void Cycle::RunStatement(const Statement& statement) {
  switch (statement.kind) {
    case StatementKind::Header:
      AutoBet.CurrentScriptPlayer = statement.target != 0 ? statement.target : SelectedBettor();
      break;
    case StatementKind::If:
      Step("Beginning of condition block.");
      ++pointer_;
      return RunCondition();
    case StatementKind::ElseIf:
      if (!BeginsHere(statement, "Beginning of condition block.")) return;
      return RunCondition();
    case StatementKind::Condition:
    case StatementKind::Then:
      break;  // run with their if
    case StatementKind::Else:
      BeginsHere(statement, "Beginning of last action block.");
      return;
    case StatementKind::EndIf:
      jumpedHere_ = false;
      Step("End of If/Then structure.");
      break;
    case StatementKind::Do:
      Step("Beginning of DO/LOOP structure.");
      break;
    case StatementKind::Loop:
      Step("End of DO/LOOP structure.\rA jump will be made back to the associated DO statement.");
      return JumpTo(statement.target);
    case StatementKind::ExitDo:
      Step("Exit from DO/LOOP structure.");
      return JumpBehind(statement.target);
    case StatementKind::Goto:
      Step(JumpText);
      return JumpBehind(statement.target);
    case StatementKind::Gosub:
      Step("A jump will be made to the designated subroutine.\rLabel.");
      if (Interpreter.SubroutineStack.size() == DeepestSubroutine) RaiseOverflow();
      Interpreter.SubroutineStack.push_back(static_cast<int32_t>(pointer_));
      return JumpBehind(statement.target);
    case StatementKind::Return:
      return Return();
    case StatementKind::Label:
      Step("Label.");
      break;
    case StatementKind::Action:
      return RunAction(statement);
  }
  ++pointer_;
}

void Cycle::RunStatements() {
  while (pointer_ < Interpreter.Program.statements.size() && AutoBet.ScriptRunning) {
    RunStatement(Current());
    if (--untilEvents_ > 0) continue;
    untilEvents_ = StatementsBetweenEvents;
    FrontEnd.RunPendingEvents();
  }
}

// A fault of the machinery ends its statement like any other error.
void Cycle::Fail(const Fault& fault) {
  AutoBet.ScriptError = FaultError;
  AutoBet.FaultText =
      fault.Description + ", Error #" + std::to_string(fault.Number) + "\r occurred at: RunAutoBet";
  if (Current().kind != StatementKind::Condition) {
    ReportError("No action taken.");
    ++pointer_;
    return;
  }
  ReportError("Unable to evaluate.");
  ++pointer_;
  Then(Current());
}

void Cycle::Run() {
  Interpreter.SubroutineStack.clear();
  bool done = false;
  while (!done) {
    try {
      RunStatements();
      done = true;
    } catch (const Fault& fault) {
      Fail(fault);
    }
  }
}

// Lets the status be read, unless somebody is in a hurry or midnight passes.
void WaitForStatus(int64_t began) {
  const int day = Now().day;
  while (TickMilliseconds() - began < FrontEnd.StatusMilliseconds && Now().day == day)
    FrontEnd.RunPendingEvents();
}

void EndCycle() {
  DropMadeStrings();
  AutoBet.ScriptRunning = false;
  AutoBet.NewSessionBegins = false;
  // What a hot key has put in the place of the active scripts runs once.
  if (AutoBet.HotKeyRun) Scripts.ProgramReady = false;
}

void LoadProgram(ScriptProgram program, std::vector<ScriptString> strings) {
  Interpreter.LastingStrings = strings.size();
  Interpreter.Program = std::move(program);
  AutoBet.Strings = std::move(strings);
  Scripts.ProgramReady = true;
}

// Adds the script of a slot to a program. A script without a statement adds nothing.
std::optional<ScriptError> AddScript(int slot,
                                     ScriptProgram& program,
                                     std::vector<ScriptString>& strings) {
  CompiledScript script;
  if (std::optional<ScriptError> error = CheckScript(slot, script)) return error;
  return CompileScript(script, program, strings);
}

void TellOfFaultyScript(int place) {
  ShowMessage(Say(Text::FaultyScript, Table.PlayerName[place]), Say(Text::FaultyScriptTitle),
              msg::OkAlert, help::BettingSystems);
}

}  // namespace

void CheckScriptErrors() {
  Scripts.ProgramReady = false;
  if (AutoBet.ScriptRunning) return;
  ScriptProgram program;
  std::vector<ScriptString> strings(1);
  for (int place = 1; place <= LastPlace; ++place) {
    if (!Scripts.ScriptActive[place]) continue;
    if (AddScript(place, program, strings)) return TellOfFaultyScript(place);
  }
  LoadProgram(std::move(program), std::move(strings));
}

bool CompileHotKeyScript() {
  if (AutoBet.ScriptRunning) return false;
  Scripts.ProgramReady = false;
  ScriptProgram program;
  std::vector<ScriptString> strings(1);
  if (AddScript(0, program, strings)) return false;
  LoadProgram(std::move(program), std::move(strings));
  return true;
}

void RunAutoBet() {
  if (!Scripts.ProgramReady || AutoBet.ScriptRunning) return;
  AutoBet.ScriptRunning = true;
  AutoBet.AutoBetMessageStop = false;
  const bool watched = !Table.HyperDriveOn;
  const int64_t began = watched ? TickMilliseconds() : 0;
  if (watched) FrontEnd.DrawStatus();
  Cycle().Run();
  if (watched && !Table.HyperDriveOn) WaitForStatus(began);
  EndCycle();
  if (!watched) return;
  FrontEnd.DrawStatus();
  FrontEnd.DrawTable();
}

}  // namespace tessarel
