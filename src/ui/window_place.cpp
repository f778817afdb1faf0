#include "ui/window_place.h"

#include <QGuiApplication>
#include <QScreen>
#include <algorithm>
#include <cstdint>

#include "files/game_views.h"

namespace tessarel {

namespace {

enum MainState : int32_t { StateNormal = 0, StateMinimised = 1, StateMaximised = 2 };

// The words of this window in GameViews.Windows: its state, left, top, width and height.
QRect StoredPlace() {
  const auto& words = GameViews.Windows;
  return {words[1], words[2], words[3], words[4]};
}

void StorePlace(MainState state, const QRect& place) {
  GameViews.Windows[0] = state;
  GameViews.Windows[1] = place.left();
  GameViews.Windows[2] = place.top();
  GameViews.Windows[3] = place.width();
  GameViews.Windows[4] = place.height();
}

// Whether enough of a stored place is on a screen of today to take hold of the window.
bool IsOnScreen(const QRect& place) {
  const auto screens = QGuiApplication::screens();
  return place.isValid() && std::any_of(screens.begin(), screens.end(), [&](QScreen* screen) {
           const QRect seen = screen->availableGeometry().intersected(place);
           return seen.width() >= 100 && seen.height() >= 50;
         });
}

}  // namespace

void TakeWindowPlace(QWidget& window) {
  const QRect place = StoredPlace();
  if (IsOnScreen(place) && place.width() >= LeastWindowWidth / 2) {
    window.setGeometry(place);
  } else {
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    window.resize(std::min(1500, screen.width() * 9 / 10), std::min(860, screen.height() * 9 / 10));
  }
  if (GameViews.Windows[0] == StateMaximised) window.setWindowState(Qt::WindowMaximized);
}

void KeepWindowPlace(const QWidget& window) {
  const bool plain = !window.isMaximized() && !window.isMinimized();
  StorePlace(window.isMaximized()   ? StateMaximised
             : window.isMinimized() ? StateMinimised
                                    : StateNormal,
             plain ? window.geometry() : window.normalGeometry());
}

}  // namespace tessarel
