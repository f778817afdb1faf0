// The statistics store: everything the views report is counted here once, as it happens, per slot.
// A slot is a place (0 for the table as a whole) plus a scope of state/table.h. A figure that has
// no room for more is reported and stays behind; the roll goes on.
#pragma once

#include <cstdint>

#include "base/indexing.h"
#include "base/money.h"
#include "base/number_set.h"
#include "state/table.h"

namespace tessarel {

inline constexpr int RollCodes = 91;  // roll event codes 1 to 90; item 0 counts rolls
inline constexpr int LongestGap = 200;

// The six measures of one kind of entry.
struct BetMeasures {
  int64_t Count = 0;  // entries
  Money Sum;
  Money High;
  Money Low;             // the lowest that is not zero
  int64_t LastRoll = 0;  // the roll number, in that scope's table count, of the last entry
  Money Last;
};

struct BetRecord {
  BetMeasures Tendered;  // every resolved wager
  BetMeasures Won;
  BetMeasures Lost;
};

// Rows of HandTable.
enum HandRow : int { HandComeoutRolls = 1, HandPasses = 2, HandMisses = 3 };

// The hand figures of a slot.
struct HandFigures {
  int32_t HandCount = 0;
  int32_t RollTotal = 0;  // rolls of the player's time at the table
  int32_t MostRolls = 0, MostComeoutRolls = 0, MostPasses = 0, MostMisses = 0;
};

struct StatsState {
  PerSlot<PerBet<BetRecord>> Bets{};
  PerSlot<Indexed<int32_t, RollCodes>> RollCount{};
  PerSlot<HandFigures> Hands{};
  PerSlot<Indexed<Indexed<int32_t, 4>, 13>> HandTable{};  // dice total, HandRow
  PerSlot<Indexed<Money, FamilySize>> ComeTravel{};       // flat amounts that moved to each number

  // The hand now running.
  int32_t HandComeouts = 0, HandPassCount = 0, HandMissCount = 0;

  // The session's series: the session's roll number at which each code last came (0 never), and
  // how often a code came again after 0 to LongestGap rolls (LongestGap holds all longer gaps).
  Indexed<int32_t, RollCodes> LastCame{};
  Indexed<Indexed<int32_t, LongestGap + 1>, RollCodes> GapCount{};

  // Bets with an entry in the current hand and in the last one, so that the end of a hand touches
  // only those.
  PerPlace<NumberSet> HandBets, LastHandBets;
};

extern StatsState Stats;

// Rolls of the running hand, of the session, and of all sessions.
inline int32_t RollsInHand() {
  return Stats.RollCount[CurrentHand][0];
}
inline int32_t RollsInSession() {
  return Stats.RollCount[CurrentSession][0];
}

// Counts the roll of Die1 and Die2: item 0 and every code of the roll, for the table and for
// LastShooter, the rolls of every player's time at the table, the longest hand and the gaps.
// Faces are 1 to 6.
void RecordRoll(int die1, int die2);

// The codes a roll reports, in their order; the list ends with 0.
using RollCodeList = Indexed<uint8_t, 16>;
const RollCodeList& CodesOfRoll(int die1, int die2);

// Counts a come-out roll, a pass or a miss of the running hand under the total of the dice.
void RecordComeoutRoll();
void RecordPass();
void RecordMiss();

// Counts a resolved wager of `amount` with its net result; a push leaves no mark.
void RecordBetResult(int place, int number, Money amount, Money result);

// Adds the roll's bankrolls to the running sums and moves the high and low of the counted scopes.
void RecordBankrolls();

// Ends the hand: counts it, copies the current hand to the last one and clears it.
void EndHand();

// A new session: keeps the old one as the last session if it had rolls, then clears the current
// hand, the session and its series.
void StartSessionStatistics();

// Clears all five slots of a place, or everything counted over all sessions.
void ClearPlayerStats(int place);
void ClearAllSessions();

// Rolls since a code last came: 0 on the roll itself, the session's rolls if it never came.
int32_t RollsSince(int code);

}  // namespace tessarel
