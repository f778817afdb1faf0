// A die of a few pixels, sharp at any size, as it stands on buttons and beside names.
#pragma once

#include <QPainter>

namespace tessarel {

struct SmallDieLook {
  QColor body = QColor(0xFF, 0xFF, 0xFF);
  QColor pips = QColor(0x1C, 0x1C, 0x22);
  QColor edge = QColor(0x5A, 0x5A, 0x64);
};

// `corner` and `side` are whole pixels of the painter; faces are 1 to 6.
void PaintSmallDie(
    QPainter& painter, QPoint corner, int side, int face, const SmallDieLook& look = {});

}  // namespace tessarel
