#include "ui/paint/contrast.h"

#include <algorithm>
#include <cmath>

namespace tessarel {

namespace {

double Luminance(const QColor& colour) {
  const auto linear = [](double channel) {
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(colour.red() / 255.0) + 0.7152 * linear(colour.green() / 255.0) +
         0.0722 * linear(colour.blue() / 255.0);
}

}  // namespace

double Contrast(const QColor& one, const QColor& other) {
  const auto [dark, light] = std::minmax({Luminance(one), Luminance(other)});
  return (light + 0.05) / (dark + 0.05);
}

QColor Mixed(const QColor& colour, const QColor& other, double share) {
  const auto mix = [share](int from, int to) {
    return static_cast<int>(std::lround(std::lerp(from, to, share)));
  };
  return {mix(colour.red(), other.red()), mix(colour.green(), other.green()),
          mix(colour.blue(), other.blue())};
}

}  // namespace tessarel
