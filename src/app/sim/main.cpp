// tessarel-sim: the table without a window.

#include <CLI/CLI.hpp>
#include <cstdio>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "app/sim/commands.h"
#include "app/sim/failure.h"
#include "base/trap.h"
#include "state/table.h"

namespace tessarel::sim {
namespace {

constexpr int64_t MaxSessions = 1'000'000;

constexpr const char* UsageText =
    "Usage: tessarel-sim run [OPTIONS] | check [OPTIONS] FILE.bet | advantage [OPTIONS] | "
    "dice --rng N --seed N --count N  (--help tells more)\n";

// The options of a command with their values as texts. The values are read when the whole line is
// known to be made of options that exist, so that a wrong line is always told as such.
class Values {
 public:
  using Read = std::function<void(const std::string&)>;

  explicit Values(CLI::App* command) : command_(command) {}

  CLI::Option* Once(const char* name, const char* form, const char* help, Read read) {
    const auto take = [this, name, read](const CLI::results_t& texts) {
      for (const std::string& text : texts)
        found_.push_back({name, text, read});
      return true;
    };
    return command_->add_option(name, take, help)->type_name(form);
  }

  void Repeatable(const char* name, const char* form, const char* help, Read read) {
    Once(name, form, help, std::move(read))->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
  }

  void ReadAll() const {
    for (const Found& value : found_) {
      try {
        value.read(value.text);
      } catch (const Failure& failure) {
        throw Failure(failure.status, value.name + ": " + failure.what());
      }
    }
  }

 private:
  struct Found {
    std::string name, text;
    Read read;
  };

