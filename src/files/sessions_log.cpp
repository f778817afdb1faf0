#include "files/sessions_log.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string_view>

#include "base/fault.h"
#include "base/file_io.h"
#include "base/folders.h"
#include "base/single_byte_text.h"
#include "state/books.h"
#include "state/table.h"

namespace tessarel {

SessionsLogState SessionsLog;

namespace {

namespace fs = std::filesystem;

constexpr std::string_view HeaderText = "Tessarel Sessions Log, Data Format 5.0";
constexpr std::string_view FormatMark = "Data Format 5.0";
constexpr int HeaderTextWidth = 92, ReservedWidth = 160, CountWord = 63;
constexpr int StacksLogged = 20;
constexpr int64_t RecordSize = Record::Size;

[[noreturn]] void RaiseFileAccess() {
  throw Fault(FaultNumber::FileAccess, FaultWording.FileAccess);
}

Record Header(int32_t sessions) {
  Record header;
  header.PutTextField(0, HeaderTextWidth, HeaderText);
  header.PutTextField(HeaderTextWidth, ReservedWidth, "");
  header.PutWord(CountWord, sessions);
  return header;
}

std::string_view BytesOf(const Record& record) {
  return {reinterpret_cast<const char*>(record.Bytes.data()), record.Bytes.size()};
}

// The bytes of a file from `from` up to `to`, as far as they are there.
void CopyBytes(const std::string& name, int64_t from, int64_t to, const ByteSink& sink) {
  int64_t at = 0;
  ReadFileInBlocks(name, [&](std::string_view block) {
    const int64_t end = at + static_cast<int64_t>(block.size());
    const int64_t first = std::max(from, at), last = std::min(to, end);
    if (first < last) {
      sink(block.substr(static_cast<size_t>(first - at), static_cast<size_t>(last - first)));
    }
    at = end;
    return at < to;
  });
}

// Sessions `first` to `last`, as far as they are there.
void CopySessions(const std::string& name, int32_t first, int32_t last, const ByteSink& sink) {
  CopyBytes(name, first * RecordSize, (last + int64_t{1}) * RecordSize, sink);
}

int64_t SizeOf(const std::string& name) {
  std::error_code error;
  const uintmax_t size = fs::file_size(name, error);
  return error ? 0 : static_cast<int64_t>(std::min<uintmax_t>(size, INT64_MAX));
}

// The sessions in a file, by its header and its length; empty when it is no log.
std::optional<int32_t> SessionsIn(const std::string& name) {
  if (!FileExists(name)) return std::nullopt;
  std::string bytes;
  CopyBytes(name, 0, RecordSize, [&bytes](std::string_view part) { bytes += part; });
  if (static_cast<int64_t>(bytes.size()) < RecordSize) return std::nullopt;
  if (bytes.substr(0, HeaderTextWidth).find(FormatMark) == std::string::npos) return std::nullopt;
  const int32_t counted = RecordFile::OfBytes(bytes).At(1).Word(CountWord);
  const int64_t whole = std::max<int64_t>(SizeOf(name) / RecordSize - 1, 0);
  return static_cast<int32_t>(std::clamp<int64_t>(counted, 0, whole));
}

// The same for a log that is to be changed: a file that is not there is a log to be made. The file
// access fault for anything else.
int32_t SessionsToKeep(const std::string& name) {
  if (const auto sessions = SessionsIn(name)) return *sessions;
  std::error_code error;
  if (fs::exists(name, error)) RaiseFileAccess();
  return 0;
}

void PutRecord(std::ostream& file, int64_t number, const Record& record) {
  file.seekp((number - 1) * RecordSize);
  file << BytesOf(record);
  if (!file.flush()) throw Fault(FaultNumber::DeviceFull, FaultWording.DeviceFull);
}

}  // namespace

std::string DefaultSessionsLogName(const std::string& player) {
  std::string file = LowerCase(player) + ".slg";
  std::ranges::replace_if(
      file, [](char c) { return c == '/' || c == '\\' || c == '\0'; }, '_');
  return Folders.SessionsLogFolder + file;
}

const std::string& SessionsLogNameOf(int place) {
  std::string& name = Table.SessionLogName[place];
  if (name.empty()) name = DefaultSessionsLogName(Table.PlayerName[place]);
  return name;
}

bool IsSessionsLog(const std::string& name) {
  return SessionsIn(name).has_value();
}

int32_t CountSessions(const std::string& name) {
  return SessionsIn(name).value_or(0);
}

std::vector<Session> ReadSessions(const std::string& name) {
  const int32_t count = CountSessions(name);
  if (count > MaxSessionsRead) throw Fault(FaultNumber::FileAccess, FaultWording.FileTooLarge);
  std::vector<Session> sessions;
  sessions.reserve(static_cast<size_t>(count));
  Record record;
  size_t filled = 0;
  CopySessions(name, 1, count, [&](std::string_view bytes) {
    while (!bytes.empty()) {
      const size_t taken = std::min(bytes.size(), record.Bytes.size() - filled);
      std::copy_n(bytes.begin(), taken, record.Bytes.begin() + static_cast<ptrdiff_t>(filled));
      bytes.remove_prefix(taken);
      filled = (filled + taken) % record.Bytes.size();
      if (filled != 0) continue;
      Session& session = sessions.emplace_back();
      for (int slot = 0; slot < SessionFigures; ++slot)
        At(session, slot) = record.Amount(slot);
    }
  });
  return sessions;
}

bool EndsWithSession(const std::string& name, const Record& record) {
  const int32_t last = CountSessions(name);
  if (last == 0) return false;
  std::string bytes;
  CopySessions(name, last, last, [&bytes](std::string_view part) { bytes += part; });
  return bytes == BytesOf(record);
}

Record SessionRecord(int place) {
  Record record;
  const Session session = SessionSoFar(place);
  for (int slot = 0; slot < SessionFigures; ++slot)
    record.PutAmount(slot, At(session, slot));
  for (int stack = 0; stack < StacksLogged; ++stack)
    record.PutAmount(SessionFigures + stack, Bet(place, FirstStack + stack));
  return record;
}

void WriteSession(int place) {
  if (!SessionsLog.KeepLogs || RollsInSession() == 0) return;
  const std::string& name = SessionsLogNameOf(place);
  const Record record = SessionRecord(place);
  const int32_t sessions = SessionsToKeep(name);
  if (sessions == INT32_MAX) RaiseOverflow();
  if (!FileExists(name)) WriteFileAtomically(name, BytesOf(Header(0)));
  std::fstream file(name, std::ios::binary | std::ios::in | std::ios::out);
  if (!file) RaiseFileAccess();
  PutRecord(file, sessions + int64_t{2}, record);
  PutRecord(file, 1, Header(sessions + 1));
}

void ClearSessionsLog(const std::string& name) {
  SessionsToKeep(name);
  WriteFileAtomically(name, BytesOf(Header(0)));
}

void DeleteSessions(const std::string& name, int32_t first, int32_t last) {
  const int32_t count = CountSessions(name);
  if (first < 1 || last < first || last > count) RaiseIndexOutOfRange();
  const int32_t left = count - (last - first + 1);
  WriteFileAtomically(name, [&](const ByteSink& sink) {
    sink(BytesOf(Header(left)));
    CopySessions(name, 1, first - 1, sink);
    CopySessions(name, last + 1, count, sink);
    CopyBytes(name, (left + int64_t{1}) * RecordSize, INT64_MAX, sink);  // stale from here on
  });
}

void AppendSessions(const std::string& name, const std::string& other) {
  const int32_t count = SessionsToKeep(name);
  const auto added = SessionsIn(other);
  if (!added) RaiseFileAccess();
  int32_t both = 0;
  if (__builtin_add_overflow(count, *added, &both)) RaiseOverflow();
  WriteFileAtomically(name, [&](const ByteSink& sink) {
    sink(BytesOf(Header(both)));
    if (count > 0) CopySessions(name, 1, count, sink);
    CopySessions(other, 1, *added, sink);
  });
}

void MoveSessionsLog(const std::string& from, const std::string& to) {
  if (IsSameFile(from, to)) return;
  WriteFileAtomically(to, [&from](const ByteSink& sink) { CopyBytes(from, 0, INT64_MAX, sink); });
  DeleteFileIfPresent(from);
}

void DeleteSessionsLog(int place) {
  if (!SessionsLog.KeepLogs) return;
  const std::string& name = SessionsLogNameOf(place);
  if (IsSessionsLog(name)) DeleteFileIfPresent(name);
}

}  // namespace tessarel
