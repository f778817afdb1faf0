// The rail: for each place a plate and four check stacks, two and two in the grooves.
#include "state/table.h"
#include "ui/layout/layout_geometry.h"
#include "ui/layout/layout_parts.h"

namespace tessarel {

using namespace geometry;

namespace {

constexpr double StackSide = 37;

// The part of the rail that belongs to a place, plate and stacks.
QRectF PlaceArea(int place) {
  const bool right = place > 4;
  const int fromEnd = right ? 9 - place : place;
  constexpr double Wood = 74;
  switch (fromEnd) {
    case 1:
      return Mirrored({WoodLeft + 1, 206, Wood, 264}, right);
    case 2:
      return Mirrored({WoodLeft + 1, 480, Wood, 264}, right);
    case 3:
      return Mirrored({252, PadBottom + 5, 350, Wood}, right);
    default:
      return Mirrored({616, PadBottom + 5, 350, Wood}, right);
  }
}

bool StandsAtEnd(int place) {
  return place <= 2 || place >= 7;
}

// Stacks lie two by two beside the plate: below it at the ends, else on the side of the stick.
QRectF StackArea(int place, int stack) {
  const QRectF area = PlaceArea(place);
  const int column = stack / 2, row = stack % 2;
  if (StandsAtEnd(place)) {
    const double top = area.bottom() - 2 * StackSide;
    return {area.left() + row * StackSide, top + column * StackSide, StackSide, StackSide};
  }
  const double left = place > 4 ? area.left() : area.right() - 2 * StackSide;
  return {left + column * StackSide, area.top() + row * StackSide, StackSide, StackSide};
}

}  // namespace

QRectF RailPlaceArea(int place) {
  const QRectF area = PlaceArea(place);
  constexpr double Stacks = 2 * StackSide + 4;
  if (StandsAtEnd(place)) return area.adjusted(0, 0, 0, -Stacks);
  return place > 4 ? area.adjusted(Stacks, 0, 0, 0) : area.adjusted(0, 0, -Stacks, 0);
}

void AddRail(TableLayout& layout) {
  for (const int place : AllPlaces) {
    AddBox(layout, RailSpot(place, PlaceItself), RailPlaceArea(place), {});
    for (int stack = 0; stack < 4; ++stack) {
      const QRectF area = StackArea(place, stack);
      AddBox(layout, RailSpot(place, FirstRailStack + stack), area, {});
      At(At(layout.positions, place), FirstRailNumber + stack) = area.center();
    }
  }
}

}  // namespace tessarel
