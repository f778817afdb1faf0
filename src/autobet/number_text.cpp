#include "autobet/number_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <system_error>

#include "base/fault.h"

namespace tessarel {

namespace {

constexpr bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

bool Take(std::string_view& rest, char c) {
  if (rest.empty() || rest.front() != c) return false;
  rest.remove_prefix(1);
  return true;
}

std::string_view TakeDigits(std::string_view& rest) {
  const auto end = std::find_if_not(rest.begin(), rest.end(), IsDigit);
  const std::string_view digits = rest.substr(0, static_cast<size_t>(end - rest.begin()));
  rest.remove_prefix(digits.size());
  return digits;
}

// Digits, where commas stand all groups after them have three. False when a comma is misplaced.
bool TakeWholePart(std::string_view& rest, std::string& digits) {
  const std::string_view first = TakeDigits(rest);
  digits += first;
  while (Take(rest, ',')) {
    const std::string_view group = TakeDigits(rest);
    if (first.empty() || first.size() > 3 || group.size() != 3) return false;
    digits += group;
  }
  return true;
}

}  // namespace

std::optional<double> ReadNumber(std::string_view text) {
  std::string_view rest = text;
  const bool currency = Take(rest, '$');
  std::string plain;
  if (Take(rest, '-')) {
    plain += '-';
  } else {
    Take(rest, '+');
  }
  if (!currency) Take(rest, '$');
  const size_t signs = plain.size();
  if (!TakeWholePart(rest, plain)) return {};
  if (Take(rest, '.')) (plain += '.') += TakeDigits(rest);
  if (std::none_of(plain.begin(), plain.end(), IsDigit)) return {};
  if (plain[signs] == '.') plain.insert(signs, 1, '0');
  if (Take(rest, 'e') || Take(rest, 'E')) {
    plain += 'e';
    if (Take(rest, '-')) {
      plain += '-';
    } else {
      Take(rest, '+');
    }
    plain += TakeDigits(rest);
    if (!IsDigit(plain.back())) return {};
  }
  double value = 0;
  const char* const end = plain.data() + plain.size();
  const auto [stop, fault] = std::from_chars(plain.data(), end, value);
  if (!rest.empty() || fault != std::errc() || stop != end) return {};
  return value;
}

std::string NumberText(double value) {
  if (!std::isfinite(value)) RaiseOverflow();
  if (value == 0) return "0";
  constexpr int Significant = 15;
  // Room for the longest: 324 zeros after the point and the digits.
  std::array<char, 400> text{};
  char* const front = text.data();
  char* end = std::to_chars(front, front + text.size(), value, std::chars_format::scientific,
                            Significant - 1)
                  .ptr;
  const char* mark = std::find(front, end, 'e') + 1;
  if (*mark == '+') ++mark;
  int exponent = 0;
  std::from_chars(mark, end, exponent);
  const int decimals = std::max(0, Significant - 1 - exponent);
  end = std::to_chars(front, front + text.size(), value, std::chars_format::fixed, decimals).ptr;
  std::string_view shown(front, static_cast<size_t>(end - front));
  if (decimals > 0) {
    shown = shown.substr(0, shown.find_last_not_of('0') + 1);
    if (shown.back() == '.') shown.remove_suffix(1);
  }
  return std::string(shown);
}

size_t GroupedNumberLength(std::string_view text) {
  std::string_view run = text.substr(0, text.find_first_not_of("0123456789,."));
  const std::string_view behind = text.substr(run.size());
  const char next = behind.empty() ? ' ' : behind.front();
  if (run.ends_with(',') && next == ' ') run.remove_suffix(1);
  constexpr std::string_view Boundaries = " :;(){}[]=^*/\\+-<>&%\"'";
  const bool whole = Boundaries.find(next) != std::string_view::npos;
  return whole && run.find(',') != std::string_view::npos && ReadNumber(run) ? run.size() : 0;
}

}  // namespace tessarel
