// The topics of the help that messages and dialogs lead to: F1 opens the page of which the file
// name begins with the number.
#pragma once

#include <cstdint>

namespace tessarel::help {

inline constexpr int32_t NoTopic = 0, Bets = 30, OddsVigAndCalls = 40, Players = 60, Dice = 80,
                         AutoRoll = 90, Saving = 100, NewSession = 110, SettledBets = 120,
                         SessionsLogs = 130, BettingSystems = 140, SoundsAndLanguage = 150;

}  // namespace tessarel::help
