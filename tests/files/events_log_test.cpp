#include "files/events_log.h"

#include "base/clock.h"
#include "base/fault.h"
#include "base/front_end.h"
#include "base/message.h"
#include "files/events_log_fixture.h"
#include "files/events_log_view.h"

namespace tessarel {
namespace {

using namespace std::string_literals;
using Strings = std::vector<std::string>;

int FaultOf(void (*action)()) {
  try {
    action();
  } catch (const Fault& fault) {
    return fault.Number;
  }
  return 0;
}

constexpr auto WriteOne = [] { WriteEvent("one"); };

TEST_F(EventsLogTest, LinesAndPositionsToTheByte) {
  WriteEvent("    Bets:");
  WriteEvent("");
  WriteEvent(" Roll #1:  7 (3.4)");
  EXPECT_EQ(LogBytes(), "    Bets:\r\n\r\n Roll #1:  7 (3.4)\r\n");
  EXPECT_EQ(IndexBytes(), "\x01\0\0\0\x0c\0\0\0\x0e\0\0\0"s);
  EXPECT_EQ(Lines(), (Strings{"    Bets:", "", " Roll #1:  7 (3.4)"}));
}

TEST_F(EventsLogTest, PositionsAreLowestByteFirst) {
  WriteEvent(std::string(0x010203 - 1 - 2, 'x'));
  WriteEvent("behind");
  EXPECT_EQ(IndexBytes(), "\x01\0\0\0\x03\x02\x01\0"s);
  EXPECT_EQ(EventLine(2), "behind");
  EXPECT_EQ(EventLine(1).size(), 65536u);
}

TEST_F(EventsLogTest, LatestRollLineFollowsRollsOnlyWhenTheyAreKeptOnTop) {
  WriteEvent(" Roll #1");
  EXPECT_EQ(EventsLog.LatestRollLine, 0);
  EventsLog.KeepLatestRollOnTop = -1;
  for (const auto* line : {"    Roll", "Rol", "----New hand, come-out roll", " roll #2", ""})
    WriteEvent(line);
  EXPECT_EQ(EventsLog.LatestRollLine, 2);
}

TEST_F(EventsLogTest, SectionHeadingsStandOnceUntilTheyEnd) {
  for (const auto* heading : {"A:", "A:", "B:", "A:"})
    WriteSection(heading);
  EndSections();
  WriteSection("A:");
  EXPECT_EQ(Lines(), (Strings{"A:", "B:", "A:", "A:"}));
}

TEST_F(EventsLogTest, SelectingAllSetsAndClearsTheEightKinds) {
  using State = EventsLogState;
  constexpr int32_t State::*Kinds[] = {
      &State::LogRolls, &State::LogBets,   &State::LogCheckStacks, &State::LogShooters,
      &State::LogWins,  &State::LogLosses, &State::LogDecisions,   &State::LogBankroll};
  for (const bool on : {false, true}) {
    SelectAllEvents(on);
    for (const auto kind : Kinds)
      EXPECT_EQ(Logs(kind), on);
  }
  EventsLog.LogOn = 0;
  for (const auto kind : Kinds)
    EXPECT_FALSE(Logs(kind));
}

TEST_F(EventsLogTest, ALostIndexStartsAtOneAndARebuildCoversTheWholeLog) {
  for (const auto* line : {"first", " Roll #1", "third"})
    WriteEvent(line);
  const std::string index = IndexBytes();
  std::filesystem::remove(EventsIndexName());
  WriteEvent("fourth");
  EXPECT_EQ(Lines(), Strings{"fourth"});

  RebuildEventsIndex();
  EXPECT_EQ(IndexBytes(), index + "\x19\0\0\0"s);
  EXPECT_EQ(EventsLog.LatestRollLine, 2);
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder_), {}), 2);
}

TEST_F(EventsLogTest, RebuildReadsWhatOthersWrote) {
  // The long line puts the start of a roll, and its word, on the border of the blocks read.
  for (const size_t before : {65533u, 65534u, 65535u, 65536u, 65537u}) {
    const std::string first(before - 1, 'R');
    Put(DefaultEventLogName(), first + "\n  Roll #1\n\r\nno end\0 here"s);
    RebuildEventsIndex();
    EXPECT_EQ(Lines(), (Strings{first, "  Roll #1", "", "no end\0 here"s})) << before;
    EXPECT_EQ(EventsLog.LatestRollLine, 2) << before;
  }
  Put(DefaultEventLogName(), "");
  RebuildEventsIndex();
  EXPECT_EQ(EventLineCount(), 0);
  EXPECT_EQ(EventsLog.LatestRollLine, 0);
}

