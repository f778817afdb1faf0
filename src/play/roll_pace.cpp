#include "play/roll_pace.h"

#include <algorithm>
#include <chrono>

#include "base/clock.h"
#include "base/front_end.h"
#include "state/settings.h"
#include "state/table.h"

namespace tessarel {

RollPaceState RollPace;

namespace {

constexpr int64_t LookEvery = 1;        // milliseconds
constexpr int64_t MessageCredit = 600;  // milliseconds

void CountTo(int64_t steps) {
  for (volatile int64_t step = 0; step < steps;)
    step = step + 1;
}

}  // namespace

void MeasureLoopRate() {
  // The machine's own time, which goes on while the program's clock is held.
  using std::chrono::steady_clock;
  constexpr int64_t StepsBetweenLooks = 10'000;
  const auto end = steady_clock::now() + std::chrono::milliseconds(100);
  int64_t steps = 0;
  while (steady_clock::now() < end) {
    CountTo(StepsBetweenLooks);
    steps += StepsBetweenLooks;
  }
  RollPace.LoopRate = std::max<int64_t>(1, steps / (MaxThrottle * MaxThrottle));
}

void ThrottleRoll() {
  if (RollPace.LoopRate == 0) MeasureLoopRate();
  const int64_t position = std::min(Settings.Throttle, MaxThrottle);
  CountTo(position * position * RollPace.LoopRate);
}

void WaitForNextRoll() {
  const int64_t delay = (Settings.RollDelay * 1000).Floor();
  RollPace.RollStamp = TickMilliseconds();
  FrontEnd.RunPendingEvents();
  while (Table.AutoRollOn && TickMilliseconds() - RollPace.RollStamp < delay) {
    Rest(LookEvery);
    FrontEnd.RunPendingEvents();
  }
}

void CreditMessageTime() {
  RollPace.RollStamp = std::min(RollPace.RollStamp, TickMilliseconds() - MessageCredit);
}

}  // namespace tessarel
