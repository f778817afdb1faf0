// Two long sessions at a full table: over hundreds of thousands of rolls the statistics must stay
// in step with the money and with each other.
#include <cstdlib>

#include "engine/unattended.h"
#include "play/new_session.h"
#include "state/books_check.h"
#include "stats/stats_fixture.h"

namespace tessarel {
namespace {

#ifdef TESSAREL_CHECK_TABLE
constexpr int DefaultRolls = 4'000;
#else
constexpr int DefaultRolls = 200'000;
#endif

// Rolls of a session; TESSAREL_LONG_ROLLS asks for others.
int RollsToPlay() {
  const char* const asked = std::getenv("TESSAREL_LONG_ROLLS");
  return asked != nullptr ? std::max(1, std::atoi(asked)) : DefaultRolls;
}

class LongRun : public StatsTest {
 protected:
  // What a player puts on each of his bets before every roll.
  struct Style {
    int32_t Stake;
    std::vector<int> Bets;
  };
  inline static const std::vector<Style> Styles = {
      {10, {bet::PassLine, bet::Come}},
      {10, {bet::DontPass, bet::DontCome}},
      {12, {bet::Place6, bet::Place8, bet::Field}},
      {20, {bet::Buy4, bet::Buy10, bet::Lay4 + 1, bet::Lay4 + 4}},
      {5, {bet::Hard4, bet::Hard8, bet::Horn, bet::World}},
      {1, {bet::AllSmall, bet::AllTall, bet::MakeAll, bet::Fire, bet::Midway, bet::Hop13}},
      {1, {bet::SharpShooter, bet::RideTheLine, bet::FourRollsNo7, bet::Point7, bet::SevenPoint7}},
      {2, {bet::Big6, bet::Over7, bet::Under7, bet::CAndE, bet::Craps, bet::Seven}},
  };

