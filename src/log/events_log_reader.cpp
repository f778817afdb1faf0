#include "log/events_log_reader.h"

#include <algorithm>
#include <limits>

#include "base/file_io.h"
#include "base/single_byte_text.h"
#include "log/events_log.h"

namespace tessarel {

namespace {

constexpr int64_t PositionSize = 4;
// A damaged log may hold no line end at all; what is longer than this is no line of ours.
constexpr size_t LongestLine = 65536;
// Little enough to be read for a page, and so much that few lines move the window.
constexpr size_t WindowSize = 4 * LongestLine;

}  // namespace

FileWindow::FileWindow(const std::string& path) {
  if (!FileExists(path)) return;
  file_.open(path, std::ios::binary);
  file_.seekg(0, std::ios::end);
  size_ = file_ ? std::max<int64_t>(file_.tellg(), 0) : 0;
}

std::string_view FileWindow::Bytes(int64_t at, size_t most) {
  if (at < 0 || at >= size_) return {};
  most = static_cast<size_t>(std::min(static_cast<int64_t>(most), size_ - at));
  const int64_t heldEnd = start_ + static_cast<int64_t>(held_.size());
  if (at < start_ || at + static_cast<int64_t>(most) > heldEnd) MoveTo(at);
  // A file that was cut meanwhile holds fewer.
  const auto offset = static_cast<size_t>(at - start_);
  return offset < held_.size() ? std::string_view(held_).substr(offset, most) : std::string_view();
}

// A walk backward needs what lies before, a walk forward what lies after; a small file is held as
// a whole.
void FileWindow::MoveTo(int64_t at) {
  const bool backward = at < start_;
  start_ = backward ? at - static_cast<int64_t>(WindowSize / 2) : at;
  start_ = std::max<int64_t>(std::min(start_, size_ - static_cast<int64_t>(WindowSize)), 0);
  held_.resize(static_cast<size_t>(std::min<int64_t>(WindowSize, size_ - start_)));
  file_.clear();
  file_.seekg(start_);
  file_.read(held_.data(), static_cast<std::streamsize>(held_.size()));
  held_.resize(static_cast<size_t>(file_.gcount()));
}

// What a run still holds is written out first.
EventsLogReader::EventsLogReader()
    : index_((FlushEventsLog(), EventsIndexName())), log_(EventsLogPath()) {}

int32_t EventsLogReader::LineCount() const {
  return static_cast<int32_t>(
      std::min<int64_t>(index_.Size() / PositionSize, std::numeric_limits<int32_t>::max()));
}

int64_t EventsLogReader::PositionOf(int32_t number) {
  const std::string_view bytes = index_.Bytes(PositionSize * (int64_t{number} - 1), PositionSize);
  if (bytes.size() < PositionSize) return 0;
  uint32_t position = 0;
  for (size_t k = 0; k < bytes.size(); ++k)
    position |= static_cast<uint32_t>(static_cast<uint8_t>(bytes[k])) << (8 * k);
  return static_cast<int32_t>(position);
}

std::string_view EventsLogReader::RawLine(int32_t number) {
  std::string_view line = log_.Bytes(PositionOf(number) - 1, LongestLine);
  line = line.substr(0, line.find('\n'));
  if (line.ends_with('\r')) line.remove_suffix(1);
  return line;
}

std::string EventsLogReader::Line(int32_t number) {
  return FromSingleByte(RawLine(number));
}

bool EventsLogReader::IndexFits() {
  if (index_.Size() % PositionSize != 0) return false;
  const int32_t lines = LineCount();
  if (lines == 0 || log_.Size() == 0) return index_.Size() == log_.Size();
  const int64_t last = PositionOf(lines) - 1;
  if (PositionOf(1) != 1 || last < 0 || last >= log_.Size()) return false;
  if (last > 0 && log_.Bytes(last - 1, 1) != "\n") return false;
  const std::string_view rest = log_.Bytes(last, LongestLine);
  return last + static_cast<int64_t>(rest.size()) == log_.Size() &&
         rest.find('\n') >= rest.size() - 1;
}

int32_t EventLineCount() {
  return EventsLogReader().LineCount();
}

std::string EventLine(int32_t number) {
  return EventsLogReader().Line(number);
}

std::vector<std::string> EventLines(int32_t first, int32_t count) {
  EventsLogReader reader;
  std::vector<std::string> lines;
  const int64_t end = std::min<int64_t>(int64_t{first} + count - 1, reader.LineCount());
  for (int64_t number = std::max(first, 1); number <= end; ++number)
    lines.push_back(reader.Line(static_cast<int32_t>(number)));
  return lines;
}

}  // namespace tessarel
