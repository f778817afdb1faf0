#include "ui/control_bar.h"

#include <QApplication>
#include <QDrag>
#include <QHBoxLayout>
#include <QHelpEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <QVBoxLayout>
#include <algorithm>

#include "base/number_format.h"
#include "dice/popup_roll.h"
#include "play/auto_roll.h"
#include "state/books.h"
#include "state/settings.h"
#include "state/table.h"
#include "state/view_state.h"
#include "texts/say.h"
#include "ui/check_drag.h"
#include "ui/paint/check_paint.h"
#include "ui/table_play.h"
#include "ui/text.h"

namespace tessarel {

namespace {

constexpr int CheckSide = 44, CheckGap = 8, DiceIconSide = 30;

std::string Count(int64_t count) {
  return FormatNumber(Money::FromWhole(count), "#,0");
}

// The two dice as a picture for the roll button.
QIcon DiceIcon(int die1, int die2, double pixelRatio) {
  QPixmap picture(QSize(2 * DiceIconSide + 6, DiceIconSide) * pixelRatio);
  picture.setDevicePixelRatio(pixelRatio);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
  const double half = DiceIconSide / 2.0;
  PaintDie(painter, QPointF(half, half), DiceIconSide - 4, die1, 0, 1);
  PaintDie(painter, QPointF(half + DiceIconSide + 6, half), DiceIconSide - 4, die2, 0, 2);
  return QIcon(picture);
}

// A button's caption on two lines, so that both buttons leave room for the rest of the bar.
QString InTwoLines(std::string_view caption) {
  QString text = Shown(caption);
  const auto space = text.indexOf(' ');
  return space < 0 ? text : text.replace(space, 1, '\n');
}

QString DrivingCaption(int64_t rate) {
  return Shown(Text::HyperDriveActive) + "\n" + Shown(Say(Text::RollsASecond, Count(rate)));
}

QString PointText() {
  return Table.Point == 0 ? Shown(Text::ComeOutRoll)
                          : Shown(Say(Text::PointIs, std::to_string(Table.Point)));
}

// What stands in the way of the next roll, else the point.
QString StateText() {
  if (PopupRoll.Waiting) return Shown(Text::WaitingForRollFile);
  return PointText();
}

}  // namespace

// --- The checks --------------------------------------------------------------------------------

CheckChooser::CheckChooser(QWidget* parent) : QWidget(parent) {
  setFocusPolicy(Qt::TabFocus);
  setMouseTracking(true);
  setFixedSize(sizeHint());
}

QSize CheckChooser::sizeHint() const {
  return {5 * CheckSide + 6 * CheckGap, CheckSide + 2 * CheckGap};
}

QPoint CheckChooser::CentreOf(int denomination) const {
  return {CheckGap + (denomination - 1) * (CheckSide + CheckGap) + CheckSide / 2, height() / 2};
}

int CheckChooser::CheckAt(QPoint pixel) const {
  for (int denomination = 1; denomination <= 5; ++denomination) {
    if ((pixel - CentreOf(denomination)).manhattanLength() <= CheckSide * 2 / 3)
      return denomination;
  }
  return 0;
}

void CheckChooser::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
  for (int denomination = 1; denomination <= 5; ++denomination) {
    PaintCheck(painter, CentreOf(denomination), CheckSide, denomination,
               denomination == ChosenCheck());
  }
  if (!hasFocus()) return;
  painter.setPen(QPen(QColor(255, 214, 90), 2));
  painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 8, 8);
}

void CheckChooser::mousePressEvent(QMouseEvent* event) {
  pressedAt_ = event->pos();
  const int denomination = CheckAt(pressedAt_);
  if (denomination == 0) return;
  ChooseCheck(denomination);
  update();
}

void CheckChooser::mouseMoveEvent(QMouseEvent* event) {
  setCursor(CheckAt(event->pos()) != 0 ? Qt::PointingHandCursor : Qt::ArrowCursor);
  const bool far =
      (event->pos() - pressedAt_).manhattanLength() >= QApplication::startDragDistance();
  const int denomination = CheckAt(pressedAt_);
  if ((event->buttons() & Qt::LeftButton) == 0 || !far || denomination == 0) return;
  auto* drag = new QDrag(this);
  auto* check = new QMimeData;
  check->setData(CheckMimeType, QByteArray::number(denomination));
  drag->setMimeData(check);
  QPixmap picture(CheckSide + 4, CheckSide + 4);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  PaintCheck(painter, QPointF(picture.rect().center()), CheckSide, denomination, false);
  painter.end();
  drag->setPixmap(picture);
  drag->setHotSpot(picture.rect().center());
  drag->exec(Qt::CopyAction);
}

void CheckChooser::keyPressEvent(QKeyEvent* event) {
  const int step = event->key() == Qt::Key_Right ? 1 : event->key() == Qt::Key_Left ? -1 : 0;
  if (step == 0) return QWidget::keyPressEvent(event);
  ChooseCheck((ChosenCheck() - 1 + step + 5) % 5 + 1);
  update();
}

bool CheckChooser::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip) {
    const auto* help = static_cast<QHelpEvent*>(event);
    const int denomination = CheckAt(help->pos());
    const QString text =
        denomination == 0
            ? QString()
            : Shown(Say(Text::BetWithCheck, FormatMoney(Settings.Denomination[denomination])));
    QToolTip::showText(help->globalPos(), text, this);
    return true;
  }
  return QWidget::event(event);
}

// --- The bar -----------------------------------------------------------------------------------

