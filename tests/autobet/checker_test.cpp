#include "autobet/checker.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>
#include <string>
#include <vector>

#include "autobet/token_text.h"
#include "autobet/translation.h"
#include "autobet/vocabulary.h"
#include "state/scripts.h"
#include "state/settings.h"
#include "state/table.h"

namespace tessarel {
namespace {

class CheckerTest : public testing::Test {
 protected:
  void SetUp() override { Reset(); }
  void TearDown() override { Reset(); }
  static void Reset() {
    Table = TableState();
    Scripts = ScriptStoreState();
    Settings = SettingsState();
  }
};

// The lines of a text in which "|" ends a line.
std::vector<std::string> Lines(const std::string& text) {
  std::vector<std::string> lines(1);
  for (const char c : text) {
    if (c == '|') {
      lines.emplace_back();
    } else {
      lines.back() += c;
    }
  }
  return lines;
}

// A script of slot 3 (or another) after the passes that rewrite it, or its error with lines and
// columns; "~" ends a line of its text. The whole chain has to come to an end as well.
std::string Checked(const std::string& text, int slot = 3) {
  Scripts.Places[static_cast<size_t>(slot)].lines = Lines(text);
  CompiledScript script;
  CheckScript(slot, script);
  auto error = RewriteScript(slot, script);
  if (!error) {
    // Behind the header and first marker, up to the last one.
    const std::span<const ScriptToken> tokens(script.TokenStream);
    return tokens.size() < 4 ? "" : ShownTokens(tokens.subspan(3, tokens.size() - 4));
  }
  std::replace(error->text.begin(), error->text.end(), '\r', '~');
  return std::to_string(error->line) + ":" + std::to_string(error->startColumn) + "-" +
         std::to_string(error->endLine) + ":" + std::to_string(error->endColumn) + " " +
         error->text;
}

TEST_F(CheckerTest, WritesReferencesInTheNormalForm) {
  // clang-format off
  const std::pair<std::string, std::string> values[] = {
      // Qualifiers and their defaults.
      {"place6", "V33 P3 H3 X1 Y34"}, {"place6 wins", "V33 P3 H3 X2 Y29"},
      {"last session wins place6 player2 total $", "V33 P2 H4 X2 Y22"},
      {"place6 expected value", "V33 P3 H3 X5 Y32"}, {"cs7", "V107 P3"},
      {"bankroll shooter current hand", "V1301 P10 H1"}, {"current bankroll", "V1301 P3 H3"},
      {"# of comeout rolls", "V2600 P3 H3 Y0"}, {"# of hands completed", "V2604 P3 H3 Y15"},
      {"point", "V5500"}, {"most passes in a hand", "V1505 P0 H3"},
      {"# of points", "V4606 P0 H3 X6 Y0"}, {"# of points(6) missed", "F46 P0 H3 X8 Y0 L20 6 L21"},
      {"# of passes(player2)", "F42 P0 H3 Y0 L20 2 L21"},
      {"# of rolls last session", "V4504 P0 H4 X0 Y0"},
      {"avg bankroll(5) all sessions", "F22 P3 H5 L20 5 L21"},
      // Functions with qualifiers in front, between and after.
      {"player2 place 6", "F6 P2 H3 X1 Y34 6"},
      {"place player2 (6) wins", "F6 P2 H3 X2 Y29 L20 6 L21"},
      {"place(cs1 player4) player2", "F6 P2 H3 X1 Y34 L20 V101 P4 L21"},
      {"place dice total player2", "F6 P2 H3 X1 Y34 V5510"},
      {"cs cs1 player2 all sessions", "F21 P3 V101 P2"}, {"csn(5) player2", "F800 P2 L20 5 L21"},
      // The statistic of a roll.
      {"# of rolls since last 7", "F29 P0 H3 X0 Y0 L20 7 L21"},
      {"# of rolls die1 face2", "F28 P0 H3 X33 Y0 L20 2 L21"},
      {"die1 face2 # of rolls", "F28 P0 H3 X33 Y0 L20 2 L21"},
      {"% of rolls 36 combos 3.4 player2", "F27 P2 H3 X32 Y0 L20 3.4 L21"},
      {"pvalue 7", "F137 P0 H3 X0 Y0 L20 7 L21"},
      {"# of rolls(6) 36 combos last session", "F28 P0 H4 X32 Y0 L20 6 L21"},
      {"# of rolls(1.6, 36 combos)", "F28 P0 H3 X32 Y0 L20 1.6 L21"},
      {"# of rolls(36 combos, 1.6)", "F28 P0 H3 X32 Y0 L20 1.6 L21"},
      {"# of rolls(die1 face3, die1 face5)", "F28 P0 H3 X33 Y0 L20 3 L75 5 L21"},
      {"# of rolls(cs1 36 combos)", "F28 P0 H3 X32 Y0 L20 V101 P3 L21"},
      {"# of rolls(all rolls)", "F28 P0 H3 X0 Y0 L20 0 L21"},
      {"# of rolls since last wins place6", "V33 P3 H3 X2 Y27"},
      {"# of rolls since last place 6 last session", "F6 P3 H4 X1 Y27 6"},
      // Players.
      {"player3", "3"}, {"shooter", "V5200"}, {"last shooter", "V5201"},
      {"original shooter", "V5202"}, {"bettor", "V5203"}, {"autobettor", "V5204"},
      {"player(2)", "F50 L20 2 L21"}, {"player cs2", "F50 V102 P3"},
      {"bankroll player 2", "V1301 F50 2 H3"},
      {"player(cs1) place6 wins", "V33 F50 L20 V101 P3 L21 H3 X2 Y29"},
      {"bankroll player(bankroll player(cs1) all sessions) current hand", "V1301 F50 L20 V1301 "
       "F50 L20 V101 P3 L21 H5 L21 H1"},
      {"place(4) player(2) thru place(5)", "F6 F50 L20 2 L21 H3 X1 Y34 L20 4 L21 L58 F6 P3 H3 "
       "X1 Y34 L20 5 L21"},
  };
  // clang-format on
  for (const auto& [value, expected] : values) {
    EXPECT_EQ(Checked("cs0 = " + value), "v100 P3 L50 " + expected) << value;
  }
}

TEST_F(CheckerTest, GivesAScriptWithoutSeatTheSelectedBettor) {
  EXPECT_EQ(Checked("cs0 = bankroll", 0), "v100 P0 L50 V1301 P0 H3");
  SetPlayerName(5, "Eve");
  EXPECT_EQ(Checked("cs0 = bankroll", 0), "v100 P5 L50 V1301 P5 H3");
}

TEST_F(CheckerTest, SpellsGroupsOut) {
  EXPECT_EQ(Checked("cs0 = sum(outside buy bets player(cs2) wins)"),
            "v100 P3 L50 F130 L20 V37 F50 L20 V102 P3 L21 H3 X2 Y29 L75 V38 F50 L20 V102 P3 L21 "
            "H3 X2 Y29 L75 V41 F50 L20 V102 P3 L21 H3 X2 Y29 L75 V42 F50 L20 V102 P3 L21 H3 X2 "
            "Y29 L21");
  const auto count = [](const std::string& word) {
    const std::string shown = Checked("cs0 = count(" + word + ")");
    return std::count(shown.begin(), shown.end(), 'V');
  };
  EXPECT_EQ(count("bets"), 93);
  EXPECT_EQ(count("css"), 100);
  EXPECT_EQ(count("hop bets"), 17);
  EXPECT_EQ(count("big bets"), 2);
  EXPECT_EQ(count("hard bets"), 4);
  EXPECT_EQ(count("inside lay bets, place bets player(count(big bets))"), 4 + 6 * (1 + 2));
  Settings.UseBig68 = false;
  EXPECT_EQ(count("bets"), 91);
  Settings.UseSpecialPropBets = Settings.UseMidwayBet = Settings.UseFireBet = false;
  EXPECT_EQ(count("bets"), 81);
}

TEST_F(CheckerTest, MarksTargets) {
  // clang-format off
  const std::pair<std::string, std::string> scripts[] = {
      {"place 6 = 10", "f6 P3 H3 X1 Y34 6 L50 10"}, {"csn3 = \"abc\"", "v803 P3 L50 S1"},
      {"cs3 thru cs5 = cs1", "v103 P3 L58 v105 P3 L50 V101 P3"},
      {"all(> cs1, big6, hard6 player2) = 5", "I3 L20 L53 V101 P3 L75 v50 P3 H3 X1 Y34 L75 v53 "
       "P2 H3 X1 Y34 L21 U0 L50 5"},
      {"bet cs1 on cs2 current hand", "A481 V101 P3 L57 v102 P3"},
      {"bet place6 to 10", "A481 v33 P3 H3 X1 Y34 L57 10"},
      {"subtract 5 from place(cs1)", "A485 5 L59 f6 P3 H3 X1 Y34 L20 V101 P3 L21"},
      {"bet 10 on any(field, cs1)", "A481 10 L57 I2 L20 v49 P3 H3 X1 Y34 L75 v101 P3 L21 U0"},
      {"call off > cs1, place6 wins", "A451 L53 V101 P3 L75 v33 P3 H3 X2 Y29"},
      {"clear field current hand", "A460 v49 P3 H1 X1 Y34"},
      {"buy the place bet on place4 all sessions", "A450 v31 P3 H5 X1 Y34"},
      {"swap cs1, cs2", "A300 V101 P3 L75 V102 P3"},
      // Place and Buy bets are each other's family here.
      {"bet 5 on place4 thru buy 10", "A481 5 L57 v31 P3 H3 X1 Y34 L58 f7 P3 H3 X1 Y34 10"},
      {"cs1 + 2 = 3", "V101 P3 L65 2 L50 3"},
      {"if point = 6 then|endif", "L1 @1:2 V5500 L50 6 @1:13 L9>11 @2:0 L12"},
  };
  // clang-format on
  for (const auto& [script, expected] : scripts)
    EXPECT_EQ(Checked(script), expected);
}

TEST_F(CheckerTest, LeadsEveryJumpToItsElement) {
  // clang-format off
  const std::pair<std::string, std::string> scripts[] = {
      {"", ""}, {"' nothing||", ""}, {"do|exitdo|loop", "L16>7 @2:0 L18>7 @3:0 L17>3"},
      {"if 1=1 then|elseif 2=2 then|else|endif", "L1 @1:2 1 L50 1 @1:9 L9>11 @2:0 L11>21 @2:6 2 "
       "L50 2 @2:13 L9>19 @3:0 L10>21 @4:0 L12"},
      {"do|if 1=1 then|endif|loop", "L16>15 @2:0 L1 @2:2 1 L50 1 @2:9 L9>13 @3:0 L12 @4:0 L17>3"},
      // Members of groups move what is after them.
      {"10: clear big bets|gosub \" END\"|goto 10|\"end\":return", "label3 @1:4 A460 v50 P3 H3 "
       "X1 Y34 L75 v51 P3 H3 X1 Y34 @2:0 L15>24 S1 @3:0 L14>3 10 @4:0 label2 @4:7 L13"},
      {"if 1=1 then|goto 5|endif|5", "L1 @1:2 1 L50 1 @1:9 L9>14 @2:0 L14>16 5 @3:0 L12 @4:0 "
       "label1"},
  };
  // clang-format on
  for (const auto& [script, expected] : scripts)
    EXPECT_EQ(Checked(script), expected);
  Scripts.Places[3].lines = {"cs1 = 1", "\"x\""};
  CompiledScript script;
  ASSERT_FALSE(CheckScript(3, script));
  EXPECT_EQ(script.ScriptStringTable[1].element, 8);
}

TEST_F(CheckerTest, TellsTheIndentationOfLines) {
  Scripts.Places[3].lines = Lines(
      "' first|if|cs1 = 1|then|do: cs1 = 2|' remark||loop|elseif cs1 = 2 then cs1 = 4|else|"
      "cs1 = 3|endif|");
  CompiledScript script;
  std::vector<int32_t> levels;
  ASSERT_FALSE(CheckScript(3, script, &levels));
  EXPECT_EQ(levels, (std::vector<int32_t>{0, 0, 1, 0, 1, 2, 2, 1, 0, 0, 1, 0, 0}));
}

TEST_F(CheckerTest, TellsTheStretchOfAMistake) {
  // clang-format off
  const std::pair<std::string, std::string> scripts[] = {
      {"cs1 = 1: cs1 = (5|cs1 = 2)", "1:9-2:0 Missing or improperly placed parenthesis."},
      {"cs1 = 5)|", "1:0-3:0 Missing or improperly placed parenthesis."},
      {"10|cs1 = 5:10", "2:9-3:0 A duplicate line number exists in line 1"},
      {"if 1=1|cs1 = 5", "1:0-1:2 Missing THEN statement."},
      {"cs1 = 1|cs1 = what", "2:6-2:10 Unknown or misplaced element:~~what"},
  };
  // clang-format on
  for (const auto& [script, expected] : scripts)
    EXPECT_EQ(Checked(script), expected) << script;
}

std::string Repeated(const std::string& text, int times) {
  std::string all;
  for (int k = 0; k < times; ++k)
    all += text;
  return all;
}

// Each of these takes minutes, or the stack, where a pass is recursive or quadratic.
TEST_F(CheckerTest, StandsDeepAndLongScripts) {
  constexpr int Deep = 10'000;
  for (const std::string nested :
       {"(", "cs(", "sqr(", "any(", "bankroll player(", "# of rolls(", "place player2 ("}) {
    EXPECT_TRUE(Checked("cs1 = " + Repeated(nested, Deep) + "5" + Repeated(")", Deep))
                    .starts_with("v101 P3 L50 "))
        << nested;
  }
  EXPECT_TRUE(Checked(Repeated("any(5), ", Deep)).starts_with("I2 L20 5 L21 U0 L75 "));
  EXPECT_TRUE(Checked(Repeated("place4 thru place10, ", Deep)).starts_with("V31 "));
  EXPECT_TRUE(Checked(Repeated("if 1=1 then|", Deep) + Repeated("endif|", Deep)).ends_with("L12"));
  Scripts.Places[3].lines = {"cs1 = " + Repeated("sum(bets player(", 50) + "1" +
                             Repeated("))", 50)};
  CompiledScript script;
  EXPECT_EQ(CheckScript(3, script).value_or(ScriptError()).text, "Overflow, Error #6");
}

// Whatever words come together, there is a result, and jumps lead into the stream.
TEST_F(CheckerTest, StandsAnyOrderOfWords) {
  // clang-format off
  const std::vector<std::string> words = {
      "if", "then", "else", "elseif", "endif", "do", "loop", "exitdo", "goto", "gosub", "return",
      "(", ")", ",", ":", "|", "=", "<", "+", "-", "not", "thru", "on", "from", "all", "any", "5",
      "\"a\"", "\"\"", "date$", "place6", "place", "place bets", "cs", "cs1", "player", "player2",
      "shooter", "last session", "wins", "die1 face2", "36 combos", "# of rolls",
      "# of rolls since last", "# of rolls(", "sum(", "sqr", "bankroll", "point", "bet", "clear",
      "swap", "bets", "from roll", "total", "current",
  };
  // clang-format on
  std::mt19937 random(4711);
  std::map<bool, int> outcomes;
  for (int k = 0; k < 6'000; ++k) {
    std::string text;
    for (auto length = random() % 7 + 1; length > 0; --length)
      text += words[random() % words.size()] + " ";
    Scripts.Places[3].lines = Lines(text);
    CompiledScript script;
    CheckScript(3, script);
    const auto error = RewriteScript(3, script);
    ++outcomes[error.has_value()];
    if (error) {
      EXPECT_FALSE(error->text.empty() || error->line < 1 ||
                   error->text.find("Error #") != std::string::npos)
          << text;
      continue;
    }
    for (const auto& [code, value] : script.TokenStream) {
      const bool isControl = code > 0 && code < LogicControlEnd;
      EXPECT_TRUE(!isControl ||
                  (value >= 0 && value < static_cast<double>(script.TokenStream.size())))
          << text;
    }
  }
  EXPECT_GT(outcomes[false], 100);
  EXPECT_GT(outcomes[true], 100);
}

}  // namespace
}  // namespace tessarel
