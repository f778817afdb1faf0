#include "autobet/bet_figures.h"

#include <algorithm>

#include "autobet/roll_figures.h"
#include "config/advantage.h"
#include "state/books.h"
#include "state/table.h"
#include "state/vig.h"
#include "stats/summary_view.h"

namespace tessarel {

namespace {

// A place's row of the statistics, and what tells how long ago something in it was.
struct Period {
  int slot = 0;
  int32_t rolls = 0;     // of the table in the scope
  int32_t lastRoll = 0;  // the number of the scope's last roll, as entries are numbered
};

// Entries of a hand carry roll numbers of the session.
int32_t LastRollOf(int scope) {
  switch (scope) {
    case LastHand:
      return RollsInSession() - RollsInHand();
    case LastSession:
    case AllSessions:
      return Stats.RollCount[scope][0];
    default:
      return RollsInSession();
  }
}

Period PeriodOf(int place, int hand) {
  const int scope = SlotOf(0, hand);
  return {scope + place, Stats.RollCount[scope][0], LastRollOf(scope)};
}

// 0, with the statement failed.
double Fail(ScriptFault fault) {
  FailScript(fault);
  return 0;
}

double Quotient(Money amount, double divisor, ScriptFault fault) {
  return divisor > 0 ? amount.ToDouble() / divisor : Fail(fault);
}

bool CameLast(const BetMeasures& measures, const Period& period) {
  return measures.Count > 0 && measures.LastRoll == period.lastRoll;
}

Money AmountOnLastRoll(const BetMeasures& measures, const Period& period) {
  return CameLast(measures, period) ? measures.Last : Money();
}

double RollsSinceEntry(const BetMeasures& measures, const Period& period) {
  if (measures.Count == 0) return period.rolls;
  return static_cast<double>(std::max<int64_t>(period.lastRoll - measures.LastRoll, 0));
}

double PerHour(Money amount, int64_t count, const Period& period, ScriptFault fault) {
  if (count == 0) return Fail(fault);
  return Quotient(amount, SimHours(Stats.Hands[period.slot].RollTotal), fault);
}

double MeasureFigure(const BetMeasures& measures,
                     int modifier,
                     const Period& period,
                     ScriptFault fault) {
  switch (modifier) {
    case ModTotal:
    case ModTotalAmount:
      return measures.Sum.ToDouble();
    case ModTotalNumber:
      return static_cast<double>(measures.Count);
    case ModHigh:
      return measures.High.ToDouble();
    case ModLow:
      return measures.Low.ToDouble();
    case ModAverage:
      return Quotient(measures.Sum, static_cast<double>(measures.Count), fault);
    case ModLastAmount:
      return measures.Last.ToDouble();
    case ModRollsSinceLast:
      return RollsSinceEntry(measures, period);
    case ModLastRollNumber:
      return CameLast(measures, period) ? 1 : 0;
    case ModLastRollAmount:
      return AmountOnLastRoll(measures, period).ToDouble();
    case ModNumberPerHour:
      return PerHour(Money::FromWhole(measures.Count), measures.Count, period, fault);
    case ModAmountPerHour:
      return PerHour(measures.Sum, measures.Count, period, fault);
    default:
      return 0;
  }
}

// The best result or, turned round, the worst: losses are results below zero.
Money BestResult(const BetMeasures& good, const BetMeasures& bad) {
  return good.Count > 0 ? good.High : -bad.Low;
}

Money LastResult(const BetRecord& record) {
  return record.Won.LastRoll > record.Lost.LastRoll ? record.Won.Last : -record.Lost.Last;
}

double NetFigure(const BetRecord& record, int modifier, const Period& period) {
  const BetMeasures &won = record.Won, &lost = record.Lost;
  const int64_t count = record.Tendered.Count, decided = won.Count - lost.Count;
  const Money net = won.Sum - lost.Sum;
  switch (modifier) {
    case ModTotal:
    case ModTotalAmount:
      return net.ToDouble();
    case ModTotalNumber:
      return static_cast<double>(decided);
    case ModHigh:
      return BestResult(won, lost).ToDouble();
    case ModLow:
      return -BestResult(lost, won).ToDouble();
    case ModAverage:
      return Quotient(net, static_cast<double>(count), ScriptFault::NoResolvedWagers);
    case ModLastAmount:
      return LastResult(record).ToDouble();
    case ModLastRollNumber:
      return (CameLast(won, period) ? 1 : 0) - (CameLast(lost, period) ? 1 : 0);
    case ModLastRollAmount:
      return (AmountOnLastRoll(won, period) - AmountOnLastRoll(lost, period)).ToDouble();
    case ModNumberPerHour:
      return PerHour(Money::FromWhole(decided), count, period, ScriptFault::NoResolvedWagers);
    case ModAmountPerHour:
      return PerHour(net, count, period, ScriptFault::NoResolvedWagers);
    default:
      return 0;
  }
}

double NetPercent(const BetRecord& record, int modifier, const Period& period) {
  if (modifier == ModHigh || modifier == ModLow || modifier == ModRollsSinceLast) return 0;
  const double resolved =
      MeasureFigure(record.Tendered, modifier, period, ScriptFault::NoResolvedWagers);
  if (!(resolved > 0)) return Fail(ScriptFault::NoResolvedWagers);
  return 100 * NetFigure(record, modifier, period) / resolved;
}

double ExpectedValue(int number, bool percent, Money wagered) {
  return FigureAdvantage(number).EvPerDec * (percent ? 100 : wagered.ToDouble());
}

double VigFigure(int place, int number) {
  return CarriesVig(number) ? VigOf(place, number).ToDouble() : Fail(ScriptFault::NoVig);
}

double AmountOrCount(Money amount, bool count) {
  if (!count) return amount.ToDouble();
  return amount > Money() ? 1 : 0;
}

// What the statistics have of a bet.
double RecordFigure(int place, const Reference& reference) {
  const Period period = PeriodOf(place, reference.hand);
  const BetRecord& record = Stats.Bets[period.slot][reference.number];
  switch (reference.first) {
    case ModWins:
      return MeasureFigure(record.Won, reference.second, period, ScriptFault::NoWins);
    case ModLosses:
      return MeasureFigure(record.Lost, reference.second, period, ScriptFault::NoLosses);
    case ModNet:
    case ModNetPercent: {
      const bool percent = reference.first == ModNetPercent;
      if (reference.second == ModExpectedValue)
        return ExpectedValue(reference.number, percent, record.Tendered.Sum);
      return percent ? NetPercent(record, reference.second, period)
                     : NetFigure(record, reference.second, period);
    }
    case ModEstablished:
    case ModPassed:
    case ModMissed: {
      const bool line = reference.number == bet::PassLine || reference.number == bet::DontPass;
      return line ? LineBetCount(place, reference) : 0;
    }
    default:
      return MeasureFigure(record.Tendered, reference.second, period,
                           ScriptFault::NoResolvedWagers);
  }
}

}  // namespace

int SlotOf(int place, int hand) {
  const bool known = hand >= HandCurrent && hand <= HandAllSessions;
  return (known ? (hand - 1) * SlotsInScope : int{CurrentSession}) + place;
}

double BetFigure(int place, const Reference& reference) {
  const int number = reference.number;
  const auto before = [=] { return Table.BetAmountBefore[place][number]; };
  const auto working = [=] { return Table.BetWorking[place][number]; };
  switch (reference.second) {
    case ModCurrentAmount:
    case ModCurrentNumber:
      return AmountOrCount(Bet(place, number), reference.second == ModCurrentNumber);
    case ModPriorAmount:
    case ModPriorNumber:
      return AmountOrCount(before(), reference.second == ModPriorNumber);
    case ModWorking:
      return TruthNumber(working() > NotWorking);
    case ModCalledOn:
      return TruthNumber(working() == CalledOn);
    case ModCalledOff:
      return TruthNumber(working() == CalledOff);
    case ModVig:
      return VigFigure(place, number);
    case ModLastRollAmount:
    case ModLastRollNumber:
      // What was tendered for the last roll stood on the bet, decided or not.
      if (reference.first != ModTendered) break;
      return AmountOrCount(before(), reference.second == ModLastRollNumber);
    default:
      break;
  }
  return RecordFigure(place, reference);
}

}  // namespace tessarel
