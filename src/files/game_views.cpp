// The records of a game file that hold the options of views, of the bankroll graph and of scripts,
// and the chips as they lie on the table.
#include "files/game_views.h"

#include "dice/roll_file_edit.h"
#include "files/game_blocks.h"
#include "state/books.h"
#include "state/scripts.h"
#include "state/settings.h"
#include "stats/bankroll_graph.h"
#include "stats/selection.h"
#include "stats/session_statistics.h"

namespace tessarel {

GameViewsState GameViews;

namespace {

constexpr WordField Carried(GameViewsState::WordRow& words, int first, int last) {
  return {first, &At(words, first), last - first + 1};
}

constexpr auto& Statistics = GameViews.Statistics;
constexpr auto& Display = GameViews.Display;

// clang-format off
constexpr WordField StatisticsFields[] = {
    Carried(Statistics, 1, 7),
    {8, &ViewSelections.RollTotalsPlayer},
    {10, &Stats.HandComeouts},
    {11, &Stats.HandPassCount},
    {12, &Stats.HandMissCount},
    Carried(Statistics, 13, 16),
    {17, Settings.SeriesColor.data(), 6},
    Carried(Statistics, 23, 37),
};

constexpr WordField DisplayFields[] = {
    Carried(Display, 0, 2),
    Carried(Display, 4, 10),
    {11, &SessionsView.Include},
    {12, &SessionsView.Stat},
    Carried(Display, 13, 13),
    {16, &RollFileEdit.optInsertRolls},
    Carried(Display, 17, 18),
    Carried(Display, 20, 21),
    {24, &Table.GraphIndex},
    {26, &BankrollGraph.GraphPlotType},
    {27, &BankrollGraph.GraphThickness},
    {28, &BankrollGraph.GraphAdjustType},
    {29, &BankrollGraph.GraphStyle},
    {30, &BankrollGraph.GraphColor},
    {31, &BankrollGraph.DisplayGridLines},
    {32, &BankrollGraph.DisplayRefLines},
    {33, &BankrollGraph.DisplayAverage},
    {34, &Settings.Throttle},
    Carried(Display, 35, 37),
    {38, &GameViews.StatusBoxSize},
    Carried(Display, 39, 49),
    {50, &BankrollGraph.MovingAverageRolls},
    {51, &BankrollGraph.RefRolls1},
    {52, &BankrollGraph.RefRolls2},
    {53, &BankrollGraph.AutoPrint},
    {54, &BankrollGraph.GraphWidth},
    {55, &BankrollGraph.GraphScrolledBack},
};
constexpr int RollFileModeSlot = 15, FirstRollShownSlot = 19, NextRollSlot = 22, RollCountSlot = 23;

constexpr WordField ScriptFields[] = {
    Carried(GameViews.Editor, 0, 7),
    {10, &Scripts.AllowReset[1], LastPlace},
    {18, &Scripts.AllowAct4Others[1], LastPlace},
    {26, &Scripts.AllowActProb[1], LastPlace},
};
constexpr int AnyScriptActiveSlot = 8;

constexpr MoneyField GraphFields[] = {
    {0, &BankrollGraph.GraphScaleLow},
    {1, &BankrollGraph.GraphScaleHigh},
    {2, &BankrollGraph.GraphScaleStep},
    {3, &Settings.RollDelay},
    {4, &Settings.AutoStopRolls},
};

constexpr WordField RollColourFields[] = {Carried(GameViews.RollColours, 1, 48)};
// clang-format on

}  // namespace

void ViewRecords(GameRecords& records, FilesInUse& files) {
  records.Words(StatisticsFields);
  records.LongText(GameViews.BetResultsText);
  records.Words(DisplayFields);
  records.Word(RollFileModeSlot, files.RollFileMode);
  records.Word(FirstRollShownSlot, files.FirstRollShown);
  records.Word(NextRollSlot, files.NextRoll);
  records.Word(RollCountSlot, files.RollCount);
  records.LongText(RollFileEdit.txtDiceRollOutputFormat);
  records.Words(ScriptFields);
  records.Word(AnyScriptActiveSlot, files.ScriptActive[0]);
  records.Moneys(GraphFields);
  records.Words(RollColourFields);
}

void ChipRecords(GameRecords& records, const GameCounts& counts) {
  constexpr int ChipsInRecord = 25;
  GameViews.Chips.resize(static_cast<size_t>(counts.Chips));
  SlotRun run(records, ChipsInRecord * static_cast<int>(ChipEntry{}.size()));
  for (ChipEntry& chip : GameViews.Chips) {
    for (int32_t& column : chip)
      run.Short(column);
  }
}

}  // namespace tessarel
