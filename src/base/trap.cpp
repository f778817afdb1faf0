#include "base/trap.h"

#include "base/message.h"

namespace tessarel {

std::string FaultText(const Fault& fault, std::string_view place) {
  if (FaultWording.Report != nullptr) return FaultWording.Report(fault, place);
  return fault.Description + ", Error #" + std::to_string(fault.Number) +
         " occurred at: " + std::string(place);
}

void ReportFault(const Fault& fault, std::string_view place) {
  ShowError(FaultText(fault, place));
}

}  // namespace tessarel
