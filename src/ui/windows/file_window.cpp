#include <QComboBox>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QStyle>
#include <QToolButton>

#include "base/folders.h"
#include "base/message.h"
#include "state/table.h"
#include "texts/say.h"
#include "ui/text.h"
#include "ui/windows/dialog_look.h"
#include "ui/windows/folder_listing.h"
#include "ui/windows/game_dialogs.h"

namespace tessarel {

namespace {

constexpr int IsFolderRole = Qt::UserRole;

Text VerbOf(FileAction action) {
  switch (action) {
    case FileAction::CopyRolls:
    case FileAction::CopyRollsAsText:
    case FileAction::CopyScript:
    case FileAction::CopyScripts:
      return Text::CopyVerb;
    case FileAction::PasteRolls:
    case FileAction::PasteText:
    case FileAction::PasteScript:
      return Text::PasteVerb;
    case FileAction::SelectHotKeyScript:
      return Text::SelectVerb;
    case FileAction::RenameSessionsLog:
      return Text::RenameVerb;
    default:
      return SavesFile(action) ? Text::SaveVerb : Text::OpenVerb;
  }
}

class FileWindow : public QDialog {
 public:
  explicit FileWindow(QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("frmFile"));
    DressWindow(*this, Shown(FileActionTitle(FileDialog.Action)));
    QVBoxLayout* const column = MakeColumn(*this);
    AddFolderRow(column);
    AddList(column);
    AddFields(column);
    AddButtons(column);
    HelpOnF1(*this, help::Saving);
    ShowFolder();
    resize(LookStep(150), LookStep(110));
    if (SavesFile(FileDialog.Action) || filList_->count() == 0) {
      txtFileName_->setFocus();
    } else {
      filList_->setFocus();
    }
  }

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    event->key() == Qt::Key_F5 ? ShowFolder() : QDialog::keyPressEvent(event);
  }

