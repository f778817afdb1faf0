// Plays at the main window with mouse and keys, and looks at what the table says to a refused
// click, in all languages.
#include <QAction>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <fstream>
#include <set>

#include "engine/bets.h"
#include "engine/seats.h"
#include "files/game_file.h"
#include "files/hot_keys.h"
#include "play/auto_roll.h"
#include "play/rail.h"
#include "state/books.h"
#include "text_fit.h"
#include "texts/language.h"
#include "window_fixture.h"

namespace tessarel {
namespace {

TEST_F(WindowTest, AHandIsPlayedByMouseAndKeys) {
  AnswerInTurn({Key(Qt::Key_Return), Text("Ann"), Text("1000")},
               [&] { Click(View().PixelOfSpot(RailSpot(4, PlaceItself))); });
  ASSERT_EQ(Table.PlayerName[4], "Ann");
  EXPECT_EQ(CurrentPlace(), 4);

  ClickBet(bet::PassLine);
  ClickBet(bet::PassLine);
  Press(Qt::Key_1);
  ClickBet(bet::PassLine, Qt::ShiftModifier);
  EXPECT_EQ(Bet(4, bet::PassLine), 9);
  RollDice(2, 2);
  EXPECT_EQ(Table.Point, 4);

  Press(Qt::Key_F9);
  for (const Qt::Key key : {Qt::Key_1, Qt::Key_8})
    Press(key);
  ClickBet(bet::PassLineOdds);
  EXPECT_EQ(Bet(4, bet::PassLineOdds), 18);
  EXPECT_EQ(BankrollOf(4), 1000);

  // Both bets win: the prompts are answered by "Take bet".
  AnswerInTurn({Key(Qt::Key_Escape), Key(Qt::Key_Escape)}, [&] { RollDice(1, 3); });
  EXPECT_EQ(BankrollOf(4), 1000 + 9 + 36);
  EXPECT_EQ(Bet(4, bet::PassLine), 0);
  EXPECT_EQ(Table.Point, 0);
}

TEST_F(WindowTest, BetsAreMadeByKeysAlone) {
  Seat(4, "Ann", 1000);
  Settings.SnapMouse = false;
  Press(Qt::Key_Left);  // the first arrow goes to the Pass Line
  EXPECT_EQ(TablePlay.HotSpot, bet::PassLine);
  Press(Qt::Key_3);
  Press(Qt::Key_Return);
  Press(Qt::Key_Return);
  Press(Qt::Key_Backspace);
  EXPECT_EQ(Bet(4, bet::PassLine), 25);
  Press(Qt::Key_Delete);
  EXPECT_EQ(Bet(4, bet::PassLine), 0);
  QEvent leave(QEvent::Leave);
  QApplication::sendEvent(&View(), &leave);
  EXPECT_EQ(TablePlay.HotSpot, bet::PassLine) << "chosen by keys";
  // Every bet can be reached: whatever the direction, the selection moves on and comes round.
  std::set<int> seen;
  for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Right}) {
    for (int step = 0; step < 40; ++step) {
      const int before = TablePlay.HotSpot;
      Press(key);
      EXPECT_NE(TablePlay.HotSpot, before);
      seen.insert(TablePlay.HotSpot);
    }
  }
  EXPECT_GT(seen.size(), 12u);
}

TEST_F(WindowTest, ModesLastForOneClickAndTheRightButtonCancels) {
  Seat(4, "Ann", 1000);
  Table.Point = 6;
  PlaceBet({4, bet::Place4, 10});
  Click(View().PixelOfSpot(PropositionSwitch));  // away from any bet
  Press(Qt::Key_F7);
  EXPECT_EQ(TablePlay.TableAction, ActionCallOff);
  ClickBet(bet::Place4);
  EXPECT_EQ(Table.BetWorking[4][bet::Place4], CalledOff);
  EXPECT_EQ(TablePlay.TableAction, ActionNormal);
  // Without the bet below them the Don't Pass Odds are that bet.
  EXPECT_EQ(View().SpotUnder(View().PixelOf(4, bet::DontPassOdds)), bet::DontPass);
  // With the pointer on the bet the command acts at once, and tells the vig.
  AnswerInTurn({Key(Qt::Key_Return)}, [&] { Press(Qt::Key_F5); });
  EXPECT_EQ(Bet(4, bet::Buy4), 10);
  // The Place area of a bought number is the bought bet.
  EXPECT_EQ(View().SpotUnder(View().PixelOf(4, bet::Place4)), bet::Buy4);

  QTest::mouseMove(&View(), View().PixelOfSpot(PropositionSwitch));
  Press(Qt::Key_F6);
  const int rolls = RollsInSession();
  QTest::mouseClick(&View(), Qt::RightButton, {}, View().PixelOf(4, bet::Field));
  EXPECT_EQ(TablePlay.TableAction, ActionNormal);
  EXPECT_EQ(RollsInSession(), rolls);
}

