#include "texts/compiler/catalogue.h"

#include <gtest/gtest.h>

namespace tessarel::catalogue {
namespace {

// What is wrong with a catalogue, or with one compared with another; empty when nothing is.
std::string FaultOf(std::string_view first, std::string_view other) {
  try {
    const Catalogue measure = Read("english.txt", first);
    Compare(measure, Read("german.txt", other));
  } catch (const Fault& fault) {
    return fault.what();
  }
  return "";
}

TEST(Catalogue, FaultsAreReportedWithFileAndLine) {
  constexpr std::string_view English = "# Dice\n\nRoll: Roll {1} of {2}\nStop: Stop\n";
  const struct {
    std::string_view german, fault;
  } cases[] = {
      {"# Dice\n\nRoll: {2}: Wurf {1}\nStop: Halt\n", ""},
      {"# Dice\n\nRoll: Wurf {1}, {1} von {2}\nStop: Halt", ""},
      {"# Dice\nRoll: Wurf {1} von {2}\n", "german.txt:2: Stop is missing"},
      {"# Dice\nStop: Halt\n", "german.txt:2: Roll is missing"},
      {"Roll: Wurf {1} von {2}\nStop: Halt\n", "german.txt:1: the heading \"Dice\" is missing"},
      {"# Dice\nRoll: Wurf {1} von {2}\nHalt: Halt\n", "german.txt:3: Halt is not in english.txt"},
      {"# Dice\nRoll: Wurf {1} von {2}\nStop: Halt\nMore: Mehr\n",
       "german.txt:4: More is not in english.txt"},
      {"# Dice\nStop: Halt\nRoll: Wurf {1} von {2}\n",
       "german.txt:2: Stop is out of order: expected Roll"},
      {"# Dice\nRoll: Wurf {1} von {2}\nStop: Halt\nRoll: Wurf\n",
       "german.txt:4: Roll stands twice"},
      {"# Dice\nRoll: Wurf {1}\nStop: Halt\n",
       "german.txt:2: Roll takes other values than in english.txt: {1} instead of {1} {2}"},
      {"# Dice\nRoll: Wurf {1} von {2}\nStop: Halt {1}\n",
       "german.txt:3: Stop takes other values than in english.txt: {1} instead of none"},
      {"# Dice\nRoll: Wurf {2}\n", "german.txt:2: Roll leaves out a value before its last one"},
      {"# Dice\nRoll Wurf\n", "german.txt:2: expected \"Key: text\" or \"# Heading\""},
      {"# Dice\nroll: Wurf\n", "german.txt:2: \"roll\" is no key"},
      {"# Dice\nRoll: \n", "german.txt:2: Roll has no text"},
      {"# Dice\nRoll: Wurf \n", "german.txt:2: Roll has a blank at an end of its text"},
      {"# Dice\nRoll:  Wurf\n", "german.txt:2: Roll has a blank at an end of its text"},
      {"# Dice\nRoll: Wurf {9}\n",
       "german.txt:2: expected \"{1}\" to \"{8}\"; a brace of the text is doubled"},
      {"# Dice\nRoll: Wurf {\n",
       "german.txt:2: expected \"{1}\" to \"{8}\"; a brace of the text is doubled"},
      {"# Dice\nRoll: Wurf }\n",
       "german.txt:2: \"}\" without \"{\"; a brace of the text is doubled"},
      {"# Dice\nRoll: Wurf\\r\n", "german.txt:2: unknown escape \"\\r\""},
      {"# Dice\nRoll: Wurf\\\n", "german.txt:2: unknown escape \"\\\""},
      {"# Dice\nRoll: Wurf\r\n", "german.txt:2: a control character in the text"},
  };
  for (const auto& [german, fault] : cases)
    EXPECT_EQ(FaultOf(English, german), fault) << german;
}

TEST(Catalogue, EscapesAndValuesAreKeptAsTheProgramNeedsThem) {
  const Catalogue catalogue = Read("texts/english.txt", "Set: {{{1}}} \\\\ {2}\\n50% \"x\"");
  ASSERT_EQ(catalogue.Entries.size(), 1U);
  EXPECT_EQ(catalogue.Language, "English");
  EXPECT_EQ(catalogue.Entries[0].Text, "{\1} \\ \2\r50% \"x\"");
  EXPECT_NE(Tables({catalogue}).find(R"("{\001} \\ \002\01550% \"x\"")"), std::string::npos);
  EXPECT_NE(Header({catalogue}).find("enum class Text : uint16_t {\n  Set,\n}"), std::string::npos);
}

}  // namespace
}  // namespace tessarel::catalogue
