// Game files as anybody may make them: whatever the bytes are, they are refused or opened as a game
// whose table and books hold together, and on which rolls can be made and which can be saved again.
// The input is laid over a game that the program has saved: eight bytes of it say where a stretch
// of the rest goes.

#include <algorithm>
#include <cstdint>
#include <string>

#include "base/file_io.h"
#include "base/record_file.h"
#include "dice/generators.h"
#include "dice/popup_roll.h"
#include "engine/bets.h"
#include "files/game_file.h"
#include "fuzz_helpers.h"
#include "play/leaving.h"
#include "play/players.h"
#include "play/roll_driver.h"
#include "play/start_up.h"
#include "state/books_check.h"
#include "state/settings.h"
#include "state/table.h"

namespace tessarel {
namespace {

constexpr int Rolls = 4;
constexpr const char* Name = "fuzz.tsg";

struct FuzzState {
  std::string savedGame;
};

FuzzState Fuzz;

std::string MakeGame() {
  StartUp(FuzzFolder());
  Dice.SeedRequest = 1;
  SeedRNG(-1);
  for (const int place : {1, 6})
    SeatPlayer(place, "Player " + std::to_string(place), 1000);
  for (int roll = 0; roll < 40; ++roll) {
    for (const int place : {1, 6}) {
      Table.Amount = 10;
      ChangeBet(place, 1 + (roll * 7 + place) % LastBet);
      ChangeBet(place, bet::PassLine);
    }
    MakeRoll();
  }
  SaveGame(Name);
  return ReadWholeFile(FuzzFolder() + Name, 1 << 22);
}

// Stretches of the input over the saved game; a first byte of 0 takes the input as a whole file.
std::string GameOf(std::string game, const uint8_t* data, size_t size) {
  if (size > 0 && data[0] == 0) return std::string(InputOf(data + 1, size - 1));
  for (size_t at = 1; at + 4 < size;) {
    const size_t where = (data[at] | data[at + 1] << 8 | data[at + 2] << 16) % game.size() / 4 * 4;
    const size_t length = std::min<size_t>({data[at + 3], size - at - 4, game.size() - where});
    std::copy_n(data + at + 4, length, game.begin() + static_cast<std::ptrdiff_t>(where));
    at += 4 + std::max<size_t>(length, 1);
  }
  return game;
}

void Play(const uint8_t* data, size_t size) {
  StartUp(FuzzFolder());
  WriteBytes(FuzzFolder() + Name, GameOf(Fuzz.savedGame, data, size));
  OpenGame(Name);
  RequireNone(CheckTable());
  RequireNone(CheckBooks());
  ClosePopupRoll();  // which would be waited for
  Settings.BetNeededToShoot = 0;
  Settings.Throttle = 0;
  for (int roll = 0; roll < Rolls; ++roll)
    MakeRoll();
  RequireNone(CheckTable());
  ShutDown();
}

}  // namespace
}  // namespace tessarel

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  tessarel::Fuzz.savedGame = tessarel::MakeGame();
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  tessarel::Play(data, size);
  return 0;
}
