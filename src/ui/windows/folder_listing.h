// What the file dialog lists of a folder.
#pragma once

#include <QCollator>
#include <QString>
#include <string>
#include <vector>

namespace tessarel {

struct FolderEntry {
  QString name;
  bool isFolder;
};

// The folders, the one above first, and after them the files that the patterns ("*.bet;*.txt") let
// through in any letter case, each in natural order. Hidden ones stay hidden.
std::vector<FolderEntry> ListFolder(const std::string& folder, const std::string& patterns);

// The order of names in the language in force: letter case aside, with numbers by their value, so
// that "Roll 9" stands before "Roll 10".
QCollator NaturalOrder();

}  // namespace tessarel
