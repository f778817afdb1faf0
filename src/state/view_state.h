// What a game keeps of its windows: where they stand, how the table is turned, whose figures each
// one shows and with which options, and the chips as they lie on the drawn table. A window reads
// and writes its own members by name; which slot of a game file keeps them is known in files/. What
// comes from a file has been brought into the ranges that are stated here. 0 always stands for what
// a new game has: as the program finds best, or off.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "base/indexing.h"
#include "base/money.h"

namespace tessarel {

// --- Places of windows -------------------------------------------------------------------------

// Any value above 0 reads as open, any below as open and owned by the table.
enum WindowState : int32_t { WindowOwned = -1, WindowClosed = 0, WindowOpen = 1 };

// The state of the main window.
enum MainWindowState : int32_t { MainNormal = 0, MainMinimised = 1, MainMaximised = 2 };

// In pixels of the screen; a place may lie beyond the screens of today. A width of 0: never placed.
inline constexpr int32_t FarthestPixel = 32'000;
struct WindowPlace {
  int32_t State = WindowClosed;
  int32_t Left = 0, Top = 0, Width = 0, Height = 0;
};

// A window that has only one size.
struct WindowCorner {
  int32_t State = WindowClosed;
  int32_t Left = 0, Top = 0;
};

// A window that never comes back by itself.
struct WindowFrame {
  int32_t Left = 0, Top = 0, Width = 0, Height = 0;
};

struct WindowPlaces {
  WindowPlace Main;  // its State is a MainWindowState
  WindowPlace RollFiles, ScriptEditor, RollConsole, Dice;
  WindowPlace Sessions, EventsLog, Summary, BankrollGraph, RollTotals, RollFrequencies, BetResults,
      BetTrends, CheckStacks, Hands, HotKeys;
  WindowCorner AutoPlay, MoveTable;
  WindowFrame FileDialog;
};

// --- The table ---------------------------------------------------------------------------------

inline constexpr int LeastTableZoom = 50, MostTableZoom = 400;  // percent

// How the table is seen: angles in degrees, within a turn to either side, the rotation from 0 to
// 359.
struct TablePose {
  int32_t Rotation = 0, Tilt = 0, Lean = 0;
  int32_t Zoom = 0;  // percent, within the limits above; 0: never set, as large as fits
  bool operator==(const TablePose&) const = default;
};

struct TableOptions {
  bool DisplayBetAmounts = false, KeyInBetAmounts = false, FlashBets = false,
       DisplayPropBets = false, StatusBox = false;
  int32_t StatusBoxSize = 2;  // 1 to 3
  int32_t ChosenCheck = 0;    // the denomination 1 to 5 that a click bets
  // Where the picture of each place was dragged to on the rail, in pixels; the first is place 1.
  Indexed<int32_t, LastPlace> RailLeft{}, RailTop{};
};

// The place that a list of players shows, 0 for none.
struct ChosenPlaces {
  int32_t Table = 0;  // for whom the pointer bets
  int32_t AutoPlay = 0, Configuration = 0, BankrollGraph = 0, Scripts = 0;
};

// --- Windows of figures ------------------------------------------------------------------------

struct ViewFont {
  int32_t Size = 0;  // points, up to MostPoints
  bool Bold = false, Italic = false;
};
inline constexpr int32_t MostPoints = 96;

// A scope is an index of ScopeNames (stats/selection.h), 0 to 4. Rows are sorted by a column
// counted from 1, rising, or by its negative, falling; 0 leaves them in the order of the view.
inline constexpr int32_t MostColumns = 64;

struct RollTotalsOptions {
  int32_t Scope = 0;
  int32_t Display = 0;      // a RollTotalsDisplay, 0 to 4
  int32_t BarWidth = 0;     // 0 fine to 3 extra wide
  int32_t HighestBar = 0;   // percent at the top of the scale, up to 100
  bool SkewedDice = false;  // compared with the matrix instead of true dice
  bool Bold = false, Italic = false;
  int32_t BackColor = 0, BarColor = 0;  // as TableRgb makes them
};

struct HandsOptions {
  int32_t Scope = 0;
  bool PerHand = false;  // else counts
  ViewFont Font;
  int32_t SortColumn = 0;
};

struct SummaryOptions {
  int32_t Scope = 0;
  ViewFont Font;
  int32_t SortColumn = 0;
};

struct BetTrendsOptions {
  int32_t Scope = 0;
};

struct BetResultsOptions {
  int32_t Scope = 0;
  bool UseSeparator = false;  // of thousands
  ViewFont Font;
  std::string Text;  // of up to 256 characters
};

struct RollFrequenciesOptions {
  int32_t Event = 0;  // 0 to 90
  int32_t Scope = 0;
  bool SkewedDice = false;
  ViewFont Font;
};

struct CheckStacksOptions {
  ViewFont Font;
  int32_t FirstShown = 0;  // stack 0 to 99
  int32_t SortColumn = 0;
};

// --- Rolls and scripts -------------------------------------------------------------------------

// The panel for rolls by hand.
inline constexpr int RollKinds = 6;
struct RollConsoleOptions {
  int32_t Display = 0;  // a RollPadDisplay, 1 to 4
  bool HideRollCounter = false, HideHyperDriveButton = false, HideRandomButton = false;
  // By kind of roll, as TableRgb makes them; 0: the start-up colour.
  Indexed<int32_t, RollKinds> ButtonColor{};
};

struct HighlightColor {
  int32_t Text = 0, Back = 0;  // as TableRgb makes them
};

struct RollFilesOptions {
  int32_t AutoScroll = 0;  // 0 off, 1 top, 2 middle, 3 bottom
  bool DisplayDiceTotal = false, HideNextRolls = false;
  int32_t FontSize = 0, PrintFontSize = 0;  // points, up to MostPoints
  // The highlight of each pair of faces, (1,1), (1,2) to (6,6): 0 none, else one of the colours.
  Indexed<int32_t, 36> Highlight{};
  Indexed<HighlightColor, 6> HighlightColors{};
};

struct ScriptEditorOptions {
  bool ShowSteps = false, ShowLineNumbers = false, ShowSyntaxLists = false, AutoIndent = false,
       Highlight = false;
  ViewFont Font;
};

// --- All of it ---------------------------------------------------------------------------------

// Words of older games that have no use here. A game is saved with them as it was loaded.
struct CarriedWords {
  int32_t RollTotals = 0, FileDialog = 0, RollDisplay = 0, EnteredAmount = 0, AltKeys = 0;
};

// A chip on the table; the meaning of the columns is the drawn table's.
using ChipEntry = Indexed<int32_t, 5>;
inline constexpr int MostChips = 2000;

struct ViewState {
  WindowPlaces Windows;
  TablePose Pose;
  Indexed<TablePose, 10> SavedPoses;  // by the digit that saves them; a zoom of 0: nothing saved
  TableOptions Table;
  ChosenPlaces Players;
  RollTotalsOptions RollTotals;
  HandsOptions Hands;
  SummaryOptions Summary;
  BetTrendsOptions BetTrends;
  BetResultsOptions BetResults;
  RollFrequenciesOptions RollFrequencies;
  CheckStacksOptions CheckStacks;
  RollConsoleOptions RollConsole;
  RollFilesOptions RollFiles;
  ScriptEditorOptions ScriptEditor;
  ViewFont EventsLog;
  Money ReportAmount;  // by which the advantage and bet reports scale
  int32_t AdvantageFirstRow = 0, PayoffFirstRow = 0;  // rows scrolled over, up to 200
  int32_t PrintWinColor = 0, PrintLossColor = 0;      // of the palette of 16, by number
  CarriedWords Carried;
  std::vector<ChipEntry> Chips;  // up to MostChips; the columns have 16 bits each
};

extern ViewState GameViews;

}  // namespace tessarel
