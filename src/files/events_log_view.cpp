#include "files/events_log_view.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <system_error>
#include <utility>

#include "base/file_io.h"
#include "base/folders.h"
#include "base/front_end.h"
#include "base/message.h"
#include "base/single_byte_text.h"
#include "base/trap.h"
#include "files/file_dialog.h"
#include "log/events_log.h"
#include "log/events_log_reader.h"
#include "stats/report.h"
#include "texts/say.h"

namespace tessarel {

EventsLogViewState EventsLogView;

namespace {

void UseLog(const std::string& path) {
  CloseEventsLog();
  EventsLog.EventLogName = IsSameFile(path, DefaultEventLogName()) ? "" : path;
  EventsLogView = {};
}

// A log that was never written to is an empty one.
void CopyLog(const std::string& from, const std::string& to) {
  FlushEventsLog();
  WriteFileAtomically(to, [&from](const ByteSink& sink) {
    if (!FileExists(from)) return;
    ReadFileInBlocks(from, [&sink](std::string_view bytes) {
      sink(bytes);
      return true;
    });
  });
}

// Where a log is to be copied to; empty when the user gives up.
std::string AskForCopy(const std::string& log) {
  const std::string name = FrontEnd.AskSaveFile(FileAction::SaveEventsLog, log);
  return name.empty() ? name : InFolder(Folders.EventsLogFolder, name);
}

bool IsDefaultLogEmpty() {
  std::error_code error;
  const uintmax_t size = std::filesystem::file_size(DefaultEventLogName(), error);
  return error || size == 0;
}

// Whether the default log may be emptied: it is empty, saved, or not wanted.
bool DefaultLogIsSaved() {
  if (IsDefaultLogEmpty()) return true;
  const int32_t answer = ShowMessage(Say(Text::AskToRenameEventsLog), Say(Text::SaveEventsLog),
                                     msg::AskYesDefault | msg::Cancel);
  if (answer != AnswerYes) return answer == AnswerNo;
  const std::string copy = AskForCopy(DefaultEventLogName());
  if (copy.empty() || IsSameFile(copy, DefaultEventLogName())) return false;
  CopyLog(DefaultEventLogName(), copy);
  return true;
}

void EmptyDefaultLog() {
  WriteFileAtomically(DefaultEventLogName(), "");
  WriteFileAtomically(EventsIndexName(), "");
  UseLog(DefaultEventLogName());
  EventsLog.LatestRollLine = 0;
  EndSections();
}

// --- Finding ------------------------------------------------------------------------------------

using ByteTable = std::array<char, 256>;

// The lower case of each byte of the log's code page.
ByteTable LowerCaseBytes() {
  ByteTable lower{};
  for (size_t byte = 0; byte < lower.size(); ++byte) {
    const std::string character(1, static_cast<char>(byte));
    lower[byte] = ToSingleByte(LowerCase(FromSingleByte(character))).front();
  }
  return lower;
}

// A text to be found in the lines as they stand in the file: a log may have millions.
class LineSearch {
 public:
  explicit LineSearch(std::string_view text) : text_(ToSingleByte(text)) {}

  bool IsIn(std::string_view line) const {
    const auto same = [this](char a, char b) { return Lower(a) == Lower(b); };
    return std::search(line.begin(), line.end(), text_.begin(), text_.end(), same) != line.end();
  }

 private:
  char Lower(char c) const { return lower_[static_cast<uint8_t>(c)]; }

