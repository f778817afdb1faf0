#include "ui/paint/check_picture.h"

#include <QPainterPath>
#include <algorithm>
#include <array>
#include <map>
#include <tuple>

#include "state/settings.h"
#include "ui/paint/check_paint.h"
#include "ui/paint/table_paint.h"
#include "ui/text.h"

namespace tessarel {

namespace {

enum class Part { Top, Side, Fraction, Shadow };
enum class RingMark { None, Line, Dashes, Diamonds };

struct CheckDesign {
  int spots;         // around the edge
  double spotShare;  // of the edge that is spot
  bool split;        // each spot has a stripe of the check's colour down its middle
  bool wedge;        // spots run to a point
  double inlay;      // the disc in the middle, as a share of the radius
  bool lightInlay;
  RingMark ring;  // between the spots and the inlay
};

constexpr std::array<CheckDesign, CheckStyleCount> Designs = {{
    {4, 0.42, false, false, 0.66, false, RingMark::Line},
    {6, 0.36, false, false, 0.64, true, RingMark::None},
    {8, 0.50, true, false, 0.62, true, RingMark::Dashes},
    {8, 0.62, false, true, 0.60, true, RingMark::Diamonds},
    {12, 0.40, false, false, 0.68, false, RingMark::Dashes},
}};
constexpr size_t StartUpDesign = 2;

const CheckDesign& DesignInForce() {
  const auto style = static_cast<size_t>(Settings.CheckStyle);
  return Designs[style < Designs.size() ? style : StartUpDesign];
}

struct CheckColours {
  QRgb body, spot, ink;  // the ink of the lettering on a light inlay
};

// By slot of Denomination; slot 0 is for money below one, whatever its slot.
constexpr std::array<CheckColours, 6> Colours = {{
    {0xFFF2C21B, 0xFF6B4A00, 0xFF5A3E00},
    {0xFFECE9DF, 0xFF3C5F9E, 0xFF2B3E66},
    {0xFFC3202C, 0xFFF6F1E6, 0xFFA01520},
    {0xFF12844A, 0xFFF6F1E6, 0xFF0A5C32},
    {0xFF23242A, 0xFFF6F1E6, 0xFF15161A},
    {0xFF6F2F97, 0xFFF3D98B, 0xFF4D1C6E},
}};

const CheckColours& ColoursOf(int denomination) {
  const auto slot = static_cast<size_t>(denomination);
  return Colours[Settings.Denomination[slot] < Money(1) ? 0 : slot];
}

QPainterPath RingSector(double outer, double inner, double fromDegrees, double degrees) {
  const QRectF out(-outer, -outer, 2 * outer, 2 * outer), in(-inner, -inner, 2 * inner, 2 * inner);
  QPainterPath path;
  path.arcMoveTo(out, fromDegrees);
  path.arcTo(out, fromDegrees, degrees);
  path.arcTo(in, fromDegrees + degrees, -degrees);
  path.closeSubpath();
  return path;
}

// A spot that narrows from the edge to a point.
QPainterPath Wedge(double outer, double inner, double fromDegrees, double degrees) {
  const QRectF out(-outer, -outer, 2 * outer, 2 * outer), in(-inner, -inner, 2 * inner, 2 * inner);
  QPainterPath path, tip;
  tip.arcMoveTo(in, fromDegrees + degrees / 2);
  path.arcMoveTo(out, fromDegrees);
  path.arcTo(out, fromDegrees, degrees);
  path.lineTo(tip.currentPosition());
  path.closeSubpath();
  return path;
}

void PaintSpots(
    QPainter& painter, double radius, const CheckDesign& design, QColor spot, const QColor& body) {
  const double pitch = 360.0 / design.spots, span = pitch * design.spotShare;
  const double inner = radius * (design.inlay + 0.98) / 2;
  painter.setPen(Qt::NoPen);
  for (int k = 0; k < design.spots; ++k) {
    const double from = 90 - span / 2 + k * pitch;
    painter.setBrush(spot);
    painter.drawPath(design.wedge ? Wedge(radius, inner - radius * 0.06, from, span)
                                  : RingSector(radius, inner, from, span));
    if (!design.split) continue;
    painter.setBrush(body);
    painter.drawPath(RingSector(radius, inner, from + span * 0.4, span * 0.2));
  }
}

void PaintRingMark(QPainter& painter, double radius, const CheckDesign& design, QColor ink) {
  const double middle = radius * (design.inlay + 0.07);
  ink.setAlpha(190);
  painter.setBrush(Qt::NoBrush);
  QPen pen(ink, radius * 0.035);
  pen.setCapStyle(Qt::FlatCap);
  if (design.ring == RingMark::Dashes) pen.setDashPattern({2.2, 1.6});
  if (design.ring == RingMark::Diamonds) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(ink);
    for (int k = 0; k < 8; ++k) {
      painter.save();
      painter.rotate(k * 45.0 + 22.5);
      painter.translate(0, -middle - radius * 0.06);
      painter.rotate(45);
      const double half = radius * 0.055;
      painter.drawRect(QRectF(-half, -half, 2 * half, 2 * half));
      painter.restore();
    }
    return;
  }
  if (design.ring == RingMark::None) return;
  painter.setPen(pen);
  painter.drawEllipse(QPointF(), middle, middle);
}

// Light from the upper left, and the line that parts the check from what lies under it.
void PaintSheen(QPainter& painter, double radius) {
  QRadialGradient sheen(QPointF(-0.4, -0.5) * radius, radius * 1.7);
  sheen.setColorAt(0, QColor(255, 255, 255, 70));
  sheen.setColorAt(0.5, QColor(255, 255, 255, 0));
  sheen.setColorAt(1, QColor(0, 0, 0, 60));
  painter.setPen(QPen(QColor(0, 0, 0, 130), std::max(0.8, radius * 0.05)));
  painter.setBrush(sheen);
  painter.drawEllipse(QPointF(), radius, radius);
}

void PaintTop(QPainter& painter, double radius, int denomination) {
  const CheckDesign& design = DesignInForce();
  const CheckColours& colours = ColoursOf(denomination);
  const QColor body(colours.body), spot(colours.spot);
  painter.setPen(Qt::NoPen);
  painter.setBrush(body);
  painter.drawEllipse(QPointF(), radius, radius);
  // On a small check only the colours and the lettering can be told; ring marks would be noise.
  const bool small = radius < 11;
  PaintSpots(painter, radius, design, spot, body);
  if (!small) PaintRingMark(painter, radius, design, spot);
  const bool light = design.lightInlay;
  const double inlay = radius * (small ? std::max(0.72, design.inlay) : design.inlay);
  painter.setPen(Qt::NoPen);
  painter.setBrush(light ? QColor(0xFF, 0xFC, 0xF2) : body);
  painter.drawEllipse(QPointF(), inlay, inlay);
  PaintSheen(painter, radius);
  const bool dark = !light && qGray(colours.body) < 150;
  PaintFittedText(painter, QRectF(-0.86 * inlay, -0.56 * inlay, 1.72 * inlay, 1.12 * inlay),
                  CheckLettering(Settings.Denomination[static_cast<size_t>(denomination)]),
                  dark ? QColor(Qt::white) : QColor(colours.ink));
}

// Ways in which checks under others lie turned.
constexpr int Turns = 5;

void PaintSide(QPainter& painter, double radius, int denomination, int turn) {
  const CheckColours& colours = ColoursOf(denomination);
  const QColor body = QColor(colours.body).darker(118), spot = QColor(colours.spot).darker(112);
  painter.setPen(Qt::NoPen);
  painter.setBrush(body);
  painter.drawEllipse(QPointF(), radius, radius);
  painter.save();
  painter.rotate(360.0 / DesignInForce().spots * turn / Turns);
  PaintSpots(painter, radius, DesignInForce(), spot, body);
  painter.restore();
  painter.setPen(QPen(QColor(0, 0, 0, 150), std::max(0.8, radius * 0.05)));
  painter.setBrush(Qt::NoBrush);
  painter.drawEllipse(QPointF(), radius, radius);
}

void PaintFraction(QPainter& painter, double radius) {
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(Colours[0].body));
  painter.drawEllipse(QPointF(), radius, radius);
  PaintSheen(painter, radius);
  PaintFittedText(painter, QRectF(-0.6 * radius, -0.7 * radius, 1.2 * radius, 1.4 * radius),
                  QString(QChar(0xA2)), QColor(Colours[0].ink));
}