  CLI::App* command_;
  std::vector<Found> found_;
};

void DescribeSettings(Values& values, std::vector<FieldArgument>& settings) {
  values.Repeatable("--set", "FIELD[@PLACE]=VALUE",
                    "A table setting by its field name, or one of a place (default: every player)",
                    [&](const std::string& text) { settings.push_back(ReadField(text)); });
}

void DescribeRules(Values& values,
                   std::vector<FieldArgument>& settings,
                   std::vector<std::string>& payoffs,
                   std::string& probability) {
  DescribeSettings(values, settings);
  values.Repeatable("--payoff", "ROW=NUM:DEN", "A payoff by the name of its row: \"Place 6=7:6\"",
                    [&](const std::string& text) { payoffs.push_back(ReadPayoff(text)); });
  values.Once("--probability", "FILE.prb", "Skew the dice by a probability matrix",
              [&](const std::string& text) { probability = ReadFileName(text); });
}

void DescribeTable(Values& values, RunOptions& options) {
  values.Once("--home", "DIR", "The program's folder, from which file names are taken (default: .)",
              [&](const std::string& text) { options.home = ReadFileName(text); });
  values.Repeatable("--player", "NAME[@PLACE][=BANKROLL]",
                    "Seat a player (default: the lowest open place, 1000)",
                    [&](const std::string& text) { options.players.push_back(ReadPlayer(text)); });
  DescribeRules(values, options.settings, options.payoffs, options.probability);
  values.Repeatable("--script", "FILE.bet[@PLACE]",
                    "A betting system for a player (default: the first seated one; with no "
                    "--player, Player One sits at place 1)",
                    [&](const std::string& text) { options.scripts.push_back(ReadScript(text)); });
  values.Repeatable("--bet", "NAME=AMOUNT[@PLACE]",
                    "A wager asked for before every roll (default: by every player; with no "
                    "--player, Player One sits at place 1)",
                    [&](const std::string& text) { options.bets.push_back(ReadBet(text)); });
}

void DescribeDiceOfRun(Values& values, RunOptions& options) {
  values.Once("--rolls", "N", "Stop after N rolls (default: 100,000; with --dice the whole file)",
              [&](const std::string& text) { options.rolls = ReadCount(text, MaxRolls); });
  values.Once("--hands", "N", "Stop after N finished hands",
              [&](const std::string& text) { options.hands = ReadCount(text, MaxRolls); });
  values.Once("--sessions", "N", "Play N sessions, one after the other (default: 1)",
              [&](const std::string& text) { options.sessions = ReadCount(text, MaxSessions); });
  values.Once("--rng", "N", "The generator, 1 to 8 (default: 1, or that of the game)",
              [&](const std::string& text) { options.generator = ReadWhole(text); });
  values.Once("--seed", "N", "Its seed, from 1 (default: from the clock)",
              [&](const std::string& text) { options.seed = ReadWhole(text); });
  CLI::Option* dice =
      values.Once("--dice", "FILE.rol", "Dice from a dice roll file; the run ends at its end",
                  [&](const std::string& text) { options.dice = ReadFileName(text); });
  values
      .Once("--record", "FILE.rol", "Record the dice of the run",
            [&](const std::string& text) { options.record = ReadFileName(text); })
      ->excludes(dice);
}

void DescribeOutput(Values& values, RunOptions& options) {
  values.Once("--mode", "hyper|table",
              "hyper (default): one fast run; table: roll by roll, with messages",
              [&](const std::string& text) { options.mode = ReadMode(text); });
  values.Once("--answers", "FILE",
              "Answers to the prompts of the table and of scripts, in order, one a line",
              [&](const std::string& text) { options.answers = ReadFileName(text); });
  values.Once("--events-log", "FILE", "Log every kind of event at the end of this file",
              [&](const std::string& text) { options.eventsLog = ReadFileName(text); });
  values.Once("--sessions-log", "DIR",
              "Add every session, the last one too, to the players' sessions logs in this folder",
              [&](const std::string& text) { options.sessionsLog = ReadFileName(text); });
  values.Once("--save", "FILE.tsg", "Save the game at the end",
              [&](const std::string& text) { options.save = ReadFileName(text); });
  values.Once("--report", "FILE", "The text report: all views of the run; - is standard output",
              [&](const std::string& text) { options.report = ReadFileName(text); });
  values.Once("--json", "FILE", "The result as JSON; - is standard output, then without summary",
              [&](const std::string& text) { options.json = ReadFileName(text); });
}

TokensShown ReadTokens(const std::string& text) {
  if (text == "translated") return TokensShown::Translated;
  if (text == "checked") return TokensShown::Checked;
  throw Failure(WrongCommandLine, "The tokens are translated or checked, not \"" + text + "\".");
}

void DescribeCheck(Values& values, CheckOptions& options) {
  values.Repeatable("--player", "NAME[@PLACE]",
                    "Seat a player, so that the script may name him; the first place is its own",
                    [&](const std::string& text) { options.players.push_back(ReadPlayer(text)); });
  DescribeSettings(values, options.settings);
  values
      .Once("file", "FILE.bet", "The script",
            [&](const std::string& text) { options.file = ReadFileName(text); })
      ->required();
}

void DescribeDice(Values& values, DiceOptions& options) {
  values
      .Once("--rng", "N", "The generator, 1 to 8",
            [&](const std::string& text) { options.generator = ReadWhole(text); })
      ->required();
  values
      .Once("--seed", "N", "Its seed, from 1",
            [&](const std::string& text) { options.seed = ReadWhole(text); })
      ->required();
  values
      .Once("--count", "N", "How many rolls, or words with --raw",
            [&](const std::string& text) { options.count = ReadCount(text, INT64_MAX); })
      ->required();
  values.Once("--probability", "FILE.prb", "Skew the dice by a probability matrix",
              [&](const std::string& text) { options.probability = ReadFileName(text); });
}

int Play(int argc, char** argv) {
  CLI::App app{"Tessarel: what a craps betting system really does, without a window.",
               "tessarel-sim"};
  app.require_subcommand(1);

  CLI::App* run = app.add_subcommand("run", "Play the table and report what became of the bets");
  RunOptions runOptions;
  Values runValues(run);
  DescribeTable(runValues, runOptions);
  DescribeDiceOfRun(runValues, runOptions);
  DescribeOutput(runValues, runOptions);
  CLI::Option* game =
      runValues.Once("game", "GAME.tsg", "A saved game to go on with (default: a new table)",
                     [&](const std::string& text) { runOptions.game = ReadFileName(text); });
  run->add_flag("--new", runOptions.newSession, "Start a new session in the game first")
      ->disable_flag_override()
      ->needs(game);
  run->add_flag("--quiet", runOptions.quiet, "No progress bar, no summary")
      ->disable_flag_override();

  CLI::App* check = app.add_subcommand("check", "Check a script as Check Script does");
  CheckOptions checkOptions;
  Values checkValues(check);
  DescribeCheck(checkValues, checkOptions);
  std::string tokens;
  check->add_flag("--tokens{checked}", tokens,
                  "Print the script as tokens: translated, or checked (the default)");

  CLI::App* dice = app.add_subcommand(
      "dice", "Print the dice that a generator gives from a seed, one roll a line");
  DiceOptions diceOptions;
  Values diceValues(dice);
  DescribeDice(diceValues, diceOptions);
  dice->add_flag("--raw", diceOptions.raw,
                 "Write the 32-bit words of generator 1 or 2, lowest byte first")
      ->disable_flag_override();

  CLI::App* advantage =
      app.add_subcommand("advantage", "Print the house advantage of every bet under given rules");
  AdvantageOptions advantageOptions;
  Values advantageValues(advantage);
  DescribeRules(advantageValues, advantageOptions.settings, advantageOptions.payoffs,
                advantageOptions.probability);
  advantage
      ->add_flag("--zero-outcomes", advantageOptions.zeroOutcomes,
                 "Count rolls that decide nothing as decisions")
      ->disable_flag_override();
  advantage->add_flag("--json", advantageOptions.json, "The figures as JSON")
      ->disable_flag_override();

  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    if (error.get_exit_code() == 0) return app.exit(error);
    throw Failure(WrongCommandLine, error.what());
  }
  if (app.got_subcommand(run)) {
    runValues.ReadAll();
    RunCommand(runOptions);
  } else if (app.got_subcommand(check)) {
    checkValues.ReadAll();
    if (!tokens.empty()) checkOptions.tokens = ReadTokens(tokens);
    return CheckCommand(checkOptions);
  } else if (app.got_subcommand(advantage)) {
    advantageValues.ReadAll();
    AdvantageCommand(advantageOptions);
  } else {
    diceValues.ReadAll();
    DiceCommand(diceOptions);
  }
  return Done;
}

int Main(int argc, char** argv) {
  try {
    return Play(argc, argv);
  } catch (const Failure& failure) {
    std::fprintf(stderr, "tessarel-sim: %s\n", failure.what());
    if (failure.status == WrongCommandLine) std::fputs(UsageText, stderr);
    return failure.status;
  } catch (const Fault& fault) {
    std::fprintf(stderr, "tessarel-sim: %s\n", FaultText(fault, "tessarel-sim").c_str());
  } catch (const std::exception& error) {
    std::fprintf(stderr, "tessarel-sim: %s\n", error.what());
  }
  return CannotBeDone;
}

}  // namespace
}  // namespace tessarel::sim

int main(int argc, char** argv) {
  return tessarel::sim::Main(argc, argv);
}
