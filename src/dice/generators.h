// The eight generators, how they are selected and seeded, and how a roll's two faces are made from
// them. The sequences are part of the system: for one generator and one seed they are the same on
// every machine.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "base/money.h"
#include "dice/faces.h"
#include "dice/twister.h"

namespace tessarel {

inline constexpr int GeneratorCount = 8;

// Bits of SupportFilesMissing.
enum SupportFile : int32_t { FirstTwister = 1, SecondTwister = 2 };

// The entries 1 to 97 of a shuffle table are used.
inline constexpr int ShuffleEntries = 97;

// The state of Ran1: three congruences and the shuffle table, whose entries are rounded to 32-bit
// floats as they are stored.
struct Ran1State {
  int32_t ix1 = 0, ix2 = 0, ix3 = 0, j = 0;
  std::array<float, ShuffleEntries + 1> table{};
  bool initialised = false;
};

struct Ran2State {
  int32_t idum = 0, iy = 0, j = 0;
  std::array<int32_t, ShuffleEntries + 1> table{};
  bool initialised = false;
};

struct DiceState {
  int32_t CurrentRNG = 1;
  int32_t CurrentSeed = 1;  // the seed last applied; with RNG #3 the running state
  int32_t LastSeed = 0;     // the seed last applied
  int64_t SeedRequest = 0;  // what SeedRNG is asked for; 0: a seed from the clock
  bool AskForSeed = false;
  bool ReseedEachSession = false;
  int32_t SupportFilesMissing = 0;  // bits of SupportFile
  Twister Twister1 = TwisterByRecurrence(Twister::DefaultSeed);
  Twister Twister2 = TwisterByUpperHalves(Twister::DefaultSeed);
  Ran1State Ran1;
  Ran2State Ran2;
};

extern DiceState Dice;

// Makes a roll's faces with CurrentRNG, through the probability matrix (dice/probability.h) if it
// is active; then the fault of its DrawCell may come. `rollCount` is the table's count of rolls
// before this one; generators 6 and 7 alternate by it. Faces {0, 0} when CurrentRNG is 0. Applies
// the fallback rule of ReplaceMissingGenerator first.
Faces MakeDice(int32_t rollCount);

// With a support file missing, moves CurrentRNG to a generator that works.
void ReplaceMissingGenerator();

// Seeds the current generator. Mode -1 applies SeedRequest as it stands; mode 0 prompts for a seed
// if AskForSeed is set, else takes one from the clock, which never equals LastSeed. Returns false
// after a Cancel, which changes nothing, or a refused value, which sets SeedRequest to 0. Overflow
// fault for seeds a generator's arithmetic cannot take: CurrentSeed and LastSeed then hold them all
// the same.
bool SeedRNG(int mode);

// The largest seed the generator takes: 999,999 for RNG #3, else 2,147,483,647.
int32_t SeedLimit(int32_t generator);

// Results of SelectRNG.
enum SelectResult : int { Selected = 0, Unavailable = -1, OutOfLimits = -2 };
// Makes a generator (0 to 8) current; nothing is reseeded.
SelectResult SelectRNG(int32_t number);

// The same for a user, who is told when the generator's support file is missing. Returns whether it
// is current now.
bool PickGenerator(int32_t number);

// Selects and seeds each generator with a clock seed of its own, in the order of start-up.
void SeedAllGenerators();

// The message for the support files that are missing; empty when none is.
std::string MissingSupportText();

// The single generators. Ran1 is the published three-congruential shuffled generator, Ran2 the
// one-congruential one; both return a 32-bit float of at least 0, Ran2 below 1, Ran1 at most 1 (its
// last values round up). A negative argument initialises them, with minus the argument as the seed;
// Ran1 then sets it to 1. Overflow fault for seeds above 2,147,428,874 (Ran1) and 2,147,332,758.
float Ran1(int32_t& idum);
float Ran2(int32_t& idum);
// Moves CurrentSeed on and returns 1 to n. A CurrentSeed too large for the congruence is first cut
// by factors of 100.
int32_t QuickRan(int32_t n);
// The two twisters' reals in 0 inclusive to 1 exclusive, and their seeding.
double TwisterReal1();
double TwisterReal2();
void SeedTwister1(uint32_t seed);
void SeedTwister2(uint32_t seed);

// A whole number from 0 to n - 1 for choices outside the dice (keypad, sounds); n is above 0. It
// comes from the machine's own source and shares no state with the generators above.
int32_t PlatformRandom(int32_t n);

}  // namespace tessarel
