// Run-time faults: the one exception type of the program. The routines of base/ throw it, and the
// trap of base/trap.h turns it into the standard report. The numbers are part of that report.
#pragma once

#include <exception>
#include <string>
#include <string_view>
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

// What faults are called and how they are reported, in the language in force: whoever puts a
// language in force fills this in.
struct FaultWordingState {
  std::string Overflow = "Overflow";
  std::string IndexOutOfRange = "Subscript out of range";
  std::string DivisionByZero = "Division by zero";
  std::string FileNotFound = "File not found";
  std::string FileAccess = "Path/File access error";
  std::string DeviceFull = "Disk full";
  std::string FileTooLarge = "File too large";
  std::string InputPastEnd = "Input past end of file";
  std::string InvalidCall = "Invalid procedure call or argument";
  // The report of a fault that came up at `place`; unset, it is made in English.
  std::string (*Report)(const Fault& fault, std::string_view place) = nullptr;
};

extern FaultWordingState FaultWording;

[[noreturn]] void RaiseOverflow();
[[noreturn]] void RaiseIndexOutOfRange();
[[noreturn]] void RaiseDivisionByZero();

}  // namespace tessarel
