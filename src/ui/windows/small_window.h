// What the small windows over the table have in common: they are brought up to date on request, and
// those with a frame of their own keep their place in GameViews.Windows.
#pragma once

#include <QWidget>

namespace tessarel {

class SmallWindow : public QWidget {
  Q_OBJECT
 public:
  using QWidget::QWidget;
  // Shows the language, figures and settings now in force.
  virtual void Refresh() = 0;
};

// A window that stays above its parent's. Shown, it stands where it was left, if that place is on a
// screen; moved, resized, shown or hidden, it writes its words.
class FloatingWindow : public SmallWindow {
  Q_OBJECT
 public:
  // `slot` is the first of its five words: state, left, top, width, height.
  FloatingWindow(QWidget* parent, int slot);

  void setVisible(bool visible) override;
  // Shows or hides it as the words say.
  void Restore();

 protected:
  void moveEvent(QMoveEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void TakePlace();
  void KeepPlace() const;

  int slot_;
};

}  // namespace tessarel
