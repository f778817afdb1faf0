// The table: what is bet, who plays and where the game stands between two rolls. Plain values that
// every rule reads directly. The few values that other tables are derived from are changed only
// through the Set... routines below, which keep the derived ones right.
#pragma once

#include <cstdint>
#include <string>

#include "base/indexing.h"
#include "base/money.h"
#include "base/number_set.h"
#include "state/bet_numbers.h"

namespace tessarel {

// One scope of a slot table is nine slots: the table as a whole and places 1 to 8.
inline constexpr int SlotsInScope = LastPlace + 1;
inline constexpr int SlotCount = 5 * SlotsInScope;
enum Scope : int {
  CurrentHand = 0 * SlotsInScope,
  LastHand = 1 * SlotsInScope,
  CurrentSession = 2 * SlotsInScope,
  LastSession = 3 * SlotsInScope,
  AllSessions = 4 * SlotsInScope,
};
// The scopes that are counted into; the other two are copies.
inline constexpr Indexed<Scope, 3> CountedScopes = {CurrentHand, CurrentSession, AllSessions};

inline constexpr Money BankrollLimit = 9'999'999;
inline constexpr int32_t MaxRolls = 2'000'000'000;
inline constexpr int GraphLength = 1050;

template <class T>
using PerNumber = Indexed<T, LastNumber + 1>;  // 1 to 93 bets, 100 to 199 check stacks
template <class T>
using PerBet = Indexed<T, 101>;  // 1 to 93 bets
template <class T>
using PerSlot = Indexed<T, SlotCount>;  // place + scope

// The values of BetWorking.
enum Working : int32_t { CalledOff = -1, NotWorking = 0, IsWorking = 1, CalledOn = 2 };

// Handling slots 5 to 12 (mode + 5) of the modify and units rows.
inline constexpr int FirstHandlingSlot = 5, LastHandlingSlot = 12;
template <class T>
using PerHandlingSlot = Indexed<T, LastHandlingSlot + 1>;  // 5 to 12

// Why rolling ends before its time. What is said of each is StopText of engine/unattended.h.
enum class StopCause {
  None,
  NobodyToBet,
  ShooterWithoutLineBet,
  ShooterWithoutBet,
  MaximumRolls,
  NoGenerator,
  AutoStop,
  BelowBankrollLimit,
  AboveBankrollLimit,
  BankrollLimitOfGonePlayer,
  ScriptCommand,
  ScriptInterrupted,
  InvalidRoll,
  EndOfRollFile,
  NothingToDraw,
  PopupRollFault,
};

struct TableState {
  // Bets, per place and number.
  PerPlace<PerNumber<Money>> BetAmount{};           // on the bet now; 0: there is no bet
  PerPlace<PerNumber<Money>> BetAmountBefore{};     // just before the current roll
  PerPlace<PerNumber<Money>> BetAmountAfterRoll{};  // after the last roll, for the log
  PerPlace<PerBet<Money>> BetContract{};            // at the last roll, or moved to the number
  PerPlace<PerBet<int32_t>> BetWorkingDefault{};    // on the come-out; row 0 is the house standard
  PerPlace<PerBet<int32_t>> BetWorking{};           // see Working; a bet resolves above 0
  PerPlace<PerBet<int32_t>> BetWorkingBefore{};     // as it was after the last roll
  PerPlace<PerBet<int32_t>> BetStreak{};            // decisions in a row, + for wins, - for losses
  PerPlace<PerBet<int32_t>> BetStreakBefore{};
  PerPlace<PerNumber<int32_t>> BetX{}, BetY{};  // where the checks stand on the table picture
  PerPlace<Indexed<Money, FamilySize>> ComeOriginal{};  // what travelled to each Come number
  PerPlace<Indexed<Money, FamilySize>> LayVig{}, BuyVig{};

  // Players. Index 0 of the names is the house.
  PerPlace<std::string> PlayerName{"House"};
  PerSlot<Money> Bankroll{}, BankrollBegin{}, BankrollHigh{}, BankrollLow{};
  PerPlace<Money> InvestedBankroll{}, MoneyOnTable{}, BankrollAtRoll{}, BankrollAfterRoll{};
  PerPlace<Money> AvailableBankroll{}, BankrollSum{};
  PerPlace<bool> AllowNegBankroll{};
  PerPlace<int32_t> BankrollInitType{};  // 0 a fixed sum, 1 ask, 2 carry the last one forward
  PerPlace<Money> BankrollInitAmount{};
  PerPlace<int32_t> HandleWinningBets{}, HandleLosingBets{};
  PerPlace<PerHandlingSlot<Money>> HandleAmount{}, HandleUnits{};
  PerPlace<PerHandlingSlot<int32_t>> HandleOperator{};
  PerPlace<bool> AutoTakeFullOdds{}, AutoLayFullOdds{}, AutoDownPlaceBets{};
  PerPlace<bool> AutoAdjustBetAmounts{};
  PerPlace<int32_t> DoBias{}, DontBias{}, PlaceBias{}, LayBias{};  // 0 down, 1 up, 2 nearest
  PerPlace<bool> DeclinesDice{};
  PerPlace<std::string> SessionLogName;
  PerPlace<Indexed<std::string, StackCount>> CheckStackName{};
  PerPlace<Indexed<int32_t, 5>> VisibleStack{};  // rail positions 1 to 4: number 100 to 199

