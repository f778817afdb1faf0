#include "engine/bet_limits.h"

#include <algorithm>
#include <array>
#include <utility>

#include "state/settings.h"
#include "state/table.h"

namespace tessarel {

namespace {

__extension__ using Wide = __int128;

constexpr Wide Gcd(Wide a, Wide b) {
  while (b != 0)
    a = std::exchange(b, a % b);
  return a < 0 ? -a : a;
}

// The x in 0 to m - 1 for which a times x leaves 1 over m. `a` and `m` have no common divisor.
constexpr Wide Inverse(Wide a, Wide m) {
  Wide rest = m, next = a % m;
  Wide x = 0, nextX = 1;
  while (next != 0) {
    const Wide times = rest / next;
    rest = std::exchange(next, rest - times * next);
    x = std::exchange(nextX, x - times * nextX);
  }
  return (x % m + m) % m;
}
static_assert(Inverse(3, 7) == 5 && Inverse(4, 1) == 0);

// The lowest stake from `start` on, by whole smallest checks, that wins a whole number of checks of
// `value` at num to den and is below `ceiling`; `start` when there is none. Such stakes are the
// multiples of one amount, of which a linear congruence picks those that the checks reach.
Money StakeWinningWhole(Money start, Money ceiling, Money num, Money den, Money value) {
  const Wide unit = static_cast<Wide>(den.Raw()) * value.Raw();
  if (unit <= 0) RaiseDivisionByZero();
  if (static_cast<Wide>(start.Raw()) * num.Raw() % unit == 0) return start;
  const Wide multiple = unit / Gcd(unit, num.Raw());
  const Wide first = (start.Raw() + multiple - 1) / multiple * multiple;
  const Wide gap = first - start.Raw();
  const Wide check = SmallestCheck().Raw();
  const Wide common = Gcd(multiple, check);
  if (first >= ceiling.Raw() || gap % common != 0) return start;
  const Wide period = check / common;
  const Wide steps = (period - gap / common % period) * Inverse(multiple / common, period) % period;
  if (steps > (ceiling.Raw() - first) / multiple) return start;
  const Money stake = Money::FromRaw(static_cast<int64_t>(first + steps * multiple));
  return stake < ceiling ? stake : start;
}

// An odds limit never reaches the next multiple of the flat bet.
Money OneMultipleMore(Money factor, Money flat) {
  return (factor + 1) * flat;
}

// "X Flat w/ Minor Push": down to a whole payoff, or up to the next one if that stays below the
// next multiple.
Money MinorPush(Money factor, Money flat, Money den) {
  const Money unit = SmallestCheck() * den;
  const Money full = factor * flat;
  Money limit = FloorToMultiple(full, unit);
  if (limit < full && limit + unit < OneMultipleMore(factor, flat)) limit += unit;
  return limit == Money() ? full : limit;
}

// "X Flat w/ Color Push": up to where the win is whole in a check that the flat bet holds.
Money ColorPush(Money factor, Money flat, Money num, Money den) {
  const Money ceiling = OneMultipleMore(factor, flat);
  Money limit = factor * flat;
  for (size_t check = 5; check >= 2; --check) {
    const Money value = Settings.Denomination[check];
    if (flat >= value) limit = StakeWinningWhole(limit, ceiling, num, den, value);
  }
  return limit;
}

// "Single Odds": the flat bet, or what it may be multiplied to, in whole checks of each value that
// are rounded up to a payable number. `whole` is the sum to be cut into checks, `times` what each
// candidate is multiplied by.
Money SingleOdds(Money whole, Money times, Money start, Money den) {
  Money limit = start;
  for (size_t check = 1; check <= 5; ++check) {
    const Money value = Settings.Denomination[check];
    const Money checks = Money::FromWhole(whole.Raw() / value.Raw());
    limit = std::max(limit, CeilingToMultiple(checks, den) * value * times);
  }
  return limit;
}

int AutoMethod(Money factor) {
  if (!factor.IsWhole()) return 1;
  if (factor == Money(1)) return 4;
  if (factor == Money(2)) return 2;
  if (factor == Money(3)) return 5;
  return 3;
}

Money FloorToCheck(Money amount) {
  return FloorToMultiple(amount, SmallestCheck());
}

// The largest stake whose win of num to den stays within the payoff limit.
Money StakeWithin(Money num, Money den) {
  if (num <= Money()) return Settings.MaxPlacardBet;
  return Money::FromDouble(MulDiv(Settings.MaxPropBetPayoff, den, num));
}

// The same over the winning rows of a table: the largest win decides.
template <class Rows>
Money StakeWithinRows(const Rows& rows) {
  Money stake = Settings.MaxPlacardBet;
  for (const PayoffRow& row : rows)
    stake = std::min(stake, StakeWithin(row.PayNum, row.PayDen));
  return stake;
}

// A bet divided into equal parts, each of which wins by the row of its own bet: the part that wins
// the most has to stay within the payoff limit.
template <size_t Count>
Money StakeOfParts(int number, const std::array<int, Count>& hits) {
  std::array<PayoffRow, Count> rows;
  for (size_t k = 0; k < Count; ++k)
    rows[k] = Payoffs.Payoff[hits[k]];
  return StakeWithinRows(rows) * Payoffs.Payoff[number].PayDen;
}

Money PropositionLimit(int number) {
  using namespace bet;
  switch (number) {
    case CAndE:
      return StakeOfParts(number, std::array{Eleven, Craps});
    case Horn:
      return StakeOfParts(number, std::array{Two, Three, Eleven, Twelve});
    case World:
      return StakeOfParts(number, std::array{Two, Three, Seven, Eleven, Twelve});
    case SevenPoint7:
      return StakeWithinRows(Payoffs.SevenPointSevenPayoff);
    case SharpShooter:
      return StakeWithinRows(Payoffs.SharpShooterPayoff);
    case RideTheLine:
      return StakeWithinRows(Payoffs.RideTheLinePayoff);
    case Midway:
      return Settings.MaxPlacardBet;
    default: {
      const PayoffRow& row = Payoffs.Payoff[number];
      return StakeWithin(row.PayNum, row.PayDen);
    }
  }
}

// The point that a line bet's odds ride on, or the number of a travelled bet.
int OddsPoint(int number) {
  return IsLineOdds(number) ? Table.Point : PointOf(number);
}

Money OddsLimit(int number, Money flat) {
  const int point = OddsPoint(number);
  if (point == 0) return Money();
  const PayoffRow& row = PayoffRowOf(number);
  const Money factor = OddsFactor(point);
  if (IsTakenOdds(number)) return FigureOddsMax(factor, flat, row.PayNum, row.PayDen);
  // What has to be laid to win the odds allowed on the flat bet.
  const Money toWin = FigureOddsMax(factor, flat, row.PayDen, row.PayNum);
  return Money::FromDouble(MulDiv(toWin, row.PayDen, row.PayNum));
}

// Rounds a vig to whole smallest checks; a bet that carries one carries at least one check.
Money RoundVig(Money vig, int32_t rounding, Money amount) {
  vig = std::max(vig, Money());
  Money rounded = FloorToCheck(vig);
  const Money rest = vig - rounded;
  const bool up = rounding == 2 ? rest > Money() : rounding == 0 && rest + rest >= SmallestCheck();
  if (up) rounded += SmallestCheck();
  if (amount > Money()) rounded = std::max(rounded, SmallestCheck());
  return rounded;
}

Money BuyVig(Money amount) {
  if (Settings.BuyVigPct == Money()) return Money();
  return RoundVig(amount * Settings.BuyVigPct, Settings.RoundBuyVig, amount);
}

Money LayVig(int number, Money amount) {
  if (Settings.LayVigPct == Money()) return Money();
  const PayoffRow& row = Payoffs.Payoff[number];
  const double vig = MulDiv(amount, row.PayNum, row.PayDen) * Settings.LayVigPct.ToDouble();
  return RoundVig(Money::FromDouble(vig), Settings.RoundLayVig, amount);
}

}  // namespace

bool OnLayout(int number) {
  if (number == bet::Big6 || number == bet::Big8) return Settings.UseBig68;
  if (number == bet::Midway) return Settings.UseMidwayBet;
  if (number == bet::Fire) return Settings.UseFireBet;
  if (number >= bet::AllSmall) return Settings.UseSpecialPropBets;
  return true;
}

Money BetMinimum(int number) {
  return number < bet::Hard4 ? Settings.MinPlacardBet : Settings.MinPlacardPropBet;
}

Money OddsFactor(int point) {
  if (point == 6 || point == 8) return Settings.OddsAllowed68;
  if (point == 5 || point == 9) return Settings.OddsAllowed59;
  return Settings.OddsAllowed410;
}

Money FigureOddsMax(Money factor, Money flat, Money num, Money den) {
  const int method = Settings.OddsCalcMethod == 0 ? AutoMethod(factor) : Settings.OddsCalcMethod;
  Money limit = factor * flat;
  if (method == 2) limit = MinorPush(factor, flat, den);
  if (method == 3) limit = ColorPush(factor, flat, num, den);
  if (method == 4) limit = SingleOdds(limit, 1, limit, den);
  if (method == 5) limit = SingleOdds(flat, factor, limit, den);
  return Settings.MaxOddsBet > Money() ? std::min(limit, Settings.MaxOddsBet) : limit;
}

Money FigureMaxOdds(int number, Money flat) {
  return FloorToCheck(OddsLimit(number, flat));
}

Money FigureMaxBet(int place, int number) {
  if (!OnLayout(number)) return Money();
  if (IsOdds(number)) return FigureMaxOdds(number, Bet(place, FlatUnder(number)));
  Money limit = Settings.MaxPlacardBet;
  if (InFamily(number, LayFamily)) {
    const PayoffRow& row = Payoffs.Payoff[number];
    limit = Money::FromDouble(MulDiv(Settings.MaxPlacardBet, row.PayDen, row.PayNum));
  } else if (number == bet::Fire) {
    limit = Settings.MaxFireBet;
  } else if (number >= bet::Hard4) {
    limit = std::min(PropositionLimit(number), Settings.MaxPlacardBet);
  }
  return FloorToCheck(limit);
}

Money FigureVig(int number, Money amount) {
  return InFamily(number, BuyFamily)   ? BuyVig(amount)
         : InFamily(number, LayFamily) ? LayVig(number, amount)
                                       : Money();
}

const PayoffRow& PayoffRowOf(int number) {
  if (Table.Point != 0) {
    const int index = PointIndex(Table.Point);
    if (number == bet::PassLine) return Payoffs.Payoff[ComeFamily + index];
    if (number == bet::PassLineOdds) return Payoffs.Payoff[ComeOddsFamily + index];
    if (number == bet::DontPass) return Payoffs.Payoff[DontComeFamily + index];
    if (number == bet::DontPassOdds) return Payoffs.Payoff[DontComeOddsFamily + index];
  }
  return Payoffs.Payoff[number];
}

void SetOddsPayoffRows() {
  if (Table.Point == 0) return;
  const auto copy = [](int to, Family family) {
    const PayoffRow& from = Payoffs.Payoff[BetOn(family, Table.Point)];
    PayoffRow& row = Payoffs.Payoff[to];
    row.PayNum = from.PayNum;
    row.PayForm = from.PayForm;
    row.PayDen = from.PayDen;
  };
  copy(bet::PassLineOdds, ComeOddsFamily);
  copy(bet::DontPassOdds, DontComeOddsFamily);
}

}  // namespace tessarel
