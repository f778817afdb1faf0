#include "base/folders.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <utility>

namespace tessarel {

FoldersState Folders;

std::string AsFolder(std::string folder) {
  std::replace(folder.begin(), folder.end(), '\\', '/');
  if (folder.empty() || folder.back() != '/') folder += '/';
  return folder;
}

std::string FullName(const std::string& path) {
  namespace fs = std::filesystem;
  if (path.empty()) return "";
  std::error_code error;
  const fs::path full = fs::absolute(path, error);
  return (error ? fs::path(path) : full).lexically_normal().generic_string();
}

void SetAppFolder(std::string folder) {
  folder = AsFolder(std::move(folder));
  Folders = {folder, folder, folder, folder, folder, folder, folder};
}

std::string InFolder(const std::string& folder, std::string_view name) {
  std::string path(name);
  std::replace(path.begin(), path.end(), '\\', '/');
  return std::filesystem::path(path).is_absolute() ? path : folder + path;
}

std::string NameInFolder(const std::string& folder, std::string_view path) {
  namespace fs = std::filesystem;
  const std::string whole = InFolder(folder, path);
  const fs::path inside = fs::path(FullName(whole)).lexically_relative(FullName(folder));
  const bool outside = inside.empty() || *inside.begin() == "..";
  return outside ? whole : inside.generic_string();
}

std::string ShortName(std::string_view path) {
  return std::string(path.substr(path.find_last_of("/\\") + 1));
}

bool IsSameFile(const std::string& one, const std::string& other) {
  std::error_code error;
  return FullName(one) == FullName(other) || std::filesystem::equivalent(one, other, error);
}

}  // namespace tessarel
