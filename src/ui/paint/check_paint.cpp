#include "ui/paint/check_paint.h"

#include <QFontMetricsF>
#include <QImage>
#include <QPainterPath>
#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <numeric>
#include <tuple>
#include <vector>

#include "base/number_format.h"
#include "engine/check_stacks.h"
#include "state/settings.h"
#include "ui/paint/check_picture.h"
#include "ui/paint/table_paint.h"
#include "ui/text.h"

namespace tessarel {

namespace {

constexpr int64_t MostColumns = 3;
constexpr double LeastLettering = 12;  // pixels on the screen: nine points

struct Column {
  QPointF foot;             // of the pile's own foot
  std::vector<int> checks;  // by denomination, the lowest first
};

// How a pile is built, in units around its foot.
struct PilePlan {
  double diameter = 0, edge = 0;
  std::vector<Column> columns;  // the hindmost first
  bool fraction = false, cut = false;
  QRectF body, button, figures;
  double lettering = 0;
  QString amount;
};

double RingWidth(const PileLook& look) {
  const double share = look.flash ? 0.13 : look.current ? 0.1 : 0.06;
  return std::max(share * look.diameter, (share + 0.04) * 10 / look.pixelsPerUnit);
}

double WidestRing(PileLook look) {
  look.flash = true;
  return RingWidth(look);
}

QFont FiguresFont(double units) {
  QFont font = PlainFont(units);
  font.setBold(true);
  return font;
}

double TextWidth(const QString& text, double units) {
  // Measured large, because small fonts are hinted to whole pixels.
  return QFontMetricsF(FiguresFont(100)).horizontalAdvance(text) * units / 100;
}

// The checks of an amount, the most valuable first. If they are more than there is room for, one of
// each denomination stays and of the more valuable ones some are left out, which sets `cut`.
std::vector<int> ChecksOf(const CheckPile& pile, int64_t room, bool& cut) {
  std::array<int64_t, 6> shown{};
  for (size_t slot = 1; slot <= 5; ++slot) {
    shown[slot] = std::min<int64_t>(pile.count[slot], 1);
    room -= shown[slot];
  }
  for (size_t slot = 1; slot <= 5; ++slot) {
    const int64_t more = std::min(pile.count[slot] - shown[slot], room);
    shown[slot] += more;
    room -= more;
    cut = cut || shown[slot] < pile.count[slot];
  }
  std::vector<int> checks;
  for (size_t slot = 5; slot >= 1; --slot) {
    checks.insert(checks.end(), static_cast<size_t>(shown[slot]), static_cast<int>(slot));
  }
  return checks;
}

int64_t MostInColumn(const PileLook& look) {
  return look.narrow ? 5 : 12;
}

// One column at the foot, a second and a third behind it to the right and to the left.
std::vector<Column> Columns(const std::vector<int>& checks, const PileLook& look) {
  const auto count = static_cast<int64_t>(checks.size());
  const int64_t columns = (count + MostInColumn(look) - 1) / MostInColumn(look);
  const std::array<QPointF, MostColumns> feet = {QPointF(), QPointF(0.6, -0.62) * look.diameter,
                                                 QPointF(-0.6, -0.62) * look.diameter};
  std::vector<Column> made;
  int64_t from = 0;
  for (int64_t k = 0; k < columns; ++k) {
    const int64_t end = count * (k + 1) / columns;
    made.push_back({feet[static_cast<size_t>(k)],
                    {checks.begin() + static_cast<ptrdiff_t>(from),
                     checks.begin() + static_cast<ptrdiff_t>(end)}});
    from = end;
  }
  std::reverse(made.begin(), made.end());
  return made;
}

// The middle of a column's check `level`, 0 the lowest, as seen from above.
QPointF TopOf(const PilePlan& plan, const Column& column, double level) {
  return column.foot - QPointF(0, plan.edge * (level + 0.5));
}

double FractionSize(const PilePlan& plan) {
  return 0.54 * plan.diameter;
}

QPointF FractionPlace(const PilePlan& plan) {
  if (plan.columns.empty()) return {};
  const Column& front = plan.columns.back();
  return TopOf(plan, front, static_cast<double>(front.checks.size()) - 1) +
         QPointF(0.32, 0.34) * plan.diameter;
}

QRectF Around(QPointF centre, double width, double height) {
  return {centre.x() - width / 2, centre.y() - height / 2, width, height};
}

QRectF ColumnArea(const PilePlan& plan, const Column& column) {
  const double d = plan.diameter;
  const QPointF top = TopOf(plan, column, static_cast<double>(column.checks.size()) - 1);
  return Around(top, d, d).united(Around(column.foot + QPointF(0, plan.edge / 2), d, d));
}

// An amount in at most four figures: "999", "1.2K", "12M". What is left out is never rounded up.
QString ShortFigures(Money amount) {
  static constexpr std::array<char, 5> Units = {0, 'K', 'M', 'B', 'T'};
  int64_t whole = amount.Floor(), tenths = 0;
  size_t unit = 0;
  for (; whole >= 1000 && unit + 1 < Units.size(); ++unit) {
    tenths = whole % 1000 / 100;
    whole /= 1000;
  }
  if (unit == 0) return Shown(FormatMoney(amount));
  QString text = QString::number(whole);
  if (whole < 10 && tenths != 0) text += '.' + QString::number(tenths);
  return text + Units[unit];
}

PilePlan PlanPile(Money amount, const PileLook& look) {
  PilePlan plan;
  plan.diameter = look.diameter;
  plan.edge =
      look.narrow ? 0.085 * look.diameter : std::max(0.1 * look.diameter, 2 / look.pixelsPerUnit);
  const CheckPile pile = SplitIntoChecks(amount);
  const int64_t room = MostInColumn(look) * (look.narrow ? 1 : MostColumns);
  plan.columns = Columns(ChecksOf(pile, room, plan.cut), look);
  plan.fraction = pile.fraction > Money();
  for (const Column& column : plan.columns)
    plan.body |= ColumnArea(plan, column);
  if (plan.fraction) {
    plan.body |= Around(FractionPlace(plan), FractionSize(plan), FractionSize(plan));
  }
  plan.lettering = std::max(0.42 * look.diameter, LeastLettering / look.pixelsPerUnit);
  plan.amount = look.narrow ? ShortFigures(amount) : Shown(FormatMoney(amount));
  const double height = 1.2 * plan.lettering;
  const double width = TextWidth(plan.amount, plan.lettering);
  if (!look.narrow) {
    plan.figures = Around({0, look.diameter / 2 + plan.edge + height * 0.45},
                          width + 0.7 * plan.lettering, height);
  } else if (width <= 1.7 * look.diameter) {
    plan.figures = Around({0, 0.4 * look.diameter}, width + 0.3 * plan.lettering, height);
  }
  const QPointF top = plan.columns.empty()
                          ? QPointF()
                          : TopOf(plan, plan.columns.back(),
                                  static_cast<double>(plan.columns.back().checks.size()) - 1);
  plan.button = Around(top + QPointF(0.5, -0.5) * look.diameter,
                       TextWidth("OFF", plan.lettering) + 0.6 * plan.lettering, height);
  return plan;
}

// How far the shadow of a check lies from it, and how far it moves for each check below it.
QPointF ShadowShift(const PilePlan& plan, double level) {
  return QPointF(0.1, 0.14) * plan.diameter + QPointF(0.45, 0.2) * plan.edge * level;
}

QRectF ShadowArea(const PilePlan& plan) {
  QRectF area;
  for (const Column& column : plan.columns) {
    const auto top = static_cast<double>(column.checks.size()) - 1;
    for (const double level : {0.0, top}) {
      const double side = 1.5 * plan.diameter;
      area |= Around(column.foot + ShadowShift(plan, level), side, side);
    }
  }
  if (area.isNull()) area = Around({}, FractionSize(plan) * 1.5, FractionSize(plan) * 1.5);
  return area;
}

QRectF AreaOf(const PilePlan& plan, const PileLook& look) {
  const double ring = WidestRing(look), smooth = 2 / look.pixelsPerUnit;
  return (plan.body.adjusted(-ring, -ring, ring, ring) | ShadowArea(plan) | plan.button |
          plan.figures)
      .adjusted(-smooth, -smooth, smooth, smooth);
}

QColor RingColour(const PileLook& look) {
  const QColor colour = PlaceColour(look.place);
  const auto towardsWhite = [&](int percent) {
    const auto mixed = [&](int part) { return part + (255 - part) * percent / 100; };
    return QColor(mixed(colour.red()), mixed(colour.green()), mixed(colour.blue()));
  };
  if (look.flash) return towardsWhite(65);
  if (look.current) return towardsWhite(15);
  return colour.darker(118);
}

// Paints the parts of a pile, all in pixels of the device: `scale` of them make a unit.
struct PilePainter {
  QPainter& painter;
  const PilePlan& plan;
  double scale;
  QPointF origin;  // the foot

