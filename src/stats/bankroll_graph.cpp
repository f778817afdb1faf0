#include "stats/bankroll_graph.h"

#include <algorithm>
#include <cstdlib>

#include "base/message.h"
#include "base/number_format.h"
#include "state/books.h"
#include "state/settings.h"
#include "state/table.h"
#include "stats/summary_view.h"
#include "stats/view_text.h"
#include "texts/say.h"

namespace tessarel {

BankrollGraphState BankrollGraph;

namespace {

int32_t RollsOf(int place) {
  return Stats.Hands[CurrentSession + place].RollTotal;
}

// The position in the ring of a roll that it holds.
int32_t RingIndex(int32_t roll) {
  const int32_t index = Table.GraphIndex - (RollsInSession() - roll);
  return index > 0 ? index : index + GraphLength;
}

Money HeldPoint(int place, int32_t roll) {
  return Table.GraphBankroll[RingIndex(roll)][place];
}

// Sums over the points that the ring holds of a player.
class PointSums {
 public:
  PointSums(int place, RollSpan held) : place_(place), held_(held), before_{Money()} {
    for (int32_t roll = held.First; roll <= held.Last; ++roll)
      before_.push_back(before_.back() + HeldPoint(place, roll));
  }

  // From the first roll of the player's time at the table to `roll`.
  double MeanOfAll(int32_t roll) const {
    const int32_t since = held_.Last - roll;
    const Money sum = Table.BankrollSum[place_] - Sum(roll + 1, held_.Last);
    return sum.ToDouble() / (RollsOf(place_) - since);
  }

  // Of the last `count` rolls up to `roll`, or of all since he joined.
  std::optional<double> MeanOfLast(int32_t count, int32_t roll) const {
    const int32_t joined = held_.Last - RollsOf(place_) + 1;
    const int32_t first = std::max(roll - count + 1, joined);
    if (first < held_.First) return std::nullopt;
    return Sum(first, roll).ToDouble() / (roll - first + 1);
  }

 private:
  Money Sum(int32_t first, int32_t last) const {
    return At(before_, last - held_.First + 1) - At(before_, first - held_.First);
  }

