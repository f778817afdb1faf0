#include "ui/windows/message_window.h"

#include <QCheckBox>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScreen>
#include <QScrollArea>
#include <QTimer>
#include <algorithm>
#include <array>
#include <utility>
#include <vector>

#include "base/message.h"
#include "play/roll_pace.h"
#include "state/settings.h"
#include "state/table.h"
#include "texts/say.h"
#include "ui/text.h"
#include "ui/windows/dialog_look.h"
#include "ui/windows/help_window.h"
#include "ui/windows/message_pictures.h"

namespace tessarel {

namespace {

constexpr int32_t MediumFontSize = 11;
constexpr int TimerInterval = 100;  // milliseconds

// cmdButton 0 to 4, and the Cancel of bit 32.
enum ButtonKind { OkButton, YesButton, NoButton, CancelButton, HelpButton, BitCancelButton };

struct Choice {
  ButtonKind kind;
  int32_t answer;  // as MsgResult has it
};

bool Has(int32_t flags, int32_t bit) {
  return (flags & bit) != 0;
}

std::vector<Choice> ChoicesOf(int32_t flags) {
  const bool pair = (flags & msg::YesNo) == msg::YesNo;
  std::vector<Choice> choices;
  for (int32_t index = 0; index <= HelpButton; ++index) {
    const auto kind = static_cast<ButtonKind>(index);
    if (!Has(flags, 1 << index)) continue;
    const bool paired = pair && (kind == YesButton || kind == NoButton);
    choices.push_back({kind, !paired ? index : kind == YesButton ? AnswerYes : AnswerNo});
  }
  if (choices.empty()) choices.push_back({OkButton, 0});
  if (Has(flags, msg::Cancel)) choices.push_back({BitCancelButton, AnswerCancel});
  return choices;
}

// The answer that commits to least: a Cancel, else No, else OK.
Choice EscapeChoice(const std::vector<Choice>& choices) {
  for (const ButtonKind kind : {BitCancelButton, CancelButton, NoButton, OkButton}) {
    const auto found = std::ranges::find(choices, kind, &Choice::kind);
    if (found != choices.end()) return *found;
  }
  return choices.front();
}

QString CaptionOf(ButtonKind kind) {
  switch (kind) {
    case YesButton:
      return Shown(Text::Yes);
    case NoButton:
      return Shown(Text::No);
    case HelpButton:
      return Shown(Text::Help);
    case OkButton:
      return Shown(Text::Ok);
    default:
      return Shown(Text::Cancel);
  }
}

// The kinds of messages that the hide box of these flags hides.
int32_t HiddenNotices(int32_t flags) {
  const Notice autoBet = Table.HyperDriveOn ? NoticeAutoBetHyper : NoticeAutoBet;
  const std::pair<int32_t, Notice> rules[] = {{msg::HideNotice1, NoticeActionsNotAllowed},
                                              {msg::HideNotice2, NoticeLimits},
                                              {msg::HideNotice4, NoticeCharges},
                                              {msg::HideNotice8, autoBet}};
  int32_t notices = 0;
  for (const auto& [flag, notice] : rules) {
    if (Has(flags, flag)) notices |= notice;
  }
  return notices;
}

class MessageBox : public QDialog {
 public:
  explicit MessageBox(QWidget* parent) : QDialog(parent), call_(Message) {
    setObjectName(QStringLiteral("frmMsg"));
    DressWindow(*this, Shown(call_.MsgTitle));
    // What the box is about to hide is settled while it is shown, not when it closes.
    notices_ = HiddenNotices(call_.MsgFlags);
    choices_ = ChoicesOf(call_.MsgFlags);
    answer_ = EscapeChoice(choices_);  // stands when the box is closed without a button
    QVBoxLayout* const column = MakeColumn(*this);
    AddTextRow(column);
    AddButtons(column);
    StartTimer();
  }

  // After the box has closed.
  void LeaveAnswer() const {
    Message.MsgResult = answer_.answer;
    Message.MsgInput = call_.MsgInput;
    if (result() == Accepted && txtInput_ != nullptr) Message.MsgInput = Typed(txtInput_->text());
    if (result() == Accepted && cmbUser_ != nullptr) {
      Message.MsgInput = Typed(cmbUser_->currentText());
    }
    if (chkHide_ != nullptr && chkHide_->isChecked()) Settings.Notices &= ~notices_;
    CreditMessageTime();
    if (answer_.kind == HelpButton) ShowHelp(parentWidget(), call_.MsgHelpId);
  }

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (event->key() == Qt::Key_F1) {
      if (call_.MsgHelpId != 0) ShowHelp(this, call_.MsgHelpId);
    } else if (QPushButton* const button = ButtonOfLetter(event->text())) {
      button->click();
    } else {
      QDialog::keyPressEvent(event);
    }
  }

 private:
  void AddTextRow(QVBoxLayout* column) {
    auto* const row = new QHBoxLayout;
    row->setSpacing(LookStep(4));
    const int32_t flags = call_.MsgFlags;
    if (Has(flags, msg::WideLeft)) row->addWidget(MakeDicePicture(LookStep(22)));
    if (QWidget* const picture = MakeMessagePicture(flags, LookStep(11))) {
      picture->setObjectName(QStringLiteral("picDisplay"));
      row->addWidget(picture, 0, Qt::AlignTop);
    }
    auto* const side = new QVBoxLayout;
    side->setSpacing(LookStep(3));
    AddText(side);
    AddField(side);
    AddHideBox(side);
    row->addLayout(side, 1);
    if (Has(flags, msg::WideRight)) row->addWidget(MakeDicePicture(LookStep(22)));
    column->addLayout(row);
  }

