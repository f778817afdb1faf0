// Script files of either form with any bytes: whatever stands in them, they give lines of text, the
// older wording comes out without a trace of how it was reworded, and no line grows out of hand.

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "autobet/older_scripts.h"
#include "autobet/script_files.h"
#include "fuzz_helpers.h"

namespace tessarel {
namespace {

// A new wording is longer than the old one by less than this factor.
constexpr size_t Growth = 8;

void Upgrade(const std::string& line) {
  const std::string upgraded = UpgradeWording(line);
  Require(upgraded.size() <= Growth * line.size());
  Require(upgraded.find('\x01') == std::string::npos || line.find('\x01') != std::string::npos);
}

void Read(std::string_view bytes) {
  const std::string path = FuzzFolder() + "fuzz.bet";
  WriteBytes(path, bytes);
  std::vector<std::string> lines;
  Require(ReadScriptLines(path, lines));
  for (const std::string& line : lines) {
    Require(line.find('\n') == std::string::npos || IsOlderScript(bytes));
    Upgrade(line);
  }
}

}  // namespace
}  // namespace tessarel

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  tessarel::Read(tessarel::InputOf(data, size));
  return 0;
}
