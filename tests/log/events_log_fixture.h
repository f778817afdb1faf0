// A test with an events log of its own: switched on, in a folder that is gone after the test.
#pragma once

#include "log/events_log.h"
#include "log/events_log_reader.h"
#include "reset.h"

namespace tessarel {

class EventsLogTest : public FolderTest {
 protected:
  EventsLogTest() { EventsLog.LogOn = true; }

  std::string LogBytes() const { return Read(DefaultEventLogName()); }
  std::string IndexBytes() const { return Read(EventsIndexName()); }
  static Strings Lines() {
    Strings lines;
    for (int32_t n = 1; n <= EventLineCount(); ++n)
      lines.push_back(EventLine(n));
    return lines;
  }
};

}  // namespace tessarel
