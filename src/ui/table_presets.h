// The colour schemes of the table: nine presets, each a whole set of colours with its textures and
// spotlight, and the scheme that the program starts with. The table menu offers them.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>
#include <vector>

#include "texts/say.h"

namespace tessarel {

struct TablePreset {
  struct Override {
    int entry;
    int32_t colour;
  };
  std::string_view menu;            // the name of its command
  Text caption;                     // with shortcut marks
  std::array<int32_t, 17> parts;    // entries 0 to 16 of Settings.TableColor
  int32_t rest;                     // entries 17 to 45
  int32_t forms;                    // the last three, backgrounds of windows
  std::vector<Override> overrides;  // what differs from `rest`
  std::array<int32_t, 5> textures;
  int32_t spotlight;
};

inline constexpr int TablePresetCount = 9;
const std::array<TablePreset, TablePresetCount>& TablePresets();

// Puts preset 0 to 8 in force; any other number changes nothing. The caller redraws the table.
void ApplyTablePreset(int index);

// Puts the scheme of the start in force.
void RestoreStartUpColours();

}  // namespace tessarel
