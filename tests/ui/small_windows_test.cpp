#include <QApplication>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QSlider>
#include <QTest>
#include <memory>
#include <set>

#include "base/clock.h"
#include "play/auto_roll.h"
#include "play/roll_fixture.h"
#include "state/view_state.h"
#include "texts/language.h"
#include "ui/text.h"
#include "ui/windows/console_options.h"
#include "ui/windows/dice_window.h"
#include "ui/windows/rate_meter.h"
#include "ui/windows/roll_console.h"
#include "ui/windows/roll_pad.h"
#include "ui/windows/status_panel.h"

namespace tessarel {
namespace {

RollConsole* Console = nullptr;

RollPad* Pad() {
  return Console->findChild<RollPad*>();
}

class SmallWindows : public RollTest {
 protected:
  void SetUp() override {
    RollTest::SetUp();
    GameViews = {};
    SetLanguage(English);
    Open();
  }
  void TearDown() override {
    console_.reset();
    GameViews = {};
    SetLanguage(English);
    ReleaseClock();
    RollTest::TearDown();
  }
  void Open() {
    console_ = std::make_unique<RollConsole>(nullptr);
    Console = console_.get();
    Console->show();
    QApplication::processEvents();
  }
  static void ShowDisplay(RollPadDisplay display) {
    Console->findChild<QAction*>("mnuRYONDisplay" + QString::number(display))->trigger();
  }
  static void ClickCell(size_t index) {
    const QPoint middle = Pad()->BoxOf(static_cast<int>(index)).center();
    QTest::mouseClick(Pad(), Qt::LeftButton, {}, middle);
  }
  template <class Kind>
  static Kind* Part(const char* name) {
    return Console->findChild<Kind*>(name);
  }

