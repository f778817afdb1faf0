// Numbers as scripts write them: what counts as one, and the text form a number takes. Translation
// and the text functions of the language read and write numbers through here.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace tessarel {

// The value of a text that is a number as a whole: an optional sign and "$" in either order, digits
// with or without commas at the thousands, a point with or without digits, an exponent. Nothing for
// any other text and for a value that does not fit.
std::optional<double> ReadNumber(std::string_view text);

// The plain text of a number: up to 15 significant digits, never an exponent; "0.5", "1000", "-3".
// Overflow fault for infinities and not-a-number.
std::string NumberText(double value);

// The length of the digits with commas at the thousands ("1,000", "12,000,000.5") that stand at the
// front of `text` as a word of their own, or 0.
size_t GroupedNumberLength(std::string_view text);

}  // namespace tessarel
