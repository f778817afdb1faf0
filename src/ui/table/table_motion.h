// What moves over the table by itself: amounts on their way between the rail and their bets, and
// the shower of checks when a bankroll limit is broken.
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QPainter>
#include <QTimer>
#include <vector>

#include "base/money.h"
#include "ui/table/table_picture.h"

namespace tessarel {

// Whether the system asks programs to keep still; nothing moves then.
bool MotionIsReduced();

class TableMotion : public QObject {
  Q_OBJECT
 public:
  TableMotion(const TablePicture& picture, QObject* parent);

  // A bet has changed: the difference comes from the rail or goes there.
  void Fly(int place, int number, Money before, Money now);
  void Shower();
  void DropFlights() { flights_.clear(); }

  // What a bet is still to get; it is not seen on the bet before it has arrived.
  Money OnItsWay(int place, int number) const;
  void Paint(QPainter& painter) const;

 Q_SIGNALS:
  void Moved();

 private:
  struct Flight {
    int place = 0, number = 0;
    QPointF from, to;
    Money amount;
    qint64 began = 0;
    bool arrives = true;
  };
  struct FallingCheck {
    QPointF at;
    double speed = 0;
    int denomination = 1;
  };
  void Step();

  const TablePicture& picture_;
  std::vector<Flight> flights_;
  std::vector<FallingCheck> shower_;
  QElapsedTimer clock_;
  QTimer frame_;
};

}  // namespace tessarel
