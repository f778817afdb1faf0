#include "texts/say.h"

#include <cassert>

#include "base/indexing.h"
#include "state/settings.h"
#include "texts/text_tables.h"

namespace tessarel {

std::string_view Wording(Text text, int32_t language) {
  const int32_t known = language >= 0 && language < LanguageCount ? language : English;
  return At(At(TextsOfLanguages, known), static_cast<int>(text));
}

std::string_view Wording(Text text) {
  return Wording(text, Settings.Language);
}

std::string FillText(Text text, std::initializer_list<std::string_view> values) {
  assert(values.size() == ArgumentCount(text));
  const std::string_view wording = Wording(text);
  std::string filled;
  filled.reserve(wording.size() + 32);
  // One pass, so that a value with a mark of its own is taken as it stands.
  for (const char c : wording) {
    const size_t value = static_cast<unsigned char>(c) - size_t{1};
    if (value < values.size()) {
      filled += values.begin()[value];
    } else {
      filled += c;
    }
  }
  return filled;
}

}  // namespace tessarel
