// The hands view: how long hands are and what came on the come-outs, by dice total. Players show
// the hands in which they held the dice, the table as a whole shows all hands.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "stats/selection.h"

namespace tessarel {

enum class HandUnits { Counts, PerHand };

struct HandsRow {
  std::string Caption, Value;
};

// Figures by dice total.
struct HandsTableRow {
  int Total = 0;
  std::string ComeoutRolls, Passes, Misses;
};

struct HandsView {
  std::string Placeholder;  // stands in place of everything else
  std::vector<HandsRow> Figures;
  std::array<HandsTableRow, 11> Table;  // totals 2 to 12
};

HandsView Hands(Scope scope, PlaceSelection selection, HandUnits units);

}  // namespace tessarel
