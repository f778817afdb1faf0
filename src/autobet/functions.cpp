#include "autobet/functions.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <utility>

#include "autobet/function_call.h"
#include "autobet/number_text.h"
#include "autobet/script_messages.h"
#include "autobet/text_functions.h"
#include "autobet/variables.h"
#include "base/message.h"
#include "state/settings.h"
#include "state/table.h"

namespace tessarel {

namespace {

// A whole number from -1000 to 1000 as it stands; 0 for any other number.
int ExactWhole(double number) {
  return std::abs(number) <= 1000 && number == std::nearbyint(number) ? static_cast<int>(number)
                                                                      : 0;
}

// The faces are the tens and the ones, or the whole part and the first decimal.
int HopBet(double number) {
  constexpr double FirstPair = 11;
  const double tenfold = number < FirstPair ? std::nearbyint(number * 1e9) / 1e8 : number;
  const int faces = ExactWhole(tenfold);
  return faces > 99 ? 0 : HopOn(faces / 10, faces % 10);
}

// The bet of a family by the number after its word; 0 where it has none.
int BetOfFamily(int32_t function, double number) {
  if (function == function::Hop) return HopBet(number);
  const int total = ExactWhole(number);
  const bool even = total == 4 || total == 6 || total == 8 || total == 10;
  if (function == function::Hard) return even ? bet::Hard4 + (total - 4) / 2 : 0;
  if (!IsPointNumber(total)) return 0;
  if (function != function::Big)
    return 1 + (function - function::Lay) * FamilySize + PointIndex(total);
  return total == 6 ? bet::Big6 : total == 8 ? bet::Big8 : 0;
}
static_assert(1 + (function::Buy - function::Lay) * FamilySize == BuyFamily);

ScriptValue AverageOfBankroll(const FunctionCall& call) {
  constexpr int32_t MostRolls = 525;
  const int32_t rolls = call.WholeAt(0);
  if (rolls < 0 || rolls > MostRolls) return Refused(call);
  const int place = ResolvePlayer(call.Qualifiers.player);
  return Number(place > 0 && IsTaken(Table, place) ? AverageBankroll(place, rolls) : 0);
}

// The player and the name of a place.
std::optional<int32_t> PlaceArgument(const FunctionCall& call) {
  const int32_t place = call.WholeAt(0);
  return place >= 1 && place <= LastPlace ? std::optional(place) : std::nullopt;
}

ScriptValue PlaceOfPlayer(const FunctionCall& call) {
  const auto place = PlaceArgument(call);
  return place ? Number(*place) : Refused(call);
}

ScriptValue NameOfPlayer(const FunctionCall& call) {
  const auto place = PlaceArgument(call);
  return place ? TextValue(PlayerNameString - *place) : Refused(call);
}

ScriptValue SquareRoot(const FunctionCall& call) {
  const double number = call.NumberAt(0);
  return number < 0 ? Refused(call) : Number(std::sqrt(number));
}

ScriptValue WholePart(const FunctionCall& call) {
  return Number(std::floor(call.NumberAt(0)));
}

ScriptValue AbsoluteValue(const FunctionCall& call) {
  return Number(std::abs(call.NumberAt(0)));
}

// The number that the decimal of 15 digits means, so that 1.005 counts as a tie and a multiple of
// 0.1 equals the literal.
double AsDecimal(double number) {
  return ReadNumber(NumberText(number)).value_or(number);
}

ScriptValue RoundToPrecision(const FunctionCall& call) {
  const double precision = call.NumberAt(1);
  if (!(precision > 0)) return Refused(call);
  return Number(AsDecimal(std::round(AsDecimal(call.NumberAt(0) / precision)) * precision));
}

ScriptValue DieFace(const FunctionCall& call) {
  const int32_t die = call.WholeAt(0);
  if (die != 1 && die != 2) return Refused(call);
  return Number(die == 1 ? Table.Die1 : Table.Die2);
}

ScriptValue OddsAllowed(const FunctionCall& call) {
  const int number = ExactWhole(call.NumberAt(0));
  if (!IsPointNumber(number)) return Refused(call);
  const Money factor = number == 4 || number == 10  ? Settings.OddsAllowed410
                       : number == 5 || number == 9 ? Settings.OddsAllowed59
                                                    : Settings.OddsAllowed68;
  return Number(factor.ToDouble());
}

// A prompt without a text of its own asks for what it is to return.
bool Prompt(const FunctionCall& call, StringValue standing) {
  const ScriptValue text = call.Argument(0);
  const bool own = IsText(text) && !TextOf(text).empty();
  const ScriptValue shown = own ? text : TextValue(standing);
  return AskForText(MessageLines(TextOf(shown)), ScriptMessageTitle(), "");
}

ScriptValue AskForNumber(const FunctionCall& call) {
  return Number(Prompt(call, InputPromptString) ? LeadingNumber(Message.MsgInput) : 0);
}

ScriptValue AskForLine(const FunctionCall& call) {
  if (!Prompt(call, InputTextPromptString)) return MakeText({});
  if (Message.MsgInput.size() > MaxTextLength) {
    FailScript(ScriptFault::TextTooLong);
    return Number(0);
  }
  return MakeText(Message.MsgInput);
}

struct ListFigures {
  int64_t Count = 0;
  double Sum = 0, Highest = 0, Lowest = 0;