TEST_F(EventsLogTest, AForeignIndexShowsNothingThatIsNotThere) {
  Put(DefaultEventLogName(), "abc\r\nlast");
  // Positions 0, -1, behind the end, in the middle of a line, 32-bit ends, and half a record.
  Put(EventsIndexName(),
      "\0\0\0\0\xff\xff\xff\xff\x0b\0\0\0\x08\0\0\0\0\0\0\x80\xff\xff\xff\x7f\1\0"s);
  EXPECT_EQ(Lines(), (Strings{"", "", "", "st", "", ""}));
  for (const int32_t number : {INT32_MIN, -1, 0, 7, INT32_MAX})
    EXPECT_EQ(EventLine(number), "") << number;

  WriteEvent("next");
  EXPECT_EQ(IndexBytes().size(), 28u);
  EXPECT_EQ(IndexBytes().substr(24), "\x0a\0\0\0"s);
  EXPECT_EQ(EventLine(7), "next");
}

TEST_F(EventsLogTest, WithoutFilesThereAreNoLines) {
  EXPECT_EQ(EventLineCount(), 0);
  EXPECT_EQ(EventLine(1), "");
  EXPECT_EQ(FaultOf(RebuildEventsIndex), static_cast<int>(FaultNumber::FileNotFound));
}

TEST_F(EventsLogTest, ClearingTakesAwayTheLogOfAnyNameAndItsIndex) {
  EventsLog.EventLogName = Folders.AppFolder + "Friday.txt";
  EventsLog.KeepLatestRollOnTop = -1;
  WriteSection("Roll");
  EXPECT_TRUE(EventsLogExists());
  for (int time = 1; time <= 2; ++time)
    ClearEventsLog();
  EXPECT_TRUE(std::filesystem::is_empty(folder_));
  EXPECT_FALSE(EventsLogExists());
  EXPECT_EQ(EventsLog.LatestRollLine, 0);
  WriteSection("Roll");
  EXPECT_EQ(Lines(), Strings{"Roll"});
}

TEST_F(EventsLogTest, ALineBehindTheLastPositionIsRefused) {
  WriteOne();
  std::filesystem::resize_file(DefaultEventLogName(), INT32_MAX);
  EXPECT_EQ(FaultOf(WriteOne), static_cast<int>(FaultNumber::Overflow));
  EXPECT_EQ(std::filesystem::file_size(DefaultEventLogName()), uintmax_t{INT32_MAX});
  EXPECT_EQ(EventLineCount(), 1);

  std::filesystem::resize_file(DefaultEventLogName(), INT32_MAX - 1);
  WriteOne();
  EXPECT_EQ(IndexBytes().substr(4), "\xff\xff\xff\x7f"s);
  EXPECT_EQ(EventLine(2), "one");
}

TEST_F(EventsLogTest, FilesThatCannotBeWrittenRaiseTheirFault) {
  std::filesystem::create_directory(folder_ / "Events Log.txt");
  EXPECT_EQ(FaultOf(WriteOne), static_cast<int>(FaultNumber::FileAccess));
  Put(Folders.AppFolder + "Events Log.txt/kept", "");
  EXPECT_EQ(FaultOf(ClearEventsLog), static_cast<int>(FaultNumber::FileAccess));
#ifdef __linux__
  EventsLog.EventLogName = "/dev/full";
  EXPECT_EQ(FaultOf(WriteOne), static_cast<int>(FaultNumber::DeviceFull));
#endif
}

// --- The window's side --------------------------------------------------------------------------

Strings Shown;
int32_t Answer = AnswerYes;
std::string SaveName, Typed;

