#include "texts/compiler/catalogue.h"

#include <algorithm>
#include <bit>
#include <cctype>
#include <set>

namespace tessarel::catalogue {

namespace {

bool IsLetter(char c) {
  return std::isalpha(static_cast<unsigned char>(c)) != 0;
}

bool IsKey(std::string_view key) {
  return !key.empty() && key.front() >= 'A' && key.front() <= 'Z' &&
         std::ranges::all_of(key, [](char c) {
           return IsLetter(c) || std::isdigit(static_cast<unsigned char>(c)) != 0;
         });
}

// One line of a catalogue on its way to an entry.
class LineReader {
 public:
  LineReader(std::string_view file, int line) : file_(file), line_(line) {}

  Entry Read(std::string_view line) {
    Entry entry;
    entry.Line = line_;
    if (line.starts_with("# ")) {
      entry.IsHeading = true;
      entry.Key = line.substr(2);
      return entry;
    }
    const size_t colon = line.find(": ");
    if (colon == line.npos) Fail("expected \"Key: text\" or \"# Heading\"");
    entry.Key = line.substr(0, colon);
    if (!IsKey(entry.Key)) Fail("\"" + entry.Key + "\" is no key");
    const std::string_view text = line.substr(colon + 2);
    if (text.empty()) Fail(entry.Key + " has no text");
    if (text.front() == ' ' || text.back() == ' ') {
      Fail(entry.Key + " has a blank at an end of its text");
    }
    TakeText(text, entry);
    return entry;
  }

  [[noreturn]] void Fail(const std::string& message) const { throw Fault(file_, line_, message); }

 private:
  void TakeText(std::string_view text, Entry& entry) const {
    while (!text.empty()) {
      const char c = text.front();
      const char next = text.size() > 1 ? text[1] : '\0';
      size_t taken = 2;
      if (c == '\\') {
        entry.Text += Escaped(next);
      } else if ((c == '{' || c == '}') && next == c) {
        entry.Text += c;
      } else if (c == '{') {
        taken = TakeValue(text, entry);
      } else if (c == '}') {
        Fail("\"}\" without \"{\"; a brace of the text is doubled");
      } else {
        if (static_cast<unsigned char>(c) < ' ') Fail("a control character in the text");
        entry.Text += c;
        taken = 1;
      }
      text.remove_prefix(taken);
    }
    if (!std::has_single_bit((entry.Arguments >> 1) + 1)) {
      Fail(entry.Key + " leaves out a value before its last one");
    }
  }

  char Escaped(char letter) const {
    if (letter == 'n') return '\r';
    if (letter == '\\') return '\\';
    Fail("unknown escape \"\\" + std::string(letter == '\0' ? 0 : 1, letter) + "\"");
  }

  // The length of "{n}" at the start of `text`.
  size_t TakeValue(std::string_view text, Entry& entry) const {
    const int number = text.size() > 1 ? text[1] - '0' : 0;
    if (text.size() < 3 || text[2] != '}' || number < 1 || number > MostArguments) {
      Fail("expected \"{1}\" to \"{" + std::to_string(MostArguments) +
           "}\"; a brace of the text is doubled");
    }
    entry.Text += static_cast<char>(number);
    entry.Arguments |= 1U << number;
    return 3;
  }

  std::string_view file_;
  int line_;
};

std::string LanguageOf(std::string_view file) {
  std::string name(file.substr(file.find_last_of('/') + 1));
  name.resize(std::min(name.find('.'), name.size()));
  if (!name.empty()) {
    name.front() = static_cast<char>(std::toupper(static_cast<unsigned char>(name.front())));
  }
  return name;
}

std::string NameOf(const Entry& entry) {
  return entry.IsHeading ? "the heading \"" + entry.Key + "\"" : entry.Key;
}

bool IsSame(const Entry& a, const Entry& b) {
  return a.IsHeading == b.IsHeading && a.Key == b.Key;
}

bool Has(const Catalogue& catalogue, const Entry& entry) {
  return std::ranges::any_of(catalogue.Entries,
                             [&](const Entry& each) { return IsSame(each, entry); });
}

std::string ValuesOf(const Entry& entry) {
  std::string values;
  for (int number = 1; number <= MostArguments; ++number) {
    if ((entry.Arguments >> number & 1U) != 0) values += " {" + std::to_string(number) + "}";
  }
  return values.empty() ? " none" : values;
}

int CountOfValues(const Entry& entry) {
  return std::popcount(entry.Arguments);
}

// The text as a C++ literal; a byte outside of printing ASCII is written in octal, which ends after
// three digits whatever follows.
std::string Literal(std::string_view text) {
  std::string literal = "\"";
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (c == '"' || c == '\\') {
      literal += '\\';
      literal += c;
    } else if (byte < 0x20 || byte >= 0x7F) {
      literal += '\\';
      for (const int shift : {6, 3, 0})
        literal += static_cast<char>('0' + (byte >> shift & 7));
    } else {
      literal += c;
    }
  }
  return literal + "\"";
}

template <class Put>
void ForEachText(const Catalogue& catalogue, Put&& put) {
  for (const Entry& entry : catalogue.Entries) {
    if (!entry.IsHeading) put(entry);
  }
}

}  // namespace

