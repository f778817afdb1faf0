#include <chrono>
#include <cstdio>
#include <optional>
#include <string>
#include <vector>

#include "app/session.h"
#include "app/sim/commands.h"
#include "app/sim/console.h"
#include "app/sim/failure.h"
#include "app/sim/result.h"
#include "base/file_io.h"
#include "base/front_end.h"
#include "base/number_format.h"
#include "base/single_byte_text.h"
#include "config/folders.h"
#include "config/language.h"
#include "dice/generators.h"
#include "dice/roll_file.h"
#include "engine/bet_limits.h"
#include "engine/bets.h"
#include "engine/players.h"
#include "engine/roll_driver.h"
#include "engine/table.h"
#include "files/events_log.h"
#include "stats/store.h"

namespace tessarel::sim {

namespace {

constexpr int64_t DefaultRolls = 100'000;

// The session that is being played: what to bet before each roll and when to end.
struct SessionInPlay {
  std::vector<BetArgument> bets;
  std::optional<int64_t> rolls, hands;
  ProgressBar* progress = nullptr;

  bool Over() const {
    return (rolls && RollsInSession() >= *rolls) ||
           (hands && Stats.Hands[CurrentSession].HandCount >= *hands) || Interrupted();
  }
};

SessionInPlay Session;

// --- Setting up --------------------------------------------------------------------------------

void CheckName(const std::string& name) {
  if (name.empty()) throw Failure(CannotBeDone, "A player needs a name.");
  if (name.find_first_not_of("0123456789") == std::string::npos) {
    throw Failure(CannotBeDone, std::string(GetText(7)));
  }
  for (int place = 1; place <= LastPlace; ++place) {
    if (LowerCase(At(Table.PlayerName, place)) == LowerCase(name)) {
      throw Failure(CannotBeDone, std::string(GetText(6)) + name + ".");
    }
  }
}

int OpenPlace(int wanted) {
  if (wanted != 0 && IsTaken(Table, wanted)) {
    throw Failure(CannotBeDone, "Place " + std::to_string(wanted) + " is taken by " +
                                    At(Table.PlayerName, wanted) + ".");
  }
  for (int place = wanted != 0 ? wanted : 1; place <= LastPlace; ++place) {
    if (!IsTaken(Table, place)) return place;
  }
  throw Failure(CannotBeDone, "The table has only eight places.");
}

void SeatPlayers(const RunOptions& options) {
  std::vector<PlayerArgument> players = options.players;
  if (players.empty() && !options.bets.empty()) players.push_back({"Player One", 1, 1000});
  for (const PlayerArgument& player : players) {
    CheckName(player.name);
    SeatPlayer(OpenPlace(player.place), player.name, player.bankroll);
  }
}

void CheckBets(std::vector<BetArgument>& bets) {
  for (BetArgument& bet : bets) {
    if (bet.place == 0) bet.place = std::countr_zero(Table.TakenPlaces);
    const std::string name(At(BetName, bet.number));
    if (!IsTaken(Table, bet.place)) {
      throw Failure(CannotBeDone, "There is no player at place " + std::to_string(bet.place) +
                                      " to bet on " + name + ".");
    }
    if (!OnLayout(bet.number)) {
      throw Failure(CannotBeDone, "The settings take " + name + " off the layout.");
    }
  }
}

void ChooseDice(const RunOptions& options) {
  if (options.generator < 1 || SelectRNG(options.generator) != Selected) {
    throw Failure(CannotBeDone, "Reference to RNG out of limits: generators are 1 to 8, not " +
                                    std::to_string(options.generator) + ".");
  }
  if (options.seed) {
    SelectAndSeed(options.generator, *options.seed);
  } else {
    Dice.SeedRequest = Money();
    SeedRNG(-1);
  }
}

void PlayFrom(const std::string& name) {
  if (!FileExists(InFolder(Folders.AppFolder, name))) {
    throw Failure(CannotBeDone, "The dice roll file \"" + name + "\" does not exist.");
  }
  OpenRollFile(name);
  RollFile.RollFileMode = RollFilePlay;
}

// Recording goes to a file beside the named one, which takes its place when the run is done.
class Recording {
 public:
  explicit Recording(const std::string& name) {
    if (name.empty()) return;
    target_ = InFolder(Folders.AppFolder, name);
    part_ = target_ + ".part";
    DeleteFileIfPresent(part_);
    OpenRollFile(part_);
    RollFile.RollFileMode = RollFileRecord;
  }
  ~Recording() {
    if (part_.empty()) return;
    CloseRollFile();
    std::remove(part_.c_str());
  }
  Recording(const Recording&) = delete;
  Recording& operator=(const Recording&) = delete;

