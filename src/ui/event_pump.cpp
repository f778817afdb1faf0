#include "ui/event_pump.h"

#include <QCoreApplication>
#include <QThread>

namespace tessarel {

namespace {

constexpr qint64 PumpEveryNs = 16'000'000, FiguresEveryMs = 120;
constexpr unsigned long RestMicroseconds = 500;

}  // namespace

EventPump::EventPump(QObject* parent) : QObject(parent) {
  sincePump_.start();
  sinceFigures_.start();
}

void EventPump::RunAndRest() {
  QCoreApplication::processEvents();
  QThread::usleep(RestMicroseconds);
  Q_EMIT Pumped();
}

// The next look comes after twice as many rolls each time, until it is time for the events.
void EventPump::LookAtClock() {
  batch_ *= 2;
  untilLook_ = batch_;
  if (sincePump_.nsecsElapsed() < PumpEveryNs) return;
  if (sinceFigures_.elapsed() >= FiguresEveryMs) {
    Q_EMIT FiguresDue();
    sinceFigures_.restart();
  }
  QCoreApplication::processEvents();
  sincePump_.restart();
  Restart();
  Q_EMIT Pumped();
}

}  // namespace tessarel
