// The menus of play: the game, its players, their bets, the dice and what rolls by itself.
#include <QMenu>

#include "autobet/values.h"
#include "base/front_end.h"
#include "base/message.h"
#include "engine/bets.h"
#include "play/auto_roll.h"
#include "play/game_commands.h"
#include "play/roll_pace.h"
#include "state/settings.h"
#include "ui/main_menus.h"
#include "ui/main_texts.h"
#include "ui/main_window.h"
#include "ui/table_play.h"
#include "ui/windows/dice_window.h"
#include "ui/windows/roll_console.h"

namespace tessarel {

namespace {

bool HasPlayer() {
  return CurrentPlace() != 0 && TableIsOpen();
}

bool NotDriving() {
  return !Table.HyperDriveOn;
}

bool HasOpenPlace() {
  return Table.PlayerCount < LastPlace && TableIsIdle();
}

void TellWhereToJoin() {
  ShowMessage(std::string(GetText(1)), std::string(GetText(2)), msg::Ok, help::Players);
}

// All odds of the current player at once.
void FullOdds(void (*bet)(int)) {
  if (!HasPlayer() || !ConfirmScriptActive()) return;
  Table.TableDirty = true;
  bet(CurrentPlace());
  FrontEnd.DrawTable();
}

}  // namespace

void MainMenus::AddGameMenu() {
  BeginMenu(texts::MenuGame);
  Add(
      "mnuNew", texts::GameNew, "Ctrl+N", [&w = window_] { w.NewGame(); }, TableIsIdle);
  Add(
      "mnuOpen", texts::GameOpen, "Ctrl+O", [&w = window_] { w.OpenGameFile(); }, TableIsIdle);
  Add(
      "mnuSave", texts::GameSave, "Ctrl+S", [] { SaveGameInUse(); }, TableIsIdle);
  Add(
      "mnuSaveAs", texts::GameSaveAs, "Ctrl+Shift+S", [] { SaveGameAs(); }, TableIsIdle);
  AddLine();
  Add("mnuExit", texts::GameExit, "Ctrl+Q", [&w = window_] { w.close(); });
}

void MainMenus::AddPlayersMenu() {
  BeginMenu(texts::MenuPlayers);
  Add("mnuAddPlayer", texts::PlayersAdd, "", TellWhereToJoin, HasOpenPlace);
  Add("mnuRenamePlayer", texts::PlayersRename, "", RenameCurrentPlayer, HasPlayer);
  Add("mnuMovePlayer", texts::PlayersMove, "", MoveCurrentPlayer,
      [] { return HasPlayer() && Table.PlayerCount < LastPlace; });
  Add("mnuRemovePlayer", texts::PlayersRemove, "", RemoveCurrentPlayer, HasPlayer);
  AddLine();
  Add("mnuBuyIn", texts::PlayersBuyIn, "", BuyInCurrentPlayer, HasPlayer);
  Add("mnuPassDice", texts::PlayersPassDice, "\tP", PassTheDice, TableIsOpen);
  AddLine();
  players_ = menu_;
  connect(players_, &QMenu::aboutToShow, this, &MainMenus::ListPlayers);
}

void MainMenus::AddBetsMenu() {
  BeginMenu(texts::MenuBets);
  Add(
      "mnuRemoveBet", texts::BetsRemove, "Del", [] { PickBetFor(ActionRemove); }, HasPlayer);
  Add("mnuRemoveAllBets", texts::BetsRemoveAll, "Shift+Del", RemoveAllBets, HasPlayer);
  AddLine();
  Add(
      "mnuBuyPlaceBet", texts::BetsBuy, "F5", [] { PickBetFor(ActionBuy); }, HasPlayer);
  Add(
      "mnuCallBetOn", texts::BetsCallOn, "F6", [] { PickBetFor(ActionCallOn); }, HasPlayer);
  Add(
      "mnuCallAllBetsOn", texts::BetsCallAllOn, "Shift+F6", [] { CallAllBets(true); }, HasPlayer);
  Add(
      "mnuCallBetOff", texts::BetsCallOff, "F7", [] { PickBetFor(ActionCallOff); }, HasPlayer);
  Add(
      "mnuCallAllBetsOff", texts::BetsCallAllOff, "Shift+F7", [] { CallAllBets(false); },
      HasPlayer);
  AddLine();
  const auto withPoint = [] { return HasPlayer() && Table.Point != 0; };
  Add(
      "mnuTakeFullOdds", texts::BetsTakeOdds, "", [] { FullOdds(BetFullOdds); }, withPoint);
  Add(
      "mnuLayFullOdds", texts::BetsLayOdds, "", [] { FullOdds(BetFullLay); }, withPoint);
  AddLine();
  Add(
      "mnuKeyInBetAmounts", texts::BetsKeyIn, "F9",
      [] {
        TablePlay.EnteredAmount.clear();
        ToggleOption(&TableOptions::KeyInBetAmounts);
      },
      {}, [] { return GameViews.Table.KeyInBetAmounts; });
}

void MainMenus::AddDiceMenu() {
  BeginMenu(texts::MenuDice);
  RollConsole* console = &window_.Floating().Console();
  Add("mnuRollDice", texts::DiceRoll, "F2", RollTheDice, TableIsIdle);
  Add(
      "mnuRollYourOwnNumbers", texts::DiceOwn, "F12",
      [console] { FloatingWindows::Toggle(*console); }, {},
      [console] { return console->isVisible(); });
  AddLine();
  AddChoices(
      texts::DiceAction,
      {{"mnuDiceNormal", &texts::DiceNormal, DiceNormal},
       {"mnuDiceStationary", &texts::DiceStationary, DiceStationary},
       {"mnuDiceCenter", &texts::DiceCenter, DiceCenter},
       {"mnuDiceWindow", &texts::DiceWindowed, DiceInWindow}},
      [] { return Settings.DiceAction; },
      [&w = window_](int32_t action) {
        const int32_t before = std::exchange(Settings.DiceAction, action);
        Table.TableDirty = true;
        if (before == DiceInWindow || action == DiceInWindow)
          FloatingWindows::Show(w.Floating().Dice(), action == DiceInWindow);
        FrontEnd.DrawTable();
      });
}

void MainMenus::AddAutoMenu() {
  BeginMenu(texts::MenuAuto);
  Add(
      "mnuAutoRoll", texts::AutoRoll, "\tR", [&w = window_] { w.ToggleRun(false); }, NotDriving,
      [] { return Table.AutoRollOn && !Table.HyperDriveOn; });
  Add(
      "mnuHyperDrive", texts::AutoHyper, "\tH", [&w = window_] { w.ToggleRun(true); },
      [] { return Table.HyperDriveOn || TableIsIdle(); }, [] { return Table.HyperDriveOn; });
  AddLine();
  Add("mnuSetTimeDelay", texts::AutoDelay, "", AskSetTimeDelay);
  Add("mnuSetAutoStop", texts::AutoStop, "", AskSetAutoStop);
  AddSlider(
      texts::AutoThrottle, MaxThrottle, [] { return static_cast<int>(Settings.Throttle); },
      [](int position) { Settings.Throttle = position; });
  AddLine();
  Add(
      "mnuStopAutobetting", texts::AutoStopScripts, "", [] { ConfirmScriptActive(); },
      [] { return AutoBet.ScriptRunning; });
}

}  // namespace tessarel
