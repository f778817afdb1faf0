#include <array>
#include <bit>
#include <charconv>
#include <optional>
#include <string>

#include "app/sim/commands.h"
#include "app/sim/console.h"
#include "app/sim/failure.h"
#include "app/sim/output.h"
#include "app/sim/scripts.h"
#include "app/sim/seating.h"
#include "autobet/checker.h"
#include "autobet/player_name.h"
#include "base/message.h"
#include "base/single_byte_text.h"
#include "play/start_up.h"
#include "state/scripts.h"
#include "state/table.h"

namespace tessarel::sim {

namespace {

void SeatNamed(const PlayerArgument& player) {
  if (const auto refusal = PlayerNameRefusal(player.name)) {
    constexpr const char* LineEnds = "\r\n";
    throw Failure(CannotBeDone,
                  OnOneLine(refusal->substr(0, refusal->find_last_not_of(LineEnds) + 1)));
  }
  Seat(player);
}

// The shortest digits that read back as the same number, without an exponent; minus zero is 0.
std::string ExactText(double value) {
  // Room for the longest: a sign, 309 digits in front of the point or 324 zeros and 17 digits
  // after it.
  std::array<char, 400> text{};
  const auto result =
      std::to_chars(text.data(), text.data() + text.size(), value + 0.0, std::chars_format::fixed);
  return {text.data(), result.ptr};
}

std::string TokenLines(const CompiledScript& script) {
  std::string lines;
  for (size_t element = 1; element < script.TokenStream.size(); ++element) {
    const ScriptToken& token = script.TokenStream[element];
    lines += std::to_string(token.code) + " " + ExactText(token.value) + "\n";
  }
  return lines;
}

}  // namespace

ExitStatus CheckCommand(const CheckOptions& options) {
  OpenConsole();
  StartUp(".");
  for (const PlayerArgument& player : options.players)
    SeatNamed(player);
  ApplyRules(options.settings, {});
  const int slot = Table.TakenPlaces != 0 ? std::countr_zero(Table.TakenPlaces) : 0;
  LoadScript(slot, options.file);
  CompiledScript script;
  const auto error = options.tokens == TokensShown::Translated
                         ? TranslateScript(slot, Scripts.Places[slot].lines, script)
                         : CheckScript(slot, script);
  if (error) {
    WriteOut(ErrorLine(options.file, *error) + "\n");
    return CannotBeDone;
  }
  if (options.tokens != TokensShown::None) WriteOut(TokenLines(script));
  return Done;
}

}  // namespace tessarel::sim
