// The console in the place of the windows: it prints messages, answers prompts from a file, hears
// Ctrl-C and draws the progress bar. Standard output is left alone: it carries results only.
#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <vector>

namespace tessarel::sim {

struct ShownMessage {
  std::string title, text;
};

struct ConsoleState {
  bool tableMode = false;              // messages are part of the result
  std::vector<ShownMessage> messages;  // shown in table mode, in their order
  std::deque<std::string> answers;     // to the prompts that come
  int32_t faults = 0;                  // fault reports shown
  std::string lastFault;
  bool holdsNotices = false;  // messages are kept back from standard error, to be told in one go
  std::vector<std::string> heldNotices;
};

extern ConsoleState Console;

// Fills the front end's callbacks for messages and waiting events, and makes Ctrl-C ask for a stop.
void OpenConsole();

// Whether Ctrl-C was pressed.
bool Interrupted();

// The waiting events of a script's cycle: one that would go on for ever is ended by Ctrl-C.
void StopScriptWhenInterrupted();

// Takes the answers from a file, one a line. File fault when it cannot be read.
void LoadAnswers(const std::string& path);

// A notice on standard error.
void Notice(const std::string& text);

// A bar on standard error for `done` of `total` steps, when that is a terminal. It looks at the
// clock only now and then, so it may be told of every roll.
class ProgressBar {
 public:
  ProgressBar(bool wanted, int64_t total);
  ~ProgressBar();
  ProgressBar(const ProgressBar&) = delete;
  ProgressBar& operator=(const ProgressBar&) = delete;

  void Show(int64_t done) {
    if (shown_ && --untilLook_ <= 0) Draw(done);
  }

 private:
  void Draw(int64_t done);

  bool shown_;
  int64_t total_;
  int64_t began_;
  int64_t lastDrawn_ = 0;
  int32_t untilLook_ = 1;
};

}  // namespace tessarel::sim
