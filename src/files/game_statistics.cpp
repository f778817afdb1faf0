// The records of the statistics store in a game file. What belongs to single bets stands in the
// blocks of the places.
#include <algorithm>

#include "files/game_blocks.h"
#include "state/books.h"

namespace tessarel {

namespace {

void RollCountRecords(GameRecords& records) {
  SlotRun run(records, Record::Words);
  for (auto& counts : Stats.RollCount) {
    for (int32_t& count : counts)
      run.Word(count);
  }
}

// The store keeps when a code last came; the file has how many rolls ago that was.
void RollsSinceRecords(GameRecords& records) {
  constexpr int SlotsUsed = 32;
  SlotRun run(records, SlotsUsed);
  for (int code = 0; code < RollCodes; ++code) {
    int32_t since = RollsSince(code);
    run.Word(since);
    if (!records.Reading()) continue;
    const int64_t last = int64_t{RollsInSession()} - since;
    Stats.LastCame[code] =
        static_cast<int32_t>(std::clamp<int64_t>(last, 0, std::max(RollsInSession(), 0)));
  }
}

void GapRecords(GameRecords& records) {
  SlotRun run(records, Record::Words);
  for (int code = 1; code < RollCodes; ++code) {
    for (int32_t& count : Stats.GapCount[code])
      run.Word(count);
  }
}

void HandTableRecords(GameRecords& records) {
  SlotRun run(records, Record::Words);
  for (auto& table : Stats.HandTable) {
    for (int total = 2; total <= 12; ++total) {
      for (int row = HandComeoutRolls; row <= HandMisses; ++row)
        run.Word(At(At(table, total), row));
    }
  }
}

void HandFigureRecords(GameRecords& records) {
  for (int32_t HandFigures::*figure :
       {&HandFigures::HandCount, &HandFigures::RollTotal, &HandFigures::MostRolls,
        &HandFigures::MostComeoutRolls, &HandFigures::MostPasses, &HandFigures::MostMisses}) {
    SlotRun run(records, Record::Words);
    for (HandFigures& hand : Stats.Hands)
      run.Word(hand.*figure);
  }
}

}  // namespace

void StatisticsRecords(GameRecords& records) {
  RollCountRecords(records);
  RollsSinceRecords(records);
  GapRecords(records);
  HandTableRecords(records);
  HandFigureRecords(records);
}

}  // namespace tessarel
