// The line between the core and whoever shows it: one plain struct of callbacks. The core calls
// them and never asks who answers; the defaults do nothing, so that the core runs alone. The
// desktop program, tessarel-sim and the tests each fill in what they need.
#pragma once

#include <cstdint>
#include <string>

namespace tessarel {

// The sounds the core asks for. A front end without sound leaves PlaySound alone.
enum class Sound { Check, DiceThrown, Total, Doubles, ComeOut, FirstComeOut, LimitBroken };

enum class FileAction : int32_t;  // files/file_dialog.h
struct SettlePrompt;              // engine/settle_prompt.h
struct ScriptStep;                // autobet/interpreter.h

struct FrontEndCallbacks {
  // Shows the message that stands in the call block (base/message.h) and waits for its answer.
  void (*ShowMessage)() = [] {};
  // Shows the settle-bet prompt and leaves the player's answer in it; the default is button 0.
  void (*SettleBet)(SettlePrompt& prompt) = [](SettlePrompt&) {};
  // Runs whatever events wait: a promise made once a roll and in every wait. It may be cheap.
  void (*RunPendingEvents)() = [] {};
  void (*DrawBet)(int place, int number) = [](int, int) {};
  void (*DrawTable)() = [] {};
  void (*DrawStatus)() = [] {};
  void (*RefreshViews)() = [] {};
  void (*PlaySound)(Sound sound) = [](Sound) {};
  void (*AnimateDice)() = [] {};
  void (*PlaySoundFile)(const std::string& path) = [](const std::string&) {};
  // A statement of a script in place `place` has ended with a run-time error; carriage returns
  // stand between the lines of `text`.
  void (*ReportScriptError)(int place, int line, const std::string& text) =
      [](int, int, const std::string&) {};
  // A step of a script that runs step by step: shows it and waits until the next one may run.
  void (*ShowStep)(const ScriptStep& step) = [](const ScriptStep&) {};
  // Asks for the file to save to, the offered one at first; empty when the user gives up.
  std::string (*AskSaveFile)(FileAction action, const std::string& offered) =
      [](FileAction, const std::string&) { return std::string(); };
  // How long a status text has to stay readable; nobody looks at it by default.
  int StatusMilliseconds = 0;
};

extern constinit FrontEndCallbacks FrontEnd;

}  // namespace tessarel
