// Texts inside the program are UTF-8; texts in files are single-byte, in the code page Windows-1252
// of the Western European languages. Whoever reads or writes a file converts here; nothing in it
// fails, whatever bytes it is given.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tessarel {

// One byte a character. The Turkish letters that the code page lacks become the plain ones; any
// other character without a code, and each byte that is not UTF-8, becomes '?'.
std::string ToSingleByte(std::string_view utf8);
void AppendSingleByte(std::string& bytes, std::string_view utf8);

// The five bytes that the code page leaves undefined become the control characters of the same
// number, so that every byte comes back from ToSingleByte as it was.
std::string FromSingleByte(std::string_view bytes);

// The text as a field of exactly `width` bytes: cut, or padded with spaces.
std::string PadText(std::string_view utf8, size_t width);

// Without the spaces at both ends.
std::string_view TrimSpaces(std::string_view text);

// A field of a file as UTF-8, without the padding of spaces or null bytes.
std::string FieldText(std::string_view bytes);

// Lower case for the letters of the code page; all else stands. The length in bytes never changes,
// so positions in a line hold for its lower-case form too.
std::string LowerCase(std::string_view utf8);

bool EqualIgnoringCase(std::string_view a, std::string_view b);

// The text between quotation marks.
std::string Quoted(std::string_view text);

}  // namespace tessarel
