#include "ui/windows/help_pages.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTextDocumentFragment>
#include <algorithm>
#include <array>

#include "texts/language.h"
#include "ui/program_folders.h"

namespace tessarel {

namespace {

constexpr int DigitsOfTopic = 3;

// In the order of LanguageNumber.
constexpr std::array<const char*, LanguageCount> LanguageFolders = {"en", "es", "de",
                                                                    "fr", "tr", "it"};

}  // namespace

QString HelpFolder(int32_t language) {
  const bool known = language >= 0 && language < LanguageCount;
  const auto row = static_cast<size_t>(known ? language : int32_t{English});
  return QString::fromStdString(DataFolder()) + "/help/" + LanguageFolders[row];
}

std::vector<HelpTopic> HelpTopics() {
  std::vector<HelpTopic> topics;
  const QDir folder(HelpFolder(English));
  for (const QString& name : folder.entryList({"*.html"}, QDir::Files, QDir::Name)) {
    const int number = HelpTopicOfFile(name);
    if (number >= 0) topics.push_back({number, name});
  }
  return topics;
}

QString HelpFileOfTopic(int topic) {
  QString contents;
  for (const HelpTopic& each : HelpTopics()) {
    if (each.Number == topic) return each.FileName;
    if (each.Number == HelpContents) contents = each.FileName;
  }
  return contents;
}

int HelpTopicOfFile(const QString& fileName) {
  const bool named = fileName.size() > DigitsOfTopic && fileName[DigitsOfTopic] == '-';
  const QString digits = fileName.left(DigitsOfTopic);
  const bool numbered = std::all_of(digits.begin(), digits.end(),
                                    [](QChar digit) { return digit >= '0' && digit <= '9'; });
  return named && numbered ? digits.toInt() : -1;
}

QString HelpPage(const QString& fileName, int32_t language) {
  const QString name = QFileInfo(fileName).fileName();
  if (HelpTopicOfFile(name) < 0) return {};
  for (const int32_t each : {language, int32_t{English}}) {
    QFile file(HelpFolder(each) + "/" + name);
    if (file.open(QIODevice::ReadOnly)) return QString::fromUtf8(file.readAll());
  }
  return {};
}

QString HelpTitle(const QString& page) {
  const QString open = QStringLiteral("<title>");
  const qsizetype begin = page.indexOf(open);
  const qsizetype end = page.indexOf(QStringLiteral("</title>"));
  if (begin < 0 || end < begin) return {};
  const QString title = page.mid(begin + open.size(), end - begin - open.size());
  return QTextDocumentFragment::fromHtml(title).toPlainText();
}

}  // namespace tessarel
