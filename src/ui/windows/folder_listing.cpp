#include "ui/windows/folder_listing.h"

#include <QDir>
#include <algorithm>

#include "ui/text.h"

namespace tessarel {

namespace {

// The digits from `at` on, without zeros in front; `at` moves behind them.
QString TakeDigits(const QString& text, qsizetype& at) {
  const qsizetype begin = at;
  while (at < text.size() && text[at].isDigit())
    ++at;
  qsizetype first = begin;
  while (first + 1 < at && text[first] == '0')
    ++first;
  return text.mid(first, at - first);
}

// Below 0, 0 or above 0 as the texts differ from `a` and `b` on, which move behind what was judged.
int CompareNext(const QString& one, qsizetype& a, const QString& other, qsizetype& b) {
  if (one[a].isDigit() && other[b].isDigit()) {
    const QString first = TakeDigits(one, a), second = TakeDigits(other, b);
    if (first.size() != second.size()) return first.size() < second.size() ? -1 : 1;
    return first.compare(second);
  }
  return QString(one[a++]).compare(QString(other[b++]), Qt::CaseInsensitive);
}

}  // namespace

bool NaturallyBefore(const QString& one, const QString& other) {
  qsizetype a = 0, b = 0;
  while (a < one.size() && b < other.size()) {
    if (const int order = CompareNext(one, a, other, b); order != 0) return order < 0;
  }
  const qsizetype restOfOne = one.size() - a, restOfOther = other.size() - b;
  return restOfOne != restOfOther ? restOfOne < restOfOther : one < other;
}

std::vector<FolderEntry> ListFolder(const std::string& folder, const std::string& patterns) {
  const QDir dir(Shown(folder));
  QStringList filters = Shown(patterns).split(';', Qt::SkipEmptyParts);
  filters.replaceInStrings(QStringLiteral("*.*"), QStringLiteral("*"));
  QStringList folders = dir.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
  QStringList files = dir.entryList(filters, QDir::Files);
  std::ranges::sort(folders, NaturallyBefore);
  std::ranges::sort(files, NaturallyBefore);
  std::vector<FolderEntry> entries;
  if (!dir.isRoot()) entries.push_back({QStringLiteral(".."), true});
  for (const QString& name : folders)
    entries.push_back({name, true});
  for (const QString& name : files)
    entries.push_back({name, false});
  return entries;
}

}  // namespace tessarel
