#include "ui/layout/hit_map.h"

#include <QPainter>

namespace tessarel {

QImage DrawHitMap(const TableLayout& layout, const QTransform& toPixels, QSize size) {
  QImage map(size, QImage::Format_RGB32);
  map.fill(Qt::white);
  QPainter painter(&map);
  painter.setRenderHint(QPainter::Antialiasing, false);
  painter.setTransform(toPixels);
  for (const Region& region : layout.regions)
    painter.fillPath(region.outline, QColor::fromRgb(static_cast<QRgb>(region.spot)));
  return map;
}

int SpotAt(const QImage& hitMap, QPoint pixel) {
  if (!hitMap.rect().contains(pixel)) return 0;
  const QRgb value = hitMap.pixel(pixel) & 0xFFFFFF;
  return value == 0xFFFFFF ? 0 : static_cast<int>(value);
}

}  // namespace tessarel
