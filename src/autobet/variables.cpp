#include "autobet/variables.h"

#include <algorithm>

#include "autobet/bet_figures.h"
#include "autobet/roll_figures.h"
#include "base/clock.h"
#include "dice/generators.h"
#include "dice/roll_file.h"
#include "state/books.h"
#include "state/settings.h"
#include "state/table.h"
#include "stats/bankroll_graph.h"
#include "stats/comps.h"
#include "stats/summary_view.h"

namespace tessarel {

namespace {

double Flag(bool truth) {
  return truth ? TrueValue : FalseValue;
}

constexpr int32_t FirstStackName = 800, LastStackName = 899;
constexpr int32_t FirstStatistic = 1000, FirstTableVariable = 5000;

// --- What belongs to a player ------------------------------------------------------------------

double OwnFigure(int place, int32_t number) {
  switch (number) {
    case 651:
      return (BankrollOf(place) - Table.MoneyOnTable[place]).ToDouble();
    case 655:
      return Table.AvailableBankroll[place].ToDouble();
    case 670:
      return Table.HandleWinningBets[place] + 1;
    case 671:
      return Table.HandleLosingBets[place] + 1;
    case 700:
      return Flag(Table.AutoTakeFullOdds[place]);
    case 701:
      return Flag(Table.AutoLayFullOdds[place]);
    case 702:
      return Flag(Table.AutoDownPlaceBets[place]);
    case 703:
      return Flag(Table.DeclinesDice[place]);
    default:
      return 0;
  }
}

ScriptValue PlayerVariable(const Reference& reference) {
  const int32_t number = reference.number;
  const int place = ResolvePlayer(reference.player);
  const bool seated = place > 0 && IsTaken(Table, place);
  if (number >= FirstStackName && number <= LastStackName) {
    if (!seated) return {StringToken, EmptyString};
    return StackNameValue(place, number - FirstStackName);
  }
  if (!seated) return Number(0);
  if (IsStack(number)) return Number(Bet(place, number).ToDouble());
  return Number(IsBet(number) ? BetFigure(place, reference) : OwnFigure(place, number));
}

// --- Statistics --------------------------------------------------------------------------------

// Those of the table are the players' together.
double CompsOf(int slot) {
  if (slot % SlotsInScope != 0) return FigureComps(slot).Comps;
  double sum = 0;
  ForEachPlayer([&](int place) { sum += FigureComps(slot + place).Comps; });
  return sum;
}

// The hands begun: those that ended, and the one that runs in a scope that is counted into.
int32_t HandsBegun(int slot, int hand) {
  const int place = slot % SlotsInScope;
  const bool runs =
      hand != HandLast && hand != HandLastSession && Stats.RollCount[CurrentHand + place][0] > 0;
  return Stats.Hands[slot].HandCount + (runs ? 1 : 0);
}

double RowPerHand(int slot, HandRow row) {
  int64_t sum = 0;
  for (const auto& ofTotal : Stats.HandTable[slot])
    sum += At(ofTotal, row);
  const int32_t hands = Stats.Hands[slot].HandCount;
  return hands > 0 ? static_cast<double>(sum) / hands : 0;
}

double RollsPerHand(int slot) {
  const int32_t hands = Stats.Hands[slot].HandCount;
  return hands > 0 ? static_cast<double>(Stats.RollCount[slot][0]) / hands : 0;
}

double HandFigure(int32_t number, int slot, int hand) {
  const HandFigures& hands = Stats.Hands[slot];
  switch (number) {
    case 1500:
      return HandsBegun(slot, hand);
    case 1501:
      return hands.MostRolls;
    case 1502:
      return RollsPerHand(slot);
    case 1503:
      return hands.MostComeoutRolls;
    case 1504:
      return RowPerHand(slot, HandComeoutRolls);
    case 1505:
      return hands.MostPasses;
    case 1506:
      return RowPerHand(slot, HandPasses);
    case 1507:
      return hands.MostMisses;
    case 1508:
      return RowPerHand(slot, HandMisses);
    default:
      return 0;
  }
}

double SlotFigure(int32_t number, int place, int hand) {
  const int slot = SlotOf(place, hand);
  switch (number) {
    case 1100:
      return CompsOf(slot);
    case 1200:
      return SimHours(Stats.Hands[slot].RollTotal);
    case 1300:
      return Table.BankrollBegin[slot].ToDouble();
    case 1301:
      return Table.Bankroll[slot].ToDouble();
    case 1302:
      return Table.BankrollHigh[slot].ToDouble();
    case 1303:
      return Table.BankrollLow[slot].ToDouble();
    case 1304:
      return AverageBankroll(place, 0);
    default:
      return HandFigure(number, slot, hand);
  }
}

// The function that gives a roll statistic for chosen rolls; without arguments it takes them all.
int32_t FunctionOf(int32_t number) {
  if (number >= 4501 && number <= 4510) return number - 4501 + 25;
  if (number == 4511) return 137;
  if (number >= 2600 && number <= 2605) return number - 2600 + 40;
  if (number == 4606 || number == 4607) return number - 4606 + 46;
  return 0;
}

ScriptValue RollVariable(const Reference& reference) {
  constexpr int32_t DegreesVariable = 4512;
  if (reference.number == DegreesVariable) return Number(DegreesOfFreedom(reference.first));
  const int32_t function = FunctionOf(reference.number);
  return function == 0 ? Number(0) : RollStatistic(function, reference, {});
}

ScriptValue StatisticVariable(const Reference& reference) {
  if (reference.number >= 2000) return RollVariable(reference);
  const int place = ResolvePlayer(reference.player);
  if (place < 0 || (place > 0 && !IsTaken(Table, place))) return Number(0);
  return Number(SlotFigure(reference.number, place, reference.hand));
}

// --- The table ---------------------------------------------------------------------------------

// What the last roll did. Before a session's first roll there was none, whatever the dice show.
bool Rolled() {
  return RollsInSession() > 0;
}
bool WasComeout() {
  return Rolled() && Table.LastPoint == 0;
}
bool DecidedPoint() {
  return Rolled() && Table.LastPoint != 0 && Table.Point == 0;
}
bool SevenedOut() {
  return DecidedPoint() && Table.DiceTotal == 7;
}
bool Passed() {
  if (WasComeout()) return Table.DiceTotal == 7 || Table.DiceTotal == 11;
  return DecidedPoint() && Table.DiceTotal != 7;
}
bool Missed() {
  if (WasComeout()) return Table.DiceTotal == 2 || Table.DiceTotal == 3 || Table.DiceTotal == 12;
  return SevenedOut();
}

int32_t AfterRoll(int32_t figure) {
  return Rolled() ? figure : 0;
}

double SeatFigure(int32_t number) {
  switch (number) {
    case 5200:
      return Table.Shooter;
    case 5201:
    case 5202:  // the original shooter: the hand is credited to who began it
      return Table.LastShooter;
    case 5203:
      return SelectedBettor();
    default:
      return AutoBet.CurrentScriptPlayer;
  }
}

double RollFileFigure(int32_t number) {
  if (RollFile.RollFileName.empty()) return 0;
  switch (number) {
    case 5005:
      return Flag(RollFile.NextRoll > RollFile.RollCountInFile);
    case 5006:
      return RollFile.NextRoll;
    default:
      return RollFile.RollCountInFile;
  }
}

double SettingFigure(int32_t number) {
  switch (number) {
    case 5603:
      return Settings.SimRollRate.ToDouble();
    case 5610:
      return Settings.MinPlacardBet.ToDouble();
    case 5611:
      return Settings.MaxPlacardBet.ToDouble();
    case 5612:
    case 5617:
      return Settings.OddsAllowed410.ToDouble();
    case 5613:
    case 5616:
      return Settings.OddsAllowed59.ToDouble();
    case 5614:
    case 5615:
      return Settings.OddsAllowed68.ToDouble();
    case 5630:
      return Settings.BarNumber;
    case 5655:
      return Dice.LastSeed;
    case 5672:
      return Dice.CurrentRNG;
    case 5691:
      return Settings.CompRate.ToDouble() * 0.01;
    default:
      return 0;
  }
}

// From 0 to just below 1: SplitMix64 (Steele, Lea and Flood, 2014), begun from the machine's own
// source, which by itself would be too slow for every read.
double FreshRandom() {
  uint64_t& state = AutoBet.RandomState;
  while (state == 0) {
    state = static_cast<uint64_t>(PlatformRandom(1 << 30)) << 32 |
            static_cast<uint64_t>(PlatformRandom(1 << 30));
  }
  uint64_t word = state += 0x9E3779B97F4A7C15;
  word = (word ^ word >> 30) * 0xBF58476D1CE4E5B9;
  word = (word ^ word >> 27) * 0x94D049BB133111EB;
  word ^= word >> 31;
  return static_cast<double>(word >> 11) * 0x1p-53;
}

double TableVariable(int32_t number) {
  switch (number) {
    case 5000:
      return Flag(AutoBet.Initializing);
    case 5001:
      return Flag(AutoBet.NewSessionBegins);
    case 5002:
      return Flag(RollsInHand() == 0);
    case 5005:
    case 5006:
    case 5007:
      return RollFileFigure(number);
    case 5200:
    case 5201:
    case 5202:
    case 5203:
    case 5204:
      return SeatFigure(number);
    case 5300:
      return Flag(Passed());
    case 5301:
      return Flag(Missed());
    case 5500:
      return Table.Point;
    case 5501:
      return Table.LastPoint;
    case 5502:
      return DecidedPoint() ? Table.LastPoint : 0;
    case 5510:
      return AfterRoll(Table.DiceTotal);
    case 5511:
      return AfterRoll(10 * Table.Die1 + Table.Die2) / 10.0;
    case 5512:
      return AfterRoll(Table.Die1);
    case 5513:
      return AfterRoll(Table.Die2);
    case 5693:
    case 5696:
      return static_cast<double>(TickMilliseconds());
    case 5697:
      return AutoBet.Answer;
    case 5698:
      return FreshRandom();
    case 5704:
    case 5711:
      return Flag(Table.Point == 0);
    case 5705:
    case 5710:
      return Flag(Table.Point != 0);
    case 5706:
      return Flag(WasComeout());
    case 5707:
      return Flag(Rolled() && !WasComeout());
    case 5708:
      return Flag(SevenedOut());
    case 5709:
      return Flag(DecidedPoint());
    default:
      return SettingFigure(number);
  }
}

}  // namespace

ScriptValue ReadVariable(const Reference& reference) {
  if (reference.number < FirstStatistic) return PlayerVariable(reference);
  if (reference.number < FirstTableVariable) return StatisticVariable(reference);
  return Number(TableVariable(reference.number));
}

double AverageBankroll(int place, int rolls) {
  if (place < 1 || place > LastPlace || !IsTaken(Table, place)) return 0;
  const RollSpan held = HeldRolls(place);
  if (held.Last < held.First) return BankrollOf(place).ToDouble();
  if (rolls == 0) return AverageBankroll(place).value_or(BankrollOf(place).ToDouble());
  const int32_t first = std::max(held.First, held.Last - rolls + 1);
  Money sum;
  for (int32_t roll = first; roll <= held.Last; ++roll)
    sum += GraphPoint(place, roll).value_or(Money());
  return sum.ToDouble() / (held.Last - first + 1);
}

}  // namespace tessarel
