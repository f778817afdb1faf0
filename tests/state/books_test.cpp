#include "state/books.h"

#include <algorithm>
#include <array>
#include <limits>
#include <span>
#include <vector>

#include "base/message.h"
#include "engine/seats.h"
#include "play/players.h"
#include "play/roll_fixture.h"
#include "state/books_check.h"
#include "state/vig.h"

namespace tessarel {
namespace {

using Store = RollTest;

// --- A long game, counted again from its history -----------------------------------------------

struct PlayedRoll {
  int die1, die2;
  bool comeOut, pass, miss;
};

struct PlayedBet {
  int place, number;
  Money stake, result;
  int sessionRoll, gameRoll;
};

struct PlayedHand {
  int shooter;  // who is credited
  bool ended = false;
  std::vector<PlayedRoll> rolls{};
  std::vector<PlayedBet> bets{};
};

using Hands = std::span<const PlayedHand>;

void Enter(BetMeasures& m, Money amount, int roll) {
  m.Low = m.Count == 0 ? amount : std::min(m.Low, amount);
  m.High = std::max(m.High, amount);
  ++m.Count;
  m.Sum += amount;
  m.LastRoll = roll;
  m.Last = amount;
}

void ExpectSame(const BetMeasures& a, const BetMeasures& b) {
  const auto fields = [](const BetMeasures& m) {
    return std::tuple{m.Count, m.Sum, m.High, m.Low, m.LastRoll, m.Last};
  };
  EXPECT_EQ(fields(a), fields(b));
}

void CheckBets(Hands hands, Scope scope) {
  Indexed<Indexed<BetRecord, LastBet + 1>, 9> records{};
  for (const PlayedHand& hand : hands) {
    for (const PlayedBet& bet : hand.bets) {
      const int roll = scope == AllSessions ? bet.gameRoll : bet.sessionRoll;
      BetRecord& record = At(At(records, bet.place), bet.number);
      Enter(record.Tendered, bet.stake, roll);
      Enter(bet.result > Money() ? record.Won : record.Lost, Abs(bet.result), roll);
    }
  }
  for (int place = 1; place <= LastPlace; ++place) {
    for (int number = 1; number <= LastBet; ++number) {
      SCOPED_TRACE(std::to_string(place) + " " + std::string(BetName[number]));
      const BetRecord &record = Stats.Bets[place + scope][number],
                      &expected = At(At(records, place), number);
      ExpectSame(record.Tendered, expected.Tendered);
      ExpectSame(record.Won, expected.Won);
      ExpectSame(record.Lost, expected.Lost);
    }
  }
}

void CheckRolls(Hands hands, Scope scope, int place) {
  SCOPED_TRACE("place " + std::to_string(place) + ", scope " + std::to_string(scope));
  Indexed<int32_t, RollCodes> counts{};
  Indexed<Indexed<int32_t, 4>, 13> table{};
  int rollTotal = 0, handCount = 0;
  std::array<int32_t, 4> most{};  // rolls, come-outs, passes and misses of one hand
  for (const PlayedHand& hand : hands) {
    if (place == 0 || IsTaken(Table, place)) rollTotal += static_cast<int>(hand.rolls.size());
    if (place != 0 && place != hand.shooter) continue;
    handCount += hand.ended ? 1 : 0;
    std::array<int32_t, 4> now{};
    for (const PlayedRoll& roll : hand.rolls) {
      ++counts[0];
      for (const uint8_t code : CodesOfRoll(roll.die1, roll.die2))
        counts[code] += code != 0 ? 1 : 0;
      const std::array<int32_t, 4> kinds = {1, roll.comeOut, roll.pass, roll.miss};
      for (size_t kind = 0; kind < 4; ++kind) {
        if (kind != 0) At(table, roll.die1 + roll.die2)[kind] += kinds[kind];
        most[kind] = std::max(most[kind], now[kind] += kinds[kind]);
      }
    }
  }
  const size_t slot = static_cast<size_t>(scope + place);
  EXPECT_EQ(Stats.RollCount[slot], counts);
  EXPECT_EQ(Stats.HandTable[slot], table);
  const HandFigures& figures = Stats.Hands[slot];
  EXPECT_EQ(figures.HandCount, handCount);
  EXPECT_EQ(figures.RollTotal, rollTotal);
  EXPECT_EQ((std::array<int32_t, 4>{figures.MostRolls, figures.MostComeoutRolls, figures.MostPasses,
                                    figures.MostMisses}),
            most);
}

void CheckScope(Hands hands, Scope scope) {
  CheckBets(hands, scope);
  for (int place = 0; place <= LastPlace; ++place)
    CheckRolls(hands, scope, place);
}

void CheckGaps(Hands session) {
  Indexed<int, RollCodes> last{};
  Indexed<Indexed<int32_t, 201>, RollCodes> gaps{};
  int count = 0;
  for (const PlayedHand& hand : session) {
    for (const PlayedRoll& roll : hand.rolls) {
      ++count;
      for (const uint8_t code : CodesOfRoll(roll.die1, roll.die2)) {
        if (code == 0) break;
        if (last[code] != 0) ++At(gaps[code], std::min(count - last[code] - 1, 200));
        last[code] = count;
      }
    }
  }
  EXPECT_EQ(Stats.GapCount, gaps);
  for (int code = 1; code < RollCodes; ++code)
    EXPECT_EQ(RollsSince(code), count - At(last, code));
}

class LongGame : public RollTest {
 protected:
  static constexpr int Places[] = {2, 5, 7};
  // One of these stands for each player, so that a bankroll moves by one bet's result.
  static constexpr int Plays[] = {bet::Field,  bet::Lay4,  bet::Buy10, bet::Hop13, bet::Lay9,
                                  bet::Midway, bet::World, bet::Buy4,  bet::Horn,  bet::Seven};

