// The texts that modules keep beside their code, in all six languages.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <bit>
#include <cctype>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "base/single_byte_text.h"
#include "config/configuration.h"
#include "engine/payouts.h"
#include "engine/rules_fixture.h"
#include "engine/settle_prompt.h"
#include "engine/unattended.h"
#include "files/file_dialog.h"
#include "play/roll_driver.h"
#include "state/settings.h"
#include "state/table.h"
#include "texts/bet_texts.h"
#include "texts/configuration_texts.h"
#include "texts/dice_texts.h"
#include "texts/file_texts.h"
#include "texts/language.h"
#include "texts/rail_texts.h"
#include "texts/roll_texts.h"

namespace tessarel {
namespace {

// A table is nothing but its texts, so that none of them can be missed here.
template <class Table>
void AddTexts(std::vector<SixTexts>& all, const Table& table) {
  const auto texts = std::bit_cast<std::array<SixTexts, sizeof(Table) / sizeof(SixTexts)>>(table);
  all.insert(all.end(), texts.begin(), texts.end());
}

std::vector<SixTexts> AllTexts() {
  std::vector<SixTexts> all;
  AddTexts(all, BetTexts);
  AddTexts(all, RailTexts);
  AddTexts(all, RollTexts);
  AddTexts(all, DiceTexts);
  AddTexts(all, ConfigurationTexts);
  AddTexts(all, FileTexts);
  return all;
}

int CountOf(std::string_view text, std::string_view part) {
  int found = 0;
  for (size_t at = text.find(part); at != text.npos; at = text.find(part, at + part.size()))
    ++found;
  return found;
}

// What a text tells of itself in every language: the parts that vary, shortcut marks, the breaks of
// its lines, the dollar signs and the blanks at its ends. "%" is a mark only before a digit.
std::string Shape(std::string_view text) {
  std::set<char> marks;
  for (size_t at = text.find('%'); at != text.npos; at = text.find('%', at + 1)) {
    if (at + 1 < text.size() && std::isdigit(static_cast<unsigned char>(text[at + 1])))
      marks.insert(text[at + 1]);
  }
  return std::string(marks.begin(), marks.end()) + " &" + std::to_string(CountOf(text, "&")) +
         " r" + std::to_string(CountOf(text, "\r")) + "/" + std::to_string(CountOf(text, "\r\r")) +
         " $" + std::to_string(CountOf(text, "$")) + (text.starts_with(' ') ? " in front" : "") +
         (text.ends_with(' ') ? " behind" : "");
}

// Whether the letter that the mark shows is one of the word's own.
bool MarksALetter(std::string_view text) {
  const size_t at = text.find('&');
  return at == text.npos ||
         (at + 1 < text.size() && std::isalnum(static_cast<unsigned char>(text[at + 1])));
}

TEST(Texts, EveryVariantIsThereAndKeepsTheShapeOfTheEnglishOne) {
  const std::vector<SixTexts> all = AllTexts();
  EXPECT_GT(all.size(), 250U);
  for (const SixTexts& texts : all) {
    SCOPED_TRACE(texts[English]);
    EXPECT_LE(CountOf(texts[English], "&"), 1);
    for (const std::string_view text : texts) {
      EXPECT_FALSE(text.empty());
      EXPECT_EQ(Shape(text), Shape(texts[English])) << text;
      EXPECT_TRUE(MarksALetter(text)) << text;
      // A character that Windows-1252 lacks comes back as another.
      EXPECT_EQ(FromSingleByte(ToSingleByte(text)), text);
    }
  }
}

TEST(Texts, EveryVariantIsInItsOwnLanguage) {
  // Some are spelt alike ("Arrondi", "Point", "Remove Bets" never); a forgotten one is one more.
  const std::vector<SixTexts> all = AllTexts();
  for (const int32_t language : {Spanish, German, French, Turkish, Italian}) {
    const auto same = std::ranges::count_if(all, [language](const SixTexts& texts) {
      return texts[static_cast<size_t>(language)] == texts[English];
    });
    EXPECT_LE(same, 6) << language;
  }
}

TEST(Texts, ShortcutsOfALostBetDiffer) {
  for (size_t language = 0; language < LanguageCount; ++language) {
    std::set<char> letters;
    for (const SixTexts* button :
         {&BetTexts.NoBet, &BetTexts.SameBet, &BetTexts.BetRemainder, &BetTexts.DoubleBet}) {
      const std::string_view text = (*button)[language];
      letters.insert(
          static_cast<char>(std::tolower(static_cast<unsigned char>(text[text.find('&') + 1]))));
    }
    EXPECT_EQ(letters.size(), 4U) << language;
  }
}

// Callers of AskSaveFile name the action by its title, which may be the general table's.
TEST(Texts, TitlesNameTheirActionInEveryLanguage) {
  std::map<std::string, FileAction> known;
  for (int32_t language = 0; language < LanguageCount; ++language) {
    SetLanguage(language);
    for (int number = 0; number < FileActionCount; ++number) {
      const auto action = static_cast<FileAction>(number);
      const std::string title(FileActionTitle(action));
      EXPECT_EQ(FileActionOfTitle(title), action) << title;
      EXPECT_EQ(known.emplace(title, action).first->second, action) << title;
    }
    EXPECT_EQ(FileActionOfTitle(GetText(140)), FileAction::SaveSession);
    EXPECT_EQ(FileActionOfTitle(GetText(147)), FileAction::SaveScript);
    EXPECT_EQ(FileActionOfTitle(GetText(148)), FileAction::SaveProbability);
  }
  SetLanguage(English);
}

// A table with Ann, whose messages are kept.
class TextsAtTheTable : public RulesTest {
 protected:
  void TearDown() override {
    SetLanguage(English);
    RulesTest::TearDown();
  }

