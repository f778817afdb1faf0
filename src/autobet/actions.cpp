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

enum ActionNumber : int32_t {
  PreserveStacks = 101,
  PreserveRollFile = 102,
  PreserveBoth = 103,
  AtmDeposit = 225,
  CallOffAction = 451,
  CallOnAction = 452,
  BetAction = 481,
  MultiplyAction = 482,
  DivideAction = 483,
  AddAction = 484,
  SubtractAction = 485,
  RoundAction = 487,
  RoundDownAction = 488,
  RoundUpAction = 489,
};

constexpr int32_t NoValue = 9997, NoString = 9998, DivisionByZero = 9999;

// Whether the statement has a value; else the error.
bool HasValue(const ScriptCommand& command, int32_t error = NoValue) {
  if (command.arguments.empty()) FailScript(error);
  return !command.arguments.empty();
}

// A stop that the script has asked for in this cycle outlives the session.
void StartSession(const ScriptCommand& command) {
  if (!HasRight(Scripts.AllowReset, 853)) return;
  const bool stops = Table.Stop == StopCause::ScriptCommand;
  const int32_t form = command.action;
  ScriptHost.StartSession(form == PreserveStacks || form == PreserveBoth,
                          form == PreserveRollFile || form == PreserveBoth);
  if (stops) Table.Stop = StopCause::ScriptCommand;
  AutoBet.TableWasReset = AutoBet.NewSessionBegins = true;
  AutoBet.Initializing = false;
}

// In a roll the cycle goes on, and the roll driver ends the run behind it.
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
  if (!shoots && !HasRight(Scripts.AllowAct4Others, 855)) return;
  ScriptHost.PassDice();
}

void SeedFromClock(const ScriptCommand&) {
  Dice.SeedRequest = 0;
  SeedRNG(-1);
}

void SeedWith(const ScriptCommand& command) {
  constexpr int32_t SeedOutOfLimits = 905;
  if (!HasValue(command)) return;
  const double seed = NumberOf(command.arguments[0]);
  const bool inLimits = seed >= 1 && seed <= SeedLimit(Dice.CurrentRNG);
  if (!inLimits) return FailScript(SeedOutOfLimits);
  Dice.SeedRequest = static_cast<int64_t>(std::nearbyint(seed));
  if (!SeedRNG(-1)) FailScript(SeedOutOfLimits);
}

// Shows the text of a message or question; false, with the error, when it cannot be shown.
bool ShowText(const ScriptCommand& command, int32_t flags) {
  if (!HasValue(command, NoString)) return false;
  if (!ScriptMessagesShown()) {
    FailScript(990);
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
    ATM(place, command.action == AtmDeposit, Money::FromDouble(std::min(amount, Most)), false);
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
  if (AutoBet.ScriptError != 0) return;
  SetVariable(b, valueOfA);
  if (AutoBet.ScriptError == 0) return;
  const int32_t error = std::exchange(AutoBet.ScriptError, 0);
  SetVariable(a, valueOfA);
  AutoBet.ScriptError = error;
}

void Swap(const ScriptCommand& command) {
  // Above are the variables of the table as a whole.
  constexpr int32_t LastPlayerVariable = 1999;
  if (command.targets.size() != 2) return FailScript(NoValue);
  for (const Reference& target : command.targets) {
    const bool ofPlayer = target.number <= LastPlayerVariable;
    if (ofPlayer && !MayActFor(ResolvePlayer(target.player))) return;
  }
  const Reference &a = command.targets[0], &b = command.targets[1];
  const ScriptValue valueOfA = PresentValue(a), valueOfB = PresentValue(b);
  if (AutoBet.ScriptError != 0) return;
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
    if (AutoBet.ScriptError != 0) return;
  }
}

void BuyPlaceBets(const ScriptCommand& command) {
  ForEachTarget(command, [](int place, const Reference& target) {
    if (!InFamily(target.number, PlaceFamily)) return FailScript(12);
    BuyPlaceBet(place, target.number, Telling::Silent);
  });
}

void CallBets(const ScriptCommand& command) {
  ForEachTarget(command, [&](int place, const Reference& target) {
    if (!IsBet(target.number)) return;
    if (command.action == CallOffAction) {
      CallBet(place, target.number, CallOff, Telling::Silent);
    } else if (command.action == CallOnAction) {
      CallBet(place, target.number, CallOn, Telling::Silent);
    } else {
      ResetBetWorking(place, target.number);
    }
  });
}

void ClearTargets(const ScriptCommand& command) {
  for (const Reference& target : command.targets) {
    SetVariable(target, Number(0));
    if (AutoBet.ScriptError != 0) return;
  }
}

// A multiple of the unit, exact to the last decimal of an amount.
double RoundedTo(int32_t action, double value, double step) {
  const Money unit = Abs(Money::FromDouble(step));
  const Money amount = Abs(Money::FromDouble(value));
  const bool negative = value < 0;
  const Money below = FloorToMultiple(amount, unit);
  const Money above = CeilingToMultiple(amount, unit);
  const bool outward = action == RoundAction ? amount - below >= above - amount
                                             : (action == RoundUpAction) != negative;
  const Money rounded = outward ? above : below;
  return (negative ? -rounded : rounded).ToDouble();
}

double NewAmount(int32_t action, double present, double operand) {
  switch (action) {
    case BetAction:
      return operand;
    case MultiplyAction:
      return present * operand;
    case DivideAction:
      return present / operand;
    case AddAction:
      return present + operand;
    case SubtractAction:
      return present - operand;
    default:
      return RoundedTo(action, present, operand);
  }
}

bool DividesByZero(int32_t action, double operand) {
  if (action == DivideAction) return operand == 0;
  return action >= RoundAction && Money::FromDouble(operand) == Money();
}

void ChangeTargets(const ScriptCommand& command) {
  if (!HasValue(command)) return;
  const double operand = NumberOf(command.arguments[0]);
  if (DividesByZero(command.action, operand)) return FailScript(DivisionByZero);
  for (const Reference& target : command.targets) {
    const bool anew = command.action == BetAction;
    const double present = anew ? 0 : NumberOf(ReadVariable(target));
    if (AutoBet.ScriptError == 0) {
      SetVariable(target, Number(NewAmount(command.action, present, operand)));
    }
    if (AutoBet.ScriptError != 0) return;
  }
}

struct ActionRow {
  int32_t Action;
  void (*Perform)(const ScriptCommand& command);
};

// By number, ascending.
// clang-format off
constexpr ActionRow ActionRows[] = {
    {100, StartSession}, {101, StartSession}, {102, StartSession}, {103, StartSession},
    {114, SwitchOffProbabilities},
    {115, StopRolling}, {116, TurnStepsOn},
    {118, PassTheDice},
    {119, SwitchOffRollFile},
    {130, SeedFromClock},
    {210, ShowScriptMessage}, {211, AskQuestion},
    {212, PlayScriptSound},
    {213, ActivateProbabilities},
    {220, OpenOutputFile}, {221, OpenOutputFile}, {223, WriteToOutputFile},
    {225, UseAtm}, {226, UseAtm},
    {230, SeedWith},
    {300, Swap},
    {310, PlayBackRollFile},
    {450, BuyPlaceBets},
    {451, CallBets}, {452, CallBets}, {453, CallBets},
    {460, ClearTargets},
    {481, ChangeTargets}, {482, ChangeTargets}, {483, ChangeTargets}, {484, ChangeTargets},
    {485, ChangeTargets}, {487, ChangeTargets}, {488, ChangeTargets}, {489, ChangeTargets},
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
