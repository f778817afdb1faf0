#include "ui/paint/rail_paint.h"

#include <QFontMetricsF>
#include <algorithm>

#include "base/number_format.h"
#include "state/table.h"
#include "texts/say.h"
#include "ui/paint/check_paint.h"
#include "ui/paint/check_picture.h"
#include "ui/paint/table_paint.h"
#include "ui/text.h"

namespace tessarel {

namespace {

struct PlateStyle {
  QColor back, border, ink, quiet;
  double borderWidth = 1;
};

// The room of a plate: the badge with the place's number and two lines.
struct PlateRoom {
  QRectF plate, badge, first, second;
  bool tight = false;
  double lettering = 0;
};

PlateStyle StyleOf(int place, bool taken, const RailLook& look) {
  const bool current = taken && look.currentPlace == place;
  const bool hover = look.hoverPlace == place;
  const bool wanted = !taken && look.choosing;
  PlateStyle style;
  style.back = current  ? QColor(24, 40, 64, 245)
               : taken  ? QColor(18, 20, 26, 225)
               : wanted ? QColor(20, 52, 44, 235)
                        : QColor(12, 12, 15, 120);
  style.ink = taken || wanted || hover ? QColor(Qt::white) : QColor(214, 210, 200);
  style.quiet = QColor(196, 200, 208);
  style.border = current  ? PlaceColour(place).lighter(112)
                 : wanted ? QColor(94, 224, 178)
                 : taken  ? QColor(255, 255, 255, 70)
                          : QColor(255, 255, 255, 56);
  style.borderWidth = current ? 2.5 : wanted ? 1.8 : 1;
  if (hover) {
    style.back = style.back.lighter(150);
    style.back.setAlpha(250);
    if (!current) style.border = QColor(255, 255, 255, 210);
    style.borderWidth = std::max(style.borderWidth, 1.8);
  }
  return style;
}

PlateRoom RoomIn(const QRectF& area, double pixel) {
  constexpr double LeastLettering = 12;  // pixels on the screen: nine points
  PlateRoom room;
  room.plate = area.adjusted(pixel, pixel, -pixel, -pixel);
  room.lettering = std::max(0.3 * area.height(), LeastLettering * pixel);
  const double margin = 0.07 * area.height();
  // A badge beside both lines where that leaves room for a bankroll, else one in the first line.
  const double large = 0.68 * area.height();
  room.tight = area.width() - large < 7.4 * room.lettering;
  const double badge = room.tight ? 1.2 * room.lettering : large;
  room.badge = QRectF(area.left() + 1.4 * margin, 0, badge, badge);
  const double half = area.height() / 2;
  room.badge.moveTop(room.tight ? area.top() + (half - badge) / 2 + 0.3 * margin
                                : area.center().y() - badge / 2);
  const double beside = room.badge.right() + 1.6 * margin, right = area.right() - 1.2 * margin;
  const double below = room.tight ? area.left() + 1.8 * margin : beside;
  room.first =
      QRectF(QPointF(beside, area.top() + 0.6 * margin), QPointF(right, area.top() + half));
  room.second =
      QRectF(QPointF(below, area.top() + half), QPointF(right, area.bottom() - 0.6 * margin));
  return room;
}

QFont Lettering(double units, bool bold) {
  QFont font = PlainFont(units);
  font.setBold(bold);
  return font;
}

double WidthOf(const QString& text, double units, bool bold) {
  return QFontMetricsF(Lettering(100, bold)).horizontalAdvance(text) * units / 100;
}

// The text, or as much of it as the width holds.
QString Fitted(const QString& text, double width, double units, bool bold) {
  if (WidthOf(text, units, bold) <= width) return text;
  return QFontMetricsF(Lettering(100, bold)).elidedText(text, Qt::ElideRight, width / units * 100);
}

void PaintLine(QPainter& painter,
               const QRectF& line,
               const QString& text,
               const QColor& ink,
               double units,
               bool bold) {
  painter.setFont(Lettering(units, bold));
  painter.setPen(ink);
  painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextDontClip, text);
}

void PaintBadge(QPainter& painter, const QRectF& badge, int place, bool taken) {
  const QColor colour = PlaceColour(place);
  QColor back = colour;
  if (!taken) back.setAlpha(0);
  painter.setBrush(back);
  painter.setPen(QPen(taken ? colour.darker(150) : colour, badge.width() * 0.07));
  painter.drawEllipse(badge.adjusted(1, 1, -1, -1));
  const bool dark = taken && qGray(colour.rgb()) > 120;
  const QRectF box(badge.center() - QPointF(0.3, 0.3) * badge.width(), badge.size() * 0.6);
  PaintFittedText(painter, box, QString::number(place), dark ? QColor(12, 12, 14) : Qt::white);
}

// The bankroll, with as much of its form as the width holds.
QString BankrollText(int place, double width, double units, bool bold) {
  const Money bankroll = BankrollOf(place);
  for (const char* pattern : {"$#,0.00;-$#,0.00;$0.00", "#,0.00;-#,0.00;0.00"}) {
    const QString text = Shown(FormatNumber(bankroll, pattern));
    if (WidthOf(text, units, bold) <= width) return text;
  }
  return Shown(FormatNumber(bankroll, "#,0;-#,0;0"));
}

void PaintShooterDice(QPainter& painter, const QRectF& area) {
  const double side = area.height() * 0.6;
  const QPointF middle = area.center();
  PaintDie(painter, middle + QPointF(-0.36, -0.06) * area.height(), side, 5, -9, 1);
  PaintDie(painter, middle + QPointF(0.36, 0.08) * area.height(), side, 2, 14, 2);
}

void PaintPlayer(QPainter& painter, int place, const PlateRoom& room, const PlateStyle& style) {
  QRectF name = room.first;
  if (Table.Shooter == place) {
    const double height = std::min(name.height(), 1.6 * room.lettering);
    const QRectF dice(name.right() - 1.55 * height, name.center().y() - height / 2, 1.55 * height,
                      height);
    PaintShooterDice(painter, dice);
    name.setRight(dice.left());
  }
  const double units = room.lettering;
  const QString shown = Fitted(Shown(Table.PlayerName[place]), name.width(), units, true);
  PaintLine(painter, name, shown, style.ink, units, true);
  const bool negative = BankrollOf(place) < Money();
  PaintLine(painter, room.second, BankrollText(place, room.second.width(), units, negative),
            negative ? QColor(255, 166, 77) : style.quiet, units, negative);
}

void PaintOpen(
    QPainter& painter, const PlateRoom& room, const PlateStyle& style, bool choosing, bool hover) {
  const QRectF line = room.tight ? room.first : room.first.united(room.second);
  const QRectF second = room.tight ? room.second : line;
  const QString action = Shown(choosing ? Text::RailChoose : Text::RailJoin);
  // What a click does, where a line has room for it.
  const bool roomy = WidthOf(action, room.lettering, hover) <= second.width();
  if ((choosing || hover) && roomy) {
    return PaintLine(painter, second, action, style.ink, room.lettering, hover);
  }
  const QString open = Fitted(Shown(Text::RailOpen), line.width(), room.lettering, hover);
  PaintLine(painter, line, open, style.ink, room.lettering, hover);
}

void PaintStacks(QPainter& painter, int place, const TableLayout& layout, const RailLook& look) {
  for (int position = 1; position <= 4; ++position) {
    const int number = Table.VisibleStack[place][position];
    if (number < FirstStack || number >= FirstStack + StackCount) continue;
    PileLook pile;
    pile.diameter = 0.92 * CheckDiameter;
    pile.narrow = true;
    pile.pixelsPerUnit = look.pixelsPerUnit;
    // A stack rises from the near edge of its groove.
    const QPointF foot =
        CheckPosition(layout, place, 100 + position) + QPointF(0, 0.2 * CheckDiameter);
    PaintPile(painter, foot, Bet(place, number), pile);
  }
}

}  // namespace