  QPointF At(QPointF units) const { return origin + units * scale; }
  QRectF At(const QRectF& units) const { return {At(units.topLeft()), units.size() * scale}; }

  void Copy(QPointF centre, const QImage& picture) const {
    const QPointF corner = At(centre) - QPointF(picture.width(), picture.height()) / 2.0;
    painter.drawImage(QPoint(qRound(corner.x()), qRound(corner.y())), picture);
  }

  void Shadows() const {
    const int pixels = qRound(plan.diameter * scale);
    for (const Column& column : plan.columns) {
      const auto top = static_cast<double>(column.checks.size()) - 1;
      painter.setOpacity(top > 2 ? 0.6 : 0.85);
      Copy(column.foot + ShadowShift(plan, 0), CheckShadow(pixels));
      if (top > 2) Copy(column.foot + ShadowShift(plan, top), CheckShadow(pixels));
    }
    painter.setOpacity(1);
    if (plan.columns.empty()) {
      Copy(QPointF(0, 0), CheckShadow(qRound(FractionSize(plan) * scale)));
    }
  }

  void Ring(const QColor& colour, double width) const {
    QPainterPath outline;
    outline.setFillRule(Qt::WindingFill);
    const auto add = [&](const QRectF& area) {
      const double grown = width * scale;
      const QRectF pixels = At(area).adjusted(-grown, -grown, grown, grown);
      outline.addRoundedRect(pixels, pixels.width() / 2, pixels.width() / 2);
    };
    for (const Column& column : plan.columns)
      add(ColumnArea(plan, column));
    if (plan.columns.empty()) add(Around({}, FractionSize(plan), FractionSize(plan)));
    painter.setPen(QPen(QColor(0, 0, 0, 90), 1));
    painter.setBrush(colour);
    painter.drawPath(outline.simplified());
  }

