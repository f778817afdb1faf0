#include "config/folders.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
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

std::string NameInFolder(const std::string& folder, std::string_view path) {
  namespace fs = std::filesystem;
  const auto fullName = [](const std::string& name) {
    std::error_code error;
    const fs::path full = fs::absolute(name, error);
    return (error ? fs::path(name) : full).lexically_normal();
  };
  const std::string whole = InFolder(folder, path);
  const fs::path inside = fullName(whole).lexically_relative(fullName(folder));
  const bool outside = inside.empty() || *inside.begin() == "..";
  return outside ? whole : inside.generic_string();
}

}  // namespace tessarel
