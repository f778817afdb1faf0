// The summary view: the general figures of the table beside those of the selected players, what
// they wagered, and their bankrolls and comps.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "base/money.h"
#include "stats/bet_results.h"
#include "stats/comps.h"
#include "stats/selection.h"

namespace tessarel {

struct GeneralRow {
  std::string Caption, Table, Player;
};
struct SummaryRow {
  std::string Caption, Value;
};

struct SummaryView {
  std::string Placeholder;  // stands in place of everything else
  std::string PlayerTitle;
  std::vector<GeneralRow> General;
  std::vector<SummaryRow> Wagers, Bankroll, Comps;
};

// `comps` are those of the places in the scope; index 0 is not read.
SummaryView Summary(Scope scope,
                    PlaceSelection selection,
                    const ExpectedValues& expected,
                    const PerPlace<CompFigures>& comps);

// The mean of the bankrolls a player began the session with and had after each roll of it. Empty
// before his first roll.
std::optional<double> AverageBankroll(int place);

// Hours of play that `rolls` stand for at SimRollRate.
double SimHours(int64_t rolls);

}  // namespace tessarel
