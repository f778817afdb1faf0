#include "engine/atm.h"

#include <algorithm>
#include <string>
#include <utility>

#include "base/front_end.h"
#include "base/message.h"
#include "base/number_format.h"
#include "state/table.h"
#include "texts/say.h"

namespace tessarel {

namespace {

std::string AmountsText(Money asked, Money allowed) {
  return Say(Text::AtmAmounts, FormatMoney(asked), FormatMoney(allowed)) + "\r\r";
}

// Why a deposit was cut to what the bets on the table leave.
std::string WageredText(int place, Money asked, Money allowed) {
  const bool wagered = Table.MoneyOnTable[place] > Money();
  return AmountsText(asked, allowed) +
         SayChosen(wagered ? Text::AtmBelowWagered : Text::AtmBelowZero, Table.PlayerName[place]);
}

std::string LimitText(int place, Money asked, Money allowed, bool deposit) {
  return AmountsText(asked, allowed) +
         SayChosen(deposit ? Text::AtmBelowLimit : Text::AtmAboveLimit, Table.PlayerName[place],
                   FormatMoney(BankrollLimit));
}

void MoveBankroll(int place, Money change) {
  const Money bankroll = BankrollOf(place) + change;
  SetBankrollSlots(place, bankroll);
  Table.InvestedBankroll[place] += change;
  Table.BankrollAtRoll[place] = bankroll;
  Table.GraphBankroll[Table.GraphIndex][place] = bankroll;
  MoveHighAndLow(place);
  if (!Table.HyperDriveOn) FrontEnd.RefreshViews();
}

}  // namespace

Money ATM(int place, bool deposit, Money amount, bool tell) {
  if (place == 0 || !IsTaken(Table, place) || amount <= Money()) return Money();
  const Money bankroll = BankrollOf(place);
  Money allowed = std::min(
      amount, std::max(deposit ? bankroll + BankrollLimit : BankrollLimit - bankroll, Money()));
  std::string text;
  if (allowed < amount) text = LimitText(place, amount, allowed, deposit);
  if (deposit && !Table.AllowNegBankroll[place]) {
    const Money left = std::max(bankroll - Table.MoneyOnTable[place], Money());
    if (left < allowed) {
      allowed = left;
      text = WageredText(place, amount, allowed);
    }
  }
  if (!text.empty() && tell && !Table.HyperDriveOn) {
    ShowMessage(std::move(text), SayChosen(deposit ? Text::AtmDeposit : Text::AtmWithdrawal),
                msg::OkAlert, help::Players);
  }
  if (allowed != Money()) MoveBankroll(place, deposit ? -allowed : allowed);
  return allowed;
}

}  // namespace tessarel
