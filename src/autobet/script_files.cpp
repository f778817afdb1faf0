#include "autobet/script_files.h"

#include <initializer_list>
#include <utility>

#include "autobet/interpreter.h"
#include "autobet/older_scripts.h"
#include "autobet/values.h"
#include "base/file_io.h"
#include "base/folders.h"
#include "base/front_end.h"
#include "base/message.h"
#include "base/trap.h"
#include "state/table.h"
#include "texts/say.h"

namespace tessarel {

namespace {

// Some hundred times the longest script anybody writes, and little enough to hold in memory.
constexpr size_t LargestScriptFile = 4 << 20;

constexpr int AllPlaces = LastPlace + 1;

std::vector<std::string> TextLines(std::string_view bytes) {
  constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";
  if (bytes.starts_with(ByteOrderMark)) bytes.remove_prefix(ByteOrderMark.size());
  std::vector<std::string> lines;
  while (!bytes.empty()) {
    const size_t end = bytes.find('\n');
    std::string_view line = bytes.substr(0, end);
    if (line.ends_with('\r')) line.remove_suffix(1);
    lines.emplace_back(line);
    bytes.remove_prefix(end == std::string_view::npos ? bytes.size() : end + 1);
  }
  return lines;
}

std::vector<std::string> UpgradedLines(std::string_view bytes) {
  std::vector<std::string> lines = OlderScriptLines(bytes);
  for (std::string& line : lines)
    line = UpgradeWording(line);
  return lines;
}

// Flags that are up as long as this lives, whatever becomes of the cycle in between.
class RaisedFlags {
 public:
  explicit RaisedFlags(std::initializer_list<bool*> flags) : flags_(flags) {
    for (bool* flag : flags_)
      *flag = true;
  }
  ~RaisedFlags() {
    for (bool* flag : flags_)
      *flag = false;
  }
  RaisedFlags(const RaisedFlags&) = delete;
  RaisedFlags& operator=(const RaisedFlags&) = delete;

 private:
  std::vector<bool*> flags_;
};

// One place's script as the only active one.
class OnlyScript {
 public:
  explicit OnlyScript(int place) : flags_(Scripts.ScriptActive) {
    for (int other = 1; other <= LastPlace; ++other)
      SetScriptActive(other, other == place);
  }
  ~OnlyScript() {
    if (Scripts.ScriptActive == flags_) return;
    Scripts.ScriptActive = flags_;
    Scripts.ProgramReady = false;
  }
  OnlyScript(const OnlyScript&) = delete;
  OnlyScript& operator=(const OnlyScript&) = delete;

 private:
  PerPlace<bool> flags_;
};

bool ActiveScriptsCompile() {
  if (!Scripts.ProgramReady) CheckScriptErrors();
  return Scripts.ProgramReady;
}

void RunFirstCycle() {
  if (!Scripts.ScriptActive[0] || !ActiveScriptsCompile()) return;
  const RaisedFlags flags{&AutoBet.Initializing};
  RunAutoBet();
}

// Not during a roll: its cycles are those of the program it began with.
bool WantsFirstCycle(std::string question) {
  if (Table.RollInProgress) return false;
  return ShowMessage(std::move(question), Say(Text::AutoBet), msg::AskYesNo,
                     help::BettingSystems) == AnswerYes;
}

void ActivateAll() {
  ForEachPlayer([](int place) { SetScriptActive(place, true); });
  if (WantsFirstCycle(Say(Text::AllScriptsActivated))) RunFirstCycle();
}

void ActivateOne(int place) {
  SetScriptActive(place, true);
  if (!WantsFirstCycle(Say(Text::ScriptActivated, Table.PlayerName[place]))) return;
  const OnlyScript alone(place);
  RunFirstCycle();
}

void RunHotKey(const std::string& path) {
  if (!ReadScriptFile(0, path)) throw Fault(FaultNumber::FileNotFound, FaultWording.FileNotFound);
  if (!CompileHotKeyScript()) {
    ShowMessage(Say(Text::HotKeyScriptError), Say(Text::ScriptErrorTitle), msg::OkAlert,
                help::BettingSystems);
    return;
  }
  Scripts.ProgramReady = true;
  const RaisedFlags flags{&AutoBet.Initializing, &AutoBet.HotKeyRun};
  RunAutoBet();
  FrontEnd.DrawTable();
}

}  // namespace

bool ReadScriptLines(const std::string& path, std::vector<std::string>& lines) {
  if (!FileExists(path)) return false;
  const std::string bytes = ReadWholeFile(path, LargestScriptFile);
  lines = IsOlderScript(bytes) ? UpgradedLines(bytes) : TextLines(bytes);
  return true;
}

bool ReadScriptFile(int slot, const std::string& path) {
  ScriptPlace& script = Scripts.Places[slot];
  std::vector<std::string> lines;
  if (!ReadScriptLines(InFolder(Folders.AppFolder, path), lines)) return false;
  script.lines = std::move(lines);
  script.ScriptFile = NameInFolder(Folders.AppFolder, path);
  script.changed = false;
  Scripts.ProgramReady = false;
  return true;
}

void SaveScriptFile(int slot) {
  ScriptPlace& script = Scripts.Places[slot];
  std::string text;
  for (const std::string& line : script.lines)
    text.append(line).append("\n");
  WriteFileAtomically(InFolder(Folders.AppFolder, script.ScriptFile), text);
  script.changed = false;
}

void SaveScriptFileAs(int slot, const std::string& path) {
  ScriptPlace& script = Scripts.Places[slot];
  std::string before = std::exchange(script.ScriptFile, NameInFolder(Folders.AppFolder, path));
  try {
    SaveScriptFile(slot);
  } catch (const Fault&) {
    script.ScriptFile = std::move(before);
    throw;
  }
}

void ActivateScript(int place) {
  Trapped("ActivateScript", [place] { place == AllPlaces ? ActivateAll() : ActivateOne(place); });
}

void InitializeScripts() {
  Trapped("InitializeScripts", [] {
    const RaisedFlags flags{&AutoBet.NewSessionBegins};
    RunFirstCycle();
  });
}

void RunHotKeyScript(const std::string& path) {
  if (AutoBet.ScriptRunning || Table.RollInProgress) return;
  Trapped("RunHotKeyScript", [&path] { RunHotKey(path); });
  // What was compiled is not the program of the active scripts.
  Scripts.ProgramReady = false;
}

}  // namespace tessarel
