#include "app/sim/console.h"

#include <unistd.h>

#include <algorithm>
#include <charconv>
#include <csignal>
#include <cstdio>
#include <optional>
#include <sstream>

#include "autobet/values.h"
#include "base/clock.h"
#include "base/file_io.h"
#include "base/front_end.h"
#include "base/message.h"
#include "base/number_format.h"
#include "base/single_byte_text.h"
#include "engine/settle_prompt.h"
#include "state/scripts.h"
#include "texts/say.h"

namespace tessarel::sim {

ConsoleState Console;

namespace {

volatile std::sig_atomic_t StopAsked = 0;

constexpr uint64_t LargestAnswersFile = 16 << 20;

// A message is a prompt when there is something to choose or to type.
bool IsPrompt(int32_t flags) {
  const bool severalButtons =
      (flags & (msg::Button1 | msg::Button2 | msg::Button3 | msg::Button4)) != 0;
  return severalButtons || (flags & (msg::Input | msg::List)) != 0;
}

// The answer that a text stands for: yes or no where the box asks that, else a button by its index
// from 0.
std::optional<int32_t> ButtonAnswer(const std::string& text) {
  constexpr int32_t ButtonCount = 5;
  const std::string word = LowerCase(text);
  const bool yesNo = (Message.MsgFlags & msg::YesNo) == msg::YesNo;
  if (yesNo && (word == "yes" || word == "no")) return word == "yes" ? AnswerYes : AnswerNo;
  int32_t index = -1;
  const char* const end = text.data() + text.size();
  const auto [rest, error] = std::from_chars(text.data(), end, index);
  if (error != std::errc() || rest != end) return std::nullopt;
  if (yesNo && (index == AnswerYes || index == AnswerNo)) return index;
  const bool there = index >= 0 && index < ButtonCount && (Message.MsgFlags >> index & 1) != 0;
  if (!there) return std::nullopt;
  if (!yesNo) return index;
  return index == 1 ? AnswerYes : AnswerNo;
}

// An answer that the prompt does not offer leaves its default.
void TakeAnswer() {
  if (Console.answers.empty() || !IsPrompt(Message.MsgFlags)) return;
  const std::string answer = Console.answers.front();
  Console.answers.pop_front();
  if ((Message.MsgFlags & msg::Input) != 0) {
    Message.MsgInput = answer;
  } else {
    Message.MsgResult = ButtonAnswer(answer).value_or(Message.MsgResult);
  }
}

// Why the Hyper-Drive stopped is part of the result and no message.
void ShowOnConsole() {
  if (Message.MsgKind == MessageKind::RunStopped) return;
  if (Message.MsgKind == MessageKind::Error) {
    ++Console.faults;
    Console.lastFault = Message.MsgText;
  }
  if (Console.tableMode) Console.messages.push_back({Message.MsgTitle, Message.MsgText});
  std::string notice = "[" + Message.MsgTitle + "] " + OnOneLine(Message.MsgText);
  // A script under the Hyper-Drive may ask at every roll.
  const bool silent = Table.HyperDriveOn && IsPrompt(Message.MsgFlags);
  if (Console.holdsNotices)
    Console.heldNotices.push_back(std::move(notice));
  else if (!silent)
    Notice(notice);
  TakeAnswer();
}

// At the table a script's errors are part of what is shown; a fast run has no time for them.
void ReportScriptErrorOnConsole(int place, int line, const std::string& text) {
  if (!Console.tableMode) return;
  const std::string& file = Scripts.Places[place].ScriptFile;
  const std::string report = file + ":" + std::to_string(line) + ": " + text;
  Console.messages.push_back({Say(Text::AutoBet), report});
  Notice("[" + Say(Text::AutoBet) + "] " + OnOneLine(report));
}

// "Ann Won", then the rows, each caption with its figure.
std::string TextOf(const SettlePrompt& prompt) {
  std::string text;
  for (const SettlePrompt::Row& row : prompt.rows) {
    if (!text.empty()) text += "\r";
    text += row.caption;
    if (row.figure.empty()) continue;
    text += " " + row.figure;
  }
  return text;
}

// An answer to the settle-bet prompt reads "BUTTON", or for the modify and set buttons (5 and 6)
// "BUTTON [AMOUNT] [+|-|x|/] [uUNITS]", UNITS as in HandleUnits. What cannot be read is left as it
// is.
void ReadSettling(const std::string& answer, SettlePrompt& prompt) {
  constexpr std::string_view Operations = "+-x/";
  std::istringstream words(answer);
  int button = 0;
  if (!(words >> button) || button < 0 || button > 6) return;
  prompt.button = button;
  HandlingRow& row = button == 6 ? prompt.set : prompt.modify;
  for (std::string word; words >> word;) {
    const size_t operation = word.size() == 1 ? Operations.find(word[0]) : std::string::npos;
    const std::optional<Money> figure = ParseMoney(word);
    if (operation != std::string::npos) {
      row.operation = static_cast<int32_t>(operation);
    } else if (word.starts_with('u')) {
      row.units = ParseMoney(word.substr(1)).value_or(row.units);
    } else if (figure) {
      row.amount = *figure;
    }
  }
}

void SettleOnConsole(SettlePrompt& prompt) {
  const std::string title =
      prompt.title[0] + (prompt.title[1].empty() ? "" : " ") + prompt.title[1];
  const std::string text = TextOf(prompt);
  if (Console.tableMode) Console.messages.push_back({title, text});
  Notice("[" + title + "] " + OnOneLine(text));
  if (Console.answers.empty()) return;
  ReadSettling(Console.answers.front(), prompt);
  Console.answers.pop_front();
}

std::string TimeLeft(double seconds) {
  const auto whole = static_cast<int64_t>(seconds);
  const auto two = [](int64_t n) { return (n < 10 ? "0" : "") + std::to_string(n); };
  return std::to_string(whole / 3600) + ":" + two(whole / 60 % 60) + ":" + two(whole % 60);
}

}  // namespace

void OpenConsole() {
  FrontEnd.ShowMessage = ShowOnConsole;
  FrontEnd.SettleBet = SettleOnConsole;
  FrontEnd.ReportScriptError = ReportScriptErrorOnConsole;
  FrontEnd.RunPendingEvents = StopScriptWhenInterrupted;
  struct sigaction action = {};
  action.sa_handler = [](int) { StopAsked = 1; };
  // A second one ends the program, and the first one cuts no write short.
  action.sa_flags = static_cast<int>(SA_RESETHAND | SA_RESTART);
  for (const int signal : {SIGINT, SIGTERM, SIGHUP})
    sigaction(signal, &action, nullptr);
}

bool Interrupted() {
  return StopAsked != 0;
}

void StopScriptWhenInterrupted() {
  if (Interrupted()) AutoBet.ScriptRunning = false;
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
  std::fprintf(
      stderr, "\r[%s] %3d%%  %s\033[K", bar.c_str(), static_cast<int>(100 * done / total_),
      Say(Text::SimProgress, FormatNumber(static_cast<int64_t>(rate), "#,#;-#,#;0"), TimeLeft(left))
          .c_str());
  std::fflush(stderr);
}

}  // namespace tessarel::sim
