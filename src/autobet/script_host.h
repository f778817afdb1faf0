// What scripts ask of those who run the game, who stand above the language: the commands of the
// game fill this in when the program starts, and until then nothing happens.
#pragma once

namespace tessarel {

struct ScriptHostCallbacks {
  // Starts a new session that keeps the data of former ones and the sessions logs, and as asked the
  // check stacks and the roll file where it stands.
  void (*StartSession)(bool keepStacks, bool keepRollFile) = [](bool, bool) {};
  // The shooter hands the dice on.
  void (*PassDice)() = [] {};
};

extern constinit ScriptHostCallbacks ScriptHost;

}  // namespace tessarel
