#include "autobet/actions.h"
#include "autobet/script_host.h"
#include "engine/unattended.h"
#include "play/players.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "base/file_io.h"
#include "base/folders.h"
#include "base/temporary_folder.h"
#include "dice/probability.h"
#include "dice/probability_file.h"
#include "dice/roll_file.h"
#include "engine/rules_fixture.h"
#include "state/scripts.h"

namespace tessarel {
namespace {

using namespace bet;

// Ann's script runs; Bea stands beside her with as much money.
class Actions : public RulesTest {
 protected:
  static constexpr int Bea = 5;

  void SetUp() override {
    RulesTest::SetUp();
    Seat(Bea, "Bea", 10000);
    AutoBet = {};
    Scripts = {};
    AutoBet.CurrentScriptPlayer = Ann;
    Table.Shooter = Table.LastShooter = Ann;
    SetAppFolder(Folder.Path());
    ScriptHost.PassDice = [] { PassDice(PlayerAsked, Telling::Silent); };
  }
  void TearDown() override {
    CloseRollFile();
    AutoBet = {};
    Scripts = {};
    Probability = {};
    Folders = {};
    ScriptHost = {};
    RulesTest::TearDown();
  }

  // The run-time error of an action.
  static int32_t Run(int32_t action,
                     const std::vector<ScriptValue>& arguments = {},
                     const std::vector<Reference>& targets = {}) {
    AutoBet.Fault = ScriptFault::None;
    RunCommand({action, arguments, targets});
    return static_cast<int32_t>(AutoBet.Fault);
  }
  static Reference Of(int place, int number) {
    return {number, static_cast<int8_t>(place), 0, ModWagered, ModCurrentAmount};
  }
  static void Allow() {
    Scripts.AllowReset[Ann] = Scripts.AllowAct4Others[Ann] = Scripts.AllowActProb[Ann] = true;
  }
  static ScriptValue FromRoll() { return {StringToken, FromRollString}; }
  static std::string Content(const std::string& name) {
    return ReadWholeFile(Folders.AppFolder + name, 1000);
  }

