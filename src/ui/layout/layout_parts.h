// The parts from which MakeTableLayout puts the layout together: each adds the regions of one area
// of the table and says where the checks of the places stand in them.
#pragma once

#include <span>

#include "ui/layout/table_layout.h"

namespace tessarel {

void AddEnds(TableLayout& layout);
void AddPropositions(TableLayout& layout);
void AddRail(TableLayout& layout);

// Adds a region whose checks stand in rows along the lower edge of `stand`, one spot for each of
// `places`, which are named from left to right.
void AddRegion(TableLayout& layout,
               int spot,
               const QPainterPath& outline,
               const QRectF& stand,
               std::span<const int> places);

// The same with a box as outline and stand.
void AddBox(TableLayout& layout, int spot, const QRectF& box, std::span<const int> places);

// The places of an end, and all of them, from left to right as they look at the table.
inline constexpr std::array<int, 4> LeftPlaces = {1, 2, 3, 4}, RightPlaces = {5, 6, 7, 8};
inline constexpr std::array<int, 8> AllPlaces = {1, 2, 3, 4, 5, 6, 7, 8};

inline std::span<const int> PlacesOfEnd(bool right) {
  return right ? RightPlaces : LeftPlaces;
}

}  // namespace tessarel
