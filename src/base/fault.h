// Run-time faults: the one exception type of the program. The routines of base/ throw it, and the
// trap of base/trap.h turns it into the standard report. The numbers are part of that report.
#pragma once

#include <exception>
#include <string>
#include <utility>

namespace tessarel {

// The kinds of fault with their report numbers.
enum class FaultNumber : int {
  InvalidCall = 5,
  Overflow = 6,
  IndexOutOfRange = 9,
  DivisionByZero = 11,
  FileNotFound = 53,
  FileAccess = 75,
  DeviceFull = 61,
  InputPastEnd = 62,
};

class Fault : public std::exception {
 public:
  Fault(FaultNumber number, std::string description)
      : Number(static_cast<int>(number)), Description(std::move(description)) {}

  const char* what() const noexcept override { return Description.c_str(); }

  int Number;
  std::string Description;
};

[[noreturn]] void RaiseOverflow();
[[noreturn]] void RaiseIndexOutOfRange();
[[noreturn]] void RaiseDivisionByZero();

}  // namespace tessarel