  TemporaryFolder Folder;
};

TEST_F(Actions, NeedTheirRights) {
  Table.Shooter = Bea;
  const Reference hers = Of(Bea, Field), nobodys = Of(7, Field);
  // clang-format off
  const std::tuple<int, int, std::vector<ScriptValue>, std::vector<Reference>> cases[] = {
      {100, 853, {}, {}}, {103, 853, {}, {}}, {114, 854, {}, {}}, {213, 854, {}, {}},
      {118, 855, {}, {}}, {119, 856, {}, {}}, {310, 856, {}, {}},
      {481, 852, {Number(5)}, {hers}}, {481, 851, {Number(5)}, {nobodys}},
      {460, 852, {}, {hers}}, {451, 852, {}, {hers}}, {450, 852, {}, {hers}},
      {453, 851, {}, {nobodys}}, {300, 852, {}, {Of(Ann, Field), hers}},
  };
  // clang-format on
  for (const auto& [action, error, arguments, targets] : cases)
    EXPECT_EQ(Run(action, arguments, targets), error) << action;
  EXPECT_EQ(Table.Shooter, Bea);
  Allow();
  EXPECT_EQ(Run(481, {Number(5)}, {hers}), 0);
  EXPECT_EQ(Bet(Bea, Field), 5);
  EXPECT_EQ(Run(481, {Number(5)}, {nobodys}), 851);
  EXPECT_EQ(Run(118), 0);
  EXPECT_EQ(Table.Shooter, Ann);
  AutoBet.CurrentScriptPlayer = 0;
  EXPECT_EQ(Run(225, {Number(5)}), 851);
}

TEST_F(Actions, ChangeEachBetNamed) {
  // clang-format off
  const std::tuple<int, double, int, Money, Money> cases[] = {
      {action::Divide, 0, 9999, 12, 30}, {action::Subtract, 40, 0, 0, 0},
      {action::Round, 20, 0, 20, 40}, {action::RoundDown, 20, 0, 0, 20},
      {action::Round, .00001, 9999, 12, 30}, {action::RoundDown, .1, 0, 12, 30},
  };
  // clang-format on
  for (const auto& [action, operand, error, place6, place8] : cases) {
    PutDown(Ann, Place6, 12);
    PutDown(Ann, Place8, 30);
    const std::vector<Reference> bets = {Of(PlayerAutoBettor, Place6), Of(Ann, Place8)};
    EXPECT_EQ(Run(action, {Number(operand)}, bets), error) << action;
    EXPECT_EQ(Bet(Ann, Place6), place6) << action << " " << operand;
    EXPECT_EQ(Bet(Ann, Place8), place8) << action << " " << operand;
  }
  EXPECT_EQ(Run(481, {}, {Of(Ann, Field)}), 9997);
  EXPECT_EQ(Run(481, {Number(5)}, {Of(Ann, Field), Of(7, Field), Of(Ann, Hard4)}), 851);
  EXPECT_EQ(Bet(Ann, Field), 5);
  EXPECT_EQ(Bet(Ann, Hard4), 0);
  EXPECT_EQ(Run(460, {}, {Of(Ann, Field), Of(Ann, Place8)}), 0);
  EXPECT_EQ(Bet(Ann, Field), 0);
  EXPECT_EQ(Said(), "");
}

TEST_F(Actions, CallAndBuyBetsWithoutAMessage) {
  Table.Point = 8;
  PutDown(Ann, Place6, 12);
  const Reference place6 = Of(Ann, Place6);
  EXPECT_EQ(Run(action::CallOff, {}, {place6, Of(Ann, 150)}), 0);
  EXPECT_EQ(Table.BetWorking[Ann][Place6], CalledOff);
  EXPECT_EQ(Run(action::RemoveButton, {}, {place6}), 0);
  EXPECT_EQ(Run(action::CallOn, {}, {place6, Of(Ann, PassLine)}), 0);
  EXPECT_EQ(Table.BetWorking[Ann][Place6], CalledOn);
  EXPECT_EQ(Run(action::BuyPlaceBet, {}, {place6, Of(Ann, Buy4)}), 12);
  EXPECT_EQ(Bet(Ann, Place6), 0);
  EXPECT_EQ(Bet(Ann, Buy4 + 2), 12);
  EXPECT_EQ(Said(), "");
}

TEST_F(Actions, SwapValuesOrLeaveBothAlone) {
  PutDown(Ann, Place6, 9000);
  Settings.MaxPlacardBet = 10000;
  EXPECT_EQ(Run(300, {}, {Of(Ann, Place8), Of(Ann, Place6)}), 0);
  EXPECT_EQ(Bet(Ann, Place6), 0);
  EXPECT_EQ(Bet(Ann, Place8), 9000);
  // Behind the first roll the bankroll cannot be set; it would rise, so the stack has its turn
  // first.
  PutDown(Ann, Place8, 0);
  SetBankrollSlots(Ann, 10);
  SetBetAmount(Ann, 100, 30);
  RecordRoll(3, 3);
  for (const auto& [a, b] : {std::pair{100, 1301}, std::pair{1301, 100}}) {
    EXPECT_EQ(Run(300, {}, {Of(Ann, a), Of(Ann, b)}), 870);
    EXPECT_EQ(Bet(Ann, 100), 30);
  }
  Table.CheckStackName[Ann][1] = "left";
  Table.CheckStackName[Ann][2] = "right";
  EXPECT_EQ(Run(300, {}, {Of(Ann, 801), Of(Ann, 802)}), 0);
  EXPECT_EQ(Table.CheckStackName[Ann][1] + Table.CheckStackName[Ann][2], "rightleft");
}

TEST_F(Actions, StartSessionsThatKeepWhatIsAsked) {
  static std::string started;
  ScriptHost.StartSession = [](const KeptBySession& kept) {
    started += (kept.Stacks ? "S" : "s") + std::string(kept.RollFile ? "R" : "r");
    Table.Stop = StopCause::None;
  };
  Allow();
  started.clear();
  Table.RollInProgress = true;
  Run(115);
  for (int32_t action = 100; action <= 103; ++action) {
    AutoBet.TableWasReset = AutoBet.NewSessionBegins = false;
    EXPECT_EQ(Run(action), 0);
    EXPECT_TRUE(AutoBet.TableWasReset);
    EXPECT_TRUE(AutoBet.NewSessionBegins);
  }
  EXPECT_EQ(started, "srSrsRSR");
  EXPECT_EQ(StopText(Table.Stop), "Stopped by Auto-Bet command.");
}

TEST_F(Actions, StopARunAtOnceOnlyBetweenRolls) {
  Table.AutoRollOn = Table.RollInProgress = true;
  Run(115);
  EXPECT_TRUE(Table.AutoRollOn);
  Table.RollInProgress = false;
  Run(115);
  EXPECT_FALSE(Table.AutoRollOn);
  EXPECT_EQ(StopText(Table.Stop), "");
  EXPECT_EQ(Said(), "Stopped by Auto-Bet command.");
}

TEST_F(Actions, ShowMessagesAndPlaySoundsOnlyWhereTheyAreWanted) {
  const std::vector<ScriptValue> text = {MakeText(" Up\r\n$5 ")};
  static std::string played;
  FrontEnd.PlaySoundFile = [](const std::string& path) { played += path; };
  constexpr int32_t Normal = NoticeAutoBet, Hyper = NoticeAutoBetHyper;
  const std::tuple<int32_t, int32_t, bool> cases[] = {
      {Normal, 0, true}, {Normal, -1, false}, {Hyper, 0, false}, {Hyper, -1, true}};
  for (const auto& [notices, hyper, shown] : cases) {
    Settings.Notices = notices;
    Table.HyperDriveOn = hyper;
    AutoBet.Answer = 0;
    Answers = {0, AnswerNo};
    played.clear();
    EXPECT_EQ(Run(210, text), shown ? 0 : 990);
    EXPECT_EQ(Run(211, text), shown ? 0 : 990);
    EXPECT_EQ(AutoBet.Answer, shown ? AnswerNo : 0);
    EXPECT_EQ(Run(212, {MakeText(" a.wav ")}), 0);
    EXPECT_EQ(played, hyper != 0 ? "" : Folder.Path() + "a.wav");
  }
  ASSERT_EQ(Shown.size(), 4u);
  EXPECT_EQ(Shown[3].Title + ":" + Shown[3].Text, "Auto-Bet (Ann): Up\r$5 ");
  Settings.DisableAutoBetSounds = true;
  EXPECT_EQ(Run(212, {MakeText("a.wav")}), 992);
}

TEST_F(Actions, MoveMoneyAtTheAtmOfTheScriptsPlayer) {
  EXPECT_EQ(Run(225, {MakeText("500 dollars")}), 0);
  EXPECT_EQ(BankrollOf(Ann), 9500);
  EXPECT_EQ(Run(226, {Number(1e300)}), 0);
  EXPECT_EQ(BankrollOf(Ann), BankrollLimit);
  EXPECT_EQ(Run(225, {Number(-5)}), 0);
  EXPECT_EQ(BankrollOf(Ann), BankrollLimit);
  EXPECT_EQ(Said(), "");
}

TEST_F(Actions, SeedWithinTheLimitsOfTheGenerator) {
  for (const double bad : {0.0, 0.9, -1.0, 1e30, 2147483648.0})
    EXPECT_EQ(Run(230, {Number(bad)}), 905) << bad;
  EXPECT_EQ(Run(230, {Number(5.7)}), 0);
  EXPECT_EQ(Dice.LastSeed, 6);
  EXPECT_EQ(Run(130), 0);
  EXPECT_NE(Dice.LastSeed, 6);
}

TEST_F(Actions, WriteOutputLineByLine) {
  const ScriptValue name = MakeText(" out.txt ");
  EXPECT_EQ(Run(223, {Number(1)}), 1004);
  EXPECT_EQ(Run(220, {name}), 0);
  EXPECT_EQ(Run(223, {Number(1.5)}), 0);
  EXPECT_EQ(Run(220, {name}), 0);
  EXPECT_EQ(Run(223, {MakeText("na\xC3\xAFve")}), 0);
  EXPECT_EQ(Content("out.txt"), "1.5\nna\xEFve\n");
  EXPECT_EQ(Run(221, {name}), 0);
  EXPECT_EQ(Content("out.txt"), "");
  for (const std::string& bad :
       {std::string(), std::string("missing/out.txt"), std::string("."), std::string("a\0b", 3)})
    EXPECT_EQ(Run(220, {MakeText(bad)}), 1006) << bad;
}

TEST_F(Actions, PlayBackRollFiles) {
  Allow();
  WriteFileAtomically(Folder.Path() + "three.rol", "\x24\x24\x24");
  WriteFileAtomically(Folder.Path() + "bad.rol", "abc");
  constexpr int32_t PlayBack = action::PlayBackRollFile;
  EXPECT_EQ(Run(PlayBack, {MakeText("gone.rol")}), 1005);
  EXPECT_FALSE(FileExists(Folder.Path() + "gone.rol"));
  EXPECT_EQ(Run(PlayBack, {MakeText(" three.rol "), FromRoll(), Number(3)}), 0);
  EXPECT_EQ(RollFile.NextRoll, 3);
  EXPECT_EQ(Run(PlayBack, {MakeText("bad.rol")}), 1007);
  EXPECT_EQ(RollFile.RollFileName, Folder.Path() + "three.rol");
  EXPECT_EQ(Run(PlayBack, {FromRoll()}), 9997);
  for (const auto& [from, next] : {std::pair{-1e300, 1}, std::pair{1e300, 4}}) {
    EXPECT_EQ(Run(PlayBack, {MakeText(""), FromRoll(), Number(from)}), 0);
    EXPECT_EQ(RollFile.NextRoll, next) << from;
  }
}

TEST_F(Actions, SwitchTheProbabilityMatrix) {
  Allow();
  Probability.ProbabilityMatrix.Shares[2][1] = 1234;
  SaveProbabilityFile("skew.prb");
  WriteFileAtomically(Folder.Path() + "bad.prb", "abc");
  Probability = {};
  for (const char* const bad : {"gone.prb", "bad.prb", "."})
    EXPECT_EQ(Run(213, {MakeText(bad)}), 1008) << bad;
  EXPECT_FALSE(Probability.ProbabilityMatrixActive);
  EXPECT_EQ(Said(), "");
  EXPECT_EQ(Run(213, {MakeText("skew.prb")}), 0);
  EXPECT_EQ(ShareOf(2, 1), 1234);
  EXPECT_EQ(Run(114), 0);
  EXPECT_FALSE(Probability.ProbabilityMatrixActive);
  EXPECT_EQ(Run(213), 0);
  EXPECT_TRUE(Probability.ProbabilityMatrixActive);
}

}  // namespace
}  // namespace tessarel
