// Lettering on the table: words as outlines in the serif face, fitted to the area they may fill and
// never smaller than a reader can make out. The routines that paint the felt call these.
#pragma once

#include <QPainter>
#include <QStringList>

namespace tessarel {

// How words are set: their colour and the limits of their size, in units of the painter.
struct Lettering {
  QColor colour;
  double most = 40;
  double least = 12;
};

// The least size that stays legible, nine points on the screen.
double LeastLettering(double pixelsPerUnit);

// Sets the first of `texts` that fits into `area`, each of one or more lines, in its middle.
// Returns whether one did; else nothing is painted.
bool PaintWords(QPainter& painter,
                const QRectF& area,
                const QStringList& texts,
                const Lettering& lettering);

// The size at which a text would be set, 0 when it does not fit.
double FittingSize(const QRectF& area, const QString& text, const Lettering& lettering);

// How far a line runs at a size.
double WidthOfWords(const QString& line, double size);

// Sets letters one by one along a path, centred on it, with `spacing` between them.
void PaintAlongPath(QPainter& painter,
                    const QPainterPath& path,
                    const QString& text,
                    double size,
                    double spacing,
                    const QColor& colour);

}  // namespace tessarel