void PaintRailPlace(QPainter& painter, int place, const TableLayout& layout, const RailLook& look) {
  const bool taken = IsTaken(Table, place);
  const double pixel = 1 / std::max(look.pixelsPerUnit, 1e-3);
  const PlateStyle style = StyleOf(place, taken, look);
  QRectF area = RailPlaceArea(place);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  // Along the ends of the table the plates stand upright and are read along the rail.
  if (area.height() > 1.4 * area.width()) {
    painter.translate(area.center());
    painter.rotate(place <= 4 ? -90 : 90);
    area = QRectF(-area.height() / 2, -area.width() / 2, area.height(), area.width());
  }
  const PlateRoom room = RoomIn(area, pixel);
  painter.setBrush(style.back);
  QPen border(style.border, style.borderWidth * pixel);
  if (!taken && !look.choosing) border.setStyle(Qt::DashLine);
  painter.setPen(border);
  const double corner = 0.16 * room.plate.height();
  painter.drawRoundedRect(room.plate, corner, corner);
  PaintBadge(painter, room.badge, place, taken);
  if (taken) {
    PaintPlayer(painter, place, room, style);
  } else {
    PaintOpen(painter, room, style, look.choosing, look.hoverPlace == place);
  }
  painter.restore();
  if (taken) PaintStacks(painter, place, layout, look);
}

}  // namespace tessarel
