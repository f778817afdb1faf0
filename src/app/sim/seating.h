// Players of the command line at the table.
#pragma once

#include "app/sim/run_options.h"

namespace tessarel::sim {

// Seats a player at his place or the lowest open one. Failure when he cannot have the name or the
// place.
void Seat(const PlayerArgument& player);

}  // namespace tessarel::sim
