#include "config/advantage_list.h"

#include <cmath>

#include "base/clock.h"
#include "base/number_format.h"
#include "config/payoff_editor.h"
#include "state/settings.h"
#include "texts/say.h"

namespace tessarel {

namespace {

constexpr std::string_view FigureFormat = "0.00;-0.00;0.00";

constexpr std::array<Text, 1 + AdvantageFigureCount> ValueColumns = {
    Text::BetColumn, Text::EvPerRoll,   Text::StDevPerRoll,
    Text::EvPerDec,  Text::StDevPerDec, Text::EvPerHour};
constexpr std::array<Text, 1 + AdvantageFigureCount> MiscColumns = {
    Text::BetColumn,  Text::RollsPerDec,  Text::DecPerRoll,
    Text::DecPerHour, Text::DecPerMinute, Text::TimePerDec};

// The caption under which the payoff editor shows a bet; some have no row of their own there.
std::string EditorCaption(int number) {
  for (int row = 1; row <= PayoffEditorRowCount; ++row) {
    if (PayoffEditorRowAt(row).Bet == number) return PayoffCaption({PayoffGrid::Bets, row});
  }
  return std::string(BetName[static_cast<size_t>(number)]);
}

// A line bet is listed with the Come bet that fares like it. What the Come boxes themselves bring
// is only the come-out of that.
std::string Caption(int number) {
  switch (number) {
    case bet::PassLine:
      return "Passline/Come";
    case bet::PassLineOdds:
      return "Passline/Come Odds";
    case bet::Come:
      return EditorCaption(bet::PassLine);
    case bet::DontPass:
      return "Don't Pass/Come";
    case bet::DontPassOdds:
      return "Don't Pass/Come Odds";
    case bet::DontCome:
      return EditorCaption(bet::DontPass);
    default:
      return EditorCaption(number);
  }
}

std::string Figure(double value) {
  return FormatNumber(value, FigureFormat);
}

std::string Percent(double fraction) {
  return Figure(100 * fraction);
}

// Hours as "1:02:03.4".
std::string TimeText(double hours) {
  constexpr double TenthsInHour = 36000, TenthsInMinute = 600;
  const double tenths = std::round(hours * TenthsInHour);
  const double inHour = std::fmod(tenths, TenthsInHour);
  return FormatNumber(std::floor(tenths / TenthsInHour), "0") + ":" +
         FormatNumber(std::floor(inHour / TenthsInMinute), "00") + ":" +
         FormatNumber(std::fmod(inHour, TenthsInMinute) / 10, "00.0");
}

std::array<std::string, AdvantageFigureCount> MiscFigures(double rolls, double rollRate) {
  if (rolls == 0) {
    const std::string none = Figure(0);
    return {none, none, none, none, none};
  }
  return {Figure(rolls), Figure(1 / rolls), Figure(rollRate / rolls), Figure(rollRate / rolls / 60),
          TimeText(rolls / rollRate)};
}

}  // namespace

const std::array<Text, 1 + AdvantageFigureCount>& AdvantageColumns() {
  return Advantage.ShowMiscData ? MiscColumns : ValueColumns;
}

std::string_view AdvantageNote() {
  if (Advantage.ShowMiscData) return "";
  return Wording(Text::FiguresInPercent);
}

AdvantageRow AdvantageRowOf(int number) {
  const AdvantageResult result = FigureAdvantage(number);
  const double rollRate = Settings.SimRollRate.ToDouble();
  AdvantageRow row;
  row.Caption = Caption(number);
  row.Sign = (result.EvPerRoll > 0) - (result.EvPerRoll < 0);
  if (Advantage.ShowMiscData) {
    row.Figures = MiscFigures(result.RollsPerDec, rollRate);
  } else {
    row.Figures = {Percent(result.EvPerRoll), Percent(result.StDevPerRoll),
                   Percent(result.EvPerDec), Percent(result.StDevPerDec),
                   Percent(result.EvPerRoll * rollRate)};
  }
  return row;
}

std::vector<std::string> AdvantageReportHeading(const AdvantageReportSource& source) {
  const auto nameOf = [](const std::string& file) {
    return file.empty() ? Wording(Text::Untitled) : std::string_view(file);
  };
  return {Say(Text::AdvantageReport),
          MediumDate(Now()),
          Say(Text::ReportGameFile, nameOf(source.GameFile)),
          source.ProbabilityActive
              ? Say(Text::ReportProbabilityFile, nameOf(source.ProbabilityFile))
              : Say(Text::ReportTrueProbabilities),
          Say(Text::ReportRollRate, FormatNumber(Settings.SimRollRate, "0.0###")),
          Say(Text::ReportInPercent)};
}

}  // namespace tessarel
