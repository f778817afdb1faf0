#include "ui/paint/lettering.h"

#include <QFont>
#include <QFontMetricsF>
#include <QHash>
#include <algorithm>

#include "ui/paint/table_paint.h"

namespace tessarel {

namespace {

constexpr double OutlineSize = 100;  // the size of the outlines that are kept
constexpr double CapHeight = 0.72;   // of the size
constexpr double LineStep = 1.0;     // of the size, between base lines
constexpr double LeastSqueeze = 0.80;

struct LineOutline {
  QPainterPath path;
  double width = 0;
};

const LineOutline& OutlineOfLine(const QString& line) {
  static QHash<QString, LineOutline> outlines;
  auto found = outlines.find(line);
  if (found == outlines.end()) {
    const QFont font = LayoutFont(OutlineSize);
    LineOutline outline;
    outline.path.addText(0, 0, font, line);
    outline.width = QFontMetricsF(font).horizontalAdvance(line);
    found = outlines.insert(line, outline);
  }
  return *found;
}

double WidestLine(const QStringList& lines) {
  double widest = 1;
  for (const QString& line : lines)
    widest = std::max(widest, OutlineOfLine(line).width);
  return widest / OutlineSize;
}

double HeightOfLines(qsizetype count) {
  return CapHeight + LineStep * static_cast<double>(count - 1);
}

double FittingSize(const QRectF& area, const QStringList& lines, const Lettering& lettering) {
  const double size = std::min({std::max(lettering.most, lettering.least),
                                area.height() / HeightOfLines(lines.size()),
                                area.width() / (WidestLine(lines) * LeastSqueeze)});
  return size < lettering.least ? 0 : size;
}

void PaintLines(QPainter& painter,
                const QRectF& area,
                const QStringList& lines,
                double size,
                const QColor& colour) {
  const double squeeze = std::min(1.0, area.width() / (WidestLine(lines) * size));
  double base = area.center().y() - HeightOfLines(lines.size()) * size / 2 + CapHeight * size;
  for (const QString& line : lines) {
    const LineOutline& outline = OutlineOfLine(line);
    const double scale = size / OutlineSize;
    QTransform place;
    place.translate(area.center().x() - outline.width * scale * squeeze / 2, base);
    place.scale(scale * squeeze, scale);
    painter.fillPath(place.map(outline.path), colour);
    base += LineStep * size;
  }
}

}  // namespace

double LeastLettering(double pixelsPerUnit) {
  constexpr double NinePoints = 12;  // in pixels
  return NinePoints / pixelsPerUnit;
}

double FittingSize(const QRectF& area, const QString& text, const Lettering& lettering) {
  return FittingSize(area, text.split('\n'), lettering);
}

bool PaintWords(QPainter& painter,
                const QRectF& area,
                const QStringList& texts,
                const Lettering& lettering) {
  for (const QString& text : texts) {
    const QStringList lines = text.split('\n');
    const double size = FittingSize(area, lines, lettering);
    if (size == 0) continue;
    PaintLines(painter, area, lines, size, lettering.colour);
    return true;
  }
  return false;
}

double WidthOfWords(const QString& line, double size) {
  return OutlineOfLine(line).width * size / OutlineSize;
}

void PaintAlongPath(QPainter& painter,
                    const QPainterPath& path,
                    const QString& text,
                    double size,
                    double spacing,
                    const QColor& colour) {
  double length = -spacing;
  for (const QChar letter : text)
    length += WidthOfWords(letter, size) + spacing;
  double along = (path.length() - length) / 2;
  for (const QChar letter : text) {
    const double width = WidthOfWords(letter, size);
    const double share = path.percentAtLength(along + width / 2);
    QTransform place;
    const QPointF middle = path.pointAtPercent(share);
    place.translate(middle.x(), middle.y());
    place.rotate(-path.angleAtPercent(share));
    place.scale(size / OutlineSize, size / OutlineSize);
    place.translate(-OutlineSize * width / size / 2, CapHeight * OutlineSize / 2);
    painter.fillPath(place.map(OutlineOfLine(letter).path), colour);
    along += width + spacing;
  }
}

}  // namespace tessarel
