#include "engine/payouts.h"

#include <algorithm>

#include "state/settings.h"
#include "state/table.h"
#include "state/vig.h"

namespace tessarel {

namespace {

// The single bet that a Horn or World hit by the dice in Table is paid as.
int HornPart() {
  switch (Table.DiceTotal) {
    case 2:
      return bet::Two;
    case 3:
      return bet::Three;
    case 7:
      return bet::Seven;
    case 11:
      return bet::Eleven;
    default:
      return bet::Twelve;
  }
}

const PayoffRow& MidwayRow() {
  const bool pair = Table.Die1 == Table.Die2;
  const int row = Table.DiceTotal == 7 ? 3 : Table.DiceTotal < 7 ? (pair ? 1 : 2) : (pair ? 5 : 4);
  return Payoffs.MidwayPayoff[row];
}

// With the point on at the roll, the line and its odds are paid by the rows of that number.
const PayoffRow& LineRow(int number) {
  const auto row = [](Family family) -> const PayoffRow& {
    return Payoffs.Payoff[BetOn(family, Table.LastPoint)];
  };
  switch (number) {
    case bet::PassLine:
      return row(ComeFamily);
    case bet::PassLineOdds:
      return row(ComeOddsFamily);
    case bet::DontPass:
      return row(DontComeFamily);
    default:
      return row(DontComeOddsFamily);
  }
}

// The row that a won bet is paid by.
const PayoffRow& WinningRow(int number, int result) {
  const auto& own = Payoffs.Payoff[number];
  switch (number) {
    case bet::PassLine:
    case bet::PassLineOdds:
    case bet::DontPass:
    case bet::DontPassOdds:
      return Table.LastPoint != 0 ? LineRow(number) : own;
    case bet::CAndE:
      return Payoffs.Payoff[Table.DiceTotal == 11 ? bet::Eleven : bet::Craps];
    case bet::Horn:
    case bet::World:
      return Payoffs.Payoff[HornPart()];
    case bet::Midway:
      return MidwayRow();
    case bet::SevenPoint7:
      return Payoffs.SevenPointSevenPayoff[std::clamp(result, 1, 2)];
    case bet::SharpShooter:
      return Payoffs.SharpShooterPayoff[std::min(Table.SharpShooterPoints + 1, 11)];
    case bet::RideTheLine:
      return Payoffs.RideTheLinePayoff[std::min(Table.RideTheLinePasses + 1, 12)];
    case bet::Fire:
      return Payoffs.FirePayoff[Table.FirePoints];
    default:
      return own;
  }
}

// The row that pays a result; none for what is lost as a whole.
const PayoffRow* PayingRow(int number, int result) {
  if (number == bet::Field) return &Payoffs.FieldPayoff[PairIndex(Table.Die1, Table.Die2)];
  return result > 0 ? &WinningRow(number, result) : nullptr;
}

// The win on `amount` by a row, of one part when the bet is divided. Where the product is whole
// and far from what a double holds exactly, integers give what the doubles would.
Money GrossBy(const PayoffRow& row, Money amount, int parts) {
  constexpr int64_t Exact = int64_t{1} << 50;
  int64_t product = 0;
  const bool overflow = __builtin_mul_overflow(amount.Raw(), row.PayNum.Raw(), &product);
  const bool whole = !overflow && parts == 1 && row.PayDen == Money(1) &&
                     product % Money::Scale == 0 && product < Exact && product > -Exact;
  if (whole) return Money::FromRaw(product / Money::Scale);
  double gross = MulDiv(amount, row.PayNum, row.PayDen);
  if (parts > 1) gross = (gross - amount.ToDouble() * (parts - 1)) / parts;
  return Money::FromDouble(gross);
}

// The vig that a result of the bet has to carry: always, or only when it wins.
Money VigOnResult(int place, int number, Money gross) {
  return gross > Money() ? VigOf(place, number) : VigUpFront(place, number);
}

}  // namespace

PayoffRow DecidingRow(int number, int result) {
  const PayoffRow* const row = PayingRow(number, result);
  if (row != nullptr) return *row;
  PayoffRow lost;
  lost.PayNum = -1;
  lost.PayForm = Payoffs.Payoff[number].PayForm;
  return lost;
}

Payout FigurePayoff(int place, int number, int result, Money amount) {
  const PayoffRow* const row = PayingRow(number, result);
  Money gross = row == nullptr ? -amount : GrossBy(*row, amount, result > 0 ? PartsOf(number) : 1);
  gross -= VigOnResult(place, number, gross);
  return {gross, FloorToMultiple(gross, SmallestCheck())};
}

Money PressingUnit(int place, int number) {
  const Money amount = Bet(place, number);
  const Money payUnit = Payoffs.Payoff[number].PayUnit;
  Money unit;
  for (int check = 5; check >= 1; --check) {
    unit = Money::FromDouble(MulDiv(Settings.Denomination[check], payUnit, SmallestCheck()));
    if (unit > Money() && unit < amount && IsMultiple(amount, unit)) break;
  }
  return unit;
}

}  // namespace tessarel
