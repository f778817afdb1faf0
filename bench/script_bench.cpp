// Rolls a second under the Hyper-Drive with the sample systems in charge, and how fast a long
// script is checked.
#include <benchmark/benchmark.h>

#include <string>
#include <vector>

#include "autobet/checker.h"
#include "autobet/interpreter.h"
#include "autobet/script_files.h"
#include "base/front_end.h"
#include "dice/generators.h"
#include "play/players.h"
#include "play/roll_driver.h"
#include "play/start_up.h"
#include "state/settings.h"
#include "state/table.h"

namespace tessarel {
namespace {

int64_t RollsLeft = 0;

void CountRoll() {
  if (--RollsLeft <= 0) Table.HyperDriveOn = false;
}

void SetTable(int sample, int players) {
  StartUp("/tmp");
  SelectRNG(1);
  Dice.SeedRequest = 1;
  SeedRNG(-1);
  Settings.BetNeededToShoot = 0;
  for (int place = 1; place <= players; ++place) {
    SeatPlayer(place, "Player " + std::to_string(place), 1'000'000);
    Table.AllowNegBankroll[place] = true;
    ReadScriptFile(place, TESSAREL_SAMPLES "/sample" + std::to_string(sample) + ".bet");
    // A system that stops when it has won enough would end the measurement.
    std::erase_if(Scripts.Places[place].lines, [](const std::string& line) {
      return line.find("stop autoroll/hyperdrive") != std::string::npos;
    });
    SetScriptActive(place, true);
  }
  InitializeScripts();
}

void Roll(benchmark::State& state) {
  FrontEnd.RunPendingEvents = CountRoll;
  constexpr int64_t RollsInBatch = 20'000;
  for (auto _ : state) {
    Table.HyperDriveOn = true;
    RollsLeft = RollsInBatch;
    MakeRoll();
  }
  FrontEnd = {};
  state.SetItemsProcessed(state.iterations() * RollsInBatch);
}

void Sample(benchmark::State& state) {
  SetTable(static_cast<int>(state.range(0)), 1);
  Roll(state);
}
BENCHMARK(Sample)->DenseRange(1, 9);

void EightScripts(benchmark::State& state) {
  SetTable(static_cast<int>(state.range(0)), LastPlace);
  Roll(state);
}
BENCHMARK(EightScripts)->DenseRange(1, 9);

void CheckLongScript(benchmark::State& state) {
  StartUp("/tmp");
  SeatPlayer(1, "Ann", 1000);
  for (int k = 0; k < 1000; ++k) {
    for (const char* line : {"if next roll is a comeout roll and passline does not exist then",
                             "bet 10 + cs1 * 5% of bankroll on passline, place6",
                             "elseif count(> 0, come bets) < 2 then", "bet 10 on come", "endif"})
      Scripts.Places[1].lines.emplace_back(line);
  }
  for (auto _ : state) {
    CompiledScript script;
    if (CheckScript(1, script)) state.SkipWithError("the script is refused");
  }
}
BENCHMARK(CheckLongScript)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tessarel
