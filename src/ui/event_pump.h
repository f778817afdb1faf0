// Runs the events that wait while the core is at work. In the pauses of play it does so at once and
// rests; under the Hyper-Drive it is called once a roll and runs them about sixty times a second.
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <cstdint>

#include "state/table.h"

namespace tessarel {

class EventPump : public QObject {
  Q_OBJECT
 public:
  explicit EventPump(QObject* parent = nullptr);

  // A new run: the clock is looked at right away.
  void Restart() { batch_ = untilLook_ = 1; }
  void Run() {
    if (!Table.HyperDriveOn) {
      RunAndRest();
    } else if (--untilLook_ <= 0) {
      LookAtClock();
    }
  }

 Q_SIGNALS:
  void FiguresDue();  // of a run of the Hyper-Drive, a few times a second
  void Pumped();      // the events have run

 private:
  void RunAndRest();
  void LookAtClock();

  QElapsedTimer sincePump_, sinceFigures_;
  int64_t batch_ = 1, untilLook_ = 1;
};

}  // namespace tessarel