TEST_F(WindowTest, APileIsDraggedToAnotherBetAndOffTheLayout) {
  Seat(4, "Ann", 1000);
  PlaceBet({4, bet::Field, 15});
  const auto drag = [&](QPoint from, QPoint to) {
    QTest::mousePress(&View(), Qt::LeftButton, {}, from);
    QTest::mouseMove(&View(), (from + to) / 2);
    QTest::mouseMove(&View(), to);
    QTest::mouseRelease(&View(), Qt::LeftButton, {}, to);
  };
  drag(View().PixelOf(4, bet::Field), View().PixelOf(4, bet::PassLine));
  EXPECT_EQ(Bet(4, bet::Field), 0);
  EXPECT_EQ(Bet(4, bet::PassLine), 15);
  // What the new spot refuses stays where it is, with the reason.
  AnswerInTurn({Key(Qt::Key_Return)},
               [&] { drag(View().PixelOf(4, bet::PassLine), View().PixelOf(4, bet::Come)); });
  EXPECT_EQ(Bet(4, bet::PassLine), 15);
  // What has to stay is not bet a second time where it was dragged.
  Table.Point = 6;
  SetBetContract(4, bet::PassLine, 15);
  AnswerInTurn({Key(Qt::Key_Return)},
               [&] { drag(View().PixelOf(4, bet::PassLine), View().PixelOf(4, bet::Field)); });
  EXPECT_EQ(Bet(4, bet::PassLine), 15);
  EXPECT_EQ(Bet(4, bet::Field), 0);
  Table.Point = 0;
  drag(View().PixelOf(4, bet::PassLine), QPoint(3, 3));
  EXPECT_EQ(Bet(4, bet::PassLine), 0);
}

TEST_F(WindowTest, NothingChangesWhileTheDiceAreInTheAir) {
  Seat(4, "Ann", 1000);
  Seat(7, "Bob", 1000);
  SelectPlace(4);
  ClickBet(bet::PassLine);
  const QPoint pile = View().PixelOf(4, bet::PassLine), felt(3, 3);
  qputenv("TESSAREL_REDUCED_MOTION", "0");
  QTest::mousePress(&View(), Qt::LeftButton, {}, pile);
  QTimer::singleShot(100, [&] {
    ASSERT_TRUE(View().IsAnimating());
    QTest::mouseMove(&View(), felt);
    QTest::mouseRelease(&View(), Qt::LeftButton, {}, felt);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Backspace, Qt::Key_P, Qt::Key_F2})
      QTest::keyClick(&View(), key);
    QTest::keyClick(&View(), Qt::Key_Delete, Qt::ShiftModifier);
    for (const char* entry : {"mnuRemoveAllBets", "mnuMovePlayer", "mnuRemovePlayer", "mnuNew"})
      window->Entry(entry)->trigger();
    EXPECT_EQ(Bet(4, bet::PassLine), 5);
    QTest::mouseClick(&View(), Qt::LeftButton, {}, View().PixelOf(4, bet::Field));
  });
  RollDice(2, 2);
  qputenv("TESSAREL_REDUCED_MOTION", "1");
  EXPECT_FALSE(View().IsAnimating());
  EXPECT_EQ(Bet(4, bet::PassLine), 5);
  EXPECT_EQ(Bet(4, bet::Field), 0);
  EXPECT_EQ(Table.Shooter, 4);
  EXPECT_EQ(RollsInSession(), 1);
  EXPECT_EQ(TablePlay.TableAction, ActionNormal);
  EXPECT_TRUE(window->Entry("mnuRemoveAllBets")->isEnabled());
}

