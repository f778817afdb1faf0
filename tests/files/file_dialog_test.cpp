#include "files/file_dialog.h"

#include <set>

#include "base/file_io.h"
#include "dice/roll_file.h"
#include "log/events_log.h"
#include "reset.h"

namespace tessarel {
namespace {

using enum FileAction;
class FileDialogRules : public FolderTest {
 protected:
  FileDialogRules() {
    EventsLog.LogOn = true;
    std::filesystem::create_directory(Path("sub"));
  }
  void Make(const std::string& name) const { Write(name, "x"); }
  void Seat(int place, const std::string& name, const std::string& log) const {
    Table.PlayerName[place] = name;
    Table.TakenPlaces |= static_cast<decltype(Table.TakenPlaces)>(1 << place);
    Table.SessionLogName[place] = log;
  }
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
  const std::tuple<FileAction, int32_t, const char*, const char*> cases[] = {
      {SaveScript, 0, " a ", "a.bet"},   {SaveScript, 1, "a", "a.bet"},
      {SaveScript, 2, "a", "a.txt"},     {SaveScript, 3, "a", "a"},
      {SaveScript, 99, "a.b", "a.b"},    {SaveScript, -1, "bare", "bare.bet"},
      {OpenScript, 0, "old", "old.bet"}, {OpenScript, 0, "bare", "bare"},
      {OpenRolls, 0, "new", "new.rol"},  {SaveSession, 0, "sub/../t.x", "sub/../t.x"},
      {SaveProbability, 0, "p", "p.prb"}};
  for (const auto& [action, filter, typed, taken] : cases) {
    LoadFileDialog(action, "");
    FileDialog.Filter = filter;
    EXPECT_TRUE(AcceptFileName(typed)) << typed;
    EXPECT_EQ(FileDialog.FileDialogFileName, Path(taken));
  }
  EXPECT_TRUE(Shown.empty());
}

TEST_F(FileDialogRules, SaysWhatAFileMayNotBeTakenFor) {
  Make("a.tsg");
  OpenRollFile("open.rol");
  const std::tuple<FileAction, const char*, std::string> cases[] = {
      // how the message begins
      {SaveSession, "a", "Save session file as: " + Path("a.tsg") + "\r\rDo you want to overwrite"},
      {OpenSession, "b", "Unable to Open File: File not found.\r\r" + Path("b.tsg")},
      {CopyRolls, "open", "Copy To Dice Roll File: Can't copy rolls to a file that's open"},
      {CopyRollsAsText, "sub/../open.rol", "Copy Dice Rolls To Text File: Can't use the Copy To"}};
  Always = AnswerNo;
  for (const auto& [action, typed, said] : cases) {
    LoadFileDialog(action, "");
    EXPECT_FALSE(AcceptFileName(typed));
    ASSERT_EQ(Shown.size(), 1u);
    EXPECT_TRUE(Said()[0].starts_with(said)) << typed;
  }
  Always = AnswerYes;
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
  Always = AnswerNo;
  EXPECT_FALSE(DeleteListedFile("Own.slg"));
  EXPECT_FALSE(DeleteListedFile("missing.slg"));
  EXPECT_FALSE(DeleteListedFile("sub"));
  EXPECT_TRUE(FileExists(Path("Own.slg")));
  Always = AnswerYes;
  Make("bob.slg");
  EXPECT_TRUE(DeleteListedFile("Own.slg"));
  EXPECT_FALSE(FileExists(Path("Own.slg")));
  EXPECT_EQ(Table.SessionLogName[2], Path("ann.slg"));
  EXPECT_EQ(Table.SessionLogName[5], Path("bob.slg"));
  const Strings said = Said();
  ASSERT_EQ(said.size(), 4u);
  EXPECT_EQ(said[1], "Delete Sessions File: Are you sure you want to delete:\r\rOwn.slg");
  EXPECT_TRUE(said[2].starts_with("Sessions Log (Ann): The following new Sessions Log"));
  EXPECT_TRUE(said[2].ends_with("\r\r" + Path("ann.slg")));
  EXPECT_NE(said[3].find("existing"), std::string::npos);

  OpenRollFile("open.rol");
  LoadFileDialog(OpenRolls, "");
  EXPECT_TRUE(DeleteListedFile("open.rol"));
  EXPECT_EQ(RollFile.RollFileName, "");
  WriteEvent("line");
  LoadFileDialog(FileAction::OpenEventsLog, "");
  EXPECT_TRUE(DeleteListedFile("Events Log.txt"));
  EXPECT_FALSE(FileExists(EventsIndexName()));
  EXPECT_EQ(Shown.back().Title, "Delete File");
}

}  // namespace
}  // namespace tessarel
