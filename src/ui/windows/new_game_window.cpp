#include <QCheckBox>
#include <QRadioButton>

#include "base/folders.h"
#include "dice/roll_file.h"
#include "texts/say.h"
#include "ui/text.h"
#include "ui/windows/dialog_look.h"
#include "ui/windows/game_dialogs.h"

namespace tessarel {

namespace {

// How a roll file goes on "as it is": the words of what it does now.
QString GoingOnCaption() {
  const Text text = RollFile.RollFileMode == RollFilePlay     ? Text::ContinuePlayback
                    : RollFile.RollFileMode == RollFileRecord ? Text::ContinueRecording
                                                              : Text::ContinueInactive;
  QString caption = Shown(text);
  caption[0] = caption[0].toUpper();
  return caption;
}

class NewGameWindow : public QDialog {
 public:
  NewGameWindow(QWidget* parent, NewGameChoices& choices) : QDialog(parent), choices_(choices) {
    setObjectName(QStringLiteral("frmNew"));
    DressWindow(*this, Shown(Text::NewGameTitle));
    QVBoxLayout* const column = MakeColumn(*this);
    column->addWidget(MakeHeading(Shown(Text::AskWhatToKeep)));
    column->addSpacing(LookStep(1));
    chkPreserveCheckstacks_ = AddBox(column, "chkPreserveCheckstacks", Text::KeepCheckStacks,
                                     choices_.PreserveCheckstacks);
    chkPreservePrevSessions_ = AddBox(column, "chkPreservePrevSessions", Text::KeepPreviousSessions,
                                      choices_.PreservePrevSessions);
    chkPreserveSessionsLogs_ = AddBox(column, "chkPreserveSessionsLogs", Text::KeepSessionsLogs,
                                      choices_.PreserveSessionsLogs);
    chkPreserveAutoBets_ =
        AddBox(column, "chkPreserveAutoBets", Text::KeepAutoBets, choices_.PreserveAutoBets);
    chkPreserveDiceRollFile_ = AddBox(column, "chkPreserveDiceRollFile", Text::KeepRollFile,
                                      choices_.PreserveDiceRollFile);
    AddRollFileUses(column);
    QHBoxLayout* const row = AddButtonRow(column);
    QPushButton* const cmdOK = AddButton(row, Shown(Text::StartSession), [this] { accept(); });
    cmdOK->setDefault(true);
    AddButton(row, Shown(Text::Cancel), [this] { reject(); });
    HelpOnF1(*this, help::NewSession);
    chkPreserveCheckstacks_->setFocus();
  }

  // What is chosen of a roll file stays as it was when none is open.
  void KeepChoices() const {
    choices_.PreserveCheckstacks = chkPreserveCheckstacks_->isChecked();
    choices_.PreservePrevSessions = chkPreservePrevSessions_->isChecked();
    choices_.PreserveSessionsLogs = chkPreserveSessionsLogs_->isChecked();
    choices_.PreserveAutoBets = chkPreserveAutoBets_->isChecked();
    if (!hasRollFile_) return;
    choices_.PreserveDiceRollFile = chkPreserveDiceRollFile_->isChecked();
    choices_.Rewind = optRewind_->isChecked();
  }

 private:
  static QCheckBox* AddBox(QVBoxLayout* column, const char* name, Text caption, bool checked) {
    auto* const box = new QCheckBox(Shown(caption));
    box->setObjectName(QLatin1String(name));
    box->setChecked(checked);
    column->addWidget(box);
    return box;
  }

  QRadioButton* AddUse(QVBoxLayout* uses, const char* name, const QString& caption, bool chosen) {
    auto* const button = new QRadioButton(caption);
    button->setObjectName(QLatin1String(name));
    button->setChecked(chosen);
    uses->addWidget(button);
    return button;
  }

  void AddRollFileUses(QVBoxLayout* column) {
    const QString file = hasRollFile_ ? Shown(ShortName(tessarel::RollFile.RollFileName))
                                      : Shown(Text::NoRollFileOpen);
    chkPreserveDiceRollFile_->setText(chkPreserveDiceRollFile_->text() + " (" +
                                      QString(file).replace("&", "&&") + ")");
    chkPreserveDiceRollFile_->setEnabled(hasRollFile_);
    if (!hasRollFile_) chkPreserveDiceRollFile_->setChecked(false);
    auto* const uses = new QVBoxLayout;
    uses->setContentsMargins(LookStep(6), 0, 0, 0);
    uses->setSpacing(LookStep(2));
    const bool rewinds = choices_.Rewind;
    optRewind_ = AddUse(uses, "optRewind", Shown(Text::RewindAndPlay), rewinds);
    QRadioButton* const optContinue = AddUse(uses, "optContinue", GoingOnCaption(), !rewinds);
    column->addLayout(uses);
    const auto enableUses = [=, this] {
      optRewind_->setEnabled(chkPreserveDiceRollFile_->isChecked());
      optContinue->setEnabled(chkPreserveDiceRollFile_->isChecked());
    };
    enableUses();
    QObject::connect(chkPreserveDiceRollFile_, &QCheckBox::toggled, this, enableUses);
  }

  NewGameChoices& choices_;
  const bool hasRollFile_ = !tessarel::RollFile.RollFileName.empty();
  QCheckBox *chkPreserveCheckstacks_, *chkPreservePrevSessions_, *chkPreserveSessionsLogs_,
      *chkPreserveAutoBets_, *chkPreserveDiceRollFile_;
  QRadioButton* optRewind_;
};

NewGameAnswer AnswerOf(const NewGameChoices& choices) {
  NewGameAnswer answer;
  answer.keepScripts = choices.PreserveAutoBets;
  answer.options.keepSessions = choices.PreservePrevSessions ? 1 : 0;
  answer.options.keepStacks = choices.PreserveCheckstacks ? 1 : 0;
  answer.options.keepLogs = choices.PreserveSessionsLogs ? 1 : 0;
  const bool keepsRollFile = choices.PreserveDiceRollFile && !RollFile.RollFileName.empty();
  answer.options.rollFileAction = !keepsRollFile   ? CloseRollFileNow
                                  : choices.Rewind ? RewindRollFile
                                                   : ContinueRollFile;
  return answer;
}

}  // namespace

std::optional<NewGameAnswer> AskNewGame(QWidget* parent, NewGameChoices& choices) {
  NewGameWindow window(parent, choices);
  if (RunDialog(window) != QDialog::Accepted) return std::nullopt;
  window.KeepChoices();
  return AnswerOf(choices);
}

}  // namespace tessarel
