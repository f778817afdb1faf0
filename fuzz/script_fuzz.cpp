// Scripts as anybody may write them: whatever the bytes are, they are checked and either refused
// with a message whose place lies in the script, or run for a few rolls without harm to the table.
// A script that would go on for ever is stopped as a user would stop it.

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "autobet/checker.h"
#include "autobet/interpreter.h"
#include "base/front_end.h"
#include "dice/generators.h"
#include "fuzz_helpers.h"
#include "play/players.h"
#include "play/roll_driver.h"
#include "play/start_up.h"
#include "state/scripts.h"
#include "state/settings.h"
#include "state/table.h"

namespace tessarel {
namespace {

constexpr int Rolls = 3;

std::vector<std::string> LinesOf(std::string_view text) {
  std::vector<std::string> lines(1);
  for (const char c : text) {
    if (c == '\n')
      lines.emplace_back();
    else
      lines.back() += c;
  }
  return lines;
}

// Scripts must not write where the fuzzer runs, and what they reach outside the table is not what
// is tested here.
bool LeavesTheFolder(std::string_view text) {
  for (const std::string_view word : {"open", "Open", "OPEN", "file", "File", "FILE"}) {
    if (text.find(word) != std::string_view::npos) return true;
  }
  return false;
}

void SetTable(std::vector<std::string> lines) {
  StartUp(FuzzFolder());
  Dice.SeedRequest = 1;
  SeedRNG(-1);
  SeatPlayer(1, "Ann", 1000);
  SeatPlayer(2, "Bob", 1000);
  Settings.BetNeededToShoot = 0;
  Scripts.AllowReset[1] = Scripts.AllowAct4Others[1] = Scripts.AllowActProb[1] = true;
  Scripts.Places[1].lines = std::move(lines);
  SetScriptActive(1, true);
  FrontEnd.RunPendingEvents = [] { AutoBet.ScriptRunning = false; };
}

void Play(std::string_view text) {
  SetTable(LinesOf(text));
  CompiledScript script;
  if (const auto error = CheckScript(1, script)) {
    const auto count = static_cast<int32_t>(Scripts.Places[1].lines.size());
    Require(error->line >= 1 && error->line <= count + 1 && error->endLine >= error->line);
    Require(error->startColumn >= 0 && error->endColumn >= 0 && !error->text.empty());
    return;
  }
  if (LeavesTheFolder(text)) return;
  CheckScriptErrors();
  Require(Scripts.ProgramReady);
  for (int roll = 0; roll < Rolls; ++roll) {
    MakeRoll();
    RequireNone(CheckTable());
  }
}

}  // namespace
}  // namespace tessarel

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  tessarel::Play(tessarel::InputOf(data, size));
  return 0;
}
