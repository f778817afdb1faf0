// The floating panel "Dice Rolls", on which the user picks the outcome of the next roll. It keeps
// its display, options and colours with the game.
#pragma once

#include <QAction>
#include <QBasicTimer>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QSlider>
#include <array>
#include <cstdint>

#include "ui/windows/console_options.h"
#include "ui/windows/rate_meter.h"
#include "ui/windows/roll_pad.h"
#include "ui/windows/small_window.h"

namespace tessarel {

class RollConsole : public FloatingWindow {
  Q_OBJECT
 public:
  explicit RollConsole(QWidget* parent);
  ~RollConsole() override;
  void Refresh() override;

 protected:
  void contextMenuEvent(QContextMenuEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void timerEvent(QTimerEvent* event) override;

 private:
  // What is looked at between two calls of Refresh.
  struct Seen {
    int32_t Rolls = -1, AutoRollOn = false, HyperDriveOn = false, Throttle = 0;
    friend bool operator==(const Seen&, const Seen&) = default;
  };

  void AddDisplayMenu();
  void AddColorMenu();
  void AddRollMenu();
  void LayOut();
  QAction* AddSwitch(QMenu* menu, const char* name, bool RollConsoleOptions::*hides);
  void ShowChange();
  void PickColor(RollKind kind);
  template <class Action>
  void Run(Action action);
  void RefreshCaptions();
  void RefreshColorIcons();
  void RefreshFigures();
  void FitToDisplay();

  QMenuBar* bar_;
  QMenu *displayMenu_, *colorMenu_, *rollMenu_;
  std::array<QAction*, RollPadDisplays> mnuRYONDisplay_{};
  std::array<QAction*, RollKinds> mnuButtonColor_{};
  QAction *mnuRollCounter_, *mnuHyperDriveButton_, *mnuRandomButton_, *mnuHide_, *defaultColors_;
  QAction *rollAtRandom_, *hyperDrive_, *mnuSetAutoStop_, *mnuSetAutoRollTimeDelay_;
  RollPad* pad_;
  QLabel *hint_, *throttleCaption_, *throttleValue_, *lblRollCounter_;
  QPushButton *cmdRandomRoll_, *cmdHyperDrive_;
  QSlider* hsbThrottle_;
  HyperDriveMeter* meter_;
  QBasicTimer timer_;
  Seen seen_;
};

}  // namespace tessarel
