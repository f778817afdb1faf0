#include "app/sim/reporting.h"

#include "app/sim/console.h"
#include "base/message.h"
#include "config/advantage.h"
#include "files/game_file.h"
#include "state/table.h"
#include "stats/comps.h"
#include "stats/report.h"

namespace tessarel::sim {

std::string RunReport(const std::string& stopReason) {
  ReportInputs inputs;
  inputs.GameFile = GameFile.GameFileName;
  inputs.StopReason = OnOneLine(stopReason);
  for (int number = 1; number <= LastBet; ++number) {
    At(inputs.Expected, number) = FigureAdvantage(number).EvPerDec;
  }
  ForEachPlayer(
      [&inputs](int place) { At(inputs.Comps, place) = FigureComps(place + CurrentSession); });
  inputs.Dice = SkewedDiceInForce();
  return TextReport(inputs);
}

}  // namespace tessarel::sim
