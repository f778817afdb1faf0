// Lettering, dice and lamps of the proposition field.
#include <algorithm>

#include "state/table.h"
#include "texts/say.h"
#include "ui/layout/layout_geometry.h"
#include "ui/paint/contrast.h"
#include "ui/paint/felt_lettering.h"
#include "ui/paint/table_paint.h"
#include "ui/table_colours.h"
#include "ui/text.h"

namespace tessarel {

namespace {

QRectF Inset(const QRectF& area, double x, double y) {
  return area.adjusted(x, y, -x, -y);
}

// The pair of dice that wins a bet that only one pair wins; a null point for others.
QPoint PairOf(int number) {
  switch (number) {
    case bet::Two:
      return {1, 1};
    case bet::Three:
      return {1, 2};
    case bet::Eleven:
      return {5, 6};
    case bet::Twelve:
      return {6, 6};
    default:
      break;
  }
  if (number >= bet::Hard4 && number <= bet::Hard10) {
    const int face = number - bet::Hard4 + 2;
    return {face, face};
  }
  if (number >= bet::Hop13 && number <= bet::Hop55) {
    const std::string_view faces = BetName[number].substr(4);
    return {faces[0] - '0', faces[1] - '0'};
  }
  return {};
}

void PaintDiceBet(QPainter& painter, int number, const QRectF& box, double least) {
  const QPoint pair = PairOf(number);
  const bool hard = number >= bet::Hard4 && number <= bet::Hard10;
  const DiceInk ink = hard ? HardwayInk() : PropositionInk();
  const Lettering lettering{QuietInk(), 30, least};
  const QRectF area = Inset(box, 6, 5);
  // Wide boxes have their words beside the dice, others below them.
  if (box.width() > 2.6 * box.height()) {
    const double dice = std::min(area.width() * 0.42, PairWidth * area.height() * 0.86);
    PaintPrintedPair(painter, {area.left() + 4, area.top(), dice, area.height()}, pair.x(),
                     pair.y(), ink);
    PaintWords(painter,
               {area.left() + dice + 12, area.top(), area.width() - dice - 16, area.height()},
               {PayText(number)}, lettering);
    return;
  }
  // Words below the dice, both as one group in the middle.
  constexpr double Capitals = 0.74, DiceShare = 0.52;
  const double size = std::max(least, std::min(32.0, area.height() * 0.34));
  const bool paid =
      FittingSize({0, 0, area.width(), Capitals * size}, PayText(number), {{}, size, least}) > 0;
  const double words = paid ? Capitals * size : 0;
  const double dice =
      paid ? std::min(area.height() * DiceShare, area.height() - words - 5) : area.height() * 0.7;
  const double gap = (area.height() - dice - words) / (paid ? 3 : 2);
  PaintPrintedPair(painter, {area.left(), area.top() + gap, area.width(), dice}, pair.x(), pair.y(),
                   ink);
  if (!paid) return;
  PaintWords(painter, {area.left(), area.bottom() - gap - words, area.width(), words},
             {PayText(number)}, {QuietInk(), size, least});
}

// Lamps of the special bets: what they stand for and whether the game has lit them.
struct Lamp {
  QString label;
  bool lit = false;
};

QList<Lamp> LampsOf(int number) {
  const auto totals = [](int first, int last, bool labelled) {
    QList<Lamp> lamps;
    for (int total = first; total <= last; ++total) {
      if (total == 7) continue;
      lamps << Lamp{labelled ? QString::number(total) : QString(),
                    (Table.MarkedNumbers >> total & 1) != 0};
    }
    return lamps;
  };
  switch (number) {
    case bet::AllSmall:
      return totals(2, 6, true);
    case bet::AllTall:
      return totals(8, 12, true);
    case bet::MakeAll:
      return totals(2, 12, false);
    case bet::FourRollsNo7: {
      QList<Lamp> lamps;
      for (int roll = 1; roll <= 4; ++roll)
        lamps << Lamp{QString::number(roll), Table.FourRollCount >= roll};
      return lamps;
    }
    case bet::Fire: {
      QList<Lamp> lamps;
      for (const int point : PointNumbers)
        lamps << Lamp{QString::number(point), (Table.FirePointsMask >> point & 1) != 0};
      return lamps;
    }
    default:
      return {};
  }
}

// Where a special bet has its name, its lamps and what it pays: one below the other, or in a low
// plate the payoff beside the name.
struct PlateParts {
  QRectF name, lamps, pays;
};

PlateParts PartsOfPlate(const QRectF& box, bool hasLamps, double least) {
  const QRectF area = Inset(box, 7, 6);
  const int rows = !hasLamps || area.height() < 3.1 * least || area.height() < 75 ? 2 : 3;
  const double step = area.height() / rows;
  const auto row = [&](int index) {
    return QRectF(area.left(), area.top() + index * step, area.width(), step).adjusted(0, 2, 0, -2);
  };
  return {row(0), row(1), hasLamps && rows == 2 ? QRectF() : row(rows - 1)};
}

void PaintLamps(QPainter& painter, const QRectF& area, int number, double least, bool litOnes) {
  const QList<Lamp> lamps = LampsOf(number);
  constexpr double WidestStep = 46;
  const double count = static_cast<double>(lamps.size());
  const double step = std::min(WidestStep, area.width() / count);
  const double radius = std::min({step * 0.46, area.height() / 2, 16.0});
  const QColor ink = ColourOfBet(number);
  double x = area.center().x() - step * (count - 1) / 2;
  for (const Lamp& lamp : lamps) {
    const QPointF middle(x, area.center().y());
    x += step;
    if (litOnes && !lamp.lit) continue;
    painter.setPen(QPen(ink, 1.6));
    painter.setBrush(litOnes ? QBrush(QColor(255, 206, 84)) : QBrush(Qt::NoBrush));
    painter.drawEllipse(middle, radius, radius);
    const double side = 1.64 * radius;
    PaintWords(painter, {middle.x() - side / 2, middle.y() - side / 2, side, side}, {lamp.label},
               {litOnes ? QColor(30, 22, 0) : ink, 1.5 * radius, least});
  }
}

QStringList PlateNames(int number) {
  switch (number) {
    case bet::AllSmall:
      return {"ALL SMALL"};
    case bet::MakeAll:
      return {"MAKE ALL"};
    case bet::AllTall:
      return {"ALL TALL"};
    case bet::FourRollsNo7:
      return {"4 ROLLS NO 7", "4 NO 7"};
    case bet::Point7:
      return {"POINT 7"};
    case bet::SevenPoint7:
      return {"7 POINT 7"};
    case bet::SharpShooter:
      return {"SHARP SHOOTER", "SHARP\nSHOOTER"};
    case bet::RideTheLine:
      return {"RIDE THE LINE", "RIDE THE\nLINE"};
    default:
      return {"FIRE"};
  }
}

QStringList PlatePays(int number) {
  const auto upTo = [](const PayoffRow& row) {
    return QStringList{"UP TO " + PayText(row), PayText(row)};
  };
  switch (number) {
    case bet::SevenPoint7:
      return {PayText(Payoffs.SevenPointSevenPayoff[1]) + " · " +
                  PayText(Payoffs.SevenPointSevenPayoff[2]),
              PayText(Payoffs.SevenPointSevenPayoff[2])};
    case bet::SharpShooter:
      return upTo(Payoffs.SharpShooterPayoff.back());
    case bet::RideTheLine:
      return upTo(Payoffs.RideTheLinePayoff.back());
    case bet::Fire:
      return upTo(Payoffs.FirePayoff.back());
    default:
      return {PayText(number)};
  }
}

void PaintPlate(QPainter& painter, int number, const QRectF& box, double least) {
  const bool hasLamps = !LampsOf(number).isEmpty();
  const PlateParts parts = PartsOfPlate(box, hasLamps, least);
  const QStringList names = PlateNames(number), pays = PlatePays(number);
  const Lettering name{ColourOfBet(number), 28, least}, quiet{QuietInk(), 24, least};
  if (hasLamps) PaintLamps(painter, parts.lamps, number, least, false);
  if (parts.pays.isNull()) {
    QStringList inOne;
    for (const QString& pay : pays)
      inOne << names.first() + "  " + pay;
    PaintWords(painter, parts.name, inOne + names, name);
    return;
  }
  const bool both = FittingSize(parts.name, names.first(), name) > 0 &&
                    FittingSize(parts.pays, pays.last(), quiet) > 0;
  PaintWords(painter, both || hasLamps ? parts.name : Inset(box, 7, 6), names, name);
  if (both) PaintWords(painter, parts.pays, pays, quiet);
}

void PaintDiscs(QPainter& painter, const QRectF& pair, double least) {
  struct Disc {
    QString letter;
    int index;
    double y;
  };
  const double radius = pair.width() / 2;
  for (const Disc& disc : {Disc{"C", colour::CrapsDisc, pair.top() + radius},
                           Disc{"E", colour::ElevenDisc, pair.bottom() - radius}}) {
    const QPointF middle(pair.center().x(), disc.y);
    painter.setPen(Qt::NoPen);
    painter.setBrush(ColourOfTable(disc.index));
    painter.drawEllipse(middle, radius - 2, radius - 2);
    const double side = 1.3 * radius;
    PaintWords(painter, {middle.x() - side / 2, middle.y() - side / 2, side, side}, {disc.letter},
               {ColourOfTable(colour::Felt), 1.5 * radius, std::min(least, 1.5 * radius)});
  }
}

// The names of the bets that are nothing but a name and a payoff.
QString NameOf(int number) {
  switch (number) {
    case bet::Seven:
      return "SEVEN";
    case bet::Craps:
      return "ANY CRAPS";
    case bet::Horn:
      return "HORN";
    case bet::World:
      return "WORLD";
    case bet::Over7:
      return "OVER 7";
    case bet::Under7:
      return "UNDER 7";
    default:
      return {};
  }
}

void PaintNamed(
    QPainter& painter, int number, const QRectF& box, const QString& name, double least) {
  const bool split = PartsOf(number) > 1;
  const QString pays = PayText(number);
  const QStringList texts =
      split ? QStringList{name} : QStringList{name + "   " + pays, name + " " + pays, name};
  PaintWords(painter, Inset(box, 10, 6), texts, {ColourOfBet(number), 44, least});
}

void PaintSwitch(QPainter& painter, const QRectF& box, bool open, double least) {
  // A button, not a bet: lines and felt change their parts.
  const QRectF plate = open ? Inset(box, 7, 9) : box;
  painter.setPen(Qt::NoPen);
  painter.setBrush(QuietInk());
  painter.drawRoundedRect(plate, 12, 12);
  const QString text = Shown(open ? Text::FewerBets : Text::MoreBets).toUpper();
  PaintWords(painter, Inset(plate, 6, 6), {text}, {ColourOfTable(colour::Felt), 28, least});
}

}  // namespace

void PaintPropositionLettering(QPainter& painter, const TableLayout& layout, double pixelsPerUnit) {
  const double least = LeastLettering(pixelsPerUnit);
  for (const Region& region : layout.regions) {
    const QRectF box = region.outline.boundingRect();
    const int number = region.spot;
    if (number == PropositionSwitch) {
      PaintSwitch(painter, box, layout.options.propositions, least);
    } else if (number == bet::CAndE) {
      PaintDiscs(painter, box, least);
    } else if (IsBet(number) && !PairOf(number).isNull()) {
      PaintDiceBet(painter, number, box, least);
    } else if (const QString name = NameOf(number); !name.isEmpty()) {
      PaintNamed(painter, number, box, name, least);
    } else if (number >= bet::AllSmall && number <= bet::Fire && number != bet::Midway) {
      PaintPlate(painter, number, box, least);
    }
  }
}

void PaintLitLamps(QPainter& painter, const TableLayout& layout, double pixelsPerUnit) {
  const double least = LeastLettering(pixelsPerUnit);
  for (const Region& region : layout.regions) {
    if (region.spot < bet::AllSmall || region.spot > bet::Fire || LampsOf(region.spot).isEmpty())
      continue;
    const PlateParts parts = PartsOfPlate(region.outline.boundingRect(), true, least);
    PaintLamps(painter, parts.lamps, region.spot, least, true);
  }
}

}  // namespace tessarel
