// Find and replace in the lines of a script: what the Find/Replace window and the editor's find
// commands do. They work on the editor's lines and its selection and know nothing of the editor;
// what was set last stays set while the program runs.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace tessarel {

enum FindDirection : int32_t { FindUp = 0, FindDown = 1 };

struct FindReplaceState {
  std::string FindWhat, ReplaceWith;  // of either, the first line counts
  int32_t chkMatchCase = 0;
  int32_t optDirection = FindDown;
};

extern FindReplaceState FindReplace;

// A stretch of one line, in bytes. Line and Column count from 1; an empty stretch is a caret.
struct TextSpan {
  int32_t Line = 1, Column = 1, Length = 0;

  bool operator==(const TextSpan&) const = default;
};

using ScriptLines = std::vector<std::string>;

// The next occurrence from the selection on in the direction set; at the end of the script the
// search goes on at its other end, so that a lone occurrence that is selected is found again. Says
// so when there is none. The selection may lie anywhere.
std::optional<TextSpan> FindText(const ScriptLines& lines, TextSpan selection);

// The same in a direction of its own, for the commands that find the next or the previous one.
std::optional<TextSpan> FindText(const ScriptLines& lines,
                                 TextSpan selection,
                                 FindDirection direction);

struct Replacement {
  bool Replaced = false;
  TextSpan Selection;  // the next occurrence; without one, a caret after the new text
};

// Replaces the selection if it is an occurrence, then finds the next one from there on, with what
// was put in after it. Says so when there is nothing to replace.
Replacement ReplaceText(ScriptLines& lines, TextSpan selection);

// Replaces every occurrence in the script, whatever the direction, and returns how many there were.
// Says so when there are none.
int32_t ReplaceAllText(ScriptLines& lines);

}  // namespace tessarel
