// Sessions logs as anybody may make them: whatever the bytes are, their rows and statistics are
// figured, sessions are deleted and logs merged and continued, at worst with a fault; the counts
// agree with what was done and no file that is no log changes.

#include <cstdint>
#include <filesystem>
#include <string>

#include "base/file_io.h"
#include "base/folders.h"
#include "files/sessions_commands.h"
#include "files/sessions_log.h"
#include "fuzz_helpers.h"
#include "state/books.h"
#include "state/table.h"

namespace tessarel {
namespace {

constexpr size_t LargestFile = 1 << 24;

void CheckBars(const SessionStatistics& statistics) {
  for (const BarWidth width : {FineBars, MediumBars, WideBars, ExtraWideBars}) {
    const SessionHistogram bars = BarsOfSessions(statistics, width);
    int64_t sum = 0;
    for (const int64_t count : bars.Counts)
      sum += count;
    Require(sum == statistics.Count() && bars.Counts.size() <= 101);
  }
}

void CheckShares(const SessionStatistics& statistics) {
  const Money point = SessionsView.BreakPoint;
  Require(SessionsBelow(statistics, point).Count + SessionsAtOrAbove(statistics, point).Count ==
          statistics.Count());
  Require(SessionsBetween(statistics, statistics.Highest, statistics.Lowest).Count ==
          statistics.Count());
  Require(SessionsWithin(statistics, 1).Count <= statistics.Count());
}

void ReadThrough(int32_t sessions) {
  for (int stat = 0; stat <= CountOfSessions; ++stat) {
    SessionsView.Stat = stat;
    const SessionStatistics statistics = SessionStatisticsOf(1);
    Require(SessionsView.Include != include::All || statistics.Count() == sessions + 1);
    CheckBars(statistics);
    CheckShares(statistics);
    SessionStatLines(statistics);
    for (const SessionRow& row : statistics.Rows)
      SessionRowTexts(row, stat);
  }
}

void Edit(const std::string& name, int32_t sessions, uint8_t choice) {
  WriteSession(1);
  Require(CountSessions(name) == ++sessions);
  const int32_t first = 1 + choice % sessions, last = first + (sessions - first) / 2;
  const auto size = std::filesystem::file_size(name);
  DeleteSessions(name, first, last);
  sessions -= last - first + 1;
  Require(CountSessions(name) == sessions && std::filesystem::file_size(name) == size);
  const std::string other = name + ".2";
  ClearSessionsLog(other);
  AppendSessions(other, name);
  AppendSessions(other, name);
  Require(CountSessions(other) == 2 * sessions);
  Require(ReadSessions(other).size() == 2 * static_cast<size_t>(sessions));
  DeleteFileIfPresent(other);
}

void Run(const std::string& bytes, int32_t view) {
  const std::string name = FuzzFolder() + "log.slg";
  Table = {};
  SetPlayerName(1, "Ann");
  Table.SessionLogName[1] = name;
  Stats.RollCount[CurrentSession][0] = 1;
  SessionsView = {};
  SessionsView.Include = SessionsView.Display = SessionsView.Width = view;
  SessionsView.BreakPoint = Money::FromRaw(int64_t{view} * INT32_MAX);
  RepairSessionsView();
  WriteBytes(name, bytes);
  const int32_t sessions = CountSessions(name);
  Require(sessions >= 0 && static_cast<size_t>(sessions) <= bytes.size() / Record::Size);
  ReadThrough(sessions);
  if (IsSessionsLog(name)) {
    Edit(name, sessions, static_cast<uint8_t>(view));
  } else {
    MayFail([] { WriteSession(1); });
    MayFail([&name] { ClearSessionsLog(name); });
    MayFail([&name] { AppendSessions(name, name); });
    DeleteSessionsLog(1);
    Require(ReadWholeFile(name, LargestFile) == bytes);
  }
}

}  // namespace
}  // namespace tessarel

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace tessarel;
  const std::string bytes(InputOf(data, size));
  const int32_t view = size == 0 ? 15 : data[0];
  Run(bytes, view);
  // Behind a true header the bytes get to be the count and the sessions.
  std::string file = "Tessarel Sessions Log, Data Format 5.0";
  file.resize(252, ' ');
  Run(file + bytes, view);
  // And with a count that takes them all.
  file += std::string("\xFF\xFF\xFF\x7F", 4);
  Run(file + bytes, view);
  return 0;
}
