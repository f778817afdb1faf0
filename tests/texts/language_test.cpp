#include "texts/language.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <string>
#include <utility>
#include <vector>

#include "base/message.h"
#include "state/settings.h"

namespace tessarel {
namespace {

constexpr int BeyondLastText = 200;

// The code points of a well-formed UTF-8 text; anything malformed comes out as code point 0.
std::vector<char32_t> CodePoints(std::string_view text) {
  std::vector<char32_t> points;
  for (size_t k = 0; k < text.size();) {
    const auto byte = static_cast<unsigned char>(text[k]);
    const size_t length = byte < 0x80 ? 1 : byte < 0xC0 ? 0 : byte < 0xE0 ? 2 : byte < 0xF0 ? 3 : 0;
    if (length == 0 || k + length > text.size()) {
      return {0};
    }
    char32_t point = length == 1 ? byte : byte & (0xFFU >> (length + 1));
    for (size_t next = k + 1; next < k + length; ++next)
      point = point << 6 | (static_cast<unsigned char>(text[next]) & 0x3FU);
    points.push_back(point);
    k += length;
  }
  return points;
}

bool InWindows1252(char32_t point) {
  constexpr std::u32string_view Upper = U"€‚ƒ„…†‡ˆ‰Š‹ŒŽ‘’“”•–—˜™š›œžŸ";
  return point == '\r' || (point >= 0x20 && point < 0x7F) || (point >= 0xA0 && point <= 0xFF) ||
         Upper.find(point) != std::u32string_view::npos;
}

// What must be the same in all variants of a text: its marks, line breaks and outer blanks.
std::string Shape(std::string_view text) {
  const auto count = [text](std::string_view part) {
    int found = 0;
    for (size_t at = text.find(part); at != text.npos; at = text.find(part, at + part.size()))
      ++found;
    return std::to_string(found);
  };
  return "%1:" + count("%1") + " %2:" + count("%2") + " &:" + count("&") +
         " breaks:" + count("\r\r") + "/" + count("\r") + " $:" + count("$") +
         (text.starts_with(' ') ? " blank in front" : "") +
         (text.ends_with(' ') ? " blank behind" : "") + (text.ends_with('$') ? " $ behind" : "");
}

// The letter or digit behind the shortcut mark, in lower case.
char Shortcut(std::string_view text) {
  const size_t at = text.find('&');
  return at + 1 < text.size()
             ? static_cast<char>(std::tolower(static_cast<unsigned char>(text[at + 1])))
             : '\0';
}

void ExpectSoundVariants(std::string_view english, std::string_view variant, int32_t language) {
  EXPECT_EQ(Shape(variant), Shape(english)) << variant;
  const std::vector<char32_t> points = CodePoints(variant);
  EXPECT_TRUE(std::ranges::all_of(points, InWindows1252)) << variant;
  if (language == English) {
    EXPECT_TRUE(std::ranges::all_of(points, [](char32_t point) { return point < 0x80; }));
  }
}

TEST(Language, VariantsKeepTheShapeOfTheEnglishText) {
  int count = 0;
  for (int id = 1; id < BeyondLastText; ++id) {
    const std::string_view english = GetText(English, id);
    count += english.empty() ? 0 : 1;
    SCOPED_TRACE(id);
    for (int32_t language = 0; language < LanguageCount; ++language)
      ExpectSoundVariants(english, GetText(language, id), language);
  }
  EXPECT_EQ(count, 123);
  for (const TextTitle title : {TitleRandomNumberGenerator, TitleAutoRollDelay}) {
    for (int32_t language = 0; language < LanguageCount; ++language)
      ExpectSoundVariants(GetTitle(English, title), GetTitle(language, title), language);
  }
}

TEST(Language, EachVariantIsInItsOwnLanguage) {
  // A handful of words are spelt alike (No, Error, session); a forgotten variant is one more.
  const std::array<std::string_view, LanguageCount> yes = {"Yes", "Sí", "Ja", "Oui", "Evet", "Sì"};
  const std::array<std::string_view, LanguageCount> players = {"Players", "Jugadores", "Spieler",
                                                               "Joueurs", "Oyuncular", "Giocatori"};
  for (int32_t language = 0; language < LanguageCount; ++language) {
    EXPECT_EQ(GetText(language, 33), yes[static_cast<size_t>(language)]);
    EXPECT_EQ(GetText(language, 99), players[static_cast<size_t>(language)]);
  }
  for (int32_t language = Spanish; language < LanguageCount; ++language) {
    int same = 0;
    for (int id = 1; id < BeyondLastText; ++id)
      same += !GetText(English, id).empty() && GetText(language, id) == GetText(English, id);
    EXPECT_LE(same, 4) << language;
    EXPECT_NE(GetTitle(language, TitleAutoRollDelay), GetTitle(English, TitleAutoRollDelay));
  }
}

TEST(Language, ShortcutsThatStandTogetherDiffer) {
  const std::vector<std::vector<int>> groups = {
      {50, 51, 52, 53, 54}, {112, 115}, {113, 116}, {157, 158}};
  for (const std::vector<int>& group : groups) {
    for (int32_t language = 0; language < LanguageCount; ++language) {
      if (group.front() == 157 && language == English) {
        continue;  // English marks the "a" of both
      }
      std::string letters;
      for (const int id : group)
        letters += Shortcut(GetText(language, id));
      SCOPED_TRACE(letters);
      EXPECT_TRUE(std::ranges::all_of(letters, [](unsigned char c) { return std::isalnum(c); }));
      std::ranges::sort(letters);
      EXPECT_EQ(std::ranges::adjacent_find(letters), letters.end()) << language;
    }
  }
}

TEST(Language, EnglishTextsAreExact) {
  const std::vector<std::pair<int, std::string_view>> cases = {
      {1, "Click an open position on the rail to add a player."},
      {9, "How much would %1 like to buy-in for?"},
      {15, " joined the game at stick %1-left with $"},
      {23, " active %1 bets "},
      {39, "Please enter a whole number between 1 and %1 to seed the random number generator:"},
      {59, "You may not call the %1 bet ON or OFF."},
      {132, "Jump to Tessarel' home folder?"},
      {141, "Your current session has not been saved.\r\rDo you want to save it now?"},
      {158, "In&active"},
      {167, "Total rolls"},
  };
  for (const auto& [id, text] : cases)
    EXPECT_EQ(GetText(English, id), text);
  EXPECT_EQ(GetTitle(English, TitleRandomNumberGenerator), "Random Number Generator");
  EXPECT_EQ(GetTitle(English, TitleAutoRollDelay), "Set Auto-Roll Time Delay");
}

TEST(Language, GapsAndUnknownNumbersAreEmpty) {
  for (const int id : {-1, 0, 38, 60, 96, 106, 109, 150, 151, 168, 1000000})
    EXPECT_EQ(GetText(English, id), "") << id;
}

TEST(Language, MissingVariantAndUnknownLanguageFallBackToEnglish) {
  EXPECT_EQ(GetText(Italian, 54), "&Parlay");
  for (const int32_t language : {-1, LanguageCount, 1000000}) {
    EXPECT_EQ(GetText(language, 33), "Yes");
    EXPECT_EQ(GetTitle(language, TitleRandomNumberGenerator), "Random Number Generator");
  }
}

TEST(Language, FillInPutsValuesAsTheyStand) {
  EXPECT_EQ(FillIn(GetText(German, 9), "Bob"), "Mit wie viel möchte Bob einsteigen?");
  EXPECT_EQ(FillIn("%2-%1-%2", "a", "b"), "b-a-b");
  EXPECT_EQ(FillIn("%1, %2", "%2", "%1"), "%2, %1");
  EXPECT_EQ(FillIn("100% %3 %", "a"), "100% %3 %");
}

TEST(Language, SettingALanguageTakesEffectAtOnce) {
  const struct {
    int32_t asked, inForce;
    std::string_view error, title;
  } cases[] = {
      {German, German, "Fehler", "Zufallszahlengenerator"},
      {Italian, Italian, "Errore", "Generatore di numeri casuali"},
      {6, English, "Error", "Random Number Generator"},
      {Turkish, Turkish, "Hata", "Rastgele Sayi Üreteci"},
      {-1, English, "Error", "Random Number Generator"},
  };
  for (const auto& [asked, inForce, error, title] : cases) {
    SetLanguage(asked);
    EXPECT_EQ(Settings.Language, inForce);
    EXPECT_EQ(Message.ErrorTitle, error);
    EXPECT_EQ(GetText(37), error);
    EXPECT_EQ(GetTitle(TitleRandomNumberGenerator), title);
  }
}

}  // namespace
}  // namespace tessarel
