#include "ui/windows/rate_meter.h"

#include <QPainter>
#include <QTimerEvent>

#include "base/clock.h"
#include "base/number_format.h"
#include "state/books.h"
#include "state/table.h"
#include "texts/say.h"
#include "ui/text.h"

namespace tessarel {

namespace {

constexpr int64_t Window = 500, Shortest = 100, Longest = 2000;  // milliseconds
constexpr int RepaintMilliseconds = 100;

}  // namespace

// Drops what lies before the half second, but for the one sample that begins it.
void RollRate::DropOldSamples(const Sample& now) {
  const auto isUseless = [this, &now] {
    const bool otherCount = samples_.front().rolls > now.rolls || samples_.front().time > now.time;
    if (otherCount || now.time - samples_.front().time > Longest) return true;
    return samples_.size() > 1 && now.time - samples_[1].time >= Window;
  };
  while (!samples_.empty() && isUseless())
    samples_.pop_front();
}

double RollRate::PerSecond() {
  const Sample now{TickMilliseconds(), RollsInSession()};
  DropOldSamples(now);
  if (samples_.empty() || now.time - samples_.back().time >= RepaintMilliseconds / 4) {
    samples_.push_back(now);
  }
  const int64_t elapsed = now.time - samples_.front().time;
  if (elapsed < Shortest) return 0;
  return 1000.0 * (now.rolls - samples_.front().rolls) / static_cast<double>(elapsed);
}

QString RollRateText(double rate) {
  return Shown(FormatNumber(rate, "#,#"));
}

HyperDriveMeter::HyperDriveMeter(QWidget* parent) : QWidget(parent) {
  setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
}

QSize HyperDriveMeter::sizeHint() const {
  const QFontMetrics metrics = fontMetrics();
  const QString widest = Shown(Say(Text::RollsPerSecondRate, "88,888,888"));
  return {metrics.horizontalAdvance(widest) + 4, metrics.height() + 2};
}

QString HyperDriveMeter::Text() {
  if (!Table.HyperDriveOn) return {};
  const QString rate = RollRateText(rate_.PerSecond());
  if (rate.isEmpty()) return {};
  return Shown(Say(Text::RollsPerSecondRate, Typed(rate)));
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
