#include "autobet/normalise.h"

#include <algorithm>
#include <array>

#include "autobet/number_text.h"
#include "base/single_byte_text.h"

namespace tessarel {

namespace {

constexpr std::string_view BlankInFront = ":(){}[]=^*/\\+-<>&";
constexpr std::string_view BlankBehind = "$:;,(){}[]=^*/\\+-<>&";
constexpr std::string_view OpeningBrackets = "({[";
constexpr std::string_view ClosingBrackets = ")}]";

constexpr bool IsOneOf(char c, std::string_view set) {
  return set.find(c) != std::string_view::npos;
}

constexpr bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

// Letters beyond ASCII count as what they are: parts of words.
constexpr bool IsWordCharacter(char c) {
  return IsDigit(c) || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') ||
         static_cast<unsigned char>(c) >= 0x80;
}

void EndWithBlank(std::string& text) {
  if (!text.empty() && text.back() != ' ') text += ' ';
}

void RemoveTrailingBlanks(std::string& text) {
  text.erase(text.find_last_not_of(' ') + 1);
}

// Blanks after text go; those that indent a line stay.
void RemoveBlanksBehindText(std::string& text) {
  if (text.find_last_not_of(' ') != std::string::npos) RemoveTrailingBlanks(text);
}

// First pass: blanks around the signs and strings, so that the line falls into words.
class Spacing {
 public:
  explicit Spacing(std::string_view line) : line_(line) { out_.reserve(line.size() * 2); }

  std::string Run() {
    while (at_ < line_.size()) {
      if (const size_t length = VerbatimLength(line_, at_); length > 0) {
        PutVerbatim(line_.substr(at_, length));
        at_ += length;
      } else {
        PutCharacter(line_[at_++]);
      }
    }
    RemoveTrailingBlanks(out_);
    return std::move(out_);
  }

 private:
  void PutVerbatim(std::string_view text) {
    EndWithBlank(out_);
    out_ += text;
    if (text.front() != '"') return;
    if (text.size() == 1 || text.back() != '"') {
      RemoveTrailingBlanks(out_);
      out_ += '"';
    }
    out_ += ' ';
    if (at_ + text.size() < line_.size() && line_[at_ + text.size()] == ' ') out_.pop_back();
  }

  void PutCharacter(char c) {
    if (c == '\t') c = ' ';
    if (IsDigit(c) && at_ > numbersReadTo_) ReadNumbers();
    if (IsOneOf(c, BlankInFront)) EndWithBlank(out_);
    out_ += c;
    if (IsOneOf(c, OpeningBrackets)) ++depth_;
    if (IsOneOf(c, ClosingBrackets) && depth_ > 0) --depth_;
    const bool blankFollows = at_ < line_.size() && line_[at_] == ' ';
    const bool insideNumber = c == ',' && at_ < wholeNumberEnd_;
    if (IsOneOf(c, BlankBehind) && !blankFollows && !insideNumber) out_ += ' ';
  }

  // The first digit of a run of digits and commas: outside brackets the run may be one number.
  void ReadNumbers() {
    const size_t start = at_ - 1;
    numbersReadTo_ = std::min(line_.find_first_not_of("0123456789,.", start), line_.size());
    const bool startsWord = out_.empty() || out_.back() == ' ';
    if (startsWord && depth_ == 0) {
      wholeNumberEnd_ = start + GroupedNumberLength(line_.substr(start));
    }
  }

  std::string_view line_;
  std::string out_;
  size_t at_ = 0;              // after the character in hand
  size_t numbersReadTo_ = 0;   // the end of the run of digits and commas that was looked at last
  size_t wholeNumberEnd_ = 0;  // the end of the last number with commas
  int depth_ = 0;
};

// Second pass: each numeric word in its plain form, a comma after it kept.
std::string PlainNumbers(std::string_view line) {
  std::string out;
  for (size_t at = 0; at < line.size();) {
    size_t length = VerbatimLength(line, at);
    if (length == 0 && line[at] == ' ') length = 1;
    if (length > 0) {
      out += line.substr(at, length);
    } else {
      std::string_view word = line.substr(at);
      word = word.substr(0, word.find_first_of(" \"'"));
      length = word.size();
      const bool comma = word.ends_with(',');
      const std::string_view number = comma ? word.substr(0, length - 1) : word;
      if (const auto value = ReadNumber(number)) {
        out += NumberText(*value);
        if (comma) out += ',';
      } else {
        out += word;
      }
    }
    at += length;
  }
  return out;
}

// Third pass: closes up what belongs together.
class Joining {
 public:
  explicit Joining(std::string_view line) : line_(line) { out_.reserve(line.size()); }

  std::string Run() {
    while (at_ < line_.size()) {
      if (const size_t length = VerbatimLength(line_, at_); length > 0) {
        out_ += line_.substr(at_, length);
        at_ += length;
      } else {
        PutCharacter(line_[at_++]);
      }
    }
    RemoveTrailingBlanks(out_);
    return std::move(out_);
  }

