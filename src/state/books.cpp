#include "state/books.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "base/fault.h"
#include "base/trap.h"
#include "state/vig.h"

namespace tessarel {

StatsState Stats;

namespace {

// The codes of each total besides the faces, the ordered pair and the codes that hang on one die.
// clang-format off
constexpr std::array<std::array<uint8_t, 9>, 13> CodesOfTotal = {{
    {}, {},
    {21, 65, 66, 20, 69, 74},
    {3, 21, 65, 66, 20, 70, 74, 75},
    {4, 0, 21, 17, 19, 67, 71},
    {5, 0, 17, 18, 19, 67, 72},
    {6, 0, 17, 18, 67, 73},
    {7, 0, 65, 76},
    {8, 0, 17, 18, 68, 73},
    {9, 0, 21, 17, 18, 19, 68, 72},
    {10, 0, 21, 17, 19, 68, 71},
    {11, 21, 65, 66, 70, 76, 77},
    {21, 65, 66, 20, 69, 75, 77},
}};

constexpr std::array<std::array<uint8_t, 7>, 7> PairCode = {{
    {},
    {0,  2, 22, 24, 27, 33, 39},
    {0, 23, 13, 29, 35, 41, 48},
    {0, 25, 30, 14, 43, 50, 54},
    {0, 28, 36, 44, 15, 56, 60},
    {0, 34, 42, 51, 57, 16, 63},
    {0, 40, 49, 55, 61, 64, 12},
}};
// clang-format on

constexpr int FirstDieCode = 77, SecondDieCode = 83;  // plus the face

// The code of an unordered pair, which stands second in the list of its total; 0 for none.
constexpr uint8_t UnorderedCode(int die1, int total) {
  const auto isOneOf = [die1](int a, int b) { return die1 == a || die1 == b; };
  switch (total) {
    case 4:
      return isOneOf(1, 3) ? 26 : 0;
    case 5:
      return isOneOf(1, 4) ? 31 : 32;
    case 6:
      return isOneOf(1, 5) ? 37 : isOneOf(2, 4) ? 38 : 0;
    case 7:
      return isOneOf(1, 6) ? 45 : isOneOf(2, 5) ? 46 : 47;
    case 8:
      return isOneOf(2, 6) ? 52 : isOneOf(3, 5) ? 53 : 0;
    case 9:
      return isOneOf(3, 6) ? 58 : 59;
    case 10:
      return isOneOf(4, 6) ? 62 : 0;
    default:
      return 0;
  }
}

constexpr RollCodeList MakeCodes(int die1, int die2) {
  RollCodeList codes{};
  size_t count = 0;
  const auto add = [&](int code) {
    if (code != 0) codes[count++] = static_cast<uint8_t>(code);
  };
  add(FirstDieCode + die1);
  add(SecondDieCode + die2);
  add(PairCode[static_cast<size_t>(die1)][static_cast<size_t>(die2)]);
  const int total = die1 + die2;
  const auto& list = CodesOfTotal[static_cast<size_t>(total)];
  const bool named = total >= 4 && total <= 10;
  for (size_t k = 0; k < list.size(); ++k) {
    add(named && k == 1 ? UnorderedCode(die1, total) : list[k]);
  }
  return codes;
}

constexpr auto RollCodesOfPair = [] {
  std::array<std::array<RollCodeList, 7>, 7> table{};
  for (int die1 = 1; die1 <= 6; ++die1) {
    for (int die2 = 1; die2 <= 6; ++die2) {
      table[static_cast<size_t>(die1)][static_cast<size_t>(die2)] = MakeCodes(die1, die2);
    }
  }
  return table;
}();

// Calls visit(slot) for the counted slots of the table and of the player who gets the credit.
template <class Visit>
void ForEachCreditedSlot(Visit&& visit) {
  for (const Scope scope : CountedScopes) {
    visit(static_cast<size_t>(scope));
    if (Table.LastShooter != 0) visit(static_cast<size_t>(scope + Table.LastShooter));
  }
}

void CountGap(uint8_t code, int32_t roll) {
  int32_t& last = Stats.LastCame[code];
  if (last != 0) ++Stats.GapCount[code][static_cast<size_t>(std::min(roll - last - 1, LongestGap))];
  last = roll;
}

// Counts a roll and its codes in the counted scopes of the given places, and the gaps.
template <size_t Places>
void CountCodes(const std::array<size_t, Places>& places, const RollCodeList& codes) {
  std::array<int32_t*, 3 * Places> rows;
  for (size_t k = 0; k < rows.size(); ++k) {
    rows[k] = Stats.RollCount[static_cast<size_t>(CountedScopes[k % 3]) + places[k / 3]].data();
    ++rows[k][0];
  }
  const int32_t roll = RollsInSession();
  for (size_t k = 0; codes[k] != 0; ++k) {
    for (int32_t* row : rows)
      ++row[codes[k]];
    CountGap(codes[k], roll);
  }
}

void RaiseAll(int32_t HandFigures::*figure, int32_t value) {
  ForEachCreditedSlot([&](size_t slot) {
    int32_t& most = Stats.Hands[slot].*figure;
    if (value > most) most = value;
  });
}

void CountInHand(int32_t& counter, int32_t HandFigures::*most, HandRow row) {
  ++counter;
  RaiseAll(most, counter);
  ForEachCreditedSlot([&](size_t slot) {
    ++Stats.HandTable[slot][static_cast<size_t>(Table.DiceTotal)][static_cast<size_t>(row)];
  });
}

void Enter(BetMeasures& measures, Money amount, int64_t roll) {
  ++measures.Count;
  measures.Sum += amount;
  measures.High = std::max(measures.High, amount);
  const bool lower = measures.Low == Money() || amount < measures.Low;
  if (lower && amount > Money()) measures.Low = amount;
  measures.LastRoll = roll;
  measures.Last = amount;
}

// What was at risk: the bet and the vig that was paid with it.
Money StakeOf(int place, int number, Money amount) {
  return amount + VigUpFront(place, number);
}

// Everything of a slot but the bet records and bankrolls.
void CopyCounts(size_t from, size_t to) {
  Stats.RollCount[to] = Stats.RollCount[from];
  Stats.Hands[to] = Stats.Hands[from];
  Stats.HandTable[to] = Stats.HandTable[from];
  Stats.ComeTravel[to] = Stats.ComeTravel[from];
}

void ClearCounts(size_t slot) {
  Stats.RollCount[slot] = {};
  Stats.Hands[slot] = {};
  Stats.HandTable[slot] = {};
  Stats.ComeTravel[slot] = {};
}

void CopyBankrolls(size_t from, size_t to) {
  Table.Bankroll[to] = Table.Bankroll[from];
  Table.BankrollBegin[to] = Table.BankrollBegin[from];
  Table.BankrollHigh[to] = Table.BankrollHigh[from];
  Table.BankrollLow[to] = Table.BankrollLow[from];
}

// Moves an array of counters, which leaves zeros. Element by element, since hands are short: whole
// arrays of this size would be moved by string instructions, which are slow to start.
template <class Counters>
void MoveCounters(Counters& from, Counters& to) {
  for (size_t k = 0; k < from.size(); ++k)
    to[k] = std::exchange(from[k], {});
}

void MoveCounts(size_t from, size_t to) {
  MoveCounters(Stats.RollCount[from], Stats.RollCount[to]);
  Stats.Hands[to] = std::exchange(Stats.Hands[from], {});
  MoveCounters(Stats.HandTable[from], Stats.HandTable[to]);
  MoveCounters(Stats.ComeTravel[from], Stats.ComeTravel[to]);
}

void CopyHandOf(int place) {
  const auto from = static_cast<size_t>(CurrentHand + place);
  const auto to = static_cast<size_t>(LastHand + place);
  MoveCounts(from, to);
  CopyBankrolls(from, to);
  BeginBankroll(CurrentHand + place, BankrollOf(place));
  NumberSet& now = Stats.HandBets[place];
  NumberSet& before = Stats.LastHandBets[place];
  before |= now;
  before.ForEach([&](int number) {
    Stats.Bets[to][number] = std::exchange(Stats.Bets[from][number], BetRecord{});
  });
  before = std::exchange(now, NumberSet());
}

}  // namespace

const RollCodeList& CodesOfRoll(int die1, int die2) {
  return At(At(RollCodesOfPair, die1), die2);
}

namespace {

void CountRoll(const RollCodeList& codes) {
  // No counter is above the rolls of all sessions.
  if (Stats.RollCount[AllSessions][0] == std::numeric_limits<int32_t>::max()) RaiseOverflow();
  if (Table.LastShooter != 0) {
    CountCodes<2>({0, static_cast<size_t>(Table.LastShooter)}, codes);
  } else {
    CountCodes<1>({0}, codes);
  }
  const auto countTime = [](int place) {
    for (const Scope scope : CountedScopes)
      ++Stats.Hands[scope + place].RollTotal;
  };
  countTime(0);
  ForEachPlayer(countTime);
  RaiseAll(&HandFigures::MostRolls, RollsInHand());
}

}  // namespace

void RecordRoll(int die1, int die2) {
  Trapped("RecordRoll", [&] { CountRoll(CodesOfRoll(die1, die2)); });
}

void RecordComeoutRoll() {
  CountInHand(Stats.HandComeouts, &HandFigures::MostComeoutRolls, HandComeoutRolls);
}

void RecordPass() {
  CountInHand(Stats.HandPassCount, &HandFigures::MostPasses, HandPasses);
}

void RecordMiss() {
  CountInHand(Stats.HandMissCount, &HandFigures::MostMisses, HandMisses);
}

namespace {

void CountBetResult(int place, int number, Money amount, Money result) {
  const Money stake = StakeOf(place, number, amount);
  const int64_t sessionRoll = RollsInSession();
  const int64_t gameRoll = Stats.RollCount[AllSessions][0];
  for (const Scope scope : CountedScopes) {
    BetRecord& record = Stats.Bets[place + scope][number];
    const int64_t roll = scope == AllSessions ? gameRoll : sessionRoll;
    Enter(record.Tendered, stake, roll);
    Enter(result > Money() ? record.Won : record.Lost, Abs(result), roll);
    if (InFamily(number, ComeFamily)) {
      const auto index = static_cast<size_t>(number - bet::Come4);
      Stats.ComeTravel[place + scope][index] += Table.ComeOriginal[place][index];
    }
  }
}

}  // namespace

void RecordBetResult(int place, int number, Money amount, Money result) {
  if (result == Money()) return;
  Stats.HandBets[place].Add(number);
  Trapped("RecordBetResult", [&] { CountBetResult(place, number, amount, result); });
}

void RecordBankrolls() {
  ForEachPlayer([](int place) {
    MoveHighAndLow(place);
    Trapped("RecordBankrolls", [place] { Table.BankrollSum[place] += BankrollOf(place); });
  });
}

void EndHand() {
  ForEachCreditedSlot([](size_t slot) { ++Stats.Hands[slot].HandCount; });
  CopyHandOf(0);
  ForEachPlayer(CopyHandOf);
  Stats.HandComeouts = Stats.HandPassCount = Stats.HandMissCount = 0;
}

void StartSessionStatistics() {
  const bool hadRolls = RollsInSession() > 0;
  for (size_t place = 0; place <= LastPlace; ++place) {
    if (hadRolls) {
      CopyCounts(CurrentSession + place, LastSession + place);
      CopyBankrolls(CurrentSession + place, LastSession + place);
      Stats.Bets[LastSession + place] = Stats.Bets[CurrentSession + place];
    }
    for (const Scope scope : {CurrentHand, CurrentSession}) {
      ClearCounts(scope + place);
      Stats.Bets[scope + place] = {};
    }
    Stats.HandBets[place].Clear();
    Table.BankrollSum[place] = Money();
  }
  Stats.HandComeouts = Stats.HandPassCount = Stats.HandMissCount = 0;
  Stats.LastCame = {};
  Stats.GapCount = {};
}

void ClearPlayerStats(int place) {
  for (int slot = place; slot < SlotCount; slot += SlotsInScope) {
    ClearCounts(static_cast<size_t>(slot));
    Stats.Bets[slot] = {};
  }
  Stats.HandBets[place].Clear();
  Stats.LastHandBets[place].Clear();
  Table.BankrollSum[place] = Money();
}

void ClearAllSessions() {
  for (size_t slot = AllSessions; slot < SlotCount; ++slot) {
    ClearCounts(slot);
    Stats.Bets[slot] = {};
  }
}

int32_t RollsSince(int code) {
  return RollsInSession() - Stats.LastCame[code];
}

}  // namespace tessarel
