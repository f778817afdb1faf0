// What the roll console shows: its display, and the colours of its buttons by kind of roll.
#pragma once

#include <QColor>

#include "play/manual_roll.h"
#include "state/view_state.h"

namespace tessarel {

RollPadDisplay DisplayInForce();

// The kinds of roll that have a colour of their own, in the order of ButtonColor.
enum class RollKind : int { Numbers, Seven, Craps, Eleven, HardWays, SingleDice };

RollKind KindOf(const RollPadCell& cell);

QColor ButtonColor(RollKind kind);
void SetButtonColor(RollKind kind, const QColor& color);
void ResetButtonColors();

}  // namespace tessarel