TEST_F(WindowTest, AKeyedAmountIsTakenByTabAndByEitherButton) {
  Seat(4, "Ann", 1000);
  Press(Qt::Key_F9);
  const auto amount = [&](Qt::Key digit) {
    Press(digit);
    Press(Qt::Key_0);
  };
  amount(Qt::Key_2);
  QTest::mouseMove(&View(), View().PixelOf(4, bet::Field));
  Press(Qt::Key_Tab);
  EXPECT_EQ(Bet(4, bet::Field), 20);
  EXPECT_TRUE(View().hasFocus());
  amount(Qt::Key_3);
  QTest::mouseClick(&View(), Qt::RightButton, {}, View().PixelOf(4, bet::Field));
  EXPECT_EQ(Bet(4, bet::Field), 30);
  EXPECT_EQ(RollsInSession(), 0);
}

TEST_F(WindowTest, PlayersAreSelectedAndMovedOnTheRail) {
  Seat(4, "Ann", 1000);
  Seat(7, "Bob", 500);
  Click(View().PixelOfSpot(RailSpot(7, PlaceItself)));
  EXPECT_EQ(CurrentPlace(), 7);
  window->Entry("mnuMovePlayer")->trigger();
  for (const int spot : {0, static_cast<int>(bet::Field)}) {
    EXPECT_EQ(OutlookOfSpot(spot).text, "Click the rail where you want to put Bob");
  }
  Click(View().PixelOfSpot(RailSpot(2, PlaceItself)));
  EXPECT_EQ(Table.PlayerName[2], "Bob");
  EXPECT_EQ(CurrentPlace(), 2);
  AnswerInTurn({Text("250")}, [&] { window->Entry("mnuBuyIn")->trigger(); });
  EXPECT_EQ(BankrollOf(2), 750);
  Press(Qt::Key_P);
  EXPECT_EQ(Table.Shooter, 2);
}

// Every refusal of a click, in the words of the rules.
TEST_F(WindowTest, APlayersNameIsAskedUntilItCanBeKept) {
  Seat(2, "Joe", 100);
  const std::string tooLong(61, 'w');
  const auto foreign = [](QDialog& dialog) {
    auto* name = dialog.findChild<QLineEdit*>("txtInput");
    EXPECT_EQ(name->text(), "Joe");  // what was refused stands to be mended
    name->clear();
    name->insert(QString(QChar(0x15E)) + "ule" + QChar(0x418));
    QTest::keyClick(name, Qt::Key_Return);
  };
  AnswerInTurn(
      {Key(Qt::Key_Y), Text(tooLong.c_str()), Text("Joe"), foreign, Text("1,0"), Text("$1,500")},
      [] { AddPlayer(5); });
  EXPECT_EQ(Table.PlayerName[5], "Sule");
  EXPECT_EQ(BankrollOf(5), 1500);
}

