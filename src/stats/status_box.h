// The figures of the status box on the table: where a player's money is and how the session goes.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tessarel {

// The widest line, from which the box takes its width.
inline constexpr std::string_view StatusBoxSample = "  Bankroll:  9,999,999 ";

struct StatusRow {
  std::string Caption, Value;
  int Sign = 0;  // of the session's result: 1 won, -1 lost
};

// "Bankroll:  ", "Rail:  ", "1 Bet:  " or "3 Bets:  ", and "Won:  ", "Lost:  " or "Even:  ", in the
// language in force. Empty for an open place.
std::vector<StatusRow> StatusBox(int place);

}  // namespace tessarel
