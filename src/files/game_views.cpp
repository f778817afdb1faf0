// The records of a game file that hold the options of views, of the bankroll graph and of scripts,
// and the chips as they lie on the table.
#include <array>
#include <utility>

#include "dice/roll_file_edit.h"
#include "files/game_blocks.h"
#include "state/books.h"
#include "state/scripts.h"
#include "state/settings.h"
#include "state/view_state.h"
#include "stats/bankroll_graph.h"
#include "stats/selection.h"
#include "stats/session_statistics.h"

namespace tessarel {

namespace {

constexpr auto& Views = GameViews;

constexpr std::array<WordField, 3> FontFields(int slot, ViewFont& font) {
  return {{{slot, &font.Size}, {slot + 1, &font.Bold}, {slot + 2, &font.Italic}}};
}

template <size_t... Colors>
constexpr auto HighlightFieldsOf(std::index_sequence<Colors...>) {
  constexpr int FirstSlot = 37;
  return Joined(std::to_array<WordField>(
      {{FirstSlot + 2 * static_cast<int>(Colors), &Views.RollFiles.HighlightColors[Colors].Text},
       {FirstSlot + 2 * static_cast<int>(Colors) + 1,
        &Views.RollFiles.HighlightColors[Colors].Back}})...);
}

// clang-format off
constexpr auto StatisticsFields = Joined(
    FontFields(30, Views.Hands.Font), FontFields(34, Views.Summary.Font),
    FontFields(27, Views.BetResults.Font), std::to_array<WordField>({
    {1, &Views.RollTotals.Scope},
    {2, &Views.RollTotals.Display},
    {3, &Views.RollTotals.BarWidth},
    {4, &Views.RollTotals.Bold},
    {5, &Views.RollTotals.Italic},
    {6, &Views.RollTotals.SkewedDice},
    {7, &Views.RollTotals.HighestBar},
    {8, &ViewSelections.RollTotalsPlayer},
    {10, &Stats.HandComeouts},
    {11, &Stats.HandPassCount},
    {12, &Stats.HandMissCount},
    {13, &Views.Hands.Scope},
    {14, &Views.Hands.PerHand},
    {15, &Views.Summary.Scope},
    {16, &Views.RollTotals.BackColor},
    WordRow(17, Settings.SeriesColor),
    {23, &Views.RollTotals.BarColor},
    {24, &Views.BetTrends.Scope},
    {25, &Views.BetResults.Scope},
    {26, &Views.BetResults.UseSeparator},
    {33, &Views.Hands.SortColumn},
    {37, &Views.Summary.SortColumn},
}));
static_assert(TakeEachSlotOnce(StatisticsFields, {.Unused = {9}}));

constexpr int ConsoleSlot = 13;
constexpr int RollFileModeSlot = 15, FirstRollShownSlot = 19, NextRollSlot = 22, RollCountSlot = 23;
constexpr auto DisplayFields = Joined(
    FontFields(7, Views.CheckStacks.Font), FontFields(47, Views.RollFrequencies.Font),
    std::to_array<WordField>({
    {0, &Views.Table.DisplayBetAmounts},
    {1, &Views.Table.KeyInBetAmounts},
    {2, &Views.Table.FlashBets},
    {4, &Views.Carried.EnteredAmount},
    {5, &Views.Table.DisplayPropBets},
    {6, &Views.Table.StatusBox},
    {10, &Views.RollFrequencies.Event},
    {11, &SessionsView.Include},
    {12, &SessionsView.Stat},
    {16, &RollFileEdit.optInsertRolls},
    {17, &Views.RollFiles.AutoScroll},
    {18, &Views.RollFiles.DisplayDiceTotal},
    {20, &Views.RollFiles.FontSize},
    {21, &Views.RollFiles.PrintFontSize},
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
    {35, &Views.CheckStacks.FirstShown},
    {36, &Views.CheckStacks.SortColumn},
    {37, &Views.RollFiles.HideNextRolls},
    {38, &Views.Table.StatusBoxSize},
    WordRow(39, Views.RollConsole.ButtonColor),
    {45, &Views.RollFrequencies.Scope},
    {46, &Views.RollFrequencies.SkewedDice},
    {50, &BankrollGraph.MovingAverageRolls},
    {51, &BankrollGraph.RefRolls1},
    {52, &BankrollGraph.RefRolls2},
    {53, &BankrollGraph.AutoPrint},
    {54, &BankrollGraph.GraphWidth},
    {55, &BankrollGraph.GraphScrolledBack},
}));
static_assert(TakeEachSlotOnce(
    DisplayFields,
    {.Single = {ConsoleSlot, RollFileModeSlot, FirstRollShownSlot, NextRollSlot, RollCountSlot},
     .Unused = {3, 14, 25}}));

constexpr int AnyScriptActiveSlot = 8;
constexpr auto ScriptFields = std::to_array<WordField>({
    {0, &Views.ScriptEditor.ShowSteps},
    {1, &Views.ScriptEditor.ShowLineNumbers},
    {2, &Views.ScriptEditor.ShowSyntaxLists},
    {3, &Views.ScriptEditor.AutoIndent},
    {4, &Views.ScriptEditor.Highlight},
    {5, &Views.ScriptEditor.Font.Italic},
    {6, &Views.ScriptEditor.Font.Bold},
    {7, &Views.ScriptEditor.Font.Size},
    {10, &Scripts.AllowReset[1], LastPlace},
    {18, &Scripts.AllowAct4Others[1], LastPlace},
    {26, &Scripts.AllowActProb[1], LastPlace},
});
static_assert(TakeEachSlotOnce(ScriptFields, {.Single = {AnyScriptActiveSlot}, .Unused = {9}}));

constexpr auto GraphFields = std::to_array<MoneyField>({
    {0, &BankrollGraph.GraphScaleLow},
    {1, &BankrollGraph.GraphScaleHigh},
    {2, &BankrollGraph.GraphScaleStep},
    {3, &Settings.RollDelay},
    {4, &Settings.AutoStopRolls},
});
static_assert(TakeEachSlotOnce(GraphFields));

constexpr auto HighlightFields = Joined(
    std::to_array({WordRow(1, Views.RollFiles.Highlight)}),
    HighlightFieldsOf(std::make_index_sequence<6>()));
static_assert(TakeEachSlotOnce(HighlightFields));
// clang-format on

// The roll console has one word: its display, and above it the bits of what is hidden. One that
// cannot be used leaves the console as it starts up.
void ConsoleWord(GameRecords& records) {
  constexpr int32_t DisplayMask = 7, LastDisplay = 4;
  constexpr int32_t NoRollCounter = 8, NoHyperDriveButton = 16, NoRandomButton = 32, Unknown = ~63;
  RollConsoleOptions& console = GameViews.RollConsole;
  int32_t word = console.Display | (console.HideRollCounter ? NoRollCounter : 0) |
                 (console.HideHyperDriveButton ? NoHyperDriveButton : 0) |
                 (console.HideRandomButton ? NoRandomButton : 0);
  records.Word(ConsoleSlot, word);
  if (!records.Reading()) return;
  if ((word & Unknown) != 0) word = 0;
  console.Display = (word & DisplayMask) <= LastDisplay ? word & DisplayMask : 0;
  console.HideRollCounter = (word & NoRollCounter) != 0;
  console.HideHyperDriveButton = (word & NoHyperDriveButton) != 0;
  console.HideRandomButton = (word & NoRandomButton) != 0;
}

}  // namespace

void ViewRecords(GameRecords& records, FilesInUse& files) {
  records.Words(StatisticsFields);
  records.LongText(GameViews.BetResults.Text);
  records.Words(DisplayFields);
  ConsoleWord(records);
  records.Word(RollFileModeSlot, files.RollFileMode);
  records.Word(FirstRollShownSlot, files.FirstRollShown);
  records.Word(NextRollSlot, files.NextRoll);
  records.Word(RollCountSlot, files.RollCount);
  records.LongText(RollFileEdit.txtDiceRollOutputFormat);
  records.Words(ScriptFields);
  records.Word(AnyScriptActiveSlot, files.ScriptActive[0]);
  records.Moneys(GraphFields);
  records.Words(HighlightFields);
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
