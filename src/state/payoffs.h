// The payoff tables: what every bet wins, as data that the user can change. Settlement, limits and
// the house advantage read them. Their editing and tests stand in config/payoff_editor.h.
#pragma once

#include <cstdint>

#include "base/indexing.h"
#include "base/money.h"
#include "state/bet_numbers.h"

namespace tessarel {

// The values of PayForm.
enum PayForm : int { FormFor = 0, FormTo = -1 };

// A win on amount a is a times PayNum over PayDen. A negative PayNum loses; 0 is no decision.
struct PayoffRow {
  Money PayUnit;           // the smallest bet that pays in whole checks; derived
  Money PayNum = 1;        // the net win on PayDen
  Money PayForm = FormTo;  // only how the row reads: A to B, or A + B for B
  Money PayDen = 1;
};

struct PayoffState {
  Indexed<PayoffRow, 101> Payoff;               // 1 to 93 by bet number
  Indexed<PayoffRow, 22> FieldPayoff;           // 1 to 21, by PairIndex
  Indexed<PayoffRow, 3> SevenPointSevenPayoff;  // 1 a come-out 7, 2 a 7 after the point
  Indexed<PayoffRow, 6> MidwayPayoff;           // 1 hard 6, 2 easy 6, 3 seven, 4 easy 8, 5 hard 8
  Indexed<PayoffRow, 12> SharpShooterPayoff;    // 1 to 11: points made plus 1, 11 for 10 and up
  Indexed<PayoffRow, 13> RideTheLinePayoff;     // 1 to 12: passes made plus 1, 12 for 11 and up
  Indexed<PayoffRow, 7> FirePayoff;             // 0 to 6, by different points made
};

extern PayoffState Payoffs;

// The row 1 to 21 of an unordered pair of dice: by total, then by the lower die. Faces 1 to 6.
constexpr int PairIndex(int die1, int die2) {
  constexpr Indexed<Indexed<int8_t, 7>, 7> Index = [] {
    Indexed<Indexed<int8_t, 7>, 7> table{};
    int8_t next = 1;
    for (size_t total = 2; total <= 12; ++total) {
      for (size_t low = total > 6 ? total - 6 : 1; 2 * low <= total; ++low) {
        table[low][total - low] = table[total - low][low] = next++;
      }
    }
    return table;
  }();
  return Index[static_cast<size_t>(die1)][static_cast<size_t>(die2)];
}
static_assert(PairIndex(1, 1) == 1 && PairIndex(4, 3) == 12 && PairIndex(6, 6) == 21);

// Fills all tables with their original values.
void DefaultPayoffs();

// Figures PayUnit of bets 1 to 93: the smallest multiple of the smallest check that pays a whole
// number of smallest checks; 0 where a million multiples hold none.
void FigurePayoffUnits();

}  // namespace tessarel
