// Numbers as text by patterns such as "#,0.00;-#,#;0", the form in which every view, log and
// message writes them, and the key filter of the boxes in which they are typed.
//
// A pattern has up to three sections: positive; negative; zero. In a section
//   0  is a digit that always stands, # one that stands only where the number has it,
//   ,  between digit marks before the point groups the whole part in thousands,
//   .  always stands, even with no digit after it: "#.##" makes "2." of 2 and ".5" of 0.5,
//   %  multiplies by 100 and stands as itself; every other character stands as itself.
// Digits that the marks have no room for stand in front of the first mark. A section that is
// missing or empty gives way to the first one, with "-" in front of a negative number.
//
// Rounding is to the digit marks after the point, ties away from zero. The section is chosen by
// the sign; a number that then rounds to nothing is written as zero is, without a sign.
#pragma once

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "base/money.h"

namespace tessarel {

// All four decimals of the amount count.
std::string FormatNumber(Money value, std::string_view pattern);

// The number counts as its decimal of 15 significant digits, so that 1.005 is a tie although its
// binary form is not. Infinities read "Inf" and "-Inf", not-a-number "NaN", whatever the pattern.
std::string FormatNumber(double value, std::string_view pattern);

std::string FormatWhole(int64_t value, std::string_view pattern);

template <std::integral Count>
std::string FormatNumber(Count value, std::string_view pattern) {
  return FormatWhole(static_cast<int64_t>(value), pattern);
}

// An amount as messages show it: whole ones without decimals, others with at least two.
std::string FormatMoney(Money amount);

// All that an amount has, grouped in thousands: "1,234" and "1,234.5".
std::string FormatExact(Money amount);

// The key that a money box lets through: `key` itself, or 0 for one it swallows. Digits pass, one
// decimal point with at most `decimals` digits after it, and control keys. `text` is what stands
// in the box; the key would replace its `selected` characters from `caret` on.
char32_t MoneyKeyFilter(
    char32_t key, int decimals, std::string_view text, size_t caret, size_t selected = 0);

}  // namespace tessarel
