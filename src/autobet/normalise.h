// The tidy form of a script line: blanks around signs, plain numbers, brackets next to the names
// they belong to. The script editor shows lines in this form, and translation counts on it.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tessarel {

// Rewrites the line; nothing in it fails, and a tidy line stays as it is. Strings and the comment
// are kept, but a string left open at the end of the line is closed.
void NormaliseLine(std::string& line);

// The length of what stands at `at` and is never rewritten: a string with its quotes (without a
// closing one, to the end), or from ' on the comment. 0 when the character is code.
size_t VerbatimLength(std::string_view line, size_t at);

}  // namespace tessarel
