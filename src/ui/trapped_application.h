// The application object of the window and of its tests: every event is handled inside the trap, so
// that a fault in any slot, key or repaint becomes the one standard report and play goes on.
#pragma once

#include <QApplication>
#include <set>
#include <string>

#include "base/fault.h"

namespace tessarel {

class TrappedApplication : public QApplication {
  Q_OBJECT
 public:
  using QApplication::QApplication;

  // Only the lack of memory passes through.
  bool notify(QObject* receiver, QEvent* event) override;

 Q_SIGNALS:
  // A fault was reported and the report answered: what is shown may be behind the table.
  void FaultReported();

 private:
  void Report(const Fault& fault, const char* place, QEvent::Type type);

  bool reporting_ = false;
  std::set<std::string> told_;  // faults of repaints and timers, which would come back for ever
};

}  // namespace tessarel