  std::unique_ptr<RollConsole> console_;
};

TEST_F(SmallWindows, CellsOfEachDisplayRollTheirDice) {
  for (const RollPadDisplay display : {BasicNumbers, ComboTriangle, ComboBox}) {
    ShowDisplay(display);
    const std::vector<RollPadCell> cells = Pad()->Grid().Cells;
    ASSERT_EQ(cells.size(), display == BasicNumbers ? 11U : 36U);
    for (size_t k = 0; k < cells.size(); ++k) {
      const int32_t before = RollsInSession();
      ClickCell(k);
      ASSERT_EQ(RollsInSession(), before + 1);
      EXPECT_EQ(Table.DiceTotal, cells[k].Total);
      if (display == BasicNumbers) continue;
      EXPECT_EQ(Table.Die1, cells[k].Dice.die1);
    }
  }
}

TEST_F(SmallWindows, SingleFacesRollWhenBothDiceAreChosen) {
  ShowDisplay(SingleDice);
  ClickCell(3);
  EXPECT_EQ(RollsInSession(), 0);
  QTest::keyClick(Pad(), Qt::Key_Escape);
  ClickCell(6 + 1);
  EXPECT_EQ(RollsInSession(), 0) << "the first choice was taken back";
  ClickCell(4);
  EXPECT_EQ(RollsInSession(), 1);
  EXPECT_EQ(std::pair(Table.Die1, Table.Die2), std::pair(5, 2));
}

TEST_F(SmallWindows, KeysReachEveryCellAndChooseTheMarkedOne) {
  for (const RollPadDisplay display : {BasicNumbers, ComboTriangle, ComboBox}) {
    ShowDisplay(display);
    QTest::keyClick(Pad(), Qt::Key_Home);
    QTest::keyClick(Pad(), Qt::Key_Return);
    EXPECT_EQ(Table.DiceTotal, Pad()->Grid().Cells.front().Total);
    for (int row = 1; row < Pad()->Grid().Rows; ++row)
      QTest::keyClick(Pad(), Qt::Key_Down);
    for (int column = 1; column < Pad()->Grid().Columns; ++column)
      QTest::keyClick(Pad(), Qt::Key_Right);
    QTest::keyClick(Pad(), Qt::Key_Space);
    EXPECT_EQ(Table.DiceTotal, 12);
  }
}

TEST_F(SmallWindows, ClickStopsARunInsteadOfRolling) {
  FrontEnd.RunPendingEvents = [] {
    if (RollsInSession() == 30) ClickCell(0);
  };
  QTest::mouseClick(Part<QPushButton>("cmdHyperDrive"), Qt::LeftButton);
  EXPECT_EQ(RollsInSession(), 30);
  EXPECT_FALSE(Table.HyperDriveOn);
  EXPECT_EQ(Part<QPushButton>("cmdHyperDrive")->text(), tessarel::Shown(HyperDriveCaption()));
  FrontEnd = {};
  QTest::mouseClick(Part<QPushButton>("cmdRandomRoll"), Qt::LeftButton);
  EXPECT_EQ(RollsInSession(), 31);
  EXPECT_EQ(Part<QLabel>("lblRollCounter")->text(), "Rolls: 31");
}

TEST_F(SmallWindows, ConsoleKeepsItsOptionsColoursAndPlace) {
  ShowDisplay(ComboBox);
  Part<QAction>("mnuRollCounter")->trigger();
  Part<QAction>("mnuRandomButton")->trigger();
  SetButtonColor(RollKind::Seven, Qt::black);
  Console->setGeometry(40, 50, 500, 480);
  const QPoint place = Console->pos();
  EXPECT_EQ(GameViews.Windows.RollConsole.State, WindowOpen);
  Part<QAction>("mnuHide")->trigger();
  EXPECT_EQ(GameViews.Windows.RollConsole.State, WindowClosed);
  Console->show();
  Console->close();
  EXPECT_EQ(GameViews.Windows.RollConsole.State, WindowClosed);
  Console->Restore();
  EXPECT_FALSE(Console->isVisible());
  Open();
  EXPECT_EQ(Pad()->Grid().Cells.size(), 36U);
  EXPECT_EQ(Pad()->Grid().Rows, 6);
  EXPECT_FALSE(Part<QLabel>("lblRollCounter")->isVisible());
  EXPECT_FALSE(Part<QPushButton>("cmdRandomRoll")->isVisible());
  EXPECT_TRUE(Part<QPushButton>("cmdHyperDrive")->isVisible());
  EXPECT_LT(ButtonColor(RollKind::Seven).lightness(), 2);
  EXPECT_EQ(Console->pos(), place);
  EXPECT_EQ(Console->size(), QSize(500, 480));
}

TEST_F(SmallWindows, ConsoleOfAnotherScreenOpensWithinReach) {
  GameViews.Windows.RollConsole = {WindowClosed, FarthestPixel, -FarthestPixel, 300, 300};
  Open();
  EXPECT_EQ(Pad()->Grid().Cells.size(), 11U);
  EXPECT_EQ(ButtonColor(RollKind::Numbers), QColor(0xF1, 0xED, 0xE2));
  EXPECT_LT(Console->x(), 10'000);
}

TEST_F(SmallWindows, ThrottleFollowsTheSettingBothWays) {
  auto* slider = Part<QSlider>("hsbThrottle");
  slider->setValue(40);
  EXPECT_EQ(Settings.Throttle, 40);
  Settings.Throttle = 7;
  Console->Refresh();
  EXPECT_EQ(slider->value(), 7);
  EXPECT_EQ(Settings.Throttle, 7);
}

TEST_F(SmallWindows, DiceWindowCallsTheTotal) {
  DiceWindow window(nullptr);
  EXPECT_EQ(window.accessibleDescription(), "No roll yet");
  const struct {
    int die1, die2;
    const char* call;
  } cases[] = {{4, 4, "Eight the hard way"}, {6, 2, "Eight"},       {1, 1, "Two craps"},
               {6, 6, "Twelve craps"},       {2, 1, "Three craps"}, {5, 2, "Seven"},
               {5, 5, "Ten the hard way"},   {6, 5, "Eleven"},      {1, 3, "Four"}};
  for (const auto& each : cases) {
    Throw(each.die1, each.die2);
    window.Refresh();
    EXPECT_EQ(window.accessibleDescription(), each.call);
  }
}

TEST_F(SmallWindows, StatusBoxGrowsWithItsSizeAndStaysInItsParent) {
  QWidget table;
  table.resize(1200, 800);
  auto* box = new StatusPanel(&table);
  EXPECT_GT(box->width(), box->height()) << "a line for an empty table";
  for (int place = 1; place <= LastPlace; ++place)
    Seat(place);
  QSize last;
  for (GameViews.Table.StatusBoxSize = 1; GameViews.Table.StatusBoxSize <= 3;
       ++GameViews.Table.StatusBoxSize) {
    box->Refresh();
    EXPECT_GT(box->width(), last.width());
    EXPECT_GT(box->height(), last.height());
    last = box->size();
  }
  QTest::mousePress(box, Qt::LeftButton, {}, QPoint(5, 5));
  QTest::mouseMove(box, QPoint(205, 105));
  EXPECT_EQ(box->pos(), QPoint(200, 100));
  QTest::mouseMove(box, QPoint(9000, -9000));
  EXPECT_EQ(box->pos(), QPoint(table.width() - box->width(), 0));
  QTest::mouseRelease(box, Qt::LeftButton);
  EXPECT_TRUE(box->accessibleDescription().startsWith("P1\nBankroll:  1,000,000.00\nRail:"));
}

TEST_F(SmallWindows, RateIsThatOfTheLastHalfSecond) {
  HoldClock({2026, 11, 22});
  RollRate rate;
  HyperDriveMeter meter;
  const auto advance = [&](int64_t milliseconds, int32_t rolls) {
    AdvanceClock(milliseconds);
    Stats.RollCount[CurrentSession][0] += rolls;
    Table.HyperDriveOn = true;
    const double shown = rate.PerSecond();
    const QString text = shown > 0 ? RollRateText(shown) + " rolls/s" : QString();
    EXPECT_EQ(meter.Text(), text);
    Table.HyperDriveOn = false;
    EXPECT_EQ(meter.Text(), "") << "nothing runs";
    return shown;
  };
  advance(5000, 0);
  EXPECT_EQ(advance(50, 100), 0) << "too short to tell";
  EXPECT_EQ(advance(50, 100), 2000);
  for (int k = 0; k < 20; ++k)
    advance(100, 100'000);
  EXPECT_EQ(rate.PerSecond(), 1'000'000);
  EXPECT_EQ(RollRateText(1'000'000), "1,000,000");
  EXPECT_EQ(advance(200, 0), 600'000);
  EXPECT_EQ(advance(600, 0), 0);
  Stats = {};
  EXPECT_EQ(rate.PerSecond(), 0) << "a new session counts from 0";
}

// Shortcut letters within a menu; a caption has one.
void CheckShortcuts(const QMenu* menu, int language) {
  std::set<QChar> letters;
  for (const QAction* action : menu->actions()) {
    if (action->isSeparator()) continue;
    const qsizetype mark = action->text().indexOf('&');
    ASSERT_GE(mark, 0) << language << Typed(action->text());
    EXPECT_TRUE(letters.insert(action->text()[mark + 1].toLower()).second)
        << language << ' ' << Typed(action->text());
    if (action->menu() != nullptr) CheckShortcuts(action->menu(), language);
  }
}

TEST_F(SmallWindows, NoTextIsCutInAnyLanguage) {
  for (int language = 0; language < LanguageCount; ++language) {
    SetLanguage(language);
    for (int display = BasicNumbers; display <= SingleDice; ++display) {
      Console->Refresh();
      ShowDisplay(static_cast<RollPadDisplay>(display));
      QApplication::processEvents();
      auto* hint = Part<QLabel>("lblHint");
      for (size_t k = 0; k < Pad()->Grid().Cells.size(); ++k) {
        QTest::mouseMove(Pad(), Pad()->BoxOf(static_cast<int>(k)).center());
        EXPECT_LE(hint->fontMetrics().horizontalAdvance(hint->text()), hint->width())
            << Typed(hint->text());
      }
      for (const QLabel* label : Console->findChildren<QLabel*>())
        EXPECT_GE(label->width(), label->minimumSizeHint().width()) << Typed(label->text());
      for (const auto* button : Console->findChildren<QPushButton*>())
        EXPECT_GE(button->width(), button->sizeHint().width()) << Typed(button->text());
      const auto* bar = Console->findChild<QMenuBar*>();
      EXPECT_GE(bar->width(), bar->actionGeometry(bar->actions().back()).right());
    }
    for (const QAction* action : Console->findChild<QMenuBar*>()->actions())
      CheckShortcuts(action->menu(), language);
  }
}

}  // namespace
}  // namespace tessarel
