// What the file dialog lists of a folder.
#pragma once

#include <QString>
#include <string>
#include <vector>

namespace tessarel {

struct FolderEntry {
  QString name;
  bool isFolder;
};

// The folders, the one above first, and behind them the files that the patterns ("*.bet;*.txt") let
// through in any letter case, each in natural order. Hidden ones stay hidden.
std::vector<FolderEntry> ListFolder(const std::string& folder, const std::string& patterns);

// Letter case aside, with numbers by their value: "Roll 9" stands before "Roll 10".
bool NaturallyBefore(const QString& one, const QString& other);

}  // namespace tessarel
