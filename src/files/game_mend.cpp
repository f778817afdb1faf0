// What a loaded game goes through before anybody plays it: its records may hold anything, so every
// value is brought into the range that the rules and the statistics count on. A game that the
// program has saved passes through unchanged.
#include <algorithm>
#include <bit>
#include <span>

#include "config/advantage.h"
#include "config/setting_fields.h"
#include "dice/generators.h"
#include "dice/probability.h"
#include "dice/roll_file_edit.h"
#include "engine/seats.h"
#include "engine/special_bets.h"
#include "files/game_blocks.h"
#include "state/books.h"
#include "state/payoffs.h"
#include "state/scripts.h"
#include "state/settings.h"
#include "state/table.h"
#include "state/view_state.h"
#include "stats/bankroll_graph.h"
#include "stats/selection.h"
#include "stats/session_statistics.h"
#include "texts/language.h"

namespace tessarel {

namespace {

// Out of reach of any bet and bankroll, and its products with payoffs still fit.
constexpr Money AmountLimit = 999'999'999;
// The sums of two hundred bets at this limit still fit.
constexpr Money SumLimit = Money::FromWhole(4'000'000'000'000);
constexpr Money StackLimit = Money::FromRaw(999'999'999'999'999'999);

template <class Value>
void Confine(Value& value, Value low, Value high) {
  value = std::clamp(value, low, high);
}

// --- Settings ----------------------------------------------------------------------------------

bool DenominationsHold() {
  const std::span values(Settings.Denomination.begin() + 1, 5);
  return values[0] > Money() && std::ranges::is_sorted(values) &&
         std::ranges::all_of(values,
                             [](Money value) { return IsMultiple(value, SmallestCheck()); });
}

// A minimum is a number of whole checks.
void MendMinimum(Money& minimum) {
  if (minimum < SmallestCheck() || !IsMultiple(minimum, SmallestCheck())) minimum = SmallestCheck();
}

void MendSettings() {
  if (Settings.InfoTipLevel < 0 || Settings.InfoTipLevel > 4) Settings.InfoTipLevel = 0;
  SetLanguage(Settings.Language);
  BringFieldsIntoRange();
  if (!DenominationsHold()) Settings.Denomination = SettingsState{}.Denomination;
  MendMinimum(Settings.MinPlacardBet);
  MendMinimum(Settings.MinPlacardPropBet);
  Settings.MaxPlacardBet = std::max(Settings.MaxPlacardBet, Settings.MinPlacardBet);
}

// A row that cannot pay, or costs more than the wager, takes its original values.
void MendRows(std::span<PayoffRow> rows, std::span<const PayoffRow> originals) {
  for (size_t k = 0; k < rows.size(); ++k) {
    PayoffRow& row = rows[k];
    const bool pays = row.PayDen > Money() && row.PayDen <= AmountLimit &&
                      row.PayNum >= -row.PayDen && row.PayNum <= AmountLimit;
    if (!pays) row = originals[k];
    if (row.PayForm != Money(FormFor)) row.PayForm = FormTo;
  }
}

void MendPayoffs() {
  const PayoffState read = Payoffs;
  DefaultPayoffs();
  const PayoffState original = Payoffs;
  Payoffs = read;
  MendRows(Payoffs.Payoff, original.Payoff);
  MendRows(Payoffs.FieldPayoff, original.FieldPayoff);
  MendRows(Payoffs.SevenPointSevenPayoff, original.SevenPointSevenPayoff);
  MendRows(Payoffs.MidwayPayoff, original.MidwayPayoff);
  MendRows(Payoffs.SharpShooterPayoff, original.SharpShooterPayoff);
  MendRows(Payoffs.RideTheLinePayoff, original.RideTheLinePayoff);
  MendRows(Payoffs.FirePayoff, original.FirePayoff);
  FigurePayoffUnits();
}

void MendDice() {
  Dice.CurrentSeed = std::max(Dice.CurrentSeed, 0);
  Dice.LastSeed = std::max(Dice.LastSeed, 0);
  Confine<int32_t>(Probability.optProbability, ShownAsPercentages, ShownAsRollsFromTrue);
  if (Probability.RollsOutOf <= 0) Probability.RollsOutOf = ProbabilityState{}.RollsOutOf;
}

// --- Places ------------------------------------------------------------------------------------

void MendBet(int place, int number) {
  const Money limit = IsBet(number) ? AmountLimit : IsStack(number) ? StackLimit : Money();
  for (auto* amounts : {&Table.BetAmount, &Table.BetAmountBefore, &Table.BetAmountAfterRoll})
    Confine(At(At(*amounts, place), number), Money(), limit);
  if (number > LastBet) return;
  Confine(Table.BetContract[place][number], Money(), limit);
  Confine<int32_t>(Table.BetWorking[place][number], CalledOff, CalledOn);
  for (auto* plane : {&Table.BetStreak, &Table.BetStreakBefore})
    Confine(At(At(*plane, place), number), -MaxRolls, MaxRolls);
}

// Vig is paid on a bet that stands.
void MendVig(int place) {
  for (int k = 0; k < FamilySize; ++k) {
    const auto limit = [=](Family family) {
      return Bet(place, family + k) > Money() ? AmountLimit : Money();
    };
    Confine(Table.LayVig[place][k], Money(), limit(LayFamily));
    Confine(Table.BuyVig[place][k], Money(), limit(BuyFamily));
    Confine(Table.ComeOriginal[place][k], Money(), AmountLimit);
  }
}

void MendVisibleStacks(int place) {
  auto& visible = Table.VisibleStack[place];
  visible[0] = 0;
  const std::span shown(visible.begin() + 1, 4);
  auto sorted = visible;
  std::ranges::sort(sorted);
  if (std::ranges::all_of(shown, IsStack) && std::ranges::adjacent_find(sorted) == sorted.end())
    return;
  for (int position = 1; position <= 4; ++position)
    At(visible, position) = FirstStack + position - 1;
}

void MendPlace(int place) {
  for (int number = 0; number <= LastNumber; ++number)
    MendBet(place, number);
  for (int number = bet::SharpShooter; number <= bet::Fire; ++number)
    Table.BetWorkingDefault[place][number] = IsWorking;
  MendVig(place);
  MendVisibleStacks(place);
  Table.BetWorkingBefore[place] = Table.BetWorking[place];
  Table.MoneyOnTable[place] = FigureMoneyOnTable(place);
  Table.AvailableBankroll[place] = BankrollOf(place) - Table.MoneyOnTable[place];
}

// The counted slots of a place hold one and the same bankroll.
void MendBankrolls() {
  for (int slot = 0; slot < SlotCount; ++slot) {
    const int place = slot % SlotsInScope;
    const bool open = place != 0 && !IsTaken(Table, place);
    for (auto* bankrolls :
         {&Table.Bankroll, &Table.BankrollBegin, &Table.BankrollHigh, &Table.BankrollLow}) {
      Money& bankroll = At(*bankrolls, slot);
      Confine(bankroll, open ? Money() : -AmountLimit, open ? Money() : AmountLimit);
    }
  }
  ForEachPlayer([](int place) { SetBankrollSlots(place, BankrollOf(place)); });
}

// --- Statistics --------------------------------------------------------------------------------

// What is counted on was never counted more often than there were rolls; the copies of a hand and a
// session may be older than the count of all sessions.
void MendCounts() {
  const int32_t rolls = std::max(Stats.RollCount[AllSessions][0], 0);
  for (int slot = 0; slot < SlotCount; ++slot) {
    const bool counted = IsCounted(static_cast<Scope>(slot / SlotsInScope * SlotsInScope));
    const auto confine = [high = counted ? rolls : INT32_MAX](int32_t& count) {
      Confine(count, 0, high);
    };
    std::ranges::for_each(Stats.RollCount[slot], confine);
    HandFigures& hand = Stats.Hands[slot];
    for (int32_t* figure : {&hand.HandCount, &hand.RollTotal, &hand.MostRolls,
                            &hand.MostComeoutRolls, &hand.MostPasses, &hand.MostMisses}) {
      confine(*figure);
    }
    for (auto& row : Stats.HandTable[slot])
      std::ranges::for_each(row, confine);
  }
  for (int32_t* count : {&Stats.HandComeouts, &Stats.HandPassCount, &Stats.HandMissCount})
    Confine(*count, 0, rolls);
  for (auto& gaps : Stats.GapCount)
    std::ranges::for_each(gaps, [rolls](int32_t& count) { Confine(count, 0, rolls); });
  for (int32_t& last : Stats.LastCame)
    Confine(last, 0, RollsInSession());
}

void MendMeasures(BetMeasures& measures) {
  for (Money* measure : {&measures.Sum, &measures.High, &measures.Low, &measures.Last})
    Confine(*measure, Money(), SumLimit);
  for (int64_t* count : {&measures.Count, &measures.LastRoll})
    Confine(*count, int64_t{0}, SumLimit.Floor());
}

NumberSet BetsWithAnEntry(const PerBet<BetRecord>& records) {
  NumberSet bets;
  for (int number = 1; number < std::ssize(records); ++number) {
    if (At(records, number).Tendered.Count > 0) bets.Add(number);
  }
  return bets;
}

void MendBetRecords() {
  for (auto& bets : Stats.Bets) {
    for (BetRecord& record : bets) {
      for (BetMeasures* measures : {&record.Tendered, &record.Won, &record.Lost})
        MendMeasures(*measures);
    }
  }
  for (auto& travel : Stats.ComeTravel) {
    for (Money& amount : travel)
      Confine(amount, Money(), SumLimit);
  }
  for (int place = 1; place <= LastPlace; ++place) {
    Stats.HandBets[place] = BetsWithAnEntry(Stats.Bets[place + CurrentHand]);
    Stats.LastHandBets[place] = BetsWithAnEntry(Stats.Bets[place + LastHand]);
  }
}

// What a player has put in is what is left of his bankroll without what he won and lost.
void MendInvested() {
  ForEachPlayer([](int place) {
    Money invested = BankrollOf(place);
    for (const BetRecord& record : Stats.Bets[place + CurrentSession])
      invested -= record.Won.Sum - record.Lost.Sum;
    Table.InvestedBankroll[place] = invested;
  });
}

// --- The game between two rolls ----------------------------------------------------------------

void MendPlayer(int32_t& place) {
  if (place < 1 || place > LastPlace || !IsTaken(Table, place)) place = 0;
}

void MendDiceShown() {
  const auto isFace = [](int32_t die) { return die >= 1 && die <= 6; };
  if (!isFace(Table.Die1) || !isFace(Table.Die2)) Table.Die1 = Table.Die2 = 0;
  Table.DiceTotal = Table.Die1 + Table.Die2;
}

void MendGame() {
  for (int32_t* place : {&Table.Shooter, &Table.LastShooter, &Table.PreviousShooter})
    MendPlayer(*place);
  if (Table.Shooter == 0 && Table.PlayerCount > 0) {
    Table.Shooter = std::countr_zero(Table.TakenPlaces);
  }
  for (int32_t* point : {&Table.Point, &Table.LastPoint, &Table.PointBeforeLast}) {
    if (!IsPointNumber(*point)) *point = 0;
  }
  MendDiceShown();
  constexpr int32_t AllPoints = (1 << FamilySize) - 1;
  Table.FirePointsMask &= AllPoints;
  Table.FirePoints = std::popcount(static_cast<uint32_t>(Table.FirePointsMask));
  Table.MarkedNumbers &= AllMarks;
  Confine(Table.FourRollCount, 0, 3);
  Confine(Table.SharpShooterPoints, 0, MaxRolls);
  Confine(Table.RideTheLinePasses, 0, MaxRolls);
  Confine(Table.GraphIndex, 0, GraphLength);
}

// The stop at a bankroll's limit is not kept, but what has brought it about is.
void MendBankrollStop() {
  Table.BankrollStopPlace = 0;
  ForEachPlayer([](int place) {
    if (Table.BankrollStopPlace == 0 && Abs(BankrollOf(place)) > BankrollLimit)
      Table.BankrollStopPlace = place;
  });
}

// --- Views -------------------------------------------------------------------------------------

void MendGraph() {
  BankrollGraphState& graph = BankrollGraph;
  const BankrollGraphState usual;
  Confine<int32_t>(graph.GraphPlotType, PlotByPage, PlotByScrolling);
  Confine(graph.GraphThickness, 0, 3);
  Confine<int32_t>(graph.GraphAdjustType, AdjustByHand, AutoSnapBack);
  Confine<int32_t>(graph.GraphStyle, PlainGraph, SolidGraph);
  graph.GraphColor = std::max(graph.GraphColor, 0);
  Confine(graph.MovingAverageRolls, 0, MaxAverageRolls);
  if (graph.GraphWidth < 1 || graph.GraphWidth > GraphLength) graph.GraphWidth = usual.GraphWidth;
  for (int32_t* rolls : {&graph.RefRolls1, &graph.RefRolls2, &graph.GraphScrolledBack})
    Confine(*rolls, 0, GraphLength);
  if (graph.GraphScaleLow <= Money()) graph.GraphScaleLow = Money::FromRaw(2000);
  if (graph.GraphScaleHigh <= Money()) graph.GraphScaleHigh = graph.GraphScaleLow;
  if (graph.GraphScaleStep <= Money()) graph.GraphScaleStep = usual.GraphScaleStep;
  for (Money* scale : {&graph.GraphScaleLow, &graph.GraphScaleHigh, &graph.GraphScaleStep})
    *scale = std::min(*scale, AmountLimit);
}

void MendSelections() {
  constexpr PlaceSelection Places = (1u << (LastPlace + 1)) - 1;
  for (PlaceSelection* selection :
       {&ViewSelections.BetResultsPlayer, &ViewSelections.BetTrendsPlayer,
        &ViewSelections.HandsPlayer, &ViewSelections.SummaryPlayer,
        &ViewSelections.RollTotalsPlayer}) {
    *selection &= Places;
  }
  for (int32_t* place : {&ViewSelections.CSPlayer, &ViewSelections.SessionsPlayer}) {
    if (*place < 0 || *place > LastPlace) *place = 0;
  }
  RepairSessionsView();
  RollFileEdit.optInsertRolls = RollFileEdit.optInsertRolls != 0 ? 1 : 0;
}

}  // namespace

void MendLoadedGame() {
  MendSettings();
  MendPayoffs();
  MendDice();
  for (int place = 1; place <= LastPlace; ++place) {
    if (Table.PlayerName[place].empty()) ClearPlace(place);
  }
  RebuildDerived();
  MendBankrolls();
  for (int place = 1; place <= LastPlace; ++place)
    MendPlace(place);
  RebuildDerived();
  MendCounts();
  MendBetRecords();
  MendInvested();
  MendGame();
  MendBankrollStop();
  MendGraph();
  MendSelections();
  MendViews();
  Scripts.ProgramReady = false;
}

}  // namespace tessarel
