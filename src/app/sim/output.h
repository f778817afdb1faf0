// Standard output, which carries results and nothing else, and the columns in which they stand.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tessarel::sim {

// Writes a result or a part of one. Failure when that is not possible.
void WriteOut(std::string_view text);

// The text at the left or at the right of a column; a longer one stands as it is.
std::string Left(const std::string& text, size_t width);
std::string Right(const std::string& text, size_t width);

}  // namespace tessarel::sim
