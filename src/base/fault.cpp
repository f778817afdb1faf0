#include "base/fault.h"

namespace tessarel {

void RaiseOverflow() {
  throw Fault(FaultNumber::Overflow, "Overflow");
}

void RaiseIndexOutOfRange() {
  throw Fault(FaultNumber::IndexOutOfRange, "Subscript out of range");
}

void RaiseDivisionByZero() {
  throw Fault(FaultNumber::DivisionByZero, "Division by zero");
}

}  // namespace tessarel
