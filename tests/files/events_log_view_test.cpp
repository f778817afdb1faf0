#include "files/events_log_view.h"

#include "log/events_log_fixture.h"

namespace tessarel {
namespace {

using namespace std::string_literals;
using EventsLogWindow = EventsLogTest;

TEST_F(EventsLogWindow, PagesAgreeWithTheLogInAnyOrder) {
  std::string log;
  Strings lines;
  for (size_t n = 0; n < 9000; ++n) {
    lines.push_back(std::string(n * 37 % 211, 'x') + std::to_string(n));
    log += lines.back() + "\r\n";
  }
  Write(DefaultEventLogName(), log);
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
  for (const auto& index : {""s, "\1\0\0\0\4\0\0\0"s, "\1\0\0\0\x0f\0\0\0"s, "\4\0\0\0\x0e\0\0\0"s,
                            "\1\0\0\0\x0e\0\0\0\x0e"s, "\1\0\0\0\xff\xff\xff\xff"s}) {
    Write(DefaultEventLogName(), "a\r\n Roll #1\r\nc\r\n");
    Write(EventsIndexName(), index);
    EventsLog.KeepLatestRollOnTop = true;
    LoadEventsLogView();
    EXPECT_EQ(IndexBytes(), "\1\0\0\0\4\0\0\0\x0e\0\0\0"s);
    EXPECT_EQ(EventsLogView.TopLine, 2);
  }
  std::filesystem::remove(DefaultEventLogName());
  LoadEventsLogView();
  EXPECT_EQ(EventLineCount(), 0);
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
}

TEST_F(EventsLogWindow, FindsLineByLineWithoutRegardToCase) {
  for (const auto* line : {"x", "Caf\xc3\xa9 one", "y", "CAF\xc3\x89 two"})
    WriteEvent(line);
  EXPECT_EQ(LogBytes().substr(3, 8), "Caf\xe9 one");
  Answers = {"caf\xc3\xa9"};
  EXPECT_TRUE(FindNextEvent());  // nothing was looked for yet
  EXPECT_EQ(EventsLogView.TopLine, 2);
  EXPECT_TRUE(FindNextEvent());
  EXPECT_EQ(EventsLogView.TopLine, 4);
  EXPECT_FALSE(FindNextEvent());
  EXPECT_TRUE(FindPreviousEvent());
  EXPECT_FALSE(FindPreviousEvent());
  EXPECT_EQ(EventsLogView.TopLine, 2);
  const std::string miss = "Search Results: Text not found.";
  EXPECT_EQ(Said(), (Strings{"Find: Enter the text you'd like to find.\r\rIf found, the line will "
                             "scroll to the top of the events log.",
                             miss, miss}));
  Always = AnswerCancel;
  EXPECT_FALSE(FindEvent());
  EXPECT_EQ(EventsLogView.FindText, "caf\xc3\xa9");
}

TEST_F(EventsLogWindow, NewLogLosesNothingTheUserWants) {
  const std::string question =
      "Save Events Log?: This log needs to be re-named if you want to save it.\r\rDo you want to "
      "re-name it now?";
  WriteEvent("one");
  Answers = {AnswerCancel};
  Always = AnswerYes;
  EXPECT_FALSE(NewEventsLog() || NewEventsLog());  // gave up, then in the dialog
  EXPECT_EQ(LogBytes(), "one\r\n");
  ASSERT_EQ(Shown.size(), 3u);
  EXPECT_EQ(Shown[2].Title, "Save events log as");
  EXPECT_EQ(Said()[1], question);
  SaveName = Path("kept.txt");
  EXPECT_TRUE(NewEventsLog());
  EXPECT_EQ(Read(SaveName), "one\r\n");
  EXPECT_TRUE(EventsLogExists());
  EXPECT_EQ(LogBytes() + IndexBytes(), "");
  Shown.clear();
  EXPECT_TRUE(OpenEventsLog("kept.txt"));
  EXPECT_EQ(EventsLogTitle(), "Events Log (kept.txt)");
  EXPECT_TRUE(NewEventsLog());  // the named log stays, and the default one is empty
  EXPECT_TRUE(Shown.empty());
  EXPECT_EQ(Read(SaveName), "one\r\n");
  EXPECT_EQ(EventsLogTitle(), "Events Log");
  WriteEvent("two");
  Always = AnswerNo;
  EXPECT_TRUE(NewEventsLog());
  EXPECT_EQ(LogBytes(), "");
}

TEST_F(EventsLogWindow, LogGoesOnUnderTheNameItIsSavedAs) {
  WriteEvent("one");
  EXPECT_FALSE(SaveEventsLogAs());
  SaveName = Path("as.txt");
  EXPECT_TRUE(SaveEventsLogAs());
  WriteEvent("two");
  EXPECT_EQ(Read(SaveName), "one\r\ntwo\r\n");
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
  EXPECT_EQ(Said(), Strings{"Print Events Log: There are no logged events to print."});
  for (const auto* line : {" New session started", " Roll #1:  7", "more"})
    WriteEvent(line);
  EXPECT_TRUE(PrintEventsLog("/games/x.tsg", print));
  EXPECT_EQ(rows, (Strings{"Tessarel Events Log", "22-Nov-26", "Game file:  x.tsg",
                           " New session started", " Roll #1:  7"}));
  EXPECT_EQ(KindOfEventLine(rows[3]), EventLineKind::SessionLine);
  EXPECT_EQ(KindOfEventLine(rows[4]), EventLineKind::RollLine);
  EXPECT_EQ(KindOfEventLine("    Roll"), EventLineKind::Plain);
}

}  // namespace
}  // namespace tessarel
