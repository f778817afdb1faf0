#include "autobet/variables.h"

namespace tessarel {

ScriptValue ReadVariable(const Reference&) {
  return Number(0);
}

void SetVariable(const Reference&, const ScriptValue&) {}

ScriptValue RollStatistic(int32_t, const Reference&, std::span<const ListItem>) {
  return Number(0);
}

}  // namespace tessarel
