// The two ends of the layout: the line bets around the corner, the corner with Big 6, Big 8 and
// Midway, Field, Come and the boxes of the six point numbers.
#include "ui/layout/layout_geometry.h"
#include "ui/layout/layout_parts.h"

namespace tessarel {

using namespace geometry;

namespace {

QRectF Between(double left, double top, double right, double bottom) {
  return {QPointF(left, top), QPointF(right, bottom)};
}

QPainterPath Mirrored(const QPainterPath& outline, bool right) {
  return right ? QTransform(-1, 0, 0, 1, LayoutWidth, 0).map(outline) : outline;
}

// A band that comes down the left end, bends around the corner and runs to the stick: what lies
// between two such lines `outer` and `inner` units from the bend.
QPainterPath LineBand(double outer, double inner) {
  const auto around = [](double radius) {
    return Between(BendX - radius, BendY - radius, BendX + radius, BendY + radius);
  };
  QPainterPath band(QPointF(BendX - outer, LineTop));
  band.lineTo(BendX - outer, BendY);
  band.arcTo(around(outer), 180, 90);
  band.lineTo(EndRight, BendY + outer);
  band.lineTo(EndRight, BendY + inner);
  band.lineTo(BendX, BendY + inner);
  band.arcTo(around(inner), 270, -90);
  band.lineTo(BendX - inner, LineTop);
  band.closeSubpath();
  return band;
}

// Line bets stand before their player: on the leg along the end or on the one towards the stick.
void AddLineBand(TableLayout& layout, int spot, double outer, double inner, bool right) {
  layout.regions.push_back({spot, Mirrored(LineBand(outer, inner), right)});
  const double middle = (outer + inner) / 2;
  for (const int place : PlacesOfEnd(right)) {
    const QPointF player = RailPlaceArea(place).center();
    const bool alongEnd = place <= 2 || place >= 7;
    layout.positions[static_cast<size_t>(place)][static_cast<size_t>(spot)] =
        alongEnd ? QPointF(MirroredX(BendX - middle, right), player.y())
                 : QPointF(player.x(), BendY + middle);
  }
}

void AddLineBets(TableLayout& layout, bool right) {
  AddLineBand(layout, bet::PassLineOdds, BendX - OddsLeft, BendX - PassLeft, right);
  AddLineBand(layout, bet::PassLine, BendX - PassLeft, BendX - CornerLeft, right);

  QPainterPath dontPass(QPointF(CornerLeft, DontPassTop));
  dontPass.lineTo(CornerLeft, BendY);
  const double bend = BendX - CornerLeft;
  dontPass.arcTo(Between(CornerLeft, BendY - bend, BendX + bend, BendY + bend), 180, 90);
  dontPass.lineTo(DontPassOddsLeft, PassTop);
  dontPass.lineTo(DontPassOddsLeft, DontPassTop);
  dontPass.closeSubpath();
  const QRectF stand =
      geometry::Mirrored(Between(BendX, DontPassTop, DontPassOddsLeft, PassTop), right);
  AddRegion(layout, bet::DontPass, Mirrored(dontPass, right), stand, PlacesOfEnd(right));
  AddBox(layout, bet::DontPassOdds,
         geometry::Mirrored(Between(DontPassOddsLeft, DontPassTop, EndRight, PassTop), right),
         PlacesOfEnd(right));
}

// The corner between the line bets and Field and Come. Returns how far those reach towards it.
double AddCorner(TableLayout& layout, bool right) {
  std::vector<int> bets;
  if (layout.options.midway) bets.push_back(bet::Midway);
  if (layout.options.big68) bets.insert(bets.end(), {bet::Big6, bet::Big8});
  if (bets.empty()) return CornerLeft;
  const double height = (DontPassTop - ComeTop) / static_cast<double>(bets.size());
  double top = ComeTop;
  for (const int number : bets) {
    const QRectF box(CornerLeft, top, BoxLeft - CornerLeft, height);
    AddBox(layout, number, geometry::Mirrored(box, right), PlacesOfEnd(right));
    top += height;
  }
  return BoxLeft;
}

void AddNumberBox(TableLayout& layout, int point, bool right) {
  struct Band {
    Family family;
    double top, bottom;
  };
  // clang-format off
  constexpr Band Bands[] = {
      {LayFamily, LayTop, DontComeTop},
      {DontComeFamily, DontComeTop, DontComeOddsTop},
      {DontComeOddsFamily, DontComeOddsTop, ComeNumberTop},
      {ComeFamily, ComeNumberTop, ComeOddsTop},
      {ComeOddsFamily, ComeOddsTop, PlaceTop},
      {PlaceFamily, PlaceTop, BuyTop},
      {BuyFamily, BuyTop, ComeTop}};
  // clang-format on
  const QRectF column = NumberColumn(PointIndex(point), right);
  for (const Band& band : Bands) {
    AddBox(layout, BetOn(band.family, point),
           Between(column.left(), band.top, column.right(), band.bottom), PlacesOfEnd(right));
  }
}

void AddEnd(TableLayout& layout, bool right) {
  const auto box = [&](int spot, double left, double top, double width, double bottom) {
    AddBox(layout, spot, geometry::Mirrored(Between(left, top, width, bottom), right),
           PlacesOfEnd(right));
  };
  for (const int point : PointNumbers)
    AddNumberBox(layout, point, right);
  box(bet::DontCome, CornerLeft, NumbersTop, BoxLeft, ComeTop);
  const double left = AddCorner(layout, right);
  box(bet::Come, left, ComeTop, EndRight, FieldTop);
  box(bet::Field, left, FieldTop, EndRight, DontPassTop);
  AddLineBets(layout, right);
}

}  // namespace

void AddEnds(TableLayout& layout) {
  AddEnd(layout, false);
  AddEnd(layout, true);
}

}  // namespace tessarel