  // A text too long for the screen scrolls.
  void AddText(QVBoxLayout* side) {
    const int32_t units = call_.MsgWidth > 0 ? call_.MsgWidth : DefaultMessageWidth;
    const QSize room = screen()->availableSize() * 2 / 3;
    const int width = units * std::clamp(Settings.BasicFontSize, 9, 13) / MediumFontSize;
    QLabel* const text = MakeWrapped(Shown(call_.MsgText), std::min(width, room.width()));
    text->setObjectName(QStringLiteral("lblText"));
    text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    const bool centred = Has(call_.MsgFlags, msg::Centered);
    if (centred) text->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    if (text->height() <= room.height()) {
      return side->addWidget(text, 1, centred ? Qt::AlignCenter : Qt::AlignLeft | Qt::AlignVCenter);
    }
    auto* const scroll = new QScrollArea;
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll->setWidget(text);
    scroll->setFixedSize(text->width() + LookStep(6), room.height());
    side->addWidget(scroll);
  }

  void AddField(QVBoxLayout* side) {
    if (!Has(call_.MsgFlags, msg::Input)) return;
    if (Has(call_.MsgFlags, msg::List)) {
      cmbUser_ = new QComboBox;
      cmbUser_->setObjectName(QStringLiteral("cmbUser"));
      for (const std::string& entry : call_.MsgList)
        cmbUser_->addItem(Shown(entry));
      cmbUser_->setCurrentIndex(std::max(0, cmbUser_->findText(Shown(call_.MsgInput))));
      side->addWidget(cmbUser_);
    } else {
      txtInput_ = new QLineEdit(Shown(call_.MsgInput));
      txtInput_->setObjectName(QStringLiteral("txtInput"));
      txtInput_->setMinimumWidth(LookStep(60));
      txtInput_->selectAll();
      QObject::connect(txtInput_, &QLineEdit::textEdited, txtInput_, [this](const QString& typed) {
        const QString kept = InCodePage(typed);
        if (kept == typed) return;
        const int cursor =
            txtInput_->cursorPosition() + static_cast<int>(kept.size() - typed.size());
        txtInput_->setText(kept);
        txtInput_->setCursorPosition(std::max(cursor, 0));
      });
      side->addWidget(txtInput_);
    }
  }

  void AddHideBox(QVBoxLayout* side) {
    if (notices_ == 0) return;
    chkHide_ = new QCheckBox(Shown(Text::HideSuchMessages));
    chkHide_->setObjectName(QStringLiteral("chkHide"));
    side->addWidget(chkHide_);
  }

  void AddButtons(QVBoxLayout* column) {
    QHBoxLayout* const row = AddButtonRow(column);
    for (const Choice& choice : choices_) {
      QPushButton* const button = AddButton(row, CaptionOf(choice.kind), [=, this] {
        answer_ = choice;
        const bool givesUp = choice.kind == CancelButton || choice.kind == BitCancelButton;
        givesUp ? reject() : accept();
      });
      button->setObjectName(QStringLiteral("cmdButton%1").arg(static_cast<int>(choice.kind)));
      buttons_.push_back(button);
    }
    if (Has(call_.MsgFlags, msg::Centered)) row->addStretch();
    const bool second = Has(call_.MsgFlags, msg::DefaultSecond) && buttons_.size() > 1;
    QPushButton* const preset = buttons_[second ? 1 : 0];
    preset->setDefault(true);
    if (txtInput_ != nullptr) return txtInput_->setFocus();
    if (cmbUser_ != nullptr) return cmbUser_->setFocus();
    preset->setFocus();
  }

  void StartTimer() {
    if (call_.MsgTimeout <= 0) return;
    auto* const timerMsg = new QTimer(this);
    QObject::connect(timerMsg, &QTimer::timeout, this, [this] {
      call_.MsgTimeout -= TimerInterval;
      if (call_.MsgTimeout < 1) buttons_.front()->click();
    });
    timerMsg->start(TimerInterval);
  }

  // A question without a field is answered by the first letter of Yes or No too.
  QPushButton* ButtonOfLetter(const QString& typed) const {
    if (txtInput_ != nullptr || cmbUser_ != nullptr || typed.isEmpty()) return nullptr;
    for (size_t k = 0; k < choices_.size(); ++k) {
      if (choices_[k].kind != YesButton && choices_[k].kind != NoButton) continue;
      if (buttons_[k]->text().startsWith(typed, Qt::CaseInsensitive)) return buttons_[k];
    }
    return nullptr;
  }

  MessageState call_;
  int32_t notices_ = 0;
  std::vector<Choice> choices_;
  Choice answer_{};
  std::vector<QPushButton*> buttons_;
  QLineEdit* txtInput_ = nullptr;
  QComboBox* cmbUser_ = nullptr;
  QCheckBox* chkHide_ = nullptr;
};

}  // namespace

void ShowMessageWindow(QWidget* parent) {
  MessageBox box(parent);
  RunDialog(box);
  box.LeaveAnswer();
}

}  // namespace tessarel
