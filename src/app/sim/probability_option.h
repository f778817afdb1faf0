// The option --probability of tessarel-sim.
#pragma once

#include <string>

namespace tessarel::sim {

// Opens a probability file and has the dice drawn from its matrix. A relative name is taken from
// the program's folder. Failure when there is no such file or it is no probability file; the file
// fault when it cannot be read.
void ActivateProbability(const std::string& file);

}  // namespace tessarel::sim
