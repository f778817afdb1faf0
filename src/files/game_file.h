// Game files: everything about the table, its players, statistics, rules and views in one file of
// 256-byte records, in use for saved games and for "default.tsg", which carries the table from one
// run of the program to the next. A file that is saved is whole or the old one; a file that is
// opened may hold anything.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "state/table.h"

namespace tessarel {

inline constexpr std::string_view AutomaticGameFile = "default.tsg";

struct GameFileState {
  std::string GameFileName;              // what Save writes to; empty: not named yet
  std::string WindowTitle = "Tessarel";  // of the main window
  bool MainWindowShown = false;
  // The scripts that were active when the opened game was saved; opening it switches them off.
  PerPlace<bool> ScriptWasActive{};
};

extern GameFileState GameFile;

// Writes the game and makes the file its own ("default.tsg" leaves it without a name). A relative
// name is taken from the program's folder. Nothing is unsaved then: Table.TableDirty is 0. File
// faults when it cannot be written; an older file then stands.
void SaveGame(const std::string& path);

// Writes the game to another file, as it would stand in "default.tsg"; the game on the table keeps
// its file and is as unsaved as before. File faults as SaveGame.
void SaveGameCopy(const std::string& path);

// Saves to "default.tsg" in the program's folder. Returns whether it could be written; a fault is
// reported.
bool SaveDefaultGame();

// Replaces the game by that of a file, tells which of the files it used are gone or have changed,
// and switches its scripts off. Not to be called during a roll. Returns false when the file is no
// game file, which leaves everything as it was, and after a fault, which is reported; the table can
// be played on then too, though the game on it may be a part of the file's.
bool OpenGame(const std::string& path);

// Opens what the program is started with: the game file named on the command line, else the
// automatic one. Returns false when neither could be opened; the table is then to be set up anew.
// An automatic file that cannot be opened is set aside as "default.tsg.unread".
bool LoadStartGame(std::string_view commandLine);

}  // namespace tessarel
