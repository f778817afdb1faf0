// The advantage list: the house advantage of every bet as rows of text, and the heading of its
// report. The configuration screen and the report lay them out; the options are in
// config/advantage.h.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "config/advantage.h"
#include "texts/say.h"

namespace tessarel {

inline constexpr int AdvantageFigureCount = 5;

// The captions of the columns, the bet's first, by ShowMiscData.
const std::array<Text, 1 + AdvantageFigureCount>& AdvantageColumns();

// The note over the columns; empty when they are not percentages.
std::string_view AdvantageNote();

struct AdvantageRow {
  std::string Caption;
  std::array<std::string, AdvantageFigureCount> Figures;
  int Sign = 0;  // of EvPerRoll, for the colour: above zero for a bet that favours the player
};

// The row of bet 1 to 93. Faults as FigureAdvantage.
AdvantageRow AdvantageRowOf(int number);

// What the report says of where its figures come from.
struct AdvantageReportSource {
  std::string GameFile;            // a short name; empty: untitled
  bool ProbabilityActive = false;  // skewed dice are in force
  std::string ProbabilityFile;     // their short name; empty: untitled
};

// The lines above the columns, from the title on; the date is today's.
std::vector<std::string> AdvantageReportHeading(const AdvantageReportSource& source);

}  // namespace tessarel
