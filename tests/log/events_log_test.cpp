#include "log/events_log.h"

#include "log/events_log_fixture.h"

namespace tessarel {
namespace {

using namespace std::string_literals;
constexpr auto WriteOne = [] { WriteEvent("one"); };
const int Overflow = NumberOf(FaultNumber::Overflow),
          FileAccess = NumberOf(FaultNumber::FileAccess);

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
  WriteEvent("after it");
  EXPECT_EQ(IndexBytes(), "\x01\0\0\0\x03\x02\x01\0"s);
  EXPECT_EQ(EventLine(2), "after it");
  EXPECT_EQ(EventLine(1).size(), 65536u);
}

TEST_F(EventsLogTest, LatestRollLineFollowsRollsOnlyWhenTheyAreKeptOnTop) {
  WriteEvent(" Roll #1");
  EXPECT_EQ(EventsLog.LatestRollLine, 0);
  EventsLog.KeepLatestRollOnTop = true;
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
  EXPECT_EQ(folder_.EntryCount(), 2);
}

TEST_F(EventsLogTest, RebuildReadsWhatOthersWrote) {
  // The long line puts the start of a roll, and its word, on the border of the blocks read.
  for (const size_t before : {65533u, 65534u, 65535u, 65536u, 65537u}) {
    const std::string first(before - 1, 'R');
    Write(DefaultEventLogName(), first + "\n  Roll #1\n\r\nno end\0 here"s);
    RebuildEventsIndex();
    EXPECT_EQ(Lines(), (Strings{first, "  Roll #1", "", "no end\0 here"s})) << before;
    EXPECT_EQ(EventsLog.LatestRollLine, 2) << before;
  }
  Write(DefaultEventLogName(), "");
  RebuildEventsIndex();
  EXPECT_EQ(EventLineCount(), 0);
  EXPECT_EQ(EventsLog.LatestRollLine, 0);
}

TEST_F(EventsLogTest, AForeignIndexShowsNothingThatIsNotThere) {
  Write(DefaultEventLogName(), "abc\r\nlast");
  // Positions 0, -1, after the end, in the middle of a line, 32-bit ends, and half a record.
  Write(EventsIndexName(),
        "\0\0\0\0\xff\xff\xff\xff\x0b\0\0\0\x08\0\0\0\0\0\0\x80\xff\xff\xff\x7f\1\0"s);
  EXPECT_EQ(Lines(), (Strings{"", "", "", "st", "", ""}));
  for (const int32_t number : {INT32_MIN, -1, 0, 7, INT32_MAX})
    EXPECT_EQ(EventLine(number), "") << number;

  WriteEvent("next");
  EXPECT_EQ(IndexBytes().size(), 28u);
  EXPECT_EQ(IndexBytes().substr(24), "\x0a\0\0\0"s);
  EXPECT_EQ(EventLine(7), "next");
}

TEST_F(EventsLogTest, ClearingTakesAwayTheLogOfAnyNameAndItsIndex) {
  EventsLog.EventLogName = Path("Friday.txt");
  EventsLog.KeepLatestRollOnTop = true;
  WriteSection("Roll");
  EXPECT_TRUE(EventsLogExists());
  for (int time = 1; time <= 2; ++time)
    ClearEventsLog();
  EXPECT_EQ(folder_.EntryCount(), 0);
  EXPECT_FALSE(EventsLogExists());
  EXPECT_EQ(EventsLog.LatestRollLine, 0);
  EXPECT_EQ(EventLine(1), "");
  EXPECT_EQ(FaultOf(RebuildEventsIndex), NumberOf(FaultNumber::FileNotFound));
  WriteSection("Roll");
  EXPECT_EQ(Lines(), Strings{"Roll"});
}

TEST_F(EventsLogTest, ALineAfterTheLastPositionIsRefused) {
  WriteOne();
  std::filesystem::resize_file(DefaultEventLogName(), INT32_MAX);
  EXPECT_EQ(FaultOf(WriteOne), Overflow);
  EXPECT_EQ(std::filesystem::file_size(DefaultEventLogName()), uintmax_t{INT32_MAX});
  EXPECT_EQ(EventLineCount(), 1);

  std::filesystem::resize_file(DefaultEventLogName(), INT32_MAX - 1);
  WriteOne();
  EXPECT_EQ(IndexBytes().substr(4), "\xff\xff\xff\x7f"s);
  EXPECT_EQ(EventLine(2), "one");
}

TEST_F(EventsLogTest, FilesThatCannotBeWrittenRaiseTheirFault) {
  std::filesystem::create_directory(Path("Events Log.txt"));
  EXPECT_EQ(FaultOf(WriteOne), FileAccess);
  Write("Events Log.txt/kept", "");
  EXPECT_EQ(FaultOf(ClearEventsLog), FileAccess);
  EventsLog.EventLogName = "/dev/full";
  EXPECT_EQ(FaultOf(WriteOne), NumberOf(FaultNumber::DeviceFull));
}

}  // namespace
}  // namespace tessarel
