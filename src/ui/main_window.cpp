#include "ui/main_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QThread>
#include <QVBoxLayout>
#include <algorithm>

#include "autobet/values.h"
#include "base/folders.h"
#include "base/front_end.h"
#include "base/message.h"
#include "files/file_dialog.h"
#include "files/game_file.h"
#include "files/hot_keys.h"
#include "play/auto_roll.h"
#include "play/game_commands.h"
#include "play/leaving.h"
#include "play/players.h"
#include "state/settings.h"
#include "state/view_state.h"
#include "ui/main_texts.h"
#include "ui/sound/sounds.h"
#include "ui/table_presets.h"
#include "ui/text.h"
#include "ui/windows/game_dialogs.h"
#include "ui/windows/help_window.h"
#include "ui/windows/message_window.h"
#include "ui/windows/move_window.h"
#include "ui/windows/roll_console.h"

namespace tessarel {

namespace {

constexpr int LeastWidth = 1024, LeastHeight = 700;
constexpr qint64 PumpEveryNs = 16'000'000, FiguresEveryMs = 120;

// The window of the program, for the core's callbacks.
MainWindow* Main = nullptr;

// Whether enough of a stored place is on a screen of today to take hold of the window.
bool IsOnScreen(const QRect& place) {
  const auto screens = QGuiApplication::screens();
  return place.isValid() && std::any_of(screens.begin(), screens.end(), [&](QScreen* screen) {
           const QRect seen = screen->availableGeometry().intersected(place);
           return seen.width() >= 100 && seen.height() >= 50;
         });
}

}  // namespace

MainWindow::MainWindow(const std::string& appFolder)
    : view_(new TableView(this)),
      bar_(new ControlBar(this)),
      autosave_(appFolder),
      console_(MakeRollConsole(this)),
      diceWindow_(MakeDiceWindow(this)),
      statusBox_(MakeStatusBox(view_)) {
  Main = this;
  statusBox_->hide();
  auto* middle = new QWidget(this);
  auto* column = new QVBoxLayout(middle);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  column->addWidget(view_, 1);
  column->addWidget(bar_);
  setCentralWidget(middle);
  setMinimumSize(LeastWidth, LeastHeight);
  BuildMenus();
  ConnectTable();
  FillFrontEnd();
  LanguageChanged = [this] { TakeUpLanguage(); };
  NoticesChanged = [this] { UpdateEntries(); };
  OpenHelpTopic = [this](int32_t topic) { ShowHelp(this, topic); };
  qApp->installEventFilter(this);
  sincePump_.start();
  sinceFigures_.start();
}

MainWindow::~MainWindow() {
  FrontEnd = FrontEndCallbacks{};
  LanguageChanged = nullptr;
  NoticesChanged = nullptr;
  OpenHelpTopic = nullptr;
  // The table may still lose the pointer and the focus while the window below this one goes.
  view_->OutlookChanged = nullptr;
  view_->RightClick = nullptr;
  view_->DiceClick = nullptr;
  view_->DicePhaseChanged = nullptr;
  view_->PlayerMenu = nullptr;
  Main = nullptr;
}

QAction* MainWindow::Entry(const QString& name) const {
  for (const MenuEntry& entry : entries_) {
    if (entry.action->objectName() == name) return entry.action;
  }
  return nullptr;
}

// --- The core's callbacks ----------------------------------------------------------------------

void MainWindow::FillFrontEnd() {
  FrontEnd.ShowMessage = [] {
    // Before the table is shown a message stands in the middle of the screen.
    if (!Main->isVisible()) return ShowMessageWindow(nullptr);
    Main->RefreshStatus();
    ShowMessageWindow(Main);
  };
  FrontEnd.SettleBet = [](SettlePrompt& prompt) {
    Main->RefreshStatus();
    AskSettleBet(Main, prompt);
  };
  FrontEnd.RunPendingEvents = [] { Main->PumpEvents(); };
  FrontEnd.DrawBet = [](int place, int number) {
    if (!Table.HyperDriveOn) Main->view_->DrawBet(place, number);
  };
  FrontEnd.DrawTable = [] {
    Main->view_->DrawTable();
    Main->RefreshStatus();
  };
  FrontEnd.DrawStatus = [] {
    if (!Table.HyperDriveOn) {
      Main->view_->DrawTable();
      Main->HearWins();
    }
    Main->RefreshStatus();
  };
  // The Hyper-Drive shows its figures by itself; what scripts do meanwhile waits for its end.
  FrontEnd.RefreshViews = [] {
    if (!Table.HyperDriveOn) Main->RefreshStatus();
  };
  FrontEnd.PlaySound = [](Sound sound) {
    PlayTableSound(sound);
    if (sound == Sound::LimitBroken) Main->view_->ShowerChecks();
  };
  FrontEnd.AnimateDice = [] { Main->Animate(); };
  FrontEnd.PlaySoundFile = PlaySoundOfFile;
  FrontEnd.ReportScriptError = [](int, int, const std::string& text) {
    if (!Table.HyperDriveOn)
      ShowMessage(text, std::string(Localized(texts::ScriptErrorTitle)), msg::OkAlert,
                  help::BettingSystems);
  };
  FrontEnd.AskSaveFile = [](const std::string& title, const std::string& offered) {
    return AskFile(Main, FileActionOfTitle(title).value_or(FileAction::SaveSession), offered);
  };
  FrontEnd.StatusMilliseconds = 300;
}

void MainWindow::Animate() {
  PlayTableSound(Sound::DiceThrown);
  thrown_ = true;
  TablePlay.DiceInAir = true;
  RefreshStatus();
  ShowDiceWindowIfUsed();
  view_->AnimateDice();
  TablePlay.DiceInAir = false;
  bar_->Refresh();
  UpdateEntries();
}

// Once after a throw: whoever has won something hears it.
void MainWindow::HearWins() {
  if (!std::exchange(thrown_, false)) return;
  bool won = false;
  ForEachPlayer([&](int place) { won |= BankrollOf(place) > Table.BankrollAtRoll[place]; });
  if (won) PlayWinSound();
}

// Called once a roll under the Hyper-Drive, so that the clock is looked at only now and then: after
// twice as many calls each time, until a sixtieth of a second is over.
void MainWindow::PumpEvents() {
  if (!Table.HyperDriveOn) {
    QCoreApplication::processEvents();
    QThread::usleep(500);
  } else {
    if (--untilLook_ > 0) return;
    batch_ *= 2;
    untilLook_ = batch_;
    if (sincePump_.nsecsElapsed() < PumpEveryNs) return;
    if (sinceFigures_.elapsed() >= FiguresEveryMs) {
      bar_->ShowRun();
      sinceFigures_.restart();
    }
    QCoreApplication::processEvents();
    sincePump_.restart();
    batch_ = untilLook_ = 1;
  }
  if (!AutoBet.ScriptRunning && !view_->IsAnimating()) autosave_.SaveIfDue();
}

void MainWindow::RefreshStatus() {
  bar_->Refresh();
  UpdateEntries();
  setWindowTitle(Shown(GameFile.WindowTitle));
  ShowSmallWindows();
}

void MainWindow::RefreshAll() {
  RefreshStatus();
  ShowHint();
}

// --- Starting and leaving ----------------------------------------------------------------------

void MainWindow::Start() {
  TakePlace();
  show();
  TakeUpGame();
  GameFile.MainWindowShown = true;
  view_->setFocus();
  if (Table.BankrollStopPlace != 0) BankrollLimitStop(Table.BankrollStopPlace);
  Message.MsgText.clear();
  OfferUnfinishedTable();
  if (!autosave_.CanWrite()) {
    ShowMessage(FillIn(texts::FolderIsReadOnly, {std::string(Folders.AppFolder)}),
                std::string(Localized(texts::FolderTitle)), msg::OkAlert);
  }
  autosave_.Start([this] { return !Table.RollInProgress && !AutoBet.ScriptRunning; });
}

void MainWindow::TakeUpGame() {
  TakeUpFontSize();
  SetCaptions();
  TablePlay = TablePlayState{};
  view_->DrawTable();
  RestoreSmallWindow(console_);
  RestoreSmallWindow(diceWindow_);
  ShowDiceWindowIfUsed();
  RefreshAll();
  TellOtherWindows();
}

void MainWindow::OfferUnfinishedTable() {
  if (!autosave_.FindsTable()) return;
  const std::string question = FillIn(texts::UnfinishedQuestion, {autosave_.TimeOfTable()});
  const std::string title(Localized(texts::UnfinishedTitle));
  const bool goOn = ShowMessage(question, title, msg::AskYesDefault, help::Saving) == AnswerYes;
  if (!goOn) return autosave_.Discard();
  if (autosave_.TakeUp() && OpenGame(std::string(AutomaticGameFile))) {
    Table.TableDirty = true;
    TakeUpGame();
  }
}

void MainWindow::TakePlace() {
  const WindowPlace& kept = GameViews.Windows.Main;
  const QRect place(kept.Left, kept.Top, kept.Width, kept.Height);
  if (IsOnScreen(place) && place.width() >= LeastWidth / 2) {
    setGeometry(place);
  } else {
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    resize(std::min(1500, screen.width() * 9 / 10), std::min(860, screen.height() * 9 / 10));
  }
  if (kept.State == MainMaximised) setWindowState(Qt::WindowMaximized);
}

void MainWindow::KeepPlace() {
  const bool plain = !isMaximized() && !isMinimized();
  const QRect place = plain ? geometry() : normalGeometry();
  const MainWindowState state = isMaximized()   ? MainMaximised
                                : isMinimized() ? MainMinimised
                                                : MainNormal;
  GameViews.Windows.Main = {state, place.left(), place.top(), place.width(), place.height()};
}

void MainWindow::closeEvent(QCloseEvent* event) {
  if (view_->IsAnimating() || QApplication::activeModalWidget() != nullptr) {
    event->ignore();
    if (view_->IsAnimating()) QTimer::singleShot(100, this, [this] { close(); });
    return;
  }
  KeepPlace();
  if (!Leave()) return event->ignore();
  autosave_.End();
  StopSounds();
  event->accept();
  QCoreApplication::quit();
}

// --- The table ---------------------------------------------------------------------------------

void MainWindow::ConnectTable() {
  view_->OutlookChanged = [this] { ShowHint(); };
  view_->RightClick = [this] { RightClick(); };
  view_->DiceClick = [this] {
    if (TableIsIdle()) RollTheDice();
    RefreshAll();
  };
  view_->DicePhaseChanged = [this](double phase) {
    if (IsSmallShown(SmallWindowKind::Tray)) ShowThrow(diceWindow_, phase);
  };
  view_->PlayerMenu = [this](int place, QPoint at) { ShowPlayerMenu(place, at); };
  connect(bar_->RollButton(), &QPushButton::clicked, this, [this] {
    RollTheDice();
    RefreshAll();
  });
  connect(bar_->AutoRollButton(), &QPushButton::clicked, this, [this] { ToggleRun(false); });
  connect(bar_->HyperDriveButton(), &QPushButton::clicked, this, [this] { ToggleRun(true); });
}

void MainWindow::ShowHint() {
  const ClickOutlook outlook = OutlookOfSpot(TablePlay.HotSpot);
  const bool nobody = outlook.text.empty() && Table.PlayerCount == 0;
  const QString hint = Shown(nobody ? GetText(1) : std::string_view(outlook.text));
  bar_->ShowHint(hint, outlook.possible);
  view_->setAccessibleDescription(hint);
}

// The right button rolls; during a run it asks to stop.
void MainWindow::RightClick() {
  RunIsOn() ? void(AskToStopRun()) : RollTheDice();
  RefreshAll();
}

void MainWindow::ShowPlayerMenu(int, QPoint at) {
  QMenu menu(this);
  for (const char* name :
       {"mnuRenamePlayer", "mnuBuyIn", "mnuMovePlayer", "mnuRemovePlayer", "mnuPassDice"})
    menu.addAction(Entry(name));
  menu.exec(at);
}

void MainWindow::ToggleRun(bool hyperDrive) {
  if (RunIsOn()) {
    StopAutoRoll();
  } else if (TableIsIdle() && ConfirmScriptActive()) {
    batch_ = untilLook_ = 1;
    ToggleAutoRoll(hyperDrive ? UnattendedMode::HyperDrive : UnattendedMode::AutoRoll);
  }
  RefreshAll();
}

// --- Commands ----------------------------------------------------------------------------------

void MainWindow::NewGame() {
  const auto answer = AskNewGame(this);
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

void MainWindow::TakeUpLanguage() {
  Table.TableDirty = true;
  SetCaptions();
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

// --- Small windows -----------------------------------------------------------------------------

QWidget* MainWindow::Small(SmallWindowKind kind) const {
  switch (kind) {
    case SmallWindowKind::Console:
      return console_;
    case SmallWindowKind::Tray:
      return diceWindow_;
    default:
      return statusBox_;
  }
}

void MainWindow::ShowSmall(SmallWindowKind kind, bool shown) {
  QWidget* window = Small(kind);
  if (window->isVisible() == shown) return;
  if (shown) RefreshSmallWindow(window);
  window->setVisible(shown);
}

bool MainWindow::IsSmallShown(SmallWindowKind kind) const {
  return Small(kind)->isVisible();
}

void MainWindow::ShowDiceWindowIfUsed() {
  if (Settings.DiceAction == DiceInWindow) ShowSmall(SmallWindowKind::Tray, true);
}

void MainWindow::ShowSmallWindows() {
  ShowSmall(SmallWindowKind::Status, GameViews.Table.StatusBox);
  for (QWidget* window : {console_, diceWindow_, statusBox_}) {
    if (window->isVisible()) RefreshSmallWindow(window);
  }
}

void MainWindow::ShowMoveWindow() {
  if (moveWindow_ != nullptr) {
    moveWindow_->close();
    return;
  }
  moveWindow_ = MakeMoveWindow(this, view_);
  moveWindow_->show();
}

// --- Keys --------------------------------------------------------------------------------------

// A letter with Ctrl that has a script comes before the menus' shortcut of the same letter.
bool MainWindow::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::ShortcutOverride || QApplication::activeModalWidget() != nullptr)
    return QMainWindow::eventFilter(watched, event);
  auto* key = static_cast<QKeyEvent*>(event);
  const bool letter =
      key->modifiers() == Qt::ControlModifier && key->key() >= Qt::Key_A && key->key() <= Qt::Key_Z;
  if (letter && RowOfHotKey(static_cast<char>('A' + key->key() - Qt::Key_A)) != 0) {
    event->accept();
    return true;
  }
  return QMainWindow::eventFilter(watched, event);
}

void MainWindow::keyPressEvent(QKeyEvent* event) {
  if (!HandleKey(event)) QMainWindow::keyPressEvent(event);
}

// Tab belongs to a keyed amount, as Enter does.
bool MainWindow::focusNextPrevChild(bool next) {
  if (TablePlay.EnteredAmount.empty()) return QMainWindow::focusNextPrevChild(next);
  ClickSpot(TablePlay.HotSpot);
  RefreshAll();
  return true;
}

namespace {

struct PlainKey {
  int key;
  const char* entry;
};
constexpr PlainKey PlainKeys[] = {
    {Qt::Key_P, "mnuPassDice"},        {Qt::Key_Z, "mnuTableMove"}, {Qt::Key_Space, "mnuFlashBets"},
    {Qt::Key_C, "mnuDisplayPropBets"}, {Qt::Key_R, "mnuAutoRoll"},  {Qt::Key_H, "mnuHyperDrive"},
};

// What Escape gives up: a keyed amount, then a command that waits for its bet.
bool GiveUpSomething() {
  if (!TablePlay.EnteredAmount.empty()) {
    TablePlay.EnteredAmount.clear();
    return true;
  }
  return std::exchange(TablePlay.TableAction, ActionNormal) != ActionNormal;
}

}  // namespace

bool MainWindow::HandleKey(QKeyEvent* event) {
  const int key = event->key();
  const auto modifiers = event->modifiers() & ~Qt::KeypadModifier;
  if (modifiers == Qt::ControlModifier && key >= Qt::Key_A && key <= Qt::Key_Z) {
    const bool ran = TableIsIdle() && RunHotKey(static_cast<char>('A' + key - Qt::Key_A));
    RefreshAll();
    return ran;
  }
  if (modifiers != Qt::NoModifier) return false;
  const bool handled = HandleTableKey(key);
  if (handled) RefreshAll();
  return handled;
}

bool MainWindow::HandleTableKey(int key) {
  for (const PlainKey& plain : PlainKeys) {
    if (plain.key != key) continue;
    Entry(plain.entry)->trigger();
    return true;
  }
  switch (key) {
    case Qt::Key_Left:
    case Qt::Key_Right:
      view_->MoveHotSpot(key == Qt::Key_Left ? -1 : 1, 0);
      return true;
    case Qt::Key_Up:
    case Qt::Key_Down:
      view_->MoveHotSpot(0, key == Qt::Key_Up ? -1 : 1);
      return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      ClickSpot(TablePlay.HotSpot);
      return true;
    case Qt::Key_Backspace:
      if (!KeyAmount(8)) ClickSpot(TablePlay.HotSpot, ClickKind::TakeOff);
      return true;
    case Qt::Key_Escape:
      if (!GiveUpSomething() && Table.AutoRollOn) StopAutoRoll();
      return true;
  }
  return HandleDigit(key);
}

// Digits make up an amount when amounts are keyed in; else 1 to 5 choose a check.
bool MainWindow::HandleDigit(int key) {
  if (GameViews.Table.KeyInBetAmounts) {
    const bool point = key == Qt::Key_Period || key == Qt::Key_Comma;
    const bool taken = key < 128 && KeyAmount(point ? '.' : static_cast<char>(key));
    return taken;
  }
  if (key < Qt::Key_1 || key > Qt::Key_5) return false;
  ChooseCheck(key - Qt::Key_0);
  return true;
}

}  // namespace tessarel
