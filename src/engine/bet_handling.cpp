#include "engine/bet_handling.h"

#include <string>
#include <utility>

#include "base/front_end.h"
#include "base/message.h"
#include "base/number_format.h"
#include "engine/bets.h"
#include "engine/settlement.h"
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

Money AmountBefore(int place) {
  return Table.BetAmountBefore[place][Table.CurrentBet];
}

// Tells how the bet stands now against the roll. `title` is only made when it is shown.
template <class Title>
void TellHowItStands(int place, Title&& title) {
  const Money amount = Bet(place, Table.CurrentBet);
  const bool quiet = Table.HyperDriveOn || (Table.MessageSwitches & ShowVigNotices) == 0 ||
                     (Settings.Notices & NoticeCharges) == 0;
  if (quiet || amount == Money()) return;
  const Money change = amount - AmountBefore(place);
  const Text text = change == Money()  ? Text::BetUnchanged
                    : change > Money() ? Text::BetIncreased
                                       : Text::BetDecreased;
  Message.MsgText =
      SayChosen(text, Table.PlayerName[place], BetName[Table.CurrentBet], FormatMoney(Abs(change)));
  Message.MsgTitle = title();
  Message.MsgWidth = 500;
  Message.MsgFlags = msg::Ok | msg::HideNotice4;
  Message.MsgHelpId = help::SettledBets;
  Message.MsgTimeout = 0;
  Message.MsgKind = MessageKind::Notice;
  ShowMessage();
}

void ChangeBy(int place, Money change) {
  Table.Amount = change;
  ChangeBet(place, Table.CurrentBet);
  if (Table.BetDelta != Money()) RedrawBet(place, Table.CurrentBet);
}

// A bet that has come off goes back at `amount`, as far as the rules allow.
void PutBack(int place, Money amount) {
  TakeDownBet(place);
  if (amount > Money()) ChangeBy(place, amount);
}

// What one unit of a modify row adds: a hundredth of the bet, a dollar, or a check times the base
// of the bet's payoff.
Money UnitToAdd(const HandlingRow& row, Money before) {
  if (row.units <= Money()) return 1;
  if (row.units == Money(1)) return Money::FromDouble(before.ToDouble() / 100);
  return CheckOfUnits(row.units) * Payoffs.Payoff[Table.CurrentBet].PayDen;
}

