#include "base/number_format.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <utility>

namespace tessarel {

namespace {

// 0.DIGITS times ten to the `Point`. The first digit is never 0; zero has no digits and Point 0.
struct Decimal {
  bool Negative = false;
  std::string Digits;
  int Point = 0;

  bool IsZero() const { return Digits.empty(); }
  int Count() const { return static_cast<int>(Digits.size()); }
  int WholeDigits() const { return std::max(Point, 0); }
  int Decimals() const { return std::max(Count() - Point, 0); }
  // The digit worth ten to the `power`.
  char Digit(int power) const {
    const int index = Point - 1 - power;
    return index >= 0 && index < Count() ? Digits[static_cast<size_t>(index)] : '0';
  }
};

struct Section {
  std::string_view Text;
  int WholeMarks = 0, ForcedWhole = 0;
  int DecimalMarks = 0, ForcedDecimals = 0;
  int Percents = 0;
  bool Grouped = false;
};

void TrimZeros(Decimal& number) {
  const size_t last = number.Digits.find_last_not_of('0');
  number.Digits.erase(last == std::string::npos ? 0 : last + 1);
  if (number.Digits.empty()) number.Point = 0;
}

void RoundTo(Decimal& number, int decimals) {
  const int keep = number.Point + decimals;
  if (keep >= number.Count()) return;
  bool carry = keep >= 0 && number.Digits[static_cast<size_t>(keep)] >= '5';
  number.Digits.resize(static_cast<size_t>(std::max(keep, 0)));
  for (size_t k = number.Digits.size(); carry && k-- > 0;) {
    carry = number.Digits[k] == '9';
    number.Digits[k] = carry ? '0' : static_cast<char>(number.Digits[k] + 1);
  }
  if (carry) {
    number.Digits.insert(number.Digits.begin(), '1');
    ++number.Point;
  }
  TrimZeros(number);
}

Decimal DecimalOf(int64_t value, int decimals) {
  const bool negative = value < 0;
  const uint64_t size = negative ? 0 - static_cast<uint64_t>(value) : static_cast<uint64_t>(value);
  Decimal number{negative, size == 0 ? "" : std::to_string(size), 0};
  number.Point = number.Count() - decimals;
  TrimZeros(number);
  return number;
}

Decimal DecimalOf(double value) {
  Decimal number{std::signbit(value), "", 0};
  if (value == 0) return number;
  std::array<char, 32> text{};
  const char* const begin = text.data();
  const char* const end = std::to_chars(text.data(), text.data() + text.size(), std::fabs(value),
                                        std::chars_format::scientific, 14)
                              .ptr;
  const char* exponent = std::find(begin, end, 'e');
  number.Digits.assign(begin, exponent);
  number.Digits.erase(1, 1);
  const char* power = exponent + (exponent[1] == '+' ? 2 : 1);
  std::from_chars(power, end, number.Point);
  ++number.Point;
  TrimZeros(number);
  return number;
}

Section ReadSection(std::string_view text) {
  Section section{.Text = text};
  bool behindPoint = false, comma = false;
  for (const char c : text) {
    if (c == '.') behindPoint = true;
    if (c == '%') ++section.Percents;
    if (c == ',' && !behindPoint && section.WholeMarks > 0) comma = true;
    if (c != '#' && c != '0') continue;
    if (behindPoint) {
      ++section.DecimalMarks;
      if (c == '0') section.ForcedDecimals = section.DecimalMarks;
    } else {
      ++section.WholeMarks;
      section.Grouped = section.Grouped || comma;
      if (c == '0' || section.ForcedWhole > 0) ++section.ForcedWhole;
    }
  }
  return section;
}

// Section `index` of the pattern; empty when the pattern has fewer.
std::string_view SectionText(std::string_view pattern, int index) {
  for (; index > 0; --index) {
    const size_t end = pattern.find(';');
    if (end == std::string_view::npos) return {};
    pattern.remove_prefix(end + 1);
  }
  return pattern.substr(0, pattern.find(';'));
}

Decimal Rounded(Decimal number, const Section& section) {
  if (!number.IsZero()) number.Point += 2 * section.Percents;
  RoundTo(number, section.DecimalMarks);
  return number;
}

void PutWhole(std::string& out, const Section& section, const Decimal& number, int from, int to) {
  for (int power = from; power >= to; --power) {
    if (power >= number.WholeDigits() && power >= section.ForcedWhole) continue;
    out += number.Digit(power);
    if (section.Grouped && power > 0 && power % 3 == 0) out += ',';
  }
}

std::string Fill(const Section& section, const Decimal& number, bool sign = false) {
  std::string out(sign ? 1 : 0, '-');
  int wholeMark = section.WholeMarks, decimalMark = 0;
  bool behindPoint = false;
  for (const char c : section.Text) {
    if (c == '#' || c == '0') {
      if (!behindPoint) {
        const bool first = wholeMark == section.WholeMarks;
        --wholeMark;
        const int from = first ? std::max(wholeMark, number.WholeDigits() - 1) : wholeMark;
        PutWhole(out, section, number, from, wholeMark);
      } else if (decimalMark++;
                 decimalMark <= std::max(number.Decimals(), section.ForcedDecimals)) {
        out += number.Digit(-decimalMark);
      }
    } else if (c == '.') {
      if (behindPoint) continue;
      if (section.WholeMarks == 0) PutWhole(out, section, number, number.WholeDigits() - 1, 0);
      behindPoint = true;
      out += c;
    } else if (c != ',' || section.WholeMarks + section.DecimalMarks == 0) {
      out += c;
    }
  }
  return out;
}

std::string Format(const Decimal& value, std::string_view pattern) {
  const std::string_view first = SectionText(pattern, 0);
  const std::string_view negative = SectionText(pattern, 1);
  const std::string_view zero = SectionText(pattern, 2);
  const bool ownNegative = value.Negative && !negative.empty();
  const Section section = ReadSection(ownNegative ? negative : first);
  const Decimal number = Rounded(value, section);
  if (number.IsZero()) return Fill(ReadSection(zero.empty() ? first : zero), number);
  return Fill(section, number, value.Negative && !ownNegative);
}

bool IsDigit(char32_t key) {
  return key >= '0' && key <= '9';
}

}  // namespace

std::string FormatNumber(Money value, std::string_view pattern) {
  return Format(DecimalOf(value.Raw(), 4), pattern);
}

std::string FormatNumber(double value, std::string_view pattern) {
  if (std::isnan(value)) return "NaN";
  if (std::isinf(value)) return value < 0 ? "-Inf" : "Inf";
  return Format(DecimalOf(value), pattern);
}

std::string FormatWhole(int64_t value, std::string_view pattern) {
  return Format(DecimalOf(value, 0), pattern);
}

std::string FormatMoney(Money amount) {
  return FormatNumber(amount, amount.IsWhole() ? "#,#;-#,#;0" : "#,#.00##;-#,#.00##;0.00");
}

std::string FormatExact(Money amount) {
  return FormatNumber(amount, amount.IsWhole() ? "#,0" : "#,0.####");
}

char32_t MoneyKeyFilter(
    char32_t key, int decimals, std::string_view text, size_t caret, size_t selected) {
  constexpr char32_t FirstPrintable = 0x20, Delete = 0x7F;
  if (key < FirstPrintable || key == Delete) return key;
  const std::string_view before = text.substr(0, caret);
  const std::string_view after = text.substr(std::min(text.size(), before.size() + selected));
  const size_t room = static_cast<size_t>(std::max(decimals, 0));
  const size_t point = before.find('.');
  if (IsDigit(key)) {
    if (point == std::string_view::npos) return key;
    return before.size() - point - 1 + after.size() < room ? key : 0;
  }
  const bool pointFits = key == '.' && room > 0 && point == std::string_view::npos &&
                         after.find('.') == std::string_view::npos && after.size() <= room;
  return pointFits ? key : 0;
}

}  // namespace tessarel
