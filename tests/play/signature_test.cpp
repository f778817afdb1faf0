#include <cstdint>

#include "engine/bets.h"
#include "engine/unattended.h"
#include "play/roll_fixture.h"
#include "state/books_check.h"

namespace tessarel {
namespace {

struct Wish {
  int place, number, amount;
};

// clang-format off
constexpr Wish Wishes[] = {
    {1, bet::PassLine, 10}, {1, bet::PassLineOdds, 20}, {1, bet::Come, 5}, {1, bet::Place8, 12},
    {1, bet::Hard8, 2},
    {3, bet::DontPass, 10}, {3, bet::DontCome, 5}, {3, bet::Lay4, 40}, {3, bet::Lay9, 30},
    {3, bet::Under7, 3},
    {6, bet::Buy4, 25}, {6, bet::Buy10, 25}, {6, bet::Place5, 10}, {6, bet::Place6, 12},
    {6, bet::Field, 5}, {6, bet::Big6, 5}, {6, bet::Horn, 4}, {6, bet::AllSmall, 2},
    {6, bet::MakeAll, 1}, {6, bet::Fire, 5},
    {8, bet::World, 5}, {8, bet::CAndE, 2}, {8, bet::Seven, 1}, {8, bet::Hop25, 1},
    {8, bet::Hop33, 1}, {8, bet::Midway, 5}, {8, bet::AllTall, 2}, {8, bet::FourRollsNo7, 3},
    {8, bet::Point7, 2}, {8, bet::SevenPoint7, 2}, {8, bet::SharpShooter, 2},
    {8, bet::RideTheLine, 2},
};
// clang-format on

// Brings every bet to its amount as far as the rules allow.
void MakeBets() {
  for (const Wish& wish : Wishes) {
    const Money change = Money(wish.amount) - Bet(wish.place, wish.number);
    if (change > Money()) PlaceBet({wish.place, wish.number, change});
  }
}

uint64_t Mix(uint64_t hash, int64_t value) {
  constexpr uint64_t Prime = 1099511628211u;  // of the 64-bit FNV-1a hash
  for (int shift = 0; shift < 64; shift += 8)
    hash = (hash ^ (static_cast<uint64_t>(value) >> shift & 255)) * Prime;
  return hash;
}

uint64_t Signature() {
  uint64_t hash = 14695981039346656037u;
  for (const Money bankroll : Table.Bankroll)
    hash = Mix(hash, bankroll.Raw());
  for (const auto& counts : Stats.RollCount) {
    for (const int32_t count : counts)
      hash = Mix(hash, count);
  }
  return hash;
}

using SignatureTest = RollTest;

// These numbers stand for the whole engine: dice, bet rules, settlement, statistics. A change that
// moves one of them has to say why every bankroll before it was wrong.
TEST_F(SignatureTest, MillionRollsOfAMixedTable) {
  for (const int place : {1, 3, 6, 8}) {
    Seat(place);
    Table.AllowNegBankroll[place] = true;
    for (int number = 1; number <= LastBet; ++number) {
      const bool works = InFamily(number, ComeOddsFamily) || OriginalHouseWorking(number) != 0;
      Table.BetWorkingDefault[place][number] = works ? IsWorking : NotWorking;
      ResetBetWorking(place, number);
    }
  }
  Table.AutoTakeFullOdds[1] = Table.AutoLayFullOdds[3] = true;
  Dice.CurrentRNG = 1;
  Dice.SeedRequest = 20240229;
  ASSERT_TRUE(SeedRNG(-1));
  FrontEnd.RunPendingEvents = MakeBets;
  const struct {
    int rolls;
    uint64_t signature;
  } stations[] = {{5'000, 10839117562143441705u}, {1'000'000, 2477057840999714519u}};
  MakeBets();
  for (const auto& station : stations) {
    Settings.AutoStopRolls = station.rolls;
    Table.HyperDriveOn = true;
    MakeRoll();
    EXPECT_EQ(StopText(Table.LastStop), "Stopped by Auto-Stop.");
    EXPECT_EQ(RollsInSession(), station.rolls);
    EXPECT_EQ(Signature(), station.signature);
    EXPECT_EQ(CheckBooks(), "");
#ifdef TESSAREL_CHECK_TABLE
    break;  // the check of the whole table after each roll takes its time
#endif
  }
}

}  // namespace
}  // namespace tessarel
