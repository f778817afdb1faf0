#include "files/file_dialog.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <set>

#include "base/file_io.h"
#include "base/folders.h"
#include "base/front_end.h"
#include "base/message.h"
#include "base/temporary_folder.h"
#include "dice/roll_file.h"
#include "log/events_log.h"
#include "play/start_up.h"
#include "state/table.h"

namespace tessarel {
namespace {

using enum FileAction;
using Strings = std::vector<std::string>;

Strings Shown;
int32_t Answer = AnswerYes;

class FileDialogRules : public ::testing::Test {
 protected:
  void SetUp() override {
    StartUp(folder_.Path());
    Shown.clear();
    Answer = AnswerYes;
    FrontEnd.ShowMessage = [] {
      Shown.push_back(Message.MsgTitle + ": " + Message.MsgText);
      Message.MsgResult = Answer;
    };
    std::filesystem::create_directory(Path("sub"));
  }
  void TearDown() override {
    FrontEnd = {};
    StartUp(folder_.Path());
    Folders = {};
    Table = {};
  }
  std::string Path(const std::string& name) const { return folder_.Path() + name; }
  void Make(const std::string& name) const { WriteFileAtomically(Path(name), "x"); }
  void Seat(int place, const std::string& name, const std::string& log) const {
    Table.PlayerName[place] = name;
    Table.TakenPlaces |= static_cast<decltype(Table.TakenPlaces)>(1 << place);
    Table.SessionLogName[place] = log;
  }

