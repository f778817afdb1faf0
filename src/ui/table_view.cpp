#include "ui/table_view.h"

#include <QApplication>
#include <QCursor>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QToolTip>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

#include "base/front_end.h"
#include "play/auto_roll.h"
#include "state/settings.h"
#include "ui/check_drag.h"
#include "ui/layout/hit_map.h"
#include "ui/paint/table_paint.h"
#include "ui/text.h"

namespace tessarel {

namespace {

constexpr int RingTickMs = 125, TicksOfFlash = 4;
constexpr int SettleSizeMs = 90, TipDelayMs = 450;

std::vector<int64_t> PayoffsInForce() {
  std::vector<int64_t> figures;
  figures.reserve(500);
  const auto add = [&figures](const auto& rows) {
    for (const PayoffRow& row : rows) {
      for (const Money figure : {row.PayNum, row.PayForm, row.PayDen})
        figures.push_back(figure.Raw());
    }
  };
  add(Payoffs.Payoff);
  add(Payoffs.FieldPayoff);
  add(Payoffs.SevenPointSevenPayoff);
  add(Payoffs.MidwayPayoff);
  add(Payoffs.SharpShooterPayoff);
  add(Payoffs.RideTheLinePayoff);
  add(Payoffs.FirePayoff);
  return figures;
}

}  // namespace

TableView::TableView(QWidget* parent) : QWidget(parent) {
  setMouseTracking(true);
  setAcceptDrops(true);
  setFocusPolicy(Qt::StrongFocus);
  setMinimumSize(640, 300);
  setAttribute(Qt::WA_OpaquePaintEvent);
  setCursor(Qt::ArrowCursor);
  clock_.start();

  motion_.setInterval(16);
  connect(&motion_, &QTimer::timeout, this, [this] { StepMotion(); });
  ring_.setInterval(RingTickMs);
  connect(&ring_, &QTimer::timeout, this, [this] {
    if (++ringTicks_ % TicksOfFlash != 0) return;
    const bool on = GameViews.Table.FlashBets && !flash_;
    if (std::exchange(flash_, on) != on) update();
  });
  ring_.start();
  settleSize_.setSingleShot(true);
  connect(&settleSize_, &QTimer::timeout, this, [this] {
    if (RefreshPicture()) update();
  });
  tip_.setSingleShot(true);
  connect(&tip_, &QTimer::timeout, this, [this] {
    const QString text = Shown(InfoTipOf(TablePlay.HotSpot));
    if (!text.isEmpty()) QToolTip::showText(mapToGlobal(pointer_ + QPoint(14, 18)), text, this);
  });
  for (QTimer* shown : {&centreDice_, &call_}) {
    shown->setSingleShot(true);
    connect(shown, &QTimer::timeout, this, [this] { update(); });
  }
}

// --- The picture -------------------------------------------------------------------------------

TableView::PictureKey TableView::KeyInForce() const {
  PictureKey key;
  key.options = OptionsInForce(GameViews.Table.DisplayPropBets);
  key.colours = Settings.TableColor;
  key.textures = Settings.TableTexture;
  key.payoffs = PayoffsInForce();
  key.size = size();
  key.pixelRatio = devicePixelRatioF();
  key.degrees = Degrees();
  key.zoom = ZoomPercent();
  key.shift = shift_;
  return key;
}

// Returns whether the plain picture had to be drawn again.
bool TableView::RefreshPicture() {
  PictureKey key = KeyInForce();
  if (key == key_ && !plain_.isNull()) return false;
  key_ = std::move(key);
  Rebuild();
  return true;
}

void TableView::RebuildPositions() {
  for (int place = 1; place <= LastPlace; ++place) {
    for (int number = 1; number <= LastBet; ++number)
      At(At(positions_, place), number) = CheckPosition(layout_, place, number);
    for (int stack = FirstStack + 1; stack <= FirstStack + 4; ++stack)
      At(At(positions_, place), stack) = CheckPosition(layout_, place, stack);
  }
}

QPointF TableView::PositionOf(int place, int number) const {
  const QPointF own = At(At(positions_, place), number);
  if (Settings.AutoArrangeChips || number > LastBet) return own;
  // Checks that are not arranged stand where they were put, if that is still inside their region.
  const QPointF put(Table.BetX[place][number], Table.BetY[place][number]);
  if (put.isNull()) return own;
  const bool inside = std::any_of(
      layout_.regions.begin(), layout_.regions.end(),
      [&](const Region& region) { return region.spot == number && region.outline.contains(put); });
  return inside ? put : own;
}

void TableView::Rebuild() {
  layout_ = MakeTableLayout(key_.options);
  toPixels_ =
      LayoutTransform(width(), height(), key_.degrees, key_.zoom / 100.0, QPointF(key_.shift));
  RebuildPositions();
  plain_ = QPixmap(size() * key_.pixelRatio);
  plain_.setDevicePixelRatio(key_.pixelRatio);
  QPainter painter(&plain_);
  painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                         QPainter::SmoothPixmapTransform);
  painter.setTransform(toPixels_);
  PaintTable(painter, layout_, Scale());
  hitMap_ = DrawHitMap(layout_, toPixels_, size());
}

