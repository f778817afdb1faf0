#include "ui/windows/roll_pad.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <algorithm>
#include <array>
#include <cmath>

#include "texts/say.h"
#include "ui/text.h"
#include "ui/windows/console_options.h"
#include "ui/windows/small_die.h"

namespace tessarel {

namespace {

constexpr int Margin = 2, Gap = 3;  // around the grid, and between two cells

// The least and the usual size of a cell, for text 16 pixels high.
struct CellSize {
  QSize least, usual;
};
constexpr std::array<CellSize, RollPadDisplays> CellSizes = {{
    {{40, 34}, {58, 46}},  // basic numbers
    {{36, 22}, {44, 30}},  // triangle
    {{40, 24}, {54, 34}},  // box
    {{34, 34}, {50, 50}},  // single dice
}};

bool IsDark(const QColor& color) {
  return qGray(color.rgb()) < 128;
}

QString Figures(int number) {
  return QString::number(number);
}

// Dots below a total: one for each pair of faces that makes it.
void PaintWays(QPainter& painter, const QRect& box, int ways, const QColor& color) {
  painter.setPen(Qt::NoPen);
  painter.setBrush(color);
  const double radius = std::max(1.2, box.height() / 26.0), step = radius * 3.4;
  const QPointF first(box.center().x() + 0.5 - step * (ways - 1) / 2.0,
                      box.bottom() - box.height() * 0.14);
  for (int k = 0; k < ways; ++k)
    painter.drawEllipse(first + QPointF(step * k, 0), radius, radius);
}

}  // namespace

RollPad::RollPad(QWidget* parent) : QWidget(parent) {
  setObjectName("RollPad");
  setMouseTracking(true);
  setFocusPolicy(Qt::StrongFocus);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void RollPad::SetDisplay(RollPadDisplay display) {
  if (display != display_) {
    display_ = display;
    grid_ = GridOf(display);
    choice_ = {};
    hovered_ = -1;
    marked_ = 0;
    updateGeometry();
  }
  Refresh();
}

void RollPad::Refresh() {
  setAccessibleName(Shown(Text::ConsoleTitle));
  update();
  TellHint();
}

int RollPad::LabelHeight() const {
  const bool labels = display_ == ComboTriangle || display_ == SingleDice;
  return labels ? fontMetrics().height() + 2 : 0;
}

QSize RollPad::sizeHint() const {
  const QSize cell = CellSizes[static_cast<size_t>(display_ - 1)].usual;
  const double scale = std::max(1.0, fontMetrics().height() / 16.0);
  const int labels = LabelHeight() * (display_ == SingleDice ? grid_.Rows : 1);
  return QSize(static_cast<int>(cell.width() * scale) * grid_.Columns + 2 * Margin,
               static_cast<int>(cell.height() * scale) * grid_.Rows + 2 * Margin + labels);
}

QSize RollPad::minimumSizeHint() const {
  const QSize cell = CellSizes[static_cast<size_t>(display_ - 1)].least;
  const int labels = LabelHeight() * (display_ == SingleDice ? grid_.Rows : 1);
  return {cell.width() * grid_.Columns + 2 * Margin,
          cell.height() * grid_.Rows + 2 * Margin + labels};
}

QRect RollPad::GridArea() const {
  const int below = display_ == ComboTriangle ? LabelHeight() : 0;
  return rect().adjusted(Margin, Margin, -Margin, -Margin - below);
}

QRect RollPad::BoxOf(int index) const {
  const RollPadCell& cell = grid_.Cells[static_cast<size_t>(index)];
  const QRect area = GridArea();
  const auto x = [&](int column) { return area.left() + area.width() * column / grid_.Columns; };
  const auto y = [&](int row) { return area.top() + area.height() * row / grid_.Rows; };
  const int above = display_ == SingleDice ? LabelHeight() : 0;
  const QPoint corner(x(cell.Column), y(cell.Row) + above);
  return QRect(corner,
               QPoint(x(cell.Column + cell.ColumnSpan) - 1 - Gap, y(cell.Row + 1) - 1 - Gap))
      .translated(Gap / 2, Gap / 2);
}

int RollPad::CellAt(QPoint point) const {
  for (int k = 0; k < static_cast<int>(grid_.Cells.size()); ++k) {
    if (BoxOf(k).contains(point)) return k;
  }
  return -1;
}

bool RollPad::IsChosen(const RollPadCell& cell) const {
  if (display_ != SingleDice) return false;
  return cell.Dice.die1 != 0 ? cell.Dice.die1 == choice_.Chosen.die1
                             : cell.Dice.die2 == choice_.Chosen.die2;
}

QString RollPad::HintFor(const RollPadCell& cell) const {
  if (display_ == BasicNumbers) return Shown(Say(Text::TotalHint, Typed(Figures(cell.Total))));
  Faces dice = cell.Dice;
  const bool first = dice.die1 != 0;
  if (dice.die1 == 0) dice.die1 = choice_.Chosen.die1;
  if (dice.die2 == 0) dice.die2 = choice_.Chosen.die2;
  if (dice.die1 == 0 || dice.die2 == 0) {
    const int face = first ? dice.die1 : dice.die2;
    return Shown(Say(Text::SingleHint, first ? "1" : "2", Typed(Figures(face))));
  }
  return Shown(Say(Text::PairHint, Typed(Figures(dice.die1)), Typed(Figures(dice.die2)),
                   Typed(Figures(dice.die1 + dice.die2))));
}

QString RollPad::HintText() const {
  if (RollPadStopsRun()) return Shown(Text::StopHint);
  const int index = hovered_ >= 0 ? hovered_ : hasFocus() ? marked_ : -1;
  return index < 0 ? Shown(Text::ChooseHint) : HintFor(grid_.Cells[static_cast<size_t>(index)]);
}

int RollPad::WidestHint(const QFontMetrics& metrics) {
  const std::array<QString, 5> hints = {Shown(Text::ChooseHint), Shown(Say(Text::TotalHint, "12")),
                                        Shown(Say(Text::PairHint, "6", "6", "12")),
                                        Shown(Say(Text::SingleHint, "2", "6")),
                                        Shown(Text::StopHint)};
  int widest = 0;
  for (const QString& hint : hints)
    widest = std::max(widest, metrics.horizontalAdvance(hint));
  return widest;
}

void RollPad::TellHint() {
  Q_EMIT HintChanged(HintText());
}

// The signal is the last thing done: the roll may take long, and the window may be gone after it.
void RollPad::Choose(int index) {
  if (RollPadStopsRun()) {
    Q_EMIT StopChosen();
    return;
  }
  const auto faces = choice_.Take(grid_.Cells[static_cast<size_t>(index)]);
  update();
  TellHint();
  if (faces) Q_EMIT Chosen(*faces);
}

void RollPad::Mark(int index) {
  marked_ = index;
  hovered_ = -1;
  update();
  TellHint();
}

void RollPad::mousePressEvent(QMouseEvent* event) {
  const int index = CellAt(event->position().toPoint());
  if (event->button() != Qt::LeftButton || index < 0) {
    event->ignore();
    return;
  }
  marked_ = index;
  Choose(index);
}

void RollPad::mouseMoveEvent(QMouseEvent* event) {
  const int index = CellAt(event->position().toPoint());
  if (index == hovered_) return;
  hovered_ = index;
  setCursor(index < 0 ? Qt::ArrowCursor : Qt::PointingHandCursor);
  update();
  TellHint();
}

void RollPad::leaveEvent(QEvent*) {
  hovered_ = -1;
  update();
  TellHint();
}

void RollPad::focusInEvent(QFocusEvent*) {
  update();
  TellHint();
}

void RollPad::focusOutEvent(QFocusEvent*) {
  update();
  TellHint();
}

// The nearest cell in the direction of an arrow key; the marked one at the edge.
int RollPad::Neighbour(int key) const {
  const QPoint from = BoxOf(marked_).center();
  int best = marked_;
  double least = 0;
  for (int k = 0; k < static_cast<int>(grid_.Cells.size()); ++k) {
    const QPoint way = BoxOf(k).center() - from;
    const bool alongX = key == Qt::Key_Left || key == Qt::Key_Right;
    const int sign = key == Qt::Key_Left || key == Qt::Key_Up ? -1 : 1;
    const int ahead = sign * (alongX ? way.x() : way.y());
    const int aside = std::abs(alongX ? way.y() : way.x());
    const bool sameRow =
        grid_.Cells[static_cast<size_t>(k)].Row == grid_.Cells[static_cast<size_t>(marked_)].Row;
    if (ahead <= 0 || (alongX ? !sameRow : sameRow)) continue;
    const double distance = ahead + 2.0 * aside;
    if (best != marked_ && distance >= least) continue;
    best = k;
    least = distance;
  }
  return best;
}

void RollPad::keyPressEvent(QKeyEvent* event) {
  const int last = static_cast<int>(grid_.Cells.size()) - 1;
  switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
      return Mark(Neighbour(event->key()));
    case Qt::Key_Home:
      return Mark(0);
    case Qt::Key_End:
      return Mark(last);
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
      if (event->isAutoRepeat()) return;
      return Choose(marked_);
    case Qt::Key_Escape:
      if (choice_.Chosen.die1 == 0 && choice_.Chosen.die2 == 0) break;
      choice_ = {};
      return Refresh();
    default:
      break;
  }
  QWidget::keyPressEvent(event);
}

bool RollPad::event(QEvent* event) {
  if (event->type() == QEvent::FontChange) updateGeometry();
  return QWidget::event(event);
}

// The total under each column of the triangle, and whose row it is above each row of single dice.
void RollPad::PaintLabels(QPainter& painter) const {
  painter.setPen(palette().color(QPalette::WindowText));
  for (int k = 0; k < static_cast<int>(grid_.Cells.size()); ++k) {
    const RollPadCell& cell = grid_.Cells[static_cast<size_t>(k)];
    const QRect box = BoxOf(k);
    if (display_ == ComboTriangle && cell.Row == grid_.Rows - 1) {
      const QRect label(box.left(), box.bottom() + 1, box.width(), LabelHeight());
      painter.drawText(label, Qt::AlignCenter, Figures(cell.Total));
    } else if (display_ == SingleDice && cell.Column == 0) {
      const QRect label(box.left(), box.top() - LabelHeight(), width(), LabelHeight());
      painter.drawText(label, Qt::AlignLeft | Qt::AlignVCenter,
                       Shown(Text::Die) + ' ' + Figures(cell.Row + 1));
    }
  }
}

void RollPad::PaintCellFace(QPainter& painter, const RollPadCell& cell, const QRect& box) const {
  const QColor ink =
      IsDark(ButtonColor(KindOf(cell))) ? QColor(0xFFFFFF) : QColor(0x20, 0x20, 0x26);
  if (display_ == BasicNumbers) {
    QFont font = painter.font();
    font.setBold(true);
    font.setPixelSize(std::max(14, box.height() * 46 / 100));
    painter.setFont(font);
    painter.setPen(ink);
    const QRect upper = box.adjusted(0, 0, 0, -box.height() * 18 / 100);
    painter.drawText(upper, Qt::AlignCenter, Figures(cell.Total));
    PaintWays(painter, box, 6 - std::abs(7 - cell.Total), ink);
    return;
  }
  const bool single = display_ == SingleDice;
  const int gap = single ? 0 : std::max(2, box.height() / 10), dice = single ? 1 : 2;
  const int room =
      std::min((box.width() - gap * (dice + 1)) / dice, box.height() - (single ? 12 : 6));
  const int side = std::clamp(room, 8, 44);
  const int left = box.left() + (box.width() - dice * side - (dice - 1) * gap) / 2;
  const QPoint corner(left, box.top() + (box.height() - side) / 2);
  const int face = cell.Dice.die1 != 0 ? cell.Dice.die1 : cell.Dice.die2;
  PaintSmallDie(painter, corner, side, face);
  if (!single) PaintSmallDie(painter, corner + QPoint(side + gap, 0), side, cell.Dice.die2);
}

void RollPad::PaintCell(QPainter& painter, int index) const {
  const RollPadCell& cell = grid_.Cells[static_cast<size_t>(index)];
  const QRect box = BoxOf(index);
  const QColor color = ButtonColor(KindOf(cell));
  const bool hovered = index == hovered_, chosen = IsChosen(cell);
  painter.save();
  if (RollPadStopsRun()) painter.setOpacity(0.45);
  QLinearGradient body(box.topLeft(), box.bottomLeft());
  body.setColorAt(0, hovered ? color.lighter(116) : color.lighter(106));
  body.setColorAt(1, hovered ? color.lighter(104) : color.darker(108));
  painter.setBrush(body);
  painter.setPen(QPen(color.darker(hovered ? 220 : 150), 1));
  painter.drawRoundedRect(QRectF(box).adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
  PaintCellFace(painter, cell, box);
  painter.setBrush(Qt::NoBrush);
  const QColor accent = palette().color(QPalette::Highlight);
  if (chosen || (hasFocus() && index == marked_)) {
    painter.setPen(QPen(accent, chosen ? 3 : 2));
    painter.drawRoundedRect(QRectF(box).adjusted(1, 1, -1, -1), 4, 4);
  }
  painter.restore();
}

void RollPad::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  PaintLabels(painter);
  for (int k = 0; k < static_cast<int>(grid_.Cells.size()); ++k)
    PaintCell(painter, k);
}

}  // namespace tessarel
