// The geometry of the drawn table: one drawing of LayoutWidth by LayoutHeight units, from the dark
// floor around it to the last hop bet, as outlines by spot. The picture and the hit map are both
// drawn from these outlines, so that what is seen is what is hit.
#pragma once

#include <QPainterPath>
#include <QPointF>
#include <QRectF>
#include <QTransform>
#include <array>
#include <vector>

#include "state/bet_numbers.h"

namespace tessarel {

inline constexpr double LayoutWidth = 2200, LayoutHeight = 1000;

// Spots that are no bets.
inline constexpr int PropositionSwitch = 999;
// A rail part is 1000 times its place plus one of these.
enum RailItem : int { PlaceItself = 0, FirstRailStack = 11, LastRailStack = 14 };
constexpr int RailSpot(int place, int item) {
  return 1000 * place + item;
}

// What of the layout depends on the settings and on what the user wants to see.
struct LayoutOptions {
  bool big68 = true, midway = true, specials = true, fire = true;
  bool propositions = true;  // the whole proposition field instead of the short one
  int barNumber = 12;

  bool operator==(const LayoutOptions&) const = default;
};

// The options that the settings in force ask for.
LayoutOptions OptionsInForce(bool propositions);

// A part of the table that a click can mean. A bet that lies at both ends has two regions.
struct Region {
  int spot = 0;  // 1 to 93 a bet, PropositionSwitch, or a rail part
  QPainterPath outline;
};

// The numbers that checks stand on: bets 1 to 93 and the stacks on the rail, 101 to 104.
inline constexpr int FirstRailNumber = 101, LastRailNumber = 104;

struct TableLayout {
  LayoutOptions options;
  std::vector<Region> regions;  // none overlaps another
  // By place and number; read through CheckPosition.
  std::array<std::array<QPointF, LastRailNumber + 1>, LastPlace + 1> positions{};
};

TableLayout MakeTableLayout(const LayoutOptions& options);

// Whether the spot has a region.
bool HasRegion(const TableLayout& layout, int spot);

// The outlines of all regions of a spot in one.
QPainterPath OutlineOf(const TableLayout& layout, int spot);

// Where the checks of a place stand: a bet 1 to 93, or 101 to 104 for a stack on the rail. Bets
// without a region of their own stand on the proposition switch. The point is the middle of the
// lowest check; within a region every place that shares it has its own, nearest to where it stands.
QPointF CheckPosition(const TableLayout& layout, int place, int number);

// How large a check is drawn, in layout units.
inline constexpr double CheckDiameter = 26;

// The plate of a place: name, bankroll, dice. At the ends it is taller than wide, for a text that
// is turned towards the player.
QRectF RailPlaceArea(int place);
QPointF PuckPosition(int point, bool right);  // of an end; point 0: OFF, beside Don't Come
QPointF DiceRest();  // between the two dice at their stand, in the bowl before the stick
QRectF FeltArea();   // the felt inside the rail

// From layout units to a picture of `width` by `height` pixels: fitted to it, then turned about
// its middle by `degrees`, enlarged by `zoom` and moved.
QTransform LayoutTransform(
    double width, double height, double degrees = 0, double zoom = 1, QPointF shift = {});

}  // namespace tessarel
