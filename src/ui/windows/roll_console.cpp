#include "ui/windows/roll_console.h"

#include <QActionGroup>
#include <QColorDialog>
#include <QContextMenuEvent>
#include <QPainter>
#include <QPointer>
#include <QSignalBlocker>
#include <QTimerEvent>
#include <QVBoxLayout>
#include <algorithm>

#include "play/auto_roll.h"
#include "play/roll_pace.h"
#include "state/books.h"
#include "state/settings.h"
#include "state/table.h"
#include "stats/view_text.h"
#include "texts/say.h"
#include "ui/text.h"

namespace tessarel {

namespace {

constexpr int LookMilliseconds = 250;  // between two looks at what may have changed

constexpr std::array DisplayCaptions = {Text::DisplayBasic, Text::DisplayTriangle, Text::DisplayBox,
                                        Text::DisplaySingleDice};
constexpr std::array ButtonColorCaptions = {Text::ButtonColorNumbers,  Text::ButtonColorSeven,
                                            Text::ButtonColorCraps,    Text::ButtonColorEleven,
                                            Text::ButtonColorHardWays, Text::ButtonColorSingle};

}  // namespace

RollConsole::RollConsole(QWidget* parent) : FloatingWindow(parent, &WindowPlaces::RollConsole) {
  setObjectName("frmRYON");
  bar_ = new QMenuBar(this);
  pad_ = new RollPad(this);
  hint_ = new QLabel(this);
  throttleCaption_ = new QLabel(this);
  throttleValue_ = new QLabel(this);
  lblRollCounter_ = new QLabel(this);
  cmdRandomRoll_ = new QPushButton(this);
  cmdHyperDrive_ = new QPushButton(this);
  hsbThrottle_ = new QSlider(Qt::Horizontal, this);
  meter_ = new HyperDriveMeter(this);
  hint_->setObjectName("lblHint");
  lblRollCounter_->setObjectName("lblRollCounter");
  cmdRandomRoll_->setObjectName("cmdRandomRoll");
  cmdHyperDrive_->setObjectName("cmdHyperDrive");
  hsbThrottle_->setObjectName("hsbThrottle");
  AddDisplayMenu();
  AddRollMenu();
  LayOut();
  connect(pad_, &RollPad::Chosen, this,
          [this](Faces faces) { Run([faces] { RollChosen(faces); }); });
  connect(pad_, &RollPad::StopChosen, this, [this] { Run(StopAutoRoll); });
  connect(pad_, &RollPad::HintChanged, hint_, &QLabel::setText);
  connect(cmdRandomRoll_, &QPushButton::clicked, this, [this] { Run(RollAtRandom); });
  connect(cmdHyperDrive_, &QPushButton::clicked, this, [this] { Run([] { ToggleAutoRoll(); }); });
  connect(hsbThrottle_, &QSlider::valueChanged, this, [this](int position) {
    Settings.Throttle = position;
    RefreshFigures();
  });
  Refresh();
  pad_->setFocus();
}

// The pad may still lose the focus while the window below this one goes.
RollConsole::~RollConsole() {
  pad_->disconnect(this);
}

void RollConsole::AddDisplayMenu() {
  displayMenu_ = bar_->addMenu(QString());
  auto* displays = new QActionGroup(this);
  for (int k = 0; k < RollPadDisplays; ++k) {
    QAction* action = displayMenu_->addAction(QString());
    At(mnuRYONDisplay_, k) = action;
    action->setObjectName("mnuRYONDisplay" + QString::number(k + 1));
    action->setCheckable(true);
    displays->addAction(action);
    connect(action, &QAction::triggered, this, [this, k] {
      GameViews.RollConsole.Display = k + 1;
      ShowChange();
    });
  }
  displayMenu_->addSeparator();
  mnuRollCounter_ = AddSwitch(displayMenu_, "mnuRollCounter", &RollConsoleOptions::HideRollCounter);
  mnuHyperDriveButton_ =
      AddSwitch(displayMenu_, "mnuHyperDriveButton", &RollConsoleOptions::HideHyperDriveButton);
  mnuRandomButton_ =
      AddSwitch(displayMenu_, "mnuRandomButton", &RollConsoleOptions::HideRandomButton);
  displayMenu_->addSeparator();
  AddColorMenu();
  displayMenu_->addSeparator();
  mnuHide_ = displayMenu_->addAction(QString());
  mnuHide_->setObjectName("mnuHide");
  connect(mnuHide_, &QAction::triggered, this, &QWidget::hide);
}

void RollConsole::AddColorMenu() {
  colorMenu_ = displayMenu_->addMenu(QString());
  for (int k = 0; k < RollKinds; ++k) {
    QAction* action = colorMenu_->addAction(QString());
    At(mnuButtonColor_, k) = action;
    connect(action, &QAction::triggered, this, [this, k] { PickColor(static_cast<RollKind>(k)); });
  }
  colorMenu_->addSeparator();
  defaultColors_ = colorMenu_->addAction(QString());
  connect(defaultColors_, &QAction::triggered, this, [this] {
    ResetButtonColors();
    Refresh();
  });
}

void RollConsole::AddRollMenu() {
  rollMenu_ = bar_->addMenu(QString());
  rollAtRandom_ = rollMenu_->addAction(QString());
  hyperDrive_ = rollMenu_->addAction(QString());
  rollMenu_->addSeparator();
  mnuSetAutoStop_ = rollMenu_->addAction(QString());
  mnuSetAutoRollTimeDelay_ = rollMenu_->addAction(QString());
  connect(rollAtRandom_, &QAction::triggered, this, [this] { Run(RollAtRandom); });
  connect(hyperDrive_, &QAction::triggered, this, [this] { Run([] { ToggleAutoRoll(); }); });
  connect(mnuSetAutoStop_, &QAction::triggered, this, [this] { Run(AskSetAutoStop); });
  connect(mnuSetAutoRollTimeDelay_, &QAction::triggered, this, [this] { Run(AskSetTimeDelay); });
}

QAction* RollConsole::AddSwitch(QMenu* menu, const char* name, bool RollConsoleOptions::*hides) {
  QAction* action = menu->addAction(QString());
  action->setObjectName(name);
  action->setCheckable(true);
  connect(action, &QAction::triggered, this, [this, hides](bool on) {
    GameViews.RollConsole.*hides = !on;
    ShowChange();
  });
  return action;
}

void RollConsole::LayOut() {
  throttleCaption_->setBuddy(hsbThrottle_);
  throttleValue_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  hsbThrottle_->setRange(0, MaxThrottle);
  hsbThrottle_->setPageStep(10);
  hint_->setAlignment(Qt::AlignCenter);
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(cmdRandomRoll_, 1);
  buttons->addWidget(cmdHyperDrive_, 1);
  auto* throttle = new QHBoxLayout;
  throttle->addWidget(throttleCaption_);
  throttle->addWidget(hsbThrottle_, 1);
  throttle->addWidget(throttleValue_);
  auto* figures = new QHBoxLayout;
  figures->addWidget(lblRollCounter_, 1);
  figures->addWidget(meter_);
  auto* all = new QVBoxLayout(this);
  all->setContentsMargins(8, 4, 8, 8);
  all->setSpacing(6);
  all->setMenuBar(bar_);
  all->addWidget(pad_, 1);
  all->addWidget(hint_);
  all->addLayout(buttons);
  all->addLayout(throttle);
  all->addLayout(figures);
}

void RollConsole::ShowChange() {
  Refresh();
  FitToDisplay();
}

// The window takes the size that suits the display, at its upper left corner.
void RollConsole::FitToDisplay() {
  layout()->activate();
  resize(sizeHint().expandedTo(minimumSizeHint()));
}

void RollConsole::PickColor(RollKind kind) {
  const QPointer<RollConsole> self = this;
  const QString title = WithoutMark(Shown(At(ButtonColorCaptions, static_cast<int>(kind))));
  const QColor color = QColorDialog::getColor(ButtonColor(kind), this, title);
  if (!self || !color.isValid()) return;
  SetButtonColor(kind, color);
  Refresh();
}

// Rolls may go on until the window is no more.
template <class Action>
void RollConsole::Run(Action action) {
  const QPointer<RollConsole> self = this;
  action();
  if (self) Refresh();
}

void RollConsole::RefreshCaptions() {
  setWindowTitle(Shown(Text::ConsoleTitle));
  displayMenu_->setTitle(Shown(Text::DisplayMenu));
  rollMenu_->setTitle(Shown(Text::RollMenu));
  for (int k = 0; k < RollPadDisplays; ++k)
    At(mnuRYONDisplay_, k)->setText(Shown(At(DisplayCaptions, k)));
  for (int k = 0; k < RollKinds; ++k)
    At(mnuButtonColor_, k)->setText(Shown(At(ButtonColorCaptions, k)));
  mnuRollCounter_->setText(Shown(Text::RollCounter));
  mnuHyperDriveButton_->setText(Shown(Text::HyperDriveButton));
  mnuRandomButton_->setText(Shown(Text::RandomRollButton));
  colorMenu_->setTitle(Shown(Text::ButtonColorMenu));
  defaultColors_->setText(Shown(Text::DefaultColors));
  mnuHide_->setText(Shown(Text::HideWindow));
  rollAtRandom_->setText(Shown(Text::RandomRoll));
  cmdRandomRoll_->setText(Shown(Text::RandomRoll));
  throttleCaption_->setText(Shown(Text::Throttle));
  hsbThrottle_->setToolTip(Shown(Text::ThrottleNote));
  throttleValue_->setMinimumWidth(fontMetrics().horizontalAdvance("100"));
  hint_->setMinimumWidth(RollPad::WidestHint(hint_->fontMetrics()));
}

void RollConsole::RefreshColorIcons() {
  const int side = fontMetrics().height();
  for (int k = 0; k < RollKinds; ++k) {
    QPixmap sample(side, side);
    sample.fill(ButtonColor(static_cast<RollKind>(k)));
    QPainter(&sample).drawRect(0, 0, side - 1, side - 1);
    At(mnuButtonColor_, k)->setIcon(sample);
  }
}

// What changes with a roll, a run or a setting.
void RollConsole::RefreshFigures() {
  seen_ = {RollsInSession(), Table.AutoRollOn, Table.HyperDriveOn, Settings.Throttle};
  const QString caption = Shown(HyperDriveCaption());
  cmdHyperDrive_->setText(caption);
  hyperDrive_->setText(caption);
  const QSignalBlocker blocker(hsbThrottle_);
  hsbThrottle_->setValue(Settings.Throttle);
  throttleValue_->setText(QString::number(hsbThrottle_->value()));
  lblRollCounter_->setText(Shown(Say(Text::RollCount, CountText(int64_t{RollsInSession()}))));
  const int64_t stop = Settings.AutoStopRolls.Floor();
  const std::string every = stop > 0 ? CountText(stop) : Say(Text::NoAutoStop);
  mnuSetAutoStop_->setText(Shown(Say(Text::SetAutoStopEvery, every)));
  mnuSetAutoRollTimeDelay_->setText(
      Shown(Say(Text::SetTimeDelayOf, AmountText(Settings.RollDelay))));
  pad_->Refresh();
}

void RollConsole::Refresh() {
  const RollConsoleOptions& options = GameViews.RollConsole;
  RefreshCaptions();
  RefreshColorIcons();
  At(mnuRYONDisplay_, DisplayInForce() - 1)->setChecked(true);
  mnuRollCounter_->setChecked(!options.HideRollCounter);
  mnuHyperDriveButton_->setChecked(!options.HideHyperDriveButton);
  mnuRandomButton_->setChecked(!options.HideRandomButton);
  lblRollCounter_->setVisible(!options.HideRollCounter);
  cmdHyperDrive_->setVisible(!options.HideHyperDriveButton);
  cmdRandomRoll_->setVisible(!options.HideRandomButton);
  pad_->SetDisplay(DisplayInForce());
  RefreshFigures();
  // The button keeps its width when its caption changes.
  const QString caption = cmdHyperDrive_->text();
  cmdHyperDrive_->setMinimumWidth(0);
  int widest = 0;
  for (const Text text : {Text::StartHyperDrive, Text::HyperDriveActive}) {
    cmdHyperDrive_->setText(Shown(text));
    widest = std::max(widest, cmdHyperDrive_->sizeHint().width());
  }
  cmdHyperDrive_->setText(caption);
  cmdHyperDrive_->setMinimumWidth(widest);
}

void RollConsole::contextMenuEvent(QContextMenuEvent* event) {
  displayMenu_->popup(event->globalPos());
}

void RollConsole::showEvent(QShowEvent*) {
  Refresh();
  timer_.start(LookMilliseconds, this);
}

void RollConsole::hideEvent(QHideEvent*) {
  timer_.stop();
}

void RollConsole::timerEvent(QTimerEvent*) {
  const Seen now{RollsInSession(), Table.AutoRollOn, Table.HyperDriveOn, Settings.Throttle};
  if (now != seen_) RefreshFigures();
}

}  // namespace tessarel
