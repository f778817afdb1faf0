// The subcommands of tessarel-sim. Each does its work and writes its result on standard output;
// what cannot be done is thrown as a Failure or a Fault.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "app/sim/failure.h"
#include "app/sim/run_options.h"

namespace tessarel::sim {

void RunCommand(const RunOptions& options);

enum class TokensShown { None, Translated, Checked };

struct CheckOptions {
  std::vector<PlayerArgument> players;
  std::vector<FieldArgument> settings;
  TokensShown tokens = TokensShown::None;
  std::string file;
};

// Prints the error of a script that cannot run.
ExitStatus CheckCommand(const CheckOptions& options);

struct DiceOptions {
  int64_t generator = 1;
  int64_t seed = 0;
  int64_t count = 0;
  std::string probability;  // a file name, empty for the generator's own dice
  bool raw = false;
};

void DiceCommand(const DiceOptions& options);

struct AdvantageOptions {
  std::vector<FieldArgument> settings;
  std::vector<std::string> payoffs;
  std::string probability;  // a file name, empty for true dice
  bool zeroOutcomes = false;
  bool json = false;
};

void AdvantageCommand(const AdvantageOptions& options);

// Sets fields, then payoffs ("ROW=NUM:DEN"), then puts the configuration to its closing tests.
// Failure at the first refusal.
void ApplyRules(const std::vector<FieldArgument>& settings,
                const std::vector<std::string>& payoffs);

// Makes a generator current and applies a seed, without one a seed from the clock. Failure when
// either is outside its limits, and with the report of the overflow for seeds that the generator's
// arithmetic cannot take.
void SelectAndSeed(int64_t generator, std::optional<int64_t> seed);

}  // namespace tessarel::sim
