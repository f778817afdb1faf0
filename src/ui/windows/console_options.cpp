#include "ui/windows/console_options.h"

#include <algorithm>
#include <array>

#include "files/game_views.h"
#include "state/table.h"

namespace tessarel {

namespace {

constexpr int DisplayWord = 13, FirstColorWord = 39;

// Bits of the display word above the display itself. They tell what is hidden, so that a word that
// has only the display shows everything.
constexpr int32_t DisplayMask = 7, NoRollCounter = 8, NoHyperDriveButton = 16, NoRandomButton = 32;

constexpr std::array<QRgb, RollKinds> DefaultColors = {0xFFF1EDE2, 0xFFB3392F, 0xFFE9BE5C,
                                                       0xFF8DBB93, 0xFFAEC6E4, 0xFFF1EDE2};

int32_t& ColorWord(RollKind kind) {
  return GameViews.Display[FirstColorWord + static_cast<int>(kind)];
}

}  // namespace

ConsoleOptions ReadConsoleOptions() {
  const int32_t word = GameViews.Display[DisplayWord];
  ConsoleOptions options;
  if (word < 0 || word > (DisplayMask | NoRollCounter | NoHyperDriveButton | NoRandomButton)) {
    return options;
  }
  const int32_t display = word & DisplayMask;
  if (display >= BasicNumbers && display <= SingleDice) {
    options.Display = static_cast<RollPadDisplay>(display);
  }
  options.RollCounter = (word & NoRollCounter) == 0;
  options.HyperDriveButton = (word & NoHyperDriveButton) == 0;
  options.RandomButton = (word & NoRandomButton) == 0;
  return options;
}

void StoreConsoleOptions(const ConsoleOptions& options) {
  GameViews.Display[DisplayWord] = options.Display | (options.RollCounter ? 0 : NoRollCounter) |
                                   (options.HyperDriveButton ? 0 : NoHyperDriveButton) |
                                   (options.RandomButton ? 0 : NoRandomButton);
}

RollKind KindOf(const RollPadCell& cell) {
  switch (cell.Total) {
    case 0:
      return RollKind::SingleDice;
    case 2:
    case 3:
    case 12:
      return RollKind::Craps;
    case 7:
      return RollKind::Seven;
    case 11:
      return RollKind::Eleven;
    default:
      const bool pair = cell.Dice.die1 != 0 && cell.Dice.die1 == cell.Dice.die2;
      return pair ? RollKind::HardWays : RollKind::Numbers;
  }
}

// A word of 0 stands for the start-up colour; black is kept as the darkest red instead.
QColor ButtonColor(RollKind kind) {
  const int32_t word = ColorWord(kind);
  if (word <= 0 || word > 0xFFFFFF) return QColor(At(DefaultColors, static_cast<int>(kind)));
  return QColor(word & 255, word >> 8 & 255, word >> 16 & 255);
}

void SetButtonColor(RollKind kind, const QColor& color) {
  ColorWord(kind) = std::max(1, color.red() + 256 * color.green() + 65536 * color.blue());
}

void ResetButtonColors() {
  for (int kind = 0; kind < RollKinds; ++kind)
    ColorWord(static_cast<RollKind>(kind)) = 0;
}

}  // namespace tessarel
