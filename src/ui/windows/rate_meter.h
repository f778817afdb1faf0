// How fast the Hyper-Drive rolls: the rate, and the small meter that shows it in the console and in
// the main window's bar.
#pragma once

#include <QBasicTimer>
#include <QWidget>

namespace tessarel {

// Rolls a second over about the last half second, from the session's count of rolls at the moments
// it is asked for: whoever shows it asks at each repaint. 0 while no roll comes.
double RollRate();

// "1,234,567", empty for a rate that rounds to nothing.
QString RollRateText(double rate);

// Shows the rate with its unit while the Hyper-Drive runs and is blank else. It repaints itself.
class HyperDriveMeter : public QWidget {
 public:
  explicit HyperDriveMeter(QWidget* parent = nullptr);
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }
  QString Text() const;

 protected:
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void timerEvent(QTimerEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  QBasicTimer timer_;
  QString shown_;
};

}  // namespace tessarel
