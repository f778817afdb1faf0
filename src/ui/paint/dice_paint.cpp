#include <QMatrix4x4>
#include <QPainterPath>
#include <QVector3D>
#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <vector>

#include "state/settings.h"
#include "ui/paint/check_paint.h"
#include "ui/paint/table_paint.h"

namespace tessarel {

namespace {

struct DieDesign {
  double corner;  // radius, as a share of the side
  bool clear;     // of translucent plastic: the far pips shimmer through
};

constexpr std::array<DieDesign, DiceStyleCount> Designs = {
    {{0.2, false}, {0.2, true}, {0.045, false}, {0.045, true}}};
constexpr size_t StartUpDesign = 1;

struct DieLook {
  DieDesign design;
  QColor body, pips;
};

DieLook LookOf(int number) {
  const auto style = static_cast<size_t>(Settings.DiceStyle);
  const int entry = number == 2 ? 7 : 5;
  DieLook look{Designs[style < Designs.size() ? style : StartUpDesign], ColourOfTable(entry),
               ColourOfTable(entry + 1)};
  // A die that nobody has coloured would be lost on the felt, and pips on the die.
  const QColor felt = ColourOfTable(0);
  if (look.body == felt) {
    look.body = QColor(0xC8, 0x10, 0x1E);
    if (look.pips == felt) look.pips = Qt::white;
  }
  if (look.pips == look.body) look.pips = qGray(look.body.rgb()) > 140 ? Qt::black : Qt::white;
  return look;
}

QColor Mixed(const QColor& a, const QColor& b, double share) {
  const auto part = [&](int x, int y) { return qRound(x + (y - x) * share); };
  return {part(a.red(), b.red()), part(a.green(), b.green()), part(a.blue(), b.blue())};
}

QColor Lit(const QColor& colour, double light) {
  return light >= 1 ? Mixed(colour, Qt::white, std::min(light - 1, 1.0))
                    : Mixed(Qt::black, colour, std::max(light, 0.0));
}

// Where the pips of a face stand, in a square from -1 to 1.
std::vector<QPointF> Pips(int face) {
  constexpr double Out = 0.52;
  std::vector<QPointF> pips;
  if (face % 2 == 1) pips.emplace_back(0, 0);
  if (face >= 2) pips.insert(pips.end(), {{-Out, -Out}, {Out, Out}});
  if (face >= 4) pips.insert(pips.end(), {{Out, -Out}, {-Out, Out}});
  if (face == 6) pips.insert(pips.end(), {{-Out, 0}, {Out, 0}});
  return pips;
}

constexpr double PipRadius = 0.185;

void PaintPips(QPainter& painter, int face, const QColor& colour) {
  painter.setPen(Qt::NoPen);
  for (const QPointF& pip : Pips(face)) {
    // A drilled pip: its upper left edge lies in shade.
    painter.setBrush(Mixed(colour, Qt::black, 0.28));
    painter.drawEllipse(pip, PipRadius, PipRadius);
    painter.setBrush(colour);
    painter.drawEllipse(pip + QPointF(0.022, 0.022), PipRadius * 0.88, PipRadius * 0.88);
  }
}

// What of the face below can be seen through a translucent die.
void PaintFarPips(QPainter& painter, int face, QColor colour) {
  colour.setAlpha(46);
  painter.setPen(Qt::NoPen);
  painter.setBrush(colour);
  for (const QPointF& pip : Pips(face)) {
    painter.drawEllipse(pip * 0.74, PipRadius * 0.72, PipRadius * 0.72);
  }
}

QLinearGradient BodyGradient(const DieLook& look, double light) {
  QLinearGradient fill(-1, -1, 1, 1);
  const double spread = look.design.clear ? 0.16 : 0.1;
  // Light gathers at the far corner of clear plastic and falls off on a solid one.
  fill.setColorAt(0, Lit(look.body, light + spread * (look.design.clear ? 0.4 : 1)));
  fill.setColorAt(0.5, Lit(look.body, light));
  fill.setColorAt(1, Lit(look.body, light + spread * (look.design.clear ? 1.2 : -1.2)));
  return fill;
}

// One face in a square from -1 to 1 with its body, as the painter's transform lays it.
void PaintFace(QPainter& painter, int face, const DieLook& look, double light) {
  const double corner = 2 * look.design.corner;
  painter.setPen(Qt::NoPen);
  painter.setBrush(BodyGradient(look, light));
  painter.drawRoundedRect(QRectF(-1, -1, 2, 2), corner, corner);
  if (look.design.clear) PaintFarPips(painter, 7 - face, look.pips);
  PaintPips(painter, face, Lit(look.pips, std::min(1.0, 0.35 + 0.65 * light)));
}

void PaintDieShadow(QPainter& painter, QPointF centre, double side) {
  const double radius = side * 0.84;
  const QPointF middle = centre + QPointF(0.1, 0.14) * side;
  QRadialGradient shade(middle, radius);
  shade.setColorAt(0, QColor(0, 0, 0, 130));
  shade.setColorAt(0.6, QColor(0, 0, 0, 105));
  shade.setColorAt(0.8, QColor(0, 0, 0, 36));
  shade.setColorAt(1, QColor(0, 0, 0, 0));
  painter.setPen(Qt::NoPen);
  painter.setBrush(shade);
  painter.drawEllipse(middle, radius, radius);
}

// The edge light and the outline of a die that lies flat.
void PaintBevel(QPainter& painter, const DieLook& look) {
  const double corner = 2 * look.design.corner;
  QLinearGradient edge(-1, -1, 1, 1);
  edge.setColorAt(0, Mixed(look.body, Qt::white, 0.6));
  edge.setColorAt(0.5, look.body);
  edge.setColorAt(1, Mixed(look.body, Qt::black, 0.55));
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(QBrush(edge), 0.07));
  painter.drawRoundedRect(QRectF(-0.965, -0.965, 1.93, 1.93), corner, corner);
}

// A face of the cube: its value, its outward normal and the directions of its own x and y.
struct CubeFace {
  int value;
  QVector3D normal, right, down;
};

// The faces of a die with `top` up. Seen from above, x points right, y down the screen and z to
// the eye; one, two and three run counter-clockwise around their corner.
std::array<CubeFace, 6> Cube(int top) {
  struct Neighbours {
    int south, east;
  };
  static constexpr std::array<Neighbours, 7> Beside = {
      {{}, {2, 3}, {3, 1}, {1, 2}, {1, 5}, {3, 6}, {2, 4}}};
  const auto [south, east] = Beside[static_cast<size_t>(top)];
  const QVector3D x(1, 0, 0), y(0, 1, 0), z(0, 0, 1);
  return {{{top, z, x, y},
           {7 - top, -z, x, -y},
           {south, y, x, -z},
           {7 - south, -y, x, z},
           {east, x, -z, y},
           {7 - east, -x, z, y}}};
}

// How a thrown die is turned: it rolls about two axes at once and comes to rest with the last
// quarter turn.
QMatrix4x4 TumbleRotation(double phase, int number) {
  const double left = std::pow(1 - std::clamp(phase, 0.0, 1.0), 1.5);
  const float side = number == 2 ? -1.0F : 1.0F;
  QMatrix4x4 rotation;
  rotation.rotate(static_cast<float>(left * 310), 0, 0, side);
  rotation.rotate(static_cast<float>(left * 560), side * 0.35F, 1, 0);
  rotation.rotate(static_cast<float>(left * 430), 1, side * -0.2F, 0);
  return rotation;
}

constexpr double EyeDistance = 3.4;  // from the middle of the die, in sides

// A point of the cube on the picture; the upper face of a die at rest keeps its size.
QPointF Projected(const QVector3D& point) {
  const double factor = (EyeDistance - 0.5) / (EyeDistance - static_cast<double>(point.z()));
  return QPointF(static_cast<double>(point.x()), static_cast<double>(point.y())) * factor;
}

QPolygonF Corners(const CubeFace& face, const QMatrix4x4& rotation) {
  QPolygonF corners;
  for (const auto& [x, y] : {std::pair{-1, -1}, {1, -1}, {1, 1}, {-1, 1}}) {
    const QVector3D corner =
        face.normal + face.right * static_cast<float>(x) + face.down * static_cast<float>(y);
    corners << Projected(rotation.map(corner / 2));
  }
  return corners;
}

// Whether a face turned to `normal` shows to the eye.
bool Faces(const QVector3D& normal) {
  const QVector3D eye(0, 0, static_cast<float>(EyeDistance));
  return QVector3D::dotProduct(normal, eye - normal / 2) > 0;
}

double LightOn(const QVector3D& normal) {
  const QVector3D sun = QVector3D(-0.45F, -0.6F, 0.85F).normalized();
  return 0.62 + 0.5 * static_cast<double>(QVector3D::dotProduct(normal, sun));
}

// The body of a turned die: its faces drawn together and a little inwards, with round corners.
void PaintTurnedBody(QPainter& painter, const QPolygonF& visible, const DieLook& look) {
  const double corner = look.design.corner;
  painter.setBrush(Lit(look.body, 0.66));
  QPen pen(Lit(look.body, 0.66), corner * 0.9);
  pen.setJoinStyle(Qt::RoundJoin);
  painter.setPen(pen);
  QPolygonF inside;
  for (const QPointF& point : visible)
    inside << point * (1 - corner * 0.55);
  painter.drawPolygon(inside);
}

}  // namespace

