#include "stats/roll_frequencies.h"

#include "base/number_format.h"
#include "state/books.h"
#include "stats/view_text.h"
#include "texts/say.h"

namespace tessarel {

namespace {

std::string ThreeDecimals(double value) {
  if (value > 0 && value < 0.001) return "< 0.001";
  return FormatNumber(value, "#,0.0##;-#,#;0");
}

}  // namespace

std::vector<RollFrequencyRow> RollFrequencies(int event, const SkewedDice& dice) {
  const double probable = EventProbability(event, dice);
  const int32_t rolls = RollsInSession();
  const int32_t count = Stats.RollCount[CurrentSession][event];
  const double average = count > 0 ? static_cast<double>(rolls) / count : 0;
  const double share = rolls > 0 ? 100.0 * count / rolls : 0;
  return {
      {Say(Text::RollsSinceLast), CountText(RollsSince(event))},
      {Say(Text::AverageRollsBetween), ThreeDecimals(average)},
      {Say(Text::ActualPercentRolled), ThreeDecimals(share)},
      {Say(Text::AverageRollsToAchieve),
       probable > 0 ? ThreeDecimals(100 / probable) : std::string(NotAvailable)},
  };
}

std::vector<RollEventChoice> RollEventChoices() {
  std::vector<RollEventChoice> choices;
  for (int event = FirstRollEvent; event <= LastRollEvent; ++event)
    choices.push_back({event, RollEventName(event)});
  return choices;
}

}  // namespace tessarel
