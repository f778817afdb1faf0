// Where things stand in the drawing of the table, as measures that the outlines and the lettering
// share. The left end is described; the right one is its mirror image about the stick.
#pragma once

#include <QRectF>

#include "ui/layout/table_layout.h"

namespace tessarel::geometry {

// From the floor inwards: the wood of the rail with its grooves, the padding, the felt.
inline constexpr double WoodLeft = 8, WoodTop = 8, WoodBottom = 992;
inline constexpr double PadLeft = 84, PadTop = 62, PadBottom = 908;
inline constexpr double FeltLeft = 110, FeltTop = 86, FeltBottom = 882;

// The corner about which the rail and the line bets bend.
inline constexpr double BendX = 246, BendY = 744;
inline constexpr double FeltBend = 137;

// The end, from the rail to the stick and from the numbers to the players.
inline constexpr double OddsLeft = 114, PassLeft = 156, CornerLeft = 216, BoxLeft = 318;
inline constexpr double BoxWidth = 84, EndRight = BoxLeft + 6 * BoxWidth;
inline constexpr double LineTop = 200;
inline constexpr double NumbersTop = 128, ComeTop = 474, FieldTop = 600, DontPassTop = 722;
inline constexpr double PassTop = 774, OddsTop = 834, OddsBottom = 876;
inline constexpr double DontPassOddsLeft = 662;

// The bands of a number box, from the dealer's side: their upper edges.
inline constexpr double LayTop = NumbersTop, DontComeTop = 166, DontComeOddsTop = 204;
inline constexpr double ComeNumberTop = 238, ComeOddsTop = 346, PlaceTop = 384, BuyTop = 429;

// The proposition field between the ends.
inline constexpr double Middle = LayoutWidth / 2;
inline constexpr double FieldLeft = 836, FieldRight = LayoutWidth - FieldLeft;
inline constexpr double PropositionsTop = 98, PropositionsBottom = 870;

// Puck and its line above the number boxes.
inline constexpr double PuckY = 107;

constexpr double MirroredX(double x, bool right) {
  return right ? LayoutWidth - x : x;
}
inline QRectF Mirrored(const QRectF& area, bool right) {
  return right ? QRectF(LayoutWidth - area.right(), area.top(), area.width(), area.height()) : area;
}

// The column of a point number at an end. Numbers rise from left to right at both ends.
inline QRectF NumberColumn(int index, bool right) {
  const double left = right ? LayoutWidth - EndRight : BoxLeft;
  return {left + index * BoxWidth, NumbersTop, BoxWidth, ComeTop - NumbersTop};
}

}  // namespace tessarel::geometry
