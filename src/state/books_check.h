// The books: whether the money that moved is the money that was counted.
#pragma once

#include <string>

namespace tessarel {

// For every player, the session's beginning bankroll and ATM moves, plus what was won, less what
// was lost, must be the bankroll. Describes the first fault; empty when the books agree. Walks the
// whole store: for tests and debug builds.
std::string CheckBooks();

}  // namespace tessarel
