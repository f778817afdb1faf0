// Files of rolls as anybody may make them: whatever the bytes are, playing them back, pasting them
// as rolls or as a text and taking them as a pop-up file ends, gives only faces of dice, and keeps
// count of the open file. The first byte chooses where the rolls are pasted.

#include <filesystem>
#include <string>
#include <string_view>

#include "base/folders.h"
#include "dice/popup_roll.h"
#include "dice/roll_file_edit.h"
#include "fuzz_helpers.h"
#include "state/table.h"

namespace tessarel {
namespace {

constexpr int32_t RollsOfOpenFile = 5;

void PlayAll() {
  Table.HyperDriveOn = true;
  RewindForPlayback();
  while (const auto faces = PlayBackRoll())
    Require(IsFace(faces->die1) && IsFace(faces->die2));
  Table.HyperDriveOn = false;
}

void CheckCount() {
  const auto size = std::filesystem::file_size(RollFile.RollFileName);
  Require(size == static_cast<uintmax_t>(RollFile.RollCountInFile));
  Require(RollFile.NextRoll >= 1 && RollFile.NextRoll <= RollFile.RollCountInFile + 1);
}

void PasteInto(int32_t at, bool (*paste)(const std::string&)) {
  WriteBytes(FuzzFolder() + "open.rol", std::string(RollsOfOpenFile, '\x24'));
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

void Run(std::string_view bytes) {
  WriteBytes(FuzzFolder() + "fuzz.bin", bytes);
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

}  // namespace
}  // namespace tessarel

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace tessarel;
  if (Folders.AppFolder.empty()) SetAppFolder(FuzzFolder());
  Run(InputOf(data, size));
  return 0;
}
