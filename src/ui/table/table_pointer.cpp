#include "ui/table/table_pointer.h"

#include <QApplication>
#include <QCursor>
#include <QToolTip>
#include <algorithm>
#include <cmath>
#include <utility>

#include "state/settings.h"
#include "ui/table_play.h"
#include "ui/text.h"

namespace tessarel {

namespace {

constexpr int TipDelayMs = 450;

}  // namespace

TablePointer::TablePointer(const TablePicture& picture, TableDice& dice, QWidget* table)
    : QObject(table), picture_(picture), dice_(dice), table_(table) {
  tip_.setSingleShot(true);
  connect(&tip_, &QTimer::timeout, this, &TablePointer::ShowTip);
}

bool TablePointer::IsOnDice(QPoint pixel) const {
  return dice_.Cover(picture_.ToLayout(pixel));
}

// --- Hovering ----------------------------------------------------------------------------------

void TablePointer::ShowTip() {
  const QString text = Shown(InfoTipOf(TablePlay.HotSpot));
  const QPoint below = table_->mapToGlobal(pointer_ + QPoint(14, 18));
  if (!text.isEmpty()) QToolTip::showText(below, text, table_);
}

void TablePointer::SetHotSpot(int spot) {
  const bool other = std::exchange(TablePlay.HotSpot, spot) != spot;
  const bool possible = OutlookOfSpot(spot).possible;
  if (other || possible != litPossible_ || litSpot_ != spot) {
    litSpot_ = spot;
    litPossible_ = possible;
    Q_EMIT Changed();
  }
  if (other) {
    QToolTip::hideText();
    tip_.start(TipDelayMs);
  }
  Q_EMIT OutlookChanged();
}

void TablePointer::Refresh() {
  SetHotSpot(TablePlay.HotSpot);
}

void TablePointer::Move(QPoint pixel, bool canPan) {
  // The move that snaps the pointer to a chosen spot is nobody's.
  if (pixel != pointer_) chosenByKeys_ = false;
  pointer_ = pixel;
  if (panning_) {
    const QPoint by = pointer_ - std::exchange(pressedAt_, pointer_);
    Q_EMIT Panned(by);
    return;
  }
  const bool far = (pointer_ - pressedAt_).manhattanLength() >= QApplication::startDragDistance();
  if (pressed_ && !dragging_ && far) BeginDrag(canPan);
  if (dragging_) {
    dropSpot_ = picture_.SpotUnder(pointer_);
    Q_EMIT Changed();
    return;
  }
  const int spot = picture_.SpotUnder(pointer_);
  table_->setCursor(spot != 0 || IsOnDice(pixel) ? Qt::PointingHandCursor : Qt::ArrowCursor);
  SetHotSpot(spot);
  tip_.start(TipDelayMs);
}

void TablePointer::Leave() {
  if (!dragging_ && !chosenByKeys_) SetHotSpot(0);
  tip_.stop();
}

// --- Buttons -----------------------------------------------------------------------------------

void TablePointer::LetGo() {
  pressed_ = dragging_ = panning_ = false;
}

void TablePointer::BeginDrag(bool canPan) {
  const int number = NumberOfSpot(pressedSpot_);
  const bool own = number != 0 && CurrentPlace() != 0 && Bet(CurrentPlace(), number) > Money();
  dragging_ = own && TablePlay.TableAction == ActionNormal;
  panning_ = !dragging_ && pressedSpot_ == 0 && canPan;
  if (dragging_) table_->setCursor(Qt::ClosedHandCursor);
}

void TablePointer::Press(QPoint pixel, Qt::MouseButton button) {
  pointer_ = pixel;
  const bool right = button == Qt::RightButton;
  if (dice_.AreInAir()) {
    dice_.Stop();
    if (right && Table.AutoRollOn) Q_EMIT RightClicked();
    return;
  }
  if (right) PressRight();
  if (button != Qt::LeftButton) return;
  pressed_ = true;
  pressedAt_ = pixel;
  pressedSpot_ = picture_.SpotUnder(pixel);
}

// Any button applies a keyed amount; a command that waits is given up first.
void TablePointer::PressRight() {
  if (TablePlay.TableAction != ActionNormal) {
    TablePlay.TableAction = ActionNormal;
    Q_EMIT ActionGivenUp();
    return;
  }
  const int spot = picture_.SpotUnder(pointer_);
  if (!TablePlay.EnteredAmount.empty() && NumberOfSpot(spot) != 0) {
    ClickSpot(spot);
    SetHotSpot(picture_.SpotUnder(pointer_));
  } else {
    Q_EMIT RightClicked();
  }
}

void TablePointer::Release(QPoint pixel, Qt::KeyboardModifiers modifiers) {
  if (!std::exchange(pressed_, false)) return;
  if (std::exchange(panning_, false)) return;
  if (std::exchange(dragging_, false)) {
    table_->setCursor(Qt::ArrowCursor);
    DragBet(pressedSpot_, dropSpot_);
    SetHotSpot(picture_.SpotUnder(pixel));
    Q_EMIT Changed();
  } else if (TablePlay.TableAction == ActionNormal && IsOnDice(pixel)) {
    Q_EMIT DiceClicked();
  } else if (picture_.SpotUnder(pixel) == pressedSpot_) {
    ClickAt(pixel, modifiers);
  }
}

void TablePointer::ClickAt(QPoint pixel, Qt::KeyboardModifiers modifiers) {
  const int spot = picture_.SpotUnder(pixel);
  const int place = spot / RailSpot(1, 0);
  const bool ownPlace =
      spot >= RailSpot(1, 0) && place == CurrentPlace() && TablePlay.TableAction == ActionNormal;
  if (ownPlace) {
    Q_EMIT PlayerClicked(place, table_->mapToGlobal(pixel));
    return;
  }
  KeepClickedPosition(spot, pixel);
  const bool takesOff = (modifiers & (Qt::ShiftModifier | Qt::ControlModifier)) != 0;
  ClickSpot(spot, takesOff ? ClickKind::TakeOff : ClickKind::Add);
  SetHotSpot(picture_.SpotUnder(pixel));
}

// Checks that are not arranged stand where the first of them is put.
void TablePointer::KeepClickedPosition(int spot, QPoint pixel) {
  const int place = CurrentPlace();
  if (Settings.AutoArrangeChips || place == 0 || !IsBet(spot)) return;
  if (Bet(place, spot) > Money()) return;
  const QPoint at = picture_.ToLayout(pixel).toPoint();
  Table.BetX[place][spot] = at.x();
  Table.BetY[place][spot] = at.y();
}

// --- What is in hand ---------------------------------------------------------------------------

HeldPile TablePointer::Held() const {
  return dragging_ ? HeldPile{CurrentPlace(), pressedSpot_} : HeldPile{};
}

void TablePointer::PaintHeld(QPainter& painter, const TablePiles& piles) const {
  if (!dragging_) return;
  PileLook look = piles.LookOf(CurrentPlace(), pressedSpot_);
  look.showAmount = true;
  PaintPile(painter, picture_.ToLayout(pointer_), Bet(CurrentPlace(), NumberOfSpot(pressedSpot_)),
            look);
}

bool TablePointer::MoveCheck(QPoint pixel) {
  SetHotSpot(picture_.SpotUnder(pixel));
  return NumberOfSpot(TablePlay.HotSpot) != 0;
}

bool TablePointer::DropCheck(QPoint pixel, int denomination) {
  const int spot = picture_.SpotUnder(pixel);
  if (NumberOfSpot(spot) == 0) return false;
  ChooseCheck(denomination);
  TablePlay.EnteredAmount.clear();
  ClickSpot(spot);
  return true;
}

// --- The arrow keys ----------------------------------------------------------------------------

int TablePointer::NearestBet(int dx, int dy) const {
  const int place = std::max(1, CurrentPlace());
  if (!IsBet(TablePlay.HotSpot)) return bet::PassLine;
  const QPointF from = picture_.ArrangedAt(place, TablePlay.HotSpot);
  int best = 0;
  double least = 1e9;
  // A second round from the other end of the table is the wrap around.
  for (int round = 0; round < 2 && best == 0; ++round) {
    const QPointF start = round == 0 ? from : from - QPointF(dx * LayoutWidth, dy * LayoutHeight);
    for (int number = 1; number <= LastBet; ++number) {
      if (number == TablePlay.HotSpot || !HasRegion(picture_.Layout(), number)) continue;
      const QPointF way = picture_.ArrangedAt(place, number) - start;
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
  return best;
}

void TablePointer::Step(int dx, int dy) {
  const int spot = NearestBet(dx, dy);
  if (spot == 0) return;
  SetHotSpot(spot);
  chosenByKeys_ = true;
  if (!Settings.SnapMouse) return;
  pointer_ = picture_.PixelOf(std::max(1, CurrentPlace()), spot);
  QCursor::setPos(table_->mapToGlobal(pointer_));
}

}  // namespace tessarel
