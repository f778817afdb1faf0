#include "autobet/actions.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>

#include "autobet/file_actions.h"
#include "autobet/script_host.h"
#include "autobet/script_messages.h"
#include "autobet/variables.h"
#include "base/message.h"
#include "dice/generators.h"
#include "engine/atm.h"
#include "engine/bets.h"
#include "engine/unattended.h"
#include "state/scripts.h"
#include "state/settings.h"
#include "state/table.h"

namespace tessarel {

constinit ScriptHostCallbacks ScriptHost;

namespace {

// Whether the statement has a value; else the error.
bool HasValue(const ScriptCommand& command, ScriptFault fault = ScriptFault::NoValue) {
  if (command.arguments.empty()) FailScript(fault);
  return !command.arguments.empty();
}

// A stop that the script has asked for in this cycle outlives the session.
void StartSession(const ScriptCommand& command) {
  if (!HasRight(Scripts.AllowReset, ScriptFault::NoNewSessions)) return;
  const bool stops = Table.Stop == StopCause::ScriptCommand;
  const int32_t form = command.action;
  const bool both = form == action::NewSessionKeepBoth;
  ScriptHost.StartSession({.Stacks = both || form == action::NewSessionKeepStacks,
                           .RollFile = both || form == action::NewSessionKeepRollFile});
  if (stops) Table.Stop = StopCause::ScriptCommand;
  AutoBet.TableWasReset = AutoBet.NewSessionBegins = true;
  AutoBet.Initializing = false;
}

// In a roll the cycle goes on, and the roll driver ends the run after it.
void StopRolling(const ScriptCommand&) {
  Table.Stop = StopCause::ScriptCommand;
  if (Table.RollInProgress) return;
  StopUnattended();
  Table.Stop = StopCause::None;
}

void TurnStepsOn(const ScriptCommand&) {
  AutoBet.ShowSteps = true;
}

void PassTheDice(const ScriptCommand&) {
  const bool shoots = AutoBet.CurrentScriptPlayer == Table.Shooter;
  if (!shoots && !HasRight(Scripts.AllowAct4Others, ScriptFault::NotTheShooter)) return;
  ScriptHost.PassDice();
}

void SeedFromClock(const ScriptCommand&) {
  Dice.SeedRequest = 0;
  SeedRNG(-1);
}

void SeedWith(const ScriptCommand& command) {
  if (!HasValue(command)) return;
  const double seed = NumberOf(command.arguments[0]);
  const bool inLimits = seed >= 1 && seed <= SeedLimit(Dice.CurrentRNG);
  if (!inLimits) return FailScript(ScriptFault::Seed);
  Dice.SeedRequest = static_cast<int64_t>(std::nearbyint(seed));
  if (!SeedRNG(-1)) FailScript(ScriptFault::Seed);
}

// Shows the text of a message or question; false, with the error, when it cannot be shown.
bool ShowText(const ScriptCommand& command, int32_t flags) {
  if (!HasValue(command, ScriptFault::NoString)) return false;
  if (!ScriptMessagesShown()) {
    FailScript(ScriptFault::MessagesOff);
    return false;
  }
  ShowMessage(MessageLines(TextOf(command.arguments[0])), ScriptMessageTitle(),
              flags | msg::HideNotice8, help::BettingSystems);
  return true;
}

void ShowScriptMessage(const ScriptCommand& command) {
  ShowText(command, msg::Ok);
}

void AskQuestion(const ScriptCommand& command) {
  if (!ShowText(command, msg::AskYesDefault)) return;
  AutoBet.Answer = Message.MsgResult == AnswerYes ? AnswerYes : AnswerNo;
}

void UseAtm(const ScriptCommand& command) {
  const int place = AutoBet.CurrentScriptPlayer;
  if (!HasValue(command) || !MayActFor(place)) return;
  // More than this moves no more than this, from one end of the limits to the other.
  constexpr double Most = (BankrollLimit + BankrollLimit).ToDouble();
  const double amount = NumberOf(command.arguments[0]);
  if (amount > 0) {
    ATM(place, command.action == action::AtmDeposit, Money::FromDouble(std::min(amount, Most)),
        false);
  }
}

// The value as it is now: the text of a name is fixed.
ScriptValue PresentValue(const Reference& reference) {
  const ScriptValue value = ReadVariable(reference);
  return IsText(value) ? MakeText(TextOf(value)) : value;
}

// Sets one side to the value of the other and back if the other one refuses its own.
void ExchangeValues(const Reference& a,
                    const ScriptValue& valueOfA,
                    const Reference& b,
                    const ScriptValue& valueOfB) {
  SetVariable(a, valueOfB);
  if (StatementFailed()) return;
  SetVariable(b, valueOfA);
  if (!StatementFailed()) return;
  const ScriptFault fault = std::exchange(AutoBet.Fault, ScriptFault::None);
  SetVariable(a, valueOfA);
  AutoBet.Fault = fault;
}

void Swap(const ScriptCommand& command) {
  if (command.targets.size() != 2) return FailScript(ScriptFault::NoValue);
  for (const Reference& target : command.targets) {
    const bool ofPlayer = target.number <= variable::LastOfPlayer;
    if (ofPlayer && !MayActFor(ResolvePlayer(target.player))) return;
  }
  const Reference &a = command.targets[0], &b = command.targets[1];
  const ScriptValue valueOfA = PresentValue(a), valueOfB = PresentValue(b);
  if (StatementFailed()) return;
  // The side that falls is set first, so that its money is there for the one that rises.
  const bool rises = !IsText(valueOfA) && NumberOf(valueOfB) > valueOfA.value;
  if (rises) {
    ExchangeValues(b, valueOfB, a, valueOfA);
  } else {
    ExchangeValues(a, valueOfA, b, valueOfB);
  }
}

// Calls visit(place, target) for each target that the script may act on, until a run-time error.
template <class Visit>
void ForEachTarget(const ScriptCommand& command, Visit&& visit) {
  for (const Reference& target : command.targets) {
    const int place = ResolvePlayer(target.player);
    if (!MayActFor(place)) return;
    visit(place, target);
    if (StatementFailed()) return;
  }
}

void BuyPlaceBets(const ScriptCommand& command) {
  ForEachTarget(command, [](int place, const Reference& target) {
    if (!InFamily(target.number, PlaceFamily)) return FailScript(ScriptFault::NotAPlaceBet);
    BuyPlaceBet(place, target.number, Telling::Silent);
  });
}

void CallBets(const ScriptCommand& command) {
  ForEachTarget(command, [&](int place, const Reference& target) {
    if (!IsBet(target.number)) return;
    if (command.action == action::CallOff) {
      CallBet(place, target.number, CallOff, Telling::Silent);
    } else if (command.action == action::CallOn) {
      CallBet(place, target.number, CallOn, Telling::Silent);
    } else {
      ResetBetWorking(place, target.number);
    }
  });
}

void ClearTargets(const ScriptCommand& command) {
  for (const Reference& target : command.targets) {
    SetVariable(target, Number(0));
    if (StatementFailed()) return;
  }
}

// A multiple of the unit, exact to the last decimal of an amount.
double RoundedTo(int32_t action, double value, double step) {
  const Money unit = Abs(Money::FromDouble(step));
  const Money amount = Abs(Money::FromDouble(value));
  const bool negative = value < 0;
  const Money below = FloorToMultiple(amount, unit);
  const Money above = CeilingToMultiple(amount, unit);
  const bool outward = action == action::Round ? amount - below >= above - amount
                                               : (action == action::RoundUp) != negative;
  const Money rounded = outward ? above : below;
  return (negative ? -rounded : rounded).ToDouble();
}

double NewAmount(int32_t action, double present, double operand) {
  switch (action) {
    case action::Bet:
      return operand;
    case action::Multiply:
      return present * operand;
    case action::Divide:
      return present / operand;
    case action::Add:
      return present + operand;
    case action::Subtract:
      return present - operand;
    default:
      return RoundedTo(action, present, operand);
  }
}

bool DividesByZero(int32_t action, double operand) {
  if (action == action::Divide) return operand == 0;
  return action >= action::Round && Money::FromDouble(operand) == Money();
}

void ChangeTargets(const ScriptCommand& command) {
  if (!HasValue(command)) return;
  const double operand = NumberOf(command.arguments[0]);
  if (DividesByZero(command.action, operand)) return FailScript(ScriptFault::DivisionByZero);
  for (const Reference& target : command.targets) {
    const bool anew = command.action == action::Bet;
    const double present = anew ? 0 : NumberOf(ReadVariable(target));
    if (!StatementFailed()) {
      SetVariable(target, Number(NewAmount(command.action, present, operand)));
    }
    if (StatementFailed()) return;
  }
}

struct ActionRow {
  int32_t Action;
  void (*Perform)(const ScriptCommand& command);
};

// By number, ascending.
// clang-format off
constexpr ActionRow ActionRows[] = {
    {action::NewSession, StartSession}, {action::NewSessionKeepStacks, StartSession},
    {action::NewSessionKeepRollFile, StartSession}, {action::NewSessionKeepBoth, StartSession},
    {action::ProbabilitiesOff, SwitchOffProbabilities}, {action::StopRolling, StopRolling},
    {action::ShowSteps, TurnStepsOn}, {action::PassDice, PassTheDice},
    {action::RollFileOff, SwitchOffRollFile}, {action::SeedFromClock, SeedFromClock},
    {action::ShowMessage, ShowScriptMessage}, {action::AskQuestion, AskQuestion},
    {action::PlaySound, PlayScriptSound}, {action::ProbabilitiesOn, ActivateProbabilities},
    {action::AppendOutput, OpenOutputFile}, {action::ClearOutput, OpenOutputFile},
    {action::WriteOutput, WriteToOutputFile}, {action::AtmDeposit, UseAtm},
    {action::AtmWithdraw, UseAtm}, {action::SeedWith, SeedWith}, {action::Swap, Swap},
    {action::PlayBackRollFile, PlayBackRollFile}, {action::BuyPlaceBet, BuyPlaceBets},
    {action::CallOff, CallBets}, {action::CallOn, CallBets}, {action::RemoveButton, CallBets},
    {action::TakeDown, ClearTargets}, {action::Bet, ChangeTargets},
    {action::Multiply, ChangeTargets}, {action::Divide, ChangeTargets},
    {action::Add, ChangeTargets}, {action::Subtract, ChangeTargets}, {action::Round, ChangeTargets},
    {action::RoundDown, ChangeTargets}, {action::RoundUp, ChangeTargets},
};
// clang-format on
static_assert(std::ranges::is_sorted(ActionRows, {}, &ActionRow::Action));

}  // namespace

void RunCommand(const ScriptCommand& command) {
  const auto* const row =
      std::ranges::lower_bound(ActionRows, command.action, {}, &ActionRow::Action);
  if (row != std::end(ActionRows) && row->Action == command.action) row->Perform(command);
}

bool ScriptMessagesShown() {
  const int32_t bit = Table.HyperDriveOn ? NoticeAutoBetHyper : NoticeAutoBet;
  return (Settings.Notices & bit) != 0;
}

}  // namespace tessarel
