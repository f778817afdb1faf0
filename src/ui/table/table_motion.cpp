#include "ui/table/table_motion.h"

#include <QDir>
#include <QRandomGenerator>
#include <QSettings>
#include <algorithm>

#include "state/settings.h"
#include "state/table.h"
#include "ui/paint/check_paint.h"
#include "ui/table/easing.h"

namespace tessarel {

namespace {

constexpr int FrameMs = 16;
constexpr qint64 FlightMs = 200;
constexpr int ChecksInShower = 70;

}  // namespace

bool MotionIsReduced() {
  static const bool reduced = [] {
    const QString config = QDir::homePath() + "/.config/";
    const QSettings gtk(config + "gtk-3.0/settings.ini", QSettings::IniFormat);
    const QString gtkWish = gtk.value("Settings/gtk-enable-animations", "1").toString().toLower();
    const QSettings kde(config + "kdeglobals", QSettings::IniFormat);
    const double kdeFactor = kde.value("KDE/AnimationDurationFactor", 1.0).toDouble();
    return gtkWish == "0" || gtkWish == "false" || kdeFactor == 0;
  }();
  return reduced || qEnvironmentVariableIntValue("TESSAREL_REDUCED_MOTION") != 0;
}

TableMotion::TableMotion(const TablePicture& picture, QObject* parent)
    : QObject(parent), picture_(picture) {
  clock_.start();
  frame_.setInterval(FrameMs);
  connect(&frame_, &QTimer::timeout, this, &TableMotion::Step);
}

void TableMotion::Fly(int place, int number, Money before, Money now) {
  if (MotionIsReduced() || Table.HyperDriveOn || !IsBet(number)) return;
  // Under Auto-Roll everything moves at once; nothing could be followed.
  if (Table.AutoRollOn && Settings.RollDelay < 1) return;
  const QPointF bet = picture_.PositionOf(place, number);
  const QPointF rail = RailPlaceArea(place).center();
  const bool arrives = now > before;
  flights_.push_back({place, number, arrives ? rail : bet, arrives ? bet : rail, Abs(now - before),
                      clock_.elapsed(), arrives});
  frame_.start();
}

void TableMotion::Shower() {
  if (MotionIsReduced()) return;
  auto* chance = QRandomGenerator::global();
  for (int k = 0; k < ChecksInShower; ++k) {
    shower_.push_back({QPointF(chance->bounded(LayoutWidth), -chance->bounded(LayoutHeight)),
                       chance->bounded(6.0), chance->bounded(1, 6)});
  }
  frame_.start();
}

Money TableMotion::OnItsWay(int place, int number) const {
  Money amount;
  for (const Flight& flight : flights_) {
    if (flight.place == place && flight.number == number && flight.arrives) amount += flight.amount;
  }
  return amount;
}

void TableMotion::Step() {
  const qint64 now = clock_.elapsed();
  std::erase_if(flights_, [now](const Flight& flight) { return now - flight.began > FlightMs; });
  for (FallingCheck& check : shower_) {
    check.speed += 1.1;
    check.at += QPointF(0, check.speed);
  }
  std::erase_if(shower_, [](const FallingCheck& check) { return check.at.y() > LayoutHeight; });
  if (flights_.empty() && shower_.empty()) frame_.stop();
  Q_EMIT Moved();
}

void TableMotion::Paint(QPainter& painter) const {
  const qint64 now = clock_.elapsed();
  for (const Flight& flight : flights_) {
    const double t = std::clamp(
        static_cast<double>(now - flight.began) / static_cast<double>(FlightMs), 0.0, 1.0);
    PileLook look;
    look.diameter = CheckDiameter;
    look.pixelsPerUnit = picture_.Scale();
    look.place = flight.place;
    PaintPile(painter, Between(flight.from, flight.to, EaseOut(t)), flight.amount, look);
  }
  for (const FallingCheck& check : shower_)
    PaintCheck(painter, check.at, CheckDiameter * 1.6, check.denomination, false);
}

}  // namespace tessarel
