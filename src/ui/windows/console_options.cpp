#include "ui/windows/console_options.h"

#include <algorithm>
#include <array>

#include "state/table.h"

namespace tessarel {

namespace {

constexpr std::array<QRgb, RollKinds> DefaultColors = {0xFFF1EDE2, 0xFFB3392F, 0xFFE9BE5C,
                                                       0xFF8DBB93, 0xFFAEC6E4, 0xFFF1EDE2};

int32_t& KeptColor(RollKind kind) {
  return GameViews.RollConsole.ButtonColor[static_cast<int>(kind)];
}

}  // namespace

RollPadDisplay DisplayInForce() {
  const int32_t display = GameViews.RollConsole.Display;
  return display == 0 ? BasicNumbers : static_cast<RollPadDisplay>(display);
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

// 0 stands for the start-up colour; black is kept as the darkest red instead.
QColor ButtonColor(RollKind kind) {
  const int32_t color = KeptColor(kind);
  if (color == 0) return QColor(At(DefaultColors, static_cast<int>(kind)));
  return QColor(color & 255, color >> 8 & 255, color >> 16 & 255);
}

void SetButtonColor(RollKind kind, const QColor& color) {
  KeptColor(kind) = std::max(1, color.red() + 256 * color.green() + 65536 * color.blue());
}

void ResetButtonColors() {
  GameViews.RollConsole.ButtonColor = {};
}

}  // namespace tessarel
