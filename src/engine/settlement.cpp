#include "engine/settlement.h"

#include <algorithm>
#include <cstdint>

#include "engine/bet_handling.h"
#include "engine/bets.h"
#include "engine/payouts.h"
#include "engine/settlement_lines.h"
#include "engine/special_bets.h"
#include "log/event_lines.h"
#include "log/events_log.h"
#include "state/books.h"
#include "state/settings.h"
#include "state/table.h"

namespace tessarel {

using namespace lines;

namespace {

// Whether a won bet has to come down.
bool HasToComeDown(int place, int number) {
  if (InFamily(number, DontComeFamily) || InFamily(number, DontComeOddsFamily)) return true;
  if (InFamily(number, ComeFamily)) return !Settings.AllowPutBets;
  if (InFamily(number, ComeOddsFamily)) return Bet(place, number - FamilySize) == Money();
  switch (number) {
    case bet::Come:
    case bet::DontCome:
      return Table.DiceTotal == 7;
    case bet::PassLineOdds:
    case bet::DontPassOdds:
      return true;
    case bet::AllSmall:
    case bet::AllTall:
      return (Table.MarkedNumbers & MarksOf(number)) != 0;
    case bet::Point7:
    case bet::SevenPoint7:
      return Table.Point != 0;
    default:
      return false;
  }
}

void CountStreak(int place, int number, Money net) {
  const int32_t streak = Table.BetStreak[place][number];
  if (net < Money()) {
    SetBetStreak(place, number, streak > 0 ? -1 : streak - 1);
  } else {
    SetBetStreak(place, number, streak < 0 ? 1 : streak + 1);
  }
}

void BookResult(int place, int number, Money amount, Money net) {
  RecordBetResult(place, number, amount, net);
  if (InFamily(number, ComeFamily)) Table.ComeOriginal[place][number - bet::Come4] = Money();
  SetBankrollSlots(place, BankrollOf(place) + net);
  SetBetContract(place, number, Money());
}

// Odds that are off while their flat bet is decided.
Decision IdleOdds(int place, int odds, Money amount) {
  const bool cantStay =
      !Settings.AllowPutBets || Bet(place, FlatUnder(odds)) == Money() || IsLineOdds(odds);
  return {place, odds, LoseOdds, amount, {}, Outcome::Idle, cantStay};
}

void Travel(int place, int from, int to, Money amount) {
  ChangeBet({place, from, -amount, true});
  SetBetContract(place, from, Money());
  RedrawBet(place, from);
  PlaceBet({place, to, amount, true});
  SetBetContract(place, to, amount);
  if (!InFamily(to, ComeFamily)) return;
  Table.ComeOriginal[place][to - bet::Come4] = amount;
  if (Table.AutoDownPlaceBets[place]) RemovePlaceBets(place, PointOf(to), true);
}

bool Shows(int face) {
  return Table.Die1 == face || Table.Die2 == face;
}

bool Applies(When when) {
  const bool comeOut = Table.LastPoint == 0;
  switch (when) {
    case When::Always:
      return true;
    case When::ComeOut:
      return comeOut;
    case When::PointOn:
      return !comeOut;
    case When::Pair:
      return Table.Die1 == Table.Die2;
    case When::NoPair:
      return Table.Die1 != Table.Die2;
    case When::Die1Shows:
      return Shows(1);
    case When::Die2Shows:
      return Shows(2);
    case When::Die3Shows:
      return Shows(3);
    case When::NotDie1Shows:
      return !Shows(1);
    case When::NotDie3Shows:
      return !Shows(3);
    case When::Bar2:
      return Settings.BarNumber == 2;
    case When::Bar12:
      return Settings.BarNumber == 12;
    case When::ComeOutBar2:
      return comeOut && Settings.BarNumber == 2;
    case When::ComeOutBar12:
      return comeOut && Settings.BarNumber == 12;
  }
  return false;
}

// Calls decide(visit) for each visit whose place has one of the two bets, in the order of visits.
template <class Decide>
void ForEachHolder(int number, int odds, Decide&& decide) {
  uint32_t visits = Table.Holders[number];
  if (odds != 0) visits |= Table.Holders[odds];
  for (; visits != 0; visits &= visits - 1)
    decide(std::countr_zero(visits) + 1);
}

void Decide(int number, int result) {
  if (!AnyHolds(number)) return;
  ForEachHolder(number, 0, [&](int visit) { ResolveBet(visit, result, number); });
}

// A bet and the odds that ride on it, for each visit in turn.
void DecideWithOdds(int number, int odds, int result) {
  ForEachHolder(number, odds, [&](int visit) {
    ResolveBet(visit, result, number);
    if (odds != 0) ResolveBet(visit, result > 0 ? WinOdds : LoseOdds, odds);
  });
}

void RunLine(const Line& line, int result) {
  if (!Table.Held.Intersects(line.bets) || !Applies(line.when)) return;
  for (int number = line.first; number <= line.last; ++number) {
    const int odds = line.odds == 0 ? 0 : line.odds + number - line.first;
    const bool held = AnyHolds(number) || (odds != 0 && AnyHolds(odds));
    if (held) DecideWithOdds(number, odds, result);
  }
}

void RunLines(const Indexed<LinesOfTotal, 13>& index, int result) {
  const LinesOfTotal& lines = index[Table.DiceTotal];
  if (!Table.Held.Intersects(lines.bets)) return;
  for (const Line* line = lines.begin; line != lines.end; ++line)
    RunLine(*line, result);
}

void LosersOfPointMade() {
  if (Table.DiceTotal == Table.LastPoint) DecideWithOdds(bet::DontPass, bet::DontPassOdds, Lose);
}

void LosersByTotal() {
  RunLines(LosersOfTotal, Lose);
  if (Table.DiceTotal != 7 || !Settings.UseSpecialPropBets) return;
  Table.MarkedNumbers = 0;
  for (const int number : {bet::AllSmall, bet::AllTall, bet::MakeAll, bet::FourRollsNo7}) {
    Decide(number, Lose);
  }
}

void OverAndUnder() {
  Decide(bet::Over7, Table.DiceTotal > 7 ? Win : Lose);
  Decide(bet::Under7, Table.DiceTotal < 7 ? Win : Lose);
}

// On the roll after the come-out, or on a come-out that left no point, the 7 bets are decided.
void LosersOfPoint7() {
  if (!Settings.UseSpecialPropBets) return;
  const bool seven = Table.DiceTotal == 7;
  if (Table.LastPoint == 0 && Table.Point == 0) {
    Decide(bet::Point7, Lose);
    if (!seven) Decide(bet::SevenPoint7, Lose);
  }
  if (Table.LastPoint != 0 && Table.PointBeforeLast == 0 && !seven) {
    Decide(bet::Point7, Lose);
    Decide(bet::SevenPoint7, Lose);
  }
}

void HopsThatLose() {
  const auto [low, high] = std::minmax(Table.Die1, Table.Die2);
  for (const HopPair& hop : HopPairs) {
    if (AnyHolds(hop.number) && (hop.low != low || hop.high != high)) Decide(hop.number, Lose);
  }
}

void LosersOfOneRoll() {
  if (Table.Held.Intersects(DecidedEachRoll)) {
    Decide(bet::Field, Win);
    for (const OneRollBet& each : OneRollBets) {
      if ((each.losingTotals >> Table.DiceTotal & 1) != 0) Decide(each.number, Lose);
    }
    OverAndUnder();
    HopsThatLose();
  }
  LosersOfPoint7();
}

void PointMade() {
  if (Table.DiceTotal != Table.LastPoint) return;
  DecideWithOdds(bet::PassLine, bet::PassLineOdds, Win);
  const int32_t bit = 1 << PointIndex(Table.LastPoint);
  if ((Table.FirePointsMask & bit) == 0) ++Table.FirePoints;
  Table.FirePointsMask |= bit;
  if (!Settings.UseSpecialPropBets) return;
  ++Table.SharpShooterPoints;
  ++Table.RideTheLinePasses;
}

void CountLinePass() {
  const bool natural = Table.LastPoint == 0 && (Table.DiceTotal == 7 || Table.DiceTotal == 11);
  if (natural && Settings.UseSpecialPropBets) ++Table.RideTheLinePasses;
}

void WinnersOfSeven() {
  if (Settings.UseSpecialPropBets) {
    if (Table.LastPoint == 0) Decide(bet::SevenPoint7, 1);
    if (Table.LastPoint != 0 && Table.PointBeforeLast == 0) {
      Decide(bet::Point7, Win);
      Decide(bet::SevenPoint7, 2);
    }
  }
  if (Table.LastPoint == 0) return;
  Decide(bet::Fire, Win);
  Table.FirePointsMask = Table.FirePoints = 0;
}

void BoxesTravel() {
  if (!IsPointNumber(Table.DiceTotal)) return;
  const int come = BetOn(ComeFamily, Table.DiceTotal);
  const int dontCome = BetOn(DontComeFamily, Table.DiceTotal);
  ForEachHolder(bet::Come, bet::DontCome, [&](int visit) {
    MoveBet(PlaceOfVisit[visit], bet::Come, come);
    MoveBet(PlaceOfVisit[visit], bet::DontCome, dontCome);
  });
}

void WinnersByTotal() {
  RunLines(WinnersOfTotal, Win);
  CountLinePass();
  if (Table.DiceTotal == 7) WinnersOfSeven();
  BoxesTravel();
}

// A completed range of marks: cleared unless Make All still runs, then its bet wins.
void CompleteRange(int number) {
  const int32_t marks = MarksOf(number);
  if ((Table.MarkedNumbers & marks) != marks) return;
  if (!AnyHolds(bet::MakeAll)) Table.MarkedNumbers &= ~marks;
  Decide(number, Win);
}

void BetsThatComplete() {
  if (Table.MarkedNumbers == AllMarks) {
    Table.MarkedNumbers = 0;
    Decide(bet::AllSmall, Win);
    Decide(bet::AllTall, Win);
    Decide(bet::MakeAll, Win);
  } else {
    CompleteRange(bet::AllSmall);
    CompleteRange(bet::AllTall);
  }
  if (Table.FourRollCount == 4) {
    Table.FourRollCount = 0;
    Decide(bet::FourRollsNo7, Win);
  }
}

void BetsOfTheHand() {
  if (Table.DiceTotal != 7 || Table.LastPoint == 0) return;
  Decide(bet::SharpShooter, Win);
  Table.SharpShooterPoints = 0;
  Decide(bet::RideTheLine, Win);
  Table.RideTheLinePasses = 0;
}

}  // namespace

std::optional<Decision> DecideBet(int visit, int result, int number) {
  const int place = PlaceOfVisit[visit];
  const Money amount = Bet(place, number);
  if (amount == Money()) return std::nullopt;
  if (Table.BetWorking[place][number] < IsWorking) {
    const bool odds = number != bet::SevenPoint7 && (result == WinOdds || result == LoseOdds);
    if (!odds) return std::nullopt;
    return IdleOdds(place, number, amount);
  }
  const Payout payout = FigurePayoff(place, number, result, amount);
  const Money net = payout.net;
  if (net != Money()) BookResult(place, number, amount, net);
  LogBetResult(place, number, net);
  const bool cantStay = HasToComeDown(place, number);
  if (net != Money()) CountStreak(place, number, net);
  const Outcome outcome = net < Money() ? Outcome::Lost : Outcome::Won;
  return Decision{place, number, result, amount, payout, outcome, cantStay};
}

void ResolveBet(int visit, int result, int number) {
  if (const auto decision = DecideBet(visit, result, number)) HandleBet(*decision);
}

void MoveBet(int place, int from, int to) {
  const Money amount = Bet(place, from);
  if (amount == Money()) return;
  Travel(place, from, to, amount);
  LogBetMoved(place, from, to);
}

void SettleRoll() {
  LosersOfPointMade();
  LosersByTotal();
  LosersOfOneRoll();
  PointMade();
  WinnersByTotal();
  if (!Settings.UseSpecialPropBets) return;
  BetsThatComplete();
  BetsOfTheHand();
}

}  // namespace tessarel