class EventsLogWindow : public EventsLogTest {
 protected:
  void SetUp() override {
    EventsLogTest::SetUp();
    EventsLogView = {};
    Shown.clear();
    Answer = AnswerYes;
    SaveName.clear();
    FrontEnd.ShowMessage = [] {
      Shown.push_back(Message.MsgTitle + ": " + Message.MsgText);
      Message.MsgResult = Answer;
      Message.MsgInput = Typed;
    };
    FrontEnd.AskSaveFile = [](const std::string& title, const std::string&) {
      Shown.push_back(title);
      return SaveName;
    };
  }
  void TearDown() override {
    EventsLogTest::TearDown();
    EventsLogView = {};
    FrontEnd = {};
    Message = {};
  }
  std::string Path(const std::string& name) const { return Folders.AppFolder + name; }
};

TEST_F(EventsLogWindow, PagesAgreeWithTheLogInAnyOrder) {
  std::string log;
  Strings lines;
  for (size_t n = 0; n < 9000; ++n) {
    lines.push_back(std::string(n * 37 % 211, 'x') + std::to_string(n));
    log += lines.back() + "\r\n";
  }
  Put(DefaultEventLogName(), log);
  RebuildEventsIndex();
  EventsLogReader reader;
  for (int32_t n = 9000; n >= 1; --n)
    ASSERT_EQ(reader.Line(n), lines[static_cast<size_t>(n - 1)]);
  EXPECT_EQ(EventLines(1, 9999), lines);
  EXPECT_EQ(EventLines(9000, INT32_MAX), Strings{lines.back()});
  EXPECT_EQ(EventLines(-3, 5), Strings{lines[0]});
  EXPECT_TRUE(EventLines(9001, 5).empty());
}

TEST_F(EventsLogWindow, AnIndexThatDoesNotFitIsMadeAnewWhenTheWindowOpens) {
  const std::string log = "a\r\n Roll #1\r\nc\r\n";
  const std::string good = "\1\0\0\0\4\0\0\0\x0e\0\0\0"s;
  const std::string_view bad[] = {{},
                                  {"\1\0\0\0\4\0\0\0", 8},
                                  {"\1\0\0\0\x0f\0\0\0", 8},
                                  {"\4\0\0\0\x0e\0\0\0", 8},
                                  {"\1\0\0\0\x0e\0\0\0\x0e", 9},
                                  {"\1\0\0\0\xff\xff\xff\xff", 8}};
  for (const std::string_view index : bad) {
    Put(DefaultEventLogName(), log);
    Put(EventsIndexName(), index);
    EventsLog.KeepLatestRollOnTop = -1;
    LoadEventsLogView();
    EXPECT_EQ(IndexBytes(), good);
    EXPECT_EQ(EventsLogView.TopLine, 2);
  }
  std::filesystem::remove(DefaultEventLogName());
  LoadEventsLogView();
  EXPECT_EQ(EventLineCount(), 0);
  EXPECT_TRUE(Shown.empty());
}

TEST_F(EventsLogWindow, FollowsTheLatestRollWhileItIsKeptOnTop) {
  WriteEvent(" Roll #1");
  WriteEvent("b");
  EXPECT_FALSE(FollowLatestRoll());
  ScrollEventsLog(99);
  EXPECT_EQ(EventsLogView.TopLine, 2);
  KeepLatestRollOnTop(true);
  EXPECT_EQ(EventsLogView.TopLine, 1);
  WriteEvent("  Roll #2");
  EXPECT_TRUE(FollowLatestRoll());
  EXPECT_EQ(EventsLogView.TopLine, 3);
  ScrollEventsLog(-1);
  EXPECT_FALSE(FollowLatestRoll());
  EXPECT_EQ(EventsLogView.TopLine, 1);
}

TEST_F(EventsLogWindow, FindsLineByLineWithoutRegardToCase) {
  for (const auto* line : {"x", "Caf\xc3\xa9 one", "y", "CAF\xc3\x89 two"})
    WriteEvent(line);
  EXPECT_EQ(LogBytes().substr(3, 8), "Caf\xe9 one");
  Typed = "caf\xc3\xa9";
  EXPECT_TRUE(FindNextEvent());  // nothing was looked for yet
  EXPECT_EQ(EventsLogView.TopLine, 2);
  EXPECT_TRUE(FindNextEvent());
  EXPECT_EQ(EventsLogView.TopLine, 4);
  EXPECT_FALSE(FindNextEvent());
  EXPECT_TRUE(FindPreviousEvent());
  EXPECT_FALSE(FindPreviousEvent());
  EXPECT_EQ(EventsLogView.TopLine, 2);
  const std::string miss = "Search Results: Text not found.";
  EXPECT_EQ(Shown, (Strings{"Find: Enter the text you'd like to find.\r\rIf found, the line will "
                            "scroll to the top of the events log.",
                            miss, miss}));
  Answer = AnswerCancel;
  Typed = "y";
  EXPECT_FALSE(FindEvent());
  EXPECT_EQ(EventsLogView.FindText, "caf\xc3\xa9");
}

