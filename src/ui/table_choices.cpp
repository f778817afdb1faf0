#include "ui/table_choices.h"

#include <algorithm>
#include <bit>

#include "base/front_end.h"
#include "engine/bet_limits.h"
#include "ui/layout/table_layout.h"

namespace tessarel {

// --- Choices -----------------------------------------------------------------------------------

void ToggleOption(bool TableOptions::*option) {
  GameViews.Table.*option = !(GameViews.Table.*option);
  FrontEnd.DrawTable();
}

int CurrentPlace() {
  int32_t& place = GameViews.Players.Table;
  if (place >= 1 && place <= LastPlace && IsTaken(Table, place)) return place;
  place = Table.TakenPlaces == 0 ? 0 : std::countr_zero(Table.TakenPlaces);
  return place;
}

void SelectPlace(int place) {
  if (place < 1 || place > LastPlace || !IsTaken(Table, place)) return;
  GameViews.Players.Table = place;
  FrontEnd.DrawTable();
}

int ChosenCheck() {
  constexpr int AtTheStart = 2;
  return GameViews.Table.ChosenCheck == 0 ? AtTheStart : GameViews.Table.ChosenCheck;
}

void ChooseCheck(int denomination) {
  GameViews.Table.ChosenCheck = std::clamp(denomination, 1, 5);
  FrontEnd.DrawStatus();
}

// --- Spots -------------------------------------------------------------------------------------

int SpotOfPixel(int value) {
  const int place = CurrentPlace();
  if (place == 0) return value;
  if (InFamily(value, DontComeOddsFamily)) {
    const bool neither = !HasBet(place, value) && !HasBet(place, FlatUnder(value));
    return neither ? FlatUnder(value) : value;
  }
  if (value == bet::DontPass || value == bet::DontPassOdds) {
    if (value == bet::DontPassOdds && HasBet(place, value)) return value;
    return HasBet(place, bet::DontPass) && Table.Point != 0 ? bet::DontPassOdds : bet::DontPass;
  }
  if (InFamily(value, PlaceFamily) && HasBet(place, value + FamilySize)) return value + FamilySize;
  const int item = value % RailSpot(1, 0);
  const bool ownStack = IsRailSpot(value) && PlaceOfSpot(value) == place &&
                        item >= FirstRailStack && item <= LastRailStack;
  return ownStack ? FirstStack + 1 + item - FirstRailStack : value;
}

int NumberOfSpot(int spot) {
  if (IsBet(spot)) return spot;
  if (spot <= FirstStack || spot > FirstStack + 4) return 0;
  return Table.VisibleStack[CurrentPlace()][spot - FirstStack];
}

bool IsRailSpot(int spot) {
  return spot >= RailSpot(1, 0) && spot < RailSpot(LastPlace + 1, 0);
}

int PlaceOfSpot(int spot) {
  return spot / RailSpot(1, 0);
}

bool HasBet(int place, int number) {
  return Bet(place, number) > Money();
}

}  // namespace tessarel
