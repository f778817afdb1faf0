#include "log/event_lines.h"

#include <string>

#include "base/clock.h"
#include "log/events_log.h"
#include "state/scripts.h"
#include "state/table.h"
#include "texts/say.h"

namespace tessarel {

namespace {

constexpr std::string_view ScriptsHeading = "    AutoBets:";
constexpr std::string_view BankrollHeading = "    Bankroll:";
constexpr std::string_view BetsHeading = "    Bets:";
constexpr std::string_view StacksHeading = "    CheckStacks:";
constexpr std::string_view RuleLine = "============================================";
static_assert(RuleLine.size() == 44);

template <class... Parts>
std::string Join(const Parts&... parts) {
  std::string text;
  (text.append(std::string_view(parts)), ...);
  return text;
}

const std::string& NameOf(int place) {
  return Table.PlayerName[place];
}

std::string_view BetText(int number) {
  return BetName[number];
}

// A line about a player, or with a heading an item of that section.
void WriteNote(int place, std::string_view text) {
  WriteEvent(Join("    ", NameOf(place), text));
}

void WriteItem(std::string_view heading, int place, std::string_view text) {
  WriteSection(heading);
  WriteEvent(Join("      ", NameOf(place), text));
}

void LogScript(int place) {
  const std::string& file = Scripts.Places[place].ScriptFile;
  if (!Scripts.ScriptActive[place]) {
    WriteItem(ScriptsHeading, place, " deactivated script");
  } else if (file.empty()) {
    WriteItem(ScriptsHeading, place, " activated untitled script");
  } else {
    WriteItem(ScriptsHeading, place, Join(" activated script (", file, ")"));
  }
}

// The item of a bankroll that moved from `before`, with the word for what moved it.
void LogBankroll(int place, Money before, std::string_view more, std::string_view less) {
  const Money now = BankrollOf(place);
  if (now == before) return;
  const bool grown = now > before;
  WriteItem(BankrollHeading, place,
            Join(grown ? " increased to $" : " decreased to $", PlainText(now), " ($",
                 PlainText(Abs(now - before)), grown ? more : less, ")"));
}

void LogBetAmount(int place, int number) {
  const Money before = Table.BetAmountAfterRoll[place][number];
  const Money now = Bet(place, number);
  const std::string_view bet = BetText(number);
  if (now == before) return;
  if (before == Money()) {
    WriteItem(BetsHeading, place, Join(" bet $", PlainText(now), " on ", bet));
  } else if (now == Money()) {
    WriteItem(BetsHeading, place, Join(" removed $", PlainText(before), " bet on ", bet));
  } else {
    const std::string_view change = now < before ? " decreased " : " increased ";
    WriteItem(BetsHeading, place, Join(change, bet, " to $", PlainText(now)));
  }
}

constexpr bool IsCalled(int32_t working) {
  return working == CalledOff || working == CalledOn;
}

// Calls of the player only: bets that go off and on with the point are not logged.
void LogBetWorking(int place, int number) {
  const int32_t before = Table.BetWorkingBefore[place][number];
  const int32_t now = Table.BetWorking[place][number];
  if (now == before || Bet(place, number) == Money()) return;
  if (!IsCalled(now) && !IsCalled(before)) return;
  const std::string_view bet = BetText(number);
  if (now == CalledOff) {
    WriteItem(BetsHeading, place, Join(" called OFF ", bet, " bet"));
  } else if (now == CalledOn) {
    WriteItem(BetsHeading, place, Join(" called ON ", bet, " bet"));
  } else {
    WriteItem(BetsHeading, place, Join(" called ", bet, " bet working normally again"));
  }
}

void LogCheckStack(int place, int number) {
  const Money before = Table.BetAmountAfterRoll[place][number];
  const Money now = Bet(place, number);
  if (now == before) return;
  WriteItem(StacksHeading, place,
            Join(now < before ? " decreased CheckStack" : " increased CheckStack",
                 std::to_string(number - FirstStack), " to ", PlainText(now)));
}

// Calls log(place, number) for the numbers that changed since the last roll.
template <class Log>
void ForEachChange(Log&& log) {
  ForEachPlayer([&](int place) {
    Table.ChangedAfter[place].ForEach([&](int number) { log(place, number); });
  });
}

std::string ComingOut(std::string_view which, int place) {
  return Join("----", which, " shooter (", NameOf(place), ") coming out----------");
}

constexpr std::string_view NoShooterLine = "----New hand, come-out roll----------";

}  // namespace

void LogChangesSinceLastRoll() {
  if (!EventsLog.LogOn) return;
  EndSections();
  ForEachPlayer([](int place) {
    const bool before = Scripts.ScriptActiveAfterRoll[place];
    if (before != (Scripts.ScriptActive[place])) LogScript(place);
  });
  if (Logs(&EventsLogState::LogBankroll)) {
    ForEachPlayer([](int place) {
      LogBankroll(place, Table.BankrollAfterRoll[place], " ATM withdrawal", " ATM deposit");
    });
  }
  if (Logs(&EventsLogState::LogBets)) {
    ForEachChange([](int place, int number) {
      if (number < 1 || number > LastBet) return;
      LogBetAmount(place, number);
      LogBetWorking(place, number);
    });
  }
  if (Logs(&EventsLogState::LogCheckStacks)) {
    ForEachChange([](int place, int number) {
      if (IsStack(number)) LogCheckStack(place, number);
    });
  }
  EndSections();
}

void LogRoll(int32_t number, int32_t die1, int32_t die2, std::string_view source) {
  if (!Logs(&EventsLogState::LogRolls)) return;
  WriteEvent(Join(" Roll #", std::to_string(number), ":  ", std::to_string(die1 + die2), " (",
                  std::to_string(die1), ".", std::to_string(die2), ")", source));
}

void LogDecision(std::string_view line) {
  if (Logs(&EventsLogState::LogDecisions)) WriteEvent(line);
}

void LogBetResult(int place, int number, Money result) {
  const bool wins = Logs(&EventsLogState::LogWins), losses = Logs(&EventsLogState::LogLosses);
  const bool wanted = result > Money() ? wins : result < Money() ? losses : wins || losses;
  if (!wanted) return;
  const std::string_view heading = !losses ? "    Wins:"
                                   : !wins ? "    Losses:"
                                           : "    Wins/losses:";
  if (result == Money()) {
    WriteItem(heading, place, Join(" pushed on ", BetText(number)));
  } else {
    const std::string_view verb = result > Money() ? " won $" : " lost $";
    WriteItem(heading, place, Join(verb, PlainText(Abs(result)), " on ", BetText(number)));
  }
}

void LogBetMoved(int place, int from, int to) {
  if (!Logs(&EventsLogState::LogBets)) return;
  WriteNote(place, Join("'s ", BetText(from), " bet moved to ", BetText(to)));
}

void LogBankrollsAfterRoll() {
  if (!EventsLog.LogOn) return;
  if (Logs(&EventsLogState::LogBankroll)) {
    ForEachPlayer(
        [](int place) { LogBankroll(place, Table.BankrollAtRoll[place], " gain", " loss"); });
  }
  EndSections();
}

void LogNextHand(int before) {
  if (!Logs(&EventsLogState::LogShooters)) return;
  const int now = Table.LastShooter;
  if (now == 0) {
    WriteEvent(NoShooterLine);
  } else {
    WriteEvent(ComingOut(now == before ? "Same" : "New", now));
  }
}

void LogDicePassed(int to) {
  if (!Logs(&EventsLogState::LogShooters)) return;
  WriteEvent(Join("    The dice were passed to ", NameOf(to)));
}

void LogPlayerJoined(int place, Money amount) {
  if (!EventsLog.LogOn) return;
  const bool left = place <= 4;
  const std::string spot = std::to_string(left ? 5 - place : place - 4);
  WriteEvent("    " + SayChosen(left ? Text::JoinedAtStickLeft : Text::JoinedAtStickRight,
                                NameOf(place), spot, PlainText(amount)));
}

void LogPlayerMoved(int place) {
  if (!EventsLog.LogOn) return;
  WriteNote(place, Join(" moved to stick ", StickPosition(place)));
}

void LogPlayerRenamed(std::string_view before, std::string_view after) {
  if (!EventsLog.LogOn) return;
  WriteEvent("    " + Say(Text::NameChanged, before, after));
}

void LogCashOut(int place, Money abandoned) {
  if (!EventsLog.LogOn) return;
  const Money bankroll = BankrollOf(place);
  const Money net = bankroll - Table.InvestedBankroll[place];
  std::string outcome = Say(Text::BrokeEven);
  if (net != Money()) {
    outcome = SayChosen(net > Money() ? Text::CashOutWin : Text::CashOutLoss, PlainText(Abs(net)));
  }
  if (abandoned != Money()) {
    outcome = Say(Text::CashOutAfterAbandoned, outcome, PlainText(abandoned));
  }
  WriteEvent("    " + Say(Text::CashedOut, NameOf(place), PlainText(bankroll), outcome));
}

void LogSeed(int32_t generator, int32_t seed) {
  if (!EventsLog.LogOn) return;
  WriteEvent(Join("    RNG #", std::to_string(generator), " seeded: ", std::to_string(seed)));
}

void LogPlayback(std::string_view file) {
  if (!EventsLog.LogOn) return;
  WriteEvent(Join("    Dice roll file playback activated (", file, ")"));
}

void LogNewSession() {
  if (!EventsLog.LogOn) return;
  EndSections();
  const LocalTime now = Now();
  if (EventsLogExists()) WriteEvent(RuleLine);
  WriteEvent(Join(" New session started ", DateText(now), " @ ", TimeText(now)));
  WriteEvent(RuleLine);
  ForEachPlayer([](int place) {
    WriteItem("    Players:", place,
              Join(" at stick ", StickPosition(place), " with $", PlainText(BankrollOf(place))));
  });
  EndSections();
}

void LogFirstHand(std::string_view playedFile) {
  if (!EventsLog.LogOn) return;
  if (!playedFile.empty()) {
    WriteEvent(Join("    Dice roll file playback actived (", playedFile, ")"));
  }
  ForEachPlayer([](int place) {
    if (Scripts.ScriptActive[place]) LogScript(place);
  });
  EndSections();
  // Nobody shot before in this session, so that a shooter is always a new one.
  LogNextHand(0);
}

}  // namespace tessarel
