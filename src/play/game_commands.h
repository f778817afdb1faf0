// The commands of the game as a whole: a new one, saving it, and what is offered to be saved before
// it gives way to another one.
#pragma once

#include "play/new_session.h"

namespace tessarel {

// The New command of the game: NewSession, with the scripts kept or emptied. Active scripts that
// are kept are compiled first (the first one in error is told) and then run for one initialising
// cycle. Changed scripts that are emptied may be saved before. A game on a shown table that is not
// saved goes to the automatic game file first. Returns false, with nothing done, under the
// Hyper-Drive and when the user gives up.
bool StartNewGame(const SessionOptions& options, bool keepScripts);

// The Save and the Save As command of the game. Save offers to save changed scripts first; a game
// without a name is asked for one. False when the user gives up or a file cannot be written.
bool SaveGameInUse();
bool SaveGameAs();

// Before another game takes the table: offers to save changed scripts, a changed matrix and the
// game itself. Returns false when the user gives up or something cannot be saved.
bool AskToReplaceGame();

// Offers to save each changed script, or a changed matrix. False when the user gives up or it
// cannot be saved.
bool OfferToSaveScripts();
bool OfferToSaveMatrix();

}  // namespace tessarel
