#include "dice/generators.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

#include "base/clock.h"
#include "base/fault.h"
#include "base/front_end.h"
#include "base/message.h"
#include "base/temporary_folder.h"

namespace tessarel {
namespace {

// What the person at the table types into the prompts to come, and the prompts as they came.
struct PromptScript {
  std::vector<std::string> answers;  // "" presses Cancel
  std::vector<std::string> texts, offered;
};
PromptScript Script;

void AnswerPrompt() {
  const std::string answer = Script.answers.at(Script.texts.size());
  Script.texts.push_back(Message.MsgText);
  Script.offered.push_back(Message.MsgInput);
  Message.MsgResult = answer.empty() ? +AnswerCancel : 0;
  Message.MsgInput = answer;
}

class Generators : public ::testing::Test {
 protected:
  void SetUp() override {
    Dice = {};
    Message = {};
    Script = {};
    FrontEnd = {};
    FrontEnd.ShowMessage = AnswerPrompt;
  }
  void TearDown() override {
    FrontEnd = {};
    ReleaseClock();
  }

  static bool SeedWith(int32_t generator, Money seed) {
    SelectRNG(generator);
    Dice.SeedRequest = seed;
    return SeedRNG(-1);
  }

  // The faces of `count` rolls from roll count `first` on, as digits.
  static std::string Roll(int count, int32_t first = 0) {
    std::string digits;
    for (int32_t k = first; k < first + count; ++k) {
      const Faces faces = MakeDice(k);
      digits += std::to_string(faces.die1) + std::to_string(faces.die2);
    }
    return digits;
  }
};

struct Sequence {
  int32_t generator;
  std::string_view firstFaces;
  uint64_t hash;  // FNV-1a of the faces of 100,000 rolls
};

// From seed 123456 at roll count 0.
constexpr Sequence Sequences[] = {
    {1, "14662565363433621141", 0x6A0245FCA4204A4E},
    {2, "13554435415616664531", 0xD7461372CB3A382A},
    {3, "35562464164241634526", 0x763A65C9EFF29042},
    {4, "22415633646346223652", 0x2307CEFCBB4EA72E},
    {5, "51126426545543161151", 0xB9D8BF3EEDCABA6A},
    {6, "51141266642526655436", 0x982DF088B1551129},
    {7, "22134155564433356441", 0x5EB2EB5F210AABCE},
    {8, "51145636422536552346", 0xA552FD514074DAC2},
};

TEST_F(Generators, EachKeepsItsSequenceForASeed) {
  for (const Sequence& sequence : Sequences) {
    SCOPED_TRACE(sequence.generator);
    ASSERT_TRUE(SeedWith(sequence.generator, 123456));
    uint64_t hash = 14695981039346656037U;
    std::string faces;
    for (int32_t k = 0; k < 100'000; ++k) {
      const Faces roll = MakeDice(k);
      for (const int32_t die : {roll.die1, roll.die2}) {
        hash = (hash ^ static_cast<uint64_t>(die)) * 1099511628211U;
        if (k < 10) faces += std::to_string(die);
      }
    }
    EXPECT_EQ(faces, sequence.firstFaces);
    EXPECT_EQ(hash, sequence.hash);
  }
}

TEST_F(Generators, FirstTwisterIsTheReferenceGenerator) {
  std::mt19937 reference(2'147'483'647U);
  SeedTwister1(2'147'483'647U);
  for (int k = 0; k < 2000; ++k)
    ASSERT_EQ(TwisterReal1(), static_cast<double>(reference()) / 4294967296.0);
}

// The congruences start from constant minus argument, figured in 32 bits.
TEST_F(Generators, ShuffledGeneratorsOverflowAboveTheirLargestSeeds) {
  struct Case {
    int32_t generator, largest;
    std::string_view faces;
  };
  constexpr Case Cases[] = {{4, 2147332758, "651446146151"},
                            {5, 2147428874, "363225513661"},
                            {6, 2147428874, ""},
                            {7, 2147332758, ""}};
  for (const auto& [generator, largest, faces] : Cases) {
    SCOPED_TRACE(generator);
    EXPECT_TRUE(SeedWith(generator, largest));
    if (!faces.empty()) {
      EXPECT_EQ(Roll(6), faces);
    }
    EXPECT_EQ(FaultOf([&generator = generator, &largest = largest] {
                SeedWith(generator, Money(largest) + 1);
              }),
              NumberOf(FaultNumber::Overflow));
    EXPECT_EQ(Dice.LastSeed, largest + 1);
    EXPECT_EQ(Dice.CurrentSeed, largest + 1);
  }
}

TEST_F(Generators, ThreeCongruentialOneCanYieldASeven) {
  ASSERT_TRUE(SeedWith(5, 46169));
  Roll(22);
  const Faces faces = MakeDice(0);
  EXPECT_EQ(std::max(faces.die1, faces.die2), 7);
}

TEST_F(Generators, ShuffledGeneratorsSeedThemselvesWhenFirstUsed) {
  int32_t idum = 1;
  EXPECT_GT(Ran1(idum), 0);
  EXPECT_GT(Ran2(idum), 0);
  idum = -77;
  Ran2(idum);
  EXPECT_EQ(idum, -77);
  Ran1(idum);
  EXPECT_EQ(idum, 1);
}

TEST_F(Generators, DamagedShuffleStateIsReportedAndYieldsZero) {
  int32_t idum = 1;
  Ran1(idum);
  Ran2(idum);
  Dice.Ran1.ix3 = -100'000;
  Dice.Ran2.iy = 714'025;
  EXPECT_EQ(Ran1(idum), 0);
  EXPECT_EQ(Ran2(idum), 0);
  EXPECT_EQ(Message.PendingErrorText,
            "An error occurred in function Ran1\rAn error occurred in function Ran2\r");
}

TEST_F(Generators, QuickRanCutsASeedThatOverflows) {
  struct Case {
    int32_t seed, result, state;
  };
  constexpr Case Cases[] = {
      {1'571'985, 4, 409'224},    // the largest that fits
      {1'571'986, 2, 203'659},    // cut to 15,720
      {157'205'050, 2, 203'659},  // cut twice, each time from a half to the even neighbour
      {2'147'483'647, 1, 32'382}, {-2'000'000'000, 0, -20'000'000},
  };
  for (const auto& [seed, result, state] : Cases) {
    SCOPED_TRACE(seed);
    Dice.CurrentSeed = seed;
    EXPECT_EQ(QuickRan(6), result);
    EXPECT_EQ(Dice.CurrentSeed, state);
  }
}

TEST_F(Generators, QuickRanTakesOverALargeSeedOfAnotherGenerator) {
  ASSERT_TRUE(SeedWith(1, 2'147'483'647));
  EXPECT_EQ(SelectRNG(3), Selected);
  EXPECT_EQ(MakeDice(0).die1, 1);
  EXPECT_EQ(Dice.LastSeed, 2'147'483'647);
  EXPECT_LT(Dice.CurrentSeed, 714'025);
}

TEST_F(Generators, PairedGeneratorsAlternateByTheRollCount) {
  for (const int32_t paired : {6, 7}) {
    const int32_t odd = paired == 6 ? 1 : 2, even = paired == 6 ? 5 : 4;
    SCOPED_TRACE(paired);
    SeedWith(odd, 99);
    const std::string oddRolls = Roll(2);
    SeedWith(even, 99);
    const std::string evenRolls = Roll(2);
    SeedWith(paired, 99);
    EXPECT_EQ(Roll(4, 7), oddRolls.substr(0, 2) + evenRolls.substr(0, 2) + oddRolls.substr(2) +
                              evenRolls.substr(2));
  }
}

TEST_F(Generators, MissingFilesMoveTheGeneratorAtTheRoll) {
  constexpr int32_t Expected[4][GeneratorCount + 1] = {
      {0, 1, 2, 3, 4, 5, 6, 7, 8},
      {0, 2, 2, 3, 4, 5, 2, 7, 2},
      {0, 1, 4, 3, 4, 5, 6, 4, 8},
      {0, 4, 4, 3, 4, 5, 4, 4, 4},
  };
  for (int32_t missing = 0; missing < 4; ++missing) {
    for (int32_t generator = 0; generator <= GeneratorCount; ++generator) {
      Dice.SupportFilesMissing = missing;
      Dice.CurrentRNG = generator;
      MakeDice(0);
      EXPECT_EQ(Dice.CurrentRNG, Expected[missing][generator]) << missing << ' ' << generator;
    }
  }
}

TEST_F(Generators, SelectionTestsLimitsAndFiles) {
  struct Case {
    int32_t number, missing;
    SelectResult result;
  };
  constexpr Case Cases[] = {
      {-1, 0, OutOfLimits}, {9, 0, OutOfLimits}, {0, 3, Selected},    {8, 0, Selected},
      {1, 1, Unavailable},  {6, 1, Unavailable}, {8, 1, Unavailable}, {2, 1, Selected},
      {7, 1, Selected},     {2, 2, Unavailable}, {7, 2, Unavailable}, {1, 2, Selected},
      {3, 3, Selected},     {4, 3, Selected},    {5, 3, Selected},
  };
  for (const auto& [number, missing, result] : Cases) {
    Dice.CurrentRNG = 4;
    Dice.SupportFilesMissing = missing;
    EXPECT_EQ(SelectRNG(number), result) << number << ' ' << missing;
    EXPECT_EQ(Dice.CurrentRNG, result == Selected ? number : 4);
  }
}

TEST_F(Generators, NoGeneratorMakesNoDice) {
  SelectRNG(0);
  const Faces faces = MakeDice(0);
  EXPECT_EQ(faces.die1, 0);
  EXPECT_EQ(faces.die2, 0);
}

TEST_F(Generators, SeedsOutsideTheLimitsChangeNothing) {
  struct Case {
    int32_t generator;
    std::string_view seed;
    int32_t applied;  // 0: refused
  };
  constexpr Case Cases[] = {
      {3, "999999", 999'999}, {3, "1000000", 0},
      {3, "999999.5", 0},     {1, "2147483647", 2'147'483'647},
      {1, "2147483648", 0},   {1, "-1", 0},
      {1, "0.9999", 0},       {1, "5.5", 6},
      {1, "6.5", 6},          {1, "5.7", 6},
  };
  for (const auto& [generator, seed, applied] : Cases) {
    SCOPED_TRACE(seed);
    Dice.LastSeed = 42;
    EXPECT_EQ(SeedWith(generator, ParseMoney(seed).value()), applied != 0);
    EXPECT_EQ(Dice.LastSeed, applied != 0 ? applied : 42);
    if (applied == 0) {
      EXPECT_EQ(Dice.SeedRequest, Money());
    }
  }
}

TEST_F(Generators, PromptComesBackUntilTheSeedIsGood) {
  SeedWith(3, 77);
  Dice.AskForSeed = 1;
  Script.answers = {"1000000", "nonsense", "999,999"};
  EXPECT_TRUE(SeedRNG(0));
  EXPECT_EQ(Dice.LastSeed, 999'999);
  const std::string question =
      "Please enter a whole number between 1 and 999,999 to seed the random number generator:";
  const std::string refused = "Your seed value is out of limits.\r\r" + question;
  EXPECT_EQ(Script.texts, (std::vector<std::string>{question, refused, refused}));
  EXPECT_EQ(Script.offered.front(), "77");
  EXPECT_EQ(Message.MsgTitle, "Random Number Generator");
}

TEST_F(Generators, CancelledPromptChangesNothing) {
  SeedWith(1, 77);
  const std::string faces = Roll(5);
  SeedWith(1, 77);
  Dice.AskForSeed = 1;
  Script.answers = {"0", ""};
  EXPECT_FALSE(SeedRNG(0));
  EXPECT_EQ(Dice.LastSeed, 77);
  EXPECT_EQ(Roll(5), faces);
  EXPECT_NE(Script.texts[0].find(" 2,147,483,647 "), std::string::npos);
}

TEST_F(Generators, PromptEndsWhereNobodyAnswers) {
  FrontEnd = {};
  Dice.AskForSeed = 1;
  Dice.LastSeed = 2'000'000'000;
  SelectRNG(3);
  EXPECT_TRUE(SeedRNG(0));
  EXPECT_EQ(Dice.LastSeed, 999'999);
}

// 2026-11-22 is a Sunday.
TEST_F(Generators, ClockSeedsAreMadeOfWeekdayAndTime) {
  struct Case {
    LocalTime time;
    int32_t generator, seed;
  };
  const Case Cases[] = {
      {{2026, 11, 22, 0, 0, 1, 0}, 1, 100'001'000},
      {{2026, 11, 28, 0, 0, 1, 0}, 4, 700'001'000},
      {{2026, 11, 22, 23, 59, 59, 0}, 5, 186'399'000},
      {{2026, 11, 22, 23, 59, 58, 500}, 2, 186'398'496},  // a multiple of 8, half to even
      {{2026, 11, 22, 0, 0, 1, 0}, 3, 1000},
      {{2026, 11, 22, 0, 16, 39, 0}, 3, 999'000},
      {{2026, 11, 22, 0, 16, 41, 0}, 3, 100'100},
      {{2026, 11, 22, 23, 59, 59, 0}, 3, 863'990},
  };
  for (const auto& [time, generator, seed] : Cases) {
    HoldClock(time);
    Dice.LastSeed = 0;
    EXPECT_TRUE(SeedWith(generator, 0));
    EXPECT_EQ(Dice.LastSeed, seed);
  }
}

TEST_F(Generators, ClockSeedWaitsUntilItDiffersFromTheLast) {
  HoldClock({2026, 11, 22, 0, 0, 1, 0}, 250);
  Dice.LastSeed = 100'001'000;
  Dice.SeedRequest = 5;
  EXPECT_TRUE(SeedRNG(0));  // without a prompt the request is dropped
  EXPECT_EQ(Dice.LastSeed, 100'001'250);
  EXPECT_TRUE(Script.texts.empty());
}

TEST_F(Generators, StartUpSeedsEachGeneratorOnItsOwn) {
  constexpr int32_t SelectedLast[] = {1, 2, 1, 5};
  for (int32_t missing = 0; missing < 4; ++missing) {
    HoldClock({2026, 11, 22, 0, 0, 1, 0}, 125);
    Dice = {};
    Dice.SupportFilesMissing = missing;
    SeedAllGenerators();
    EXPECT_EQ(Dice.CurrentRNG, SelectedLast[missing]);
  }
  // The seeds of #4, #5, #2 and #1 follow each other at the clock's steps.
  HoldClock({2026, 11, 22, 0, 0, 1, 0}, 125);
  Dice = {};
  SeedAllGenerators();
  std::string faces;
  for (const int32_t generator : {4, 5, 2, 1}) {
    SelectRNG(generator);
    faces += Roll(6);
  }
  std::string expected;
  Money seed = 100'001'125;
  for (const int32_t generator : {4, 5, 2, 1}) {
    SeedWith(generator, seed);
    expected += Roll(6);
    seed += 125;
  }
  EXPECT_EQ(faces, expected);
}

TEST_F(Generators, MissingFilesAreNamedInOneMessage) {
  EXPECT_EQ(MissingSupportText(), "");
  const std::string first =
      "Unable to locate a support file called MT19937AR.DLL\rThis file is "
      "needed to operate random number generators #1, #6, and #8.";
  const std::string second =
      "Unable to locate a support file called COKUS.DLL\rThis file is "
      "needed to operate random number generators #2 and #7.";
  const std::string rest = "\r\rThis problem usually happens when ";
  Dice.SupportFilesMissing = FirstTwister;
  EXPECT_EQ(MissingSupportText().find(first + rest), 0U);
  Dice.SupportFilesMissing = SecondTwister;
  EXPECT_EQ(MissingSupportText().find(second + rest), 0U);
  Dice.SupportFilesMissing = FirstTwister | SecondTwister;
  EXPECT_EQ(MissingSupportText().find(first + "\r\r" + second + rest), 0U);
  EXPECT_TRUE(MissingSupportText().ends_with("the installation program tessarel-setup"));
}

TEST_F(Generators, PlatformChoicesCoverTheirRange) {
  uint32_t seen = 0;
  for (int k = 0; k < 500; ++k)
    seen |= 1U << PlatformRandom(6);
  EXPECT_EQ(seen, 63U);
}

}  // namespace
}  // namespace tessarel