void PaintShadow(QPainter& painter, double radius) {
  QRadialGradient shade(QPointF(), radius * 1.5);
  shade.setColorAt(0, QColor(0, 0, 0, 125));
  shade.setColorAt(0.55, QColor(0, 0, 0, 110));
  shade.setColorAt(0.72, QColor(0, 0, 0, 50));
  shade.setColorAt(0.88, QColor(0, 0, 0, 12));
  shade.setColorAt(1, QColor(0, 0, 0, 0));
  painter.setPen(Qt::NoPen);
  painter.setBrush(shade);
  painter.drawEllipse(QPointF(), radius * 1.5, radius * 1.5);
}

QImage MakePicture(Part part, int denomination, int pixels, int turn) {
  const int side = part == Part::Shadow ? pixels * 3 / 2 : pixels;
  QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(side / 2.0, side / 2.0);
  const double radius = pixels / 2.0;
  const double inside = radius - std::max(0.8, radius * 0.05) / 2;
  switch (part) {
    case Part::Top:
      PaintTop(painter, inside, denomination);
      break;
    case Part::Side:
      PaintSide(painter, inside, denomination, turn);
      break;
    case Part::Fraction:
      PaintFraction(painter, inside);
      break;
    case Part::Shadow:
      PaintShadow(painter, radius);
      break;
  }
  painter.end();
  return image;
}

