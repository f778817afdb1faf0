#include "base/number_format.h"

#include <gtest/gtest.h>

#include <limits>
#include <utility>

namespace tessarel {
namespace {

// A cell for each kind of number, through every pattern in use.
struct PatternCase {
  const char* Pattern;
  const char* Large;     // 1234567.895
  const char* Negative;  // -1234.5
  const char* Half;      // 0.5
  const char* Two;       // 2
  const char* Carry;     // 999.995
  const char* Tiny;      // -0.00000000001
  const char* Zero;
};

// clang-format off
constexpr PatternCase PatternCases[] = {
    {"#", "1234568", "-1235", "1", "2", "1000", "", ""},
    {"0", "1234568", "-1235", "1", "2", "1000", "0", "0"},
    {"00", "1234568", "-1235", "01", "02", "1000", "00", "00"},
    {"0%", "123456790%", "-123450%", "50%", "200%", "100000%", "0%", "0%"},
    {"0.00", "1234567.90", "-1234.50", "0.50", "2.00", "1000.00", "0.00", "0.00"},
    {"#.##", "1234567.9", "-1234.5", ".5", "2.", "1000.", ".", "."},
    {"#,#", "1,234,568", "-1,235", "1", "2", "1,000", "", ""},
    {" #,#;-#,#", " 1,234,568", "-1,235", " 1", " 2", " 1,000", " ", " "},
    {"#,#.00;-#,#;0", "1,234,567.90", "-1,235", ".50", "2.00", "1,000.00", "0", "0"},
    {"#,#.00##;-#,#.00##;0.00", "1,234,567.895", "-1,234.50", ".50", "2.00", "999.995", "0.00", "0.00"},
    {"#,0.####;-#,0.####;0", "1,234,567.895", "-1,234.5", "0.5", "2.", "999.995", "0", "0"},
    {"#,0.0#######;-#,0.0#######;0", "1,234,567.895", "-1,234.5", "0.5", "2.0", "999.995", "0", "0"},
    {"#,0.0#%;;0%", "123,456,789.5%", "-123,450.0%", "50.0%", "200.0%", "99,999.5%", "0%", "0%"},
    {"#,0.0%;-#,#%;0%", "123,456,789.5%", "-123,450%", "50.0%", "200.0%", "99,999.5%", "0%", "0%"},
    {"#,0.0#;-#,0.0#;0", "1,234,567.9", "-1,234.5", "0.5", "2.0", "1,000.0", "0", "0"},
    {"#,0.00;-#,0.00;0.00", "1,234,567.90", "-1,234.50", "0.50", "2.00", "1,000.00", "0.00", "0.00"},
    {"#.######;-#.######;0.000", "1234567.895", "-1234.5", ".5", "2.", "999.995", "0.000", "0.000"},
    {"0.########;-0.########,0", "1234567.895", "-1234.500000000", "0.5", "2.", "999.995", "0.", "0."},
};
// clang-format on

TEST(NumberFormat, PatternsInUse) {
  for (const PatternCase& row : PatternCases) {
    const std::pair<double, const char*> cells[] = {
        {1234567.895, row.Large}, {-1234.5, row.Negative}, {0.5, row.Half}, {2.0, row.Two},
        {999.995, row.Carry},     {-1e-11, row.Tiny},      {0.0, row.Zero}, {-0.0, row.Zero},
    };
    for (const auto& [value, text] : cells) {
      EXPECT_EQ(FormatNumber(value, row.Pattern), text) << row.Pattern << " of " << value;
      if (value == -1e-11) continue;
      EXPECT_EQ(FormatNumber(Money::FromDouble(value), row.Pattern), text) << "money " << value;
    }
    EXPECT_EQ(FormatNumber(2, row.Pattern), row.Two) << row.Pattern;
  }
}

TEST(NumberFormat, TiesLeaveZeroOnTheDecimalDigits) {
  const std::pair<double, const char*> cases[] = {
      {1.005, "1.01"},   {-1.005, "-1.01"}, {2.675, "2.68"},       {0.005, "0.01"},
      {0.00499, "0.00"}, {-0.004, "0.00"},  {99.9949999, "99.99"}, {0.1 + 0.2, "0.30"}};
  for (const auto& [value, text] : cases)
    EXPECT_EQ(FormatNumber(value, "0.00"), text) << value;
}

TEST(NumberFormat, ExtremeNumbers) {
  constexpr double Infinity = std::numeric_limits<double>::infinity();
  EXPECT_EQ(FormatNumber(Money::FromRaw(INT64_MIN), "#,0.0000"), "-922,337,203,685,477.5808");
  EXPECT_EQ(FormatNumber(Money::FromRaw(INT64_MAX), "0%"), "92233720368547758%");
  EXPECT_EQ(FormatNumber(Money::FromRaw(1), "0.####"), "0.0001");
  EXPECT_EQ(FormatNumber(INT64_MIN, "#,#"), "-9,223,372,036,854,775,808");
  EXPECT_EQ(FormatNumber(UINT8_MAX, "0.0"), "255.0");
  EXPECT_EQ(FormatNumber(1e21, "#,0"), "1,000,000,000,000,000,000,000");
  EXPECT_EQ(FormatNumber(std::numeric_limits<double>::max(), "0").size(), 309u);
  EXPECT_EQ(FormatNumber(std::numeric_limits<double>::denorm_min(), "0.0"), "0.0");
  EXPECT_EQ(FormatNumber(Infinity, "0"), "Inf");
  EXPECT_EQ(FormatNumber(-Infinity, "0%"), "-Inf");
  EXPECT_EQ(FormatNumber(std::numeric_limits<double>::quiet_NaN(), "#"), "NaN");
}

TEST(NumberFormat, OddPatternsKeepTheirLiterals) {
  // clang-format off
  const std::tuple<double, const char*, const char*> cases[] = {
      {1234.5, ".00", "1234.50"}, {123456, "00:00", "1234:56"}, {7, "00:00", "00:07"},
      {1234, "0,000,000", "0,001,234"}, {5, "none; less; zero", "none"},
      {0.25, "<0.0.0>", "<0.25>"}, {3, "", ""}};
  // clang-format on
  for (const auto& [value, pattern, text] : cases)
    EXPECT_EQ(FormatNumber(value, pattern), text);
}

TEST(FormatMoney, DecimalsOnlyWhereThereAreAny) {
  const std::pair<int64_t, const char*> cases[] = {
      {0, "0"},        {50000, "5"},  {12500000, "1,250"}, {-30000, "-3"},
      {12500, "1.25"}, {5000, ".50"}, {-12345, "-1.2345"}, {12345678901, "1,234,567.8901"},
      {-1000, "-.10"},
  };
  for (const auto& [raw, text] : cases)
    EXPECT_EQ(FormatMoney(Money::FromRaw(raw)), text);
}

TEST(MoneyKeyFilter, LetsThroughWhatMakesAnAmount) {
  // The key, the decimals of the field, its text, the caret, how much is selected.
  const std::tuple<char32_t, int, const char*, size_t, size_t, bool> cases[] = {
      {'7', 2, "", 0, 0, true},        {'7', 2, "12.34", 2, 0, true},
      {'7', 2, "12.34", 3, 0, false},  {'7', 2, "12.34", 5, 0, false},
      {'7', 2, "12.3", 4, 0, true},    {'7', 2, "12.34", 4, 1, true},
      {'7', 4, "0.123", 5, 0, true},   {'.', 2, "12", 2, 0, true},
      {'.', 2, "1.2", 3, 0, false},    {'.', 2, "1.2", 1, 1, true},
      {'.', 2, "12345", 2, 0, false},  {'.', 2, "12345", 3, 0, true},
      {'.', 0, "12", 2, 0, false},     {'-', 2, "", 0, 0, false},
      {',', 2, "1", 1, 0, false},      {'a', 2, "", 0, 0, false},
      {U'\u0663', 2, "", 0, 0, false}, {'\b', 2, "1.23", 4, 0, true},
      {'\r', 2, "1.23", 4, 0, true},   {0x7F, 0, "1", 0, 0, true},
      {'5', 2, "1", 99, 99, true},     {'.', 2, "12345", 1, 3, true},
  };
  for (const auto& [key, decimals, text, caret, selected, passes] : cases) {
    EXPECT_EQ(MoneyKeyFilter(key, decimals, text, caret, selected), passes ? key : U'\0')
        << static_cast<uint32_t>(key) << " in " << text << " at " << caret;
  }
}

}  // namespace
}  // namespace tessarel