  // The keys of the list; Enter must not press the dialog's button as well.
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (watched != filList_ || event->type() != QEvent::KeyPress) {
      return QDialog::eventFilter(watched, event);
    }
    switch (static_cast<const QKeyEvent*>(event)->key()) {
      case Qt::Key_Return:
      case Qt::Key_Enter:
        TakeListed(filList_->currentItem());
        return true;
      case Qt::Key_Delete:
        DeleteListed(filList_->currentItem());
        return true;
      case Qt::Key_Backspace:
        GoTo("..");
        return true;
      default:
        return QDialog::eventFilter(watched, event);
    }
  }

 private:
  // The folder shown; a click on it leads to the program's own folder after a question.
  void AddFolderRow(QVBoxLayout* column) {
    auto* const row = new QHBoxLayout;
    row->setSpacing(LookStep(2));
    row->addWidget(new QLabel(Shown(Text::Path) + ":"));
    cmdPath_ = new QToolButton;
    cmdPath_->setObjectName(QStringLiteral("cmdPath"));
    cmdPath_->setAutoRaise(true);
    cmdPath_->setIcon(style()->standardIcon(QStyle::SP_DirIcon));
    cmdPath_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    cmdPath_->setFont(DialogFont());
    QObject::connect(cmdPath_, &QToolButton::clicked, this, [this] { AskToJumpHome(); });
    row->addWidget(cmdPath_);
    row->addStretch();
    column->addLayout(row);
  }

  void AddList(QVBoxLayout* column) {
    filList_ = new QListWidget;
    filList_->setObjectName(QStringLiteral("filList"));
    filList_->setUniformItemSizes(true);
    filList_->installEventFilter(this);
    QObject::connect(filList_, &QListWidget::itemDoubleClicked, this,
                     [this](QListWidgetItem* item) { TakeListed(item); });
    QObject::connect(filList_, &QListWidget::currentItemChanged, this,
                     [this](QListWidgetItem* item) { OfferListed(item); });
    column->addWidget(filList_, 1);
    lblEmpty_ = new QLabel(Shown(Text::NoFilesOfType));
    lblEmpty_->setFont(DialogFont());
    lblEmpty_->setForegroundRole(QPalette::PlaceholderText);
    column->addWidget(lblEmpty_);
  }

  void AddFields(QVBoxLayout* column) {
    auto* const grid = new QGridLayout;
    grid->setHorizontalSpacing(LookStep(2));
    grid->setVerticalSpacing(LookStep(2));
    grid->setColumnStretch(1, 1);
    txtFileName_ = new QLineEdit(Shown(FileDialog.FileDialogFileName));
    txtFileName_->setObjectName(QStringLiteral("txtFileName"));
    txtFileName_->selectAll();
    cmbFilter_ = new QComboBox;
    cmbFilter_->setObjectName(QStringLiteral("cmbFilter"));
    for (const FileFilter& filter : FileFilters(FileDialog.Action))
      cmbFilter_->addItem(Shown(filter.Label));
    QObject::connect(cmbFilter_, &QComboBox::currentIndexChanged, this, [this](int index) {
      FileDialog.Filter = index;
      ShowFolder();
    });
    AddField(grid, 0, Text::FileNameField, txtFileName_);
    AddField(grid, 1, Text::FileTypeField, cmbFilter_);
    column->addLayout(grid);
  }

  static void AddField(QGridLayout* grid, int row, Text caption, QWidget* field) {
    auto* const label = new QLabel(Shown(caption));
    label->setBuddy(field);
    grid->addWidget(label, row, 0);
    grid->addWidget(field, row, 1);
  }

  void AddButtons(QVBoxLayout* column) {
    QHBoxLayout* const row = AddButtonRow(column);
    QPushButton* const cmdOK =
        AddButton(row, Shown(VerbOf(FileDialog.Action)), [this] { TakeTyped(); });
    cmdOK->setObjectName(QStringLiteral("cmdOK"));
    cmdOK->setDefault(true);
    AddButton(row, Shown(Text::Cancel), [this] {
      reject();
    })->setObjectName(QStringLiteral("cmdCancel"));
  }

  void ShowFolder() {
    const QSignalBlocker quiet(filList_);
    filList_->clear();
    bool hasFiles = false;
    const auto filters = FileFilters(FileDialog.Action);
    const std::string& pattern = filters[static_cast<size_t>(cmbFilter_->currentIndex())].Pattern;
    for (const FolderEntry& entry : ListFolder(FileDialog.Folder, pattern)) {
      const auto icon = entry.isFolder ? QStyle::SP_DirIcon : QStyle::SP_FileIcon;
      auto* const item = new QListWidgetItem(style()->standardIcon(icon), entry.name, filList_);
      item->setData(IsFolderRole, entry.isFolder);
      hasFiles = hasFiles || !entry.isFolder;
    }
    lblEmpty_->setVisible(!hasFiles);
    const QString folder = Shown(FileDialog.Folder);
    const int room = LookStep(120);
    cmdPath_->setText(QFontMetrics(DialogFont()).elidedText(folder, Qt::ElideMiddle, room));
    cmdPath_->setToolTip(folder);
  }

  void GoTo(const std::string& folder) {
    if (ChangeFileDialogFolder(folder)) ShowFolder();
    Select(0);
  }

  void AskToJumpHome() {
    const int32_t answer =
        ShowMessage(Say(Text::AskToJumpHome), Say(Text::Path), msg::AskYesDefault);
    if (answer == AnswerYes) GoTo(Folders.AppFolder);
  }

  static bool IsFolder(const QListWidgetItem* item) { return item->data(IsFolderRole).toBool(); }

  void OfferListed(const QListWidgetItem* item) {
    if (item != nullptr && !IsFolder(item)) txtFileName_->setText(item->text());
  }

  void TakeListed(const QListWidgetItem* item) {
    if (item == nullptr) return TakeTyped();
    if (IsFolder(item)) return GoTo(Typed(item->text()));
    txtFileName_->setText(item->text());
    TakeTyped();
  }

  void DeleteListed(const QListWidgetItem* item) {
    if (item == nullptr || IsFolder(item)) return;
    const std::string name = Typed(item->text());
    const int row = filList_->currentRow();
    if (!DeleteListedFile(name)) return;
    if (Typed(txtFileName_->text()) == name) txtFileName_->clear();
    ShowFolder();
    Select(std::min(row, filList_->count() - 1));
  }

  // Without offering the name of what is selected: the one that was typed stays.
  void Select(int row) {
    const QSignalBlocker quiet(filList_);
    filList_->setCurrentRow(row);
  }

  // A folder that was typed, or is selected and nothing typed, is shown; a refusal leaves the
  // dialog as it is.
  void TakeTyped() {
    const QListWidgetItem* const item = filList_->currentItem();
    if (txtFileName_->text().isEmpty() && item != nullptr && IsFolder(item)) {
      return GoTo(Typed(item->text()));
    }
    const std::string folder = FileDialog.Folder;
    if (AcceptFileName(Typed(txtFileName_->text()))) return accept();
    if (FileDialog.Folder == folder) return txtFileName_->setFocus();
    ShowFolder();
    txtFileName_->clear();
  }

  QToolButton* cmdPath_;
  QListWidget* filList_;
  QLabel* lblEmpty_;
  QLineEdit* txtFileName_;
  QComboBox* cmbFilter_;
};

}  // namespace

std::string AskFile(QWidget* parent, FileAction action, const std::string& offered) {
  LoadFileDialog(action, offered);
  FileWindow window(parent);
  if (RunDialog(window, true) != QDialog::Accepted) CancelFileDialog();
  UnloadFileDialog();
  return FileDialog.FileDialogFileName;
}

}  // namespace tessarel
