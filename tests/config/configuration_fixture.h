// A table under its start-up rules, with players to seat and bets to put down, that keeps what is
// shown and answers questions from a list.
#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <string>
#include <vector>

#include "base/front_end.h"
#include "base/message.h"
#include "dice/generators.h"
#include "state/payoffs.h"
#include "state/settings.h"
#include "state/table.h"

namespace tessarel {

class ConfigurationTest : public ::testing::Test {
 protected:
  void SetUp() override {
    Reset();
    for (int number = 1; number <= LastBet; ++number)
      Table.BetWorkingDefault[0][number] = OriginalHouseWorking(number);
    FrontEnd.ShowMessage = [] {
      Shown.push_back({Message.MsgTitle, Message.MsgText, Message.MsgFlags});
      if (Answers.empty()) return;
      Message.MsgResult = Answers.front();
      Answers.pop_front();
    };
  }
  void TearDown() override {
    EXPECT_EQ(CheckTable(), "");
    Reset();
  }

  static void Reset() {
    Table = {};
    Settings = {};
    Dice = {};
    DefaultPayoffs();
    Message = {};
    FrontEnd = {};
    Shown.clear();
    Answers.clear();
  }

  static void Seat(int place, const std::string& name, Money bankroll) {
    SetPlayerName(place, name);
    SetBankrollSlots(place, bankroll);
  }
  static void PutDown(int place, int number, Money amount) {
    Table.MoneyOnTable[place] += amount - Bet(place, number);
    SetBetAmount(place, number, amount);
  }

  struct ShownMessage {
    std::string Title, Text;
    int32_t Flags;
  };
  inline static std::vector<ShownMessage> Shown;
  inline static std::deque<int32_t> Answers;  // when they run out: the default button
};

}  // namespace tessarel
