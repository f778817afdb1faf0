// An empty folder for one test, removed with all that is in it, and the number of a fault that a
// piece of code raises.
#pragma once

#include <gtest/gtest.h>
#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "base/fault.h"

namespace tessarel {

class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::string name = testing::TempDir() + "tessarel-XXXXXX";
    if (mkdtemp(name.data()) != nullptr) path_ = name + "/";
  }
  ~TemporaryFolder() {
    std::error_code ignored;
    if (!path_.empty()) std::filesystem::remove_all(path_, ignored);
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  // Ends in '/'.
  const std::string& Path() const { return path_; }
  int EntryCount() const {
    int count = 0;
    for ([[maybe_unused]] const auto& entry : std::filesystem::directory_iterator(path_))
      ++count;
    return count;
  }
  // The bytes of a file of the folder; names may be whole paths.
  std::string Read(const std::string& name) const {
    std::ifstream file(std::filesystem::path(path_) / name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  void Write(const std::string& name, const std::string& bytes) const {
    std::ofstream(std::filesystem::path(path_) / name, std::ios::binary) << bytes;
  }

 private:
  std::string path_;
};

// The number of the fault that `body` raises; 0 when it runs through.
template <class Body>
int FaultOf(Body&& body) {
  try {
    body();
    return 0;
  } catch (const Fault& fault) {
    return fault.Number;
  }
}

inline int NumberOf(FaultNumber number) {
  return static_cast<int>(number);
}

}  // namespace tessarel
