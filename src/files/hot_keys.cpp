#include "files/hot_keys.h"

#include <algorithm>
#include <charconv>
#include <optional>

#include "autobet/script_files.h"
#include "base/file_io.h"
#include "base/folders.h"
#include "base/message.h"
#include "base/single_byte_text.h"
#include "base/trap.h"
#include "texts/say.h"

namespace tessarel {

HotKeysState HotKeys;

namespace {

constexpr std::string_view Header = "Tessarel Hot-Key File";

struct Field {
  int first, width;
};
constexpr Field KeyField{0, 1}, FirstField{1, 100}, SecondField{101, 100};

std::string FileName() {
  return InFolder(Folders.AppFolder, "HotKeys.dta");
}

std::string TextOf(const Record& record, Field field) {
  return record.TextField(field.first, field.width);
}

void PutText(Record& record, Field field, std::string_view text) {
  record.PutTextField(field.first, field.width, text);
}

// What is no number counts as none, and a count too long to be read as more than there can be.
int32_t CountOfText(std::string_view text) {
  int32_t count = 0;
  const auto result = std::from_chars(text.data(), text.data() + text.size(), count);
  if (result.ec == std::errc::result_out_of_range) return text.starts_with('-') ? 0 : MaxHotKeys;
  return std::clamp(count, 0, MaxHotKeys);
}

HotKey HotKeyOf(const Record& record) {
  return {TextOf(record, KeyField), TextOf(record, FirstField), TextOf(record, SecondField)};
}

// The records of the file as it is now. What nobody could have written here is not kept.
RecordFile EarlierRecords() {
  const std::string name = FileName();
  if (!FileExists(name)) return {};
  RecordFile file = RecordFile::Load(name);
  const bool ours = file.Count() > 0 && TextOf(file.At(1), FirstField) == Header;
  return ours ? file : RecordFile();
}

bool IsRow(int32_t row) {
  return row >= 1 && row <= HotKeyCount();
}

HotKey& Row(int32_t row) {
  return HotKeys.Rows[static_cast<size_t>(row - 1)];
}

// The key as the table holds it; empty when it is no letter.
std::string LetterOf(char key) {
  if (key >= 'a' && key <= 'z') key = static_cast<char>(key - 'a' + 'A');
  return key >= 'A' && key <= 'Z' ? std::string(1, key) : std::string();
}

std::optional<HotKey> Checked(char key, std::string_view fileName, std::string_view note) {
  const std::string_view name = TrimSpaces(fileName);
  if (name.empty()) {
    ShowMessage(Say(Text::HotKeyNeedsFile), Say(Text::HotKeyTitle), msg::OkAlert);
    return std::nullopt;
  }
  std::string letter = LetterOf(key);
  if (letter.empty()) return std::nullopt;
  return HotKey{std::move(letter), NameInFolder(Folders.AppFolder, name),
                std::string(TrimSpaces(note))};
}

}  // namespace

std::vector<HotKey> HotKeysOfRecords(const RecordFile& file) {
  std::vector<HotKey> rows;
  if (file.Count() == 0 || TextOf(file.At(1), FirstField) != Header) return rows;
  const int32_t count =
      std::min(CountOfText(TextOf(file.At(1), SecondField)), int32_t{file.Count() - 1});
  for (int32_t row = 1; row <= count; ++row)
    rows.push_back(HotKeyOf(file.At(row + 1)));
  return rows;
}

void PutHotKeys(RecordFile& file) {
  while (file.Count() < HotKeyCount() + 1)
    file.Add();
  PutText(file.At(1), FirstField, Header);
  PutText(file.At(1), SecondField, std::to_string(HotKeyCount()));
  for (int32_t row = 1; row <= HotKeyCount(); ++row) {
    Record& record = file.At(row + 1);
    PutText(record, KeyField, Row(row).Key);
    PutText(record, FirstField, Row(row).FileName);
    PutText(record, SecondField, Row(row).Note);
  }
}

void ReadHotKeys() {
  HotKeys = {};
  Trapped("ReadHotKeys", [] { HotKeys.Rows = HotKeysOfRecords(EarlierRecords()); });
}

void WriteHotKeys() {
  Trapped("WriteHotKeys", [] {
    RecordFile file = EarlierRecords();
    PutHotKeys(file);
    file.Save(FileName());
  });
}

int32_t AddHotKey(char key, std::string_view fileName, std::string_view note) {
  std::optional<HotKey> added = Checked(key, fileName, note);
  int32_t row = RowOfHotKey(key);
  if (!added || (row == 0 && HotKeyCount() >= MaxHotKeys)) return 0;
  if (row == 0) {
    HotKeys.Rows.emplace_back();
    row = HotKeyCount();
  }
  Row(row) = std::move(*added);
  return row;
}

bool ChangeHotKey(int32_t row, char key, std::string_view fileName, std::string_view note) {
  if (!IsRow(row)) return false;
  std::optional<HotKey> changed = Checked(key, fileName, note);
  if (!changed) return false;
  const std::string letter = changed->Key;
  Row(row) = std::move(*changed);
  for (int32_t other = HotKeyCount(); other >= 1; --other) {
    if (other != row && EqualIgnoringCase(Row(other).Key, letter)) DeleteHotKey(other);
  }
  return true;
}

bool DeleteHotKey(int32_t row) {
  if (!IsRow(row)) return false;
  HotKeys.Rows.erase(HotKeys.Rows.begin() + (row - 1));
  return true;
}

int32_t RowOfHotKey(char key) {
  const std::string letter = LetterOf(key);
  for (int32_t row = 1; !letter.empty() && row <= HotKeyCount(); ++row) {
    if (EqualIgnoringCase(Row(row).Key, letter)) return row;
  }
  return 0;
}

bool RunHotKey(char key) {
  const int32_t row = RowOfHotKey(key);
  if (row == 0) return false;
  // While it runs, the window may change the table.
  const std::string fileName = Row(row).FileName;
  RunHotKeyScript(fileName);
  return true;
}

}  // namespace tessarel
