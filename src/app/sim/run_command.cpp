#include <chrono>
#include <filesystem>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "app/sim/commands.h"
#include "app/sim/console.h"
#include "app/sim/failure.h"
#include "app/sim/game.h"
#include "app/sim/output.h"
#include "app/sim/probability_option.h"
#include "app/sim/reporting.h"
#include "app/sim/result.h"
#include "app/sim/run_files.h"
#include "app/sim/scripts.h"
#include "app/sim/seating.h"
#include "autobet/script_host.h"
#include "autobet/values.h"
#include "base/file_io.h"
#include "base/front_end.h"
#include "base/message.h"
#include "base/single_byte_text.h"
#include "dice/generators.h"
#include "dice/roll_file.h"
#include "engine/bet_limits.h"
#include "engine/bets.h"
#include "engine/unattended.h"
#include "play/game_commands.h"
#include "play/leaving.h"
#include "play/new_session.h"
#include "play/players.h"
#include "play/roll_driver.h"
#include "play/start_up.h"
#include "state/books.h"
#include "state/table.h"
#include "texts/say.h"

namespace tessarel::sim {

namespace {

constexpr int64_t DefaultRolls = 100'000;

// The session that is being played: what to bet before each roll and when to end.
struct SessionInPlay {
  std::vector<BetArgument> bets;
  std::optional<int64_t> rolls, hands;
  ProgressBar* progress = nullptr;
  int64_t stepsBefore = 0;  // steps of the sessions before this one
  const Recording* recording = nullptr;
  RunFacts* facts = nullptr;
  void (*startForScript)(const KeptBySession& kept) = nullptr;
  // What sessions before a script's new start have made; less what an earlier run had made already.
  int64_t rollsEarlier = 0, handsEarlier = 0;
  int64_t rollsBefore = 0;  // at the last look
  int32_t faultsBefore = 0;
  int32_t failures = 0;  // at the roll now tried
  bool stuck = false;

