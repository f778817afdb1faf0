// The text report of a run: the rows of the views with the figures of the house advantage and
// comps.
#pragma once

#include <string>

namespace tessarel::sim {

// `stopReason` is empty when the run reached its counts.
std::string RunReport(const std::string& stopReason);

}  // namespace tessarel::sim
