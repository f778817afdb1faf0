#include "ui/windows/help_window.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPointer>
#include <QRegularExpression>
#include <QScreen>
#include <QShortcut>
#include <QSplitter>
#include <QTextBrowser>
#include <QTextCursor>
#include <QToolButton>
#include <QUrl>
#include <QVBoxLayout>
#include <QWindow>
#include <algorithm>

#include "state/settings.h"
#include "texts/say.h"
#include "ui/text.h"
#include "ui/windows/help_pages.h"

namespace tessarel {

namespace {

constexpr int LinesOfText = 40, CharactersOfLine = 80;  // of a page in its first size
constexpr int PageMargin = 18, ListMargin = 8;

// An address of its own keeps relative links among the pages.
QUrl UrlOfFile(const QString& fileName) {
  return QUrl(QStringLiteral("help:/") + fileName);
}

// Finds the text in small letters and capitals alike. The dotted and the dotless i count as one
// letter, because the Turkish pairs i-İ and ı-I differ from those of the other languages.
QRegularExpression PatternOf(QString text) {
  text.replace(QRegularExpression(QStringLiteral("[Iıİ]")), QStringLiteral("i"));
  QString pattern = QRegularExpression::escape(text);
  pattern.replace('i', QStringLiteral("[iIıİ]"));
  return QRegularExpression(pattern, QRegularExpression::CaseInsensitiveOption);
}

// The page itself, with the history of what was read.
class HelpBrowser : public QTextBrowser {
 public:
  explicit HelpBrowser(QWidget* parent) : QTextBrowser(parent) {
    setOpenExternalLinks(false);
    setFrameShape(QFrame::NoFrame);
    document()->setDocumentMargin(PageMargin);
  }

  // Text, headings and tables in the colours in force.
  void DressPage() {
    const QPalette& colours = palette();
    const QString heading = colours.color(QPalette::Link).name();
    const QString plate = colours.color(QPalette::AlternateBase).name();
    const QString line = colours.color(QPalette::Light).name();
    document()->setDefaultStyleSheet(
        QStringLiteral("h1, h2, h3 { color: %1; }"
                       "h1 { font-size: x-large; margin-bottom: 10px; }"
                       "h2 { font-size: large; margin-top: 18px; margin-bottom: 6px; }"
                       "h3 { font-size: medium; margin-top: 12px; margin-bottom: 4px; }"
                       "p, li { line-height: 130%; }"
                       "p { margin-top: 6px; margin-bottom: 6px; }"
                       "li { margin-bottom: 3px; }"
                       "ul { margin-left: -16px; }"
                       "pre { margin-left: 12px; }"
                       "table { border-collapse: collapse; border-style: solid; border-color: %3;"
                       "        margin-top: 4px; margin-bottom: 8px; }"
                       "th { background-color: %2; color: %1; text-align: left; }"
                       "th, td { padding: 4px 10px 4px 8px; }")
            .arg(heading, plate, line));
  }

 protected:
  QVariant loadResource(int type, const QUrl& name) override {
    if (type != QTextDocument::HtmlResource) return {};
    const QString page = HelpPage(name.fileName(), Settings.Language);
    if (!page.isEmpty()) return page;
    return QString("<p>" + Shown(Text::HelpPagesMissing) + "<br>" +
                   HelpFolder(English).toHtmlEscaped() + "</p>");
  }

  // Addresses outside the help are not followed.
  void doSetSource(const QUrl& name, QTextDocument::ResourceType type) override {
    const QUrl whole = source().isValid() ? source().resolved(name) : name;
    if (whole.scheme() == QLatin1String("help")) QTextBrowser::doSetSource(name, type);
  }
};

class TopicList : public QListWidget {
 public:
  explicit TopicList(QWidget* parent) : QListWidget(parent) {
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setViewportMargins(ListMargin, ListMargin, ListMargin, ListMargin);
    viewport()->setBackgroundRole(QPalette::Window);
  }
};

class HelpWindow : public QWidget {
 public:
  HelpWindow();

