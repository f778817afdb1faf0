#include "autobet/functions.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <tuple>
#include <variant>
#include <vector>

#include "autobet/script_faults.h"
#include "config/configuration_fixture.h"

namespace tessarel {
namespace {

using Value = std::variant<double, std::string>;

ScriptValue Made(const Value& value) {
  if (const double* const number = std::get_if<double>(&value)) return Number(*number);
  return MakeText(std::get<std::string>(value));
}

class Functions : public ConfigurationTest {
 protected:
  void SetUp() override {
    ConfigurationTest::SetUp();
    AutoBet = {};
    Seat(2, "Bo", 1000);
    AutoBet.CurrentScriptPlayer = 2;
    Table.Die1 = 3;
    Table.Die2 = 4;
    Settings.OddsAllowed59 = 7;
  }
  void TearDown() override {
    AutoBet = {};
    ConfigurationTest::TearDown();
  }

  static ScriptValue Call(int32_t function, const std::vector<ListItem>& arguments) {
    AutoBet.Fault = ScriptFault::None;
    return CallFunction(function, {.player = PlayerAutoBettor}, arguments);
  }
  static ScriptValue Call(int32_t function, const std::vector<Value>& arguments) {
    std::vector<ListItem> items;
    for (const Value& argument : arguments)
      items.push_back({0, Made(argument)});
    return Call(function, items);
  }
};

TEST_F(Functions, FamiliesNameTheBetOfTheNumberOrFailWithTheirOwnError) {
  // clang-format off
  const std::tuple<int32_t, Value, int32_t> cases[] = {  // function, argument, variable
      {6, "6", 33}, {6, 7.0, 0}, {6, 6.5, 0}, {6, 3.0, 0}, {1, 11.0, 0}, {8, 5.0, 0}, {9, 5.0, 0},
      {9, 2.0, 0}, {10, 13.0, 67}, {10, 3.1, 67}, {10, 4.6, 82}, {10, 12.0, 0}, {10, 66.0, 0},
      {10, 56.0, 0}, {10, 1.35, 0}, {10, 130.0, 0}, {10, -1.3, 0}, {10, NAN, 0}, {21, 0.0, 100},
      {21, 99.0, 199}, {21, 100.0, 0}, {21, -1.0, 0}, {800, 12.0, 812}, {800, 1e300, 0},
  };
  // clang-format on
  for (const auto& [function, argument, variable] : cases) {
    AutoBet.Fault = ScriptFault::None;
    EXPECT_EQ(NamedVariable(function, Made(argument)), variable) << function;
    EXPECT_EQ(static_cast<int32_t>(AutoBet.Fault), variable == 0 ? function : 0) << function;
  }
}

TEST_F(Functions, WorkOutNumbersAndTexts) {
  const std::string accented = "na\xC3\xAFve";  // five characters in six bytes
  // clang-format off
  const std::tuple<int32_t, std::vector<Value>, Value> cases[] = {
      {101, {-2.5}, -3.0}, {102, {"-2.5"}, 2.5}, {104, {"\xC3\xAF"}, 239.0}, {104, {""}, 0.0},
      {118, {accented}, 5.0}, {118, {12.5}, 4.0}, {139, {1.005, .01}, 1.01},
      {139, {12.34, .1}, 12.3}, {139, {-2.5, 1.0}, -3.0}, {203, {7.0, "banana", ""}, 0.0},
      {801, {accented, 3.0}, "na\xC3\xAF"}, {801, {"abc", 1e12}, "abc"}, {802, {"abc", 9.0}, "abc"},
      {805, {"abcde", 4.0}, "de"}, {805, {"abcde", 6.0, 1.0}, ""},
      {806, {"abcde", 9.0, 3.0}, "abcde"}, {809, {"ab", 9.0, "c"}, "abc"}, {810, {.5}, "0.5"},
      {811, {239.0}, "\xC3\xAF"}, {850, {3.0}, ""},
  };
  // clang-format on
  for (const auto& [function, arguments, expected] : cases) {
    const ScriptValue result = Call(function, arguments);
    EXPECT_EQ(static_cast<int32_t>(AutoBet.Fault), 0) << function;
    EXPECT_EQ(IsText(result), IsText(Made(expected))) << function;
    EXPECT_EQ(TextOf(result), TextOf(Made(expected))) << function;
  }
}

TEST_F(Functions, RefuseArgumentsOutOfLimits) {
  const std::string million(1'000'000, 'x');
  // clang-format off
  const std::tuple<int32_t, std::vector<Value>, int32_t> cases[] = {
      {22, {526.0}, 22}, {22, {-1.0}, 22}, {50, {9.0}, 50}, {850, {0.0}, 850}, {190, {3.0}, 190},
      {805, {"a", 0.0, 1.0}, 805}, {805, {"a", 1.0, -1.0}, 805}, {806, {"a", 0.0, 1.0}, 806},
      {809, {"a", 0.0, "b"}, 809}, {811, {256.0}, 811}, {811, {-1.0}, 811},
      {812, {1'000'001.0}, 812}, {812, {INFINITY}, 812}, {812, {NAN}, 812},
      {809, {million, 1.0, "b"}, 998},
  };
  // clang-format on
  for (const auto& [function, arguments, error] : cases) {
    EXPECT_EQ(Call(function, arguments), Number(0)) << function;
    EXPECT_EQ(static_cast<int32_t>(AutoBet.Fault), error) << function;
  }
  EXPECT_EQ(TextOf(Call(812, {Value(1'000'000.0)})).size(), 1'000'000u);
}

TEST_F(Functions, FigureListsWithoutMembersAndOfTexts) {
  const auto member = [](const Value& value) { return ListItem{0, Made(value)}; };
  const std::vector<ListItem> none = {{LogicGreater, Number(3)}, member(1.0)};
  for (const int32_t function : {126, 127, 128, 129, 130, 131})
    EXPECT_EQ(Call(function, none).value, 0) << function;
  const std::vector<ListItem> words = {member("pear"), member(10.0), member("Zoo"), member("fig")};
  EXPECT_EQ(Call(130, words).value, 10);
  EXPECT_EQ(TextOf(Call(132, words)), "pear");
  EXPECT_EQ(TextOf(Call(133, words)), "10");
  EXPECT_EQ(Call(132, none), MakeText(""));
}

TEST_F(Functions, AskTheUser) {
  static std::string typed;
  FrontEnd.ShowMessage = [] {
    Shown.push_back({Message.MsgTitle, Message.MsgText, Message.MsgFlags});
    Message.MsgResult = typed.empty() ? AnswerCancel : 0;
    Message.MsgInput = typed;
  };
  typed = " 12.5 units";
  EXPECT_EQ(Call(125, {Value("How\r\nmuch?")}), Number(12.5));
  EXPECT_EQ(TextOf(Call(825, {Value("")})), typed);
  typed = "";
  EXPECT_EQ(Call(125, {Value("")}), Number(0));
  EXPECT_EQ(Call(825, {Value("Who?")}), MakeText(""));
  const std::vector<std::string> asked = {"How\rmuch?", "Please enter a string",
                                          "Please enter a value", "Who?"};
  ASSERT_EQ(Shown.size(), asked.size());
  for (size_t k = 0; k < asked.size(); ++k)
    EXPECT_EQ(Shown[k].Title + ": " + Shown[k].Text, "Auto-Bet (Bo): " + asked[k]);
}

TEST(ScriptFaults, HaveOneOrTwoLinesInTheLanguageInForce) {
  AutoBet.FaultText = "Overflow, Error #6\r occurred at: RunAutoBet";
  // clang-format off
  const std::pair<int32_t, std::string> cases[] = {
      {6, "Reference to Place bet out of limits.\rAcceptable values 4,5,6,8,9,10"},
      {191, "Reference to odds allowed factor out of limits.\rAcceptable values 1-8"},
      {801, "Reference to \"Left$\" function out of limits."}, {1005, "Unable to Open File"},
      {9999, "Division by zero."}, {10000, AutoBet.FaultText}, {0, ""}, {807, ""}, {12345, ""},
  };
  // clang-format on
  for (const auto& [code, text] : cases)
    EXPECT_EQ(ScriptFaultText(static_cast<ScriptFault>(code)), text);
  Settings.Language = Turkish;
  EXPECT_EQ(ScriptFaultText(ScriptFault::BigBet),
            "Big bahsine ba\u015fvuru s\u0131n\u0131rlar\u0131n d\u0131\u015f\u0131nda.\r"
            "Kabul edilen de\u011ferler: 6,8");
  Settings.Language = English;
  AutoBet = {};
}

}  // namespace
}  // namespace tessarel
