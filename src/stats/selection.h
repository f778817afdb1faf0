// What a statistics view is asked to show: a scope of time and a selection of places, with the
// words for both. Every view of players reads the store through here.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "base/number_set.h"
#include "state/table.h"
#include "texts/say.h"

namespace tessarel {

// Bit n: place n. Bit 0 asks for the table as a whole, whoever is at it.
using PlaceSelection = uint32_t;
inline constexpr PlaceSelection WholeTable = 1;

// The players that each view of players now shows.
struct ViewSelectionState {
  PlaceSelection BetResultsPlayer = 0, BetTrendsPlayer = 0, HandsPlayer = 0, SummaryPlayer = 0,
                 RollTotalsPlayer = 0;
  int32_t CSPlayer = 0;        // the place whose check stacks are listed
  int32_t SessionsPlayer = 0;  // the place whose sessions log is shown
};

extern ViewSelectionState ViewSelections;

// The views that showed the player of a place go on showing him at his new one; with `to` 0 they
// let go of him.
void FollowInViews(int from, int to);

// The list of scopes in a view; an index times SlotsInScope is the Scope.
inline constexpr std::array ScopeNames = {Text::ScopeCurrentHand, Text::ScopeLastHand,
                                          Text::ScopeCurrentSession, Text::ScopeLastSession,
                                          Text::ScopeAllSessions};
std::string_view ScopeName(Scope scope);
// A sentence about it.
std::string_view ScopeExplanation(Scope scope);
// Whether the scope is counted into; the others are copies that stay as they are.
bool IsCounted(Scope scope);

// The selected places that have players.
PlaceSelection PresentPlaces(PlaceSelection selection);
// Whether the figures are those of the table as a whole.
bool IsWholeTable(PlaceSelection selection);
// What stands in place of the figures when the selection is empty; else empty.
std::string Placeholder(PlaceSelection selection);

// "No players selected", "1 player selected", "3 players selected", "All players selected".
std::string SelectionCaption(PlaceSelection selection);
std::string BetSelectionCaption(const NumberSet& bets);
// Bets 1 to 93.
NumberSet AllBets();

// Calls visit(slot) for the table's slot if the selection is the whole table, else for the slot of
// each selected place.
template <class Visit>
void ForEachSlot(Scope scope, PlaceSelection selection, Visit&& visit) {
  if (IsWholeTable(selection)) {
    visit(static_cast<int>(scope));
    return;
  }
  for (uint32_t rest = PresentPlaces(selection); rest != 0; rest &= rest - 1)
    visit(scope + std::countr_zero(rest));
}

// The same with place slots only, for figures that the table as a whole does not have: its own are
// those of all eight places.
template <class Visit>
void ForEachPlaceSlot(Scope scope, PlaceSelection selection, Visit&& visit) {
  constexpr uint32_t AllPlaces = (1u << (LastPlace + 1)) - 2;
  uint32_t rest = IsWholeTable(selection) ? AllPlaces : PresentPlaces(selection);
  for (; rest != 0; rest &= rest - 1)
    visit(scope + std::countr_zero(rest));
}

}  // namespace tessarel
