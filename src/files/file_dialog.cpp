#include "files/file_dialog.h"

#include <algorithm>
#include <filesystem>
#include <span>
#include <system_error>

#include "base/file_io.h"
#include "base/folders.h"
#include "base/message.h"
#include "base/single_byte_text.h"
#include "base/trap.h"
#include "dice/roll_file_edit.h"
#include "files/sessions_log.h"
#include "log/events_log.h"
#include "state/table.h"
#include "texts/say.h"

namespace tessarel {

FileDialogState FileDialog;

namespace {

// What an action asks of a file.
enum class Purpose { MustExist, MayExist, Save };

struct FilterRow {
  Text label;
  std::string_view pattern;
};
// clang-format off
constexpr FilterRow SessionFilter[]     = {{Text::SessionFiles, "*.tsg"}};
constexpr FilterRow RollFilter[]        = {{Text::DiceRollFileKind, "*.rol"}};
constexpr FilterRow TextFilter[]        = {{Text::TextFiles, "*.txt"}};
constexpr FilterRow ProbabilityFilter[] = {{Text::ProbabilityFiles, "*.prb"}};
constexpr FilterRow SessionsLogFilter[] = {{Text::SessionsLogFiles, "*.slg"}};
constexpr FilterRow ScriptFilters[]     = {{Text::AutoBetFiles, "*.bet"}, {Text::AutoBetAndTextFiles, "*.bet;*.txt"}, {Text::TextFiles, "*.txt"},
                                           {Text::AllFiles, "*.*"}};

struct ActionRow {
  FileAction action;
  FileKind kind;
  Purpose purpose;
  std::span<const FilterRow> filters;
  Text title;
};

using enum FileAction;
constexpr std::array<ActionRow, FileActionCount> ActionRows = {{
    {OpenSession,        SessionFiles,     Purpose::MustExist, SessionFilter,     Text::OpenSession},
    {SaveSession,        SessionFiles,     Purpose::Save,      SessionFilter,     Text::SaveSession},
    {OpenRolls,          RollFiles,        Purpose::MayExist,  RollFilter,        Text::OpenRolls},
    {OpenPopupRolls,     RollFiles,        Purpose::MayExist,  TextFilter,        Text::OpenPopupRolls},
    {CopyRolls,          RollFiles,        Purpose::Save,      RollFilter,        Text::CopyRolls},
    {CopyRollsAsText,    RollFiles,        Purpose::Save,      TextFilter,        Text::CopyRollsAsText},
    {PasteRolls,         RollFiles,        Purpose::MustExist, RollFilter,        Text::PasteRolls},
    {PasteText,          RollFiles,        Purpose::MustExist, TextFilter,        Text::PasteText},
    {OpenScript,         AutoBetFiles,     Purpose::MustExist, ScriptFilters,     Text::OpenScript},
    {PasteScript,        AutoBetFiles,     Purpose::MustExist, ScriptFilters,     Text::PasteScript},
    {SaveScript,         AutoBetFiles,     Purpose::Save,      ScriptFilters,     Text::SaveScript},
    {CopyScript,         AutoBetFiles,     Purpose::Save,      ScriptFilters,     Text::CopyScript},
    {CopyScripts,        AutoBetFiles,     Purpose::Save,      ScriptFilters,     Text::CopyScripts},
    {SelectHotKeyScript, AutoBetFiles,     Purpose::MustExist, ScriptFilters,     Text::SelectHotKeyScript},
    {OpenSessionsLog,    SessionsLogFiles, Purpose::MustExist, SessionsLogFilter, Text::OpenSessionsLog},
    {SaveSessionsLog,    SessionsLogFiles, Purpose::Save,      SessionsLogFilter, Text::SaveSessionsLogAs},
    {RenameSessionsLog,  SessionsLogFiles, Purpose::Save,      SessionsLogFilter, Text::RenameSessionsLog},
    {OpenEventsLog,      EventsLogFiles,   Purpose::MustExist, TextFilter,        Text::OpenEventsLog},
    {SaveEventsLog,      EventsLogFiles,   Purpose::Save,      TextFilter,        Text::SaveEventsLogAs},
    {OpenProbability,    ProbabilityFiles, Purpose::MustExist, ProbabilityFilter, Text::OpenProbability},
    {SaveProbability,    ProbabilityFiles, Purpose::Save,      ProbabilityFilter, Text::SaveProbability},
}};

struct KindRow {
  FileKind kind;
  Text text;
  Text deleteTitle;
  std::string FoldersState::*folder;
};
constexpr std::array<KindRow, FileKindCount> KindRows = {{
    {SessionFiles,     Text::SessionFileKind, Text::DeleteFile, &FoldersState::GameFolder},
    {AutoBetFiles,     Text::ScriptFileKind, Text::DeleteScript, &FoldersState::BetFolder},
    {RollFiles,        Text::RollFileKind, Text::DeleteRolls, &FoldersState::AppFolder},
    {ProbabilityFiles, Text::ProbFileKind, Text::DeleteProbability, &FoldersState::ProbabilityFolder},
    {SessionsLogFiles, Text::SessionsLogFileKind, Text::DeleteSessionsLog, &FoldersState::SessionsLogFolder},
    {EventsLogFiles,   Text::EventsLogKind, Text::DeleteFile, &FoldersState::EventsLogFolder},
}};
// clang-format on

template <class Rows, class Label>
constexpr bool AreInOrder(const Rows& rows, Label label) {
  for (size_t k = 0; k < rows.size(); ++k) {
    if (static_cast<size_t>(rows[k].*label) != k) return false;
  }
  return true;
}
static_assert(AreInOrder(ActionRows, &ActionRow::action));
static_assert(AreInOrder(KindRows, &KindRow::kind));

const ActionRow& RowOf(FileAction action) {
  return At(ActionRows, static_cast<int>(action));
}

const KindRow& RowOf(FileKind kind) {
  return At(KindRows, kind);
}

bool IsFolder(const std::string& path) {
  std::error_code error;
  return !path.empty() && std::filesystem::is_directory(path, error);
}

// As the program keeps folders: '/' between the names and at the end.
std::string TidyFolder(const std::string& path) {
  return AsFolder(std::filesystem::path(path).lexically_normal().generic_string());
}

std::string FolderOf(const std::string& path) {
  return TidyFolder(std::filesystem::path(path).parent_path().generic_string());
}

std::string StartFolder(FileKind kind) {
  const std::string& last = At(FileDialog.LastFolder, kind);
  const std::string folder = InFolder(Folders.AppFolder, last);
  return TidyFolder(!last.empty() && IsFolder(folder) ? folder : Folders.*RowOf(kind).folder);
}

// The first extension of the filter in use, with its dot; empty when it shows all files.
std::string_view DefaultExtension() {
  const auto filters = RowOf(FileDialog.Action).filters;
  const auto last = static_cast<int32_t>(filters.size()) - 1;
  std::string_view pattern =
      filters[static_cast<size_t>(std::clamp(FileDialog.Filter, 0, last))].pattern;
  pattern = pattern.substr(1, pattern.find(';') - 1);
  return pattern == ".*" ? std::string_view() : pattern;
}

// A file to be opened that has no extension is found by its bare name too.
std::string WithExtension(const std::string& path, Purpose purpose) {
  if (std::filesystem::path(path).has_extension()) return path;
  if (purpose != Purpose::Save && FileExists(path)) return path;
  return path + std::string(DefaultExtension());
}

bool RefusesTarget(const std::string& path) {
  const FileAction action = FileDialog.Action;
  return (action == CopyRolls || action == CopyRollsAsText) &&
         RefusesOpenRollFile(path, action == CopyRollsAsText);
}

bool MayTake(const std::string& path, const ActionRow& row) {
  if (row.purpose == Purpose::MayExist) return true;
  const bool exists = FileExists(path);
  if (row.purpose == Purpose::Save) {
    if (RefusesTarget(path)) return false;
    return !exists || ShowMessage(Say(Text::AskToOverwrite, path), SayChosen(row.title),
                                  msg::AskNoDefault, help::Saving) == AnswerYes;
  }
  if (!exists) {
    ShowMessage(Say(Text::FileNotFound) + "\r\r" + path, Say(Text::UnableToOpenFile), msg::OkAlert,
                help::Saving);
  }
  return exists;
}

// --- Deleting -----------------------------------------------------------------------------------

bool AskToDelete(const std::string& name, FileKind kind) {
  return ShowMessage(Say(Text::AskToDelete, name), SayChosen(RowOf(kind).deleteTitle),
                     msg::AskNoDefault) == AnswerYes;
}

std::vector<int> PlayersWithSessionsLog(const std::string& path) {
  std::vector<int> places;
  ForEachPlayer([&](int place) {
    const std::string& log = Table.SessionLogName[place];
    if (!log.empty() && IsSameFile(InFolder(Folders.AppFolder, log), path)) places.push_back(place);
  });
  return places;
}

void BackToDefaultSessionsLog(int place) {
  const std::string& name = Table.PlayerName[place];
  std::string& log = Table.SessionLogName[place];
  log = DefaultSessionsLogName(name);
  const Text text = FileExists(log) ? Text::ExistingLogInstead : Text::NewLogInstead;
  ShowMessage(SayChosen(text, log), Say(Text::SessionsLogOf, name), msg::OkAlert,
              help::SessionsLogs);
}

void GiveUpAndDelete(const std::string& path) {
  if (!RollFile.RollFileName.empty() && IsSameFile(path, RollFile.RollFileName)) CloseRollFile();
  if (IsSameFile(path, EventsLogPath())) {
    ClearEventsLog();
  } else {
    DeleteFileIfPresent(path);
  }
}

}  // namespace

std::string_view FileKindText(FileKind kind) {
  return Wording(RowOf(kind).text);
}

std::string_view FileActionTitle(FileAction action) {
  return Wording(RowOf(action).title);
}

bool SavesFile(FileAction action) {
  return RowOf(action).purpose == Purpose::Save;
}

std::vector<FileFilter> FileFilters(FileAction action) {
  std::vector<FileFilter> filters;
  for (const FilterRow& row : RowOf(action).filters) {
    const std::string pattern(row.pattern);
    filters.push_back({SayChosen(row.label) + " (" + pattern + ")", pattern});
  }
  return filters;
}

void LoadFileDialog(FileAction action, std::string_view offered) {
  FileDialog.Action = action;
  FileDialog.FileDialogKind = RowOf(action).kind;
  FileDialog.Folder = StartFolder(FileDialog.FileDialogKind);
  FileDialog.Filter = 0;
  FileDialog.FileDialogFileName = ShortName(offered);
}

bool ChangeFileDialogFolder(std::string_view folder) {
  const std::string path = InFolder(FileDialog.Folder, folder);
  if (!IsFolder(path)) return false;
  FileDialog.Folder = TidyFolder(path);
  return true;
}

bool AcceptFileName(std::string_view typed) {
  const std::string_view name = TrimSpaces(typed);
  if (name.empty() || ChangeFileDialogFolder(name)) return false;
  const ActionRow& row = RowOf(FileDialog.Action);
  const std::string path = WithExtension(InFolder(FileDialog.Folder, name), row.purpose);
  if (!MayTake(path, row)) return false;
  FileDialog.FileDialogFileName = path;
  FileDialog.Folder = FolderOf(path);
  Message.MsgResult = 0;
  return true;
}

void CancelFileDialog() {
  FileDialog.FileDialogFileName.clear();
  Message.MsgResult = AnswerCancel;
}

void UnloadFileDialog() {
  At(FileDialog.LastFolder, FileDialog.FileDialogKind) = FileDialog.Folder;
}

bool DeleteListedFile(std::string_view name) {
  const std::string path = InFolder(FileDialog.Folder, name);
  if (!FileExists(path) || !AskToDelete(std::string(name), FileDialog.FileDialogKind)) return false;
  const std::vector<int> players = PlayersWithSessionsLog(path);
  if (!Trapped("DeleteListedFile", [&path] { GiveUpAndDelete(path); })) return false;
  for (const int place : players)
    BackToDefaultSessionsLog(place);
  return true;
}

}  // namespace tessarel
