#include "engine/atm.h"

#include <algorithm>
#include <string>

#include "base/front_end.h"
#include "base/message.h"
#include "base/number_format.h"
#include "engine/table.h"

namespace tessarel {

namespace {

std::string NotAllowed(int place, Money asked, Money allowed, const std::string& why) {
  return "Requested amount:  $" + FormatMoney(asked) + "\rAllowed amount:  $" +
         FormatMoney(allowed) + "\r\rThe full amount of this transaction was not allowed because " +
         (why.empty() ? "" : why) + At(Table.PlayerName, place) + "'s ";
}

// Why a deposit was cut to what the bets on the table leave.
std::string WageredText(int place, Money asked, Money allowed) {
  const bool wagered = At(Table.MoneyOnTable, place) > Money();
  return NotAllowed(place, asked, allowed, "") +
         (wagered ? "bankroll would've dropped below the amount currently wagered."
                  : "bankroll would've become negative.") +
         "\r\rYou can deposit more by checking the box marked, \"Allow negative bankroll\" on the "
         "Configuration screen" +
         (wagered ? ", and/or by reducing the amount currently wagered." : "");
}

std::string LimitText(int place, Money asked, Money allowed, bool deposit) {
  return NotAllowed(place, asked, allowed, "it would've caused ") +
         (deposit ? "bankroll to drop below the negative bank limit of $"
                  : "bankroll to exceed the max bank limit of $") +
         FormatMoney(BankrollLimit);
}

void MoveBankroll(int place, Money change) {
  const Money bankroll = BankrollOf(place) + change;
  SetBankrollSlots(place, bankroll);
  At(Table.InvestedBankroll, place) += change;
  At(Table.BankrollAtRoll, place) = bankroll;
  At(At(Table.GraphBankroll, Table.GraphIndex), place) = bankroll;
  MoveHighAndLow(place);
  if (Table.HyperDriveOn == 0) FrontEnd.RefreshViews();
}

}  // namespace

Money ATM(int place, bool deposit, Money amount, bool tell) {
  if (place == 0 || !IsTaken(Table, place) || amount <= Money()) return Money();
  const Money bankroll = BankrollOf(place);
  Money allowed = std::min(
      amount, std::max(deposit ? bankroll + BankrollLimit : BankrollLimit - bankroll, Money()));
  std::string text;
  if (allowed < amount) text = LimitText(place, amount, allowed, deposit);
  if (deposit && At(Table.AllowNegBankroll, place) == 0) {
    const Money left = std::max(bankroll - At(Table.MoneyOnTable, place), Money());
    if (left < allowed) {
      allowed = left;
      text = WageredText(place, amount, allowed);
    }
  }
  if (!text.empty() && tell && Table.HyperDriveOn == 0) {
    ShowMessage(text, deposit ? "ATM Deposit" : "ATM Withdrawal", msg::OkAlert);
  }
  if (allowed != Money()) MoveBankroll(place, deposit ? -allowed : allowed);
  return allowed;
}

}  // namespace tessarel
