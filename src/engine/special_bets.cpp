#include "engine/special_bets.h"

#include "state/table.h"

namespace tessarel {

namespace {

// Marks `total` if it is one of `marks` and somebody plays for them; with nobody playing, clears
// them.
void Mark(int32_t marks, int bet, int32_t total) {
  if (!AnyHolds(bet) && !AnyHolds(bet::MakeAll)) {
    Table.MarkedNumbers &= ~marks;
  } else {
    Table.MarkedNumbers |= (1 << total) & marks;
  }
}

}  // namespace

void MarkRoll() {
  Mark(SmallMarks, bet::AllSmall, Table.DiceTotal);
  Mark(TallMarks, bet::AllTall, Table.DiceTotal);
  const bool counts = AnyHolds(bet::FourRollsNo7) && Table.DiceTotal != 7;
  Table.FourRollCount = counts ? Table.FourRollCount + 1 : 0;
}

}  // namespace tessarel
