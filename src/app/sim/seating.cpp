#include "app/sim/seating.h"

#include <string>

#include "app/sim/failure.h"
#include "play/players.h"
#include "play/rail.h"
#include "state/table.h"
#include "texts/say.h"

namespace tessarel::sim {

namespace {

void CheckName(const std::string& name) {
  if (name.empty()) throw Failure(CannotBeDone, Say(Text::SimPlayerNeedsName));
  if (const auto refusal = NameRefusal(name, 0)) {
    throw Failure(CannotBeDone, *refusal + (refusal->ends_with('.') ? "" : "."));
  }
}

int OpenPlace(int wanted) {
  if (wanted != 0 && IsTaken(Table, wanted)) {
    throw Failure(CannotBeDone, Say(Text::SimPlaceTaken, wanted, Table.PlayerName[wanted]));
  }
  for (int place = wanted != 0 ? wanted : 1; place <= LastPlace; ++place) {
    if (!IsTaken(Table, place)) return place;
  }
  throw Failure(CannotBeDone, Say(Text::SimOnlyEightPlaces));
}

}  // namespace

void Seat(const PlayerArgument& player) {
  CheckName(player.name);
  SeatPlayer(OpenPlace(player.place), player.name, player.bankroll);
}

}  // namespace tessarel::sim
