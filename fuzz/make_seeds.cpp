// `make_seeds FOLDER` writes the inputs from which the fuzzers start: for each of them a folder of
// that name with files as the program itself writes them, cut to what a fuzzer gets to read. Run it
// again when a format has changed.

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <string>
#include <string_view>

#include "base/file_io.h"
#include "base/folders.h"
#include "dice/generators.h"
#include "dice/probability_balance.h"
#include "dice/probability_file.h"
#include "dice/roll_file_edit.h"
#include "engine/bets.h"
#include "files/game_file.h"
#include "files/hot_keys.h"
#include "files/sessions_log.h"
#include "fuzz_helpers.h"
#include "log/events_log.h"
#include "play/players.h"
#include "play/roll_driver.h"
#include "play/start_up.h"
#include "state/settings.h"
#include "state/table.h"

namespace tessarel {
namespace {

constexpr int Rolls = 12;
constexpr size_t LargestFile = 1 << 22;

std::string Corpus;

void Keep(const std::string& fuzzer, const std::string& name, std::string_view bytes) {
  std::filesystem::create_directories(Corpus + fuzzer);
  WriteBytes(Corpus + fuzzer + "/" + name, bytes);
}

std::string BytesOf(const std::string& name) {
  return ReadWholeFile(InFolder(Folders.AppFolder, name), LargestFile);
}

std::string RecordsOf(const std::string& file, int first, int last) {
  constexpr size_t Size = Record::Size;
  return file.substr(static_cast<size_t>(first - 1) * Size,
                     static_cast<size_t>(last - first + 1) * Size);
}

// A short session with every file of the program in use.
void PlaySession() {
  StartUp(FuzzFolder());
  Dice.SeedRequest = 1;
  SeedRNG(-1);
  SeatPlayer(1, "Ann", 1000);
  SelectAllEvents(true);
  EventsLog.LogOn = -1;
  OpenRollFile("rolls.rol");
  SetRecorder(RollFileRecord);
  for (int roll = 0; roll < Rolls; ++roll) {
    for (const int number : {bet::PassLine, bet::Field, bet::Place6, bet::Fire}) {
      Table.Amount = 5;
      ChangeBet(1, number);
    }
    MakeRoll();
  }
  CloseRollFile();
  WriteSession(1);
}

void KeepRolls() {
  Keep("roll_file_fuzz", "recorded", BytesOf("rolls.rol"));
  RollFile = {};
  OpenRollFile("rolls.rol");
  CopyRollsToTextFile({1, Rolls}, FuzzFolder() + "rolls.txt");
  CloseRollFile();
  Keep("roll_file_fuzz", "text", BytesOf("rolls.txt"));
}

void KeepLogs() {
  const std::string sessions = ReadWholeFile(SessionsLogNameOf(1), LargestFile);
  Keep("sessions_log_fuzz", "log", sessions);
  Keep("sessions_log_fuzz", "session", RecordsOf(sessions, 2, 2));
  // The first two bytes say how long the index is.
  const std::string log = BytesOf("Events Log.txt"), index = BytesOf("Events Log.ref");
  const std::string size = {static_cast<char>(index.size() & 0xFF),
                            static_cast<char>(index.size() >> 8)};
  Keep("events_log_fuzz", "indexed", size + index + log);
  Keep("events_log_fuzz", "no_index", std::string(2, '\0') + log);
}

// A stretch of the fuzzer's input: where it goes in three bytes, its length in one, and itself.
std::string Stretch(const std::string& game, size_t where, size_t length) {
  std::string stretch;
  for (const int shift : {0, 8, 16})
    stretch += static_cast<char>(where >> shift & 0xFF);
  return stretch + static_cast<char>(length) + game.substr(where, length);
}

void KeepGames() {
  SaveGame("game.tsg");
  const std::string game = BytesOf("game.tsg");
  const auto keepRecord = [&game](const std::string& name, size_t record) {
    Keep("game_file_fuzz", name, "\x01" + Stretch(game, (record - 1) * Record::Size, 252));
  };
  keepRecord("table", 11);
  keepRecord("options", 17);
  keepRecord("rules", 18);
  keepRecord("payoffs", 22);
  keepRecord("views", 426);
  keepRecord("place", 431);
  keepRecord("player", 436);
  keepRecord("bets", 437);
  // A first byte of 0 stands before a whole file.
  StartUp(FuzzFolder());
  SaveGame("fresh.tsg");
  Keep("game_file_fuzz", "fresh", std::string(1, '\0') + BytesOf("fresh.tsg"));
}

void KeepHotKeys() {
  HotKeys = {};
  AddHotKey('A', "sample1.bet", "Pass Line and odds");
  AddHotKey('Z', "sample2.bet", "");
  WriteHotKeys();
  const std::string file = BytesOf("HotKeys.dta");
  Keep("hot_keys_fuzz", "file", file);
  Keep("hot_keys_fuzz", "row", RecordsOf(file, 2, 2));
}

void KeepProbabilities() {
  BalanceMatrix(TotalColumn, 6, WholeShare / 5.0);
  SaveProbabilityFile("loaded.prb");
  const std::string file = BytesOf("loaded.prb");
  Keep("probability_fuzz", "file", file);
  Keep("probability_fuzz", "matrix", RecordsOf(file, 2, 5));
  Keep("probability_fuzz", "edits", std::string("\x01\x06\x30\x0F\x01\x10\x02\x0C\x40", 9));
}

// The older form of scripts is only read, so its records are put together here.
void KeepOlderScripts() {
  const auto record = [](std::string text, char kind) {
    text.resize(128, ' ');
    text += {kind, '\0'};
    text.resize(Record::Size, ' ');
    return text;
  };
  const std::string lines = record("if comeout then", 1) + record("bet 10 on passline", 2) +
                            record("endif", 13) + record("set cs 1 to 5", 1) + record("more", 0);
  Keep("older_script_fuzz", "older", record("Tessarel AutoBets, Data Format 3.9", 0) + lines);
  Keep("older_script_fuzz", "old", record("Tessarel AutoBets, Data Format 5.0", 0) + lines);
}

void KeepAll() {
  PlaySession();
  KeepRolls();
  KeepLogs();
  KeepGames();
  KeepHotKeys();
  KeepProbabilities();
  KeepOlderScripts();
}

}  // namespace
}  // namespace tessarel

int main(int count, char** arguments) {
  if (count != 2) {
    std::fputs("Usage: make_seeds FOLDER\n", stderr);
    return 2;
  }
  tessarel::Corpus = tessarel::AsFolder(tessarel::FullName(arguments[1]));
  tessarel::KeepAll();
  return 0;
}