  void ShowTopic(int topic);
  // Comes up over the window that asked, also while that one lets nothing else be used.
  void BringUp(QWidget* asker);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void changeEvent(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void LayOut();
  void TakeFirstSize(QWidget* asker);
  void TakeUpSettings();
  void TakeUpFontSize();
  void ListTopics();
  void MarkTopic(const QString& fileName);
  void Find(int step);
  void MarkFound();

  QToolButton *back_, *forward_;
  QLabel* found_;
  QLineEdit* find_;
  QListWidget* topics_;
  HelpBrowser* page_;
  QList<QTextCursor> places_;  // of what is looked for
  int place_ = -1;
  int32_t language_ = -1, fontSize_ = 0;
  bool isPlaced_ = false;
};

HelpWindow::HelpWindow()
    : back_(new QToolButton(this)),
      forward_(new QToolButton(this)),
      found_(new QLabel(this)),
      find_(new QLineEdit(this)),
      topics_(new TopicList(this)),
      page_(new HelpBrowser(this)) {
  setObjectName(QStringLiteral("frmHelp"));
  setAttribute(Qt::WA_DeleteOnClose);
  setAttribute(Qt::WA_QuitOnClose, false);
  LayOut();
  back_->setArrowType(Qt::LeftArrow);
  forward_->setArrowType(Qt::RightArrow);
  back_->setEnabled(false);
  forward_->setEnabled(false);
  find_->setClearButtonEnabled(true);
  find_->installEventFilter(this);
  connect(back_, &QToolButton::clicked, page_, &QTextBrowser::backward);
  connect(forward_, &QToolButton::clicked, page_, &QTextBrowser::forward);
  new QShortcut(
      Qt::ALT | Qt::Key_Left, page_, [this] { page_->backward(); }, Qt::WindowShortcut);
  new QShortcut(
      Qt::ALT | Qt::Key_Right, page_, [this] { page_->forward(); }, Qt::WindowShortcut);
  connect(page_, &QTextBrowser::backwardAvailable, back_, &QWidget::setEnabled);
  connect(page_, &QTextBrowser::forwardAvailable, forward_, &QWidget::setEnabled);
  // The browser's own source still is the page before.
  connect(page_, &QTextBrowser::sourceChanged, this,
          [this](const QUrl& page) { MarkTopic(page.fileName()); });
  connect(find_, &QLineEdit::textChanged, this, [this] { Find(0); });
  connect(topics_, &QListWidget::currentItemChanged, this, [this](QListWidgetItem* item) {
    if (item != nullptr) page_->setSource(UrlOfFile(item->data(Qt::UserRole).toString()));
  });
  connect(qApp, &QCoreApplication::aboutToQuit, this, &QWidget::close);
  TakeUpSettings();
}

void HelpWindow::LayOut() {
  auto* bar = new QHBoxLayout;
  bar->setContentsMargins(8, 8, 8, 8);
  bar->setSpacing(8);
  bar->addWidget(back_);
  bar->addWidget(forward_);
  bar->addStretch();
  bar->addWidget(found_);
  bar->addWidget(find_);
  auto* halves = new QSplitter(this);
  halves->setChildrenCollapsible(false);
  halves->addWidget(topics_);
  halves->addWidget(page_);
  halves->setStretchFactor(1, 1);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  column->addLayout(bar);
  column->addWidget(halves, 1);
}

// --- Pages -------------------------------------------------------------------------------------

void HelpWindow::ShowTopic(int topic) {
  TakeUpSettings();
  page_->setSource(UrlOfFile(HelpFileOfTopic(topic)));
}

void HelpWindow::ListTopics() {
  const QSignalBlocker quiet(topics_);
  topics_->clear();
  for (const HelpTopic& topic : HelpTopics()) {
    auto* item = new QListWidgetItem(HelpTitle(HelpPage(topic.FileName, Settings.Language)));
    item->setData(Qt::UserRole, topic.FileName);
    item->setSizeHint({fontMetrics().horizontalAdvance(item->text()) + PageMargin,
                       fontMetrics().lineSpacing() * 3 / 2});
    topics_->addItem(item);
  }
  topics_->setMinimumWidth(topics_->sizeHintForColumn(0) + 2 * PageMargin);
}

void HelpWindow::MarkTopic(const QString& fileName) {
  const QSignalBlocker quiet(topics_);
  for (int row = 0; row < topics_->count(); ++row) {
    QListWidgetItem* const item = topics_->item(row);
    if (item->data(Qt::UserRole).toString() == fileName) topics_->setCurrentItem(item);
  }
  const QString title = page_->documentTitle();
  setWindowTitle(title.isEmpty() ? Shown(Text::HelpTitle) : title + " - " + Shown(Text::HelpTitle));
  Find(0);
}

// --- Finding -----------------------------------------------------------------------------------

// Looks the page through for the text; `step` goes to another place, around the ends.
void HelpWindow::Find(int step) {
  const QString text = find_->text().trimmed();
  const QRegularExpression pattern = PatternOf(text);
  places_.clear();
  for (QTextCursor at(page_->document()); !text.isEmpty();) {
    at = page_->document()->find(pattern, at);
    if (at.isNull()) break;
    places_.push_back(at);
  }
  const int count = static_cast<int>(places_.size());
  place_ = count == 0 ? -1 : step == 0 ? 0 : (std::max(place_, 0) + step + count) % count;
  MarkFound();
  if (text.isEmpty()) {
    found_->clear();
  } else if (count == 0) {
    found_->setText(Shown(Text::NotFoundInPage));
  } else {
    found_->setText(Shown(Say(Text::FoundInPage, std::to_string(place_ + 1), count)));
  }
}

void HelpWindow::MarkFound() {
  QList<QTextEdit::ExtraSelection> marks;
  for (int k = 0; k < places_.size(); ++k) {
    QTextEdit::ExtraSelection mark;
    mark.cursor = places_[k];
    const bool isThis = k == place_;
    const QPalette& colours = page_->palette();
    mark.format.setBackground(colours.brush(isThis ? QPalette::Highlight : QPalette::Button));
    mark.format.setForeground(
        colours.brush(isThis ? QPalette::HighlightedText : QPalette::ButtonText));
    marks.push_back(mark);
  }
  page_->setExtraSelections(marks);
  if (place_ < 0) return;
  QTextCursor here = places_[place_];
  here.clearSelection();
  page_->setTextCursor(here);
  page_->ensureCursorVisible();
}

// --- Language and sizes ------------------------------------------------------------------------

void HelpWindow::TakeUpSettings() {
  const bool sameSize = fontSize_ == Settings.BasicFontSize;
  if (sameSize && language_ == Settings.Language) return;
  fontSize_ = Settings.BasicFontSize;
  language_ = Settings.Language;
  TakeUpFontSize();
  topics_->setAccessibleName(Shown(Text::HelpTopics));
  back_->setToolTip(Shown(Text::HelpBack));
  forward_->setToolTip(Shown(Text::HelpForward));
  back_->setAccessibleName(Shown(Text::HelpBack));
  forward_->setAccessibleName(Shown(Text::HelpForward));
  find_->setPlaceholderText(Shown(Text::FindInPage));
  find_->setAccessibleName(Shown(Text::FindInPage));
  const int hint = find_->fontMetrics().horizontalAdvance(find_->placeholderText());
  find_->setFixedWidth(hint + 3 * find_->fontMetrics().height());
  ListTopics();
  if (page_->source().isValid()) {
    page_->reload();
    MarkTopic(page_->source().fileName());
  }
}

void HelpWindow::TakeUpFontSize() {
  QFont font = QApplication::font();
  font.setPointSize(std::clamp(fontSize_, 9, 13));
  setFont(font);
  page_->document()->setDefaultFont(font);
  page_->DressPage();
}

void HelpWindow::TakeFirstSize(QWidget* asker) {
  if (std::exchange(isPlaced_, true)) return;
  const QScreen* screen = asker != nullptr ? asker->screen() : QGuiApplication::primaryScreen();
  const QRect room = screen->availableGeometry();
  const QFontMetrics metrics(font());
  const QSize wanted(
      topics_->minimumWidth() + CharactersOfLine * metrics.averageCharWidth() + 3 * PageMargin,
      LinesOfText * metrics.lineSpacing());
  resize(wanted.boundedTo(room.size() * 9 / 10));
  const QPoint middle = asker != nullptr ? asker->window()->geometry().center() : room.center();
  const QPoint corner = middle - rect().center();
  move(std::clamp(corner.x(), room.left(), std::max(room.left(), room.right() - width())),
       std::clamp(corner.y(), room.top(), std::max(room.top(), room.bottom() - height())));
}

void HelpWindow::BringUp(QWidget* asker) {
  TakeFirstSize(asker);
  QWidget* const modal = QApplication::activeModalWidget();
  QWindow* const above = modal == nullptr ? nullptr : modal->window()->windowHandle();
  winId();  // makes the window of the system, which has the transient parent
  if (windowHandle()->transientParent() != above) {
    // Whether a modal window blocks this one is asked when it is shown.
    hide();
    windowHandle()->setTransientParent(above);
  }
  if (isMinimized()) showNormal();
  show();
  raise();
  activateWindow();
  page_->setFocus();
}

// --- Events ------------------------------------------------------------------------------------

// Ctrl+F is taken here rather than as a shortcut, which a hot key of the table would take away.
void HelpWindow::keyPressEvent(QKeyEvent* event) {
  const bool finds = event->matches(QKeySequence::Find);
  if (finds) {
    find_->setFocus();
    find_->selectAll();
  } else if (event->key() == Qt::Key_F3) {
    Find((event->modifiers() & Qt::ShiftModifier) != 0 ? -1 : 1);
  } else if (event->key() == Qt::Key_F1) {
    ShowTopic(HelpContents);
  } else if (event->key() == Qt::Key_Back || event->key() == Qt::Key_Forward) {
    event->key() == Qt::Key_Back ? page_->backward() : page_->forward();
  } else if (event->key() == Qt::Key_Escape) {
    close();
  } else {
    QWidget::keyPressEvent(event);
  }
}

// In the field: Enter goes from place to place, Escape ends the search.
bool HelpWindow::eventFilter(QObject* watched, QEvent* event) {
  if (watched != find_ || event->type() != QEvent::KeyPress) {
    return QWidget::eventFilter(watched, event);
  }
  const auto* key = static_cast<QKeyEvent*>(event);
  const bool isEnter = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
  const bool ends = key->key() == Qt::Key_Escape && !find_->text().isEmpty();
  if (isEnter) Find((key->modifiers() & Qt::ShiftModifier) != 0 ? -1 : 1);
  if (ends) {
    find_->clear();
    page_->setFocus();
  }
  return isEnter || ends;
}

void HelpWindow::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  const bool activated = event->type() == QEvent::ActivationChange && isActiveWindow();
  if (activated || event->type() == QEvent::LanguageChange) TakeUpSettings();
  if (event->type() == QEvent::PaletteChange && page_->source().isValid()) {
    page_->DressPage();
    page_->reload();
  }
}

// The program has one help, whoever asks for it: the application keeps it.
class HelpDesk : public QObject {
 public:
  static HelpDesk& Get() {
    const QString name = QStringLiteral("HelpDesk");
    QObject* desk = qApp->findChild<QObject*>(name, Qt::FindDirectChildrenOnly);
    if (desk == nullptr) {
      desk = new HelpDesk(qApp);
      desk->setObjectName(name);
    }
    return static_cast<HelpDesk&>(*desk);
  }

  HelpWindow& Window() {
    if (window_ == nullptr) window_ = new HelpWindow;
    return *window_;
  }

 private:
  using QObject::QObject;

  QPointer<HelpWindow> window_;  // deletes itself when it is closed
};

}  // namespace

void ShowHelp(QWidget* parent, int topic) {
  HelpWindow& window = HelpDesk::Get().Window();
  window.ShowTopic(topic);
  window.BringUp(parent);
}

}  // namespace tessarel
