#include "autobet/find_replace.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "base/message.h"
#include "base/single_byte_text.h"
#include "texts/say.h"

namespace tessarel {

FindReplaceState FindReplace;

namespace {

constexpr size_t NoMatch = std::string_view::npos;

std::string_view FirstLine(std::string_view text) {
  return text.substr(0, text.find_first_of("\r\n"));
}

// The lower case of a line has its length, so that positions hold in both.
std::string Searchable(std::string_view text) {
  return FindReplace.chkMatchCase != 0 ? std::string(text) : LowerCase(text);
}

struct Needle {
  std::string text = Searchable(FirstLine(FindReplace.FindWhat));

  size_t Length() const { return text.size(); }
  bool Empty() const { return text.empty(); }

  // The first occurrence that begins at `from` (from 0) or after.
  size_t Next(std::string_view line, size_t from) const {
    return Searchable(line).find(text, from);
  }

  // The last occurrence that ends at `end` or before.
  size_t Previous(std::string_view line, size_t end) const {
    return end < Length() ? NoMatch : Searchable(line).rfind(text, end - Length());
  }
};

TextSpan SpanAt(size_t line, size_t column, size_t length) {
  return {static_cast<int32_t>(line + 1), static_cast<int32_t>(column + 1),
          static_cast<int32_t>(length)};
}

// A place in the script, from 0.
struct Position {
  size_t line = 0, column = 0;
};

Position Within(const ScriptLines& lines, int32_t line, int64_t column) {
  Position at;
  at.line = static_cast<size_t>(
      std::clamp(int64_t{line} - 1, int64_t{0}, static_cast<int64_t>(lines.size()) - 1));
  const auto length = static_cast<int64_t>(lines[at.line].size());
  at.column = static_cast<size_t>(std::clamp(column - 1, int64_t{0}, length));
  return at;
}

// The line of `from` comes twice: first what lies ahead, and at last the rest of it.
std::optional<TextSpan> FindDownward(const ScriptLines& lines,
                                     const Needle& needle,
                                     Position from) {
  for (size_t step = 0; step <= lines.size(); ++step) {
    const size_t line = (from.line + step) % lines.size();
    const size_t column = needle.Next(lines[line], step == 0 ? from.column : 0);
    if (column != NoMatch) return SpanAt(line, column, needle.Length());
  }
  return std::nullopt;
}

std::optional<TextSpan> FindUpward(const ScriptLines& lines, const Needle& needle, Position from) {
  for (size_t step = 0; step <= lines.size(); ++step) {
    const size_t line = (from.line + lines.size() - step % lines.size()) % lines.size();
    const size_t column =
        needle.Previous(lines[line], step == 0 ? from.column : lines[line].size());
    if (column != NoMatch) return SpanAt(line, column, needle.Length());
  }
  return std::nullopt;
}

std::optional<TextSpan> Find(const ScriptLines& lines,
                             const Needle& needle,
                             TextSpan selection,
                             FindDirection direction) {
  if (needle.Empty() || lines.empty()) return std::nullopt;
  const int64_t length = std::max(selection.Length, 0);
  return direction == FindUp
             ? FindUpward(lines, needle, Within(lines, selection.Line, selection.Column))
             : FindDownward(lines, needle,
                            Within(lines, selection.Line, selection.Column + length));
}

FindDirection DirectionInForce() {
  return FindReplace.optDirection == FindUp ? FindUp : FindDown;
}

void SayNotFound() {
  ShowMessage(Say(Text::TextNotFound), Say(Text::SearchResults), msg::OkAlert);
}

bool IsOccurrence(const ScriptLines& lines, const Needle& needle, TextSpan span) {
  if (needle.Empty() || lines.empty()) return false;
  const Position at = Within(lines, span.Line, span.Column);
  return SpanAt(at.line, at.column, needle.Length()) == span &&
         needle.Next(lines[at.line], at.column) == at.column;
}

int32_t ReplaceInLine(std::string& line, const Needle& needle, std::string_view with) {
  const std::string searched = Searchable(line);
  std::string result;
  int32_t count = 0;
  size_t done = 0;
  for (size_t at = searched.find(needle.text); at != NoMatch;
       at = searched.find(needle.text, done)) {
    result.append(line, done, at - done).append(with);
    done = at + needle.Length();
    ++count;
  }
  if (count > 0) line = result.append(line, done);
  return count;
}

}  // namespace

std::optional<TextSpan> FindText(const ScriptLines& lines, TextSpan selection) {
  return FindText(lines, selection, DirectionInForce());
}

std::optional<TextSpan> FindText(const ScriptLines& lines,
                                 TextSpan selection,
                                 FindDirection direction) {
  const Needle needle;
  if (needle.Empty()) return std::nullopt;
  const auto found = Find(lines, needle, selection, direction);
  if (!found) SayNotFound();
  return found;
}

Replacement ReplaceText(ScriptLines& lines, TextSpan selection) {
  const Needle needle;
  Replacement result{false, selection};
  if (needle.Empty()) return result;
  if (IsOccurrence(lines, needle, selection)) {
    const std::string_view with = FirstLine(FindReplace.ReplaceWith);
    const Position at = Within(lines, selection.Line, selection.Column);
    lines[at.line].replace(at.column, needle.Length(), with);
    result = {true, SpanAt(at.line, at.column, with.size())};
  }
  const auto next = Find(lines, needle, result.Selection, DirectionInForce());
  if (next) {
    result.Selection = *next;
  } else if (result.Replaced) {
    result.Selection.Column += std::exchange(result.Selection.Length, 0);
  } else {
    SayNotFound();
  }
  return result;
}

int32_t ReplaceAllText(ScriptLines& lines) {
  const Needle needle;
  if (needle.Empty()) return 0;
  const std::string_view with = FirstLine(FindReplace.ReplaceWith);
  int32_t count = 0;
  for (std::string& line : lines)
    count += ReplaceInLine(line, needle, with);
  if (count == 0) SayNotFound();
  return count;
}

}  // namespace tessarel
