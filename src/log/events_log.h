// The events log: a running text record of the game, one line an event, with an index file that
// finds each line. Callers ask Logs(...) before they build any text, so that a log that is switched
// off costs one test. What reads it is log/events_log_reader.h.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tessarel {

struct EventsLogState {
  bool LogOn = false;  // the master switch
  bool LogRolls = true, LogBets = true, LogCheckStacks = true, LogShooters = true, LogWins = true,
       LogLosses = true, LogDecisions = true, LogBankroll = true;
  bool KeepLatestRollOnTop = false;
  int32_t LatestRollLine = 0;  // number of the latest line that starts with "Roll", blanks aside
  std::string EventLogName;    // full name of the text, empty for the default; see EventsIndexName
  std::string SectionHeading;  // the heading under which the lines of the roll now stand
};

extern EventsLogState EventsLog;

// Whether events of a kind are to be written.
inline bool Logs(bool EventsLogState::*kind) {
  return EventsLog.LogOn && EventsLog.*kind != 0;
}

// Appends one line (UTF-8, without its line end) to the log and its position to the index. During a
// run both stay open and lines gather in memory; otherwise both are closed again when it returns. A
// file that cannot be written raises the file fault; a log too long for a 32-bit position raises
// the overflow fault and stays as it is.
void WriteEvent(std::string_view line);

// Writes out the lines that gathered in a run, or that and closes both files. The run calls this at
// each pause and stop and about once a second; whoever reads the files or shows a message, before.
void FlushEventsLog();
void CloseEventsLog();

// Writes `heading` unless it is the one in force, and puts it in force.
void WriteSection(std::string_view heading);

// Ends the section in force, so that the next WriteSection writes its heading again.
void EndSections();

// Sets or clears the eight kinds.
void SelectAllEvents(bool on);

// Deletes the log and its index.
void ClearEventsLog();

// "Events Log.txt" in the program's folder: the log while EventLogName is empty.
std::string DefaultEventLogName();

// The full name of the log in use, whether it has a name of its own or not.
std::string EventsLogPath();

// Whether the line, blanks aside, starts with "Roll".
bool IsRollLine(std::string_view line);

// "Events Log.ref" in the program's folder, whatever the log is called: for each line 4 bytes, its
// position in the log from 1, lowest byte first.
std::string EventsIndexName();

// Whether there is a log on the disk, empty or not.
bool EventsLogExists();

// Reads the log through once, writes its index anew and finds LatestRollLine. On a fault (no log, a
// disk that is full, a line after the last 32-bit position) the old index stays.
void RebuildEventsIndex();

// Brings the index in line with the log in use: RebuildEventsIndex, or none without a log.
void IndexEventsLog();

}  // namespace tessarel
