#include "ui/windows/small_window.h"

#include <QGuiApplication>
#include <QScreen>

#include "state/table.h"

namespace tessarel {

namespace {

// Whether enough of a window's upper edge is on a screen to take hold of it.
bool IsWithinReach(const QRect& place) {
  constexpr QSize Grip(60, 20);
  for (const QScreen* screen : QGuiApplication::screens()) {
    const QRect seen = screen->availableGeometry().intersected(place);
    const bool upperEdge = seen.top() == place.top();
    if (upperEdge && seen.width() >= Grip.width() && seen.height() >= Grip.height()) return true;
  }
  return false;
}

}  // namespace

FloatingWindow::FloatingWindow(QWidget* parent, WindowPlace WindowPlaces::*place)
    : SmallWindow(parent, Qt::Tool), kept_(place) {}

void FloatingWindow::setVisible(bool visible) {
  const bool shows = visible && !isVisible(), hides = !visible && isVisible();
  if (shows) TakePlace();
  QWidget::setVisible(visible);
  if (shows) Kept().State = parentWidget() != nullptr ? WindowOwned : WindowOpen;
  if (hides) Kept().State = WindowClosed;
}

void FloatingWindow::Restore() {
  const bool open = Kept().State != WindowClosed;
  if (open && isVisible()) TakePlace();
  if (open != isVisible()) setVisible(open);
  Refresh();
}

void FloatingWindow::moveEvent(QMoveEvent*) {
  KeepPlace();
}

void FloatingWindow::resizeEvent(QResizeEvent*) {
  KeepPlace();
}

void FloatingWindow::TakePlace() {
  const QRect kept(Kept().Left, Kept().Top, Kept().Width, Kept().Height);
  if (kept.width() <= 0 || kept.height() <= 0 || !IsWithinReach(kept)) return;
  const QSize most = screen()->availableSize();
  resize(kept.size().boundedTo(most).expandedTo(minimumSizeHint()));
  move(kept.topLeft());
}

void FloatingWindow::KeepPlace() const {
  if (!isVisible() || isMinimized()) return;
  Kept() = {Kept().State, x(), y(), width(), height()};
}

}  // namespace tessarel
