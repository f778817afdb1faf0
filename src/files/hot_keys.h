// The hot keys: letters that run an Auto-Bet file once when they are pressed with Ctrl. The table
// of them lives here and in "HotKeys.dta", read when the program starts and written when it ends;
// the hot-key window and the keyboard call the routines, which say what has to be said.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "base/record_file.h"

namespace tessarel {

// A key of the file is one byte, so that more rows could not be told apart.
inline constexpr int32_t MaxHotKeys = 256;

// A row of the table: column 1, 2 and 3. Texts of the file are cut at 100 characters.
struct HotKey {
  std::string Key;       // a letter, "A" to "Z"; rows of a foreign file may hold anything
  std::string FileName;  // of the Auto-Bet file, relative to the program's folder if it lies there
  std::string Note;

  bool operator==(const HotKey&) const = default;
};

struct HotKeysState {
  std::vector<HotKey> Rows;  // row 1 is element 0
};

extern HotKeysState HotKeys;

inline int32_t HotKeyCount() {
  return static_cast<int32_t>(HotKeys.Rows.size());
}

// Takes the table from "HotKeys.dta" in the program's folder. It is empty without such a file, or
// when that is no hot-key file. A fault is reported, and the table is then empty too.
void ReadHotKeys();

// Writes the table. Records that an earlier, longer table left behind it stay as they are. A fault
// is reported; the old file then stands.
void WriteHotKeys();

// The same in records: no more rows than the count in record 1 says, and than there are.
std::vector<HotKey> HotKeysOfRecords(const RecordFile& file);
void PutHotKeys(RecordFile& file);

// Puts a key in the table, in place of a row that it has already, and returns the number of its row
// (from 1). Returns 0, with nothing changed, when it is no letter, and when `fileName` is empty,
// which is said.
int32_t AddHotKey(char key, std::string_view fileName, std::string_view note);

// Rewrites a row (from 1), under the same refusals and when there is no such row. A second row that
// has the key goes.
bool ChangeHotKey(int32_t row, char key, std::string_view fileName, std::string_view note);

// Removes a row; the ones below it move up. False when there is no such row.
bool DeleteHotKey(int32_t row);

// The row of a key in either case, from 1; 0 when it has none.
int32_t RowOfHotKey(char key);

// Runs the Auto-Bet file of the key. False when it has none.
bool RunHotKey(char key);

}  // namespace tessarel
