#include "autobet/script_messages.h"

#include "autobet/values.h"
#include "state/table.h"
#include "texts/say.h"

namespace tessarel {

std::string ScriptMessageTitle() {
  const std::string& name = Table.PlayerName[AutoBet.CurrentScriptPlayer];
  return AutoBet.CurrentScriptPlayer == 0 ? Say(Text::AutoBet) : Say(Text::ScriptMessageOf, name);
}

std::string MessageLines(std::string_view text) {
  std::string lines;
  lines.reserve(text.size());
  char before = 0;
  for (const char c : text) {
    if (c != '\n') {
      lines += c;
    } else if (before != '\r') {
      lines += '\r';
    }
    before = c;
  }
  return lines;
}

}  // namespace tessarel
