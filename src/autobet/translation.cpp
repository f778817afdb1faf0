#include "autobet/translation.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string_view>
#include <utility>

#include "autobet/normalise.h"
#include "autobet/number_text.h"
#include "autobet/vocabulary.h"
#include "base/single_byte_text.h"
#include "state/table.h"
#include "texts/say.h"

namespace tessarel {

namespace {

// A line on its way: the working text that turns into token words, and its shadow, in which every
// character keeps its column, so that keywords can be found. Both have a blank at each end.
struct PreparedLine {
  std::string working, shadow;
};

// A player's name and its token. Names stand after all phrases: they match what those left.
struct NamePhrase {
  std::string from, to;
};

std::vector<NamePhrase> NamePhrases() {
  std::vector<NamePhrase> phrases;
  for (int place = 1; place <= LastPlace; ++place) {
    const std::string& name = Table.PlayerName[place];
    if (TrimSpaces(name).empty()) continue;
    phrases.push_back({" " + LowerCase(name) + " ", " P" + std::to_string(place) + " "});
  }
  return phrases;
}

void CollapseBlanks(std::string& text) {
  const auto end =
      std::unique(text.begin(), text.end(), [](char a, char b) { return a == ' ' && b == ' '; });
  text.erase(end, text.end());
}

void Blank(std::string& text, size_t at, size_t length) {
  std::fill_n(text.begin() + static_cast<std::ptrdiff_t>(at), length, ' ');
}

// Like find; lines are full of blanks, so it is the first letter after one that is looked for.
size_t FindPhrase(std::string_view text, std::string_view phrase, size_t from = 0) {
  if (!phrase.starts_with(' ')) return text.find(phrase, from);
  const std::string_view body = phrase.substr(1);
  size_t at = text.find(body, from + 1);
  while (at != std::string_view::npos && text[at - 1] != ' ') {
    at = text.find(body, at + 1);
  }
  return at == std::string_view::npos ? at : at - 1;
}

void BlankAll(std::string& text, std::string_view phrase) {
  for (size_t at = FindPhrase(text, phrase); at != std::string::npos;
       at = FindPhrase(text, phrase, at)) {
    Blank(text, at, phrase.size());
  }
}

// Control words and the colon stay in the shadow, where their columns are looked up.
bool IsKeywordRow(std::string_view to) {
  if (!to.starts_with(" L")) return false;
  const std::string_view digits = to.substr(2, 3);
  return digits < "020" || digits == "100";
}

// Code up to the comment.
std::string_view WithoutComment(std::string_view line) {
  size_t at = 0;
  while (at < line.size() && line[at] != '\'')
    at += std::max<size_t>(VerbatimLength(line, at), 1);
  return line.substr(0, at);
}

// Puts the strings of a line into the table and their tokens into the working line, which is lower
// case else. Their characters are blank in the shadow.
std::optional<ScriptError> LiftStrings(std::string_view line,
                                       PreparedLine& prepared,
                                       std::vector<ScriptString>& strings) {
  prepared.shadow = LowerCase(line);
  size_t from = 0;
  for (size_t open = line.find('"'); open != std::string_view::npos; open = line.find('"', from)) {
    const size_t close = line.find('"', open + 1);
    if (close == std::string_view::npos) {
      return ScriptError{.startColumn = static_cast<int32_t>(open),
                         .endColumn = static_cast<int32_t>(line.size()),
                         .text = Say(Text::ScriptQuoteMissing)};
    }
    prepared.working += LowerCase(line.substr(from, open - from));
    if (close == open + 1) {
      prepared.working += " S0 ";
    } else {
      std::string index = std::to_string(strings.size());
      if (index.size() < 3) index.insert(0, 3 - index.size(), '0');
      prepared.working += " S" + index + " ";
      strings.push_back({std::string(line.substr(open + 1, close - open - 1))});
    }
    from = close + 1;
    Blank(prepared.shadow, open, from - open);
  }
  prepared.working += LowerCase(line.substr(from));
  return {};
}

void ApplyPhrases(PreparedLine& line, const std::vector<NamePhrase>& names) {
  LetterPairs letters(line.working);
  // Blanking only takes letters away, so the first set serves for the shadow to the end.
  const LetterPairs shadowLetters(line.shadow);
  for (const Phrase& phrase : PhraseTable) {
    const std::string_view from = phrase.From.View(), to = phrase.To.View();
    if (letters.Covers(phrase.Letters) && ReplaceAll(line.working, from, to)) {
      CollapseBlanks(line.working);
      letters = LetterPairs(line.working);
    }
    if (shadowLetters.Covers(phrase.Letters) && !IsKeywordRow(to)) BlankAll(line.shadow, from);
  }
  for (const NamePhrase& name : names) {
    ReplaceAll(line.working, name.from, name.to);
    BlankAll(line.shadow, name.from);
    CollapseBlanks(line.working);
  }
}

// Words and signs that only make a sentence read well.
void RemoveNoise(std::string& working) {
  ReplaceAll(working, " the ", " ");
  ReplaceAll(working, " a ", " ");
  std::erase_if(working, [](char c) { return c == '$' || c == '#'; });
}

// A text in the shadow, as a whole word if it stands there as one; npos when it is not there.
size_t FindWord(std::string_view shadow, std::string_view word) {
  const auto isPart = [&](size_t at) {
    return at < shadow.size() && shadow[at] != ' ' && shadow[at] != ':';
  };
  for (size_t at = shadow.find(word); at != std::string_view::npos;
       at = shadow.find(word, at + 1)) {
    if (!(at > 0 && isPart(at - 1)) && !isPart(at + word.size())) return at;
  }
  return shadow.find(word);
}

// The column in the line of a place in the shadow, which has a blank in front.
int32_t ColumnOf(size_t shadowPlace) {
  return shadowPlace == 0 ? 0 : static_cast<int32_t>(shadowPlace - 1);
}

std::string_view KeywordText(int32_t logic) {
  switch (logic) {
    case LogicIf:
      return "if";
    case LogicThen:
      return "then";
    case LogicElse:
      return "else";
    case LogicElseIf:
      return "elseif";
    case LogicEndIf:
      return "endif";
    case LogicReturn:
      return "return";
    case LogicGoto:
      return "goto";
    case LogicGosub:
      return "gosub";
    case LogicDo:
      return "do";
    case LogicLoop:
      return "loop";
    case LogicExitDo:
      return "exitdo";
    default:
      return {};
  }
}

// The class of a word by its first letter.
std::optional<int32_t> ClassOf(char letter) {
  constexpr std::pair<char, int32_t> Classes[] = {
      {'F', FunctionToken},      {'V', VariableToken},       {'P', PlayerToken}, {'H', HandToken},
      {'X', FirstModifierToken}, {'Y', SecondModifierToken}, {'S', StringToken}, {'A', ActionToken},
      {'I', ListToken},          {'U', EmptyToken},
  };
  for (const auto& [first, code] : Classes) {
    if (first == letter) return code;
  }
  return {};
}

// The number after the letter of a word, up to a point.
int32_t NumberOf(std::string_view word) {
  int32_t number = 0;
  std::from_chars(word.data() + 1, word.data() + word.size(), number);
  return number;
}

// What is wrong with a word that no phrase has taken.
std::string UnknownWordText(std::string_view word) {
  if (word == "playername") return Say(Text::ScriptUnknownPlayer);
  if (word == "session") return Say(Text::ScriptWhichSession);
  if (word == "hand") return Say(Text::ScriptWhichHand);
  return Say(Text::ScriptUnknownWord, word);
}

// Writes the token stream word by word.
class StreamWriter {
 public:
  StreamWriter(int slot, std::vector<ScriptToken>& stream) : stream_(stream) {
    Put(HeaderToken, slot);
    Put(MarkerToken, 0);
  }