void PaintDie(
    QPainter& painter, QPointF centre, double side, int face, double degrees, int number) {
  if (face < 1 || face > 6) return;
  const DieLook look = LookOf(number);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  PaintDieShadow(painter, centre, side);
  painter.translate(centre);
  painter.rotate(degrees);
  painter.scale(side / 2, side / 2);
  PaintFace(painter, face, look, 1.02);
  PaintBevel(painter, look);
  painter.restore();
}

void PaintTumblingDie(
    QPainter& painter, QPointF centre, double side, int face, double phase, int number) {
  if (face < 1 || face > 6) return;
  if (!(phase < 1)) return PaintDie(painter, centre, side, face, 0, number);
  const DieLook look = LookOf(number);
  const QMatrix4x4 rotation = TumbleRotation(phase, number);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  PaintDieShadow(painter, centre, side);
  painter.translate(centre);
  painter.scale(side, side);
  QPainterPath outline;
  std::vector<std::pair<CubeFace, QPolygonF>> visible;
  for (const CubeFace& part : Cube(face)) {
    if (!Faces(rotation.mapVector(part.normal))) continue;
    visible.emplace_back(part, Corners(part, rotation));
    QPainterPath path;
    path.addPolygon(visible.back().second);
    path.closeSubpath();
    outline = outline.united(path);
  }
  PaintTurnedBody(painter, outline.toFillPolygon(), look);
  const QTransform base = painter.transform();
  const QPolygonF square({{-1, -1}, {1, -1}, {1, 1}, {-1, 1}});
  for (const auto& [part, corners] : visible) {
    QTransform laid;
    if (!QTransform::quadToQuad(square, corners, laid)) continue;
    painter.setTransform(laid * base);
    PaintFace(painter, part.value, look, LightOn(rotation.mapVector(part.normal)));
  }
  painter.restore();
}

}  // namespace tessarel
