#include "base/single_byte_text.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace tessarel {

namespace {

// What no UTF-8 text can hold: stands for a byte that is not UTF-8.
constexpr char32_t Malformed = 0xFFFFFFFF;

constexpr uint8_t FirstMoved = 0x80;

// The characters of the bytes 0x80 to 0x9F; all other bytes have their own number.
// Source: the registered mapping of Windows-1252 to Unicode.
// clang-format off
constexpr std::array<char32_t, 32> Moved = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};
// clang-format on

// Takes the next character off `rest`, or a single byte when it is malformed: cut off, overlong,
// a surrogate or beyond the last character.
char32_t TakeCharacter(std::string_view& rest) {
  const auto byteAt = [&](size_t k) -> uint32_t {
    return k < rest.size() ? static_cast<uint8_t>(rest[k]) : 0u;
  };
  const uint32_t lead = byteAt(0);
  const size_t length = lead < 0x80 ? 1 : lead < 0xC2 ? 0 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
  uint32_t code = length < 2 ? lead : lead & (0x7Fu >> length);
  bool good = length > 0 && lead < 0xF5;
  for (size_t k = 1; k < length; ++k) {
    good = good && (byteAt(k) & 0xC0) == 0x80;
    code = code << 6 | (byteAt(k) & 0x3F);
  }
  if (length == 3) good = good && code >= 0x800 && !(code >= 0xD800 && code < 0xE000);
  if (length == 4) good = good && code >= 0x10000 && code < 0x110000;
  rest.remove_prefix(good ? length : 1);
  return good ? code : Malformed;
}

// For characters of up to three bytes, which is all that the code page has.
void PutCharacter(std::string& out, char32_t code) {
  const auto put = [&](char32_t byte) { out += static_cast<char>(byte); };
  if (code < 0x80) {
    put(code);
  } else if (code < 0x800) {
    put(0xC0 | code >> 6);
    put(0x80 | (code & 0x3F));
  } else {
    put(0xE0 | code >> 12);
    put(0x80 | (code >> 6 & 0x3F));
    put(0x80 | (code & 0x3F));
  }
}

// The Turkish letters that the code page lacks, and the plain ones that stand for them.
// clang-format off
constexpr struct { char32_t letter; char plain; } PlainLetters[] = {
    {0x11E, 'G'}, {0x11F, 'g'}, {0x130, 'I'}, {0x131, 'i'}, {0x15E, 'S'}, {0x15F, 's'},
};
// clang-format on

char ByteOf(char32_t code) {
  if (code < FirstMoved || (code >= FirstMoved + Moved.size() && code < 0x100)) {
    return static_cast<char>(code);
  }
  const auto found = std::find(Moved.begin(), Moved.end(), code);
  if (found != Moved.end()) return static_cast<char>(FirstMoved + (found - Moved.begin()));
  for (const auto& [letter, plain] : PlainLetters) {
    if (letter == code) return plain;
  }
  return '?';
}

char32_t LowerCharacter(char32_t code) {
  constexpr char32_t MultiplicationSign = 0xD7;
  constexpr char32_t CapitalDiaeresisY = 0x178, SmallDiaeresisY = 0xFF;
  if (code >= 'A' && code <= 'Z') return code + 0x20;
  if (code >= 0xC0 && code <= 0xDE && code != MultiplicationSign) return code + 0x20;
  if (code == 0x152 || code == 0x160 || code == 0x17D) return code + 1;
  return code == CapitalDiaeresisY ? SmallDiaeresisY : code;
}

std::string_view Trimmed(std::string_view text, std::string_view padding) {
  const size_t first = text.find_first_not_of(padding);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(padding) - first + 1);
}

}  // namespace

void AppendSingleByte(std::string& bytes, std::string_view utf8) {
  const auto isPlain = [](char c) { return static_cast<unsigned char>(c) < 0x80; };
  if (std::ranges::all_of(utf8, isPlain)) {
    bytes += utf8;
    return;
  }
  while (!utf8.empty())
    bytes += ByteOf(TakeCharacter(utf8));
}

std::string ToSingleByte(std::string_view utf8) {
  std::string bytes;
  bytes.reserve(utf8.size());
  AppendSingleByte(bytes, utf8);
  return bytes;
}

std::string FromSingleByte(std::string_view bytes) {
  std::string utf8;
  utf8.reserve(bytes.size());
  for (const char c : bytes) {
    const auto byte = static_cast<uint8_t>(c);
    const bool moved = byte >= FirstMoved && byte < FirstMoved + Moved.size();
    PutCharacter(utf8, moved ? Moved[byte - FirstMoved] : byte);
  }
  return utf8;
}

std::string PadText(std::string_view utf8, size_t width) {
  std::string field = ToSingleByte(utf8);
  field.resize(width, ' ');
  return field;
}

std::string_view TrimSpaces(std::string_view text) {
  return Trimmed(text, " ");
}

std::string FieldText(std::string_view bytes) {
  return FromSingleByte(Trimmed(bytes, std::string_view(" \0", 2)));
}

std::string LowerCase(std::string_view utf8) {
  std::string lower;
  lower.reserve(utf8.size());
  while (!utf8.empty()) {
    const std::string_view before = utf8;
    const char32_t code = TakeCharacter(utf8);
    const char32_t small = LowerCharacter(code);
    if (small == code) {
      lower += before.substr(0, before.size() - utf8.size());
    } else {
      PutCharacter(lower, small);
    }
  }
  return lower;
}

bool EqualIgnoringCase(std::string_view a, std::string_view b) {
  return a.size() == b.size() && LowerCase(a) == LowerCase(b);
}

}  // namespace tessarel
