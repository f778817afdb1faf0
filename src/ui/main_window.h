// The main window: menus, the drawn table, the bar below it and the windows that float over it. It
// answers the core through its bridge, so that there is one main window, from the start to the end
// of the program.
#pragma once

#include <QMainWindow>
#include <string>

#include "ui/autosave.h"
#include "ui/control_bar.h"
#include "ui/floating_windows.h"
#include "ui/front_end_bridge.h"
#include "ui/main_keys.h"
#include "ui/main_menus.h"
#include "ui/table_view.h"
#include "ui/windows/game_dialogs.h"

namespace tessarel {

class MainWindow : public QMainWindow {
  Q_OBJECT
 public:
  explicit MainWindow(const std::string& appFolder);
  ~MainWindow() override;

  // After the game is there: shows the window where it stood, offers a table that was left behind
  // and says what waits to be said.
  void Start();

  TableView* View() const { return view_; }
  ControlBar* Bar() const { return bar_; }
  FloatingWindows& Floating() const { return *floating_; }
  // The entry of a menu by its name, as in "mnuRollDice"; null for none.
  QAction* Entry(const QString& name) const { return menus_->Entry(name); }

  // Takes the view words, options and window places of a game that was opened.
  void TakeUpGame();
  void TakeUpFontSize();

  // Commands.
  void NewGame();
  void OpenGameFile();
  void ChangeLanguage();
  void ToggleRun(bool hyperDrive);

  // Brings bar, small windows, title and entries in step with the table.
  void RefreshAll();
  // The same for all that may be behind the table after a fault has cut a command short.
  void Recover();

 protected:
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool focusNextPrevChild(bool next) override;

 private:
  void ConnectCore();
  void ConnectCoreQuestions();
  void ConnectTable();

  void RefreshStatus();
  void ShowHint();
  void Roll();
  void RightClick();
  void ShowPlayerMenu(QPoint at);
  void Animate();
  void HearWins();
  void SaveIfDue();
  void TellOtherWindows();
  void OfferUnfinishedTable();

  TableView* view_;
  ControlBar* bar_;
  Autosave* autosave_;
  FloatingWindows* floating_;
  MainMenus* menus_;
  MainKeys* keys_;
  FrontEndBridge* core_;
  NewGameChoices newGameChoices_;
  bool thrown_ = false;
};

}  // namespace tessarel
