#include "autobet/script_errors.h"

#include <algorithm>
#include <string_view>

#include "autobet/token_names.h"
#include "autobet/values.h"
#include "texts/say.h"

namespace tessarel {

namespace {

struct ErrorRow {
  int32_t Code;
  std::string_view Text;
  std::string_view Hint = {};  // the second line
};

constexpr std::string_view PointValues = "Acceptable values 4,5,6,8,9,10";
constexpr std::string_view StackValues = "Acceptable values 0-99";
constexpr std::string_view AverageValues = "Acceptable values 0-525";
constexpr std::string_view EightValues = "Acceptable values 1-8";
constexpr std::string_view RollsOutOfLimits = "Reference to rolls out of limits.";
constexpr std::string_view SeePermissions = "See Options - Permissions.";

// By code, ascending.
constexpr ErrorRow ErrorRows[] = {
    {1, "Reference to Lay bet out of limits.", PointValues},
    {2, "Reference to Don't Come bet out of limits.", PointValues},
    {3, "Reference to Don't Come Odds bet out of limits.", PointValues},
    {4, "Reference to Come bet out of limits.", PointValues},
    {5, "Reference to Come Odds bet out of limits.", PointValues},
    {6, "Reference to Place bet out of limits.", PointValues},
    {7, "Reference to Buy bet out of limits.", PointValues},
    {8, "Reference to Big bet out of limits.", "Acceptable values 6,8"},
    {9, "Reference to Hard bet out of limits.", "Acceptable values 4,6,8,10"},
    {10, "Reference to Hop bet out of limits.", "Acceptable values 11-66 or 1.1-6.6"},
    {12, "Inappropriate reference to Place bet.",
     "Acceptable values Place4, Place5, Place6, Place8, Place9, Place10"},
    {21, "Reference to checkstack out of limits.", StackValues},
    {22, "Number of rolls out of limits for moving average.", AverageValues},
    {50, "Reference to player out of limits.", EightValues},
    {51, "Reference to player must match on both sides of 'thru'."},
    {52, "Reference to hand/session must match on both sides of 'thru'."},
    {53, "Reference to modifiers must match on both sides of 'thru'."},
    {100, "Can't take square root of negative number."},
    {110, "Reference to bankroll average out of limits.", AverageValues},
    {139, "Reference to Round function out of limits.", "Precison must be greater than 0"},
    {190, "Reference to die out of limits.", "Acceptable values 1-2"},
    {191, "Reference to odds allowed factor out of limits.", EightValues},
    {203, "Instr starting point out of limits."},
    {300, "No resolved wagers recorded for selected timed period."},
    {301, "No wins recorded for selected timed period."},
    {302, "No losses recorded for selected timed period."},
    {800, "Reference to checkstack name out of limits.", StackValues},
    {850, "Reference to player name out of limits.", EightValues},
    {851, "No player at designated position."},
    {852, "Player not allowed to perform actions for other players."},
    {853, "Player not allowed to start new sessions.", SeePermissions},
    {854, "Player not allowed to activate/deactivate probability files.", SeePermissions},
    {855,
     "Player is not the shooter and not allowed to pass the dice for the shooter.  See Options - "
     "Permissions."},
    {856, "Player not allowed to activate/deactivate roll files.", SeePermissions},
    {860, "Reference to AutoHandle Winning Bets out of limits.", EightValues},
    {861, "Reference to AutoHandle Losing Bets out of limits.", EightValues},
    {870,
     "Bankroll can only be set at the beginning of a session.  To make adjustments later, use ATM "
     "deposits / withdrawals."},
    {900, "Rolls per hour value out of limits.", "Acceptable values 0.0001 to 36000000"},
    {905, "Seed value out of limits.", "Acceptable values 1 to 2147483647 (RNG#3: 1 to 999999)"},
    {910, "Referenced RNG currently unavailable."},
    {911, "Reference to RNG out of limits.", EightValues},
    {912, "Comp rate out of limits."},
    {914, "Odds allowed factor out of limits.", "Acceptable values 0-9999"},
    {915, "Odds ratio not known until point is established."},
    {916, "Odds payoff numerator not known until point is established."},
    {917, "Odds payoff denominator not known until point is established."},
    {990, "Display of auto-bet messages turned off.", "See Options menu."},
    {992, "Playing of sounds turned off.", "See Configure - Sound."},
    {998, "Error extracting string."},
    {1000, "Vig not referenced to Lay or Buy bet."},
    {1001, RollsOutOfLimits, "Acceptable values 1-12"},
    {1002, "Reference to # of points out of limits."},
    {1003, "Dice roll file not open."},
    {1004, "Output file not open."},
    {1006, "Bad path and/or filename."},
    {1007, "File is not a valid dice roll file."},
    {1008, "File not found or file is not a valid probability file."},
    {1009, RollsOutOfLimits, "Acceptable values 1.1-6.6"},
    {1010, RollsOutOfLimits, "Acceptable values 1-6"},
    {9997, "No value to assign."},
    {9998, "No string to assign."},
    {9999, "Division by zero."},
};
static_assert(std::ranges::is_sorted(ErrorRows, {}, &ErrorRow::Code));

// Errors in the arguments of text functions have the number of the function.
std::string TextFunctionError(int32_t function) {
  const std::string name = FunctionName(function);
  return name.empty() ? name : "Reference to " + name + " function out of limits.";
}

}  // namespace

std::string ScriptErrorText(int32_t error) {
  constexpr int32_t UnableToOpenFile = 1005, MachineryFault = 10000;
  if (error == UnableToOpenFile) return Say(Text::UnableToOpenFile);
  if (error == MachineryFault) return AutoBet.FaultText;
  if (error >= 801 && error <= 812) return TextFunctionError(error);
  const auto* const row = std::ranges::lower_bound(ErrorRows, error, {}, &ErrorRow::Code);
  if (row == std::end(ErrorRows) || row->Code != error) return {};
  std::string text(row->Text);
  if (!row->Hint.empty()) (text += '\r') += row->Hint;
  return text;
}

}  // namespace tessarel
