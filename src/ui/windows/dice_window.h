// The window in which the dice are shown with DiceAction 3: both dice large, and the total called
// below them.
#pragma once

#include <QPainter>
#include <QString>

#include "ui/windows/small_window.h"

namespace tessarel {

// The last roll in words, as the stick calls it: "Eight the hard way".
QString DiceCall();

class DiceWindow : public FloatingWindow {
  Q_OBJECT
 public:
  explicit DiceWindow(QWidget* parent);

  void Refresh() override;
  // Shows a moment of a throw, from 0 (thrown) to 1 (at rest).
  void SetPhase(double phase);
  QSize sizeHint() const override { return {280, 200}; }
  QSize minimumSizeHint() const override { return {180, 130}; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void PaintFelt(QPainter& painter) const;
  void PaintBothDice(QPainter& painter, const QRectF& area) const;
  void PaintCall(QPainter& painter, const QRectF& area) const;

  double phase_ = 1;
};

}  // namespace tessarel
