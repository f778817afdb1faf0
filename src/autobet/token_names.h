// The names that messages of the script language give to functions and variables. The checker and
// the interpreter word their complaints with them.
#pragma once

#include <cstdint>
#include <string>

namespace tessarel {

// The name of a function token in double quotes; empty for a number without one.
std::string FunctionName(int32_t number);

// The name of a variable token in double quotes; "Variable" for a number without one.
std::string VariableName(int32_t number);

}  // namespace tessarel
