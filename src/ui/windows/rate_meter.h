// How fast the Hyper-Drive rolls: the rate, and the small meter that shows it in the console and in
// the main window's bar.
#pragma once

#include <QBasicTimer>
#include <QWidget>
#include <cstdint>
#include <deque>

namespace tessarel {

// Rolls a second over about the last half second, from the session's count of rolls at the moments
// it is asked for: whoever shows it has one of its own and asks at each repaint.
class RollRate {
 public:
  double PerSecond();  // 0 while no roll comes

 private:
  struct Sample {
    int64_t time;
    int32_t rolls;
  };
  void DropOldSamples(const Sample& now);

  std::deque<Sample> samples_;
};

// "1,234,567", empty for a rate that rounds to nothing.
QString RollRateText(double rate);

// Shows the rate with its unit while the Hyper-Drive runs and is blank else. It repaints itself.
class HyperDriveMeter : public QWidget {
  Q_OBJECT
 public:
  explicit HyperDriveMeter(QWidget* parent = nullptr);
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }
  QString Text();

 protected:
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void timerEvent(QTimerEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  RollRate rate_;
  QBasicTimer timer_;
  QString shown_;
};

}  // namespace tessarel
