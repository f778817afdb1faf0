// What scripts ask of those who run the game, who stand above the language: the commands of the
// game fill this in when the program starts, and until then nothing happens.
#pragma once

namespace tessarel {

// What a new session takes over from the one before.
struct KeptBySession {
  bool Stacks = false;    // the check stacks
  bool RollFile = false;  // the dice roll file, where it stands
};

struct ScriptHostCallbacks {
  // Starts a new session that keeps the data of former ones, the sessions logs and what is asked.
  void (*StartSession)(const KeptBySession& kept) = [](const KeptBySession&) {};
  // The shooter hands the dice on.
  void (*PassDice)() = [] {};
};

extern constinit ScriptHostCallbacks ScriptHost;

}  // namespace tessarel
