#include "engine/unattended.h"
#include "play/game_commands.h"
#include "play/leaving.h"
#include "play/new_session.h"
#include "play/start_up.h"

#include <gtest/gtest.h>

#include <deque>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "autobet/script_host.h"
#include "base/clock.h"
#include "base/folders.h"
#include "base/front_end.h"
#include "base/message.h"
#include "base/temporary_folder.h"
#include "dice/generators.h"
#include "dice/probability.h"
#include "dice/probability_file.h"
#include "dice/roll_file.h"
#include "engine/bets.h"
#include "files/file_dialog.h"
#include "files/game_file.h"
#include "files/hot_keys.h"
#include "log/events_log.h"
#include "play/players.h"
#include "play/roll_driver.h"
#include "state/books.h"
#include "state/payoffs.h"
#include "state/scripts.h"
#include "state/settings.h"
#include "state/table.h"

namespace tessarel {
namespace {

using namespace bet;

// A program just started in a folder of its own, whose questions are answered from a list. An
// answer of "-" cancels.
class Session : public ::testing::Test {
 protected:
  void SetUp() override {
    Shown.clear();
    Answers.clear();
    FrontEnd = {};
    FrontEnd.ShowMessage = [] {
      const bool asks = (Message.MsgFlags & msg::Input) != 0;
      Shown.push_back(Message.MsgTitle + ": " + Message.MsgText +
                      (asks ? " [" + Message.MsgInput + "]" : ""));
      if (Answers.empty()) return;
      if (Answers.front() == "-") Message.MsgResult = AnswerCancel;
      Message.MsgInput = Answers.front();
      Answers.pop_front();
    };
    HoldClock({.year = 2026, .month = 11, .day = 22, .hour = 19, .minute = 4, .second = 5}, 1);
    StartUp(Folder.Path());
  }
  void TearDown() override {
    EXPECT_EQ(CheckTable(), "");
    StartUp(Folder.Path());
    ShutDown();
    FrontEnd = {};
    Folders = {};
    ReleaseClock();
  }

  static void Roll2(int die1, int die2) { MakeRoll(Faces{die1, die2}); }
  static void Stake(int place, int number, Money amount) { ChangeBet({place, number, amount}); }
  // Ann has 5 on the line and 5 on Come 8, and the point is 6.
  static void PlayToPoint() {
    SeatPlayer(3, "Ann", 100);
    Stake(3, PassLine, 5);
    Roll2(3, 3);
    Stake(3, Come, 5);
    Roll2(4, 4);
  }
  std::string LogText() const {
    std::ifstream file(DefaultEventLogName(), std::ios::binary);
    std::stringstream text;
    text << file.rdbuf();
    return text.str();
  }

