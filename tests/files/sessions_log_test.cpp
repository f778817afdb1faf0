#include "files/sessions_log.h"

#include <gtest/gtest.h>

#include <deque>
#include <fstream>
#include <iterator>

#include "base/folders.h"
#include "base/front_end.h"
#include "base/message.h"
#include "base/temporary_folder.h"
#include "files/file_dialog.h"
#include "files/sessions_commands.h"
#include "play/new_session.h"
#include "play/players.h"
#include "play/rail.h"
#include "play/start_up.h"
#include "state/books.h"
#include "state/table.h"
#include "stats/selection.h"

namespace tessarel {
namespace {

using Strings = std::vector<std::string>;
using Counts = std::vector<int64_t>;

// Ann at place 2 in a folder of its own. Questions are answered from a list of "yes", "no",
// "cancel" and texts.
class SessionsLogTest : public ::testing::Test {
 protected:
  void SetUp() override {
    Shown.clear();
    Answers.clear();
    Chosen.clear();
    StartUp(Folder.Path());
    SeatPlayer(2, "Ann B", 1000);
    FrontEnd.ShowMessage = [] {
      Shown.push_back(Message.MsgTitle + ": " + Message.MsgText);
      if (Answers.empty()) return;
      const std::string answer = Answers.front();
      Answers.pop_front();
      Message.MsgInput = answer;
      Message.MsgResult = answer == "yes"      ? AnswerYes
                          : answer == "no"     ? AnswerNo
                          : answer == "cancel" ? AnswerCancel
                                               : 0;
    };
    FrontEnd.AskSaveFile = [](FileAction action, const std::string& offered) {
      Shown.push_back(std::string(FileActionTitle(action)) + ": " + offered);
      return Chosen;
    };
  }
  void TearDown() override {
    FrontEnd = {};
    StartUp(Folder.Path());
    Folders = {};
  }

