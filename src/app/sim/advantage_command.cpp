#include <array>
#include <nlohmann/json.hpp>
#include <string>

#include "app/sim/commands.h"
#include "app/sim/console.h"
#include "app/sim/output.h"
#include "app/sim/probability_option.h"
#include "base/number_format.h"
#include "config/advantage.h"
#include "play/start_up.h"
#include "state/bet_numbers.h"
#include "state/table.h"
#include "texts/say.h"

namespace tessarel::sim {

namespace {

using Json = nlohmann::ordered_json;

std::string AdvantageJson() {
  Json bets = Json::array();
  for (int number = 1; number <= LastBet; ++number) {
    const AdvantageResult result = FigureAdvantage(number);
    bets.push_back({{"bet", number},
                    {"name", BetName[number]},
                    {"EvPerRoll", result.EvPerRoll},
                    {"EvPerDec", result.EvPerDec},
                    {"RollsPerDec", result.RollsPerDec},
                    {"StDevPerRoll", result.StDevPerRoll},
                    {"StDevPerDec", result.StDevPerDec}});
  }
  return bets.dump() + "\n";
}

std::string Line(const std::string& number,
                 const std::string& name,
                 const std::array<std::string, 5>& figures) {
  constexpr size_t NumberWidth = 2, NameWidth = 20, FigureWidth = 13;
  std::string line = Right(number, NumberWidth) + "  " + Left(name, NameWidth);
  for (const std::string& figure : figures)
    line += Right(figure, FigureWidth);
  return line + "\n";
}

std::string AdvantageTable() {
  std::string table = Line("#", Say(Text::BetColumn),
                           {Say(Text::EvPerRoll), Say(Text::StDevPerRoll), Say(Text::EvPerDec),
                            Say(Text::StDevPerDec), Say(Text::RollsPerDec)});
  const auto percent = [](double fraction) { return FormatNumber(fraction, "0.0000%"); };
  for (int number = 1; number <= LastBet; ++number) {
    const AdvantageResult result = FigureAdvantage(number);
    table +=
        Line(std::to_string(number), std::string(BetName[number]),
             {percent(result.EvPerRoll), percent(result.StDevPerRoll), percent(result.EvPerDec),
              percent(result.StDevPerDec), FormatNumber(result.RollsPerDec, "0.00")});
  }
  return table;
}

}  // namespace

void AdvantageCommand(const AdvantageOptions& options) {
  OpenConsole();
  StartUp(".");
  if (!options.probability.empty()) ActivateProbability(options.probability);
  ApplyRules(options.settings, options.payoffs);
  Advantage.IncludeZeroOutcomes = options.zeroOutcomes;
  WriteOut(options.json ? AdvantageJson() : AdvantageTable());
}

}  // namespace tessarel::sim
