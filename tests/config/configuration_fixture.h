// A table under its start-up rules, with players to seat and bets to put down.
#pragma once

#include "reset.h"

namespace tessarel {

class ConfigurationTest : public FreshTest {
 protected:
  void SetUp() override {
    for (int number = 1; number <= LastBet; ++number)
      Table.BetWorkingDefault[0][number] = OriginalHouseWorking(number);
  }
  void TearDown() override { EXPECT_EQ(CheckTable(), ""); }

  static void Seat(int place, const std::string& name, Money bankroll) {
    SetPlayerName(place, name);
    SetBankrollSlots(place, bankroll);
  }
  static void PutDown(int place, int number, Money amount) {
    Table.MoneyOnTable[place] += amount - Bet(place, number);
    SetBetAmount(place, number, amount);
  }
};

}  // namespace tessarel