  double Mean() const { return Count == 0 ? 0 : Sum / static_cast<double>(Count); }
};

ListFigures FiguresOf(std::span<const ListItem> list) {
  ListFigures figures;
  ForEachMember(list, [&figures](const ScriptValue& member) {
    const double number = NumberOf(member);
    const bool first = figures.Count++ == 0;
    figures.Sum += number;
    figures.Highest = first ? number : std::max(figures.Highest, number);
    figures.Lowest = first ? number : std::min(figures.Lowest, number);
    return true;
  });
  return figures;
}

double PopulationDeviation(std::span<const ListItem> list, const ListFigures& figures) {
  if (figures.Count == 0) return 0;
  double squares = 0;
  ForEachMember(list, [&](const ScriptValue& member) {
    const double distance = NumberOf(member) - figures.Mean();
    squares += distance * distance;
    return true;
  });
  return std::sqrt(squares / static_cast<double>(figures.Count));
}

ScriptValue NumberOfList(const FunctionCall& call) {
  const ListFigures figures = FiguresOf(call.Arguments);
  switch (call.Number) {
    case function::Highest:
      return Number(figures.Highest);
    case function::Lowest:
      return Number(figures.Lowest);
    case function::Mean:
      return Number(figures.Mean());
    case function::Deviation:
      return Number(PopulationDeviation(call.Arguments, figures));
    case function::Sum:
      return Number(figures.Sum);
    default:
      return Number(static_cast<double>(figures.Count));
  }
}

ScriptValue TextOfList(const FunctionCall& call) {
  std::optional<std::string> best;
  ForEachMember(call.Arguments, [&](const ScriptValue& member) {
    std::string text = TextOf(member);
    const bool better =
        !best || (call.Number == function::HighestText ? text > *best : text < *best);
    if (better) best = std::move(text);
    return true;
  });
  return MakeText(std::move(best).value_or(std::string()));
}

struct FunctionRow {
  int32_t Number;
  ScriptValue (*Call)(const FunctionCall& call);
};

// By number, ascending. The statistics of the rolls are called apart.
// clang-format off
constexpr FunctionRow FunctionRows[] = {
    {function::AverageBankroll, AverageOfBankroll}, {function::Player, PlaceOfPlayer},
    {function::SquareRoot, SquareRoot}, {function::WholePart, WholePart},
    {function::AbsoluteValue, AbsoluteValue}, {function::CodeOfText, CodeOfText},
    {function::ValueOfText, ValueOfText}, {function::LengthOfText, LengthOfText},
    {function::Input, AskForNumber}, {function::Highest, NumberOfList},
    {function::Lowest, NumberOfList}, {function::Mean, NumberOfList},
    {function::Deviation, NumberOfList}, {function::Sum, NumberOfList},
    {function::Count, NumberOfList}, {function::HighestText, TextOfList},
    {function::LowestText, TextOfList}, {function::Round, RoundToPrecision},
    {function::Die, DieFace}, {function::OddsFactor, OddsAllowed},
    {function::FindInText, FindInText}, {function::Left, KeepStretch},
    {function::Right, KeepStretch}, {function::RemoveLeft, RemoveStretch},
    {function::RemoveRight, RemoveStretch}, {function::Mid, KeepStretch},
    {function::RemoveMid, RemoveStretch}, {function::Insert, InsertText},
    {function::TextOfNumber, TextOfNumber}, {function::TextOfCode, TextOfCode},
    {function::Blanks, BlankText}, {function::InputText, AskForLine},
    {function::PlayerName, NameOfPlayer},
};
// clang-format on
static_assert(std::ranges::is_sorted(FunctionRows, {}, &FunctionRow::Number));

}  // namespace

int32_t NamedVariable(int32_t function, const ScriptValue& argument) {
  const double number = NumberOf(argument);
  int32_t variable = 0;
  if (function == function::Stack || function == function::StackName) {
    const int32_t stack = WholeOf(number);
    if (stack >= 0 && stack < StackCount) {
      variable = stack + (function == function::Stack ? FirstStack : variable::FirstStackName);
    }
  } else {
    variable = BetOfFamily(function, number);
  }
  if (variable == 0) FailScript(FaultOfFunction(function));
  return variable;
}

ScriptValue CallFunction(int32_t function,
                         const Reference& reference,
                         std::span<const ListItem> arguments) {
  if (IsRollStatistic(function)) return RollStatistic(function, reference, arguments);
  const auto* const row =
      std::ranges::lower_bound(FunctionRows, function, {}, &FunctionRow::Number);
  if (row == std::end(FunctionRows) || row->Number != function) return Number(0);
  return row->Call({function, reference, arguments});
}

}  // namespace tessarel
