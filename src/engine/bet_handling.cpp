#include "engine/bet_handling.h"

#include <array>
#include <string>

#include "base/front_end.h"
#include "base/message.h"
#include "base/number_format.h"
#include "engine/bet_notices.h"
#include "engine/bets.h"
#include "engine/payouts.h"
#include "engine/settle_prompt.h"
#include "state/payoffs.h"
#include "state/settings.h"
#include "state/table.h"
#include "texts/say.h"

namespace tessarel {

namespace {

enum Operation : int32_t { Plus, Minus, Times, Divide };

// "&Same bet" without its shortcut mark.
std::string Plain(std::string_view caption) {
  std::string text(caption);
  std::erase(text, '&');
  return text;
}

Money AmountBefore(const Decision& decision) {
  return Table.BetAmountBefore[decision.place][decision.number];
}

// Tells how the bet stands now against the roll. `title` is only made when it is shown.
template <class Title>
void TellHowItStands(const Decision& decision, Title&& title) {
  const Money amount = Bet(decision.place, decision.number);
  if (!NoticeShows(NoticeCharges) || amount == Money()) return;
  const Money change = amount - AmountBefore(decision);
  const Text text = change == Money()  ? Text::BetUnchanged
                    : change > Money() ? Text::BetIncreased
                                       : Text::BetDecreased;
  Message.MsgText = SayChosen(text, Table.PlayerName[decision.place], BetName[decision.number],
                              FormatMoney(Abs(change)));
  Message.MsgTitle = title();
  Message.MsgWidth = 500;
  Message.MsgFlags = msg::Ok | msg::HideNotice4;
  Message.MsgHelpId = help::SettledBets;
  Message.MsgTimeout = 0;
  ShowMessage();
}

void ChangeBy(const Decision& decision, Money change, bool nearest = false) {
  const Money changed = ChangeBet(
      {.place = decision.place, .number = decision.number, .change = change, .nearest = nearest});
  if (changed != Money()) RedrawBet(decision.place, decision.number);
}

void TakeDown(const Decision& decision) {
  TakeDownBet(decision.place, decision.number);
}

// A bet that has come off goes back at `amount`, as far as the rules allow.
void PutBack(const Decision& decision, Money amount) {
  TakeDown(decision);
  if (amount > Money()) ChangeBy(decision, amount);
}

// What one unit of a modify row adds: a hundredth of the bet, a dollar, or a check times the base
// of the bet's payoff.
Money UnitToAdd(const HandlingRow& row, int number, Money before) {
  if (row.units <= Money()) return 1;
  if (row.units == Money(1)) return Money::FromDouble(before.ToDouble() / 100);
  return CheckOfUnits(row.units) * Payoffs.Payoff[number].PayDen;
}

Money ModifiedChange(const HandlingRow& row, const Decision& decision) {
  const Money before = AmountBefore(decision);
  const double factor = row.amount.ToDouble() * (row.units == Money(1) ? 0.01 : 1.0);
  switch (row.operation) {
    case Plus:
      return row.amount * UnitToAdd(row, decision.number, before);
    case Minus:
      return -(row.amount * UnitToAdd(row, decision.number, before));
    case Times:
      return Money::FromDouble(before.ToDouble() * factor) - before;
    default:
      if (factor <= 0) return Money();
      return Money::FromDouble(before.ToDouble() / factor) - before;
  }
}

std::string FigureText(const HandlingRow& row) {
  if (row.units <= Money()) return "$" + FormatMoney(row.amount);
  if (row.units == Money(1)) return FormatMoney(row.amount) + "%";
  return FormatMoney(row.amount) + " " + UnitsText(row.units);
}

// --- The actions: all but the first end in a notice of how the bet stands ------------------------

void SameBet(const Decision& decision) {
  ChangeBy(decision, Money());
  TellHowItStands(decision, [] { return Plain(Wording(Text::SameBetButton)); });
}

void PressUnit(const Decision& decision) {
  ChangeBy(decision, PressingUnit(decision.place, decision.number));
  TellHowItStands(decision, [] { return Plain(Wording(Text::PressUnitButton)); });
}

void PressDouble(const Decision& decision) {
  ChangeBy(decision, Bet(decision.place, decision.number));
  TellHowItStands(decision, [] { return Plain(Wording(Text::PressDoubleButton)); });
}

void Parlay(const Decision& decision) {
  if (decision.payout.net == Money()) {
    ReplaceBet(decision.place, decision.number, true);
  } else {
    ChangeBy(decision, decision.payout.net, true);
  }
  TellHowItStands(decision, [] { return Plain(Wording(Text::ParlayButton)); });
}

void BetRemainder(const Decision& decision) {
  PutBack(decision, AmountBefore(decision) + decision.payout.net);
  TellHowItStands(decision, [] { return Say(Text::BetRemainderTitle); });
}

void ModifyBet(const Decision& decision, int slot) {
  const HandlingRow row = RowOfSlot(decision.place, slot);
  ChangeBy(decision, ModifiedChange(row, decision));
  TellHowItStands(decision, [&row] {
    constexpr std::array Titles = {Text::SameBetPlus, Text::SameBetMinus, Text::SameBetTimes,
                                   Text::SameBetDividedBy};
    return SayChosen(At(Titles, row.operation & 3), FigureText(row));
  });
}

void SetBetUnits(const Decision& decision, int slot) {
  const HandlingRow row = RowOfSlot(decision.place, slot);
  Money unit = 1;
  if (row.units == Money(1)) {
    unit = Money::FromDouble(AmountBefore(decision).ToDouble() / 100);
  } else if (row.units > Money()) {
    const Money payUnit = Payoffs.Payoff[decision.number].PayUnit;
    unit = Money::FromDouble(MulDiv(payUnit, CheckOfUnits(row.units), SmallestCheck()));
  }
  PutBack(decision, row.amount * unit);
  TellHowItStands(decision, [&row] {
    if (row.units <= Money(1)) return Say(Text::SetBetTitle, FigureText(row));
    return Say(Text::SetBetUnitsTitle, FormatMoney(row.amount));
  });
}

// --- The choice ----------------------------------------------------------------------------------

// The slots whose figures an action takes: those of the prompt or of the standing choice.
struct Slots {
  int modify, set;
};

void ActOnWin(const Decision& decision, int32_t handling, Slots slots) {
  switch (handling) {
    case WinSameBet:
      return SameBet(decision);
    case WinPressUnit:
      return PressUnit(decision);
    case WinPressDouble:
      return PressDouble(decision);
    case WinParlay:
      return Parlay(decision);
    case WinModify:
      return ModifyBet(decision, slots.modify);
    case WinSetUnits:
      return SetBetUnits(decision, slots.set);
    default:
      return TakeDown(decision);
  }
}

void ActOnLoss(const Decision& decision, int32_t handling, Slots slots) {
  switch (handling) {
    case LossSameBet:
      return SameBet(decision);
    case LossRemainder:
      return BetRemainder(decision);
    case LossPressUnit:
      return PressUnit(decision);
    case LossPressDouble:
      return PressDouble(decision);
    case LossModify:
      return ModifyBet(decision, slots.modify);
    case LossSetUnits:
      return SetBetUnits(decision, slots.set);
    default:
      return TakeDown(decision);
  }
}

void Act(const Decision& decision, bool asWin, int32_t handling, Slots slots) {
  if (decision.cantStay) return TakeDown(decision);
  asWin ? ActOnWin(decision, handling, slots) : ActOnLoss(decision, handling, slots);
}

// Asks the player, keeps the figures he typed, and does what he chose if the bet may stay. The
// prompt's buttons stand in the order of the standing choices, which begin with asking.
void AskHandling(const Decision& decision, bool asWin) {
  const Slots slots =
      asWin ? Slots{PromptWinModify, PromptWinSet} : Slots{PromptLossModify, PromptLossSet};
  SettlePrompt prompt = MakeSettlePrompt(decision, asWin);
  FrontEnd.SettleBet(prompt);
  StoreRow(decision.place, slots.modify, prompt.modify);
  StoreRow(decision.place, slots.set, prompt.set);
  Act(decision, asWin, prompt.button + 1, slots);
}

// Odds that were off are handled like a win after two wins in a row of the bet under them.
bool HandledAsWin(const Decision& decision) {
  if (decision.outcome != Outcome::Idle) return decision.outcome == Outcome::Won;
  return Table.BetStreak[decision.place][FlatUnder(decision.number)] >= 2;
}

}  // namespace

void HandleBet(const Decision& decision) {
  const int place = decision.place;
  const bool asWin = HandledAsWin(decision);
  const int32_t mode = asWin ? Table.HandleWinningBets[place] : Table.HandleLosingBets[place];
  static_assert(static_cast<int>(WinPrompt) == 0 && static_cast<int>(LossPrompt) == 0);
  const bool asks =
      mode == WinPrompt && !Table.HyperDriveOn && Bet(place, decision.number) > Money();
  if (asks) return AskHandling(decision, asWin);
  Act(decision, asWin, mode,
      asWin ? Slots{AutoWinModify, AutoWinSet} : Slots{AutoLossModify, AutoLossSet});
}

}  // namespace tessarel
