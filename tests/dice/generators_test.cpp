#include "dice/generators.h"

#include "reset.h"

namespace tessarel {
namespace {

class Generators : public FreshTest {
 protected:
  static bool SeedWith(int32_t generator, int64_t seed) {
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

// FNV-1a of the faces of 100,000 rolls from seed 123456 at roll count 0, from the first generator
// to the eighth.
// clang-format off
constexpr uint64_t SequenceHashes[] = {
    0x6A0245FCA4204A4E, 0xD7461372CB3A382A, 0x763A65C9EFF29042, 0x2307CEFCBB4EA72E,
    0xB9D8BF3EEDCABA6A, 0x982DF088B1551129, 0x5EB2EB5F210AABCE, 0xA552FD514074DAC2};
// clang-format on

TEST_F(Generators, EachKeepsItsSequenceForASeed) {
  for (int32_t generator = 1; generator <= GeneratorCount; ++generator) {
    ASSERT_TRUE(SeedWith(generator, 123456));
    uint64_t hash = 14695981039346656037U;
    for (int32_t k = 0; k < 100'000; ++k) {
      const Faces roll = MakeDice(k);
      for (const int32_t die : {roll.die1, roll.die2})
        hash = (hash ^ static_cast<uint64_t>(die)) * 1099511628211U;
    }
    EXPECT_EQ(hash, SequenceHashes[generator - 1]) << generator;
  }
}

// The congruences start from constant minus argument, figured in 32 bits.
TEST_F(Generators, ShuffledGeneratorsOverflowAboveTheirLargestSeeds) {
  const std::tuple<int32_t, int32_t, std::string> cases[] = {{4, 2147332758, "651446146151"},
                                                             {5, 2147428874, "363225513661"},
                                                             {6, 2147428874, ""},
                                                             {7, 2147332758, ""}};
  for (const auto& [generator, largest, faces] : cases) {
    SCOPED_TRACE(generator);
    EXPECT_TRUE(SeedWith(generator, largest));
    EXPECT_EQ(Roll(6).substr(0, faces.size()), faces);
    EXPECT_EQ(FaultOf([&generator = generator, &largest = largest] {
                SeedWith(generator, int64_t{largest} + 1);
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
  const std::tuple<int32_t, int32_t, int32_t> cases[] = {
      // seed, result, state
      {1'571'985, 4, 409'224},    // the largest that fits
      {1'571'986, 2, 203'659},    // cut to 15,720
      {157'205'050, 2, 203'659},  // cut twice, each time from a half to the even neighbour
      {2'147'483'647, 1, 32'382},
      {-2'000'000'000, 0, -20'000'000}};
  for (const auto& [seed, result, state] : cases) {
    Dice.CurrentSeed = seed;
    EXPECT_EQ(QuickRan(6), result) << seed;
    EXPECT_EQ(Dice.CurrentSeed, state) << seed;
  }
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
  const std::tuple<int32_t, int32_t, SelectResult> cases[] = {
      // number, missing files, result
      {-1, 0, OutOfLimits}, {9, 0, OutOfLimits}, {0, 3, Selected},    {8, 0, Selected},
      {1, 1, Unavailable},  {6, 1, Unavailable}, {8, 1, Unavailable}, {2, 1, Selected},
      {7, 1, Selected},     {2, 2, Unavailable}, {7, 2, Unavailable}, {1, 2, Selected},
      {3, 3, Selected},     {4, 3, Selected},    {5, 3, Selected}};
  for (const auto& [number, missing, result] : cases) {
    Dice.CurrentRNG = 4;
    Dice.SupportFilesMissing = missing;
    EXPECT_EQ(SelectRNG(number), result) << number << ' ' << missing;
    EXPECT_EQ(Dice.CurrentRNG, result == Selected ? number : 4);
  }
}

TEST_F(Generators, SeedsOutsideTheLimitsChangeNothing) {
  const std::tuple<int32_t, int64_t, int32_t> cases[] = {// what is applied; 0: refused
                                                         {3, 999'999, 999'999},
                                                         {3, 1'000'000, 0},
                                                         {1, 2'147'483'647, 2'147'483'647},
                                                         {1, 2'147'483'648, 0},
                                                         {1, -1, 0}};
  for (const auto& [generator, seed, applied] : cases) {
    Dice.LastSeed = 42;
    EXPECT_EQ(SeedWith(generator, seed), applied != 0) << seed;
    EXPECT_EQ(Dice.LastSeed, applied != 0 ? applied : 42) << seed;
    EXPECT_TRUE(applied != 0 || Dice.SeedRequest == 0) << seed;
  }
}

TEST_F(Generators, PromptComesBackUntilTheSeedIsGood) {
  SeedWith(3, 77);
  Dice.AskForSeed = 1;
  Answers = {"1000000", "nonsense", "999,999"};
  EXPECT_TRUE(SeedRNG(0));
  EXPECT_EQ(Dice.LastSeed, 999'999);
  const std::string
      title = "Random Number Generator: ",
      refused = title + "Your seed value is out of limits.\r\r",
      question =
          "Please enter a whole number between 1 and 999,999 to seed the random number generator:";
  EXPECT_EQ(Said(), (Strings{title + question, refused + question, refused + question}));
}

TEST_F(Generators, CancelledPromptChangesNothingAndOffersTheLastSeed) {
  SeedWith(1, 77);
  const std::string faces = Roll(5);
  SeedWith(1, 77);
  Dice.AskForSeed = 1;
  Answers = {"0", AnswerCancel};
  EXPECT_FALSE(SeedRNG(0));
  EXPECT_EQ(Dice.LastSeed, 77);
  EXPECT_EQ(Roll(5), faces);
  EXPECT_NE(Shown[0].Text.find(" 2,147,483,647 "), std::string::npos);
  SelectRNG(3);
  for (const int32_t last : {77, 2'000'000'000}) {
    Dice.LastSeed = last;
    EXPECT_TRUE(SeedRNG(0)) << "what is offered is taken";
    EXPECT_EQ(Dice.LastSeed, std::min(last, 999'999));
  }
}

// 2026-11-22 is a Sunday.
TEST_F(Generators, ClockSeedsAreMadeOfWeekdayAndTime) {
  const std::tuple<LocalTime, int32_t, int32_t> cases[] = {
      // generator, seed
      {{2026, 11, 22, 0, 0, 1, 0}, 1, 100'001'000},
      {{2026, 11, 28, 0, 0, 1, 0}, 4, 700'001'000},
      {{2026, 11, 22, 23, 59, 59, 0}, 5, 186'399'000},
      {{2026, 11, 22, 23, 59, 58, 500}, 2, 186'398'496},  // a multiple of 8, half to even
      {{2026, 11, 22, 0, 0, 1, 0}, 3, 1000},
      {{2026, 11, 22, 0, 16, 39, 0}, 3, 999'000},
      {{2026, 11, 22, 0, 16, 41, 0}, 3, 100'100},
      {{2026, 11, 22, 23, 59, 59, 0}, 3, 863'990}};
  for (const auto& [time, generator, seed] : cases) {
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
  EXPECT_TRUE(Shown.empty());
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
  int64_t seed = 100'001'125;
  for (const int32_t generator : {4, 5, 2, 1}) {
    SeedWith(generator, seed);
    expected += Roll(6);
    seed += 125;
  }
  EXPECT_EQ(faces, expected);
}

TEST_F(Generators, MissingFilesAreNamedInOneMessage) {
  const std::string
      first =
          "MT19937AR.DLL\rThis file is needed to operate random number generators #1, #6, and #8.",
      second = "COKUS.DLL\rThis file is needed to operate random number generators #2 and #7.";
  for (int32_t missing = 0; missing <= 3; ++missing) {
    Dice.SupportFilesMissing = missing;
    const std::string text = MissingSupportText();
    EXPECT_EQ(text.find(first) != text.npos, (missing & FirstTwister) != 0);
    EXPECT_EQ(text.find(second) != text.npos, (missing & SecondTwister) != 0);
  }
}

}  // namespace
}  // namespace tessarel