  int place_;
  RollSpan held_;
  std::vector<Money> before_;  // sums of the points in front of each
};

// The distance by which a span has to move to be inside of the range; 0 when it is.
Money DistanceToInside(GraphRange range, Money low, Money high) {
  if (high > range.High) return high - range.High;
  if (low < range.Low) return low - range.Low;
  return Money();
}

GraphRange Moved(GraphRange range, Money distance) {
  return {range.Low + distance, range.High + distance};
}

GraphRange Expanded(GraphRange range, VisibleLine line) {
  if (range.Height() <= Money()) range.High = range.Low + 1;
  while (line.High > range.High)
    range.High += range.Height();
  while (line.Low < range.Low)
    range.Low -= range.Height();
  return range;
}

std::string Hours(int32_t rolls) {
  return FormatNumber(SimHours(rolls), "#,#.00;-#,#.00;0.00");
}

std::string LegendText(CheckedText<1> average) {
  if (BankrollGraph.MovingAverageRolls == 0) return Say(Text::GraphAverageOfAll);
  return Say(average, CountText(int64_t{BankrollGraph.MovingAverageRolls}));
}

}  // namespace

RollSpan HeldRolls(int place) {
  if (!IsTaken(Table, place) || Table.GraphIndex == 0) return {};
  const int32_t last = RollsInSession();
  const int32_t count = std::min({RollsOf(place), last, GraphLength});
  return {last - count + 1, last};
}

std::optional<Money> GraphPoint(int place, int32_t roll) {
  if (!HeldRolls(place).Has(roll)) return std::nullopt;
  return HeldPoint(place, roll);
}

GraphLine LineOf(int place, RollSpan window, int32_t averageRolls) {
  const RollSpan held = HeldRolls(place);
  const PointSums sums(place, held);
  const int32_t last = std::min(held.Last, window.Last);
  GraphLine line;
  line.FirstRoll = std::max(held.First, window.First);
  for (int32_t roll = line.FirstRoll; roll <= last; ++roll) {
    line.Points.push_back(HeldPoint(place, roll));
    line.Averages.push_back(averageRolls == 0 ? sums.MeanOfAll(roll)
                                              : sums.MeanOfLast(averageRolls, roll));
  }
  return line;
}

RollSpan GraphWindow(int32_t rolls, int32_t held, int32_t width, int32_t plotType, int32_t back) {
  const int32_t newest = plotType == PlotByPage ? std::max(rolls - 1, 0) / width * width + 1
                                                : std::max(rolls - width, 0) + 1;
  const int32_t oldest = std::max(rolls - held, 0) + 1;
  const int32_t first = std::max(newest - back, std::min(oldest, newest));
  return {first, first + width - 1};
}

GraphRange BaseRange(Money bankroll) {
  const Money height = BankrollGraph.GraphScaleLow * BankrollGraph.GraphScaleStep;
  const Money low = bankroll - height * Money::FromRaw(Money::Scale / 2);
  return {low, low + height};
}

GraphRange AdjustRange(int32_t adjustType, GraphRange current, GraphRange base, VisibleLine line) {
  switch (adjustType) {
    case AutoShift: {
      const bool fits = line.High - line.Low <= current.Height();
      return Moved(current, fits ? DistanceToInside(current, line.Low, line.High)
                                 : DistanceToInside(current, line.Last, line.Last));
    }
    case AutoExpand:
      return Expanded(current, line);
    case AutoSnapBack:
      return DistanceToInside(base, line.Low, line.High) == Money() ? base
                                                                    : Expanded(current, line);
    default:
      return current;
  }
}

GraphRange ShiftRange(GraphRange range, int tenths) {
  return Moved(range, range.Height() * Money::FromRaw(Money::Scale / 10) * tenths);
}

GraphRange ZoomRange(GraphRange range, bool expand) {
  const Money step = range.Height() * Money::FromRaw(expand ? Money::Scale / 2 : Money::Scale / 4);
  if (expand) return {range.Low - step, range.High + step};
  const GraphRange smaller{range.Low + step, range.High - step};
  return smaller.Height() > Money() ? smaller : range;
}

GraphLabels LabelsOfGraph(int place, RollSpan window) {
  const int slot = CurrentSession + place;
  const int32_t rolls = RollsInSession();
  const std::string rate = BankrollText(Settings.SimRollRate);
  return {
      .Current = "  " + Say(Text::GraphCurrent, BankrollText(Table.Bankroll[slot])),
      .High = Say(Text::GraphHigh, BankrollText(Table.BankrollHigh[slot])),
      .Low = "  " + Say(Text::GraphLow, BankrollText(Table.BankrollLow[slot])),
      .TotalRolls = CountText(int64_t{rolls}),
      .RollsPerHour = rate,
      .SimHours = Hours(rolls),
      .Note = Say(Text::GraphNote, CountText(int64_t{rolls}), rate, Hours(rolls)),
      .Legend = LegendText(Text::GraphAverage),
      .PrintedLegend = LegendText(Text::GraphMovingAverage),
      .RollsLeft = CountText(int64_t{window.First}),
      .RollsRight = CountText(int64_t{window.Last}),
  };
}

ReferenceLabels LabelsOfReferenceLines(int place, RollSpan window) {
  const auto bankrollAt = [&](int32_t position) {
    return GraphPoint(place, window.First + position);
  };
  const auto text = [](std::optional<Money> bankroll) {
    return bankroll ? BankrollText(*bankroll) : std::string(NotAvailable);
  };
  const std::optional<Money> first = bankrollAt(BankrollGraph.RefRolls1);
  const std::optional<Money> second = bankrollAt(BankrollGraph.RefRolls2);
  const int32_t apart = std::abs(BankrollGraph.RefRolls2 - BankrollGraph.RefRolls1);
  return {
      .Bankroll1 = text(first),
      .Bankroll2 = text(second),
      .RollsDifference = CountText(int64_t{apart}),
      .BankrollDifference =
          text(first && second ? std::optional(*second - *first) : std::optional<Money>()),
  };
}

bool SetMovingAverage() {
  const std::string question = Say(Text::AskMovingAverage);
  std::string text = question;
  const int32_t offered = std::clamp(BankrollGraph.MovingAverageRolls, 0, MaxAverageRolls);
  while (AskForText(text, Say(Text::MovingAverageTitle), std::to_string(offered))) {
    const std::optional<Money> answer = ParseMoney(Message.MsgInput);
    if (answer && answer->IsWhole() && *answer >= 0 && *answer <= MaxAverageRolls) {
      BankrollGraph.MovingAverageRolls = static_cast<int32_t>(answer->Floor());
      return true;
    }
    text = Say(Text::MovingAverageRefused) + "\r\r" + question;
  }
  return false;
}

bool SetAutoPrint(bool on) {
  const bool confirmed = !on || ShowMessage(Say(Text::AskAutoPrint), Say(Text::PrintBankrollGraph),
                                            msg::AskYesNo) == AnswerYes;
  if (confirmed) BankrollGraph.AutoPrint = on;
  return confirmed;
}

std::string PrintNowQuestion(int fit, int sent) {
  return Say(Text::AskToFinishPrinting, CountText(int64_t{fit}), CountText(int64_t{sent}));
}

}  // namespace tessarel
