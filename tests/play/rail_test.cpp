#include "play/rail.h"

#include <gtest/gtest.h>

#include <deque>
#include <filesystem>
#include <random>
#include <string>
#include <vector>

#include "base/folders.h"
#include "base/front_end.h"
#include "base/message.h"
#include "base/temporary_folder.h"
#include "config/configuration.h"
#include "engine/atm.h"
#include "engine/bets.h"
#include "engine/check_stacks.h"
#include "files/sessions_log.h"
#include "log/events_log.h"
#include "play/new_session.h"
#include "play/players.h"
#include "play/roll_driver.h"
#include "play/start_up.h"
#include "state/books.h"
#include "state/books_check.h"
#include "state/scripts.h"
#include "state/settings.h"
#include "state/table.h"
#include "stats/selection.h"

namespace tessarel {
namespace {

struct Dialog {
  std::deque<std::string> answers;  // "yes", "no", "cancel" or a text
  std::vector<std::string> shown;
};

Dialog Talk;

void AnswerDialog() {
  Talk.shown.push_back(Message.MsgTitle + ": " + Message.MsgText);
  if (Talk.answers.empty()) return;
  const std::string answer = Talk.answers.front();
  Talk.answers.pop_front();
  if (answer == "cancel") {
    Message.MsgResult = AnswerCancel;
  } else if ((Message.MsgFlags & msg::Input) != 0) {
    Message.MsgInput = answer;
  } else {
    Message.MsgResult = answer == "yes" ? AnswerYes : AnswerNo;
  }
}

class Rail : public testing::Test {
 protected:
  void SetUp() override {
    StartUp("/tmp");
    SessionsLog.KeepLogs = false;
    Settings.BetNeededToShoot = 0;
    Talk = {};
    FrontEnd.ShowMessage = AnswerDialog;
  }
  void TearDown() override { FrontEnd = FrontEndCallbacks{}; }

