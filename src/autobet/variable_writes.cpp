#include <algorithm>
#include <cmath>
#include <optional>

#include "autobet/handling_words.h"
#include "autobet/variables.h"
#include "base/front_end.h"
#include "dice/generators.h"
#include "dice/roll_file.h"
#include "engine/bet_handling.h"
#include "engine/bets.h"
#include "engine/check_stacks.h"
#include "engine/seats.h"
#include "state/books.h"
#include "state/settings.h"
#include "state/table.h"

namespace tessarel {

namespace {

// --- Numbers -----------------------------------------------------------------------------------

// Far more than any rule leaves standing, and still with room to be added up.
constexpr double BoundOfMoney = 1e14;

// Money that the rules will cut: what is far beyond them all is cut here. Overflow fault for what
// is no number.
Money MoneyToCut(double value) {
  return Money::FromDouble(std::clamp(value, -BoundOfMoney, BoundOfMoney));
}

// Money within limits; empty, with the statement failed, outside of them.
std::optional<Money> MoneyWithin(double value, Money low, Money high, ScriptFault fault) {
  if (std::abs(value) <= BoundOfMoney) {
    const Money amount = Money::FromDouble(value);
    if (amount >= low && amount <= high) return amount;
  }
  FailScript(fault);
  return std::nullopt;
}

// The nearest whole number within limits, else the same.
std::optional<int32_t> WholeWithin(double value, int32_t low, int32_t high, ScriptFault fault) {
  const double whole = std::nearbyint(value);
  if (whole >= low && whole <= high) return static_cast<int32_t>(whole);
  FailScript(fault);
  return std::nullopt;
}

// --- What belongs to a player ------------------------------------------------------------------

void WriteBet(int place, int32_t number, double value) {
  const Money change = MoneyToCut(value) - Bet(place, number);
  if (change != Money()) PlaceBet({place, number, change}, Telling::Silent);
}

void WriteStack(int place, int32_t number, double value) {
  SetStackValue(place, number - FirstStack, MoneyToCut(value), Telling::Silent);
}

struct HandlingVariable {
  PerPlace<int32_t> TableState::*mode;
  std::optional<HandlingChoice> (*choiceOf)(std::string_view words);
  int32_t modifyMode;
  int modifySlot, setSlot;
  ScriptFault fault;
};

constexpr HandlingVariable WinVariable = {
    &TableState::HandleWinningBets, WinHandlingOf, WinModify, AutoWinModify, AutoWinSet,
    ScriptFault::WinHandling};
constexpr HandlingVariable LossVariable = {
    &TableState::HandleLosingBets, LossHandlingOf, LossModify, AutoLossModify, AutoLossSet,
    ScriptFault::LossHandling};

void TakeChoice(const HandlingVariable& variable, int place, const HandlingChoice& choice) {
  (Table.*variable.mode)[place] = choice.mode;
  if (!choice.hasAmount) return;
  const int slot = choice.mode == variable.modifyMode ? variable.modifySlot : variable.setSlot;
  Table.HandleAmount[place][slot] = choice.amount;
  Table.HandleOperator[place][slot] = choice.operation;
  Table.HandleUnits[place][slot] = Money();
}

void WriteHandling(const HandlingVariable& variable, int place, const ScriptValue& value) {
  if (IsText(value)) {
    const auto choice = variable.choiceOf(TextOf(value));
    if (choice) return TakeChoice(variable, place, *choice);
    FailScript(variable.fault);
  } else if (const auto mode = WholeWithin(value.value, 1, 8, variable.fault)) {
    (Table.*variable.mode)[place] = *mode - 1;
  }
}

// A switch of the player, and what setting it does at once to what stands.
void WriteSwitch(int place, int32_t number, bool on) {
  constexpr std::array<PerPlace<bool> TableState::*, 4> Switches = {
      &TableState::AutoTakeFullOdds, &TableState::AutoLayFullOdds, &TableState::AutoDownPlaceBets,
      &TableState::DeclinesDice};
  (Table.*At(Switches, number - variable::AutoTakeOdds))[place] = on;
  if (!on) return;
  if (number == variable::AutoTakeOdds) BetFullOdds(place);
  if (number == variable::AutoLayOdds) BetFullLay(place);
  if (number != variable::AutoDownPlaceBets) return;
  for (int bet = bet::Place4; bet <= bet::Place10; ++bet) {
    if (Bet(place, bet) > Money()) RemoveBet(place, bet, Telling::Silent);
  }
}

// The bankroll of a session that has not begun, cut to what the table allows.
void WriteBankroll(int place, double value) {
  if (RollsInSession() > 0) return FailScript(ScriptFault::SessionHasBegun);
  const bool mayBeNegative = Table.AllowNegBankroll[place];
  const Money lowest =
      mayBeNegative ? -BankrollLimit : std::max(Table.MoneyOnTable[place], Money());
  const Money amount = std::max(std::min(MoneyToCut(value), BankrollLimit), lowest);
  if (Stats.RollCount[AllSessions][0] == 0) BeginBankroll(place + AllSessions, amount);
  SetBankroll(place, amount);
  if (!Table.HyperDriveOn) FrontEnd.RefreshViews();
}

void WriteOwn(int place, int32_t number, const ScriptValue& value) {
  switch (number) {
    case variable::WinHandling:
      return WriteHandling(WinVariable, place, value);
    case variable::LossHandling:
      return WriteHandling(LossVariable, place, value);
    case variable::AutoTakeOdds:
    case variable::AutoLayOdds:
    case variable::AutoDownPlaceBets:
    case variable::AutoPassDice:
      return WriteSwitch(place, number, NumberOf(value) != 0);
    case variable::BeginningBankroll:
    case variable::Bankroll:
      return WriteBankroll(place, NumberOf(value));
    default:
      break;
  }
  if (IsStack(number)) return WriteStack(place, number, NumberOf(value));
  if (IsStackName(number))
    return SetStackName(place, number - variable::FirstStackName, TextOf(value));
  if (IsBet(number)) WriteBet(place, number, NumberOf(value));
}

// --- The table ---------------------------------------------------------------------------------

void WriteSetting(
    Money SettingsState::*setting, double value, Money low, Money high, ScriptFault fault) {
  if (const auto amount = MoneyWithin(value, low, high, fault)) Settings.*setting = *amount;
}

void WriteNextRoll(double value) {
  if (RollFile.RollFileName.empty()) return FailScript(ScriptFault::RollFileNotOpen);
  const double behindLast = RollFile.RollCountInFile + 1.0;
  const double roll = std::nearbyint(value);
  RollFile.NextRoll = RollFile.DisplayRoll =
      roll >= 1 ? static_cast<int32_t>(std::min(roll, behindLast)) : 1;
}

void WriteSeed(double value) {
  const auto seed =
      MoneyWithin(value, 1, Money::FromWhole(SeedLimit(Dice.CurrentRNG)), ScriptFault::Seed);
  if (!seed) return;
  Dice.SeedRequest = static_cast<int64_t>(std::nearbyint(seed->ToDouble()));
  SeedRNG(-1);
}

void WriteGenerator(double value) {
  const auto number = WholeWithin(value, 0, GeneratorCount, ScriptFault::Generator);
  if (number && SelectRNG(*number) == Unavailable) FailScript(ScriptFault::GeneratorMissing);
}

void WriteTable(int32_t number, double value) {
  using S = SettingsState;
  constexpr Money FineStep = Money::FromRaw(1), FastestRate = 36'000'000, LargestFactor = 9999;
  switch (number) {
    case variable::RollFileNext:
      return WriteNextRoll(value);
    case variable::RollsPerHour:
      return WriteSetting(&S::SimRollRate, value, FineStep, FastestRate, ScriptFault::RollRate);
    case variable::OddsFactor4:
    case variable::OddsFactor10:
      return WriteSetting(&S::OddsAllowed410, value, 0, LargestFactor, ScriptFault::OddsFactor);
    case variable::OddsFactor5:
    case variable::OddsFactor9:
      return WriteSetting(&S::OddsAllowed59, value, 0, LargestFactor, ScriptFault::OddsFactor);
    case variable::OddsFactor6:
    case variable::OddsFactor8:
      return WriteSetting(&S::OddsAllowed68, value, 0, LargestFactor, ScriptFault::OddsFactor);
    case variable::Seed:
      return WriteSeed(value);
    case variable::Generator:
      return WriteGenerator(value);
    case variable::CompRate:
      return WriteSetting(&S::CompRate, value * 100, 0, 100, ScriptFault::CompRate);
    default:
      return;
  }
}

}  // namespace

void SetVariable(const Reference& reference, const ScriptValue& value) {
  if (reference.number >= variable::FirstOfTable) {
    WriteTable(reference.number, NumberOf(value));
  } else {
    const int place = ResolvePlayer(reference.player);
    if (!MayActFor(place)) return;
    WriteOwn(place, reference.number, value);
  }
  if (!StatementFailed()) Table.TableDirty = true;
}

}  // namespace tessarel
