// What the statistics of a roll cost with one player at the table and no bets: the roll and its
// codes, the bankrolls, the counters of come-outs, passes and misses, and the end of a hand as
// often as the dice bring one.
#include <benchmark/benchmark.h>

#include <vector>

#include "dice/generators.h"
#include "play/players.h"
#include "play/start_up.h"
#include "state/books.h"
#include "state/table.h"

namespace tessarel {
namespace {

// Dice made beforehand, so that their making is not measured.
std::vector<Faces> DiceOf(size_t rolls) {
  SelectRNG(1);
  Dice.SeedRequest = 1;
  SeedRNG(-1);
  std::vector<Faces> dice(rolls);
  for (Faces& faces : dice)
    faces = MakeDice(0);
  return dice;
}

void CountComeOut(int total) {
  if (total == 7 || total == 11) {
    RecordPass();
  } else if (total < 4 || total == 12) {
    RecordMiss();
  } else {
    Table.Point = total;
  }
  RecordComeoutRoll();
}

void CountRoll(Faces faces) {
  const int total = Table.DiceTotal = faces.die1 + faces.die2;
  const int point = Table.Point;
  RecordRoll(faces.die1, faces.die2);
  if (point == 0) {
    CountComeOut(total);
  } else if (total == point || total == 7) {
    Table.Point = 0;
    total == point ? RecordPass() : RecordMiss();
  }
  RecordBankrolls();
  if (point != 0 && total == 7) EndHand();
}

void StatisticsOfARoll(benchmark::State& state) {
  constexpr size_t RollsInBatch = 100'000;
  StartUp("/tmp");
  SeatPlayer(1, "Player 1", 1'000);
  const std::vector<Faces> dice = DiceOf(RollsInBatch);
  for (auto _ : state) {
    ClearAllSessions();
    StartSessionStatistics();
    for (const Faces faces : dice)
      CountRoll(faces);
  }
  state.SetItemsProcessed(state.iterations() * static_cast<int64_t>(RollsInBatch));
}
BENCHMARK(StatisticsOfARoll)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tessarel