struct PictureStore {
  using Made = std::tuple<decltype(Settings.Denomination), int32_t, int32_t>;
  std::map<std::tuple<Part, int, int, int>, QImage> pictures;
  Made made;
  int version = 0;
};

// The store, emptied when the settings it was made for have changed.
PictureStore& Store() {
  static PictureStore store;
  PictureStore::Made wanted{Settings.Denomination, Settings.CheckStyle, Settings.UseCentsSymbol};
  if (store.made != wanted) {
    store.made = std::move(wanted);
    store.pictures.clear();
    ++store.version;
  }
  return store;
}

const QImage& Picture(Part part, int denomination, int pixels, int turn = 0) {
  // Zooming goes through many sizes, of which only the latest are of use.
  constexpr size_t MostPictures = 400;
  auto& pictures = Store().pictures;
  const auto key = std::make_tuple(part, denomination, pixels, turn);
  const auto found = pictures.find(key);
  if (found != pictures.end()) return found->second;
  if (pictures.size() >= MostPictures) pictures.clear();
  return pictures.emplace(key, MakePicture(part, denomination, pixels, turn)).first->second;
}

}  // namespace

const QImage& CheckTop(int denomination, int pixels) {
  return Picture(Part::Top, denomination, pixels);
}

const QImage& CheckSide(int denomination, int pixels, size_t level) {
  return Picture(Part::Side, denomination, pixels, static_cast<int>(level * 2 % Turns));
}

const QImage& FractionMarker(int pixels) {
  return Picture(Part::Fraction, 0, pixels);
}

const QImage& CheckShadow(int pixels) {
  return Picture(Part::Shadow, 0, pixels);
}

int CheckPicturesVersion() {
  return Store().version;
}

QString CheckLettering(Money value) {
  if (value < Money(1)) {
    if (Settings.UseCentsSymbol) return Shown(PlainText(value * Money(100))) + QChar(0xA2);
    const QString text = Shown(PlainText(value)).mid(1);
    return text.size() == 2 ? text + '0' : text;
  }
  const auto shortened = [&](int unit, char letter) {
    return Shown(PlainText(Money::FromRaw(value.Raw() / unit))) + letter;
  };
  // A shorter form only where it says the same.
  if (value >= Money(1000000) && value.Raw() % 10000000000 == 0) {
    return shortened(1000000, 'M');
  }
  if (value >= Money(1000) && value.Raw() % 1000000 == 0) return shortened(1000, 'K');
  return Shown(PlainText(value));
}

void PaintFittedText(QPainter& painter, const QRectF& box, const QString& text, const QColor& ink) {
  QFont font = PlainFont(100);
  font.setBold(true);
  QPainterPath path;
  path.addText(QPointF(), font, text);
  const QRectF drawn = path.boundingRect();
  if (drawn.isEmpty()) return;
  const double fit = std::min(box.width() / drawn.width(), box.height() / drawn.height());
  painter.save();
  painter.translate(box.center());
  painter.scale(fit, fit);
  painter.translate(-drawn.center());
  painter.fillPath(path, ink);
  painter.restore();
}

}  // namespace tessarel
