#include "ui/windows/small_die.h"

#include <array>
#include <cmath>

namespace tessarel {

namespace {

// The pips of each face as bits of a grid of 3 by 3, row by row.
constexpr std::array<int, 7> PipsOfFace = {0,           0b000010000, 0b100000001, 0b100010001,
                                           0b101000101, 0b101010101, 0b101101101};

}  // namespace

void PaintSmallDie(QPainter& painter, QPoint corner, int side, int face, const SmallDieLook& look) {
  if (face < 1 || face > 6) return;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF box(corner.x() + 0.5, corner.y() + 0.5, side - 1, side - 1);
  const double rounding = side / 5.0;
  painter.setPen(QPen(look.edge, 1));
  painter.setBrush(look.body);
  painter.drawRoundedRect(box, rounding, rounding);
  painter.setPen(Qt::NoPen);
  painter.setBrush(look.pips);
  // The distance between pips is a whole number of half pixels, so that they sit alike.
  const double step = std::max(2.0, std::round(side * 0.5) / 2.0);
  const double radius = std::max(1.05, side * 0.095);
  const QPointF centre = box.center();
  for (int pip = 0; pip < 9; ++pip) {
    if ((PipsOfFace[static_cast<size_t>(face)] >> pip & 1) == 0) continue;
    painter.drawEllipse(centre + QPointF((pip % 3 - 1) * step, (pip / 3 - 1) * step), radius,
                        radius);
  }
  painter.restore();
}

}  // namespace tessarel
