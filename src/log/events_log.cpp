#include "log/events_log.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <limits>
#include <system_error>

#include "base/fault.h"
#include "base/folders.h"
#include "base/single_byte_text.h"
#include "state/table.h"

namespace tessarel {

EventsLogState EventsLog;

namespace {

constexpr std::string_view LineEnd = "\r\n";
constexpr std::string_view RollStart = "Roll";
constexpr int64_t PositionSize = 4;
// Positions in the index are signed 32-bit numbers from 1, so no line may start after this.
constexpr int64_t LastPosition = std::numeric_limits<int32_t>::max();
constexpr size_t BlockSize = 65536;

constexpr std::array AllKinds = {
    &EventsLogState::LogRolls,     &EventsLogState::LogBets,     &EventsLogState::LogCheckStacks,
    &EventsLogState::LogShooters,  &EventsLogState::LogWins,     &EventsLogState::LogLosses,
    &EventsLogState::LogDecisions, &EventsLogState::LogBankroll,
};

[[noreturn]] void RaiseFileAccess() {
  throw Fault(FaultNumber::FileAccess, FaultWording.FileAccess);
}

// Writes out what is buffered; a full disk shows here.
void Close(std::ofstream& file) {
  file.close();
  if (!file) throw Fault(FaultNumber::DeviceFull, FaultWording.DeviceFull);
}

void Remove(const std::string& name) {
  std::error_code error;
  std::filesystem::remove(name, error);
  if (error) RaiseFileAccess();
}

// A position as it stands in the index.
std::array<char, PositionSize> PositionBytes(int64_t position) {
  if (position > LastPosition) RaiseOverflow();
  std::array<char, PositionSize> bytes{};
  for (size_t k = 0; k < bytes.size(); ++k)
    bytes[k] = static_cast<char>(position >> (8 * k) & 0xFF);
  return bytes;
}

// The two files as they are held during a run: lines gather in memory and are written out in large
// pieces.
class OpenLog {
 public:
  bool IsFor(const std::string& name, const std::string& folder) const {
    return log_.is_open() && name == name_ && folder == folder_;
  }

  void OpenBoth(const std::string& name, const std::string& folder) {
    name_ = name;
    folder_ = folder;
    try {
      const std::string indexName = EventsIndexName();
      OpenAtEnd(index_, indexName);
      OpenAtEnd(log_, EventsLogPath());
      size_ = log_.tellp();
      const int64_t indexSize = index_.tellp();
      lines_ = indexSize / PositionSize;
      // A record that was cut off in the middle gives way to the next one.
      if (indexSize % PositionSize != 0) CutTo(indexName, lines_ * PositionSize);
    } catch (const Fault&) {
      Forget();
      throw;
    }
  }

  // A log that has no room for the line is closed as it stands.
  void Add(std::string_view line) {
    if (size_ >= LastPosition) {
      Close();
      RaiseOverflow();
    }
    const auto position = PositionBytes(size_ + 1);
    positions_.append(position.data(), position.size());
    const size_t before = text_.size();
    AppendSingleByte(text_, line);
    text_ += LineEnd;
    size_ += static_cast<int64_t>(text_.size() - before);
    ++lines_;
    if (text_.size() >= MostHeld) Flush();
  }

  int32_t Lines() const { return static_cast<int32_t>(lines_); }

  // Writes out what is held. After a fault nothing is open and what was held is gone.
  void Flush() {
    if (text_.empty()) return;
    index_ << positions_ << std::flush;
    log_ << text_ << std::flush;
    positions_.clear();
    text_.clear();
    if (index_ && log_) return;
    Forget();
    throw Fault(FaultNumber::DeviceFull, FaultWording.DeviceFull);
  }

  void Close() {
    if (!log_.is_open()) return;
    Flush();
    Forget();
  }

 private:
  static constexpr size_t MostHeld = 1 << 20;

  static void OpenAtEnd(std::ofstream& file, const std::string& name) {
    file.open(name, std::ios::binary | std::ios::app);
    file.seekp(0, std::ios::end);
    if (!file) RaiseFileAccess();
  }

  static void CutTo(const std::string& name, int64_t size) {
    std::error_code error;
    std::filesystem::resize_file(name, static_cast<uintmax_t>(size), error);
    if (error) RaiseFileAccess();
  }

  void Forget() {
    index_ = std::ofstream();
    log_ = std::ofstream();
    positions_.clear();
    text_.clear();
  }

