#include "ui/floating_windows.h"

#include "state/settings.h"
#include "ui/table_play.h"
#include "ui/windows/dice_window.h"
#include "ui/windows/move_window.h"
#include "ui/windows/roll_console.h"
#include "ui/windows/status_panel.h"

namespace tessarel {

FloatingWindows::FloatingWindows(QWidget* main, TableView* view)
    : QObject(main),
      main_(main),
      view_(view),
      console_(new RollConsole(main)),
      dice_(new DiceWindow(main)),
      status_(new StatusPanel(view)) {
  status_->hide();
}

void FloatingWindows::Show(SmallWindow& window, bool shown) {
  if (window.isVisible() == shown) return;
  if (shown) window.Refresh();
  window.setVisible(shown);
}

void FloatingWindows::ShowDiceIfUsed() {
  if (Settings.DiceAction == DiceInWindow) Show(*dice_, true);
}

void FloatingWindows::ToggleMoveWindow() {
  if (moveWindow_ != nullptr) {
    moveWindow_->close();
    return;
  }
  moveWindow_ = MakeMoveWindow(main_, view_);
  moveWindow_->show();
}

void FloatingWindows::ShowThrow(double phase) {
  if (dice_->isVisible()) dice_->SetPhase(phase);
}

void FloatingWindows::Refresh() {
  Show(*status_, GameViews.Table.StatusBox);
  for (SmallWindow* window : {static_cast<SmallWindow*>(console_), static_cast<SmallWindow*>(dice_),
                              static_cast<SmallWindow*>(status_)}) {
    if (window->isVisible()) window->Refresh();
  }
}

void FloatingWindows::Restore() {
  console_->Restore();
  dice_->Restore();
  ShowDiceIfUsed();
}

}  // namespace tessarel
