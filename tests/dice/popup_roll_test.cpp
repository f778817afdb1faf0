#include "dice/popup_roll.h"
#include "engine/unattended.h"

#include "base/clock.h"
#include "base/file_io.h"
#include "base/folders.h"
#include "base/temporary_folder.h"
#include "play/roll_fixture.h"

namespace tessarel {
namespace {

std::string Dropped;

class PopupRolls : public RollTest {
 protected:
  void SetUp() override {
    RollTest::SetUp();
    SetAppFolder(folder_.Path());
    OpenPopupRoll("dice.txt");
    Dropped = folder_.Path() + "dice.txt";
    HoldClock({2026, 11, 22, 12});
  }
  void TearDown() override {
    ReleaseClock();
    PopupRoll = {};
    Folders = {};
    RollTest::TearDown();
  }
  static void Drop(const std::string& text) { WriteFileAtomically(Dropped, text); }

 private:
  TemporaryFolder folder_;
};

TEST_F(PopupRolls, FirstTwoDigitsAreTheDiceAndTheFileIsGone) {
  const std::tuple<std::string, int32_t, int32_t> cases[] = {
      {"x1y2", 1, 2}, {"0 7\r\n6,5 4", 6, 5}, {std::string(70'000, '9') + "34", 3, 4}};
  int32_t rolls = 0;
  for (const auto& [text, die1, die2] : cases) {
    Drop(text);
    MakeRoll();
    EXPECT_EQ(std::pair(Table.Die1, Table.Die2), std::pair(die1, die2));
    EXPECT_EQ(RollsInSession(), ++rolls);
    EXPECT_FALSE(FileExists(Dropped));
  }
  Drop("11");
  Throw(6, 6);
  EXPECT_EQ(Table.DiceTotal, 12) << "a roll by hand comes first";
  EXPECT_TRUE(FileExists(Dropped));
}

TEST_F(PopupRolls, TooFewDiceStopAndStay) {
  for (const char* text : {"6", "", "789"}) {
    Drop(text);
    MakeRoll();
    EXPECT_EQ(StopText(Table.LastStop), "Stopped due to Dice Roll File value out of limits.");
    EXPECT_EQ(RollsInSession(), 0);
    EXPECT_TRUE(FileExists(Dropped));
  }
  ASSERT_EQ(Shown.size(), 3u);
  EXPECT_EQ(Shown[0].first, "Dice Roll File Error");
}

TEST_F(PopupRolls, RollByHandWaitsHalfASecond) {
  const int64_t before = TickMilliseconds();
  MakeRoll();
  EXPECT_NEAR(static_cast<double>(TickMilliseconds() - before), 500, 10);
  EXPECT_EQ(RollsInSession(), 0);
  EXPECT_FALSE(Table.RollInProgress);
  HoldClock({2026, 11, 22, 23, 59, 59, 990});
  MakeRoll();
  EXPECT_LT(Now().millisecond, 100) << "midnight ends the wait";
}

TEST_F(PopupRolls, RunWaitsForEachFileAndForTheUser) {
  FrontEnd.RunPendingEvents = [] {
    if (!PopupRoll.Waiting) return;
    AdvanceClock(3'600'000);
    if (RollsInSession() < 2) {
      Drop("12");
    } else {
      Table.AutoRollOn = Table.HyperDriveOn = false;
    }
  };
  Table.AutoRollOn = Table.HyperDriveOn = true;
  MakeRoll();
  EXPECT_EQ(RollsInSession(), 2);
  EXPECT_FALSE(PopupRoll.PopupRollActive);
  EXPECT_EQ(Shown.back().second, "Would you like to close the pop-up roll file?");
}

TEST_F(PopupRolls, NextSourceRollsWhenThePopupIsClosedMeanwhile) {
  FrontEnd.RunPendingEvents = ClosePopupRoll;
  MakeRoll();
  EXPECT_EQ(RollsInSession(), 1);
}

}  // namespace
}  // namespace tessarel
