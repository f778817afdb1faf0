#include "base/clock.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>
#include <utility>

namespace tessarel {
namespace {

class HeldClock : public testing::Test {
 protected:
  void TearDown() override { ReleaseClock(); }
};

LocalTime At(int year, int month, int day, int hour = 0, int minute = 0, int second = 0) {
  return {year, month, day, hour, minute, second, 0, 0};
}

TEST_F(HeldClock, FiguresTheWeekday) {
  const std::pair<LocalTime, int> cases[] = {
      {At(2026, 11, 22), 1}, {At(2026, 11, 28), 7}, {At(2024, 2, 29), 5},
      {At(1970, 1, 1), 5},   {At(1900, 3, 1), 5},
  };
  for (const auto& [time, weekday] : cases) {
    HoldClock(time);
    EXPECT_EQ(Now().weekday, weekday) << DateText(time);
  }
}

TEST_F(HeldClock, StepsFromTheSecondAskingOn) {
  HoldClock(At(2026, 11, 22, 19, 4, 5), 1500);
  EXPECT_EQ(DateTimeText(Now()), "2026-11-22 19:04:05");
  const LocalTime second = Now();
  EXPECT_EQ(TimeText(second), "19:04:06");
  EXPECT_EQ(second.millisecond, 500);
}

TEST_F(HeldClock, AdvancesOverMidnightAndTakesTheTicksAlong) {
  HoldClock(At(2024, 2, 28, 23, 59, 59));
  const int64_t before = TickMilliseconds();
  AdvanceClock(1000);
  EXPECT_EQ(DateTimeText(Now()), "2024-02-29 00:00:00");
  AdvanceClock(86'400'000 - 1);
  EXPECT_EQ(DateTimeText(Now()), "2024-02-29 23:59:59");
  AdvanceClock(1);
  EXPECT_EQ(DateTimeText(Now()), "2024-03-01 00:00:00");
  EXPECT_EQ(Now().weekday, 6);
  EXPECT_EQ(TickMilliseconds() - before, 86'401'000);
}

TEST(Clock, ReadsTheZoneOfTheMachine) {
  const char* const old = std::getenv("TZ");
  const std::string kept = old != nullptr ? old : "";
  setenv("TZ", "TST-05:30", 1);
  tzset();
  const LocalTime time = LocalTimeOf(std::chrono::system_clock::time_point() +
                                     std::chrono::milliseconds(-1 + 1000 * 86400));
  old != nullptr ? setenv("TZ", kept.c_str(), 1) : unsetenv("TZ");
  tzset();
  EXPECT_EQ(DateTimeText(time), "1970-01-02 05:29:59");
  EXPECT_EQ(time.millisecond, 999);
  EXPECT_EQ(time.weekday, 6);
}

TEST(Clock, MediumDateHasTwoDigitsAndTheMonth) {
  EXPECT_EQ(MediumDate(At(2005, 1, 3)), "03-Jan-05");
}

}  // namespace
}  // namespace tessarel
