// Translation: the first step of compiling a script, from its lines to a stream of tokens. Each
// line passes the phrases of the vocabulary in their order; what is left of it is cut into words,
// one token each. The checker refines the stream this makes.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace tessarel {

// One element of a script: its class (TokenCode, or a logic token itself) and its number.
struct ScriptToken {
  int32_t code = 0;
  double value = 0;

  bool operator==(const ScriptToken&) const = default;
};

// A text literal, or the name of a label and the element at which that stands.
struct ScriptString {
  std::string text;
  int32_t element = 0;
};

// A script while it is compiled. Both arrays are indexed from 1.
struct CompiledScript {
  std::vector<ScriptToken> TokenStream = std::vector<ScriptToken>(1);
  std::vector<ScriptString> ScriptStringTable = std::vector<ScriptString>(1);
};

// Why a script cannot run and where: from a line and column to a line and column. Lines count from
// 1, columns from 0 in the tidy form of the line; the end is after the last character.
struct ScriptError {
  int32_t line = 0, startColumn = 0;
  int32_t endLine = 0, endColumn = 0;
  std::string text;  // for the message box
};

// Translates the lines of the script in `slot` (1 to 8 a place, 0 no seat) into `script`, which
// starts afresh. Players are known by the names they have at the table now. On an error the script
// is left partly filled. Safe on any bytes; the time is in proportion to the text.
std::optional<ScriptError> TranslateScript(int slot,
                                           std::span<const std::string> lines,
                                           CompiledScript& script);

// Replaces every `from` in the text by `to`, each time the first one from the front until none is
// left. `to` must not be able to bring `from` back. Returns whether there was one.
bool ReplaceAll(std::string& text, std::string_view from, std::string_view to);

}  // namespace tessarel
