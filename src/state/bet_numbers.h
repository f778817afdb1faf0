// The numbering of the layout: every bet's number and name, the six-number families and the fixed
// order in which players are visited. Numbers are part of the file formats and never change.
#pragma once

#include <cstdint>
#include <string_view>

#include "base/indexing.h"

namespace tessarel {

inline constexpr int LastBet = 93;      // bets of the layout are 1 to 93
inline constexpr int FirstStack = 100;  // check stack n is number 100 + n
inline constexpr int StackCount = 100;
inline constexpr int LastNumber = 200;  // end of the amount tables
                                        // places are 1 to 8; 0 is the house

namespace bet {
inline constexpr int Lay4 = 1, Lay5 = 2, Lay6 = 3, Lay8 = 4, Lay9 = 5, Lay10 = 6;
inline constexpr int DontCome4 = 7, DontCome10 = 12;
inline constexpr int DontCome4Odds = 13, DontCome6Odds = 15, DontCome8Odds = 16,
                     DontCome10Odds = 18;
inline constexpr int Come4 = 19, Come10 = 24;
inline constexpr int Come4Odds = 25, Come6Odds = 27, Come8Odds = 28, Come10Odds = 30;
inline constexpr int Place4 = 31, Place5 = 32, Place6 = 33, Place8 = 34, Place9 = 35, Place10 = 36;
inline constexpr int Buy4 = 37, Buy10 = 42;
inline constexpr int PassLine = 43, PassLineOdds = 44, Come = 45;
inline constexpr int DontPass = 46, DontPassOdds = 47, DontCome = 48;
inline constexpr int Field = 49, Big6 = 50, Big8 = 51;
inline constexpr int Hard4 = 52, Hard6 = 53, Hard8 = 54, Hard10 = 55;
inline constexpr int Two = 56, Three = 57, Seven = 58, Eleven = 59, Twelve = 60;
inline constexpr int Craps = 61, CAndE = 62, Horn = 63, World = 64, Over7 = 65, Under7 = 66;
inline constexpr int Hop13 = 67, Hop14 = 68, Hop15 = 69, Hop16 = 70, Hop22 = 71, Hop23 = 72,
                     Hop24 = 73, Hop25 = 74, Hop26 = 75, Hop33 = 76, Hop34 = 77, Hop35 = 78,
                     Hop36 = 79, Hop44 = 80, Hop45 = 81, Hop46 = 82, Hop55 = 83;
inline constexpr int AllSmall = 84, AllTall = 85, MakeAll = 86, FourRollsNo7 = 87, Point7 = 88,
                     SevenPoint7 = 89, Midway = 90, SharpShooter = 91, RideTheLine = 92, Fire = 93;
}  // namespace bet

// The first bet of each family of six, which run in the order 4, 5, 6, 8, 9, 10.
enum Family : int {
  LayFamily = bet::Lay4,
  DontComeFamily = bet::DontCome4,
  DontComeOddsFamily = bet::DontCome4Odds,
  ComeFamily = bet::Come4,
  ComeOddsFamily = bet::Come4Odds,
  PlaceFamily = bet::Place4,
  BuyFamily = bet::Buy4,
};

// From a flat bet on a number to its odds, and from a Place bet to the Buy bet beside it.
inline constexpr int FamilySize = 6;

inline constexpr Indexed<int, FamilySize> PointNumbers = {4, 5, 6, 8, 9, 10};

constexpr bool IsPointNumber(int total) {
  return total >= 4 && total <= 10 && total != 7;
}
// 0 to 5 for a point number 4, 5, 6, 8, 9, 10.
constexpr int PointIndex(int point) {
  return point < 7 ? point - 4 : point - 5;
}
// The bet of a family on a point number.
constexpr int BetOn(Family family, int point) {
  return family + PointIndex(point);
}
constexpr bool InFamily(int number, Family family) {
  return number >= family && number < family + FamilySize;
}
// The point number of a bet of the six-number families, 1 to 42.
constexpr int PointOf(int number) {
  return PointNumbers[static_cast<size_t>((number - 1) % FamilySize)];
}
constexpr bool IsBet(int number) {
  return number >= 1 && number <= LastBet;
}
constexpr bool IsLineOdds(int number) {
  return number == bet::PassLineOdds || number == bet::DontPassOdds;
}
constexpr bool IsTakenOdds(int number) {
  return number == bet::PassLineOdds || InFamily(number, ComeOddsFamily);
}
constexpr bool IsLaidOdds(int number) {
  return number == bet::DontPassOdds || InFamily(number, DontComeOddsFamily);
}
constexpr bool IsOdds(int number) {
  return IsTakenOdds(number) || IsLaidOdds(number);
}
// The bet that odds ride on.
constexpr int FlatUnder(int odds) {
  return IsLineOdds(odds) ? odds - 1 : odds - FamilySize;
}
// The odds that ride on a flat bet, 0 for a bet that takes none.
constexpr int OddsOn(int flat) {
  if (flat == bet::PassLine || flat == bet::DontPass) return flat + 1;
  return InFamily(flat, ComeFamily) || InFamily(flat, DontComeFamily) ? flat + FamilySize : 0;
}
// Into how many equal parts a bet is divided, of which a hit pays one and loses the others.
constexpr int PartsOf(int number) {
  return number == bet::CAndE ? 2 : number == bet::Horn ? 4 : number == bet::World ? 5 : 1;
}
// The faces of the hop bets, by total and then by the lower die: the order in which they are
// decided.
struct HopPair {
  uint8_t number, low, high;
};
inline constexpr Indexed<HopPair, 17> HopPairs = [] {
  Indexed<HopPair, 17> hops{};
  size_t next = 0;
  for (int total = 4; total <= 10; ++total) {
    for (int low = total > 6 ? total - 6 : 1; 2 * low <= total; ++low) {
      const int high = total - low;
      // Numbers run by the lower die and then by the higher one; the lowest die has no pair.
      constexpr Indexed<int, 6> First = {
          0, bet::Hop13 - 3, bet::Hop22 - 2, bet::Hop33 - 3, bet::Hop44 - 4, bet::Hop55 - 5};
      hops[next++] = {static_cast<uint8_t>(First[low] + high), static_cast<uint8_t>(low),
                      static_cast<uint8_t>(high)};
    }
  }
  return hops;
}();
static_assert(HopPairs[1].number == bet::Hop22 && HopPairs[16].number == bet::Hop55);

constexpr bool IsHop(int number) {
  return number >= bet::Hop13 && number <= bet::Hop55;
}
// The faces of a hop bet.
constexpr HopPair FacesOfHop(int number) {
  for (const HopPair& hop : HopPairs) {
    if (hop.number == number) return hop;
  }
  return {};
}
// The hop bet on a pair of dice in either order; 0 for a pair that has none.
constexpr int HopOn(int die1, int die2) {
  for (const HopPair& hop : HopPairs) {
    const bool same = hop.low == die1 && hop.high == die2;
    if (same || (hop.low == die2 && hop.high == die1)) return hop.number;
  }
  return 0;
}
constexpr bool IsStack(int number) {
  return number >= FirstStack && number < FirstStack + StackCount;
}

// The text of each bet; 94 to 100 are not used, 101 to 104 are the stacks shown on the rail.
// clang-format off
inline constexpr Indexed<std::string_view, 105> BetName = {
    "",
    "Lay 4", "Lay 5", "Lay 6", "Lay 8", "Lay 9", "Lay 10",
    "Don't Come 4", "Don't Come 5", "Don't Come 6", "Don't Come 8", "Don't Come 9", "Don't Come 10",
    "Don't Come 4 Odds", "Don't Come 5 Odds", "Don't Come 6 Odds",
    "Don't Come 8 Odds", "Don't Come 9 Odds", "Don't Come 10 Odds",
    "Come 4", "Come 5", "Come 6", "Come 8", "Come 9", "Come 10",
    "Come 4 Odds", "Come 5 Odds", "Come 6 Odds", "Come 8 Odds", "Come 9 Odds", "Come 10 Odds",
    "Place 4", "Place 5", "Place 6", "Place 8", "Place 9", "Place 10",
    "Buy 4", "Buy 5", "Buy 6", "Buy 8", "Buy 9", "Buy 10",
    "Pass Line", "Pass Line Odds", "Come", "Don't Pass", "Don't Pass Odds", "Don't Come",
    "Field", "Big 6", "Big 8",
    "Hard 4", "Hard 6", "Hard 8", "Hard 10",
    "Two", "Three", "Seven", "Eleven", "Twelve",
    "Craps", "C and E", "Horn", "World", "Over 7", "Under 7",
    "Hop 13", "Hop 14", "Hop 15", "Hop 16", "Hop 22", "Hop 23", "Hop 24", "Hop 25", "Hop 26",
    "Hop 33", "Hop 34", "Hop 35", "Hop 36", "Hop 44", "Hop 45", "Hop 46", "Hop 55",
    "All Small", "All Tall", "Make All", "4 Rolls No 7", "Point 7", "7 Point 7", "Midway",
    "Sharp Shooter", "Ride The Line", "Fire",
    "", "", "", "", "", "", "",
    "CheckStack #1", "CheckStack #2", "CheckStack #3", "CheckStack #4",
};
// clang-format on
static_assert(BetName[bet::PassLine] == "Pass Line" && BetName[bet::Hop55] == "Hop 55" &&
              BetName[bet::Fire] == "Fire" && BetName[104] == "CheckStack #4");

// The number of a bet by its name, letter case ignored; 0 when there is none.
int BetByName(std::string_view name);

// Visit 1 to 8 to place: both ends of the rail first, working towards the stick.
inline constexpr Indexed<int, LastPlace + 1> PlaceOfVisit = {0, 1, 8, 2, 7, 3, 6, 4, 5};
// Place 1 to 8 to visit.
inline constexpr Indexed<int, LastPlace + 1> VisitOfPlace = {0, 1, 3, 5, 7, 8, 6, 4, 2};

}  // namespace tessarel
