#include "config/folders.h"

#include <algorithm>
#include <filesystem>
#include <utility>

namespace tessarel {

FoldersState Folders;

void SetAppFolder(std::string folder) {
  std::replace(folder.begin(), folder.end(), '\\', '/');
  if (folder.empty() || folder.back() != '/') folder += '/';
  Folders = {folder, folder, folder, folder, folder, folder, folder};
}

std::string InFolder(const std::string& folder, std::string_view name) {
  std::string path(name);
  std::replace(path.begin(), path.end(), '\\', '/');
  return std::filesystem::path(path).is_absolute() ? path : folder + path;
}

}  // namespace tessarel
