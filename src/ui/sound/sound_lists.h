// The sounds found on disk, by kind: the lists that the settings hold indices into.
#pragma once

#include <QStringList>
#include <array>
#include <vector>

#include "ui/sound/sounds.h"

namespace tessarel {

struct SoundEntry {
  QString name;
  QStringList files;  // in the order of their names
};

struct SoundLists {
  std::array<std::vector<SoundEntry>, SoundKindCount> entries;

  const std::vector<SoundEntry>& Of(SoundKind kind) const {
    return entries[static_cast<size_t>(kind)];
  }
};

// Reads the lists from the folders, of which a later one replaces what bears the same name.
SoundLists ReadSoundLists(const QStringList& folders);

// The entry that an index of a list means, "< random >" drawn anew; null for none.
const SoundEntry* ChosenSound(const SoundLists& lists, SoundKind kind, int index);

// The entry of a name, in any letter case; null if there is none.
const SoundEntry* NamedSound(const SoundLists& lists, SoundKind kind, const QString& name);

// The names of a list as they are shown, from "< none >" on.
QStringList ShownSounds(const SoundLists& lists, SoundKind kind);

// The file of a stick person's call 1 to 18; empty when there is none.
QString CallFile(const SoundEntry& stickPerson, int call);

// Whether a file begins as sound does.
bool IsWave(const QString& path);

}  // namespace tessarel
