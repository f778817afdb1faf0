#include "autobet/function_call.h"

#include <cmath>

#include "base/single_byte_text.h"

namespace tessarel {

int32_t WholeOf(double number) {
  constexpr double Limit = 2e9;
  if (number >= Limit) return static_cast<int32_t>(Limit);
  return static_cast<int32_t>(number > -Limit ? std::nearbyint(number) : -Limit);
}

std::string FunctionCall::BytesAt(size_t k) const {
  return ToSingleByte(TextOf(Argument(k)));
}

ScriptValue Refused(const FunctionCall& call) {
  FailScript(FaultOfFunction(call.Number));
  return Number(0);
}

}  // namespace tessarel
