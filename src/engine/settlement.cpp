#include "engine/settlement.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <iterator>
#include <utility>

#include "base/front_end.h"
#include "engine/bet_handling.h"
#include "engine/bet_limits.h"
#include "engine/bets.h"
#include "engine/special_bets.h"
#include "log/event_lines.h"
#include "log/events_log.h"
#include "state/books.h"
#include "state/payoffs.h"
#include "state/settings.h"
#include "state/table.h"

namespace tessarel {

namespace {

// The single bet that a Horn or World hit by the dice in Table is paid as.
int HornPart() {
  switch (Table.DiceTotal) {
    case 2:
      return bet::Two;
    case 3:
      return bet::Three;
    case 7:
      return bet::Seven;
    case 11:
      return bet::Eleven;
    default:
      return bet::Twelve;
  }
}

const PayoffRow& MidwayRow() {
  const bool pair = Table.Die1 == Table.Die2;
  const int row = Table.DiceTotal == 7 ? 3 : Table.DiceTotal < 7 ? (pair ? 1 : 2) : (pair ? 5 : 4);
  return Payoffs.MidwayPayoff[row];
}

// With the point on at the roll, the line and its odds are paid by the rows of that number.
const PayoffRow& LineRow(int number) {
  const auto row = [](Family family) -> const PayoffRow& {
    return Payoffs.Payoff[BetOn(family, Table.LastPoint)];
  };
  switch (number) {
    case bet::PassLine:
      return row(ComeFamily);
    case bet::PassLineOdds:
      return row(ComeOddsFamily);
    case bet::DontPass:
      return row(DontComeFamily);
    default:
      return row(DontComeOddsFamily);
  }
}

// The row that a won bet is paid by.
const PayoffRow& WinningRow(int number, int result) {
  const auto& own = Payoffs.Payoff[number];
  switch (number) {
    case bet::PassLine:
    case bet::PassLineOdds:
    case bet::DontPass:
    case bet::DontPassOdds:
      return Table.LastPoint != 0 ? LineRow(number) : own;
    case bet::CAndE:
      return Payoffs.Payoff[Table.DiceTotal == 11 ? bet::Eleven : bet::Craps];
    case bet::Horn:
    case bet::World:
      return Payoffs.Payoff[HornPart()];
    case bet::Midway:
      return MidwayRow();
    case bet::SevenPoint7:
      return Payoffs.SevenPointSevenPayoff[std::clamp(result, 1, 2)];
    case bet::SharpShooter:
      return Payoffs.SharpShooterPayoff[std::min(Table.SharpShooterPoints + 1, 11)];
    case bet::RideTheLine:
      return Payoffs.RideTheLinePayoff[std::min(Table.RideTheLinePasses + 1, 12)];
    case bet::Fire:
      return Payoffs.FirePayoff[Table.FirePoints];
    default:
      return own;
  }
}

// Copies the deciding fields of a row to the scratch row, from which the prompt reads them.
const PayoffRow& ToScratch(const PayoffRow& row) {
  return Payoffs.Payoff[0] = row;
}

const PayoffRow& DecidingRow(int number, int result) {
  if (number == bet::Field) {
    return ToScratch(Payoffs.FieldPayoff[PairIndex(Table.Die1, Table.Die2)]);
  }
  if (result > 0) return ToScratch(WinningRow(number, result));
  PayoffRow lost;
  lost.PayNum = -1;
  lost.PayForm = Payoffs.Payoff[number].PayForm;
  return ToScratch(lost);
}

// The vig that a result of the bet has to carry.
Money VigOf(int place, int number, Money gross) {
  const auto index = static_cast<size_t>((number - 1) % FamilySize);
  if (InFamily(number, LayFamily) && (gross > Money() || Settings.LayVigAllBets)) {
    return Table.LayVig[place][index];
  }
  if (InFamily(number, BuyFamily) && (gross > Money() || Settings.BuyVigAllBets)) {
    return Table.BuyVig[place][index];
  }
  return Money();
}

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

void CountStreak(int place, int number) {
  const int32_t streak = Table.BetStreak[place][number];
  if (Table.NetWin < Money()) {
    SetBetStreak(place, number, streak > 0 ? -1 : streak - 1);
  } else {
    SetBetStreak(place, number, streak < 0 ? 1 : streak + 1);
  }
}

void BookResult(int place, int number, Money amount) {
  RecordBetResult(place, number, amount, Table.NetWin);
  if (InFamily(number, ComeFamily)) {
    Table.ComeOriginal[place][static_cast<size_t>(number - bet::Come4)] = Money();
  }
  SetBankrollSlots(place, BankrollOf(place) + Table.NetWin);
  SetBetContract(place, number, Money());
}

// No sounds and no rules on numbers while a box travels, whatever happens on the way.
class Travelling {
 public:
  Travelling() : soundWas_(std::exchange(Settings.DisableAllSound, -1)) { Table.BetMoving = true; }
  ~Travelling() {
    Settings.DisableAllSound = soundWas_;
    Table.BetMoving = false;
  }
  Travelling(const Travelling&) = delete;
  Travelling& operator=(const Travelling&) = delete;

