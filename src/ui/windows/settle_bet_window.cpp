#include <QFrame>
#include <QGridLayout>
#include <QLineEdit>
#include <vector>

#include "texts/say.h"
#include "ui/money_input.h"
#include "ui/palette.h"
#include "ui/text.h"
#include "ui/windows/dialog_look.h"
#include "ui/windows/game_dialogs.h"

namespace tessarel {

namespace {

constexpr int TakeButton = 0, SameButton = 1, ModifyButton = 5, SetButton = 6;
constexpr const char* Operators[] = {"+", "-", "x", "/"};
constexpr int32_t OperatorCount = 4;
constexpr int64_t Percent = 1, LastUnits = 6;
constexpr int AmountDecimals = 4;

// A sum is set in dollars or checks, never as a share.
Money NextUnits(Money units, bool takesPercent) {
  const int64_t next = units.Floor() >= LastUnits ? 0 : units.Floor() + 1;
  return Money::FromWhole(next == Percent && !takesPercent ? next + 1 : next);
}

// The units' button is as wide as the longest of its captions, so that cycling moves nothing.
int WidestUnits(const QFontMetrics& metrics) {
  int widest = 0;
  for (int64_t units = 0; units <= LastUnits; ++units) {
    const QString text = Shown(UnitsText(Money::FromWhole(units)));
    widest = std::max(widest, metrics.horizontalAdvance(text));
  }
  return widest;
}

class SettleBetWindow : public QDialog {
 public:
  SettleBetWindow(QWidget* parent, SettlePrompt& prompt) : QDialog(parent), prompt_(prompt) {
    setObjectName(QStringLiteral("frmSettleBet"));
    DressWindow(*this, Shown(Text::SettleBetTitle));
    prompt_.button = TakeButton;
    QVBoxLayout* const column = MakeColumn(*this);
    auto* const upper = new QHBoxLayout;
    upper->setSpacing(LookStep(8));
    AddReport(upper);
    AddChoices(upper);
    column->addLayout(upper);
    column->addSpacing(LookStep(1));
    auto* const line = new QFrame;
    line->setFrameShape(QFrame::HLine);
    line->setForegroundRole(QPalette::Light);
    column->addWidget(line);
    column->addSpacing(LookStep(1));
    auto* const grid = new QGridLayout;
    grid->setSpacing(LookStep(2));
    grid->setColumnStretch(2, 1);
    AddRow(grid, 0, ModifyButton, Shown(Text::ChangeBetBy), prompt_.modify);
    AddRow(grid, 1, SetButton, Shown(Text::SetBetAt), prompt_.set);
    column->addLayout(grid);
    HelpOnF1(*this, help::SettledBets);
    buttons_[SameButton]->setDefault(true);
    buttons_[SameButton]->setFocus();
  }

 private:
  // The line that says how it ended bears an arrow and the colour of its kind.
  void AddTitle(QVBoxLayout* side, size_t line) {
    const bool won = prompt_.outcome == Outcome::Won, lost = prompt_.outcome == Outcome::Lost;
    const bool tellsOutcome = (won && line == 1) || (lost && line == 0);
    QString text = Shown(prompt_.title[line]);
    if (text.isEmpty()) return;
    if (tellsOutcome) text += won ? QStringLiteral(" \u25B2") : QStringLiteral(" \u25BC");
    QLabel* const lblTitle = MakeHeading(text);
    lblTitle->setObjectName(QStringLiteral("lblTitle%1").arg(line));
    if (tellsOutcome) {
      QPalette palette = lblTitle->palette();
      palette.setColor(QPalette::WindowText, QColor(won ? WinColour : LossColour));
      lblTitle->setPalette(palette);
    }
    side->addWidget(lblTitle);
  }

  void AddReport(QHBoxLayout* upper) {
    auto* const side = new QVBoxLayout;
    side->setSpacing(LookStep(1));
    AddTitle(side, 0);
    AddTitle(side, 1);
    side->addSpacing(LookStep(2));
    auto* const rows = new QGridLayout;
    rows->setHorizontalSpacing(LookStep(6));
    rows->setVerticalSpacing(LookStep(1.5));
    rows->setColumnStretch(0, 1);
    for (int row = 0; row < static_cast<int>(prompt_.rows.size()); ++row)
      AddFigure(rows, row);
    side->addLayout(rows);
    side->addStretch();
    upper->addLayout(side, 1);
  }

  // What it comes to is the last row of a win; after a loss what remains may stand behind it.
  int NetRow() const {
    constexpr int LossNetRow = 2;
    if (prompt_.outcome == Outcome::Idle) return -1;
    return prompt_.outcome == Outcome::Lost ? LossNetRow
                                            : static_cast<int>(prompt_.rows.size()) - 1;
  }