  int64_t Rolls() const { return rollsEarlier + RollsInSession(); }
  int64_t Hands() const { return handsEarlier + Stats.Hands[CurrentSession].HandCount; }
  // With no count the dice roll file is played, which a script may switch off or close.
  bool FileIsOver() const { return !rolls && !hands && RollFile.RollFileMode != RollFilePlay; }
  bool Over() const {
    return (rolls && Rolls() >= *rolls) || (hands && Hands() >= *hands) || FileIsOver() ||
           Interrupted();
  }
};

SessionInPlay Session;

// --- Setting up --------------------------------------------------------------------------------

void SeatPlayers(const RunOptions& options) {
  std::vector<PlayerArgument> players = options.players;
  const bool idle = !options.game.empty() || (options.bets.empty() && options.scripts.empty());
  if (players.empty() && !idle) players.push_back({"Player One", 1, 1000});
  for (const PlayerArgument& player : players)
    Seat(player);
}

void RequireBettable(int place, int number) {
  const std::string name(BetName[number]);
  if (!IsTaken(Table, place)) {
    throw Failure(CannotBeDone, Say(Text::SimNoPlayerToBet, place, name));
  }
  if (!OnLayout(number)) {
    throw Failure(CannotBeDone, Say(Text::SimOffLayout, name));
  }
}

// The wagers with their places: one that names no place is every player's.
std::vector<BetArgument> BetsByPlace(const std::vector<BetArgument>& asked) {
  std::vector<BetArgument> bets;
  for (const BetArgument& bet : asked) {
    if (bet.place != 0) {
      bets.push_back(bet);
    } else {
      ForEachPlayer([&](int place) { bets.push_back({bet.number, bet.amount, place}); });
    }
  }
  for (const BetArgument& bet : bets)
    RequireBettable(bet.place, bet.number);
  return bets;
}

// --- Playing -----------------------------------------------------------------------------------

// Brings each fixed wager to its amount if the rules allow it now.
void PlaceFixedBets() {
  for (const BetArgument& bet : Session.bets) {
    const Money standing = Bet(bet.place, bet.number);
    if (standing == bet.amount) continue;
    PlaceBet({bet.place, bet.number, bet.amount - standing}, Telling::Silent);
  }
}

// Whether the dice roll file has no roll left. The stop is then made here: the wagers are not asked
// for a roll that does not come, and without them the table might give another reason.
bool DiceFileEnds() {
  if (RollFile.RollFileMode != RollFilePlay || PlaysNextRoll()) return false;
  PlayBackRoll();
  return true;
}

// After an attempt at a roll: whether going on makes no sense. A face that no die has costs its
// roll and no more, but a second failure at the same roll is there to stay, and a roll that failed
// on the way leaves results that cannot be trusted.
bool Stuck() {
  const bool rolled = Session.Rolls() != Session.rollsBefore;
  const bool failed = Console.faults != Session.faultsBefore;
  Session.rollsBefore = Session.Rolls();
  Session.faultsBefore = Console.faults;
  Session.failures = failed && !rolled ? Session.failures + 1 : 0;
  Session.stuck = Session.recording->Lost() || (failed && rolled) || Session.failures > 1;
  return Session.stuck;
}

void ShowProgress() {
  Session.progress->Show(Session.stepsBefore + (Session.hands ? Session.Hands() : Session.Rolls()));
}

// Between two rolls of the Hyper-Drive, or within a long cycle of a script.
void BetweenRolls() {
  if (AutoBet.ScriptRunning) return StopScriptWhenInterrupted();
  ShowProgress();
  if (Stuck() || Session.Over()) {
    Table.HyperDriveOn = false;
  } else if (!DiceFileEnds() && !AutoStopIsDue()) {
    PlaceFixedBets();
  }
}

void PlayHyperDrive() {
  Table.HyperDriveOn = true;
  if (DiceFileEnds()) {
    Table.LastStop = Table.Stop;
  } else {
    PlaceFixedBets();
    FrontEnd.RunPendingEvents = BetweenRolls;
    MakeRoll();
    FrontEnd.RunPendingEvents = StopScriptWhenInterrupted;
  }
  Table.HyperDriveOn = false;
}

void PlayRollByRoll() {
  while (!Session.Over()) {
    if (DiceFileEnds()) {
      Table.LastStop = Table.Stop;
      return;
    }
    PlaceFixedBets();
    MakeRoll();
    ShowProgress();
    if (Stuck() || Table.LastStop != StopCause::None || Table.BankrollStopPlace != 0) return;
  }
}

// What ended the run before its counts; a roll by hand at a bankroll's limit has only said so.
std::string StopReason() {
  if (Table.LastStop == StopCause::None && Interrupted()) return "interrupted";
  const bool limit = Table.LastStop == StopCause::None && Table.BankrollStopPlace != 0;
  return limit ? BankrollLimitText(Table.BankrollStopPlace) : StopText(Table.LastStop);
}

void FailWhenStuck() {
  if (!Session.stuck) return;
  const std::string reason = Console.faults != 0 ? Console.lastFault : Say(Text::SimRecordingEnded);
  throw Failure(CannotBeDone, Say(Text::SimRunEnded, RollsInSession(), reason));
}

void AddSession(RunFacts& facts) {
  ++facts.sessions;
  facts.rolls += RollsInSession();
  facts.hands += Stats.Hands[CurrentSession].HandCount;
  facts.stopReason = StopReason();
  ForEachPlayer([&facts](int place) {
    const int slot = place + CurrentSession;
    facts.bySession.push_back({facts.sessions, place, Table.Bankroll[slot], Table.BankrollLow[slot],
                               Table.BankrollHigh[slot]});
  });
}

// A script that starts a new session goes on with the same counts, and the run with its recording.
void StartSessionOfScript(const KeptBySession& kept) {
  if (RollsInSession() > 0) AddSession(*Session.facts);
  Session.rollsEarlier = Session.Rolls();
  Session.handsEarlier = Session.Hands();
  Session.startForScript({kept.Stacks, kept.RollFile || Session.recording->Runs()});
}

int64_t StepsToDo() {
  if (Session.hands) return *Session.hands;
  return Session.rolls ? *Session.rolls : RollFile.RollCountInFile;
}

// A new session that keeps what earlier ones left and goes on in the roll file. Its scripts are
// initialised.
void StartSession() {
  StartNewGame({true, true, true, ContinueRollFile}, true);
  if (Console.faults != 0) throw Failure(CannotBeDone, OnOneLine(Console.lastFault));
}

// Plays the session that has just been started, or is gone on with, to its end.
void PlaySession(const RunOptions& options) {
  Session.rollsEarlier = -static_cast<int64_t>(RollsInSession());
  Session.handsEarlier = -static_cast<int64_t>(Stats.Hands[CurrentSession].HandCount);
  Session.rollsBefore = Session.failures = 0;
  Session.faultsBefore = Console.faults;
  Table.LastStop = StopCause::None;
  if (!Session.Over()) options.mode == Mode::Hyper ? PlayHyperDrive() : PlayRollByRoll();
  FailWhenStuck();
}

RunFacts Play(const RunOptions& options, const Recording& recording) {
  RunFacts facts;
  facts.diceFile = options.dice;
  Session.recording = &recording;
  Session.facts = &facts;
  Session.startForScript = std::exchange(ScriptHost.StartSession, StartSessionOfScript);
  const auto began = std::chrono::steady_clock::now();
  ProgressBar progress(!options.quiet, StepsToDo() * options.sessions);
  Session.progress = &progress;
  for (int64_t session = 0; session < options.sessions && !Interrupted(); ++session) {
    if (session > 0 && DiceFileEnds()) break;
    if (session > 0 || options.game.empty() || options.newSession) StartSession();
    Session.stepsBefore = session * StepsToDo();
    PlaySession(options);
    AddSession(facts);
  }
  facts.seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - began).count();
  return facts;
}

void WriteResultFile(CheckedText<0> what, const std::string& name, const std::string& text) {
  if (name.empty() || name == "-") return;
  WithFile(what, name, Text::SimCannotWrite, [&] { WriteFileAtomically(PathOf(name), text); });
}

// Standard output comes last, so that it stays empty when a file fails.
void WriteResults(const RunOptions& options, const RunFacts& facts, Recording& recording) {
  recording.Finish();
  SaveNamedGame(options.save);
  const std::string json = options.json.empty() ? "" : ResultJson(facts);
  const std::string report = options.report.empty() ? "" : RunReport(facts.stopReason);
  WriteResultFile(Text::SimResult, options.json, json);
  WriteResultFile(Text::SimReport, options.report, report);
  recording.Keep();
  if (options.json == "-") return WriteOut(json);
  if (options.report == "-") return WriteOut(report);
  if (!options.quiet) WriteOut(ResultSummary(facts));
}

// The dice of a game go on with its generator: from the running state that is kept of generator 3,
// else from a new seed. A run without rolls leaves them alone.
bool NeedsSeed(const RunOptions& options) {
  if (options.game.empty() || options.seed || options.generator) return true;
  constexpr int32_t KeepsItsState = 3;
  const bool rolls = Session.rolls.value_or(1) > 0 && Session.hands.value_or(1) > 0;
  return rolls && Dice.CurrentRNG != KeepsItsState && RollFile.RollFileMode != RollFilePlay;
}

void SelectDice(const RunOptions& options) {
  if (!NeedsSeed(options)) return;
  const int64_t inUse = options.game.empty() ? 1 : Dice.CurrentRNG;
  SelectAndSeed(options.generator.value_or(inUse), options.seed);
}

void SetUp(const RunOptions& options) {
  OpenNamedGame(options.game);
  SeatPlayers(options);
  ApplyRules(options.settings, options.payoffs);
  LoadScripts(options.scripts);
  Session = {BetsByPlace(options.bets), options.rolls, options.hands};
  if (!options.rolls && !options.hands && options.dice.empty()) Session.rolls = DefaultRolls;
  SelectDice(options);
  if (!options.probability.empty()) ActivateProbability(options.probability);
  if (!options.dice.empty()) PlayFrom(options.dice);
}

void RequireFolder(const std::string& home) {
  if (!std::filesystem::is_directory(home)) {
    throw Failure(CannotBeDone, Say(Text::SimDoesNotExist, Wording(Text::SimFolder), home));
  }
}

}  // namespace

void RunCommand(const RunOptions& options) {
  OpenConsole();
  RequireFolder(options.home);
  StartUp(options.home);
  Console.tableMode = options.mode == Mode::Table;
  CheckFiles(options);
  if (!options.answers.empty()) {
    WithFile(Text::SimAnswers, options.answers, Text::SimCannotRead,
             [&options] { LoadAnswers(PathOf(options.answers)); });
  }
  UseSessionsLogs(options.sessionsLog);
  SetUp(options);
  CheckSessionsLogs(options);
  const auto continued = SessionsLoggedBefore();
  Recording recording(options.record);
  OpenEventsLog(options.eventsLog);
  const RunFacts facts = Play(options, recording);
  // A session of the game that this run has not gone on with was the last one of another run.
  if (Session.Rolls() > 0) LogLastSession();
  RemoveContinued(continued);
  WriteResults(options, facts, recording);
  ShutDown();
}

}  // namespace tessarel::sim
