#include "ui/autosave.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>

#include "autobet/values.h"
#include "base/fault.h"
#include "base/file_io.h"
#include "base/folders.h"
#include "files/game_file.h"
#include "state/table.h"

namespace tessarel {

namespace {

constexpr int EveryMs = 60'000;
constexpr const char* FileName = "unfinished.tsg";
constexpr const char* LockName = "tessarel.lock";

QString Named(const std::string& file) {
  return QString::fromStdString(file);
}

}  // namespace

Autosave::Autosave(const std::string& folder, QObject* parent)
    : QObject(parent),
      file_(AsFolder(folder) + FileName),
      lock_(std::make_unique<QLockFile>(Named(AsFolder(folder) + LockName))) {
  lock_->setStaleLockTime(0);
  owns_ = lock_->tryLock(0);
}

bool Autosave::CanWrite() const {
  return lock_->error() != QLockFile::PermissionError && lock_->error() != QLockFile::UnknownError;
}

bool Autosave::FindsTable() const {
  return owns_ && FileExists(file_);
}

std::string Autosave::TimeOfTable() const {
  if (!FindsTable()) return {};
  return QFileInfo(Named(file_)).lastModified().toString("yyyy-MM-dd HH:mm:ss").toStdString();
}

bool Autosave::TakeUp() {
  const QString automatic = Named(Folders.AppFolder) + QString::fromUtf8(AutomaticGameFile.data());
  QFile::remove(automatic + "~");
  if (QFile::exists(automatic) && !QFile::rename(automatic, automatic + "~")) return false;
  if (!QFile::rename(Named(file_), automatic)) {
    QFile::rename(automatic + "~", automatic);
    return false;
  }
  QFile::remove(automatic + "~");
  return true;
}

void Autosave::Discard() {
  if (owns_) QFile::remove(Named(file_));
}

void Autosave::Start() {
  if (!owns_) return;
  timer_.setInterval(EveryMs);
  connect(&timer_, &QTimer::timeout, this, &Autosave::Tick);
  timer_.start();
}

void Autosave::Tick() {
  due_ = true;
  if (!Table.RollInProgress && !AutoBet.ScriptRunning) SaveIfDue();
}

void Autosave::SaveIfDue() {
  if (!due_) return;
  due_ = false;
  if (!Table.TableDirty) return Discard();
  try {
    SaveGameCopy(file_);
  } catch (const Fault&) {
    // A disk that is full now may have room the next time; play is not stopped for it.
  }
}

void Autosave::End() {
  timer_.stop();
  Discard();
  if (owns_) lock_->unlock();
}

}  // namespace tessarel
