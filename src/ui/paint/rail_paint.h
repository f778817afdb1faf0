// The eight places at the rail: name, bankroll, the four check stacks and whose dice it is.
#pragma once

#include <QPainter>

#include "ui/layout/table_layout.h"

namespace tessarel {

struct RailLook {
  int currentPlace = 0;   // whom the mouse bets for
  int hoverPlace = 0;     // under the pointer
  bool choosing = false;  // open places wait to be chosen (a player is being added or moved)
  double pixelsPerUnit = 1;
};

// Paints one place, 1 to 8, in layout units.
void PaintRailPlace(QPainter& painter, int place, const TableLayout& layout, const RailLook& look);

}  // namespace tessarel