double TableView::Scale() const {
  return std::sqrt(std::abs(toPixels_.determinant()));
}

void TableView::resizeEvent(QResizeEvent*) {
  // The old picture is stretched until the size settles.
  if (plain_.isNull()) {
    RefreshPicture();
  } else {
    settleSize_.start(SettleSizeMs);
  }
}

void TableView::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::StyleChange || event->type() == QEvent::FontChange) update();
}

// --- What the core asks for --------------------------------------------------------------------

void TableView::DrawBet(int place, int number) {
  if (place < 1 || place > LastPlace || number < 1) return;
  int spot = number;
  if (IsStack(number)) {
    const auto& visible = Table.VisibleStack[place];
    const auto at = std::find(visible.begin() + 1, visible.end(), number);
    if (at == visible.end()) return;
    spot = FirstStack + static_cast<int>(at - visible.begin());
  }
  const Money before = At(At(shown_, place), spot), now = Bet(place, number);
  if (before != now) StartFlight(place, spot, before, now);
  At(At(shown_, place), spot) = now;
  update(ToPixels(PileAreaOf(place, spot, std::max(before, now))));
  // The bankroll on the rail changes with it.
  update(ToPixels(RailPlaceArea(place).adjusted(-4, -4, 4, 4)));
}

void TableView::DrawTable() {
  RefreshPicture();
  for (int place = 1; place <= LastPlace; ++place) {
    for (int number = 1; number <= LastBet; ++number)
      At(At(shown_, place), number) = Bet(place, number);
    for (int stack = 1; stack <= 4; ++stack) {
      At(At(shown_, place), FirstStack + stack) = Bet(place, Table.VisibleStack[place][stack]);
    }
  }
  flights_.clear();
  SetHotSpot(TablePlay.HotSpot);
  update();
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

// --- The pointer -------------------------------------------------------------------------------

int TableView::SpotUnder(QPoint pixel) const {
  return SpotOfPixel(SpotAt(hitMap_, pixel));
}

QPoint TableView::PixelOf(int place, int number) const {
  return toPixels_.map(At(At(positions_, place), number)).toPoint();
}

QPoint TableView::PixelOfSpot(int spot) const {
  if (spot >= 1 && spot <= FirstStack + 4) return PixelOf(std::max(1, CurrentPlace()), spot);
  for (const Region& region : layout_.regions) {
    if (region.spot == spot) return toPixels_.map(region.outline.boundingRect().center()).toPoint();
  }
  return {};
}

void TableView::SetHotSpot(int spot) {
  const bool other = std::exchange(TablePlay.HotSpot, spot) != spot;
  const bool possible = OutlookOfSpot(spot).possible;
  if (!other && possible == litPossible_ && litSpot_ == spot) {
    if (OutlookChanged) OutlookChanged();
    return;
  }
  litSpot_ = spot;
  litPossible_ = possible;
  update();
  if (other) {
    QToolTip::hideText();
    tip_.start(TipDelayMs);
  }
  if (OutlookChanged) OutlookChanged();
}

void TableView::mouseMoveEvent(QMouseEvent* event) {
  // The move that snaps the pointer to a chosen spot is nobody's.
  if (event->pos() != pointer_) chosenByKeys_ = false;
  pointer_ = event->pos();
  if (panning_) {
    shift_ += pointer_ - pressedAt_;
    pressedAt_ = pointer_;
    DrawTable();
    return;
  }
  const bool far = (pointer_ - pressedAt_).manhattanLength() >= QApplication::startDragDistance();
  if (pressed_ && !dragging_ && far) {
    const int number = NumberOfSpot(pressedSpot_);
    const bool own = number != 0 && CurrentPlace() != 0 && Bet(CurrentPlace(), number) > Money();
    dragging_ = own && TablePlay.TableAction == ActionNormal;
    panning_ = !dragging_ && pressedSpot_ == 0 && ZoomPercent() > 100;
    if (dragging_) setCursor(Qt::ClosedHandCursor);
  }
  if (dragging_) {
    dropSpot_ = SpotUnder(pointer_);
    update();
    return;
  }
  const int spot = SpotUnder(pointer_);
  setCursor(spot != 0 || IsOnDice(event->position()) ? Qt::PointingHandCursor : Qt::ArrowCursor);
  SetHotSpot(spot);
  tip_.start(TipDelayMs);
}

void TableView::leaveEvent(QEvent*) {
  if (!dragging_ && !chosenByKeys_) SetHotSpot(0);
  tip_.stop();
}

void TableView::mousePressEvent(QMouseEvent* event) {
  setFocus(Qt::MouseFocusReason);
  pointer_ = event->pos();
  const bool right = event->button() == Qt::RightButton;
  if (animating_) {
    EndAnimation();
    if (right && Table.AutoRollOn && RightClick) RightClick();
    return;
  }
  if (event->button() == Qt::LeftButton) PressLeft(event->pos());
  if (right) PressRight();
}

// Any button applies a keyed amount; a command that waits is given up first.
void TableView::PressRight() {
  if (TablePlay.TableAction != ActionNormal) {
    TablePlay.TableAction = ActionNormal;
    return DrawTable();
  }
  const int spot = SpotUnder(pointer_);
  if (!TablePlay.EnteredAmount.empty() && NumberOfSpot(spot) != 0) {
    ClickSpot(spot);
    SetHotSpot(SpotUnder(pointer_));
  } else if (RightClick) {
    RightClick();
  }
}

void TableView::PressLeft(QPoint pixel) {
  pressed_ = true;
  pressedAt_ = pixel;
  pressedSpot_ = SpotUnder(pixel);
}

void TableView::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || !pressed_) return;
  ReleaseLeft(event->pos(), event->modifiers());
}

