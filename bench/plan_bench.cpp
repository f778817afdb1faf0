// What it costs to know what a click would do: a plan of every bet of the layout at a full table,
// which is what the pointer asks for on its way over the felt.
#include <benchmark/benchmark.h>

#include <memory>

#include "engine/bets.h"
#include "play/players.h"
#include "play/roll_driver.h"
#include "play/start_up.h"
#include "state/settings.h"
#include "state/table.h"

namespace tessarel {
namespace {

void SetUpTable(bool adjusted) {
  StartUp("/tmp");
  for (int place = 1; place <= LastPlace; ++place)
    SeatPlayer(place, "Player " + std::to_string(place), 500);
  for (const int number : {bet::PassLine, bet::DontPass})
    ChangeBet({1, number, 10}, Telling::Silent);
  MakeRoll(Faces{4, 2});
  for (const int number : {bet::Place4, bet::Buy10, bet::Lay5, bet::Field, bet::PassLineOdds})
    ChangeBet({1, number, 20}, Telling::Silent);
  Table.AutoAdjustBetAmounts[1] = adjusted;
}

// One item is the plan of one bet.
void HoverPlan(benchmark::State& state) {
  SetUpTable(state.range(0) != 0);
  for (auto _ : state) {
    for (int number = 1; number <= LastBet; ++number) {
      const Plan plan = PlanChange({1, number, 5});
      benchmark::DoNotOptimize(plan.change);
    }
  }
  state.SetItemsProcessed(state.iterations() * LastBet);
}
BENCHMARK(HoverPlan)->Arg(0)->Arg(1);

}  // namespace
}  // namespace tessarel
