#include <QListWidget>

#include "state/settings.h"
#include "texts/language.h"
#include "texts/say.h"
#include "ui/text.h"
#include "ui/windows/dialog_look.h"
#include "ui/windows/game_dialogs.h"

namespace tessarel {

namespace {

class LanguageWindow : public QDialog {
 public:
  explicit LanguageWindow(QWidget* parent) : QDialog(parent) {
    DressWindow(*this, Shown(Text::LanguageTitle));
    QVBoxLayout* const column = MakeColumn(*this);
    lstLanguages_ = new QListWidget;
    lstLanguages_->setObjectName(QStringLiteral("lstLanguages"));
    for (int32_t language = 0; language < LanguageCount; ++language) {
      auto* const item =
          new QListWidgetItem(Shown(Wording(Text::LanguageName, language)), lstLanguages_);
      item->setData(Qt::UserRole, language);
      item->setSizeHint({LookStep(44), LookStep(7)});
    }
    lstLanguages_->setCurrentRow(Settings.Language);
    const int frame = 2 * lstLanguages_->frameWidth();
    lstLanguages_->setFixedSize(LookStep(48), LanguageCount * LookStep(7) + frame);
    column->addWidget(lstLanguages_);
    QObject::connect(lstLanguages_, &QListWidget::itemClicked, this, &QDialog::accept);
    QHBoxLayout* const row = AddButtonRow(column);
    AddButton(row, Shown(Text::ChooseLanguage), [this] { accept(); })->setDefault(true);
    AddButton(row, Shown(Text::Cancel), [this] { reject(); });
    HelpOnF1(*this, help::SoundsAndLanguage);
    lstLanguages_->setFocus();
  }

  int32_t Picked() const { return lstLanguages_->currentItem()->data(Qt::UserRole).toInt(); }

 private:
  QListWidget* lstLanguages_;
};

}  // namespace

bool AskLanguage(QWidget* parent) {
  LanguageWindow window(parent);
  if (RunDialog(window) != QDialog::Accepted) return false;
  SetLanguage(window.Picked());
  return true;
}

}  // namespace tessarel
