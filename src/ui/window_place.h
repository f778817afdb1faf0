// Where the main window stands: kept with the game, and taken up again if a screen of today has it.
#pragma once

#include <QWidget>

namespace tessarel {

inline constexpr int LeastWindowWidth = 1024, LeastWindowHeight = 700;

void TakeWindowPlace(QWidget& window);
void KeepWindowPlace(const QWidget& window);

}  // namespace tessarel