  void Bet1(int place, int roll) {
    if (Table.MoneyOnTable[place] > Money()) return;
    const int number = Plays[(roll * 7 + place) % 10];
    const Money amount = 10 * (1 + (roll * 3 + place) % 8);
    PutDown(place, number, amount);
    if (!CarriesVig(number)) return;
    StoredVig(place, number) = FigureVig(number, amount);
    Table.MoneyOnTable[place] += VigUpFront(place, number);
  }

  void PlayOne() {
    const int roll = ++rolls_;
    if (roll % 97 == 0) PassDice(PlayerAsked);
    const int point = Table.Point, credited = Table.LastShooter;
    Indexed<Money, 9> before{}, stake{};
    Indexed<int, 9> number{};
    for (const int place : Places) {
      Bet1(place, roll);
      At(before, place) = BankrollOf(place);
      Table.Standing[place].ForEach([&](int standing) { At(number, place) = standing; });
      const bool carries = InFamily(At(number, place), LayFamily)   ? Settings.LayVigAllBets
                           : InFamily(At(number, place), BuyFamily) ? Settings.BuyVigAllBets
                                                                    : false;
      const int k = (At(number, place) - 1) % 6;
      const Money vig = carries ? Table.LayVig[place][k] + Table.BuyVig[place][k] : Money();
      At(stake, place) = Bet(place, At(number, place)) + vig;
    }
    MakeRoll();
    const int total = Table.DiceTotal;
    const bool comeOut = point == 0, natural = total == 7 || total == 11;
    const bool craps = total < 4 || total == 12;
    if (hands_.size() == sessionStart_ || hands_.back().ended) hands_.push_back({credited});
    hands_.back().rolls.push_back({Table.Die1, Table.Die2, comeOut,
                                   comeOut ? natural : total == point,
                                   comeOut ? craps : total == 7});
    for (const int place : Places) {
      const Money result = BankrollOf(place) - At(before, place);
      if (result == Money()) continue;
      hands_.back().bets.push_back(
          {place, At(number, place), At(stake, place), result, RollsInSession(), roll});
      PutDown(place, At(number, place), 0);
      Table.LayVig[place] = Table.BuyVig[place] = {};
      Table.MoneyOnTable[place] = Money();
    }
    hands_.back().ended = point != 0 && total == 7;
  }
  void PlayOn(int rolls) {
    for (int roll = 0; roll < rolls || RollsInHand() == 0; ++roll)
      PlayOne();
    const Hands all = hands_, session = all.subspan(sessionStart_);
    CheckScope(all.last(1), CurrentHand);
    CheckScope(all.last(2).first(1), LastHand);
    CheckScope(session, CurrentSession);
    CheckScope(all.first(sessionStart_), LastSession);
    CheckScope(all, AllSessions);
    CheckGaps(session);
    EXPECT_EQ(CheckBooks(), "");
  }

