#include "files/game_file.h"

#include <filesystem>
#include <system_error>
#include "base/fault.h"
#include "base/file_io.h"
#include "base/folders.h"
#include "base/front_end.h"
#include "base/message.h"
#include "base/record_file.h"
#include "base/single_byte_text.h"
#include "base/trap.h"
#include "dice/popup_roll.h"
#include "dice/roll_file.h"
#include "engine/seats.h"
#include "files/game_blocks.h"
#include "state/scripts.h"
#include "state/view_state.h"
#include "texts/say.h"

namespace tessarel {

GameFileState GameFile;

namespace {

constexpr std::string_view ProgramName = "Tessarel";
constexpr std::string_view Header = "Tessarel Pro Game File, Data Format 2.5";
constexpr std::string_view GameFileEnding = ".tsg";

bool IsAutomatic(const std::string& path) {
  return EqualIgnoringCase(ShortName(path), AutomaticGameFile);
}

std::string AutomaticGamePath() {
  return Folders.AppFolder + std::string(AutomaticGameFile);
}

// All records after the header, in either direction.
void GameBody(GameRecords& records, FilesInUse& files, GameCounts& counts) {
  GeneralRecords(records, files, counts);
  RuleRecords(records);
  StatisticsRecords(records);
  ViewRecords(records, files);
  PlaceRecords(records, files, counts);
  ChipRecords(records, counts);
}

// The file is from now on the one that Save writes to; empty for none.
void NameGame(const std::string& path) {
  GameFile.GameFileName = path;
  GameFile.WindowTitle = ProgramName;
  if (!path.empty()) GameFile.WindowTitle += " (" + ShortName(path) + ")";
  Table.TableDirty = false;
}

// --- Opening -----------------------------------------------------------------------------------

void Refuse(CheckedText<1> why, const std::string& path) {
  ShowError(Say(why, ShortName(path)), help::Saving);
}

bool IsGameFile(const RecordFile& file, const std::string& path) {
  const std::string header = file.At(1).LongText();
  if (header.find(Header) != std::string::npos) return true;
  if (header.find(ProgramName) == std::string::npos) {
    Refuse(Text::NotAGame, path);
  } else if (!IsAutomatic(path) || GameFile.MainWindowShown) {
    Refuse(Text::IncompatibleGame, path);
  }
  return false;
}

// Clears what a game file does not overwrite in any case.
void ClearGame() {
  Trapped("OpenGame", CloseRollFile);
  ClosePopupRoll();
  for (int place = 1; place <= LastPlace; ++place)
    ClearPlace(place);
  Table.Stop = Table.LastStop = StopCause::None;
  GameFile.ScriptWasActive = {};
  GameViews.Chips.clear();
}

void ReadBody(RecordFile& file, FilesInUse& files) {
  GameRecords records(file, GameRecords::Direction::Read);
  std::string header;
  records.Text(header);
  GameCounts counts;
  GameBody(records, files, counts);
}

void NoteActiveScripts(const FilesInUse& files) {
  ForEachPlayer([&](int place) { GameFile.ScriptWasActive[place] = files.ScriptActive[place]; });
}

// A game that is cut off is played on as far as it was read, but its file is left alone.
bool ReadGame(RecordFile& file, const std::string& path) {
  ClearGame();
  FilesInUse files;
  const bool whole = Trapped("OpenGame", [&] { ReadBody(file, files); });
  MendLoadedGame();
  if (whole) {
    TakeUpFiles(files);
    NoteActiveScripts(files);
  }
  NameGame(!whole || IsAutomatic(path) ? "" : path);
  FrontEnd.RefreshViews();
  FrontEnd.DrawTable();
  return whole;
}

// --- Starting ----------------------------------------------------------------------------------

std::string WithoutQuotes(std::string_view commandLine) {
  std::string_view argument = TrimSpaces(commandLine);
  if (argument.size() >= 2 && argument.starts_with('"') && argument.ends_with('"'))
    argument = argument.substr(1, argument.size() - 2);
  return std::string(argument);
}

bool NamesGameFile(const std::string& argument) {
  return LowerCase(argument).ends_with(GameFileEnding);
}

// The automatic file is written when the program ends; what could not be opened is kept beside it.
void SetAutomaticGameAside() {
  std::error_code ignored;
  std::filesystem::rename(AutomaticGamePath(), AutomaticGamePath() + ".unread", ignored);
}

void TellUnrecognized(const std::string& argument, bool automaticFollows) {
  std::string text = Say(Text::UnrecognizedGame, argument);
  if (automaticFollows) text.append("\r\r").append(Wording(Text::DefaultGameInstead));
  ShowMessage(std::move(text), Say(Text::UnableToOpenFile), msg::OkAlert, help::Saving);
}

void WriteGame(const std::string& path, bool automatic) {
  FilesInUse files = FilesNowInUse(automatic);
  GameCounts counts{Table.PlayerCount, static_cast<int32_t>(GameViews.Chips.size())};
  RecordFile file;
  GameRecords records(file, GameRecords::Direction::Write);
  std::string header(Header);
  records.Text(header);
  GameBody(records, files, counts);
  file.Save(path);
}

}  // namespace

void SaveGame(const std::string& name) {
  const std::string path = FullName(InFolder(Folders.AppFolder, name));
  const bool automatic = ShortName(path) == AutomaticGameFile;
  WriteGame(path, automatic);
  NameGame(automatic ? "" : path);
}

void SaveGameCopy(const std::string& path) {
  WriteGame(path, true);
}

bool SaveDefaultGame() {
  return Trapped("SaveGame", [] { SaveGame(AutomaticGamePath()); });
}

bool OpenGame(const std::string& name) {
  bool opened = false;
  Trapped("OpenGame", [&] {
    const std::string path = FullName(InFolder(Folders.AppFolder, name));
    RecordFile file = RecordFile::Load(path);
    opened = IsGameFile(file, path) && ReadGame(file, path);
  });
  return opened;
}

bool LoadStartGame(std::string_view commandLine) {
  const std::string argument = WithoutQuotes(commandLine);
  // What is typed in a shell is meant from its folder.
  const std::string named =
      FullName(FileExists(argument) ? argument : InFolder(Folders.AppFolder, argument));
  if (NamesGameFile(argument) && FileExists(named) && OpenGame(named)) return true;
  const bool automatic = FileExists(AutomaticGamePath());
  if (!argument.empty()) TellUnrecognized(argument, automatic);
  if (!automatic) return false;
  if (OpenGame(AutomaticGamePath())) return true;
  SetAutomaticGameAside();
  return false;
}

}  // namespace tessarel
