#include "engine/bet_handling.h"

#include <gtest/gtest.h>

#include <deque>
#include <string>
#include <vector>

#include "base/front_end.h"
#include "base/message.h"
#include "engine/bets.h"
#include "play/players.h"
#include "play/roll_driver.h"
#include "play/start_up.h"
#include "state/payoffs.h"
#include "state/settings.h"
#include "state/table.h"

namespace tessarel {
namespace {

// What the prompt was asked to show, and what it answers.
struct PromptTalk {
  std::deque<SettlePrompt> answers;
  std::vector<SettlePrompt> shown;
  std::vector<std::string> messages;
};

PromptTalk Talk;

void Answer(SettlePrompt& prompt) {
  if (!Talk.answers.empty()) {
    prompt.button = Talk.answers.front().button;
    prompt.modify = Talk.answers.front().modify;
    Talk.answers.pop_front();
  }
  Talk.shown.push_back(prompt);
}

class BetHandling : public testing::Test {
 protected:
  void SetUp() override {
    StartUp("/tmp");
    Settings.BetNeededToShoot = 0;
    SeatPlayer(1, "Ann", 1000);
    Talk = {};
    FrontEnd.SettleBet = Answer;
    FrontEnd.ShowMessage = [] {
      Talk.messages.push_back(Message.MsgTitle + ": " + Message.MsgText);
    };
  }
  void TearDown() override { FrontEnd = FrontEndCallbacks{}; }

