// What a game file keeps for the windows: where they stand, how the table is turned and zoomed, the
// options that only a window has a use for, and the chips as they lie on the drawn table. The words
// stand under their slots in the records and go through a load and a save as they are; a window
// that uses one checks its range.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "base/indexing.h"
#include "base/money.h"
#include "base/record_file.h"

namespace tessarel {

// A chip on the table; the meaning of the columns is the drawn table's.
using ChipEntry = Indexed<int32_t, 5>;
inline constexpr int MostChips = 2000;

struct GameViewsState {
  using WordRow = Indexed<int32_t, Record::Words>;
  using MoneyRow = Indexed<int32_t, Record::Moneys>;

  WordRow Windows{}, MoreWindows{};  // state, left, top, width and height of each window
  WordRow SavedViews{};              // 10 views of 4 words: rotation, two angles, zoom
  WordRow Table{};                   // the view now shown, and the places chosen in player lists
  WordRow Log{};                     // the font of the events log
  MoneyRow General{}, Comps{};
  Money ReportAmount;         // by which the advantage list and the bet reports scale
  WordRow Statistics{};       // roll totals, hands, summary, trends, bet results
  WordRow Display{};          // the table's menus, check stacks, frequencies, roll files
  int32_t StatusBoxSize = 2;  // 1 to 3
  WordRow Editor{};           // the script editor
  WordRow RollColours{};      // highlights of the dice in the list of rolls
  std::string BetResultsText;
  std::vector<ChipEntry> Chips;  // up to MostChips; the columns have 16 bits each
};

extern GameViewsState GameViews;

}  // namespace tessarel
