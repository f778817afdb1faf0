#include "base/single_byte_text.h"

#include <gtest/gtest.h>

#include <utility>

namespace tessarel {
namespace {

TEST(SingleByteText, EveryByteComesBack) {
  std::string all;
  for (int k = 0; k < 256; ++k)
    all += static_cast<char>(k);
  const std::string utf8 = FromSingleByte(all);
  EXPECT_EQ(ToSingleByte(utf8), all);
  EXPECT_EQ(FromSingleByte("\x80\x9F\xE9\x81"), "€Ÿé\u0081");
}

TEST(SingleByteText, WhatHasNoByteBecomesAPlainLetterOrAQuestionMark) {
  const std::pair<std::string, std::string> cases[] = {
      {"Çek değer",
       "\xC7"
       "ek deger"},
      {"ŞşĞğİıÖöÜüÇç", "SsGgIi\xD6\xF6\xDC\xFC\xC7\xE7"},
      {"骰子 🎲", "?? ?"},
      {"a\xFFz", "a?z"},
      {"cut \xE2\x82", "cut ??"},
      {"overlong \xC0\xAF", "overlong ??"},
      {"overlong \xE0\x80\xAF", "overlong ???"},
      {"surrogate \xED\xA0\x80", "surrogate ???"},
      {"beyond \xF4\x90\x80\x80", "beyond ????"},
      {"\u0080\u0192", "?\x83"},
  };
  for (const auto& [utf8, bytes] : cases) {
    EXPECT_EQ(ToSingleByte(utf8), bytes) << utf8;
  }
}

TEST(SingleByteText, FieldsAreCutAndPaddedInBytes) {
  EXPECT_EQ(PadText("Zoë", 5), "Zo\xEB  ");
  EXPECT_EQ(PadText("Zoë", 2), "Zo");
  EXPECT_EQ(PadText("", 0), "");
  EXPECT_EQ(FieldText(std::string("  Zo\xEB x \0\0 ", 12)), "Zoë x");
  EXPECT_EQ(FieldText(std::string(8, '\0')), "");
  EXPECT_EQ(TrimSpaces("  \ta b  "), "\ta b");
  EXPECT_EQ(TrimSpaces("   "), "");
}

TEST(SingleByteText, LowerCaseKeepsPositions) {
  const std::string upper = "ABZ[ÀÉÞ×ßŠŒŽŸ€Ω\xC3";
  EXPECT_EQ(LowerCase(upper), "abz[àéþ×ßšœžÿ€Ω\xC3");
  EXPECT_EQ(LowerCase(upper).size(), upper.size());
}

TEST(SingleByteText, ComparesIgnoringCase) {
  EXPECT_TRUE(EqualIgnoringCase("Zoë's.BET", "ZOË'S.bet"));
  EXPECT_FALSE(EqualIgnoringCase("Zoë", "Zoé"));
  EXPECT_FALSE(EqualIgnoringCase("Zoë", "Zo"));
}

}  // namespace
}  // namespace tessarel
