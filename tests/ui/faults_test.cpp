// What happens to a person at the window when something below fails: one report, and the table
// stays as the rules know it.
#include <QPushButton>
#include <filesystem>
#include <stdexcept>

#include "base/fault.h"
#include "log/events_log.h"
#include "state/table.h"
#include "ui/trapped_application.h"
#include "window_fixture.h"

namespace tessarel {
namespace {

class FaultsInTheWindow : public WindowTest {
 protected:
  void SetUp() override {
    WindowTest::SetUp();
    EventsLog.LogOn = true;
    Settings.BetNeededToShoot = 0;
    Seat(4, "Ann", 1000);
    Seat(7, "Bob", 1000);
    SelectPlace(4);
    std::filesystem::remove(EventsIndexName());
    std::filesystem::create_directory(EventsIndexName());
  }
  void TearDown() override {
    WindowTest::TearDown();
    EventsLog = {};
  }

  // As a menu does it: from the event loop.
  void Choose(const char* entry) {
    QMetaObject::invokeMethod(window->Entry(entry), "trigger", Qt::QueuedConnection);
    QCoreApplication::processEvents();
  }

  // How many faults are reported while `act` runs; other messages are answered by `texts` and
  // Enter.
  int ReportsDuring(std::vector<const char*> texts, const std::function<void()>& act) {
    int reports = 0;
    size_t next = 0;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, [&] {
      auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      if (dialog == nullptr || !dialog->isVisible()) return;
      if (Message.MsgKind == MessageKind::Error) ++reports;
      const bool asksText = (Message.MsgFlags & msg::Input) != 0;
      ASSERT_TRUE(!asksText || next < texts.size()) << Message.MsgText;
      const bool asksYesNo = (Message.MsgFlags & msg::YesNo) == msg::YesNo;
      if (asksText) return Text(texts[next++])(*dialog);
      Key(asksYesNo ? Qt::Key_Y : Qt::Key_Return)(*dialog);
    });
    watch.start(5);
    act();
    return reports;
  }
};

TEST_F(FaultsInTheWindow, ALogThatCannotBeWrittenIsReportedOnceAndLeavesTheTableWhole) {
  const auto rail = [this](int place) { return View().PixelOfSpot(RailSpot(place, PlaceItself)); };
  const struct {
    const char* name;
    int reports;
    std::vector<const char*> texts;
    std::function<void()> act;
  } cases[] = {
      {"pass the dice", 1, {}, [&] { Press(Qt::Key_P); }},
      {"join", 1, {"Cid", "500"}, [&] { Click(rail(2)); }},
      {"rename", 1, {"Anna"}, [&] { Choose("mnuRenamePlayer"); }},
      {"move",
       1,
       {},
       [&] {
         Choose("mnuMovePlayer");
         Click(rail(6));
       }},
      {"bet", 0, {}, [&] { ClickBet(bet::Field); }},
      {"roll", 1, {}, [&] { Press(Qt::Key_F2); }},
      {"leave", 1, {}, [&] { Choose("mnuRemovePlayer"); }},
  };
  for (const auto& each : cases) {
    SCOPED_TRACE(each.name);
    EXPECT_EQ(ReportsDuring(each.texts, each.act), each.reports);
    EXPECT_EQ(CheckTable(), "");
    EXPECT_TRUE(window->Entry("mnuRollDice")->isEnabled());
  }
  // The program goes on where the disk does.
  std::filesystem::remove(EventsIndexName());
  ASSERT_NE(CurrentPlace(), 0);
  const Money before = Bet(CurrentPlace(), bet::Field);
  EXPECT_EQ(ReportsDuring({}, [&] { ClickBet(bet::Field); }), 0);
  EXPECT_GT(Bet(CurrentPlace(), bet::Field), before);
}

// --- The trap of the event loop ------------------------------------------------------------------

struct Reports {
  std::vector<std::string> texts;
  std::function<void()> whileShown;
};
Reports* Heard = nullptr;

class EventTrap : public testing::Test {
 protected:
  void SetUp() override {
    Heard = &heard_;
    FrontEnd.ShowMessage = [] {
      Heard->texts.push_back(Message.MsgText);
      if (Heard->whileShown) Heard->whileShown();
    };
  }
  void TearDown() override { FrontEnd = {}; }

  Reports heard_;
};

TEST_F(EventTrap, WhatASlotThrowsIsReported) {
  QPushButton button;
  QObject::connect(&button, &QPushButton::clicked, [] { RaiseOverflow(); });
  QTest::mouseClick(&button, Qt::LeftButton);
  QMetaObject::invokeMethod(
      &button, [] { throw std::runtime_error("broken"); }, Qt::QueuedConnection);
  QCoreApplication::processEvents();
  EXPECT_EQ(heard_.texts, std::vector<std::string>({"Overflow, Error #6 occurred at: QPushButton",
                                                    "broken, Error #5 occurred at: QPushButton"}));
}

TEST_F(EventTrap, AFaultDuringTheReportIsNotReportedAgain) {
  QPushButton button;
  QObject::connect(&button, &QPushButton::clicked, [] { RaiseOverflow(); });
  heard_.whileShown = [&] { QTest::mouseClick(&button, Qt::LeftButton); };
  QTest::mouseClick(&button, Qt::LeftButton);
  EXPECT_EQ(heard_.texts.size(), 1u);
  heard_.whileShown = nullptr;
  QTest::mouseClick(&button, Qt::LeftButton);
  EXPECT_EQ(heard_.texts.size(), 2u) << "a click is answered each time";
}

TEST_F(EventTrap, ARepaintThatFailsIsReportedOnce) {
  class Broken : public QWidget {
    void paintEvent(QPaintEvent*) override { throw Fault(FaultNumber::InvalidCall, "No paint"); }
  };
  Broken widget;
  widget.show();
  for (int k = 0; k < 3; ++k) {
    widget.repaint();
    QCoreApplication::processEvents();
  }
  EXPECT_EQ(heard_.texts.size(), 1u);
}

}  // namespace
}  // namespace tessarel
