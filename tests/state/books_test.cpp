#include "state/books.h"
#include "engine/seats.h"

#include <algorithm>
#include <array>
#include <limits>
#include <sstream>

#include "base/message.h"
#include "play/players.h"
#include "play/roll_fixture.h"
#include "state/books_check.h"
#include "state/vig.h"

namespace tessarel {
namespace {

using Store = RollTest;

// --- Roll codes --------------------------------------------------------------------------------

std::vector<int> Numbers(const char* text) {
  std::istringstream in(text);
  return {std::istream_iterator<int>(in), std::istream_iterator<int>()};
}

TEST_F(Store, EveryPairReportsItsCodes) {
  constexpr int PairCode[6][6] = {{2, 22, 24, 27, 33, 39},  {23, 13, 29, 35, 41, 48},
                                  {25, 30, 14, 43, 50, 54}, {28, 36, 44, 15, 56, 60},
                                  {34, 42, 51, 57, 16, 63}, {40, 49, 55, 61, 64, 12}};
  const struct {
    int low, high;
    const char* codes;
  } pairs[] = {
      {1, 1, "21 65 66 20 69 74"},
      {1, 2, "3 21 65 66 20 70 74 75"},
      {1, 3, "4 26 21 17 19 67 71"},
      {2, 2, "4 21 17 19 67 71"},
      {1, 4, "5 31 17 18 19 67 72"},
      {2, 3, "5 32 17 18 19 67 72"},
      {1, 5, "6 37 17 18 67 73"},
      {2, 4, "6 38 17 18 67 73"},
      {3, 3, "6 17 18 67 73"},
      {1, 6, "7 45 65 76"},
      {2, 5, "7 46 65 76"},
      {3, 4, "7 47 65 76"},
      {2, 6, "8 52 17 18 68 73"},
      {3, 5, "8 53 17 18 68 73"},
      {4, 4, "8 17 18 68 73"},
      {3, 6, "9 58 21 17 18 19 68 72"},
      {4, 5, "9 59 21 17 18 19 68 72"},
      {4, 6, "10 62 21 17 19 68 71"},
      {5, 5, "10 21 17 19 68 71"},
      {5, 6, "11 21 65 66 70 76 77"},
      {6, 6, "21 65 66 20 69 75 77"},
  };
  for (const auto& pair : pairs) {
    for (const auto& [die1, die2] : {std::pair(pair.low, pair.high), {pair.high, pair.low}}) {
      std::vector<int> expected = {die1 + 77, die2 + 83, PairCode[die1 - 1][die2 - 1]};
      for (const int code : Numbers(pair.codes))
        expected.push_back(code);
      const RollCodeList& list = CodesOfRoll(die1, die2);
      const auto end = std::find(list.begin(), list.end(), 0);
      ASSERT_NE(end, list.end());
      EXPECT_EQ(std::vector<int>(list.begin(), end), expected) << die1 << "-" << die2;
    }
  }
}

// --- A long game, counted again from its history -----------------------------------------------

struct PlayedRoll {
  int die1, die2;
  int session, hand;  // from 0
  int shooter;        // who is credited
  bool comeOut, pass, miss;
};

struct PlayedBet {
  int place, number, session, hand;
  Money stake, result;
  int sessionRoll, gameRoll;
};

struct History {
  std::vector<PlayedRoll> rolls;
  std::vector<PlayedBet> bets;
  int session = 0, hand = 0;
};

// The entries of a scope: which session and hand count into it; -1 for any.
struct Span {
  int session, hand;
  bool Has(int s, int h) const { return (session < 0 || s == session) && (hand < 0 || h == hand); }
};

BetMeasures Remeasure(const std::vector<std::pair<Money, int>>& entries) {
  BetMeasures m;
  for (const auto& [amount, roll] : entries) {
    m.Sum += amount;
    m.High = std::max(m.High, amount);
    m.LastRoll = roll;
    m.Last = amount;
  }
  m.Count = std::ssize(entries);
  if (!entries.empty()) {
    m.Low = std::min_element(entries.begin(), entries.end(), [](auto& a, auto& b) {
              return a.first < b.first;
            })->first;
  }
  return m;
}

bool operator==(const BetMeasures& a, const BetMeasures& b) {
  const auto fields = [](const BetMeasures& m) {
    return std::tuple{m.Count, m.Sum, m.High, m.Low, m.LastRoll, m.Last};
  };
  return fields(a) == fields(b);
}

void CheckBets(const History& history, Scope scope, const Span& span) {
  const bool game = scope == AllSessions;
  for (int place = 1; place <= LastPlace; ++place) {
    for (int number = 1; number <= LastBet; ++number) {
      std::vector<std::pair<Money, int>> tendered, won, lost;
      for (const PlayedBet& bet : history.bets) {
        if (bet.place != place || bet.number != number || !span.Has(bet.session, bet.hand))
          continue;
        const int roll = game ? bet.gameRoll : bet.sessionRoll;
        tendered.emplace_back(bet.stake, roll);
        (bet.result > Money() ? won : lost).emplace_back(Abs(bet.result), roll);
      }
      const BetRecord& record = Stats.Bets[place + scope][number];
      EXPECT_TRUE(record.Tendered == Remeasure(tendered)) << place << " " << BetName[number];
      EXPECT_TRUE(record.Won == Remeasure(won)) << place << " " << BetName[number];
      EXPECT_TRUE(record.Lost == Remeasure(lost)) << place << " " << BetName[number];
    }
  }
}

// The longest of a kind in one hand of the slot's shooter.
template <class Counts>
int Most(const History& history, const Span& span, int place, Counts&& counts) {
  int most = 0, run = 0, session = -1, hand = -1;
  for (const PlayedRoll& roll : history.rolls) {
    if (roll.session != session || roll.hand != hand) run = 0;
    session = roll.session;
    hand = roll.hand;
    run += counts(roll) ? 1 : 0;
    const bool credited = place == 0 || roll.shooter == place;
    if (credited && span.Has(session, hand)) most = std::max(most, run);
  }
  return most;
}

void CheckRolls(const History& history, Scope scope, const Span& span) {
  for (int place = 0; place <= LastPlace; ++place) {
    SCOPED_TRACE("place " + std::to_string(place) + ", scope " + std::to_string(scope));
    Indexed<int32_t, RollCodes> counts{};
    Indexed<Indexed<int32_t, 4>, 13> table{};
    int rollTotal = 0;
    for (const PlayedRoll& roll : history.rolls) {
      if (!span.Has(roll.session, roll.hand)) continue;
      if (place == 0 || IsTaken(Table, place)) ++rollTotal;
      if (place != 0 && place != roll.shooter) continue;
      ++counts[0];
      for (const uint8_t code : CodesOfRoll(roll.die1, roll.die2))
        counts[code] += code != 0 ? 1 : 0;
      auto& rows = At(table, roll.die1 + roll.die2);
      rows[1] += roll.comeOut ? 1 : 0;
      rows[2] += roll.pass ? 1 : 0;
      rows[3] += roll.miss ? 1 : 0;
    }
    const size_t slot = static_cast<size_t>(scope + place);
    EXPECT_EQ(Stats.RollCount[slot], counts);
    EXPECT_EQ(Stats.HandTable[slot], table);
    const HandFigures& hands = Stats.Hands[slot];
    EXPECT_EQ(hands.RollTotal, rollTotal);
    EXPECT_EQ(hands.MostRolls, Most(history, span, place, [](auto&) { return true; }));
    EXPECT_EQ(hands.MostComeoutRolls,
              Most(history, span, place, [](auto& r) { return r.comeOut; }));
    EXPECT_EQ(hands.MostPasses, Most(history, span, place, [](auto& r) { return r.pass; }));
    EXPECT_EQ(hands.MostMisses, Most(history, span, place, [](auto& r) { return r.miss; }));
  }
}

int HandsOf(const History& history, const Span& span, int place) {
  int hands = 0, session = -1, hand = -1;
  for (const PlayedRoll& roll : history.rolls) {
    const bool begins = roll.session != session || roll.hand != hand;
    session = roll.session;
    hand = roll.hand;
    const bool ended = session < history.session || hand < history.hand;
    const bool credited = place == 0 || roll.shooter == place;
    hands += begins && ended && credited && span.Has(session, hand) ? 1 : 0;
  }
  return hands;
}

void CheckScope(const History& history, Scope scope, const Span& span) {
  CheckBets(history, scope, span);
  CheckRolls(history, scope, span);
  for (int place = 0; place <= LastPlace; ++place)
    EXPECT_EQ(Stats.Hands[scope + place].HandCount, HandsOf(history, span, place));
}

void CheckGaps(const History& history) {
  Indexed<int, RollCodes> last{};
  Indexed<Indexed<int32_t, 201>, RollCodes> gaps{};
  int count = 0;
  for (const PlayedRoll& roll : history.rolls) {
    if (roll.session != history.session) continue;
    ++count;
    for (const uint8_t code : CodesOfRoll(roll.die1, roll.die2)) {
      if (code == 0) break;
      if (last[code] != 0) ++At(gaps[code], std::min(count - last[code] - 1, 200));
      last[code] = count;
    }
  }
  EXPECT_EQ(Stats.GapCount, gaps);
  for (int code = 1; code < RollCodes; ++code)
    EXPECT_EQ(RollsSince(code),
              last[static_cast<size_t>(code)] == 0 ? count : count - At(last, code));
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
    const int roll = static_cast<int>(history_.rolls.size()) + 1;
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
    history_.rolls.push_back({Table.Die1, Table.Die2, history_.session, history_.hand, credited,
                              comeOut, comeOut ? natural : total == point,
                              comeOut ? craps : total == 7});
    for (const int place : Places) {
      const Money result = BankrollOf(place) - At(before, place);
      if (result == Money()) continue;
      history_.bets.push_back({place, At(number, place), history_.session, history_.hand,
                               At(stake, place), result, RollsInSession(), roll});
      PutDown(place, At(number, place), 0);
      Table.LayVig[place] = Table.BuyVig[place] = {};
      Table.MoneyOnTable[place] = Money();
    }
    if (point != 0 && total == 7) ++history_.hand;
  }

