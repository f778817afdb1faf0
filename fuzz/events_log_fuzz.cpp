// Events logs and indexes as anybody may make them: whatever the bytes are, paging, finding and
// printing end, a rebuilt index fits its log, and a line written afterwards is the last one. The
// first two bytes say how many of the others are the index.

#include <algorithm>
#include <string>

#include "base/folders.h"
#include "base/front_end.h"
#include "base/message.h"
#include "files/events_log_view.h"
#include "fuzz_helpers.h"
#include "log/events_log.h"
#include "log/events_log_reader.h"

namespace tessarel {
namespace {

constexpr std::string_view NewLine = " Roll #1:  7 (3.4)";

// The lines are the same one by one in either direction, and as a page.
void ReadAll() {
  EventsLogReader reader;
  const std::vector<std::string> page = EventLines(1, INT32_MAX);
  Require(page.size() == static_cast<size_t>(reader.LineCount()));
  for (int32_t n = reader.LineCount(); n >= 1; --n)
    Require(reader.Line(n) == page[static_cast<size_t>(n - 1)]);
  Require(reader.RawLine(0).empty() && reader.RawLine(reader.LineCount() + 1).empty());
}

void CheckTop() {
  Require(EventsLogView.TopLine >= 1 && EventsLogView.TopLine <= std::max(EventLineCount(), 1));
}

void Find() {
  FindEvent();
  CheckTop();
  FindNextEvent();
  FindPreviousEvent();
  CheckTop();
}

void Run(std::string_view bytes) {
  if (bytes.size() < 2) return;
  const auto byteAt = [bytes](size_t k) { return static_cast<uint8_t>(bytes[k]); };
  const size_t indexSize = byteAt(0) + 256u * byteAt(1);
  bytes.remove_prefix(2);
  EventsLog = {};
  EventsLogView = {};
  WriteBytes(EventsIndexName(), bytes.substr(0, indexSize));
  WriteBytes(DefaultEventLogName(), bytes.substr(std::min(indexSize, bytes.size())));
  ReadAll();
  Find();
  LoadEventsLogView();
  KeepLatestRollOnTop(true);
  ReadAll();
  Find();
  PrintEventsLog("", [](const std::string&) { return true; });
  Require(OpenEventsLog("Events Log.txt") && EventsLog.EventLogName.empty());
  const int32_t lines = EventLineCount();
  const bool ended = lines == 0 || bytes.back() == '\n';
  WriteEvent(NewLine);
  Require(EventLineCount() == lines + 1 && EventLine(lines + 1) == NewLine);
  Require(EventsLogReader().IndexFits() == ended);
  FollowLatestRoll();
  Require(EventsLogView.TopLine == lines + 1);
}

void SetUp() {
  SetAppFolder(FuzzFolder());
  FrontEnd.ShowMessage = [] { Message.MsgInput = "oll"; };
}

}  // namespace
}  // namespace tessarel

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace tessarel;
  if (Folders.AppFolder.empty()) SetUp();
  Run(InputOf(data, size));
  return 0;
}