  std::vector<PlayedHand> hands_;
  size_t sessionStart_ = 0;  // where the hands of the session begin
  int rolls_ = 0;
};

TEST_F(LongGame, CountsWhatWasPlayedInEveryScope) {
  for (const int place : Places)
    Seat(place);
  Settings.BuyVigAllBets = false;
  Dice.CurrentRNG = 1;
  Dice.SeedRequest = 2718;
  ASSERT_TRUE(SeedRNG(-1));
  PlayOn(2000);

  // A new session ends the hand that runs.
  EndHand();
  hands_.back().ended = true;
  StartSessionStatistics();
  for (const int place : Places)
    SetBankroll(place, BankrollOf(place));
  Table.Point = Table.LastPoint = 0;
  Table.LastShooter = Table.Shooter;
  sessionStart_ = hands_.size();
  CheckScope(Hands(hands_).last(1), LastHand);
  PlayOn(1000);
}

// --- Single facts ------------------------------------------------------------------------------

TEST_F(Store, BankrollExtremesAreKeptPerScopeOnceARoll) {
  Seat(1, 100);
  SetBankroll(1, 100);
  SetBetAmount(1, FirstStack, 1);
  const auto extremes = [](int scope) {
    return std::array{Table.BankrollBegin[1 + scope], Table.BankrollLow[1 + scope],
                      Table.BankrollHigh[1 + scope]};
  };
  // The line loses 10 and the Field wins 20 on the same roll: only the sum is seen.
  PutDown(1, bet::PassLine, 10);
  PutDown(1, bet::Field, 10);
  Throw(1, 1);
  EXPECT_EQ(extremes(CurrentHand), (Indexed<Money, 3>{100, 100, 110}));
  EXPECT_EQ(Table.BankrollSum[1], Money(110));
  PutDown(1, bet::Field, 0);
  PutDown(1, bet::PassLine, 50);
  Throw({{2, 2}, {3, 4}});
  EXPECT_EQ(extremes(LastHand), (Indexed<Money, 3>{100, 60, 110}));
  EXPECT_EQ(Table.Bankroll[1 + LastHand], Money(60));
  EXPECT_EQ(extremes(CurrentHand), (Indexed<Money, 3>{60, 60, 60}));
  EXPECT_EQ(extremes(CurrentSession), (Indexed<Money, 3>{100, 60, 110}));
  EXPECT_EQ(Table.BankrollSum[1], Money(110 + 110 + 60));
}

TEST_F(Store, BarredCrapsIsAMiss) {
  for (const int barred : {2, 12}) {
    Settings.BarNumber = barred;
    Seat(1);
    const int32_t before = Stats.HandMissCount;
    Throw({{1, 1}, {6, 6}, {1, 2}});
    EXPECT_EQ(Stats.HandMissCount, before + 3);
  }
}

TEST_F(Store, ClearingAPlaceLeavesTheOthers) {
  Seat(1);
  Seat(2);
  for (int place = 1; place <= 2; ++place)
    PutDown(place, bet::Field, 10);
  Throw({{2, 2}, {3, 4}, {1, 1}});
  ClearPlayerStats(1);
  for (int scope = 0; scope < SlotCount; scope += SlotsInScope) {
    EXPECT_EQ(Stats.Bets[1 + scope][bet::Field].Tendered.Count, 0);
    EXPECT_EQ(Stats.RollCount[1 + scope][0], 0);
    EXPECT_EQ(Stats.Hands[1 + scope].RollTotal, 0);
  }
  EXPECT_EQ(Stats.Bets[2 + LastHand][bet::Field].Won.Sum, Money(10));
  EXPECT_EQ(Stats.RollCount[2 + CurrentSession][0], 1) << "the hand after the seven-out";
  EXPECT_EQ(RollsInSession(), 3);
}

TEST_F(Store, ClearingAllSessionsKeepsTheSessionAndOneWithoutRollsTheLast) {
  Seat(1);
  PutDown(1, bet::Field, 10);
  Throw(1, 1);
  ClearAllSessions();
  EXPECT_EQ(Stats.RollCount[AllSessions][0], 0);
  EXPECT_EQ(Stats.Bets[1 + AllSessions][bet::Field].Won.Count, 0);
  EXPECT_EQ(RollsInSession(), 1);
  EXPECT_EQ(Stats.Bets[1 + CurrentSession][bet::Field].Won.Count, 1);
  for (int time = 1; time <= 2; ++time) {
    StartSessionStatistics();
    EXPECT_EQ(Stats.RollCount[LastSession][0], 1);
  }
}

TEST_F(Store, AFullFigureIsReportedAndTheRollGoesOn) {
  constexpr int64_t Full = std::numeric_limits<int64_t>::max();
  const std::pair<const char*, void (*)()> cases[] = {
      {"RecordRoll", [] { Stats.RollCount[AllSessions][0] = std::numeric_limits<int32_t>::max(); }},
      {"RecordBetResult",
       [] { Stats.Bets[1 + AllSessions][bet::Field].Lost.Sum = Money::FromRaw(Full); }},
      {"RecordBankrolls", [] { Table.BankrollSum[1] = Money::FromRaw(Full); }}};
  for (const auto& [routine, fill] : cases) {
    SetUp();
    Seat(1, 100);
    Throw(2, 2);
    fill();
    PutDown(1, bet::Field, 10);
    Throw(3, 4);
    EXPECT_EQ(Message.MsgText, "Overflow, Error #6 occurred at: " + std::string(routine));
    EXPECT_EQ(Table.Point, 0);
    EXPECT_EQ(BankrollOf(1), Money(90));
    EXPECT_EQ(RollsInHand(), 0) << "the seven ends the hand";
  }
}

}  // namespace
}  // namespace tessarel
