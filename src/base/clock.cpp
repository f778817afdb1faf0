#include "base/clock.h"

#include <array>
#include <cstdio>
#include <ctime>
#include <thread>

namespace tessarel {

namespace {

using std::chrono::days;
using std::chrono::floor;
using std::chrono::hh_mm_ss;
using std::chrono::local_days;
using std::chrono::local_time;
using std::chrono::milliseconds;
using HeldMoment = local_time<milliseconds>;

struct ClockState {
  bool Held = false;
  HeldMoment Moment{};
  milliseconds Step{0};
};

ClockState Clock;

constexpr std::array<const char*, 12> MonthNames = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                                    "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};

HeldMoment MomentOf(const LocalTime& time) {
  const auto date = std::chrono::year(time.year) /
                    std::chrono::month(static_cast<unsigned>(time.month)) /
                    std::chrono::day(static_cast<unsigned>(time.day));
  return local_days(date) + std::chrono::hours(time.hour) + std::chrono::minutes(time.minute) +
         std::chrono::seconds(time.second) + milliseconds(time.millisecond);
}

LocalTime FieldsOf(HeldMoment moment) {
  const local_days day = floor<days>(moment);
  const std::chrono::year_month_day date(day);
  const hh_mm_ss<milliseconds> timeOfDay(moment - day);
  LocalTime time;
  time.year = static_cast<int>(date.year());
  time.month = static_cast<int32_t>(static_cast<unsigned>(date.month()));
  time.day = static_cast<int32_t>(static_cast<unsigned>(date.day()));
  time.hour = static_cast<int32_t>(timeOfDay.hours().count());
  time.minute = static_cast<int32_t>(timeOfDay.minutes().count());
  time.second = static_cast<int32_t>(timeOfDay.seconds().count());
  time.millisecond = static_cast<int32_t>(timeOfDay.subseconds().count());
  time.weekday = static_cast<int32_t>(std::chrono::weekday(day).c_encoding()) + 1;
  return time;
}

template <class... Values>
std::string Printed(const char* form, Values... values) {
  std::array<char, 64> text{};
  std::snprintf(text.data(), text.size(), form, values...);
  return text.data();
}

}  // namespace

LocalTime LocalTimeOf(std::chrono::system_clock::time_point moment) {
  const auto wholeSecond = floor<std::chrono::seconds>(moment);
  const std::time_t seconds = std::chrono::system_clock::to_time_t(wholeSecond);
  std::tm fields{};
  localtime_r(&seconds, &fields);
  LocalTime time;
  time.year = fields.tm_year + 1900;
  time.month = fields.tm_mon + 1;
  time.day = fields.tm_mday;
  time.hour = fields.tm_hour;
  time.minute = fields.tm_min;
  time.second = fields.tm_sec;
  time.millisecond = static_cast<int32_t>(floor<milliseconds>(moment - wholeSecond).count());
  time.weekday = fields.tm_wday + 1;
  return time;
}

LocalTime Now() {
  if (!Clock.Held) return LocalTimeOf(std::chrono::system_clock::now());
  const LocalTime time = FieldsOf(Clock.Moment);
  Clock.Moment += Clock.Step;
  return time;
}

float SecondsSinceMidnight(const LocalTime& time) {
  const int32_t seconds = time.hour * 3600 + time.minute * 60 + time.second;
  return static_cast<float>(seconds + time.millisecond / 1000.0);
}

int64_t TickMilliseconds() {
  if (Clock.Held) return Clock.Moment.time_since_epoch().count();
  const auto running = std::chrono::steady_clock::now().time_since_epoch();
  return floor<milliseconds>(running).count();
}

void Rest(int64_t count) {
  if (Clock.Held) {
    AdvanceClock(count);
  } else {
    std::this_thread::sleep_for(milliseconds(count));
  }
}

std::string DateTimeText(const LocalTime& time) {
  return DateText(time) + " " + TimeText(time);
}

std::string DateText(const LocalTime& time) {
  return Printed("%04d-%02d-%02d", time.year, time.month, time.day);
}

std::string TimeText(const LocalTime& time) {
  return Printed("%02d:%02d:%02d", time.hour, time.minute, time.second);
}

std::string MediumDate(const LocalTime& time) {
  const char* month = MonthNames[static_cast<size_t>(time.month - 1)];
  return Printed("%02d-%s-%02d", time.day, month, time.year % 100);
}

void HoldClock(LocalTime time, int64_t stepMilliseconds) {
  Clock = {true, MomentOf(time), milliseconds(stepMilliseconds)};
}

void AdvanceClock(int64_t count) {
  Clock.Moment += milliseconds(count);
}

void ReleaseClock() {
  Clock = {};
}

}  // namespace tessarel
