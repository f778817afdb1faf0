#include "config/advantage_list.h"

#include <cmath>

#include "base/clock.h"
#include "base/number_format.h"
#include "config/payoff_editor.h"
#include "state/settings.h"
#include "texts/configuration_texts.h"

namespace tessarel {

namespace {

constexpr std::string_view FigureFormat = "0.00;-0.00;0.00";

constexpr std::array<std::string_view, 1 + AdvantageFigureCount> ValueColumns = {
    "Bet", "EV/Roll", "StDev/Roll", "EV/Dec", "StDev/Dec", "EV/Hour"};
constexpr std::array<std::string_view, 1 + AdvantageFigureCount> MiscColumns = {
    "Bet", "Rolls/Dec", "Dec/Roll", "Dec/Hour", "Dec/Min", "Time/Dec"};

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

const std::array<std::string_view, 1 + AdvantageFigureCount>& AdvantageColumns() {
  return Advantage.ShowMiscData ? MiscColumns : ValueColumns;
}

std::string_view AdvantageNote() {
  if (Advantage.ShowMiscData) return "";
  return Localized(ConfigurationTexts.FiguresInPercent);
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
  const auto nameOf = [](const std::string& file) { return file.empty() ? "untitled" : file; };
  return {"Tessarel Advantage",
          MediumDate(Now()),
          "Game file:  " + nameOf(source.GameFile),
          source.ProbabilityActive ? "Probability file:  " + nameOf(source.ProbabilityFile)
                                   : "Figured using true probabilities",
          "Sim roll rate/hour:  " + FormatNumber(Settings.SimRollRate, "0.0###"),
          "These columns given in percent"};
}

}  // namespace tessarel
