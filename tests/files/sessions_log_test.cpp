#include "files/sessions_log.h"

#include "base/record_file.h"
#include "files/sessions_commands.h"
#include "play/new_session.h"
#include "play/players.h"
#include "play/rail.h"
#include "play/start_up.h"
#include "reset.h"
#include "stats/selection.h"

namespace tessarel {
namespace {

using Counts = std::vector<int64_t>;

// Ann at place 2 in a folder of its own.
class SessionsLogTest : public FolderTest {
 protected:
  SessionsLogTest() {
    StartUp(folder_.Path());
    SeatPlayer(2, "Ann B", 1000);
  }

  std::string Log() const { return Path("ann b.slg"); }
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
};

TEST_F(SessionsLogTest, HeaderAndRecordToTheByte) {
  Play({0});
  EXPECT_EQ(folder_.EntryCount(), 0);
  SetBetAmount(2, FirstStack, 5);
  SetBetAmount(2, FirstStack + 19, 6);
  SetBetAmount(2, FirstStack + 20, 7);
  for (int k = 0; k < 3; ++k)
    RecordBetResult(2, bet::Field, 10, -10);
  Play({258});
  const std::string bytes = Read(Log());
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
  Write(Log(), Read(Log()) + std::string(300, 'x'));
  EXPECT_EQ(RollsIn(Log()), (Counts{1, 2}));
  Play({3});
  EXPECT_EQ(RollsIn(Log()), (Counts{1, 2, 3}));
}

TEST_F(SessionsLogTest, CountsBeyondTheFileAreCutAndForeignFilesStayAsTheyAre) {
  Play({1, 2});
  const std::string good = Read(Log());
  const struct {
    size_t At;
    std::string Bytes;
    size_t Size;
    bool IsLog;
    Counts Rolls;
    // clang-format off
  } cases[] = {
      {252, "\x05", 768, true, {1, 2}}, {252, "\xFF\xFF\xFF\x7F", 768, true, {1, 2}},
      {252, "\xFF\xFF\xFF\xFF", 768, true, {}}, {252, "\x01", 768, true, {1}},
      {0, "", 767, true, {1}}, {0, "", 256, true, {}},
      {0, "Anything with Data Format 5.0 ", 768, true, {1, 2}}, {35, "4", 768, false, {}},
      {0, "", 255, false, {}}, {0, "", 0, false, {}}};
  // clang-format on
  for (const auto& test : cases) {
    std::string bytes = good;
    Write(Log(), bytes.replace(test.At, test.Bytes.size(), test.Bytes).substr(0, test.Size));
    bytes = Read(Log());
    EXPECT_EQ(IsSessionsLog(Log()), test.IsLog) << test.At;
    EXPECT_EQ(RollsIn(Log()), test.Rolls);
    const int fault = test.IsLog ? 0 : NumberOf(FaultNumber::FileAccess);
    EXPECT_EQ(FaultOf([] { Play({9}); }), fault);
    EXPECT_EQ(FaultOf([&] { AppendSessions(Path("new.slg"), Log()); }), fault);
    if (!test.IsLog) {
      EXPECT_EQ(FaultOf([&] { ClearSessionsLog(Log()); }), fault);
      DeleteSessionsLog(2);
      EXPECT_EQ(Read(Log()), bytes);
    } else {
      EXPECT_EQ(RollsIn(Log()).back(), 9);
    }
  }
}

TEST_F(SessionsLogTest, DeletedSessionsCloseUpAndTheFileKeepsItsLength) {
  const Counts all = {1, 2, 3, 4, 5};
  // clang-format off
  const std::pair<std::string, Counts> cases[] = {
      {"1", {2, 3, 4, 5}}, {"5", {1, 2, 3, 4}}, {" 2 - 4 ", {1, 5}}, {"2 to 3", {1, 4, 5}},
      {"1,5", {}}, {"0", all}, {"6", all}, {"4-6", all}, {"4-3", all}, {"-1", all}, {"two", all},
      {"1-2-3", all}, {"", all}, {"99999999999", all}};
  // clang-format on
  for (const auto& [entry, rolls] : cases) {
    ClearSessionsLog(Log());
    Play({1, 2, 3, 4, 5});
    Answers = {entry};
    EXPECT_EQ(AskToDeleteSessions(2), rolls != all) << entry;
    EXPECT_EQ(RollsIn(Log()), rolls);
    EXPECT_EQ(Read(Log()).size(), 6u * 256);
    if (rolls == all && !entry.empty()) {
      EXPECT_EQ(Said().back(), "Delete Sessions: No sessions deleted.  Entry out of range.");
    }
  }
  Answers = {AnswerYes};
  EXPECT_TRUE(AskToDeleteAllSessions(2));
  EXPECT_EQ(Said().back(),
            "Delete All Sessions: Are you sure you want to delete ALL of Ann B's recorded "
            "sessions?");
  EXPECT_EQ(Read(Log()).size(), 256u);
}

TEST_F(SessionsLogTest, ANewSessionClosesTheOldOneInEveryLogOrDeletesTheLogs) {
  SeatPlayer(5, "a/../c", 500);
  Stats.RollCount[CurrentSession][0] = 12;
  NewSession({.keepLogs = true});
  NewSession({.keepLogs = true});
  EXPECT_EQ(RollsIn(Log()), (Counts{12}));
  EXPECT_EQ(RollsIn(Path("a_.._c.slg")), (Counts{12}));
  Table.SessionLogName[5] = Path("precious.txt");
  Write(Table.SessionLogName[5], "not a log");
  NewSession({});
  EXPECT_FALSE(std::filesystem::exists(Log()));
  EXPECT_EQ(Read(Table.SessionLogName[5]), "not a log");
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
  Write(Path("b.slg"), "Tessarel Sessions Log, Data Format 4.0" + std::string(300, ' '));
  EXPECT_FALSE(OpenSessionsLog(2, "b.slg"));
  EXPECT_TRUE(Said().back().ends_with("is not a true Tessarel Sessions Log."));
  EXPECT_FALSE(OpenSessionsLog(2, "missing.slg"));
  EXPECT_EQ(SessionsLogNameOf(2), Log());
  ClearSessionsLog(Path("c.slg"));
  EXPECT_TRUE(OpenSessionsLog(2, "c.slg"));
  EXPECT_EQ(SessionsLogNameOf(2), Path("c.slg"));
}

TEST_F(SessionsLogTest, ANewLogLetsTheOldOneBeKept) {
  Play({1});
  Stats.RollCount[CurrentSession][0] = 8;
  Answers = {AnswerNo};
  EXPECT_FALSE(NewSessionsLogs());
  EXPECT_EQ(Shown.back().Title, "Session in progress will be added to new Sessions Logs");
  Answers = {AnswerYes, AnswerYes};
  EXPECT_FALSE(NewSessionsLog(2)) << "the file dialog was given up";
  EXPECT_EQ(RollsIn(Log()), (Counts{1}));
  Shown.clear();
  Answers = {AnswerYes, AnswerYes};
  SaveName = "kept.slg";
  EXPECT_TRUE(NewSessionsLog(2));
  EXPECT_EQ(Said()[1],
            "Save Sessions Log: Ann B's log needs to be re-named if you want to save it.\r\rDo you "
            "want to re-name it now?");
  EXPECT_EQ(RollsIn(Path(SaveName)), (Counts{1}));
  EXPECT_EQ(Read(Log()).size(), 256u);
}

TEST_F(SessionsLogTest, MergingAppendsAndNeverCostsTheOpenLog) {
  Play({1, 2});
  const std::string other = Path("other.slg");
  AppendSessions(other, Log());
  EXPECT_TRUE(MergeSessionsLog(2, "other.slg"));
  EXPECT_EQ(RollsIn(Log()), (Counts{1, 2, 1, 2}));
  Write(other, "nothing");
  EXPECT_FALSE(MergeSessionsLog(2, "other.slg"));
  EXPECT_FALSE(MergeSessionsLog(2, "ann b.slg"));
  EXPECT_EQ(RollsIn(Log()), (Counts{1, 2, 1, 2}));
}

TEST_F(SessionsLogTest, ARenamedPlayerMayRenameHisLogButNotToThatOfAnother) {
  SeatPlayer(5, "Bob", 500);
  Play({1});
  for (const auto* name : {"bob.slg", "cleo.slg"}) {
    SaveName = name;
    Answers = {std::string(name).substr(0, 4) + "x", AnswerYes};
    EXPECT_TRUE(RenamePlayer(2));
  }
  const Strings said = Said();
  EXPECT_EQ(said[1],
            "Rename Sessions Log: Would you also like to change bob.x's sessions log "
            "filename?\r\rCurrently:\r\r" +
                Log());
  EXPECT_EQ(said[3], "Rename sessions log: This file is the sessions log of another player.");
  EXPECT_EQ(RollsIn(Path("cleo.slg")), (Counts{1}));
  EXPECT_EQ(SessionsLogNameOf(2), Path("cleo.slg"));
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
