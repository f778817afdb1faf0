// Standard output, which carries results and nothing else.
#pragma once

#include <string_view>

namespace tessarel::sim {

// Writes a result or a part of one. Failure when that is not possible.
void WriteOut(std::string_view text);

}  // namespace tessarel::sim
