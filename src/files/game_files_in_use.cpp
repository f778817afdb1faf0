// The other files that a game uses, dice, matrix, logs and scripts, by name: as a save notes them,
// and as a load takes them up again.
#include <algorithm>
#include <string>
#include <utility>

#include "autobet/script_files.h"
#include "base/fault.h"
#include "base/file_io.h"
#include "base/folders.h"
#include "base/message.h"
#include "base/trap.h"
#include "dice/popup_roll.h"
#include "dice/probability.h"
#include "dice/probability_file.h"
#include "dice/roll_file.h"
#include "files/events_log_view.h"
#include "files/game_blocks.h"
#include "files/sessions_log.h"
#include "log/events_log.h"
#include "state/scripts.h"
#include "texts/say.h"

namespace tessarel {

namespace {

HeldFile Held(const std::string& name) {
  const std::string path = FullName(name);
  return {path, LastModifiedText(path)};
}

void NoteRollFile(FilesInUse& files) {
  if (RollFile.RollFileName.empty()) return;
  FlushRollFile();  // so that the date is that of all that was recorded
  files.RollFile = Held(RollFile.RollFileName);
  files.RollFileMode = RollFile.RollFileMode;
  files.FirstRollShown = RollFile.DisplayRoll;
  files.NextRoll = RollFile.NextRoll;
  files.RollCount = RollFile.RollCountInFile;
}

// A matrix that differs from its file has no name in a game, unless it is saved with it.
void NoteProbability(FilesInUse& files, bool automaticFile) {
  if (Probability.ProbabilityChanged) {
    if (!automaticFile || !Probability.ProbabilityMatrixActive) return;
    SaveProbabilityFile(Folders.AppFolder + std::string(AutomaticProbabilityFile));
  }
  if (!FileExists(Probability.ProbabilityFileName)) return;
  files.Probability = Held(Probability.ProbabilityFileName);
}

void NoteEventsLog(FilesInUse& files) {
  if (!EventsLog.EventLogName.empty()) {
    files.EventsLog = Held(EventsLog.EventLogName);
  } else if (EventsLogExists()) {
    files.EventsLog = Held(DefaultEventLogName());
  }
}

void NoteFilesOfPlace(FilesInUse& files, int place) {
  const ScriptPlace& script = Scripts.Places[place];
  if (!script.ScriptFile.empty()) {
    const std::string path = InFolder(Folders.AppFolder, script.ScriptFile);
    At(files.Script, place) = {script.ScriptFile, LastModifiedText(path)};
  }
  At(files.ScriptOutput, place) = script.OutputFile;
  At(files.SessionsLog, place) = FullName(Table.SessionLogName[place]);
}

// --- Taking up ---------------------------------------------------------------------------------

// What is said of a file, with the title of the box.
struct FileNotice {
  CheckedText<1> text;
  CheckedText<0> title;
};
// The same with the player whose file it is.
struct ScriptNotice {
  CheckedText<2> text;
  CheckedText<0> title;
};
constexpr FileNotice RollFileGone = {Text::RollFileGone, Text::RollFileGoneTitle};
constexpr FileNotice RollFileChanged = {Text::RollFileChanged, Text::RollFileChangedTitle};
constexpr FileNotice MatrixGone = {Text::MatrixGone, Text::MatrixGoneTitle};
constexpr FileNotice MatrixChanged = {Text::MatrixChanged, Text::MatrixChangedTitle};
constexpr FileNotice EventsLogGone = {Text::EventsLogGone, Text::EventsLogGoneTitle};
constexpr ScriptNotice ScriptGone = {Text::ScriptGone, Text::ScriptGoneTitle};
constexpr ScriptNotice ScriptChanged = {Text::ScriptChanged, Text::ScriptChangedTitle};

void Tell(const FileNotice& notice, const std::string& file) {
  ShowMessage(Say(notice.text, file), Say(notice.title), msg::OkAlert);
}

void Tell(const ScriptNotice& notice, const std::string& file, const std::string& player) {
  ShowMessage(Say(notice.text, file, player), Say(notice.title), msg::OkAlert);
}

// The path of a name in a game file, which may have '\' in it and be relative.
std::string StoredPath(const std::string& name) {
  return name.empty() ? "" : FullName(InFolder(Folders.AppFolder, name));
}

void TakeUpRollFile(const FilesInUse& files) {
  const std::string name = StoredPath(files.RollFile.Name);
  if (name.empty()) return;
  if (!FileExists(name)) return Tell(RollFileGone, name);
  OpenRollFile(name);
  if (LastModifiedText(name) != files.RollFile.Date) return Tell(RollFileChanged, name);
  const int32_t mode = files.RollFileMode;
  const bool records = mode == RollFileRecord && !RollFile.ReadOnly;
  RollFile.RollFileMode = records || mode == RollFilePlay ? mode : RollFileOff;
  RollFile.NextRoll = std::clamp(files.NextRoll, 1, RollFile.RollCountInFile + 1);
  RollFile.DisplayRoll = std::clamp(files.FirstRollShown, 1, RollFile.RollCountInFile + 1);
  RollFile.LastRoll = RollFile.NextRoll - 1;
}

void TakeUpProbability(const HeldFile& file) {
  NewProbabilities();
  if (file.Name.empty()) return;
  const std::string path = StoredPath(file.Name);
  if (!OpenProbabilityFile(path)) return Tell(MatrixGone, path);
  if (LastModifiedText(path) != file.Date) Tell(MatrixChanged, path);
}

void TakeUpEventsLog(const std::string& name) {
  const std::string before = EventsLogPath();
  const bool usual = name.empty() || name == FullName(DefaultEventLogName());
  EventsLog.EventLogName = usual ? "" : name;
  EndSections();
  if (!name.empty() && !FileExists(name)) {
    EventsLog.EventLogName.clear();
    Tell(EventsLogGone, name);
  }
  const bool another = !IsSameFile(EventsLogPath(), before);
  if (another) EventsLogView = {};
  if (another || EventsLog.LogOn) IndexEventsLog();
}

bool CanReadScript(int place, const std::string& path) {
  try {
    return ReadScriptFile(place, path);
  } catch (const Fault&) {
    return false;
  }
}

void TakeUpScript(int place, const HeldFile& file) {
  if (file.Name.empty()) return;
  const std::string path = StoredPath(file.Name);
  const std::string& name = Table.PlayerName[place];
  if (!FileExists(path)) {
    NewScript(place);
    Tell(ScriptGone, path, name);
  } else if (!CanReadScript(place, path)) {
    NewScript(place);
    ShowError(Say(Text::ScriptUnreadable, path, name));
  } else if (LastModifiedText(path) != file.Date) {
    Tell(ScriptChanged, path, name);
  }
}

// A player without a log of his own goes on in the usual one, which need not be there yet.
void TakeUpSessionsLog(int place, const std::string& log) {
  const std::string& name = Table.PlayerName[place];
  const std::string usual = FullName(DefaultSessionsLogName(name));
  const bool there = FileExists(log);
  Table.SessionLogName[place] = there ? log : usual;
  if (there || log.empty() || log == usual) return;
  const Text text = FileExists(usual) ? Text::LogGoneExistingInstead : Text::LogGoneNewInstead;
  ShowMessage(SayChosen(text, log, name, usual), Say(Text::LogGoneTitle), msg::OkAlert);
}

// What goes wrong with one file is reported and leaves the others.
template <class Step>
void Attempt(Step&& step) {
  Trapped("OpenGame", std::forward<Step>(step));
}

}  // namespace

FilesInUse FilesNowInUse(bool automaticFile) {
  FilesInUse files;
  NoteRollFile(files);
  files.PopupRoll = FullName(PopupRoll.PopupRollFileName);
  NoteProbability(files, automaticFile);
  NoteEventsLog(files);
  ForEachPlayer([&](int place) { NoteFilesOfPlace(files, place); });
  files.ScriptActive = Scripts.ScriptActive;
  return files;
}

void TakeUpFiles(const FilesInUse& files) {
  Attempt([&] { TakeUpRollFile(files); });
  if (!files.PopupRoll.empty()) OpenPopupRoll(StoredPath(files.PopupRoll));
  Attempt([&] { TakeUpProbability(files.Probability); });
  Attempt([&] { TakeUpEventsLog(StoredPath(files.EventsLog.Name)); });
  ForEachPlayer([&](int place) {
    Scripts.Places[place].OutputFile = At(files.ScriptOutput, place);
    Attempt([&] { TakeUpScript(place, At(files.Script, place)); });
    Attempt([&] { TakeUpSessionsLog(place, StoredPath(At(files.SessionsLog, place))); });
  });
}

}  // namespace tessarel