  History history_;
};

TEST_F(LongGame, CountsWhatWasPlayedInEveryScope) {
  for (const int place : Places)
    Seat(place);
  Settings.BuyVigAllBets = false;
  Dice.CurrentRNG = 1;
  Dice.SeedRequest = 2718;
  ASSERT_TRUE(SeedRNG(-1));
  for (int roll = 0; roll < 2000 || RollsInHand() == 0; ++roll)
    PlayOne();
  CheckScope(history_, CurrentHand, {0, history_.hand});
  CheckScope(history_, LastHand, {0, history_.hand - 1});
  CheckScope(history_, CurrentSession, {0, -1});
  CheckScope(history_, AllSessions, {-1, -1});
  CheckGaps(history_);
  EXPECT_EQ(CheckBooks(), "");

  // A new session ends the hand that runs.
  EndHand();
  StartSessionStatistics();
  for (const int place : Places)
    SetBankroll(place, BankrollOf(place));
  Table.Point = Table.LastPoint = 0;
  Table.LastShooter = Table.Shooter;
  const int lastHand = history_.hand;
  ++history_.session;
  history_.hand = 0;
  CheckScope(history_, LastHand, {0, lastHand});
  for (int roll = 0; roll < 1000 || RollsInHand() == 0; ++roll)
    PlayOne();
  CheckScope(history_, CurrentHand, {1, history_.hand});
  CheckScope(history_, LastHand, {1, history_.hand - 1});
  CheckScope(history_, CurrentSession, {1, -1});
  CheckScope(history_, LastSession, {0, -1});
  CheckScope(history_, AllSessions, {-1, -1});
  CheckGaps(history_);
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

TEST_F(Store, ClearingAllSessionsKeepsTheSession) {
  Seat(1);
  PutDown(1, bet::Field, 10);
  Throw(1, 1);
  ClearAllSessions();
  EXPECT_EQ(Stats.RollCount[AllSessions][0], 0);
  EXPECT_EQ(Stats.Bets[1 + AllSessions][bet::Field].Won.Count, 0);
  EXPECT_EQ(RollsInSession(), 1);
  EXPECT_EQ(Stats.Bets[1 + CurrentSession][bet::Field].Won.Count, 1);
}

TEST_F(Store, AFullFigureIsReportedAndTheRollGoesOn) {
  constexpr int64_t Full = std::numeric_limits<int64_t>::max();
  struct {
    const char* Place;
    void (*Fill)();
  } const cases[] = {
      {"RecordRoll", [] { Stats.RollCount[AllSessions][0] = std::numeric_limits<int32_t>::max(); }},
      {"RecordBetResult",
       [] { Stats.Bets[1 + AllSessions][bet::Field].Lost.Sum = Money::FromRaw(Full); }},
      {"RecordBankrolls", [] { Table.BankrollSum[1] = Money::FromRaw(Full); }},
  };
  for (const auto& c : cases) {
    SetUp();
    Seat(1, 100);
    Throw(2, 2);
    c.Fill();
    PutDown(1, bet::Field, 10);
    Throw(3, 4);
    EXPECT_EQ(Message.MsgText, "Overflow, Error #6 occurred at: " + std::string(c.Place));
    EXPECT_EQ(Table.Point, 0);
    EXPECT_EQ(BankrollOf(1), Money(90));
    EXPECT_EQ(RollsInHand(), 0) << "the seven ends the hand";
  }
}

TEST_F(Store, SessionWithoutRollsKeepsTheLastOne) {
  Seat(1);
  Throw(1, 1);
  StartSessionStatistics();
  EXPECT_EQ(Stats.RollCount[LastSession][0], 1);
  StartSessionStatistics();
  EXPECT_EQ(Stats.RollCount[LastSession][0], 1);
}

}  // namespace
}  // namespace tessarel
