#include "texts/language.h"

#include "base/message.h"
#include "state/settings.h"
#include "texts/say.h"

namespace tessarel {

void SetLanguage(int32_t language) {
  Settings.Language = language >= 0 && language < LanguageCount ? language : English;
  Message.ErrorTitle = Wording(Text::Error);
}

}  // namespace tessarel
