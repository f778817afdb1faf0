// The files of a run: the dice it plays, the recording it makes and the log it writes. What cannot
// be read or written is told before the first roll, with the file's name.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "app/sim/run_options.h"
#include "texts/say.h"

namespace tessarel::sim {

// A file of the run as a path: relative names are taken from the program's folder.
std::string PathOf(const std::string& name);

// Runs `work`; a fault in it becomes the Failure `trouble`, said of `what` the file is, its name
// and the reason.
void WithFile(CheckedText<0> what,
              const std::string& name,
              CheckedText<3> trouble,
              const std::function<void()>& work);

// Failure when a file to be written cannot be, or stands for two things.
void CheckFiles(const RunOptions& options);

// Dice from the roll file from now on.
void PlayFrom(const std::string& name);

// All events into the log from now on.
void OpenEventsLog(const std::string& name);

// Sessions go into logs in this folder; without a name they leave none. To be called before anybody
// is seated. The check, with everybody seated, makes the folder if it is not there and gives every
// player his log in it; Failure when a log cannot be continued or is a file of the run already.
void UseSessionsLogs(const std::string& folder);
void CheckSessionsLogs(const RunOptions& options);
// Adds the session that has just been played.
void LogLastSession();

// The records in the logs of a session that is gone on with, as the run that saved it has left
// them: the last ones, if they tell what the table tells. To be found before the first roll. When
// the session has been added anew, as a whole, they are taken out.
struct LoggedSession {
  std::string log;
  int32_t number;
};
std::vector<LoggedSession> SessionsLoggedBefore();
void RemoveContinued(const std::vector<LoggedSession>& sessions);

// Records to a file beside the named one, which takes its place when the run is done. Without a
// name nothing is recorded and nothing here does anything.
class Recording {
 public:
  explicit Recording(const std::string& name);
  ~Recording();
  Recording(const Recording&) = delete;
  Recording& operator=(const Recording&) = delete;

  // Whether the disk failed, so that no more is recorded.
  bool Lost() const;
  // Whether the dice are recorded.
  bool Runs() const { return !part_.empty(); }
  // Brings all that is recorded to the disk.
  void Finish();
  // Puts the recording in its place; after Finish.
  void Keep();

 private:
  std::string name_, target_, part_;
};

}  // namespace tessarel::sim
