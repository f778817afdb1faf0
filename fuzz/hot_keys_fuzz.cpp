// Hot-key files as anybody may make them: whatever the bytes are, reading them ends with no more
// rows than there are records, and the table that was read is read again from what it writes, with
// the records behind it as they were.

#include <cstdint>
#include <string>

#include "files/hot_keys.h"
#include "fuzz_helpers.h"

namespace tessarel {
namespace {

void CheckKeys() {
  for (int key = 0; key < 256; ++key)
    Require(RowOfHotKey(static_cast<char>(key)) <= HotKeyCount());
}

void Run(const std::string& bytes) {
  const RecordFile earlier = RecordFile::OfBytes(bytes);
  HotKeys.Rows = HotKeysOfRecords(earlier);
  Require(HotKeyCount() <= MaxHotKeys && (earlier.Count() == 0 || HotKeyCount() < earlier.Count()));
  CheckKeys();
  RecordFile written = earlier;
  PutHotKeys(written);
  Require(HotKeysOfRecords(written) == HotKeys.Rows);
  for (int k = HotKeyCount() + 2; k <= earlier.Count(); ++k)
    Require(written.At(k).Bytes == earlier.At(k).Bytes);
  ChangeHotKey(1, 'K', "a.bet", "");
  if (HotKeyCount() < MaxHotKeys) Require(AddHotKey('k', "b.bet", "") == RowOfHotKey('K'));
  CheckKeys();
}

}  // namespace
}  // namespace tessarel

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace tessarel;
  const std::string bytes(InputOf(data, size));
  Run(bytes);
  // Behind a true header of as many rows as there can be, the bytes get to be rows.
  std::string file = " Tessarel Hot-Key File";
  file.resize(101, ' ');
  file += "256";
  file.resize(Record::Size, ' ');
  Run(file + bytes);
  return 0;
}
