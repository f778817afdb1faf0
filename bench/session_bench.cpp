// What the sessions view asks of a log of 100,000 sessions: reading it, figuring its statistics and
// cutting it into bars; and what the end of one more session costs behind them.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "files/sessions_commands.h"
#include "files/sessions_log.h"
#include "play/players.h"
#include "play/start_up.h"
#include "state/books.h"
#include "state/table.h"

namespace tessarel {
namespace {

constexpr int Sessions = 100'000;

// A player at place 1 with a session under way and a log of sessions with results all different.
class SessionsBench : public benchmark::Fixture {
 public:
  void SetUp(benchmark::State&) override {
    folder_ = std::filesystem::temp_directory_path() / "tessarel-session-bench";
    std::filesystem::create_directories(folder_);
    StartUp(folder_.string());
    SeatPlayer(1, "Ann", 1'000);
    Stats.RollCount[CurrentSession][0] = 300;
    const std::string& log = SessionsLogNameOf(1);
    ClearSessionsLog(log);
    WriteSession(1);
    Record record = SessionRecord(1);
    std::ofstream file(log, std::ios::binary | std::ios::app);
    for (int k = 1; k < Sessions; ++k) {
      record.PutAmount(SessionNet, Money(k * 7919 % Sessions - Sessions / 2));
      file.write(reinterpret_cast<const char*>(record.Bytes.data()), Record::Size);
    }
    file.close();
    SetCount(Sessions);
  }
  void TearDown(benchmark::State&) override {
    StartUp("/tmp");
    std::filesystem::remove_all(folder_);
  }

  static void SetCount(int32_t count) {
    std::fstream file(SessionsLogNameOf(1), std::ios::binary | std::ios::in | std::ios::out);
    file.seekp(252);
    for (int k = 0; k < 4; ++k)
      file.put(static_cast<char>(count >> (8 * k)));
  }

 private:
  std::filesystem::path folder_;
};

BENCHMARK_F(SessionsBench, StatisticsOf100000Sessions)(benchmark::State& state) {
  for (auto _ : state) {
    const SessionStatistics statistics = SessionStatisticsOf(1);
    benchmark::DoNotOptimize(BarsOfSessions(statistics, FineBars));
  }
  state.SetItemsProcessed(state.iterations() * Sessions);
}

BENCHMARK_F(SessionsBench, EndOfASession)(benchmark::State& state) {
  for (auto _ : state)
    WriteSession(1);
  state.SetItemsProcessed(state.iterations());
}

}  // namespace
}  // namespace tessarel
