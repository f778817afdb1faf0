// The clock: local date and time for seeds and logs, and a running count of milliseconds for waits.
// A test can hold it at a moment and advance it by hand.
#pragma once

#include <chrono>
#include <cstdint>
#include <string>

namespace tessarel {

struct LocalTime {
  int32_t year = 1970, month = 1, day = 1;  // month and day from 1
  int32_t hour = 0, minute = 0, second = 0, millisecond = 0;
  int32_t weekday = 5;  // 1 Sunday to 7 Saturday
};

LocalTime Now();

// A moment of the machine in its time zone.
LocalTime LocalTimeOf(std::chrono::system_clock::time_point moment);

// Seconds since local midnight as a 32-bit float, with its fraction.
float SecondsSinceMidnight(const LocalTime& time);

// Milliseconds since some fixed moment; never runs backwards. While the clock is held they are
// those of the held time, so that a run repeats exactly; holding and releasing begin a new count.
int64_t TickMilliseconds();

// Leaves the machine to others for a while, as every wait does between two looks; a held clock
// moves on instead.
void Rest(int64_t milliseconds);

// "2026-11-22 19:04:05", the form of date and time in files.
std::string DateTimeText(const LocalTime& time);
// "2026-11-22" and "19:04:05".
std::string DateText(const LocalTime& time);
std::string TimeText(const LocalTime& time);
// "22-Nov-26", the form of dates in reports.
std::string MediumDate(const LocalTime& time);

// Stops the clock at `time` (its weekday is figured from the date); each later Now() that is asked
// for moves it on by `stepMilliseconds`. The fields must be a true date and time.
void HoldClock(LocalTime time, int64_t stepMilliseconds = 0);
// Moves a held clock on, over midnight where it must; a running clock stays as it is.
void AdvanceClock(int64_t milliseconds);
// Back to the clock of the machine.
void ReleaseClock();

}  // namespace tessarel
