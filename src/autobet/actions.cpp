#include "autobet/actions.h"

namespace tessarel {

void RunCommand(const ScriptCommand&) {}

bool ScriptMessagesShown() {
  return true;
}

}  // namespace tessarel
