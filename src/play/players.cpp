#include "play/players.h"

#include <string_view>

#include "base/front_end.h"
#include "base/message.h"
#include "base/number_format.h"
#include "engine/seats.h"
#include "engine/unattended.h"
#include "files/sessions_log.h"
#include "log/event_lines.h"
#include "state/books.h"
#include "state/settings.h"
#include "state/table.h"
#include "texts/say.h"

namespace tessarel {

namespace {

constexpr std::string_view LimitText = "9,999,999";

const std::string& NameOf(int place) {
  return Table.PlayerName[place];
}

// The next place in the direction the dice travel.
constexpr int NextShooterPlace(int place) {
  return place > 1 ? place - 1 : LastPlace;
}

// `text` is worded only when it is told: the dice are passed after every hand.
template <class MakeText>
void TellPassing(bool aloud, MakeText&& text) {
  if (!aloud || Table.HyperDriveOn) return;
  ShowMessage(text(), Say(Text::PassTheDice), msg::OkAlert, help::Players);
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
  return Settings.AllowPutBets || Settings.BetNeededToShoot != 1 || Table.Point == 0 ||
         HasLineBet(place);
}

void GiveDice(int place) {
  Table.Shooter = place;
  if (RollsInHand() == 0) Table.LastShooter = place;
}

void PassAmongNone(bool aloud) {
  Table.Shooter = Table.LastShooter = 0;
  TellPassing(aloud, [] { return Say(Text::NoPlayers); });
}

void PassWithOnePlayer(PassReason reason, bool aloud) {
  TellPassing(aloud, [] { return Say(Text::NoOtherPlayers); });
  if (reason == PlayerLeft) GiveDice(std::countr_zero(Table.TakenPlaces));
}

std::string NobodyShootsText(int blocked) {
  if (blocked == 1) return Say(Text::OneBlocked);
  if (blocked > 1) return Say(Text::ManyBlocked, blocked);
  const bool oneOther = Table.PlayerCount == 2 && Table.Shooter != 0;
  const int other = oneOther ? FindShooter([](int) { return true; }) : 0;
  return other != 0 ? Say(Text::OtherDeclines, NameOf(other)) : Say(Text::AllDecline);
}

void PassToNobody(PassReason reason, bool aloud, int blocked) {
  TellPassing(aloud, [blocked] { return NobodyShootsText(blocked); });
  if (reason == PlayerLeft) {
    GiveDice(FindShooter([](int) { return true; }));
  }
}

// The dice go on in the middle of a hand, which stays credited to who started it.
void TellOfPassedHand(bool aloud, int from, int to) {
  if (RollsInHand() == 0) return;
  const Text text = to == Table.LastShooter ? Text::PassingBack : Text::PassingOn;
  TellPassing(aloud, [&] { return SayChosen(text, NameOf(from), NameOf(to)); });
  if (!Table.HyperDriveOn) FrontEnd.RefreshViews();
}

}  // namespace

std::optional<Money> AskBankroll(const std::string& question,
                                 const std::string& title,
                                 const std::string& offered) {
  std::string text = question, shown = offered;
  while (AskForText(text, title, shown, help::Players)) {
    shown = Message.MsgInput;
    const std::optional<Money> amount = ParseTypedMoney(shown);
    if (amount && Abs(*amount) <= BankrollLimit) return amount;
    const bool tooLow = amount && *amount < Money();
    text = SayChosen(tooLow ? Text::BankrollMinimum : Text::BankrollMaximum,
                     FormatMoney(BankrollLimit)) +
           "\r\r" + question;
  }
  return std::nullopt;
}

void SeatPlayer(int place, const std::string& name, Money bankroll) {
  SetPlayerName(place, name);
  ClearPlayerStats(place);
  BeginBankroll(place + AllSessions, bankroll);
  SetBankroll(place, bankroll);
  Table.BankrollInitAmount[place] = bankroll;
  Table.SessionLogName[place] = DefaultSessionsLogName(name);
  OpenPlaceDefaults(place);
  if (Table.Shooter == 0) Table.Shooter = Table.LastShooter = place;
  LogPlayerJoined(place, bankroll);
}

void ShowPassedDiceNote() {
  if (Table.Shooter == 0) return;
  const bool handBefore = Stats.RollCount[LastHand][0] > 0;
  std::string text;
  if (RollsInHand() > 0 && Table.Shooter != Table.LastShooter) {
    const std::string& shooter = NameOf(Table.Shooter);
    text = Table.LastShooter == 0 ? Say(Text::HandOfGonePlayer, shooter)
                                  : Say(Text::HandOfOther, shooter, NameOf(Table.LastShooter));
  } else if (RollsInHand() == 0 && handBefore && Table.PreviousShooter == 0) {
    text = Say(Text::LastHandOfGonePlayer);
  }
  if (!text.empty()) ShowMessage(std::move(text), Say(Text::PassTheDice), msg::Ok, help::Players);
}

void PassDice(PassReason reason, Telling telling) {
  const bool aloud = reason == PlayerAsked && telling == Telling::Aloud;
  if (Table.PlayerCount == 0) return PassAmongNone(aloud);
  if (Table.PlayerCount == 1) return PassWithOnePlayer(reason, aloud);
  int blocked = 0;
  const int next = FindShooter([&blocked](int place) {
    if (Table.DeclinesDice[place]) return false;
    if (!MayShoot(place)) ++blocked;
    return MayShoot(place);
  });
  if (next == 0) return PassToNobody(reason, aloud, blocked);
  const int from = Table.Shooter;
  if (reason == PlayerAsked) LogDicePassed(next);
  Table.Shooter = next;
  if (!Table.HyperDriveOn) FrontEnd.DrawTable();
  TellOfPassedHand(aloud, from, next);
  if (RollsInHand() == 0) Table.LastShooter = next;
}

std::string BankrollLimitText(int place) {
  const std::string reset = Say(Text::ResetTable);
  if (!IsTaken(Table, place)) return reset;
  const Text text = BankrollOf(place) <= Money() ? Text::BelowLimit : Text::AboveLimit;
  return SayChosen(text, NameOf(place), LimitText) + "\r\r" + reset;
}

void BankrollLimitStop(int place) {
  const bool gone = !IsTaken(Table, place);
  const bool won = !gone && BankrollOf(place) > Money();
  if (Table.HyperDriveOn) {
    Table.Stop = gone  ? StopCause::BankrollLimitOfGonePlayer
                 : won ? StopCause::AboveBankrollLimit
                       : StopCause::BelowBankrollLimit;
  } else {
    const bool first = Table.BankrollStopPlace == 0;
    if (won && first && !Settings.DisableAllSound) FrontEnd.PlaySound(Sound::LimitBroken);
    ShowMessage(BankrollLimitText(place), "", won ? msg::Ok : msg::OkAlert, help::NewSession);
  }
  StopUnattended();
  Table.BankrollStopPlace = place;
}

}  // namespace tessarel