  // The game between two rolls.
  int32_t Point = 0;      // 0 on a come-out
  int32_t LastPoint = 0;  // the point when the current roll was thrown
  int32_t PointBeforeLast = 0;
  int32_t LastDecidedPoint = 0;
  int32_t Shooter = 0, LastShooter = 0, PreviousShooter = 0;
  int32_t Die1 = 0, Die2 = 0, DiceTotal = 0;
  int32_t PlayerCount = 0;
  int32_t MarkedNumbers = 0;  // bit n: total n has been rolled
  int32_t FourRollCount = 0;
  int32_t FirePointsMask = 0, FirePoints = 0;
  int32_t SharpShooterPoints = 0, RideTheLinePasses = 0;

  int32_t BankrollStopPlace = 0;
  bool RollInProgress = false;
  bool TableDirty = false;
  bool BetChangedThisRoll = false;
  bool HyperDriveOn = false;             // rolls are made without being shown
  bool AutoRollOn = false;               // a run that a person has started, of either kind
  StopCause Stop = StopCause::None;      // why an unattended run stops
  StopCause LastStop = StopCause::None;  // why the last call of the roll driver ended
  std::string StopFault;                 // with PopupRollFault: what went wrong

  // The bankrolls after each roll, a ring from 1 to GraphLength.
  int32_t GraphIndex = 0;
  Indexed<PerPlace<Money>, GraphLength + 1> GraphBankroll{};

  // Derived from the values above by the routines below.
  PerPlace<BetSet> Standing;           // the bets 1 to 93 above zero
  PerBet<uint8_t> Holders{};           // per bet, bit v - 1: the place of visit v has it
  BetSet Held;                         // the bets that anybody has
  uint32_t TakenPlaces = 0;            // bit p: place p has a player
  PerPlace<NumberSet> ChangedForRoll;  // changed since the snapshot before the last roll
  PerPlace<NumberSet> ChangedAfter;    // changed since the snapshot after the last roll
  PerPlace<bool> WorkingChanged{};     // some BetWorking changed since then
};

extern TableState Table;

// Whether rolls are made without a person asking for each, shown or not.
inline bool RunIsOn() {
  return Table.AutoRollOn || Table.HyperDriveOn;
}

constexpr bool IsTaken(const TableState& table, int place) {
  return (table.TakenPlaces >> place & 1) != 0;
}

// Calls visit(place) for each taken place, 1 to 8 in order.
template <class Visit>
void ForEachPlayer(Visit&& visit) {
  for (uint32_t rest = Table.TakenPlaces; rest != 0; rest &= rest - 1) {
    visit(std::countr_zero(rest));
  }
}

// Marks a number of a place as changed for the next snapshots.
inline void MarkChanged(int place, int number) {
  Table.ChangedForRoll[place].Add(number);
  Table.ChangedAfter[place].Add(number);
}

// The one way in which a BetAmount changes. `number` is 1 to 200.
void SetBetAmount(int place, int number, Money amount);

inline void SetBetContract(int place, int number, Money amount) {
  Table.BetContract[place][number] = amount;
  MarkChanged(place, number);
}

inline void SetBetWorking(int place, int number, int32_t state) {
  Table.BetWorking[place][number] = state;
  Table.WorkingChanged[place] = true;
  MarkChanged(place, number);
}

inline void SetBetStreak(int place, int number, int32_t streak) {
  Table.BetStreak[place][number] = streak;
  MarkChanged(place, number);
}

// Names a place, or opens it with an empty name, and keeps PlayerCount.
void SetPlayerName(int place, std::string name);

// Figures every derived value again after the plain ones were written directly (a loaded game).
void RebuildDerived();

// A place's bets and the vig that is charged up front with them: what its MoneyOnTable has to be.
Money FigureMoneyOnTable(int place);

// Whether derived values, sums and bets agree; the fault found is described, empty when all is
// well. Walks the whole table: for tests and debug builds.
std::string CheckTable();

inline Money Bet(int place, int number) {
  return Table.BetAmount[place][number];
}

inline bool HasLineBet(int place) {
  return Bet(place, bet::PassLine) > Money() || Bet(place, bet::DontPass) > Money();
}

// Whether anybody has the bet.
inline bool AnyHolds(int number) {
  return Table.Holders[number] != 0;
}

inline Money BankrollOf(int place) {
  return Table.Bankroll[place];
}

// Writes a bankroll in the three slots that are counted into.
inline void SetBankrollSlots(int place, Money amount) {
  for (const Scope scope : CountedScopes)
    Table.Bankroll[place + scope] = amount;
}

// Moves the high and low of the counted scopes to the bankroll.
void MoveHighAndLow(int place);

// A bankroll begins at `amount` in a slot, which so far is its high and low.
inline void BeginBankroll(int slot, Money amount) {
  Table.BankrollBegin[slot] = Table.BankrollHigh[slot] = Table.BankrollLow[slot] = amount;
}

// "3-left" or "1-right": where a place stands from the stick.
std::string StickPosition(int place);

}  // namespace tessarel
