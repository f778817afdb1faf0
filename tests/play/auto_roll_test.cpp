#include "play/auto_roll.h"

#include <fstream>

#include "autobet/values.h"
#include "base/clock.h"
#include "base/folders.h"
#include "base/temporary_folder.h"
#include "play/roll_fixture.h"
#include "play/roll_pace.h"
#include "texts/say.h"

namespace tessarel {
namespace {

using Shows = std::vector<std::pair<std::string, std::string>>;

const char* Reply = "";

class AutoRolling : public RollTest {
 protected:
  void SetUp() override {
    RollTest::SetUp();
    HoldClock({2026, 11, 22});
  }
  void TearDown() override {
    ReleaseClock();
    AutoBet = {};
    RollPace = {};
    RollTest::TearDown();
  }
};

TEST_F(AutoRolling, StopsAtEachMultipleOfTheCount) {
  for (const UnattendedMode mode : {UnattendedMode::AutoRoll, UnattendedMode::HyperDrive}) {
    Reset();
    Settings.BetNeededToShoot = 0;
    Settings.AutoStopRolls = 40;
    Settings.RollDelay = Money::FromRaw(15'000);
    const bool hyper = mode == UnattendedMode::HyperDrive;
    for (const int32_t rolls : {40, 80}) {
      const int64_t before = TickMilliseconds();
      ToggleAutoRoll(mode);
      EXPECT_EQ(RollsInSession(), rolls);
      EXPECT_EQ(TickMilliseconds() - before, hyper ? 0 : 39 * 1500);
      EXPECT_EQ(Shown.back(), hyper ? std::pair(std::string("Hyper-Drive Stopped"),
                                                std::string("Stopped by Auto-Stop."))
                                    : std::pair(std::string("Auto-Roll Stopped"),
                                                std::string("Stopped by Auto-Stop")));
    }
    EXPECT_FALSE(Table.AutoRollOn);
    EXPECT_FALSE(Table.HyperDriveOn);
  }
}

TEST_F(AutoRolling, SwitchStopsWithoutAMessage) {
  FrontEnd.RunPendingEvents = [] {
    EXPECT_EQ(Table.HyperDriveOn, HyperDriveCaption() == Wording(Text::HyperDriveActive));
    EXPECT_EQ(!Table.HyperDriveOn, AutoRollCaption() == Wording(Text::AutoRollActive));
    if (RollsInSession() % 5 == 0) ToggleAutoRoll();
  };
  Settings.RollDelay = 300;
  StartHyperDrive();
  EXPECT_EQ(RollsInSession(), 5);
  const int64_t before = TickMilliseconds();
  StartAutoRoll();
  EXPECT_EQ(RollsInSession(), 10);
  EXPECT_EQ(TickMilliseconds() - before, 4 * 300'000) << "the last wait ends with the run";
  EXPECT_EQ(Shown, Shows{});
  EXPECT_EQ(HyperDriveCaption(), Wording(Text::StartHyperDrive));
  EXPECT_EQ(AutoRollCaption(), Wording(Text::StartAutoRoll));
  Table.RollInProgress = true;
  StartAutoRoll();
  EXPECT_FALSE(Table.AutoRollOn);
}

TEST_F(AutoRolling, EndOfTheRollFileIsAskedAboutAtTheTableOnly) {
  const TemporaryFolder folder;
  SetAppFolder(folder.Path());
  std::ofstream(folder.Path() + "play.rol") << "\x24\x44";
  const Shows asked = {{"Hyper-Drive Stopped", "Stopped due to end of Dice Roll File reached."},
                       {"Dice Roll File", "Playback stopped.\rRewind for playback?"}};
  const struct {
    void (*play)();
    Shows shown;
  } cases[] = {{StartHyperDrive, asked},
               {StartAutoRoll, asked},
               {[] { MakeRoll(), MakeRoll(), MakeRoll(); }, {asked[1]}},
               {[] {
                  Table.HyperDriveOn = true;
                  MakeRoll();
                },
                {asked[0]}}};
  for (const auto& each : cases) {
    Reset();
    Settings.BetNeededToShoot = 0;
    OpenRollFile("play.rol");
    RewindForPlayback();
    each.play();
    EXPECT_EQ(RollsInSession(), 2);
    EXPECT_EQ(Shown, each.shown);
    EXPECT_EQ(RollFile.NextRoll, each.shown == Shows{asked[0]} ? 3 : 1);
  }
  CloseRollFile();
  Folders = {};
}

TEST_F(AutoRolling, RepliesAreBroughtIntoTheirLimits) {
  const struct {
    void (*ask)();
    Money SettingsState::*field;
    const char* reply;
    Money stored;
  } cases[] = {
      {AskSetAutoStop, &SettingsState::AutoStopRolls, "2.7", 2},
      {AskSetAutoStop, &SettingsState::AutoStopRolls, "-3", 0},
      {AskSetAutoStop, &SettingsState::AutoStopRolls, "9000000000", MaxRolls},
      {AskSetAutoStop, &SettingsState::AutoStopRolls, "x", 7},
      {AskSetTimeDelay, &SettingsState::RollDelay, " 2.5 ", Money::FromRaw(25'000)},
      {AskSetTimeDelay, &SettingsState::RollDelay, "301", 300},
      {AskSetTimeDelay, &SettingsState::RollDelay, "-1", 0},
  };
  for (const auto& each : cases) {
    Settings.*each.field = 7;
    Reply = each.reply;
    FrontEnd.ShowMessage = [] {
      EXPECT_EQ(Message.MsgInput, "7");
      Message.MsgInput = Reply;
    };
    each.ask();
    EXPECT_EQ(Settings.*each.field, each.stored) << each.reply;
  }
}

TEST_F(AutoRolling, ThrottleIsMeasuredWhenItIsFirstUsed) {
  Settings.AutoStopRolls = 2;
  StartHyperDrive();
  EXPECT_EQ(RollPace.LoopRate, 0);
  Settings.Throttle = 1;
  StartHyperDrive();
  EXPECT_GT(RollPace.LoopRate, 0);
}

TEST_F(AutoRolling, RunningScriptIsStoppedOnlyOnYes) {
  Seat(1);
  EXPECT_TRUE(ConfirmScriptActive());
  EXPECT_EQ(Shown, Shows{});
  AutoBet.CurrentScriptPlayer = 1;
  AutoBet.ScriptRunning = Table.AutoRollOn = true;
  EXPECT_FALSE(ConfirmScriptActive());
  EXPECT_TRUE(Table.AutoRollOn);
  EXPECT_EQ(
      Shown,
      Shows({{"Auto-Bet Active", "Do you want to stop auto-betting?\r\rP1's script processing."}}));
  FrontEnd.ShowMessage = [] { Message.MsgResult = AnswerYes; };
  EXPECT_TRUE(ConfirmScriptActive());
  EXPECT_FALSE(AutoBet.ScriptRunning);
  EXPECT_TRUE(AutoBet.AutoBetMessageStop);
  EXPECT_FALSE(Table.AutoRollOn);
}

TEST_F(AutoRolling, InterruptedHyperDriveTellsWhy) {
  Table.AutoRollOn = Table.HyperDriveOn = true;
  InterruptAutoBetting();
  EXPECT_FALSE(Table.HyperDriveOn);
  EXPECT_EQ(Shown, Shows({{"Hyper-Drive Stopped", "Auto-betting interrupted."}}));
}

TEST_F(AutoRolling, NoRollBeginsWhileAnAnswerIsPending) {
  Seat(1);
  Settings.BetNeededToShoot = 0;
  Settings.AutoStopRolls = 1;
  FrontEnd.ShowMessage = [] {
    if (Message.MsgText == "Wait") StartAutoRoll();
  };
  ShowMessage("Wait", "", msg::Ok);
  EXPECT_EQ(RollsInSession(), 0);
  StartAutoRoll();
  EXPECT_EQ(RollsInSession(), 1);
}

TEST_F(AutoRolling, MessageTimeIsNoDelay) {
  RollPace.RollStamp = TickMilliseconds();
  CreditMessageTime();
  EXPECT_EQ(TickMilliseconds() - RollPace.RollStamp, 600);
  AdvanceClock(5000);
  CreditMessageTime();  // what has passed already counts in full
  EXPECT_EQ(TickMilliseconds() - RollPace.RollStamp, 5600);
}

}  // namespace
}  // namespace tessarel
