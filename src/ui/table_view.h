// The drawn table as a widget. It puts together the picture, the piles on it, what moves, the dice
// and the pointer; the core asks it to draw.
#pragma once

#include <QTimer>
#include <QWidget>

#include "ui/table/table_dice.h"
#include "ui/table/table_motion.h"
#include "ui/table/table_picture.h"
#include "ui/table/table_piles.h"
#include "ui/table/table_pointer.h"
#include "ui/table_play.h"

namespace tessarel {

class TableView : public QWidget {
  Q_OBJECT
 public:
  explicit TableView(QWidget* parent = nullptr);

  // What the core asks for.
  void DrawBet(int place, int number);
  void DrawTable();
  void AnimateDice();  // returns when the dice lie, or at a click
  void ShowerChecks();

  // How the table is seen. Kept in GameViews.Pose.
  static constexpr int LeastZoom = LeastTableZoom, MostZoom = MostTableZoom;  // percent
  int ZoomPercent() const;
  int Degrees() const;  // 0 to 359
  void SetView(int zoomPercent, int degrees);
  void Zoom(double factor);
  void Rotate(int degrees);
  void ResetView();
  void SaveView(int view);     // 0 to 9
  void RestoreView(int view);  // one never saved changes nothing

  // The keyboard's pointer: to the nearest spot in a direction, around the ends.
  void MoveHotSpot(int dx, int dy) { pointer_->Step(dx, dy); }

  int SpotUnder(QPoint pixel) const { return picture_.SpotUnder(pixel); }
  // Where the checks of a bet stand, and a point inside the region of a spot.
  QPoint PixelOf(int place, int number) const { return picture_.PixelOf(place, number); }
  QPoint PixelOfSpot(int spot) const { return picture_.PixelOfSpot(spot); }
  bool IsAnimating() const { return dice_->AreInAir(); }

 Q_SIGNALS:
  void OutlookChanged();                     // another HotSpot, or another meaning
  void PlayerClicked(int place, QPoint at);  // the current player's place
  void RightClicked();                       // with nothing to give up
  void DiceClicked();
  void DicePhaseChanged(double phase);  // of a throw, 0 to 1

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void changeEvent(QEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dragMoveEvent(QDragMoveEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  void Connect();
  bool RefreshPicture();
  void PaintStillThings(QPainter& painter, const QRectF& area) const;
  void PaintFocus(QPainter& painter) const;

  TablePicture picture_;
  TableMotion* motion_;
  TablePiles* piles_;
  TableDice* dice_;
  TablePointer* pointer_;
  QTimer settleSize_;
  QPointF shift_;
};

}  // namespace tessarel
