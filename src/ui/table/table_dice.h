// The dice on the table: where they lie, their throw, and the total that is called beside them.
#pragma once

#include <QObject>
#include <QPainter>
#include <QTimer>
#include <cstdint>

namespace tessarel {

// The values of Settings.DiceAction.
enum DiceActionValue : int32_t { DiceNormal, DiceStationary, DiceCenter, DiceInWindow };

class TableDice : public QObject {
  Q_OBJECT
 public:
  explicit TableDice(QObject* parent);

  // Throws the dice, whose faces are known; returns when they lie, or at Stop(). Without anybody to
  // see it, or while a throw is on its way, nothing moves.
  void Throw(bool isSeen);
  void Stop();
  bool AreInAir() const { return inAir_; }

  // Whether a point of the layout is on the dice at rest.
  bool Cover(QPointF point) const;
  // `scale` is in pixels a layout unit.
  void Paint(QPainter& painter, double scale) const;

 Q_SIGNALS:
  void Thrown();                    // before the first picture of a throw
  void PhaseChanged(double phase);  // of a throw, from 0 to 1
  void Changed();
  void Stopped();

 private:
  QPointF Stand() const;
  double Side() const;
  void Rest();
  void Tumble();
  void PaintFlying(QPainter& painter, int die, int face, QPointF rest) const;
  void PaintCall(QPainter& painter, double scale) const;

  QTimer centre_, call_;  // how long the dice stay in the centre, and the call beside them
  bool inAir_ = false;
  double phase_ = 1;
  int throws_ = 0;
};

}  // namespace tessarel
