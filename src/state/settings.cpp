#include "state/settings.h"

namespace tessarel {

SettingsState Settings;

}  // namespace tessarel
