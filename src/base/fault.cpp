#include "base/fault.h"

namespace tessarel {

FaultWordingState FaultWording;

void RaiseOverflow() {
  throw Fault(FaultNumber::Overflow, FaultWording.Overflow);
}

void RaiseIndexOutOfRange() {
  throw Fault(FaultNumber::IndexOutOfRange, FaultWording.IndexOutOfRange);
}

void RaiseDivisionByZero() {
  throw Fault(FaultNumber::DivisionByZero, FaultWording.DivisionByZero);
}

}  // namespace tessarel
