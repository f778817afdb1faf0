// Sessions logs (".slg"): one record for every finished session of a player, after a header that
// counts them. The table writes one when a session ends; the sessions view reads and edits them. A
// log is opened, used and closed in one call. Whatever bytes a file holds, no more sessions are
// taken from it than it has whole records, and a file that is no log is never changed or deleted.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "base/record_file.h"
#include "stats/session_statistics.h"

namespace tessarel {

struct SessionsLogState {
  bool KeepLogs = true;  // 0: sessions leave no record, and no log is deleted
};

extern SessionsLogState SessionsLog;

// Far above what anybody plays, and little enough to hold in memory.
inline constexpr int32_t MaxSessionsRead = 1 << 22;

// NAME.slg in lower case, in the folder of sessions logs. What would lead to another folder is
// replaced.
std::string DefaultSessionsLogName(const std::string& player);

// The log of a place; a player who has none is given the default one.
const std::string& SessionsLogNameOf(int place);

// Whether a file is there and its header is one of this format.
bool IsSessionsLog(const std::string& name);

// The sessions in a log, 0 for a file that is none.
int32_t CountSessions(const std::string& name);

// All sessions of a log, in order; none of a file that is no log. File faults; more than
// MaxSessionsRead sessions raise the file access fault.
std::vector<Session> ReadSessions(const std::string& name);

// Whether the last session of a log has this record. File faults.
bool EndsWithSession(const std::string& name, const Record& record);

// The record of a place's session as it stands: its figures, then its first 20 check stacks.
Record SessionRecord(int place);

// A session of the place ends: its record goes after the last one of the place's log, which is
// made if it is not there. Nothing is written for a session without a roll. The header is rewritten
// last, so that a log whose writer was interrupted is the log as it was. Its cost does not grow
// with the log. File faults, also when the file of that name is no sessions log.
void WriteSession(int place);

// Makes the file a log without sessions. Any other file than a log raises the file access fault.
void ClearSessionsLog(const std::string& name);

// Takes sessions `first` to `last` out of a log; they must be between 1 and its count, else the
// index fault. The file keeps its length: the count says what is valid in it. On a file fault it
// stands as it was.
void DeleteSessions(const std::string& name, int32_t first, int32_t last);

// Appends the sessions of `other`, a log, after those of the log `name`, which is made if it is
// not there. On a file fault it stands as it was.
void AppendSessions(const std::string& name, const std::string& other);

// Gives a file another name, on another disk too. On a file fault the old one stands as it was.
void MoveSessionsLog(const std::string& from, const std::string& to);

// Deletes the log of a place.
void DeleteSessionsLog(int place);

}  // namespace tessarel
