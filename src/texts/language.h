// The language in force, which is a setting of the game.
#pragma once

#include <cstdint>

#include "texts/text_keys.h"

namespace tessarel {

// Puts a language in force (outside 0 to 5: English) together with the wording of faults, which
// base/ keeps.
void SetLanguage(int32_t language);

}  // namespace tessarel
