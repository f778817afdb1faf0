#include "stats/hands_view.h"

#include "stats/stats_fixture.h"

namespace tessarel {
namespace {

using HandsViewTest = StatsTest;

// A natural, a craps, a point made in two rolls and another one lost.
void PlayOneHand() {
  const int rolls[] = {7, 2, 6, 6, 4, 7};
  for (size_t k = 0; k < std::size(rolls); ++k) {
    Table.DiceTotal = rolls[k];
    RecordRoll(rolls[k] > 6 ? 6 : 1, rolls[k] - (rolls[k] > 6 ? 6 : 1));
    if (k != 3 && k != 5) RecordComeoutRoll();
    if (k == 0 || k == 3) RecordPass();
    if (k == 1 || k == 5) RecordMiss();
  }
}

TEST_F(HandsViewTest, FiguresAndTable) {
  SeatPlayer(2, "Ann", 100);
  SeatPlayer(3, "Bob", 100);
  for (const int shooter : {2, 3, 0}) {
    Table.LastShooter = shooter;
    PlayOneHand();
    if (shooter == 3) RecordPass();
    EndHand();
  }
  EXPECT_EQ(
      Lines(Hands(CurrentSession, 1u << 3, HandUnits::Counts).Figures),
      (Strings{"Total hands=1", "Total rolls=6", "Avg rolls per hand=6.00",
               "Most rolls in a hand=6", "Avg c/o rolls/hand=4.00", "Most c/o rolls in a hand=4",
               "Avg passes/hand=3.00", "Most passes in a hand=3", "Avg misses/hand=2.00",
               "Most misses in a hand=2"}));
  const HandsView all = Hands(CurrentSession, 0xFE, HandUnits::PerHand);
  EXPECT_EQ(all.Figures[0].Value + "/" + all.Figures[6].Value, "3/2.33");
  EXPECT_EQ(all.Table[2].Total, 4);
  EXPECT_EQ(all.Table[2].ComeoutRolls, "1.00");
  EXPECT_EQ(all.Table[5].Passes, "1.33");
  EXPECT_EQ(all.Table[5].Misses, "1.00");
  EXPECT_EQ(all.Table[6].Misses, "0");
  EXPECT_EQ(Hands(LastHand, WholeTable, HandUnits::Counts).Table[5].Passes, "1");
}

TEST_F(HandsViewTest, WithoutHandsNothingIsDivided) {
  const HandsView view = Hands(LastHand, WholeTable, HandUnits::PerHand);
  EXPECT_EQ(view.Figures[2].Value, "---");
  EXPECT_EQ(view.Table[5].ComeoutRolls, "0");
  EXPECT_EQ(Hands(LastHand, 2, HandUnits::Counts).Placeholder, "No players present");
}

}  // namespace
}  // namespace tessarel
