#include "dice/roll_file.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <string_view>
#include <tuple>
#include <utility>

#include "base/fault.h"
#include "base/folders.h"
#include "base/front_end.h"
#include "base/message.h"
#include "state/table.h"
#include "texts/say.h"

namespace tessarel {

RollFileState RollFile;

namespace {

constexpr int32_t BlockLength = 65'536;

constexpr CheckedText<1> UnableToOpen = Text::RollFileNotOpened;
constexpr CheckedText<1> UnableToRead = Text::RollFileNotRead;
constexpr CheckedText<1> UnableToWrite = Text::RollFileNotWritten;

[[noreturn]] void RaiseFileFault(CheckedText<1> what, const std::string& path) {
  const FaultNumber number = errno == ENOSPC ? FaultNumber::DeviceFull : FaultNumber::FileAccess;
  throw Fault(number, Say(what, path));
}

// Gives the file up after a failure of the disk: what it holds is no longer known.
[[noreturn]] void AbandonRollFile(CheckedText<1> what) {
  const int reason = errno;
  const std::string path = RollFile.RollFileName;
  RollFile = {};
  errno = reason;
  RaiseFileFault(what, path);
}

// Only ordinary files: a folder opens but cannot be read, a pipe cannot be rewound, and a null byte
// would cut the name to that of another file.
void CheckFileName(const std::string& path) {
  std::error_code ignored;
  if (path.find('\0') != std::string::npos ||
      (std::filesystem::exists(path, ignored) && !FileExists(path))) {
    throw Fault(FaultNumber::FileAccess, Say(Text::CannotHoldRolls, path));
  }
}

// Figures RollCountInFile from the file's present length, which other programs may change.
void MeasureRollFile() {
  RollFile.File.clear();
  errno = 0;
  const std::streamoff length = RollFile.File.seekg(0, std::ios::end).tellg();
  if (length < 0) AbandonRollFile(UnableToRead);
  RollFile.RollCountInFile = static_cast<int32_t>(std::min<std::streamoff>(length, MaxRollsInFile));
}

void DropBlock() {
  RollFile.Block.clear();
  RollFile.BlockIsRecorded = false;
}

bool BlockHolds(int32_t roll) {
  const auto offset = static_cast<int64_t>(roll) - RollFile.BlockStart;
  return offset >= 0 && offset < std::ssize(RollFile.Block);
}

// Reads the stretch that begins at `roll`; the block is empty when the file ends before it.
void LoadBlock(int32_t roll) {
  FlushRollFile();
  DropBlock();
  MeasureRollFile();
  const int32_t length = std::min(BlockLength, RollFile.RollCountInFile - roll + 1);
  if (length <= 0) return;
  RollFile.Block.resize(static_cast<size_t>(length));
  RollFile.BlockStart = roll;
  errno = 0;
  RollFile.File.seekg(roll - 1);
  RollFile.File.read(reinterpret_cast<char*>(RollFile.Block.data()), length);
  if (RollFile.File.bad()) AbandonRollFile(UnableToRead);
  RollFile.Block.resize(static_cast<size_t>(RollFile.File.gcount()));
}

// Has the block hold NextRoll; false at the end of the file.
bool HoldNextRoll() {
  RollFile.NextRoll = std::max(RollFile.NextRoll, 1);
  if (!RollFile.BlockIsRecorded && BlockHolds(RollFile.NextRoll)) return true;
  if (RollFile.File.is_open()) LoadBlock(RollFile.NextRoll);
  return !RollFile.Block.empty();
}

Faces HeldRoll() {
  return FacesOfByte(At(RollFile.Block, RollFile.NextRoll - RollFile.BlockStart));
}

void MovePastRoll() {
  RollFile.LastRoll = RollFile.NextRoll;
  RollFile.DisplayRoll = ++RollFile.NextRoll;
}

bool IsFace(int32_t die) {
  return die >= 1 && die <= 6;
}

// Writes out the rolls from `first` to `last`, or to the end of the file.
void PutRolls(int64_t first, int64_t last, const ByteSink& sink) {
  while (first <= last) {
    const auto count = std::min<int64_t>(BlockLength, last - first + 1);
    const std::string rolls = ReadRolls(first, static_cast<int32_t>(count));
    if (rolls.empty()) return;
    sink(rolls);
    first += std::ssize(rolls);
  }
}

// Opens the file again after another has taken its place; recorder and positions stay.
void ReopenRollFile() {
  const auto [mode, next, display, last] =
      std::tuple(RollFile.RollFileMode, RollFile.NextRoll, RollFile.DisplayRoll, RollFile.LastRoll);
  OpenRollFile(std::string(RollFile.RollFileName));
  RollFile.RollFileMode = mode;
  RollFile.NextRoll = next;
  RollFile.DisplayRoll = display;
  RollFile.LastRoll = last;
}

void StopAtInvalidRoll() {
  RollFile.RollFileMode = RollFileOff;
  if (!Table.HyperDriveOn) {
    FrontEnd.RefreshViews();
    ShowMessage(Say(Text::InvalidRollInFile), Say(Text::RollFileError), msg::OkAlert);
  }
  Table.Stop = StopCause::InvalidRoll;
}

}  // namespace

void OpenRollFile(const std::string& name) {
  CloseRollFile();
  const std::string path = InFolder(Folders.AppFolder, name);
  CheckFileName(path);
  const auto mode = std::ios::binary | std::ios::in;
  if (!FileExists(path)) std::ofstream(path, std::ios::binary | std::ios::app);
  RollFile.File.rdbuf()->pubsetbuf(nullptr, 0);
  errno = 0;
  RollFile.File.open(path, mode | std::ios::out);
  RollFile.ReadOnly = !RollFile.File.is_open();
  if (RollFile.ReadOnly) RollFile.File.open(path, mode);
  if (!RollFile.File.is_open()) RaiseFileFault(UnableToOpen, path);
  RollFile.RollFileName = path;
  RollFile.Block.reserve(BlockLength);
  MeasureRollFile();
}

void CloseRollFile() {
  FlushRollFile();
  RollFile = {};
}

void FlushRollFile() {
  if (!RollFile.BlockIsRecorded) return;
  RollFile.File.clear();
  errno = 0;
  RollFile.File.seekp(RollFile.BlockStart - 1);
  RollFile.File.write(reinterpret_cast<const char*>(RollFile.Block.data()),
                      std::ssize(RollFile.Block));
  RollFile.File.flush();
  if (!RollFile.File) AbandonRollFile(UnableToWrite);
  DropBlock();
}

void RewindForPlayback() {
  FlushRollFile();
  DropBlock();
  RollFile.RollFileMode = RollFilePlay;
  RollFile.NextRoll = RollFile.DisplayRoll = 1;
  RollFile.EndReached = false;
}

bool PlaysNextRoll() {
  if (!HoldNextRoll()) return false;
  const Faces faces = HeldRoll();
  return IsFace(faces.die1) && IsFace(faces.die2);
}

std::optional<Faces> PlayBackRoll() {
  RollFile.EndReached = !HoldNextRoll();
  if (RollFile.EndReached) {
    Table.Stop = StopCause::EndOfRollFile;
    return std::nullopt;
  }
  const Faces faces = HeldRoll();
  if (!IsFace(faces.die1) || !IsFace(faces.die2)) {
    StopAtInvalidRoll();
    return std::nullopt;
  }
  MovePastRoll();
  return faces;
}

void RecordToRollFile(Faces faces) {
  if (!RollFile.File.is_open() || !IsFace(faces.die1) || !IsFace(faces.die2)) return;
  RollFile.NextRoll = std::clamp(RollFile.NextRoll, 1, RollFile.RollCountInFile + 1);
  if (RollFile.NextRoll > MaxRollsInFile) {
    RollFile.RollFileMode = RollFileOff;
    RaiseOverflow();
  }
  if (RollFile.ReadOnly) {
    RollFile.RollFileMode = RollFileOff;
    throw Fault(FaultNumber::FileAccess, Say(Text::NoRollsRecordedTo, RollFile.RollFileName));
  }
  const bool goesOn = RollFile.BlockIsRecorded && std::ssize(RollFile.Block) < BlockLength &&
                      RollFile.NextRoll == RollFile.BlockStart + std::ssize(RollFile.Block);
  if (!goesOn) {
    FlushRollFile();
    DropBlock();
    RollFile.BlockStart = RollFile.NextRoll;
    RollFile.BlockIsRecorded = true;
  }
  RollFile.Block.push_back(RollByte(faces));
  RollFile.RollCountInFile = std::max(RollFile.RollCountInFile, RollFile.NextRoll);
  MovePastRoll();
}

std::string ReadRolls(int64_t first, int32_t count) {
  FlushRollFile();
  std::string rolls(static_cast<size_t>(count), '\0');
  RollFile.File.clear();
  errno = 0;
  RollFile.File.seekg(first - 1);
  RollFile.File.read(rolls.data(), count);
  if (RollFile.File.bad()) RaiseFileFault(UnableToRead, RollFile.RollFileName);
  rolls.resize(static_cast<size_t>(RollFile.File.gcount()));
  return rolls;
}

int32_t SpliceRolls(int32_t at,
                    int32_t removed,
                    const std::function<void(const ByteSink&)>& insert) {
  constexpr int64_t End = std::numeric_limits<int64_t>::max();
  FlushRollFile();
  int64_t written = 0, inserted = 0;
  WriteFileAtomically(RollFile.RollFileName, [&](const ByteSink& file) {
    const ByteSink counted = [&](std::string_view rolls) {
      written += std::ssize(rolls);
      if (written > MaxRollsInFile) RaiseOverflow();
      file(rolls);
    };
    PutRolls(1, at - 1, counted);
    inserted = -written;
    insert(counted);
    inserted += written;
    PutRolls(int64_t{at} + removed, End, counted);
  });
  ReopenRollFile();
  return static_cast<int32_t>(inserted);
}

bool IsRollFile(const std::string& name) {
  const std::string path = InFolder(Folders.AppFolder, name);
  CheckFileName(path);
  bool passes = true;
  ReadFileInBlocks(path, [&passes](std::string_view block) {
    passes = std::none_of(block.begin(), block.end(), [](char byte) { return (byte & 3) != 0; });
    return passes;
  });
  return passes;
}

}  // namespace tessarel