  void Keep() {
    if (part_.empty()) return;
    CloseRollFile();
    if (std::rename(part_.c_str(), target_.c_str()) != 0) {
      throw Failure(CannotBeDone, "The recording \"" + target_ + "\" cannot be written.");
    }
    part_.clear();
  }

 private:
  std::string target_, part_;
};

void OpenEventsLog(const std::string& name) {
  if (name.empty()) return;
  EventsLog.EventLogName = InFolder(Folders.AppFolder, name);
  if (EventsLogExists()) {
    RebuildEventsIndex();
  } else {
    DeleteFileIfPresent(EventsIndexName());
  }
  SelectAllEvents(true);
  EventsLog.LogOn = -1;
}

// --- Playing -----------------------------------------------------------------------------------

// Brings each fixed wager to its amount if the rules allow it now.
void PlaceFixedBets() {
  const SilentBets silent;
  for (const BetArgument& bet : Session.bets) {
    const Money standing = Bet(bet.place, bet.number);
    if (standing == bet.amount) continue;
    Table.Amount = bet.amount - standing;
    PlaceBet(bet.place, bet.number);
  }
}

// Between two rolls of the Hyper-Drive.
void BetweenRolls() {
  Session.progress->Show(Session.hands ? Stats.Hands[CurrentSession].HandCount : RollsInSession());
  if (Session.Over()) {
    Table.HyperDriveOn = 0;
  } else {
    PlaceFixedBets();
  }
}

void PlayHyperDrive() {
  Table.HyperDriveOn = -1;
  PlaceFixedBets();
  FrontEnd.RunPendingEvents = BetweenRolls;
  MakeRoll();
  FrontEnd.RunPendingEvents = [] {};
  Table.HyperDriveOn = 0;
}

void PlayRollByRoll() {
  while (!Session.Over()) {
    PlaceFixedBets();
    MakeRoll();
    Session.progress->Show(RollsInSession());
    if (!Table.LastStopReason.empty() || Table.BankrollStopPlace != 0) return;
  }
}

RunFacts Play(const RunOptions& options) {
  Session = {options.bets, options.rolls, options.hands};
  if (!options.rolls && !options.hands && options.dice.empty()) Session.rolls = DefaultRolls;
  CheckBets(Session.bets);
  const int64_t total = Session.rolls   ? *Session.rolls
                        : Session.hands ? *Session.hands
                                        : RollFile.RollCountInFile;
  const auto began = std::chrono::steady_clock::now();
  {
    ProgressBar progress(!options.quiet, total);
    Session.progress = &progress;
    if (!Session.Over()) options.mode == Mode::Hyper ? PlayHyperDrive() : PlayRollByRoll();
    Session.progress = nullptr;
  }
  const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - began;
  return {RollsInSession(), 1, Stats.Hands[CurrentSession].HandCount, seconds.count()};
}

void WriteOut(const std::string& text) {
  if (std::fwrite(text.data(), 1, text.size(), stdout) != text.size() || std::fflush(stdout) != 0) {
    throw Failure(CannotBeDone, "Standard output cannot be written.");
  }
}

void WriteResults(const RunOptions& options, const RunFacts& facts) {
  if (options.json == "-") {
    WriteOut(ResultJson(facts));
    return;
  }
  if (!options.json.empty()) {
    WriteFileAtomically(InFolder(Folders.AppFolder, options.json), ResultJson(facts));
  }
  if (!options.quiet) WriteOut(ResultSummary(facts));
}

}  // namespace

void RunCommand(const RunOptions& options) {
  OpenConsole();
  StartUp(options.home);
  Console.tableMode = options.mode == Mode::Table;
  if (!options.answers.empty()) LoadAnswers(InFolder(Folders.AppFolder, options.answers));
  SeatPlayers(options);
  ApplyRules(options.settings, options.payoffs);
  ChooseDice(options);
  if (!options.dice.empty()) PlayFrom(options.dice);
  Recording recording(options.record);
  OpenEventsLog(options.eventsLog);
  NewSession({-1, -1, -1, ContinueRollFile});
  const RunFacts facts = Play(options);
  recording.Keep();
  WriteResults(options, facts);
  ShutDown();
}

}  // namespace tessarel::sim
