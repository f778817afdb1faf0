#include "autobet/functions.h"

namespace tessarel {

int32_t NamedVariable(int32_t, const ScriptValue&) {
  return 0;
}

ScriptValue CallFunction(int32_t, const Reference&, std::span<const ListItem>) {
  return Number(0);
}

}  // namespace tessarel
