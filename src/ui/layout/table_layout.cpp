#include "ui/layout/table_layout.h"

#include <algorithm>
#include <cmath>

#include "state/settings.h"
#include "state/table.h"
#include "ui/layout/layout_geometry.h"
#include "ui/layout/layout_parts.h"

namespace tessarel {

namespace {

// The rows and columns of `count` checks in an area that leave the most room between them.
struct Rows {
  int columns = 1, rows = 1;
};

Rows RoomiestRows(const QRectF& area, int count) {
  Rows best;
  double bestRoom = 0;
  for (int rows = 1; rows <= count; rows *= 2) {
    const int columns = count / rows;
    const double room = std::min(
        {area.width() / columns, rows == 1 ? CheckDiameter : area.height() / rows, CheckDiameter});
    if (room > bestRoom) {
      best = {columns, rows};
      bestRoom = room;
    }
  }
  return best;
}

// What is not drawn keeps its checks on the switch plate, and without one in the middle.
void StandOnSwitch(TableLayout& layout) {
  QPointF foot = FeltArea().center();
  for (const Region& region : layout.regions) {
    if (region.spot == PropositionSwitch) foot = region.outline.boundingRect().center();
  }
  for (int number = 1; number <= LastBet; ++number) {
    if (HasRegion(layout, number)) continue;
    for (const int place : AllPlaces)
      At(At(layout.positions, place), number) = foot + QPointF(17 * (place - 4.5), 0);
  }
}

}  // namespace

void AddRegion(TableLayout& layout,
               int spot,
               const QPainterPath& outline,
               const QRectF& stand,
               std::span<const int> places) {
  layout.regions.push_back({spot, outline});
  if (!IsBet(spot)) return;
  const auto [columns, rows] = RoomiestRows(stand, static_cast<int>(places.size()));
  // Checks keep away from the sides, so that those of neighbouring boxes stay apart.
  constexpr double Margin = 5;
  const double stepX = (stand.width() - 2 * Margin) / columns;
  const double stepY = std::min(stand.height() / rows, CheckDiameter + 6);
  int k = 0;
  for (const int place : places) {
    const int column = k / rows, row = k % rows;
    At(At(layout.positions, place), spot) = QPointF(stand.left() + Margin + (column + 0.5) * stepX,
                                                    stand.bottom() - (rows - row - 0.5) * stepY);
    ++k;
  }
}

void AddBox(TableLayout& layout, int spot, const QRectF& box, std::span<const int> places) {
  QPainterPath outline;
  outline.addRect(box);
  AddRegion(layout, spot, outline, box, places);
}

LayoutOptions OptionsInForce(bool propositions) {
  return {Settings.UseBig68,   Settings.UseMidwayBet, Settings.UseSpecialPropBets,
          Settings.UseFireBet, propositions,          Settings.BarNumber};
}

TableLayout MakeTableLayout(const LayoutOptions& options) {
  TableLayout layout;
  layout.options = options;
  AddEnds(layout);
  AddPropositions(layout);
  AddRail(layout);
  StandOnSwitch(layout);
  return layout;
}

bool HasRegion(const TableLayout& layout, int spot) {
  return std::any_of(layout.regions.begin(), layout.regions.end(),
                     [spot](const Region& region) { return region.spot == spot; });
}

QPainterPath OutlineOf(const TableLayout& layout, int spot) {
  QPainterPath outline;
  outline.setFillRule(Qt::WindingFill);
  for (const Region& region : layout.regions) {
    if (region.spot == spot) outline.addPath(region.outline);
  }
  return outline;
}

QPointF CheckPosition(const TableLayout& layout, int place, int number) {
  if (place < 1 || place > LastPlace || number < 1 || number > LastRailNumber) return {};
  return At(At(layout.positions, place), number);
}

QRectF FeltArea() {
  using namespace geometry;
  return {FeltLeft, FeltTop, LayoutWidth - 2 * FeltLeft, FeltBottom - FeltTop};
}

QPointF PuckPosition(int point, bool right) {
  using namespace geometry;
  if (!IsPointNumber(point)) return {MirroredX((CornerLeft + BoxLeft) / 2, right), PuckY};
  return {NumberColumn(PointIndex(point), right).center().x(), PuckY};
}

QPointF DiceRest() {
  using namespace geometry;
  return {Middle, (PadBottom + WoodBottom) / 2};
}

QTransform LayoutTransform(
    double width, double height, double degrees, double zoom, QPointF shift) {
  const double radians = degrees * M_PI / 180;
  const double along = std::abs(std::cos(radians)), across = std::abs(std::sin(radians));
  const double scale = zoom * std::min(width / (LayoutWidth * along + LayoutHeight * across),
                                       height / (LayoutWidth * across + LayoutHeight * along));
  QTransform toPixels;
  toPixels.translate(width / 2 + shift.x(), height / 2 + shift.y());
  toPixels.rotate(degrees);
  toPixels.scale(scale, scale);
  toPixels.translate(-LayoutWidth / 2, -LayoutHeight / 2);
  return toPixels;
}

}  // namespace tessarel
