#include "ui/windows/message_pictures.h"

#include <QPainter>
#include <QPainterPath>
#include <functional>
#include <numbers>
#include <utility>

#include "base/message.h"

namespace tessarel {

namespace {

constexpr QRgb Green = 0xff2f8f6b, Amber = 0xffe5b84b, Blue = 0xff3d6fb0, Red = 0xffc0392b,
               DiceRed = 0xffb3261e, Ivory = 0xfff2efe6, Ink = 0xff14161a;

// Pictures are drawn on a square from (0, 0) to (100, 100).
using Drawing = void (*)(QPainter&);

class Picture : public QWidget {
 public:
  Picture(Drawing draw, QSize size) : draw_(draw) { setFixedSize(size); }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const double scale = height() / 100.0;
    painter.scale(scale, scale);
    draw_(painter);
  }

 private:
  Drawing draw_;
};

QPen Stroke(QRgb colour, double width) {
  return QPen(QColor(colour), width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
}

// A casino check: a disc with edge spots.
void DrawCheck(QPainter& painter, QRgb colour) {
  painter.setBrush(QColor(colour));
  painter.drawEllipse(QRectF(3, 3, 94, 94));
  painter.setBrush(QColor(Ivory));
  for (int spot = 0; spot < 8; ++spot)
    painter.drawPie(QRectF(3, 3, 94, 94), spot * 45 * 16 + 150, 20 * 16);
  painter.setBrush(QColor(colour).darker(125));
  painter.drawEllipse(QRectF(17, 17, 66, 66));
}

void DrawOk(QPainter& painter) {
  DrawCheck(painter, Green);
  painter.setPen(Stroke(Ivory, 10));
  painter.setBrush(Qt::NoBrush);
  painter.drawPolyline(QPolygonF({{33, 52}, {45, 65}, {68, 37}}));
}

// The mark of a text as a shape, so that it looks the same with any font: a bar above a dot.
void DrawExclamation(QPainter& painter, double top, double bottom) {
  painter.setBrush(QColor(Ink));
  const double dot = 5.5;
  painter.drawPolygon(QPolygonF({{43, top}, {57, top}, {53, bottom - 16}, {47, bottom - 16}}));
  painter.drawEllipse(QPointF(50, bottom - dot), dot, dot);
}

void DrawAlert(QPainter& painter) {
  painter.setBrush(QColor(Amber));
  painter.setPen(Stroke(Amber, 12));
  painter.drawPolygon(QPolygonF({{50, 13}, {91, 86}, {9, 86}}));
  painter.setPen(Qt::NoPen);
  DrawExclamation(painter, 33, 83);
}

void DrawQuestion(QPainter& painter) {
  DrawCheck(painter, Blue);
  QPainterPath hook;
  hook.moveTo(38, 41);
  hook.cubicTo(38, 24, 62, 24, 62, 41);
  hook.cubicTo(62, 50, 50, 49, 50, 58);
  painter.setPen(Stroke(Ivory, 8));
  painter.setBrush(Qt::NoBrush);
  painter.drawPath(hook);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(Ivory));
  painter.drawEllipse(QPointF(50, 71), 5, 5);
}

void DrawStop(QPainter& painter) {
  QPolygonF sign;
  for (int corner = 0; corner < 8; ++corner) {
    const double angle = (corner + 0.5) * std::numbers::pi / 4;
    sign << QPointF(50 + 49 * std::cos(angle), 50 + 49 * std::sin(angle));
  }
  painter.setBrush(QColor(Red));
  painter.drawPolygon(sign);
  painter.setBrush(QColor(Ivory));
  painter.drawRoundedRect(QRectF(23, 42, 54, 16), 4, 4);
}

void DrawDie(QPainter& painter, QPointF at, double turn, std::initializer_list<QPointF> pips) {
  painter.save();
  painter.translate(at);
  painter.rotate(turn);
  painter.setBrush(QColor(DiceRed));
  painter.setPen(Stroke(QColor(DiceRed).lighter(140).rgb(), 2));
  painter.drawRoundedRect(QRectF(-24, -24, 48, 48), 9, 9);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(Ivory));
  for (const QPointF& pip : pips)
    painter.drawEllipse(pip * 13, 4.6, 4.6);
  painter.restore();
}

void DrawDice(QPainter& painter) {
  DrawDie(painter, {34, 34}, -14, {{-1, -1}, {1, 1}, {-1, 1}, {1, -1}, {0, 0}});
  DrawDie(painter, {66, 68}, 18, {{-1, -1}, {1, 1}});
}

}  // namespace

QWidget* MakeMessagePicture(int32_t flags, int size) {
  constexpr std::pair<int32_t, Drawing> Pictures[] = {{msg::PictureOk, DrawOk},
                                                      {msg::PictureAlert, DrawAlert},
                                                      {msg::PictureQuestion, DrawQuestion},
                                                      {msg::PictureStop, DrawStop}};
  for (const auto& [flag, draw] : Pictures) {
    if ((flags & flag) != 0) return new Picture(draw, {size, size});
  }
  return nullptr;
}

QWidget* MakeDicePicture(int size) {
  return new Picture(DrawDice, {size, size});
}

}  // namespace tessarel
