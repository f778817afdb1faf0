#include <optional>
#include <string>

#include "app/sim/commands.h"
#include "app/sim/failure.h"
#include "base/message.h"
#include "config/configuration.h"
#include "config/payoff_editor.h"
#include "config/setting_fields.h"
#include "state/table.h"

namespace tessarel::sim {

namespace {

void Require(const std::optional<std::string>& refusal) {
  if (refusal) throw Failure(CannotBeDone, *refusal);
}

}  // namespace

void ApplyRules(const std::vector<FieldArgument>& settings,
                const std::vector<std::string>& payoffs) {
  const PerBet<int32_t> houseWorkingBefore = Table.BetWorkingDefault[0];
  for (const FieldArgument& field : settings) {
    const std::optional<int> place = field.place != 0 ? std::optional(field.place) : std::nullopt;
    Require(SetField(field.field, place, field.value));
  }
  for (const std::string& payoff : payoffs)
    Require(SetPayoffByName(payoff));
  ValidationOptions closing;
  closing.HouseWorkingBefore = &houseWorkingBefore;
  const auto refusal = ValidateConfiguration(closing);
  if (refusal) throw Failure(CannotBeDone, OnOneLine(refusal->Text));
}

}  // namespace tessarel::sim
