#include "engine/players.h"

#include <string_view>

#include "base/front_end.h"
#include "base/message.h"
#include "base/number_format.h"
#include "base/single_byte_text.h"
#include "config/language.h"
#include "config/settings.h"
#include "engine/bets.h"
#include "engine/table.h"
#include "engine/unattended.h"
#include "files/event_lines.h"
#include "files/sessions_log.h"
#include "stats/store.h"

namespace tessarel {

namespace {

constexpr std::string_view PassTitle = "Pass the Dice";
constexpr std::string_view LimitText = "9,999,999";

const std::string& NameOf(int place) {
  return At(Table.PlayerName, place);
}

// The next place in the direction the dice travel.
constexpr int NextShooterPlace(int place) {
  return place > 1 ? place - 1 : LastPlace;
}

void TellPassing(PassReason reason, std::string text) {
  const bool silent = (Table.MessageSwitches & ShowRejections) == 0;
  if (reason != PlayerAsked || Table.HyperDriveOn != 0 || silent) return;
  ShowMessage(std::move(text), std::string(PassTitle), msg::OkAlert);
}

// The first place after the shooter's that `qualifies` accepts; 0 when none does.
template <class Qualifies>
int FindShooter(Qualifies&& qualifies) {
  int place = Table.Shooter;
  for (int step = 1; step < LastPlace; ++step) {
    place = NextShooterPlace(place);
    if (IsTaken(Table, place) && qualifies(place)) return place;
  }
  return 0;
}

// Whether a player could shoot now: with the point on he may need a line bet he cannot make.
bool MayShoot(int place) {
  return Settings.AllowPutBets != 0 || Settings.BetNeededToShoot != 1 || Table.Point == 0 ||
         HasLineBet(place);
}

void GiveDice(int place) {
  Table.Shooter = place;
  if (RollsInHand() == 0) Table.LastShooter = place;
}

void PassAmongNone(PassReason reason) {
  Table.Shooter = Table.LastShooter = 0;
  TellPassing(reason, "There are no players at the table.\r\rUnable to pass the dice.");
}

void PassWithOnePlayer(PassReason reason) {
  TellPassing(reason, "There are no other players at the table.\r\rUnable to pass the dice.");
  if (reason == PlayerLeft) GiveDice(std::countr_zero(Table.TakenPlaces));
}

std::string NobodyShootsText(int blocked) {
  std::string text = "Unable to pass the dice at this time.\r\r";
  if (blocked == 0) {
    const bool oneOther = Table.PlayerCount == 2 && Table.Shooter != 0;
    const int other = oneOther ? FindShooter([](int) { return true; }) : 0;
    return text + (other != 0 ? NameOf(other) + " doesn't want to shoot."
                              : "None of the other players want to shoot.");
  }
  text += blocked == 1
              ? "There's one other player who wants to shoot "
              : "There are " + std::to_string(blocked) + " other players who want to shoot ";
  return text +
         "but can't because a line bet is required and Put bets are not allowed.\r\r"
         "Please wait for a come-out roll or check the 'Allow Put bets' option on the 'Bets tab' "
         "of the configuration screen.";
}

void PassToNobody(PassReason reason, int blocked) {
  TellPassing(reason, NobodyShootsText(blocked));
  if (reason == PlayerLeft) {
    GiveDice(FindShooter([](int) { return true; }));
  }
}

// The dice go on in the middle of a hand, which stays credited to who started it.
void TellOfPassedHand(PassReason reason, int from, int to) {
  if (RollsInHand() == 0) return;
  TellPassing(reason, to == Table.LastShooter
                          ? NameOf(from) + " is passing the dice back to " + NameOf(to) +
                                " who originally started this hand."
                          : NameOf(from) + " is passing the dice to " + NameOf(to) +
                                " who may finish the current hand and then roll his/her own "
                                "hand.");
  if (Table.HyperDriveOn == 0) FrontEnd.RefreshViews();
}

}  // namespace

void SetBankroll(int place, Money amount) {
  SetBankrollSlots(place, amount);
  BeginBankroll(place + CurrentHand, amount);
  BeginBankroll(place + CurrentSession, amount);
  MoveHighAndLow(place);
  At(Table.InvestedBankroll, place) = amount;
  At(Table.BankrollAtRoll, place) = At(Table.BankrollAfterRoll, place) = amount;
}

std::optional<Money> AskBankroll(const std::string& question,
                                 const std::string& title,
                                 const std::string& offered) {
  std::string text = question;
  while (AskForText(text, title, offered)) {
    const std::optional<Money> amount = ParseMoney(TrimSpaces(Message.MsgInput));
    if (amount && Abs(*amount) <= BankrollLimit) return amount;
    const bool tooLow = amount && *amount < Money();
    text = std::string(GetText(tooLow ? 11 : 10)) + (tooLow ? "-$" : "$") +
           FormatMoney(BankrollLimit) + "\r\r" + question;
  }
  return std::nullopt;
}

void OpenPlaceDefaults(int place) {
  At(Table.BetWorkingDefault, place) = Table.BetWorkingDefault[0];
  for (int number = 1; number <= LastBet; ++number)
    ResetBetWorking(place, number);
  for (int position = 1; position <= 4; ++position) {
    At(At(Table.VisibleStack, place), position) = FirstStack + position - 1;
  }
}

void SeatPlayer(int place, const std::string& name, Money bankroll) {
  SetPlayerName(place, name);
  ClearPlayerStats(place);
  BeginBankroll(place + AllSessions, bankroll);
  SetBankroll(place, bankroll);
  At(Table.BankrollInitAmount, place) = bankroll;
  At(Table.SessionLogName, place) = DefaultSessionsLogName(name);
  OpenPlaceDefaults(place);
  if (Table.Shooter == 0) Table.Shooter = Table.LastShooter = place;
  LogPlayerJoined(place, bankroll);
}

void ShowPassedDiceNote() {
  if (Table.Shooter == 0) return;
  const bool handBefore = At(Stats.RollCount, LastHand)[0] > 0;
  std::string text;
  if (RollsInHand() > 0 && Table.Shooter != Table.LastShooter) {
    text = "The dice were passed during the current hand.\r\rAlthough " + NameOf(Table.Shooter) +
           " is presently shooting the dice, the current hand is being credited to " +
           (Table.LastShooter == 0
                ? "another player who started the hand but is no longer at the table."
                : NameOf(Table.LastShooter) + " who started the hand.");
  } else if (RollsInHand() == 0 && handBefore && Table.PreviousShooter == 0) {
    text = "The last hand was shot by a player who is no longer at the table.";
  }
  if (!text.empty()) ShowMessage(std::move(text), std::string(PassTitle), msg::Ok);
}

void PassDice(PassReason reason) {
  if (Table.PlayerCount == 0) return PassAmongNone(reason);
  if (Table.PlayerCount == 1) return PassWithOnePlayer(reason);
  int blocked = 0;
  const int next = FindShooter([&blocked](int place) {
    if (At(Table.DeclinesDice, place) != 0) return false;
    if (!MayShoot(place)) ++blocked;
    return MayShoot(place);
  });
  if (next == 0) return PassToNobody(reason, blocked);
  const int from = Table.Shooter;
  if (reason == PlayerAsked) LogDicePassed(next);
  Table.Shooter = next;
  if (Table.HyperDriveOn == 0) FrontEnd.DrawTable();
  TellOfPassedHand(reason, from, next);
  if (RollsInHand() == 0) Table.LastShooter = next;
}

void BankrollLimitStop(int place) {
  const std::string reset = "Select \"New\" from the \"Game\" menu to reset the table.";
  const std::string rest = std::string(LimitText) + "\r\r" + reset;
  const bool gone = !IsTaken(Table, place);
  const bool negative = BankrollOf(place) <= Money();
  if (Table.HyperDriveOn != 0) {
    Table.StopReason = gone       ? reset
                       : negative ? "Stopped by exceeding the negative bankroll limit of -$" + rest
                                  : "Stopped by breaking the max bankroll limit of $" + rest;
  } else if (gone) {
    ShowMessage(reset, "", msg::OkAlert);
  } else if (negative) {
    ShowMessage(
        "Sorry ... " + NameOf(place) + " has exceeded the negative bankroll limit of -$" + rest, "",
        msg::OkAlert);
  } else {
    const bool first = Table.BankrollStopPlace == 0;
    if (first && Settings.DisableAllSound == 0) FrontEnd.PlaySound(Sound::LimitBroken);
    ShowMessage(
        "Congratulations!\r\r" + NameOf(place) + " broke the max bankroll limit of $" + rest, "",
        msg::Ok);
  }
  StopUnattended();
  Table.BankrollStopPlace = place;
}

}  // namespace tessarel
