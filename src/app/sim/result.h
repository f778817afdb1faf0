// The result of a run as JSON and as the short summary.
#pragma once

#include <cstdint>
#include <string>

namespace tessarel::sim {

struct RunFacts {
  int64_t rolls = 0;
  int64_t sessions = 1;
  int64_t hands = 0;
  double seconds = 0;
  std::string stopReason;  // empty: the counts were reached
  std::string diceFile;    // empty: a generator
};

// Both read the tables as they stand at the end of the run.
std::string ResultJson(const RunFacts& facts);
std::string ResultSummary(const RunFacts& facts);

}  // namespace tessarel::sim
