// Files of rolls as anybody may make them: whatever the bytes are, playing them back, pasting them
// as rolls or as a text and taking them as a pop-up file ends, gives only faces of dice, and keeps
// count of the open file. The first byte chooses where the rolls are pasted.

#include <stdlib.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "config/folders.h"
#include "dice/popup_roll.h"
#include "dice/roll_file_edit.h"
#include "engine/table.h"

namespace tessarel {
namespace {

constexpr int32_t RollsOfOpenFile = 5;

void Require(bool holds) {
  if (!holds) std::abort();
}

bool IsFace(int32_t die) {
  return die >= 1 && die <= 6;
}

void WriteBytes(const std::string& name, const std::string& bytes) {
  std::ofstream(Folders.AppFolder + name, std::ios::binary) << bytes;
}

void PlayAll() {
  Table.HyperDriveOn = -1;
  RewindForPlayback();
  while (const auto faces = PlayBackRoll())
    Require(IsFace(faces->die1) && IsFace(faces->die2));
  Table.HyperDriveOn = 0;
}

void CheckCount() {
  const auto size = std::filesystem::file_size(RollFile.RollFileName);
  Require(size == static_cast<uintmax_t>(RollFile.RollCountInFile));
  Require(RollFile.NextRoll >= 1 && RollFile.NextRoll <= RollFile.RollCountInFile + 1);
}

void PasteInto(int32_t at, bool (*paste)(const std::string&)) {
  WriteBytes("open.rol", std::string(RollsOfOpenFile, '\x24'));
  OpenRollFile("open.rol");
  RollFile.NextRoll = at;
  const bool pasted = paste("fuzz.bin");
  CheckCount();
  Require(pasted || RollFile.RollCountInFile == RollsOfOpenFile);
  Require(RollFile.RollCountInFile - RollsOfOpenFile == RollFile.NextRoll - at);
  if (pasted) CutRolls({at, RollFile.NextRoll});
  CheckCount();
  PlayAll();
}

void Run(const std::string& bytes) {
  WriteBytes("fuzz.bin", bytes);
  OpenRollFile("fuzz.bin");
  PlayAll();
  const int32_t at = bytes.empty() ? 1 : static_cast<uint8_t>(bytes[0]) % (RollsOfOpenFile + 1) + 1;
  PasteInto(at, PasteRollFile);
  PasteInto(at, PasteTextFile);
  CloseRollFile();
  OpenPopupRoll("fuzz.bin");
  const auto faces = TakePopupRoll();
  Require(!faces || (IsFace(faces->die1) && IsFace(faces->die2)));
}

// A folder of this process alone.
void MakeFolder() {
  std::string name = std::filesystem::temp_directory_path() / "tessarel-fuzz-XXXXXX";
  Require(mkdtemp(name.data()) != nullptr);
  SetAppFolder(name);
  std::atexit([] { std::filesystem::remove_all(Folders.AppFolder); });
}

}  // namespace
}  // namespace tessarel

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace tessarel;
  if (Folders.AppFolder.empty()) MakeFolder();
  Run(std::string(reinterpret_cast<const char*>(data), size));
  return 0;
}
