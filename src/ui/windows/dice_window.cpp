#include "ui/windows/dice_window.h"

#include <QPainter>
#include <algorithm>

#include "state/settings.h"
#include "state/table.h"
#include "texts/say.h"
#include "ui/paint/check_paint.h"
#include "ui/text.h"

namespace tessarel {

namespace {

constexpr std::array TotalWords = {Text::TotalTwo,    Text::TotalThree, Text::TotalFour,
                                   Text::TotalFive,   Text::TotalSix,   Text::TotalSeven,
                                   Text::TotalEight,  Text::TotalNine,  Text::TotalTen,
                                   Text::TotalEleven, Text::TotalTwelve};

QColor FeltColor() {
  const int32_t felt = Settings.TableColor[0];
  return QColor(felt & 255, felt >> 8 & 255, felt >> 16 & 255);
}

QString TotalInWords() {
  const int total = Table.Die1 + Table.Die2;
  if (total < 2 || total > 12) return Shown(Text::NoRollYet);
  return Shown(At(TotalWords, total - 2));
}

QString NoteOnTotal() {
  switch (const int total = Table.Die1 + Table.Die2) {
    case 2:
    case 3:
    case 12:
      return Shown(Text::CrapsCall);
    default:
      const bool hard = total > 0 && Table.Die1 == Table.Die2;
      return hard ? Shown(Text::HardWayCall) : QString();
  }
}

}  // namespace

QString DiceCall() {
  const QString note = NoteOnTotal();
  return note.isEmpty() ? TotalInWords() : TotalInWords() + ' ' + note;
}

DiceWindow::DiceWindow(QWidget* parent) : FloatingWindow(parent, &WindowPlaces::Dice) {
  setObjectName("frmDice");
  Refresh();
}

void DiceWindow::Refresh() {
  setWindowTitle(Shown(Text::DiceTitle));
  setAccessibleDescription(DiceCall());
  update();
}

void DiceWindow::SetPhase(double phase) {
  phase_ = std::clamp(phase, 0.0, 1.0);
  update();
}

void DiceWindow::PaintFelt(QPainter& painter) const {
  const QColor felt = FeltColor();
  QRadialGradient light(QRectF(rect()).center(), width() * 0.7);
  light.setColorAt(0, felt.lighter(130));
  light.setColorAt(1, felt.darker(130));
  painter.fillRect(rect(), light);
}

void DiceWindow::PaintBothDice(QPainter& painter, const QRectF& area) const {
  const double side = std::min(area.width() * 0.34, area.height() * 0.74);
  const QPointF apart(side * 0.72, 0);
  const auto paint = [&](QPointF centre, int face, double degrees, int number) {
    if (phase_ < 1) {
      PaintTumblingDie(painter, centre, side, face, phase_, number);
    } else {
      PaintDie(painter, centre, side, face, degrees, number);
    }
  };
  paint(area.center() - apart, Table.Die1, -5, 1);
  paint(area.center() + apart, Table.Die2, 4, 2);
}

// As large as the line allows, but readable in any window.
void DiceWindow::PaintCall(QPainter& painter, const QRectF& area) const {
  const QString call = DiceCall();
  QFont font = painter.font();
  font.setBold(true);
  constexpr int Smallest = 13;  // pixels
  int size = std::max(Smallest, static_cast<int>(area.height() * 0.62));
  const auto width = [&] {
    font.setPixelSize(size);
    return QFontMetrics(font).horizontalAdvance(call);
  };
  while (size > Smallest && width() > area.width())
    --size;
  painter.setFont(font);
  painter.setPen(qGray(FeltColor().rgb()) < 140 ? Qt::white : Qt::black);
  painter.drawText(area, Qt::AlignCenter, call);
}

void DiceWindow::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  PaintFelt(painter);
  const QRectF area = QRectF(rect()).adjusted(8, 6, -8, -6);
  const double callHeight = std::max(24.0, area.height() * 0.24);
  QRectF call(area.left(), area.bottom() - callHeight, area.width(), callHeight);
  if (Table.Die1 == 0) {
    call.moveCenter(area.center());
    return PaintCall(painter, call);
  }
  PaintBothDice(painter, area.adjusted(0, 0, 0, -callHeight));
  if (phase_ == 1) PaintCall(painter, call);
}

}  // namespace tessarel
