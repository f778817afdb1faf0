// The rules of the one dialog through which all files are opened and saved: what each action is
// called and which files it shows, in which folder it starts, and what becomes of the name that was
// typed. A window lists the folder and calls these; listing and filtering are its own.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tessarel {

// The kinds of files, each with a folder of its own, in the order in which game files keep these.
enum FileKind : int32_t {
  SessionFiles,
  AutoBetFiles,
  RollFiles,
  ProbabilityFiles,
  SessionsLogFiles,
  EventsLogFiles
};
inline constexpr int FileKindCount = 6;

// "Session file", "Auto-bet file", "Roll file", "Prob file", "Sessions log file" or "Events log
// file" in the language in force.
std::string_view FileKindText(FileKind kind);

enum class FileAction : int32_t {
  OpenSession,
  SaveSession,
  OpenRolls,  // creates the file when it does not exist
  OpenPopupRolls,
  CopyRolls,
  CopyRollsAsText,
  PasteRolls,
  PasteText,
  OpenScript,
  PasteScript,
  SaveScript,
  CopyScript,
  CopyScripts,
  SelectHotKeyScript,
  OpenSessionsLog,
  SaveSessionsLog,
  RenameSessionsLog,
  OpenEventsLog,
  SaveEventsLog,
  OpenProbability,
  SaveProbability
};
inline constexpr int FileActionCount = 21;

// The dialog's title in the language in force.
std::string_view FileActionTitle(FileAction action);

// Whether the action writes a file that it names.
bool SavesFile(FileAction action);

struct FileFilter {
  std::string Label;    // in the language in force, with the pattern in brackets
  std::string Pattern;  // "*.bet;*.txt"
};

// The filters an action offers, the one it starts with first.
std::vector<FileFilter> FileFilters(FileAction action);

struct FileDialogState {
  // Stored with the game, by FileKind; empty until the dialog was used.
  std::array<std::string, FileKindCount> LastFolder;

  // The dialog that is shown now.
  FileAction Action = FileAction::OpenSession;
  FileKind FileDialogKind = SessionFiles;
  std::string Folder;              // ends in '/'
  int32_t Filter = 0;              // index of the filter in use
  std::string FileDialogFileName;  // the name offered, and the full name that was chosen
};

extern FileDialogState FileDialog;

// Before the dialog is shown: it starts in the folder last used for files of its kind, or in the
// one the program keeps for them when there is none, and offers the short name of `offered`.
void LoadFileDialog(FileAction action, std::string_view offered);

// Shows another folder, taken from the one shown. False when there is no such folder.
bool ChangeFileDialogFolder(std::string_view folder);

// OK with the name that was typed or picked, or a folder to go to. True when the dialog may close:
// FileDialogFileName is then the full name, from the folder shown unless it was typed with one, and
// with the extension of the filter in use if none was typed. False after a refusal, a No to
// overwriting, and when the folder was changed.
bool AcceptFileName(std::string_view typed);

// Closes the dialog without a name: no name is chosen, and MsgResult is AnswerCancel.
void CancelFileDialog();

// After the dialog: keeps the folder in use for the next time.
void UnloadFileDialog();

// The Delete key on a listed file, after a question. A file that the program has in use is given up
// first; a player whose sessions log is deleted goes back to the default one, which is said.
// Returns whether the file is gone.
bool DeleteListedFile(std::string_view name);

}  // namespace tessarel
