#include "play/manual_roll.h"

#include <algorithm>
#include <map>
#include <set>

#include "base/fault.h"
#include "base/folders.h"
#include "base/temporary_folder.h"
#include "play/auto_roll.h"
#include "play/roll_fixture.h"

namespace tessarel {
namespace {

int Draws = 0;
int32_t NextDraw = 0;

int32_t CountedDraw(int32_t n) {
  ++Draws;
  EXPECT_LT(NextDraw, n);
  return NextDraw;
}

using Pair = std::pair<int, int>;

TEST(RollPad, TotalTakesEachOfItsPairsByOneDraw) {
  for (int total = 2; total <= 12; ++total) {
    std::set<Pair> pairs;
    const int ways = 6 - std::abs(7 - total);
    for (NextDraw = 0; NextDraw < ways; ++NextDraw) {
      Draws = 0;
      const Faces faces = FacesOfTotal(total, CountedDraw);
      EXPECT_EQ(faces.die1 + faces.die2, total);
      EXPECT_EQ(Draws, total == 2 ? 0 : 1) << total;
      for (const int die : {faces.die1, faces.die2})
        EXPECT_TRUE(die >= 1 && die <= 6) << total;
      pairs.insert({faces.die1, faces.die2});
    }
    EXPECT_EQ(static_cast<int>(pairs.size()), ways) << total;
  }
  for (const int total : {1, 13})
    EXPECT_THROW(FacesOfTotal(total), Fault);
}

TEST(RollPad, PlatformDrawsReachEveryPairAboutEquallyOften) {
  std::map<Pair, int> came;
  constexpr int Rolls = 6000;
  for (int k = 0; k < Rolls; ++k) {
    const Faces faces = FacesOfTotal(8);
    ++came[{faces.die1, faces.die2}];
  }
  ASSERT_EQ(came.size(), 5U);
  for (const auto& [pair, count] : came)
    EXPECT_NEAR(count, Rolls / 5, 200) << pair.first;  // more than six standard deviations
}

TEST(RollPad, DisplaysHoldEachOutcomeOnceAndNoCellsOverlap) {
  for (const RollPadDisplay display : {BasicNumbers, ComboTriangle, ComboBox, SingleDice}) {
    const RollPadGrid grid = GridOf(display);
    std::set<Pair> places, outcomes;
    for (const RollPadCell& cell : grid.Cells) {
      for (int k = 0; k < cell.ColumnSpan; ++k) {
        EXPECT_LT(cell.Column + k, grid.Columns);
        EXPECT_TRUE(places.insert({cell.Row, cell.Column + k}).second) << display;
      }
      EXPECT_LT(cell.Row, grid.Rows);
      const bool numbers = display == BasicNumbers;
      EXPECT_TRUE(
          outcomes.insert(numbers ? Pair{cell.Total, 0} : Pair{cell.Dice.die1, cell.Dice.die2})
              .second);
      if (display == ComboTriangle || display == ComboBox) {
        EXPECT_EQ(cell.Dice.die1 + cell.Dice.die2, cell.Total);
        EXPECT_TRUE(std::min(cell.Dice.die1, cell.Dice.die2) >= 1 &&
                    std::max(cell.Dice.die1, cell.Dice.die2) <= 6);
      }
    }
    EXPECT_EQ(outcomes.size(), display == BasicNumbers ? 11U : display == SingleDice ? 12U : 36U);
  }
}

TEST(RollPad, SingleDiceAreCompleteWithOneFaceOfEachInAnyOrder) {
  const RollPadGrid grid = GridOf(SingleDice);
  const auto cell = [&grid](int die1, int die2) {
    return *std::find_if(grid.Cells.begin(), grid.Cells.end(), [=](const RollPadCell& each) {
      return each.Dice.die1 == die1 && each.Dice.die2 == die2;
    });
  };
  RollChoice choice;
  EXPECT_FALSE(choice.Take(cell(3, 0)));
  EXPECT_FALSE(choice.Take(cell(5, 0))) << "the same die again";
  auto faces = choice.Take(cell(0, 2));
  ASSERT_TRUE(faces);
  EXPECT_EQ(Pair(faces->die1, faces->die2), Pair(5, 2));
  EXPECT_FALSE(choice.Take(cell(0, 6))) << "begins anew";
  faces = choice.Take(cell(1, 0));
  ASSERT_TRUE(faces);
  EXPECT_EQ(Pair(faces->die1, faces->die2), Pair(1, 6));
}

class ManualRolls : public RollTest {
 protected:
  void SetUp() override {
    RollTest::SetUp();
    SetAppFolder(folder_.Path());
  }
  void TearDown() override {
    Folders = {};
    RollTest::TearDown();
  }

 private:
  TemporaryFolder folder_;
};

TEST_F(ManualRolls, ComeBeforeAPlayingFileWhichStandsStill) {
  OpenRollFile("some.rol");
  RollFile.RollFileMode = RollFileRecord;
  RecordToRollFile({6, 5});
  RecordToRollFile({4, 3});
  RewindForPlayback();
  RollChosen({2, 1});
  EXPECT_EQ(Pair(Table.Die1, Table.Die2), Pair(2, 1));
  EXPECT_EQ(RollFile.NextRoll, 1);
  RollAtRandom();
  EXPECT_EQ(Pair(Table.Die1, Table.Die2), Pair(6, 5)) << "the source in force";
  EXPECT_EQ(RollFile.NextRoll, 2);
  EXPECT_EQ(RollsInSession(), 2);
}

TEST_F(ManualRolls, ChoiceStopsARunInsteadOfRolling) {
  for (const UnattendedMode mode : {UnattendedMode::AutoRoll, UnattendedMode::HyperDrive}) {
    Reset();
    Settings.BetNeededToShoot = 0;
    FrontEnd.RunPendingEvents = [] {
      if (RollsInSession() == 20 && RunIsOn()) RollChosen({1, 1});
    };
    ToggleAutoRoll(mode);
    EXPECT_EQ(RollsInSession(), 20);
    EXPECT_FALSE(RunIsOn());
    EXPECT_FALSE(Table.RollInProgress);
  }
}

TEST_F(ManualRolls, ChoiceDuringARollOrOfARefusedRollIsForgotten) {
  FrontEnd.AnimateDice = [] { RollChosen({1, 1}); };
  RollChosen({6, 6});
  EXPECT_EQ(RollsInSession(), 1);
  Seat(1);
  Settings.BetNeededToShoot = 1;
  RollChosen({6, 6});
  EXPECT_EQ(RollsInSession(), 1);
  EXPECT_EQ(Shown.size(), 1U);
}

}  // namespace
}  // namespace tessarel