void TableView::ReleaseLeft(QPoint pixel, Qt::KeyboardModifiers modifiers) {
  pressed_ = false;
  if (std::exchange(panning_, false)) return;
  if (std::exchange(dragging_, false)) {
    setCursor(Qt::ArrowCursor);
    DragBet(pressedSpot_, dropSpot_);
    SetHotSpot(SpotUnder(pixel));
    return update();
  }
  if (TablePlay.TableAction == ActionNormal && IsOnDice(pixel)) {
    if (DiceClick) DiceClick();
    return;
  }
  const int spot = SpotUnder(pixel);
  if (spot != pressedSpot_) return;
  const int place = spot / RailSpot(1, 0);
  const bool ownPlace =
      spot >= RailSpot(1, 0) && place == CurrentPlace() && TablePlay.TableAction == ActionNormal;
  if (ownPlace && PlayerMenu) return PlayerMenu(place, mapToGlobal(pixel));
  KeepClickedPosition(spot, pixel);
  const bool takesOff = (modifiers & (Qt::ShiftModifier | Qt::ControlModifier)) != 0;
  ClickSpot(spot, takesOff ? ClickKind::TakeOff : ClickKind::Add);
  SetHotSpot(SpotUnder(pixel));
}

// Checks that are not arranged stand where the first of them is put.
void TableView::KeepClickedPosition(int spot, QPoint pixel) {
  const int place = CurrentPlace();
  if (Settings.AutoArrangeChips || place == 0 || !IsBet(spot)) return;
  if (Bet(place, spot) > Money()) return;
  const QPoint at = ToLayout(pixel).toPoint();
  Table.BetX[place][spot] = at.x();
  Table.BetY[place][spot] = at.y();
}

void TableView::wheelEvent(QWheelEvent* event) {
  if ((event->modifiers() & Qt::ControlModifier) == 0) return event->ignore();
  Zoom(event->angleDelta().y() > 0 ? 1.1 : 1 / 1.1);
}

void TableView::MoveHotSpot(int dx, int dy) {
  const int place = std::max(1, CurrentPlace());
  const bool none = !IsBet(TablePlay.HotSpot);
  const QPointF from = none ? At(At(positions_, place), bet::PassLine)
                            : At(At(positions_, place), TablePlay.HotSpot);
  int best = none ? bet::PassLine : 0;
  double least = 1e9;
  // A second round from the other end of the table is the wrap around.
  for (int round = 0; round < 2 && best == 0; ++round) {
    const QPointF start = round == 0 ? from : from - QPointF(dx * LayoutWidth, dy * LayoutHeight);
    for (int number = 1; number <= LastBet; ++number) {
      if (number == TablePlay.HotSpot || !HasRegion(layout_, number)) continue;
      const QPointF way = At(At(positions_, place), number) - start;
      const double ahead = way.x() * dx + way.y() * dy;
      const double aside = std::abs(way.x() * dy) + std::abs(way.y() * dx);
      if (ahead < 4 || (round == 0 && aside > 2 * ahead)) continue;
      const double cost = ahead + 2.5 * aside;
      if (cost < least) {
        least = cost;
        best = number;
      }
    }
  }
  if (best == 0) return;
  SetHotSpot(best);
  chosenByKeys_ = true;
  if (!Settings.SnapMouse) return;
  pointer_ = PixelOf(place, best);
  QCursor::setPos(mapToGlobal(pointer_));
}

// --- Checks from the bar -----------------------------------------------------------------------

void TableView::dragEnterEvent(QDragEnterEvent* event) {
  if (event->mimeData()->hasFormat(CheckMimeType)) event->acceptProposedAction();
}

void TableView::dragMoveEvent(QDragMoveEvent* event) {
  SetHotSpot(SpotUnder(event->position().toPoint()));
  event->setAccepted(NumberOfSpot(TablePlay.HotSpot) != 0);
}

void TableView::dropEvent(QDropEvent* event) {
  const int spot = SpotUnder(event->position().toPoint());
  if (NumberOfSpot(spot) == 0) return;
  event->acceptProposedAction();
  ChooseCheck(event->mimeData()->data(CheckMimeType).toInt());
  TablePlay.EnteredAmount.clear();
  ClickSpot(spot);
}

}  // namespace tessarel
