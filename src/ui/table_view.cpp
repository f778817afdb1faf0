#include "ui/table_view.h"

#include <QDragEnterEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

#include "play/roll_driver.h"
#include "ui/check_drag.h"
#include "ui/paint/rail_paint.h"
#include "ui/paint/table_paint.h"

namespace tessarel {

namespace {

constexpr int SettleSizeMs = 90;

}  // namespace

TableView::TableView(QWidget* parent)
    : QWidget(parent),
      motion_(new TableMotion(picture_, this)),
      piles_(new TablePiles(picture_, this)),
      dice_(new TableDice(this)),
      pointer_(new TablePointer(picture_, *dice_, this)) {
  setMouseTracking(true);
  setAcceptDrops(true);
  setFocusPolicy(Qt::StrongFocus);
  setMinimumSize(640, 300);
  setAttribute(Qt::WA_OpaquePaintEvent);
  setCursor(Qt::ArrowCursor);
  settleSize_.setSingleShot(true);
  connect(&settleSize_, &QTimer::timeout, this, [this] {
    if (RefreshPicture()) update();
  });
  Connect();
}

void TableView::Connect() {
  const auto redraw = [this] { update(); };
  connect(motion_, &TableMotion::Moved, this, redraw);
  connect(piles_, &TablePiles::Flashed, this, redraw);
  connect(dice_, &TableDice::Changed, this, redraw);
  connect(pointer_, &TablePointer::Changed, this, redraw);
  // A press from before the throw means nothing after it.
  connect(dice_, &TableDice::Thrown, pointer_, &TablePointer::LetGo);
  connect(dice_, &TableDice::PhaseChanged, this, &TableView::DicePhaseChanged);
  connect(pointer_, &TablePointer::OutlookChanged, this, &TableView::OutlookChanged);
  connect(pointer_, &TablePointer::PlayerClicked, this, &TableView::PlayerClicked);
  connect(pointer_, &TablePointer::RightClicked, this, &TableView::RightClicked);
  connect(pointer_, &TablePointer::DiceClicked, this, &TableView::DiceClicked);
  connect(pointer_, &TablePointer::ActionGivenUp, this, &TableView::DrawTable);
  connect(pointer_, &TablePointer::Panned, this, [this](QPoint by) {
    shift_ += by;
    DrawTable();
  });
}

// --- What the core asks for --------------------------------------------------------------------

void TableView::DrawBet(int place, int number) {
  const auto change = piles_->TakeUp(place, number);
  if (!change) return;
  const auto& [spot, before, now] = *change;
  if (before != now && isVisible()) motion_->Fly(place, spot, before, now);
  update(picture_.ToPixels(piles_->AreaOf(place, spot, std::max(before, now))));
  // The bankroll on the rail changes with it.
  update(picture_.ToPixels(RailPlaceArea(place).adjusted(-4, -4, 4, 4)));
}

void TableView::DrawTable() {
  RefreshPicture();
  piles_->TakeUp();
  motion_->DropFlights();
  pointer_->Refresh();
  update();
}

void TableView::AnimateDice() {
  dice_->Throw(isVisible());
}

void TableView::ShowerChecks() {
  motion_->Shower();
}

bool TableView::RefreshPicture() {
  return picture_.Refresh({size(), devicePixelRatioF(), Degrees(), ZoomPercent(), shift_});
}

// --- How the table is seen ---------------------------------------------------------------------

int TableView::ZoomPercent() const {
  return GameViews.Pose.Zoom == 0 ? 100 : GameViews.Pose.Zoom;
}

int TableView::Degrees() const {
  return GameViews.Pose.Rotation;
}

void TableView::SetView(int zoomPercent, int degrees) {
  GameViews.Pose.Zoom = std::clamp(zoomPercent, LeastZoom, MostZoom);
  GameViews.Pose.Rotation = (degrees % 360 + 360) % 360;
  if (ZoomPercent() <= 100) shift_ = {};
  DrawTable();
}

void TableView::Zoom(double factor) {
  SetView(static_cast<int>(std::lround(ZoomPercent() * factor)), Degrees());
}

void TableView::Rotate(int degrees) {
  SetView(ZoomPercent(), Degrees() + degrees);
}

void TableView::ResetView() {
  shift_ = {};
  SetView(100, 0);
}

void TableView::SaveView(int view) {
  TablePose& saved = At(GameViews.SavedPoses, view);
  saved = GameViews.Pose;
  saved.Zoom = ZoomPercent();
}

void TableView::RestoreView(int view) {
  const TablePose& saved = At(GameViews.SavedPoses, view);
  if (saved.Zoom == 0) return;
  GameViews.Pose = saved;
  shift_ = {};
  DrawTable();
}

// --- Painting ----------------------------------------------------------------------------------

void TableView::resizeEvent(QResizeEvent*) {
  // The old picture is stretched until the size settles.
  if (picture_.IsEmpty()) {
    RefreshPicture();
  } else {
    settleSize_.start(SettleSizeMs);
  }
}

void TableView::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::StyleChange || event->type() == QEvent::FontChange) update();
}

