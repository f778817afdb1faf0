#include "state/scripts.h"

#include <algorithm>

namespace tessarel {

ScriptStoreState Scripts;

void SetScriptActive(int place, bool active) {
  Scripts.ScriptActive[place] = active;
  const bool any = std::any_of(Scripts.ScriptActive.begin() + 1, Scripts.ScriptActive.end(),
                               [](int32_t flag) { return flag != 0; });
  Scripts.ScriptActive[0] = any;
  Scripts.ProgramReady = false;
}

void NewScript(int slot) {
  Scripts.Places[slot] = {};
  if (slot != 0) SetScriptActive(slot, false);
  Scripts.ProgramReady = false;
}

}  // namespace tessarel
