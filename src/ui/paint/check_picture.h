// Pictures of single checks, made once for each size and kept: painting a pile only copies them.
// Sizes are in pixels of the device. The pictures follow Settings.CheckStyle, Denomination and
// UseCentsSymbol by themselves.
#pragma once

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QString>

#include "base/money.h"

namespace tessarel {

// A check seen from above, `pixels` across and centred in its picture.
const QImage& CheckTop(int denomination, int pixels);
// The same check under others: only the lower edge of it shows. No two neighbours of a column lie
// with their spots in line; `level` is the check's height in it.
const QImage& CheckSide(int denomination, int pixels, size_t level);
// The yellow marker for less than the smallest check.
const QImage& FractionMarker(int pixels);
// What a check throws on the felt; the picture is half as large again as the check.
const QImage& CheckShadow(int pixels);

// What stands on a check: "25", "50¢" or ".50", "1K", "2.5M".
QString CheckLettering(Money value);

// Counts the changes of the settings above, so that pictures made of checks can follow.
int CheckPicturesVersion();

// Letters along a straight line, centred in `box` and never larger than it.
void PaintFittedText(QPainter& painter, const QRectF& box, const QString& text, const QColor& ink);

}  // namespace tessarel
