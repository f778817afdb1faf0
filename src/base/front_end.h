// The line between the core and whoever shows it: one plain struct of callbacks. The core calls
// them and never asks who answers; the defaults do nothing, so that the core runs alone. The
// desktop program, tessarel-sim and the tests each fill in what they need.
#pragma once

namespace tessarel {

// The sounds the core asks for. A front end without sound leaves PlaySound alone.
enum class Sound { Check, DiceThrown, Total, Doubles, ComeOut, FirstComeOut, LimitBroken };

struct FrontEndCallbacks {
  // Shows the message that stands in the call block (base/message.h) and waits for its answer.
  void (*ShowMessage)() = [] {};
  // Runs whatever events wait: a promise made once a roll and in every wait. It may be cheap.
  void (*RunPendingEvents)() = [] {};
  void (*DrawBet)(int place, int number) = [](int, int) {};
  void (*DrawTable)() = [] {};
  void (*DrawStatus)() = [] {};
  void (*RefreshViews)() = [] {};
  void (*PlaySound)(Sound sound) = [](Sound) {};
  void (*AnimateDice)() = [] {};
};

extern constinit FrontEndCallbacks FrontEnd;

}  // namespace tessarel
