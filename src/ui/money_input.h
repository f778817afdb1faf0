// Boxes in which amounts are typed: they take digits, one decimal point and so many decimals.
#pragma once

#include <QLineEdit>
#include <optional>

#include "base/money.h"

namespace tessarel {

// Lets through what MoneyKeyFilter lets through, from keys and from the clipboard alike; the
// decimal key of the number pad is a point whatever sign the keyboard gives it. A text the box
// holds already stays.
void TakeMoneyOnly(QLineEdit& box, int decimals);

// The amount in such a box; 0 for an empty one.
Money MoneyIn(const QLineEdit& box);

}  // namespace tessarel
