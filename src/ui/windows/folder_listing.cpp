#include "ui/windows/folder_listing.h"

#include <QDir>
#include <QLocale>
#include <algorithm>
#include <array>

#include "state/settings.h"
#include "ui/text.h"

namespace tessarel {

QCollator NaturalOrder() {
  // In the order of the languages' numbers. A locale of the system without a language has no
  // order of its own.
  constexpr std::array<QLocale::Language, LanguageCount> Languages = {
      QLocale::English, QLocale::Spanish, QLocale::German,
      QLocale::French,  QLocale::Turkish, QLocale::Italian};
  const int32_t language = std::clamp(Settings.Language, 0, LanguageCount - 1);
  QCollator order{QLocale(At(Languages, language))};
  order.setNumericMode(true);
  order.setCaseSensitivity(Qt::CaseInsensitive);
  return order;
}

std::vector<FolderEntry> ListFolder(const std::string& folder, const std::string& patterns) {
  const QDir dir(Shown(folder));
  QStringList filters = Shown(patterns).split(';', Qt::SkipEmptyParts);
  filters.replaceInStrings(QStringLiteral("*.*"), QStringLiteral("*"));
  QStringList folders = dir.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
  QStringList files = dir.entryList(filters, QDir::Files, QDir::Name);
  const QCollator order = NaturalOrder();
  std::ranges::stable_sort(folders, order);
  std::ranges::stable_sort(files, order);
  std::vector<FolderEntry> entries;
  if (!dir.isRoot()) entries.push_back({QStringLiteral(".."), true});
  for (const QString& name : folders)
    entries.push_back({name, true});
  for (const QString& name : files)
    entries.push_back({name, false});
  return entries;
}

}  // namespace tessarel
