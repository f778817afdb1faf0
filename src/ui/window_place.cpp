#include "ui/window_place.h"

#include <QGuiApplication>
#include <QScreen>
#include <algorithm>
#include <cstdint>

#include "state/view_state.h"

namespace tessarel {

namespace {

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
  const WindowPlace& kept = GameViews.Windows.Main;
  const QRect place(kept.Left, kept.Top, kept.Width, kept.Height);
  if (IsOnScreen(place) && place.width() >= LeastWindowWidth / 2) {
    window.setGeometry(place);
  } else {
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    window.resize(std::min(1500, screen.width() * 9 / 10), std::min(860, screen.height() * 9 / 10));
  }
  if (kept.State == MainMaximised) window.setWindowState(Qt::WindowMaximized);
}

void KeepWindowPlace(const QWidget& window) {
  const bool plain = !window.isMaximized() && !window.isMinimized();
  const QRect place = plain ? window.geometry() : window.normalGeometry();
  const MainWindowState state = window.isMaximized()   ? MainMaximised
                                : window.isMinimized() ? MainMinimised
                                                       : MainNormal;
  GameViews.Windows.Main = {state, place.left(), place.top(), place.width(), place.height()};
}

}  // namespace tessarel
