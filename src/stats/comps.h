// Comps: what the house gives back to a player for his play, by the rules of the configuration and
// what the statistics store counted. The summary and scripts ask for it.
#pragma once

#include "base/money.h"

namespace tessarel {

struct CompFigures {
  int64_t Decisions = 0;       // resolved wagers
  Money Action;                // wagered in all
  Money AverageAction;         // of a wager, times the hours of play
  double TheoreticalLoss = 0;  // what the wagers were worth: below zero for the house's advantage
  double Comps = 0;
};

// Figures the comps of a player's slot, 0 to 44, over the bets that count for comps. Index fault
// outside the store, overflow fault when the amounts do not fit.
CompFigures FigureComps(int slot);

}  // namespace tessarel
