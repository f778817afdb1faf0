// A table under its start-up rules on which chosen rolls are thrown: bets are put down without the
// rules of betting, so that any state can be met by any roll.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "base/front_end.h"
#include "base/message.h"
#include "dice/generators.h"
#include "dice/roll_file.h"
#include "engine/bet_limits.h"
#include "play/reset.h"
#include "play/roll_driver.h"
#include "state/books.h"
#include "state/payoffs.h"
#include "state/settings.h"
#include "state/table.h"

namespace tessarel {

inline constexpr Money Buyin = 1'000'000;

using Rolls = std::vector<std::pair<int, int>>;  // the faces of each

class RollTest : public ::testing::Test {
 protected:
  void SetUp() override {
    Reset();
    Settings.BetNeededToShoot = 0;
  }
  void TearDown() override {
    EXPECT_EQ(CheckTable(), "");
    Reset();
  }

  static void Reset() {
    ResetAll();
    FrontEnd = {};
    FrontEnd.ShowMessage = [] { Shown.emplace_back(Message.MsgTitle, Message.MsgText); };
    DefaultPayoffs();
    FigurePayoffUnits();
    Shown.clear();
  }

  static void LiftLimits() {
    Settings.MaxPlacardBet = Settings.MaxOddsBet = Settings.MaxFireBet = 100'000;
    Settings.MaxPropBetPayoff = BankrollLimit;
  }

  // Seats a player whose bets all work, who leaves won bets standing and lets lost ones go.
  static void Seat(int place, Money bankroll = Buyin) {
    SetPlayerName(place, "P" + std::to_string(place));
    SetBankrollSlots(place, bankroll);
    Table.InvestedBankroll[place] = bankroll;
    for (int number = 1; number <= LastBet; ++number) {
      Table.BetWorkingDefault[place][number] = IsWorking;
      Table.BetWorking[place][number] = IsWorking;
    }
    Table.HandleWinningBets[place] = 2;
    Table.HandleLosingBets[place] = 1;
    if (Table.Shooter == 0) Table.Shooter = Table.LastShooter = place;
  }
  static void PutDown(int place, int number, Money amount) {
    Table.MoneyOnTable[place] += amount - Bet(place, number);
    SetBetAmount(place, number, amount);
  }
  static void Throw(int die1, int die2) { MakeRoll(Faces{die1, die2}); }
  static void Throw(const Rolls& rolls) {
    for (const auto& [die1, die2] : rolls)
      Throw(die1, die2);
  }
  static Money Won(int place) { return BankrollOf(place) - Table.InvestedBankroll[place]; }

  inline static std::vector<std::pair<std::string, std::string>> Shown;  // title, text
};

}  // namespace tessarel