  static std::vector<Wager> SeatAll() {
    Settings.UseMidwayBet = Settings.UseFireBet = Settings.UseSpecialPropBets = true;
    std::vector<Wager> wagers;
    for (int place = 1; place <= LastPlace; ++place) {
      SeatPlayer(place, "Player " + std::string(1, static_cast<char>('A' + place)), 1'000'000);
      Table.AllowNegBankroll[place] = true;
      Table.AutoTakeFullOdds[place] = Table.AutoLayFullOdds[place] = true;
      for (const int number : At(Styles, place - 1).Bets)
        wagers.push_back({place, number, At(Styles, place - 1).Stake});
    }
    return wagers;
  }
};

Money NetOf(int slot) {
  Money net;
  for (const BetRecord& record : Stats.Bets[slot]) {
    EXPECT_EQ(record.Tendered.Count, record.Won.Count + record.Lost.Count);
    net += record.Won.Sum - record.Lost.Sum;
  }
  return net;
}

void ExpectTheNetIsTheBankrolls(Scope scope) {
  for (int slot = scope + 1; slot <= scope + LastPlace; ++slot)
    EXPECT_EQ(NetOf(slot), Table.Bankroll[slot] - Table.BankrollBegin[slot]) << slot;
}

// The table has what its players have: each roll and hand is credited to one of them.
void ExpectTheTableIsItsPlayers(Scope scope) {
  Indexed<int32_t, RollCodes> rolls{};
  Indexed<Indexed<int32_t, 4>, 13> table{};
  HandFigures hands;
  for (int slot = scope + 1; slot <= scope + LastPlace; ++slot) {
    for (int item = 0; item < RollCodes; ++item)
      At(rolls, item) += Stats.RollCount[slot][item];
    for (int total = 2; total <= 12; ++total) {
      for (int row = HandComeoutRolls; row <= HandMisses; ++row)
        At(At(table, total), row) += Stats.HandTable[slot][total][row];
    }
    const HandFigures& figures = Stats.Hands[slot];
    hands.HandCount += figures.HandCount;
    for (const auto most : {&HandFigures::MostRolls, &HandFigures::MostComeoutRolls,
                            &HandFigures::MostPasses, &HandFigures::MostMisses})
      hands.*most = std::max(hands.*most, figures.*most);
    EXPECT_EQ(figures.RollTotal, Stats.Hands[scope].RollTotal);
  }
  const HandFigures& house = Stats.Hands[scope];
  EXPECT_EQ(Stats.RollCount[scope], rolls);
  EXPECT_EQ(Stats.HandTable[scope], table);
  EXPECT_EQ(house.RollTotal, rolls[0]);
  EXPECT_EQ(house.HandCount, hands.HandCount);
  EXPECT_EQ(house.MostRolls, hands.MostRolls);
  EXPECT_EQ(house.MostComeoutRolls, hands.MostComeoutRolls);
  EXPECT_EQ(house.MostPasses, hands.MostPasses);
  EXPECT_EQ(house.MostMisses, hands.MostMisses);
}

void ExpectBothSessionsAreAll(int place) {
  const auto now = static_cast<size_t>(CurrentSession + place);
  const auto before = static_cast<size_t>(LastSession + place);
  const auto all = static_cast<size_t>(AllSessions + place);
  for (size_t number = 1; number <= LastBet; ++number) {
    for (const auto kind : {&BetRecord::Tendered, &BetRecord::Won, &BetRecord::Lost}) {
      const BetMeasures &latest = Stats.Bets[now][number].*kind,
                        &earlier = Stats.Bets[before][number].*kind,
                        &both = Stats.Bets[all][number].*kind;
      EXPECT_EQ(latest.Count + earlier.Count, both.Count) << BetName[number];
      EXPECT_EQ(latest.Sum + earlier.Sum, both.Sum) << BetName[number];
    }
  }
  for (size_t item = 0; item < RollCodes; ++item)
    EXPECT_EQ(Stats.RollCount[now][item] + Stats.RollCount[before][item],
              Stats.RollCount[all][item]);
  for (size_t total = 2; total <= 12; ++total) {
    for (size_t row = HandComeoutRolls; row <= HandMisses; ++row)
      EXPECT_EQ(Stats.HandTable[now][total][row] + Stats.HandTable[before][total][row],
                Stats.HandTable[all][total][row]);
  }
  for (const auto figure : {&HandFigures::HandCount, &HandFigures::RollTotal})
    EXPECT_EQ(Stats.Hands[now].*figure + Stats.Hands[before].*figure, Stats.Hands[all].*figure);
  for (size_t k = 0; k < FamilySize; ++k)
    EXPECT_EQ(Stats.ComeTravel[now][k] + Stats.ComeTravel[before][k], Stats.ComeTravel[all][k]);
}

TEST_F(LongRun, TheFiguresKeepStepWithTheMoneyAndWithEachOther) {
  const int rolls = RollsToPlay();
  const std::vector<Wager> wagers = SeatAll();
  for (int session = 1; session <= 2; ++session) {
    SCOPED_TRACE("session " + std::to_string(session));
    NewSession({.keepSessions = true});
    Play(rolls, wagers, session);
    EXPECT_EQ(RollsInSession(), rolls) << StopText(Table.LastStop);
    EXPECT_EQ(CheckBooks(), "");
    ExpectTheNetIsTheBankrolls(CurrentSession);
  }
  for (const Wager& wager : wagers)
    EXPECT_GT(Stats.Bets[AllSessions + wager.place][wager.number].Won.Count, 0)
        << BetName[wager.number];
  ExpectTheNetIsTheBankrolls(LastSession);
  for (const Scope scope : {CurrentHand, LastHand, CurrentSession, LastSession, AllSessions}) {
    SCOPED_TRACE("scope " + std::to_string(scope));
    ExpectTheTableIsItsPlayers(scope);
  }
  for (int place = 0; place <= LastPlace; ++place) {
    SCOPED_TRACE("place " + std::to_string(place));
    ExpectBothSessionsAreAll(place);
  }
}

}  // namespace
}  // namespace tessarel
