// Saving and opening the game of a full rail, disk included: either has to end before anybody
// notices.
#include <benchmark/benchmark.h>
#include <stdlib.h>

#include <filesystem>
#include <string>

#include "dice/generators.h"
#include "engine/bets.h"
#include "files/game_file.h"
#include "play/players.h"
#include "play/roll_driver.h"
#include "play/start_up.h"

namespace tessarel {
namespace {

constexpr const char* Name = "bench.tsg";

// Eight players with bets in the middle of a session, in a folder of their own.
class FullRail {
 public:
  FullRail() {
    std::string folder = std::filesystem::temp_directory_path() / "tessarel-XXXXXX";
    folder_ = mkdtemp(folder.data());
    StartUp(folder_);
    Dice.SeedRequest = 1;
    SeedRNG(-1);
    for (int place = 1; place <= LastPlace; ++place)
      SeatPlayer(place, "Player " + std::to_string(place), 9'000);
    for (int roll = 0; roll < 2'000; ++roll) {
      ForEachPlayer([roll](int place) {
        ChangeBet({place, bet::PassLine, 10});
        ChangeBet({place, 1 + roll % LastBet, 10});
      });
      MakeRoll();
    }
  }
  ~FullRail() {
    StartUp(folder_);
    std::filesystem::remove_all(folder_);
  }
  FullRail(const FullRail&) = delete;
  FullRail& operator=(const FullRail&) = delete;

 private:
  std::string folder_;
};

void SaveFullRail(benchmark::State& state) {
  const FullRail rail;
  for (auto _ : state)
    SaveGame(Name);
}
BENCHMARK(SaveFullRail)->Unit(benchmark::kMillisecond);

void OpenFullRail(benchmark::State& state) {
  const FullRail rail;
  SaveGame(Name);
  for (auto _ : state)
    OpenGame(Name);
}
BENCHMARK(OpenFullRail)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tessarel
