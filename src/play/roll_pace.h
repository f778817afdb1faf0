// The pace of unattended rolling: the delay between two rolls of Auto-Roll, and the throttle that
// slows the Hyper-Drive down. The roll driver calls these; a front end credits its messages.
#pragma once

#include <cstdint>

namespace tessarel {

// The slowest position of the throttle.
inline constexpr int32_t MaxThrottle = 100;

struct RollPaceState {
  int64_t LogStamp = 0;  // when the events log was last written out in a run
  // Steps of the empty loop at throttle position 1; 0: not measured yet.
  int64_t LoopRate = 0;
  // When the last roll ended, in TickMilliseconds: the next one waits from then on.
  int64_t RollStamp = 0;
};

extern RollPaceState RollPace;

// Counts for 100 milliseconds and sets LoopRate so that position MaxThrottle takes as long.
void MeasureLoopRate();

// Loses time by the square of Settings.Throttle, which is above 0 and counts up to MaxThrottle.
// The first call measures LoopRate.
void ThrottleRoll();

// Waits Settings.RollDelay seconds, running pending events at least once; ends when Auto-Roll does.
void WaitForNextRoll();

// After a message was answered: the time it took is no delay of the next roll, and 0.6 seconds of
// the delay count as passed.
void CreditMessageTime();

}  // namespace tessarel
