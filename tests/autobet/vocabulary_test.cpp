#include "autobet/vocabulary.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "autobet/normalise.h"
#include "autobet/token_names.h"
#include "autobet/translation.h"
#include "base/single_byte_text.h"

namespace tessarel {
namespace {

// What a text has become when the first `count` rows have passed over it.
std::string AfterRows(std::string text, int count) {
  for (int row = 0; row < count; ++row) {
    const Phrase& phrase = PhraseTable[static_cast<size_t>(row)];
    ReplaceAll(text, phrase.From.View(), phrase.To.View());
    ReplaceAll(text, "  ", " ");
  }
  return text;
}

TEST(Vocabulary, HasEachPhraseOnceButForTheNumberWordTwo) {
  std::map<std::string, int> uses;
  for (const Phrase& phrase : PhraseTable)
    ++uses[std::string(phrase.From.View())];
  for (const auto& [from, count] : uses) {
    EXPECT_FALSE(TrimSpaces(from).empty());
    EXPECT_EQ(count, from == " two " ? 2 : 1) << from;
  }
}

// Replacing goes on until the phrase is gone, so it must not come back by itself.
TEST(Vocabulary, NoPhraseBringsItselfBack) {
  for (const Phrase& phrase : PhraseTable) {
    const std::string from(phrase.From.View()), to(phrase.To.View());
    EXPECT_EQ(to.find(from), std::string::npos) << from;
    EXPECT_TRUE(to.starts_with(' ')) << from;
  }
}

// A phrase becomes words that tokens are made of, or other words that a row below looks for.
TEST(Vocabulary, EveryPhraseEndsInTokens) {
  for (auto row = PhraseTable.begin(); row != PhraseTable.end(); ++row) {
    const std::string to(row->To.View());
    const bool tokens = to.find_first_not_of("FVPHXYSAILE0123456789.- ") == std::string::npos;
    const bool usedBelow = std::any_of(row + 1, PhraseTable.end(), [&](const Phrase& below) {
      return below.From.View().find(to) != std::string_view::npos;
    });
    EXPECT_TRUE(tokens || usedBelow) << row->From.View() << " to " << to;
  }
}

// These rows never see what they look for, since another one or the tidy form of lines takes it.
const std::vector<std::string> Unreachable = {" dice combination ", " two ", " go to "};

TEST(Vocabulary, KnowsWhichRowsNoTextCanReach) {
  std::vector<std::string> unreachable;
  for (int row = 0; row < PhraseCount; ++row) {
    const std::string from(PhraseTable[static_cast<size_t>(row)].From.View());
    const bool typed =
        std::none_of(from.begin(), from.end(), [](char c) { return std::isupper(c); });
    std::string text = from;
    if (typed) NormaliseLine(text);
    text = AfterRows(" " + text + " ", row);
    if (text.find(from) == std::string::npos) unreachable.push_back(from);
  }
  EXPECT_EQ(unreachable, Unreachable);
}

// A line of a script as the rows find it: tidy, in lower case, its texts a word each.
std::string AsRowsFindIt(std::string line) {
  NormaliseLine(line);
  std::string text = " ";
  for (size_t at = 0; at < line.size() && line[at] != '\'';) {
    const size_t length = VerbatimLength(line, at);
    if (length > 0) {
      text += " S001 ";
    } else {
      text += static_cast<char>(std::tolower(static_cast<unsigned char>(line[at])));
    }
    at += std::max<size_t>(length, 1);
  }
  text += ' ';
  ReplaceAll(text, "  ", " ");
  return text;
}

// The scripts say what every phrase means, so none may be missing there.
TEST(Vocabulary, HasAScriptForEveryRowThatTextCanReach) {
  std::vector<bool> used(PhraseCount);
  for (const auto& entry : std::filesystem::directory_iterator(TESSAREL_TEST_SCRIPTS)) {
    std::ifstream file(entry.path());
    for (std::string line; std::getline(file, line);) {
      std::string text = AsRowsFindIt(line);
      for (size_t row = 0; row < used.size(); ++row) {
        const Phrase& phrase = PhraseTable[row];
        if (!ReplaceAll(text, phrase.From.View(), phrase.To.View())) continue;
        used[row] = true;
        ReplaceAll(text, "  ", " ");
      }
    }
  }
  for (size_t row = 0; row < used.size(); ++row) {
    const std::string from(PhraseTable[row].From.View());
    const bool reachable = std::ranges::find(Unreachable, from) == Unreachable.end();
    EXPECT_TRUE(used[row] || !reachable) << row + 1 << from;
  }
}

TEST(Vocabulary, WordsMessagesWithNamesInQuotes) {
  EXPECT_EQ(FunctionName(44), "\"% misses\"");
  EXPECT_EQ(FunctionName(24), "");
  const std::pair<int, std::string> variables[] = {
      {43, "\"Pass Line\""},
      {94, "\"Variable\""},
      {107, "\"Checkstack7\""},
      {899, "\"Checkstackname99\""},
      {4011, "\"inside dont come bets\""},
      {5708, "\"Seven out\""},
      {5709, "\"Variable\""},
      {-1, "\"Variable\""},
  };
  for (const auto& [number, name] : variables)
    EXPECT_EQ(VariableName(number), name);
}

}  // namespace
}  // namespace tessarel
