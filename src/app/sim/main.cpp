// tessarel-sim: the table without a window.

#include <CLI/CLI.hpp>
#include <algorithm>
#include <array>
#include <cstdio>
#include <map>
#include <string_view>

#include "app/sim/commands.h"
#include "app/sim/failure.h"
#include "base/trap.h"

namespace tessarel::sim {
namespace {

// What a later version brings; until then it is refused by name.
constexpr std::array<std::string_view, 6> NotYet = {"--script",      "--new",          "--sessions",
                                                    "--probability", "--sessions-log", "--save"};
constexpr std::array<std::string_view, 1> CommandsNotYet = {"check"};

void RefuseWhatIsMissing(int argc, char** argv) {
  const auto refuse = [](std::string_view what) {
    throw Failure(CannotBeDone, std::string(what) + " is not available in this version.");
  };
  for (int k = 1; k < argc; ++k) {
    const std::string_view word = argv[k];
    const std::string_view option = word.substr(0, word.find('='));
    if (std::find(NotYet.begin(), NotYet.end(), option) != NotYet.end()) refuse(option);
    if (k != 1) continue;
    if (std::find(CommandsNotYet.begin(), CommandsNotYet.end(), word) != CommandsNotYet.end()) {
      refuse(word);
    }
  }
}

template <class Value, class Read>
void AddRead(
    CLI::App* command, const char* name, std::vector<Value>& values, Read read, const char* help) {
  command
      ->add_option_function<std::vector<std::string>>(
          name,
          [&values, read](const std::vector<std::string>& texts) {
            for (const std::string& text : texts)
              values.push_back(read(text));
          },
          help)
      ->expected(1)
      ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
}

void AddRules(CLI::App* command,
              std::vector<FieldArgument>& settings,
              std::vector<std::string>& payoffs) {
  AddRead(command, "--set", settings, ReadField,
          "FIELD[@PLACE]=VALUE: a table setting by its field name");
  command->add_option("--payoff", payoffs, "ROW=NUM:DEN: a payoff by the name of its row")
      ->expected(1)
      ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
}

void DescribeRun(CLI::App& app, RunOptions& options, std::string& game) {
  CLI::App* run = app.add_subcommand("run", "Play the table and report what became of the bets");
  run->add_option("--home", options.home, "The program's folder: files are taken from it")
      ->check(CLI::ExistingDirectory);
  AddRead(run, "--player", options.players, ReadPlayer,
          "NAME[@PLACE][=BANKROLL]: seat a player (default: lowest open place, 1000)");
  AddRules(run, options.settings, options.payoffs);
  AddRead(run, "--bet", options.bets, ReadBet,
          "NAME=AMOUNT[@PLACE]: a wager asked for before every roll");
  run->add_option("--rolls", options.rolls, "Stop after N rolls")->check(CLI::NonNegativeNumber);
  run->add_option("--hands", options.hands, "Stop after N finished hands")
      ->check(CLI::NonNegativeNumber);
  run->add_option("--rng", options.generator, "The generator, 1 to 8");
  run->add_option("--seed", options.seed, "Its seed (default: from the clock)");
  CLI::Option* dice = run->add_option("--dice", options.dice, "Dice from a dice roll file");
  run->add_option("--record", options.record, "Record the dice into a dice roll file")
      ->excludes(dice);
  const std::map<std::string, Mode> modes = {{"hyper", Mode::Hyper}, {"table", Mode::Table}};
  run->add_option("--mode", options.mode, "hyper: one fast run; table: roll by roll, with messages")
      ->transform(CLI::CheckedTransformer(modes).description("hyper or table"));
  run->add_option("--answers", options.answers, "Answers to the prompts of table mode, one a line");
  run->add_option("--events-log", options.eventsLog, "Log every event into this file");
  run->add_option("--json", options.json, "The result as JSON; - is standard output");
  run->add_flag("--quiet", options.quiet, "No progress bar, no summary");
  run->add_option("GAME", game)->group("");
}

void DescribeDice(CLI::App& app, DiceOptions& options) {
  CLI::App* dice = app.add_subcommand("dice", "Print the dice that a generator gives");
  dice->add_option("--rng", options.generator, "The generator, 1 to 8")->required();
  dice->add_option("--seed", options.seed, "Its seed")->required();
  dice->add_option("--count", options.count, "How many rolls, or words with --raw")
      ->required()
      ->check(CLI::NonNegativeNumber);
  dice->add_flag("--raw", options.raw, "Generators 1 and 2: little-endian 32-bit words");
}

void DescribeAdvantage(CLI::App& app, AdvantageOptions& options) {
  CLI::App* advantage = app.add_subcommand("advantage", "Print the house advantage of every bet");
  AddRules(advantage, options.settings, options.payoffs);
  advantage->add_flag("--zero-outcomes", options.zeroOutcomes,
                      "Count rolls that decide nothing as decisions");
  advantage->add_flag("--json", options.json, "The figures as JSON");
}

int Main(int argc, char** argv) {
  CLI::App app{"Tessarel: what a craps betting system really does, without a window"};
  app.require_subcommand(1);
  RunOptions run;
  DiceOptions dice;
  AdvantageOptions advantage;
  std::string game;
  DescribeRun(app, run, game);
  DescribeDice(app, dice);
  DescribeAdvantage(app, advantage);
  try {
    RefuseWhatIsMissing(argc, argv);
    app.parse(argc, argv);
    if (!game.empty()) throw Failure(CannotBeDone, "Game files are not available in this version.");
    if (app.got_subcommand("run")) RunCommand(run);
    if (app.got_subcommand("dice")) DiceCommand(dice);
    if (app.got_subcommand("advantage")) AdvantageCommand(advantage);
    return Done;
  } catch (const CLI::ParseError& error) {
    if (error.get_exit_code() == 0) return app.exit(error);
    std::fprintf(
        stderr, "tessarel-sim: %s\nUsage: tessarel-sim run|dice|advantage [OPTIONS] (see --help)\n",
        error.what());
    return WrongCommandLine;
  } catch (const Failure& failure) {
    std::fprintf(stderr, "tessarel-sim: %s\n", failure.what());
    if (failure.status == WrongCommandLine) {
      std::fprintf(stderr, "Usage: tessarel-sim run|dice|advantage [OPTIONS] (see --help)\n");
    }
    return failure.status;
  } catch (const Fault& fault) {
    std::fprintf(stderr, "tessarel-sim: %s\n", FaultText(fault, "tessarel-sim").c_str());
    return CannotBeDone;
  }
}

}  // namespace
}  // namespace tessarel::sim

int main(int argc, char** argv) {
  return tessarel::sim::Main(argc, argv);
}
