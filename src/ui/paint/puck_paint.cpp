#include <QLinearGradient>

#include "ui/paint/check_paint.h"
#include "ui/paint/check_picture.h"

namespace tessarel {

void PaintPuck(QPainter& painter, QPointF centre, double diameter, bool on) {
  const QColor face = on ? QColor(250, 248, 240) : QColor(24, 24, 27);
  const QColor ink = on ? QColor(20, 20, 22) : QColor(248, 248, 244);
  const double radius = diameter / 2;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(centre);
  QRadialGradient shade(QPointF(0.12, 0.18) * radius, radius * 1.3);
  shade.setColorAt(0.6, QColor(0, 0, 0, 130));
  shade.setColorAt(0.8, QColor(0, 0, 0, 45));
  shade.setColorAt(1, QColor(0, 0, 0, 0));
  painter.setPen(Qt::NoPen);
  painter.setBrush(shade);
  painter.drawEllipse(QPointF(0.12, 0.18) * radius, radius * 1.3, radius * 1.3);
  // The rim is raised: light on its upper left, dark at the lower right.
  QLinearGradient rim(QPointF(-radius, -radius), QPointF(radius, radius));
  rim.setColorAt(0, on ? QColor(255, 255, 255) : QColor(120, 120, 126));
  rim.setColorAt(1, on ? QColor(168, 164, 150) : QColor(0, 0, 0));
  painter.setBrush(rim);
  painter.drawEllipse(QPointF(), radius, radius);
  painter.setBrush(face);
  painter.setPen(QPen(on ? QColor(120, 116, 104) : QColor(110, 110, 116), radius * 0.03));
  painter.drawEllipse(QPointF(), radius * 0.86, radius * 0.86);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(ink, radius * 0.045));
  painter.drawEllipse(QPointF(), radius * 0.76, radius * 0.76);
  const QRectF box(-0.62 * radius, -0.3 * radius, 1.24 * radius, 0.6 * radius);
  PaintFittedText(painter, box, on ? QStringLiteral("ON") : QStringLiteral("OFF"), ink);
  painter.restore();
}

}  // namespace tessarel
