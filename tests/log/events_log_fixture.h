// A test with an events log of its own: switched on, in a folder that is gone after the test.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "base/folders.h"
#include "log/events_log.h"
#include "log/events_log_reader.h"
#include "state/table.h"

namespace tessarel {

class EventsLogTest : public ::testing::Test {
 protected:
  void SetUp() override {
    folder_ = std::filesystem::path(::testing::TempDir()) /
              ("tessarel-log-" + std::to_string(std::random_device{}()));
    std::filesystem::create_directories(folder_);
    SetAppFolder(folder_.string());
    EventsLog = {};
    EventsLog.LogOn = true;
    Table = {};
  }
  void TearDown() override {
    std::filesystem::remove_all(folder_);
    EventsLog = {};
    Table = {};
    Folders = {};
  }

  static std::string BytesOf(const std::string& name) {
    std::ifstream file(name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  static void Put(const std::string& name, std::string_view bytes) {
    std::ofstream(name, std::ios::binary) << bytes;
  }
  static std::string LogBytes() { return BytesOf(DefaultEventLogName()); }
  static std::string IndexBytes() { return BytesOf(EventsIndexName()); }
  static std::vector<std::string> Lines() {
    std::vector<std::string> lines;
    for (int32_t n = 1; n <= EventLineCount(); ++n)
      lines.push_back(EventLine(n));
    return lines;
  }

  std::filesystem::path folder_;
};

}  // namespace tessarel
