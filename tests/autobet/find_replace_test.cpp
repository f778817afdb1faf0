#include "autobet/find_replace.h"

#include <gtest/gtest.h>

#include "base/message.h"

namespace tessarel {
namespace {

class FindingAndReplacing : public ::testing::Test {
 protected:
  void SetUp() override { TearDown(); }
  void TearDown() override {
    FindReplace = {};
    Message = {};
  }
  ScriptLines lines_ = {"bet 5 on Pass", "", "Pass pass", "caf\xc3\x89 $pass$"};
};

TEST_F(FindingAndReplacing, NextAndPreviousGoRoundTheScript) {
  FindReplace.FindWhat = "pass";
  const TextSpan all[] = {{1, 10, 4}, {3, 1, 4}, {3, 6, 4}, {4, 8, 4}};
  for (size_t k = 0; k < 4; ++k) {
    EXPECT_EQ(FindText(lines_, all[k]), all[(k + 1) % 4]);
    EXPECT_EQ(FindText(lines_, all[(k + 1) % 4], FindUp), all[k]);
  }
  FindReplace.chkMatchCase = -1;
  FindReplace.optDirection = FindUp;
  EXPECT_EQ(FindText(lines_, {3, 6, 4}), all[3]);
  FindReplace.FindWhat = "Caf\xc3\xa9";
  EXPECT_EQ(FindText(lines_, {}), std::nullopt);
  FindReplace.chkMatchCase = 0;
  const TextSpan cafe{4, 1, 5};
  EXPECT_EQ(FindText(lines_, {}), cafe);
  EXPECT_EQ(FindText(lines_, cafe), cafe);  // the only one
}

TEST_F(FindingAndReplacing, AnySelectionAndAnyScriptWillDo) {
  FindReplace.FindWhat = "5";
  constexpr int32_t Odd[] = {INT32_MIN, -1, 0, 1, 99, INT32_MAX};
  for (const int32_t line : Odd) {
    for (const int32_t column : Odd) {
      for (const int32_t length : Odd) {
        const TextSpan found{1, 5, 1};
        EXPECT_EQ(FindText(lines_, {line, column, length}, FindUp), found);
        EXPECT_EQ(FindText(lines_, {line, column, length}, FindDown), found);
        EXPECT_FALSE(ReplaceText(lines_, {line, column, length}).Replaced);
      }
    }
  }
  EXPECT_EQ(Message.MsgTitle, "");
  ScriptLines none;
  EXPECT_EQ(FindText(none, {}), std::nullopt);
  EXPECT_EQ(Message.MsgTitle + ": " + Message.MsgText, "Search Results: Text not found.");
  EXPECT_EQ(ReplaceAllText(none), 0);
  FindReplace.FindWhat = "\n5";
  EXPECT_EQ(FindText(lines_, {}), std::nullopt);
  EXPECT_EQ(ReplaceAllText(lines_), 0);
}

TEST_F(FindingAndReplacing, ReplacesOneAfterTheOther) {
  FindReplace.FindWhat = "PASS";
  FindReplace.ReplaceWith = "pass pass\nno line of its own";
  TextSpan at{1, 1, 0};
  const TextSpan next[] = {{1, 10, 4}, {3, 1, 4}, {3, 11, 4}, {4, 8, 4}, {1, 10, 4}};
  for (const TextSpan& span : next) {
    const Replacement result = ReplaceText(lines_, at);
    EXPECT_EQ(result.Replaced, at.Length > 0);
    at = result.Selection;
    EXPECT_EQ(at, span);
  }
  EXPECT_EQ(lines_, (ScriptLines{"bet 5 on pass pass", "", "pass pass pass pass",
                                 "caf\xc3\x89 $pass pass$"}));
  FindReplace.ReplaceWith = "";
  FindReplace.FindWhat = "$pass pass$";
  const TextSpan caret{4, 7, 0};
  EXPECT_EQ(ReplaceText(lines_, {4, 7, 11}).Selection, caret);
  EXPECT_EQ(lines_[3], "caf\xc3\x89 ");
  EXPECT_EQ(Message.MsgTitle, "");
}

TEST_F(FindingAndReplacing, ReplacesAllWithoutLookingAtWhatItPutIn) {
  lines_ = {"aaaaa", "bAb", "b"};
  FindReplace.FindWhat = "aa";
  FindReplace.ReplaceWith = "aaa";
  EXPECT_EQ(ReplaceAllText(lines_), 2);
  FindReplace.FindWhat = "a";
  FindReplace.ReplaceWith = "";
  EXPECT_EQ(ReplaceAllText(lines_), 8);
  EXPECT_EQ(lines_, (ScriptLines{"", "bb", "b"}));
}

}  // namespace
}  // namespace tessarel
