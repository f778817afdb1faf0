#include "ui/table_play.h"

#include <algorithm>
#include <memory>
#include <utility>

#include "base/front_end.h"
#include "base/message.h"
#include "base/number_format.h"
#include "base/single_byte_text.h"
#include "engine/atm.h"
#include "engine/bet_limits.h"
#include "engine/bets.h"
#include "play/auto_roll.h"
#include "play/players.h"
#include "play/rail.h"
#include "play/roll_driver.h"
#include "state/payoffs.h"
#include "state/settings.h"
#include "texts/say.h"
#include "ui/layout/table_layout.h"

namespace tessarel {

TablePlayState TablePlay;

namespace {

std::string NameOf(int place) {
  return Table.PlayerName[place];
}

// The amount that a bare click adds; with `from` no more than stands on the bet.
Money CheckValue() {
  return Settings.Denomination[ChosenCheck()];
}

// --- What a change would do --------------------------------------------------------------------

struct Trial {
  Money delta;
  std::string refusal, title;
  int32_t flags = 0;
};

Trial* HeardBy = nullptr;

void Hear() {
  if (!HeardBy->refusal.empty()) return;
  HeardBy->refusal = Message.MsgText;
  HeardBy->title = Message.MsgTitle;
  HeardBy->flags = Message.MsgFlags;
}

// Lets `change` work on the table, keeps its BetDelta and the first message that `notices` lets
// through, and puts everything back as it was.
template <class Change>
Trial TryOut(int32_t notices, Change&& change) {
  const auto table = std::make_unique<TableState>(Table);
  const FrontEndCallbacks frontEnd = FrontEnd;
  const MessageState message = Message;
  const int32_t noticesInForce = std::exchange(Settings.Notices, notices);
  Trial trial;
  HeardBy = &trial;
  FrontEnd = FrontEndCallbacks{};
  FrontEnd.ShowMessage = Hear;
  change();
  trial.delta = Table.BetDelta;
  FrontEnd = frontEnd;
  Message = message;
  Settings.Notices = noticesInForce;
  Table = *table;
  return trial;
}

// --- Changing bets -----------------------------------------------------------------------------

void ChangeAmount(int place, int number, Money amount) {
  Table.Amount = amount;
  Table.TableDirty = true;
  IsBet(number) ? PlaceBet(place, number) : ChangeBet(place, number);
  if (!IsBet(number)) FrontEnd.DrawBet(place, number);
}

std::optional<Money> TakeEnteredAmount() {
  const std::string entered = std::exchange(TablePlay.EnteredAmount, {});
  if (entered.empty()) return std::nullopt;
  return ParseMoney(entered);
}

// What a click on a bet changes: to the keyed amount, or by one check.
Money ClickedChange(int place, int number, ClickKind kind) {
  if (const auto entered = TakeEnteredAmount()) return *entered - Bet(place, number);
  const Money check = CheckValue();
  return kind == ClickKind::Add ? check : -std::min(check, Bet(place, number));
}

void ClickBet(int spot, ClickKind kind) {
  const int place = CurrentPlace();
  if (place == 0) return TellNobodyHere();
  if (!MayChange()) return;
  const int number = NumberOfSpot(spot);
  if (number != 0) ChangeAmount(place, number, ClickedChange(place, number, kind));
}

void ApplyAction(TableActionMode action, int spot) {
  const int place = CurrentPlace();
  int number = NumberOfSpot(spot);
  if (place == 0 || number == 0 || !MayChange()) return;
  if (number == bet::DontPassOdds && !HasBet(place, number)) number = bet::DontPass;
  Table.TableDirty = true;
  switch (action) {
    case ActionCallOn:
      return CallBet(place, number, CallOn);
    case ActionCallOff:
      return CallBet(place, number, CallOff);
    case ActionBuy:
      return BuyPlaceBet(place, number);
    default:
      return ChangeAmount(place, number, -Bet(place, number));
  }
}

// Whether the current player has a bet at a spot for the action to act on.
bool Suits(int spot) {
  const int place = CurrentPlace();
  const int number = NumberOfSpot(spot);
  if (place == 0 || number == 0) return false;
  return HasBet(place, number) || (number == bet::DontPassOdds && HasBet(place, bet::DontPass));
}

// --- The rail ----------------------------------------------------------------------------------

void FinishMove(int spot) {
  const int from = TablePlay.TableAction - ActionMovePlayer;
  const int to = PlaceOfSpot(spot);
  if (!IsRailSpot(spot)) return;
  TablePlay.TableAction = ActionNormal;
  if (IsTaken(Table, from) && MovePlayer(from, to)) SelectPlace(to);
  FrontEnd.DrawTable();
}

void ClickRail(int place) {
  if (IsTaken(Table, place)) return SelectPlace(place);
  if (!TableIsOpen() || !AddPlayer(place)) return;
  Table.TableDirty = true;
  SelectPlace(place);
}

std::string OutlookOnRail(int place) {
  if (TablePlay.TableAction > ActionMovePlayer) {
    return Say(Text::MoveHere, NameOf(TablePlay.TableAction - ActionMovePlayer));
  }
  if (!IsTaken(Table, place)) return Say(Text::JoinHere);
  return SayChosen(place == CurrentPlace() ? Text::PlayersMenu : Text::BetForPlayer, NameOf(place));
}

// --- Saying what is there ----------------------------------------------------------------------

std::string SpotName(int number) {
  if (IsBet(number)) return std::string(BetName[number]);
  const int place = CurrentPlace();
  const std::string& name = Table.CheckStackName[place][number - FirstStack];
  return name.empty() ? "CheckStack #" + std::to_string(number - FirstStack) : name;
}

Text ActionText(int action) {
  switch (action) {
    case ActionCallOn:
      return Text::CallOnHere;
    case ActionCallOff:
      return Text::CallOffHere;
    case ActionBuy:
      return Text::BuyHere;
    default:
      return Text::RemoveHere;
  }
}

ClickOutlook OutlookOfBet(int number) {
  const int place = CurrentPlace();
  if (place == 0) return {Say(Text::ClickOpenPosition), false};
  if (TablePlay.TableAction != ActionNormal) {
    return {SayChosen(ActionText(TablePlay.TableAction), SpotName(number)),
            Suits(number < FirstStack ? number : 0)};
  }
  const std::optional<Money> entered =
      TablePlay.EnteredAmount.empty() ? std::nullopt : ParseMoney(TablePlay.EnteredAmount);
  const Money change = entered ? *entered - Bet(place, number) : CheckValue();
  const Trial trial = TryOut(NoticeActionsNotAllowed | NoticeLimits, [=] {
    Table.Amount = change;
    ChangeBet(place, number);
  });
  if (trial.delta == Money() && change != Money() && !trial.refusal.empty()) {
    // The first line of a refusal is the player's name.
    const size_t body = trial.refusal.find("\r\r");
    const std::string why =
        body == std::string::npos ? trial.refusal : trial.refusal.substr(body + 2);
    return {OnOneLine(why), false};
  }
  const std::string amount = FormatMoney(entered ? *entered : trial.delta);
  return {SayChosen(entered ? Text::SetBetTo : Text::AddToBet, SpotName(number), amount), true};
}

bool PayoffVaries(int number) {
  return number == bet::Field || number == bet::CAndE || number == bet::Horn ||
         number == bet::World || number == bet::SevenPoint7 || number == bet::Midway ||
         number == bet::SharpShooter || number == bet::RideTheLine || number == bet::Fire;
}

std::string PayoffText(int number) {
  if (PayoffVaries(number)) return Say(Text::TipPayoffVaries);
  const PayoffRow& row = PayoffRowOf(number);
  const bool isTo = row.PayForm == Money(FormTo);
  const Money first = isTo ? row.PayNum : row.PayNum + row.PayDen;
  return SayChosen(isTo ? Text::TipPaysTo : Text::TipPaysFor, FormatMoney(first),
                   FormatMoney(row.PayDen));
}

std::string StateText(int place, int number) {
  switch (Table.BetWorking[place][number]) {
    case CalledOff:
      return Say(Text::TipCalledOff);
    case CalledOn:
      return Say(Text::TipCalledOn);
    case NotWorking:
      return Say(Text::TipNotWorking);
    default:
      return Say(Text::TipWorking);
  }
}

// What goes with a standing bet besides its amount.
void AddCompanions(std::string& tip, int place, int number) {
  const bool lay = InFamily(number, LayFamily), buy = InFamily(number, BuyFamily);
  if (lay || buy) {
    const auto& vigs = lay ? Table.LayVig[place] : Table.BuyVig[place];
    tip += "\r" + Say(Text::TipVig, FormatExact(At(vigs, (number - 1) % FamilySize)));
  }
  const bool line = number == bet::PassLine || number == bet::DontPass;
  if (line && HasBet(place, number + 1)) {
    tip += "\r" + Say(Text::TipOdds, FormatExact(Bet(place, number + 1)));
  }
  tip += "\r" + StateText(place, number);
}

std::string FullTip(int place, int number) {
  std::string tip = SpotName(number) + ": " + FormatExact(Bet(place, number));
  if (!IsBet(number)) return tip;
  if (HasBet(place, number)) AddCompanions(tip, place, number);
  return tip + "\r" + PayoffText(number);
}

}  // namespace

// --- Clicks -----------------------------------------------------------------------------------

void ClickSpot(int spot, ClickKind kind) {
  if (TablePlay.DiceInAir) return;
  if (TablePlay.TableAction > ActionMovePlayer) return FinishMove(spot);
  if (IsRailSpot(spot)) return ClickRail(PlaceOfSpot(spot));
  if (spot == PropositionSwitch) {
    return ToggleOption(&TableOptions::DisplayPropBets);
  }
  if (TablePlay.TableAction != ActionNormal) {
    const auto action = static_cast<TableActionMode>(TablePlay.TableAction);
    TablePlay.TableAction = ActionNormal;
    ApplyAction(action, spot);
    return FrontEnd.DrawTable();
  }
  if (spot != 0) ClickBet(spot, kind);
}

void DragBet(int from, int to) {
  const int place = CurrentPlace();
  const int source = NumberOfSpot(from), target = NumberOfSpot(to);
  if (place == 0 || source == 0 || source == target || !MayChange()) return;
  const Money amount = Bet(place, source);
  if (target != 0) {
    // What the rules would not take at its new spot is not taken down from the old one either.
    Money off;
    const Trial trial = TryOut(Settings.Notices, [&] {
      {
        const SilentBets silent;
        ChangeAmount(place, source, -amount);
      }
      off = amount - Bet(place, source);
      Table.Amount = off;
      Table.BetDelta = Money();
      if (off > Money()) ChangeBet(place, target);
    });
    if (off > Money() && trial.delta <= Money()) {
      if (!trial.refusal.empty()) ShowMessage(trial.refusal, trial.title, trial.flags);
      return;
    }
  }
  ChangeAmount(place, source, -amount);
  const Money taken = amount - Bet(place, source);
  if (target != 0 && taken > Money()) ChangeAmount(place, target, taken);
}

// --- Commands ----------------------------------------------------------------------------------

void PickBetFor(TableActionMode action) {
  if (PlayerForCommand() == 0) return;
  if (Suits(TablePlay.HotSpot)) {
    ApplyAction(action, TablePlay.HotSpot);
  } else {
    TablePlay.TableAction = action;
  }
  FrontEnd.DrawTable();
}

void CallAllBets(bool on) {
  const int place = PlayerForCommand();
  if (place == 0 || !MayChange()) return;
  Table.TableDirty = true;
  SilentBets silent;
  for (int number = 1; number <= LastBet; ++number) {
    if (HasBet(place, number)) CallBet(place, number, on ? CallOn : CallOff);
  }
}

void RemoveAllBets() {
  const int place = PlayerForCommand();
  if (place == 0 || !MayChange()) return;
  Table.TableDirty = true;
  SilentBets silent;
  // Odds first: they would follow their flat bet, and stay when it has to.
  for (const bool odds : {true, false}) {
    for (int number = 1; number <= LastBet; ++number) {
      if (IsOdds(number) == odds && HasBet(place, number)) RemoveBet(place, number);
    }
  }
}

void RollTheDice() {
  if (!Table.RollInProgress && ConfirmScriptActive()) MakeRoll();
}

bool TableIsIdle() {
  return !Table.RollInProgress && !Table.HyperDriveOn && !Table.AutoRollOn;
}

bool TableIsOpen() {
  return !TablePlay.DiceInAir && !Table.HyperDriveOn;
}

bool KeyAmount(char key) {
  constexpr size_t MostDigits = 14;
  std::string& entered = TablePlay.EnteredAmount;
  if (key == 8) {
    if (entered.empty()) return false;
    entered.pop_back();
    return true;
  }
  const bool point = key == '.' && entered.find('.') == std::string::npos;
  if ((key < '0' || key > '9') && !point) return false;
  if (entered.size() < MostDigits) entered += key;
  return true;
}

// --- What is there -----------------------------------------------------------------------------

ClickOutlook OutlookOfSpot(int spot) {
  const bool moves = TablePlay.TableAction > ActionMovePlayer;
  if (moves && !IsRailSpot(spot)) {
    return {Say(Text::ClickNewPosition, NameOf(TablePlay.TableAction - ActionMovePlayer)), true};
  }
  if (spot == 0) {
    const bool picks = TablePlay.TableAction != ActionNormal;
    return {picks ? Say(Text::PickABet) : std::string(), true};
  }
  if (IsRailSpot(spot)) return {OutlookOnRail(PlaceOfSpot(spot)), true};
  if (spot == PropositionSwitch) {
    return {SayChosen(GameViews.Table.DisplayPropBets ? Text::HidePropositions
                                                      : Text::ShowPropositions),
            true};
  }
  const int number = NumberOfSpot(spot);
  return number == 0 ? ClickOutlook{} : OutlookOfBet(number);
}

std::string InfoTipOf(int spot) {
  const int number = NumberOfSpot(spot);
  const int place = CurrentPlace();
  if (number == 0 || place == 0) return {};
  const Money amount = Bet(place, number);
  switch (Settings.InfoTipLevel) {
    case 1:
      return amount == Money() ? std::string() : FormatExact(amount);
    case 2:
      return SpotName(number);
    case 3:
      return SpotName(number) + ": " + FormatExact(amount);
    case 4:
      return FullTip(place, number);
    default:
      return {};
  }
}

}  // namespace tessarel
