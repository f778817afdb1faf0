#include "ui/windows/small_window.h"

#include <QGuiApplication>
#include <QScreen>

#include "files/game_views.h"
#include "state/table.h"

namespace tessarel {

namespace {

enum PlaceWord : int { State, Left, Top, Width, Height };

int32_t& WordAt(int slot, PlaceWord word) {
  return GameViews.Windows[slot + word];
}

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

FloatingWindow::FloatingWindow(QWidget* parent, int slot)
    : SmallWindow(parent, Qt::Tool), slot_(slot) {}

void FloatingWindow::setVisible(bool visible) {
  const bool shows = visible && !isVisible(), hides = !visible && isVisible();
  if (shows) TakePlace();
  QWidget::setVisible(visible);
  if (shows) WordAt(slot_, State) = parentWidget() != nullptr ? -1 : 1;
  if (hides) WordAt(slot_, State) = 0;
}

void FloatingWindow::Restore() {
  const bool open = WordAt(slot_, State) != 0;
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
  const QRect kept(WordAt(slot_, Left), WordAt(slot_, Top), WordAt(slot_, Width),
                   WordAt(slot_, Height));
  if (kept.width() <= 0 || kept.height() <= 0 || !IsWithinReach(kept)) return;
  const QSize most = screen()->availableSize();
  resize(kept.size().boundedTo(most).expandedTo(minimumSizeHint()));
  move(kept.topLeft());
}

void FloatingWindow::KeepPlace() const {
  if (!isVisible() || isMinimized()) return;
  WordAt(slot_, Left) = x();
  WordAt(slot_, Top) = y();
  WordAt(slot_, Width) = width();
  WordAt(slot_, Height) = height();
}

}  // namespace tessarel
