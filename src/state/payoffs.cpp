#include "state/payoffs.h"

#include <numeric>
#include <span>

#include "state/settings.h"

namespace tessarel {

PayoffState Payoffs;

namespace {

struct Ratio {
  int num, den;
};

PayoffRow Row(Ratio ratio) {
  PayoffRow row;
  row.PayNum = ratio.num;
  row.PayDen = ratio.den;
  return row;
}

void Fill(std::span<PayoffRow> rows, std::span<const Ratio> ratios) {
  for (size_t k = 0; k < ratios.size(); ++k)
    rows[k] = Row(ratios[k]);
}

// clang-format off
constexpr Ratio LaidOdds[]  = {{1, 2}, {2, 3}, {5, 6}, {5, 6}, {2, 3}, {1, 2}};
constexpr Ratio TakenOdds[] = {{2, 1}, {3, 2}, {6, 5}, {6, 5}, {3, 2}, {2, 1}};
constexpr Ratio PlaceOdds[] = {{9, 5}, {7, 5}, {7, 6}, {7, 6}, {7, 5}, {9, 5}};
// From Hard 4 to World; the last three say into how many parts the bet is divided.
constexpr Ratio PropOdds[]  = {{7, 1}, {9, 1}, {9, 1}, {7, 1},
                               {30, 1}, {15, 1}, {4, 1}, {15, 1}, {30, 1},
                               {7, 1}, {1, 2}, {1, 4}, {1, 5}};
constexpr Ratio SpecialOdds[] = {{34, 1}, {34, 1}, {175, 1}, {1, 1}, {7, 1}};  // from All Small
constexpr Ratio SevenPointSevenOdds[] = {{2, 1}, {3, 1}};
constexpr Ratio MidwayOdds[] = {{2, 1}, {1, 1}, {1, 1}, {1, 1}, {2, 1}};
constexpr Ratio SharpShooterOdds[] = {{-1, 1}, {-1, 1}, {-1, 1}, {5, 1}, {9, 1}, {19, 1},
                                      {29, 1}, {49, 1}, {99, 1}, {199, 1}, {299, 1}};
constexpr Ratio RideTheLineOdds[] = {{-1, 1}, {-1, 1}, {-1, 1}, {1, 1}, {2, 1}, {3, 1},
                                     {6, 1}, {10, 1}, {20, 1}, {30, 1}, {40, 1}, {100, 1}};
constexpr Ratio FireOdds[] = {{-1, 1}, {-1, 1}, {-1, 1}, {-1, 1}, {24, 1}, {249, 1}, {999, 1}};
// clang-format on

// n checks win n x PayNum / PayDen checks: whole for the multiples of the ratio's denominator in
// its lowest terms.
Money UnitOf(const PayoffRow& row, Money check) {
  constexpr int64_t MostChecks = 1'000'000;
  const int64_t den = row.PayDen.Raw();
  if (den <= 0) return Money();
  const int64_t checks = den / std::gcd(row.PayNum.Raw(), den);
  return checks <= MostChecks ? check * Money::FromWhole(checks) : Money();
}

}  // namespace

void DefaultPayoffs() {
  Payoffs = PayoffState{};
  const std::span<PayoffRow> rows = Payoffs.Payoff;
  Fill(rows.subspan(bet::Lay4), LaidOdds);
  Fill(rows.subspan(bet::DontCome4Odds), LaidOdds);
  Fill(rows.subspan(bet::Come4Odds), TakenOdds);
  Fill(rows.subspan(bet::Place4), PlaceOdds);
  Fill(rows.subspan(bet::Buy4), TakenOdds);
  Fill(rows.subspan(bet::Hard4), PropOdds);
  for (size_t hop = bet::Hop13; hop <= bet::Hop55; ++hop) {
    const HopPair faces = FacesOfHop(static_cast<int>(hop));
    rows[hop] = Row({faces.low == faces.high ? 30 : 15, 1});
  }
  Fill(rows.subspan(bet::AllSmall), SpecialOdds);
  for (int low = 1; low <= 6; ++low) {
    for (int high = low; high <= 6; ++high) {
      const int total = low + high;
      const int num = total >= 5 && total <= 8 ? -1 : total == 2 || total == 12 ? 2 : 1;
      Payoffs.FieldPayoff[static_cast<size_t>(PairIndex(low, high))] = Row({num, 1});
    }
  }
  Fill(std::span(Payoffs.SevenPointSevenPayoff).subspan(1), SevenPointSevenOdds);
  Fill(std::span(Payoffs.MidwayPayoff).subspan(1), MidwayOdds);
  Fill(std::span(Payoffs.SharpShooterPayoff).subspan(1), SharpShooterOdds);
  Fill(std::span(Payoffs.RideTheLinePayoff).subspan(1), RideTheLineOdds);
  Fill(Payoffs.FirePayoff, FireOdds);
}

void FigurePayoffUnits() {
  for (size_t number = 1; number <= LastBet; ++number) {
    PayoffRow& row = Payoffs.Payoff[number];
    row.PayUnit = UnitOf(row, SmallestCheck());
  }
}

}  // namespace tessarel
