// Reports as plain text: the header lines that every printed report begins with, and the report of
// a whole run that the command line writes. All figures are the rows that the views show.
#pragma once

#include <string>
#include <string_view>

#include "stats/bet_results.h"
#include "stats/roll_events.h"
#include "stats/selection.h"
#include "stats/summary_view.h"

namespace tessarel {

// The title, today's date and "Game file:  " with the short name of `gameFile`, or "untitled" for
// an empty one.
std::string ReportHeader(std::string_view title, std::string_view gameFile);

// The scope's name, then "Player:  " and the name of the only player selected, else how many are.
std::string SelectionHeader(Scope scope, PlaceSelection selection);

struct ReportInputs {
  Scope Of = CurrentSession;
  ExpectedValues Expected{};
  PerPlace<CompFigures> Comps{};
  SkewedDice Dice{};
  std::string GameFile;    // empty: untitled
  std::string StopReason;  // what ended the run before its time; empty: nothing did
};

std::string TextReport(const ReportInputs& inputs);

}  // namespace tessarel
