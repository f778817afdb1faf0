// What the small windows over the table have in common: they are brought up to date on request, and
// those with a frame of their own keep their place in GameViews.Windows.
#pragma once

#include <QWidget>

#include "state/view_state.h"

namespace tessarel {

class SmallWindow : public QWidget {
  Q_OBJECT
 public:
  using QWidget::QWidget;
  // Shows the language, figures and settings now in force.
  virtual void Refresh() = 0;
};

// A window that stays above its parent's. Shown, it stands where it was left, if that place is on a
// screen; moved, resized, shown or hidden, it writes that place.
class FloatingWindow : public SmallWindow {
  Q_OBJECT
 public:
  FloatingWindow(QWidget* parent, WindowPlace WindowPlaces::*place);

  void setVisible(bool visible) override;
  // Shows or hides it as the game keeps it.
  void Restore();

 protected:
  void moveEvent(QMoveEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void TakePlace();
  void KeepPlace() const;

  WindowPlace& Kept() const { return GameViews.Windows.*kept_; }

  WindowPlace WindowPlaces::*kept_;
};

}  // namespace tessarel
