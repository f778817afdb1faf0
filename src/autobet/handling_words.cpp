#include "autobet/handling_words.h"

#include <span>
#include <string>

#include "autobet/values.h"
#include "base/single_byte_text.h"
#include "engine/bet_handling.h"
#include "state/table.h"

namespace tessarel {

namespace {

// Words without their blanks.
struct HandlingWords {
  std::string_view words;
  int32_t mode;
};

constexpr HandlingWords WinWords[] = {
    {"manual", WinPrompt},
    {"takebetandwinnings", WinTakeDown},
    {"samebet/takewinnings", WinSameBet},
    {"samebet", WinSameBet},
    {"press1unit", WinPressUnit},
    {"pressdouble", WinPressDouble},
    {"parlay", WinParlay},
};

constexpr HandlingWords LossWords[] = {
    {"manual", LossPrompt},
    {"nobet/takeremainder(ifany)", LossTakeDown},
    {"nobet/takeremainder", LossTakeDown},
    {"nobet", LossTakeDown},
    {"samebet", LossSameBet},
    {"betremainder(ifany)", LossRemainder},
    {"betremainder", LossRemainder},
    {"samebetplus1unit", LossPressUnit},
    {"doublebet", LossPressDouble},
};

// In the order of their numbers; "*" is another form of "x".
constexpr std::string_view Operators = "+-x/";

std::optional<int32_t> OperationOf(char sign) {
  const size_t place = Operators.find(sign == '*' ? 'x' : sign);
  if (place == std::string_view::npos) return std::nullopt;
  return static_cast<int32_t>(place);
}

std::optional<HandlingChoice> WithAmount(int32_t mode, int32_t operation, std::string_view text) {
  if (text.starts_with('$')) text.remove_prefix(1);
  const bool isNumber =
      !text.empty() && std::string_view("0123456789.").find(text.front()) != std::string_view::npos;
  const double amount = LeadingNumber(text);
  const bool dividesByZero = operation == 3 && amount == 0;
  if (!isNumber || dividesByZero || amount > BankrollLimit.ToDouble()) return std::nullopt;
  return HandlingChoice{mode, true, operation, Money::FromDouble(amount)};
}

std::optional<HandlingChoice> HandlingOf(std::string_view words,
                                         std::span<const HandlingWords> table,
                                         int32_t modify,
                                         int32_t set) {
  constexpr std::string_view SameBetWords = "samebet", BetWord = "bet";
  std::string text = LowerCase(std::string(words));
  std::erase(text, ' ');
  for (const HandlingWords& row : table) {
    if (row.words == text) return HandlingChoice{row.mode, false, 0, {}};
  }
  const std::string_view rest = text;
  if (rest.starts_with(SameBetWords) && rest.size() > SameBetWords.size()) {
    const auto operation = OperationOf(rest[SameBetWords.size()]);
    if (!operation) return std::nullopt;
    return WithAmount(modify, *operation, rest.substr(SameBetWords.size() + 1));
  }
  if (rest.starts_with(BetWord)) return WithAmount(set, 0, rest.substr(BetWord.size()));
  return std::nullopt;
}

}  // namespace

std::optional<HandlingChoice> WinHandlingOf(std::string_view words) {
  return HandlingOf(words, WinWords, WinModify, WinSetUnits);
}

std::optional<HandlingChoice> LossHandlingOf(std::string_view words) {
  return HandlingOf(words, LossWords, LossModify, LossSetUnits);
}

}  // namespace tessarel
