// The result of a run as JSON and as the short summary.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "base/money.h"

namespace tessarel::sim {

// What became of a player in one session.
struct SessionEnd {
  int64_t session = 0;  // from 1
  int place = 0;
  Money bankroll, low, high;
};

// Sums over all sessions of the run; one that was begun in an earlier run counts as a whole.
struct RunFacts {
  int64_t rolls = 0;
  int64_t sessions = 0;
  int64_t hands = 0;
  double seconds = 0;
  std::string stopReason;  // empty: the counts were reached
  std::string diceFile;    // empty: a generator
  std::vector<SessionEnd> bySession;
};

// Both read the tables as they stand at the end of the run.
std::string ResultJson(const RunFacts& facts);
std::string ResultSummary(const RunFacts& facts);

}  // namespace tessarel::sim
