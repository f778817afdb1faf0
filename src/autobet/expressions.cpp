#include "autobet/checker.h"

namespace tessarel {

std::optional<ScriptError> CheckExpressions(CompiledScript&) {
  return std::nullopt;
}

}  // namespace tessarel
