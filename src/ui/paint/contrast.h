// Contrast of two colours as readers see it.
#pragma once

#include <QColor>

namespace tessarel {

// The contrast ratio of the Web Content Accessibility Guidelines, 1 to 21.
double Contrast(const QColor& one, const QColor& other);

// `colour` moved towards another one by `share`, 0 to 1.
QColor Mixed(const QColor& colour, const QColor& other, double share);

}  // namespace tessarel
