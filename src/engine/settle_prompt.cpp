#include "engine/settle_prompt.h"

#include <algorithm>

#include "base/number_format.h"
#include "engine/bet_handling.h"
#include "state/payoffs.h"
#include "state/settings.h"
#include "state/table.h"
#include "texts/bet_texts.h"
#include "texts/language.h"

namespace tessarel {

namespace {

std::string Dollars(Money amount) {
  return "$" + FormatMoney(amount);
}

std::string Counted(int32_t count, const SixTexts& one, const SixTexts& many) {
  return FillIn(count == 1 ? one : many, {std::to_string(count)});
}

// What of a hand a bet was paid for; empty for the bets that no count decides.
std::string CountLine(int number) {
  switch (number) {
    case bet::SharpShooter:
      return Counted(Table.SharpShooterPoints, BetTexts.PointWon, BetTexts.PointsWon);
    case bet::RideTheLine:
      return Counted(Table.RideTheLinePasses, BetTexts.PassMade, BetTexts.PassesMade);
    case bet::Fire:
      return Counted(Table.FirePoints, BetTexts.PointMade, BetTexts.PointsMade);
    default:
      return "";
  }
}

// "7 to 6", or "31 for 4" where the stake is part of what is shown.
std::string RatioText(const PayoffRow& row) {
  const bool isFor = row.PayForm == Money(FormFor);
  const Money num = Abs(row.PayNum);
  return FillIn(isFor ? BetTexts.PaysFor : BetTexts.PaysTo,
                {FormatMoney(isFor ? num + row.PayDen : num), FormatMoney(row.PayDen)});
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
  prompt.rows.push_back({FillIn(BetTexts.PartOfBet, {whole}), Dollars(part)});
  prompt.rows.push_back(
      {std::string(GetText(49)) + RatioText(row) + ":", Dollars(PaidAt(part, row))});
  prompt.rows.push_back(
      {FillIn(BetTexts.LessPartOfBet, {std::to_string(parts - 1), whole}), Dollars(amount - part)});
}

void AddVigRow(SettlePrompt& prompt, Money gross) {
  const bool lay = InFamily(prompt.number, LayFamily);
  if (!lay && !InFamily(prompt.number, BuyFamily)) return;
  const Money percent = (lay ? Settings.LayVigPct : Settings.BuyVigPct) * 100;
  prompt.rows.push_back(
      {FillIn(BetTexts.VigPercent, {FormatMoney(percent)}), Dollars(gross - Table.GrossWin)});
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
  prompt.rows.push_back({LocalizedText(Rounded() ? BetTexts.NetPayoffRounded : BetTexts.NetPayoff),
                         Dollars(Table.NetWin)});
}

void AddLossRows(SettlePrompt& prompt, Money amount) {
  prompt.rows.push_back(
      {FillIn(BetTexts.LossAt, {RatioText(Payoffs.Payoff[0])}), Dollars(-Table.GrossWin)});
  prompt.rows.push_back({LocalizedText(Rounded() ? BetTexts.NetLossRounded : BetTexts.NetLoss),
                         Dollars(-Table.NetWin)});
  if (PartsOf(prompt.number) > 1) {
    prompt.rows.push_back({LocalizedText(BetTexts.Remainder), Dollars(amount + Table.NetWin)});
  }
}

void SetButtons(SettlePrompt& prompt) {
  if (prompt.offersPress) {
    for (size_t k = 0; k < prompt.buttons.size(); ++k) {
      prompt.buttons[k] = GetText(50 + static_cast<int>(k));
    }
  } else {
    prompt.buttons = {LocalizedText(BetTexts.NoBet), LocalizedText(BetTexts.SameBet),
                      LocalizedText(BetTexts.BetRemainder),
                      FillIn(BetTexts.UnitToBet, {FormatMoney(Table.ChipUnit)}),
                      LocalizedText(BetTexts.DoubleBet)};
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
  return FillIn(BetTexts.Units, {FormatMoney(CheckOfUnits(units))});
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
      prompt.title = {name, std::string(GetText(35))};
      AddWinRows(prompt, amount);
      break;
    case Outcome::Lost:
      prompt.title = {std::string(GetText(36)), name};
      AddLossRows(prompt, amount);
      break;
    case Outcome::Idle:
      prompt.title = {name, ""};
      prompt.rows.push_back({LocalizedText(BetTexts.WasNotWorking), ""});
  }
  SetButtons(prompt);
  prompt.modify = RowOfSlot(place, offersPress ? PromptWinModify : PromptLossModify);
  prompt.set = RowOfSlot(place, offersPress ? PromptWinSet : PromptLossSet);
  return prompt;
}

}  // namespace tessarel
