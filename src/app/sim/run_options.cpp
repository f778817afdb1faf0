#include "app/sim/run_options.h"

#include <charconv>

#include "app/sim/failure.h"
#include "base/number_format.h"
#include "base/single_byte_text.h"
#include "state/table.h"
#include "texts/say.h"

namespace tessarel::sim {

namespace {

int ReadPlace(const std::string& text, const std::string& whole) {
  int place = 0;
  const char* const end = text.data() + text.size();
  const auto [rest, error] = std::from_chars(text.data(), end, place);
  if (error != std::errc() || rest != end) {
    throw Failure(WrongCommandLine, Say(Text::SimNotAPlace, text, whole));
  }
  if (place < 1 || place > LastPlace) {
    throw Failure(CannotBeDone, Say(Text::SimNoSuchPlace, text, whole));
  }
  return place;
}

// Cuts "@PLACE" off the end of `text`; 0 when there is none.
int CutPlace(std::string& text, const std::string& whole) {
  const size_t at = text.rfind('@');
  if (at == std::string::npos) return 0;
  const int place = ReadPlace(text.substr(at + 1), whole);
  text.erase(at);
  return place;
}

bool LooksLikeNumber(const std::string& text) {
  return !text.empty() && text.find_first_not_of("+-.0123456789") == std::string::npos;
}

Money ReadAmount(const std::string& text, const std::string& whole) {
  const std::optional<Money> amount = ParseMoney(text);
  if (amount) return *amount;
  if (LooksLikeNumber(text)) {
    throw Failure(CannotBeDone, Say(Text::SimNotMoney, text, whole));
  }
  throw Failure(WrongCommandLine, Say(Text::SimNotAnAmount, text, whole));
}

}  // namespace

PlayerArgument ReadPlayer(const std::string& text) {
  PlayerArgument player;
  player.name = text;
  const size_t equals = player.name.rfind('=');
  if (equals != std::string::npos) {
    player.bankroll = ReadAmount(player.name.substr(equals + 1), text);
    player.name.erase(equals);
  }
  player.place = CutPlace(player.name, text);
  player.name = TrimSpaces(player.name);
  if (Abs(player.bankroll) > BankrollLimit) {
    throw Failure(CannotBeDone, Say(Text::SimBankrollBeyond, text));
  }
  return player;
}

ScriptArgument ReadScript(const std::string& text) {
  ScriptArgument script;
  script.file = text;
  // The '@' of a folder or in front of the ending belongs to the name.
  const size_t at = text.rfind('@');
  const bool hasPlace =
      at != std::string::npos && text.find_first_of("./", at) == std::string::npos;
  if (hasPlace) script.place = CutPlace(script.file, text);
  if (script.file.empty()) {
    throw Failure(WrongCommandLine, Say(Text::SimScriptReads, text));
  }
  return script;
}

BetArgument ReadBet(const std::string& text) {
  BetArgument bet;
  std::string rest = text;
  bet.place = CutPlace(rest, text);
  const size_t equals = rest.rfind('=');
  if (equals == std::string::npos) {
    throw Failure(WrongCommandLine, Say(Text::SimBetReads, text));
  }
  const std::string name = std::string(TrimSpaces(rest.substr(0, equals)));
  bet.number = BetByName(name);
  if (bet.number == 0) throw Failure(CannotBeDone, Say(Text::SimNoBetNamed, name));
  bet.amount = ReadAmount(rest.substr(equals + 1), text);
  if (bet.amount < Money()) {
    throw Failure(CannotBeDone, Say(Text::SimBetBelowZero, text));
  }
  return bet;
}

Mode ReadMode(const std::string& text) {
  if (text == "hyper") return Mode::Hyper;
  if (text == "table") return Mode::Table;
  throw Failure(WrongCommandLine, Say(Text::SimModeIs, text));
}

std::string ReadFileName(const std::string& text) {
  if (text.empty()) throw Failure(WrongCommandLine, Say(Text::SimNameEmpty));
  return text;
}

int64_t ReadWhole(const std::string& text) {
  const char* begin = text.data() + (text.starts_with('+') ? 1 : 0);
  const char* const end = text.data() + text.size();
  int64_t number = 0;
  const auto [rest, error] = std::from_chars(begin, end, number);
  if (error == std::errc::invalid_argument || rest != end) {
    throw Failure(WrongCommandLine, Say(Text::SimNotWhole, text));
  }
  if (error == std::errc()) return number;
  return *begin == '-' ? INT64_MIN : INT64_MAX;
}

int64_t ReadCount(const std::string& text, int64_t limit) {
  const int64_t count = ReadWhole(text);
  if (count >= 0 && count <= limit) return count;
  throw Failure(CannotBeDone, Say(Text::SimCountBeyond, text, FormatNumber(limit, "#,0")));
}

std::string ReadPayoff(const std::string& text) {
  if (text.find('=') == std::string::npos) {
    throw Failure(WrongCommandLine, Say(Text::SimPayoffReads, text));
  }
  return text;
}

FieldArgument ReadField(const std::string& text) {
  const size_t equals = text.find('=');
  if (equals == std::string::npos) {
    throw Failure(WrongCommandLine, Say(Text::SimSettingReads, text));
  }
  FieldArgument field;
  field.field = text.substr(0, equals);
  field.value = text.substr(equals + 1);
  field.place = CutPlace(field.field, text);
  return field;
}

}  // namespace tessarel::sim