  std::string Log() const { return Folder.Path() + "ann b.slg"; }
  // Ends sessions of `rolls` rolls each.
  static void Play(const std::vector<int>& rolls) {
    for (const int count : rolls) {
      Stats.RollCount[CurrentSession][0] = count;
      WriteSession(2);
    }
    Stats.RollCount[CurrentSession][0] = 0;
  }
  // The rolls of each session in a log.
  static Counts RollsIn(const std::string& name) {
    Counts rolls;
    for (const Session& session : ReadSessions(name))
      rolls.push_back(session[SessionRolls].Floor());
    return rolls;
  }
  static std::string BytesOf(const std::string& name) {
    std::ifstream file(name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  static void Put(const std::string& name, const std::string& bytes) {
    std::ofstream(name, std::ios::binary) << bytes;
  }

  TemporaryFolder Folder;
  inline static Strings Shown;
  inline static std::deque<std::string> Answers;
  inline static std::string Chosen;
};

TEST_F(SessionsLogTest, HeaderAndRecordToTheByte) {
  Play({0});
  EXPECT_EQ(Folder.EntryCount(), 0);
  SetBetAmount(2, FirstStack, 5);
  SetBetAmount(2, FirstStack + 19, 6);
  SetBetAmount(2, FirstStack + 20, 7);
  for (int k = 0; k < 3; ++k)
    RecordBetResult(2, bet::Field, 10, -10);
  Play({258});
  const std::string bytes = BytesOf(Log());
  ASSERT_EQ(bytes.size(), 512u);
  const std::string text = "Tessarel Sessions Log, Data Format 5.0";
  EXPECT_EQ(bytes.substr(0, 252), text + std::string(252 - text.size(), ' '));
  EXPECT_EQ(bytes.substr(252, 4), std::string("\1\0\0\0", 4));
  const Record record = RecordFile::OfBytes(bytes).At(2);
  const int slots[] = {258, 3, 0, 3, -3, 30, 0, 30, -30, -1, 1000, 1000, 5};
  for (int slot = 0; slot < Record::Moneys; ++slot)
    EXPECT_EQ(record.Amount(slot), slot <= 12 ? slots[slot] : slot == 31 ? 6 : 0) << slot;
}

TEST_F(SessionsLogTest, TheHeaderDecidesAfterAnInterruptedWrite) {
  Play({1, 2});
  Put(Log(), BytesOf(Log()) + std::string(300, 'x'));
  EXPECT_EQ(RollsIn(Log()), (Counts{1, 2}));
  Play({3});
  EXPECT_EQ(RollsIn(Log()), (Counts{1, 2, 3}));
}

TEST_F(SessionsLogTest, CountsBeyondTheFileAreCutAndForeignFilesStayAsTheyAre) {
  Play({1, 2});
  const std::string good = BytesOf(Log());
  const struct {
    size_t At;
    std::string Bytes;
    size_t Size;
    bool IsLog;
    Counts Rolls;
  } cases[] = {
      {252, "\x05", 768, true, {1, 2}},
      {252, "\xFF\xFF\xFF\x7F", 768, true, {1, 2}},
      {252, "\xFF\xFF\xFF\xFF", 768, true, {}},
      {252, "\x01", 768, true, {1}},
      {0, "", 767, true, {1}},
      {0, "", 256, true, {}},
      {0, "Anything with Data Format 5.0 ", 768, true, {1, 2}},
      {35, "4", 768, false, {}},
      {0, "", 255, false, {}},
      {0, "", 0, false, {}},
  };
  for (const auto& test : cases) {
    std::string bytes = good;
    Put(Log(), bytes.replace(test.At, test.Bytes.size(), test.Bytes).substr(0, test.Size));
    bytes = BytesOf(Log());
    EXPECT_EQ(IsSessionsLog(Log()), test.IsLog) << test.At;
    EXPECT_EQ(RollsIn(Log()), test.Rolls);
    const int fault = test.IsLog ? 0 : NumberOf(FaultNumber::FileAccess);
    EXPECT_EQ(FaultOf([] { Play({9}); }), fault);
    EXPECT_EQ(FaultOf([&] { AppendSessions(Folder.Path() + "new.slg", Log()); }), fault);
    if (!test.IsLog) {
      EXPECT_EQ(FaultOf([&] { ClearSessionsLog(Log()); }), fault);
      DeleteSessionsLog(2);
      EXPECT_EQ(BytesOf(Log()), bytes);
    } else {
      EXPECT_EQ(RollsIn(Log()).back(), 9);
    }
  }
}

TEST_F(SessionsLogTest, DeletedSessionsCloseUpAndTheFileKeepsItsLength) {
  const struct {
    std::string Entry;
    Counts Rolls;
    bool Deleted = true;
  } cases[] = {
      {"1", {2, 3, 4, 5}}, {"5", {1, 2, 3, 4}},        {" 2 - 4 ", {1, 5}}, {"2 to 3", {1, 4, 5}},
      {"1,5", {}},         {"0", {}, false},           {"6", {}, false},    {"4-6", {}, false},
      {"4-3", {}, false},  {"-1", {}, false},          {"two", {}, false},  {"1-2-3", {}, false},
      {"", {}, false},     {"99999999999", {}, false},
  };
  for (const auto& test : cases) {
    ClearSessionsLog(Log());
    Play({1, 2, 3, 4, 5});
    Shown.clear();
    Answers = {test.Entry};
    EXPECT_EQ(AskToDeleteSessions(2), test.Deleted) << test.Entry;
    EXPECT_EQ(RollsIn(Log()), test.Deleted ? test.Rolls : (Counts{1, 2, 3, 4, 5}));
    EXPECT_EQ(BytesOf(Log()).size(), 6u * 256);
    if (!test.Deleted && !test.Entry.empty()) {
      EXPECT_EQ(Shown.back(), "Delete Sessions: No sessions deleted.  Entry out of range.");
    }
  }
  Answers = {"yes"};
  EXPECT_TRUE(AskToDeleteAllSessions(2));
  EXPECT_EQ(Shown.back(),
            "Delete All Sessions: Are you sure you want to delete ALL of Ann B's recorded "
            "sessions?");
  EXPECT_EQ(BytesOf(Log()).size(), 256u);
}

TEST_F(SessionsLogTest, ANewSessionClosesTheOldOneInEveryLogOrDeletesTheLogs) {
  SeatPlayer(5, "a/../c", 500);
  Stats.RollCount[CurrentSession][0] = 12;
  NewSession({.keepLogs = true});
  NewSession({.keepLogs = true});
  EXPECT_EQ(RollsIn(Log()), (Counts{12}));
  EXPECT_EQ(RollsIn(Folder.Path() + "a_.._c.slg"), (Counts{12}));
  Table.SessionLogName[5] = Folder.Path() + "precious.txt";
  Put(Table.SessionLogName[5], "not a log");
  NewSession({});
  EXPECT_FALSE(std::filesystem::exists(Log()));
  EXPECT_EQ(BytesOf(Table.SessionLogName[5]), "not a log");
}

TEST_F(SessionsLogTest, ALeavingPlayersSessionIsClosedAndAMovedOneTakesHisLogAlong) {
  ViewSelections.SessionsPlayer = 2;
  MovePlayer(2, 7);
  EXPECT_EQ(SessionsLogNameOf(7), Log());
  EXPECT_EQ(ViewSelections.SessionsPlayer, 7);
  Stats.RollCount[CurrentSession][0] = 4;
  DeletePlayer(7, false);
  EXPECT_EQ(RollsIn(Log()), (Counts{4}));
}

TEST_F(SessionsLogTest, OpeningTakesTrueLogsOnly) {
  Put(Folder.Path() + "b.slg", "Tessarel Sessions Log, Data Format 4.0" + std::string(300, ' '));
  EXPECT_FALSE(OpenSessionsLog(2, "b.slg"));
  EXPECT_EQ(Shown.back(),
            "Error: This file is either from an older version, has been corrupted, or is not a "
            "true Tessarel Sessions Log.");
  EXPECT_FALSE(OpenSessionsLog(2, "missing.slg"));
  EXPECT_EQ(SessionsLogNameOf(2), Log());
  ClearSessionsLog(Folder.Path() + "c.slg");
  EXPECT_TRUE(OpenSessionsLog(2, "c.slg"));
  EXPECT_EQ(SessionsLogNameOf(2), Folder.Path() + "c.slg");
}

TEST_F(SessionsLogTest, ANewLogLetsTheOldOneBeKept) {
  Play({1});
  Stats.RollCount[CurrentSession][0] = 8;
  Answers = {"no"};
  EXPECT_FALSE(NewSessionsLogs());
  EXPECT_TRUE(Shown.back().starts_with(
      "Session in progress will be added to new Sessions Logs: There's currently"));
  Answers = {"yes", "yes"};
  EXPECT_FALSE(NewSessionsLog(2)) << "the file dialog was given up";
  EXPECT_EQ(RollsIn(Log()), (Counts{1}));
  Shown.clear();
  Answers = {"yes", "yes"};
  Chosen = "kept.slg";
  EXPECT_TRUE(NewSessionsLog(2));
  EXPECT_EQ(Shown[1],
            "Save Sessions Log: Ann B's log needs to be re-named if you want to save it.\r\rDo you "
            "want to re-name it now?");
  EXPECT_EQ(RollsIn(Folder.Path() + Chosen), (Counts{1}));
  EXPECT_EQ(BytesOf(Log()).size(), 256u);
}

TEST_F(SessionsLogTest, MergingAppendsAndNeverCostsTheOpenLog) {
  Play({1, 2});
  const std::string other = Folder.Path() + "other.slg";
  AppendSessions(other, Log());
  EXPECT_TRUE(MergeSessionsLog(2, "other.slg"));
  EXPECT_EQ(RollsIn(Log()), (Counts{1, 2, 1, 2}));
  Put(other, "nothing");
  EXPECT_FALSE(MergeSessionsLog(2, "other.slg"));
  EXPECT_FALSE(MergeSessionsLog(2, "ann b.slg"));
  EXPECT_EQ(RollsIn(Log()), (Counts{1, 2, 1, 2}));
}

TEST_F(SessionsLogTest, ARenamedPlayerMayRenameHisLogButNotToThatOfAnother) {
  SeatPlayer(5, "Bob", 500);
  Play({1});
  for (const auto* name : {"bob.slg", "cleo.slg"}) {
    Chosen = name;
    Answers = {std::string(name).substr(0, 4) + "x", "yes"};
    EXPECT_TRUE(RenamePlayer(2));
  }
  EXPECT_EQ(Shown[1],
            "Rename Sessions Log: Would you also like to change bob.x's sessions log "
            "filename?\r\rCurrently:\r\r" +
                Log());
  EXPECT_EQ(Shown[3], "Rename sessions log: This file is the sessions log of another player.");
  EXPECT_EQ(RollsIn(Folder.Path() + "cleo.slg"), (Counts{1}));
  EXPECT_EQ(SessionsLogNameOf(2), Folder.Path() + "cleo.slg");
  EXPECT_FALSE(std::filesystem::exists(Log()));
}

TEST_F(SessionsLogTest, FindingGoesOnFromTheLastRow) {
  Play({10, 1200, 10, 7});
  SessionsView.Stat = SessionRolls;
  const SessionStatistics statistics = SessionStatisticsOf(2);
  Answers = {" 10"};
  EXPECT_TRUE(FindNextSession(statistics));
  EXPECT_EQ(SessionsView.FoundRow, 0);
  EXPECT_TRUE(FindNextSession(statistics));
  EXPECT_EQ(SessionsView.FoundRow, 2);
  EXPECT_FALSE(FindNextSession(statistics));
  EXPECT_TRUE(FindPreviousSession(statistics));
  EXPECT_EQ(SessionsView.FoundRow, 0);
  Answers = {"1,200"};
  EXPECT_TRUE(AskToFindSession(statistics));
  EXPECT_EQ(SessionsView.FoundRow, 1);
}

}  // namespace
}  // namespace tessarel
