// Money: a 64-bit signed fixed-point amount with four decimals. Adding, subtracting and multiplying
// amounts is exact and checked; divisions and ratios go through double and come back rounded half
// to even at the fourth decimal. Every result that does not fit raises the overflow fault.
#pragma once

#include <cmath>
#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "base/fault.h"

namespace tessarel {

class Money {
 public:
  // One whole unit of money in the scaled form.
  static constexpr int64_t Scale = 10000;

  constexpr Money() = default;
  // A whole amount; every int fits.
  constexpr Money(int whole) : raw_(int64_t{whole} * Scale) {}

  // An amount from its scaled form: FromRaw(12500) is 1.25.
  static constexpr Money FromRaw(int64_t raw) {
    Money amount;
    amount.raw_ = raw;
    return amount;
  }
  // A whole amount of up to 64 bits. Overflow fault when it does not fit.
  static constexpr Money FromWhole(int64_t whole) {
    int64_t raw = 0;
    if (__builtin_mul_overflow(whole, Scale, &raw)) RaiseOverflow();
    return FromRaw(raw);
  }
  // The nearest amount, half to even at the fourth decimal. Overflow fault for what does not fit,
  // infinities and not-a-number included.
  static Money FromDouble(double value) {
    const double scaled = std::nearbyint(value * static_cast<double>(Scale));
    if (!(scaled >= -0x1p63 && scaled < 0x1p63)) RaiseOverflow();
    return FromRaw(static_cast<int64_t>(scaled));
  }

  constexpr int64_t Raw() const { return raw_; }
  constexpr double ToDouble() const {
    return static_cast<double>(raw_) / static_cast<double>(Scale);
  }
  // The whole part, rounded towards minus infinity.
  constexpr int64_t Floor() const { return raw_ / Scale - (raw_ % Scale < 0 ? 1 : 0); }
  constexpr bool IsWhole() const { return raw_ % Scale == 0; }

  constexpr Money operator-() const { return Money() - *this; }
  constexpr Money& operator+=(Money other) {
    if (__builtin_add_overflow(raw_, other.raw_, &raw_)) RaiseOverflow();
    return *this;
  }
  constexpr Money& operator-=(Money other) {
    if (__builtin_sub_overflow(raw_, other.raw_, &raw_)) RaiseOverflow();
    return *this;
  }
  friend constexpr Money operator+(Money a, Money b) { return a += b; }
  friend constexpr Money operator-(Money a, Money b) { return a -= b; }
  // The exact product, returned to four decimals half to even.
  friend constexpr Money operator*(Money a, Money b) {
    int64_t product = 0;
    if (!__builtin_mul_overflow(a.raw_, b.raw_, &product)) return FromProduct(product);
    __extension__ using Wide = __int128;
    return FromProduct(static_cast<Wide>(a.raw_) * b.raw_);
  }
  friend constexpr bool operator==(Money, Money) = default;
  friend constexpr auto operator<=>(Money, Money) = default;

 private:
  // A product of two scaled amounts, in an integer wide enough for it.
  template <class Wide>
  static constexpr Money FromProduct(Wide product) {
    Wide quotient = product / Scale;
    const auto rest = static_cast<int64_t>(product % Scale);
    const int64_t size = rest < 0 ? -rest : rest;
    if (size > Scale / 2 || (size == Scale / 2 && quotient % 2 != 0)) {
      quotient += rest < 0 ? -1 : 1;
    }
    if (quotient > INT64_MAX || quotient < INT64_MIN) RaiseOverflow();
    return FromRaw(static_cast<int64_t>(quotient));
  }

  int64_t raw_ = 0;
};

constexpr Money Abs(Money amount) {
  return amount < Money() ? -amount : amount;
}

// a times b divided by c, in double: the form in which payoffs and their limits are figured.
// Division fault when c is zero.
inline double MulDiv(Money a, Money b, Money c) {
  if (c == Money()) RaiseDivisionByZero();
  const double product = static_cast<double>(a.Raw()) * static_cast<double>(b.Raw()) /
                         static_cast<double>(Money::Scale);
  return product / static_cast<double>(c.Raw());
}

// The largest whole multiple of `unit` not above `amount` (towards minus infinity). `unit` must be
// above zero, else the division fault.
constexpr Money FloorToMultiple(Money amount, Money unit) {
  if (unit <= Money()) RaiseDivisionByZero();
  const int64_t rest = amount.Raw() % unit.Raw();
  if (rest == 0) return amount;
  return Money::FromRaw(amount.Raw() - rest) - (rest < 0 ? unit : Money());
}

// The smallest whole multiple of `unit` not below `amount`.
constexpr Money CeilingToMultiple(Money amount, Money unit) {
  return -FloorToMultiple(-amount, unit);
}

constexpr bool IsMultiple(Money amount, Money unit) {
  if (unit <= Money()) RaiseDivisionByZero();
  return amount.Raw() % unit.Raw() == 0;
}

// The amount as plain text: no grouping, no trailing zeros, "-" in front of a negative one.
std::string PlainText(Money amount);

// Reads an amount written as digits with at most four decimals and an optional sign. Empty when the
// text is anything else or does not fit.
std::optional<Money> ParseMoney(std::string_view text);

// The same of an amount that a user typed as the program shows it: with a "$" and with commas
// between groups of three digits too. A comma anywhere else is refused, not dropped.
std::optional<Money> ParseTypedMoney(std::string_view text);

}  // namespace tessarel
