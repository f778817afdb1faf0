// Which bets a roll decides, as tables: the lines of losers and winners by the total of the dice,
// in the order in which they are called, and the bets that every roll decides.
#pragma once

#include <algorithm>
#include <cstdint>
#include <iterator>

#include "base/number_set.h"
#include "state/bet_numbers.h"

namespace tessarel::lines {

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
inline constexpr Line Losers[] = {
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

inline constexpr Line Winners[] = {
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
inline constexpr OneRollBet OneRollBets[] = {
    {bet::Midway, Totals(2, 5) | Totals(9, 12)},
    {bet::Two, AllBut(2)}, {bet::Three, AllBut(3)}, {bet::Seven, AllBut(7)},
    {bet::Eleven, AllBut(11)}, {bet::Twelve, AllBut(12)},
    {bet::Craps, Totals(4, 11)}, {bet::CAndE, Totals(4, 10)}, {bet::Horn, Totals(4, 10)},
    {bet::World, Totals(4, 6) | Totals(8, 10)},
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

constexpr Indexed<LinesOfTotal, 13> ByTotals(const Line* begin, const Line* end) {
  Indexed<LinesOfTotal, 13> index{};
  for (const Line* line = begin; line != end; ++line) {
    LinesOfTotal& lines = index[line->total];
    if (lines.begin == nullptr) lines.begin = line;
    lines.end = line + 1;
    lines.bets |= line->bets;
  }
  return index;
}
inline constexpr auto LosersOfTotal = ByTotals(std::begin(Losers), std::end(Losers));
inline constexpr auto WinnersOfTotal = ByTotals(std::begin(Winners), std::end(Winners));

// The bets that one roll decides, whatever it is.
inline constexpr BetSet DecidedEachRoll = [] {
  BetSet bets;
  for (const int number : {bet::Field, bet::Over7, bet::Under7})
    bets.Add(number);
  for (const OneRollBet& each : OneRollBets)
    bets.Add(each.number);
  for (const HopPair& hop : HopPairs)
    bets.Add(hop.number);
  return bets;
}();

}  // namespace tessarel::lines