  std::string text_;
  ByteTable lower_ = LowerCaseBytes();
};

// The first line with the text from `first` on, downward or upward; 0 when there is none.
int32_t LineWith(const std::string& text, int32_t first, int32_t step) {
  const LineSearch search(text);
  EventsLogReader reader;
  const int64_t lines = reader.LineCount();
  for (int64_t line = first; line >= 1 && line <= lines; line += step) {
    if (search.IsIn(reader.RawLine(static_cast<int32_t>(line)))) return static_cast<int32_t>(line);
  }
  return 0;
}

bool FindFrom(int32_t first, int32_t step) {
  int32_t line = 0;
  if (!Trapped("FindEvent", [&] { line = LineWith(EventsLogView.FindText, first, step); })) {
    return false;
  }
  if (line == 0) {
    ShowMessage(Say(Text::TextNotFound), Say(Text::SearchResults), msg::OkAlert);
    return false;
  }
  ScrollEventsLog(line);
  return true;
}

// A log that was never indexed by this run knows its rolls only by its lines.
int32_t LatestRollInLog() {
  EventsLogReader reader;
  int32_t line = reader.LineCount();
  while (line > 0 && !IsRollLine(reader.RawLine(line)))
    --line;
  return line;
}

void MakeIndexFit() {
  if (!EventsLogReader().IndexFits()) IndexEventsLog();
}

std::string HeadingRow(std::string& heading) {
  const size_t end = heading.find('\n');
  std::string row = heading.substr(0, end);
  heading.erase(0, end == std::string::npos ? end : end + 1);
  return row;
}

}  // namespace

EventLineKind KindOfEventLine(std::string_view line) {
  if (line.find("New session started") != std::string_view::npos) return EventLineKind::SessionLine;
  return line.find("Roll #") != std::string_view::npos ? EventLineKind::RollLine
                                                       : EventLineKind::Plain;
}

std::string EventsLogTitle() {
  const std::string title = Say(Text::EventsLog);
  const std::string& name = EventsLog.EventLogName;
  return name.empty() ? title : title + " (" + ShortName(name) + ")";
}

void LoadEventsLogView() {
  EventsLogView.TopLine = 1;
  EventsLogView.FollowedRollLine = 0;
  Trapped("LoadEventsLogView", MakeIndexFit);
  if (EventsLog.KeepLatestRollOnTop) KeepLatestRollOnTop(true);
}

bool OpenEventsLog(const std::string& name) {
  const std::string path = InFolder(Folders.EventsLogFolder, name);
  // Only of ordinary files it is known that they end.
  if (!FileExists(path)) {
    ShowMessage(Say(Text::FileNotFound) + "\r\r" + path, Say(Text::UnableToOpenFile), msg::OkAlert);
    return false;
  }
  const std::string before = EventsLog.EventLogName;
  const EventsLogViewState viewBefore = EventsLogView;
  UseLog(path);
  if (Trapped("OpenEventsLog", RebuildEventsIndex)) {
    EndSections();
    FollowLatestRoll();
    return true;
  }
  EventsLog.EventLogName = before;
  EventsLogView = viewBefore;
  return false;
}

bool NewEventsLog() {
  bool renewed = false;
  Trapped("NewEventsLog", [&renewed] {
    if (!DefaultLogIsSaved()) return;
    EmptyDefaultLog();
    renewed = true;
  });
  return renewed;
}

bool SaveEventsLogAs() {
  const std::string path = AskForCopy(EventsLogPath());
  if (path.empty()) return false;
  return Trapped("SaveEventsLogAs", [&path] {
    if (IsSameFile(path, EventsLogPath())) return;
    CopyLog(EventsLogPath(), path);
    const EventsLogViewState view = EventsLogView;
    UseLog(path);
    EventsLogView = view;
  });
}

void ScrollEventsLog(int32_t line) {
  EventsLogView.TopLine = std::clamp(line, 1, std::max(EventLineCount(), 1));
}

bool FollowLatestRoll() {
  const int32_t latest = EventsLog.LatestRollLine;
  if (!EventsLog.KeepLatestRollOnTop || latest == EventsLogView.FollowedRollLine) return false;
  EventsLogView.FollowedRollLine = latest;
  const int32_t before = EventsLogView.TopLine;
  ScrollEventsLog(latest);
  return EventsLogView.TopLine != before;
}

void KeepLatestRollOnTop(bool on) {
  EventsLog.KeepLatestRollOnTop = on;
  if (!on) return;
  Trapped("KeepLatestRollOnTop", [] { EventsLog.LatestRollLine = LatestRollInLog(); });
  EventsLogView.FollowedRollLine = 0;
  FollowLatestRoll();
}

bool FindEvent() {
  if (!AskForText(Say(Text::AskTextToFind), Say(Text::Find), EventsLogView.FindText) ||
      Message.MsgInput.empty()) {
    return false;
  }
  EventsLogView.FindText = Message.MsgInput;
  return FindFrom(1, 1);
}

bool FindNextEvent() {
  if (EventsLogView.FindText.empty()) return FindEvent();
  return FindFrom(EventsLogView.TopLine + 1, 1);
}

bool FindPreviousEvent() {
  if (EventsLogView.FindText.empty()) return FindEvent();
  return FindFrom(EventsLogView.TopLine - 1, -1);
}

bool PrintEventsLog(std::string_view gameFile,
                    const std::function<bool(const std::string&)>& print) {
  EventsLogReader reader;
  const int32_t lines = reader.LineCount();
  if (lines == 0) {
    ShowMessage(Say(Text::NoEventsToPrint), Say(Text::PrintEventsLog), msg::OkAlert);
    return false;
  }
  bool wanted = true;
  for (std::string heading = ReportHeader(Wording(Text::EventsLogReport), gameFile);
       wanted && !heading.empty();)
    wanted = print(HeadingRow(heading));
  for (int32_t line = 1; wanted && line <= lines; ++line)
    wanted = print(reader.Line(line));
  return true;
}

}  // namespace tessarel
