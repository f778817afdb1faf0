#include <optional>
#include <string>

#include "app/sim/commands.h"
#include "app/sim/failure.h"
#include "config/configuration.h"
#include "config/payoff_editor.h"
#include "config/setting_fields.h"

namespace tessarel::sim {

namespace {

void Require(const std::optional<std::string>& refusal) {
  if (refusal) throw Failure(CannotBeDone, *refusal);
}

std::string OnOneLine(std::string text) {
  std::string line;
  for (const char c : text)
    line += c == '\r' ? ' ' : c;
  return line;
}

}  // namespace

void ApplyRules(const std::vector<FieldArgument>& settings,
                const std::vector<std::string>& payoffs) {
  for (const FieldArgument& field : settings) {
    const std::optional<int> place = field.place != 0 ? std::optional(field.place) : std::nullopt;
    Require(SetField(field.field, place, field.value));
  }
  for (const std::string& payoff : payoffs)
    Require(SetPayoffByName(payoff));
  const auto refusal = ValidateConfiguration();
  if (refusal) throw Failure(CannotBeDone, OnOneLine(refusal->Text));
}

}  // namespace tessarel::sim
