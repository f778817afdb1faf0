// What stands on the felt: the lettering, dice and lamps of the ends and of the proposition field.
// PaintTable calls these after the lines are drawn.
#pragma once

#include <QPainter>
#include <QString>

#include "state/payoffs.h"
#include "ui/layout/table_layout.h"
#include "ui/paint/lettering.h"

namespace tessarel {

void PaintEndLettering(QPainter& painter, const TableLayout& layout, double pixelsPerUnit);
void PaintPropositionLettering(QPainter& painter, const TableLayout& layout, double pixelsPerUnit);

// The lamps of the special bets that the game has lit.
void PaintLitLamps(QPainter& painter, const TableLayout& layout, double pixelsPerUnit);

// "7 to 6" or "8 for 1", as the payoff tables have it.
QString PayText(const PayoffRow& row);
QString PayText(int number);

// The colour in which a bet is lettered.
QColor ColourOfBet(int number);

// The quieter ink of what explains a bet: amounts and the names of bands. Still well legible.
QColor QuietInk();

// A die printed on the felt, and a pair of them side by side within `area`.
struct DiceInk {
  QColor body, pips;
};
inline constexpr double PairWidth = 2.16;  // of two dice with their gap, in sides of a die
void PaintPrintedDie(QPainter& painter, const QRectF& square, int face, const DiceInk& ink);
void PaintPrintedPair(
    QPainter& painter, const QRectF& area, int die1, int die2, const DiceInk& ink);
DiceInk HardwayInk();
DiceInk PropositionInk();
DiceInk LineInk();  // for the barred number

}  // namespace tessarel
