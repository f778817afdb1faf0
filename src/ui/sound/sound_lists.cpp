#include "ui/sound/sound_lists.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <algorithm>

#include "texts/say.h"
#include "ui/text.h"

namespace tessarel {

namespace {

constexpr std::array<const char*, SoundKindCount> Extensions = {"stk", "dce", "chp", "win"};

QStringList FilesIn(const QFileInfo& set, const QString& extension) {
  if (!set.isDir()) return {set.filePath()};
  QStringList files;
  const QDir folder(set.filePath());
  for (const QFileInfo& file : folder.entryInfoList(QDir::Files | QDir::Readable, QDir::Name)) {
    const QString suffix = file.suffix().toLower();
    if (suffix == QLatin1String("wav") || suffix == extension) files << file.filePath();
  }
  return files;
}

void AddEntry(std::vector<SoundEntry>& entries, SoundEntry entry) {
  const auto same = std::find_if(entries.begin(), entries.end(), [&](const SoundEntry& other) {
    return other.name.compare(entry.name, Qt::CaseInsensitive) == 0;
  });
  if (same != entries.end()) {
    *same = std::move(entry);
  } else {
    entries.push_back(std::move(entry));
  }
}

void ReadFolder(const QString& path, SoundKind kind, std::vector<SoundEntry>& entries) {
  const QString extension = QLatin1String(Extensions[static_cast<size_t>(kind)]);
  const QDir folder(path);
  for (const QFileInfo& found :
       folder.entryInfoList({"*." + extension}, QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot)) {
    // The calls of a stick person are told apart by number, which one file cannot hold.
    if (kind == SoundKind::StickPerson && !found.isDir()) continue;
    QStringList files = FilesIn(found, extension);
    if (!files.isEmpty()) AddEntry(entries, {found.completeBaseName(), std::move(files)});
  }
}

}  // namespace

SoundLists ReadSoundLists(const QStringList& folders) {
  SoundLists lists;
  for (size_t kind = 0; kind < SoundKindCount; ++kind) {
    std::vector<SoundEntry>& entries = lists.entries[kind];
    for (const QString& folder : folders) {
      ReadFolder(folder, static_cast<SoundKind>(kind), entries);
    }
    std::sort(entries.begin(), entries.end(), [](const SoundEntry& a, const SoundEntry& b) {
      return a.name.compare(b.name, Qt::CaseInsensitive) < 0;
    });
  }
  return lists;
}

const SoundEntry* ChosenSound(const SoundLists& lists, SoundKind kind, int index) {
  const std::vector<SoundEntry>& entries = lists.Of(kind);
  const auto count = static_cast<int>(entries.size());
  if (index >= 1 && index <= count) return &entries[static_cast<size_t>(index) - 1];
  if (count < 2 || index != count + 1) return nullptr;
  return &entries[static_cast<size_t>(QRandomGenerator::global()->bounded(count))];
}

const SoundEntry* NamedSound(const SoundLists& lists, SoundKind kind, const QString& name) {
  for (const SoundEntry& entry : lists.Of(kind)) {
    if (entry.name.compare(name, Qt::CaseInsensitive) == 0) return &entry;
  }
  return nullptr;
}

QStringList ShownSounds(const SoundLists& lists, SoundKind kind) {
  QStringList names{Shown(Text::NoSound)};
  for (const SoundEntry& entry : lists.Of(kind))
    names << entry.name;
  if (names.size() > 2) names << Shown(Text::RandomSound);
  return names;
}

QString CallFile(const SoundEntry& stickPerson, int call) {
  for (const QString& file : stickPerson.files) {
    if (QFileInfo(file).completeBaseName().toInt() == call) return file;
  }
  return {};
}

bool IsWave(const QString& path) {
  QFile file(path);
  if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) return false;
  const QByteArray head = file.read(12);
  return head.startsWith("RIFF") && head.mid(8) == "WAVE";
}

}  // namespace tessarel
