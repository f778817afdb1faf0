// The bankroll graph without its picture: its settings, the points and moving averages of a
// player's line, the ranges of the two axes, and every text around the graph. The points are the
// ring of the last GraphLength rolls that the roll driver fills.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/money.h"

namespace tessarel {

enum GraphPlot : int32_t { PlotByPage, PlotByScrolling };
enum GraphAdjustment : int32_t { AdjustByHand, AutoShift, AutoExpand, AutoSnapBack };
enum GraphLook : int32_t { PlainGraph, StripedGraph, SolidGraph };

inline constexpr int32_t MaxAverageRolls = 525;

// The colours of the lines are Settings.SeriesColor.
struct BankrollGraphState {
  int32_t GraphPlotType = PlotByPage;
  int32_t GraphThickness = 2;  // 0 fine, 1 medium, 2 wide, 3 extra wide
  int32_t GraphAdjustType = AutoSnapBack;
  int32_t GraphStyle = StripedGraph;
  int32_t GraphColor = 0;  // entry of the list of colours
  bool DisplayGridLines = true, DisplayRefLines = false, DisplayAverage = true;
  int32_t MovingAverageRolls = 120;  // 0: all rolls of the session
  // The base scale, the scale in force, and the money that the height of the graph shows at
  // scale 1.
  Money GraphScaleLow = 1, GraphScaleHigh = 1, GraphScaleStep = 150;
  int32_t RefRolls1 = 174, RefRolls2 = 349;  // rolls behind the left edge
  bool AutoPrint = false;
  // The window, back to this with every session: rolls from edge to edge, and how many rolls it is
  // scrolled back from the newest.
  int32_t GraphWidth = 150, GraphScrolledBack = 0;
};

extern BankrollGraphState BankrollGraph;

// --- Points ---

// Rolls of the session from First to Last; empty when Last is below First.
struct RollSpan {
  int32_t First = 1, Last = 0;
  bool Has(int32_t roll) const { return roll >= First && roll <= Last; }
  friend bool operator==(const RollSpan&, const RollSpan&) = default;
};

// The rolls of a player's time at the table that the ring still has.
RollSpan HeldRolls(int place);

// The bankroll after a roll; empty for one that is not held.
std::optional<Money> GraphPoint(int place, int32_t roll);

struct GraphLine {
  int32_t FirstRoll = 1;
  std::vector<Money> Points;
  // Beside each point; empty where the ring no longer has all the rolls that it is made of.
  std::vector<std::optional<double>> Averages;
};

// What is held of a player's line in the window. The average is over the last `averageRolls`, or
// over those since he joined while they are fewer; 0 takes all of them.
GraphLine LineOf(int place, RollSpan window, int32_t averageRolls);

// --- Axes ---

// The rolls between the two edges: `rolls` so far, of which `held` can be shown, `width` from edge
// to edge (above 0), scrolled back by `back`. A page stays until it is full.
RollSpan GraphWindow(
    int32_t rolls, int32_t held, int32_t width, int32_t plotType, int32_t back = 0);

struct GraphRange {
  Money Low, High;
  Money Height() const { return High - Low; }
  friend bool operator==(const GraphRange&, const GraphRange&) = default;
};

// The base range around a bankroll, by the settings.
GraphRange BaseRange(Money bankroll);

// The line on view: its ends and where it is now.
struct VisibleLine {
  Money Low, High, Last;
};

// The vertical range for the line on view. By hand: as it is. Auto-shift keeps the height and moves
// until the line is inside; a line that is higher than the range takes it along by its last point.
// The expanding ones add whole heights on the side where the line left, doubling the range; the
// snap-back one returns to `base` as soon as the line is inside of that.
GraphRange AdjustRange(int32_t adjustType, GraphRange current, GraphRange base, VisibleLine line);

// By hand: up (positive) or down by tenths of the height, and half or twice the height around the
// middle.
GraphRange ShiftRange(GraphRange range, int tenths);
GraphRange ZoomRange(GraphRange range, bool expand);

// --- Texts ---

struct GraphLabels {
  std::string Current, High, Low;      // "  Current:  1,000"
  std::string TotalRolls;              // under "Total rolls"
  std::string RollsPerHour, SimHours;  // under "Rolls / hr", "Sim hrs"
  std::string Note;                    // "100 rolls @ 120 rolls/hr = .83 sim hrs"
  std::string Legend, PrintedLegend;   // "120 roll avg", "120 roll moving average"
  std::string RollsLeft, RollsRight;   // at the edges
};
GraphLabels LabelsOfGraph(int place, RollSpan window);

struct ReferenceLabels {
  std::string Bankroll1, Bankroll2;  // NotAvailable where the line has no point
  std::string RollsDifference, BankrollDifference;
};
ReferenceLabels LabelsOfReferenceLines(int place, RollSpan window);

// Asks for the number of rolls in the moving average. Returns whether a new one was given.
bool SetMovingAverage();

// Switches the automatic printing; on only after a Yes. Returns whether it is as asked for.
bool SetAutoPrint(bool on);

// The question of printing now, with how many graphs fit on a page and how many were sent to it.
std::string PrintNowQuestion(int fit, int sent);

}  // namespace tessarel
