// Script files of the older form: a header and records of 256 bytes that each hold a piece of a
// line. Read only; the reader of script files tells the forms apart here.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tessarel {

// Whether the bytes of a file begin with one of the headers of the older form.
bool IsOlderScript(std::string_view bytes);

// The lines of such a file, in their own wording. A file that ends early, also within a record,
// gives what was whole before its end; nothing in it fails.
std::vector<std::string> OlderScriptLines(std::string_view bytes);

}  // namespace tessarel
