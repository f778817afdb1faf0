// Rolling one's own numbers: what the cells of the console's four displays mean, and what choosing
// one does. The window of the console draws the cells and calls RollChosen.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "dice/generators.h"

namespace tessarel {

// The values of RYONDisplay.
enum RollPadDisplay : int32_t { BasicNumbers = 1, ComboTriangle, ComboBox, SingleDice };
inline constexpr int RollPadDisplays = SingleDice;

// A cell in the grid of its display, counted from 0 at the top left. With the basic numbers its
// faces are 0: the total is all that is chosen. With single dice one of the faces is 0.
struct RollPadCell {
  int Column = 0, Row = 0;
  int ColumnSpan = 1;
  int Total = 0;  // 0 with single dice
  Faces Dice{0, 0};

  friend bool operator==(const RollPadCell& one, const RollPadCell& other) {
    return one.Column == other.Column && one.Row == other.Row && one.Total == other.Total;
  }
};

struct RollPadGrid {
  int Columns = 0, Rows = 0;
  std::vector<RollPadCell> Cells;  // row by row
};

RollPadGrid GridOf(RollPadDisplay display);

// A whole number from 0 to n - 1.
using RandomChoice = int32_t (*)(int32_t n);

// One of the pairs that make a total, 2 to 12, each equally likely; index fault for other totals.
// The total 2 takes no random number, any other one.
Faces FacesOfTotal(int total, RandomChoice random = PlatformRandom);

// What is chosen of a roll so far, with single dice one face at a time.
struct RollChoice {
  Faces Chosen{0, 0};

  // Takes a cell and returns the faces once both dice are chosen; the choice is then empty again. A
  // face of a die that has one takes its place.
  std::optional<Faces> Take(const RollPadCell& cell, RandomChoice random = PlatformRandom);
};

// Makes the next roll one of these faces, before all other sources of dice. A run in progress is
// stopped instead. While a roll is being made nothing happens, and a roll that is refused takes the
// choice with it.
void RollChosen(Faces faces);

// The same with the dice of the source in force.
void RollAtRandom();

}  // namespace tessarel
