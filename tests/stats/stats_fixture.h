// A table with a store of statistics that a test fills by hand or by playing.
#pragma once

#include "dice/generators.h"
#include "engine/bets.h"
#include "play/new_session.h"
#include "play/players.h"
#include "play/roll_driver.h"
#include "play/start_up.h"
#include "reset.h"

namespace tessarel {

class StatsTest : public FreshTest {
 protected:
  struct Wager {
    int place, number;
    Money amount;
  };

  StatsTest() {
    StartUp(::testing::TempDir());
    Shown.clear();
  }

  static void Roll(int die1, int die2) {
    Table.DiceTotal = die1 + die2;
    RecordRoll(die1, die2);
  }

  // Plays with fixed bets that are asked for before every roll.
  static void Play(int rolls, std::vector<Wager> wagers, int seed = 7) {
    SelectRNG(1);
    Dice.SeedRequest = seed;
    SeedRNG(-1);
    Settings.BetNeededToShoot = 0;
    Wagers = std::move(wagers);
    Left = rolls;
    FrontEnd.RunPendingEvents = Rebet;
    Table.HyperDriveOn = true;
    Rebet();
    MakeRoll();
  }

  static void Rebet() {
    if (Left-- == 0) Table.HyperDriveOn = false;
    for (const auto& [place, number, amount] : Wagers) {
      const Money change = amount - Bet(place, number);
      if (change != Money()) PlaceBet({place, number, change}, Telling::Silent);
    }
  }

  inline static std::vector<Wager> Wagers;
  inline static int Left = 0;
};

// "Caption=Value" of each row, to compare and to read at a glance.
template <class Row>
std::vector<std::string> Lines(const std::vector<Row>& rows) {
  std::vector<std::string> lines;
  for (const Row& row : rows)
    lines.push_back(row.Caption + "=" + row.Value);
  return lines;
}

}  // namespace tessarel
