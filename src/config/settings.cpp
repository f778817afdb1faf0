#include "config/settings.h"

namespace tessarel {

SettingsState Settings;

}  // namespace tessarel
