#include "app/sim/run_files.h"

#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>

#include "app/sim/failure.h"
#include "base/fault.h"
#include "base/file_io.h"
#include "base/folders.h"
#include "dice/roll_file.h"
#include "files/sessions_log.h"
#include "log/events_log.h"
#include "state/books.h"
#include "state/table.h"

namespace tessarel::sim {

namespace {

namespace fs = std::filesystem;

struct RunFile {
  CheckedText<0> what;
  const std::string* name;
  bool written;
};

// The file that links lead to, in one form for each file.
fs::path Resolved(const std::string& name) {
  std::error_code error;
  const fs::path path = fs::weakly_canonical(fs::absolute(PathOf(name), error), error);
  return error ? fs::path(PathOf(name)) : path;
}

void RefuseUnwritable(const RunFile& file) {
  const auto refuse = [&file](CheckedText<0> why) {
    throw Failure(CannotBeDone, Say(Text::SimCannotWrite, Say(file.what), *file.name, Say(why)));
  };
  const fs::path path = Resolved(*file.name);
  std::error_code error;
  if (fs::is_directory(path, error)) refuse(Text::SimIsFolder);
  if (fs::exists(path, error)) {
    if (!fs::is_regular_file(path, error)) refuse(Text::SimIsNotOrdinary);
    if (access(path.c_str(), W_OK) != 0) refuse(Text::SimMayNotChange);
  }
  const fs::path folder = path.parent_path();
  if (!fs::is_directory(folder, error)) refuse(Text::SimNoFolder);
  if (access(folder.c_str(), W_OK | X_OK) != 0) refuse(Text::SimFolderMayNotChange);
}

const std::string NoName;

std::vector<RunFile> FilesOf(const RunOptions& options) {
  std::vector<RunFile> files = {
      {Text::SimRollFile, &options.dice, false},
      {Text::SimAnswers, &options.answers, false},
      {Text::SimProbability, &options.probability, false},
      {Text::SimRecording, &options.record, true},
      {Text::SimEventsLog, &options.eventsLog, true},
      {Text::SimGameToSave, &options.save, true},
      {Text::SimReport, options.report == "-" ? &NoName : &options.report, true},
      {Text::SimResult, options.json == "-" ? &NoName : &options.json, true},
  };
  for (const ScriptArgument& script : options.scripts)
    files.push_back({Text::SimScript, &script.file, false});
  // A game may be saved to its own file: it is read before anything is written.
  const bool savedInPlace = !options.save.empty() && !options.game.empty() &&
                            Resolved(options.save) == Resolved(options.game);
  files.push_back({Text::SimGame, savedInPlace ? &NoName : &options.game, false});
  return files;
}

void RefuseDoubleUse(const RunFile& file, const std::vector<RunFile>& files) {
  const fs::path path = Resolved(*file.name);
  for (const RunFile& other : files) {
    if (other.name == file.name || other.name->empty() || Resolved(*other.name) != path) continue;
    throw Failure(CannotBeDone,
                  Say(Text::SimUsedTwice, Say(file.what), *file.name, Say(other.what)));
  }
}

}  // namespace

std::string PathOf(const std::string& name) {
  return InFolder(Folders.AppFolder, name);
}

void WithFile(CheckedText<0> what,
              const std::string& name,
              CheckedText<3> trouble,
              const std::function<void()>& work) {
  try {
    work();
  } catch (const Fault& fault) {
    throw Failure(CannotBeDone, Say(trouble, Say(what), name, fault.Description));
  }
}

void CheckFiles(const RunOptions& options) {
  if (options.json == "-" && options.report == "-") {
    throw Failure(WrongCommandLine, Say(Text::SimOneForOutput));
  }
  const std::vector<RunFile> files = FilesOf(options);
  for (const RunFile& file : files) {
    if (file.name->empty() || !file.written) continue;
    RefuseUnwritable(file);
    RefuseDoubleUse(file, files);
  }
}

void PlayFrom(const std::string& name) {
  const std::string path = PathOf(name);
  if (!FileExists(path)) {
    const bool there = fs::exists(path);
    throw Failure(CannotBeDone, SayChosen(there ? Text::SimNotOrdinaryFile : Text::SimDoesNotExist,
                                          Wording(Text::SimRollFile), name));
  }
  WithFile(Text::SimRollFile, name, Text::SimCannotRead, [&name] { OpenRollFile(name); });
  RewindForPlayback();
}

void OpenEventsLog(const std::string& name) {
  if (name.empty()) return;
  EventsLog.EventLogName = PathOf(name);
  WithFile(Text::SimEventsLog, name, Text::SimCannotContinue, IndexEventsLog);
  SelectAllEvents(true);
  EventsLog.LogOn = true;
}

void UseSessionsLogs(const std::string& folder) {
  SessionsLog.KeepLogs = !folder.empty();
  if (!folder.empty())
    Folders.SessionsLogFolder = fs::absolute(PathOf(folder)).lexically_normal().string() + "/";
}

void CheckSessionsLogs(const RunOptions& options) {
  if (options.sessionsLog.empty()) return;
  std::error_code error;
  fs::create_directories(PathOf(options.sessionsLog), error);
  if (error) {
    throw Failure(CannotBeDone, Say(Text::SimFolderNotMade, options.sessionsLog));
  }
  std::vector<RunFile> files = FilesOf(options);
  ForEachPlayer([&files](int place) {
    // Whoever was at the table already may come with a log of his own elsewhere.
    std::string& name = Table.SessionLogName[place];
    name = DefaultSessionsLogName(Table.PlayerName[place]);
    const RunFile log = {Text::SimSessionsLog, &name, true};
    RefuseUnwritable(log);
    RefuseDoubleUse(log, files);
    if (FileExists(*log.name) && !IsSessionsLog(*log.name)) {
      throw Failure(CannotBeDone, Say(Text::SimNotASessionsLog, Say(log.what), *log.name));
    }
    files.push_back(log);
  });
}

void LogLastSession() {
  ForEachPlayer([](int place) {
    WithFile(Text::SimSessionsLog, SessionsLogNameOf(place), Text::SimCannotContinue,
             [place] { WriteSession(place); });
  });
}

std::vector<LoggedSession> SessionsLoggedBefore() {
  std::vector<LoggedSession> sessions;
  if (!SessionsLog.KeepLogs || RollsInSession() == 0) return sessions;
  ForEachPlayer([&sessions](int place) {
    const std::string& log = SessionsLogNameOf(place);
    WithFile(Text::SimSessionsLog, log, Text::SimCannotContinue, [&] {
      if (EndsWithSession(log, SessionRecord(place))) sessions.push_back({log, CountSessions(log)});
    });
  });
  return sessions;
}

void RemoveContinued(const std::vector<LoggedSession>& sessions) {
  for (const auto& [log, number] : sessions) {
    WithFile(Text::SimSessionsLog, log, Text::SimCannotContinue, [&log = log, number = number] {
      if (CountSessions(log) > number) DeleteSessions(log, number, number);
    });
  }
}

Recording::Recording(const std::string& name) : name_(name) {
  if (name.empty()) return;
  const fs::path target = Resolved(name);
  target_ = target.string();
  part_ = (target.parent_path() / (".tessarel-" + std::to_string(getpid()) + ".rol")).string();
  WithFile(Text::SimRecording, name_, Text::SimCannotWrite, [this] {
    DeleteFileIfPresent(part_);
    OpenRollFile(part_);
  });
  RollFile.RollFileMode = RollFileRecord;
}

Recording::~Recording() {
  if (part_.empty()) return;
  RollFile = {};
  std::remove(part_.c_str());
}

bool Recording::Lost() const {
  return !part_.empty() && RollFile.RollFileMode != RollFileRecord;
}

void Recording::Finish() {
  if (part_.empty()) return;
  if (Lost()) {
    throw Failure(CannotBeDone, Say(Text::SimRecordingCutShort, name_));
  }
  WithFile(Text::SimRecording, name_, Text::SimCannotWrite, [] { CloseRollFile(); });
}

void Recording::Keep() {
  if (part_.empty()) return;
  if (std::rename(part_.c_str(), target_.c_str()) != 0) {
    throw Failure(CannotBeDone, Say(Text::SimRecordingNotPlaced, name_));
  }
  part_.clear();
}

}  // namespace tessarel::sim
