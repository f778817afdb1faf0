// Checks and dice as drawn on the table and in the bar below it, in the styles that the settings
// choose. All sizes are in the units of the painter.
#pragma once

#include <QPainter>
#include <QPointF>
#include <QString>

#include "base/money.h"

namespace tessarel {

// Styles of Settings.CheckStyle and Settings.DiceStyle, from 0; any other number counts as the
// start-up style.
inline constexpr int CheckStyleCount = 5, DiceStyleCount = 4;

// The colours of the ring that tells whose checks they are, for places 1 to 8.
QColor PlaceColour(int place);

// The small button on top of a pile.
enum class PileButton { None, On, Off, Buy, Lay };

struct PileLook {
  double diameter = 26;
  int place = 0;         // whose ring; 0: none
  bool current = false;  // the ring of the current player
  bool flash = false;    // the ring is in its bright phase
  bool showAmount = false;
  PileButton button = PileButton::None;
  bool narrow = false;       // on the rail: one low column, and figures only where they have room
  double pixelsPerUnit = 1;  // of the screen, so that the lettering keeps its least size
};

// A pile for `amount`, its lowest check centred at `foot`: up to three columns, each of up to
// twelve checks, and a yellow marker for what is left below the smallest check. What does not fit
// is taken from the most valuable checks, and then the amount stands with it in figures.
void PaintPile(QPainter& painter, QPointF foot, Money amount, const PileLook& look);

// What PaintPile covers for any of its looks, for repainting.
QRectF PileArea(QPointF foot, Money amount, const PileLook& look);

// One check of denomination 1 to 5, as in the bar of checks to choose from.
void PaintCheck(QPainter& painter, QPointF centre, double diameter, int denomination, bool chosen);

// A die of Settings.DiceStyle lying flat, turned by `degrees`; `number` 1 or 2 picks its colours.
void PaintDie(QPainter& painter, QPointF centre, double side, int face, double degrees, int number);

// A die in its tumble: `phase` from 0 (thrown) to 1 (at rest with `face` on top).
void PaintTumblingDie(
    QPainter& painter, QPointF centre, double side, int face, double phase, int number);

// The puck: ON in white, OFF in black.
void PaintPuck(QPainter& painter, QPointF centre, double diameter, bool on);

}  // namespace tessarel
