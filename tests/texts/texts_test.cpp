// What the table says, in the languages in force.
#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#include "config/configuration.h"
#include "engine/rules_fixture.h"
#include "engine/settle_prompt.h"
#include "engine/unattended.h"
#include "play/roll_driver.h"
#include "state/settings.h"
#include "state/table.h"
#include "texts/language.h"
#include "texts/say.h"

namespace tessarel {
namespace {

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
      {Turkish, "Come Bahsi: Ann,\r\rPoint belirlenmeden Come bahsi oynayamazsınız."},
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
  EXPECT_EQ(Said(), "Pass Line Bahsi: En düşük Pass Line bahsi: $5\r\r$5 oynanıyor.");
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
  Table.CurrentBet = bet::Buy4;
  Settings.BuyVigPct = Money::FromDouble(0.05);
  PutDown(Ann, bet::Buy4, 20);
  Payoffs.Payoff[0].PayNum = 2;
  Table.GrossWin = Table.NetWin = 39;
  const SettlePrompt prompt = MakeSettlePrompt(Ann, Outcome::Won, true);
  std::vector<std::string> rows;
  for (const auto& [caption, figure] : prompt.rows)
    rows.push_back(caption + "|" + figure);
  EXPECT_EQ(rows, (std::vector<std::string>{"Buy 4|$20", "Ödeme orani 2:1:|$40", "%5 komisyon:|$1",
                                            "Net ödeme:|$39"}));
}

}  // namespace
}  // namespace tessarel
