#include "play/roll_driver.h"
#include "engine/unattended.h"

#include <filesystem>
#include <fstream>
#include <random>

#include "engine/bets.h"
#include "engine/settlement.h"
#include "play/players.h"
#include "play/roll_fixture.h"
#include "texts/say.h"

namespace tessarel {
namespace {

using RollDriver = RollTest;
using Shows = std::vector<std::pair<std::string, std::string>>;

constexpr std::pair<int, int> AnySeven = {3, 4};
const std::string NewGame = "\r\rSelect \"New\" from the \"Game\" menu to reset the table.";

// Whether two tables are the same in everything a roll may touch.
void ExpectSameGame(const TableState& a, const TableState& b) {
  EXPECT_EQ(a.BetAmount, b.BetAmount);
  EXPECT_EQ(a.BetAmountBefore, b.BetAmountBefore);
  EXPECT_EQ(a.BetAmountAfterRoll, b.BetAmountAfterRoll);
  EXPECT_EQ(a.BetContract, b.BetContract);
  EXPECT_EQ(a.BetWorking, b.BetWorking);
  EXPECT_EQ(a.BetWorkingBefore, b.BetWorkingBefore);
  EXPECT_EQ(a.BetStreak, b.BetStreak);
  EXPECT_EQ(a.BetStreakBefore, b.BetStreakBefore);
  EXPECT_EQ(a.ComeOriginal, b.ComeOriginal);
  EXPECT_EQ(a.Bankroll, b.Bankroll);
  EXPECT_EQ(a.BankrollHigh, b.BankrollHigh);
  EXPECT_EQ(a.BankrollLow, b.BankrollLow);
  EXPECT_EQ(a.BankrollSum, b.BankrollSum);
  EXPECT_EQ(a.BankrollAtRoll, b.BankrollAtRoll);
  EXPECT_EQ(a.BankrollAfterRoll, b.BankrollAfterRoll);
  EXPECT_EQ(a.MoneyOnTable, b.MoneyOnTable);
  EXPECT_EQ(a.GraphBankroll, b.GraphBankroll);
  const auto counters = [](const TableState& t) {
    return std::vector{t.Point,
                       t.LastPoint,
                       t.PointBeforeLast,
                       t.Shooter,
                       t.LastShooter,
                       t.PreviousShooter,
                       t.Die1,
                       t.Die2,
                       t.DiceTotal,
                       t.MarkedNumbers,
                       t.FourRollCount,
                       t.FirePointsMask,
                       t.FirePoints,
                       t.SharpShooterPoints,
                       t.RideTheLinePasses,
                       t.GraphIndex,
                       t.LastDecidedPoint,
                       int32_t{t.RollInProgress}};
  };
  EXPECT_EQ(counters(a), counters(b));
}

TEST_F(RollDriver, PointsFollowOneAnother) {
  Seat(1);
  const struct {
    int die1, die2, point, last, beforeLast, decided;
  } rolls[] = {
      {2, 2, 4, 0, 0, 0},  // the point comes
      {1, 2, 4, 4, 0, 0},  // nothing
      {1, 3, 0, 4, 4, 4},  // made
      {5, 6, 0, 0, 4, 4},  // a natural
      {6, 6, 0, 0, 0, 4},  // craps
      {4, 5, 9, 0, 0, 4},  // the next point
      {1, 6, 0, 9, 0, 9},  // seven-out
      {1, 1, 0, 0, 9, 9},
  };
  for (const auto& roll : rolls) {
    Throw(roll.die1, roll.die2);
    EXPECT_EQ(Table.DiceTotal, roll.die1 + roll.die2);
    EXPECT_EQ(Table.Point, roll.point);
    EXPECT_EQ(Table.LastPoint, roll.last);
    EXPECT_EQ(Table.PointBeforeLast, roll.beforeLast);
    EXPECT_EQ(Table.LastDecidedPoint, roll.decided);
    EXPECT_FALSE(Table.RollInProgress);
    EXPECT_TRUE(Table.TableDirty);
  }
}

TEST_F(RollDriver, SnapshotsHoldTheTableBeforeAndAfterTheRoll) {
  Seat(1, 500);
  PutDown(1, bet::Field, 10);
  PutDown(1, bet::PassLine, 20);
  Throw(1, 1);  // the Field wins 20, the line loses 20
  EXPECT_EQ(Table.BankrollAtRoll[1], Money(500));
  EXPECT_EQ(Table.BetAmountBefore[1][bet::PassLine], Money(20));
  EXPECT_EQ(Table.BetAmountAfterRoll[1][bet::PassLine], Money());
  EXPECT_EQ(Table.BetAmountAfterRoll[1][bet::Field], Money(10));
  EXPECT_EQ(Table.BetStreakBefore[1][bet::Field], 0);
  SetBetAmount(1, FirstStack, 7);
  PutDown(1, bet::Place6, 12);
  SetBetWorking(1, bet::Place6, CalledOff);
  Throw(3, 3);  // the Field loses 10, the point comes on
  EXPECT_EQ(Table.AvailableBankroll[1], Money(500 - 22));
  EXPECT_EQ(Table.BankrollAtRoll[1], Money(500));
  EXPECT_EQ(Table.BankrollAfterRoll[1], Money(490));
  EXPECT_EQ(Table.BetStreakBefore[1][bet::Field], 1);
  EXPECT_EQ(Table.BetStreak[1][bet::Field], -1);
  EXPECT_EQ(Table.BetAmountBefore[1][FirstStack], Money(7));
  EXPECT_EQ(Table.BetAmountAfterRoll[1][FirstStack], Money(7));
  EXPECT_EQ(Table.BetContract[1][bet::Place6], Money(12));
  EXPECT_EQ(Table.BetWorkingBefore[1][bet::Place6], CalledOff);
  EXPECT_EQ(Table.BetContract[1][bet::Field], Money());
  EXPECT_EQ(Table.BetContract[1][bet::PassLine], Money());
}

TEST_F(RollDriver, GraphIsARing) {
  Seat(1, 100);
  Table.GraphIndex = GraphLength - 1;
  PutDown(1, bet::Field, 10);
  Throw(1, 2);
  EXPECT_EQ(Table.GraphIndex, 1050);
  EXPECT_EQ(Table.GraphBankroll[1050][1], Money(110));
  Throw(1, 2);
  EXPECT_EQ(Table.GraphIndex, 1);
  EXPECT_EQ(Table.GraphBankroll[1][1], Money(120));
}

TEST_F(RollDriver, GraphOfAnOpenPlaceKeepsNothingOfWhoLeft) {
  Seat(1, 100);
  Table.GraphBankroll[1][6] = 500;
  Throw(1, 2);
  EXPECT_EQ(Table.GraphBankroll[1][6], Money());
}

TEST_F(RollDriver, AutoRollGoesOnUntilSomethingStopsIt) {
  Seat(1);
  Table.AutoRollOn = true;
  FrontEnd.RunPendingEvents = [] {
    if (RollsInSession() == 3) Settings.BetNeededToShoot = 2;
  };
  Throw(1, 2);
  EXPECT_EQ(RollsInSession(), 3);
  EXPECT_FALSE(Table.AutoRollOn);
  EXPECT_EQ(StopText(Table.LastStop), "Shooter has no bet.");
}

TEST_F(RollDriver, BankrollStopsTheGamePastItsLimitOnly) {
  const Money limit = 9'999'999;
  const Money past = limit + Money::FromRaw(1);
  const struct {
    Money bankroll;
    std::string text;
  } cases[] = {
      {limit, ""},
      {-limit, ""},
      {past, "Congratulations!\r\rP1 broke the max bankroll limit of $9,999,999" + NewGame},
      {-past, "Sorry ... P1 has exceeded the negative bankroll limit of -$9,999,999" + NewGame},
  };
  for (const auto& each : cases) {
    Reset();
    Settings.BetNeededToShoot = 0;
    Seat(1, each.bankroll);
    Throw(1, 2);
    EXPECT_EQ(Table.BankrollStopPlace, each.text.empty() ? 0 : 1);
    EXPECT_EQ(Shown, each.text.empty() ? Shows{} : Shows({{"", each.text}}));
    Throw(1, 2);
    EXPECT_EQ(RollsInSession(), each.text.empty() ? 2 : 1);
  }
}

TEST_F(RollDriver, HyperDriveStopsAtTheBankrollLimitWithItsReason) {
  for (const int sign : {1, -1}) {
    Reset();
    Settings.BetNeededToShoot = 0;
    Seat(1, Money(sign) * (Money(9'999'999) + Money::FromRaw(1)));
    Table.HyperDriveOn = true;
    Throw(1, 2);
    EXPECT_EQ(StopText(Table.LastStop),
              (sign > 0 ? "Stopped by breaking the max bankroll limit of $9,999,999"
                        : "Stopped by exceeding the negative bankroll limit of -$9,999,999") +
                  NewGame);
    EXPECT_FALSE(Table.HyperDriveOn);
    EXPECT_EQ(StopText(Table.Stop), "");
  }
}

TEST_F(RollDriver, RequiredBetIsAskedForInTheWordsOfTheHouse) {
  const std::string note =
      "\r\rNote: This requirement can be changed on the 'Bets tab' of the configuration screen.";
  const std::string line = "A line bet is required to shoot.\r\rP1";
  const struct {
    const char* what;
    int needed, players, point, number;
    std::string title, text, reason;
  } cases[] = {
      {"nobody", 1, 0, 0, 0, "Bet Required", "", "No players are available to bet."},
      {"nobody, any bet", 2, 0, 0, 0, "Bet Required", "", "No players are available to bet."},
      {"any bet", 2, 1, 0, 0, "Any Bet Required",
       "A bet is required to shoot.\r\rP1 must make any bet or pass the dice." + note,
       "Shooter has no bet."},
      {"alone", 1, 1, 6, bet::Field, "Line Bet Required",
       line + " must make a Pass Line bet or a Don't Pass bet." + note, "Shooter has no line bet."},
      {"point on", 1, 2, 6, bet::Field, "Line Bet Required",
       line + " must make a Pass Line bet or pass the dice." + note, "Shooter has no line bet."},
      {"come-out", 1, 2, 0, bet::Field, "Line Bet Required",
       line + " must make a Pass Line bet, a Don't Pass bet, or pass the dice." + note,
       "Shooter has no line bet."},
      {"any bet made", 2, 1, 0, bet::Field, "", "", ""},
      {"line bet made", 1, 1, 0, bet::PassLine, "", "", ""},
      {"don't line bet made", 1, 1, 0, bet::DontPass, "", "", ""},
      {"nothing needed", 0, 0, 0, 0, "", "", ""},
  };
  for (const auto& each : cases) {
    for (const int32_t hyper : {0, -1}) {
      SCOPED_TRACE(each.what);
      Reset();
      Settings.BetNeededToShoot = each.needed;
      Settings.AutoStopRolls = 1;
      Settings.Notices = 0;  // no word on bets that stay
      for (int place = 1; place <= each.players; ++place)
        Seat(place);
      Table.Point = Table.LastPoint = each.point;
      if (each.number != 0) PutDown(1, each.number, 10);
      Table.HyperDriveOn = hyper;
      Throw(1, 2);
      const bool refused = !each.reason.empty();
      EXPECT_EQ(RollsInSession(), refused ? 0 : 1);
      EXPECT_FALSE(Table.RollInProgress);
      EXPECT_EQ(StopText(Table.LastStop), refused      ? each.reason
                                          : hyper != 0 ? "Stopped by Auto-Stop."
                                                       : "");
      if (hyper != 0) {
        EXPECT_FALSE(Table.HyperDriveOn);
      } else if (refused) {
        ASSERT_EQ(Shown.size(), 1u);
        EXPECT_EQ(Shown[0].first, each.title);
        EXPECT_EQ(Shown[0].second, each.players > 0 ? each.text : Say(Text::NoPlayersToBet));
      } else {
        EXPECT_TRUE(Shown.empty());
      }
    }
  }
}

TEST_F(RollDriver, TwoThousandMillionRollsAreTheEndOfASession) {
  Stats.RollCount[CurrentSession][0] = MaxRolls - 1;
  Throw(1, 2);
  EXPECT_EQ(RollsInSession(), 2'000'000'000);
  Throw(1, 2);
  EXPECT_EQ(RollsInSession(), 2'000'000'000);
  EXPECT_EQ(
      Shown,
      Shows({{"Reached Maximum Roll Limit",
              "Sorry ... the maximum limit of 2,000,000,000 rolls has been reached." + NewGame}}));
  EXPECT_EQ(StopText(Table.LastStop),
            "Stopped due to reaching the maximum limit of 2,000,000,000 rolls." + NewGame);
}

TEST_F(RollDriver, SevenOutPassesTheDiceDownTheRail) {
  for (const int place : {1, 5, 6, 8})
    Seat(place);
  Table.DeclinesDice[8] = true;
  int shooter = 1;
  for (const int next : {6, 5, 1}) {
    Throw({{2, 2}, AnySeven});
    EXPECT_EQ(Table.Shooter, next);
    EXPECT_EQ(Table.LastShooter, next);
    EXPECT_EQ(Table.PreviousShooter, shooter);
    EXPECT_EQ(RollsInHand(), 0);
    shooter = next;
  }
  Throw(AnySeven.first, AnySeven.second);
  EXPECT_EQ(Table.Shooter, 1) << "a natural keeps the dice";
  Table.DeclinesDice[8] = false;
  Throw({{2, 2}, AnySeven});
  EXPECT_EQ(Table.Shooter, 8);
}

TEST_F(RollDriver, HandPassedInTheMiddleStaysCreditedToWhoBeganIt) {
  Seat(1);
  Seat(2);
  Seat(3);
  Throw(2, 2);
  PassDice(PlayerAsked);
  EXPECT_EQ(Table.Shooter, 3);
  EXPECT_EQ(Table.LastShooter, 1);
  Throw(AnySeven.first, AnySeven.second);
  EXPECT_EQ(Table.Shooter, 3);
  EXPECT_EQ(Table.LastShooter, 3);
  EXPECT_EQ(Table.PreviousShooter, 1);
  EXPECT_EQ(Stats.RollCount[LastHand + 1][0], 2);
  EXPECT_EQ(Stats.RollCount[LastHand + 3][0], 0);
}

TEST_F(RollDriver, CalledOffBetOutlivesTheSevenOut) {
  Seat(1);
  Table.BetWorkingDefault[1][bet::Place8] = NotWorking;
  Throw(2, 2);
  for (const int number : {bet::Place6, bet::Place8, bet::Place9, bet::Hard6})
    PutDown(1, number, 12);
  SetBetWorking(1, bet::Place6, CalledOff);
  SetBetWorking(1, bet::Hard6, CalledOn);
  Throw(AnySeven.first, AnySeven.second);
  EXPECT_EQ(Bet(1, bet::Place6), Money(12));
  EXPECT_EQ(Won(1), Money(-36));
  EXPECT_EQ(Table.BetWorking[1][bet::Place6], CalledOff) << "a call outlives the point";
  EXPECT_EQ(Table.BetWorking[1][bet::Place8], NotWorking);
  EXPECT_EQ(Table.BetWorking[1][bet::Place9], IsWorking);
  EXPECT_EQ(Stats.Bets[1 + CurrentSession][bet::Place6].Tendered.Count, Money());
  Throw(4, 4);
  EXPECT_EQ(Table.BetWorking[1][bet::Place6], CalledOff);
  EXPECT_EQ(Table.BetWorking[1][bet::Place8], IsWorking);
}

TEST_F(RollDriver, PointBringsOddsAndTheirRows) {
  Seat(1);
  Seat(2);
  Table.AutoTakeFullOdds[1] = Table.AutoDownPlaceBets[1] = true;
  Table.AutoLayFullOdds[2] = true;
  PutDown(1, bet::PassLine, 10);
  PutDown(1, bet::Place6, 12);
  PutDown(1, bet::Place8, 12);
  PutDown(1, bet::Buy4 + 2, 20);
  PutDown(2, bet::DontPass, 10);
  PutDown(2, bet::Place6, 12);
  Throw(3, 3);
  EXPECT_EQ(Bet(1, bet::PassLineOdds), FigureMaxBet(1, bet::PassLineOdds));
  EXPECT_GE(Bet(1, bet::PassLineOdds), Money(50));
  EXPECT_EQ(Bet(1, bet::Place6) + Bet(1, bet::Buy4 + 2), Money());
  EXPECT_EQ(Bet(1, bet::Place8), Money(12));
  EXPECT_EQ(Bet(2, bet::DontPassOdds), FigureMaxBet(2, bet::DontPassOdds));
  EXPECT_GE(Bet(2, bet::DontPassOdds), Money(60));
  EXPECT_EQ(Bet(2, bet::Place6), Money(12));
  EXPECT_EQ(Payoffs.Payoff[bet::PassLineOdds].PayNum, Money(6));
  EXPECT_EQ(Payoffs.Payoff[bet::PassLineOdds].PayDen, Money(5));
  EXPECT_EQ(Payoffs.Payoff[bet::DontPassOdds].PayNum, Money(5));
  EXPECT_EQ(Payoffs.Payoff[bet::DontPassOdds].PayDen, Money(6));
}

TEST_F(RollDriver, FaceOfSevenIsReportedAndTheGameGoesOn) {
  Seat(1);
  Dice.CurrentRNG = 5;
  Dice.SeedRequest = 46169;
  ASSERT_TRUE(SeedRNG(-1));
  for (int roll = 1; roll <= 22; ++roll)
    MakeRoll();
  EXPECT_TRUE(Shown.empty());
  const TableState before = Table;
  MakeRoll();
  ASSERT_EQ(Shown.size(), 1u);
  EXPECT_NE(Shown[0].second.find("Error #9"), std::string::npos) << Shown[0].second;
  EXPECT_EQ(RollsInSession(), 22);
  ExpectSameGame(Table, before);
  MakeRoll();
  EXPECT_EQ(RollsInSession(), 23);
}

TEST_F(RollDriver, HyperDriveSurvivesAFaceOfSeven) {
  Seat(1);
  Dice.CurrentRNG = 5;
  Dice.SeedRequest = 46169;
  ASSERT_TRUE(SeedRNG(-1));
  Settings.AutoStopRolls = 50;
  Table.HyperDriveOn = true;
  MakeRoll();
  EXPECT_EQ(RollsInSession(), 50);
  EXPECT_EQ(StopText(Table.LastStop), "Stopped by Auto-Stop.");
}

TEST_F(RollDriver, GeneratorZeroHasNoDice) {
  Seat(1);
  Dice.CurrentRNG = 0;
  Table.HyperDriveOn = true;
  const TableState before = Table;
  MakeRoll();
  EXPECT_EQ(StopText(Table.LastStop), "No dice: random number generator #0 is selected.");
  EXPECT_EQ(RollsInSession(), 0);
  ExpectSameGame(Table, before);
}

TEST_F(RollDriver, MissingGeneratorIsReplacedInOrder) {
  Seat(1);
  Dice.CurrentRNG = 1;
  Dice.SupportFilesMissing = FirstTwister | SecondTwister;
  Throw(1, 2);
  EXPECT_EQ(Dice.CurrentRNG, 4);
}

TEST_F(RollDriver, EndOfTheRollFileLeavesTheGameAsItStands) {
  const auto file = std::filesystem::path(::testing::TempDir()) /
                    ("tessarel-roll-" + std::to_string(std::random_device{}()) + ".rll");
  {
    std::ofstream out(file, std::ios::binary);
    for (const Faces faces : {Faces{2, 2}, Faces{5, 6}, Faces{1, 5}})
      out.put(static_cast<char>(RollByte(faces)));
  }
  Seat(1);
  PutDown(1, bet::PassLine, 10);
  PutDown(1, bet::Field, 10);
  OpenRollFile(file.string());
  RewindForPlayback();
  Table.HyperDriveOn = true;
  Settings.AutoStopRolls = 3;
  MakeRoll();
  EXPECT_EQ(StopText(Table.LastStop), "Stopped by Auto-Stop.");
  EXPECT_EQ(RollsInSession(), 3);
  EXPECT_EQ(Table.Point, 4);
  EXPECT_EQ(Won(1), Money(10 + 10 - 10));
  PutDown(1, bet::Field, 10);
  SetBetWorking(1, bet::Field, CalledOff);
  const TableState before = Table;
  const auto counts = Stats.RollCount;
  Table.HyperDriveOn = true;
  MakeRoll();
  EXPECT_EQ(StopText(Table.LastStop), "Stopped due to end of Dice Roll File reached.");
  ExpectSameGame(Table, before);
  EXPECT_EQ(Stats.RollCount, counts);
  Throw(5, 6);
  EXPECT_EQ(Table.PointBeforeLast, 4) << "a typed roll needs no file";
  CloseRollFile();
  std::filesystem::remove(file);
}

}  // namespace
}  // namespace tessarel
