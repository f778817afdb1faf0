#include "engine/settle_prompt.h"

#include <algorithm>

#include "base/number_format.h"
#include "engine/payouts.h"
#include "state/payoffs.h"
#include "state/settings.h"
#include "state/table.h"
#include "state/vig.h"
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

bool Rounded(const Payout& payout) {
  return payout.net != payout.gross;
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

void AddVigRow(SettlePrompt& prompt, Money vig) {
  if (!CarriesVig(prompt.number)) return;
  const bool lay = InFamily(prompt.number, LayFamily);
  const Money percent = (lay ? Settings.LayVigPct : Settings.BuyVigPct) * 100;
  prompt.rows.push_back({FillIn(BetTexts.VigPercent, {FormatMoney(percent)}), Dollars(vig)});
}

void AddWinRows(SettlePrompt& prompt, const Decision& decision) {
  const Money amount = decision.amount;
  const std::string count = CountLine(prompt.number);
  if (!count.empty()) prompt.rows.push_back({count, ""});
  const PayoffRow row = DecidingRow(decision.number, decision.result);
  const int parts = PartsOf(prompt.number);
  if (parts > 1) {
    AddPartRows(prompt, amount, parts, row);
  } else {
    const Money gross = PaidAt(amount, row);
    prompt.rows.push_back({std::string(GetText(49)) + RatioText(row) + ":", Dollars(gross)});
    AddVigRow(prompt, gross - decision.payout.gross);
  }
  prompt.rows.push_back(
      {LocalizedText(Rounded(decision.payout) ? BetTexts.NetPayoffRounded : BetTexts.NetPayoff),
       Dollars(decision.payout.net)});
}

void AddLossRows(SettlePrompt& prompt, const Decision& decision) {
  const Payout& payout = decision.payout;
  prompt.rows.push_back(
      {FillIn(BetTexts.LossAt, {RatioText(DecidingRow(decision.number, decision.result))}),
       Dollars(-payout.gross)});
  prompt.rows.push_back(
      {LocalizedText(Rounded(payout) ? BetTexts.NetLossRounded : BetTexts.NetLoss),
       Dollars(-payout.net)});
  if (PartsOf(prompt.number) > 1) {
    prompt.rows.push_back(
        {LocalizedText(BetTexts.Remainder), Dollars(decision.amount + payout.net)});
  }
}

void SetButtons(SettlePrompt& prompt) {
  if (prompt.offersPress) {
    for (size_t k = 0; k < prompt.buttons.size(); ++k) {
      prompt.buttons[k] = GetText(50 + static_cast<int>(k));
    }
  } else {
    prompt.buttons = {
        LocalizedText(BetTexts.NoBet), LocalizedText(BetTexts.SameBet),
        LocalizedText(BetTexts.BetRemainder),
        FillIn(BetTexts.UnitToBet, {FormatMoney(PressingUnit(prompt.place, prompt.number))}),
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

SettlePrompt MakeSettlePrompt(const Decision& decision, bool offersPress) {
  const int place = decision.place;
  SettlePrompt prompt;
  prompt.place = place;
  prompt.number = decision.number;
  prompt.outcome = decision.outcome;
  prompt.offersPress = offersPress;
  const std::string& name = Table.PlayerName[place];
  prompt.rows.push_back({std::string(BetName[prompt.number]), Dollars(decision.amount)});
  switch (decision.outcome) {
    case Outcome::Won:
      prompt.title = {name, std::string(GetText(35))};
      AddWinRows(prompt, decision);
      break;
    case Outcome::Lost:
      prompt.title = {std::string(GetText(36)), name};
      AddLossRows(prompt, decision);
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