 private:
  int32_t soundWas_;
};

void Travel(int place, int from, int to, Money amount) {
  Table.Amount = -amount;
  ChangeBet(place, from);
  SetBetContract(place, from, Money());
  RedrawBet(place, from);
  Table.Amount = amount;
  PlaceBet(place, to);
  SetBetContract(place, to, amount);
  if (!InFamily(to, ComeFamily)) return;
  Table.ComeOriginal[place][static_cast<size_t>(to - bet::Come4)] = amount;
  if (Table.AutoDownPlaceBets[place]) RemovePlaceBets(place, PointOf(to));
}

// --- Which bets a roll touches ---------------------------------------------------------------

// When a line of the tables below applies to the roll in Table.
enum class When : uint8_t {
  Always,
  ComeOut,  // no point was on
  PointOn,  // a point was on
  Pair,     // both dice alike
  NoPair,
  Die1Shows,  // some die shows a 1, 2, 3
  Die2Shows,
  Die3Shows,
  NotDie1Shows,
  NotDie3Shows,
  Bar2,
  Bar12,
  ComeOutBar2,
  ComeOutBar12,
};

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

// One line: on `total`, a bet, or the bets first to last in number order, with the odds that ride
// on each decided right after it for the same player.
struct Line {
  uint8_t total;
  When when;
  uint8_t first, last;
  uint8_t odds;  // of `first`; 0 for none
  BetSet bets;   // all it touches, so that a line nobody has a bet on costs one look
};

constexpr Line OnRange(int total, When when, int first, int last, int odds = 0) {
  BetSet bets;
  for (int number = first; number <= last; ++number) {
    bets.Add(number);
    if (odds != 0) bets.Add(odds + number - first);
  }
  return {static_cast<uint8_t>(total), when,
          static_cast<uint8_t>(first), static_cast<uint8_t>(last),
          static_cast<uint8_t>(odds),  bets};
}
constexpr Line On(int total, When when, int number, int odds = 0) {
  return OnRange(total, when, number, number, odds);
}
constexpr Line Dc(int point) {
  return On(point, When::Always, BetOn(DontComeFamily, point), BetOn(DontComeOddsFamily, point));
}
constexpr Line Cm(int point) {
  return On(point, When::Always, BetOn(ComeFamily, point), BetOn(ComeOddsFamily, point));
}

// clang-format off
using enum When;
// Rows stand in the order of the calls within their total.
constexpr Line Losers[] = {
    On(2, ComeOut, bet::PassLine),  On(2, Always, bet::Come),
    On(3, ComeOut, bet::PassLine),  On(3, Always, bet::Come),
    Dc(4),  On(4, Always, bet::Lay4),    On(4, NoPair, bet::Hard4),
    Dc(5),  On(5, Always, bet::Lay5),
    Dc(6),  On(6, Always, bet::Lay6),    On(6, NoPair, bet::Hard6),
    On(7, PointOn, bet::PassLine, bet::PassLineOdds),
    On(7, ComeOut, bet::DontPass),
    OnRange(7, Always, bet::Come4, bet::Come10, bet::Come4Odds),
    On(7, Always, bet::DontCome),   On(7, Always, bet::Big6),  On(7, Always, bet::Big8),
    OnRange(7, Always, bet::Hard4, bet::Hard10),
    OnRange(7, Always, bet::Place4, bet::Buy10),
    Dc(8),  On(8, Always, bet::Lay8),    On(8, NoPair, bet::Hard8),
    Dc(9),  On(9, Always, bet::Lay9),
    Dc(10), On(10, Always, bet::Lay10),  On(10, NoPair, bet::Hard10),
    On(11, ComeOut, bet::DontPass), On(11, Always, bet::DontCome),
    On(12, ComeOut, bet::PassLine), On(12, Always, bet::Come),
};

constexpr Line Winners[] = {
    On(2, ComeOutBar12, bet::DontPass), On(2, Always, bet::Two), On(2, Always, bet::Craps),
    On(2, Always, bet::CAndE), On(2, Always, bet::Horn), On(2, Always, bet::World),
    On(2, Bar12, bet::DontCome),
    On(3, ComeOut, bet::DontPass), On(3, Always, bet::Three), On(3, Always, bet::Craps),
    On(3, Always, bet::CAndE), On(3, Always, bet::Horn), On(3, Always, bet::World),
    On(3, Always, bet::DontCome),
    Cm(4), On(4, Always, bet::Place4), On(4, Always, bet::Buy4),
    On(4, Pair, bet::Hard4), On(4, Pair, bet::Hop22), On(4, NoPair, bet::Hop13),
    Cm(5), On(5, Always, bet::Place5), On(5, Always, bet::Buy4 + 1),
    On(5, Die1Shows, bet::Hop14), On(5, NotDie1Shows, bet::Hop23),
    Cm(6), On(6, Always, bet::Place6), On(6, Always, bet::Buy4 + 2), On(6, Always, bet::Big6),
    On(6, Always, bet::Midway), On(6, Pair, bet::Hard6), On(6, Pair, bet::Hop33),
    On(6, Die1Shows, bet::Hop15), On(6, Die2Shows, bet::Hop24),
    On(7, PointOn, bet::Come), On(7, PointOn, bet::DontPass, bet::DontPassOdds),
    On(7, ComeOut, bet::PassLine),
    OnRange(7, Always, bet::DontCome4, bet::DontCome10, bet::DontCome4Odds),
    OnRange(7, Always, bet::Lay4, bet::Lay10),
    On(7, Always, bet::Midway), On(7, Always, bet::Seven), On(7, Always, bet::World),
    On(7, Die1Shows, bet::Hop16), On(7, Die2Shows, bet::Hop25), On(7, Die3Shows, bet::Hop34),
    Cm(8), On(8, Always, bet::Place8), On(8, Always, bet::Buy4 + 3), On(8, Always, bet::Big8),
    On(8, Always, bet::Midway), On(8, Pair, bet::Hard8), On(8, Pair, bet::Hop44),
    On(8, Die2Shows, bet::Hop26), On(8, Die3Shows, bet::Hop35),
    Cm(9), On(9, Always, bet::Place9), On(9, Always, bet::Buy4 + 4),
    On(9, Die3Shows, bet::Hop36), On(9, NotDie3Shows, bet::Hop45),
    Cm(10), On(10, Always, bet::Place10), On(10, Always, bet::Buy10),
    On(10, Pair, bet::Hard10), On(10, Pair, bet::Hop55), On(10, NoPair, bet::Hop46),
    On(11, ComeOut, bet::PassLine), On(11, Always, bet::Eleven), On(11, Always, bet::CAndE),
    On(11, Always, bet::Come), On(11, Always, bet::Horn), On(11, Always, bet::World),
    On(12, ComeOutBar2, bet::DontPass), On(12, Always, bet::Twelve), On(12, Always, bet::Craps),
    On(12, Always, bet::CAndE), On(12, Always, bet::Horn), On(12, Always, bet::World),
    On(12, Bar2, bet::DontCome),
};

// The bets that one roll decides and the totals on which they lose; bit n stands for total n.
struct OneRollBet {
  uint8_t number;
  uint16_t losingTotals;
};
constexpr uint16_t Totals(int from, int to) {
  return static_cast<uint16_t>((1u << (to + 1)) - (1u << from));
}
constexpr uint16_t AllBut(int total) {
  return static_cast<uint16_t>(Totals(2, 12) & ~(1u << total));
}
constexpr OneRollBet OneRollBets[] = {
    {bet::Midway, Totals(2, 5) | Totals(9, 12)},
    {bet::Two, AllBut(2)}, {bet::Three, AllBut(3)}, {bet::Seven, AllBut(7)},
    {bet::Eleven, AllBut(11)}, {bet::Twelve, AllBut(12)},
    {bet::Craps, Totals(4, 11)}, {bet::CAndE, Totals(4, 10)}, {bet::Horn, Totals(4, 10)},
    {bet::World, Totals(4, 6) | Totals(8, 10)},
};

struct HopBet {
  uint8_t number, low, high;
};
constexpr HopBet Hops[] = {
    {bet::Hop13, 1, 3}, {bet::Hop22, 2, 2}, {bet::Hop14, 1, 4}, {bet::Hop23, 2, 3},
    {bet::Hop15, 1, 5}, {bet::Hop24, 2, 4}, {bet::Hop33, 3, 3}, {bet::Hop16, 1, 6},
    {bet::Hop25, 2, 5}, {bet::Hop34, 3, 4}, {bet::Hop26, 2, 6}, {bet::Hop35, 3, 5},
    {bet::Hop44, 4, 4}, {bet::Hop36, 3, 6}, {bet::Hop45, 4, 5}, {bet::Hop46, 4, 6},
    {bet::Hop55, 5, 5},
};
// clang-format on

constexpr bool ByTotal(const Line& a, const Line& b) {
  return a.total < b.total;
}
static_assert(std::is_sorted(std::begin(Losers), std::end(Losers), ByTotal));
static_assert(std::is_sorted(std::begin(Winners), std::end(Winners), ByTotal));

// The lines of one total, and the bets they touch: where nobody has one, nothing is looked at.
struct LinesOfTotal {
  const Line* begin = nullptr;
  const Line* end = nullptr;
  BetSet bets;
};

constexpr std::array<LinesOfTotal, 13> ByTotals(const Line* begin, const Line* end) {
  std::array<LinesOfTotal, 13> index{};
  for (const Line* line = begin; line != end; ++line) {
    LinesOfTotal& lines = index[line->total];
    if (lines.begin == nullptr) lines.begin = line;
    lines.end = line + 1;
    lines.bets |= line->bets;
  }
  return index;
}
constexpr auto LosersOfTotal = ByTotals(std::begin(Losers), std::end(Losers));
constexpr auto WinnersOfTotal = ByTotals(std::begin(Winners), std::end(Winners));

// The bets that one roll decides, whatever it is.
constexpr BetSet DecidedEachRoll = [] {
  BetSet bets;
  for (const int number : {bet::Field, bet::Over7, bet::Under7})
    bets.Add(number);
  for (const OneRollBet& each : OneRollBets)
    bets.Add(each.number);
  for (const HopBet& hop : Hops)
    bets.Add(hop.number);
  return bets;
}();

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

void RunLines(const std::array<LinesOfTotal, 13>& index, int result) {
  const LinesOfTotal& lines = At(index, Table.DiceTotal);
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
  for (const HopBet& hop : Hops) {
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

void FigurePayoff(int place, int number, int result, Money amount) {
  const PayoffRow& row = DecidingRow(number, result);
  const int parts = result > 0 ? PartsOf(number) : 1;
  double gross = MulDiv(amount, row.PayNum, row.PayDen);
  if (parts > 1) gross = (gross - amount.ToDouble() * (parts - 1)) / parts;
  Table.GrossWin = Money::FromDouble(gross);
  Table.GrossWin -= VigOf(place, number, Table.GrossWin);
  Table.NetWin = FloorToMultiple(Table.GrossWin, SmallestCheck());
}

void ResolveBet(int visit, int result, int number) {
  const int place = PlaceOfVisit[visit];
  const Money amount = Bet(place, number);
  if (amount == Money()) return;
  Table.CurrentBet = number;
  if (Table.BetWorking[place][number] < IsWorking) {
    const bool odds = number != bet::SevenPoint7 && (result == WinOdds || result == LoseOdds);
    if (odds) HandleIdleOdds(place);
    return;
  }
  FigurePayoff(place, number, result, amount);
  if (Table.NetWin != Money()) BookResult(place, number, amount);
  LogBetResult(place, number, Table.NetWin);
  Table.BetCantStay = HasToComeDown(place, number);
  if (Table.NetWin != Money()) CountStreak(place, number);
  if (Table.NetWin < Money()) {
    HandleLostBet(place);
    return;
  }
  HandleWonBet(place);
}

void MoveBet(int place, int from, int to) {
  const Money amount = Bet(place, from);
  if (amount == Money()) return;
  {
    const Travelling travelling;
    Travel(place, from, to, amount);
  }
  LogBetMoved(place, from, to);
}

void FigureUnit(int place, int number) {
  const Money amount = Bet(place, number);
  const Money unit = Payoffs.Payoff[number].PayUnit;
  for (int check = 5; check >= 1; --check) {
    const Money value = Settings.Denomination[check];
    Table.ChipUnit = Money::FromDouble(MulDiv(value, unit, SmallestCheck()));
    if (Table.ChipUnit <= Money()) continue;
    if (Table.ChipUnit < amount && IsMultiple(amount, Table.ChipUnit)) return;
  }
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
