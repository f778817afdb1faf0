// Rolls a second under the Hyper-Drive. Bets are asked for again before every roll, as a run from
// the shell does.
#include <benchmark/benchmark.h>

#include <bit>
#include <vector>

#include "base/front_end.h"
#include "dice/generators.h"
#include "engine/bets.h"
#include "engine/seats.h"
#include "play/players.h"
#include "play/roll_driver.h"
#include "play/start_up.h"
#include "state/books.h"
#include "state/settings.h"
#include "state/table.h"

namespace tessarel {
namespace {

struct Wager {
  int place, number;
  Money amount;
};

struct BenchState {
  std::vector<Wager> wagers;
  int64_t rollsLeft = 0;
};

BenchState Bench;

void Rebet() {
  if (--Bench.rollsLeft <= 0) {
    Table.HyperDriveOn = false;
    return;
  }
  for (const Wager& wager : Bench.wagers) {
    const Money standing = Bet(wager.place, wager.number);
    if (standing == wager.amount) continue;
    PlaceBet({wager.place, wager.number, wager.amount - standing}, Telling::Silent);
  }
}

void SetTable(int players, std::vector<Wager> wagers) {
  StartUp("/tmp");
  SelectRNG(1);
  Dice.SeedRequest = 1;
  SeedRNG(-1);
  Settings.BetNeededToShoot = 0;
  for (int place = 1; place <= players; ++place) {
    SeatPlayer(place, "Player " + std::to_string(place), 1'000'000);
    Table.AllowNegBankroll[place] = true;
    Table.AutoTakeFullOdds[place] = Table.AutoLayFullOdds[place] = true;
  }
  Bench.wagers = std::move(wagers);
}

void RunRolls(benchmark::State& state) {
  constexpr int64_t RollsInBatch = 100'000;
  FrontEnd.RunPendingEvents = Rebet;
  for (auto _ : state) {
    Bench.rollsLeft = RollsInBatch + 1;
    Table.HyperDriveOn = true;
    Rebet();
    MakeRoll();
    ForEachPlayer([](int place) { SetBankroll(place, 1'000'000); });
  }
  FrontEnd.RunPendingEvents = [] {};
  Table.HyperDriveOn = false;
  state.SetItemsProcessed(state.iterations() * RollsInBatch);
}

void NoBets(benchmark::State& state) {
  SetTable(0, {});
  RunRolls(state);
}
BENCHMARK(NoBets)->Unit(benchmark::kMillisecond);

void OnePlayerNoBets(benchmark::State& state) {
  SetTable(1, {});
  RunRolls(state);
}
BENCHMARK(OnePlayerNoBets)->Unit(benchmark::kMillisecond);

void PassLineWithFullOdds(benchmark::State& state) {
  SetTable(1, {{1, bet::PassLine, 10}});
  RunRolls(state);
}
BENCHMARK(PassLineWithFullOdds)->Unit(benchmark::kMillisecond);

void FortyBets(benchmark::State& state) {
  std::vector<Wager> wagers;
  for (int number = bet::Place4; number <= bet::Hop16; ++number) {
    wagers.push_back({1, number, 10});
  }
  SetTable(1, wagers);
  RunRolls(state);
}
BENCHMARK(FortyBets)->Unit(benchmark::kMillisecond);

void EightPlayers(benchmark::State& state) {
  std::vector<Wager> wagers;
  for (int place = 1; place <= LastPlace; ++place) {
    wagers.push_back({place, place % 2 == 0 ? bet::PassLine : bet::DontPass, 10});
    wagers.push_back({place, bet::Place6, 12});
    wagers.push_back({place, bet::Come, 5});
  }
  SetTable(LastPlace, wagers);
  RunRolls(state);
}
BENCHMARK(EightPlayers)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tessarel

BENCHMARK_MAIN();
