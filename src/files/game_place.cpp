// The block of a place in a game file: its player with name, files and options, the bets with all
// that is kept for them, check stacks, the bankroll's course and the statistics of bets.
#include <array>

#include "engine/bet_handling.h"
#include "files/game_blocks.h"
#include "state/books.h"
#include "state/scripts.h"
#include "state/settings.h"

namespace tessarel {

namespace {

// What is kept for each of the statistics' bets runs to this number.
constexpr int LastCountedBet = 100;
constexpr int LastContract = 99;

// The lists of fields of a place. They are checked for the first one.

constexpr int PlaceSlot = 0, AtmNetSlot = 1, ScriptActiveSlot = 2;
constexpr auto PlaceFields(int place) {
  return std::to_array<MoneyField>({
      {3, &Scripts.ScriptActiveAfterRoll[place]},
      {6, &Table.VisibleStack[place][1], 4},
  });
}
static_assert(TakeEachSlotOnce(PlaceFields(1),
                               {.Single = {PlaceSlot, AtmNetSlot, ScriptActiveSlot},
                                .Unused = {4, 5}}));

constexpr int AdjustsSlot = 6;
constexpr auto PlayerFields(int place) {
  return std::to_array<MoneyField>({
      {0, &Table.AllowNegBankroll[place]},
      {1, &Table.BankrollInitType[place]},
      {2, &Table.BankrollInitAmount[place]},
      {3, &Settings.AtmAmount},
      {4, &Table.BankrollSum[place]},
      {5, &Table.InvestedBankroll[place]},
      {7, &Table.AutoTakeFullOdds[place]},
      {8, &Table.AutoLayFullOdds[place]},
      {9, &Table.AutoDownPlaceBets[place]},
      {10, &Table.DeclinesDice[place]},
      {11, &Table.HandleWinningBets[place]},
      {12, &Table.HandleLosingBets[place]},
      {13, &Table.LayBias[place]},
      {14, &Table.PlaceBias[place]},
      {15, &Table.DoBias[place]},
      {16, &Table.DontBias[place]},
  });
}
static_assert(TakeEachSlotOnce(PlayerFields(1), {.Single = {AdjustsSlot}}));

constexpr auto VigFields(int place) {
  return std::to_array<MoneyField>({
      {1, Table.LayVig[place].data(), FamilySize},
      {7, Table.BuyVig[place].data(), FamilySize},
  });
}
static_assert(TakeEachSlotOnce(VigFields(1)));

constexpr auto HandlingFields(int place) {
  auto& operators = Table.HandleOperator[place];
  return std::to_array<MoneyField>({
      {0, &operators[PromptWinModify]},
      {1, &operators[PromptLossModify]},
      {2, &operators[AutoWinModify]},
      {3, &operators[AutoLossModify]},
      {4, &Table.HandleAmount[place][PromptWinModify], 8},
      {12, &Table.HandleUnits[place][PromptWinModify], 8},
  });
}
static_assert(TakeEachSlotOnce(HandlingFields(1)));

// Returns false for a block of a place that does not exist.
bool PlaceNumberRecord(GameRecords& records, FilesInUse& files, int32_t& place) {
  records.Next();
  records.Amount(PlaceSlot, place);
  if (place < 1 || place > LastPlace) return false;
  Money atmNet = records.Reading()
                     ? Money()
                     : Table.InvestedBankroll[place] - Table.BankrollBegin[place + CurrentSession];
  records.Amount(AtmNetSlot, atmNet);
  records.Amount(ScriptActiveSlot, At(files.ScriptActive, place));
  records.MoneysHere(PlaceFields(place));
  return true;
}

void NameRecords(GameRecords& records, FilesInUse& files, int place) {
  HeldFile& script = At(files.Script, place);
  records.Text(Table.PlayerName[place]);
  records.TextAndDate(script.Name, script.Date);
  records.Text(At(files.ScriptOutput, place));
  records.Text(At(files.SessionsLog, place));
}

void PlayerRecord(GameRecords& records, int place) {
  records.Moneys(PlayerFields(place));
  // The one flag that is on above zero.
  int32_t adjusts = Table.AutoAdjustBetAmounts[place] ? 1 : 0;
  records.Amount(AdjustsSlot, adjusts);
  Table.AutoAdjustBetAmounts[place] = adjusts > 0;
}

// An amount for each number, with another one of the place in the slot of number 0.
void AmountRecords(GameRecords& records, PerNumber<Money>& amounts, Money& first) {
  SlotRun run(records, Record::Moneys);
  run.Amount(first);
  for (int number = 1; number <= LastNumber; ++number)
    run.Amount(At(amounts, number));
}

void StreakRecords(GameRecords& records, int place) {
  constexpr int SlotsUsed = 32;
  SlotRun run(records, SlotsUsed);
  for (auto* plane : {&Table.BetStreak, &Table.BetStreakBefore}) {
    for (int number = 1; number <= LastCountedBet; ++number)
      run.Word(At(At(*plane, place), number));
  }
}

void WorkingRecords(GameRecords& records, int place) {
  for (auto* table : {&Table.BetWorkingDefault, &Table.BetWorking}) {
    SlotRun run(records, Record::Shorts);
    for (int32_t& state : At(*table, place))
      run.Short(state);
  }
}

void BetRecords(GameRecords& records, int place) {
  AmountRecords(records, Table.BetAmount[place], Table.BetAmount[place][0]);
  AmountRecords(records, Table.BetAmountBefore[place], Table.BankrollAtRoll[place]);
  AmountRecords(records, Table.BetAmountAfterRoll[place], Table.BankrollAfterRoll[place]);
  SlotRun contracts(records, Record::Moneys);
  for (int number = 1; number <= LastContract; ++number)
    contracts.Amount(Table.BetContract[place][number]);
  records.Moneys(VigFields(place));
  StreakRecords(records, place);
  WorkingRecords(records, place);
}

void StackNameRecords(GameRecords& records, int place) {
  for (std::string& name : Table.CheckStackName[place])
    records.LongText(name);
}

void GraphRecords(GameRecords& records, int place) {
  SlotRun run(records, Record::Moneys);
  for (auto& bankrolls : Table.GraphBankroll)
    run.Amount(At(bankrolls, place));
}

void MeasureRecords(GameRecords& records, int place, BetMeasures BetRecord::*kind) {
  SlotRun run(records, Record::Moneys);
  for (int slot = place; slot < SlotCount; slot += SlotsInScope) {
    for (int number = 1; number <= LastCountedBet; ++number) {
      BetMeasures& measures = Stats.Bets[slot][number].*kind;
      run.Amount(measures.Count);
      for (Money* measure : {&measures.Sum, &measures.High, &measures.Low})
        run.Amount(*measure);
      run.Amount(measures.LastRoll);
      run.Amount(measures.Last);
    }
  }
}

void ComeRecords(GameRecords& records, int place) {
  SlotRun travel(records, Record::Moneys);
  for (int slot = place; slot < SlotCount; slot += SlotsInScope) {
    for (Money& amount : Stats.ComeTravel[slot])
      travel.Amount(amount);
  }
  records.Moneys(std::array{MoneyField{1, Table.ComeOriginal[place].data(), FamilySize}});
}

// By slot, so every place has the whole of them: the last one read stands.
void BankrollRecords(GameRecords& records) {
  for (PerSlot<Money>* bankrolls :
       {&Table.BankrollBegin, &Table.Bankroll, &Table.BankrollHigh, &Table.BankrollLow}) {
    SlotRun run(records, Record::Moneys);
    for (Money& bankroll : *bankrolls)
      run.Amount(bankroll);
  }
}

// Returns false for a block of a place that does not exist.
bool PlaceBlock(GameRecords& records, FilesInUse& files, int32_t place) {
  if (!PlaceNumberRecord(records, files, place)) return false;
  NameRecords(records, files, place);
  PlayerRecord(records, place);
  BetRecords(records, place);
  StackNameRecords(records, place);
  GraphRecords(records, place);
  for (BetMeasures BetRecord::*kind : {&BetRecord::Tendered, &BetRecord::Won, &BetRecord::Lost})
    MeasureRecords(records, place, kind);
  ComeRecords(records, place);
  BankrollRecords(records);
  records.Moneys(HandlingFields(place));
  return true;
}

}  // namespace

void PlaceRecords(GameRecords& records, FilesInUse& files, const GameCounts& counts) {
  if (!records.Reading()) {
    ForEachPlayer([&](int place) { PlaceBlock(records, files, place); });
    return;
  }
  for (int block = 0; block < counts.Players; ++block) {
    if (!PlaceBlock(records, files, 0)) return;
  }
}

}  // namespace tessarel
