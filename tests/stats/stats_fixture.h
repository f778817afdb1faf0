// A table with a store of statistics that a test fills by hand or by playing.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "base/folders.h"
#include "base/front_end.h"
#include "base/message.h"
#include "dice/generators.h"
#include "engine/bets.h"
#include "play/players.h"
#include "play/roll_driver.h"
#include "play/start_up.h"
#include "state/books.h"
#include "state/settings.h"
#include "state/table.h"

namespace tessarel {

class StatsTest : public ::testing::Test {
 protected:
  struct Wager {
    int place, number;
    Money amount;
  };

  void SetUp() override { Reset(); }
  void TearDown() override { Reset(); }

  static void Reset() {
    StartUp(::testing::TempDir());
    FrontEnd = {};
    Message = {};
    Wagers.clear();
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
