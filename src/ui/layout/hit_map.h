// The hit map: every region of the layout filled with its spot number as a colour, without
// smoothing, on white. A pixel read is the whole hit test.
#pragma once

#include <QImage>
#include <QPoint>
#include <QSize>
#include <QTransform>

#include "ui/layout/table_layout.h"

namespace tessarel {

QImage DrawHitMap(const TableLayout& layout, const QTransform& toPixels, QSize size);

// The spot at a pixel; 0 outside of the map and where there is nothing.
int SpotAt(const QImage& hitMap, QPoint pixel);

}  // namespace tessarel