TEST_F(EventsLogWindow, NewLogLosesNothingTheUserWants) {
  const std::string question =
      "Save Events Log?: This log needs to be re-named if you want to save it.\r\rDo you want to "
      "re-name it now?";
  WriteEvent("one");
  Answer = AnswerCancel;
  EXPECT_FALSE(NewEventsLog());
  Answer = AnswerYes;
  EXPECT_FALSE(NewEventsLog());  // gave up in the dialog
  EXPECT_EQ(LogBytes(), "one\r\n");
  EXPECT_EQ(Shown, (Strings{question, question, "Save events log as"}));
  SaveName = Path("kept.txt");
  EXPECT_TRUE(NewEventsLog());
  EXPECT_EQ(BytesOf(SaveName), "one\r\n");
  EXPECT_TRUE(EventsLogExists());
  EXPECT_EQ(LogBytes() + IndexBytes(), "");
  Shown.clear();
  EXPECT_TRUE(OpenEventsLog("kept.txt"));
  EXPECT_EQ(EventsLogTitle(), "Events Log (kept.txt)");
  EXPECT_TRUE(NewEventsLog());  // the named log stays, and the default one is empty
  EXPECT_TRUE(Shown.empty());
  EXPECT_EQ(BytesOf(SaveName), "one\r\n");
  EXPECT_EQ(EventsLogTitle(), "Events Log");
  WriteEvent("two");
  Answer = AnswerNo;
  EXPECT_TRUE(NewEventsLog());
  EXPECT_EQ(LogBytes(), "");
}

TEST_F(EventsLogWindow, LogGoesOnUnderTheNameItIsSavedAs) {
  WriteEvent("one");
  EXPECT_FALSE(SaveEventsLogAs());
  SaveName = Path("as.txt");
  EXPECT_TRUE(SaveEventsLogAs());
  WriteEvent("two");
  EXPECT_EQ(BytesOf(SaveName), "one\r\ntwo\r\n");
  EXPECT_EQ(LogBytes(), "one\r\n");
  EXPECT_EQ(Lines(), (Strings{"one", "two"}));
  for (const std::string& name : {Path("missing.txt"), Folders.AppFolder, "/dev/zero"s})
    EXPECT_FALSE(OpenEventsLog(name));
  EXPECT_EQ(EventsLog.EventLogName, SaveName);
  EXPECT_TRUE(OpenEventsLog("Events Log.txt"));
  EXPECT_EQ(EventsLog.EventLogName, "");
  EXPECT_EQ(Lines(), Strings{"one"});
}

TEST_F(EventsLogWindow, PrintsTheHeadingAndEveryLine) {
  HoldClock({.year = 2026, .month = 11, .day = 22});
  Strings rows;
  const auto print = [&rows](const std::string& row) {
    rows.push_back(row);
    return rows.size() < 5;
  };
  EXPECT_FALSE(PrintEventsLog("", print));
  EXPECT_EQ(Shown, Strings{"Print Events Log: There are no logged events to print."});
  for (const auto* line : {" New session started", " Roll #1:  7", "more"})
    WriteEvent(line);
  EXPECT_TRUE(PrintEventsLog("/games/x.tsg", print));
  EXPECT_EQ(rows, (Strings{"Tessarel Events Log", "22-Nov-26", "Game file:  x.tsg",
                           " New session started", " Roll #1:  7"}));
  EXPECT_EQ(KindOfEventLine(rows[3]), EventLineKind::SessionLine);
  EXPECT_EQ(KindOfEventLine(rows[4]), EventLineKind::RollLine);
  EXPECT_EQ(KindOfEventLine("    Roll"), EventLineKind::Plain);
  ReleaseClock();
}

}  // namespace
}  // namespace tessarel
