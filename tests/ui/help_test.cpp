// The help: its pages in all languages, and the window that shows them.
#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QLineEdit>
#include <QListWidget>
#include <QPointer>
#include <QRegularExpression>
#include <QTest>
#include <QTextBrowser>
#include <QTextDocument>
#include <QWindow>
#include <set>
#include <utility>

#include "base/help_topics.h"
#include "state/settings.h"
#include "texts/language.h"
#include "ui/windows/help_pages.h"
#include "ui/windows/help_window.h"

namespace tessarel {
namespace {

QStringList FilesOf(int32_t language) {
  return QDir(HelpFolder(language)).entryList({"*.html"}, QDir::Files);
}

// "page.html" and, behind a "#", the name of a place in it.
QStringList LinksOf(const QString& page) {
  QStringList links;
  auto matches = QRegularExpression("<a href=\"([^\"]*)\"").globalMatch(page);
  while (matches.hasNext())
    links += matches.next().captured(1);
  return links;
}

class HelpPages : public testing::TestWithParam<int32_t> {};

TEST_P(HelpPages, HaveTitleTextAndLivingLinks) {
  const QStringList english = FilesOf(English);
  for (const QString& file : FilesOf(GetParam())) {
    SCOPED_TRACE(file.toStdString());
    EXPECT_TRUE(english.contains(file));
    const QString page = HelpPage(file, GetParam());
    QTextDocument document;
    document.setHtml(page);
    EXPECT_FALSE(HelpTitle(page).isEmpty());
    EXPECT_EQ(document.metaInformation(QTextDocument::DocumentTitle), HelpTitle(page));
    EXPECT_GT(document.toPlainText().size(), 200);
    for (const QString& link : LinksOf(page))
      EXPECT_TRUE(english.contains(link)) << link.toStdString();
    // A tag that is left open would swallow what follows it.
    for (const char* tag : {"p", "ul", "li", "table", "tr", "td", "th", "h1", "h2", "b", "pre"}) {
      const QRegularExpression opens(QString("<%1[ >]").arg(tag));
      EXPECT_EQ(page.count(opens), page.count(QString("</%1>").arg(tag))) << tag;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(AllLanguages, HelpPages, testing::Range(0, LanguageCount));

TEST(HelpTopics, AreUniqueAndBeginWithTheContents) {
  std::set<int> numbers;
  for (const HelpTopic& topic : HelpTopics())
    EXPECT_TRUE(numbers.insert(topic.Number).second) << topic.Number;
  EXPECT_EQ(static_cast<qsizetype>(numbers.size()), FilesOf(English).size());
  ASSERT_FALSE(numbers.empty());
  EXPECT_EQ(*numbers.begin(), HelpContents);
  EXPECT_EQ(HelpFileOfTopic(HelpContents), "000-contents.html");
  EXPECT_EQ(HelpFileOfTopic(999), "000-contents.html");
  EXPECT_EQ(HelpFileOfTopic(-1), "000-contents.html");
}

// The contents lead to every page.
TEST(HelpTopics, AreAllInTheContents) {
  const QStringList links = LinksOf(HelpPage("000-contents.html", English));
  for (const HelpTopic& topic : HelpTopics())
    EXPECT_EQ(links.contains(topic.FileName), topic.Number != HelpContents) << topic.Number;
}

TEST(HelpPageText, FallsBackToEnglishAndStaysInTheHelp) {
  constexpr int32_t Unknown = 17;
  const QString english = HelpPage("000-contents.html", English);
  EXPECT_EQ(HelpPage("000-contents.html", Unknown), english);
  for (const char* name : {"", "999-nothing.html", "readme.html", "12-short.html", "1234.html"})
    EXPECT_TRUE(HelpPage(name, German).isEmpty()) << name;
  EXPECT_EQ(HelpPage("../../en/000-contents.html", English), english);
}

class HelpWindowTest : public testing::Test {
 protected:
  void SetUp() override {
    SetLanguage(English);
    ShowHelp(nullptr, 30);
    window_ = Window();
    ASSERT_NE(window_, nullptr);
    ASSERT_TRUE(QTest::qWaitForWindowActive(window_));
    page_ = window_->findChild<QTextBrowser*>();
    topics_ = window_->findChild<QListWidget*>();
    find_ = window_->findChild<QLineEdit*>();
  }
  void TearDown() override {
    SetLanguage(English);
    if (window_ != nullptr) window_->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(Window(), nullptr);
  }

  static QWidget* Window() {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
      if (widget->objectName() == "frmHelp") return widget;
    }
    return nullptr;
  }
  QString Marked() const { return topics_->currentItem()->text(); }

  QPointer<QWidget> window_;
  QTextBrowser* page_ = nullptr;
  QListWidget* topics_ = nullptr;
  QLineEdit* find_ = nullptr;
};

TEST_F(HelpWindowTest, GoesWhereItIsSentAndBack) {
  EXPECT_EQ(topics_->count(), static_cast<int>(HelpTopics().size()));
  const QString first = page_->documentTitle();
  EXPECT_EQ(Marked(), first);
  EXPECT_TRUE(window_->windowTitle().startsWith(first));
  ShowHelp(nullptr, 999);
  EXPECT_EQ(Window(), window_);
  EXPECT_EQ(page_->source().fileName(), "000-contents.html");
  EXPECT_EQ(topics_->currentRow(), 0);
  topics_->setCurrentRow(2);
  EXPECT_EQ(page_->documentTitle(), topics_->item(2)->text());
  QTest::keyClick(topics_, Qt::Key_Left, Qt::AltModifier);
  QTest::keyClick(page_, Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(page_->documentTitle(), first);
  EXPECT_EQ(Marked(), first);
  page_->setSource(QUrl("file:///etc/passwd"));
  EXPECT_EQ(page_->documentTitle(), first);
}

TEST_F(HelpWindowTest, FindsOnThePageAroundItsEnds) {
  find_->setText("Fire");
  const qsizetype all = page_->toPlainText().count("fire", Qt::CaseInsensitive);
  ASSERT_GT(all, 0);
  EXPECT_EQ(page_->extraSelections().size(), all);
  const int first = page_->textCursor().position();
  for (qsizetype k = 0; k < all; ++k)
    QTest::keyClick(find_, Qt::Key_Return);
  EXPECT_EQ(page_->textCursor().position(), first);
  find_->setText("no such text");
  EXPECT_TRUE(page_->extraSelections().isEmpty());
}

TEST_F(HelpWindowTest, FindsTurkishCapitalsAndSigns) {
  SetLanguage(Turkish);
  ShowHelp(nullptr, 70);
  for (const auto& [typed, onPage] : {std::pair("ipuçları", "İpuçları"),
                                      {"İKİ UÇ", "iki uç"},
                                      {"YAKINLIK", "Yakınlık"},
                                      {"Ctrl++", "Ctrl++"},
                                      {"(f11)", "(F11)"}}) {
    find_->setText(typed);
    ASSERT_FALSE(page_->extraSelections().isEmpty()) << typed;
    EXPECT_EQ(page_->extraSelections().first().cursor.selectedText(), onPage);
  }
  find_->setText(".{4}");
  EXPECT_TRUE(page_->extraSelections().isEmpty());
}

TEST_F(HelpWindowTest, TakesUpAnotherLanguage) {
  SetLanguage(German);
  ShowHelp(nullptr, 30);
  EXPECT_EQ(page_->documentTitle(), HelpTitle(HelpPage(HelpFileOfTopic(30), German)));
  EXPECT_EQ(Marked(), page_->documentTitle());
}

// A message box lets nothing else be used, except for the help on it.
TEST_F(HelpWindowTest, CanBeUsedOverAModalWindow) {
  QWidget box;
  box.setWindowModality(Qt::ApplicationModal);
  box.show();
  const auto clickRow = [this](int row) {
    QWidget* const rows = topics_->viewport();
    const QPoint inList = topics_->visualItemRect(topics_->item(row)).center();
    QTest::mouseClick(window_->windowHandle(), Qt::LeftButton, {},
                      rows->mapTo(window_.data(), inList));
    return topics_->currentRow();
  };
  EXPECT_NE(clickRow(2), 2);
  ShowHelp(&box, HelpContents);
  EXPECT_EQ(clickRow(2), 2);
  box.close();
  ShowHelp(nullptr, HelpContents);
  EXPECT_EQ(clickRow(1), 1);
}

TEST(HelpTopicNumbers, EachHasAPage) {
  for (const int32_t topic : {help::Bets, help::OddsVigAndCalls, help::Players, help::Dice,
                              help::AutoRoll, help::Saving, help::NewSession, help::SettledBets,
                              help::SessionsLogs, help::BettingSystems, help::SoundsAndLanguage}) {
    EXPECT_EQ(HelpTopicOfFile(HelpFileOfTopic(topic)), topic);
  }
}

}  // namespace
}  // namespace tessarel
