#include "autobet/variables.h"

#include "engine/bets.h"
#include "engine/table.h"

namespace tessarel {

ScriptValue ReadVariable(const Reference& reference) {
  const int place = ResolvePlayer(reference.player);
  if (reference.number >= 800 && reference.number < 900) {
    return StackNameValue(place, reference.number - 800);
  }
  if (!IsBet(reference.number) && !IsStack(reference.number)) return Number(0);
  return Number(Bet(place, reference.number).ToDouble());
}

void SetVariable(const Reference& reference, const ScriptValue& value) {
  const int place = ResolvePlayer(reference.player);
  if (!MayActFor(place)) return;
  if (reference.number >= 800 && reference.number < 900) {
    At(At(Table.CheckStackName, place), reference.number - 800) = TextOf(value);
    return;
  }
  if (!IsBet(reference.number) && !IsStack(reference.number)) return FailScript(870);
  const SilentBets silent;
  Table.Amount = Money::FromDouble(NumberOf(value)) - Bet(place, reference.number);
  PlaceBet(place, reference.number);
}

double AverageBankroll(int, int) {
  return 0;
}

ScriptValue RollStatistic(int32_t, const Reference&, std::span<const ListItem>) {
  return Number(0);
}

}  // namespace tessarel
