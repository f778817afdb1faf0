#include "engine/amount_adjustment.h"

#include <cstdint>
#include <utility>

#include "engine/bet_limits.h"
#include "state/table.h"

namespace tessarel {

namespace {

enum Bias : int32_t { Decrease = 0, Increase = 1, Nearest = 2 };

bool HasUnit(int number) {
  return IsOdds(number) || InFamily(number, PlaceFamily) || InFamily(number, BuyFamily) ||
         InFamily(number, LayFamily);
}

int32_t BiasOf(const BetRequest& request) {
  const auto [place, number] = std::pair(request.place, request.number);
  if (request.nearest) return Nearest;
  if (InFamily(number, LayFamily)) return Table.LayBias[place];
  if (IsLaidOdds(number)) return Table.DontBias[place];
  if (IsTakenOdds(number)) return Table.DoBias[place];
  return Table.PlaceBias[place];
}

}  // namespace

Adjustment AdjustForOddsPayoff(const BetRequest& request, Money total, Money limit) {
  const int number = request.number;
  const Money unit = HasUnit(number) ? PayoffRowOf(number).PayUnit : Money();
  if (unit == Money() || IsMultiple(total, unit)) return {true, total};
  const Money minimum = CeilingToMultiple(BetMinimum(number), unit);
  const Money below = FloorToMultiple(total, unit);
  const Money above = below + unit;
  const bool atLimit = IsOdds(number) && total == limit;
  const int32_t bias = atLimit ? static_cast<int32_t>(Decrease) : BiasOf(request);
  const bool up = bias == Increase || (bias == Nearest && above - total < total - below);
  if (up) return above <= limit ? Adjustment{true, above} : Adjustment{false, below, true};
  return below >= minimum ? Adjustment{true, below} : Adjustment{false, minimum, false};
}

}  // namespace tessarel
