#include "ui/paint/table_paint.h"

#include <QFontDatabase>
#include <QLinearGradient>
#include <QRadialGradient>

#include "state/settings.h"
#include "state/table.h"
#include "ui/layout/layout_geometry.h"
#include "ui/paint/contrast.h"
#include "ui/paint/felt_lettering.h"
#include "ui/paint/textures.h"
#include "ui/program_folders.h"
#include "ui/table_colours.h"

namespace tessarel {

using namespace geometry;

namespace {

constexpr double LineWidth = 3.2, ThinLineWidth = 1.5;

QPainterPath Rounded(const QRectF& area, double radius) {
  QPainterPath path;
  path.addRoundedRect(area, radius, radius);
  return path;
}

QRectF MirroredArea(double left, double top, double bottom) {
  return {left, top, LayoutWidth - 2 * left, bottom - top};
}

QPainterPath WoodOutline() {
  return Rounded(MirroredArea(WoodLeft, WoodTop, WoodBottom), FeltBend + FeltLeft - WoodLeft);
}
QPainterPath PadOutline() {
  return Rounded(MirroredArea(PadLeft, PadTop, PadBottom), FeltBend + FeltLeft - PadLeft);
}
QPainterPath FeltOutline() {
  return Rounded(FeltArea(), FeltBend);
}

// What of `outer` lies outside of `inner`.
QPainterPath Ring(const QPainterPath& outer, const QPainterPath& inner) {
  QPainterPath ring = outer;
  ring.addPath(inner);
  ring.setFillRule(Qt::OddEvenFill);
  return ring;
}

// Cloth has its grain at the size of the screen's pixels: there it is finest, and drawn fastest.
QBrush ClothBrush(TexturedPart part, int index, double pixelsPerUnit) {
  QBrush brush = TextureBrush(TextureInForce(part), ColourOfTable(index));
  brush.setTransform(QTransform::fromScale(1 / pixelsPerUnit, 1 / pixelsPerUnit));
  return brush;
}

// A soft edge along an outline: strokes that grow wider and fainter to both sides. What shall not
// show them is painted later.
void PaintSoftEdge(QPainter& painter, const QPainterPath& outline, QColor tint, double width) {
  constexpr int Steps = 4;
  tint.setAlphaF(tint.alphaF() / Steps);
  painter.setBrush(Qt::NoBrush);
  for (int k = 1; k <= Steps; ++k) {
    painter.setPen(QPen(tint, 2 * width * k / Steps));
    painter.drawPath(outline);
  }
}

// The table is painted from the felt outwards, so that each part hides how the shadows on the one
// inside of it run out.
void PaintFelt(QPainter& painter, double pixelsPerUnit) {
  painter.fillRect(FeltArea(), ClothBrush(TexturedPart::Felt, colour::Felt, pixelsPerUnit));
  // A lamp hangs over the stick.
  QRadialGradient lamp(QPointF(Middle, 420), 1150);
  lamp.setColorAt(0, QColor(255, 255, 255, 16));
  lamp.setColorAt(0.45, QColor(255, 255, 255, 0));
  lamp.setColorAt(1, QColor(0, 0, 0, 84));
  painter.fillRect(FeltArea(), lamp);
  PaintSoftEdge(painter, FeltOutline().translated(0, 3), QColor(0, 0, 0, 190), 15);
}

void PaintPadding(QPainter& painter) {
  const QPainterPath pad = PadOutline();
  QBrush leather =
      TextureBrush(TextureInForce(TexturedPart::RailInside), ColourOfTable(colour::RailInside));
  leather.setTransform(QTransform::fromScale(0.6, 0.6));
  painter.fillPath(Ring(pad, FeltOutline()), leather);
  PaintSoftEdge(painter, pad, QColor(0, 0, 0, 170), 10);
  // The round of the padding catches the light of the lamp along its middle.
  const QRectF middle = MirroredArea((PadLeft + FeltLeft) / 2, (PadTop + FeltTop) / 2, 895);
  painter.setBrush(Qt::NoBrush);
  for (const double width : {13.0, 8.0, 3.5}) {
    painter.setPen(QPen(QColor(255, 255, 255, 22), width));
    painter.drawPath(Rounded(middle, FeltBend + 13));
  }
}

// The boards of an end run the other way and meet those of the sides in the middle of the bend.
QPainterPath BoardsOfEnd(bool right) {
  constexpr double Meeting = 190;
  const double edge = MirroredX(0, right), inside = MirroredX(Meeting, right);
  QPainterPath end;
  end.addPolygon(QPolygonF(
      {{edge, 0}, {inside, Meeting}, {inside, LayoutHeight - Meeting}, {edge, LayoutHeight}}));
  end.closeSubpath();
  return Ring(WoodOutline(), PadOutline()).intersected(end);
}

void PaintWood(QPainter& painter) {
  static const QPainterPath boards = Ring(WoodOutline(), PadOutline());
  static const std::array<QPainterPath, 2> ends = {BoardsOfEnd(false), BoardsOfEnd(true)};
  QBrush wood =
      TextureBrush(TextureInForce(TexturedPart::RailOutside), ColourOfTable(colour::RailOutside));
  painter.fillPath(boards, wood);
  wood.setTransform(QTransform().rotate(90));
  for (const QPainterPath& end : ends)
    painter.fillPath(end, wood);
  PaintSoftEdge(painter, PadOutline(), QColor(0, 0, 0, 120), 6);
  painter.setPen(QPen(QColor(255, 255, 255, 46), 2));
  painter.drawPath(Rounded(MirroredArea(WoodLeft + 5, WoodTop + 5, WoodBottom - 5), 231));
}

void PaintFloor(QPainter& painter, double pixelsPerUnit) {
  // The floor goes on beyond the drawing where the window is of another shape.
  const QRectF room(-LayoutWidth, -LayoutWidth, 3 * LayoutWidth, 2 * LayoutWidth + LayoutHeight);
  QPainterPath walls;
  walls.addRect(room);
  const QPainterPath floor = Ring(walls, WoodOutline());
  painter.fillPath(floor, ClothBrush(TexturedPart::Floor, colour::Floor, pixelsPerUnit));
  QRadialGradient dusk(QPointF(Middle, LayoutHeight / 2), LayoutWidth * 0.62);
  dusk.setColorAt(0.7, QColor(0, 0, 0, 40));
  dusk.setColorAt(1, QColor(0, 0, 0, 150));
  painter.fillPath(floor, dusk);
  PaintSoftEdge(painter, WoodOutline().translated(0, 2), QColor(0, 0, 0, 190), 9);
}

// The two grooves for checks along the players' side, from the end to the stick.
void PaintGrooves(QPainter& painter) {
  for (const bool right : {false, true}) {
    for (const double inset : {19.5, 56.5}) {
      const double x = WoodLeft + inset, y = PadBottom + 5 + 74 - inset + 1;
      const double across = BendX - x, along = y - BendY;
      QPainterPath groove(QPointF(x, 214));
      groove.lineTo(x, BendY);
      groove.arcTo(QRectF(x, BendY - along, 2 * across, 2 * along), 180, 90);
      groove.lineTo(958, y);
      if (right) groove = QTransform(-1, 0, 0, 1, LayoutWidth, 0).map(groove);
      painter.setBrush(Qt::NoBrush);
      const auto stroke = [&](QColor tint, double width, QPointF shift) {
        painter.setPen(QPen(tint, width, Qt::SolidLine, Qt::RoundCap));
        painter.drawPath(groove.translated(shift));
      };
      stroke(QColor(255, 255, 255, 34), 30, {0, 1.5});
      stroke(QColor(0, 0, 0, 95), 30, {});
      stroke(QColor(0, 0, 0, 50), 24, {0, -1});
      stroke(QColor(255, 255, 255, 14), 10, {0, 4});
    }
  }
}

void PaintBowl(QPainter& painter) {
  const QRectF bowl(Middle - 116, PadBottom + 8, 232, WoodBottom - PadBottom - 18);
  const double radius = bowl.height() / 2;
  painter.setPen(QPen(QColor(255, 255, 255, 40), 2));
  QLinearGradient depth(bowl.topLeft(), bowl.bottomLeft());
  const QColor felt = ColourOfTable(colour::Felt);
  depth.setColorAt(0, Mixed(felt, Qt::black, 0.65));
  depth.setColorAt(1, Mixed(felt, Qt::black, 0.25));
  painter.setBrush(depth);
  painter.drawRoundedRect(bowl, radius, radius);
}

bool IsInsideNumberBox(int spot) {
  return spot >= 1 && spot < bet::PassLine;
}

void PaintLines(QPainter& painter, const TableLayout& layout) {
  const QColor lines = ColourOfTable(colour::Lines);
  painter.setBrush(Qt::NoBrush);
  QColor faint = lines;
  faint.setAlpha(150);
  painter.setPen(QPen(faint, ThinLineWidth, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
  for (const Region& region : layout.regions) {
    if (IsInsideNumberBox(region.spot)) painter.drawPath(region.outline);
  }
  painter.setPen(QPen(lines, LineWidth, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
  for (const Region& region : layout.regions) {
    const bool isRail = region.spot >= 1000;
    if (!isRail && !IsInsideNumberBox(region.spot) && region.spot != bet::CAndE)
      painter.drawPath(region.outline);
  }
  for (const bool right : {false, true}) {
    for (int k = 0; k < FamilySize; ++k)
      painter.drawRect(NumberColumn(k, right));
  }
}

void PaintName(QPainter& painter, const TableLayout& layout, double least) {
  if (layout.options.propositions) return;
  const QColor ink = Mixed(ColourOfTable(colour::Felt), ColourOfTable(colour::Lines), 0.75);
  PaintWords(painter, {FieldLeft + 40, 772, 448, 76}, {"TESSAREL"}, {ink, 70, least});
}

// The light over the point: on both boxes of the number.
void PaintSpotlight(QPainter& painter) {
  constexpr std::array<int, 4> Strength = {0, 34, 58, 84};
  if (!IsPointNumber(Table.Point) || Settings.Spotlight <= 0) return;
  const int strength = At(Strength, std::min(Settings.Spotlight, 3));
  for (const bool right : {false, true}) {
    const QRectF box = NumberColumn(PointIndex(Table.Point), right);
    const QPointF middle = box.center();
    constexpr double Reach = 240;
    QRadialGradient light(QPointF(0, 0), Reach);
    light.setColorAt(0, QColor(255, 248, 220, strength));
    light.setColorAt(0.35, QColor(255, 248, 220, strength * 3 / 4));
    light.setColorAt(1, QColor(255, 248, 220, 0));
    painter.save();
    painter.translate(middle);
    painter.scale(0.62, 1);
    painter.setPen(Qt::NoPen);
    painter.setBrush(light);
    painter.drawEllipse(QPointF(0, 0), Reach, Reach);
    painter.restore();
  }
}

}  // namespace

void PaintTable(QPainter& painter, const TableLayout& layout, double pixelsPerUnit) {
  painter.save();
  painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
  PaintFelt(painter, pixelsPerUnit);
  PaintPadding(painter);
  PaintWood(painter);
  PaintGrooves(painter);
  PaintBowl(painter);
  PaintFloor(painter, pixelsPerUnit);
  PaintLines(painter, layout);
  PaintEndLettering(painter, layout, pixelsPerUnit);
  PaintPropositionLettering(painter, layout, pixelsPerUnit);
  PaintName(painter, layout, LeastLettering(pixelsPerUnit));
  painter.restore();
}

void PaintTableState(QPainter& painter, const TableLayout& layout, double pixelsPerUnit) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  PaintSpotlight(painter);
  PaintLitLamps(painter, layout, pixelsPerUnit);
  painter.restore();
}

void PaintRegionLight(QPainter& painter, const TableLayout& layout, int spot, bool possible) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  for (const Region& region : layout.regions) {
    if (region.spot != spot) continue;
    if (!possible) {
      painter.fillPath(region.outline, QColor(0, 0, 0, 90));
      continue;
    }
    painter.fillPath(region.outline, QColor(255, 246, 214, 34));
    painter.setClipPath(region.outline);
    PaintSoftEdge(painter, region.outline, QColor(255, 240, 190, 150), 9);
    painter.setClipping(false);
  }
  painter.restore();
}

QColor ColourOfTable(int index) {
  const int32_t value = Settings.TableColor[index];
  return {value & 255, value >> 8 & 255, value >> 16 & 255};
}

QFont LayoutFont(double units) {
  static const QString family = [] {
    const int id = QFontDatabase::addApplicationFont(
        QString::fromStdString(DataFolder() + "/fonts/texgyreschola-bold.otf"));
    const QStringList families = QFontDatabase::applicationFontFamilies(id);
    return families.isEmpty() ? QStringLiteral("serif") : families.first();
  }();
  QFont font(family);
  font.setBold(true);
  font.setPixelSize(std::max(1, static_cast<int>(units + 0.5)));
  font.setHintingPreference(QFont::PreferNoHinting);
  return font;
}

QFont PlainFont(double units) {
  QFont font(QStringList{"DejaVu Sans", "Liberation Sans"});
  font.setStyleHint(QFont::SansSerif);
  font.setPixelSize(std::max(1, static_cast<int>(units + 0.5)));
  return font;
}

}  // namespace tessarel
