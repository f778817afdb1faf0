// The windows that float over the table: the roll console, the window of the dice, the status box
// and the one that turns and zooms the table. It shows and hides them and keeps them up to date.
#pragma once

#include <QObject>
#include <QPointer>

#include "ui/table_view.h"
#include "ui/windows/small_window.h"

namespace tessarel {

class RollConsole;
class DiceWindow;
class StatusPanel;

class FloatingWindows : public QObject {
  Q_OBJECT
 public:
  FloatingWindows(QWidget* main, TableView* view);

  RollConsole& Console() const { return *console_; }
  DiceWindow& Dice() const { return *dice_; }

  static void Toggle(SmallWindow& window) { Show(window, !window.isVisible()); }
  static void Show(SmallWindow& window, bool shown);
  void ShowDiceIfUsed();
  void ToggleMoveWindow();
  // Shows a moment of a throw where the dice have a window.
  void ShowThrow(double phase);
  // Those that are shown, in step with the table.
  void Refresh();
  // As a game that was opened has them.
  void Restore();

 private:
  QWidget* main_;
  TableView* view_;
  RollConsole* console_;
  DiceWindow* dice_;
  StatusPanel* status_;
  QPointer<QWidget> moveWindow_;
};

}  // namespace tessarel
