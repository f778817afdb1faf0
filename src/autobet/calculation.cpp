#include "autobet/calculation.h"

#include <cmath>
#include <cstdint>
#include <limits>

#include "base/fault.h"

namespace tessarel {

namespace {

double Finite(double value) {
  if (!std::isfinite(value)) RaiseOverflow();
  return value;
}

double DividedByZero() {
  FailScript(ScriptFault::DivisionByZero);
  return 0;
}

double Remainder(double a, double b) {
  const double left = std::round(a), right = std::round(b);
  return right == 0 ? DividedByZero() : std::fmod(left, right) + 0.0;
}

int32_t WholeOf(double value) {
  const double whole = std::nearbyint(value);
  if (!(whole >= std::numeric_limits<int32_t>::min() &&
        whole <= std::numeric_limits<int32_t>::max()))
    RaiseOverflow();
  return static_cast<int32_t>(whole);
}

}  // namespace

double Calculate(Operation operation, double a, double b) {
  switch (operation) {
    case Operation::Power:
      if (a < 0 && b != std::floor(b))
        throw Fault(FaultNumber::InvalidCall, FaultWording.InvalidCall);
      if (a == 0 && b < 0) return DividedByZero();
      return Finite(std::pow(a, b));
    case Operation::Multiply:
      return Finite(a * b);
    case Operation::Divide:
      return b == 0 ? DividedByZero() : Finite(a / b);
    case Operation::WholeDivide:
      return b == 0 ? DividedByZero() : std::trunc(Finite(a / b)) + 0.0;
    case Operation::Modulo:
      return Remainder(a, b);
    case Operation::Add:
      return Finite(a + b);
    default:
      return Finite(a - b);
  }
}

double CombineBits(Operation operation, double a, double b) {
  const int32_t left = WholeOf(a), right = WholeOf(b);
  switch (operation) {
    case Operation::And:
      return left & right;
    case Operation::Or:
      return left | right;
    default:
      return left ^ right;
  }
}

double Complement(double a) {
  return ~WholeOf(a);
}

}  // namespace tessarel