  std::optional<ScriptError> PutLine(int32_t number, const PreparedLine& line) {
    line_ = number;
    shadow_ = line.shadow;
    const std::string_view working = line.working;
    if (working.find_first_not_of(' ') == std::string_view::npos) return {};
    BeginStatement(0);
    size_t end = 0;
    for (size_t at = working.find_first_not_of(' '); at != std::string_view::npos;
         at = working.find_first_not_of(' ', end)) {
      end = std::min(working.find(' ', at), working.size());
      const std::string_view word = working.substr(at, end - at);
      if (!PutWord(word)) return UnknownWord(word);
    }
    return {};
  }

  // The marker after the last line. The one in front of the first is not taken for it.
  void Close(int32_t lineBehind) {
    constexpr size_t ElementsOfNothing = 3;  // with the unused one in front
    line_ = lineBehind;
    if (stream_.size() > ElementsOfNothing) {
      BeginStatement(0);
    } else {
      Put(MarkerToken + line_, 0);
    }
  }

 private:
  void Put(int32_t code, double value) { stream_.push_back({code, value}); }

  // The next element belongs to a statement of this line from `column` on.
  void BeginStatement(int32_t column) {
    if (IsMarker(stream_.back().code)) stream_.pop_back();
    Put(MarkerToken + line_, column);
  }