  // All that was shown, with its titles.
  static std::string Said() {
    std::string text;
    for (const ShownMessage& message : Shown)
      text += message.Title + ": " + message.Text;
    Shown.clear();
    return text;
  }
};

TEST_F(TextsAtTheTable, ARefusedBetIsExplainedInTheLanguageInForce) {
  const struct {
    int32_t language;
    std::string_view text;
  } cases[] = {
      {English, "Come Bet: Ann,\r\rYou may not make a Come bet until a point is established."},
      {German, "Come-Wette: Ann,\r\rSie dürfen eine Come-Wette erst setzen, wenn ein Point steht."},
      {Turkish, "Come Bahsi: Ann,\r\rPoint belirlenmeden Come bahsi oynayamazsiniz."},
  };
  for (const auto& [language, text] : cases) {
    SetLanguage(language);
    Ask(bet::Come, 10);
    EXPECT_EQ(Said(), text);
  }
}

TEST_F(TextsAtTheTable, APutBetIsRefusedWithItsNote) {
  SetLanguage(German);
  Settings.AllowPutBets = false;
  Table.Point = 6;
  Ask(bet::PassLine, 10);
  EXPECT_EQ(Said(),
            "Pass Line-Wette: Ann,\r\rSie dürfen eine Pass Line-Wette nicht setzen oder erhöhen, "
            "solange ein Point steht.\r\r(Es sei denn, Sie wählen in der Konfiguration "
            "\"Put-Wetten erlauben\".)");
}

TEST_F(TextsAtTheTable, LimitsPutTheAmountWhereTheLanguageNeedsIt) {
  SetLanguage(Turkish);
  Settings.MinPlacardBet = 5;
  Ask(bet::PassLine, 1);
  EXPECT_EQ(Said(), "Pass Line Bahsi: En düsük Pass Line bahsi: $5\r\r$5 oynaniyor.");
  Settings.Denomination[1] = 0;
  const auto refusal = ValidateConfiguration();
  ASSERT_TRUE(refusal.has_value());
  EXPECT_EQ(refusal->Text, "Çek degerler sifirdan büyük olmalidir.");
}

TEST_F(TextsAtTheTable, AShooterWithoutALineBetIsToldSo) {
  SetLanguage(German);
  Settings.BetNeededToShoot = 1;
  Table.Shooter = Table.LastShooter = Ann;
  MakeRoll();
  EXPECT_EQ(
      Said(),
      "Line-Wette erforderlich: Zum Würfeln ist eine Line-Wette erforderlich.\r\rAnn muss eine "
      "Pass Line-Wette oder eine Don't Pass-Wette setzen.\r\rHinweis: Diese Pflicht lässt sich "
      "auf der Registerkarte 'Wetten' der Konfiguration ändern.");
  EXPECT_EQ(StopText(Table.LastStop), "Der Werfer hat keine Line-Wette.");
}

TEST_F(TextsAtTheTable, TheSettlePromptSpeaksTheLanguageInForce) {
  SetLanguage(Turkish);
  Settings.BuyVigPct = Money::FromDouble(0.05);
  PutDown(Ann, bet::Buy4, 20);
  const SettlePrompt prompt = MakeSettlePrompt({Ann, bet::Buy4, Win, 20, {39, 39}}, true);
  std::vector<std::string> rows;
  for (const auto& [caption, figure] : prompt.rows)
    rows.push_back(caption + "|" + figure);
  EXPECT_EQ(rows, (std::vector<std::string>{"Buy 4|$20", "Ödeme orani 2:1:|$40", "%5 komisyon:|$1",
                                            "Net ödeme: |$39"}));
}

}  // namespace
}  // namespace tessarel
