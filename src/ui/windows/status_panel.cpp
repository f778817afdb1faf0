#include "ui/windows/status_panel.h"

#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <array>

#include "state/table.h"
#include "state/view_state.h"
#include "texts/say.h"
#include "ui/paint/check_paint.h"
#include "ui/text.h"
#include "ui/windows/small_die.h"

namespace tessarel {

namespace {

constexpr std::array<int, 3> PointSizes = {9, 11, 14};
constexpr int MostBlocksInColumn = 4;
constexpr int Padding = 8;

const QColor Plate(0x12, 0x16, 0x1E, 0xE6), PlateEdge(0x46, 0x4E, 0x5C);
const QColor NameInk(0xFF, 0xFF, 0xFF), CaptionInk(0xB9, 0xC2, 0xCF), FigureInk(0xF2, 0xF4, 0xF7);
const QColor WonInk(0x5F, 0xD6, 0xC4), LostInk(0xFF, 0xA9, 0x4F);

// Up for a win, down for a loss, beside the sign and the colour.
void PaintArrow(QPainter& painter, const QRectF& box, int sign) {
  const double tip = sign > 0 ? box.top() : box.bottom(),
               foot = sign > 0 ? box.bottom() : box.top();
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(sign > 0 ? WonInk : LostInk);
  painter.drawPolygon(
      QPolygonF({{box.left(), foot}, {box.right(), foot}, {box.center().x(), tip}}));
  painter.restore();
}

}  // namespace

StatusPanel::StatusPanel(QWidget* parent) : SmallWindow(parent) {
  setObjectName("picStatus");
  setCursor(Qt::OpenHandCursor);
  if (parent != nullptr) parent->installEventFilter(this);
  Refresh();
}

QFont StatusPanel::BlockFont(bool bold) const {
  QFont shown = font();
  shown.setPointSize(At(PointSizes, GameViews.Table.StatusBoxSize - 1));
  shown.setBold(bold);
  return shown;
}

int StatusPanel::LineHeight() const {
  return QFontMetrics(BlockFont(true)).height();
}

// The sample sets the width; captions that are longer than its own widen it.
int StatusPanel::BlockWidth() const {
  const QFontMetrics metrics(BlockFont(false)), bold(BlockFont(true));
  int width = bold.horizontalAdvance(Shown(StatusBoxSample));
  for (const Block& block : blocks_) {
    for (const StatusRow& row : block.Rows) {
      const int mark = LineHeight();
      width = std::max(width, metrics.horizontalAdvance(Shown(row.Caption)) + mark +
                                  bold.horizontalAdvance(Shown(row.Value)));
    }
  }
  return width;
}

int StatusPanel::BlockHeight() const {
  constexpr int Lines = 5;  // the name and the rows
  return Lines * LineHeight() + LineHeight() / 2;
}

int StatusPanel::Columns() const {
  const int blocks = static_cast<int>(blocks_.size());
  return (blocks + MostBlocksInColumn - 1) / MostBlocksInColumn;
}

int StatusPanel::RowsOfBlocks() const {
  return (static_cast<int>(blocks_.size()) + Columns() - 1) / Columns();
}

QSize StatusPanel::sizeHint() const {
  if (blocks_.empty()) {
    const QFontMetrics metrics(BlockFont(false));
    const QRect text = metrics.boundingRect(QRect(0, 0, BlockWidth() * 3 / 2, 1000),
                                            Qt::TextWordWrap, Shown(Text::ClickOpenPosition));
    return text.size() + QSize(2 * Padding + 2, 2 * Padding);
  }
  const int width = Columns() * BlockWidth() + (Columns() - 1) * 2 * Padding + 2 * Padding;
  return {width, RowsOfBlocks() * BlockHeight() - LineHeight() / 2 + 2 * Padding};
}

void StatusPanel::Refresh() {
  blocks_.clear();
  QString spoken;
  ForEachPlayer([this, &spoken](int place) {
    blocks_.push_back({place, place == Table.Shooter, Table.PlayerName[place], StatusBox(place)});
    spoken += Shown(blocks_.back().Name) + '\n';
    for (const StatusRow& row : blocks_.back().Rows)
      spoken += Shown(row.Caption + row.Value) + '\n';
  });
  setAccessibleDescription(spoken);
  const QSize size = sizeHint();
  if (size != this->size()) resize(size);
  if (parentWidget() != nullptr) MoveWithin(pos());
  update();
}

void StatusPanel::MoveWithin(QPoint corner) {
  const QSize room = parentWidget()->size() - size();
  move(std::clamp(corner.x(), 0, std::max(0, room.width())),
       std::clamp(corner.y(), 0, std::max(0, room.height())));
}

bool StatusPanel::eventFilter(QObject* watched, QEvent* event) {
  if (watched == parentWidget() && event->type() == QEvent::Resize) MoveWithin(pos());
  return SmallWindow::eventFilter(watched, event);
}

void StatusPanel::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || parentWidget() == nullptr) {
    event->ignore();
    return;
  }
  dragging_ = true;
  held_ = event->position().toPoint();
  setCursor(Qt::ClosedHandCursor);
}