  static void Ask(int place, int number, Money amount) { PlaceBet({place, number, amount}); }
  static void Throw(int die1, int die2) { MakeRoll(Faces{die1, die2}); }
};

TEST_F(Rail, ANewPlayerIsAskedForNameAndBuyIn) {
  SeatPlayer(2, "Bob", 500);
  Talk.answers = {"yes", "bob", "123", "Bankroll", " Ann ", "10000000", "-9999999.5", "750.25"};
  EXPECT_TRUE(AddPlayer(1));
  EXPECT_EQ(Table.PlayerName[1], "Ann");
  EXPECT_EQ(BankrollOf(1), Money::FromRaw(7502500));
  EXPECT_EQ(Table.Shooter, 2);
  ASSERT_EQ(Talk.shown.size(), 8u);
  EXPECT_EQ(Talk.shown[0], "Add New Player: Would you like to add a player here?");
  EXPECT_EQ(Talk.shown[2],
            "Add New Player: There's already a player named bob\r\rWhat's the new player's name?");
  EXPECT_EQ(Talk.shown[4],
            "Add New Player: \"Bankroll\" contains a word, phrase, or symbol used in auto-betting "
            "and therefore can't be used as a player's name.\r\rWhat's the new player's name?");
  EXPECT_EQ(Talk.shown[6],
            "Add New Player: The maximum player bankroll is $9,999,999\r\r"
            "How much would Ann like to buy-in for?");
}

TEST_F(Rail, GivingUpAnywhereLeavesThePlaceOpen) {
  for (const std::deque<std::string>& answers :
       {std::deque<std::string>{"no"}, {"yes", "cancel"}, {"yes", ""}, {"yes", "Ann", "cancel"}}) {
    Talk.answers = answers;
    EXPECT_FALSE(AddPlayer(1));
    EXPECT_EQ(Table.PlayerCount, 0);
  }
}

TEST_F(Rail, AbandonedBetsAreNamedAndLost) {
  SeatPlayer(1, "Ann", 1000);
  SeatPlayer(5, "Bob", 1000);
  Ask(1, bet::PassLine, 10);
  Throw(4, 2);
  for (const int total : {4, 5}) {
    Ask(1, bet::Come, 15);
    Throw(1, total - 1);
  }
  Ask(1, bet::Place8, 12);
  Talk.answers = {"no", "yes"};
  EXPECT_FALSE(DeletePlayer(1, true));
  EXPECT_EQ(Talk.shown.back(),
            "Remove Player: Would you like to remove Ann?\r\rAnn still has an active Pass Line bet "
            "and 2 active Come bets that can't be removed and will be abandoned."
            "\r\rTotal to be abandoned: $40");
  EXPECT_TRUE(DeletePlayer(1, true));
  EXPECT_EQ(Table.Shooter, 5);
  EXPECT_EQ(Table.LastShooter, 0);
  EXPECT_EQ(CheckTable(), "");
}

TEST_F(Rail, AnyPlayerMayMoveOrLeaveAtAnyTime) {
  std::mt19937 random(5);
  const auto below = [&random](unsigned n) { return static_cast<int>(random() % n); };
  for (int step = 0; step < 20'000; ++step) {
    const int place = 1 + below(8);
    const bool taken = IsTaken(Table, place);
    switch (below(6)) {
      case 0:
        if (!taken) SeatPlayer(place, "P" + std::to_string(step), 500);
        break;
      case 1:
        if (below(8) == 0) DeletePlayer(place, false);
        break;
      case 2: {
        const int to = 1 + below(8);
        const Money bankroll = BankrollOf(place);
        if (MovePlayer(place, to)) {
          EXPECT_EQ(BankrollOf(to), bankroll);
        }
        break;
      }
      case 3:
        ATM(place, below(2) == 0, below(300), true);
        break;
      default:
        if (taken) Ask(place, 1 + below(LastBet), below(40) - 5);
        Throw(1 + below(6), 1 + below(6));
    }
    ASSERT_EQ(CheckTable(), "") << "step " << step;
    ASSERT_EQ(CheckBooks(), "") << "step " << step;
  }
}

TEST_F(Rail, MovingTakesEverythingAlong) {
  SeatPlayer(3, "Ann", 1000);
  Table.HandleWinningBets[3] = 2;
  SetStackValue(3, 7, Money::FromRaw(12345));
  SetStackName(3, 7, "bank");
  Ask(3, bet::PassLine, 10);
  Throw(3, 4);
  Ask(3, bet::PassLine, 10);
  ViewSelections.SummaryPlayer = 1u << 3 | 1u << 2;
  ViewSelections.CSPlayer = 3;
  Scripts.Places[3].ScriptFile = "ann.bet";
  Scripts.AllowReset[3] = true;
  SetScriptActive(3, true);
  Scripts.ProgramReady = true;
  EXPECT_FALSE(MovePlayer(3, 9));
  EXPECT_TRUE(Scripts.ProgramReady);
  EXPECT_TRUE(MovePlayer(3, 8));
  EXPECT_EQ(Table.PlayerName[3], "");
  EXPECT_EQ(Bet(8, bet::PassLine), 20);
  EXPECT_EQ(Table.HandleWinningBets[8], 2);
  EXPECT_EQ(Table.CheckStackName[8][7], "bank");
  EXPECT_EQ(Bet(8, FirstStack + 7), Money::FromRaw(12345));
  EXPECT_EQ(Stats.Bets[8 + AllSessions][bet::PassLine].Won.Sum, 10);
  EXPECT_EQ(Stats.Bets[3 + AllSessions][bet::PassLine].Won.Sum, 0);
  EXPECT_EQ(Table.GraphBankroll[1][8], 1010);
  EXPECT_EQ(Table.Shooter, 8);
  EXPECT_EQ(ViewSelections.SummaryPlayer, 1u << 8 | 1u << 2);
  EXPECT_EQ(ViewSelections.CSPlayer, 8);
  EXPECT_EQ(Scripts.Places[3], ScriptPlace());
  EXPECT_EQ(Scripts.Places[8].ScriptFile, "ann.bet");
  EXPECT_TRUE(Scripts.AllowReset[8]);
  EXPECT_EQ(Scripts.ScriptActive,
            (PerPlace<bool>{true, false, false, false, false, false, false, false, true}));
  EXPECT_FALSE(Scripts.ProgramReady);
}

TEST_F(Rail, AScriptLeavesWithItsPlayerAndKnowsThePlayersByName) {
  SeatPlayer(2, "Ann", 100);
  SeatPlayer(5, "Bob", 100);
  Scripts.Places[2].lines = {"bet 5 on field"};
  SetScriptActive(2, true);
  Scripts.ProgramReady = true;
  Talk.answers = {"Cid"};
  EXPECT_TRUE(RenamePlayer(5));
  EXPECT_FALSE(Scripts.ProgramReady);
  Scripts.ProgramReady = true;
  EXPECT_TRUE(ChangeBetAvailability(LayoutOption::Fire, false));
  EXPECT_FALSE(Scripts.ProgramReady);
  EXPECT_TRUE(DeletePlayer(2, false));
  EXPECT_EQ(Scripts.Places[2], ScriptPlace());
  EXPECT_EQ(Scripts.ScriptActive, PerPlace<bool>());
}

TEST_F(Rail, CallsOfAMoverAreNotNewsTwice) {
  SeatPlayer(8, "Ann", 1000);
  Throw(4, 5);
  EXPECT_TRUE(MovePlayer(8, 3));
  Throw(1, 2);
  Ask(3, bet::Place6, 12);
  CallBet(3, bet::Place6, CallOff);
  EXPECT_TRUE(MovePlayer(3, 8));
  Throw(1, 2);
  EXPECT_EQ(Table.BetWorkingBefore[8][bet::Place6], CalledOff);
}

TEST_F(Rail, ABrokenLimitOutlivesThePlayerWhoBrokeIt) {
  SeatPlayer(3, "Ann", BankrollLimit);
  SeatPlayer(4, "Bob", 100);
  Ask(3, bet::Field, 10);
  Throw(4, 5);
  EXPECT_EQ(Table.BankrollStopPlace, 3);
  const int32_t rolls = RollsInSession();
  EXPECT_TRUE(DeletePlayer(3, false));
  Throw(4, 5);
  EXPECT_EQ(RollsInSession(), rolls);
  EXPECT_EQ(Talk.shown.back(), ": Select \"New\" from the \"Game\" menu to reset the table.");
  NewSession({});
  Throw(4, 5);
  EXPECT_EQ(RollsInSession(), 1);
}

TEST_F(Rail, DiceNoteTellsWhoseHandItIs) {
  SeatPlayer(3, "Ann", 1000);
  SeatPlayer(2, "Bob", 1000);
  const auto note = [] {
    Talk.shown.clear();
    ShowPassedDiceNote();
    return Talk.shown.empty() ? "" : Talk.shown[0];
  };
  const std::string credited =
      "Pass the Dice: The dice were passed during the current hand.\r\rAlthough Bob is presently "
      "shooting the dice, the current hand is being credited to ";
  Throw(4, 5);
  EXPECT_EQ(note(), "");
  PassDice(PlayerAsked);
  EXPECT_EQ(note(), credited + "Ann who started the hand.");
  EXPECT_TRUE(DeletePlayer(3, false));
  EXPECT_EQ(note(),
            credited + "another player who started the hand but is no longer at the table.");
  Throw(3, 4);
  EXPECT_EQ(note(),
            "Pass the Dice: The last hand was shot by a player who is no longer at the table.");
  Throw(4, 5);
  EXPECT_EQ(note(), "");
}

TEST_F(Rail, AtmKeepsToItsLimits) {
  const std::string cut = "The full amount of this transaction was not allowed because ";
  const struct {
    bool deposit;
    Money bankroll, wager, amount;
    int32_t allowNegative;
    Money moved;
    std::string text;
  } cases[] = {
      {true, 100, 30, 70, 0, 70, ""},
      {true, 100, 30, 71, 0, 70,
       "ATM Deposit: Requested amount:  $71\rAllowed amount:  $70\r\r" + cut +
           "Ann's bankroll would've dropped below the amount currently wagered.\r\rYou can deposit "
           "more by checking the box marked, \"Allow negative bankroll\" on the Configuration "
           "screen, and/or by reducing the amount currently wagered."},
      {true, 100, 0, 200, 0, 100,
       "ATM Deposit: Requested amount:  $200\rAllowed amount:  $100\r\r" + cut +
           "Ann's bankroll would've become negative.\r\rYou can deposit more by checking the box "
           "marked, \"Allow negative bankroll\" on the Configuration screen"},
      {true, 100, 0, 200, -1, 200, ""},
      {true, -9'999'000, 0, 1000, -1, 999,
       "ATM Deposit: Requested amount:  $1,000\rAllowed amount:  $999\r\r" + cut +
           "it would've caused Ann's bankroll to drop below the negative bank limit of "
           "$9,999,999"},
      {false, 9'999'900, 0, 100, 0, 99,
       "ATM Withdrawal: Requested amount:  $100\rAllowed amount:  $99\r\r" + cut +
           "it would've caused Ann's bankroll to exceed the max bank limit of $9,999,999"},
      {false, 100, 0, -5, 0, 0, ""},
  };
  for (const auto& each : cases) {
    SetUp();
    SeatPlayer(1, "Ann", each.bankroll);
    Ask(1, bet::PassLine, each.wager);
    Table.AllowNegBankroll[1] = each.allowNegative;
    Talk.shown.clear();
    EXPECT_EQ(ATM(1, each.deposit, each.amount, true), each.moved);
    EXPECT_EQ(BankrollOf(1), each.bankroll + (each.deposit ? -each.moved : each.moved));
    EXPECT_EQ(Table.InvestedBankroll[1], BankrollOf(1));
    EXPECT_EQ(Talk.shown.empty() ? "" : Talk.shown[0], each.text);
  }
}

TEST_F(Rail, StacksSplitIntoChecksAndKeepFourApart) {
  const CheckPile pile = SplitIntoChecks(Money::FromRaw(12'366'500));
  EXPECT_EQ(pile.count, (std::array<int64_t, 6>{0, 1, 2, 1, 2, 2}));
  EXPECT_EQ(pile.fraction, Money::FromRaw(6500));
  SeatPlayer(1, "Ann", 100);
  EXPECT_FALSE(SetVisibleStacks(1, {1, 2, 3, 2}));
  EXPECT_EQ(Talk.shown.back(),
            "Set Visible CheckStacks: Each CheckStack entry should be a different number.");
  EXPECT_TRUE(SetVisibleStacks(1, {9, 2, 3, 1}));
  EXPECT_EQ(Table.VisibleStack[1][1], 109);
  SetStackValue(1, 2, 5);
  SetStackName(1, 4, "goal");
  const std::vector<StackRow> rows = StackRows(1, false);
  ASSERT_EQ(rows.size(), 2u);
  EXPECT_EQ(rows[0].value + rows[1].value + rows[1].name, "50goal");
}

TEST_F(Rail, ACommandThatMeetsAFaultSaysSoOnceAndHasNotHappened) {
  const TemporaryFolder folder;
  SeatPlayer(1, "Ann", 100);
  SeatPlayer(5, "Bob", 200);
  SetAppFolder(folder.Path());
  EventsLog.LogOn = true;
  // No index can be written where a folder stands.
  std::filesystem::create_directories(folder.Path() + "/Events Log.ref/full");
  const struct {
    const char* name;
    bool (*run)();
    std::deque<std::string> answers;
  } commands[] = {
      {"AddPlayer", [] { return AddPlayer(3); }, {"yes", "Eve", "500"}},
      {"RenamePlayer", [] { return RenamePlayer(1); }, {"Zoe"}},
      {"DeletePlayer", [] { return DeletePlayer(5, true); }, {"yes"}},
      {"MovePlayer", [] { return MovePlayer(1, 2); }, {}},
      {"PassDice", [] { return GiveUpDice(); }, {}},
  };
  const TableState before = Table;
  for (const auto& command : commands) {
    Talk = {command.answers, {}};
    EXPECT_FALSE(command.run()) << command.name;
    ASSERT_EQ(Talk.shown.size(), command.answers.size() + 1) << command.name;
    EXPECT_NE(Talk.shown.back().find(std::string("occurred at: ") + command.name),
              std::string::npos)
        << Talk.shown.back();
    EXPECT_EQ(CheckTable(), "");
    EXPECT_EQ(Table.PlayerName, before.PlayerName);
    EXPECT_EQ(Table.Bankroll, before.Bankroll);
    EXPECT_EQ(Table.Shooter, before.Shooter);
  }
}

}  // namespace
}  // namespace tessarel