  void Checks() const {
    const int pixels = qRound(plan.diameter * scale);
    for (const Column& column : plan.columns) {
      for (size_t k = 0; k < column.checks.size(); ++k) {
        const QPointF top = TopOf(plan, column, static_cast<double>(k));
        Copy(top + QPointF(0, plan.edge), CheckSide(column.checks[k], pixels, k));
      }
      const size_t last = column.checks.size() - 1;
      Copy(TopOf(plan, column, static_cast<double>(last)), CheckTop(column.checks[last], pixels));
    }
    if (plan.fraction) {
      Copy(FractionPlace(plan), FractionMarker(qRound(FractionSize(plan) * scale)));
    }
  }

  void Plate(const QRectF& units,
             const QString& text,
             const QColor& back,
             const QColor& ink,
             const QColor& border) const {
    const QRectF area = At(units);
    painter.setPen(QPen(border, 1));
    painter.setBrush(back);
    const QRectF inside = area.adjusted(0.5, 0.5, -0.5, -0.5);
    painter.drawRoundedRect(inside, inside.height() / 2, inside.height() / 2);
    painter.setFont(FiguresFont(plan.lettering * scale));
    painter.setPen(ink);
    painter.drawText(area, Qt::AlignCenter | Qt::TextDontClip, text);
  }

