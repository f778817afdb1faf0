// The scripts of the table: their lines and files per place, which of them take part in play, and
// what they are allowed to do. Plain state for the language, for the rail (a script goes with its
// player) and for whoever shows or saves it.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "state/table.h"

namespace tessarel {

struct ScriptPlace {
  std::vector<std::string> lines;
  std::string ScriptFile;  // as it was opened, relative to the program's folder if it lies there;
                           // empty: untitled
  std::string OutputFile;  // where the script writes its output; empty: none open
  bool changed = false;    // since the lines were read or saved

  bool operator==(const ScriptPlace&) const = default;
};

struct ScriptStoreState {
  PerPlace<ScriptPlace> Places;  // 0: the script of a hot key, which has no seat

  PerPlace<bool> ScriptActive{};  // 1 to 8; 0: whether any is
  PerPlace<bool> ScriptActiveAfterRoll{};

  // Rights.
  PerPlace<bool> AllowReset{};       // to start new sessions
  PerPlace<bool> AllowAct4Others{};  // to act for other players
  PerPlace<bool> AllowActProb{};     // to switch probability files and roll files

  // Whether the program of all active scripts is compiled and as the scripts and names are now.
  bool ProgramReady = false;
};

extern ScriptStoreState Scripts;

// Switches the script of a place (1 to 8) on or off; what was compiled no longer holds.
void SetScriptActive(int place, bool active);

// Empties the script of a slot 0 to 8 with its file names, and switches it off.
void NewScript(int slot);

}  // namespace tessarel
