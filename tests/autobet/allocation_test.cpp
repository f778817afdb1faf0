// Scripts that make no texts allocate nothing on the road of a roll. The counting replaces the
// program's allocation, which the address sanitizer does itself.
#include <gtest/gtest.h>

#ifndef TESSAREL_SANITIZE

#include <cstdlib>
#include <new>
#include <string>

#include "autobet/interpreter.h"
#include "autobet/script_files.h"
#include "base/front_end.h"
#include "play/players.h"
#include "play/roll_driver.h"
#include "play/start_up.h"
#include "state/settings.h"
#include "state/table.h"

namespace {

long Allocations = 0;

}  // namespace

// Kept out of line: where only one of a pair is inlined, GCC sees memory that is given back to
// another place than it came from.
[[gnu::noinline]] void* operator new(size_t size) {
  ++Allocations;
  if (void* const memory = std::malloc(size)) return memory;
  throw std::bad_alloc();
}
[[gnu::noinline]] void operator delete(void* memory) noexcept {
  std::free(memory);
}
[[gnu::noinline]] void operator delete(void* memory, size_t) noexcept {
  std::free(memory);
}

namespace tessarel {
namespace {

int RollsLeft = 0;

void RollFor(int rolls) {
  RollsLeft = rolls;
  Table.HyperDriveOn = true;
  MakeRoll();
}

TEST(ScriptsUnderTheHyperDrive, AllocateNothing) {
  StartUp("/tmp/");
  Settings.BetNeededToShoot = 0;
  for (int place = 1; place <= LastPlace; ++place) {
    SeatPlayer(place, "Player " + std::to_string(place), 1'000'000);
    ASSERT_TRUE(ReadScriptFile(place, TESSAREL_SAMPLES "/sample" + std::to_string(place) + ".bet"));
    SetScriptActive(place, true);
  }
  InitializeScripts();
  FrontEnd.RunPendingEvents = [] {
    if (--RollsLeft == 0) Table.HyperDriveOn = false;
  };
  RollFor(2'000);
  const long before = Allocations;
  RollFor(2'000);
  EXPECT_EQ(Allocations - before, 0);
  EXPECT_EQ(RollsLeft, 0);
  FrontEnd = {};
}

}  // namespace
}  // namespace tessarel

#endif
