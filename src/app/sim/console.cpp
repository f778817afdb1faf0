#include "app/sim/console.h"

#include <unistd.h>

#include <algorithm>
#include <charconv>
#include <csignal>
#include <cstdio>
#include <sstream>

#include "app/sim/failure.h"
#include "base/clock.h"
#include "base/file_io.h"
#include "base/front_end.h"
#include "base/message.h"
#include "base/number_format.h"

namespace tessarel::sim {

ConsoleState Console;

namespace {

volatile std::sig_atomic_t StopAsked = 0;

constexpr uint64_t LargestAnswersFile = 16 << 20;

std::string OnOneLine(const std::string& text) {
  std::string line;
  for (const char c : text) {
    if (c == '\r' || c == '\n') {
      line += " / ";
    } else {
      line += c;
    }
  }
  return line;
}

// A message is a prompt when there is something to choose or to type.
bool IsPrompt(int32_t flags) {
  const bool severalButtons =
      (flags & (msg::Button1 | msg::Button2 | msg::Button3 | msg::Button4)) != 0;
  return severalButtons || (flags & (msg::Input | msg::List)) != 0;
}

bool IsOneOf(const std::string& answer, std::initializer_list<const char*> words) {
  return std::any_of(words.begin(), words.end(), [&](const char* word) { return answer == word; });
}

void TakeAnswer() {
  if (Console.answers.empty() || !IsPrompt(Message.MsgFlags)) return;
  const std::string answer = Console.answers.front();
  Console.answers.pop_front();
  if ((Message.MsgFlags & msg::Input) != 0) {
    Message.MsgInput = answer;
    return;
  }
  if (IsOneOf(answer, {"yes", "Yes", "YES"})) {
    Message.MsgResult = AnswerYes;
  } else if (IsOneOf(answer, {"no", "No", "NO"})) {
    Message.MsgResult = AnswerNo;
  } else {
    std::from_chars(answer.data(), answer.data() + answer.size(), Message.MsgResult);
  }
}

void ShowOnConsole() {
  const bool stopNote = Message.MsgTitle == "Hyper-Drive Stopped";
  if (Console.tableMode) Console.messages.push_back({Message.MsgTitle, Message.MsgText});
  if (Console.tableMode || !stopNote) {
    Notice("[" + Message.MsgTitle + "] " + OnOneLine(Message.MsgText));
  }
  if (Console.tableMode) TakeAnswer();
}

std::string TimeLeft(double seconds) {
  const auto whole = static_cast<int64_t>(seconds);
  const auto two = [](int64_t n) { return (n < 10 ? "0" : "") + std::to_string(n); };
  return std::to_string(whole / 3600) + ":" + two(whole / 60 % 60) + ":" + two(whole % 60);
}

}  // namespace

void OpenConsole() {
  FrontEnd.ShowMessage = ShowOnConsole;
  struct sigaction action = {};
  action.sa_handler = [](int) { StopAsked = 1; };
  action.sa_flags = static_cast<int>(SA_RESETHAND);  // a second Ctrl-C ends the program
  sigaction(SIGINT, &action, nullptr);
}

bool Interrupted() {
  return StopAsked != 0;
}

void LoadAnswers(const std::string& path) {
  std::istringstream lines(ReadWholeFile(path, LargestAnswersFile));
  std::string line;
  while (std::getline(lines, line)) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    Console.answers.push_back(line);
  }
}

void Notice(const std::string& text) {
  std::fprintf(stderr, "%s\n", text.c_str());
}

ProgressBar::ProgressBar(bool wanted, int64_t total)
    : shown_(wanted && total > 0 && isatty(STDERR_FILENO) != 0),
      total_(total),
      began_(TickMilliseconds()) {}

ProgressBar::~ProgressBar() {
  if (shown_) std::fprintf(stderr, "\r\033[K");
}

void ProgressBar::Draw(int64_t done) {
  constexpr int32_t RollsBetweenLooks = 4096;
  constexpr int64_t MillisecondsBetweenBars = 100;
  constexpr int64_t Width = 30;
  untilLook_ = RollsBetweenLooks;
  const int64_t now = TickMilliseconds();
  if (now - lastDrawn_ < MillisecondsBetweenBars) return;
  lastDrawn_ = now;
  const double seconds = static_cast<double>(now - began_) / 1000;
  const double rate = seconds > 0 ? static_cast<double>(done) / seconds : 0;
  const double left = rate > 0 ? static_cast<double>(total_ - done) / rate : 0;
  const auto filled = static_cast<int>(std::min(Width, Width * done / total_));
  const std::string bar = std::string(static_cast<size_t>(filled), '#') +
                          std::string(static_cast<size_t>(Width - filled), '.');
  std::fprintf(stderr, "\r[%s] %3d%%  %s rolls/s  %s left\033[K", bar.c_str(),
               static_cast<int>(100 * done / total_),
               FormatNumber(static_cast<int64_t>(rate), "#,#;-#,#;0").c_str(),
               TimeLeft(left).c_str());
  std::fflush(stderr);
}

}  // namespace tessarel::sim
