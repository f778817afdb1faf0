// The forms of figures that the statistics views share.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "base/money.h"

namespace tessarel {

// What stands where there is nothing to divide by.
inline constexpr std::string_view NotAvailable = "---";

// "1,234"; a separator only where asked for.
std::string CountText(int64_t count, bool useSeparator = true);
std::string CountText(Money count, bool useSeparator = true);

// "1,234" and "1,234.5", to four decimals.
std::string AmountText(Money amount, bool useSeparator = true);

// "1,234" and "1,234.5", to two decimals.
std::string BankrollText(Money amount);

// "12.5", to two decimals; "0" for what rounds to nothing.
std::string TwoDecimals(double value);

// To four decimals, "< 0.0001" for a positive value below that.
std::string FourDecimals(double value);

}  // namespace tessarel
