#include "ui/paint/rail_paint.h"

#include <QFontMetricsF>
#include <algorithm>

#include "base/number_format.h"
#include "config/language.h"
#include "engine/table.h"
#include "ui/paint/check_paint.h"
#include "ui/paint/check_picture.h"
#include "ui/paint/table_paint.h"
#include "ui/text.h"

namespace tessarel {

namespace {

constexpr SixTexts OpenText = {"Open", "Libre", "Frei", "Libre", "Bos", "Libero"};
constexpr SixTexts JoinText = {
    "Click to join", "Clic para entrar", "Klick: mitspielen", "Clic : jouer",
    "Katil",         "Clic: gioca"};
constexpr SixTexts ChooseText = {"Choose", "Elegir", "Wählen", "Choisir", "Seç", "Scegli"};

struct PlateStyle {
  QColor back, border, ink, quiet;
  double borderWidth = 1;
};

// The room of a plate: the badge with the place's number, and one or two lines beside it.
struct PlateRoom {
  QRectF plate, badge, lines;
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
  room.lettering = std::min(std::max(0.3 * area.height(), LeastLettering * pixel),
                            std::max(0.42 * area.height(), LeastLettering * pixel));
  const double badge = std::min({0.62 * area.height(), 0.22 * area.width(), 3 * room.lettering});
  room.badge = QRectF(0, 0, badge, badge);
  room.badge.moveCenter({area.left() + badge * 0.68, area.center().y()});
  room.lines = QRectF(QPointF(room.badge.right() + badge * 0.2, area.top()),
                      QPointF(area.right() - 3 * pixel, area.bottom()));
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

// The bankroll; one that is too long for its line gives up its cents.
QString BankrollText(int place, double width, double units) {
  const Money bankroll = BankrollOf(place);
  const QString full = Shown(FormatNumber(bankroll, "$#,0.00;-$#,0.00;$0.00"));
  if (WidthOf(full, units, true) <= width) return full;
  return Shown(FormatNumber(bankroll, "$#,0;-$#,0;$0"));
}

void PaintShooterDice(QPainter& painter, const QRectF& area) {
  const double side = area.height() * 0.74;
  const QPointF middle = area.center();
  PaintDie(painter, middle + QPointF(-0.3, -0.08) * area.height(), side * 0.72, 5, -9, 1);
  PaintDie(painter, middle + QPointF(0.36, 0.1) * area.height(), side * 0.72, 2, 14, 2);
}

void PaintPlayer(QPainter& painter, int place, const PlateRoom& room, const PlateStyle& style) {
  const bool shooter = Table.Shooter == place;
  const double half = room.lines.height() / 2;
  QRectF name(room.lines.left(), room.lines.top() + half * 0.1, room.lines.width(), half * 0.92);
  const QRectF bankroll(room.lines.left(), room.lines.top() + half * 0.98, room.lines.width(),
                        half * 0.92);
  if (shooter) {
    const QRectF dice(name.right() - 1.7 * half, name.top(), 1.7 * half, name.height());
    PaintShooterDice(painter, dice);
    name.setRight(dice.left());
  }
  const double units = room.lettering;
  const QString shown = Fitted(Shown(At(Table.PlayerName, place)), name.width(), units, true);
  PaintLine(painter, name, shown, style.ink, units, true);
  const bool negative = BankrollOf(place) < Money();
  const QColor orange(255, 166, 77);
  PaintLine(painter, bankroll, BankrollText(place, bankroll.width(), units),
            negative ? orange : style.quiet, units, negative);
}

void PaintOpen(
    QPainter& painter, const PlateRoom& room, const PlateStyle& style, bool choosing, bool hover) {
  const QString action = Shown(choosing ? ChooseText : JoinText);
  QString text = Shown(OpenText);
  // What a click does, where the line has room for it.
  if ((choosing || hover) && WidthOf(action, room.lettering, hover) <= room.lines.width()) {
    text = action;
  }
  PaintLine(painter, room.lines, Fitted(text, room.lines.width(), room.lettering, hover), style.ink,
            room.lettering, hover);
}

void PaintStacks(QPainter& painter, int place, const TableLayout& layout, const RailLook& look) {
  for (int position = 1; position <= 4; ++position) {
    const int number = At(At(Table.VisibleStack, place), position);
    if (number < FirstStack || number >= FirstStack + StackCount) continue;
    PileLook pile;
    pile.diameter = CheckDiameter;
    pile.pixelsPerUnit = look.pixelsPerUnit;
    PaintPile(painter, CheckPosition(layout, place, 100 + position), Bet(place, number), pile);
  }
}

}  // namespace

void PaintRailPlace(QPainter& painter, int place, const TableLayout& layout, const RailLook& look) {
  const bool taken = IsTaken(Table, place);
  const double pixel = 1 / std::max(look.pixelsPerUnit, 1e-3);
  const PlateStyle style = StyleOf(place, taken, look);
  const PlateRoom room = RoomIn(RailPlaceArea(place), pixel);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
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
  if (taken) PaintStacks(painter, place, layout, look);
  painter.restore();
}

}  // namespace tessarel
