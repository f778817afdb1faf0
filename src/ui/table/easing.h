// How things move on the table: fast at first, slower towards their goal.
#pragma once

#include <QPointF>

namespace tessarel {

// For `t` from 0 to 1.
inline double EaseOut(double t) {
  return 1 - (1 - t) * (1 - t) * (1 - t);
}

inline QPointF Between(QPointF from, QPointF to, double t) {
  return from + (to - from) * t;
}

}  // namespace tessarel
