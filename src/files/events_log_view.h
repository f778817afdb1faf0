// What the events-log window does, without the window: it opens, renews and saves logs, follows the
// rolls, finds and prints lines. The routines a user reaches report their faults and say what has
// to be said; the lines themselves come from log/events_log_reader.h.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace tessarel {

struct EventsLogViewState {
  int32_t TopLine = 1;           // the line at the top of the window, from 1
  int32_t FollowedRollLine = 0;  // the LatestRollLine that was last put there
  std::string FindText;          // what was looked for last
};

extern EventsLogViewState EventsLogView;

// Lines that are shown in a colour of their own.
enum class EventLineKind { Plain, SessionLine, RollLine };
EventLineKind KindOfEventLine(std::string_view line);

// "Events Log", with the log's short name in brackets when it has one of its own.
std::string EventsLogTitle();

// When the window opens: an index that does not fit its log is made anew. Shows the first line.
void LoadEventsLogView();

// Makes a file the log in use, with a new index. False, with all as it was, when it cannot be read.
bool OpenEventsLog(const std::string& name);

// Starts the default log anew; a log with a name of its own is left as it is. What the default log
// holds is saved before under a new name if the user wants it. False, with all as it was, when he
// gives up or a file cannot be written.
bool NewEventsLog();

// Copies the log to a file that the user names, which is the log from then on.
bool SaveEventsLogAs();

// Puts a line at the top, the nearest one there is.
void ScrollEventsLog(int32_t line);

// When lines were written: puts the latest roll at the top if rolls are kept there and it is a new
// one. True when the view has moved.
bool FollowLatestRoll();

// Switches KeepLatestRollOnTop; on, the latest roll is looked for and put at the top.
void KeepLatestRollOnTop(bool on);

// Find asks for the text and looks from the first line on; the other two look for it again after
// and before the line at the top. Case does not count. The line found goes to the top; a miss is
// said, and the view stays.
bool FindEvent();
bool FindNextEvent();
bool FindPreviousEvent();

// Hands the rows of the printed log on, the heading first, until `print` returns false. Returns
// false when there is nothing to print, which is said. `gameFile` is empty for an untitled game.
bool PrintEventsLog(std::string_view gameFile,
                    const std::function<bool(const std::string&)>& print);

}  // namespace tessarel
