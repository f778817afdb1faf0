#include "engine/bets.h"

#include <string>
#include <utility>

#include "base/front_end.h"
#include "engine/bet_limits.h"
#include "engine/bet_notices.h"
#include "state/settings.h"
#include "state/table.h"
#include "state/vig.h"
#include "texts/say.h"

namespace tessarel {

namespace {

// More than any bet may be: asks for the largest legal amount.
constexpr Money AllThatIsAllowed = 9'999'999;

// Puts a bet at `amount`, with the vig that it carries there, and all that follows from it: the
// money on the table and the working state of a bet that came off.
void StandAt(int place, int number, Money amount, Money vig, Telling telling) {
  Money& onTable = Table.MoneyOnTable[place];
  onTable += amount - Bet(place, number);
  SetBetAmount(place, number, amount);
  if (amount == Money()) ResetBetWorking(place, number);
  Table.TableDirty = Table.BetChangedThisRoll = true;
  if (!CarriesVig(number)) return;
  const Money moved = vig - StoredVig(place, number);
  if (moved == Money()) return;
  StoredVig(place, number) = vig;
  if (ChargesVigUpFront(number)) onTable += moved;
  if (telling == Telling::Aloud) TellVig(number, vig, moved);
}

void TakeOff(int place, int number) {
  StandAt(place, number, Money(), Money(), Telling::Silent);
}

// Changes within a roll are shown when it ends.
void RefreshViews() {
  if (!Table.HyperDriveOn && !Table.RollInProgress) FrontEnd.RefreshViews();
}

// The place whose Lay bets share the spot of this one's.
constexpr int LayNeighbour(int place) {
  return place <= 4 ? 5 - place : 13 - place;
}

// The odds that follow a flat bet now; 0 for none.
int FollowingOdds(int number) {
  const bool line = number == bet::PassLine || number == bet::DontPass;
  return line && Table.Point == 0 ? 0 : OddsOn(number);
}

void FollowWithOdds(int place, int number) {
  const int odds = FollowingOdds(number);
  if (odds == 0) return;
  const bool keepFull =
      IsLaidOdds(odds) ? Table.AutoLayFullOdds[place] : Table.AutoTakeFullOdds[place];
  if (keepFull || Bet(place, odds) > FigureMaxBet(place, odds)) ReplaceBet(place, odds);
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

}  // namespace

Money Apply(const Plan& plan, Telling telling) {
  if (plan.change == Money()) return Money();
  const auto& [place, number] = std::pair(plan.request.place, plan.request.number);
  if (IsStack(number)) {
    SetBetAmount(place, number, plan.After());
  } else {
    StandAt(place, number, plan.After(), plan.vig, telling);
  }
  RefreshViews();
  return plan.change;
}

Money ChangeBet(const BetRequest& request, Telling telling) {
  const Plan plan = PlanChange(request);
  if (telling == Telling::Aloud) TellPlan(plan);
  return Apply(plan, telling);
}

Money PlaceBet(const BetRequest& request, Telling telling) {
  const auto& [place, number] = std::pair(request.place, request.number);
  const Money changed = ChangeBet(request, telling);
  const bool heard = !request.travels && !Table.HyperDriveOn && !Settings.DisableAllSound;
  if (heard) FrontEnd.PlaySound(Sound::Check);
  RedrawBet(place, number);
  if (changed != Money()) FollowWithOdds(place, number);
  return changed;
}

void RedrawBet(int place, int number) {
  if (Table.HyperDriveOn) return;
  FrontEnd.DrawBet(place, number);
  if (number == bet::DontPass) FrontEnd.DrawBet(place, bet::DontPassOdds);
  if (number == bet::DontPassOdds) FrontEnd.DrawBet(place, bet::DontPass);
  if (InFamily(number, LayFamily)) FrontEnd.DrawBet(LayNeighbour(place), number);
}

void RemoveBet(int place, int number, Telling telling) {
  PlaceBet({place, number, -Bet(place, number)}, telling);
}

void RemovePlaceBets(int place, int point, bool travels) {
  for (const Family family : {PlaceFamily, BuyFamily}) {
    const int number = BetOn(family, point);
    const Money amount = Bet(place, number);
    if (amount > Money()) PlaceBet({place, number, -amount, travels});
  }
}

void DownPlaceBets(int place) {
  if (Table.Point != 0 && Bet(place, bet::PassLine) > Money()) RemovePlaceBets(place, Table.Point);
  for (const int point : PointNumbers) {
    if (Bet(place, BetOn(ComeFamily, point)) > Money()) RemovePlaceBets(place, point);
  }
}

void TakeDownBet(int place, int number) {
  TakeOff(place, number);
  RedrawBet(place, number);
}

void ReplaceBet(int place, int number, bool nearest) {
  TakeOff(place, number);
  ChangeBet({.place = place, .number = number, .change = AllThatIsAllowed, .nearest = nearest},
            Telling::Silent);
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

void BuyPlaceBet(int place, int number, Telling telling) {
  if (!IsBet(number)) return;
  const Money amount = Bet(place, number);
  if (InFamily(number, BuyFamily) || amount == Money()) return;
  if (!InFamily(number, PlaceFamily)) {
    if (telling == Telling::Aloud) TellNotAllowed(Say(Text::OnlyPlaceBetsBought));
    return;
  }
  const int32_t working = Table.BetWorking[place][number];
  const int buy = number + FamilySize;
  TakeDownBet(place, number);
  PlaceBet({place, buy, amount}, telling);
  const bool called = working == CalledOn || working == CalledOff;
  if (called && Bet(place, buy) > Money()) SetBetWorking(place, buy, working);
}

void CallBet(int place, int number, CallState state, Telling telling) {
  if (!IsBet(number)) return;
  if (!CanBeCalled(number)) {
    if (telling == Telling::Aloud) TellNotAllowed(Say(Text::BetNotCallable, BetName[number]));
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
