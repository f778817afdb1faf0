#include "stats/view_text.h"

#include "base/number_format.h"

namespace tessarel {

namespace {

constexpr std::string_view Whole = "#,#;-#,#;0", WholePlain = "#;-#;0";

// A pattern whose decimals are all optional leaves the point of a whole number bare.
std::string WithoutBarePoint(std::string text) {
  if (text.ends_with('.')) text.pop_back();
  return text;
}

}  // namespace

std::string CountText(int64_t count, bool useSeparator) {
  return FormatNumber(count, useSeparator ? Whole : WholePlain);
}

std::string CountText(Money count, bool useSeparator) {
  return FormatNumber(count, useSeparator ? Whole : WholePlain);
}

std::string AmountText(Money amount, bool useSeparator) {
  return useSeparator ? FormatExact(amount) : PlainText(amount);
}

std::string BankrollText(Money amount) {
  return WithoutBarePoint(FormatNumber(amount, "#,#.##;-#,#.##;0"));
}

std::string TwoDecimals(double value) {
  return FormatNumber(value, "#,0.00;-#,#;0");
}

std::string FourDecimals(double value) {
  if (value > 0 && value < 0.0001) return "< 0.0001";
  return WithoutBarePoint(FormatNumber(value, "#,0.####;-#,0.####;0"));
}

}  // namespace tessarel
