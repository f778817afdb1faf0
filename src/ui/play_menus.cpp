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
#include "texts/say.h"
#include "ui/main_menus.h"
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
  ShowMessage(Say(Text::ClickOpenPosition), Say(Text::AddPlayerTitle), msg::Ok, help::Players);
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
  BeginMenu(Text::MenuGame);
  Add(
      "mnuNew", Text::GameNew, "Ctrl+N", [&w = window_] { w.NewGame(); }, TableIsIdle);
  Add(
      "mnuOpen", Text::GameOpen, "Ctrl+O", [&w = window_] { w.OpenGameFile(); }, TableIsIdle);
  Add(
      "mnuSave", Text::GameSave, "Ctrl+S", [] { SaveGameInUse(); }, TableIsIdle);
  Add(
      "mnuSaveAs", Text::GameSaveAs, "Ctrl+Shift+S", [] { SaveGameAs(); }, TableIsIdle);
  AddLine();
  Add("mnuExit", Text::GameExit, "Ctrl+Q", [&w = window_] { w.close(); });
}

void MainMenus::AddPlayersMenu() {
  BeginMenu(Text::MenuPlayers);
  Add("mnuAddPlayer", Text::PlayersAdd, "", TellWhereToJoin, HasOpenPlace);
  Add("mnuRenamePlayer", Text::PlayersRename, "", RenameCurrentPlayer, HasPlayer);
  Add("mnuMovePlayer", Text::PlayersMove, "", MoveCurrentPlayer,
      [] { return HasPlayer() && Table.PlayerCount < LastPlace; });
  Add("mnuRemovePlayer", Text::PlayersRemove, "", RemoveCurrentPlayer, HasPlayer);
  AddLine();
  Add("mnuBuyIn", Text::PlayersBuyIn, "", BuyInCurrentPlayer, HasPlayer);
  Add("mnuPassDice", Text::PlayersPassDice, "\tP", PassTheDice, TableIsOpen);
  AddLine();
  players_ = menu_;
  connect(players_, &QMenu::aboutToShow, this, &MainMenus::ListPlayers);
}

void MainMenus::AddBetsMenu() {
  BeginMenu(Text::MenuBets);
  Add(
      "mnuRemoveBet", Text::BetsRemove, "Del", [] { PickBetFor(ActionRemove); }, HasPlayer);
  Add("mnuRemoveAllBets", Text::BetsRemoveAll, "Shift+Del", RemoveAllBets, HasPlayer);
  AddLine();
  Add(
      "mnuBuyPlaceBet", Text::BetsBuy, "F5", [] { PickBetFor(ActionBuy); }, HasPlayer);
  Add(
      "mnuCallBetOn", Text::BetsCallOn, "F6", [] { PickBetFor(ActionCallOn); }, HasPlayer);
  Add(
      "mnuCallAllBetsOn", Text::BetsCallAllOn, "Shift+F6", [] { CallAllBets(true); }, HasPlayer);
  Add(
      "mnuCallBetOff", Text::BetsCallOff, "F7", [] { PickBetFor(ActionCallOff); }, HasPlayer);
  Add(
      "mnuCallAllBetsOff", Text::BetsCallAllOff, "Shift+F7", [] { CallAllBets(false); }, HasPlayer);
  AddLine();
  const auto withPoint = [] { return HasPlayer() && Table.Point != 0; };
  Add(
      "mnuTakeFullOdds", Text::BetsTakeOdds, "", [] { FullOdds(BetFullOdds); }, withPoint);
  Add(
      "mnuLayFullOdds", Text::BetsLayOdds, "", [] { FullOdds(BetFullLay); }, withPoint);
  AddLine();
  Add(
      "mnuKeyInBetAmounts", Text::BetsKeyIn, "F9",
      [] {
        TablePlay.EnteredAmount.clear();
        ToggleOption(&TableOptions::KeyInBetAmounts);
      },
      {}, [] { return GameViews.Table.KeyInBetAmounts; });
}

void MainMenus::AddDiceMenu() {
  BeginMenu(Text::MenuDice);
  RollConsole* console = &window_.Floating().Console();
  Add("mnuRollDice", Text::DiceRoll, "F2", RollTheDice, TableIsIdle);
  Add(
      "mnuRollYourOwnNumbers", Text::DiceOwn, "F12",
      [console] { FloatingWindows::Toggle(*console); }, {},
      [console] { return console->isVisible(); });
  AddLine();
  AddChoices(
      Text::DiceAction,
      {{"mnuDiceNormal", Text::DiceNormal, DiceNormal},
       {"mnuDiceStationary", Text::DiceStationary, DiceStationary},
       {"mnuDiceCenter", Text::DiceCenter, DiceCenter},
       {"mnuDiceWindow", Text::DiceWindowed, DiceInWindow}},
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
  BeginMenu(Text::MenuAuto);
  Add(
      "mnuAutoRoll", Text::AutoRoll, "\tR", [&w = window_] { w.ToggleRun(false); }, NotDriving,
      [] { return Table.AutoRollOn && !Table.HyperDriveOn; });
  Add(
      "mnuHyperDrive", Text::AutoHyper, "\tH", [&w = window_] { w.ToggleRun(true); },
      [] { return Table.HyperDriveOn || TableIsIdle(); }, [] { return Table.HyperDriveOn; });
  AddLine();
  Add("mnuSetTimeDelay", Text::AutoDelayMenu, "", AskSetTimeDelay);
  Add("mnuSetAutoStop", Text::AutoStopMenu, "", AskSetAutoStop);
  AddSlider(
      Text::AutoThrottle, MaxThrottle, [] { return static_cast<int>(Settings.Throttle); },
      [](int position) { Settings.Throttle = position; });
  AddLine();
  Add(
      "mnuStopAutobetting", Text::AutoStopScripts, "", [] { ConfirmScriptActive(); },
      [] { return AutoBet.ScriptRunning; });
}

}  // namespace tessarel
