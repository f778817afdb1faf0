// Where the program's files lie. All paths use '/' and end in one; AppFolder is the program's
// folder, from which the others start.
#pragma once

#include <string>
#include <string_view>

namespace tessarel {

struct FoldersState {
  std::string AppFolder;
  std::string GameFolder, EventsLogFolder, BetFolder, ProbabilityFolder, SessionsLogFolder,
      TextFolder;
};

extern FoldersState Folders;

// Makes `folder` the program's folder and the start of all others. '\' reads as '/'; a missing
// final '/' is added.
void SetAppFolder(std::string folder);

// A folder's name with '/' as separator and at its end.
std::string AsFolder(std::string folder);

// The one absolute name of a path, whatever the folder the program runs in; empty for none.
std::string FullName(const std::string& path);

// A file name as a path: absolute names stand, others are taken from `folder`.
std::string InFolder(const std::string& folder, std::string_view name);

// The name by which InFolder finds a path again: relative to `folder` when it lies there.
std::string NameInFolder(const std::string& folder, std::string_view path);

// A path without its folder.
std::string ShortName(std::string_view path);

// Whether two paths lead to one file, through links too.
bool IsSameFile(const std::string& one, const std::string& other);

}  // namespace tessarel
