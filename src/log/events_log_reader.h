// Reading the events log by line number through its index. Log and index may be damaged, foreign or
// out of step: a line that is not there is empty, and nothing else comes of it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

namespace tessarel {

// A stretch of a file, held in memory, that moves to where bytes are asked for. What is written to
// the file after it was opened is not seen.
class FileWindow {
 public:
  explicit FileWindow(const std::string& path);

  int64_t Size() const { return size_; }  // 0 without a file
  // Up to `most` bytes from `at` on (from 0), fewer only at the end of the file; good until the
  // next call. `most` is at most half of what is held.
  std::string_view Bytes(int64_t at, size_t most);

 private:
  void MoveTo(int64_t at);

  std::ifstream file_;
  int64_t size_ = 0, start_ = 0;
  std::string held_;
};

// Opens the log and its index once, for any number of lines in any order; neighbouring lines cost
// no system call.
class EventsLogReader {
 public:
  EventsLogReader();

  // How many lines the index knows.
  int32_t LineCount() const;

  // A line from 1 as it stands in the file, without its line end; good until the next call. A line
  // is shown up to 65,536 bytes.
  std::string_view RawLine(int32_t number);
  // The same as UTF-8.
  std::string Line(int32_t number);

  // Whether the index seems to be that of the log: it begins at the first line and ends at the
  // last. What lies between is not looked at.
  bool IndexFits();

 private:
  int64_t PositionOf(int32_t number);

  FileWindow index_, log_;
};

int32_t EventLineCount();
std::string EventLine(int32_t number);
// The lines from `first` on, fewer than `count` at the end of the log.
std::vector<std::string> EventLines(int32_t first, int32_t count);

}  // namespace tessarel
