#include "play/manual_roll.h"

#include <algorithm>

#include "base/fault.h"
#include "play/auto_roll.h"
#include "play/roll_driver.h"
#include "state/table.h"

namespace tessarel {

namespace {

constexpr int LowestTotal = 2, HighestTotal = 12, Seven = 7;

// Two rows of five with the seven as a bar between them.
RollPadGrid NumbersGrid() {
  RollPadGrid grid{5, 3, {}};
  for (int total = LowestTotal; total <= HighestTotal; ++total) {
    RollPadCell cell;
    cell.Total = total;
    cell.Row = total < Seven ? 0 : total == Seven ? 1 : 2;
    cell.Column = total < Seven ? total - LowestTotal : total == Seven ? 0 : total - Seven - 1;
    cell.ColumnSpan = total == Seven ? grid.Columns : 1;
    grid.Cells.push_back(cell);
  }
  return grid;
}

// A column for each total, which all stand on the bottom row: the seven reaches the top.
RollPadGrid TriangleGrid() {
  RollPadGrid grid{HighestTotal - LowestTotal + 1, 6, {}};
  for (int row = 0; row < grid.Rows; ++row) {
    for (int total = Seven - row; total <= Seven + row; ++total) {
      const int lowest = std::max(1, total - 6), fromBottom = grid.Rows - 1 - row;
      const Faces dice{lowest + fromBottom, total - lowest - fromBottom};
      grid.Cells.push_back({total - LowestTotal, row, 1, total, dice});
    }
  }
  return grid;
}

// A row for each face of the first die, a column for each of the second.
RollPadGrid BoxGrid() {
  RollPadGrid grid{6, 6, {}};
  for (int die1 = 1; die1 <= 6; ++die1) {
    for (int die2 = 1; die2 <= 6; ++die2)
      grid.Cells.push_back({die2 - 1, die1 - 1, 1, die1 + die2, {die1, die2}});
  }
  return grid;
}

RollPadGrid SingleDiceGrid() {
  RollPadGrid grid{6, 2, {}};
  for (int face = 1; face <= 6; ++face)
    grid.Cells.push_back({face - 1, 0, 1, 0, {face, 0}});
  for (int face = 1; face <= 6; ++face)
    grid.Cells.push_back({face - 1, 1, 1, 0, {0, face}});
  return grid;
}

// Whether a roll can be asked for now; a run in progress is stopped, and so is, if the player wants
// it, a script that is at work.
bool RollMayBegin() {
  if (RunIsOn()) {
    StopAutoRoll();
    return false;
  }
  return ConfirmScriptActive() && !Table.RollInProgress;
}

}  // namespace

RollPadGrid GridOf(RollPadDisplay display) {
  switch (display) {
    case ComboTriangle:
      return TriangleGrid();
    case ComboBox:
      return BoxGrid();
    case SingleDice:
      return SingleDiceGrid();
    default:
      return NumbersGrid();
  }
}

Faces FacesOfTotal(int total, RandomChoice random) {
  if (total < LowestTotal || total > HighestTotal) RaiseIndexOutOfRange();
  if (total == LowestTotal) return {1, 1};
  const int lowest = std::max(1, total - 6), ways = total <= Seven ? total - 1 : 13 - total;
  const int32_t die1 = lowest + random(ways);
  return {die1, total - die1};
}

std::optional<Faces> RollChoice::Take(const RollPadCell& cell, RandomChoice random) {
  if (cell.Dice.die1 == 0 && cell.Dice.die2 == 0) return FacesOfTotal(cell.Total, random);
  if (cell.Dice.die1 != 0) Chosen.die1 = cell.Dice.die1;
  if (cell.Dice.die2 != 0) Chosen.die2 = cell.Dice.die2;
  if (Chosen.die1 == 0 || Chosen.die2 == 0) return std::nullopt;
  const Faces faces = Chosen;
  Chosen = {0, 0};
  return faces;
}

void RollChosen(Faces faces) {
  if (!RollMayBegin()) return;
  MakeRoll(faces);
}

void RollAtRandom() {
  if (RollMayBegin()) MakeRoll();
}

}  // namespace tessarel