ControlBar::ControlBar(QWidget* parent)
    : QWidget(parent),
      checks_(new CheckChooser(this)),
      enterBet_(new QLineEdit(this)),
      roll_(new QPushButton(this)),
      autoRoll_(new QPushButton(this)),
      hyperDrive_(new QPushButton(this)),
      state_(new QLabel(this)),
      counts_(new QLabel(this)),
      hint_(new QLabel(this)) {
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(10, 4, 10, 4);
  row->setSpacing(12);
  row->addWidget(checks_);
  row->addWidget(enterBet_);
  row->addWidget(roll_);
  auto* figures = new QVBoxLayout;
  figures->setSpacing(0);
  figures->addStretch();
  figures->addWidget(state_);
  figures->addWidget(counts_);
  figures->addStretch();
  row->addLayout(figures);
  row->addWidget(hint_, 1);
  row->addWidget(autoRoll_);
  row->addWidget(hyperDrive_);

  enterBet_->setReadOnly(true);
  enterBet_->setFocusPolicy(Qt::NoFocus);
  enterBet_->setAlignment(Qt::AlignRight);
  enterBet_->setFixedWidth(enterBet_->fontMetrics().horizontalAdvance("$9,999,999.99") + 12);
  roll_->setIconSize({2 * DiceIconSide + 6, DiceIconSide});
  for (QPushButton* button : {roll_, autoRoll_, hyperDrive_}) {
    button->setMinimumHeight(CheckSide);
    button->setAutoDefault(false);
    // A click leaves the keys with the table.
    button->setFocusPolicy(Qt::TabFocus);
  }
  hint_->setAlignment(Qt::AlignCenter);
  hint_->setMinimumWidth(60);
  hint_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  QFont bold = state_->font();
  bold.setBold(true);
  state_->setFont(bold);
  SetCaptions();
}

void ControlBar::SetCaptions() {
  roll_->setText(Shown(Text::RollButton));
  roll_->setToolTip(Shown(Text::RollTip));
  autoRoll_->setToolTip(Shown(Text::AutoRollTip));
  hyperDrive_->setToolTip(Shown(Text::HyperDriveTip));
  checks_->setAccessibleName(Shown(Text::ChecksName));
  enterBet_->setAccessibleName(Shown(Text::KeyedAmountName));
  // The buttons keep the width of their longest caption, so that nothing moves when play starts.
  const auto widest = [](QPushButton* button, std::initializer_list<QString> captions) {
    int width = 0;
    for (const QString& caption : captions)
      width = std::max(width, button->fontMetrics().size(0, WithoutMark(caption)).width());
    button->setFixedWidth(width + 28);
  };
  widest(autoRoll_,
         {InTwoLines(Wording(Text::StartAutoRoll)), InTwoLines(Wording(Text::AutoRollActive))});
  widest(hyperDrive_, {InTwoLines(Wording(Text::StartHyperDrive)), DrivingCaption(99'999'999)});
  counts_->setMinimumWidth(counts_->fontMetrics().horizontalAdvance(
      Shown(Say(Text::RollAndHandCounts, "9,999,999", "999,999"))));
  Refresh();
}

void ControlBar::ShowState() {
  state_->setText(StateText());
  const int64_t hands = Stats.Hands[CurrentSession].HandCount + (RollsInHand() > 0 ? 1 : 0);
  counts_->setText(Shown(Say(Text::RollAndHandCounts, Count(RollsInSession()), Count(hands))));
}

int64_t ControlBar::RollsASecond() {
  return static_cast<int64_t>(rate_.PerSecond());
}

void ControlBar::ShowRun() {
  ShowState();
  hyperDrive_->setText(DrivingCaption(RollsASecond()));
}

void ControlBar::Refresh() {
  const bool hyper = Table.HyperDriveOn;
  const bool autoRoll = Table.AutoRollOn && !hyper;
  ShowState();
  const int die1 = Table.Die1 == 0 ? 3 : Table.Die1, die2 = Table.Die2 == 0 ? 4 : Table.Die2;
  if (!hyper && !TablePlay.DiceInAir && (die1 != shownDie1_ || die2 != shownDie2_)) {
    shownDie1_ = die1;
    shownDie2_ = die2;
    roll_->setIcon(DiceIcon(die1, die2, devicePixelRatioF()));
  }
  roll_->setEnabled(TableIsIdle());
  autoRoll_->setEnabled(!hyper);
  hyperDrive_->setEnabled(!autoRoll);
  autoRoll_->setText(InTwoLines(AutoRollCaption()));
  hyperDrive_->setText(hyper ? DrivingCaption(RollsASecond()) : InTwoLines(HyperDriveCaption()));
  enterBet_->setVisible(GameViews.Table.KeyInBetAmounts || !TablePlay.EnteredAmount.empty());
  enterBet_->setText(TablePlay.EnteredAmount.empty() ? QString()
                                                     : "$" + Shown(TablePlay.EnteredAmount));
  checks_->update();
}

void ControlBar::ShowHint(const QString& text, bool possible) {
  hintText_ = text;
  QPalette palette = hint_->palette();
  palette.setColor(QPalette::WindowText,
                   possible ? this->palette().color(QPalette::WindowText) : QColor(255, 176, 112));
  hint_->setPalette(palette);
  ShowElidedHint();
}

void ControlBar::ShowElidedHint() {
  hint_->setText(hint_->fontMetrics().elidedText(hintText_, Qt::ElideRight, hint_->width()));
  hint_->setToolTip(hint_->text() == hintText_ ? QString() : hintText_);
}

void ControlBar::resizeEvent(QResizeEvent*) {
  ShowElidedHint();
}

}  // namespace tessarel
