#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "autobet/normalise.h"
#include "autobet/script_files.h"
#include "base/single_byte_text.h"

namespace tessarel {

namespace {

// In a wording ' ' stands for blanks, '_' for blanks, a hyphen or nothing, '@' for a point number
// and '*' for digits; '@' and '*' bring what they stand for into the new wording, numbers without
// leading zeros.
struct Rewording {
  std::string_view From, To;
};

// THE ORDER COUNTS: what a row has written is never met again, so longer wordings stand ahead of
// the shorter ones inside them.
// clang-format off
constexpr Rewording Rewordings[] = {
    // Connectives.
    {"and whenever", "and"}, {"and when", "and"}, {"and while", "and"}, {"and if", "and"},
    {"or whenever", "or"}, {"or when", "or"}, {"or while", "or"}, {"or if", "or"},
    {"xor whenever", "xor"}, {"xor when", "xor"}, {"xor while", "xor"}, {"xor if", "xor"},

    // Conditions.
    {"whenever", "if"}, {"when", "if"}, {"while", "if"},

    // Check stacks.
    {"chip_stack_names", "checkstacknames"}, {"check_stack_names", "checkstacknames"},
    {"chip_stack_name_#_*", "checkstackname*"}, {"check_stack_name_#_*", "checkstackname*"},
    {"stack_name_#_*", "checkstackname*"},
    {"chip_stack_name *", "checkstackname*"}, {"check_stack_name *", "checkstackname*"},
    {"stack_name *", "checkstackname*"},
    {"chip_stack_name", "checkstackname"}, {"check_stack_name", "checkstackname"},
    {"stack_name", "checkstackname"},
    {"chip_stack_#_*", "checkstack*"}, {"check_stack_#_*", "checkstack*"},
    {"stack_#_*", "checkstack*"},
    {"chip_stack_#", "checkstack"}, {"check_stack_#", "checkstack"}, {"stack_#", "checkstack"},
    {"chip_stack *", "checkstack*"}, {"check_stack *", "checkstack*"}, {"stack *", "checkstack*"},
    {"chip_stack*", "checkstack*"}, {"check_stack*", "checkstack*"}, {"stack*", "checkstack*"},
    {"chip_stacks", "checkstacks"}, {"check_stacks", "checkstacks"}, {"stacks", "checkstacks"},
    {"chip_stack", "checkstack"}, {"check_stack", "checkstack"}, {"stack", "checkstack"},

    // Bets.
    {"dont_pass_line_odds", "dontpassodds"}, {"dont_pass_odds", "dontpassodds"},
    {"dont_pass_line", "dontpass"}, {"dont_pass", "dontpass"},
    {"pass_line_odds", "passlineodds"}, {"pass_odds", "passlineodds"}, {"pass_line", "passline"},
    {"dont_come_odds @", "dontcomeodds@"}, {"dont_come @ odds", "dontcomeodds@"},
    {"dont_come @", "dontcome@"}, {"dont_come_odds", "dontcomeodds"}, {"dont_come", "dontcome"},
    {"come_odds @", "comeodds@"}, {"come @ odds", "comeodds@"}, {"come @", "come@"},
    {"come_odds", "comeodds"},
    {"lay @", "lay@"}, {"place @", "place@"}, {"buy @", "buy@"}, {"big @", "big@"},
    {"hard_way_bets", "hardway bets"}, {"hard_ways", "hardway bets"},
    {"hard_way @", "hard@"}, {"hard @", "hard@"},
    {"any_craps", "craps"}, {"any_seven", "seven"}, {"any 7", "seven"},
    {"c_and_e", "cande"}, {"c & e", "cande"}, {"c&e", "cande"},
    {"over_seven", "over7"}, {"over 7", "over7"}, {"under_seven", "under7"}, {"under 7", "under7"},
    {"hop *-*", "hop**"}, {"hop * *", "hop**"}, {"hop *", "hop*"},
    {"all_small", "allsmall"}, {"all_tall", "alltall"}, {"make_all", "makeall"},
    {"4 rolls no 7", "4rollsno7"}, {"4 rolls no seven", "4rollsno7"},
    {"four_rolls_no_seven", "4rollsno7"}, {"four rolls no 7", "4rollsno7"},
    {"7 point 7", "7point7"}, {"seven_point_seven", "7point7"}, {"point 7", "point7"},
    {"mid_way", "midway"}, {"sharp_shooter", "sharpshooter"}, {"ride_the_line", "ridetheline"},

    // Counts of the table.
    {"game rolls", "# of rolls"}, {"game passes", "# of passes"}, {"game misses", "# of misses"},

    // Results of bets.
    {"have won more than", "wins >"}, {"have won less than", "wins <"}, {"have won each", "wins ="},
    {"has won more than", "wins >"}, {"has won less than", "wins <"}, {"has won each", "wins ="},
    {"have lost more than", "lose >"}, {"have lost less than", "lose <"}, {"have lost each", "lose ="},
    {"has lost more than", "lose >"}, {"has lost less than", "lose <"}, {"has lost each", "lose ="},

    // What the table does by itself.
    {"auto_lay_full_odds", "autolay full odds"}, {"auto_take_full_odds", "autotake full odds"},
    {"auto_handle winnings", "autohandle winning bets"}, {"auto_handle losses", "autohandle losing bets"},
    {"auto_handle", "autohandle"}, {"auto_remove", "autodown"}, {"auto_down", "autodown"},
    {"auto_pass", "autopass"}, {"auto_rolling", "autoroll"}, {"auto_roll", "autoroll"},

    {"initializing auto_bets", "Initializing script"}, {"initializing auto_bet", "Initializing script"},

    {"come_out", "comeout"},
};
// clang-format on

// Stands in the shadow for what has its final wording.
constexpr char Mask = '\x01';

constexpr bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

constexpr bool IsLetter(char c) {
  return (c >= 'a' && c <= 'z') || c == Mask || static_cast<unsigned char>(c) >= 0x80;
}

size_t RunLength(std::string_view text, size_t at, bool (*belongs)(char)) {
  size_t end = at;
  while (end < text.size() && belongs(text[end]))
    ++end;
  return end - at;
}

size_t BlankCount(std::string_view text, size_t at) {
  return RunLength(text, at, [](char c) { return c == ' ' || c == '\t'; });
}

struct Match {
  size_t length = 0;
  std::array<std::string_view, 2> numbers;  // what '@' and '*' stand for
  size_t numberCount = 0;
};

constexpr bool IsPointNumber(std::string_view digits) {
  constexpr std::array<std::string_view, 6> Points = {"4", "5", "6", "8", "9", "10"};
  return std::find(Points.begin(), Points.end(), digits) != Points.end();
}

// How far one sign of a wording reaches in the lower-case text at `at`; nothing when it is not
// there.
std::optional<size_t> SignLength(char sign, std::string_view text, size_t at, Match& match) {
  const size_t blanks = BlankCount(text, at);
  switch (sign) {
    case ' ':
      return blanks > 0 ? std::optional(blanks) : std::nullopt;
    case '_':
      return blanks == 0 && at < text.size() && text[at] == '-' ? 1 : blanks;
    case '@':
    case '*': {
      const std::string_view digits = text.substr(at, RunLength(text, at, IsDigit));
      if (digits.empty() || (sign == '@' && !IsPointNumber(digits))) return std::nullopt;
      match.numbers[match.numberCount++] = digits;
      return digits.size();
    }
    default:
      return at < text.size() && text[at] == sign ? std::optional<size_t>(1) : std::nullopt;
  }
}

bool GoesOn(char last, char next) {
  return IsDigit(last) ? IsDigit(next) : IsLetter(last) && IsLetter(next);
}

// The wording as whole words at `at`.
std::optional<Match> MatchAt(std::string_view from, std::string_view text, size_t at) {
  if (at > 0 && (IsLetter(text[at - 1]) || IsDigit(text[at - 1]))) return std::nullopt;
  Match match;
  for (const char sign : from) {
    const auto length = SignLength(sign, text, at + match.length, match);
    if (!length) return std::nullopt;
    match.length += *length;
  }
  const size_t end = at + match.length;
  if (end < text.size() && GoesOn(text[end - 1], text[end])) return std::nullopt;
  return match;
}

std::string Reworded(std::string_view to, const Match& match) {
  std::string text;
  size_t used = 0;
  for (const char sign : to) {
    if (sign != '@' && sign != '*') {
      text += sign;
      continue;
    }
    std::string_view number = match.numbers[used++];
    number.remove_prefix(std::min(number.find_first_not_of('0'), number.size() - 1));
    text += number;
  }
  return text;
}

// A stretch of code and its lower-case shadow, of the same length.
struct Stretch {
  std::string text, shadow;
};

void Apply(const Rewording& row, Stretch& code) {
  const std::string_view start = row.From.substr(0, row.From.find_first_of(" _*@"));
  size_t at = code.shadow.find(start);
  if (at == std::string::npos) return;
  Stretch done;
  size_t copied = 0;
  const auto copyTo = [&](size_t end) {
    done.text.append(code.text, copied, end - copied);
    done.shadow.append(code.shadow, copied, end - copied);
  };
  while (at != std::string::npos) {
    size_t next = at + 1;
    if (const auto match = MatchAt(row.From, code.shadow, at)) {
      copyTo(at);
      const std::string wording = Reworded(row.To, *match);
      done.text += wording;
      done.shadow.append(wording.size(), Mask);
      copied = next = at + match->length;
    }
    at = code.shadow.find(start, next);
  }
  copyTo(code.text.size());
  code = std::move(done);
}

std::string UpgradeCode(std::string_view text) {
  Stretch code{std::string(text), LowerCase(text)};
  for (const Rewording& row : Rewordings)
    Apply(row, code);
  return code.text;
}

}  // namespace

std::string UpgradeWording(std::string_view line) {
  std::string upgraded;
  size_t code = 0, at = 0;  // where the code not yet done begins
  while (at < line.size()) {
    const size_t verbatim = VerbatimLength(line, at);
    if (verbatim == 0) {
      ++at;
      continue;
    }
    upgraded += UpgradeCode(line.substr(code, at - code));
    upgraded += line.substr(at, verbatim);
    code = at = at + verbatim;
  }
  return upgraded + UpgradeCode(line.substr(code));
}

}  // namespace tessarel
