#include "dice/generators.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>
#include <string_view>
#include <utility>

#include "base/clock.h"
#include "base/fault.h"
#include "base/message.h"
#include "base/number_format.h"
#include "dice/probability.h"
#include "log/event_lines.h"
#include "state/table.h"
#include "texts/say.h"

namespace tessarel {

constinit DiceState Dice;

namespace {

// A congruence x -> (x * factor + term) mod modulus, whose products stay within 32 bits.
struct Congruence {
  int32_t modulus, factor, term;

  constexpr int32_t After(int32_t x) const { return (x * factor + term) % modulus; }
};

// Ran1 has three of them with the reciprocals of the first two moduli, Ran2 one.
constexpr Congruence First = {259200, 7141, 54773};
constexpr Congruence Second = {134456, 8121, 28411};
constexpr Congruence Third = {243000, 4561, 51349};
constexpr double FirstReciprocal = 3.8580247e-6, SecondReciprocal = 7.4373773e-6;
constexpr Congruence Single = {714025, 1366, 150889};
constexpr double SingleReciprocal = 1.4005112e-6;

constexpr int LargestQuickSeed = 999'999;

int32_t FloorOf(double value) {
  const auto cut = static_cast<int32_t>(value);
  return cut - (value < cut ? 1 : 0);
}

// The remainder of a - b, both of any size. Overflow fault when the difference has no 32 bits.
int32_t DifferenceIn(const Congruence& congruence, int32_t a, int32_t b) {
  int32_t difference = 0;
  if (__builtin_sub_overflow(a, b, &difference)) RaiseOverflow();
  return difference % congruence.modulus;
}

// The entry of a shuffle table that `x` points to; outside 1 to ShuffleEntries for a negative x.
int32_t EntryFor(const Congruence& congruence, int32_t x) {
  return x < 0 ? 0 : 1 + ShuffleEntries * x / congruence.modulus;
}

// Whether an entry is in the table; if not, that is noted for the next report.
bool CheckEntry(int32_t entry, CheckedText<0> complaint) {
  if (entry >= 1 && entry <= ShuffleEntries) return true;
  Message.PendingErrorText += Say(complaint) + "\r";
  return false;
}

float Ran1Entry(const Ran1State& state) {
  return static_cast<float>((state.ix1 + state.ix2 * SecondReciprocal) * FirstReciprocal);
}

void InitialiseRan1(Ran1State& state, int32_t& idum) {
  state.initialised = true;
  state.ix1 = First.After(DifferenceIn(First, First.term, idum));
  state.ix2 = state.ix1 % Second.modulus;
  state.ix1 = First.After(state.ix1);
  state.ix3 = state.ix1 % Third.modulus;
  for (int k = 1; k <= ShuffleEntries; ++k) {
    state.ix1 = First.After(state.ix1);
    state.ix2 = Second.After(state.ix2);
    At(state.table, k) = Ran1Entry(state);
  }
  idum = 1;
}

void InitialiseRan2(Ran2State& state, int32_t argument) {
  state.initialised = true;
  state.idum = DifferenceIn(Single, Single.term, argument);
  for (int k = 1; k <= ShuffleEntries; ++k) {
    state.idum = Single.After(state.idum);
    At(state.table, k) = state.idum;
  }
  state.idum = Single.After(state.idum);
  state.iy = state.idum;
}

// Faces as each kind of generator yields them. The first die is always drawn first.
Faces FacesOfTwister(Twister& twister) {
  const uint32_t first = NextWord(twister);
  const uint32_t second = NextWord(twister);
  return {ScaleWord(first, 6) + 1, ScaleWord(second, 6) + 1};
}

Faces FacesOfSingleCall(Twister& twister) {
  const int32_t pair = ScaleWord(NextWord(twister), 36);
  return {pair % 6 + 1, pair / 6 + 1};
}

Faces FacesOfQuickRan() {
  const int32_t first = QuickRan(6);
  return {first, QuickRan(6)};
}

// The product with 6 is rounded to a 32-bit float as well: that is how a result next to 1 comes to
// a face of 7.
template <float (*Source)(int32_t&)>
Faces FacesOfReals() {
  int32_t idum = 1;
  const float first = Source(idum) * 6.0F;
  const float second = Source(idum) * 6.0F;
  return {static_cast<int32_t>(first) + 1, static_cast<int32_t>(second) + 1};
}

// The numbers that are drawn for the probability matrix. A real of the twisters is cut to a whole
// number, one of the shuffled generators is rounded half to even: those come to one more than
// WholeShare.
int32_t DrawOfTwister(Twister& twister) {
  return ScaleWord(NextWord(twister), WholeShare) + 1;
}

template <float (*Source)(int32_t&)>
int32_t DrawOfReal() {
  int32_t idum = 1;
  const double real = Source(idum);
  return static_cast<int32_t>(std::nearbyint(real * WholeShare)) + 1;
}

int32_t DrawOfGenerator(int32_t generator, bool odd) {
  switch (generator) {
    case 2:
      return DrawOfTwister(Dice.Twister2);
    case 3:
      return QuickRan(WholeShare);
    case 4:
      return DrawOfReal<Ran2>();
    case 5:
      return DrawOfReal<Ran1>();
    case 6:
      return odd ? DrawOfTwister(Dice.Twister1) : DrawOfReal<Ran1>();
    case 7:
      return odd ? DrawOfTwister(Dice.Twister2) : DrawOfReal<Ran2>();
    default:
      return DrawOfTwister(Dice.Twister1);
  }
}

// The files a generator needs, as bits of SupportFile.
int32_t FilesNeeded(int32_t generator) {
  constexpr std::array<int32_t, GeneratorCount + 1> Needed = {
      0, FirstTwister, SecondTwister, 0, 0, 0, FirstTwister, SecondTwister, FirstTwister};
  return At(Needed, generator);
}

// Asks for a seed until the answer is from 1 to the limit. False on Cancel.
bool PromptForSeed(int32_t limit) {
  const std::string question = Say(Text::AskSeed, FormatNumber(limit, "#,#"));
  std::string text = question;
  int32_t offered = Dice.LastSeed;
  while (AskForText(text, Say(Text::RandomNumberGenerator), std::to_string(offered))) {
    std::string typed = Message.MsgInput;
    std::erase_if(typed, [](char c) { return c == ' ' || c == ','; });
    const Money value = ParseMoney(typed).value_or(Money());
    if (value >= 1 && value <= limit) {
      Dice.SeedRequest = value;
      return true;
    }
    text = Say(Text::SeedOutOfLimits).append("\r\r").append(question);
    // Where nobody answers, the offered seed has to end the asking.
    offered = std::clamp(offered, 1, limit);
  }
  return false;
}

// A seed from the moment of the day; other generators than #3 get the weekday in front.
int32_t ClockSeed(int32_t generator, int32_t limit) {
  const LocalTime now = Now();
  const int32_t ofDay = FloorOf(static_cast<double>(SecondsSinceMidnight(now)) * 1000);
  // The milliseconds pass through a 32-bit float and lose their last bits late in the day.
  int32_t seed = generator == 3
                     ? ofDay
                     : now.weekday * 100'000'000 + static_cast<int32_t>(static_cast<float>(ofDay));
  while (seed > limit)
    seed /= 10;
  return seed;
}

void ApplySeed(int32_t generator, int32_t seed) {
  const auto word = static_cast<uint32_t>(seed);
  int32_t argument = -seed;
  switch (generator) {
    case 1:
    case 8:
      SeedTwister1(word);
      break;
    case 2:
      SeedTwister2(word);
      break;
    case 3:
      QuickRan(6);
      break;
    case 4:
      Ran2(argument);
      break;
    case 5:
      Ran1(argument);
      break;
    case 6:
      SeedTwister1(word);
      Ran1(argument);
      break;
    case 7:
      SeedTwister2(word);
      Ran2(argument);
      break;
    default:
      break;
  }
}

}  // namespace

float Ran1(int32_t& idum) {
  Ran1State& state = Dice.Ran1;
  if (idum < 0 || !state.initialised) InitialiseRan1(state, idum);
  state.ix1 = First.After(state.ix1);
  state.ix2 = Second.After(state.ix2);
  state.ix3 = Third.After(state.ix3);
  state.j = EntryFor(Third, state.ix3);
  if (!CheckEntry(state.j, Text::GeneratorFaultRan1)) return 0;
  return std::exchange(At(state.table, state.j), Ran1Entry(state));
}

float Ran2(int32_t& idum) {
  Ran2State& state = Dice.Ran2;
  if (idum < 0 || !state.initialised) InitialiseRan2(state, idum);
  state.j = EntryFor(Single, state.iy);
  if (!CheckEntry(state.j, Text::GeneratorFaultRan2)) return 0;
  state.iy = At(state.table, state.j);
  state.idum = Single.After(state.idum);
  At(state.table, state.j) = state.idum;
  return static_cast<float>(state.iy * SingleReciprocal);
}

int32_t QuickRan(int32_t n) {
  int32_t next = 0;
  while (__builtin_mul_overflow(Dice.CurrentSeed, Single.factor, &next) ||
         __builtin_add_overflow(next, Single.term, &next)) {
    // A hundredth, half to even.
    Dice.CurrentSeed = static_cast<int32_t>(std::nearbyint(Dice.CurrentSeed / 100.0));
    if (Dice.CurrentSeed < 1) return 0;
  }
  Dice.CurrentSeed = next % Single.modulus;
  return FloorOf(static_cast<double>(Dice.CurrentSeed) / Single.modulus * n) + 1;
}

double TwisterReal1() {
  return RealOfWord(NextWord(Dice.Twister1));
}

double TwisterReal2() {
  return RealOfWord(NextWord(Dice.Twister2));
}

void SeedTwister1(uint32_t seed) {
  Dice.Twister1 = TwisterByRecurrence(seed);
}

void SeedTwister2(uint32_t seed) {
  Dice.Twister2 = TwisterByUpperHalves(seed);
}

void ReplaceMissingGenerator() {
  int32_t& generator = Dice.CurrentRNG;
  const int32_t missing = Dice.SupportFilesMissing;
  if ((missing & FirstTwister) != 0 && (generator == 1 || generator == 6 || generator == 8)) {
    generator = 2;
  }
  if ((missing & SecondTwister) != 0 && (generator == 2 || generator == 7)) generator = 4;
}

Faces MakeDice(int32_t rollCount) {
  if (Dice.SupportFilesMissing != 0) ReplaceMissingGenerator();
  const bool odd = rollCount % 2 != 0;
  if (Probability.ProbabilityMatrixActive && Dice.CurrentRNG != 0) {
    return DrawCell(DrawOfGenerator(Dice.CurrentRNG, odd));
  }
  switch (Dice.CurrentRNG) {
    case 1:
      return FacesOfTwister(Dice.Twister1);
    case 2:
      return FacesOfTwister(Dice.Twister2);
    case 3:
      return FacesOfQuickRan();
    case 4:
      return FacesOfReals<Ran2>();
    case 5:
      return FacesOfReals<Ran1>();
    case 6:
      return odd ? FacesOfTwister(Dice.Twister1) : FacesOfReals<Ran1>();
    case 7:
      return odd ? FacesOfTwister(Dice.Twister2) : FacesOfReals<Ran2>();
    case 8:
      return FacesOfSingleCall(Dice.Twister1);
    default:
      return {0, 0};
  }
}

int32_t SeedLimit(int32_t generator) {
  return generator == 3 ? LargestQuickSeed : std::numeric_limits<int32_t>::max();
}

bool SeedRNG(int mode) {
  const int32_t limit = SeedLimit(Dice.CurrentRNG);
  if (mode != -1) {
    if (!Dice.AskForSeed) {
      Dice.SeedRequest = 0;
    } else if (!PromptForSeed(limit)) {
      return false;
    }
  }
  if (Dice.SeedRequest == 0) {
    do {
      Dice.SeedRequest = ClockSeed(Dice.CurrentRNG, limit);
    } while (Dice.SeedRequest == Dice.LastSeed);
  }
  if (Dice.SeedRequest < 1 || Dice.SeedRequest > limit) {
    Dice.SeedRequest = 0;
    return false;
  }
  // A request with a fraction rounds half to even.
  Dice.CurrentSeed = static_cast<int32_t>(std::nearbyint(Dice.SeedRequest.ToDouble()));
  Dice.LastSeed = Dice.CurrentSeed;
  LogSeed(Dice.CurrentRNG, Dice.CurrentSeed);
  ApplySeed(Dice.CurrentRNG, Dice.CurrentSeed);
  return true;
}

SelectResult SelectRNG(int32_t number) {
  if (number < 0 || number > GeneratorCount) return OutOfLimits;
  if ((FilesNeeded(number) & Dice.SupportFilesMissing) != 0) return Unavailable;
  Dice.CurrentRNG = number;
  return Selected;
}

bool PickGenerator(int32_t number) {
  const SelectResult result = SelectRNG(number);
  if (result == Unavailable) {
    ShowMessage(Say(Text::GeneratorUnavailable, number), Say(Text::RandomNumberGenerator),
                msg::OkAlert);
  }
  return result == Selected;
}

void SeedAllGenerators() {
  for (const int32_t generator : {3, 4, 5, 2, 1}) {
    if (SelectRNG(generator) != Selected) continue;
    Dice.SeedRequest = 0;
    SeedRNG(-1);
  }
}

std::string MissingSupportText() {
  if (Dice.SupportFilesMissing == 0) return {};
  std::string text;
  if ((Dice.SupportFilesMissing & FirstTwister) != 0) text += Wording(Text::FirstTwisterMissing);
  if ((Dice.SupportFilesMissing & SecondTwister) != 0) {
    if (!text.empty()) text += "\r\r";
    text += Wording(Text::SecondTwisterMissing);
  }
  return text.append("\r\r").append(Wording(Text::WhatToDoAboutMissing));
}

int32_t PlatformRandom(int32_t n) {
  std::random_device source;
  return std::uniform_int_distribution<int32_t>(0, n - 1)(source);
}

}  // namespace tessarel
