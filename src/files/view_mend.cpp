// Brings what a loaded game says of its windows into the ranges of state/view_state.h: a place or a
// number that is too far is moved to the nearest end, a choice that does not exist becomes the one
// of a new game.
#include <algorithm>
#include <initializer_list>

#include "files/game_blocks.h"
#include "state/view_state.h"

namespace tessarel {

namespace {

void Limit(std::initializer_list<int32_t*> values, int32_t low, int32_t high) {
  for (int32_t* value : values)
    *value = std::clamp(*value, low, high);
}

void ChooseFromZero(std::initializer_list<int32_t*> choices, int32_t last) {
  for (int32_t* choice : choices) {
    if (*choice < 0 || *choice > last) *choice = 0;
  }
}

void MendColors(std::initializer_list<int32_t*> colors) {
  ChooseFromZero(colors, 0xFFFFFF);
}

// --- Places ------------------------------------------------------------------------------------

void MendPixels(std::initializer_list<int32_t*> positions) {
  Limit(positions, -FarthestPixel, FarthestPixel);
}

void MendSizes(std::initializer_list<int32_t*> sizes) {
  Limit(sizes, 0, FarthestPixel);
}

void MendPlace(WindowPlace& place) {
  MendPixels({&place.Left, &place.Top});
  MendSizes({&place.Width, &place.Height});
}

void MendWindow(WindowPlace& place) {
  Limit({&place.State}, WindowOwned, WindowOpen);
  MendPlace(place);
}

void MendCorner(WindowCorner& corner) {
  Limit({&corner.State}, WindowOwned, WindowOpen);
  MendPixels({&corner.Left, &corner.Top});
}

void MendWindows(WindowPlaces& windows) {
  ChooseFromZero({&windows.Main.State}, MainMaximised);
  MendPlace(windows.Main);
  for (WindowPlace* place :
       {&windows.RollFiles, &windows.ScriptEditor, &windows.RollConsole, &windows.Dice,
        &windows.Sessions, &windows.EventsLog, &windows.Summary, &windows.BankrollGraph,
        &windows.RollTotals, &windows.RollFrequencies, &windows.BetResults, &windows.BetTrends,
        &windows.CheckStacks, &windows.Hands, &windows.HotKeys}) {
    MendWindow(*place);
  }
  MendCorner(windows.AutoPlay);
  MendCorner(windows.MoveTable);
  MendPixels({&windows.FileDialog.Left, &windows.FileDialog.Top});
  MendSizes({&windows.FileDialog.Width, &windows.FileDialog.Height});
}

// --- The table ---------------------------------------------------------------------------------

void MendPose(TablePose& pose) {
  constexpr int32_t Turn = 360;
  pose.Rotation = (pose.Rotation % Turn + Turn) % Turn;
  pose.Tilt %= Turn;
  pose.Lean %= Turn;
  if (pose.Zoom != 0) Limit({&pose.Zoom}, LeastTableZoom, MostTableZoom);
}

void MendTable(TableOptions& table) {
  constexpr TableOptions Usual;
  if (table.StatusBoxSize < 1 || table.StatusBoxSize > 3) table.StatusBoxSize = Usual.StatusBoxSize;
  ChooseFromZero({&table.ChosenCheck}, 5);
  for (auto* positions : {&table.RailLeft, &table.RailTop}) {
    for (int32_t& position : *positions)
      MendPixels({&position});
  }
}

void MendPlayers(ChosenPlaces& players) {
  ChooseFromZero({&players.Table, &players.AutoPlay, &players.Configuration, &players.BankrollGraph,
                  &players.Scripts},
                 LastPlace);
}

// --- Windows of figures, rolls and scripts -----------------------------------------------------

void MendScopesAndColumns(ViewState& views) {
  constexpr int32_t LastScope = 4;
  ChooseFromZero({&views.RollTotals.Scope, &views.Hands.Scope, &views.Summary.Scope,
                  &views.BetTrends.Scope, &views.BetResults.Scope, &views.RollFrequencies.Scope},
                 LastScope);
  for (int32_t* column :
       {&views.Hands.SortColumn, &views.Summary.SortColumn, &views.CheckStacks.SortColumn}) {
    if (*column < -MostColumns || *column > MostColumns) *column = 0;
  }
}

void MendFonts(ViewState& views) {
  ChooseFromZero({&views.Hands.Font.Size, &views.Summary.Font.Size, &views.BetResults.Font.Size,
                  &views.RollFrequencies.Font.Size, &views.CheckStacks.Font.Size,
                  &views.ScriptEditor.Font.Size, &views.EventsLog.Size, &views.RollFiles.FontSize,
                  &views.RollFiles.PrintFontSize},
                 MostPoints);
}

void MendRollViews(ViewState& views) {
  constexpr int32_t LastRollCode = 90;
  RollTotalsOptions& totals = views.RollTotals;
  ChooseFromZero({&totals.Display}, 4);
  ChooseFromZero({&totals.BarWidth}, 3);
  ChooseFromZero({&totals.HighestBar}, 100);
  MendColors({&totals.BackColor, &totals.BarColor});
  ChooseFromZero({&views.RollFrequencies.Event}, LastRollCode);
  for (int32_t& color : views.RollConsole.ButtonColor)
    MendColors({&color});
}

void MendRollFiles(RollFilesOptions& files) {
  ChooseFromZero({&files.AutoScroll}, 3);
  for (int32_t& highlight : files.Highlight)
    ChooseFromZero({&highlight}, static_cast<int32_t>(files.HighlightColors.size()));
  for (HighlightColor& color : files.HighlightColors)
    MendColors({&color.Text, &color.Back});
}

}  // namespace

void MendViews() {
  ViewState& views = GameViews;
  MendWindows(views.Windows);
  MendPose(views.Pose);
  std::ranges::for_each(views.SavedPoses, MendPose);
  MendTable(views.Table);
  MendPlayers(views.Players);
  MendScopesAndColumns(views);
  MendFonts(views);
  MendRollViews(views);
  MendRollFiles(views.RollFiles);
  ChooseFromZero({&views.CheckStacks.FirstShown}, 99);
  ChooseFromZero({&views.PrintWinColor, &views.PrintLossColor}, 15);
  Limit({&views.AdvantageFirstRow, &views.PayoffFirstRow}, 0, 200);
}

}  // namespace tessarel
