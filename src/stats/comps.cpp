#include "stats/comps.h"

#include "base/fault.h"
#include "config/advantage.h"
#include "state/books.h"
#include "state/settings.h"

namespace tessarel {

namespace {

// The values of CompBase.
enum CompBasis : int32_t { OnTheoreticalLoss = 0, OnAction = 1, OnAverageAction = 2 };

double Base(const CompFigures& figures) {
  switch (Settings.CompBase) {
    case OnTheoreticalLoss:
      return -figures.TheoreticalLoss;
    case OnAction:
      return figures.Action.ToDouble();
    default:
      return figures.AverageAction.ToDouble();
  }
}

}  // namespace

CompFigures FigureComps(int slot) {
  if (slot < 0 || slot >= SlotCount) RaiseIndexOutOfRange();
  const DiceProbabilities dice = Settings.CompsUseTrueProbs ? TrueDice() : DiceInForce();
  CompFigures figures;
  for (int number = 1; number <= LastBet; ++number) {
    const BetMeasures& wagered = Stats.Bets[slot][number].Tendered;
    if (!Settings.CompBet[number] || wagered.Sum <= Money()) continue;
    figures.Action += wagered.Sum;
    figures.Decisions += wagered.Count;
    figures.TheoreticalLoss += wagered.Sum.ToDouble() * FigureAdvantage(number, dice).EvPerDec;
  }
  if (figures.Decisions > 0) {
    const double hours = Stats.Hands[slot].RollTotal / Settings.SimRollRate.ToDouble();
    figures.AverageAction = Money::FromDouble(figures.Action.ToDouble() * hours /
                                              static_cast<double>(figures.Decisions));
  }
  figures.Comps = Settings.CompRate.ToDouble() * Base(figures) * 0.01;
  return figures;
}

}  // namespace tessarel
