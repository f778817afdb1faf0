// The blocks of a game file, each a list of fields for both directions, in their order in the file,
// and what follows a load. Only files/game_file.cpp calls these.
#pragma once

#include <string>

#include "files/game_records.h"
#include "state/table.h"

namespace tessarel {

// A file in use by the game, with its last change in the form of DateTimeText.
struct HeldFile {
  std::string Name, Date;
};

// What a game holds of other files. A load takes these up when all records are read, so that a
// question about a file meets a whole table.
struct FilesInUse {
  HeldFile RollFile, Probability, EventsLog;
  std::string PopupRoll;
  int32_t RollFileMode = 0, FirstRollShown = 1, NextRoll = 1, RollCount = 0;
  PerPlace<HeldFile> Script;
  PerPlace<std::string> ScriptOutput, SessionsLog;
  PerPlace<bool> ScriptActive{};
};

// How many entries of the lists after the fixed records a game has.
struct GameCounts {
  int32_t Players = 0, Chips = 0;
};

// Records 2 to 17: windows, folders, the game between two rolls, names of files, general options.
void GeneralRecords(GameRecords& records, FilesInUse& files, GameCounts& counts);
// 18 to 43: house rules, comps, payoffs, colours, the working standard.
void RuleRecords(GameRecords& records);
// 44 to 423.
void StatisticsRecords(GameRecords& records);
// 424 to 430: options of views, graph and scripts.
void ViewRecords(GameRecords& records, FilesInUse& files);
// The blocks of the places. Reading ends at a block whose place does not exist.
void PlaceRecords(GameRecords& records, FilesInUse& files, const GameCounts& counts);
void ChipRecords(GameRecords& records, const GameCounts& counts);

// The files in use now. In the automatic game file an unsaved matrix is in use as well, and is
// saved for that; file faults when that fails.
FilesInUse FilesNowInUse(bool automaticFile);

// Takes up the files of a loaded game, with a message for each one that is gone or has changed.
void TakeUpFiles(const FilesInUse& files);

// Brings whatever the records held into the ranges in which the game can be played, and figures
// what is derived from it. A sound game stays as it is.
void MendLoadedGame();

// The part of that for the windows: every member of GameViews.
void MendViews();

}  // namespace tessarel
