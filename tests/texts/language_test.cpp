#include "texts/language.h"

#include <gtest/gtest.h>

#include <set>

#include "base/message.h"
#include "base/single_byte_text.h"
#include "state/settings.h"
#include "texts/say.h"

namespace tessarel {
namespace {

class Language : public testing::Test {
 protected:
  void TearDown() override { SetLanguage(English); }
};

TEST_F(Language, SettingOneTakesEffectAtOnce) {
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
    EXPECT_EQ(Wording(Text::RandomNumberGenerator), title);
    EXPECT_EQ(Wording(Text::RandomNumberGenerator, asked), title);
  }
}

TEST_F(Language, SayPutsValuesWhereTheLanguageNeedsThemAndAsTheyStand) {
  EXPECT_EQ(Say(Text::MinimumBet, "Field", 5), "The minimum Field bet is $5");
  EXPECT_EQ(Say(Text::NameTaken, "{1}"), "There's already a player named {1}");
  EXPECT_EQ(Say(Text::NameTaken, std::string("\1")), "There's already a player named \1");
  SetLanguage(Turkish);
  EXPECT_EQ(Say(Text::OddsWithoutFlat, "Odds 4", "Come 4"),
            "Come 4 bahsiniz yerleşmeden Odds 4 bahsi oynayamazsınız.");
  EXPECT_EQ(SayChosen(Text::VigPercent, "5"), "%5 komisyon:");
}

// What the marks of a text must have in common in all languages.
std::string Marks(std::string_view text) {
  const auto count = [text](char mark) { return std::count(text.begin(), text.end(), mark); };
  // A doubled mark stands for the character itself.
  const auto shortcuts = count('&') - (text.find("&&") != text.npos ? 2 : 0);
  return std::to_string(shortcuts) + " & " + std::to_string(count('\r')) + " breaks";
}

TEST_F(Language, TextsHaveTheMarksOfTheEnglishOne) {
  for (int key = 0; key < TextCount; ++key) {
    const auto text = static_cast<Text>(key);
    for (int32_t language = 0; language < LanguageCount; ++language) {
      EXPECT_EQ(Marks(Wording(text, language)), Marks(Wording(text, English)))
          << Wording(text, language);
    }
  }
}

// Reports, logs and names of players go into single-byte files.
TEST_F(Language, TextsCanBeWrittenToFiles) {
  for (int key = 0; key < TextCount; ++key) {
    for (int32_t language = 0; language < LanguageCount; ++language) {
      const std::string_view text = Wording(static_cast<Text>(key), language);
      const auto marks = [](std::string_view in) { return std::count(in.begin(), in.end(), '?'); };
      EXPECT_EQ(marks(ToSingleByte(text)), marks(text)) << text;
    }
  }
}

TEST_F(Language, ShortcutsThatStandTogetherDiffer) {
  const std::vector<Text> groups[] = {
      {Text::TakeBetButton, Text::SameBetButton, Text::PressUnitButton, Text::PressDoubleButton,
       Text::ParlayButton},
      {Text::NoBetButton, Text::SameLostBetButton, Text::BetRemainderButton, Text::DoubleBetButton},
      {Text::StartHyperDrive, Text::StartAutoRoll},
      {Text::StopHyperDrive, Text::StopAutoRoll}};
  for (const std::vector<Text>& group : groups) {
    for (int32_t language = 0; language < LanguageCount; ++language) {
      std::set<std::string> letters;
      for (const Text text : group) {
        const std::string_view caption = Wording(text, language);
        letters.insert(LowerCase(caption.substr(caption.find('&') + 1, 1)));
      }
      EXPECT_EQ(letters.size(), group.size()) << Wording(group.front(), language);
    }
  }
}

}  // namespace
}  // namespace tessarel
