#include "files/hot_keys.h"

#include "base/record_file.h"
#include "reset.h"
#include "state/scripts.h"

namespace tessarel {
namespace {

class HotKeyTable : public FolderTest {
 protected:
  std::string Bytes() const { return Read("HotKeys.dta"); }
  static std::string Padded(std::string text, size_t width) {
    text.resize(width, ' ');
    return text;
  }
  static size_t RowCount(const std::string& count, int records) {
    std::string bytes = " " + Padded("Tessarel Hot-Key File", 100) + Padded(count, 155);
    bytes += std::string(static_cast<size_t>(records * Record::Size), 'a');
    return HotKeysOfRecords(RecordFile::OfBytes(bytes)).size();
  }
};

TEST_F(HotKeyTable, FileToTheByte) {
  const std::string longNote(150, 'n');
  EXPECT_EQ(AddHotKey('f', Path("lay/sys.bet"), "caf\xc3\xa9"), 1);
  EXPECT_EQ(AddHotKey('Q', "/else/x.bet", longNote), 2);
  WriteHotKeys();
  const std::string unused(55, '\0');
  EXPECT_EQ(Bytes(), std::string(1, '\0') + Padded("Tessarel Hot-Key File", 100) +
                         Padded("2", 100) + unused + "F" + Padded("lay/sys.bet", 100) +
                         Padded("caf\xe9", 100) + unused + "Q" + Padded("/else/x.bet", 100) +
                         std::string(100, 'n') + unused);
  ReadHotKeys();
  EXPECT_EQ(HotKeys.Rows, (std::vector<HotKey>{{"F", "lay/sys.bet", "caf\xc3\xa9"},
                                               {"Q", "/else/x.bet", longNote.substr(50)}}));
}

TEST_F(HotKeyTable, RecordsAfterAShorterTableStay) {
  for (const char key : {'A', 'B', 'C'})
    AddHotKey(key, "s.bet", "");
  WriteHotKeys();
  const std::string before = Bytes();
  EXPECT_TRUE(DeleteHotKey(1));
  WriteHotKeys();
  EXPECT_EQ(Bytes().substr(3 * Record::Size), before.substr(3 * Record::Size));
  ReadHotKeys();
  ASSERT_EQ(HotKeyCount(), 2);
  EXPECT_EQ(HotKeys.Rows[0].Key, "B");
}

TEST_F(HotKeyTable, WithoutAFileTheTableIsEmptyAndTheFileIsMade) {
  ReadHotKeys();
  EXPECT_EQ(HotKeyCount(), 0);
  WriteHotKeys();
  EXPECT_EQ(Bytes().size(), size_t{Record::Size});
  Write("HotKeys.dta", std::string(1024, 'x'));
  ReadHotKeys();
  EXPECT_EQ(HotKeyCount(), 0);
  WriteHotKeys();  // of a foreign file nothing is kept
  EXPECT_EQ(Bytes().size(), size_t{Record::Size});
}

TEST_F(HotKeyTable, CountIsNoMoreThanThereIs) {
  for (const auto* count : {"-4", "", "many", "-99999999999"})
    EXPECT_EQ(RowCount(count, 3), 0u) << count;
  for (const auto* count : {"3", "9", "3 or so", "999999999999"})
    EXPECT_EQ(RowCount(count, 3), 3u) << count;
  EXPECT_EQ(RowCount("300", 300), size_t{MaxHotKeys});
  EXPECT_TRUE(HotKeysOfRecords(RecordFile()).empty());
}

TEST_F(HotKeyTable, AKeyHasOneRowAndRunsItsFile) {
  AddHotKey('A', "a.bet", "first");
  AddHotKey('B', "b.bet", "");
  EXPECT_EQ(AddHotKey('a', "new.bet", " again "), 1);
  EXPECT_EQ(HotKeys.Rows[0], (HotKey{"A", "new.bet", "again"}));
  EXPECT_TRUE(ChangeHotKey(2, 'A', "b.bet", ""));
  EXPECT_EQ(HotKeys.Rows, (std::vector<HotKey>{{"A", "b.bet", ""}}));
  for (const char key : {'\0', '1', '@', '[', '{', '\xff'})
    EXPECT_EQ(AddHotKey(key, "a.bet", ""), 0);
  for (const int32_t row : {INT32_MIN, -1, 0, 2, INT32_MAX}) {
    EXPECT_FALSE(ChangeHotKey(row, 'C', "c.bet", ""));
    EXPECT_FALSE(DeleteHotKey(row));
  }
  EXPECT_EQ(Message.MsgTitle, "");
  EXPECT_EQ(AddHotKey('C', "  ", "note"), 0);
  EXPECT_EQ(Message.MsgTitle + ": " + Message.MsgText,
            "Hot-Key: Please enter an Auto-Bet filename to define this Hot-Key.");
  EXPECT_EQ(HotKeyCount(), 1);
  Write("b.bet", "' nothing\n");
  EXPECT_FALSE(RunHotKey('b'));
  EXPECT_EQ(Scripts.Places[0].ScriptFile, "");
  EXPECT_TRUE(RunHotKey('a'));
  EXPECT_EQ(Scripts.Places[0].ScriptFile, "b.bet");
}

}  // namespace
}  // namespace tessarel
