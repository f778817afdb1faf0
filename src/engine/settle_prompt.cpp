#include "engine/settle_prompt.h"

#include <algorithm>

#include "base/number_format.h"
#include "engine/bet_handling.h"
#include "state/payoffs.h"
#include "state/settings.h"
#include "state/table.h"
#include "texts/say.h"

namespace tessarel {

namespace {

std::string Dollars(Money amount) {
  return "$" + FormatMoney(amount);
}

std::string Counted(int32_t count, CheckedText<1> one, CheckedText<1> many) {
  return Say(count == 1 ? one : many, count);
}

// What of a hand a bet was paid for; empty for the bets that no count decides.
std::string CountLine(int number) {
  switch (number) {
    case bet::SharpShooter:
      return Counted(Table.SharpShooterPoints, Text::PointWon, Text::PointsWon);
    case bet::RideTheLine:
      return Counted(Table.RideTheLinePasses, Text::PassMade, Text::PassesMade);
    case bet::Fire:
      return Counted(Table.FirePoints, Text::PointMade, Text::PointsMade);
    default:
      return "";
  }
}

// "7 to 6", or "31 for 4" where the stake is part of what is shown.
std::string RatioText(const PayoffRow& row) {
  const bool isFor = row.PayForm == Money(FormFor);
  const Money num = Abs(row.PayNum);
  return SayChosen(isFor ? Text::PaysFor : Text::PaysTo,
                   FormatMoney(isFor ? num + row.PayDen : num), FormatMoney(row.PayDen));
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
  prompt.rows.push_back({Say(Text::PartOfBet, whole), Dollars(part)});
  prompt.rows.push_back({Say(Text::PayoffAt, RatioText(row)), Dollars(PaidAt(part, row))});
  prompt.rows.push_back({Say(Text::LessPartOfBet, parts - 1, whole), Dollars(amount - part)});
}

void AddVigRow(SettlePrompt& prompt, Money gross) {
  const bool lay = InFamily(prompt.number, LayFamily);
  if (!lay && !InFamily(prompt.number, BuyFamily)) return;
  const Money percent = (lay ? Settings.LayVigPct : Settings.BuyVigPct) * 100;
  prompt.rows.push_back(
      {Say(Text::VigPercent, FormatMoney(percent)), Dollars(gross - Table.GrossWin)});
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
    prompt.rows.push_back({Say(Text::PayoffAt, RatioText(row)), Dollars(gross)});
    AddVigRow(prompt, gross);
  }
  prompt.rows.push_back(
      {SayChosen(Rounded() ? Text::NetPayoffRounded : Text::NetPayoff), Dollars(Table.NetWin)});
}

void AddLossRows(SettlePrompt& prompt, Money amount) {
  prompt.rows.push_back(
      {Say(Text::LossAt, RatioText(Payoffs.Payoff[0])), Dollars(-Table.GrossWin)});
  prompt.rows.push_back(
      {SayChosen(Rounded() ? Text::NetLossRounded : Text::NetLoss), Dollars(-Table.NetWin)});
  if (PartsOf(prompt.number) > 1) {
    prompt.rows.push_back({Say(Text::RemainderOfBet), Dollars(amount + Table.NetWin)});
  }
}

void SetButtons(SettlePrompt& prompt) {
  if (prompt.offersPress) {
    prompt.buttons = {Say(Text::TakeBetButton), Say(Text::SameBetButton),
                      Say(Text::PressUnitButton), Say(Text::PressDoubleButton),
                      Say(Text::ParlayButton)};
  } else {
    prompt.buttons = {
        Say(Text::NoBetButton), Say(Text::SameLostBetButton), Say(Text::BetRemainderButton),
        Say(Text::UnitToBetButton, FormatMoney(Table.ChipUnit)), Say(Text::DoubleBetButton)};
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
  return Say(Text::UnitsOf, FormatMoney(CheckOfUnits(units)));
}

SettlePrompt MakeSettlePrompt(int place, Outcome outcome, bool offersPress) {
  SettlePrompt prompt;
  prompt.place = place;
  prompt.number = Table.CurrentBet;
  prompt.outcome = outcome;
  prompt.offersPress = offersPress;
  const Money amount = Bet(place, prompt.number);
  const std::string& name = Table.PlayerName[place];
  prompt.rows.push_back({std::string(BetName[prompt.number]), Dollars(amount)});
  switch (outcome) {
    case Outcome::Won:
      prompt.title = {name, Say(Text::Won)};
      AddWinRows(prompt, amount);
      break;
    case Outcome::Lost:
      prompt.title = {Say(Text::Lost), name};
      AddLossRows(prompt, amount);
      break;
    case Outcome::Idle:
      prompt.title = {name, ""};
      prompt.rows.push_back({Say(Text::WasNotWorking), ""});
  }
  SetButtons(prompt);
  prompt.modify = RowOfSlot(place, offersPress ? PromptWinModify : PromptLossModify);
  prompt.set = RowOfSlot(place, offersPress ? PromptWinSet : PromptLossSet);
  return prompt;
}

}  // namespace tessarel
