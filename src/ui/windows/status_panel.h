// The box with every player's bankroll, rail, bets and win or loss, in three sizes, drawn as text
// on a dark plate. It lies within its parent and can be dragged there; the right button and the
// wheel go to the parent.
#pragma once

#include <QMouseEvent>
#include <QPainter>
#include <string>
#include <vector>

#include "stats/status_box.h"
#include "ui/windows/small_window.h"

namespace tessarel {

class StatusPanel : public SmallWindow {
  Q_OBJECT
 public:
  explicit StatusPanel(QWidget* parent);
  void Refresh() override;
  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override { event->ignore(); }
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Block {
    int Place = 0;
    bool Shoots = false;
    std::string Name;
    std::vector<StatusRow> Rows;
  };
  QFont BlockFont(bool bold) const;
  int LineHeight() const;
  int BlockWidth() const;
  int BlockHeight() const;
  int Columns() const;
  int RowsOfBlocks() const;
  void MoveWithin(QPoint corner);
  void PaintBlock(QPainter& painter, const Block& block, QPoint corner) const;
  void PaintName(QPainter& painter, const Block& block, const QRect& line) const;
  void PaintRow(QPainter& painter, const StatusRow& row, const QRect& line) const;

  std::vector<Block> blocks_;
  QPoint held_;
  bool dragging_ = false;
};

}  // namespace tessarel
