#include "ui/main_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMenu>
#include <QScopedValueRollback>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "autobet/values.h"
#include "base/folders.h"
#include "base/message.h"
#include "files/file_dialog.h"
#include "files/game_file.h"
#include "play/auto_roll.h"
#include "play/game_commands.h"
#include "play/leaving.h"
#include "play/players.h"
#include "state/settings.h"
#include "texts/say.h"
#include "ui/sound/sounds.h"
#include "ui/text.h"
#include "ui/window_place.h"
#include "ui/windows/message_window.h"

namespace tessarel {

MainWindow::MainWindow(const std::string& appFolder)
    : view_(new TableView(this)),
      bar_(new ControlBar(this)),
      autosave_(new Autosave(appFolder, this)),
      floating_(new FloatingWindows(this, view_)),
      menus_(new MainMenus(*this)),
      keys_(new MainKeys(view_, menus_, this)),
      core_(new FrontEndBridge(this)) {
  auto* middle = new QWidget(this);
  auto* column = new QVBoxLayout(middle);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  column->addWidget(view_, 1);
  column->addWidget(bar_);
  setCentralWidget(middle);
  setMinimumSize(LeastWindowWidth, LeastWindowHeight);
  ConnectTable();
  ConnectCore();
  ConnectCoreQuestions();
}

// The table may still lose the pointer and the focus while the window below this one goes.
MainWindow::~MainWindow() {
  view_->disconnect(this);
  delete core_;
}

// --- What the core asks for --------------------------------------------------------------------

void MainWindow::ConnectCore() {
  connect(core_, &FrontEndBridge::BetDrawn, this, [this](int place, int number) {
    if (!Table.HyperDriveOn) view_->DrawBet(place, number);
  });
  connect(core_, &FrontEndBridge::TableDrawn, this, [this] {
    view_->DrawTable();
    RefreshStatus();
  });
  connect(core_, &FrontEndBridge::StatusDrawn, this, [this] {
    if (!Table.HyperDriveOn) {
      view_->DrawTable();
      HearWins();
    }
    RefreshStatus();
  });
  // The Hyper-Drive shows its figures by itself; what scripts do meanwhile waits for its end.
  connect(core_, &FrontEndBridge::ViewsRefreshed, this, [this] {
    if (!Table.HyperDriveOn) RefreshStatus();
  });
  connect(core_, &FrontEndBridge::SoundAsked, this, [this](Sound sound) {
    PlayTableSound(sound);
    if (sound == Sound::LimitBroken) view_->ShowerChecks();
  });
  connect(core_, &FrontEndBridge::SoundFileAsked, this, &PlaySoundOfFile);
  connect(core_, &FrontEndBridge::DiceThrown, this, &MainWindow::Animate);
  connect(&core_->Pump(), &EventPump::FiguresDue, bar_, &ControlBar::ShowRun);
  connect(&core_->Pump(), &EventPump::Pumped, this, &MainWindow::SaveIfDue);
}

void MainWindow::ConnectCoreQuestions() {
  connect(core_, &FrontEndBridge::MessageAsked, this, [this] {
    // Before the table is shown a message stands in the middle of the screen.
    if (!isVisible()) return ShowMessageWindow(nullptr);
    RefreshStatus();
    ShowMessageWindow(this);
    menus_->Refresh();  // a message may have been hidden from now on
  });
  connect(core_, &FrontEndBridge::SettlingAsked, this, [this](SettlePrompt& prompt) {
    RefreshStatus();
    AskSettleBet(this, prompt);
  });
  connect(core_, &FrontEndBridge::SaveFileAsked, this,
          [this](FileAction action, const std::string& offered, std::string& chosen) {
            chosen = AskFile(this, action, offered);
          });
  connect(core_, &FrontEndBridge::ScriptFailed, this, [](const std::string& text) {
    if (Table.HyperDriveOn) return;
    ShowMessage(text, Say(Text::AutoBetErrorTitle), msg::OkAlert, help::BettingSystems);
  });
}

void MainWindow::Animate() {
  PlayTableSound(Sound::DiceThrown);
  thrown_ = true;
  {
    const QScopedValueRollback<bool> inAir(TablePlay.DiceInAir, true);
    RefreshStatus();
    floating_->ShowDiceIfUsed();
    view_->AnimateDice();
  }
  bar_->Refresh();
  menus_->Refresh();
}

// Once after a throw: whoever has won something hears it.
void MainWindow::HearWins() {
  if (!std::exchange(thrown_, false)) return;
  bool won = false;
  ForEachPlayer([&](int place) { won |= BankrollOf(place) > Table.BankrollAtRoll[place]; });
  if (won) PlayWinSound();
}

void MainWindow::SaveIfDue() {
  if (!AutoBet.ScriptRunning && !view_->IsAnimating()) autosave_->SaveIfDue();
}

void MainWindow::RefreshStatus() {
  bar_->Refresh();
  menus_->Refresh();
  setWindowTitle(Shown(GameFile.WindowTitle));
  floating_->Refresh();
}

void MainWindow::RefreshAll() {
  RefreshStatus();
  ShowHint();
}

void MainWindow::Recover() {
  view_->DrawTable();
  RefreshAll();
}

// --- Starting and leaving ----------------------------------------------------------------------

void MainWindow::Start() {
  TakeWindowPlace(*this);
  show();
  TakeUpGame();
  GameFile.MainWindowShown = true;
  view_->setFocus();
  if (Table.BankrollStopPlace != 0) BankrollLimitStop(Table.BankrollStopPlace);
  Message.MsgText.clear();
  OfferUnfinishedTable();
  if (!autosave_->CanWrite()) {
    ShowMessage(Say(Text::FolderIsReadOnly, std::string(Folders.AppFolder)), Say(Text::FolderTitle),
                msg::OkAlert);
  }
  autosave_->Start();
}

void MainWindow::TakeUpGame() {
  TakeUpFontSize();
  menus_->SetCaptions();
  TablePlay = TablePlayState{};
  view_->DrawTable();
  floating_->Restore();
  RefreshAll();
  TellOtherWindows();
}

void MainWindow::OfferUnfinishedTable() {
  if (!autosave_->FindsTable()) return;
  const std::string question = Say(Text::UnfinishedQuestion, autosave_->TimeOfTable());
  const std::string title = Say(Text::UnfinishedTitle);
  const bool goOn = ShowMessage(question, title, msg::AskYesDefault, help::Saving) == AnswerYes;
  if (!goOn) return autosave_->Discard();
  if (autosave_->TakeUp() && OpenGame(std::string(AutomaticGameFile))) {
    Table.TableDirty = true;
    TakeUpGame();
  }
}

void MainWindow::closeEvent(QCloseEvent* event) {
  if (view_->IsAnimating() || QApplication::activeModalWidget() != nullptr) {
    event->ignore();
    if (view_->IsAnimating()) QTimer::singleShot(100, this, [this] { close(); });
    return;
  }
  KeepWindowPlace(*this);
  if (!Leave()) return event->ignore();
  autosave_->End();
  StopSounds();
  event->accept();
  QCoreApplication::quit();
}

// --- The table ---------------------------------------------------------------------------------

void MainWindow::ConnectTable() {
  connect(view_, &TableView::OutlookChanged, this, &MainWindow::ShowHint);
  connect(view_, &TableView::RightClicked, this, &MainWindow::RightClick);
  connect(view_, &TableView::DiceClicked, this, [this] { TableIsIdle() ? Roll() : RefreshAll(); });
  connect(view_, &TableView::DicePhaseChanged, floating_, &FloatingWindows::ShowThrow);
  connect(view_, &TableView::PlayerClicked, this, [this](int, QPoint at) { ShowPlayerMenu(at); });
  connect(bar_->RollButton(), &QPushButton::clicked, this, &MainWindow::Roll);
  connect(bar_->AutoRollButton(), &QPushButton::clicked, this, [this] { ToggleRun(false); });
  connect(bar_->HyperDriveButton(), &QPushButton::clicked, this, [this] { ToggleRun(true); });
  connect(menus_, &MainMenus::Done, this, &MainWindow::RefreshAll);
  connect(keys_, &MainKeys::Handled, this, &MainWindow::RefreshAll);
}

void MainWindow::ShowHint() {
  const ClickOutlook outlook = OutlookOfSpot(TablePlay.HotSpot);
  const bool nobody = outlook.text.empty() && Table.PlayerCount == 0;
  const QString hint =
      Shown(nobody ? Wording(Text::ClickOpenPosition) : std::string_view(outlook.text));
  bar_->ShowHint(hint, outlook.possible);
  view_->setAccessibleDescription(hint);
}

void MainWindow::Roll() {
  RollTheDice();
  RefreshAll();
}

// The right button rolls; during a run it asks to stop.
void MainWindow::RightClick() {
  if (!Table.AutoRollOn && !Table.HyperDriveOn) return Roll();
  const bool hyper = Table.HyperDriveOn;
  const int32_t answer =
      ShowMessage(SayChosen(hyper ? Text::AskToStopHyperDrive : Text::AskToStopAutoRoll),
                  SayChosen(hyper ? Text::HyperDriveActive : Text::AutoRollActive),
                  msg::AskYesDefault, help::AutoRoll);
  if (answer == AnswerYes) StopAutoRoll();
  RefreshAll();
}

void MainWindow::ShowPlayerMenu(QPoint at) {
  QMenu menu(this);
  for (const char* name :
       {"mnuRenamePlayer", "mnuBuyIn", "mnuMovePlayer", "mnuRemovePlayer", "mnuPassDice"})
    menu.addAction(Entry(name));
  menu.exec(at);
}

void MainWindow::ToggleRun(bool hyperDrive) {
  if (Table.AutoRollOn || Table.HyperDriveOn) {
    StopAutoRoll();
  } else if (TableIsIdle() && ConfirmScriptActive()) {
    core_->Pump().Restart();
    ToggleAutoRoll(hyperDrive ? UnattendedMode::HyperDrive : UnattendedMode::AutoRoll);
  }
  RefreshAll();
}

void MainWindow::keyPressEvent(QKeyEvent* event) {
  if (!keys_->Handle(*event)) QMainWindow::keyPressEvent(event);
}

bool MainWindow::focusNextPrevChild(bool next) {
  return keys_->HandleTab() || QMainWindow::focusNextPrevChild(next);
}

// --- Commands ----------------------------------------------------------------------------------

void MainWindow::NewGame() {
  const auto answer = AskNewGame(this, newGameChoices_);
  if (!answer || !StartNewGame(answer->options, answer->keepScripts)) return;
  TablePlay = TablePlayState{};
  view_->DrawTable();
}

void MainWindow::OpenGameFile() {
  const std::string file = AskFile(this, FileAction::OpenSession, GameFile.GameFileName);
  if (file.empty() || !AskToReplaceGame()) return;
  // A file that is cut off is reported, and what was read of it stands on the table.
  OpenGame(file);
  TakeUpGame();
}

void MainWindow::ChangeLanguage() {
  if (!AskLanguage(this)) return;
  Table.TableDirty = true;
  menus_->SetCaptions();
  bar_->SetCaptions();
  view_->DrawTable();
  RefreshAll();
  TellOtherWindows();
}

// The windows that set their own captions: help and view.
void MainWindow::TellOtherWindows() {
  QEvent change(QEvent::LanguageChange);
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window != this) QCoreApplication::sendEvent(window, &change);
  }
}

void MainWindow::TakeUpFontSize() {
  QFont font = QApplication::font();
  font.setPointSize(std::clamp(Settings.BasicFontSize, 9, 13));
  QApplication::setFont(font);
  bar_->SetCaptions();
}

}  // namespace tessarel
