#include "engine/bet_plan.h"

#include <algorithm>

#include "engine/amount_adjustment.h"
#include "engine/bet_limits.h"
#include "state/settings.h"
#include "state/table.h"
#include "state/vig.h"

namespace tessarel {

namespace {

constexpr Money StackLimit = Money::FromRaw(999'999'999'999'999'999);

Money RoundedToChecks(Money change) {
  return change < Money() ? FloorToMultiple(change, SmallestCheck())
                          : CeilingToMultiple(change, SmallestCheck());
}

// What the contract keeps of the bet.
Money Held(const Plan& plan) {
  return HeldContract(plan.request.place, plan.request.number);
}

Money MaximumOf(const BetRequest& request) {
  return IsOdds(request.number) ? FigureMaxOdds(request.number, FlatAsPlanned(request))
                                : FigureMaxBet(request.place, request.number);
}

// The up-front vig that a change moves.
Money VigMoved(const Plan& plan, Money change) {
  const auto& [place, number] = std::pair(plan.request.place, plan.request.number);
  if (!ChargesVigUpFront(number)) return Money();
  return FigureVig(number, plan.before + change) - VigOf(place, number);
}

void ApplyMinimum(Plan& plan) {
  const Money minimum = BetMinimum(plan.request.number);
  if (plan.After() <= Money() || plan.After() >= minimum) return;
  if (plan.change < Money()) {
    plan.change = Held(plan) - plan.before;
    return;
  }
  plan.Add(LimitKind::Minimum, minimum);
  plan.change = minimum - plan.before;
}

void ApplyMaximum(Plan& plan, Money limit) {
  if (plan.After() <= limit) return;
  plan.Add(LimitKind::Maximum, limit);
  const Money contract = Held(plan);
  if (contract > limit) plan.Add(LimitKind::ContractAboveMaximum, contract);
  plan.change = std::max(limit, contract) - plan.before;
}

void Adjust(Plan& plan, Money limit) {
  if (!Table.AutoAdjustBetAmounts[plan.request.place]) return;
  const Adjustment adjustment = AdjustForOddsPayoff(plan.request, plan.After(), limit);
  if (adjustment.possible) {
    plan.change = adjustment.total - plan.before;
  } else {
    plan.Add(adjustment.limitIsMaximum ? LimitKind::AdjustMaximum : LimitKind::AdjustMinimum,
             adjustment.total);
  }
}

// The largest change in whole checks that `left` pays for, at least the bet coming off. The vig
// never falls as the bet grows, so the search can halve its range.
Money LargestAffordable(const Plan& plan, Money left) {
  const Money check = SmallestCheck();
  Money low = -plan.before;
  const Money vigNow = VigOf(plan.request.place, plan.request.number);
  const Money top = std::min(plan.change, left + vigNow);
  int64_t steps = top > low ? (top - low).Raw() / check.Raw() : 0;
  while (steps > 0) {
    const int64_t half = (steps + 1) / 2;
    const Money candidate = low + Money::FromRaw(check.Raw() * half);
    if (candidate + VigMoved(plan, candidate) <= left) {
      low = candidate;
      steps -= half;
    } else {
      steps = half - 1;
    }
  }
  return low;
}

void ApplyBankroll(Plan& plan) {
  const int place = plan.request.place;
  if (plan.After() == Money() || Table.AllowNegBankroll[place]) return;
  const Money left = BankrollOf(place) - Table.MoneyOnTable[place] + plan.request.freed.money;
  if (plan.change + VigMoved(plan, plan.change) <= left) return;
  plan.change = LargestAffordable(plan, left);
  const Money held = Held(plan);
  const Money least = std::max(BetMinimum(plan.request.number), held);
  if (plan.After() < least) plan.change = held - plan.before;
  plan.Add(LimitKind::Bankroll);
}

void ApplyRules(Plan& plan) {
  plan.change = std::max(RoundedToChecks(plan.change), -plan.before);
  const Verdict verdict = JudgeChange(plan.request, plan.change);
  plan.change = verdict.delta;
  plan.refusal = verdict.refusal;
  const bool refused = verdict.refusal != RefusalKind::None;
  if (refused && plan.change == Money()) return;
  // What a refusal leaves fills up to the contract: it is neither raised nor rounded.
  const bool asked = !refused && plan.change != Money();
  if (asked) ApplyMinimum(plan);
  const Money limit = MaximumOf(plan.request);
  ApplyMaximum(plan, limit);
  if (asked && plan.After() > Money()) Adjust(plan, limit);
  ApplyBankroll(plan);
}

void PlanStack(Plan& plan) {
  if (plan.change < -plan.before) {
    plan.change = -plan.before;
    plan.Add(LimitKind::StackMinimum);
  } else if (plan.change > StackLimit - plan.before) {
    plan.change = StackLimit - plan.before;
    plan.Add(LimitKind::StackMaximum, StackLimit);
  }
}

void FigureCost(Plan& plan) {
  const int place = plan.request.place, number = plan.request.number;
  plan.cost = plan.change;
  if (!CarriesVig(number)) return;
  plan.vig = FigureVig(number, plan.After());
  if (ChargesVigUpFront(number)) plan.cost += plan.vig - VigOf(place, number);
}

}  // namespace

Plan PlanChange(const BetRequest& request) {
  Plan plan;
  plan.request = request;
  const bool stack = IsStack(request.number);
  if (!stack && !IsBet(request.number)) return plan;
  plan.before = Bet(request.place, request.number);
  plan.change = request.change;
  if (stack) {
    PlanStack(plan);
  } else {
    ApplyRules(plan);
    FigureCost(plan);
  }
  return plan;
}

FreedBet FreeUp(int place, int number) {
  const Plan off = PlanChange({place, number, -Bet(place, number)});
  FreedBet freed{number, off.After(), -off.cost};
  const int odds = OddsOn(number);
  if (odds == 0) return freed;
  const Money stay = freed.left > Money() ? FigureMaxOdds(odds, freed.left) : Money();
  freed.money += std::max(Bet(place, odds) - stay, Money());
  return freed;
}

}  // namespace tessarel
