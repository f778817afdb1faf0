// The main window: menus, the drawn table, the bar below it and the small windows that float over
// it. It fills the core's FrontEnd, so that there is one of it, from the start to the end of the
// program.
#pragma once

#include <QAction>
#include <QMainWindow>
#include <QPointer>
#include <functional>
#include <vector>

#include "texts/say.h"
#include "ui/autosave.h"
#include "ui/control_bar.h"
#include "ui/table_view.h"

namespace tessarel {

// The windows that float over the table.
enum class SmallWindowKind { Console, Tray, Status };

class MainWindow : public QMainWindow {
 public:
  explicit MainWindow(const std::string& appFolder);
  ~MainWindow() override;

  // After the game is there: shows the window where it stood, offers a table that was left behind
  // and says what waits to be said.
  void Start();

  TableView* View() const { return view_; }
  ControlBar* Bar() const { return bar_; }
  // The entry of a menu by its name, as in "mnuRollDice"; null for none.
  QAction* Entry(const QString& name) const;

  // Brings bar, small windows, title and entries in step with the table.
  void RefreshAll();
  void RefreshStatus();
  // Takes the view words, options and window places of a game that was opened.
  void TakeUpGame();

  // What the core's RunPendingEvents comes to.
  void PumpEvents();

 protected:
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool focusNextPrevChild(bool next) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  friend struct MainMenus;

  void BuildMenus();
  void SetCaptions();
  void UpdateEntries();
  void ConnectTable();
  void FillFrontEnd();

  void RightClick();
  void ShowPlayerMenu(int place, QPoint at);
  void ToggleRun(bool hyperDrive);
  void ShowHint();
  void TakeUpLanguage();
  void TellOtherWindows();
  void NewGame();
  void OpenGameFile();
  void Animate();
  void HearWins();
  void OfferUnfinishedTable();
  void TakePlace();
  void KeepPlace();
  QWidget* Small(SmallWindowKind kind) const;
  void ShowSmall(SmallWindowKind kind, bool shown);
  bool IsSmallShown(SmallWindowKind kind) const;
  void ShowDiceWindowIfUsed();
  void ShowSmallWindows();
  void ShowMoveWindow();
  void TakeUpFontSize();
  void ListPlayers();
  bool HandleKey(QKeyEvent* event);
  bool HandleTableKey(int key);
  bool HandleDigit(int key);

  struct MenuEntry {
    QAction* action = nullptr;
    Text caption{};
    std::function<bool()> possible;
    std::function<bool()> checked;
  };
  struct MenuOfWindow {
    QMenu* menu = nullptr;
    Text caption{};
  };

  TableView* view_;
  ControlBar* bar_;
  Autosave autosave_;
  QWidget *console_, *diceWindow_, *statusBox_;
  std::vector<MenuEntry> entries_;
  std::vector<MenuOfWindow> menus_;
  QMenu* players_ = nullptr;
  std::vector<QAction*> playerEntries_;
  QPointer<QWidget> moveWindow_;
  QElapsedTimer sincePump_, sinceFigures_;
  int64_t batch_ = 1, untilLook_ = 1;
  bool thrown_ = false;
};

}  // namespace tessarel
