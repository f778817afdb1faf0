// The trap that every routine within a user's reach runs its body through: a fault inside becomes
// the one standard report, and the caller goes on with the state as the body left it.
#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "base/fault.h"

namespace tessarel {

// The report of a fault: "DESCRIPTION, Error #N occurred at: PLACE".
std::string FaultText(const Fault& fault, std::string_view place);

// Shows the report through the message facility.
void ReportFault(const Fault& fault, std::string_view place);

// Runs `body`; on a fault reports it under the name `place`. Returns whether the body ran through.
template <class Body>
bool Trapped(std::string_view place, Body&& body) {
  try {
    std::forward<Body>(body)();
    return true;
  } catch (const Fault& fault) {
    ReportFault(fault, place);
    return false;
  }
}

}  // namespace tessarel