  TemporaryFolder folder_;
};

TEST_F(FileDialogRules, EveryActionHasATitleOfItsOwnAndShowsFiles) {
  std::set<std::string_view> titles;
  for (int k = 0; k < FileActionCount; ++k) {
    const auto action = static_cast<FileAction>(k);
    titles.insert(FileActionTitle(action));
    EXPECT_NE(FileFilters(action).front().Label.find(" (*."), std::string::npos);
  }
  EXPECT_EQ(titles.size(), size_t{FileActionCount});
  const auto filters = FileFilters(SelectHotKeyScript);
  ASSERT_EQ(filters.size(), 4u);
  EXPECT_EQ(filters[1].Label, "Auto-bet & text files (*.bet;*.txt)");
}

TEST_F(FileDialogRules, EachKindKeepsItsFolder) {
  LoadFileDialog(SaveScript, "/far/away/Bob.bet");
  EXPECT_EQ(FileDialog.FileDialogFileName, "Bob.bet");
  EXPECT_TRUE(AcceptFileName("sub/a"));
  EXPECT_EQ(FileDialog.FileDialogFileName, Path("sub/a.bet"));
  UnloadFileDialog();
  LoadFileDialog(OpenRolls, "");
  EXPECT_EQ(FileDialog.Folder, folder_.Path());
  CancelFileDialog();
  EXPECT_EQ(Message.MsgResult, AnswerCancel);
  UnloadFileDialog();
  LoadFileDialog(OpenScript, "");
  EXPECT_EQ(FileDialog.Folder, Path("sub/"));
  EXPECT_FALSE(AcceptFileName(".."));  // a folder is gone to, not taken
  EXPECT_EQ(FileDialog.Folder, folder_.Path());
  std::filesystem::remove(Path("sub"));
  LoadFileDialog(OpenScript, "");
  EXPECT_EQ(FileDialog.Folder, folder_.Path());
  EXPECT_EQ(FileDialog.LastFolder,
            (std::array<std::string, FileKindCount>{"", Path("sub/"), folder_.Path(), "", "", ""}));
}

TEST_F(FileDialogRules, ExtensionOfTheFilterIsAddedWhereNoneIsTyped) {
  Make("bare");
  Make("old.bet");
  const struct {
    FileAction action;
    int32_t filter;
    const char *typed, *taken;
  } cases[] = {
      {SaveScript, 0, " a ", "a.bet"},    {SaveScript, 1, "a", "a.bet"},
      {SaveScript, 2, "a", "a.txt"},      {SaveScript, 3, "a", "a"},
      {SaveScript, 99, "a.b", "a.b"},     {SaveScript, -1, "bare", "bare.bet"},
      {OpenScript, 0, "old", "old.bet"},  {OpenScript, 0, "bare", "bare"},
      {OpenRolls, 0, "new", "new.rol"},   {SaveSession, 0, "sub/../t.x", "sub/../t.x"},
      {SaveProbability, 0, "p", "p.prb"},
  };
  for (const auto& c : cases) {
    LoadFileDialog(c.action, "");
    FileDialog.Filter = c.filter;
    EXPECT_TRUE(AcceptFileName(c.typed)) << c.typed;
    EXPECT_EQ(FileDialog.FileDialogFileName, Path(c.taken));
  }
  EXPECT_TRUE(Shown.empty());
}

TEST_F(FileDialogRules, SaysWhatAFileMayNotBeTakenFor) {
  Make("a.tsg");
  OpenRollFile("open.rol");
  const struct {
    FileAction action;
    const char* typed;
    std::string said;  // the beginning
  } cases[] = {
      {SaveSession, "a",
       "Save session file as: " + Path("a.tsg") + "\r\rDo you want to overwrite it?"},
      {OpenSession, "b", "Unable to Open File: File not found.\r\r" + Path("b.tsg")},
      {CopyRolls, "open", "Copy To Dice Roll File: Can't copy rolls to a file that's open"},
      {CopyRollsAsText, "sub/../open.rol", "Copy Dice Rolls To Text File: Can't use the Copy To"},
  };
  Answer = AnswerNo;
  for (const auto& c : cases) {
    Shown.clear();
    LoadFileDialog(c.action, "");
    EXPECT_FALSE(AcceptFileName(c.typed));
    ASSERT_EQ(Shown.size(), 1u);
    EXPECT_TRUE(Shown[0].starts_with(c.said)) << Shown[0];
  }
  Answer = AnswerYes;
  LoadFileDialog(SaveSession, "");
  EXPECT_TRUE(AcceptFileName("a.tsg"));
  EXPECT_FALSE(AcceptFileName("  "));
}

TEST_F(FileDialogRules, DeletingAsksAndGivesUpWhatIsInUse) {
  Make("Own.slg");
  Seat(2, "Ann", Path("Own.slg"));
  Seat(5, "Bob", "Own.slg");
  Seat(7, "Cid", Path("cid.slg"));
  LoadFileDialog(OpenSessionsLog, "");
  Answer = AnswerNo;
  EXPECT_FALSE(DeleteListedFile("Own.slg"));
  EXPECT_FALSE(DeleteListedFile("missing.slg"));
  EXPECT_FALSE(DeleteListedFile("sub"));
  EXPECT_TRUE(FileExists(Path("Own.slg")));
  Answer = AnswerYes;
  Make("bob.slg");
  EXPECT_TRUE(DeleteListedFile("Own.slg"));
  EXPECT_FALSE(FileExists(Path("Own.slg")));
  EXPECT_EQ(Table.SessionLogName[2], Path("ann.slg"));
  EXPECT_EQ(Table.SessionLogName[5], Path("bob.slg"));
  ASSERT_EQ(Shown.size(), 4u);
  EXPECT_EQ(Shown[1], "Delete Sessions File: Are you sure you want to delete:\r\rOwn.slg");
  EXPECT_EQ(Shown[2],
            "Sessions Log (Ann): The following new Sessions Log will be created and opened "
            "instead:\r\r" +
                Path("ann.slg"));
  EXPECT_NE(Shown[3].find("existing"), std::string::npos);

  OpenRollFile("open.rol");
  LoadFileDialog(OpenRolls, "");
  EXPECT_TRUE(DeleteListedFile("open.rol"));
  EXPECT_EQ(RollFile.RollFileName, "");
  WriteEvent("line");
  LoadFileDialog(FileAction::OpenEventsLog, "");
  EXPECT_TRUE(DeleteListedFile("Events Log.txt"));
  EXPECT_FALSE(FileExists(EventsIndexName()));
  EXPECT_EQ(Shown.back().substr(0, 13), "Delete File: ");
}

}  // namespace
}  // namespace tessarel
