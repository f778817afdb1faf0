// The vocabulary of the Auto-Bet language: the ordered table of phrases that turns English into
// token words, and the meaning of those words. Translation walks the table, the checker and the
// interpreter read the codes; nothing here knows of lines or scripts.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace tessarel {

// The classes of tokens. Logic tokens (see Logic) and statement markers are their own codes, above
// zero; the capital is the first letter of the token's word.
enum TokenCode : int32_t {
  EmptyToken = 0,             // U: ends a list
  FunctionToken = -1,         // F
  FunctionTarget = -2,        // a function that a statement assigns to
  HeaderToken = -3,           // opens a script; the value is its slot
  VariableToken = -11,        // V
  VariableTarget = -12,       // a variable that a statement assigns to
  PlayerToken = -13,          // P, see PlayerWord
  HandToken = -14,            // H, see HandScope
  FirstModifierToken = -15,   // X
  SecondModifierToken = -16,  // Y
  NumberToken = -31,          // a numeric word
  StringToken = -51,          // S: an index of the strings; 0 the empty one, below 0 run-time ones
  ActionToken = -61,          // A
  LabelToken = -71,           // the value is the index of the label's name
  ListToken = -81,            // I, see ListWord
  MarkerToken = 100,          // + the line: a statement begins; the value is its column
};

constexpr bool IsMarker(int32_t code) {
  return code >= MarkerToken;
}

// The logic tokens, words with an L.
enum Logic : int32_t {
  // clang-format off
  LogicIf = 1, LogicThen = 9, LogicElse = 10, LogicElseIf = 11, LogicEndIf = 12, LogicReturn = 13,
  LogicGoto = 14, LogicGosub = 15, LogicDo = 16, LogicLoop = 17, LogicExitDo = 18,
  LogicOpen = 20, LogicClose = 21,
  LogicEqual = 50, LogicNotEqual = 51, LogicLess = 52, LogicGreater = 53, LogicLessOrEqual = 54,
  LogicGreaterOrEqual = 55,
  LogicOn = 57, LogicThru = 58, LogicFrom = 59,  // LogicOn: "on" and "to"
  LogicPower = 60, LogicMultiply = 61, LogicDivide = 62, LogicWholeDivide = 63, LogicModulo = 64,
  LogicAdd = 65, LogicSubtract = 66,
  LogicNot = 70, LogicAnd = 71, LogicOr = 72, LogicXor = 73, LogicJoin = 74, LogicSeparator = 75,
  LogicColon = 100,  // only in words: the token becomes a marker
  // clang-format on
};

// The first logic token that is no control word.
inline constexpr int32_t LogicControlEnd = 20;

enum ListWord : int32_t { ListAny = 2, ListAll = 3 };

// Scopes of statistics, tokens with an H. The current session is also said as "all hands".
enum HandScope : int32_t {
  HandCurrent = 1,
  HandLast = 2,
  HandCurrentSession = 3,
  HandLastSession = 4,
  HandAllSessions = 5,
};

// Tokens with a P; 1 to 8 are places.
enum PlayerWord : int32_t {
  PlayerNobody = 0,
  PlayerShooter = 10,
  PlayerLastShooter = 11,
  PlayerOriginalShooter = 12,
  PlayerBettor = 13,
  PlayerAutoBettor = 14,  // whose script runs
};

// Tokens with an X.
enum FirstModifier : int32_t {
  // clang-format off
  ModTendered = 0, ModWagered = 1, ModWins = 2, ModLosses = 3, ModNet = 4, ModNetPercent = 5,
  ModEstablished = 6, ModPassed = 7, ModMissed = 8, ModResolved = 10,
  ModBasicNumbers = 30, ModCombos21 = 31, ModCombos36 = 32, ModDie1Faces = 33, ModDie2Faces = 34,
  // clang-format on
};

// Tokens with a Y. The number of rolls since the last one has no phrase; the checker adds it.
enum SecondModifier : int32_t {
  // clang-format off
  ModTotal = 0, ModNaturals = 14, ModPoints = 15, ModTotalNumber = 21, ModTotalAmount = 22,
  ModHigh = 23, ModLow = 24, ModAverage = 25, ModLastAmount = 26, ModRollsSinceLast = 27,
  ModLastRollNumber = 28, ModLastRollAmount = 29, ModNumberPerHour = 30, ModAmountPerHour = 31,
  ModExpectedValue = 32, ModCurrentNumber = 33, ModCurrentAmount = 34, ModPriorNumber = 35,
  ModPriorAmount = 36, ModWorking = 37, ModCalledOn = 38, ModCalledOff = 39, ModVig = 40,
  // clang-format on
};

// A short text that lives in the table itself.
class PhraseText {
 public:
  static constexpr size_t Capacity = 64;

  constexpr PhraseText() = default;
  constexpr PhraseText(std::string_view text) { *this += text; }

  constexpr PhraseText& operator+=(std::string_view text) {
    for (const char c : text)
      chars_[size_++] = c;
    return *this;
  }
  constexpr std::string_view View() const { return {chars_.data(), size_}; }

 private:
  std::array<char, Capacity> chars_{};
  size_t size_ = 0;
};

// Which characters and pairs of neighbours a text has, blanks left out, folded into 256 bits: a
// text can only hold another one whose bits it has. It saves most of the searches of a line.
class LetterPairs {
 public:
  constexpr LetterPairs() = default;
  constexpr explicit LetterPairs(std::string_view text) {
    uint8_t before = ' ';
    for (const char c : text) {
      const auto here = static_cast<uint8_t>(c);
      if (here != ' ') Set(here * 7u);
      if (here != ' ' && before != ' ') Set(before * 37u + here);
      before = here;
    }
  }
  constexpr bool Covers(const LetterPairs& other) const {
    uint64_t missing = 0;
    for (size_t k = 0; k < bits_.size(); ++k)
      missing |= other.bits_[k] & ~bits_[k];
    return missing == 0;
  }

 private:
  constexpr void Set(unsigned bit) { bits_[bit / 64 % 4] |= uint64_t{1} << bit % 64; }

  std::array<uint64_t, 4> bits_{};
};

struct Phrase {
  PhraseText From, To;
  LetterPairs Letters;  // of From
};

// The rows in the order in which they are applied to a line, each to the end before the next. THE
// ORDER IS THE MEANING: longer phrases stand ahead of the shorter ones inside them, and phrases
// with token words in them work on what the rows above have made. Row n of the table is element n
// - 1.
inline constexpr int PhraseCount = 1006;
extern const std::array<Phrase, PhraseCount> PhraseTable;

}  // namespace tessarel
