// What the lettering of both areas of the felt shares: colours, payoffs as text, printed dice.
#include <algorithm>
#include <cmath>

#include "base/number_format.h"
#include "config/payoff_editor.h"
#include "state/table.h"
#include "ui/paint/contrast.h"
#include "ui/paint/felt_lettering.h"
#include "ui/paint/table_paint.h"
#include "ui/table_colours.h"
#include "ui/text.h"

namespace tessarel {

namespace {

struct BetColour {
  int first, last, index;
};
// clang-format off
constexpr BetColour BetColours[] = {
    {bet::PassLine, bet::PassLine, colour::PassLine},
    {bet::Come, bet::Come, colour::Come},
    {bet::DontPass, bet::DontPass, colour::DontPass},
    {bet::DontCome, bet::DontCome, colour::DontCome},
    {bet::Horn, bet::Horn, colour::Horn},
    {bet::Big6, bet::Big6, colour::Big6},
    {bet::Big8, bet::Big8, colour::Big8},
    {bet::Over7, bet::Over7, colour::Over7},
    {bet::Under7, bet::Under7, colour::Under7},
    {bet::Seven, bet::Seven, colour::Seven},
    {bet::Craps, bet::Craps, colour::AnyCraps},
    {bet::Field, bet::Field, colour::Field},
    {bet::Midway, bet::Midway, colour::Midway},
    {bet::SharpShooter, bet::SharpShooter, colour::SharpShooter},
    {bet::RideTheLine, bet::RideTheLine, colour::RideTheLine},
    {bet::AllSmall, bet::AllSmall, colour::AllSmall},
    {bet::AllTall, bet::AllTall, colour::AllTall},
    {bet::MakeAll, bet::MakeAll, colour::MakeAll},
    {bet::FourRollsNo7, bet::FourRollsNo7, colour::FourRollsNo7},
    {bet::SevenPoint7, bet::SevenPoint7, colour::SevenPoint7},
    {bet::Point7, bet::Point7, colour::Point7},
    {bet::World, bet::World, colour::World}};
// clang-format on

// Pips that would not be seen on their die are cut out of it, so that the felt shows through.
DiceInk SeenInk(const QColor& body, const QColor& pips) {
  constexpr double LeastContrast = 2;
  return {body, Contrast(body, pips) < LeastContrast ? ColourOfTable(colour::Felt) : pips};
}

// Bit 3 * row + column of the pips of a face on a grid of three by three.
constexpr std::array<int, 7> PipGrid = {0,           0b000010000, 0b100000001, 0b100010001,
                                        0b101000101, 0b101010101, 0b101101101};

}  // namespace

QString PayText(const PayoffRow& row) {
  const bool isFor = row.PayForm == Money(FormFor);
  return Shown(FormatExact(ShownPayoff(row)) + (isFor ? " for " : " to ") +
               FormatExact(row.PayDen));
}

QString PayText(int number) {
  return PayText(Payoffs.Payoff[number]);
}

QColor ColourOfBet(int number) {
  for (const BetColour& row : BetColours) {
    if (number >= row.first && number <= row.last) return ColourOfTable(row.index);
  }
  if (InFamily(number, ComeFamily)) return ColourOfTable(colour::Point4 + number - ComeFamily);
  return ColourOfTable(colour::Lines);
}

QColor QuietInk() {
  const QColor lines = ColourOfTable(colour::Lines), felt = ColourOfTable(colour::Felt);
  constexpr double WellLegible = 5.2;
  for (const double share : {0.26, 0.18, 0.1}) {
    const QColor quiet = Mixed(lines, felt, share);
    if (Contrast(quiet, felt) >= WellLegible) return quiet;
  }
  return lines;
}

void PaintPrintedDie(QPainter& painter, const QRectF& square, int face, const DiceInk& ink) {
  const double side = square.width();
  painter.setPen(Qt::NoPen);
  painter.setBrush(ink.body);
  painter.drawRoundedRect(square, side * 0.2, side * 0.2);
  painter.setBrush(ink.pips);
  for (int spot = 0; spot < 9; ++spot) {
    if ((At(PipGrid, face) >> spot & 1) == 0) continue;
    const double x = square.left() + side * (0.23 + 0.27 * (spot / 3));
    const double y = square.top() + side * (0.23 + 0.27 * (spot % 3));
    painter.drawEllipse(QPointF(x, y), side * 0.1, side * 0.1);
  }
}

void PaintPrintedPair(
    QPainter& painter, const QRectF& area, int die1, int die2, const DiceInk& ink) {
  constexpr double Gap = PairWidth - 2;
  const double side = std::min(area.height(), area.width() / PairWidth);
  const QPointF middle = area.center();
  for (const int k : {0, 1}) {
    const double left = middle.x() + side * (k == 0 ? -1 - Gap / 2 : Gap / 2);
    PaintPrintedDie(painter, {left, middle.y() - side / 2, side, side}, k == 0 ? die1 : die2, ink);
  }
}

DiceInk HardwayInk() {
  return SeenInk(ColourOfTable(colour::HardwayDice), ColourOfTable(colour::HardwayPips));
}

DiceInk PropositionInk() {
  return SeenInk(ColourOfTable(colour::PropDice), ColourOfTable(colour::PropPips));
}

DiceInk LineInk() {
  return {ColourOfTable(colour::Lines), ColourOfTable(colour::Felt)};
}

}  // namespace tessarel
