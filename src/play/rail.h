// Who stands at the rail: joining, renaming, leaving and moving, with the questions put to the
// user. Each is a command of the gateway: after a fault it has not happened.
#pragma once

#include <optional>
#include <string>

#include "base/money.h"

namespace tessarel {

// Why a name cannot be given to the player of `place` (0: a new one): it is somebody's already, or
// all digits. Empty when it can. What players type is held against the words of scripts as well.
std::optional<std::string> NameRefusal(const std::string& name, int place);

// Asks whether somebody joins at an open place, for the name and for the buy-in, and seats him.
// Returns whether somebody joined.
bool AddPlayer(int place);

// Asks for a new name. Returns whether it was given.
bool RenamePlayer(int place);

// Removes a player, if `ask` after a question that names the bets he has to abandon. His bets come
// off; abandoned ones count as lost. The dice pass if they were his. Returns whether he left.
bool DeletePlayer(int place, bool ask);

// The shooter hands the dice on because he wants to. False after a fault.
bool GiveUpDice();

// Moves a player with all that is kept for him to an open place. Returns false, with nothing
// changed, when there is no player at `from` or `to` is not open.
bool MovePlayer(int from, int to);

}  // namespace tessarel
