#include "app/sim/scripts.h"

#include <algorithm>
#include <bit>

#include "app/sim/failure.h"
#include "app/sim/run_files.h"
#include "autobet/checker.h"
#include "autobet/script_files.h"
#include "base/message.h"
#include "files/game_file.h"
#include "state/table.h"
#include "texts/say.h"

namespace tessarel::sim {

namespace {

// The place of the script's player; a place has one script.
int PlaceOf(const ScriptArgument& script) {
  const int place = script.place != 0 ? script.place : std::countr_zero(Table.TakenPlaces);
  if (!IsTaken(Table, place)) {
    throw Failure(CannotBeDone, Say(Text::SimNoPlayerForScript, place, script.file));
  }
  if (Scripts.ScriptActive[place]) {
    throw Failure(CannotBeDone, Say(Text::SimPlayerHasScript, place, script.file));
  }
  return place;
}

void RequireRunnable(int place, const std::string& file) {
  CompiledScript compiled;
  if (const auto error = CheckScript(place, compiled)) {
    throw Failure(CannotBeDone, ErrorLine(file, *error));
  }
}

// The parts of an error's text stand apart by an empty line.
std::string WithoutEmptyLines(std::string text) {
  const auto isBreak = [](char c) { return c == '\r' || c == '\n'; };
  const auto rest = std::unique(text.begin(), text.end(), [&](char before, char now) {
    return isBreak(before) && isBreak(now);
  });
  text.erase(rest, text.end());
  return text;
}

}  // namespace

void LoadScript(int slot, const std::string& file) {
  bool there = false;
  WithFile(Text::SimScript, file, Text::SimCannotRead, [&] { there = ReadScriptFile(slot, file); });
  if (!there)
    throw Failure(CannotBeDone, Say(Text::SimDoesNotExist, Wording(Text::SimScript), file));
}

std::string ErrorLine(const std::string& file, const ScriptError& error) {
  return file + ":" + std::to_string(error.line) + ":" + std::to_string(error.startColumn + 1) +
         ": error: " + OnOneLine(WithoutEmptyLines(error.text));
}

void LoadScripts(const std::vector<ScriptArgument>& scripts) {
  std::vector<ScriptArgument> loaded;
  for (const ScriptArgument& script : scripts) {
    const int place = PlaceOf(script);
    LoadScript(place, script.file);
    SetScriptActive(place, true);
    loaded.push_back({script.file, place});
  }
  for (const ScriptArgument& script : loaded)
    RequireRunnable(script.place, script.file);
}

void ActivateSavedScripts() {
  ForEachPlayer([](int place) {
    if (At(GameFile.ScriptWasActive, place) == 0) return;
    if (Scripts.Places[place].ScriptFile.empty()) {
      throw Failure(CannotBeDone, Say(Text::SimScriptGone, Table.PlayerName[place]));
    }
    SetScriptActive(place, true);
  });
  ForEachPlayer([](int place) {
    if (Scripts.ScriptActive[place]) RequireRunnable(place, Scripts.Places[place].ScriptFile);
  });
}

}  // namespace tessarel::sim
