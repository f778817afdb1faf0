// The roll totals view: how often each dice result came in a scope, against what the dice predict,
// with the chi-square test of the fit. Shown by the window, printed and put into the text report.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "stats/roll_events.h"
#include "stats/selection.h"
#include "texts/say.h"

namespace tessarel {

// Totals; ordered pairs; the same pairs as shares of all rolls; the faces of either die.
enum class RollTotalsDisplay { Number, Combinations, Percent, Die1, Die2 };

// The columns after the name of the result.
inline constexpr std::array RollTotalsHeadings = {
    Text::PercentRolledColumn, Text::PercentProbableColumn, Text::RollCountColumn,
    Text::ProbableCountColumn, Text::SinceLastColumn,       Text::ChiSquareColumn};

struct RollTotalsRow {
  int Event = 0;
  std::string Name;
  std::string ActualPercent, ProbablePercent;
  std::string Rolls, ProbableRolls;
  std::string Since;  // rolls since the last one, of the running session
  std::string ChiSquare;
  std::string BarText;                    // the count, or the share where shares are shown
  double ActualBar = 0, ProbableBar = 0;  // of the longest bar, 0 to 1
};

struct RollTotalsView {
  std::string Placeholder;  // stands in place of everything else
  std::vector<RollTotalsRow> Rows;
  std::string TotalRolls;
  double Chi = 0, P = 1;
  int Degrees = 0;
  std::string ChiSquare, PValue;
};

RollTotalsView RollTotals(Scope scope,
                          PlaceSelection selection,
                          RollTotalsDisplay display,
                          const SkewedDice& dice);

// The codes of a display, in its order.
std::vector<int> EventsOf(RollTotalsDisplay display);

}  // namespace tessarel