TEST_F(WindowTest, ARefusedClickSaysWhy) {
  Seat(4, "Ann", 1000);
  const auto nothing = [] {};
  const auto point = [] { Table.Point = Table.LastPoint = 6; };
  const auto flat = [&](int number) {
    return [=] {
      SetBetAmount(4, number, 10);
      SetBetContract(4, number, 10);
      RebuildDerived();
      Table.MoneyOnTable[4] = FigureMoneyOnTable(4);
      point();
    };
  };
  const auto noPuts = [&] {
    point();
    Settings.AllowPutBets = false;
  };
  const auto midHand = [&] { Stats.RollCount[CurrentHand][0] = 3; };
  const struct {
    int number;
    std::function<void()> arrange;
    const char* says;
    bool takeOff = false;
  } cases[] = {
      {bet::Come, nothing, "You may not make a Come bet until a point is established."},
      {bet::DontCome, nothing, "You may not make a Don't Come bet until a point is established."},
      {bet::PassLineOdds, nothing, "You may not make a Pass Line Odds bet unless you also have"},
      {bet::Come4Odds, nothing, "until you've established a Come 4 bet."},
      {bet::DontCome4, point, "directly on a point number."},
      {bet::PassLine, noPuts, "(Unless you check \"Allow Put Bets\""},
      {bet::Come4, noPuts, "You may not make or increase a Come bet directly on a point number."},
      {bet::DontPass, point, "You may not make or increase a Don't Pass bet"},
      {bet::PassLine, flat(bet::PassLine), "You may not decrease or remove a Pass Line bet", true},
      {bet::Come4, flat(bet::Come4), "You may not decrease or remove a Come bet", true},
      {bet::SevenPoint7, flat(bet::SevenPoint7), "You may not decrease or remove a 7 Point 7",
       true},
      {bet::Point7, point, "unless the shooter is on a come-out roll."},
      {bet::AllSmall, [] { Table.MarkedNumbers = 1 << 3; }, "small numbers are marked."},
      {bet::AllTall, [] { Table.MarkedNumbers = 1 << 9; }, "tall numbers are marked."},
      {bet::FourRollsNo7, [] { Table.FourRollCount = 1; }, "if the count is in progress."},
      {bet::SharpShooter, midHand, "after the shooter has started a hand."},
      {bet::RideTheLine, midHand, "after the shooter has started a hand."},
      {bet::Fire, midHand, "You may not make or increase a Fire bet"},
      {bet::Field, [] { Settings.MinPlacardBet = 25; }, "The minimum Field bet is $25"},
      {bet::Field, [] { Settings.MaxPlacardBet = 2; }, "The maximum Field bet is $2"},
      {bet::Field, [] { SetBankroll(4, 3); }, "You don't have enough bankroll remaining"},
  };
  GameViews.Table.DisplayPropBets = true;
  const auto table = std::make_unique<TableState>(Table);
  const auto stats = std::make_unique<StatsState>(Stats);
  const SettingsState settings = Settings;
  for (const auto& refused : cases) {
    SCOPED_TRACE(refused.says);
    Table = *table;
    Stats = *stats;
    Settings = settings;
    refused.arrange();
    View().DrawTable();
    std::string said;
    AnswerInTurn(
        {[&](QDialog& box) {
          said = Message.MsgText;
          QTest::keyClick(box.focusWidget(), Qt::Key_Return);
        }},
        [&] { ClickBet(refused.number, refused.takeOff ? Qt::ShiftModifier : Qt::NoModifier); });
    EXPECT_NE(said.find(refused.says), std::string::npos) << said;
  }
}

TEST_F(WindowTest, WhatAClickWillDoIsSaidBefore) {
  Seat(4, "Ann", 1000);
  EXPECT_EQ(OutlookOfSpot(bet::PassLine).text, "Pass Line: add $5");
  EXPECT_TRUE(OutlookOfSpot(bet::PassLine).possible);
  const ClickOutlook come = OutlookOfSpot(bet::Come);
  EXPECT_FALSE(come.possible);
  EXPECT_EQ(come.text, "You may not make a Come bet until a point is established.");
  EXPECT_EQ(Bet(4, bet::PassLine), 0) << "looking changes nothing";
  Settings.Notices = 0;
  PlaceBet({4, bet::Buy4, 20});
  Settings.InfoTipLevel = 4;
  EXPECT_EQ(InfoTipOf(bet::Buy4), "Buy 4: 20\rvig: 1\rNot working\rPays 2 to 1");
  Settings.InfoTipLevel = 3;
  EXPECT_EQ(InfoTipOf(bet::Field), "Field: 0");
}

TEST_F(WindowTest, AHotKeyComesBeforeTheMenusShortcut) {
  Seat(4, "Ann", 1000);
  std::ofstream(folder.Path() + "field.bet") << "bet 5 on field\n";
  ASSERT_EQ(AddHotKey('S', folder.Path() + "field.bet", ""), 1);
  Press(Qt::Key_S, Qt::ControlModifier);
  EXPECT_EQ(Bet(4, bet::Field), 5);
  Press(Qt::Key_1, Qt::ControlModifier);  // a view never saved changes nothing
  EXPECT_EQ(View().ZoomPercent(), 100);
  View().SetView(150, 30);
  View().SaveView(1);
  View().ResetView();
  Press(Qt::Key_1, Qt::ControlModifier);
  EXPECT_EQ(View().ZoomPercent(), 150);
  EXPECT_EQ(View().Degrees(), 30);
}

