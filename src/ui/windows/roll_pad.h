// The grid of the roll console: draws the cells of a display and tells which one is chosen by
// mouse or keyboard.
#pragma once

#include <QWidget>

#include "play/manual_roll.h"

namespace tessarel {

class RollPad : public QWidget {
  Q_OBJECT
 public:
  explicit RollPad(QWidget* parent);

  void SetDisplay(RollPadDisplay display);
  const RollPadGrid& Grid() const { return grid_; }
  // The box of a cell of Grid() by its index, in pixels.
  QRect BoxOf(int index) const;
  // The widest hint in the language in force.
  static int WidestHint(const QFontMetrics& metrics);
  // Shows the colours, language and state of a run now in force.
  void Refresh();

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 Q_SIGNALS:
  void Chosen(Faces faces);  // a complete choice
  void StopChosen();         // instead while a run is in progress
  // What a click at the pointer or on the marked cell would do.
  void HintChanged(const QString& hint);

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  int CellAt(QPoint point) const;
  int Neighbour(int key) const;
  void Choose(int index);
  void Mark(int index);
  void TellHint();
  QString HintFor(const RollPadCell& cell) const;
  QString HintText() const;
  int LabelHeight() const;
  QRect GridArea() const;
  bool IsChosen(const RollPadCell& cell) const;
  void PaintLabels(QPainter& painter) const;
  void PaintCell(QPainter& painter, int index) const;
  void PaintCellFace(QPainter& painter, const RollPadCell& cell, const QRect& box) const;

  RollPadDisplay display_ = BasicNumbers;
  RollPadGrid grid_ = GridOf(BasicNumbers);
  RollChoice choice_;
  int hovered_ = -1;
  int marked_ = 0;  // by the keyboard
};

}  // namespace tessarel
