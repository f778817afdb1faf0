// What the fuzzers share: a broken promise ends the program, so that the input which broke it is
// kept; faults that the called routine may raise pass; and each process has a folder for itself,
// in TMPDIR, that goes with it.
#pragma once

#include <stdlib.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

#include "base/fault.h"

namespace tessarel {

inline void Require(bool holds) {
  if (!holds) std::abort();
}

// For a check that tells what does not hold, and nothing when all does.
inline void RequireNone(const std::string& fault) {
  std::fputs(fault.c_str(), stderr);
  Require(fault.empty());
}

template <class Body>
void MayFail(Body&& body) {
  try {
    body();
  } catch (const Fault&) {
  }
}

inline bool IsFace(int32_t die) {
  return die >= 1 && die <= 6;
}

inline std::string_view InputOf(const uint8_t* data, size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

// Ends in '/'.
inline const std::string& FuzzFolder() {
  struct Folder {
    Folder() {
      std::string name = std::filesystem::temp_directory_path() / "tessarel-fuzz-XXXXXX";
      Require(mkdtemp(name.data()) != nullptr);
      Path = name + '/';
    }
    ~Folder() {
      std::error_code ignored;
      std::filesystem::remove_all(Path, ignored);
    }
    std::string Path;
  };
  static const Folder folder;
  return folder.Path;
}

inline void WriteBytes(const std::string& path, std::string_view bytes) {
  std::ofstream file(path, std::ios::binary);
  file << bytes;
  Require(static_cast<bool>(file.flush()));
}

}  // namespace tessarel