TEST_F(WindowTest, AClickStopsTheHyperDrive) {
  Seat(4, "Ann", 9'000'000);
  Settings.BetNeededToShoot = 0;
  // The best of five: what else the machine does is not the window's.
  qint64 best = 1000;
  for (int run = 0; run < 5; ++run) {
    QElapsedTimer sinceClick;
    QTimer::singleShot(100, [&] {
      sinceClick.start();
      QTest::mouseClick(window->Bar()->HyperDriveButton(), Qt::LeftButton);
    });
    window->Entry("mnuHyperDrive")->trigger();
    best = std::min(best, sinceClick.elapsed());
  }
  EXPECT_LT(best, 50);
  EXPECT_GT(RollsInSession(), 1000);
  EXPECT_FALSE(Table.HyperDriveOn);
  EXPECT_TRUE(window->Bar()->RollButton()->isEnabled());
}

TEST_F(WindowTest, TheTableComesBackAtTheNextStart) {
  Seat(4, "Ann", 640);
  ClickBet(bet::PassLine);
  window->resize(1100, 750);
  window->close();
  window.reset();
  StartUp(folder.Path());
  OpenDefaultGame("");
  Open();
  EXPECT_EQ(Table.PlayerName[4], "Ann");
  EXPECT_EQ(Bet(4, bet::PassLine), 5);
  EXPECT_EQ(window->size(), QSize(1100, 750));
}

TEST_F(WindowTest, ATableIsNotReplacedUnasked) {
  Seat(4, "Ann", 640);
  SaveGame("ann.tsg");
  Seat(5, "Bob", 640);
  Table.TableDirty = true;
  for (const bool saves : {false, true}) {
    std::vector<std::function<void(QDialog&)>> answers = {
        Text("ann.tsg"), Key(saves ? Qt::Key_Return : Qt::Key_Escape)};
    AnswerInTurn(answers, [&] { window->Entry("mnuOpen")->trigger(); });
    EXPECT_EQ(Table.PlayerName[5], "Bob") << saves;
    EXPECT_EQ(!Table.TableDirty, saves);
  }
}

TEST_F(WindowTest, ATableLeftBehindIsOffered) {
  Seat(4, "Ann", 640);
  SaveGameCopy(folder.Path() + "unfinished.tsg");
  for (const bool goOn : {false, true}) {
    SCOPED_TRACE(goOn);
    window.reset();
    SaveGameCopy(folder.Path() + "unfinished.tsg");
    StartUp(folder.Path());
    AnswerInTurn({Key(goOn ? Qt::Key_Return : Qt::Key_Escape)}, [&] { Open(); });
    EXPECT_EQ(Table.PlayerName[4], goOn ? "Ann" : "");
    if (goOn) break;
    Seat(4, "Ann", 640);
  }
  EXPECT_FALSE(std::ifstream(folder.Path() + "unfinished.tsg").good());
}

std::vector<std::string> ClashesIn(const QMenu& menu) {
  std::vector<std::string> clashes;
  std::set<QString> used;
  for (const QAction* action : menu.actions()) {
    if (action->isSeparator() || action->text().isEmpty()) continue;
    const QString key = QKeySequence::mnemonic(action->text()).toString();
    if (key.isEmpty() || !used.insert(key).second)
      clashes.push_back(Typed(menu.title() + " > " + action->text()));
  }
  return clashes;
}

TEST_F(WindowTest, EveryCaptionFitsInEveryLanguage) {
  Seat(4, "Ann", 1000);
  window->resize(1024, 700);
  for (int32_t language = 0; language < LanguageCount; ++language) {
    SCOPED_TRACE(language);
    SetLanguage(language);
    window->TakeUpGame();
    QApplication::processEvents();
    EXPECT_EQ(TextsThatDoNotFit(*window), std::vector<std::string>{});
    window->Entry("mnuTableMove")->trigger();
    for (QWidget* tool : window->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
      if (!tool->isWindow() || !tool->isVisible()) continue;
      EXPECT_EQ(TextsThatDoNotFit(*tool), std::vector<std::string>{});
    }
    window->Entry("mnuTableMove")->trigger();
    std::set<QString> bar;
    for (const QAction* action : window->menuBar()->actions()) {
      EXPECT_TRUE(bar.insert(QKeySequence::mnemonic(action->text()).toString()).second)
          << Typed(action->text());
    }
    EXPECT_LE(window->menuBar()->sizeHint().width(), 1024);
    for (const QMenu* menu : window->menuBar()->findChildren<QMenu*>())
      EXPECT_EQ(ClashesIn(*menu), std::vector<std::string>{});
  }
}

}  // namespace
}  // namespace tessarel
