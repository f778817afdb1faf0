// The way out of the program.
#pragma once

namespace tessarel {

// Before the program ends: asks whether an unattended run and running scripts may be stopped, and
// stops them; then which changed scripts to save and whether to save a changed matrix, and saves
// them; roll files are saved with each change. Returns false as soon as an answer is against
// leaving or a file cannot be saved.
bool AskToLeave();

// The way out of the program with a shown table: AskToLeave, then the game goes to the automatic
// game file, with the roll file that is still open, the hot keys to theirs, and all is shut down. A
// table that cannot be saved is given up only after a question. Returns false when the program is
// not to end.
bool Leave();

// Closes what is open. What was recorded is on disk when it returns.
void ShutDown();

}  // namespace tessarel
