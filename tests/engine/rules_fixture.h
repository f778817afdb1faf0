// A table under its start-up rules with Ann at place 3 and 10,000 to play with; requests of a
// change are made and judged by what stands afterwards and what was said.
#pragma once

#include <string>

#include "config/configuration_fixture.h"
#include "engine/bets.h"
#include "state/books.h"

namespace tessarel {

class RulesTest : public ConfigurationTest {
 protected:
  static constexpr int Ann = 3;

  void SetUp() override {
    ConfigurationTest::SetUp();
    StartOver();
  }

  static void StartOver() {
    Table = {};
    Settings = {};
    Stats = {};
    Shown.clear();
    FigurePayoffUnits();
    for (int number = 1; number <= LastBet; ++number)
      Table.BetWorkingDefault[0][number] = OriginalHouseWorking(number);
    Table.BetWorkingDefault[Ann] = Table.BetWorkingDefault[0];
    Seat(Ann, "Ann", 10000);
  }

  static Money Sum(double amount) { return Money::FromDouble(amount); }

  // The denominations from the smallest check on.
  static void UseChecks(double first, double second, double third, double fourth, double fifth) {
    Settings.Denomination = {0, Sum(first), Sum(second), Sum(third), Sum(fourth), Sum(fifth)};
    FigurePayoffUnits();
  }

  static void Ask(int number, Money change) { Changed = ChangeBet({Ann, number, change}); }
  static void Place(int number, Money change) { Changed = PlaceBet({Ann, number, change}); }
  // What the last request changed.
  inline static Money Changed;

  // All that was said, one message after the other; clears it.
  static std::string Said() {
    std::string text;
    for (const ShownMessage& message : Shown)
      text += (text.empty() ? "" : " | ") + message.Text;
    Shown.clear();
    return text;
  }
};

}  // namespace tessarel
