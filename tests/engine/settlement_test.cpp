#include "engine/settlement.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <map>
#include <sstream>

#include "engine/bet_handling.h"
#include "engine/bets.h"
#include "play/roll_fixture.h"

namespace tessarel {
namespace {

// --- The rule card: every bet in the words of the game -----------------------------------------

// Where the game stands when the dice are thrown.
enum class When { Any, ComeOut, PointOn, PointJustOn };

// On these rolls the bet gets this. The first line of a bet that fits decides; no line, no
// decision. Rolls are totals, pairs of faces in either order, "point" for the point that is on,
// "barred" for the barred number and "rest" for everything else.
struct CardLine {
  int number;
  When when;
  std::string rolls;
  std::string gets;  // "w:s" (net win to stake), "loses", "stays" or "travels"
};

struct PointWords {
  int point;
  const char *place, *taken, *laid;
};
constexpr PointWords PointCard[] = {{4, "9:5", "2:1", "1:2"}, {5, "7:5", "3:2", "2:3"},
                                    {6, "7:6", "6:5", "5:6"}, {8, "7:6", "6:5", "5:6"},
                                    {9, "7:5", "3:2", "2:3"}, {10, "9:5", "2:1", "1:2"}};

void AddPointBets(std::vector<CardLine>& card) {
  using enum When;
  for (int k = 0; k < 6; ++k) {
    const PointWords& words = PointCard[k];
    const std::string number = std::to_string(words.point);
    const struct {
      int first;
      const char *wins, *pays;
    } right[] = {
        {19, "", "1:1"}, {25, "", words.taken}, {31, "", words.place}, {37, "", words.taken}};
    for (const auto& family : right) {
      card.push_back({family.first + k, Any, number, family.pays});
      card.push_back({family.first + k, Any, "7", "loses"});
    }
    const struct {
      int first;
      const char* pays;
    } wrong[] = {{1, words.laid}, {7, "1:1"}, {13, words.laid}};
    for (const auto& family : wrong) {
      card.push_back({family.first + k, Any, "7", family.pays});
      card.push_back({family.first + k, Any, number, "loses"});
    }
  }
}

// clang-format off
std::vector<CardLine> MakeCard() {
  using enum When;
  using namespace bet;
  std::vector<CardLine> card = {
      {PassLine, ComeOut, "7 11", "1:1"},        {PassLine, ComeOut, "2 3 12", "loses"},
      {PassLine, PointOn, "point", "1:1"},       {PassLine, PointOn, "7", "loses"},
      {PassLineOdds, PointOn, "point", "taken"}, {PassLineOdds, PointOn, "7", "loses"},
      {Come, PointOn, "7", "1:1"},               {Come, Any, "11", "1:1"},
      {Come, Any, "2 3 12", "loses"},            {Come, Any, "4 5 6 8 9 10", "travels"},
      {DontPass, ComeOut, "barred", "stays"},    {DontPass, ComeOut, "2 3 12", "1:1"},
      {DontPass, ComeOut, "7 11", "loses"},
      {DontPass, PointOn, "7", "1:1"},           {DontPass, PointOn, "point", "loses"},
      {DontPassOdds, PointOn, "7", "laid"},      {DontPassOdds, PointOn, "point", "loses"},
      {DontCome, Any, "barred", "stays"},        {DontCome, Any, "2 3 12", "1:1"},
      {DontCome, Any, "7 11", "loses"},          {DontCome, Any, "4 5 6 8 9 10", "travels"},
      {Field, Any, "2 12", "2:1"},               {Field, Any, "3 4 9 10 11", "1:1"},
      {Field, Any, "rest", "loses"},
      {Big6, Any, "6", "1:1"}, {Big6, Any, "7", "loses"},
      {Big8, Any, "8", "1:1"}, {Big8, Any, "7", "loses"},
      {Hard4, Any, "2-2", "7:1"},  {Hard4, Any, "4 7", "loses"},
      {Hard6, Any, "3-3", "9:1"},  {Hard6, Any, "6 7", "loses"},
      {Hard8, Any, "4-4", "9:1"},  {Hard8, Any, "8 7", "loses"},
      {Hard10, Any, "5-5", "7:1"}, {Hard10, Any, "10 7", "loses"},
      {Two, Any, "2", "30:1"},     {Two, Any, "rest", "loses"},
      {Three, Any, "3", "15:1"},   {Three, Any, "rest", "loses"},
      {Seven, Any, "7", "4:1"},    {Seven, Any, "rest", "loses"},
      {Eleven, Any, "11", "15:1"}, {Eleven, Any, "rest", "loses"},
      {Twelve, Any, "12", "30:1"}, {Twelve, Any, "rest", "loses"},
      {Craps, Any, "2 3 12", "7:1"}, {Craps, Any, "rest", "loses"},
      // A part that hits at its own odds pays for the parts that miss.
      {CAndE, Any, "2 3 12", "6:2"}, {CAndE, Any, "11", "14:2"}, {CAndE, Any, "rest", "loses"},
      {Horn, Any, "2 12", "27:4"}, {Horn, Any, "3 11", "12:4"}, {Horn, Any, "rest", "loses"},
      {World, Any, "2 12", "26:5"}, {World, Any, "3 11", "11:5"}, {World, Any, "7", "stays"},
      {World, Any, "rest", "loses"},
      {Over7, Any, "8 9 10 11 12", "1:1"}, {Over7, Any, "rest", "loses"},
      {Under7, Any, "2 3 4 5 6", "1:1"},   {Under7, Any, "rest", "loses"},
      {AllSmall, Any, "7", "loses"}, {AllTall, Any, "7", "loses"}, {MakeAll, Any, "7", "loses"},
      {FourRollsNo7, Any, "7", "loses"},
      {Point7, ComeOut, "2 3 7 11 12", "loses"},
      {Point7, PointJustOn, "7", "7:1"},      {Point7, PointJustOn, "rest", "loses"},
      {SevenPoint7, ComeOut, "7", "2:1"},     {SevenPoint7, ComeOut, "2 3 11 12", "loses"},
      {SevenPoint7, PointJustOn, "7", "3:1"}, {SevenPoint7, PointJustOn, "rest", "loses"},
      {Midway, Any, "3-3 4-4", "2:1"}, {Midway, Any, "6 7 8", "1:1"},
      {Midway, Any, "rest", "loses"},
      // With no point made and no pass, in the hand that these states stand for.
      {SharpShooter, PointOn, "7", "loses"}, {RideTheLine, PointOn, "7", "loses"},
      {Fire, PointOn, "7", "loses"},
  };
  const struct { int number; const char *faces, *pays; } hops[] = {
      {67, "1-3", "15:1"}, {68, "1-4", "15:1"}, {69, "1-5", "15:1"}, {70, "1-6", "15:1"},
      {71, "2-2", "30:1"}, {72, "2-3", "15:1"}, {73, "2-4", "15:1"}, {74, "2-5", "15:1"},
      {75, "2-6", "15:1"}, {76, "3-3", "30:1"}, {77, "3-4", "15:1"}, {78, "3-5", "15:1"},
      {79, "3-6", "15:1"}, {80, "4-4", "30:1"}, {81, "4-5", "15:1"}, {82, "4-6", "15:1"},
      {83, "5-5", "30:1"},
  };
  for (const auto& hop : hops) {
    card.push_back({hop.number, Any, hop.faces, hop.pays});
    card.push_back({hop.number, Any, "rest", "loses"});
  }
  AddPointBets(card);
  return card;
}
// clang-format on

struct Thrown {
  int point;    // on when the dice are thrown; 0 on a come-out
  bool justOn;  // it came on with the roll before
  int die1, die2;
};

bool Fits(When when, const Thrown& thrown) {
  switch (when) {
    case When::Any:
      return true;
    case When::ComeOut:
      return thrown.point == 0;
    case When::PointOn:
      return thrown.point != 0;
    case When::PointJustOn:
      return thrown.point != 0 && thrown.justOn;
  }
  return false;
}

bool Fits(const std::string& word, const Thrown& thrown, int barred) {
  const int total = thrown.die1 + thrown.die2;
  if (word == "rest") return true;
  if (word == "point") return total == thrown.point;
  if (word == "barred") return total == barred;
  if (word.find('-') == std::string::npos) return total == std::stoi(word);
  const auto [low, high] = std::minmax(thrown.die1, thrown.die2);
  return word[0] - '0' == low && word[2] - '0' == high;
}

struct CardEntry {
  CardLine line;
  std::vector<std::string> words;  // of its rolls
};

const auto CardOfBet = [] {
  std::array<std::vector<CardEntry>, LastBet + 1> byBet;
  for (const CardLine& line : MakeCard()) {
    std::istringstream words(line.rolls);
    At(byBet, line.number)
        .push_back({line, std::vector<std::string>{std::istream_iterator<std::string>(words),
                                                   std::istream_iterator<std::string>()}});
  }
  return byBet;
}();

// What the card says of a bet: empty when it says nothing.
std::string Gets(int number, const Thrown& thrown, int barred) {
  for (const auto& [line, words] : At(CardOfBet, number)) {
    const bool hit =
        Fits(line.when, thrown) &&
        std::any_of(words.begin(), words.end(), [&](auto& w) { return Fits(w, thrown, barred); });
    if (!hit) continue;
    if (line.gets != "taken" && line.gets != "laid") return line.gets;
    const PointWords& odds = PointCard[PointIndex(thrown.point)];
    return line.gets == "taken" ? odds.taken : odds.laid;
  }
  return "";
}

bool Between(int number, int first, int last) {
  return number >= first && number <= last;
}

// The flat bet that odds ride on, 0 for other bets.
int FlatUnder(int number) {
  if (number == bet::PassLineOdds || number == bet::DontPassOdds) return number - 1;
  return Between(number, 13, 18) || Between(number, 25, 30) ? number - 6 : 0;
}

// The circumstances of a pass over all bets and rolls.
struct House {
  int barred;
  bool putBets, works, vigUpFront;
};

// A bet and, for odds, its flat bet, as they should be after the roll.
struct Expected {
  Money won;
  std::map<int, Money> bets;
  int32_t streak = 0;
};

constexpr int Stake = 60, OddsStake = 120, Vig = 3;

Money Share(Money stake, const std::string& ratio) {
  const auto colon = ratio.find(':');
  return Money::FromWhole(stake.Floor() * std::stoi(ratio) / std::stoi(ratio.substr(colon + 1)));
}

bool CarriesVig(int number) {
  return Between(number, 1, 6) || Between(number, 37, 42);
}

bool DownAfterWin(int number, const House& house, const Thrown& thrown, bool flatStands) {
  if (Between(number, 7, 18) || number == bet::PassLineOdds || number == bet::DontPassOdds) {
    return true;
  }
  if (Between(number, 19, 24)) return !house.putBets;
  if (Between(number, 25, 30)) return !flatStands;
  return (number == bet::Come || number == bet::DontCome) && thrown.die1 + thrown.die2 == 7;
}

void Follow(int number,
            Money stake,
            const House& house,
            const Thrown& thrown,
            bool works,
            Expected& expected) {
  const std::string gets = Gets(number, thrown, house.barred);
  const int flat = FlatUnder(number);
  const bool flatStands = flat == 0 || expected.bets.count(flat) != 0;
  expected.streak = 0;
  if (gets == "travels") {
    const int point = thrown.die1 + thrown.die2;
    expected.bets[PointIndex(point) + (number == bet::Come ? 19 : 7)] = stake;
  } else if (gets.empty() || gets == "stays") {
    expected.bets[number] = stake;
  } else if (!works) {
    const bool down = number == bet::PassLineOdds || number == bet::DontPassOdds || !flatStands;
    if (flat == 0 || !down) expected.bets[number] = stake;
  } else if (gets == "loses") {
    expected.won -= stake + (CarriesVig(number) && house.vigUpFront ? Vig : 0);
    expected.streak = -1;
  } else {
    expected.won += Share(stake, gets) - (CarriesVig(number) ? Vig : 0);
    expected.streak = 1;
    if (!DownAfterWin(number, house, thrown, flatStands)) expected.bets[number] = stake;
  }
}

Expected Expect(int number, const House& house, const Thrown& thrown) {
  Expected expected;
  const int flat = FlatUnder(number);
  if (flat != 0) Follow(flat, Stake, house, thrown, true, expected);
  Follow(number, flat != 0 ? OddsStake : Stake, house, thrown, house.works, expected);
  return expected;
}

class RuleCard : public RollTest, public ::testing::WithParamInterface<House> {
 protected:
  static void PutDownForCard(int place, int number) {
    const House& house = GetParam();
    const int flat = FlatUnder(number);
    if (flat != 0) {
      PutDown(place, flat, Stake);
      // Idle odds follow the choice for won bets once their flat bet has won twice.
      SetBetStreak(place, flat, 1);
    }
    PutDown(place, number, flat != 0 ? OddsStake : Stake);
    if (!house.works) SetBetWorking(place, number, CalledOff);
    if (!CarriesVig(number)) return;
    auto& vigs = Between(number, 1, 6) ? Table.LayVig : Table.BuyVig;
    At(At(vigs, place), (number - 1) % 6) = Vig;
    if (house.vigUpFront) Table.MoneyOnTable[place] += Vig;
  }

