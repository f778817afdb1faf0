// A catalogue of texts: one text a line, "Key: text with {1} and {2}", under headings that begin
// with "#". The compiler that the build runs reads the catalogues of all languages here, compares
// them with the first one and writes the enum of keys and the tables that the program is linked
// with. Whatever is wrong is reported as "file:line: message".
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace tessarel::catalogue {

// A fault of a catalogue; what() names file and line.
class Fault : public std::runtime_error {
 public:
  Fault(std::string_view file, int line, const std::string& message);
};

// The most values that one text can take.
inline constexpr int MostArguments = 8;

struct Entry {
  std::string Key;
  // As the program keeps it: "\r" for a line break, and the character n where value n goes, 1 to
  // MostArguments.
  std::string Text;
  int Line = 0;
  bool IsHeading = false;  // then Key is the heading
  // Bit n for each value n that the text takes.
  unsigned Arguments = 0;
};

struct Catalogue {
  std::string File;
  std::string Language;  // "English" for english.txt
  std::vector<Entry> Entries;
  int Lines = 0;
};

// The catalogue in `content`, the text of `file`. Throws Fault for a line that cannot be read, a
// key that stands twice, and values that leave out a number.
Catalogue Read(std::string_view file, std::string_view content);

// Throws Fault unless `other` has the headings and keys of `first` in the same order, each with the
// same values.
void Compare(const Catalogue& first, const Catalogue& other);

// C++ that declares the languages, the keys and the number of values that each text takes.
std::string Header(const std::vector<Catalogue>& catalogues);

// C++ that defines one table a language.
std::string Tables(const std::vector<Catalogue>& catalogues);

}  // namespace tessarel::catalogue
