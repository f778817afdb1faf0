// The life of the program and of its sessions: how it comes up, what a new session clears and
// keeps, and how it goes down.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tessarel {

// What a new session does with the roll file. Any other value closes it.
enum RollFileAction : int32_t { RewindRollFile = 1, ContinueRollFile = 2, CloseRollFileNow = 0 };

struct SessionOptions {
  bool keepSessions = false;  // non-zero: the data of former sessions
  bool keepStacks = false;    // check stacks with their names
  bool keepLogs = false;      // sessions logs
  int32_t rollFileAction = CloseRollFileNow;
};

// Starts a new session. Not to be called during a roll.
void NewSession(const SessionOptions& options);

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

// Puts every module in its start-up state in `appFolder`, the program's folder: default settings,
// payoffs and units, every generator seeded from the clock, an empty table. Warns of missing
// support files. Nothing is read from disk.
void StartUp(const std::string& appFolder);

// Opens the game file named on the command line, else the automatic one of the program's folder;
// with neither, the table is as StartUp leaves it. What cannot be opened is told. The hot keys stay
// as they are.
void OpenDefaultGame(std::string_view commandLine);

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