  bool PutWord(std::string_view word) {
    if (const auto number = ReadNumber(word)) {
      Put(NumberToken, *number);
    } else if (word.front() == 'L') {
      PutLogic(NumberOf(word));
    } else if (const auto code = ClassOf(word.front())) {
      Put(*code, NumberOf(word));
    } else {
      return false;
    }
    return true;
  }

  void PutLogic(int32_t logic) {
    if (logic == LogicColon) {
      const size_t colon = TakeFromShadow(":", shadow_.find(':'));
      Put(MarkerToken + line_, colon == std::string::npos ? 0 : static_cast<int32_t>(colon));
    } else if (const std::string_view keyword = KeywordText(logic); !keyword.empty()) {
      PutKeyword(logic, keyword);
    } else {
      Put(logic, 0);
    }
  }

  // A keyword begins a statement; all but those with a label are one by themselves.
  void PutKeyword(int32_t logic, std::string_view keyword) {
    const size_t place = TakeFromShadow(keyword, FindWord(shadow_, keyword));
    const bool found = place != std::string::npos;
    if (!IsMarker(stream_.back().code)) Put(MarkerToken + line_, found ? ColumnOf(place) : 0);
    Put(logic, 0);
    if (logic != LogicGoto && logic != LogicGosub) {
      Put(MarkerToken + line_, found ? ColumnOf(place + keyword.size()) : 0);
    }
  }

  // Blanks a text found in the shadow, so that the next one on the line is found next.
  size_t TakeFromShadow(std::string_view text, size_t place) {
    if (place != std::string::npos) Blank(shadow_, place, text.size());
    return place;
  }

  ScriptError UnknownWord(std::string_view word) const {
    ScriptError error{.line = line_, .endLine = line_, .text = UnknownWordText(word)};
    const size_t place = FindWord(shadow_, word);
    if (place != std::string::npos) error.startColumn = ColumnOf(place);
    error.endColumn =
        place != std::string::npos ? ColumnOf(place + word.size()) : ColumnOf(shadow_.size() - 1);
    return error;
  }

  std::vector<ScriptToken>& stream_;
  int32_t line_ = 0;
  std::string shadow_;
};

// From the line as it is stored to the words of its tokens.
std::optional<ScriptError> PrepareLine(std::string line,
                                       const std::vector<NamePhrase>& names,
                                       std::vector<ScriptString>& strings,
                                       PreparedLine& prepared) {
  NormaliseLine(line);
  const std::string_view code = WithoutComment(line);
  if (code.find_first_not_of(' ') == std::string_view::npos) return {};
  if (auto error = LiftStrings(code, prepared, strings)) return error;
  prepared.working = " " + prepared.working + " ";
  prepared.shadow = " " + prepared.shadow + " ";
  CollapseBlanks(prepared.working);
  ApplyPhrases(prepared, names);
  RemoveNoise(prepared.working);
  return {};
}

}  // namespace

std::optional<ScriptError> TranslateScript(int slot,
                                           std::span<const std::string> lines,
                                           CompiledScript& script) {
  script = CompiledScript();
  const std::vector<NamePhrase> names = NamePhrases();
  StreamWriter writer(slot, script.TokenStream);
  int32_t number = 0;
  for (const std::string& line : lines) {
    ++number;
    PreparedLine prepared;
    if (auto error = PrepareLine(line, names, script.ScriptStringTable, prepared)) {
      error->line = error->endLine = number;
      return error;
    }
    if (auto error = writer.PutLine(number, prepared)) return error;
  }
  writer.Close(number + 1);
  return {};
}

bool ReplaceAll(std::string& text, std::string_view from, std::string_view to) {
  size_t found = FindPhrase(text, from);
  if (found == std::string::npos) return false;
  std::string done;
  size_t read = 0;  // what stands in front of it in `text` is in `done`
  for (; found != std::string::npos; found = FindPhrase(text, from, read)) {
    done.append(text, read, found - read).append(to);
    read = found + from.size();
    // The next occurrence may begin in the replacement or just in front of it: back these go, into
    // the room of what was read. Only at the front of a text that grows must room be made.
    const size_t again = std::min(done.size(), from.size() - 1 + to.size());
    const size_t room = std::min(again, read);
    text.replace(read - room, room, done, done.size() - again, again);
    read -= room;
    done.resize(done.size() - again);
  }
  text = std::move(done.append(text, read));
  return true;
}

}  // namespace tessarel
