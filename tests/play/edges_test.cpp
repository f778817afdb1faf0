// The house edge of simple bets as the table really plays them, against the exact one.

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "base/front_end.h"
#include "dice/generators.h"
#include "engine/bets.h"
#include "engine/unattended.h"
#include "play/new_session.h"
#include "play/players.h"
#include "play/roll_driver.h"
#include "play/start_up.h"
#include "state/books.h"
#include "state/settings.h"
#include "state/table.h"

namespace tessarel {
namespace {

// A way in which a bet ends: how likely, in any unit, and the net win in stakes.
struct Ending {
  double weight = 0, net = 0;
};

struct EdgeCase {
  int place;
  int bet;
  int amount;  // pays in whole checks
  double edge;
  std::array<Ending, 4> endings;
};

// The chances of all small (or tall) numbers and of all ten before a 7, and of four, five and six
// points made in a hand; exact sums over the orders in which they can come.
constexpr double SmallChance = 20049.0 / 760760.0;
constexpr double AllChance = 126538525259.0 / 24067258815600.0;
constexpr double Fire4 = 0.00879817844040312, Fire5 = 0.0016399331389532524,
                 Fire6 = 0.00016243474926982637;

// Spread over the places so that no bankroll comes near its limit.
// clang-format off
const EdgeCase EdgeCases[] = {
    {1, bet::PassLine, 10, 7.0 / 495, {{{244, 1}, {251, -1}}}},
    {2, bet::DontPass, 10, 3.0 / 220, {{{949, 1}, {976, -1}, {55, 0}}}},
    {1, bet::Place4, 5, 1.0 / 15, {{{3, 1.8}, {6, -1}}}},
    {1, bet::Place5, 5, 1.0 / 25, {{{4, 1.4}, {6, -1}}}},
    {1, bet::Place6, 6, 1.0 / 66, {{{5, 7.0 / 6}, {6, -1}}}},
    {2, bet::Place8, 6, 1.0 / 66, {{{5, 7.0 / 6}, {6, -1}}}},
    {2, bet::Place9, 5, 1.0 / 25, {{{4, 1.4}, {6, -1}}}},
    {2, bet::Place10, 5, 1.0 / 15, {{{3, 1.8}, {6, -1}}}},
    {3, bet::Field, 1, 1.0 / 18, {{{14, 1}, {2, 2}, {20, -1}}}},
    {3, bet::Hard4, 1, 1.0 / 9, {{{1, 7}, {8, -1}}}},
    {3, bet::Hard6, 1, 1.0 / 11, {{{1, 9}, {10, -1}}}},
    {3, bet::Hard8, 1, 1.0 / 11, {{{1, 9}, {10, -1}}}},
    {3, bet::Hard10, 1, 1.0 / 9, {{{1, 7}, {8, -1}}}},
    {4, bet::Seven, 1, 1.0 / 6, {{{6, 4}, {30, -1}}}},
    {4, bet::Craps, 1, 1.0 / 9, {{{4, 7}, {32, -1}}}},
    {5, bet::Two, 1, 5.0 / 36, {{{1, 30}, {35, -1}}}},
    {5, bet::Twelve, 1, 5.0 / 36, {{{1, 30}, {35, -1}}}},
    {6, bet::Three, 1, 1.0 / 9, {{{2, 15}, {34, -1}}}},
    {6, bet::Eleven, 1, 1.0 / 9, {{{2, 15}, {34, -1}}}},
    {6, bet::CAndE, 2, 1.0 / 9, {{{4, 3}, {2, 7}, {30, -1}}}},
    {7, bet::Horn, 4, 1.0 / 8, {{{2, 6.75}, {4, 3}, {30, -1}}}},
    {8, bet::World, 5, 2.0 / 15, {{{2, 5.2}, {4, 2.2}, {6, 0}, {24, -1}}}},
    {4, bet::AllSmall, 5, 0.0776132, {{{SmallChance, 34}, {1 - SmallChance, -1}}}},
    {5, bet::AllTall, 5, 0.0776132, {{{SmallChance, 34}, {1 - SmallChance, -1}}}},
    {6, bet::MakeAll, 5, 0.0746441, {{{AllChance, 175}, {1 - AllChance, -1}}}},
    {7, bet::Fire, 1, 0.2076275,
     {{{Fire4, 24}, {Fire5, 249}, {Fire6, 999}, {1 - Fire4 - Fire5 - Fire6, -1}}}},
};
// clang-format on

// Of one stake: the net of a decision, pushes among them, and of a decision that moved money with
// its standard deviation.
struct Expectation {
  double edge = 0, net = 0, deviation = 0;
};

Expectation Expected(const EdgeCase& row) {
  double all = 0, moved = 0, sum = 0, squares = 0;
  for (const Ending& ending : row.endings) {
    all += ending.weight;
    if (ending.net != 0) moved += ending.weight;
    sum += ending.weight * ending.net;
    squares += ending.weight * ending.net * ending.net;
  }
  const double net = sum / moved;
  return {-sum / all, net, std::sqrt(squares / moved - net * net)};
}

int32_t RollsAsked() {
  const char* text = std::getenv("TESSAREL_EDGE_ROLLS");
  const int32_t asked = text != nullptr ? std::atoi(text) : 0;
  return asked > 0 ? asked : 1'000'000;
}

void BringBetsToTheirAmounts() {
  for (const EdgeCase& row : EdgeCases) {
    const Money change = Money(row.amount) - Bet(row.place, row.bet);
    if (change != Money()) PlaceBet({row.place, row.bet, change}, Telling::Silent);
  }
}

class HouseEdges : public ::testing::Test {
 protected:
  void SetUp() override {
    FrontEnd = {};
    StartUp(".");
    Settings.BetNeededToShoot = 0;
    Settings.MaxPropBetPayoff = 100'000;
    for (int place = 1; place <= LastPlace; ++place) {
      SeatPlayer(place, "Player " + std::string(1, static_cast<char>('A' + place)), 9'000'000);
      Table.AllowNegBankroll[place] = true;
    }
    NewSession({});
    SelectRNG(1);
    Dice.SeedRequest = 20'261'122;
    SeedRNG(-1);
  }
  void TearDown() override {
    FrontEnd = {};
    StartUp(".");
  }
};

TEST_F(HouseEdges, OfALongRunAreTheExactOnes) {
  Settings.AutoStopRolls = RollsAsked();
  Table.HyperDriveOn = true;
  FrontEnd.RunPendingEvents = BringBetsToTheirAmounts;
  BringBetsToTheirAmounts();
  MakeRoll();
  ASSERT_EQ(RollsInSession(), RollsAsked()) << StopText(Table.LastStop);

  for (const EdgeCase& row : EdgeCases) {
    const BetRecord& record = Stats.Bets[row.place + CurrentSession][row.bet];
    const std::string name(BetName[row.bet]);
    const Expectation exact = Expected(row);
    EXPECT_NEAR(exact.edge, row.edge, 1e-7) << name;

    // The books hold no pushes.
    const auto decisions = static_cast<double>(record.Tendered.Count);
    const double net = (record.Won.Sum - record.Lost.Sum).ToDouble() / row.amount / decisions;
    const double error = exact.deviation / std::sqrt(decisions);
    EXPECT_NEAR(net, exact.net, 4 * error) << name;
    EXPECT_EQ(record.Tendered.Sum, Money::FromWhole(record.Tendered.Count) * Money(row.amount))
        << name;
    if (std::getenv("TESSAREL_EDGE_ROLLS") == nullptr) continue;
    std::printf("%-12s %9.0f decisions  edge %9.6f  exact %9.6f  %+5.2f errors\n", name.c_str(),
                decisions, exact.edge * net / exact.net, row.edge, (exact.net - net) / error);
  }
}

}  // namespace
}  // namespace tessarel
