#include "base/money.h"

#include "base/single_byte_text.h"

namespace tessarel {

namespace {

constexpr int Decimals = 4;

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

}  // namespace

std::string PlainText(Money amount) {
  const bool negative = amount.Raw() < 0;
  const uint64_t size =
      negative ? 0 - static_cast<uint64_t>(amount.Raw()) : static_cast<uint64_t>(amount.Raw());
  std::string text = negative ? "-" : "";
  text += std::to_string(size / Money::Scale);
  uint64_t fraction = size % Money::Scale;
  if (fraction == 0) return text;
  std::string digits = std::to_string(fraction + Money::Scale).substr(1);
  digits.erase(digits.find_last_not_of('0') + 1);
  return text + "." + digits;
}

std::optional<Money> ParseMoney(std::string_view text) {
  const bool negative = !text.empty() && text.front() == '-';
  if (!text.empty() && (text.front() == '-' || text.front() == '+')) text.remove_prefix(1);
  int64_t raw = 0;
  int digits = 0;
  int decimals = -1;
  for (const char c : text) {
    if (c == '.' && decimals < 0) {
      decimals = 0;
      continue;
    }
    if (!IsDigit(c) || decimals == Decimals) return std::nullopt;
    if (decimals >= 0) ++decimals;
    ++digits;
    const int digit = negative ? -(c - '0') : c - '0';
    if (__builtin_mul_overflow(raw, 10, &raw) || __builtin_add_overflow(raw, digit, &raw)) {
      return std::nullopt;
    }
  }
  if (digits == 0) return std::nullopt;
  for (int k = decimals < 0 ? 0 : decimals; k < Decimals; ++k) {
    if (__builtin_mul_overflow(raw, 10, &raw)) return std::nullopt;
  }
  return Money::FromRaw(raw);
}

std::optional<Money> ParseTypedMoney(std::string_view text) {
  constexpr size_t GroupSize = 3;
  std::string plain;
  size_t sinceComma = 0;  // digits after the last comma, or from the start
  bool grouped = false, fraction = false;
  for (const char c : TrimSpaces(text)) {
    const bool signOnly = plain.empty() || plain == "-" || plain == "+";
    if (c == '$' && signOnly) continue;
    if (c == ',' || c == '.') {
      if (grouped && !fraction && sinceComma != GroupSize) return std::nullopt;
      if (c == ',' && (fraction || sinceComma == 0 || sinceComma > GroupSize)) return std::nullopt;
      (c == ',' ? grouped : fraction) = true;
      sinceComma = 0;
      if (c == ',') continue;
    } else if (IsDigit(c)) {
      ++sinceComma;
    }
    plain += c;
  }
  if (grouped && !fraction && sinceComma != GroupSize) return std::nullopt;
  return ParseMoney(plain);
}

}  // namespace tessarel
