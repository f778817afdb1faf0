// The texts of run-time errors of scripts by their number.
#pragma once

#include <cstdint>
#include <string>

namespace tessarel {

// One or two lines, separated by a carriage return; for 10000 the text of the fault. Empty for 0.
std::string ScriptErrorText(int32_t error);

}  // namespace tessarel