  void Button(PileButton button) const {
    const QColor white(255, 255, 255), black(16, 16, 18);
    switch (button) {
      case PileButton::None:
        break;
      case PileButton::On:
        Plate(plan.button, "ON", white, black, black);
        break;
      case PileButton::Off:
        Plate(plan.button, "OFF", black, white, white);
        break;
      case PileButton::Buy:
        Plate(plan.button, "BUY", QColor(0, 92, 75), white, white);
        break;
      case PileButton::Lay:
        Plate(plan.button, "LAY", QColor(150, 60, 0), white, white);
        break;
    }
  }
};

struct PilePicture {
  QImage image;
  QPointF foot;  // in pixels of the picture
};

PilePicture MakePilePicture(Money amount, const PileLook& look, double scale) {
  const PilePlan plan = PlanPile(amount, look);
  const QRectF area = AreaOf(plan, look);
  const QPointF foot(std::floor(-area.left() * scale), std::floor(-area.top() * scale));
  const QSize size(static_cast<int>(foot.x() + area.right() * scale),
                   static_cast<int>(foot.y() + area.bottom() * scale));
  QImage image(size, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  const PilePainter parts{painter, plan, scale, foot};
  parts.Shadows();
  if (look.place != 0) parts.Ring(RingColour(look), RingWidth(look));
  parts.Checks();
  if (!plan.figures.isNull() && (look.showAmount || plan.cut)) {
    parts.Plate(plan.figures, plan.amount, QColor(10, 14, 22, 205), Qt::white, QColor(0, 0, 0, 0));
  }
  parts.Button(look.button);
  painter.end();
  return {image, foot};
}

// The picture of a pile, made once while it stays in use.
const PilePicture& PictureOfPile(Money amount, const PileLook& look, double scale) {
  using Key = std::tuple<int64_t, double, double, double, int, int>;
  constexpr size_t MostPictures = 800;
  static std::map<Key, PilePicture> pictures;
  static int version = 0;
  if (version != CheckPicturesVersion() || pictures.size() >= MostPictures) {
    version = CheckPicturesVersion();
    pictures.clear();
  }
  const int flags = (look.current ? 1 : 0) | (look.flash ? 2 : 0) | (look.showAmount ? 4 : 0) |
                    (look.narrow ? 8 : 0) | static_cast<int>(look.button) << 4;
  const Key key{amount.Raw(), scale, look.diameter, look.pixelsPerUnit, look.place, flags};
  auto found = pictures.find(key);
  if (found == pictures.end()) {
    found = pictures.emplace(key, MakePilePicture(amount, look, scale)).first;
  }
  return found->second;
}

double DeviceRatio(const QPainter& painter) {
  return painter.device() != nullptr ? painter.device()->devicePixelRatioF() : 1;
}

// Puts a picture made for the painter's scale so that its pixel `foot` comes to `at`: on whole
// pixels of the device where nothing is turned, so that it stays sharp.
void PutPicture(QPainter& painter, QPointF at, const QImage& picture, QPointF foot, double scale) {
  const QTransform world = painter.worldTransform();
  if (world.type() > QTransform::TxScale) {
    const bool smooth = painter.testRenderHint(QPainter::SmoothPixmapTransform);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(QRectF(at - foot / scale, QSizeF(picture.size()) / scale), picture,
                      QRectF(picture.rect()));
    painter.setRenderHint(QPainter::SmoothPixmapTransform, smooth);
    return;
  }
  const double ratio = DeviceRatio(painter);
  const QPointF device = world.map(at) * ratio - foot;
  painter.setWorldTransform(QTransform::fromScale(1 / ratio, 1 / ratio));
  painter.drawImage(QPoint(qRound(device.x()), qRound(device.y())), picture);
  painter.setWorldTransform(world);
}

// Pixels of the device that make a unit of the painter.
double ScaleOf(const QPainter& painter) {
  return std::sqrt(std::abs(painter.worldTransform().determinant())) * DeviceRatio(painter);
}

}  // namespace

QColor PlaceColour(int place) {
  // Chosen to differ in lightness as well as in hue, for those who cannot tell some hues apart.
  static constexpr std::array<QRgb, 9> Colours = {0xFF808080, 0xFFE69F00, 0xFF56B4E9,
                                                  0xFF00A878, 0xFFF0E442, 0xFFF2F2F2,
                                                  0xFFD55E00, 0xFFE58AB8, 0xFF8C6BD1};
  const auto index = static_cast<size_t>(place);
  return QColor(Colours[index < Colours.size() ? index : 0]);
}

void PaintPile(QPainter& painter, QPointF foot, Money amount, const PileLook& look) {
  const double scale = ScaleOf(painter);
  if (amount <= Money() || !(scale * look.diameter >= 2)) return;
  const PilePicture& picture = PictureOfPile(amount, look, scale);
  PutPicture(painter, foot, picture.image, picture.foot, scale);
}

QRectF PileArea(QPointF foot, Money amount, const PileLook& look) {
  if (amount <= Money()) return {foot, QSizeF()};
  return AreaOf(PlanPile(amount, look), look).translated(foot);
}

void PaintCheck(QPainter& painter, QPointF centre, double diameter, int denomination, bool chosen) {
  const double scale = ScaleOf(painter);
  const int pixels = qRound(diameter * scale);
  if (denomination < 1 || denomination > 5 || pixels < 2) return;
  const auto put = [&](QPointF at, const QImage& picture) {
    PutPicture(painter, at, picture, QPointF(picture.width(), picture.height()) / 2.0, scale);
  };
  put(centre + QPointF(0.06, 0.1) * diameter, CheckShadow(pixels));
  if (chosen) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(QColor(255, 214, 92));
    painter.setPen(QPen(QColor(60, 40, 0, 160), diameter * 0.02));
    painter.drawEllipse(centre, diameter * 0.57, diameter * 0.57);
    painter.restore();
  }
  put(centre + QPointF(0, 0.035) * diameter, CheckSide(denomination, pixels, 0));
  put(centre - QPointF(0, 0.035) * diameter, CheckTop(denomination, pixels));
}

}  // namespace tessarel
