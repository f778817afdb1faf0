#include "ui/windows/rate_meter.h"

#include <QPainter>
#include <QTimerEvent>
#include <deque>

#include "base/clock.h"
#include "base/number_format.h"
#include "state/books.h"
#include "state/table.h"
#include "ui/text.h"
#include "ui/windows/small_window_texts.h"

namespace tessarel {

namespace {

constexpr int64_t Window = 500, Shortest = 100, Longest = 2000;  // milliseconds
constexpr int RepaintMilliseconds = 100;

struct Sample {
  int64_t time;
  int32_t rolls;
};

std::deque<Sample> Samples;

// Drops what lies before the half second, but for the one sample that begins it.
void DropOldSamples(const Sample& now) {
  const auto isUseless = [&now] {
    const bool otherCount = Samples.front().rolls > now.rolls || Samples.front().time > now.time;
    if (otherCount || now.time - Samples.front().time > Longest) return true;
    return Samples.size() > 1 && now.time - Samples[1].time >= Window;
  };
  while (!Samples.empty() && isUseless())
    Samples.pop_front();
}

}  // namespace

double RollRate() {
  const Sample now{TickMilliseconds(), RollsInSession()};
  DropOldSamples(now);
  if (Samples.empty() || now.time - Samples.back().time >= RepaintMilliseconds / 4) {
    Samples.push_back(now);
  }
  const int64_t elapsed = now.time - Samples.front().time;
  if (elapsed < Shortest) return 0;
  return 1000.0 * (now.rolls - Samples.front().rolls) / static_cast<double>(elapsed);
}

QString RollRateText(double rate) {
  return Shown(FormatNumber(rate, "#,#"));
}

HyperDriveMeter::HyperDriveMeter(QWidget* parent) : QWidget(parent) {
  setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
}

QSize HyperDriveMeter::sizeHint() const {
  const QFontMetrics metrics = fontMetrics();
  const QString widest = Shown(FillIn(RollsPerSecondText, {"88,888,888"}));
  return {metrics.horizontalAdvance(widest) + 4, metrics.height() + 2};
}

QString HyperDriveMeter::Text() const {
  if (!Table.HyperDriveOn) return {};
  const QString rate = RollRateText(RollRate());
  if (rate.isEmpty()) return {};
  return Shown(FillIn(RollsPerSecondText, {Typed(rate)}));
}

void HyperDriveMeter::showEvent(QShowEvent*) {
  timer_.start(RepaintMilliseconds, this);
}

void HyperDriveMeter::hideEvent(QHideEvent*) {
  timer_.stop();
}

void HyperDriveMeter::timerEvent(QTimerEvent*) {
  const QString text = Text();
  if (text == shown_) return;
  shown_ = text;
  update();
}

void HyperDriveMeter::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setPen(palette().color(QPalette::WindowText));
  painter.drawText(rect(), Qt::AlignRight | Qt::AlignVCenter, shown_);
}

}  // namespace tessarel
