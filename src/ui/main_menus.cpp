// The menus of the main window, entry by entry: name, caption, keys, what it does, when it is
// possible and what its check mark says.
#include <QActionGroup>
#include <QMenu>
#include <QMenuBar>
#include <QSlider>
#include <QWidgetAction>
#include <functional>
#include <initializer_list>
#include <utility>

#include "autobet/values.h"
#include "base/front_end.h"
#include "base/message.h"
#include "config/configuration.h"
#include "engine/bets.h"
#include "engine/check_stacks.h"
#include "play/auto_roll.h"
#include "play/game_commands.h"
#include "play/roll_pace.h"
#include "state/settings.h"
#include "state/view_state.h"
#include "ui/main_texts.h"
#include "ui/main_window.h"
#include "ui/sound/sounds.h"
#include "ui/table_presets.h"
#include "ui/text.h"
#include "ui/windows/game_dialogs.h"
#include "ui/windows/help_window.h"
#include "ui/windows/move_window.h"

namespace tessarel {

namespace {

using Check = std::function<bool()>;

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

void ToggleOption(bool TableOptions::*option) {
  GameViews.Table.*option = !(GameViews.Table.*option);
  FrontEnd.DrawTable();
}

void ToggleSetting(bool& setting) {
  setting = !setting;
  Table.TableDirty = true;
}

}  // namespace

// Fills one window's menus. The window keeps every entry with its caption and conditions.
struct MainMenus {
  MainWindow& window;
  QMenu* menu = nullptr;

  void Menu(const SixTexts& caption) {
    menu = window.menuBar()->addMenu(QString());
    window.menus_.push_back({menu, &caption});
  }
  QMenu* Submenu(const SixTexts& caption) {
    QMenu* inner = menu->addMenu(QString());
    window.menus_.push_back({inner, &caption});
    return inner;
  }
  // `keys` is a shortcut; with a leading tab it is only shown, and the window handles the key.
  QAction* Add(const char* name,
               const SixTexts& caption,
               const char* keys,
               std::function<void()> action,
               Check possible = {},
               Check checked = {}) {
    auto* entry = new QAction(&window);
    entry->setObjectName(name);
    const QString shown = QString::fromLatin1(keys);
    if (shown.startsWith('\t')) {
      entry->setProperty("shownKeys", shown);
    } else if (!shown.isEmpty()) {
      entry->setShortcut(QKeySequence(shown));
    }
    entry->setCheckable(static_cast<bool>(checked));
    QObject::connect(entry, &QAction::triggered, &window, [this_ = &window, action] {
      action();
      this_->RefreshAll();
    });
    menu->addAction(entry);
    window.entries_.push_back({entry, &caption, std::move(possible), std::move(checked)});
    return entry;
  }
  void Line() { menu->addSeparator(); }

  // A slider in a menu.
  void Slider(const SixTexts& caption,
              int most,
              std::function<int()> value,
              std::function<void(int)> change) {
    QMenu* inner = Submenu(caption);
    auto* slider = new QSlider(Qt::Horizontal, inner);
    slider->setRange(0, most);
    slider->setMinimumWidth(180);
    slider->setAccessibleName(WithoutMark(Shown(caption)));
    auto* action = new QWidgetAction(inner);
    action->setDefaultWidget(slider);
    inner->addAction(action);
    QObject::connect(inner, &QMenu::aboutToShow, slider, [slider, value] {
      const QSignalBlocker quiet(slider);
      slider->setValue(value());
      slider->setFocus();
    });
    QObject::connect(slider, &QSlider::valueChanged, slider, change);
  }

  // Entries of which one holds.
  struct Choice {
    const char* name;
    const SixTexts* caption;
    int32_t value;
  };
  void Choices(const SixTexts& caption,
               std::initializer_list<Choice> choices,
               std::function<int32_t()> now,
               std::function<void(int32_t)> choose) {
    QMenu* outer = std::exchange(menu, Submenu(caption));
    auto* group = new QActionGroup(&window);
    for (const Choice& choice : choices) {
      group->addAction(Add(
          choice.name, *choice.caption, "", [choose, value = choice.value] { choose(value); }, {},
          [now, value = choice.value] { return now() == value; }));
    }
    menu = outer;
  }