Fault::Fault(std::string_view file, int line, const std::string& message)
    : std::runtime_error(std::string(file) + ":" + std::to_string(line) + ": " + message) {}

Catalogue Read(std::string_view file, std::string_view content) {
  Catalogue catalogue;
  catalogue.File = file;
  catalogue.Language = LanguageOf(file);
  std::set<std::string> keys;
  while (!content.empty()) {
    ++catalogue.Lines;
    const size_t end = std::min(content.find('\n'), content.size());
    const std::string_view line = content.substr(0, end);
    content.remove_prefix(std::min(end + 1, content.size()));
    if (line.empty()) continue;
    LineReader reader(file, catalogue.Lines);
    Entry entry = reader.Read(line);
    if (!keys.insert(NameOf(entry)).second) reader.Fail(NameOf(entry) + " stands twice");
    catalogue.Entries.push_back(std::move(entry));
  }
  return catalogue;
}

void Compare(const Catalogue& first, const Catalogue& other) {
  const size_t count = std::max(first.Entries.size(), other.Entries.size());
  for (size_t k = 0; k < count; ++k) {
    const Entry* wanted = k < first.Entries.size() ? &first.Entries[k] : nullptr;
    const Entry* found = k < other.Entries.size() ? &other.Entries[k] : nullptr;
    const int line = found != nullptr ? found->Line : other.Lines;
    const auto fail = [&](const std::string& message) { throw Fault(other.File, line, message); };
    if (found != nullptr && !Has(first, *found)) {
      fail(NameOf(*found) + " is not in " + first.File);
    }
    if (wanted != nullptr && !Has(other, *wanted)) fail(NameOf(*wanted) + " is missing");
    if (!IsSame(*wanted, *found)) {
      fail(NameOf(*found) + " is out of order: expected " + NameOf(*wanted));
    }
    if (wanted->Arguments != found->Arguments) {
      fail(found->Key + " takes other values than in " + first.File + ":" + ValuesOf(*found) +
           " instead of" + ValuesOf(*wanted));
    }
  }
}

std::string Header(const std::vector<Catalogue>& catalogues) {
  std::string languages, keys, counts;
  int count = 0;
  for (const Catalogue& catalogue : catalogues)
    languages += (languages.empty() ? "" : ", ") + catalogue.Language;
  ForEachText(catalogues.front(), [&](const Entry& entry) {
    keys += "  " + entry.Key + ",\n";
    counts += (count % 32 == 0 ? "\n    " : " ") + std::to_string(CountOfValues(entry)) + ",";
    ++count;
  });
  return "// Written by the compiler of the catalogues of texts.\n#pragma once\n\n"
         "#include <array>\n#include <cstdint>\n\nnamespace tessarel {\n\n"
         "enum LanguageNumber : int32_t { " +
         languages +
         " };\ninline constexpr int LanguageCount = " + std::to_string(catalogues.size()) +
         ";\n\nenum class Text : uint16_t {\n" + keys +
         "};\ninline constexpr int TextCount = " + std::to_string(count) +
         ";\n\n// How many values each text takes.\n"
         "inline constexpr std::array<uint8_t, TextCount> TextArguments = {" +
         counts + "\n};\n\n}  // namespace tessarel\n";
}

std::string Tables(const std::vector<Catalogue>& catalogues) {
  std::string tables =
      "// Written by the compiler of the catalogues of texts.\n#include \"texts/text_tables.h\"\n\n"
      "namespace tessarel {\n\nconst TextTables TextsOfLanguages = {{\n";
  for (const Catalogue& catalogue : catalogues) {
    tables += "    // " + catalogue.Language + "\n    {{\n";
    ForEachText(catalogue,
                [&](const Entry& entry) { tables += "        " + Literal(entry.Text) + ",\n"; });
    tables += "    }},\n";
  }
  return tables + "}};\n\n}  // namespace tessarel\n";
}

}  // namespace tessarel::catalogue
