#include "engine/bets.h"

#include <algorithm>
#include <string>
#include <utility>

#include "base/front_end.h"
#include "base/message.h"
#include "base/number_format.h"
#include "engine/amount_adjustment.h"
#include "engine/bet_limits.h"
#include "engine/bet_refusals.h"
#include "state/settings.h"
#include "state/table.h"
#include "texts/say.h"

namespace tessarel {

namespace {

constexpr Money StackLimit = Money::FromRaw(999'999'999'999'999'999);

// More than any bet may be: asks for the largest legal amount.
constexpr Money AllThatIsAllowed = 9'999'999;

bool Quiet(int32_t messageSwitch) {
  return Table.HyperDriveOn || (Table.MessageSwitches & messageSwitch) == 0;
}

std::string BetTitle(int number) {
  if (IsStack(number)) return "CheckStack #" + std::to_string(number - FirstStack);
  return Say(Text::BetTitle, BetName[number]);
}

// A change on its way through the rules: the change they leave so far and what they said.
class Change {
 public:
  Change(int place, int number) : place_(place), number_(number), delta_(Table.Amount) {}

  void Run() {
    RoundToChecks();
    delta_ = std::max(delta_, -Amount());
    const bool refused = ApplyRefusals();
    ended_ = refused && delta_ == Money();
    if (!ended_) {
      // What a refusal leaves fills up to the contract: it is neither raised nor rounded.
      const bool asked = !refused && delta_ != Money();
      if (asked) ApplyMinimum();
      ApplyMaximum();
      if (asked && Total() > Money()) Adjust();
      ApplyBankroll();
    }
    Tell();
    Table.BetDelta = delta_;
  }

 private:
  Money Amount() const { return Bet(place_, number_); }
  Money Total() const { return Amount() + delta_; }

  // Adds a part to the message. `text` is only built when somebody will see it.
  template <class Maker>
  void Notify(Notice notice, Maker&& text) {
    if (Quiet(ShowRejections) || (Settings.Notices & notice) == 0) return;
    if (!text_.empty()) text_ += "\r\r";
    text_ += text();
    hide_ = notice == NoticeActionsNotAllowed ? msg::HideNotice1 : msg::HideNotice2;
  }

  void RoundToChecks() {
    delta_ = delta_ < Money() ? FloorToMultiple(delta_, SmallestCheck())
                              : CeilingToMultiple(delta_, SmallestCheck());
  }

  // Returns whether there was one.
  bool ApplyRefusals() {
    const Verdict verdict = JudgeChange(place_, number_, delta_);
    delta_ = verdict.delta;
    if (verdict.refusal == RefusalKind::None) return false;
    Notify(NoticeActionsNotAllowed, [&] {
      return Table.PlayerName[place_] + ",\r\r" + RefusalText(verdict.refusal, number_);
    });
    return true;
  }

  void ApplyMinimum() {
    const Money minimum = BetMinimum(number_);
    if (Total() <= Money() || Total() >= minimum) return;
    if (delta_ < Money()) {
      delta_ = HeldContract(place_, number_) - Amount();
      return;
    }
    Notify(NoticeLimits,
           [&] { return Say(Text::MinimumBet, BetName[number_], FormatMoney(minimum)); });
    delta_ = minimum - Amount();
  }

  void ApplyMaximum() {
    const Money limit = FigureMaxBet(place_, number_);
    if (Total() <= limit) return;
    const std::string_view name = BetName[number_];
    Notify(NoticeLimits, [&] { return Say(Text::MaximumBet, name, FormatMoney(limit)); });
    const Money contract = HeldContract(place_, number_);
    if (contract > limit) {
      Notify(NoticeLimits,
             [&] { return Say(Text::ContractAboveMaximum, name, FormatMoney(contract)); });
    }
    delta_ = std::max(limit, contract) - Amount();
  }

  void Adjust() {
    if (!Table.AutoAdjustBetAmounts[place_]) return;
    const Adjustment adjustment = AdjustForOddsPayoff(place_, number_, Total());
    if (adjustment.possible) {
      delta_ = adjustment.total - Amount();
      return;
    }
    Notify(NoticeLimits, [&] {
      unable_ = true;
      return SayChosen(
          adjustment.limitIsMaximum ? Text::UnableToAdjustMaximum : Text::UnableToAdjustMinimum,
          FormatMoney(adjustment.total));
    });
  }

  // What the change takes from the bankroll: itself and the up-front vig it moves.
  Money Cost(Money delta) const {
    Money cost = delta;
    if (Settings.BuyVigAllBets && InFamily(number_, BuyFamily)) {
      cost += FigureBuyVig(number_, Amount() + delta) - VigNow();
    }
    if (Settings.LayVigAllBets && InFamily(number_, LayFamily)) {
      cost += FigureLayVig(number_, Amount() + delta) - VigNow();
    }
    return cost;
  }

  Money VigNow() const {
    const auto& vigs = InFamily(number_, BuyFamily) ? Table.BuyVig : Table.LayVig;
    return At(At(vigs, place_), (number_ - 1) % FamilySize);
  }

  void ApplyBankroll() {
    if (Total() == Money() || Table.AllowNegBankroll[place_]) return;
    const Money left = BankrollOf(place_) - Table.MoneyOnTable[place_];
    if (Cost(delta_) <= left) return;
    delta_ = LargestAffordable(left);
    const Money held = HeldContract(place_, number_);
    if (Total() < std::max(BetMinimum(number_), held)) delta_ = held - Amount();
    Notify(NoticeLimits, [] { return Wording(Text::NotEnoughBankroll); });
  }

  // The largest change in whole checks that `left` pays for, at least the bet coming off. The vig
  // never falls as the bet grows, so the search can halve its range.
  Money LargestAffordable(Money left) const {
    const Money check = SmallestCheck();
    Money low = -Amount();
    const Money top = std::min(delta_, left + VigNow());
    int64_t steps = top > low ? (top - low).Raw() / check.Raw() : 0;
    while (steps > 0) {
      const int64_t half = (steps + 1) / 2;
      const Money candidate = low + Money::FromRaw(check.Raw() * half);
      if (Cost(candidate) <= left) {
        low = candidate;
        steps -= half;
      } else {
        steps = half - 1;
      }
    }
    return low;
  }

  void Tell() {
    if (text_.empty()) return;
    if (!Quiet(ShowAlreadyBet) && !unable_ && !ended_) {
      text_ += "\r\r" + SayChosen(delta_ == Money() ? Text::AlreadyBet : Text::BeingBet,
                                  FormatMoney(Total()));
    }
    ShowMessage(std::move(text_), BetTitle(number_), msg::OkAlert | hide_, help::Bets);
  }

  int place_, number_;
  Money delta_;
  std::string text_;
  int32_t hide_ = 0;
  bool ended_ = false;   // refused to nothing: no word on what is bet
  bool unable_ = false;  // to adjust: the same
};

void TellVig(int number, Money vig, Money change, bool upFront) {
  if (Quiet(ShowVigNotices) || (Settings.Notices & NoticeCharges) == 0) return;
  std::string text;
  if (vig == Money()) {
    text = Say(Text::VigReturned, FormatMoney(-change));
  } else {
    text = SayChosen(upFront ? Text::VigCharged : Text::VigIfWon, FormatMoney(vig));
    text += "\r" + SayChosen(change > Money() ? Text::VigIncreased : Text::VigDecreased,
                             FormatMoney(Abs(change)));
  }
  ShowMessage(std::move(text), BetTitle(number), msg::Ok | msg::PictureAlert | msg::HideNotice4,
              help::OddsVigAndCalls);
}

void MoveVig(int number, Money& stored, Money vig, Money& onTable, bool upFront, bool silent) {
  const Money change = vig - stored;
  if (change == Money()) return;
  stored = vig;
  if (upFront) onTable += change;
  if (!silent) TellVig(number, vig, change, upFront);
}

// Puts a bet at `amount` with all that follows from it: the money on the table, the working state
// of a bet that came off, and the vig.
void StandAt(int place, int number, Money amount, bool silent) {
  Money& onTable = Table.MoneyOnTable[place];
  onTable += amount - Bet(place, number);
  SetBetAmount(place, number, amount);
  if (amount == Money()) ResetBetWorking(place, number);
  Table.TableDirty = Table.BetChangedThisRoll = true;
  const size_t index = static_cast<size_t>((number - 1) % FamilySize);
  if (InFamily(number, BuyFamily)) {
    MoveVig(number, Table.BuyVig[place][index], FigureBuyVig(number, amount), onTable,
            Settings.BuyVigAllBets, silent);
  } else if (InFamily(number, LayFamily)) {
    MoveVig(number, Table.LayVig[place][index], FigureLayVig(number, amount), onTable,
            Settings.LayVigAllBets, silent);
  }
}

void ChangeStack(int place, int number) {
  const Money amount = Bet(place, number);
  Money delta = Table.Amount;
  std::string text;
  if (delta < -amount) {
    delta = -amount;
    text = Say(Text::StackMinimum, FormatMoney(Money()));
  } else if (delta > StackLimit - amount) {
    delta = StackLimit - amount;
    text = Say(Text::StackMaximum, FormatMoney(StackLimit));
  }
  SetBetAmount(place, number, amount + delta);
  Table.BetDelta = delta;
  if (text.empty() || Quiet(ShowRejections) || (Settings.Notices & NoticeLimits) == 0) return;
  if (!Quiet(ShowAlreadyBet)) {
    text += "\r\r" + SayChosen(delta == Money() ? Text::AlreadyStacked : Text::BeingStacked,
                               FormatMoney(amount + delta));
  }
  ShowMessage(std::move(text), BetTitle(number), msg::OkAlert | msg::HideNotice2, help::Bets);
}

// Changes within a roll are shown when it ends.
void RefreshViews() {
  if (!Table.HyperDriveOn && !Table.RollInProgress) FrontEnd.RefreshViews();
}

// The place whose Lay bets share the spot of this one's.
constexpr int LayNeighbour(int place) {
  return place <= 4 ? 5 - place : 13 - place;
}

// The odds that follow a flat bet and the setting that keeps them full; 0 when none follow now.
int FollowingOdds(int place, int number, bool& keepFull) {
  const bool onNumber = InFamily(number, ComeFamily) || InFamily(number, DontComeFamily);
  const bool line = number == bet::PassLine || number == bet::DontPass;
  if (!onNumber && !(line && Table.Point != 0)) return 0;
  const bool dont = number == bet::DontPass || InFamily(number, DontComeFamily);
  keepFull = At(dont ? Table.AutoLayFullOdds : Table.AutoTakeFullOdds, place) != 0;
  return line ? number + 1 : number + FamilySize;
}

void FollowWithOdds(int place, int number) {
  bool keepFull = false;
  const int odds = FollowingOdds(place, number, keepFull);
  if (odds == 0) return;
  const Money delta = Table.BetDelta;
  if (keepFull || Bet(place, odds) > FigureMaxBet(place, odds)) ReplaceBet(place, odds);
  Table.BetDelta = delta;
}

void ReplaceWhereFlat(int place, int flat, int odds) {
  if (Bet(place, flat) > Money()) ReplaceBet(place, odds);
}

// Pass Line, Don't Pass, the boxes and travelled bets cannot be called, nor can the special bets.
bool CanBeCalled(int number) {
  if (number >= bet::AllSmall) return number == bet::Midway;
  return number != bet::PassLine && number != bet::DontPass && number != bet::Come &&
         number != bet::DontCome && !InFamily(number, ComeFamily) &&
         !InFamily(number, DontComeFamily);
}

void TellNotAllowed(std::string text) {
  if (Quiet(ShowRejections) || (Settings.Notices & NoticeActionsNotAllowed) == 0) return;
  ShowMessage(std::move(text), Say(Text::ActionNotAllowed), msg::OkAlert | msg::HideNotice1,
              help::OddsVigAndCalls);
}

}  // namespace

SilentBets::SilentBets() : saved_(std::exchange(Table.MessageSwitches, 0)) {}

SilentBets::~SilentBets() {
  Table.MessageSwitches = saved_;
}

void ChangeBet(int place, int number) {
  if (IsStack(number)) {
    ChangeStack(place, number);
  } else if (number < 1 || number > LastBet) {
    Table.BetDelta = Money();
  } else {
    Change(place, number).Run();
    if (Table.BetDelta != Money()) {
      StandAt(place, number, Bet(place, number) + Table.BetDelta, false);
    }
  }
  if (Table.BetDelta != Money()) RefreshViews();
}

void PlaceBet(int place, int number, int x, int y) {
  Table.BetX[place][number] = x;
  Table.BetY[place][number] = y;
  PlaceBet(place, number);
}

void PlaceBet(int place, int number) {
  ChangeBet(place, number);
  if (!Table.HyperDriveOn && !Settings.DisableAllSound) FrontEnd.PlaySound(Sound::Check);
  RedrawBet(place, number);
  if (Table.BetDelta != Money()) FollowWithOdds(place, number);
}

void RedrawBet(int place, int number) {
  if (Table.HyperDriveOn) return;
  FrontEnd.DrawBet(place, number);
  if (number == bet::DontPass) FrontEnd.DrawBet(place, bet::DontPassOdds);
  if (number == bet::DontPassOdds) FrontEnd.DrawBet(place, bet::DontPass);
  if (InFamily(number, LayFamily)) FrontEnd.DrawBet(LayNeighbour(place), number);
}

void RemoveBet(int place, int number) {
  Table.Amount = -Bet(place, number);
  PlaceBet(place, number);
}

void RemovePlaceBets(int place, int point) {
  for (const Family family : {PlaceFamily, BuyFamily}) {
    const int number = BetOn(family, point);
    if (Bet(place, number) > Money()) RemoveBet(place, number);
  }
}

void DownPlaceBets(int place) {
  if (Table.Point != 0 && Bet(place, bet::PassLine) > Money()) RemovePlaceBets(place, Table.Point);
  for (const int point : PointNumbers) {
    if (Bet(place, BetOn(ComeFamily, point)) > Money()) RemovePlaceBets(place, point);
  }
}

void TakeDownBet(int place) {
  const int number = Table.CurrentBet;
  Table.BetDelta = -Bet(place, number);
  StandAt(place, number, Money(), true);
  RedrawBet(place, number);
}

void ReplaceBet(int place, int number) {
  const SilentBets silent;
  StandAt(place, number, Money(), true);
  Table.Amount = AllThatIsAllowed;
  ChangeBet(place, number);
  RedrawBet(place, number);
}

void BetFullOdds(int place) {
  if (Table.Point == 0) return;
  ReplaceWhereFlat(place, bet::PassLine, bet::PassLineOdds);
  for (int flat = bet::Come4; flat <= bet::Come10; ++flat) {
    ReplaceWhereFlat(place, flat, flat + FamilySize);
  }
}

void BetFullLay(int place) {
  if (Table.Point == 0) return;
  ReplaceWhereFlat(place, bet::DontPass, bet::DontPassOdds);
  for (int flat = bet::DontCome4; flat <= bet::DontCome10; ++flat) {
    ReplaceWhereFlat(place, flat, flat + FamilySize);
  }
}

void BuyPlaceBet(int place, int number) {
  if (!IsBet(number)) return;
  const Money amount = Bet(place, number);
  if (InFamily(number, BuyFamily) || amount == Money()) return;
  if (!InFamily(number, PlaceFamily)) {
    TellNotAllowed(Say(Text::OnlyPlaceBetsBought));
    return;
  }
  const int32_t working = Table.BetWorking[place][number];
  const int buy = number + FamilySize;
  StandAt(place, number, Money(), true);
  RedrawBet(place, number);
  Table.Amount = amount;
  PlaceBet(place, buy);
  const bool called = working == CalledOn || working == CalledOff;
  if (called && Bet(place, buy) > Money()) SetBetWorking(place, buy, working);
}

void CallBet(int place, int number, CallState state) {
  if (!IsBet(number)) return;
  if (!CanBeCalled(number)) {
    TellNotAllowed(Say(Text::BetNotCallable, BetName[number]));
    return;
  }
  const int32_t opposite = state == CallOn ? CalledOff : CalledOn;
  if (Table.BetWorking[place][number] == opposite) {
    ResetBetWorking(place, number);
  } else {
    SetBetWorking(place, number, state == CallOn ? CalledOn : CalledOff);
  }
  RedrawBet(place, number);
}

void ResetBetWorking(int place, int number) {
  const int32_t normal = Table.Point != 0 ? IsWorking : Table.BetWorkingDefault[place][number];
  if (Table.BetWorking[place][number] != normal) SetBetWorking(place, number, normal);
}

void UpdateWorkingFlags() {
  const bool pointOn = Table.Point != 0;
  ForEachPlayer([pointOn](int place) {
    auto& working = Table.BetWorking[place];
    const auto& defaults = Table.BetWorkingDefault[place];
    for (size_t number = 1; number <= LastBet; ++number) {
      const int32_t state = working[number];
      const bool called = state == CalledOn || state == CalledOff;
      const int32_t normal = pointOn ? (state == NotWorking ? IsWorking : state) : defaults[number];
      working[number] = called ? state : normal;
    }
    Table.WorkingChanged[place] = true;
  });
}

}  // namespace tessarel
