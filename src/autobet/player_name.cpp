#include "autobet/player_name.h"

#include "autobet/number_text.h"
#include "autobet/vocabulary.h"
#include "base/single_byte_text.h"
#include "texts/say.h"

namespace tessarel {

std::optional<std::string> ReservedWordIn(std::string_view name) {
  const std::string padded = " " + LowerCase(name) + " ";
  // Translation drops these two words, so a name of nothing else would never be seen.
  for (const std::string_view noise : {"a", "the"}) {
    if (TrimSpaces(padded) == noise) return std::string(noise);
  }
  for (const Phrase& phrase : PhraseTable) {
    const std::string_view from = phrase.From.View();
    if (padded.find(from) != std::string::npos) return std::string(TrimSpaces(from));
  }
  return {};
}

std::optional<std::string> PlayerNameRefusal(std::string_view name) {
  if (ReadNumber(TrimSpaces(name))) return Say(Text::NameAllNumeric) + "\r\r";
  if (!ReservedWordIn(name)) return {};
  return Say(Text::NameHoldsReservedWord, name) + "\r\r";
}

}  // namespace tessarel
