// Lettering of the two ends of the layout.
#include "state/table.h"
#include "ui/layout/layout_geometry.h"
#include "ui/paint/felt_lettering.h"
#include "ui/paint/table_paint.h"
#include "ui/table_colours.h"

namespace tessarel {

using namespace geometry;

namespace {

struct EndPainter {
  QPainter& painter;
  const TableLayout& layout;
  double least;
  bool right;

  QRectF Area(double left, double top, double rightEdge, double bottom) const {
    return Mirrored(QRectF(QPointF(left, top), QPointF(rightEdge, bottom)), right);
  }
  // The region of a bet at this end; empty when the layout is without it.
  QRectF AreaOf(int spot) const {
    for (const Region& region : layout.regions) {
      const QRectF box = region.outline.boundingRect();
      if (region.spot == spot && (box.center().x() > Middle) == right) return box;
    }
    return {};
  }
  Lettering Ink(int number, double most) const { return {ColourOfBet(number), most, least}; }
};

QRectF Inset(const QRectF& area, double x, double y) {
  return area.adjusted(x, y, -x, -y);
}

void PaintNumberBox(const EndPainter& end, int point) {
  const QRectF column = NumberColumn(PointIndex(point), end.right);
  const auto band = [&](double top, double bottom) {
    return Inset({QPointF(column.left(), top), QPointF(column.right(), bottom)}, 2, 4);
  };
  const auto words = [&](const QRectF& area, Family family, const QStringList& names) {
    const QString pay = ' ' + PayText(BetOn(family, point));
    QStringList texts;
    for (const QString& name : names)
      texts << name + '\n' + pay.mid(1) << name + pay;
    PaintWords(end.painter, area, texts + names, {QuietInk(), 20, end.least});
  };
  words(band(LayTop, DontComeTop), LayFamily, {"LAY"});
  PaintWords(end.painter, band(DontComeTop, DontComeOddsTop), {"DON'T\nCOME", "DC"},
             {QuietInk(), 20, end.least});
  words(band(DontComeOddsTop, ComeNumberTop), DontComeOddsFamily, {"ODDS"});
  words(band(ComeOddsTop, PlaceTop), ComeOddsFamily, {"ODDS"});
  words(band(PlaceTop, BuyTop), PlaceFamily, {"PLACE"});
  words(band(BuyTop, ComeTop), BuyFamily, {"BUY"});

  const QString name = point == 6 ? "SIX" : point == 9 ? "NINE" : QString::number(point);
  // Words are set tall, as high as the widest of them can be, to stand beside the figures.
  constexpr double Tall = 1.5;
  const bool word = name.size() > 2;
  const double size = word ? FittingSize({0, 0, BoxWidth - 18, 100}, "NINE", {{}, 60, 0}) : 78;
  const QRectF area = Inset(band(ComeNumberTop, ComeOddsTop), 7, 0);
  end.painter.save();
  end.painter.translate(area.center());
  if (word) end.painter.scale(1, Tall);
  PaintWords(end.painter, area.translated(-area.center()), {name},
             {ColourOfBet(BetOn(ComeFamily, point)), size, 0});
  end.painter.restore();
}

// "BAR" and the barred pair after it, as one group in the middle of `area`.
void PaintDontPass(const EndPainter& end) {
  const int face = end.layout.options.barNumber / 2;
  const QRectF area = end.Area(BendX, DontPassTop, DontPassOddsLeft, PassTop);
  constexpr double Size = 34, Die = 34, Gap = 14;
  const QString text = "DON'T PASS BAR";
  const double width = WidthOfWords(text, Size), whole = width + Gap + PairWidth * Die;
  const double left = area.center().x() - whole / 2;
  PaintWords(end.painter, {left, area.top(), width, area.height()}, {text},
             end.Ink(bet::DontPass, Size));
  PaintPrintedPair(end.painter,
                   {left + width + Gap, area.center().y() - Die / 2, PairWidth * Die, Die}, face,
                   face, LineInk());
  PaintWords(end.painter, Inset(end.Area(DontPassOddsLeft, DontPassTop, EndRight, PassTop), 8, 6),
             {"ODDS"}, {QuietInk(), 26, end.least});
}

void PaintDontCome(const EndPainter& end) {
  const int face = end.layout.options.barNumber / 2;
  const QRectF area = end.Area(CornerLeft, NumbersTop, BoxLeft, ComeTop);
  PaintWords(end.painter, {area.left() + 6, area.top() + 60, area.width() - 12, 130},
             {"DON'T\nCOME\nBAR"}, end.Ink(bet::DontCome, 38));
  PaintPrintedPair(end.painter, {area.left() + 14, area.top() + 206, area.width() - 28, 34}, face,
                   face, LineInk());
}

QString MidwayPays() {
  const auto& rows = Payoffs.MidwayPayoff;
  const QString easy = PayText(rows[2]), hard = PayText(rows[1]);
  const bool plain =
      PayText(rows[3]) == easy && PayText(rows[4]) == easy && PayText(rows[5]) == hard;
  return plain ? easy + "\nHARD " + hard : QString("6 · 7 · 8");
}

void PaintCorner(const EndPainter& end) {
  const QRectF midway = end.AreaOf(bet::Midway);
  if (!midway.isEmpty()) {
    PaintWords(end.painter, Inset(midway, 6, 8),
               {"MIDWAY\n" + MidwayPays(), "MIDWAY\n6 · 7 · 8", "MID\nWAY"},
               end.Ink(bet::Midway, 26));
  }
  for (const int number : {bet::Big6, bet::Big8}) {
    const QRectF area = Inset(end.AreaOf(number), 6, 8);
    if (!area.isValid()) continue;
    const QRectF name(area.left(), area.top(), area.width(), area.height() * 0.32);
    PaintWords(end.painter, name, {"BIG  " + PayText(number), "BIG"}, end.Ink(number, 26));
    PaintWords(end.painter, area.adjusted(0, name.height() + 4, 0, 0),
               {number == bet::Big6 ? "6" : "8"}, end.Ink(number, 74));
  }
}

// One number of the Field: what its pairs of dice pay. Numbers that lose with every pair are not
// on the layout.
struct FieldNumber {
  int total = 0;
  QList<QPoint> pairs;  // the winning ones
  QString pays;         // empty when its pairs pay differently
};

QList<FieldNumber> FieldNumbers() {
  QList<FieldNumber> numbers;
  for (int total = 2; total <= 12; ++total) {
    FieldNumber number{total, {}, {}};
    bool alike = true;
    for (int low = std::max(1, total - 6); 2 * low <= total; ++low) {
      const PayoffRow& row = Payoffs.FieldPayoff[PairIndex(low, total - low)];
      if (row.PayNum <= Money()) continue;
      const QString pays = PayText(row);
      alike = alike && (number.pays.isEmpty() || number.pays == pays);
      number.pays = pays;
      number.pairs << QPoint(low, total - low);
    }
    if (!alike) number.pays.clear();
    if (!number.pairs.isEmpty()) numbers << number;
  }
  return numbers;
}

// What all of the numbers pay; empty when they differ.
QString CommonPay(const QList<FieldNumber>& numbers) {
  for (const FieldNumber& number : numbers) {
    if (number.pays != numbers.first().pays) return {};
  }
  return numbers.isEmpty() ? QString() : numbers.first().pays;
}

void PaintFieldNumber(const EndPainter& end, const FieldNumber& number, const QRectF& cell) {
  const QString total = QString::number(number.total);
  if (number.total == 2 || number.total == 12) {
    const double radius = std::min(cell.width(), cell.height()) / 2 - 3;
    end.painter.setPen(QPen(ColourOfBet(bet::Field), 3));
    end.painter.setBrush(Qt::NoBrush);
    end.painter.drawEllipse(cell.center(), radius, radius);
    const QRectF inside = QRectF(-0.72 * radius, -0.72 * radius, 1.44 * radius, 1.44 * radius)
                              .translated(cell.center());
    const bool paid = PaintWords(
        end.painter,
        {inside.left() - 6, inside.center().y() + 8, inside.width() + 12, inside.height() / 2 - 10},
        {number.pays}, end.Ink(bet::Field, 26));
    PaintWords(end.painter,
               paid ? QRectF(inside.left(), inside.top() - 2, inside.width(), 44) : inside, {total},
               end.Ink(bet::Field, 56));
    return;
  }
  PaintWords(end.painter, {cell.left() - 3, cell.top(), cell.width() + 6, 36}, {total},
             end.Ink(bet::Field, 38));
  const double width = cell.width() / static_cast<double>(number.pairs.size());
  constexpr double LeastDie = 7, Margin = 3;
  if (width - 2 * Margin < PairWidth * LeastDie) return;
  double left = cell.left();
  for (const QPoint pair : number.pairs) {
    PaintPrintedPair(end.painter, Inset({left, cell.top() + 41, width, 15}, Margin, 0), pair.x(),
                     pair.y(), LineInk());
    left += width;
  }
}

double ShareOf(const FieldNumber& number) {
  return static_cast<double>(number.pairs.size()) + 1.5;
}

// The name with what the plain numbers pay behind it, where there is one payoff and room for it.
void PaintFieldName(const EndPainter& end, const QRectF& area, const QString& pays) {
  constexpr double Size = 42, Gap = 18;
  const double paySize = std::max(24.0, end.least);
  const double name = WidthOfWords("FIELD", Size), pay = WidthOfWords(pays, paySize);
  if (pays.isEmpty() || name + Gap + pay > area.width()) {
    PaintWords(end.painter, area, {"FIELD"}, end.Ink(bet::Field, Size));
    return;
  }
  const double left = area.center().x() - (name + Gap + pay) / 2;
  PaintWords(end.painter, {left, area.top(), name, area.height()}, {"FIELD"},
             end.Ink(bet::Field, Size));
  PaintWords(end.painter, {left + name + Gap, area.top(), pay, area.height()}, {pays},
             {QuietInk(), paySize, end.least});
}

void PaintField(const EndPainter& end) {
  QList<FieldNumber> numbers = FieldNumbers();
  QRectF area = Inset(end.AreaOf(bet::Field), 10, 8);
  constexpr double Circle = 106;
  if (!numbers.isEmpty() && numbers.first().total == 2) {
    PaintFieldNumber(end, numbers.takeFirst(), {area.left(), area.top(), Circle, area.height()});
  }
  if (!numbers.isEmpty() && numbers.last().total == 12) {
    PaintFieldNumber(end, numbers.takeLast(),
                     {area.right() - Circle, area.top(), Circle, area.height()});
  }
  area.adjust(Circle + 4, 0, -Circle - 4, 0);
  // Numbers with more pairs get more room, so that all dice are of one size.
  double shares = 0;
  for (const FieldNumber& number : numbers)
    shares += ShareOf(number);
  double left = area.left();
  for (const FieldNumber& number : numbers) {
    const double width = area.width() * ShareOf(number) / shares;
    PaintFieldNumber(end, number, {left, area.top(), width, area.height()});
    left += width;
  }
  PaintFieldName(end, {area.left(), area.bottom() - 40, area.width(), 38}, CommonPay(numbers));
}

// Letters run down the end, around the corner and on towards the stick, and stand upright for the
// players outside.
void PaintLineLettering(const EndPainter& end) {
  const auto band = [&](double radius) {
    const QRectF around(BendX - radius, BendY - radius, 2 * radius, 2 * radius);
    QPainterPath path(QPointF(BendX - radius, LineTop));
    path.lineTo(BendX - radius, BendY);
    path.arcTo(around, 180, 90);
    path.lineTo(EndRight, BendY + radius);
    if (!end.right) return path;
    return QTransform(-1, 0, 0, 1, LayoutWidth, 0).map(path).toReversed();
  };
  PaintAlongPath(end.painter, band(BendX - (PassLeft + CornerLeft) / 2), "PASS LINE", 50, 30,
                 ColourOfBet(bet::PassLine));
  QPainterPath leg(QPointF(MirroredX((OddsLeft + PassLeft) / 2, end.right), LineTop));
  leg.lineTo(leg.currentPosition() + QPointF(0, BendY - LineTop));
  PaintAlongPath(end.painter, end.right ? leg.toReversed() : leg, "ODDS", std::max(24.0, end.least),
                 4, QuietInk());
  PaintWords(end.painter, Inset(end.Area(BendX + 20, OddsTop, EndRight, OddsBottom), 0, 6),
             {"O D D S"}, {QuietInk(), 20, end.least});
}

}  // namespace

void PaintEndLettering(QPainter& painter, const TableLayout& layout, double pixelsPerUnit) {
  for (const bool right : {false, true}) {
    const EndPainter end{painter, layout, LeastLettering(pixelsPerUnit), right};
    for (const int point : PointNumbers)
      PaintNumberBox(end, point);
    PaintDontCome(end);
    PaintWords(painter, Inset(end.AreaOf(bet::Come), 20, 14), {"C O M E"}, end.Ink(bet::Come, 96));
    PaintCorner(end);
    PaintField(end);
    PaintDontPass(end);
    PaintLineLettering(end);
  }
}

}  // namespace tessarel
