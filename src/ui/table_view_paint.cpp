// What the table view puts over the plain picture, and what moves there.
#include <QApplication>
#include <QDir>
#include <QEventLoop>
#include <QPaintEvent>
#include <QRandomGenerator>
#include <QSettings>
#include <algorithm>
#include <cmath>
#include <numbers>

#include "base/front_end.h"
#include "engine/bet_limits.h"
#include "state/settings.h"
#include "state/view_state.h"
#include "ui/paint/lettering.h"
#include "ui/paint/rail_paint.h"
#include "ui/paint/table_paint.h"
#include "ui/table_view.h"
#include "ui/windows/roll_console.h"

namespace tessarel {

namespace {

constexpr qint64 FlightMs = 200;
constexpr double ThrowMs = 600;
constexpr int CentreMs = 1500, CallMs = 2500;
constexpr double StandSide = 46, CentreSide = 84;  // of a die, in layout units
constexpr int ChecksInShower = 70;

double EaseOut(double t) {
  return 1 - (1 - t) * (1 - t) * (1 - t);
}

QPointF Between(QPointF from, QPointF to, double t) {
  return from + (to - from) * t;
}

// How long the dice tumble: shorter when Auto-Roll leaves less time between two rolls.
double TumbleMs() {
  if (!Table.AutoRollOn) return ThrowMs;
  const double delay = static_cast<double>(Settings.RollDelay.Raw()) / 10;  // milliseconds
  return std::clamp(delay / 2, 60.0, ThrowMs);
}

// Where a thrown die is at `t` from 0 to 1: out over the felt to the far wall, then back to its
// stand in smaller and smaller bounces.
QPointF ThrownAt(QPointF start, QPointF wall, QPointF rest, double t) {
  constexpr double Turn = 0.55;
  const double eased = EaseOut(t);
  const bool out = eased < Turn;
  const QPointF at =
      out ? Between(start, wall, eased / Turn) : Between(wall, rest, (eased - Turn) / (1 - Turn));
  const double bounce = std::abs(std::sin(eased * 3 * std::numbers::pi)) * 60 * (1 - eased);
  return at - QPointF(0, bounce);
}

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

// --- Still things ------------------------------------------------------------------------------

QRect TableView::ToPixels(const QRectF& area) const {
  return toPixels_.mapRect(area).toAlignedRect().adjusted(-2, -2, 2, 2);
}

PileLook TableView::LookOf(int place, int number) const {
  PileLook look;
  look.diameter = CheckDiameter;
  look.pixelsPerUnit = Scale();
  look.place = place;
  look.current = place == CurrentPlace();
  look.flash = look.current && flash_;
  look.showAmount = GameViews.Table.DisplayBetAmounts;
  if (!IsBet(number)) return look;
  const int32_t working = Table.BetWorking[place][number];
  if (working == CalledOn) {
    look.button = PileButton::On;
  } else if (working != IsWorking) {
    look.button = PileButton::Off;
  } else if (InFamily(number, BuyFamily)) {
    look.button = PileButton::Buy;
  } else if (InFamily(number, LayFamily)) {
    look.button = PileButton::Lay;
  }
  return look;
}

QRectF TableView::PileAreaOf(int place, int number, Money amount) const {
  PileLook look = LookOf(place, number);
  look.showAmount = true;
  look.button = PileButton::Off;  // room for the button that may go or come
  return PileArea(PositionOf(place, number), amount, look).adjusted(-3, -3, 3, 3);
}

void TableView::paintEvent(QPaintEvent* event) {
  if (plain_.isNull()) RefreshPicture();
  QPainter painter(this);
  if (plain_.deviceIndependentSize().toSize() == size()) {
    const QRect part = event->rect();
    const double ratio = plain_.devicePixelRatio();
    painter.drawPixmap(part, plain_,
                       QRectF(part.topLeft() * ratio, QSizeF(part.size()) * ratio).toRect());
  } else {
    painter.drawPixmap(rect(), plain_);
  }
  painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                         QPainter::SmoothPixmapTransform);
  painter.setTransform(toPixels_, true);
  const QRectF area = toPixels_.inverted().mapRect(QRectF(event->rect()));
  PaintStillThings(painter, area);
  PaintPiles(painter, area);
  PaintMovingThings(painter);
}

void TableView::PaintStillThings(QPainter& painter, const QRectF& area) {
  PaintTableState(painter, layout_, Scale());
  if (litSpot_ != 0 && TableIsIdle()) PaintRegionLight(painter, layout_, litSpot_, litPossible_);
  if (dragging_ && dropSpot_ != 0) PaintRegionLight(painter, layout_, dropSpot_, true);
  if (hasFocus()) PaintFocus(painter);
  RailLook look;
  look.currentPlace = CurrentPlace();
  look.hoverPlace = litSpot_ >= RailSpot(1, 0) ? litSpot_ / RailSpot(1, 0) : 0;
  look.choosing = TablePlay.TableAction > ActionMovePlayer;
  look.pixelsPerUnit = Scale();
  for (int place = 1; place <= LastPlace; ++place) {
    if (RailPlaceArea(place).adjusted(-8, -8, 8, 8).intersects(area))
      PaintRailPlace(painter, place, layout_, look);
  }
  for (const bool right : {false, true})
    PaintPuck(painter, PuckPosition(Table.Point, right), 40, Table.Point != 0);
}

// The spot that the arrow keys have chosen is framed, so that it can be told from a mere hover.
void TableView::PaintFocus(QPainter& painter) {
  if (!IsBet(TablePlay.HotSpot) || underMouse()) return;
  painter.save();
  QPen pen(QColor(255, 214, 90), 3);
  pen.setDashPattern({4, 3});
  painter.setPen(pen);
  painter.setBrush(Qt::NoBrush);
  for (const Region& region : layout_.regions) {
    if (region.spot == TablePlay.HotSpot) painter.drawPath(region.outline);
  }
  painter.restore();
}

void TableView::PaintPiles(QPainter& painter, const QRectF& area) {
  const int draggedPlace = dragging_ ? CurrentPlace() : 0;
  for (int visit = 1; visit <= LastPlace; ++visit) {
    const int place = PlaceOfVisit[visit];
    if (!IsTaken(Table, place)) continue;
    for (int number = 1; number <= LastBet; ++number) {
      Money amount = Bet(place, number);
      for (const Flight& flight : flights_) {
        if (flight.place == place && flight.number == number && flight.arrives)
          amount -= flight.amount;
      }
      if (amount <= Money() || (place == draggedPlace && number == pressedSpot_)) continue;
      const QPointF foot = PositionOf(place, number);
      const PileLook look = LookOf(place, number);
      if (PileArea(foot, amount, look).intersects(area)) PaintPile(painter, foot, amount, look);
    }
  }
}

// --- Moving things -----------------------------------------------------------------------------

void TableView::PaintMovingThings(QPainter& painter) {
  PaintDice(painter);
  PaintCall(painter);
  const qint64 now = clock_.elapsed();
  for (const Flight& flight : flights_) {
    const double t = std::clamp(
        static_cast<double>(now - flight.began) / static_cast<double>(FlightMs), 0.0, 1.0);
    PileLook look;
    look.diameter = CheckDiameter;
    look.pixelsPerUnit = Scale();
    look.place = flight.place;
    PaintPile(painter, Between(flight.from, flight.to, EaseOut(t)), flight.amount, look);
  }
  if (dragging_) {
    PileLook look = LookOf(CurrentPlace(), pressedSpot_);
    look.showAmount = true;
    PaintPile(painter, ToLayout(pointer_), Bet(CurrentPlace(), NumberOfSpot(pressedSpot_)), look);
  }
  for (const FallingCheck& check : shower_)
    PaintCheck(painter, check.at, CheckDiameter * 1.6, check.denomination, false);
}

void TableView::StartFlight(int place, int number, Money before, Money now) {
  if (MotionIsReduced() || Table.HyperDriveOn || !isVisible() || !IsBet(number)) return;
  // Under Auto-Roll everything moves at once; nothing could be followed.
  if (Table.AutoRollOn && Settings.RollDelay < 1) return;
  const QPointF bet = PositionOf(place, number);
  const QPointF rail = RailPlaceArea(place).center();
  const bool arrives = now > before;
  flights_.push_back({place, number, arrives ? rail : bet, arrives ? bet : rail, Abs(now - before),
                      clock_.elapsed(), arrives});
  motion_.start();
}

void TableView::StepMotion() {
  const qint64 now = clock_.elapsed();
  std::erase_if(flights_, [now](const Flight& flight) { return now - flight.began > FlightMs; });
  for (FallingCheck& check : shower_) {
    check.speed += 1.1;
    check.at += QPointF(0, check.speed);
  }
  std::erase_if(shower_, [](const FallingCheck& check) { return check.at.y() > LayoutHeight; });
  if (flights_.empty() && shower_.empty()) motion_.stop();
  update();
}

void TableView::ShowerChecks() {
  if (MotionIsReduced()) return;
  auto* chance = QRandomGenerator::global();
  for (int k = 0; k < ChecksInShower; ++k) {
    shower_.push_back({QPointF(chance->bounded(LayoutWidth), -chance->bounded(LayoutHeight)),
                       chance->bounded(6.0), chance->bounded(1, 6)});
  }
  motion_.start();
}

// --- Dice --------------------------------------------------------------------------------------

QPointF TableView::DiceStand() const {
  const bool centre = Settings.DiceAction == DiceCenter && (animating_ || centreDice_.isActive());
  return centre ? FeltArea().center() : DiceRest();
}

double TableView::DiceSide() const {
  return DiceStand() == DiceRest() ? StandSide : CentreSide;
}

QRectF TableView::DiceArea() const {
  const double side = DiceSide();
  return QRectF(DiceStand() - QPointF(1.4 * side, 0.8 * side), QSizeF(2.8 * side, 1.6 * side));
}

bool TableView::IsOnDice(QPointF pixel) const {
  return Settings.DiceAction != DiceInWindow && DiceArea().contains(ToLayout(pixel));
}

void TableView::PaintDice(QPainter& painter) {
  if (Settings.DiceAction == DiceInWindow) return;
  const double side = DiceSide();
  const QPointF apart(side * 0.62, 0);
  const std::array<int, 2> faces = {Table.Die1 == 0 ? 3 : Table.Die1,
                                    Table.Die2 == 0 ? 4 : Table.Die2};
  const bool thrown = Settings.DiceAction == DiceNormal;
  const QPointF start(LayoutWidth / 2, LayoutHeight - 60);
  for (int die = 0; die < 2; ++die) {
    const QPointF rest = DiceStand() + (die == 0 ? -apart : apart);
    const int face = At(faces, die);
    if (!animating_) {
      PaintDie(painter, rest, side, face, die == 0 ? -9 : 13, die + 1);
      continue;
    }
    const double wallX = throws_ % 2 == 0 ? FeltArea().right() - 120 : FeltArea().left() + 120;
    const QPointF wall(wallX, FeltArea().center().y() + (die == 0 ? -70 : 40));
    const QPointF at =
        thrown ? ThrownAt(start + (die == 0 ? -apart : apart), wall, rest, dicePhase_) : rest;
    PaintTumblingDie(painter, at, side, face, dicePhase_, die + 1);
  }
}

// The total in words beside the dice, for as long as it takes to read it.
void TableView::PaintCall(QPainter& painter) const {
  if (!call_.isActive() || animating_ || Settings.DiceAction == DiceInWindow) return;
  QFont font = painter.font();
  font.setBold(true);
  font.setPixelSize(static_cast<int>(std::ceil(std::max(20.0, 1.2 * LeastLettering(Scale())))));
  const QFontMetricsF metrics(font);
  const QString call = DiceCall();
  QRectF plate(0, 0, metrics.horizontalAdvance(call) + 32, metrics.height() + 10);
  const bool atRest = DiceStand() == DiceRest();
  const double away = DiceSide() * 0.8 + plate.height() / 2 + 6;
  plate.moveCenter(DiceStand() + QPointF(0, atRest ? -away : away));
  painter.save();
  painter.setFont(font);
  painter.setPen(QPen(QColor(255, 255, 255, 90), 1.5));
  painter.setBrush(QColor(14, 18, 26, 225));
  painter.drawRoundedRect(plate, plate.height() / 2, plate.height() / 2);
  painter.setPen(Qt::white);
  painter.drawText(plate, Qt::AlignCenter, call);
  painter.restore();
}

// After a throw: the dice lie, and their total is called.
void TableView::RestDice() {
  if (Settings.DiceAction == DiceCenter) centreDice_.start(CentreMs);
  call_.start(CallMs);
  update();
}

void TableView::EndAnimation() {
  if (endAnimation_) endAnimation_();
}

void TableView::AnimateDice() {
  ++throws_;
  if (animating_ || !isVisible()) return update();
  if (MotionIsReduced()) return RestDice();
  // A press from before the throw means nothing after it.
  pressed_ = dragging_ = panning_ = false;
  animating_ = true;
  dicePhase_ = 0;
  if (DicePhaseChanged) DicePhaseChanged(dicePhase_);
  QEventLoop loop;
  QElapsedTimer time;
  time.start();
  const double length = TumbleMs();
  QTimer frame;
  frame.setInterval(16);
  connect(&frame, &QTimer::timeout, &loop, [&] {
    dicePhase_ = std::min(1.0, static_cast<double>(time.elapsed()) / length);
    if (DicePhaseChanged) DicePhaseChanged(dicePhase_);
    update();
    if (dicePhase_ >= 1) loop.quit();
  });
  endAnimation_ = [&loop] { loop.quit(); };
  frame.start();
  loop.exec();
  endAnimation_ = nullptr;
  animating_ = false;
  dicePhase_ = 1;
  if (DicePhaseChanged) DicePhaseChanged(dicePhase_);
  RestDice();
}

}  // namespace tessarel
