#include "ui/table/table_piles.h"

#include <algorithm>
#include <utility>

#include "engine/bet_limits.h"
#include "state/settings.h"
#include "ui/table/table_motion.h"
#include "ui/table_play.h"

namespace tessarel {

namespace {

constexpr int RingTickMs = 125, TicksOfFlash = 4;

PileButton ButtonOf(int place, int number) {
  const int32_t working = Table.BetWorking[place][number];
  if (working == CalledOn) return PileButton::On;
  if (working != IsWorking) return PileButton::Off;
  if (InFamily(number, BuyFamily)) return PileButton::Buy;
  return InFamily(number, LayFamily) ? PileButton::Lay : PileButton::None;
}

}  // namespace

TablePiles::TablePiles(const TablePicture& picture, QObject* parent)
    : QObject(parent), picture_(picture) {
  ring_.setInterval(RingTickMs);
  connect(&ring_, &QTimer::timeout, this, &TablePiles::Tick);
  ring_.start();
}

void TablePiles::Tick() {
  if (++ticks_ % TicksOfFlash != 0) return;
  const bool on = GameViews.Table.FlashBets && !flash_;
  if (std::exchange(flash_, on) != on) Q_EMIT Flashed();
}

void TablePiles::TakeUp() {
  for (int place = 1; place <= LastPlace; ++place) {
    for (int number = 1; number <= LastBet; ++number)
      At(At(shown_, place), number) = Bet(place, number);
    for (int stack = 1; stack <= 4; ++stack)
      At(At(shown_, place), FirstStack + stack) = Bet(place, Table.VisibleStack[place][stack]);
  }
}

std::optional<TablePiles::Change> TablePiles::TakeUp(int place, int number) {
  if (place < 1 || place > LastPlace || number < 1) return std::nullopt;
  int spot = number;
  if (IsStack(number)) {
    const auto& visible = Table.VisibleStack[place];
    const auto at = std::find(visible.begin() + 1, visible.end(), number);
    if (at == visible.end()) return std::nullopt;
    spot = FirstStack + static_cast<int>(at - visible.begin());
  }
  const Money now = Bet(place, number);
  return Change{spot, std::exchange(At(At(shown_, place), spot), now), now};
}

PileLook TablePiles::LookOf(int place, int number) const {
  PileLook look;
  look.diameter = CheckDiameter;
  look.pixelsPerUnit = picture_.Scale();
  look.place = place;
  look.current = place == CurrentPlace();
  look.flash = look.current && flash_;
  look.showAmount = GameViews.Table.DisplayBetAmounts;
  if (IsBet(number)) look.button = ButtonOf(place, number);
  return look;
}

QRectF TablePiles::AreaOf(int place, int spot, Money amount) const {
  PileLook look = LookOf(place, spot);
  look.showAmount = true;
  look.button = PileButton::Off;  // room for the button that may go or come
  return PileArea(picture_.PositionOf(place, spot), amount, look).adjusted(-3, -3, 3, 3);
}

void TablePiles::Paint(QPainter& painter,
                       const QRectF& area,
                       const TableMotion& motion,
                       HeldPile held) const {
  for (int visit = 1; visit <= LastPlace; ++visit) {
    const int place = PlaceOfVisit[visit];
    if (!IsTaken(Table, place)) continue;
    for (int number = 1; number <= LastBet; ++number) {
      const Money amount = Bet(place, number) - motion.OnItsWay(place, number);
      if (amount <= Money() || (place == held.place && number == held.number)) continue;
      const QPointF foot = picture_.PositionOf(place, number);
      const PileLook look = LookOf(place, number);
      if (PileArea(foot, amount, look).intersects(area)) PaintPile(painter, foot, amount, look);
    }
  }
}

}  // namespace tessarel
