// What the roll event codes of the store stand for: which ordered pairs of dice make each, its name
// in lists, and how likely it is with true dice or with the skewed ones in force. Read by the roll
// views and by whoever reports how the dice fall.
#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace tessarel {

inline constexpr int FirstRollEvent = 2, LastRollEvent = 89;

// An event is what its totals, its ordered pairs and its faces have in common with a roll.
struct RollEvent {
  uint16_t Totals = 0;                // bit n: any roll of total n
  std::array<uint8_t, 2> Pairs = {};  // first face times 10 plus the second; 0 none
  uint8_t Die1 = 0, Die2 = 0;         // a face of one die; 0 none
};

// The event of a code 2 to 89. Index fault for another one, here and below.
const RollEvent& RollEventOf(int code);

// "Any 4", "Hard 4 (2.2)", "Number 10 (4.6) or (6.4)", "Die 1, face 1".
std::string RollEventName(int code);

// The code of an ordered pair, of a total 2 to 12, and of a face of die 1 or 2.
int CodeOfPair(int die1, int die2);
constexpr int CodeOfTotal(int total) {
  return total;
}
constexpr int CodeOfFace(int die, int face) {
  return (die == 1 ? 77 : 83) + face;
}

// The dice in force, in 1/100,000: the share of each total, of each ordered pair (first face,
// second face) and of each face of either die. The shares are taken as they stand, whatever their
// sum; index 0 holds 0 everywhere.
struct SkewedDice {
  bool active = false;  // otherwise the dice are true
  std::array<int32_t, 13> total{};
  std::array<std::array<int32_t, 7>, 7> pair{};
  std::array<int32_t, 7> die1{}, die2{};
};

SkewedDice SkewedDiceInForce();
// The dice of the matrix in memory, whether it is active or not.
SkewedDice SkewedDiceOfMatrix();

// In percent of all rolls.
double EventProbability(int code, const SkewedDice& dice);
double EventProbability(int code, bool useTrueDice);

}  // namespace tessarel
