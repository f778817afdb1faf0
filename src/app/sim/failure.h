// Failures of tessarel-sim with their exit status: a command line that is wrong, or work that
// cannot be done.
#pragma once

#include <stdexcept>
#include <string>

namespace tessarel::sim {

enum ExitStatus : int { Done = 0, CannotBeDone = 1, WrongCommandLine = 2 };

class Failure : public std::runtime_error {
 public:
  Failure(ExitStatus exitStatus, const std::string& text)
      : std::runtime_error(text), status(exitStatus) {}

  ExitStatus status;
};

}  // namespace tessarel::sim
