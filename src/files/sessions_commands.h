// The commands of the sessions view, with the questions they put to the user: opening, starting,
// editing and merging the logs of players, and finding a value among the sessions. A command that
// is given up, refused or meets a fault, which it reports, changes nothing and returns false.
#pragma once

#include <string>

#include "stats/session_statistics.h"

namespace tessarel {

// The figures of the place's log and its session in progress, as SessionsView asks; of nothing for
// an open place. File faults.
SessionStatistics SessionStatisticsOf(int place);

// Makes another log that of the place; a relative name is taken from the folder of sessions logs. A
// file that is no log is refused; one that is not there is not reported.
bool OpenSessionsLog(int place, const std::string& name);

// Starts a fresh log under the default name for one player, or for all. Sessions that stand there
// already can be kept under another name first.
bool NewSessionsLog(int place);
bool NewSessionsLogs();

// Asks which sessions are to be deleted, one or a range, and deletes them.
bool AskToDeleteSessions(int place);
bool AskToDeleteAllSessions(int place);

// Appends the sessions of another log to those of the place. Refuses a file that is no log, and the
// place's own.
bool MergeSessionsLog(int place, const std::string& name);

// After a player has another name: asks whether his log shall have another one too, and moves it.
bool OfferToRenameSessionsLog(int place);

// Asks for a value and finds the first row with it; then the next or the one before it, which ask
// only when nothing was looked for yet. The row is left in SessionsView.FoundRow.
bool AskToFindSession(const SessionStatistics& statistics);
bool FindNextSession(const SessionStatistics& statistics);
bool FindPreviousSession(const SessionStatistics& statistics);

// Asks for the value at which the sessions are divided.
bool AskBreakPoint();

}  // namespace tessarel