  static void Ask(int number, Money amount) {
    Table.Amount = amount - Bet(1, number);
    PlaceBet(1, number);
  }
  static void Throw(int die1, int die2) {
    MakeRoll(Faces{die1, die2});
    EXPECT_EQ(CheckTable(), "");
  }
  static void SetRow(int slot, HandlingRow row) {
    Table.HandleAmount[1][slot] = row.amount;
    Table.HandleOperator[1][slot] = row.operation;
    Table.HandleUnits[1][slot] = row.units;
  }
  static std::string Rows(const SettlePrompt& prompt) {
    std::string text = prompt.title[0] + "/" + prompt.title[1];
    for (const SettlePrompt::Row& row : prompt.rows)
      text += "|" + row.caption + row.figure;
    return text;
  }
};

TEST_F(BetHandling, StandingChoicesForWonAndLostBets) {
  const struct {
    int32_t win, loss;
    int die1, die2;
    Money after;
  } cases[] = {
      // $12 on Place 6: a 6 wins $14, a seven loses.
      {WinTakeDown, 1, 2, 4, 0},     {WinSameBet, 1, 2, 4, 12},    {WinPressUnit, 1, 2, 4, 18},
      {WinPressDouble, 1, 2, 4, 24}, {WinParlay, 1, 2, 4, 26},     {WinModify, 1, 2, 4, 17},
      {WinSetUnits, 1, 2, 4, 60},    {1, LossTakeDown, 3, 4, 0},   {1, LossSameBet, 3, 4, 12},
      {1, LossRemainder, 3, 4, 0},   {1, LossPressUnit, 3, 4, 18}, {1, LossPressDouble, 3, 4, 24},
      {1, LossModify, 3, 4, 24},     {1, LossSetUnits, 3, 4, 7},
  };
  for (const auto& each : cases) {
    SCOPED_TRACE(testing::Message() << "win " << each.win << " loss " << each.loss);
    SetUp();
    SetRow(AutoWinModify, {5, 0, 0});
    SetRow(AutoWinSet, {2, 0, 3});  // two units of the $5 check: 2 x 6 x 5
    SetRow(AutoLossModify, {200, 2, 1});
    SetRow(AutoLossSet, {7, 0, 0});
    Table.HandleWinningBets[1] = each.win;
    Table.HandleLosingBets[1] = each.loss;
    Throw(4, 1);  // with a point on, Place bets work
    Ask(bet::Place6, 12);
    Throw(each.die1, each.die2);
    EXPECT_EQ(Bet(1, bet::Place6), each.after);
    EXPECT_TRUE(Talk.shown.empty());
  }
}

TEST_F(BetHandling, ModifyFigures) {
  const struct {
    HandlingRow row;
    Money after;
  } cases[] = {
      {{10, 0, 0}, 30}, {{10, 1, 0}, 10},  {{3, 2, 0}, 60},   {{4, 3, 0}, 5},  {{50, 0, 1}, 30},
      {{25, 1, 1}, 15}, {{150, 2, 1}, 30}, {{200, 3, 1}, 10}, {{2, 0, 3}, 30},  // two $5 checks
      {{0, 3, 0}, 20},  {{-2, 3, 0}, 20},
  };
  for (const auto& each : cases) {
    SCOPED_TRACE(testing::Message() << PlainText(each.row.amount) << " op " << each.row.operation
                                    << " units " << PlainText(each.row.units));
    SetUp();
    Table.HandleWinningBets[1] = WinModify;
    SetRow(AutoWinModify, each.row);
    Ask(bet::Field, 20);
    Throw(4, 5);
    EXPECT_EQ(Bet(1, bet::Field), each.after);
  }
}

TEST_F(BetHandling, WhatCannotStayComesDownWhateverTheChoice) {
  Table.HandleWinningBets[1] = WinPressDouble;
  Table.HandleLosingBets[1] = LossPressDouble;
  Settings.AllowPutBets = false;
  Ask(bet::PassLine, 10);
  Throw(4, 2);
  Ask(bet::PassLineOdds, 20);
  Ask(bet::Come, 10);
  Throw(3, 1);
  EXPECT_EQ(Bet(1, bet::Come4), 10);
  Throw(2, 2);
  EXPECT_EQ(Bet(1, bet::Come4), 0);
  Throw(3, 3);
  EXPECT_EQ(Bet(1, bet::PassLineOdds), 0);
  EXPECT_EQ(Bet(1, bet::PassLine), 20);
}

TEST_F(BetHandling, WhatCannotStayComesDownWhateverIsAnswered) {
  Settings.AllowPutBets = false;
  const struct {
    int box, number;
    int die1, die2;
  } cases[] = {{bet::DontCome, bet::DontCome4, 3, 4}, {bet::Come, bet::Come4, 2, 2}};
  for (const auto& each : cases) {
    for (const int button : {1, 2, 3, 4, 5, 6}) {
      Table = TableState{};
      SetUp();
      Settings.AllowPutBets = false;
      Throw(4, 2);
      Ask(each.box, 10);
      Throw(3, 1);
      ASSERT_EQ(Bet(1, each.number), 10);
      SettlePrompt answer;
      answer.button = button;
      answer.modify = {7, 0, 0};
      Talk.answers = {answer};
      Throw(each.die1, each.die2);
      EXPECT_EQ(Bet(1, each.number), 0) << each.number << " button " << button;
      EXPECT_EQ(Talk.shown.size(), 1u);
      EXPECT_EQ(RowOfSlot(1, PromptWinModify).amount, 7);
    }
  }
}

TEST_F(BetHandling, BetsLeftOrPressedAreDrawnAgain) {
  static std::vector<int> drawn;
  Table.HandleWinningBets[1] = WinPressDouble;
  Ask(bet::Field, 10);
  drawn.clear();
  FrontEnd.DrawBet = [](int, int number) { drawn.push_back(number); };
  Throw(4, 5);
  EXPECT_EQ(drawn, std::vector<int>{bet::Field});
}

TEST_F(BetHandling, RemainderOfAPartialLossGoesBackUp) {
  Table.HandleLosingBets[1] = LossRemainder;
  Payoffs.Payoff[bet::Craps].PayNum = Money::FromRaw(5000);  // half to one
  Ask(bet::CAndE, 10);
  Throw(1, 2);  // 2.50 less 5, rounded down to whole checks
  EXPECT_EQ(Bet(1, bet::CAndE), 7);
}

TEST_F(BetHandling, ParlayOfAPushSetsTheLargestBet) {
  Table.HandleWinningBets[1] = WinParlay;
  Ask(bet::World, 5);
  Throw(3, 4);
  EXPECT_EQ(Bet(1, bet::World), 500);
}

TEST_F(BetHandling, FaultWhileABetTravelsLeavesSoundsAndRulesInForce) {
  Settings.OddsCalcMethod = 4;
  Table.AutoTakeFullOdds[1] = true;
  Payoffs.Payoff[bet::Come4Odds].PayDen = 0;
  Throw(4, 2);
  Ask(bet::Come, 10);
  Throw(3, 1);
  EXPECT_EQ(Talk.messages.back(), "Error: Division by zero, Error #11 occurred at: MakeRoll");
  EXPECT_EQ(Bet(1, bet::Come4), 10);
  EXPECT_FALSE(Settings.DisableAllSound);
  EXPECT_FALSE(Table.BetMoving);
}

TEST_F(BetHandling, NumbersThatAreNoBetsTakeNoMoney) {
  for (const int number : {0, 94, 99, 200}) {
    Table.Amount = 10;
    ChangeBet(1, number);
    EXPECT_EQ(Table.BetDelta, 0) << number;
  }
  EXPECT_EQ(CheckTable(), "");
}

TEST_F(BetHandling, HyperDriveNeverAsks) {
  Ask(bet::Field, 10);
  Table.HyperDriveOn = true;
  FrontEnd.RunPendingEvents = [] { Table.HyperDriveOn = false; };
  Throw(4, 5);
  EXPECT_EQ(Bet(1, bet::Field), 0);
  EXPECT_TRUE(Talk.shown.empty());
  EXPECT_TRUE(Talk.messages.empty());
}

TEST_F(BetHandling, PromptTellsOfTheWinAndDoesWhatIsAnswered) {
  SettlePrompt press;
  press.button = 5;
  press.modify = {25, 0, 1};
  Talk.answers = {press};
  Ask(bet::Field, 20);
  Throw(1, 1);
  ASSERT_EQ(Talk.shown.size(), 1u);
  EXPECT_EQ(Rows(Talk.shown[0]), "Ann/Won|Field$20|Payoff at 2 to 1:$40|Net payoff:$40");
  EXPECT_EQ(Talk.shown[0].buttons[2], "Press &1 unit");
  EXPECT_EQ(Bet(1, bet::Field), 25);
  EXPECT_EQ(RowOfSlot(1, PromptWinModify).amount, 25);
  EXPECT_EQ(Talk.messages.back(), "Same bet plus 25%: Ann,\r\rField bet increased by: $5");
}

TEST_F(BetHandling, PromptRowsOfEachKind) {
  const struct {
    int number;
    Money amount;
    int die1, die2;
    const char* rows;
  } cases[] = {
      {bet::CAndE, 10, 5, 6,
       "Ann/Won|C and E$10|1/2 of bet:$5|Payoff at 15 to 1:$75|Less 1/2 of bet:$5|Net payoff:$70"},
      {bet::Horn, 4, 1, 2,
       "Ann/Won|Horn$4|1/4 of bet:$1|Payoff at 15 to 1:$15|Less 3/4 of bet:$3|Net payoff:$12"},
      {bet::Lay4, 20, 3, 4, "Ann/Won|Lay 4$20|Payoff at 1 to 2:$10|5% vig:$1|Net payoff:$9"},
      {bet::Place6, 5, 3, 3, "Ann/Won|Place 6$5|Payoff at 7 to 6:$5.8333|Net payoff (rounded):$5"},
      {bet::Horn, 4, 2, 3, "Lost/Ann|Horn$4|Loss at 1 to 1$4|Net loss:$4|Remainder:$0"},
      {bet::Field, 10, 2, 3, "Lost/Ann|Field$10|Loss at 1 to 1$10|Net loss:$10"},
      {bet::Fire, 5, 3, 4, "Lost/Ann|Fire$5|Loss at 1 to 1$5|Net loss:$5"},
  };
  for (const auto& each : cases) {
    SetUp();
    if (each.number == bet::Fire) Ask(each.number, each.amount);
    Throw(5, 4);
    Ask(each.number, each.amount);
    Throw(each.die1, each.die2);
    ASSERT_EQ(Talk.shown.size(), 1u) << each.rows;
    EXPECT_EQ(Rows(Talk.shown[0]), each.rows);
  }
}

TEST_F(BetHandling, OddsThatWereOffAreAskedFor) {
  Throw(4, 2);
  Ask(bet::Come, 10);
  Throw(3, 1);
  Ask(bet::Come4Odds, 10);
  Throw(4, 2);  // the point is made: on the come-out the odds are off
  Talk.shown.clear();
  Throw(3, 4);
  ASSERT_EQ(Talk.shown.size(), 2u);
  EXPECT_EQ(Rows(Talk.shown[1]), "Ann/|Come 4 Odds$10|wasn't working!");
  EXPECT_EQ(Bet(1, bet::Come4Odds), 0);
  EXPECT_EQ(BankrollOf(1), 990);
}

TEST_F(BetHandling, LineOddsThatWereCalledOffAreTold) {
  Ask(bet::PassLine, 10);
  Throw(4, 2);
  Ask(bet::PassLineOdds, 20);
  CallBet(1, bet::PassLineOdds, CallOff);
  SettlePrompt same;
  same.button = 1;
  Talk.answers = {same, same};
  Throw(3, 3);
  ASSERT_EQ(Talk.shown.size(), 2u);
  EXPECT_EQ(Rows(Talk.shown[1]), "Ann/|Pass Line Odds$20|wasn't working!");
  EXPECT_EQ(Bet(1, bet::PassLineOdds), 0);
  EXPECT_EQ(Bet(1, bet::PassLine), 10);
}

TEST_F(BetHandling, ComingDownBehindATravellingBetIsHeardOnlyOfBetsThatStand) {
  static int sounds;
  Table.AutoDownPlaceBets[1] = true;
  Ask(bet::PassLine, 10);
  Ask(bet::Place6, 12);
  sounds = 0;
  FrontEnd.PlaySound = [](Sound sound) { sounds += sound == Sound::Check; };
  Throw(4, 2);
  EXPECT_EQ(Bet(1, bet::Place6), 0);
  EXPECT_EQ(sounds, 1);
}

}  // namespace
}  // namespace tessarel