  void AddFigure(QGridLayout* rows, int row) {
    const SettlePrompt::Row& each = prompt_.rows[static_cast<size_t>(row)];
    auto* const lblBet = new QLabel(Shown(each.caption));
    auto* const lblAmount = new QLabel(Shown(each.figure));
    lblBet->setTextFormat(Qt::PlainText);
    if (row == NetRow()) {
      QFont bold = DialogFont();
      bold.setBold(true);
      lblBet->setFont(bold);
      lblAmount->setFont(bold);
    }
    rows->addWidget(lblBet, row, 0);
    rows->addWidget(lblAmount, row, 1, Qt::AlignRight);
  }

  QPushButton* AddHandle(QBoxLayout* where, int index, const QString& caption) {
    QPushButton* const cmdHandle = AddButton(where, caption, [this, index] {
      prompt_.button = index;
      accept();
    });
    cmdHandle->setObjectName(QStringLiteral("cmdHandle%1").arg(index));
    buttons_.push_back(cmdHandle);
    return cmdHandle;
  }

  void AddChoices(QHBoxLayout* upper) {
    auto* const choices = new QVBoxLayout;
    choices->setSpacing(LookStep(1.5));
    for (int index = 0; index < static_cast<int>(prompt_.buttons.size()); ++index)
      AddHandle(choices, index, Shown(prompt_.buttons[static_cast<size_t>(index)]));
    choices->addStretch();
    upper->addLayout(choices);
  }

  void AddRow(
      QGridLayout* grid, int row, int button, const QString& caption, HandlingRow& figures) {
    auto* const cell = new QHBoxLayout;
    QPushButton* const cmdHandle = AddHandle(cell, button, caption);
    grid->addLayout(cell, row, 0);
    if (button == ModifyButton) {
      grid->addWidget(MakeOperator(figures), row, 1);
    }
    grid->addWidget(MakeAmount(figures, cmdHandle), row, 2);
    grid->addWidget(MakeUnits(figures, button), row, 3);
  }

  QPushButton* MakeCycler(const QString& name, int width) {
    auto* const button = new QPushButton;
    button->setObjectName(name);
    button->setAutoDefault(false);
    button->setFixedWidth(width);
    button->setMinimumHeight(LookStep(7));
    return button;
  }

  QPushButton* MakeOperator(HandlingRow& figures) {
    QPushButton* const cmdMathOperator = MakeCycler(QStringLiteral("cmdMathOperator"), LookStep(8));
    const auto show = [cmdMathOperator, &figures] {
      const int32_t operation = std::clamp(figures.operation, 0, OperatorCount - 1);
      cmdMathOperator->setText(QLatin1String(Operators[operation]));
    };
    show();
    QObject::connect(cmdMathOperator, &QPushButton::clicked, this, [=, &figures] {
      figures.operation = (std::max(figures.operation, -1) + 1) % OperatorCount;
      show();
    });
    return cmdMathOperator;
  }

  // Enter in the field does what the button of its row does.
  QLineEdit* MakeAmount(HandlingRow& figures, QPushButton* cmdHandle) {
    auto* const txtModifyAmount = new QLineEdit(Shown(PlainText(figures.amount)));
    txtModifyAmount->setObjectName(cmdHandle->objectName().replace("cmdHandle", "txtModifyAmount"));
    txtModifyAmount->setAlignment(Qt::AlignRight);
    txtModifyAmount->setMinimumWidth(LookStep(26));
    TakeMoneyOnly(*txtModifyAmount, AmountDecimals);
    QObject::connect(txtModifyAmount, &QLineEdit::textEdited, this,
                     [=, &figures] { figures.amount = MoneyIn(*txtModifyAmount); });
    QObject::connect(txtModifyAmount, &QLineEdit::returnPressed, cmdHandle, &QPushButton::click);
    return txtModifyAmount;
  }

  QPushButton* MakeUnits(HandlingRow& figures, int button) {
    const int width = WidestUnits(QFontMetrics(DialogFont())) + LookStep(6);
    QPushButton* const cmdUnits = MakeCycler(QStringLiteral("cmdUnits%1").arg(button), width);
    cmdUnits->setText(Shown(UnitsText(figures.units)));
    QObject::connect(cmdUnits, &QPushButton::clicked, this, [=, &figures] {
      figures.units = NextUnits(figures.units, button == ModifyButton);
      cmdUnits->setText(Shown(UnitsText(figures.units)));
    });
    return cmdUnits;
  }

  SettlePrompt& prompt_;
  std::vector<QPushButton*> buttons_;
};

}  // namespace

void AskSettleBet(QWidget* parent, SettlePrompt& prompt) {
  SettleBetWindow window(parent, prompt);
  RunDialog(window);
}

}  // namespace tessarel
