#include "stats/significant.h"

#include <cmath>

#include "base/number_format.h"

namespace tessarel {

std::string FormatSignificant(double value, int digits) {
  const double power = std::pow(10, digits);
  const double rounded = std::floor(power * value + 0.5) / power;
  if (rounded == 0) {
    if (!(value > 0)) return "0";
    return "<" + FormatNumber(1 / power, "0.0########");
  }
  const bool whole = rounded == std::floor(rounded);
  return FormatNumber(rounded, whole ? "#,#;-#,#;0" : "#,0.0#######;-#,0.0#######;0");
}

}  // namespace tessarel
