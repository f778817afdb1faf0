// Figures shown to so many decimals and no more than they need. A positive one too small for them
// shows as a bound: "<0.0001".
#pragma once

#include <string>

namespace tessarel {

// `digits` is 1 to 9. Halves round up.
std::string FormatSignificant(double value, int digits);

}  // namespace tessarel
