// The rules of the configuration: the pass that decides whether it may close, and the settings that
// cannot simply be written because bets and bankrolls hang on them. The configuration screen, the
// Auto-Play screen and the command line call these. An operation that a rule refuses leaves every
// value as it was, shows why, and returns false; the text then stands in Message.MsgText.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "base/money.h"
#include "config/payoff_editor.h"
#include "state/settings.h"
#include "state/table.h"
#include "texts/say.h"

namespace tessarel {

enum class ConfigTab : int32_t {
  ChecksDice,
  Colors,
  Comps,
  Sound,
  Misc,
  Bankroll,
  Bets,
  PayoffTables,
  Probability,
  Advantage
};

// The sim roll rate as typed: in a unit of RollRateUnits.
struct RollRateEntry {
  int Unit = 0;
  std::string Text;
};

struct ValidationOptions {
  // Whether every proposition bet must be able to reach its minimum under the payoffs.
  bool TestLargestBets = true;
  // The sim roll rate, if it was typed over; a good one is taken.
  const RollRateEntry* RollRate = nullptr;
  // The house standard when the configuration was opened: if it differs now, offers it to the
  // players. Without it nothing is asked.
  const PerBet<int32_t>* HouseWorkingBefore = nullptr;
};

// Why the configuration may not close, and what to bring into view for it. The text is shown under
// the title of general text 37.
struct ConfigurationRefusal {
  ConfigTab Tab = ConfigTab::Bets;
  std::string Text;
  std::string_view Setting;        // the field at fault; empty when it is a payoff
  int Index = 0;                   // 1 to 5 of Denomination
  std::optional<PayoffCell> Cell;  // the payoff at fault
};

// The pass on closing. Returns the first failure; after none, the figures that hang on the
// configuration are made anew.
std::optional<ConfigurationRefusal> ValidateConfiguration(const ValidationOptions& options = {});

// The options that take bets off the layout.
enum class LayoutOption { Big68, Midway, Fire, SpecialProps };

// Puts the bets of an option on the layout or, after a question if anybody has one, takes them off.
bool ChangeBetAvailability(LayoutOption option, bool use);

// Figures the vig of a place's bets again and brings its money on the table in step with it.
// Returns TotalUpBets: all its bets and the vig charged up front.
Money ChargeChangedVig(int place);

// Change one of BuyVigPct, LayVigPct, RoundBuyVig, RoundLayVig, BuyVigAllBets and LayVigAllBets,
// unless a player could not pay the vig that would be charged.
bool ChangeVig(Money SettingsState::*setting, Money value);
bool ChangeVig(int32_t SettingsState::*setting, int32_t value);
bool ChangeVig(bool SettingsState::*setting, bool value);

// Lets a player's bankroll be negative, or no longer, which needs one that is not.
bool SetAllowNegBankroll(int place, bool allow);

// How new sessions start a player's bankroll. Refused while nobody is at the table.
bool SetBankrollInitType(int place, int32_t type);
bool SetBankrollInitAmount(int place, Money amount);

// The ways in which the sim roll rate is shown and entered.
struct RollRateUnit {
  Text Caption;
  int InAnHour;         // how many of the unit make an hour
  bool PerRoll;         // a time for each roll instead of rolls in a time
  int Maximum;          // in the unit
  std::string_view Is;  // the maximum as the message says it
};
// clang-format off
inline constexpr std::array<RollRateUnit, 6> RollRateUnits = {{
    {Text::RollsPerHour,      1, false, 36'000'000, "36,000,000."},
    {Text::RollsPerMinute,   60, false,    600'000, "600,000."},
    {Text::RollsPerSecond, 3600, false,     10'000, "10,000."},
    {Text::HoursPerRoll,      1, true,      10'000, "10,000."},
    {Text::MinutesPerRoll,   60, true,     600'000, "600,000."},
    {Text::SecondsPerRoll, 3600, true,  36'000'000, "36,000,000."},
}};
// clang-format on

// What is shown for a rate too small for four decimals. It is cleared as soon as a key is pressed.
inline constexpr std::string_view TinyRollRate = "<.0001";

// SimRollRate in a unit, 0 to 5.
std::string ShownRollRate(int unit);

// Takes an entry, or returns why not.
std::optional<std::string> SetSimRollRate(const RollRateEntry& entry);

// What the buttons beside a list of bets do to the selected rows.
enum class ListChoice { Default, Yes, No, Flip };

// Bets 1 to 90 that work on the come-out: of the house (place 0), whose default is the original
// standard, or of a player, whose default is the house's. Index fault for other bets.
void ChangeWorkingDefaults(int place, std::span<const int> bets, ListChoice choice);
// Bets 1 to 93 that comps are figured from. Index fault for other bets.
void ChangeCompBets(std::span<const int> bets, ListChoice choice);

// The rows of the two lists, in the language in force.
std::string WorkingRowText(int place, int number);
std::string CompBetRowText(int number);

// Asks, then sets the checks to their original values. Returns whether it did.
bool RestoreDefaultDenoms();

struct NoticeRow {
  Notice Bit;
  Text Caption;
};
inline constexpr std::array<NoticeRow, 5> NoticeRows = {{
    {NoticeActionsNotAllowed, Text::ActionsNotAllowed},
    {NoticeLimits, Text::LimitsReached},
    {NoticeCharges, Text::ChargesAndChange},
    {NoticeAutoBet, Text::AutoBetMessages},
    {NoticeAutoBetHyper, Text::AutoBetMessagesHyper},
}};

void SetNotice(Notice notice, bool show);

}  // namespace tessarel
