// What `tessarel-sim run` is asked to do, and the reading of its arguments. Reading only: names,
// places and amounts are checked for their form here and against the table by the run.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "base/money.h"

namespace tessarel::sim {

struct PlayerArgument {
  std::string name;
  int place = 0;  // 0: the lowest open one
  Money bankroll = 1000;
};

struct BetArgument {
  int number = 0;
  Money amount;
  int place = 0;  // 0: every seated player
};

struct ScriptArgument {
  std::string file;
  int place = 0;  // 0: the first seated player
};

struct FieldArgument {
  std::string field;
  int place = 0;  // 0: every seated player
  std::string value;
};

enum class Mode { Hyper, Table };

struct RunOptions {
  std::string home = ".";
  std::string game;         // a game file to go on with; empty: a new table
  bool newSession = false;  // in the game
  std::vector<PlayerArgument> players;
  std::vector<FieldArgument> settings;
  std::vector<std::string> payoffs;
  std::vector<ScriptArgument> scripts;
  std::vector<BetArgument> bets;
  std::optional<int64_t> rolls, hands;
  int64_t sessions = 1;
  std::optional<int64_t> generator;
  std::optional<int64_t> seed;
  // File names; empty: not asked for.
  std::string dice, record, answers, eventsLog, probability, save, report, json;
  std::string sessionsLog;  // the folder of the sessions logs
  Mode mode = Mode::Hyper;
  bool quiet = false;
};

// "NAME[@PLACE][=BANKROLL]", "FILE[@PLACE]", "NAME=AMOUNT[@PLACE]", "FIELD[@PLACE]=VALUE" and
// "ROW=NUM:DEN", which stays a text. Failure when the form is wrong or a name does not exist.
PlayerArgument ReadPlayer(const std::string& text);
ScriptArgument ReadScript(const std::string& text);
BetArgument ReadBet(const std::string& text);
FieldArgument ReadField(const std::string& text);
std::string ReadPayoff(const std::string& text);

Mode ReadMode(const std::string& text);
// A name that is not empty.
std::string ReadFileName(const std::string& text);
// A whole decimal number; one that 64 bits cannot hold comes back as the nearest that they can.
int64_t ReadWhole(const std::string& text);
// The same from 0 to `limit`. Failure outside.
int64_t ReadCount(const std::string& text, int64_t limit);

}  // namespace tessarel::sim