 private:
  void PutCharacter(char c) {
    if (c == ' ') return PutBlank();
    if (c == '-') return PutMinus();
    if (IsOneOf(c, "<>=") && JoinComparison(c)) return;
    if (IsOneOf(c, OpeningBrackets) && !KeepsBlankBeforeBracket()) RemoveBlanksBehindText(out_);
    if (IsOneOf(c, ClosingBrackets) || c == ';' || c == ',') RemoveBlanksBehindText(out_);
    if (IsOneOf(c, "tTiI")) CloseUpKeyword();
    out_ += c;
  }

  void PutBlank() {
    const char last = out_.empty() ? ' ' : out_.back();
    const bool digitFollows = at_ < line_.size() && IsDigit(line_[at_]);
    const bool dropped = IsOneOf(last, OpeningBrackets) || (last == '-' && unaryMinus_) ||
                         (last == '$' && digitFollows);
    if (!dropped) out_ += ' ';
  }

  // A minus after a sign of the same rank makes one sign of the two.
  void PutMinus() {
    const size_t last = out_.find_last_not_of(' ');
    if (last != std::string::npos && IsOneOf(out_[last], "+-")) {
      const char sign = out_[last] == '-' ? '+' : '-';
      out_.erase(last);
      unaryMinus_ = IsUnaryPlace();
      out_ += sign;
    } else {
      unaryMinus_ = IsUnaryPlace();
      out_ += '-';
    }
  }

  bool IsUnaryPlace() const {
    constexpr std::string_view InFront[] = {"= ", "( ", "(", "^ ", "* ", "/ ", "\\ ", "& ", "  "};
    return std::any_of(std::begin(InFront), std::end(InFront),
                       [&](std::string_view text) { return out_.ends_with(text); });
  }

  // Two signs with a blank between them that make up a comparison become one.
  bool JoinComparison(char second) {
    constexpr std::string_view Pairs[] = {"<>", "<=", "=<", ">=", "=>", "><"};
    const size_t size = out_.size();
    if (size < 2 || out_.back() != ' ') return false;
    const char first = out_[size - 2];
    if (size > 2 && IsOneOf(out_[size - 3], "<>=")) return false;
    const std::array<char, 2> pair = {first, second};
    if (std::find(std::begin(Pairs), std::end(Pairs), std::string_view(pair.data(), 2)) ==
        std::end(Pairs)) {
      return false;
    }
    out_.resize(size - 2);
    out_ += first == '>' && second == '<' ? "<>" : std::string_view(pair.data(), 2);
    return true;
  }

  // A bracket stands next to the name it belongs to; these words and signs are no such names.
  bool KeepsBlankBeforeBracket() const {
    constexpr std::string_view Words[] = {"do",   "or",   "if",   "xor",   "and",   "wend",
                                          "else", "then", "when", "while", "elseif"};
    const size_t last = out_.find_last_not_of(' ');
    if (last == std::string::npos || IsOneOf(out_[last], ":=^*/\\+-<>&")) return true;
    const std::string_view word = LastWord();
    return std::any_of(std::begin(Words), std::end(Words),
                       [&](std::string_view keyword) { return EqualIgnoringCase(word, keyword); });
  }

  // The word that `out_` ends with, blanks after it left out.
  std::string_view LastWord() const {
    const std::string_view text = std::string_view(out_).substr(0, out_.find_last_not_of(' ') + 1);
    const auto end = std::find_if_not(text.rbegin(), text.rend(), IsWordCharacter);
    return text.substr(text.size() - static_cast<size_t>(end - text.rbegin()));
  }

  // "go to" and "end if" are one word each.
  void CloseUpKeyword() {
    if (out_.empty() || out_.back() != ' ') return;
    const std::string_view word = line_.substr(at_ - 1, 2);
    if (at_ + 1 < line_.size() && IsWordCharacter(line_[at_ + 1])) return;
    const bool closes = (EqualIgnoringCase(word, "to") && EqualIgnoringCase(LastWord(), "go")) ||
                        (EqualIgnoringCase(word, "if") && EqualIgnoringCase(LastWord(), "end"));
    if (closes) RemoveTrailingBlanks(out_);
  }

  std::string_view line_;
  std::string out_;
  size_t at_ = 0;            // after the character in hand
  bool unaryMinus_ = false;  // of the last minus put
};

}  // namespace

size_t VerbatimLength(std::string_view line, size_t at) {
  if (line[at] == '\'') return line.size() - at;
  if (line[at] != '"') return 0;
  const size_t close = line.find('"', at + 1);
  return (close == std::string_view::npos ? line.size() : close + 1) - at;
}

void NormaliseLine(std::string& line) {
  line = Spacing(line).Run();
  line = PlainNumbers(line);
  line = Joining(line).Run();
}

}  // namespace tessarel
