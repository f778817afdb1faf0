#include "autobet/interpreter.h"

namespace tessarel {

void CheckScriptErrors() {}

bool CompileHotKeyScript() {
  return false;
}

void RunAutoBet() {}

}  // namespace tessarel
