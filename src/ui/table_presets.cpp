#include "ui/table_presets.h"

#include <algorithm>

#include "state/settings.h"
#include "ui/table_colours.h"

namespace tessarel {

namespace {

using Override = TablePreset::Override;

constexpr int32_t White = TableRgb(255, 255, 255), Black = 0;

// Gives several entries one colour.
std::vector<Override> Coloured(std::initializer_list<int> entries, int32_t tone) {
  std::vector<Override> overrides;
  for (const int entry : entries)
    overrides.push_back({entry, tone});
  return overrides;
}

std::vector<Override> Joined(std::initializer_list<std::vector<Override>> lists) {
  std::vector<Override> all;
  for (const std::vector<Override>& list : lists)
    all.insert(all.end(), list.begin(), list.end());
  return all;
}

// The pips of the printed dice.
std::vector<Override> Pips(int32_t tone) {
  return Coloured({colour::HardwayPips, colour::PropPips}, tone);
}

// The proposition names that stand out beside the plain ones.
std::vector<Override> Accents(int32_t tone) {
  return Coloured({colour::Seven, colour::AnyCraps, colour::AllSmall, colour::AllTall,
                   colour::MakeAll, colour::SharpShooter, colour::RideTheLine},
                  tone);
}

// The entries 0 to 16 in words.
struct Parts {
  int32_t felt, lines, railInside, railOutside, floor;
  int32_t dice, pips;
  int32_t passLine, come, donts, horn, big, point4;
};

std::array<int32_t, 17> Listed(const Parts& p) {
  return {p.felt,  p.lines, p.railInside, p.railOutside, p.floor, p.dice,
          p.pips,  p.dice,  p.pips,       p.passLine,    p.come,  p.donts,
          p.donts, p.horn,  p.big,        p.big,         p.point4};
}

TablePreset TraditionalGreen() {
  constexpr int32_t Felt = TableRgb(0, 86, 52), Yellow = TableRgb(255, 222, 96);
  return {"mnuSetTableTraditionalGreen",
          Text::TableTraditionalGreenCaption,
          Listed({Felt, White, TableRgb(58, 30, 18), TableRgb(126, 74, 36), TableRgb(24, 22, 20),
                  TableRgb(190, 18, 26), White, White, Yellow, White, White, Yellow, White}),
          White,
          TableRgb(0, 68, 42),
          Joined({Accents(Yellow), Pips(Felt)}),
          {1, 0, 6, 6, 0},
          1};
}

TablePreset Burgundy() {
  constexpr int32_t Felt = TableRgb(68, 68, 0), Wine = TableRgb(155, 0, 33);
  constexpr int32_t Rose = TableRgb(255, 205, 190);
  return {"mnuSetTableBurgundy",
          Text::TableBurgundyCaption,
          Listed({Felt, White, TableRgb(98, 8, 28), TableRgb(92, 34, 26), TableRgb(30, 10, 14),
                  Wine, White, White, Rose, White, Rose, Rose, White}),
          White,
          Wine,
          Joined({Accents(Rose), Pips(Wine)}),
          {1, 0, 6, 6, 0},
          1};
}

TablePreset HotChocolate() {
  constexpr int32_t Felt = TableRgb(66, 38, 26), Cream = TableRgb(252, 238, 214);
  constexpr int32_t Caramel = TableRgb(240, 186, 110);
  return {"mnuSetTableHotChocolate",
          Text::TableHotChocolateCaption,
          Listed({Felt, Cream, TableRgb(34, 18, 12), TableRgb(150, 96, 54), TableRgb(22, 14, 10),
                  TableRgb(120, 56, 26), Cream, Cream, Caramel, Cream, Cream, Caramel, Cream}),
          Cream,
          TableRgb(88, 54, 38),
          Joined({Accents(Caramel), Pips(Felt)}),
          {7, 0, 5, 4, 8},
          2};
}

TablePreset Oak() {
  constexpr int32_t Felt = TableRgb(94, 58, 26), Linen = TableRgb(255, 244, 220);
  constexpr int32_t Straw = TableRgb(255, 214, 130);
  return {"mnuSetTableOak",
          Text::TableOakCaption,
          Listed({Felt, Linen, TableRgb(112, 68, 30), TableRgb(172, 122, 66), TableRgb(38, 28, 18),
                  TableRgb(150, 30, 20), White, Linen, Straw, Linen, Linen, Straw, Linen}),
          Linen,
          TableRgb(112, 74, 38),
          Joined({Accents(Straw), Pips(Felt)}),
          {4, 0, 4, 4, 4},
          1};
}

TablePreset Sunrise() {
  constexpr int32_t Felt = TableRgb(128, 40, 40), Sun = TableRgb(255, 226, 120);
  constexpr int32_t Peach = TableRgb(255, 214, 184);
  return {"mnuSetTableSunrise",
          Text::TableSunriseCaption,
          Listed({Felt, TableRgb(255, 244, 230), TableRgb(92, 38, 60), TableRgb(214, 120, 44),
                  TableRgb(44, 26, 52), TableRgb(236, 130, 20), White, Sun, Sun, Peach, Peach, Sun,
                  Sun}),
          Peach,
          TableRgb(150, 62, 40),
          Joined({Coloured({17, 18, 19, 20, 21, colour::Field, colour::Midway}, Sun), Pips(Felt)}),
          {1, 0, 5, 4, 0},
          2};
}

TablePreset BlueVelvet() {
  constexpr int32_t Felt = TableRgb(30, 26, 108), Silver = TableRgb(224, 230, 255);
  constexpr int32_t Ice = TableRgb(150, 214, 255);
  return {"mnuSetTableBlueVelvet",
          Text::TableBlueVelvetCaption,
          Listed({Felt, Silver, TableRgb(22, 20, 58), TableRgb(62, 50, 82), TableRgb(12, 11, 28),
                  TableRgb(40, 60, 190), White, Silver, Ice, Silver, Silver, Ice, Silver}),
          Silver,
          TableRgb(36, 32, 96),
          Joined({Accents(Ice), Pips(Felt)}),
          {7, 0, 7, 4, 8},
          2};
}

TablePreset BlueJeans() {
  constexpr int32_t Felt = TableRgb(42, 66, 108), Thread = TableRgb(255, 206, 130);
  return {"mnuSetTableBlueJeans",
          Text::TableBlueJeansCaption,
          Listed({Felt, Thread, TableRgb(110, 66, 36), TableRgb(30, 46, 78), TableRgb(20, 22, 28),
                  TableRgb(178, 92, 30), White, White, Thread, White, White, Thread, White}),
          White,
          TableRgb(54, 80, 122),
          Joined({Accents(Thread), Pips(Felt)}),
          {3, 0, 5, 3, 2},
          1};
}

TablePreset BlackLight() {
  constexpr int32_t Felt = TableRgb(14, 4, 34), Cyan = TableRgb(70, 240, 255);
  constexpr int32_t Lime = TableRgb(170, 255, 70), Pink = TableRgb(255, 120, 235);
  constexpr int32_t Orange = TableRgb(255, 170, 60);
  return {"mnuSetTableBlackLight",
          Text::TableBlackLightCaption,
          Listed({Felt, Cyan, TableRgb(34, 10, 70), TableRgb(52, 20, 104), TableRgb(6, 2, 16),
                  TableRgb(120, 20, 220), Lime, Lime, Pink, Orange, Cyan, Pink, Lime}),
          Lime,
          TableRgb(30, 10, 64),
          Joined({Accents(Orange), Coloured({colour::HardwayDice, colour::PropDice}, Pink),
                  Coloured({colour::Field, colour::Midway, colour::World}, Cyan), Pips(Felt)}),
          {0, 0, 7, 7, 0},
          3};
}

TablePreset BlackWhite() {
  return {"mnuSetTableBlackWhite",
          Text::TableBlackWhiteCaption,
          Listed({Black, White, TableRgb(229, 229, 229), TableRgb(127, 127, 127),
                  TableRgb(40, 40, 40), White, Black, White, White, White, White, White, White}),
          White,
          TableRgb(64, 64, 64),
          Pips(Black),
          {0, 0, 0, 0, 0},
          1};
}

}  // namespace

const std::array<TablePreset, TablePresetCount>& TablePresets() {
  static const std::array<TablePreset, TablePresetCount> presets = {
      TraditionalGreen(), Burgundy(),  HotChocolate(), Oak(),       Sunrise(),
      BlueVelvet(),       BlueJeans(), BlackLight(),   BlackWhite()};
  return presets;
}

void ApplyTablePreset(int index) {
  if (index < 0 || index >= TablePresetCount) return;
  const TablePreset& preset = TablePresets()[static_cast<size_t>(index)];
  constexpr size_t FirstForms = 46;
  auto& colors = Settings.TableColor;
  std::copy(preset.parts.begin(), preset.parts.end(), colors.begin());
  std::fill(colors.begin() + preset.parts.size(), colors.begin() + FirstForms, preset.rest);
  std::fill(colors.begin() + FirstForms, colors.end(), preset.forms);
  for (const auto& [entry, tone] : preset.overrides)
    colors[static_cast<size_t>(entry)] = tone;
  Settings.TableTexture = {preset.textures};
  Settings.Spotlight = preset.spotlight;
}

void RestoreStartUpColours() {
  const SettingsState start;
  Settings.TableColor = start.TableColor;
  Settings.TableTexture = start.TableTexture;
  Settings.Spotlight = start.Spotlight;
}

}  // namespace tessarel
