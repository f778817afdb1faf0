#include "stats/summary_view.h"

#include <bit>

#include "base/number_format.h"
#include "state/books.h"
#include "state/settings.h"
#include "stats/view_text.h"
#include "texts/say.h"

namespace tessarel {

namespace {

// Calls visit(place) for each selected player.
template <class Visit>
void ForEachSelected(PlaceSelection selection, Visit&& visit) {
  uint32_t rest = IsWholeTable(selection) ? Table.TakenPlaces : PresentPlaces(selection);
  for (; rest != 0; rest &= rest - 1)
    visit(std::countr_zero(rest));
}

struct PlayTime {
  int64_t Hands = 0, Rolls = 0;
};

void AddPlay(PlayTime& play, int slot) {
  play.Hands += Stats.Hands[slot].HandCount;
  play.Rolls += Stats.Hands[slot].RollTotal;
}

std::string HoursText(int64_t rolls) {
  return rolls == 0 ? std::string(NotAvailable) : FourDecimals(SimHours(rolls));
}

std::vector<GeneralRow> GeneralRows(Scope scope, PlaceSelection selection) {
  PlayTime table, players;
  AddPlay(table, scope);
  ForEachSelected(selection, [&](int place) { AddPlay(players, scope + place); });
  const std::string rate = FourDecimals(Settings.SimRollRate.ToDouble());
  return {
      {Say(Text::TotalHands), CountText(table.Hands), CountText(players.Hands)},
      {Say(Text::TotalRolls), CountText(table.Rolls), CountText(players.Rolls)},
      {Say(Text::SimHours), HoursText(table.Rolls), HoursText(players.Rolls)},
      {Say(Text::RollsPerHourRow), rate, rate},
  };
}

std::vector<SummaryRow> WagerRows(const WagerColumns& columns) {
  return {
      {Say(Text::WagersTotalCount), columns.TenderedCount},
      {Say(Text::WagersResolved), columns.Resolved},
      {Say(Text::WagersWins), columns.Wins},
      {Say(Text::WagersLosses), columns.Losses},
      {Say(Text::WagersNet), columns.Net},
      {Say(Text::WagersNetPercent), columns.NetPercent},
      {" " + Say(Text::WagersExpected), columns.Expected},
  };
}

// The store keeps the sum of bankrolls for the running session only.
std::string AverageText(Scope scope, PlaceSelection selection) {
  if (scope != CurrentSession) return std::string(NotAvailable);
  double sum = 0;
  int players = 0;
  ForEachSelected(selection, [&](int place) {
    const std::optional<double> average = AverageBankroll(place);
    if (!average) return;
    sum += *average;
    ++players;
  });
  return players == 0 ? std::string(NotAvailable) : FourDecimals(sum / players);
}

std::vector<SummaryRow> BankrollRows(Scope scope, PlaceSelection selection) {
  Money begin, end, high, low;
  ForEachSelected(selection, [&](int place) {
    begin += Table.BankrollBegin[scope + place];
    end += Table.Bankroll[scope + place];
    high += Table.BankrollHigh[scope + place];
    low += Table.BankrollLow[scope + place];
  });
  return {
      {Say(Text::BeginningBankrollRow), AmountText(begin)},
      {SayChosen(IsCounted(scope) ? Text::CurrentBankrollRow : Text::EndingBankrollRow),
       AmountText(end)},
      {Say(Text::HighBankrollRow), AmountText(high)},
      {Say(Text::LowBankrollRow), AmountText(low)},
      {Say(Text::AverageBankrollRow), AverageText(scope, selection)},
  };
}

std::string CentsText(double amount) {
  return FormatNumber(amount, "#,0.00;-#,0.00;0");
}

std::vector<SummaryRow> CompRows(PlaceSelection selection, const PerPlace<CompFigures>& comps) {
  CompFigures sum;
  ForEachSelected(selection, [&](int place) {
    const CompFigures& figures = At(comps, place);
    sum.Decisions += figures.Decisions;
    sum.Action += figures.Action;
    sum.AverageAction += figures.AverageAction;
    sum.TheoreticalLoss += figures.TheoreticalLoss;
    sum.Comps += figures.Comps;
  });
  const double decisions = sum.Decisions.ToDouble();
  const auto caption = [](CheckedText<0> text, int base) {
    return (Settings.CompBase == base ? "* " : "") + Say(text);
  };
  return {
      {Say(Text::CompBetCount), CountText(sum.Decisions)},
      {Say(Text::CompAverageAction),
       decisions > 0 ? CentsText(sum.Action.ToDouble() / decisions) : std::string(NotAvailable)},
      {Say(Text::CompRatePercent), FormatNumber(Settings.CompRate, "#,0.0#;-#,0.0#;0")},
      {caption(Text::CompTheoreticalVig, 0), CentsText(-sum.TheoreticalLoss)},
      {caption(Text::CompTotalAction, 1), CentsText(sum.Action.ToDouble())},
      {caption(Text::CompActionTimesTime, 2), CentsText(sum.AverageAction.ToDouble())},
      {Say(Text::CompDollars), CentsText(sum.Comps)},
  };
}

// The name of the only selected player, else how many they are.
std::string PlayerTitle(PlaceSelection selection) {
  const PlaceSelection present = PresentPlaces(selection);
  if (!std::has_single_bit(present)) return SelectionCaption(selection);
  return Table.PlayerName[std::countr_zero(present)];
}

}  // namespace

std::optional<double> AverageBankroll(int place) {
  const int slot = CurrentSession + place;
  const int32_t rolls = Stats.Hands[slot].RollTotal;
  if (rolls == 0) return std::nullopt;
  const Money sum = Table.BankrollBegin[slot] + Table.BankrollSum[place];
  return sum.ToDouble() / (rolls + 1.0);
}

double SimHours(int64_t rolls) {
  const double rate = Settings.SimRollRate.ToDouble();
  return rate > 0 ? static_cast<double>(rolls) / rate : 0;
}

SummaryView Summary(Scope scope,
                    PlaceSelection selection,
                    const ExpectedValues& expected,
                    const PerPlace<CompFigures>& comps) {
  SummaryView view;
  view.Placeholder = Placeholder(selection);
  if (!view.Placeholder.empty()) return view;
  view.PlayerTitle = PlayerTitle(selection);
  view.General = GeneralRows(scope, selection);
  view.Wagers = WagerRows(ColumnsOf(AllWagers(scope, selection, expected)));
  view.Bankroll = BankrollRows(scope, selection);
  view.Comps = CompRows(selection, comps);
  return view;
}

}  // namespace tessarel
