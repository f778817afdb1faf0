#include "log/event_lines.h"

#include <functional>

#include "log/events_log_fixture.h"
#include "state/scripts.h"

namespace tessarel {
namespace {

const Money Cents = Money::FromRaw(12500);  // 1.25

class EventLines : public EventsLogTest {
 protected:
  EventLines() {
    HoldClock({.year = 2026, .month = 11, .day = 22});
    Seat(2, "Ann", 500);
    Seat(8, "Bob", 1000);
  }

  static void Seat(int place, const std::string& name, Money bankroll) {
    SetPlayerName(place, name);
    SetBankrollSlots(place, bankroll);
    Table.InvestedBankroll[place] = bankroll;
  }
  // The state in which a roll leaves the table.
  static void TakeSnapshots() {
    Table.BankrollAtRoll = Table.BankrollAfterRoll = {};
    for (int place = 1; place <= LastPlace; ++place) {
      Table.BankrollAtRoll[place] = Table.BankrollAfterRoll[place] = BankrollOf(place);
      Table.ChangedAfter[place].Clear();
    }
    Table.BetAmountAfterRoll = Table.BetAmount;
    Table.BetWorkingBefore = Table.BetWorking;
  }
  // The lines that `action` writes to a new log.
  static Strings Written(const std::function<void()>& action) {
    ClearEventsLog();
    action();
    return Lines();
  }
};

void EveryOccasion() {
  LogChangesSinceLastRoll();
  LogRoll(1, 3, 4, " from RNG #2");
  LogDecision("    Pass (natural)");
  for (const Money result : {10, -10, 0})
    LogBetResult(2, bet::Field, result);
  LogBetMoved(2, bet::Come, bet::Come4);
  LogBankrollsAfterRoll();
  LogNextHand(0);
  LogDicePassed(8);
  LogPlayerJoined(2, 500);
  LogPlayerMoved(2);
  LogPlayerRenamed("Ann", "Eve");
  LogCashOut(2, 0);
  LogSeed(2, 77);
  LogNewSession();
  LogFirstHand("a.rll");
}

TEST_F(EventLines, NothingIsWrittenWhileTheLogIsOff) {
  SetBetAmount(2, bet::Field, 5);
  SetBetAmount(2, FirstStack, 5);
  EventsLog.LogOn = false;
  EveryOccasion();
  EXPECT_EQ(folder_.EntryCount(), 0);
}

TEST_F(EventLines, EachKindHasItsSwitch) {
  using State = EventsLogState;
  TakeSnapshots();
  SetBetAmount(2, bet::Field, 5);
  SetBetAmount(2, FirstStack, 5);
  SetBankrollSlots(2, 600);
  const std::pair<bool State::*, Strings> cases[] = {
      {&State::LogRolls, {" Roll #1:  7 (3.4) from RNG #2"}},
      {&State::LogBets,
       {"    Bets:", "      Ann bet $5 on Field", "    Ann's Come bet moved to Come 4"}},
      {&State::LogCheckStacks, {"    CheckStacks:", "      Ann increased CheckStack0 to 5"}},
      {&State::LogShooters,
       {"----New hand, come-out roll----------", "    The dice were passed to Bob",
        "----New hand, come-out roll----------"}},
      {&State::LogWins, {"    Wins:", "      Ann won $10 on Field", "      Ann pushed on Field"}},
      {&State::LogLosses,
       {"    Losses:", "      Ann lost $10 on Field", "      Ann pushed on Field"}},
      {&State::LogDecisions, {"    Pass (natural)"}},
      {&State::LogBankroll,
       {"    Bankroll:", "      Ann increased to $600 ($100 ATM withdrawal)",
        "    Bankroll:", "      Ann increased to $600 ($100 gain)"}}};
  SelectAllEvents(false);
  const Strings always = Written(EveryOccasion);
  for (const auto& [kind, expected] : cases) {
    SelectAllEvents(false);
    EventsLog.*kind = true;
    Strings lines = Written(EveryOccasion);
    for (const auto& line : always)
      std::erase(lines, line);
    EXPECT_EQ(lines, expected);
    SelectAllEvents(true);
    EXPECT_TRUE(EventsLog.*kind);
  }
}

TEST_F(EventLines, ChangesBeforeARollStandUnderTheirHeadingsInOrder) {
  SetBetAmount(2, bet::PassLine, 10);
  SetBetAmount(2, bet::Place6, 12);
  SetBetAmount(8, bet::Hard4, Cents);
  SetBetAmount(8, 199, 7);
  TakeSnapshots();

  SetBankrollSlots(2, 450);
  SetBankrollSlots(8, Money(1000) + Cents);
  SetBetAmount(2, bet::PassLine, 5);
  SetBetAmount(2, bet::Place6, 18);
  SetBetAmount(2, bet::Fire, 1);
  SetBetAmount(8, bet::Hard4, 0);
  SetBetAmount(2, FirstStack, Cents);
  SetBetAmount(8, 199, 0);
  Scripts.Places[2].ScriptFile = "ann.bet";
  Scripts.ScriptActive = {true, false, true};
  Scripts.ScriptActiveAfterRoll = {true, false, false, false, false, false, false, false, true};
  const Strings expected = {
      "    AutoBets:",
      "      Ann activated script (ann.bet)",
      "      Bob deactivated script",
      "    Bankroll:",
      "      Ann decreased to $450 ($50 ATM deposit)",
      "      Bob increased to $1001.25 ($1.25 ATM withdrawal)",
      "    Bets:",
      "      Ann increased Place 6 to $18",
      "      Ann decreased Pass Line to $5",
      "      Ann bet $1 on Fire",
      "      Bob removed $1.25 bet on Hard 4",
      "    CheckStacks:",
      "      Ann increased CheckStack0 to 1.25",
      "      Bob decreased CheckStack99 to 0",
  };
  EXPECT_EQ(Written(LogChangesSinceLastRoll), expected);
  // A next roll begins its sections anew.
  EXPECT_EQ(Written(LogChangesSinceLastRoll), expected);

  TakeSnapshots();
  Scripts.ScriptActiveAfterRoll = Scripts.ScriptActive;
  SetBetAmount(2, bet::PassLine, 10);
  SetBetAmount(2, bet::PassLine, 5);
  EXPECT_EQ(Written(LogChangesSinceLastRoll), Strings());
}

TEST_F(EventLines, OnlyCallsOfAStandingBetAreLogged) {
  const std::string off = "      Ann called OFF Place 6 bet",
                    on = "      Ann called ON Place 6 bet",
                    normal = "      Ann called Place 6 bet working normally again";
  const std::tuple<int32_t, int32_t, std::string> cases[] = {
      {IsWorking, CalledOff, off},     {NotWorking, CalledOff, off},  {CalledOn, CalledOff, off},
      {NotWorking, CalledOn, on},      {IsWorking, CalledOn, on},     {CalledOff, CalledOn, on},
      {CalledOff, NotWorking, normal}, {CalledOn, IsWorking, normal}, {NotWorking, IsWorking, ""},
      {IsWorking, NotWorking, ""},     {CalledOff, CalledOff, ""}};
  for (const auto& [before, now, line] : cases) {
    for (const Money amount : {12, 0}) {
      SetBetAmount(2, bet::Place6, amount);
      SetBetWorking(2, bet::Place6, before);
      TakeSnapshots();
      SetBetWorking(2, bet::Place6, now);
      const bool told = amount != Money() && !line.empty();
      EXPECT_EQ(Written(LogChangesSinceLastRoll), (told ? Strings{"    Bets:", line} : Strings{}))
          << before << " to " << now;
    }
  }
}

TEST_F(EventLines, ARollFromItsLineToTheNextHand) {
  TakeSnapshots();
  SetBankrollSlots(2, 510);
  SetBankrollSlots(8, Money(1000) - Cents);
  Table.LastShooter = 8;
  const auto roll = [] {
    LogRoll(12, 6, 1, " from roll file");
    LogDecision("    Miss (seven-out)");
    LogBetResult(8, bet::PassLine, -Cents);
    LogBetMoved(2, bet::DontCome, bet::DontCome4);
    LogBetResult(2, bet::Lay4, 10);
    LogBetResult(2, bet::World, 0);
    LogBankrollsAfterRoll();
    LogNextHand(2);
  };
  const Strings expected = {
      " Roll #12:  7 (6.1) from roll file",
      "    Miss (seven-out)",
      "    Wins/losses:",
      "      Bob lost $1.25 on Pass Line",
      "    Ann's Don't Come bet moved to Don't Come 4",
      "      Ann won $10 on Lay 4",
      "      Ann pushed on World",
      "    Bankroll:",
      "      Ann increased to $510 ($10 gain)",
      "      Bob decreased to $998.75 ($1.25 loss)",
      "----New shooter (Bob) coming out----------",
  };
  EXPECT_EQ(Written(roll), expected);
  EXPECT_EQ(Written([] { LogNextHand(8); }),
            Strings{"----Same shooter (Bob) coming out----------"});
}

TEST_F(EventLines, PlayersAndSeeds) {
  const auto cashOut = [](Money bankroll, Money abandoned) {
    return [=] {
      SetBankrollSlots(2, bankroll);
      LogCashOut(2, abandoned);
    };
  };
  const std::pair<std::function<void()>, std::string> cases[] = {
      {[] { LogDicePassed(8); }, "The dice were passed to Bob"},
      {[] { LogPlayerJoined(2, Cents); }, "Ann joined the game at stick 3-left with $1.25"},
      {[] { LogPlayerJoined(8, 9); }, "Bob joined the game at stick 4-right with $9"},
      {[] { LogPlayerMoved(2); }, "Ann moved to stick 3-left"},
      {[] { LogPlayerRenamed("Ann", "Eve"); }, "Ann's name changed to Eve"},
      {cashOut(500, 0), "Ann cashed out with $500 (broke even)"},
      {cashOut(520, 0), "Ann cashed out with $520 ($20 win)"},
      {cashOut(400, 10), "Ann cashed out with $400 ($100 loss after $10 abandoned)"},
      {[] { LogSeed(6, -3); }, "RNG #6 seeded: -3"}};
  for (const auto& [action, line] : cases)
    EXPECT_EQ(Written(action), Strings{"    " + line});
}

TEST_F(EventLines, ANewSession) {
  const std::string rule(44, '=');
  HoldClock({2026, 11, 22, 19, 4, 5, 0, 1});
  Seat(5, "Cid", -Cents);
  Table.LastShooter = 5;
  const Strings opening = {" New session started 2026-11-22 @ 19:04:05",
                           rule,
                           "    Players:",
                           "      Ann at stick 3-left with $500",
                           "      Cid at stick 1-right with $-1.25",
                           "      Bob at stick 4-right with $1000"};
  EXPECT_EQ(Written(LogNewSession), opening);
  Strings again = opening;
  again.push_back(rule);
  again.insert(again.end(), opening.begin(), opening.end());
  LogNewSession();
  EXPECT_EQ(Lines(), again);
  SetScriptActive(8, true);
  EXPECT_EQ(Written([] { LogFirstHand("night.rll"); }),
            (Strings{"    Dice roll file playback actived (night.rll)",
                     "    AutoBets:", "      Bob activated untitled script",
                     "----New shooter (Cid) coming out----------"}));
  Table.LastShooter = 0;
  SetScriptActive(8, false);
  EXPECT_EQ(Written([] { LogFirstHand(""); }), Strings{"----New hand, come-out roll----------"});
}

}  // namespace
}  // namespace tessarel
