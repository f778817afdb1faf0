// The drawn table as a widget: picture, hit map, checks, dice and what moves on it. It turns
// pointer positions into spots and hands clicks to ui/table_play.h; the core asks it to draw.
#pragma once

#include <QElapsedTimer>
#include <QImage>
#include <QPixmap>
#include <QTimer>
#include <QTransform>
#include <QWidget>
#include <functional>
#include <optional>
#include <vector>

#include "state/payoffs.h"
#include "state/table.h"
#include "state/view_state.h"
#include "ui/layout/table_layout.h"
#include "ui/paint/check_paint.h"
#include "ui/table_play.h"

namespace tessarel {

// The values of Settings.DiceAction.
enum DiceActionValue : int32_t { DiceNormal, DiceStationary, DiceCenter, DiceInWindow };

class TableView : public QWidget {
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
  void MoveHotSpot(int dx, int dy);

  int SpotUnder(QPoint pixel) const;
  QPoint PixelOf(int place, int number) const;  // where the checks of a bet stand
  QPoint PixelOfSpot(int spot) const;           // inside the region of a spot
  bool IsAnimating() const { return animating_; }

  std::function<void()> OutlookChanged;                  // another HotSpot, or another meaning
  std::function<void(int place, QPoint at)> PlayerMenu;  // a click on the current player's place
  std::function<void()> RightClick;                      // with nothing to cancel
  std::function<void()> DiceClick;
  std::function<void(double phase)> DicePhaseChanged;  // of a throw, 0 to 1

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
  // Everything that the plain picture and the hit map hang on.
  struct PictureKey {
    LayoutOptions options;
    std::array<int32_t, 49> colours{};
    std::array<int32_t, 5> textures{};
    std::vector<int64_t> payoffs;
    QSize size;
    double pixelRatio = 1;
    int degrees = 0, zoom = 100;
    QPointF shift;

    bool operator==(const PictureKey&) const = default;
  };
  // An amount on its way between the rail and its bet.
  struct Flight {
    int place = 0, number = 0;
    QPointF from, to;
    Money amount;
    qint64 began = 0;
    bool arrives = true;  // the bet shows the amount only when it is there
  };
  struct FallingCheck {
    QPointF at;
    double speed = 0;
    int denomination = 1;
  };

  PictureKey KeyInForce() const;
  void Rebuild();
  void RebuildPositions();
  bool RefreshPicture();
  QPointF PositionOf(int place, int number) const;
  QPointF ToLayout(QPointF pixel) const { return toPixels_.inverted().map(pixel); }
  double Scale() const;  // pixels a layout unit
  QRect ToPixels(const QRectF& area) const;
  PileLook LookOf(int place, int number) const;
  QRectF PileAreaOf(int place, int number, Money amount) const;

  void PaintStillThings(QPainter& painter, const QRectF& area);
  void PaintPiles(QPainter& painter, const QRectF& area);
  void PaintMovingThings(QPainter& painter);
  void PaintDice(QPainter& painter);
  void PaintCall(QPainter& painter) const;
  void RestDice();
  void PaintFocus(QPainter& painter);

  void SetHotSpot(int spot);
  void StepMotion();
  void StartFlight(int place, int number, Money before, Money now);
  void EndAnimation();
  bool IsOnDice(QPointF pixel) const;
  QPointF DiceStand() const;
  double DiceSide() const;
  QRectF DiceArea() const;
  void PressLeft(QPoint pixel);
  void PressRight();
  void ReleaseLeft(QPoint pixel, Qt::KeyboardModifiers modifiers);
  void KeepClickedPosition(int spot, QPoint pixel);

  PictureKey key_;
  TableLayout layout_;
  QTransform toPixels_;
  QPixmap plain_;
  QImage hitMap_;
  std::array<std::array<QPointF, 105>, LastPlace + 1> positions_{};
  QPointF shift_;

  PerPlace<PerNumber<Money>> shown_{};
  std::vector<Flight> flights_;
  std::vector<FallingCheck> shower_;
  QElapsedTimer clock_;
  QTimer motion_, ring_, settleSize_, tip_, centreDice_, call_;
  bool flash_ = false;
  int ringTicks_ = 0;

  bool animating_ = false;
  double dicePhase_ = 1;
  int throws_ = 0;
  std::function<void()> endAnimation_;

  bool pressed_ = false, dragging_ = false, panning_ = false;
  bool chosenByKeys_ = false;  // the HotSpot: the pointer's leaving does not give it up
  int pressedSpot_ = 0, dropSpot_ = 0;
  QPoint pressedAt_, pointer_;
  int litSpot_ = 0;
  bool litPossible_ = true;
};

// Whether the system asks programs to keep still.
bool MotionIsReduced();

}  // namespace tessarel