  static void Compare(int place, int number, const Thrown& thrown) {
    const Expected expected = Expect(number, GetParam(), thrown);
    std::map<int, Money> bets;
    for (int other = 1; other <= LastBet; ++other) {
      if (Bet(place, other) != Money()) bets[other] = Bet(place, other);
    }
    const int32_t streak = Table.BetStreak[place][number];
    const int64_t pushed = Stats.Bets[place][number].Tendered.Count;
    if (Won(place) == expected.won && bets == expected.bets && streak == expected.streak &&
        pushed == std::abs(streak)) {
      return;
    }
    std::ostringstream stands;
    for (const auto& [which, amount] : bets)
      stands << BetName[which] << " $" << PlainText(amount) << ", ";
    ADD_FAILURE() << BetName[number] << " on " << thrown.die1 << "-" << thrown.die2
                  << (thrown.justOn ? ", just on point " : ", point ") << thrown.point << ": won "
                  << PlainText(Won(place)) << " instead of " << PlainText(expected.won)
                  << ", streak " << streak << ", standing: " << stands.str();
  }

  // Eight bets at a time, one a place.
  static void ThrowAt(int firstBet,
                      const Thrown& thrown,
                      const TableState& fresh,
                      const StatsState& empty) {
    Table = fresh;
    Stats.Bets = empty.Bets;
    Stats.HandBets = Stats.LastHandBets = {};
    Table.Point = thrown.point;
    Table.LastPoint = thrown.justOn ? 0 : thrown.point;
    for (int place = 1; place <= LastPlace && firstBet + place - 1 <= LastBet; ++place)
      PutDownForCard(place, firstBet + place - 1);
    Throw(thrown.die1, thrown.die2);
    const bool handEnded = thrown.point != 0 && thrown.die1 + thrown.die2 == 7;
    if (handEnded) std::copy_n(Stats.Bets.begin() + LastHand, SlotsInScope, Stats.Bets.begin());
    for (int place = 1; place <= LastPlace && firstBet + place - 1 <= LastBet; ++place)
      Compare(place, firstBet + place - 1, thrown);
  }
};

TEST_P(RuleCard, HoldsForEveryBetOnEveryRollInEveryState) {
  LiftLimits();
  Settings.BarNumber = GetParam().barred;
  Settings.AllowPutBets = GetParam().putBets;
  Settings.LayVigAllBets = Settings.BuyVigAllBets = GetParam().vigUpFront;
  for (int place = 1; place <= LastPlace; ++place)
    Seat(place);
  const TableState fresh = Table;
  const StatsState empty = Stats;
  for (const int point : {0, 4, 5, 6, 8, 9, 10}) {
    for (int state = 0; state < (point == 0 ? 36 : 72); ++state) {
      const Thrown thrown{point, state >= 36, state % 36 / 6 + 1, state % 6 + 1};
      for (int first = 1; first <= LastBet; first += LastPlace)
        ThrowAt(first, thrown, fresh, empty);
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Houses,
                         RuleCard,
                         ::testing::Values(House{12, true, true, true},
                                           House{2, false, true, false},
                                           House{12, true, false, true},
                                           House{2, false, false, false}));
// --- Bets that run over several rolls ----------------------------------------------------------

using Settlement = RollTest;
constexpr std::pair<int, int> AnySeven = {3, 4};

// `count` passes by the point of 4, then a point and the seven-out.
Rolls PointsThenOut(int count) {
  Rolls rolls;
  for (int k = 0; k < 2 * count + 1; ++k)
    rolls.emplace_back(1, 3);
  rolls.push_back(AnySeven);
  return rolls;
}

// `count` passes by naturals, then a point and the seven-out.
Rolls NaturalsThenOut(int count) {
  Rolls rolls;
  for (int k = 0; k < count; ++k)
    rolls.push_back(k % 2 == 0 ? AnySeven : std::pair(5, 6));
  rolls.emplace_back(1, 3);
  rolls.push_back(AnySeven);
  return rolls;
}

// `count` different points made, each of them twice, then a point and the seven-out.
Rolls DifferentPointsThenOut(int count) {
  constexpr std::pair<int, int> Points[] = {{2, 2}, {1, 4}, {1, 5}, {4, 4}, {6, 3}, {5, 5}};
  Rolls rolls;
  for (int k = 0; k < count; ++k)
    rolls.insert(rolls.end(), 4, Points[k]);
  rolls.emplace_back(1, 3);
  rolls.push_back(AnySeven);
  return rolls;
}

TEST_F(Settlement, HandBetsPayByWhatTheShooterMade) {
  LiftLimits();
  const struct {
    int number;
    Rolls (*hand)(int count);
    std::vector<int> pays;  // by the count; the last figure stands for more; negative: lost
  } cases[] = {
      {bet::SharpShooter, PointsThenOut, {-1, -1, -1, 5, 9, 19, 29, 49, 99, 199, 299, 299}},
      {bet::SharpShooter, NaturalsThenOut, {-1, -1, -1, -1, -1}},
      {bet::RideTheLine, PointsThenOut, {-1, -1, -1, 1, 2, 3, 6, 10, 20, 30, 40, 100, 100}},
      {bet::RideTheLine, NaturalsThenOut, {-1, -1, -1, 1, 2, 3, 6, 10, 20, 30, 40, 100, 100}},
      {bet::Fire, DifferentPointsThenOut, {-1, -1, -1, -1, 24, 249, 999}},
      {bet::Fire, PointsThenOut, {-1, -1, -1, -1, -1, -1, -1}},
  };
  for (const auto& each : cases) {
    Seat(5);
    PutDown(5, each.number, 10);
    for (int count = 0; count < static_cast<int>(each.pays.size()); ++count) {
      SetBankrollSlots(5, Buyin);
      Stats.Bets = {};
      PutDown(5, each.number, 10);
      Throw(each.hand(count));
      const int pays = At(each.pays, count);
      EXPECT_EQ(Won(5), Money(10 * pays)) << BetName[each.number] << " after " << count;
      EXPECT_EQ(Bet(5, each.number), Money(pays > 0 ? 10 : 0));
      EXPECT_EQ(Table.FirePointsMask | Table.FirePoints | Table.SharpShooterPoints |
                    Table.RideTheLinePasses,
                0);
    }
    PutDown(5, each.number, 0);
  }
}

TEST_F(Settlement, WithTheSpecialBetsOffTheyRestWhileFireAndMidwayPlay) {
  LiftLimits();
  Settings.UseSpecialPropBets = false;
  Seat(1);
  for (const int number : {bet::SharpShooter, bet::RideTheLine, bet::Point7, bet::SevenPoint7,
                           bet::AllSmall, bet::FourRollsNo7, bet::Fire, bet::Midway}) {
    PutDown(1, number, 10);
  }
  Throw(DifferentPointsThenOut(4));
  EXPECT_EQ(Bet(1, bet::SharpShooter) + Bet(1, bet::RideTheLine) + Bet(1, bet::Point7) +
                Bet(1, bet::SevenPoint7) + Bet(1, bet::AllSmall) + Bet(1, bet::FourRollsNo7),
            Money(60));
  EXPECT_EQ(Table.MarkedNumbers | Table.FourRollCount | Table.SharpShooterPoints |
                Table.RideTheLinePasses,
            0);
  // Fire at 24 to 1; Midway went with the first 4.
  EXPECT_EQ(Won(1), Money(240 - 10));
}

const Rolls SmallRolls = {{1, 1}, {1, 2}, {2, 2}, {1, 4}, {3, 3}};
const Rolls TallRolls = {{4, 4}, {4, 5}, {5, 5}, {5, 6}, {6, 6}};

Rolls Join(Rolls a, const Rolls& b) {
  a.insert(a.end(), b.begin(), b.end());
  return a;
}

TEST_F(Settlement, MarksCompleteTheirBets) {
  const Rolls all = Join(SmallRolls, TallRolls);
  const Rolls nine(all.begin(), all.end() - 1);
  const struct {
    const char* what;
    std::vector<int> held;
    Rolls rolls;
    int won;                  // on bets of 10
    std::vector<int> stands;  // afterwards
    int32_t marks;
  } cases[] = {
      {"small alone is paid and runs again", {84}, SmallRolls, 340, {84}, 0},
      {"tall alone is paid and runs again", {85}, TallRolls, 340, {85}, 0},
      {"small is not marked for tall", {85}, SmallRolls, 0, {85}, 0},
      {"marks stay for Make All, so All Small comes down", {84, 86}, SmallRolls, 340, {86}, 124},
      {"all ten after a part", {84, 85, 86}, all, 340 + 340 + 1750, {85, 86}, 0},
      {"tall first", {84, 85, 86}, Join(TallRolls, SmallRolls), 340 + 340 + 1750, {84, 86}, 0},
      {"nine of ten", {86}, nine, 0, {86}, 8060 - 4096},
      {"a seven clears", {84, 86}, Join(SmallRolls, {AnySeven}), 340 - 10, {}, 0},
      {"nobody plays", {}, all, 0, {}, 0},
  };
  for (const auto& each : cases) {
    SCOPED_TRACE(each.what);
    Reset();
    Settings.BetNeededToShoot = 0;
    LiftLimits();
    Seat(3);
    for (const int number : each.held)
      PutDown(3, number, 10);
    Throw(each.rolls);
    EXPECT_EQ(Won(3), Money(each.won));
    EXPECT_EQ(Table.MarkedNumbers, each.marks);
    for (const int number : {bet::AllSmall, bet::AllTall, bet::MakeAll}) {
      const bool stands = std::count(each.stands.begin(), each.stands.end(), number) != 0;
      EXPECT_EQ(Bet(3, number), Money(stands ? 10 : 0)) << BetName[number];
    }
  }
}

TEST_F(Settlement, MarksAreOfTheTableAndGoWithTheLastBetOnThem) {
  Seat(1);
  Seat(6);
  PutDown(1, bet::AllSmall, 10);
  Throw(1, 1);
  PutDown(6, bet::MakeAll, 10);
  PutDown(1, bet::AllSmall, 0);
  Throw(5, 6);
  EXPECT_EQ(Table.MarkedNumbers, 4 + 2048);
  PutDown(6, bet::MakeAll, 0);
  PutDown(1, bet::AllTall, 10);
  Throw(1, 3);
  EXPECT_EQ(Table.MarkedNumbers, 2048);
}

TEST_F(Settlement, FourRollsNo7CountsFromItsOwnRollAndStartsAgain) {
  Seat(1);
  Throw({{1, 1}, {1, 1}, {1, 1}});
  PutDown(1, bet::FourRollsNo7, 10);
  const struct {
    std::pair<int, int> dice;
    int won;
    int32_t count;
    int stands;
  } rolls[] = {{{1, 1}, 0, 1, 10},  {{1, 2}, 0, 2, 10},  {{6, 6}, 0, 3, 10}, {{5, 6}, 10, 0, 10},
               {{1, 1}, 10, 1, 10}, {AnySeven, 0, 0, 0}, {{1, 1}, 0, 0, 0}};
  for (const auto& roll : rolls) {
    Throw(roll.dice.first, roll.dice.second);
    EXPECT_EQ(Won(1), Money(roll.won));
    EXPECT_EQ(Table.FourRollCount, roll.count);
    EXPECT_EQ(Bet(1, bet::FourRollsNo7), Money(roll.stands));
  }
}

TEST_F(Settlement, SevenBetsAskOnlyForTheRollRightAfterThePoint) {
  Seat(1);
  // The second point comes on a come-out that follows a point made.
  const Rolls rolls = {{2, 2}, {2, 2}, {1, 4}};
  Throw(rolls);
  PutDown(1, bet::Point7, 10);
  PutDown(1, bet::SevenPoint7, 10);
  Throw(3, 4);
  EXPECT_EQ(Won(1), Money(70 + 30));
  Throw({{2, 2}, {1, 1}});
  EXPECT_EQ(Bet(1, bet::Point7) + Bet(1, bet::SevenPoint7), Money());
  PutDown(1, bet::Point7, 10);
  PutDown(1, bet::SevenPoint7, 10);
  Throw(3, 4);
  EXPECT_EQ(Won(1), Money(100 - 20));
  EXPECT_EQ(Bet(1, bet::Point7) + Bet(1, bet::SevenPoint7), Money(20));
}

// --- What a result pays ------------------------------------------------------------------------

constexpr Money Cents(int cents) {
  return Money::FromRaw(cents * 100);
}

TEST_F(Settlement, PayoffIsRoundedDownToWholeSmallestChecks) {
  Seat(1);
  const struct {
    int number, result;
    Money stake, check, gross, net;
  } cases[] = {
      {bet::Place6, Win, 5, 1, Money::FromRaw(58333), 5},
      {bet::Place6, Win, 5, Cents(25), Money::FromRaw(58333), Cents(575)},
      {bet::Place6, Win, 5, Cents(10), Money::FromRaw(58333), Cents(580)},
      {bet::Place6, Win, Cents(50), 1, Money::FromRaw(5833), 0},
      {bet::Big6, Win, Cents(350), 1, Cents(350), 3},
      {bet::Big6, Lose, Cents(350), 1, Cents(-350), -4},
      {bet::Big6, Lose, Cents(350), Cents(25), Cents(-350), Cents(-350)},
      {bet::Big6, Lose, Cents(365), Cents(25), Cents(-365), Cents(-375)},
      {bet::Big6, Lose, Cents(35), Cents(10), Cents(-35), Cents(-40)},
      {bet::Big6, Win, Cents(30), Cents(10), Cents(30), Cents(30)},
      {bet::Big6, LoseOdds, 10, 1, -10, -10},
      {bet::World, Lose, 7, 1, -7, -7},
  };
  for (const auto& each : cases) {
    Settings.Denomination[1] = each.check;
    const Payout payout = FigurePayoff(1, each.number, each.result, each.stake);
    EXPECT_EQ(payout.gross, each.gross) << BetName[each.number];
    EXPECT_EQ(payout.net, each.net) << BetName[each.number];
  }
}

TEST_F(Settlement, PayoffFollowsTheChangedRow) {
  Seat(1);
  const auto row = [](Money num, Money den, Money form = FormTo) {
    PayoffRow changed;
    changed.PayNum = num;
    changed.PayDen = den;
    changed.PayForm = form;
    return changed;
  };
  const struct {
    const char* what;
    PayoffRow& changed;
    PayoffRow to;
    int number, point, die1, die2;
    Money stake, net;
    int result = Win;
  } cases[] = {
      {"31 for 1 is 30 net", Payoffs.Payoff[bet::Two], row(30, 1, FormFor), bet::Two, 0, 1, 1, 1,
       30},
      {"half to one", Payoffs.Payoff[bet::Come], row(Cents(50), 1), bet::Come, 0, 5, 6, 5, 2},
      {"row of Come on the point pays the line", Payoffs.Payoff[bet::Come4], row(3, 1),
       bet::PassLine, 4, 1, 3, 10, 30},
      {"the line's own row pays the come-out", Payoffs.Payoff[bet::PassLine], row(2, 1),
       bet::PassLine, 0, 5, 6, 10, 20},
      {"and not the point", Payoffs.Payoff[bet::PassLine], row(2, 1), bet::PassLine, 4, 1, 3, 10,
       10},
      {"row of Don't Come on the point pays Don't Pass", Payoffs.Payoff[bet::DontCome10], row(1, 2),
       bet::DontPass, 10, 3, 4, 10, 5},
      {"Come Odds pay the line's odds", Payoffs.Payoff[bet::Come4Odds + 1], row(8, 5),
       bet::PassLineOdds, 5, 1, 4, 10, 16, WinOdds},
      {"Don't Come Odds pay Don't Pass Odds", Payoffs.Payoff[bet::DontCome4Odds], row(3, 5),
       bet::DontPassOdds, 4, 3, 4, 10, 6, WinOdds},
      {"Horn is paid by its parts", Payoffs.Payoff[bet::Three], row(16, 1), bet::Horn, 0, 1, 2, 4,
       16 - 3},
      {"C and E by Craps", Payoffs.Payoff[bet::Craps], row(8, 1), bet::CAndE, 0, 6, 6, 2, 7},
      {"World's 7 may win", Payoffs.Payoff[bet::Seven], row(5, 1), bet::World, 0, 3, 4, 5, 1},
      {"or lose", Payoffs.Payoff[bet::Seven], row(3, 1), bet::World, 0, 3, 4, 5, -1},
      {"Field by its pair", Payoffs.FieldPayoff[2], row(3, 2), bet::Field, 0, 2, 1, 5, 7},
      {"a hard 6 in the Field", Payoffs.FieldPayoff[9], row(4, 1), bet::Field, 0, 3, 3, 5, 20},
      {"a loss of half", Payoffs.FieldPayoff[7], row(-1, 2), bet::Field, 0, 5, 1, 5, -3},
      {"no decision", Payoffs.FieldPayoff[12], row(0, 1), bet::Field, 0, 4, 3, 5, 0},
      {"easy 8", Payoffs.MidwayPayoff[4], row(3, 1), bet::Midway, 0, 3, 5, 5, 15},
      {"hard 8", Payoffs.MidwayPayoff[5], row(4, 1), bet::Midway, 0, 4, 4, 5, 20},
      {"7 on the come-out", Payoffs.SevenPointSevenPayoff[1], row(-1, 1), bet::SevenPoint7, 0, 3, 4,
       5, -5},
      {"7 after the point", Payoffs.SevenPointSevenPayoff[2], row(6, 1), bet::SevenPoint7, 4, 3, 4,
       5, 30, 2},
  };
  for (const auto& each : cases) {
    const PayoffRow before = std::exchange(each.changed, each.to);
    Table.LastPoint = each.point;
    Table.Die1 = each.die1;
    Table.Die2 = each.die2;
    Table.DiceTotal = each.die1 + each.die2;
    EXPECT_EQ(FigurePayoff(1, each.number, each.result, each.stake).net, each.net) << each.what;
    each.changed = before;
  }
}

TEST_F(Settlement, LostRowKeepsTheFormOfTheBet) {
  Payoffs.Payoff[bet::Two].PayForm = FormFor;
  const PayoffRow lost = DecidingRow(bet::Two, Lose);
  EXPECT_EQ(lost.PayNum, Money(-1));
  EXPECT_EQ(lost.PayForm, Money(FormFor));
  EXPECT_EQ(lost.PayDen, Money(1));
}

TEST_F(Settlement, VigIsTakenFromWinsAndFromLossesOnlyWhenChargedUpFront) {
  Seat(1);
  Table.LayVig[1][0] = 2;
  Table.BuyVig[1][5] = 3;
  const struct {
    int number, result;
    int32_t upFront;
    Money net;
  } cases[] = {
      {bet::Lay4, Win, -1, 20 - 2},    {bet::Lay4, Win, 0, 20 - 2},
      {bet::Lay4, Lose, -1, -40 - 2},  {bet::Lay4, Lose, 0, -40},
      {bet::Buy10, Win, -1, 80 - 3},   {bet::Buy10, Win, 0, 80 - 3},
      {bet::Buy10, Lose, -1, -40 - 3}, {bet::Buy10, Lose, 0, -40},
  };
  for (const auto& each : cases) {
    Settings.LayVigAllBets = each.number == bet::Lay4 ? each.upFront : ~each.upFront;
    Settings.BuyVigAllBets = each.number == bet::Buy10 ? each.upFront : ~each.upFront;
    EXPECT_EQ(FigurePayoff(1, each.number, each.result, 40).net, each.net)
        << BetName[each.number] << each.upFront;
  }
  Table.LayVig = Table.BuyVig = {};
}

// --- How a result reaches the table ------------------------------------------------------------

TEST_F(Settlement, PushLeavesNoTrace) {
  Payoffs.FieldPayoff[12].PayNum = 0;
  Seat(2);
  PutDown(2, bet::Field, 10);
  PutDown(2, bet::World, 5);
  SetBetStreak(2, bet::Field, 3);
  Throw(4, 3);
  EXPECT_EQ(Won(2), Money());
  EXPECT_EQ(Bet(2, bet::Field) + Bet(2, bet::World), Money(15));
  EXPECT_EQ(Table.BetStreak[2][bet::Field], 3);
  EXPECT_EQ(Table.BetContract[2][bet::Field], Money(10));
  EXPECT_EQ(Stats.Bets[2][bet::Field].Tendered.Count, 0);
  EXPECT_EQ(Stats.Bets[2][bet::World].Tendered.Count, 0);
}

TEST_F(Settlement, StreakCountsAlikeAndTurnsOnTheOther) {
  Seat(1);
  int32_t expected = 0;
  for (const int won : {1, 1, 1, -1, -1, 1, -1}) {
    PutDown(1, bet::Field, 10);
    won > 0 ? Throw(1, 2) : Throw(2, 3);
    expected = expected * won > 0 ? expected + won : won;
    EXPECT_EQ(Table.BetStreak[1][bet::Field], expected);
    EXPECT_EQ(Table.BetContract[1][bet::Field], Money());
  }
}

TEST_F(Settlement, ResultStandsInTheThreeCountedBankrolls) {
  Seat(4, 100);
  PutDown(4, bet::Field, 10);
  Throw(1, 1);
  for (const int scope : {0, 18, 36})
    EXPECT_EQ(Table.Bankroll[4 + scope], Money(120));
  for (const int scope : {9, 27})
    EXPECT_EQ(Table.Bankroll[4 + scope], Money());
}

TEST_F(Settlement, WonBetComesDownOnlyWhereItCannotStay) {
  const struct {
    const char* what;
    int number, total, point, putBets, marks, flat;
    bool cantStay;
  } cases[] = {
      {"box on a seven", bet::Come, 7, 4, -1, 0, 0, true},
      {"box on eleven", bet::Come, 11, 4, -1, 0, 0, false},
      {"don't box on a seven", bet::DontCome, 7, 4, -1, 0, 0, true},
      {"don't box on craps", bet::DontCome, 3, 4, -1, 0, 0, false},
      {"line", bet::PassLine, 4, 0, -1, 0, 0, false},
      {"line odds", bet::PassLineOdds, 4, 0, -1, 0, 43, true},
      {"don't line odds", bet::DontPassOdds, 7, 0, -1, 0, 46, true},
      {"don't come", bet::DontCome4, 7, 0, -1, 0, 0, true},
      {"don't come odds", bet::DontCome10Odds, 7, 0, -1, 0, 12, true},
      {"come with put bets", bet::Come10, 10, 4, -1, 0, 0, false},
      {"come without", bet::Come10, 10, 4, 0, 0, 0, true},
      {"odds over a come bet", bet::Come4Odds, 4, 6, -1, 0, bet::Come4, false},
      {"odds over nothing", bet::Come4Odds, 4, 6, -1, 0, 0, true},
      {"small with a small mark", bet::AllSmall, 6, 0, -1, 4, 0, true},
      {"small with a tall mark", bet::AllSmall, 6, 0, -1, 256, 0, false},
      {"tall with a tall mark", bet::AllTall, 8, 0, -1, 4096, 0, true},
      {"make all with a mark", bet::MakeAll, 8, 0, -1, 4, 0, false},
      {"point 7 with the point on", bet::Point7, 7, 4, -1, 0, 0, true},
      {"7 point 7 with no point", bet::SevenPoint7, 7, 0, -1, 0, 0, false},
      {"place", bet::Place6, 6, 4, -1, 0, 0, false},
  };
  for (const auto& each : cases) {
    Reset();
    LiftLimits();
    Seat(1);
    Settings.AllowPutBets = each.putBets;
    Table.Point = each.point;
    Table.DiceTotal = each.total;
    Table.MarkedNumbers = each.marks;
    if (each.flat != 0) PutDown(1, each.flat, 10);
    PutDown(1, each.number, 10);
    const auto decision = DecideBet(1, Win, each.number);
    ASSERT_TRUE(decision.has_value()) << each.what;
    EXPECT_EQ(decision->cantStay, each.cantStay) << each.what;
    HandleBet(*decision);
    EXPECT_EQ(Bet(1, each.number), Money(each.cantStay ? 0 : 10)) << each.what;
  }
}

TEST_F(Settlement, OffBetsAreLeftAndOffOddsFollowTheirFlatBet) {
  const struct {
    const char* what;
    int number, flat;
    bool flatStands, stands;
  } cases[] = {
      {"a place bet", bet::Place6, 0, false, true},
      {"a come bet", bet::Come4, 0, false, true},
      {"come odds over a standing bet", bet::Come4Odds, bet::Come4, true, true},
      {"come odds over nothing", bet::Come4Odds, bet::Come4, false, false},
      {"don't come odds over nothing", bet::DontCome10Odds, bet::DontCome10, false, false},
      {"line odds", bet::PassLineOdds, bet::PassLine, true, false},
      {"don't pass odds", bet::DontPassOdds, bet::DontPass, true, false},
      {"7 point 7, whose 2 is a row", bet::SevenPoint7, 0, false, true},
  };
  for (const int result : {WinOdds, LoseOdds}) {
    for (const auto& each : cases) {
      Reset();
      Seat(8);
      Table.Point = 4;
      if (each.flatStands) {
        PutDown(8, each.flat, 10);
        SetBetStreak(8, each.flat, 2);
      }
      PutDown(8, each.number, 10);
      SetBetWorking(8, each.number, NotWorking);
      const bool single = each.flat == 0 && each.number != bet::SevenPoint7;
      ResolveBet(2, single ? result / 2 : result, each.number);
      EXPECT_EQ(Bet(8, each.number), Money(each.stands ? 10 : 0)) << each.what;
      EXPECT_EQ(Won(8), Money()) << each.what;
      EXPECT_EQ(Table.BetStreak[8][each.number], 0) << each.what;
    }
  }
}

TEST_F(Settlement, ComeOddsRestOnTheComeOutWhileTheirBetPlays) {
  Seat(1);
  Table.BetWorkingDefault[1][bet::Come4Odds] = NotWorking;
  PutDown(1, bet::Come4, 10);
  PutDown(1, bet::Come4Odds, 30);
  Throw({{4, 4}, {4, 4}});
  Throw(3, 4);
  EXPECT_EQ(Won(1), Money(-10));
  EXPECT_EQ(Bet(1, bet::Come4Odds), Money());
  PutDown(1, bet::Come4, 10);
  PutDown(1, bet::Come4Odds, 30);
  Throw({{4, 4}, {3, 4}});
  EXPECT_EQ(Won(1), Money(-10 - 40));
}

TEST_F(Settlement, ZeroBetIsNotDecided) {
  Seat(1);
  EXPECT_FALSE(DecideBet(1, Win, bet::Field));
  EXPECT_EQ(Won(1), Money());
}

TEST_F(Settlement, VisitsStartAtTheEndsOfTheRail) {
  constexpr int Places[] = {1, 8, 2, 7, 3, 6, 4, 5};
  for (int place = 1; place <= LastPlace; ++place) {
    Seat(place);
    PutDown(place, bet::Big6, 10);
  }
  for (int visit = 1; visit <= LastPlace; ++visit) {
    ResolveBet(visit, Lose, bet::Big6);
    for (int later = visit; later <= LastPlace; ++later)
      EXPECT_EQ(Bet(Places[later - 1], bet::Big6), Money(later == visit ? 0 : 10));
  }
}

TEST_F(Settlement, BoxMovesToItsNumber) {
  Seat(3);
  Table.Point = 8;
  PutDown(3, bet::Come, 15);
  PutDown(3, bet::Come10, 10);
  PutDown(3, bet::Place10, 20);
  PutDown(3, bet::Buy10, 20);
  MoveBet(3, bet::Come, bet::Come10);
  EXPECT_EQ(Bet(3, bet::Come), Money());
  EXPECT_EQ(Bet(3, bet::Come10), Money(25));
  EXPECT_EQ(Table.BetContract[3][bet::Come10], Money(15));
  EXPECT_EQ(Table.ComeOriginal[3][5], Money(15));
  EXPECT_EQ(Bet(3, bet::Place10) + Bet(3, bet::Buy10), Money(40));

  Table.AutoDownPlaceBets[3] = true;
  PutDown(3, bet::DontCome, 15);
  MoveBet(3, bet::DontCome, bet::DontCome10);
  EXPECT_EQ(Bet(3, bet::DontCome10), Money(15));
  EXPECT_EQ(Table.BetContract[3][bet::DontCome10], Money(15));
  EXPECT_EQ(Bet(3, bet::Place10) + Bet(3, bet::Buy10), Money(40));
  MoveBet(3, bet::Come, bet::Come10);
  EXPECT_EQ(Bet(3, bet::Place10), Money(20)) << "an empty box moves nothing";
  PutDown(3, bet::Come, 5);
  MoveBet(3, bet::Come, bet::Come10);
  EXPECT_EQ(Bet(3, bet::Come10), Money(30));
  EXPECT_EQ(Bet(3, bet::Place10) + Bet(3, bet::Buy10), Money());
}

TEST_F(Settlement, TravellingIsUnheardAndIgnoresTheRulesOnNumbers) {
  Settings.AllowPutBets = false;
  FrontEnd.PlaySound = [](Sound) { ADD_FAILURE() << "a sound"; };
  Seat(1);
  PutDown(1, bet::DontCome, 15);
  MoveBet(1, bet::DontCome, bet::DontCome4);
  EXPECT_EQ(Bet(1, bet::DontCome4), Money(15));
  EXPECT_TRUE(Shown.empty());
}

TEST_F(Settlement, WonComeBetForgetsWhatTravelled) {
  Seat(1);
  Throw(1, 3);
  PutDown(1, bet::Come, 15);
  Throw(5, 4);
  PutDown(1, bet::Come4 + 4, 20);
  Throw(5, 4);
  EXPECT_EQ(Table.ComeOriginal[1][4], Money());
  EXPECT_EQ(Stats.ComeTravel[1][4], Money(15));
}

TEST_F(Settlement, UnitIsTheLargestCheckThatDividesTheBet) {
  Seat(1);
  const struct {
    int number;
    int amount, unit;
  } cases[] = {
      {bet::Place6, 12, 6},    {bet::Place6, 6, 6},    {bet::Place6, 60, 30},
      {bet::Place6, 300, 150}, {bet::Place6, 7, 6},    {bet::Field, 10, 5},
      {bet::Field, 1000, 500}, {bet::Field, 500, 100}, {bet::Place4, 50, 25},
  };
  for (const auto& each : cases) {
    PutDown(1, each.number, each.amount);
    EXPECT_EQ(PressingUnit(1, each.number), Money(each.unit))
        << BetName[each.number] << each.amount;
  }
}
}  // namespace
}  // namespace tessarel