void StatusPanel::mouseMoveEvent(QMouseEvent* event) {
  if (dragging_) MoveWithin(mapToParent(event->position().toPoint() - held_));
}

void StatusPanel::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) {
    event->ignore();
    return;
  }
  dragging_ = false;
  setCursor(Qt::OpenHandCursor);
}

// The bar has the player's colour; the die stands beside the shooter's name.
void StatusPanel::PaintName(QPainter& painter, const Block& block, const QRect& line) const {
  const int bar = std::max(3, line.height() / 4), die = (line.height() * 3 / 4) | 1;
  painter.fillRect(line.left(), line.top() + 2, bar, line.height() - 4, PlaceColour(block.Place));
  QRect text = line.adjusted(bar + 5, 0, 0, 0);
  if (block.Shoots) text.setRight(line.right() - die - 4);
  painter.setFont(BlockFont(true));
  painter.setPen(NameInk);
  const QString name =
      painter.fontMetrics().elidedText(Shown(block.Name), Qt::ElideRight, text.width());
  painter.drawText(text, Qt::AlignLeft | Qt::AlignVCenter, name);
  if (!block.Shoots) return;
  const QPoint corner(line.right() - die + 1, line.top() + (line.height() - die) / 2);
  const SmallDieLook red = {QColor(0xC8, 0x2E, 0x2E), Qt::white, QColor(0xFF, 0xB4, 0xAC)};
  PaintSmallDie(painter, corner, die, 5, red);
}

void StatusPanel::PaintRow(QPainter& painter, const StatusRow& row, const QRect& line) const {
  painter.setFont(BlockFont(false));
  painter.setPen(CaptionInk);
  painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter, Shown(row.Caption));
  painter.setFont(BlockFont(row.Sign != 0));
  painter.setPen(row.Sign > 0 ? WonInk : row.Sign < 0 ? LostInk : FigureInk);
  const QString value = Shown(row.Value);
  painter.drawText(line, Qt::AlignRight | Qt::AlignVCenter, value);
  if (row.Sign == 0) return;
  const double side = line.height() * 0.42;
  const double right = line.right() - painter.fontMetrics().horizontalAdvance(value) - side * 0.8;
  PaintArrow(painter, QRectF(right - side, line.center().y() - side / 2 + 1, side, side * 0.85),
             row.Sign);
}

void StatusPanel::PaintBlock(QPainter& painter, const Block& block, QPoint corner) const {
  const int height = LineHeight();
  QRect line(corner, QSize(BlockWidth(), height));
  PaintName(painter, block, line);
  for (const StatusRow& row : block.Rows) {
    line.translate(0, height);
    PaintRow(painter, row, line);
  }
}

void StatusPanel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(PlateEdge);
  painter.setBrush(Plate);
  painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 6, 6);
  painter.setRenderHint(QPainter::Antialiasing, false);
  if (blocks_.empty()) {
    painter.setFont(BlockFont(false));
    painter.setPen(FigureInk);
    painter.drawText(rect().adjusted(Padding, Padding, -Padding, -Padding),
                     Qt::AlignCenter | Qt::TextWordWrap, Shown(Text::ClickOpenPosition));
    return;
  }
  for (int k = 0; k < static_cast<int>(blocks_.size()); ++k) {
    const int column = k / RowsOfBlocks(), row = k % RowsOfBlocks();
    const QPoint corner(Padding + column * (BlockWidth() + 2 * Padding),
                        Padding + row * BlockHeight());
    PaintBlock(painter, blocks_[static_cast<size_t>(k)], corner);
  }
}

}  // namespace tessarel