  std::ofstream index_, log_;
  std::string name_, folder_;
  std::string positions_, text_;
  int64_t size_ = 0, lines_ = 0;
};

OpenLog Open;

// Walks over the bytes of a log in blocks of any size and finds where its lines start.
class LineFinder {
 public:
  // Returns the index of the lines that start in the block; good until the next one.
  std::string_view Take(std::string_view block) {
    index_.clear();
    for (size_t at = 0; at < block.size();) {
      if (atLineStart_) StartLine(position_ + static_cast<int64_t>(at));
      at = MatchRoll(block, at);
      const size_t end = block.find('\n', at);
      atLineStart_ = end != std::string_view::npos;
      at = atLineStart_ ? end + 1 : block.size();
    }
    position_ += static_cast<int64_t>(block.size());
    return index_;
  }

  int32_t LatestRoll() const { return latestRoll_; }

 private:
  void StartLine(int64_t position) {
    const auto bytes = PositionBytes(position);
    index_.append(bytes.data(), bytes.size());
    ++lines_;
    matched_ = 0;
    matching_ = true;
    atLineStart_ = false;
  }

  // Follows the blanks and the word that begin the line of a roll, which may lie across two blocks.
  size_t MatchRoll(std::string_view block, size_t at) {
    for (; matching_ && at < block.size(); ++at) {
      if (matched_ == 0 && block[at] == ' ') continue;
      if (block[at] != RollStart[matched_]) {
        matching_ = false;
        break;
      }
      if (++matched_ == RollStart.size()) {
        latestRoll_ = lines_;
        matching_ = false;
      }
    }
    return at;
  }

  std::string index_;
  int64_t position_ = 1;
  int32_t lines_ = 0, latestRoll_ = 0;
  bool atLineStart_ = true, matching_ = false;
  size_t matched_ = 0;
};

// Reads the log through and writes its index to the file `indexName`. Answers with the number of
// the latest line of a roll.
int32_t IndexLog(const std::string& indexName) {
  std::ifstream log(EventsLogPath(), std::ios::binary);
  if (!log) throw Fault(FaultNumber::FileNotFound, FaultWording.FileNotFound);
  std::ofstream index(indexName, std::ios::binary | std::ios::trunc);
  if (!index) RaiseFileAccess();
  LineFinder finder;
  std::string block(BlockSize, '\0');
  while (log.read(block.data(), static_cast<std::streamsize>(block.size())), log.gcount() > 0) {
    index << finder.Take(std::string_view(block).substr(0, static_cast<size_t>(log.gcount())));
  }
  if (log.bad()) RaiseFileAccess();
  Close(index);
  return finder.LatestRoll();
}

}  // namespace

std::string DefaultEventLogName() {
  return Folders.AppFolder + "Events Log.txt";
}

std::string EventsIndexName() {
  return Folders.AppFolder + "Events Log.ref";
}

std::string EventsLogPath() {
  return EventsLog.EventLogName.empty() ? DefaultEventLogName() : EventsLog.EventLogName;
}

bool IsRollLine(std::string_view line) {
  const size_t start = line.find_first_not_of(' ');
  return start != std::string_view::npos && line.substr(start).starts_with(RollStart);
}

bool EventsLogExists() {
  std::error_code error;
  return std::filesystem::exists(EventsLogPath(), error);
}

void WriteEvent(std::string_view line) {
  if (!Open.IsFor(EventsLog.EventLogName, Folders.AppFolder)) {
    Open.Close();
    Open.OpenBoth(EventsLog.EventLogName, Folders.AppFolder);
  }
  Open.Add(line);
  if (EventsLog.KeepLatestRollOnTop && IsRollLine(line)) EventsLog.LatestRollLine = Open.Lines();
  if (!RunIsOn()) Open.Close();
}

void FlushEventsLog() {
  Open.Flush();
}

void CloseEventsLog() {
  Open.Close();
}

void WriteSection(std::string_view heading) {
  if (EventsLog.SectionHeading == heading) return;
  WriteEvent(heading);
  EventsLog.SectionHeading = heading;
}

void EndSections() {
  EventsLog.SectionHeading.clear();
}

void SelectAllEvents(bool on) {
  for (const auto kind : AllKinds)
    EventsLog.*kind = on;
}

void ClearEventsLog() {
  CloseEventsLog();
  Remove(EventsIndexName());
  Remove(EventsLogPath());
  EventsLog.LatestRollLine = 0;
  EndSections();
}

void IndexEventsLog() {
  CloseEventsLog();
  if (EventsLogExists()) return RebuildEventsIndex();
  Remove(EventsIndexName());
  EventsLog.LatestRollLine = 0;
}

void RebuildEventsIndex() {
  CloseEventsLog();
  // The new index replaces the old one only when it is whole.
  const std::string unfinished = EventsIndexName() + ".tmp";
  try {
    EventsLog.LatestRollLine = IndexLog(unfinished);
  } catch (const Fault&) {
    std::remove(unfinished.c_str());
    throw;
  }
  std::error_code error;
  std::filesystem::rename(unfinished, EventsIndexName(), error);
  if (error) RaiseFileAccess();
}

}  // namespace tessarel
