#include "dice/roll_file_edit.h"

#include <functional>

#include "base/file_io.h"
#include "dice/popup_roll.h"
#include "dice/roll_file.h"
#include "reset.h"

namespace tessarel {
namespace {

// The files are written as letters: roll k of the 36 buttons is the k-th of "A" to "Z", "a" to "j".
class RollFileEditing : public FolderTest {
 protected:
  RollFileEditing() { Always = AnswerYes; }

  static std::string Bytes(const std::string& letters) {
    std::string bytes;
    for (const char c : letters) {
      bytes += static_cast<char>(RollByte(FacesOfButton(c >= 'a' ? c - 'a' + 26 : c - 'A')));
    }
    return bytes;
  }
  void Open(const std::string& letters, int32_t next) const {
    Write("open.rol", Bytes(letters));
    OpenRollFile("open.rol");
    RollFile.NextRoll = RollFile.DisplayRoll = next;
  }
  void ExpectFile(const std::string& letters, int32_t next) const {
    EXPECT_EQ(Read("open.rol"), Bytes(letters));
    EXPECT_EQ(RollFile.RollCountInFile, static_cast<int32_t>(letters.size()));
    EXPECT_EQ(RollFile.NextRoll, next);
    EXPECT_EQ(RollFile.DisplayRoll, next);
  }
};

TEST_F(RollFileEditing, RollsAreEnteredBeforeOrOverTheNext) {
  const std::tuple<int32_t, int32_t, std::string> cases[] = {
      {0, 1, "jABC"}, {0, 3, "ABjC"}, {0, 4, "ABCj"}, {1, 1, "jBC"}, {1, 4, "ABCj"}};
  for (const auto& [replaces, next, after] : cases) {
    Open("ABC", next);
    RollFile.RollFileMode = RollFileRecord;
    RollFileEdit.optInsertRolls = replaces;
    EXPECT_TRUE(EnterRoll(35));
    ExpectFile(after, next + 1);
    EXPECT_EQ(RollFile.LastRoll, next);
    EXPECT_EQ(RollFile.RollFileMode, RollFileRecord);
  }
  EXPECT_FALSE(EnterRoll(36));
  EXPECT_TRUE(EnterRandomRoll());
  EXPECT_EQ(RollFile.RollCountInFile, 5);
  EXPECT_EQ(folder_.EntryCount(), 1) << "no scratch is left";
}

TEST_F(RollFileEditing, EditsWaitForTheTableAndAnOpenFile) {
  const std::function<bool()> edits[] = {
      [] { return EnterRoll(0); },       [] { return SetRecorder(RollFilePlay); },
      [] { return CutRolls({1, 1}); },   [] { return DeleteRolls({1, 1}); },
      [] { return PasteRolls(); },       [] { return PasteRollFile("x"); },
      [] { return PasteTextFile("x"); }, [] { return EnterRandomRoll(); }};
  for (const auto& edit : edits) {
    CloseRollFile();
    EXPECT_FALSE(edit());
    ASSERT_EQ(Shown.size(), 1u);
    EXPECT_EQ(std::exchange(Shown, {})[0].Title, "Record Dice Rolls");
    Open("AB", 1);
    Table.RollInProgress = true;
    EXPECT_FALSE(edit());
    Table.AutoRollOn = true;
    EXPECT_FALSE(edit());
    EXPECT_FALSE(Table.AutoRollOn) << "the button stops the run";
    Table.RollInProgress = false;
    ExpectFile("AB", 1);
  }
}

TEST_F(RollFileEditing, RecorderAsksBeforeItPlays) {
  Open("", 1);
  EXPECT_FALSE(SetRecorder(RollFilePlay));
  ASSERT_EQ(Shown.size(), 1u) << "nothing to play";
  EXPECT_EQ(Shown[0].Title, "Pop-up Roll File");
  EXPECT_TRUE(SetRecorder(RollFileRecord));
  RecordToRollFile({1, 1});
  OpenPopupRoll("dice.txt");
  Always = AnswerNo;
  EXPECT_FALSE(SetRecorder(RollFilePlay));
  EXPECT_TRUE(PopupRoll.PopupRollActive);
  EXPECT_EQ(RollFile.RollFileMode, RollFileRecord);
  Always = AnswerYes;
  EXPECT_TRUE(SetRecorder(RollFilePlay));
  EXPECT_FALSE(PopupRoll.PopupRollActive);
  EXPECT_EQ(RollFile.RollFileMode, RollFilePlay);
  EXPECT_TRUE(SetRecorder(RollFileOff));
  ExpectFile("A", 2);
}

TEST_F(RollFileEditing, SelectionsAreCutCopiedDeletedAndPasted) {
  const struct {
    RollRange selection;
    int32_t next;
    std::string held, left;
    int32_t nextAfter;
    std::string pasted;
  } cases[] = {{{2, 3}, 5, "BC", "ADE", 3, "ADBCE"},
               {{3, 2}, 3, "BC", "ADE", 2, "ABCDE"},
               {{4, 99}, 1, "DE", "ABC", 1, "DEABC"},
               {{-5, 99}, 4, "ABCDE", "", 1, "ABCDE"}};
  for (const auto& each : cases) {
    Open("ABCDE", each.next);
    EXPECT_TRUE(CopyRolls(each.selection));
    EXPECT_EQ(Read("rollcopyfile.rll"), Bytes(each.held));
    EXPECT_TRUE(DeleteRolls(each.selection));
    ExpectFile(each.left, each.nextAfter);
    Open("ABCDE", each.next);
    EXPECT_TRUE(CutRolls(each.selection));
    ExpectFile(each.left, each.nextAfter);
    EXPECT_TRUE(PasteRolls());
    ExpectFile(each.pasted, each.nextAfter + static_cast<int32_t>(each.held.size()));
  }
  DeleteRollClipboard();
  EXPECT_FALSE(PasteRolls());
}

TEST_F(RollFileEditing, OtherFilesArePastedIfTheyAreOfRolls) {
  std::string lots;
  for (int k = 0; k < 100'000; ++k)
    lots += static_cast<char>('A' + k % 26);
  Write("lots.rol", Bytes(lots));
  Write("bad.rol", "\x24\x25");
  Write("dice.txt", "6,1 (2 9) 3\r\n0 5 x");
  Open("AB", 2);
  EXPECT_TRUE(PasteRollFile("lots.rol"));
  ExpectFile("A" + lots + "B", 100'002);
  EXPECT_TRUE(CopyRollsToFile({2, 100'001}, "copy.rol"));
  EXPECT_EQ(Read("copy.rol"), Bytes(lots));
  EXPECT_FALSE(CopyRollsToFile({1, 1}, "open.rol"));
  Open("AB", 2);
  EXPECT_TRUE(PasteRollFile("open.rol")) << "into itself";
  ExpectFile("AABB", 4);
  EXPECT_FALSE(PasteRollFile("bad.rol"));
  EXPECT_TRUE(Message.MsgText.ends_with("a true Tessarel dice roll file.\r\r" + Path("bad.rol")));
  EXPECT_FALSE(PasteRollFile("none.rol"));
  Open("AB", 2);
  EXPECT_TRUE(PasteTextFile("dice.txt"));
  ExpectFile("AeIB", 4);
  EXPECT_FALSE(FileExists(Path("cnvrtasc.xx~")));
}

TEST_F(RollFileEditing, FailedEditLeavesTheFileOpenAsItWas) {
  Open("ABC", 2);
  std::filesystem::remove(Path("open.rol"));
  std::filesystem::create_directory(Path("open.rol"));
  EXPECT_FALSE(EnterRoll(0));
  EXPECT_EQ(RollFile.RollCountInFile, 3);
  EXPECT_EQ(RollFile.NextRoll, 2);
  EXPECT_EQ(ReadRolls(1, 9), Bytes("ABC"));
}

TEST_F(RollFileEditing, TextsFollowTheFormat) {
  // clang-format off
  const std::pair<const char*, const char*> cases[] = {
      {"total", "9 "}, {"Total ROLL#", "9 12 "}, {"  Roll# (Die1.Die2) Total ", "12 (4.5) 9 "},
      {"Roll total", "roll 9 "}, {"DIE1die2x", "45x "}};
  // clang-format on
  for (const auto& [format, text] : cases)
    EXPECT_EQ(RollText(format, 12, {4, 5}), text);
}

TEST_F(RollFileEditing, TextFileIsNumberedAsTheUserWants) {
  Open("ABH", 1);
  RollFileEdit.txtDiceRollOutputFormat = "Roll# Total";
  EXPECT_TRUE(CopyRollsToTextFile({3, 2}, "out.txt"));
  EXPECT_EQ(Read("out.txt"), "1 3 \r\n2 4 \r\n");
  Always = AnswerNo;
  EXPECT_TRUE(CopyRollsToTextFile({2, 3}, "out.txt"));
  EXPECT_EQ(Read("out.txt"), "2 3 \r\n3 4 \r\n");
  EXPECT_EQ(Shown.size(), 2u);
  EXPECT_FALSE(CopyRollsToTextFile({1, 1}, "open.rol"));
  RollFileEdit.txtDiceRollOutputFormat = "roll die";
  EXPECT_FALSE(CopyRollsToTextFile({1, 1}, "other.txt"));
  EXPECT_FALSE(FileExists(Path("other.txt")));
  RollFileEdit.txtDiceRollOutputFormat = " ";
  EXPECT_EQ(RollOutputFormat(), "Roll# (Die1.Die2) Total");
}

TEST_F(RollFileEditing, PrintsAllOrTheSelection) {
  EXPECT_FALSE(AskRollsToPrint({1, 1}).has_value());
  EXPECT_EQ(RollPrintRows({1, 0})[1], "Roll file:  untitled");
  Open("ABH", 1);
  HoldClock({2026, 11, 22});
  EXPECT_EQ(AskRollsToPrint({2, 2})->last, 3);
  Always = AnswerNo;
  EXPECT_EQ(RollPrintRows(*AskRollsToPrint({2, 2})),
            (Strings{"Tessarel Dice Roll File", "Roll file:  " + Path("open.rol"), "22-Nov-26",
                     "2 (1.2) 3 "}));
}

TEST_F(RollFileEditing, EndOfPlayRewindsOrSwitchesOff) {
  for (const int32_t use : {RollFileOff, RollFileRecord, RollFilePlay}) {
    for (const int32_t answer : {AnswerYes, AnswerNo}) {
      Open("AB", 3);
      OpenPopupRoll("dice.txt");
      RollFile.RollFileMode = use;
      Always = answer;
      StopRollFile();
      const bool rewound = answer == AnswerYes && use != RollFileOff;
      EXPECT_EQ(RollFile.RollFileMode, rewound ? RollFilePlay : RollFileOff);
      EXPECT_EQ(RollFile.NextRoll, rewound ? 1 : 3);
      EXPECT_EQ(PopupRoll.PopupRollActive, answer == AnswerNo);
    }
  }
  EXPECT_EQ(Message.MsgText, "Playback stopped.\rRewind for playback?");
}

}  // namespace
}  // namespace tessarel
