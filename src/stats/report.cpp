#include "stats/report.h"

#include <algorithm>
#include <bit>

#include "base/clock.h"
#include "base/folders.h"
#include "stats/hands_view.h"
#include "stats/roll_totals.h"
#include "stats/text_table.h"
#include "texts/say.h"

namespace tessarel {

namespace {

std::string Heading(std::string_view title) {
  return "\n" + std::string(title) + "\n" + std::string(title.size(), '-') + "\n";
}

// In a column of captions the blank in front of a caption would only look like a slip.
std::string Flush(std::string_view caption) {
  return std::string(caption.substr(std::min(caption.find_first_not_of(' '), caption.size())));
}

std::string SummarySection(const ReportInputs& inputs) {
  const SummaryView view = Summary(inputs.Of, WholeTable, inputs.Expected, inputs.Comps);
  TextRows rows = {{"", Say(Text::TableColumn), view.PlayerTitle}};
  for (const GeneralRow& row : view.General)
    rows.push_back({row.Caption, row.Table, row.Player});
  TextRows wagers;
  for (const SummaryRow& row : view.Wagers)
    wagers.push_back({Flush(row.Caption), row.Value});
  return TextTable(rows) + "\n" + Say(Text::Wagers) + "\n" + TextTable(wagers);
}

std::vector<std::string> BetResultsLine(const std::string& name, const WagerColumns& columns) {
  return {name,
          columns.TenderedCount,
          columns.Tendered,
          columns.ResolvedCount,
          columns.Resolved,
          columns.WinCount,
          columns.Wins,
          columns.LossCount,
          columns.Losses,
          columns.Net,
          columns.NetPercent,
          columns.Expected};
}

// The bets that the place has had resolved.
NumberSet ResolvedBets(Scope scope, int place) {
  NumberSet bets;
  for (int bet = 1; bet <= LastBet; ++bet) {
    bets.Set(bet, Stats.Bets[scope + place][bet].Tendered.Count > Money());
  }
  return bets;
}

std::string BetResultsOf(const ReportInputs& inputs, int place) {
  const NumberSet bets = ResolvedBets(inputs.Of, place);
  const std::string title = "\n" + Say(Text::ReportPlayer, Table.PlayerName[place]) + "\n";
  if (bets.Empty()) return title + Say(Text::NoBetsResolved) + "\n";
  const BetResultsView view = BetResults(inputs.Of, 1u << place, bets, inputs.Expected);
  TextRows rows = {{Say(Text::BetColumn), Say(Text::TenderedColumn), "$", Say(Text::WagersResolved),
                    "$", Say(Text::WagersWins), "$", Say(Text::WagersLosses), "$",
                    Say(Text::NetDollarsColumn), Say(Text::WagersNetPercent),
                    Say(Text::ExpectedColumn)}};
  for (const BetResultsRow& row : view.Rows)
    rows.push_back(BetResultsLine(row.Name, row.Columns));
  rows.push_back(BetResultsLine(Say(Text::TotalLine), view.Totals));
  return title + TextTable(rows) + Say(Text::WagersExpected) + view.Totals.Expected + "\n";
}

std::string BetResultsSection(const ReportInputs& inputs) {
  std::string text = Heading(Wording(Text::BetResultsReport));
  if (Table.TakenPlaces == 0) return text + Say(Text::NoPlayersPresent) + "\n";
  ForEachPlayer([&](int place) { text += BetResultsOf(inputs, place); });
  return text;
}

std::string HandsSection(const ReportInputs& inputs) {
  const HandsView view = Hands(inputs.Of, WholeTable, HandUnits::Counts);
  TextRows rows;
  for (const HandsRow& row : view.Figures)
    rows.push_back({row.Caption, row.Value});
  TextRows table = {{Say(Text::TotalLine), Say(Text::ComeOutRollsColumn), Say(Text::PassesColumn),
                     Say(Text::MissesColumn)}};
  for (const HandsTableRow& row : view.Table)
    table.push_back({std::to_string(row.Total), row.ComeoutRolls, row.Passes, row.Misses});
  return Heading(Wording(Text::HandsReport)) + TextTable(rows) + "\n" + TextTable(table);
}

std::string RollTotalsTable(const ReportInputs& inputs, RollTotalsDisplay display) {
  const RollTotalsView view = RollTotals(inputs.Of, WholeTable, display, inputs.Dice);
  TextRows rows = {{Say(Text::RollColumn)}};
  for (const Text heading : RollTotalsHeadings)
    rows[0].push_back(SayChosen(heading));
  for (const RollTotalsRow& row : view.Rows) {
    rows.push_back({row.Name, row.ActualPercent, row.ProbablePercent, row.Rolls, row.ProbableRolls,
                    row.Since, row.ChiSquare});
  }
  return TextTable(rows) + Say(Text::ChiSquareLine, view.ChiSquare, view.Degrees, view.PValue) +
         "\n";
}

std::string RollTotalsSection(const ReportInputs& inputs) {
  using enum RollTotalsDisplay;
  std::string text = Heading(Wording(Text::RollTotalsReport));
  const char* separator = "";
  for (const RollTotalsDisplay display : {Number, Combinations, Die1, Die2}) {
    text += separator + RollTotalsTable(inputs, display);
    separator = "\n";
  }
  return text;
}

// One column a player.
std::string BankrollSection(const ReportInputs& inputs) {
  if (Table.TakenPlaces == 0) return "";
  TextRows bankrolls = {{""}}, comps = {{""}};
  ForEachPlayer([&](int place) {
    const SummaryView view = Summary(inputs.Of, 1u << place, inputs.Expected, inputs.Comps);
    const auto addColumn = [place](TextRows& rows, const std::vector<SummaryRow>& column) {
      rows.resize(column.size() + 1);
      rows[0].push_back(Table.PlayerName[place]);
      for (size_t k = 0; k < column.size(); ++k) {
        if (rows[k + 1].empty()) rows[k + 1].push_back(column[k].Caption);
        rows[k + 1].push_back(column[k].Value);
      }
    };
    addColumn(bankrolls, view.Bankroll);
    addColumn(comps, view.Comps);
  });
  return Heading(Wording(Text::BankrollReport)) + TextTable(bankrolls) + "\n" + Say(Text::Comps) +
         "\n" + TextTable(comps);
}

}  // namespace

std::string ReportHeader(std::string_view title, std::string_view gameFile) {
  const std::string name = ShortName(gameFile);
  return std::string(title) + "\n" + MediumDate(Now()) + "\n" +
         Say(Text::ReportGameFile, name.empty() ? Wording(Text::Untitled) : name) + "\n";
}

std::string SelectionHeader(Scope scope, PlaceSelection selection) {
  const PlaceSelection present = PresentPlaces(selection);
  const std::string players =
      std::has_single_bit(present)
          ? Say(Text::ReportPlayer, Table.PlayerName[std::countr_zero(present)])
          : SelectionCaption(selection);
  return std::string(ScopeName(scope)) + "\n" + players + "\n";
}

std::string TextReport(const ReportInputs& inputs) {
  const std::string stopped = inputs.StopReason.empty() ? "" : inputs.StopReason + "\n";
  return ReportHeader(Wording(Text::SummaryReport), inputs.GameFile) +
         SelectionHeader(inputs.Of, WholeTable) + stopped + "\n" + SummarySection(inputs) +
         BetResultsSection(inputs) + HandsSection(inputs) + RollTotalsSection(inputs) +
         BankrollSection(inputs);
}

}  // namespace tessarel