Money ModifiedChange(const HandlingRow& row, Money before) {
  const double factor = row.amount.ToDouble() * (row.units == Money(1) ? 0.01 : 1.0);
  switch (row.operation) {
    case Plus:
      return row.amount * UnitToAdd(row, before);
    case Minus:
      return -(row.amount * UnitToAdd(row, before));
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

// Holds the four biases of a place at "nearest" for its lifetime.
class NearestAmounts {
 public:
  explicit NearestAmounts(int place)
      : place_(place),
        saved_{Table.DoBias[place], Table.DontBias[place], Table.PlaceBias[place],
               Table.LayBias[place]} {
    Set({2, 2, 2, 2});
  }
  ~NearestAmounts() { Set(saved_); }
  NearestAmounts(const NearestAmounts&) = delete;
  NearestAmounts& operator=(const NearestAmounts&) = delete;

 private:
  void Set(const std::array<int32_t, 4>& biases) {
    Table.DoBias[place_] = biases[0];
    Table.DontBias[place_] = biases[1];
    Table.PlaceBias[place_] = biases[2];
    Table.LayBias[place_] = biases[3];
  }

  int place_;
  std::array<int32_t, 4> saved_;
};

void StoreRow(int place, int slot, const HandlingRow& row) {
  Table.HandleAmount[place][slot] = row.amount;
  Table.HandleOperator[place][slot] = row.operation;
  Table.HandleUnits[place][slot] = row.units;
}

void ActOnWin(int place, int button) {
  switch (button) {
    case 1:
      return SameBet(place);
    case 2:
      return PressUnit(place);
    case 3:
      return PressDouble(place);
    case 4:
      return Parlay(place);
    case 5:
      return ModifyBet(place, PromptWinModify);
    case 6:
      return SetBetUnits(place, PromptWinSet);
    default:
      return TakeDownBet(place);
  }
}

void ActOnLoss(int place, int button) {
  switch (button) {
    case 1:
      return SameBet(place);
    case 2:
      return BetRemainder(place);
    case 3:
      return PressUnit(place);
    case 4:
      return PressDouble(place);
    case 5:
      return ModifyBet(place, PromptLossModify);
    case 6:
      return SetBetUnits(place, PromptLossSet);
    default:
      return TakeDownBet(place);
  }
}

// Asks the player, keeps the figures he typed, and does what he chose if the bet may stay.
void AskHandling(int place, Outcome outcome, bool asWin) {
  FigureUnit(place, Table.CurrentBet);
  SettlePrompt prompt = MakeSettlePrompt(place, outcome, asWin);
  FrontEnd.SettleBet(prompt);
  StoreRow(place, asWin ? PromptWinModify : PromptLossModify, prompt.modify);
  StoreRow(place, asWin ? PromptWinSet : PromptLossSet, prompt.set);
  Table.CurrentBet = prompt.number;
  if (Table.BetCantStay) return TakeDownBet(place);
  if (asWin) {
    ActOnWin(place, prompt.button);
  } else {
    ActOnLoss(place, prompt.button);
  }
}

bool CanAsk(int place) {
  return !Table.HyperDriveOn && Bet(place, Table.CurrentBet) > Money();
}

void RunWinMode(int place, Outcome outcome) {
  const int32_t mode = Table.HandleWinningBets[place];
  if (mode == WinPrompt && CanAsk(place)) return AskHandling(place, outcome, true);
  if (Table.BetCantStay) return TakeDownBet(place);
  switch (mode) {
    case WinSameBet:
      return SameBet(place);
    case WinPressUnit:
      return PressUnit(place);
    case WinPressDouble:
      return PressDouble(place);
    case WinParlay:
      return Parlay(place);
    case WinModify:
      return ModifyBet(place, AutoWinModify);
    case WinSetUnits:
      return SetBetUnits(place, AutoWinSet);
    default:
      return TakeDownBet(place);
  }
}

void RunLossMode(int place, Outcome outcome) {
  const int32_t mode = Table.HandleLosingBets[place];
  if (mode == LossPrompt && CanAsk(place)) return AskHandling(place, outcome, false);
  if (Table.BetCantStay) return TakeDownBet(place);
  switch (mode) {
    case LossSameBet:
      return SameBet(place);
    case LossRemainder:
      return BetRemainder(place);
    case LossPressUnit:
      return PressUnit(place);
    case LossPressDouble:
      return PressDouble(place);
    case LossModify:
      return ModifyBet(place, AutoLossModify);
    case LossSetUnits:
      return SetBetUnits(place, AutoLossSet);
    default:
      return TakeDownBet(place);
  }
}

}  // namespace

HandlingRow RowOfSlot(int place, int slot) {
  return {Table.HandleAmount[place][slot], Table.HandleOperator[place][slot],
          Table.HandleUnits[place][slot]};
}

void SameBet(int place) {
  ChangeBy(place, Money());
  TellHowItStands(place, [] { return Plain(Wording(Text::SameBetButton)); });
}

void PressUnit(int place) {
  FigureUnit(place, Table.CurrentBet);
  ChangeBy(place, Table.ChipUnit);
  TellHowItStands(place, [] { return Plain(Wording(Text::PressUnitButton)); });
}

void PressDouble(int place) {
  ChangeBy(place, Bet(place, Table.CurrentBet));
  TellHowItStands(place, [] { return Plain(Wording(Text::PressDoubleButton)); });
}

void Parlay(int place) {
  const NearestAmounts nearest(place);
  if (Table.NetWin == Money()) {
    ReplaceBet(place, Table.CurrentBet);
  } else {
    ChangeBy(place, Table.NetWin);
  }
  TellHowItStands(place, [] { return Plain(Wording(Text::ParlayButton)); });
}

void BetRemainder(int place) {
  PutBack(place, AmountBefore(place) + Table.NetWin);
  TellHowItStands(place, [] { return Say(Text::BetRemainderTitle); });
}

void ModifyBet(int place, int slot) {
  const HandlingRow row = RowOfSlot(place, slot);
  ChangeBy(place, ModifiedChange(row, AmountBefore(place)));
  TellHowItStands(place, [&row] {
    constexpr std::array Titles = {Text::SameBetPlus, Text::SameBetMinus, Text::SameBetTimes,
                                   Text::SameBetDividedBy};
    return SayChosen(At(Titles, row.operation & 3), FigureText(row));
  });
}

void SetBetUnits(int place, int slot) {
  const HandlingRow row = RowOfSlot(place, slot);
  Money unit = 1;
  if (row.units == Money(1)) {
    unit = Money::FromDouble(AmountBefore(place).ToDouble() / 100);
  } else if (row.units > Money()) {
    const Money payUnit = Payoffs.Payoff[Table.CurrentBet].PayUnit;
    unit = Money::FromDouble(MulDiv(payUnit, CheckOfUnits(row.units), SmallestCheck()));
  }
  PutBack(place, row.amount * unit);
  TellHowItStands(place, [&row] {
    if (row.units <= Money(1)) return Say(Text::SetBetTitle, FigureText(row));
    return Say(Text::SetBetUnitsTitle, FormatMoney(row.amount));
  });
}

void HandleWonBet(int place) {
  RunWinMode(place, Outcome::Won);
}

void HandleLostBet(int place) {
  RunLossMode(place, Outcome::Lost);
}

void HandleIdleOdds(int place) {
  const int odds = Table.CurrentBet;
  Table.NetWin = Table.GrossWin = Money();
  Table.BetCantStay =
      !Settings.AllowPutBets || Bet(place, FlatUnder(odds)) == Money() || IsLineOdds(odds);
  const bool asLoss = Table.BetStreak[place][FlatUnder(odds)] < 2;
  if (asLoss) {
    RunLossMode(place, Outcome::Idle);
  } else {
    RunWinMode(place, Outcome::Idle);
  }
}

}  // namespace tessarel