  TemporaryFolder Folder;
  inline static std::vector<std::string> Shown;
  inline static std::deque<std::string> Answers;
};

TEST_F(Session, StartsWithAnEmptyTableUnderTheHouseRules) {
  EXPECT_EQ(Folders.AppFolder, Folder.Path());
  EXPECT_EQ(Folders.BetFolder, Folder.Path());
  EXPECT_EQ(Table.PlayerName[0], "House");
  EXPECT_EQ(Table.PlayerCount, 0);
  EXPECT_EQ(Table.Shooter, 0);
  EXPECT_EQ(Payoffs.Payoff[Place6].PayUnit, Money(6));
  EXPECT_EQ(Table.BetWorkingDefault[8][Place6], 0);
  EXPECT_EQ(Table.BetWorkingDefault[8][Come4], 1);
  EXPECT_EQ(Table.BetWorking[8][Come4], IsWorking);
  EXPECT_EQ(Table.VisibleStack[8][1], 100);
  EXPECT_EQ(Table.VisibleStack[1][4], 103);
  EXPECT_EQ(Dice.CurrentRNG, 1);
  EXPECT_EQ(RollFile.RollFileMode, RollFileOff);
  EXPECT_TRUE(Shown.empty());
  EXPECT_EQ(Folder.EntryCount(), 0);
}

TEST_F(Session, StartUpForgetsWhatWas) {
  PlayToPoint();
  Settings.MaxPlacardBet = 7;
  Dice.ReseedEachSession = true;
  EventsLog.LogOn = true;
  StartUp(Folder.Path());
  EXPECT_EQ(Table.PlayerCount, 0);
  EXPECT_EQ(Table.Point, 0);
  EXPECT_EQ(RollsInSession(), 0);
  EXPECT_EQ(Settings.MaxPlacardBet, Money(1000));
  EXPECT_FALSE(Dice.ReseedEachSession);
  EXPECT_FALSE(EventsLog.LogOn);
}

TEST_F(Session, ClearsTheTable) {
  PlayToPoint();
  Stake(3, Buy4, 20);
  CallBet(3, Buy4, CallOff);
  Stake(3, AllTall, 1);
  Table.MarkedNumbers = Table.FourRollCount = Table.FirePoints = Table.FirePointsMask = 3;
  Table.SharpShooterPoints = Table.RideTheLinePasses = 2;
  Table.BankrollStopPlace = 3;
  Table.Stop = StopCause::AutoStop;
  NewSession({});
  for (int number = 1; number <= LastBet; ++number) {
    EXPECT_EQ(Bet(3, number), Money());
    EXPECT_EQ(Table.BetAmountAfterRoll[3][number], Money());
    EXPECT_EQ(Table.BetContract[3][number], Money());
  }
  EXPECT_EQ(Table.BetWorking[3][Buy4], NotWorking);
  EXPECT_EQ(Table.MoneyOnTable[3], Money());
  EXPECT_EQ(Table.Point + Table.LastPoint + Table.PointBeforeLast + Table.LastDecidedPoint, 0);
  EXPECT_EQ(Table.MarkedNumbers + Table.FourRollCount + Table.FirePoints + Table.FirePointsMask, 0);
  EXPECT_EQ(Table.SharpShooterPoints + Table.RideTheLinePasses, 0);
  EXPECT_EQ(Table.BankrollStopPlace, 0);
  EXPECT_EQ(Table.GraphIndex, 0);
  EXPECT_EQ(StopText(Table.Stop), "");
  EXPECT_EQ(Table.Shooter, 3);
  EXPECT_EQ(RollsInHand() + RollsInSession(), 0);
  EXPECT_EQ(Stats.RollCount[LastSession][0], 2);
}

TEST_F(Session, HandIsCreditedToWhoHasTheDice) {
  PlayToPoint();
  SeatPlayer(2, "Bob", 100);
  PassDice(PlayerAsked);
  EXPECT_EQ(Table.LastShooter, 3);
  NewSession({});
  EXPECT_EQ(Table.LastShooter, 2);
}

TEST_F(Session, AbandonedContractBetsAreLostUnlessTheHouseReturnsThem) {
  struct Case {
    int32_t Returned, InitType;
    int Bankroll;
  };
  // 5 on the line, 5 on Come 8 and 2 on 7 Point 7; the Place bet comes back.
  const Case cases[] = {{0, 2, 88}, {-1, 2, 100}, {0, 0, 100}};
  for (const Case& test : cases) {
    StartUp(Folder.Path());
    PlayToPoint();
    Stake(3, Place5, 5);
    SetBetAmount(3, SevenPoint7, 2);
    Table.MoneyOnTable[3] += 2;
    Table.BankrollInitType[3] = test.InitType;
    Settings.ReturnAbandonedBets = test.Returned;
    NewSession({.keepSessions = true});
    EXPECT_EQ(PlainText(BankrollOf(3)), std::to_string(test.Bankroll));
    for (const auto& [number, lost] :
         {std::pair(PassLine, "5"), {Come4 + 3, "5"}, {SevenPoint7, "2"}}) {
      EXPECT_EQ(PlainText(Stats.Bets[AllSessions + 3][number].Lost.Sum),
                test.Returned != 0 ? "0" : lost);
    }
    EXPECT_EQ(Table.MoneyOnTable[3], Money());
  }
}

TEST_F(Session, CheckStacksAreClearedUnlessKept) {
  SeatPlayer(3, "Ann", 100);
  Stake(3, FirstStack + 4, 10);
  Table.CheckStackName[3][4] = "rent";
  NewSession({.keepStacks = true});
  EXPECT_EQ(Bet(3, FirstStack + 4), Money(10));
  EXPECT_EQ(Table.CheckStackName[3][4], "rent");
  // What was stacked since the last roll is still news for the log.
  Stake(3, PassLine, 5);
  Roll2(3, 3);
  EXPECT_EQ(Table.BetAmountAfterRoll[3][FirstStack + 4], Money(10));
  NewSession({});
  EXPECT_EQ(Bet(3, FirstStack + 4), Money());
  EXPECT_EQ(Table.CheckStackName[3][4], "");
  EXPECT_EQ(Table.BetAmountAfterRoll[3][FirstStack + 4], Money());
}

TEST_F(Session, FormerSessionsAreKeptOnRequest) {
  for (const bool keep : {true, false}) {
    StartUp(Folder.Path());
    PlayToPoint();
    Table.BankrollLow[AllSessions + 3] = 40;
    NewSession({.keepSessions = keep});
    EXPECT_EQ(Stats.RollCount[AllSessions][0], keep ? 2 : 0);
    EXPECT_EQ(Stats.Hands[AllSessions].HandCount, keep ? 1 : 0);
    EXPECT_EQ(Stats.Hands[LastSession].HandCount, 1);
    EXPECT_EQ(Table.BankrollLow[AllSessions + 3], Money(keep ? 40 : 100));
  }
}

TEST_F(Session, BankrollsStartByTheirType) {
  struct Case {
    int32_t Type;
    Money Init;
    std::deque<std::string> Replies;
    Money Bankroll, NextInit;
    std::string Asked;
  };
  const std::string ask = "Beginning Bankroll: ";
  const std::string enter = "Enter Ann's beginning bankroll:";
  const Case cases[] = {
      {0, 500, {}, 500, 500, ""},
      {0, -20, {}, -20, -20, ""},
      {2, 500, {}, 130, 500, ""},
      {1, 500, {"250.5"}, Money::FromRaw(2505000), Money::FromRaw(2505000), ask + enter + " [500]"},
      {1, 500, {" 750 "}, 750, 750, ask + enter + " [500]"},
      {1, 500, {"-"}, 500, 500, ask + enter + " [500]"},
      {1, 500, {}, 500, 500, ask + enter + " [500]"},
      {1,
       500,
       {"10000000", "-9999999"},
       -9999999,
       -9999999,
       ask + enter + " [500] | " + ask + "The maximum player bankroll is $9,999,999\r\r" + enter +
           " [10000000]"},
      {1,
       500,
       {"-10000000", "9999999"},
       9999999,
       9999999,
       ask + enter + " [500] | " + ask + "The minimum player bankroll is -$9,999,999\r\r" + enter +
           " [-10000000]"},
      {1, 20'000'000, {}, 9999999, 9999999, ask + enter + " [9999999]"},
  };
  for (const Case& test : cases) {
    StartUp(Folder.Path());
    SeatPlayer(3, "Ann", 130);
    Shown.clear();
    Table.BankrollInitType[3] = test.Type;
    Table.BankrollInitAmount[3] = test.Init;
    Answers = test.Replies;
    NewSession({});
    std::string asked;
    for (const std::string& text : Shown)
      asked += (asked.empty() ? "" : " | ") + text;
    EXPECT_EQ(asked, test.Asked);
    EXPECT_EQ(PlainText(BankrollOf(3)), PlainText(test.Bankroll));
    EXPECT_EQ(PlainText(Table.BankrollInitAmount[3]), PlainText(test.NextInit));
    EXPECT_EQ(Table.InvestedBankroll[3], test.Bankroll);
    EXPECT_EQ(Table.BankrollBegin[CurrentSession + 3], test.Bankroll);
  }
}

TEST_F(Session, NobodyIsAskedUnderTheHyperDrive) {
  SeatPlayer(3, "Ann", 130);
  Table.BankrollInitType[3] = 1;
  Table.HyperDriveOn = true;
  NewSession({});
  EXPECT_TRUE(Shown.empty());
  EXPECT_EQ(BankrollOf(3), Money(130));
}

TEST_F(Session, RollFileIsRewoundContinuedOrClosed) {
  struct Case {
    int32_t Action, Mode, NextRoll;
  };
  const Case cases[] = {{RewindRollFile, RollFilePlay, 1},
                        {ContinueRollFile, RollFileRecord, 3},
                        {CloseRollFileNow, RollFileOff, 1},
                        {7, RollFileOff, 1}};
  for (const Case& test : cases) {
    StartUp(Folder.Path());
    OpenRollFile("test.rll");
    RollFile.RollFileMode = RollFileRecord;
    PlayToPoint();
    NewSession({.rollFileAction = test.Action});
    EXPECT_EQ(RollFile.RollFileMode, test.Mode) << test.Action;
    if (test.Mode != RollFileOff) {
      EXPECT_EQ(RollFile.NextRoll, test.NextRoll) << test.Action;
    }
    EXPECT_EQ(RollFile.RollFileName.empty(), test.Mode == RollFileOff);
  }
}

TEST_F(Session, ScriptsStartSessionsThatKeepFormerOnes) {
  for (const bool keep : {true, false}) {
    StartUp(Folder.Path());
    OpenRollFile("test.rll");
    RollFile.RollFileMode = RollFileRecord;
    PlayToPoint();
    Stake(3, FirstStack + 4, 10);
    ScriptHost.StartSession({keep, keep});
    EXPECT_EQ(RollsInSession(), 0);
    EXPECT_EQ(Stats.RollCount[AllSessions][0], 2);
    EXPECT_EQ(Bet(3, FirstStack + 4), Money(keep ? 10 : 0));
    EXPECT_EQ(RollFile.NextRoll, keep ? 3 : 1);
    EXPECT_EQ(RollFile.RollFileName.empty(), !keep);
  }
}

TEST_F(Session, DiceAreSeededAgainOnlyWhenAsked) {
  for (const int32_t reseed : {0, -1}) {
    const int32_t before = Dice.LastSeed;
    AdvanceClock(60'000);
    Dice.ReseedEachSession = reseed;
    NewSession({});
    EXPECT_EQ(Dice.LastSeed != before, reseed != 0);
  }
}

TEST_F(Session, LogTellsHowTheSessionBegan) {
  SeatPlayer(6, "Bob", 1500);
  SeatPlayer(3, "Ann", 100);
  OpenRollFile("test.rll");
  EventsLog.LogOn = true;
  Dice.ReseedEachSession = true;
  const std::string rule(44, '=');
  NewSession({.rollFileAction = RewindRollFile});
  const std::string opening = " New session started 2026-11-22 @ 19:04:05\r\n" + rule +
                              "\r\n"
                              "    Players:\r\n"
                              "      Ann at stick 2-left with $100\r\n"
                              "      Bob at stick 2-right with $1500\r\n"
                              "    RNG #1 seeded: " +
                              std::to_string(Dice.LastSeed) + "\r\n";
  const std::string shooter = "----New shooter (Bob) coming out----------\r\n";
  const std::string first =
      opening + "    Dice roll file playback actived (" + RollFile.RollFileName + ")\r\n" + shooter;
  EXPECT_EQ(LogText(), first);
  Dice.ReseedEachSession = false;
  NewSession({});
  const size_t seedLine = opening.find("    RNG");
  const std::string second = rule + "\r\n" + opening.substr(0, seedLine) + shooter;
  EXPECT_EQ(LogText(), first + second);
  Settings.ClearEventsLogOnNew = true;
  NewSession({});
  EXPECT_EQ(LogText(), opening.substr(0, seedLine) + shooter);
}

TEST_F(Session, LeavingAsksToStopAnUnattendedRun) {
  EXPECT_TRUE(AskToLeave());
  EXPECT_TRUE(Shown.empty());
  for (bool TableState::*run : {&TableState::HyperDriveOn, &TableState::AutoRollOn}) {
    FrontEnd.ShowMessage = [] {
      Shown.push_back(Message.MsgTitle + ": " + Message.MsgText);
      Message.MsgResult = Shown.size() == 1 ? AnswerNo : AnswerYes;
    };
    Shown.clear();
    Table.*run = true;
    EXPECT_FALSE(AskToLeave());
    EXPECT_TRUE(Table.*run);
    EXPECT_TRUE(AskToLeave());
    EXPECT_FALSE(Table.*run);
    EXPECT_EQ(Shown[0], run == &TableState::HyperDriveOn
                            ? "Hyper-Drive Active: Do you want to stop the Hyper-Drive?"
                            : "Auto-Roll Active: Do you want to stop auto-rolling?");
  }
}

TEST_F(Session, LeavingOffersToSaveChangedScripts) {
  SeatPlayer(2, "Ann", 100);
  SeatPlayer(6, "Bob", 100);
  Scripts.Places[2] = {{"bet 5 on field"}, "ann.bet", "", true};
  Scripts.Places[6] = {{"bet 6 on field"}, "", "", true};
  Answers = {"-"};
  EXPECT_FALSE(AskToLeave());
  EXPECT_EQ(Shown, std::vector<std::string>{
                       "Save Auto-Bets?: Would you like to save Ann's auto-bet script?"});
  EXPECT_FALSE(AskToLeave());  // the untitled one gets no name
  EXPECT_FALSE(Scripts.Places[2].changed);
  EXPECT_TRUE(Scripts.Places[6].changed);
  FrontEnd.AskSaveFile = [](FileAction action, const std::string& offered) {
    return (action == FileAction::SaveScript ? "script-" : "other-") + offered;
  };
  EXPECT_TRUE(AskToLeave());
  EXPECT_EQ(Scripts.Places[6].ScriptFile, "script-Bob.bet");
  std::ifstream saved(Folder.Path() + "ann.bet");
  std::string line;
  std::getline(saved, line);
  EXPECT_EQ(line, "bet 5 on field");
}

TEST_F(Session, LeavingOffersToSaveTheMatrixAndKeepsTheGameWithItsRollFile) {
  SeatPlayer(2, "Ann", 100);
  SaveProbabilityFile("a.prb");
  Probability.ProbabilityMatrix.Shares[1][1] = 4242;
  Probability.ProbabilityChanged = true;
  OpenRollFile("a.rol");
  HotKeys.Rows = {{"A", "a.bet", ""}};
  std::ofstream(Folder.Path() + "rollcopyfile.rll") << "x";
  const auto exists = [this](const char* name) {
    return std::filesystem::exists(Folder.Path() + name);
  };
  Answers = {"-"};
  EXPECT_FALSE(Leave());
  EXPECT_FALSE(Leave());  // no name for the matrix
  EXPECT_FALSE(exists("default.tsg"));
  FrontEnd.AskSaveFile = [](FileAction action, const std::string&) {
    EXPECT_EQ(action, FileAction::SaveProbability);
    return std::string("b.prb");
  };
  EXPECT_TRUE(Leave());
  EXPECT_FALSE(exists("rollcopyfile.rll"));
  StartUp(Folder.Path());
  ReadHotKeys();
  OpenDefaultGame("");
  EXPECT_EQ(Probability.ProbabilityMatrix.Shares[1][1], 4242);
  EXPECT_EQ(RollFile.RollFileName, Folder.Path() + "a.rol");
  EXPECT_EQ(HotKeyCount(), 1);
  std::filesystem::remove(Folder.Path() + "default.tsg");
  OpenDefaultGame("");
  EXPECT_EQ(Table.PlayerCount, 0);
  EXPECT_EQ(HotKeyCount(), 1);
}

TEST_F(Session, SavingOffersTheScriptsFirstAndAsksForAName) {
  SeatPlayer(2, "Ann", 100);
  EXPECT_FALSE(SaveGameInUse());
  FrontEnd.AskSaveFile = [](FileAction action, const std::string&) {
    EXPECT_EQ(action, FileAction::SaveSession);
    return std::string("named.tsg");
  };
  EXPECT_TRUE(SaveGameInUse());
  EXPECT_EQ(GameFile.GameFileName, Folder.Path() + "named.tsg");
  Scripts.Places[2] = {{"bet 5 on field"}, "ann.bet", "", true};
  Table.TableDirty = true;
  Answers = {"-"};
  EXPECT_FALSE(SaveGameInUse());
  EXPECT_TRUE(Table.TableDirty);
  EXPECT_TRUE(SaveGameInUse());
  EXPECT_FALSE(Scripts.Places[2].changed);
  EXPECT_FALSE(Table.TableDirty);
}

TEST_F(Session, AnotherGameDoesNotReplaceOneThatIsUnsavedWithoutAsking) {
  EXPECT_TRUE(AskToReplaceGame());
  EXPECT_TRUE(Shown.empty());
  SeatPlayer(2, "Ann", 100);
  Table.TableDirty = true;
  Answers = {"-"};
  EXPECT_FALSE(AskToReplaceGame());
  EXPECT_EQ(Shown, std::vector<std::string>{"Save Session: Your current session has not been "
                                            "saved.\r\rDo you want to save it now?"});
  EXPECT_FALSE(AskToReplaceGame());  // it gets no name
  FrontEnd.AskSaveFile = [](FileAction, const std::string&) { return std::string("ann.tsg"); };
  EXPECT_TRUE(AskToReplaceGame());
  EXPECT_FALSE(Table.TableDirty);
  EXPECT_TRUE(std::filesystem::exists(Folder.Path() + "ann.tsg"));
}

TEST_F(Session, ATableThatCannotBeSavedIsNotLostUnasked) {
  std::filesystem::create_directory(Folder.Path() + "default.tsg");
  EXPECT_FALSE(Leave());
  ASSERT_EQ(Shown.size(), 2u);
  EXPECT_EQ(Shown[1],
            "Tessarel: The table could not be saved and will be lost.\r\rDo you want to leave all "
            "the same?");
  std::filesystem::remove(Folder.Path() + "default.tsg");
  EXPECT_TRUE(Leave());
}

TEST_F(Session, ANewGameKeepsTheOneOnAShownTable) {
  const std::string file = Folder.Path() + "default.tsg";
  for (const bool shown : {false, true}) {
    GameFile.MainWindowShown = shown;
    Table.TableDirty = true;
    EXPECT_TRUE(StartNewGame({}, true));
    EXPECT_EQ(std::filesystem::exists(file), shown);
  }
}

TEST_F(Session, ANewGameKeepsOrEmptiesTheScripts) {
  SeatPlayer(2, "Ann", 100);
  Scripts.Places[2].lines = {"'nothing"};
  SetScriptActive(2, true);
  std::ofstream(Folder.Path() + "rollcopyfile.rll") << "x";
  Table.HyperDriveOn = true;
  EXPECT_FALSE(StartNewGame({}, false));
  Table.HyperDriveOn = false;
  EXPECT_TRUE(StartNewGame({}, true));
  EXPECT_EQ(Scripts.Places[2].lines.size(), 1u);
  EXPECT_TRUE(Scripts.ScriptActiveAfterRoll[2]);
  EXPECT_FALSE(std::filesystem::exists(Folder.Path() + "rollcopyfile.rll"));
  Scripts.Places[2].changed = true;
  Answers = {"-"};
  EXPECT_FALSE(StartNewGame({}, false));
  EXPECT_EQ(Scripts.Places[2].lines.size(), 1u);
  Scripts.Places[2].changed = false;
  EXPECT_TRUE(StartNewGame({}, false));
  EXPECT_EQ(Scripts.Places[2], ScriptPlace());
  EXPECT_FALSE(Scripts.ScriptActive[0]);
}

TEST_F(Session, StartsAlthoughItsLogCannotBeWritten) {
  PlayToPoint();
  EventsLog.LogOn = true;
  EventsLog.EventLogName = Folder.Path() + "missing/log.txt";
  Table.BankrollStopPlace = 3;
  Table.BankrollInitType[3] = 2;
  NewSession({});
  EXPECT_FALSE(Shown.empty());
  EXPECT_EQ(Table.BankrollStopPlace, 0);
  EXPECT_EQ(BankrollOf(3), Money(90));
  EXPECT_EQ(Table.MoneyOnTable[3], Money());
}

TEST_F(Session, LogOfAnEmptyTableNamesNobody) {
  EventsLog.LogOn = true;
  NewSession({});
  EXPECT_EQ(LogText(), " New session started 2026-11-22 @ 19:04:05\r\n" + std::string(44, '=') +
                           "\r\n----New hand, come-out roll----------\r\n");
}

}  // namespace
}  // namespace tessarel
