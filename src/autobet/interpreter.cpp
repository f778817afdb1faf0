#include "autobet/interpreter.h"

#include <utility>
#include <vector>

#include "autobet/checker.h"
#include "autobet/machine.h"
#include "autobet/program.h"
#include "autobet/script_faults.h"
#include "base/clock.h"
#include "base/fault.h"
#include "base/front_end.h"
#include "base/message.h"
#include "base/trap.h"
#include "state/table.h"
#include "texts/say.h"

namespace tessarel {

namespace {

// Deeper than any recursion that ends, and little enough to hold in memory.
constexpr size_t DeepestSubroutine = 10'000'000;

// The statements to return to, in memory that outlives the cycles.
std::vector<int32_t> Subroutines;

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
  bool BeginsHere(const Statement& statement, Text step);
  void Return();
  void StartOver();
  void Fail(const Fault& fault);
  void ReportError(CheckedText<1> outcome) const;
  void Step(Text text) const {
    if (AutoBet.ShowSteps) ShowStep(std::string(Wording(text)));
  }
  void ShowStep(std::string text) const;
  const Statement& Current() const { return statements_[pointer_]; }
  void JumpTo(int32_t statement) { pointer_ = static_cast<size_t>(statement); }
  // For jumps whose own step text speaks for the label, endif or loop they lead to.
  void JumpBehind(int32_t statement) { JumpTo(statement + 1); }

  // After so many statements waiting events run, so that an endless script can be stopped.
  static constexpr int StatementsBetweenEvents = 4096;

  const std::vector<Statement>& statements_ = LoadedStatements();
  size_t pointer_ = 0;
  bool conditionIsTrue_ = false;
  bool jumpedHere_ = false;  // a false condition led to this else, elseif or endif
  int untilEvents_ = StatementsBetweenEvents;
};

void Cycle::ShowStep(std::string text) const {
  const int place = AutoBet.CurrentScriptPlayer;
  std::string title =
      place > 0 ? Say(Text::ScriptStepsOf, Table.PlayerName[place]) : Say(Text::ScriptSteps);
  FrontEnd.ShowStep({place, Current().line, std::move(text), std::move(title)});
}

// `outcome` is the step that names the error after it.
void Cycle::ReportError(CheckedText<1> outcome) const {
  if (Table.HyperDriveOn) return;
  const std::string text = ScriptFaultText(AutoBet.Fault);
  FrontEnd.ReportScriptError(AutoBet.CurrentScriptPlayer, Current().line, text);
  if (AutoBet.ShowSteps) ShowStep(SayChosen(outcome, text));
}

// The condition and the then after it, at which the pointer stands when it goes on or jumps.
void Cycle::RunCondition() {
  conditionIsTrue_ = false;
  Evaluate(Current());
  if (StatementFailed()) {
    ReportError(Text::StepNotEvaluated);
  } else {
    conditionIsTrue_ = TakeResult() != 0;
    Step(conditionIsTrue_ ? Text::StepConditionTrue : Text::StepConditionFalse);
  }
  ++pointer_;
  Then(Current());
}

// The script of the session that a statement has started begins with its first statement.
void Cycle::StartOver() {
  Step(Text::StepStartOver);
  AutoBet.TableWasReset = false;
  AutoBet.Initializing = false;
  AutoBet.NewSessionBegins = true;
  Subroutines.clear();
  pointer_ = 0;
}

void Cycle::RunAction(const Statement& statement) {
  const bool showed = AutoBet.ShowSteps;
  Evaluate(statement);
  if (AutoBet.TableWasReset) return StartOver();
  if (StatementFailed())
    ReportError(Text::StepNoAction);
  else if (showed)
    Step(Text::StepAction);
  ++pointer_;
}

void Cycle::Then(const Statement& statement) {
  if (conditionIsTrue_) {
    Step(Text::StepActionsFollow);
    ++pointer_;
    return;
  }
  Step(Text::StepActionsSkipped);
  jumpedHere_ = true;
  JumpTo(statement.target);
}

// An else or elseif: reached out of a block it ends the structure, else it begins the next part.
// Returns whether it begins it.
bool Cycle::BeginsHere(const Statement& statement, Text step) {
  if (std::exchange(jumpedHere_, false)) {
    Step(step);
    ++pointer_;
    return true;
  }
  Step(Text::StepEndOfActions);
  JumpBehind(statement.target);
  return false;
}

void Cycle::Return() {
  std::vector<int32_t>& stack = Subroutines;
  if (!stack.empty()) {
    Step(Text::StepReturn);
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
      Step(Text::StepCondition);
      ++pointer_;
      return RunCondition();
    case StatementKind::ElseIf:
      if (!BeginsHere(statement, Text::StepCondition)) return;
      return RunCondition();
    case StatementKind::Condition:
    case StatementKind::Then:
      break;  // run with their if
    case StatementKind::Else:
      BeginsHere(statement, Text::StepLastActions);
      return;
    case StatementKind::EndIf:
      jumpedHere_ = false;
      Step(Text::StepEndIf);
      break;
    case StatementKind::Do:
      Step(Text::StepDo);
      break;
    case StatementKind::Loop:
      Step(Text::StepLoop);
      return JumpTo(statement.target);
    case StatementKind::ExitDo:
      Step(Text::StepExitDo);
      return JumpBehind(statement.target);
    case StatementKind::Goto:
      Step(Text::StepGoto);
      return JumpBehind(statement.target);
    case StatementKind::Gosub:
      Step(Text::StepGosub);
      if (Subroutines.size() == DeepestSubroutine) RaiseOverflow();
      Subroutines.push_back(static_cast<int32_t>(pointer_));
      return JumpBehind(statement.target);
    case StatementKind::Return:
      return Return();
    case StatementKind::Label:
      Step(Text::StepLabel);
      break;
    case StatementKind::Action:
      return RunAction(statement);
  }
  ++pointer_;
}

void Cycle::RunStatements() {
  while (pointer_ < statements_.size() && AutoBet.ScriptRunning) {
    RunStatement(Current());
    if (--untilEvents_ > 0) continue;
    untilEvents_ = StatementsBetweenEvents;
    FrontEnd.RunPendingEvents();
  }
}

// A fault of the machinery ends its statement like any other error.
void Cycle::Fail(const Fault& fault) {
  AutoBet.Fault = ScriptFault::Machinery;
  AutoBet.FaultText = Say(Text::ScriptFaultInRun, fault.Description, fault.Number);
  if (Current().kind != StatementKind::Condition) {
    ReportError(Text::StepNoAction);
    ++pointer_;
    return;
  }
  ReportError(Text::StepNotEvaluated);
  ++pointer_;
  Then(Current());
}

void Cycle::Run() {
  Subroutines.clear();
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
  Scripts.ProgramReady = true;
}

bool CompileHotKeyScript() {
  if (AutoBet.ScriptRunning) return false;
  Scripts.ProgramReady = false;
  ScriptProgram program;
  std::vector<ScriptString> strings(1);
  if (AddScript(0, program, strings)) return false;
  LoadProgram(std::move(program), std::move(strings));
  Scripts.ProgramReady = true;
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
