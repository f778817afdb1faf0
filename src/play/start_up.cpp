#include "play/start_up.h"

#include "autobet/script_host.h"
#include "base/folders.h"
#include "base/message.h"
#include "base/trap.h"
#include "dice/generators.h"
#include "engine/seats.h"
#include "files/game_file.h"
#include "files/hot_keys.h"
#include "play/new_session.h"
#include "play/players.h"
#include "play/reset.h"
#include "state/payoffs.h"
#include "state/settings.h"
#include "state/table.h"
#include "texts/language.h"
#include "texts/say.h"

namespace tessarel {

namespace {

// What a script cannot ask for is kept: the data of former sessions and the sessions logs.
void StartSessionOfScript(const KeptBySession& kept) {
  NewSession({.keepSessions = true,
              .keepStacks = kept.Stacks,
              .keepLogs = true,
              .rollFileAction = kept.RollFile ? ContinueRollFile : CloseRollFileNow});
}

void SetTableDefaults() {
  for (int number = 1; number <= LastBet; ++number) {
    Table.BetWorkingDefault[0][number] = OriginalHouseWorking(number);
  }
  for (int place = 1; place <= LastPlace; ++place)
    OpenPlaceDefaults(place);
}

void SetUpNewTable(const std::string& appFolder) {
  ResetAll();
  ScriptHost = {StartSessionOfScript, [] { PassDice(PlayerAsked, Telling::Silent); }};
  SetAppFolder(appFolder);
  SetLanguage(English);
  DefaultPayoffs();
  FigurePayoffUnits();
  SetTableDefaults();
  SeedAllGenerators();
  NewSession({});
}

void WarnOfMissingFiles() {
  const std::string text = MissingSupportText();
  if (!text.empty()) ShowMessage(text, Say(Text::MissingSupportFile), msg::Ok);
}

}  // namespace

void StartUp(const std::string& appFolder) {
  Trapped("StartUp", [&appFolder] {
    SetUpNewTable(appFolder);
    WarnOfMissingFiles();
  });
}

void OpenDefaultGame(std::string_view commandLine) {
  if (LoadStartGame(commandLine)) return;
  // What an opened file may have left of a game is not the defaults. The hot keys are of no game.
  const HotKeysState hotKeys = HotKeys;
  Trapped("OpenDefaultGame", [] { SetUpNewTable(std::string(Folders.AppFolder)); });
  HotKeys = hotKeys;
}

}  // namespace tessarel
