// The text report of a run: the rows of the views with the figures of the house advantage and
// comps.
#pragma once

#include <string>

namespace tessarel::sim {

std::string RunReport();

}  // namespace tessarel::sim
