#include "ui/table/table_dice.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QScopedValueRollback>
#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

#include "state/settings.h"
#include "state/table.h"
#include "ui/layout/table_layout.h"
#include "ui/paint/check_paint.h"
#include "ui/paint/lettering.h"
#include "ui/table/easing.h"
#include "ui/table/table_motion.h"
#include "ui/windows/dice_window.h"

namespace tessarel {

namespace {

constexpr int FrameMs = 16;
constexpr double ThrowMs = 600;
constexpr int CentreMs = 1500, CallMs = 2500;
constexpr double StandSide = 46, CentreSide = 84;  // of a die, in layout units

// How long the dice tumble: shorter when Auto-Roll leaves less time between two rolls.
double TumbleMs() {
  if (!Table.AutoRollOn) return ThrowMs;
  const double delay = static_cast<double>(Settings.RollDelay.Raw()) / 10;  // milliseconds
  return std::clamp(delay / 2, 60.0, ThrowMs);
}

// Where a thrown die is at `t` from 0 to 1: out over the felt to the far wall, then back to its
// stand in smaller and smaller bounces.
QPointF ThrownAt(QPointF start, QPointF wall, QPointF rest, double t) {
  constexpr double Turn = 0.55;
  const double eased = EaseOut(t);
  const bool out = eased < Turn;
  const QPointF at =
      out ? Between(start, wall, eased / Turn) : Between(wall, rest, (eased - Turn) / (1 - Turn));
  const double bounce = std::abs(std::sin(eased * 3 * std::numbers::pi)) * 60 * (1 - eased);
  return at - QPointF(0, bounce);
}

QPointF Apart(int die, double side) {
  return QPointF(die == 0 ? -side * 0.62 : side * 0.62, 0);
}

}  // namespace

TableDice::TableDice(QObject* parent) : QObject(parent) {
  for (QTimer* shown : {&centre_, &call_}) {
    shown->setSingleShot(true);
    connect(shown, &QTimer::timeout, this, &TableDice::Changed);
  }
}

QPointF TableDice::Stand() const {
  const bool centre = Settings.DiceAction == DiceCenter && (inAir_ || centre_.isActive());
  return centre ? FeltArea().center() : DiceRest();
}

double TableDice::Side() const {
  return Stand() == DiceRest() ? StandSide : CentreSide;
}

bool TableDice::Cover(QPointF point) const {
  const double side = Side();
  const QRectF area(Stand() - QPointF(1.4 * side, 0.8 * side), QSizeF(2.8 * side, 1.6 * side));
  return Settings.DiceAction != DiceInWindow && area.contains(point);
}

// --- The throw ---------------------------------------------------------------------------------

void TableDice::Throw(bool isSeen) {
  ++throws_;
  if (inAir_ || !isSeen) {
    Q_EMIT Changed();
    return;
  }
  if (!MotionIsReduced()) {
    const QScopedValueRollback<bool> flying(inAir_, true);
    Tumble();
  }
  Rest();
}

void TableDice::Tumble() {
  const QScopedValueRollback<double> atRestAfterwards(phase_, 0);
  Q_EMIT Thrown();
  Q_EMIT PhaseChanged(0);
  QEventLoop loop;
  connect(this, &TableDice::Stopped, &loop, &QEventLoop::quit);
  QElapsedTimer time;
  time.start();
  const double length = TumbleMs();
  QTimer frame;
  frame.setInterval(FrameMs);
  connect(&frame, &QTimer::timeout, &loop, [&] {
    phase_ = std::min(1.0, static_cast<double>(time.elapsed()) / length);
    Q_EMIT PhaseChanged(phase_);
    Q_EMIT Changed();
    if (phase_ >= 1) loop.quit();
  });
  frame.start();
  loop.exec();
}

void TableDice::Stop() {
  Q_EMIT Stopped();
}

// The dice lie, and their total is called.
void TableDice::Rest() {
  if (Settings.DiceAction == DiceCenter) centre_.start(CentreMs);
  call_.start(CallMs);
  Q_EMIT PhaseChanged(1);
  Q_EMIT Changed();
}

// --- The picture -------------------------------------------------------------------------------

void TableDice::Paint(QPainter& painter, double scale) const {
  if (Settings.DiceAction == DiceInWindow) return;
  const std::array<int, 2> faces = {Table.Die1 == 0 ? 3 : Table.Die1,
                                    Table.Die2 == 0 ? 4 : Table.Die2};
  for (int die = 0; die < 2; ++die) {
    const QPointF rest = Stand() + Apart(die, Side());
    if (inAir_) {
      PaintFlying(painter, die, At(faces, die), rest);
    } else {
      PaintDie(painter, rest, Side(), At(faces, die), die == 0 ? -9 : 13, die + 1);
    }
  }
  PaintCall(painter, scale);
}

void TableDice::PaintFlying(QPainter& painter, int die, int face, QPointF rest) const {
  const QPointF start = QPointF(LayoutWidth / 2, LayoutHeight - 60) + Apart(die, Side());
  const double wallX = throws_ % 2 == 0 ? FeltArea().right() - 120 : FeltArea().left() + 120;
  const QPointF wall(wallX, FeltArea().center().y() + (die == 0 ? -70 : 40));
  const bool travels = Settings.DiceAction == DiceNormal;
  const QPointF at = travels ? ThrownAt(start, wall, rest, phase_) : rest;
  PaintTumblingDie(painter, at, Side(), face, phase_, die + 1);
}

// The total in words beside the dice, for as long as it takes to read it.
void TableDice::PaintCall(QPainter& painter, double scale) const {
  if (!call_.isActive() || inAir_) return;
  QFont font = painter.font();
  font.setBold(true);
  font.setPixelSize(static_cast<int>(std::ceil(std::max(20.0, 1.2 * LeastLettering(scale)))));
  const QFontMetricsF metrics(font);
  const QString call = DiceCall();
  QRectF plate(0, 0, metrics.horizontalAdvance(call) + 32, metrics.height() + 10);
  const bool atRest = Stand() == DiceRest();
  const double away = Side() * 0.8 + plate.height() / 2 + 6;
  plate.moveCenter(Stand() + QPointF(0, atRest ? -away : away));
  painter.save();
  painter.setFont(font);
  painter.setPen(QPen(QColor(255, 255, 255, 90), 1.5));
  painter.setBrush(QColor(14, 18, 26, 225));
  painter.drawRoundedRect(plate, plate.height() / 2, plate.height() / 2);
  painter.setPen(Qt::white);
  painter.drawText(plate, Qt::AlignCenter, call);
  painter.restore();
}

}  // namespace tessarel
