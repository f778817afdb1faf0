#include "engine/settle_prompt.h"

#include <algorithm>

#include "base/number_format.h"
#include "config/language.h"
#include "config/payoffs.h"
#include "config/settings.h"
#include "engine/bet_handling.h"
#include "engine/table.h"

namespace tessarel {

namespace {

std::string Dollars(Money amount) {
  return "$" + FormatMoney(amount);
}

std::string Counted(int32_t count, const char* one, const char* many) {
  return "(" + std::to_string(count) + (count == 1 ? one : many);
}

// What of a hand a bet was paid for; empty for the bets that no count decides.
std::string CountLine(int number) {
  switch (number) {
    case bet::SharpShooter:
      return Counted(Table.SharpShooterPoints, " point won)", " points won)");
    case bet::RideTheLine:
      return Counted(Table.RideTheLinePasses, " pass made)", " passes made)");
    case bet::Fire:
      return Counted(Table.FirePoints, " point made)", " points made)");
    default:
      return "";
  }
}

// "7 to 6", or "31 for 4" where the stake is part of what is shown.
std::string RatioText(const PayoffRow& row) {
  const bool isFor = row.PayForm == Money(FormFor);
  const Money num = Abs(row.PayNum);
  return FormatMoney(isFor ? num + row.PayDen : num) + (isFor ? " for " : " to ") +
         FormatMoney(row.PayDen);
}

Money PaidAt(Money amount, const PayoffRow& row) {
  return Money::FromDouble(MulDiv(amount, row.PayNum, row.PayDen));
}

bool Rounded() {
  return Table.NetWin != Table.GrossWin;
}

void AddPartRows(SettlePrompt& prompt, Money amount, int parts, const PayoffRow& row) {
  const std::string whole = std::to_string(parts);
  const Money part = Money::FromDouble(amount.ToDouble() / parts);
  prompt.rows.push_back({"1/" + whole + " of bet:", Dollars(part)});
  prompt.rows.push_back(
      {std::string(GetText(49)) + RatioText(row) + ":", Dollars(PaidAt(part, row))});
  prompt.rows.push_back(
      {"Less " + std::to_string(parts - 1) + "/" + whole + " of bet:", Dollars(amount - part)});
}

void AddVigRow(SettlePrompt& prompt, Money gross) {
  const bool lay = InFamily(prompt.number, LayFamily);
  if (!lay && !InFamily(prompt.number, BuyFamily)) return;
  const Money percent = (lay ? Settings.LayVigPct : Settings.BuyVigPct) * 100;
  prompt.rows.push_back({FormatMoney(percent) + "% vig:", Dollars(gross - Table.GrossWin)});
}

void AddWinRows(SettlePrompt& prompt, Money amount) {
  const std::string count = CountLine(prompt.number);
  if (!count.empty()) prompt.rows.push_back({count, ""});
  const PayoffRow& row = Payoffs.Payoff[0];
  const int parts = PartsOf(prompt.number);
  if (parts > 1) {
    AddPartRows(prompt, amount, parts, row);
  } else {
    const Money gross = PaidAt(amount, row);
    prompt.rows.push_back({std::string(GetText(49)) + RatioText(row) + ":", Dollars(gross)});
    AddVigRow(prompt, gross);
  }
  prompt.rows.push_back(
      {Rounded() ? "Net payoff (rounded): " : "Net payoff: ", Dollars(Table.NetWin)});
}

void AddLossRows(SettlePrompt& prompt, Money amount) {
  prompt.rows.push_back({"Loss at " + RatioText(Payoffs.Payoff[0]), Dollars(-Table.GrossWin)});
  prompt.rows.push_back(
      {Rounded() ? "Net loss (rounded): " : "Net loss: ", Dollars(-Table.NetWin)});
  if (PartsOf(prompt.number) > 1) {
    prompt.rows.push_back({"Remainder: ", Dollars(amount + Table.NetWin)});
  }
}

void SetButtons(SettlePrompt& prompt) {
  if (prompt.offersPress) {
    for (size_t k = 0; k < prompt.buttons.size(); ++k) {
      prompt.buttons[k] = GetText(50 + static_cast<int>(k));
    }
  } else {
    prompt.buttons = {"&No Bet", "&Same Bet", "Bet &Remainder",
                      FormatMoney(Table.ChipUnit) + " to Bet", "&Double Bet"};
  }
}

}  // namespace

Money CheckOfUnits(Money units) {
  const auto check = static_cast<size_t>(std::clamp<int64_t>(units.Floor() - 1, 1, 5));
  return Settings.Denomination[check];
}

std::string UnitsText(Money units) {
  if (units <= Money()) return "$";
  if (units == Money(1)) return "%";
  return FormatMoney(CheckOfUnits(units)) + " Units";
}

SettlePrompt MakeSettlePrompt(int place, Outcome outcome, bool offersPress) {
  SettlePrompt prompt;
  prompt.place = place;
  prompt.number = Table.CurrentBet;
  prompt.outcome = outcome;
  prompt.offersPress = offersPress;
  const Money amount = Bet(place, prompt.number);
  const std::string& name = At(Table.PlayerName, place);
  prompt.rows.push_back({std::string(At(BetName, prompt.number)), Dollars(amount)});
  switch (outcome) {
    case Outcome::Won:
      prompt.title = {name, std::string(GetText(35))};
      AddWinRows(prompt, amount);
      break;
    case Outcome::Lost:
      prompt.title = {std::string(GetText(36)), name};
      AddLossRows(prompt, amount);
      break;
    case Outcome::Idle:
      prompt.title = {name, ""};
      prompt.rows.push_back({"wasn't working!", ""});
  }
  SetButtons(prompt);
  prompt.modify = RowOfSlot(place, offersPress ? PromptWinModify : PromptLossModify);
  prompt.set = RowOfSlot(place, offersPress ? PromptWinSet : PromptLossSet);
  return prompt;
}

}  // namespace tessarel
