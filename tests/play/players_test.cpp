#include "play/players.h"
#include "engine/unattended.h"

#include "base/folders.h"
#include "engine/rules_fixture.h"

namespace tessarel {
namespace {

using namespace bet;

class Players : public RulesTest {
 protected:
  void SetUp() override {
    RulesTest::SetUp();
    SetPlayerName(Ann, "");
  }
  // Seats A at place 1, B at place 2 and so on; the first place has the dice.
  static void SeatAt(const std::vector<int>& places) {
    for (int place = 1; place <= LastPlace; ++place)
      SetPlayerName(place, "");
    for (const int place : places)
      SetPlayerName(place, std::string(1, static_cast<char>('A' + place - 1)));
    Table.Shooter = Table.LastShooter = places.empty() ? 0 : places[0];
  }
  static void StartHand() { Stats.RollCount[CurrentHand][0] = 1; }
};

TEST_F(Players, DiceGoDownTheNumbersAndSkipWhoDeclines) {
  SeatAt({1, 5, 6});
  std::string order;
  for (int pass = 0; pass < 4; ++pass) {
    PassDice(HandEnded);
    order += std::to_string(Table.Shooter);
    EXPECT_EQ(Table.LastShooter, Table.Shooter);
  }
  EXPECT_EQ(order, "6516");
  Table.DeclinesDice[5] = true;
  PassDice(HandEnded);
  EXPECT_EQ(Table.Shooter, 1);
  EXPECT_EQ(Said(), "");
}

TEST_F(Players, PassingIsRefusedWithItsReason) {
  const auto lineBetNeeded = [] {
    Settings.AllowPutBets = false;
    Table.Point = 6;
  };
  struct Case {
    std::vector<int> Places;
    void (*Rule)();
    std::string Text;
  };
  const std::string cannot = "\r\rUnable to pass the dice.";
  const std::string notNow = "Unable to pass the dice at this time.\r\r";
  const std::string wait =
      "but can't because a line bet is required and Put bets are not allowed.\r\r"
      "Please wait for a come-out roll or check the 'Allow Put bets' option on the 'Bets tab' of "
      "the configuration screen.";
  const Case cases[] = {
      {{}, [] {}, "There are no players at the table." + cannot},
      {{4}, [] {}, "There are no other players at the table." + cannot},
      {{4, 2}, [] { Table.DeclinesDice[2] = true; }, notNow + "B doesn't want to shoot."},
      {{4, 2, 8},
       [] { Table.DeclinesDice[2] = Table.DeclinesDice[8] = true; },
       notNow + "None of the other players want to shoot."},
      {{4, 2}, lineBetNeeded, notNow + "There's one other player who wants to shoot " + wait},
      {{4, 2, 8}, lineBetNeeded, notNow + "There are 2 other players who want to shoot " + wait},
      {{4, 2, 8},
       [] {
         Settings.AllowPutBets = false;
         Table.Point = 6;
         Table.DeclinesDice[8] = true;
       },
       notNow + "There's one other player who wants to shoot " + wait},
  };
  for (const Case& test : cases) {
    for (const bool hyper : {false, true}) {
      StartOver();
      SeatAt(test.Places);
      const int shooter = Table.Shooter;
      test.Rule();
      PassDice(HandEnded);
      EXPECT_EQ(Said(), "");
      if (hyper) Table.HyperDriveOn = true;
      PassDice(PlayerAsked);
      if (!hyper) {
        ASSERT_EQ(Shown.size(), 1u);
        EXPECT_EQ(Shown[0].Title, "Pass the Dice");
      }
      EXPECT_EQ(Said(), hyper ? "" : test.Text);
      EXPECT_EQ(Table.Shooter, shooter);
    }
  }
}

TEST_F(Players, PointGoesOnlyToPlayersWithALineBetWhereOneIsNeeded) {
  struct Case {
    void (*Rule)();
    int Shooter;
  };
  const Case cases[] = {
      {[] {}, 6},
      {[] { PutDown(4, PassLine, 5); }, 4},
      {[] { PutDown(2, DontPass, 5); }, 2},
      {[] { PutDown(2, Field, 5); }, 6},
      {[] { Settings.BetNeededToShoot = 2; }, 4},
      {[] { Settings.BetNeededToShoot = 0; }, 4},
      {[] { Settings.AllowPutBets = true; }, 4},
      {[] { Table.Point = 0; }, 4},
  };
  for (const Case& test : cases) {
    StartOver();
    SeatAt({6, 4, 2});
    Settings.AllowPutBets = false;
    Table.Point = 8;
    test.Rule();
    PassDice(HandEnded);
    EXPECT_EQ(Table.Shooter, test.Shooter) << &test - cases;
  }
}

TEST_F(Players, HandThatGoesOnStaysWithWhoStartedIt) {
  static int refreshed;
  refreshed = 0;
  FrontEnd.RefreshViews = [] { ++refreshed; };
  SeatAt({4, 2});
  StartHand();
  PassDice(PlayerAsked);
  ASSERT_EQ(Shown.size(), 1u);
  EXPECT_EQ(Shown[0].Title, "Pass the Dice");
  EXPECT_EQ(Said(),
            "D is passing the dice to B who may finish the current hand and then roll his/her own "
            "hand.");
  EXPECT_EQ(Table.Shooter, 2);
  EXPECT_EQ(Table.LastShooter, 4);
  EXPECT_EQ(refreshed, 1);
  PassDice(PlayerAsked);
  EXPECT_EQ(Said(), "B is passing the dice back to D who originally started this hand.");
  EXPECT_EQ(Table.Shooter, 4);
  Table.HyperDriveOn = true;
  PassDice(PlayerAsked);
  EXPECT_EQ(Said(), "");
  EXPECT_EQ(Table.Shooter, 2);
}

TEST_F(Players, DiceOfWhoLeftGoToSomebody) {
  struct Case {
    std::vector<int> Places;
    bool InHand;
    int Shooter, Credited;
  };
  // Place 3 leaves; nobody wants the dice.
  const Case cases[] = {
      {{}, false, 0, 0},     {{}, true, 0, 0},      {{7}, false, 7, 7},   {{7}, true, 7, 3},
      {{7, 1}, false, 1, 1}, {{7, 5}, false, 7, 7}, {{7, 1}, true, 1, 3},
  };
  for (const Case& test : cases) {
    StartOver();
    SeatAt(test.Places);
    Table.DeclinesDice.fill(-1);
    Table.Shooter = Table.LastShooter = 3;
    if (test.InHand) StartHand();
    PassDice(PlayerLeft);
    EXPECT_EQ(Table.Shooter, test.Shooter);
    EXPECT_EQ(Table.LastShooter, test.Credited);
    EXPECT_EQ(Said(), "");
  }
}

TEST_F(Players, BankrollBeyondItsLimitStopsTheSession) {
  static std::vector<Sound> sounds;
  FrontEnd.PlaySound = [](Sound sound) { sounds.push_back(sound); };
  const std::string rest = "9,999,999\r\rSelect \"New\" from the \"Game\" menu to reset the table.";
  const std::string lost = "Sorry ... Ann has exceeded the negative bankroll limit of -$" + rest;
  const std::string won = "Congratulations!\r\rAnn broke the max bankroll limit of $" + rest;
  struct Case {
    Money Bankroll;
    std::string Text, Reason;
    size_t Sounds;
  };
  const Case cases[] = {
      {Money::FromRaw(-99'999'990'001), lost,
       "Stopped by exceeding the negative bankroll limit of -$" + rest, 0},
      {BankrollLimit + 1, won, "Stopped by breaking the max bankroll limit of $" + rest, 1},
  };
  for (const Case& test : cases) {
    StartOver();
    sounds.clear();
    SetBankrollSlots(Ann, test.Bankroll);
    Table.AutoRollOn = true;
    for (int time = 0; time < 2; ++time) {
      BankrollLimitStop(Ann);
      EXPECT_EQ(Said(), test.Text);
    }
    EXPECT_EQ(sounds.size(), test.Sounds);
    EXPECT_FALSE(Table.AutoRollOn);
    EXPECT_EQ(Table.BankrollStopPlace, Ann);
    Table.HyperDriveOn = true;
    BankrollLimitStop(Ann);
    EXPECT_EQ(StopText(Table.Stop), test.Reason);
    EXPECT_FALSE(Table.HyperDriveOn);
    EXPECT_EQ(Said(), test.Reason);
    Table.BankrollStopPlace = 0;
    Settings.DisableAllSound = true;
    BankrollLimitStop(Ann);
    EXPECT_EQ(sounds.size(), test.Sounds);
  }
}

TEST_F(Players, NewPlayerStartsAfreshByTheHouseStandard) {
  SetAppFolder("/games");
  Table.BetWorkingDefault[0][Place6] = 1;
  Stats.RollCount[CurrentSession + 6][7] = 12;
  Stats.Bets[AllSessions + 6][Field].Won.Sum = 5;
  Table.BankrollHigh[AllSessions + 6] = 90000;
  SeatPlayer(6, "Bob Stone", 750);
  EXPECT_EQ(CheckTable(), "");
  EXPECT_EQ(Table.PlayerName[6], "Bob Stone");
  EXPECT_EQ(Table.PlayerCount, 1);
  EXPECT_EQ(Table.Shooter, 6);
  EXPECT_EQ(Table.LastShooter, 6);
  EXPECT_EQ(Stats.RollCount[CurrentSession + 6][7], 0);
  EXPECT_EQ(Stats.Bets[AllSessions + 6][Field].Won.Sum, Money());
  EXPECT_EQ(Table.SessionLogName[6], "/games/bob stone.slg");
  EXPECT_EQ(Table.InvestedBankroll[6], Money(750));
  EXPECT_EQ(Table.BankrollInitAmount[6], Money(750));
  EXPECT_EQ(Table.BetWorking[6][Place6], IsWorking);
  EXPECT_EQ(Table.BetWorking[6][Place8], NotWorking);
  for (const Scope scope : CountedScopes) {
    EXPECT_EQ(Table.Bankroll[6 + scope], Money(750));
    EXPECT_EQ(Table.BankrollBegin[6 + scope], Money(750));
    EXPECT_EQ(Table.BankrollHigh[6 + scope], Money(750));
    EXPECT_EQ(Table.BankrollLow[6 + scope], Money(750));
  }
  SeatPlayer(2, "Cleo", 10);
  EXPECT_EQ(Table.Shooter, 6);
  EXPECT_EQ(Table.PlayerCount, 2);
  Folders = {};
}

}  // namespace
}  // namespace tessarel
