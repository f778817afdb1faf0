#include "autobet/checker.h"

namespace tessarel {

std::optional<ScriptError> CheckScript(int, CompiledScript&, std::vector<int32_t>*) {
  return std::nullopt;
}

}  // namespace tessarel