void TableView::paintEvent(QPaintEvent* event) {
  if (picture_.IsEmpty()) RefreshPicture();
  QPainter painter(this);
  picture_.Paint(painter, event->rect(), rect());
  painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                         QPainter::SmoothPixmapTransform);
  painter.setTransform(picture_.Transform(), true);
  const QRectF area = picture_.Transform().inverted().mapRect(QRectF(event->rect()));
  PaintStillThings(painter, area);
  piles_->Paint(painter, area, *motion_, pointer_->Held());
  dice_->Paint(painter, picture_.Scale());
  motion_->Paint(painter);
  pointer_->PaintHeld(painter, *piles_);
}

void TableView::PaintStillThings(QPainter& painter, const QRectF& area) const {
  const TableLayout& layout = picture_.Layout();
  const int lit = pointer_->LitSpot(), drop = pointer_->DropSpot();
  PaintTableState(painter, layout, picture_.Scale());
  if (lit != 0 && TableIsIdle()) PaintRegionLight(painter, layout, lit, pointer_->IsLitPossible());
  if (drop != 0) PaintRegionLight(painter, layout, drop, true);
  if (hasFocus()) PaintFocus(painter);
  RailLook look;
  look.currentPlace = CurrentPlace();
  look.hoverPlace = lit >= RailSpot(1, 0) ? lit / RailSpot(1, 0) : 0;
  look.choosing = TablePlay.TableAction > ActionMovePlayer;
  look.pixelsPerUnit = picture_.Scale();
  for (int place = 1; place <= LastPlace; ++place) {
    if (RailPlaceArea(place).adjusted(-8, -8, 8, 8).intersects(area))
      PaintRailPlace(painter, place, layout, look);
  }
  for (const bool right : {false, true})
    PaintPuck(painter, PuckPosition(Table.Point, right), 40, Table.Point != 0);
}

// The spot that the arrow keys have chosen is framed, so that it can be told from a mere hover.
void TableView::PaintFocus(QPainter& painter) const {
  if (!IsBet(TablePlay.HotSpot) || underMouse()) return;
  painter.save();
  QPen pen(QColor(255, 214, 90), 3);
  pen.setDashPattern({4, 3});
  painter.setPen(pen);
  painter.setBrush(Qt::NoBrush);
  for (const Region& region : picture_.Layout().regions) {
    if (region.spot == TablePlay.HotSpot) painter.drawPath(region.outline);
  }
  painter.restore();
}

// --- The pointer -------------------------------------------------------------------------------

void TableView::mouseMoveEvent(QMouseEvent* event) {
  pointer_->Move(event->pos(), ZoomPercent() > 100);
}

void TableView::leaveEvent(QEvent*) {
  pointer_->Leave();
}

void TableView::mousePressEvent(QMouseEvent* event) {
  setFocus(Qt::MouseFocusReason);
  pointer_->Press(event->pos(), event->button());
}

void TableView::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) pointer_->Release(event->pos(), event->modifiers());
}

void TableView::wheelEvent(QWheelEvent* event) {
  if ((event->modifiers() & Qt::ControlModifier) == 0) return event->ignore();
  Zoom(event->angleDelta().y() > 0 ? 1.1 : 1 / 1.1);
}

void TableView::dragEnterEvent(QDragEnterEvent* event) {
  if (event->mimeData()->hasFormat(CheckMimeType)) event->acceptProposedAction();
}

void TableView::dragMoveEvent(QDragMoveEvent* event) {
  event->setAccepted(pointer_->MoveCheck(event->position().toPoint()));
}

void TableView::dropEvent(QDropEvent* event) {
  const int denomination = event->mimeData()->data(CheckMimeType).toInt();
  if (pointer_->DropCheck(event->position().toPoint(), denomination)) event->acceptProposedAction();
}

}  // namespace tessarel
