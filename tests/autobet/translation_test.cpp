#include "autobet/translation.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "autobet/normalise.h"
#include "autobet/number_text.h"
#include "autobet/player_name.h"
#include "autobet/token_text.h"
#include "autobet/vocabulary.h"
#include "state/table.h"

namespace tessarel {
namespace {

class TranslationTest : public testing::Test {
 protected:
  void SetUp() override { Table = TableState(); }
  void TearDown() override { Table = TableState(); }
};

std::string Shown(const CompiledScript& script) {
  return ShownTokens(std::span(script.TokenStream).subspan(1));
}

// The stream of a script of slot 3, or its error with line and columns.
std::string Translated(const std::vector<std::string>& lines) {
  CompiledScript script;
  if (const auto error = TranslateScript(3, lines, script)) {
    return std::to_string(error->line) + ":" + std::to_string(error->startColumn) + "-" +
           std::to_string(error->endColumn) + " " + error->text;
  }
  return Shown(script);
}

TEST(NormaliseLine, TidiesSpacesNumbersAndSigns) {
  // clang-format off
  const std::pair<std::string, std::string> lines[] = {
      {"", ""}, {"   ", ""}, {"   bet 10", "   bet 10"}, {"\tbet\t10  ", " bet 10"},
      {"x=1", "x = 1"}, {"a:b", "a : b"}, {"sum( 1,2 ; 3 )", "sum(1, 2; 3)"},
      {"place (5)", "place(5)"}, {"if(a)or( b )", "if (a) or (b)"},
      {"a or (b) ElseIf (c)", "a or (b) ElseIf (c)"}, {"door (5)", "door(5)"},
      {"a = (5)", "a = (5)"}, {"(5)", "(5)"}, {"  (5)", "  (5)"}, {"a<=b", "a <= b"},
      {"a < > b > < c", "a <> b <> c"}, {"a = > b", "a => b"}, {"5--3", "5 + 3"},
      {"5 + -3", "5 - 3"}, {"x = -5", "x = -5"}, {"x=- - 5", "x = + 5"}, {"5-3", "5 - 3"},
      {"(-5)*-2", "(-5) * -2"}, {"$ 10", "$10"}, {"$1,000.50", "$1000.5"},
      {"007 .50 5.", "7 0.5 5"}, {"1e5", "100000"}, {"1,000 12,345,678.9", "1000 12345678.9"},
      {"1,000, 5", "1000, 5"}, {"1,00 1,0000 1000,000", "1, 0 1, 0 1000, 0"},
      {"sum(1,000)", "sum(1, 0)"}, {"(1),1,000", "(1), 1000"}, {"go to 5", "goto 5"},
      {"Go  To 5", "GoTo 5"}, {"go tool", "go tool"}, {"End If", "EndIf"}, {"send if", "send if"},
      {"end if(x)", "endif(x)"}, {"say\"a  =b\"now", "say \"a  =b\" now"},
      {"say \"open 'end  ", "say \"open 'end\""}, {"say \"", "say \"\""},
      {"x=1'a=b  c", "x = 1 'a=b  c"}, {"'a=\"b", "'a=\"b"}, {"5%", "5%"},
  };
  // clang-format on
  for (const auto& [typed, tidy] : lines) {
    std::string line = typed;
    NormaliseLine(line);
    EXPECT_EQ(line, tidy) << typed;
    NormaliseLine(line);
    EXPECT_EQ(line, tidy) << "a second time";
  }
}

TEST(NumberTexts, ReadsAndWritesPlainNumbers) {
  // clang-format off
  const std::tuple<std::string, std::string, bool> texts[] = {
      {"5", "5", true}, {"-$5.25", "-5.25", true}, {"$+5", "5", true},
      {"1,234,567", "1234567", true}, {".5e1", "5", true}, {"1e-3", "0.001", true},
      {"0.1e-9", "0.0000000001", true}, {"1e21", "1000000000000000000000", true},
      {"0.30000000000000004", "0.3", true}, {"-0", "0", true}, {"", "", false}, {".", "", false},
      {"$", "", false}, {"1,", "", false}, {",100", "", false}, {"1,00", "", false},
      {"1234,567", "", false}, {"5x", "", false}, {"1e", "", false}, {"1e999", "", false},
      {"inf", "", false}, {"--5", "", false}, {"0x10", "", false}, {"1.2.3", "", false},
      {"5 ", "", false},
  };
  // clang-format on
  for (const auto& [text, shown, good] : texts) {
    const auto value = ReadNumber(text);
    ASSERT_EQ(value.has_value(), good) << text;
    EXPECT_EQ(good ? NumberText(*value) : "", shown) << text;
  }
}

TEST_F(TranslationTest, TurnsLinesIntoTokens) {
  // clang-format off
  const std::pair<std::string, std::string> lines[] = {
      {"Bet $10 on the PassLine", "A481 10 L57 V43"},
      {"bet 1,000 on place6, place 6", "A481 1000 L57 V33 L75 F6 6"},
      {"come(6) dontcome dontcome[4]", "F4 L20 6 L21 V48 F2 L20 4 L21"},
      {"outside come bets hop61 any{bets}", "V4032 V70 I2 L20 V4100 L21"},
      {"rolls per hour", "V5603"}, {"number of rolls probable skew(7)", "F32 L20 7 L21"},
      {"% of rolls probable(7) 5% of bankroll", "F25 L20 7 L21 5 L61 0.01 L61 V1301"},
      {"die2 face3 die2 face5", "X34 5 X34 5"},
      {"cs12 cs#7 checkstack#7. csn12 checkstack name", "V112 V107 V107 V812 F800"},
      {"csname#3. cs. checkstacks", "V803 F21 V980"},
      {"input() input$(\"Why?\")", "F125 L20 S0 L21 F825 L20 S1 L21"},
      {"x5", "1:0-2 Unknown or misplaced element:\r\rx5"}, {"a the $ #", ""},
  };
  // clang-format on
  for (const auto& [line, tokens] : lines) {
    const bool nothing = tokens.empty();
    const bool error = tokens.starts_with("1:");
    EXPECT_EQ(Translated({line}), error     ? tokens
                                  : nothing ? "script 3 @0:0 @2:0"
                                            : "script 3 @1:0 " + tokens + " @2:0")
        << line;
  }
}

TEST_F(TranslationTest, MarksWhereStatementsBegin) {
  // clang-format off
  const std::pair<std::vector<std::string>, std::string> scripts[] = {
      {{}, "script 3 @0:0 @1:0"}, {{"", "  ' note"}, "script 3 @0:0 @3:0"},
      {{"bet", "", "clear"}, "script 3 @1:0 A481 @3:0 A460 @4:0"},
      // A keyword stands alone, but for a jump with its label.
      {{"if field then clear endif"}, "script 3 @1:0 L1 @1:2 V49 @1:9 L9 @1:13 A460 @1:20 L12 "
       "@2:0"},
      {{"  if field then", "goto 5"}, "script 3 @1:0 L1 @1:4 V49 @1:11 L9 @2:0 L14 5 @3:0"},
      {{"field gosub \"x\": bet"}, "script 3 @1:0 V49 @1:6 L15 S1 @1:17 A481 @2:0"},
      {{"5 : bet", "\"Start\":"}, "script 3 @1:0 5 @1:3 A481 @2:0 S1 @3:0"},
      {{"Go To 5 : End If"}, "script 3 @1:0 L14 5 @1:8 L12 @2:0"},
      {{"do if exitdo loop"}, "script 3 @1:0 L16 @1:2 L1 @1:5 L18 @1:12 L17 @2:0"},
      // Keywords in strings do not count, and the second of a kind is found after the first.
      {{"\"if then\" if field if"}, "script 3 @1:0 S1 @1:10 L1 @1:12 V49 @1:19 L1 @2:0"},
      {{"if(field)else:if[big6]"}, "script 3 @1:0 L1 @1:2 L20 V49 L21 @1:11 L10 @1:15 @1:17 L1 "
       "@1:20 L20 V50 L21 @2:0"},
  };
  // clang-format on
  for (const auto& [lines, stream] : scripts) {
    EXPECT_EQ(Translated(lines), stream) << (lines.empty() ? "nothing" : lines[0]);
  }
}

TEST_F(TranslationTest, KeepsStringsAndDropsComments) {
  CompiledScript script;
  const std::vector<std::string> lines = {"show message \"Bet 10 on Field\" & \"\" 'a \"note\"",
                                          "\"don't\"\"IF\"'", "\"open, 'Ende"};
  ASSERT_FALSE(TranslateScript(0, lines, script));
  EXPECT_EQ(Shown(script), "script 0 @1:0 A210 S1 L74 S0 @2:0 S2 S3 @3:0 S4 @4:0");
  std::vector<std::string> texts;
  for (const ScriptString& string : script.ScriptStringTable)
    texts.push_back(string.text);
  EXPECT_EQ(texts, (std::vector<std::string>{"", "Bet 10 on Field", "don't", "IF", "open, 'Ende"}));
  ASSERT_FALSE(TranslateScript(0, {}, script));
  EXPECT_EQ(script.ScriptStringTable.size(), 1u) << "strings of the script before";
}

TEST_F(TranslationTest, SaysWhichWordItDoesNotKnow) {
  // clang-format off
  const std::pair<std::string, std::string> lines[] = {
      {"field hand", "2:6-10 Please specify:\r\rcurrent hand, last hand, or all hands."},
      {"field V043", "2:6-10 Unknown or misplaced element:\r\rv043"},
      {"bet(Pass line)", "2:4-8 Unknown or misplaced element:\r\rpass"},
      {"\xC3\x84\xFF", "2:0-3 Unknown or misplaced element:\r\r\xC3\xA4\xFF"},
  };
  // clang-format on
  for (const auto& [line, error] : lines)
    EXPECT_EQ(Translated({"bet", line}), error);
}

TEST_F(TranslationTest, KnowsPlayersByName) {
  EXPECT_TRUE(Translated({"bankroll stu"}).starts_with("1:"));
  SetPlayerName(2, "Stu");
  SetPlayerName(7, "Jo Al");
  EXPECT_EQ(Translated({"bankroll Stu, jo al, player7 bettor"}),
            "script 3 @1:0 V1301 P2 L75 P7 L75 P7 P13 @2:0");
}

TEST(PlayerNames, RefusesWordsOfTheLanguage) {
  const std::pair<std::string, std::string> names[] = {
      {"Stu", ""},        {"The Boss", ""},
      {"O'Neil", ""},     {"", ""},
      {"Field", "field"}, {"a", "a"},
      {" The ", "the"},   {"Joe (1)", "("},
      {"Al, Jr.", ","},   {"Hourglass", "hour"},
      {"Mr. Two", "two"}, {"CS7", "cs7"},
  };
  for (const auto& [name, word] : names) {
    EXPECT_EQ(ReservedWordIn(name).value_or(""), word) << name;
    EXPECT_EQ(PlayerNameRefusal(name).value_or(""),
              word.empty() ? ""
                           : "\"" + name +
                                 "\" contains a word, phrase, or symbol used in auto-betting and "
                                 "therefore can't be used as a player's name.\r\r");
  }
  for (const std::string name : {"5", "007", "$1,000", "-2.5"}) {
    EXPECT_EQ(PlayerNameRefusal(name).value_or(""),
              "A player's name can't be all numeric because it can't be used in auto-betting.\r\r");
  }
}

// Replacing in one go must give what starting again from the front after each replacement gives.
TEST(ReplaceAll, FindsWhatReplacementsBringTogether) {
  std::mt19937 random(7);
  const std::tuple<std::string, std::string, std::string> rows[] = {
      {" the ", " ", " the"},    {" # of ", " # ", " #of"}, {"(", " L020 ", "( x"},
      {" hour", " hr", " hour"}, {"aab", "ba", "ab"},       {" x y ", " y ", " xy"}};
  for (const auto& [from, to, letters] : rows) {
    for (int round = 0; round < 2000; ++round) {
      std::string text;
      for (auto left = random() % 40; left > 0; --left)
        text += letters[random() % letters.size()];
      std::string slow = text;
      for (size_t at = slow.find(from); at != std::string::npos; at = slow.find(from)) {
        slow.replace(at, from.size(), to);
      }
      const bool held = text.find(from) != std::string::npos;
      EXPECT_EQ(ReplaceAll(text, from, to), held);
      ASSERT_EQ(text, slow) << from;
    }
  }
}

std::string Repeated(std::string_view text, int times) {
  std::string all;
  for (int k = 0; k < times; ++k)
    all += text;
  return all;
}

// Hostile lines end, and in a time in proportion to their length: squared it would be minutes.
TEST_F(TranslationTest, OutlivesHostileLines) {
  for (const std::string_view text :
       {"(",    ":",   "-", "\"",       "'", "1,", "if ", "the ", "# of ",    "x ( ",
        "hour", "go ", "9", "\xC3\x01", " ", "<",  "cs",  "\"\"", "player1 ", "loop:"}) {
    CompiledScript script;
    const int times = 100'000 / static_cast<int>(text.size());
    const auto error = TranslateScript(1, std::vector{Repeated(text, times)}, script);
    EXPECT_TRUE(error || script.TokenStream.size() >= 4) << text;
  }
  std::string noise;
  std::mt19937 random(1);
  for (int k = 0; k < 200'000; ++k)
    noise += static_cast<char>(random() % 256);
  CompiledScript script;
  EXPECT_TRUE(TranslateScript(1, std::vector{noise}, script));
}

}  // namespace
}  // namespace tessarel