  void Game();
  void Players();
  void Bets();
  void Dice();
  void View();
  void Views();
  void Colours();
  void Options();
  void Notices();
  void Auto();
  void Window();
  void Help();
};

void MainMenus::Game() {
  Menu(texts::MenuGame);
  Add(
      "mnuNew", texts::GameNew, "Ctrl+N", [&w = window] { w.NewGame(); }, TableIsIdle);
  Add(
      "mnuOpen", texts::GameOpen, "Ctrl+O", [&w = window] { w.OpenGameFile(); }, TableIsIdle);
  Add(
      "mnuSave", texts::GameSave, "Ctrl+S", [] { SaveGameInUse(); }, TableIsIdle);
  Add(
      "mnuSaveAs", texts::GameSaveAs, "Ctrl+Shift+S", [] { SaveGameAs(); }, TableIsIdle);
  Line();
  Add("mnuExit", texts::GameExit, "Ctrl+Q", [&w = window] { w.close(); });
}

void MainMenus::Players() {
  Menu(texts::MenuPlayers);
  Add("mnuAddPlayer", texts::PlayersAdd, "", TellWhereToJoin, HasOpenPlace);
  Add("mnuRenamePlayer", texts::PlayersRename, "", RenameCurrentPlayer, HasPlayer);
  Add("mnuMovePlayer", texts::PlayersMove, "", MoveCurrentPlayer,
      [] { return HasPlayer() && Table.PlayerCount < LastPlace; });
  Add("mnuRemovePlayer", texts::PlayersRemove, "", RemoveCurrentPlayer, HasPlayer);
  Line();
  Add("mnuBuyIn", texts::PlayersBuyIn, "", BuyInCurrentPlayer, HasPlayer);
  Add("mnuPassDice", texts::PlayersPassDice, "\tP", PassTheDice, TableIsOpen);
  Line();
  window.players_ = menu;
}

void MainMenus::Bets() {
  Menu(texts::MenuBets);
  Add(
      "mnuRemoveBet", texts::BetsRemove, "Del", [] { PickBetFor(ActionRemove); }, HasPlayer);
  Add("mnuRemoveAllBets", texts::BetsRemoveAll, "Shift+Del", RemoveAllBets, HasPlayer);
  Line();
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
  Line();
  const auto withPoint = [] { return HasPlayer() && Table.Point != 0; };
  Add(
      "mnuTakeFullOdds", texts::BetsTakeOdds, "", [] { FullOdds(BetFullOdds); }, withPoint);
  Add(
      "mnuLayFullOdds", texts::BetsLayOdds, "", [] { FullOdds(BetFullLay); }, withPoint);
  Line();
  Add(
      "mnuKeyInBetAmounts", texts::BetsKeyIn, "F9",
      [] {
        TablePlay.EnteredAmount.clear();
        ToggleOption(&TableOptions::KeyInBetAmounts);
      },
      {}, [] { return GameViews.Table.KeyInBetAmounts; });
}

void MainMenus::Dice() {
  Menu(texts::MenuDice);
  Add("mnuRollDice", texts::DiceRoll, "F2", RollTheDice, TableIsIdle);
  Add(
      "mnuRollYourOwnNumbers", texts::DiceOwn, "F12",
      [&w = window] {
        w.ShowSmall(SmallWindowKind::Console, !w.IsSmallShown(SmallWindowKind::Console));
      },
      {}, [&w = window] { return w.IsSmallShown(SmallWindowKind::Console); });
  Line();
  Choices(
      texts::DiceAction,
      {{"mnuDiceNormal", &texts::DiceNormal, DiceNormal},
       {"mnuDiceStationary", &texts::DiceStationary, DiceStationary},
       {"mnuDiceCenter", &texts::DiceCenter, DiceCenter},
       {"mnuDiceWindow", &texts::DiceWindowed, DiceInWindow}},
      [] { return Settings.DiceAction; },
      [&w = window](int32_t action) {
        const int32_t before = std::exchange(Settings.DiceAction, action);
        Table.TableDirty = true;
        if (before == DiceInWindow || action == DiceInWindow)
          w.ShowSmall(SmallWindowKind::Tray, action == DiceInWindow);
        FrontEnd.DrawTable();
      });
}

void MainMenus::Views() {
  for (const bool save : {true, false}) {
    QMenu* outer = std::exchange(menu, Submenu(save ? texts::ViewSave : texts::ViewRestore));
    for (int view = 0; view <= 9; ++view) {
      const std::string digit = std::to_string(view);
      const std::string name = (save ? "mnuSaveView" : "mnuRestoreView") + digit;
      const std::string keys = (save ? "Shift+" : "Ctrl+") + digit;
      QAction* entry =
          Add(name.c_str(), texts::ViewNumber, keys.c_str(),
              [v = window.View(), save, view] { save ? v->SaveView(view) : v->RestoreView(view); });
      entry->setProperty("value", view);
    }
    menu = outer;
  }
}

void MainMenus::Colours() {
  QMenu* outer = std::exchange(menu, Submenu(texts::ViewColours));
  const auto offer = [this](std::string_view name, const SixTexts& caption, auto apply) {
    Add(std::string(name).c_str(), caption, "", [apply] {
      apply();
      Table.TableDirty = true;
      FrontEnd.DrawTable();
    });
  };
  offer("mnuSetTableStartUp", texts::ViewStartUpColours, RestoreStartUpColours);
  for (int preset = 0; preset < TablePresetCount; ++preset) {
    const TablePreset& scheme = At(TablePresets(), preset);
    offer(scheme.menu, scheme.caption, [preset] { ApplyTablePreset(preset); });
  }
  menu = outer;
}

void MainMenus::View() {
  Menu(texts::MenuView);
  const auto option = [this](const char* name, const SixTexts& caption, const char* keys,
                             bool TableOptions::*which) {
    Add(
        name, caption, keys, [which] { ToggleOption(which); }, {},
        [which] { return GameViews.Table.*which; });
  };
  option("mnuDisplayPropBets", texts::ViewPropositions, "\tC", &TableOptions::DisplayPropBets);
  option("mnuDisplayBetAmounts", texts::ViewAmounts, "F11", &TableOptions::DisplayBetAmounts);
  option("mnuFlashBets", texts::ViewFlash, "\tSpace", &TableOptions::FlashBets);
  Line();
  option("mnuStatusView", texts::ViewStatus, "", &TableOptions::StatusBox);
  Choices(
      texts::ViewStatusSize,
      {{"mnuStatusboxSize1", &texts::SizeSmall, 1},
       {"mnuStatusboxSize2", &texts::SizeMedium, 2},
       {"mnuStatusboxSize3", &texts::SizeLarge, 3}},
      [] { return GameViews.Table.StatusBoxSize; },
      [](int32_t size) { GameViews.Table.StatusBoxSize = size; });
  Line();
  Colours();
  Line();
  TableView* view = window.View();
  Add("mnuTableMove", texts::ViewMove, "\tZ", [&w = window] { w.ShowMoveWindow(); });
  Add("mnuZoomIn", texts::ViewZoomIn, "Ctrl++", [view] { view->Zoom(1.25); });
  Add("mnuZoomOut", texts::ViewZoomOut, "Ctrl+-", [view] { view->Zoom(0.8); });
  Add("mnuTurnLeft", texts::ViewTurnLeft, "", [view] { view->Rotate(-15); });
  Add("mnuTurnRight", texts::ViewTurnRight, "", [view] { view->Rotate(15); });
  Add("mnuWholeTable", texts::ViewWhole, "Home", [view] { view->ResetView(); });
  Views();
}

void MainMenus::Notices() {
  QMenu* outer = std::exchange(menu, Submenu(texts::OptionsNotices));
  for (size_t row = 0; row < NoticeRows.size(); ++row) {
    const Notice bit = NoticeRows[row].Bit;
    const auto shown = [bit] { return (Settings.Notices & bit) != 0; };
    const std::string name = "chkNotify" + std::to_string(row);
    Add(
        name.c_str(), NoticeRows.at(row).Caption, "", [bit, shown] { SetNotice(bit, !shown()); },
        {}, shown);
  }
  menu = outer;
}

void MainMenus::Options() {
  Menu(texts::MenuOptions);
  Choices(
      texts::OptionsTips,
      {{"mnuInfoTips0", &texts::TipsNone, 0},
       {"mnuInfoTips1", &texts::TipsAmounts, 1},
       {"mnuInfoTips2", &texts::TipsNames, 2},
       {"mnuInfoTips3", &texts::TipsBoth, 3},
       {"mnuInfoTips4", &texts::TipsAll, 4}},
      [] { return Settings.InfoTipLevel; },
      [](int32_t level) {
        Settings.InfoTipLevel = level;
        Table.TableDirty = true;
      });
  Add(
      "chkSnapMouse", texts::OptionsSnap, "", [] { ToggleSetting(Settings.SnapMouse); }, {},
      [] { return Settings.SnapMouse; });
  Add(
      "chkAutoArrangeChips", texts::OptionsArrange, "",
      [] {
        ToggleSetting(Settings.AutoArrangeChips);
        FrontEnd.DrawTable();
      },
      {}, [] { return Settings.AutoArrangeChips; });
  Notices();
  Line();
  Add(
      "chkDisableAllSound", texts::OptionsSilence, "",
      [] {
        ToggleSetting(Settings.DisableAllSound);
        if (Settings.DisableAllSound) StopSounds();
      },
      {}, [] { return Settings.DisableAllSound; });
  Slider(texts::OptionsVolume, 100, SoundVolume, SetSoundVolume);
  Line();
  Choices(
      texts::OptionsFont,
      {{"optFontSize9", &texts::SizeSmall, 9},
       {"optFontSize11", &texts::SizeMedium, 11},
       {"optFontSize13", &texts::SizeLarge, 13}},
      [] { return Settings.BasicFontSize; },
      [&w = window](int32_t size) {
        Settings.BasicFontSize = size;
        Table.TableDirty = true;
        w.TakeUpFontSize();
      });
  Add("mnuLanguage", texts::OptionsLanguage, "", [&w = window] { AskLanguage(&w); });
}

void MainMenus::Auto() {
  Menu(texts::MenuAuto);
  Add(
      "mnuAutoRoll", texts::AutoRoll, "\tR", [&w = window] { w.ToggleRun(false); }, NotDriving,
      [] { return Table.AutoRollOn && !Table.HyperDriveOn; });
  Add(
      "mnuHyperDrive", texts::AutoHyper, "\tH", [&w = window] { w.ToggleRun(true); },
      [] { return Table.HyperDriveOn || TableIsIdle(); }, [] { return Table.HyperDriveOn; });
  Line();
  Add("mnuSetTimeDelay", texts::AutoDelay, "", AskSetTimeDelay);
  Add("mnuSetAutoStop", texts::AutoStop, "", AskSetAutoStop);
  Slider(
      texts::AutoThrottle, MaxThrottle, [] { return static_cast<int>(Settings.Throttle); },
      [](int position) { Settings.Throttle = position; });
  Line();
  Add(
      "mnuStopAutobetting", texts::AutoStopScripts, "", [] { ConfirmScriptActive(); },
      [] { return AutoBet.ScriptRunning; });
}

void MainMenus::Window() {
  Menu(texts::MenuWindow);
  Add(
      "mnuWindowConsole", texts::WindowConsole, "",
      [&w = window] {
        w.ShowSmall(SmallWindowKind::Console, !w.IsSmallShown(SmallWindowKind::Console));
      },
      {}, [&w = window] { return w.IsSmallShown(SmallWindowKind::Console); });
  Add(
      "mnuWindowDice", texts::WindowDice, "",
      [&w = window] { w.ShowSmall(SmallWindowKind::Tray, !w.IsSmallShown(SmallWindowKind::Tray)); },
      {}, [&w = window] { return w.IsSmallShown(SmallWindowKind::Tray); });
  Add(
      "mnuWindowStatus", texts::ViewStatus, "", [] { ToggleOption(&TableOptions::StatusBox); }, {},
      [] { return GameViews.Table.StatusBox; });
}

void MainMenus::Help() {
  Menu(texts::MenuHelp);
  Add("mnuContents", texts::HelpContents, "F1", [&w = window] { ShowHelp(&w, 0); });
  Add("mnuAbout", texts::HelpAbout, "",
      [] { ShowMessage(FillIn(texts::AboutText, {TESSAREL_VERSION}), "Tessarel", msg::Ok); });
}

void MainWindow::BuildMenus() {
  MainMenus menus{*this};
  menus.Game();
  menus.Players();
  menus.Bets();
  menus.Dice();
  menus.View();
  menus.Options();
  menus.Auto();
  menus.Window();
  menus.Help();
  connect(players_, &QMenu::aboutToShow, this, [this] { ListPlayers(); });
}

// The players at the end of their menu; the one the mouse bets for is marked.
void MainWindow::ListPlayers() {
  for (QAction* old : playerEntries_)
    delete old;
  playerEntries_.clear();
  ForEachPlayer([this](int place) {
    auto* entry = new QAction(Shown(Table.PlayerName[place]).replace('&', "&&"), this);
    entry->setCheckable(true);
    entry->setChecked(place == CurrentPlace());
    connect(entry, &QAction::triggered, this, [place] { SelectPlace(place); });
    players_->addAction(entry);
    playerEntries_.push_back(entry);
  });
}

void MainWindow::UpdateEntries() {
  for (const MenuEntry& entry : entries_) {
    if (entry.possible) entry.action->setEnabled(entry.possible());
    if (entry.checked) entry.action->setChecked(entry.checked());
  }
}

namespace {

// The letters of a caption that its shortcut mark may stand before: its own first, then those that
// begin words, then all others.
std::vector<int> MarkPositions(const QString& caption) {
  std::vector<int> positions;
  const QString plain = WithoutMark(caption);
  const auto own = static_cast<int>(caption.indexOf('&'));
  if (own >= 0) positions.push_back(own);
  for (const bool starts : {true, false}) {
    for (int k = 0; k < plain.size() && plain[k] != '\t'; ++k) {
      const bool isStart = k == 0 || plain[k - 1] == ' ';
      if (isStart == starts && plain[k].isLetterOrNumber()) positions.push_back(k);
    }
  }
  return positions;
}

// Every entry of a menu gets a shortcut letter that no other one has, its own mark if it can.
void GiveShortcutLetters(const QMenu& menu) {
  constexpr QChar Mark(1);
  QString used;
  for (QAction* action : menu.actions()) {
    const QString caption = action->text();
    if (caption.isEmpty()) continue;
    QString plain = WithoutMark(caption);
    for (const int position : MarkPositions(caption)) {
      const QChar letter = plain[position].toLower();
      if (used.contains(letter)) continue;
      used += letter;
      plain.insert(position, Mark);
      break;
    }
    action->setText(plain.replace('&', "&&").replace(Mark, '&'));
  }
}

}  // namespace

void MainWindow::SetCaptions() {
  for (const MenuOfWindow& menu : menus_)
    menu.menu->setTitle(Shown(*menu.caption));
  for (const MenuEntry& entry : entries_) {
    QString caption = Shown(*entry.caption);
    const QVariant value = entry.action->property("value");
    if (value.isValid()) {
      const std::string number = std::to_string(value.toInt());
      caption = Shown(FillIn(*entry.caption, {number})).replace(Shown(number), "&" + Shown(number));
    }
    entry.action->setText(caption + entry.action->property("shownKeys").toString());
  }
  for (const MenuOfWindow& menu : menus_)
    GiveShortcutLetters(*menu.menu);
  bar_->SetCaptions();
}

}  // namespace tessarel
