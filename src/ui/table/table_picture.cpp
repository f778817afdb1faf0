#include "ui/table/table_picture.h"

#include <algorithm>
#include <cmath>

#include "state/payoffs.h"
#include "state/settings.h"
#include "ui/layout/hit_map.h"
#include "ui/paint/table_paint.h"
#include "ui/table_play.h"

namespace tessarel {

namespace {

std::vector<int64_t> PayoffsInForce() {
  std::vector<int64_t> figures;
  figures.reserve(500);
  const auto add = [&figures](const auto& rows) {
    for (const PayoffRow& row : rows) {
      for (const Money figure : {row.PayNum, row.PayForm, row.PayDen})
        figures.push_back(figure.Raw());
    }
  };
  add(Payoffs.Payoff);
  add(Payoffs.FieldPayoff);
  add(Payoffs.SevenPointSevenPayoff);
  add(Payoffs.MidwayPayoff);
  add(Payoffs.SharpShooterPayoff);
  add(Payoffs.RideTheLinePayoff);
  add(Payoffs.FirePayoff);
  return figures;
}

}  // namespace

TablePicture::Key TablePicture::KeyInForce(const TableSight& sight) {
  return {sight, OptionsInForce(GameViews.Table.DisplayPropBets), Settings.TableColor,
          Settings.TableTexture, PayoffsInForce()};
}

bool TablePicture::Refresh(const TableSight& sight) {
  Key key = KeyInForce(sight);
  if (key == key_ && !plain_.isNull()) return false;
  key_ = std::move(key);
  Rebuild();
  return true;
}

void TablePicture::Rebuild() {
  const TableSight& sight = key_.sight;
  layout_ = MakeTableLayout(key_.options);
  toPixels_ = LayoutTransform(sight.size.width(), sight.size.height(), sight.degrees,
                              sight.zoom / 100.0, sight.shift);
  RebuildPositions();
  plain_ = QPixmap(sight.size * sight.pixelRatio);
  plain_.setDevicePixelRatio(sight.pixelRatio);
  QPainter painter(&plain_);
  painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                         QPainter::SmoothPixmapTransform);
  painter.setTransform(toPixels_);
  PaintTable(painter, layout_, Scale());
  hitMap_ = DrawHitMap(layout_, toPixels_, sight.size);
}

void TablePicture::RebuildPositions() {
  for (int place = 1; place <= LastPlace; ++place) {
    for (int number = 1; number <= LastBet; ++number)
      At(At(positions_, place), number) = CheckPosition(layout_, place, number);
    for (int stack = FirstStack + 1; stack <= FirstStack + 4; ++stack)
      At(At(positions_, place), stack) = CheckPosition(layout_, place, stack);
  }
}

void TablePicture::Paint(QPainter& painter, const QRect& part, const QRect& widget) const {
  if (plain_.deviceIndependentSize().toSize() != widget.size())
    return painter.drawPixmap(widget, plain_);
  const double ratio = plain_.devicePixelRatio();
  painter.drawPixmap(part, plain_,
                     QRectF(part.topLeft() * ratio, QSizeF(part.size()) * ratio).toRect());
}

double TablePicture::Scale() const {
  return std::sqrt(std::abs(toPixels_.determinant()));
}

QRect TablePicture::ToPixels(const QRectF& area) const {
  return toPixels_.mapRect(area).toAlignedRect().adjusted(-2, -2, 2, 2);
}

int TablePicture::SpotUnder(QPoint pixel) const {
  return SpotOfPixel(SpotAt(hitMap_, pixel));
}

QPointF TablePicture::ArrangedAt(int place, int number) const {
  return At(At(positions_, place), number);
}

QPointF TablePicture::PositionOf(int place, int number) const {
  const QPointF own = ArrangedAt(place, number);
  if (Settings.AutoArrangeChips || number > LastBet) return own;
  const QPointF put(Table.BetX[place][number], Table.BetY[place][number]);
  if (put.isNull()) return own;
  // Another layout may have taken their region away from under them.
  const bool inside = std::any_of(
      layout_.regions.begin(), layout_.regions.end(),
      [&](const Region& region) { return region.spot == number && region.outline.contains(put); });
  return inside ? put : own;
}

QPoint TablePicture::PixelOf(int place, int number) const {
  return toPixels_.map(ArrangedAt(place, number)).toPoint();
}

QPoint TablePicture::PixelOfSpot(int spot) const {
  if (spot >= 1 && spot <= FirstStack + 4) return PixelOf(std::max(1, CurrentPlace()), spot);
  for (const Region& region : layout_.regions) {
    if (region.spot == spot) return toPixels_.map(region.outline.boundingRect().center()).toPoint();
  }
  return {};
}

}  // namespace tessarel
