// What a game keeps of its window's choices, and what the spots of the drawn table mean for the
// current player.
#pragma once

#include "base/money.h"
#include "state/table.h"
#include "state/view_state.h"

namespace tessarel {

// Switches an option of the table that a game keeps for its window.
void ToggleOption(bool TableOptions::*option);

// The player for whom the mouse bets, 0 when nobody is there.
int CurrentPlace();
void SelectPlace(int place);

// The denomination 1 to 5 that a click bets.
int ChosenCheck();
void ChooseCheck(int denomination);

// What the spot of a pixel is for the current player: odds without the bet below them are that bet,
// Don't Pass with a bet and a point is its odds, Place where he bought is Buy, and his own stacks
// on the rail are 101 to 104.
int SpotOfPixel(int value);

// The number of the amount tables that a spot of the current player stands for: 1 to 93, or the
// check stack 100 to 199 shown at 101 to 104. 0 for other spots.
int NumberOfSpot(int spot);

// A spot of somebody's place on the rail, and whose.
bool IsRailSpot(int spot);
int PlaceOfSpot(int spot);

// Whether something stands on a bet.
bool HasBet(int place, int number);

}  // namespace tessarel
