// The main window on a fresh table in a folder of its own, with the dialogs answered in turn.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QTest>
#include <QTimer>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "base/front_end.h"
#include "base/message.h"
#include "base/temporary_folder.h"
#include "play/manual_roll.h"
#include "play/players.h"
#include "play/roll_driver.h"
#include "play/start_up.h"
#include "state/settings.h"
#include "state/table.h"
#include "state/view_state.h"
#include "ui/main_window.h"
#include "ui/trapped_application.h"

namespace tessarel {

class WindowTest : public testing::Test {
 protected:
  void SetUp() override {
    StartUp(folder.Path());
    Settings.DisableAllSound = true;
    Open();
  }
  void TearDown() override { window.reset(); }

  void Open() {
    window = std::make_unique<MainWindow>(folder.Path());
    QObject::connect(static_cast<TrappedApplication*>(qApp), &TrappedApplication::FaultReported,
                     window.get(), &MainWindow::Recover);
    window->Start();
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
  }

  // The steps answer one dialog each, in the order in which they come up while `open` runs.
  void AnswerInTurn(std::vector<std::function<void(QDialog&)>> steps,
                    const std::function<void()>& open) {
    size_t next = 0;
    QDialog* answered = nullptr;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, [&] {
      auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      if (dialog == nullptr || (dialog == answered && !dialog->isVisible())) return;
      answered = dialog;
      if (next < steps.size()) return steps[next++](*dialog);
      ADD_FAILURE() << "one dialog too many: " << Message.MsgText;
      dialog->reject();
    });
    watch.start(5);
    open();
    EXPECT_EQ(next, steps.size());
  }

  static std::function<void(QDialog&)> Key(Qt::Key key) {
    return [key](QDialog& dialog) { QTest::keyClick(dialog.focusWidget(), key); };
  }
  static std::function<void(QDialog&)> Text(const char* text) {
    return [text](QDialog& dialog) {
      QTest::keyClick(dialog.focusWidget(), Qt::Key_A, Qt::ControlModifier);
      QTest::keyClicks(dialog.focusWidget(), text);
      QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
    };
  }

  TableView& View() { return *window->View(); }
  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    // Without a window manager a closed dialog leaves no window active.
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    QTest::keyClick(&View(), key, modifiers);
  }
  void Click(QPoint at, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::mouseMove(&View(), at);
    QTest::mouseClick(&View(), Qt::LeftButton, modifiers, at);
  }
  void ClickBet(int number, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    Click(View().PixelOf(CurrentPlace(), number), modifiers);
  }
  void RollDice(int die1, int die2) { RollChosen({die1, die2}); }
  // Seats somebody without asking.
  void Seat(int place, const char* name, Money bankroll) {
    SeatPlayer(place, name, bankroll);
    FrontEnd.DrawTable();
  }

  TemporaryFolder folder;
  std::unique_ptr<MainWindow> window;
};

}  // namespace tessarel
