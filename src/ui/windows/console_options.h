// The options of the roll console as a game file keeps them: the display, what else the panel
// shows, and the colours of its buttons by kind of roll.
#pragma once

#include <QColor>

#include "play/manual_roll.h"

namespace tessarel {

struct ConsoleOptions {
  RollPadDisplay Display = BasicNumbers;
  bool RollCounter = true, HyperDriveButton = true, RandomButton = true;
};

// A word that cannot be used counts as the start-up options.
ConsoleOptions ReadConsoleOptions();
void StoreConsoleOptions(const ConsoleOptions& options);

// The kinds of roll that have a colour of their own, in the order of their words.
enum class RollKind : int { Numbers, Seven, Craps, Eleven, HardWays, SingleDice };
inline constexpr int RollKinds = 6;

RollKind KindOf(const RollPadCell& cell);

QColor ButtonColor(RollKind kind);
void SetButtonColor(RollKind kind, const QColor& color);
void ResetButtonColors();

}  // namespace tessarel
