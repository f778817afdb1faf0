#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <regex>
#include <string>
#include <vector>

namespace tessarel {
namespace {

namespace fs = std::filesystem;

const fs::path Source = TESSAREL_SOURCE;

std::vector<std::string> LinesOf(const fs::path& path) {
  std::ifstream file(path);
  std::vector<std::string> lines;
  for (std::string line; std::getline(file, line);)
    lines.push_back(line);
  return lines;
}

// The floors from the ground up.
std::vector<std::string> Floors() {
  std::vector<std::string> floors = LinesOf(Source / "FLOORS");
  std::erase_if(floors, [](const std::string& line) { return line.empty() || line[0] == '#'; });
  return floors;
}

// The height of the floor that a path below src/ begins with; one past the roof for no floor.
size_t HeightOf(const std::string& path, const std::vector<std::string>& floors) {
  const auto floor = std::ranges::find(floors, path.substr(0, path.find('/')));
  return static_cast<size_t>(floor - floors.begin());
}

TEST(Floors, IncludesGoDownwardsOnly) {
  const std::vector<std::string> floors = Floors();
  const std::regex include("^#include \"([^\"]+)\"");
  size_t seen = 0;
  for (const auto& entry : fs::recursive_directory_iterator(Source)) {
    const std::string extension = entry.path().extension();
    if (extension != ".h" && extension != ".cpp") continue;
    const std::string name = entry.path().lexically_relative(Source);
    if (name.find('/') == std::string::npos) continue;
    const size_t height = HeightOf(name, floors);
    EXPECT_LT(height, floors.size()) << name << " lies on no floor";
    const std::vector<std::string> lines = LinesOf(entry.path());
    for (size_t k = 0; k < lines.size(); ++k) {
      std::smatch match;
      if (!std::regex_search(lines[k], match, include)) continue;
      ++seen;
      EXPECT_LE(HeightOf(match[1], floors), height)
          << name << ":" << k + 1 << " includes \"" << match[1] << "\"";
    }
  }
  EXPECT_GT(seen, 1000U);
}

}  // namespace
}  // namespace tessarel
