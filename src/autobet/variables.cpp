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

// --- What belongs to a player ------------------------------------------------------------------

double OwnFigure(int place, int32_t number) {
  switch (number) {
    case variable::AvailableBankroll:
      return (BankrollOf(place) - Table.MoneyOnTable[place]).ToDouble();
    case variable::LastAvailableBankroll:
      return Table.AvailableBankroll[place].ToDouble();
    case variable::WinHandling:
      return Table.HandleWinningBets[place] + 1;
    case variable::LossHandling:
      return Table.HandleLosingBets[place] + 1;
    case variable::AutoTakeOdds:
      return TruthNumber(Table.AutoTakeFullOdds[place]);
    case variable::AutoLayOdds:
      return TruthNumber(Table.AutoLayFullOdds[place]);
    case variable::AutoDownPlaceBets:
      return TruthNumber(Table.AutoDownPlaceBets[place]);
    case variable::AutoPassDice:
      return TruthNumber(Table.DeclinesDice[place]);
    default:
      return 0;
  }
}

ScriptValue PlayerVariable(const Reference& reference) {
  const int32_t number = reference.number;
  const int place = ResolvePlayer(reference.player);
  const bool seated = place > 0 && IsTaken(Table, place);
  if (IsStackName(number)) {
    if (!seated) return TextValue(EmptyString);
    return StackNameValue(place, number - variable::FirstStackName);
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
    case variable::Hands:
      return HandsBegun(slot, hand);
    case variable::MostRolls:
      return hands.MostRolls;
    case variable::RollsPerHand:
      return RollsPerHand(slot);
    case variable::MostComeouts:
      return hands.MostComeoutRolls;
    case variable::ComeoutsPerHand:
      return RowPerHand(slot, HandComeoutRolls);
    case variable::MostPasses:
      return hands.MostPasses;
    case variable::PassesPerHand:
      return RowPerHand(slot, HandPasses);
    case variable::MostMisses:
      return hands.MostMisses;
    case variable::MissesPerHand:
      return RowPerHand(slot, HandMisses);
    default:
      return 0;
  }
}

double SlotFigure(int32_t number, int place, int hand) {
  const int slot = SlotOf(place, hand);
  switch (number) {
    case variable::Comps:
      return CompsOf(slot);
    case variable::SimulatedHours:
      return SimHours(Stats.Hands[slot].RollTotal);
    case variable::BeginningBankroll:
      return Table.BankrollBegin[slot].ToDouble();
    case variable::Bankroll:
      return Table.Bankroll[slot].ToDouble();
    case variable::HighBankroll:
      return Table.BankrollHigh[slot].ToDouble();
    case variable::LowBankroll:
      return Table.BankrollLow[slot].ToDouble();
    case variable::AverageBankroll:
      return AverageBankroll(place, 0);
    default:
      return HandFigure(number, slot, hand);
  }
}

// The function that gives a roll statistic for chosen rolls; without arguments it takes them all.
int32_t FunctionOf(int32_t number) {
  if (number >= variable::ComeoutCount && number <= variable::MissPercent)
    return number - variable::ComeoutCount + function::ComeoutCount;
  if (number == variable::PointCount || number == variable::PointPercent)
    return number - variable::PointCount + function::PointCount;
  return RollFunctionOf(number);
}

ScriptValue RollVariable(const Reference& reference) {
  if (reference.number == variable::DegreesOfFreedom)
    return Number(DegreesOfFreedom(reference.first));
  const int32_t function = FunctionOf(reference.number);
  return function == 0 ? Number(0) : RollStatistic(function, reference, {});
}

ScriptValue StatisticVariable(const Reference& reference) {
  if (reference.number >= variable::FirstRollFigure) return RollVariable(reference);
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
    case variable::Shooter:
      return Table.Shooter;
    case variable::LastShooter:
    case variable::OriginalShooter:  // the hand is credited to who began it
      return Table.LastShooter;
    case variable::Bettor:
      return SelectedBettor();
    default:
      return AutoBet.CurrentScriptPlayer;
  }
}

double RollFileFigure(int32_t number) {
  if (RollFile.RollFileName.empty()) return 0;
  switch (number) {
    case variable::RollFileEnded:
      return TruthNumber(RollFile.NextRoll > RollFile.RollCountInFile);
    case variable::RollFileNext:
      return RollFile.NextRoll;
    default:
      return RollFile.RollCountInFile;
  }
}

double SettingFigure(int32_t number) {
  switch (number) {
    case variable::RollsPerHour:
      return Settings.SimRollRate.ToDouble();
    case variable::MinimumBet:
      return Settings.MinPlacardBet.ToDouble();
    case variable::MaximumBet:
      return Settings.MaxPlacardBet.ToDouble();
    case variable::OddsFactor4:
    case variable::OddsFactor10:
      return Settings.OddsAllowed410.ToDouble();
    case variable::OddsFactor5:
    case variable::OddsFactor9:
      return Settings.OddsAllowed59.ToDouble();
    case variable::OddsFactor6:
    case variable::OddsFactor8:
      return Settings.OddsAllowed68.ToDouble();
    case variable::BarNumber:
      return Settings.BarNumber;
    case variable::Seed:
      return Dice.LastSeed;
    case variable::Generator:
      return Dice.CurrentRNG;
    case variable::CompRate:
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
    case variable::Initializing:
      return TruthNumber(AutoBet.Initializing);
    case variable::NewSession:
      return TruthNumber(AutoBet.NewSessionBegins);
    case variable::NewHand:
      return TruthNumber(RollsInHand() == 0);
    case variable::RollFileEnded:
    case variable::RollFileNext:
    case variable::RollFileLength:
      return RollFileFigure(number);
    case variable::Shooter:
    case variable::LastShooter:
    case variable::OriginalShooter:
    case variable::Bettor:
    case variable::AutoBettor:
      return SeatFigure(number);
    case variable::ShooterPasses:
      return TruthNumber(Passed());
    case variable::ShooterMisses:
      return TruthNumber(Missed());
    case variable::Point:
      return Table.Point;
    case variable::LastPoint:
      return Table.LastPoint;
    case variable::DecidedPoint:
      return DecidedPoint() ? Table.LastPoint : 0;
    case variable::DiceTotal:
      return AfterRoll(Table.DiceTotal);
    case variable::DicePair:
      return AfterRoll(10 * Table.Die1 + Table.Die2) / 10.0;
    case variable::Die1:
      return AfterRoll(Table.Die1);
    case variable::Die2:
      return AfterRoll(Table.Die2);
    case variable::DateAndTime:
    case variable::Timer:
      return static_cast<double>(TickMilliseconds());
    case variable::Answer:
      return AutoBet.Answer;
    case variable::Random:
      return FreshRandom();
    case variable::NextIsComeout:
    case variable::PointIsNotEstablished:
      return TruthNumber(Table.Point == 0);
    case variable::NextIsNoComeout:
    case variable::PointIsEstablished:
      return TruthNumber(Table.Point != 0);
    case variable::LastWasComeout:
      return TruthNumber(WasComeout());
    case variable::LastWasNoComeout:
      return TruthNumber(Rolled() && !WasComeout());
    case variable::SevenOut:
      return TruthNumber(SevenedOut());
    case variable::PointIsDecided:
      return TruthNumber(DecidedPoint());
    default:
      return SettingFigure(number);
  }
}

}  // namespace

ScriptValue ReadVariable(const Reference& reference) {
  if (reference.number < variable::FirstStatistic) return PlayerVariable(reference);
  if (reference.number < variable::FirstOfTable) return StatisticVariable(reference);
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
