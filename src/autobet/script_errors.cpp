#include "autobet/script_errors.h"

namespace tessarel {

std::string ScriptErrorText(int32_t) {
  return {};
}

}  // namespace tessarel
