#include "config/setting_fields.h"

#include <algorithm>
#include <charconv>
#include <type_traits>
#include <utility>
#include <vector>

#include "base/message.h"
#include "base/number_format.h"
#include "base/single_byte_text.h"
#include "config/configuration.h"
#include "dice/generators.h"
#include "engine/bets.h"
#include "state/scripts.h"
#include "state/settings.h"
#include "state/table.h"
#include "texts/language.h"
#include "texts/say.h"

namespace tessarel {

namespace {

using S = SettingsState;
using T = TableState;
using Rights = ScriptStoreState;

template <class Value>
constexpr bool IsSingle =
    std::is_same_v<Value, Money> || std::is_same_v<Value, int32_t> || std::is_same_v<Value, bool>;

template <class Value>
FieldValue Element(Value& value, int key) {
  if constexpr (IsSingle<Value>)
    return &value;
  else
    return &At(value, key);
}

// A member of the settings, of the dice, or of the scripts or the table for a place.
template <auto Member>
FieldValue Of(int place, int key) {
  if constexpr (requires { Settings.*Member; })
    return Element(Settings.*Member, key);
  else if constexpr (requires { Dice.*Member; })
    return Element(Dice.*Member, key);
  else if constexpr (requires { Scripts.*Member; })
    return Element((Scripts.*Member)[place], key);
  else
    return Element((Table.*Member)[place], key);
}

bool ChangeVigTo(Money S::*setting, Money value) {
  return ChangeVig(setting, value);
}
bool ChangeVigTo(int32_t S::*setting, Money value) {
  return ChangeVig(setting, static_cast<int32_t>(value.Floor()));
}
bool ChangeVigTo(bool S::*setting, Money value) {
  return ChangeVig(setting, value != Money());
}

template <auto Member>
bool ChangeVigOf(int, Money value) {
  return ChangeVigTo(Member, value);
}

template <LayoutOption Option>
bool ChangeLayout(int, Money value) {
  return ChangeBetAvailability(Option, value != Money());
}

bool ChangeLanguage(int, Money value) {
  SetLanguage(static_cast<int32_t>(value.Floor()));
  return true;
}

bool ChangeAllowNegBankroll(int place, Money value) {
  return SetAllowNegBankroll(place, value != Money());
}

bool ChangeBankrollInitType(int place, Money value) {
  return SetBankrollInitType(place, static_cast<int32_t>(value.Floor()));
}

bool ChangeDownPlaceBets(int place, Money value) {
  Table.AutoDownPlaceBets[place] = value != Money();
  if (value != Money()) DownPlaceBets(place);
  return true;
}

bool ChangeTakeFullOdds(int place, Money value) {
  Table.AutoTakeFullOdds[place] = value != Money();
  if (value != Money()) BetFullOdds(place);
  return true;
}

bool ChangeLayFullOdds(int place, Money value) {
  Table.AutoLayFullOdds[place] = value != Money();
  if (value != Money()) BetFullLay(place);
  return true;
}

constexpr Money FineStep = Money::FromRaw(1), CentStep = Money::FromRaw(100);
// A hundred times the largest bankroll: out of reach of any bet, and its products with payoffs and
// multiples still fit.
constexpr Money AmountLimit = 999'999'999;
constexpr int OddsMultipleLimit = 1000;
constexpr int ScrollLimit = 32767;  // indices of lists found on disk, and scroll positions

constexpr FieldRange Amounts{0, AmountLimit, FineStep};
constexpr FieldRange Fractions{0, 1, FineStep};
constexpr FieldRange Multiples{0, OddsMultipleLimit, FineStep};
constexpr FieldRange Bankrolls{-BankrollLimit, BankrollLimit, FineStep};
constexpr FieldRange Colors{0, 0xFFFFFF, 1};
constexpr FieldRange Positions{0, ScrollLimit, 1};
constexpr FieldRange Flags{-1, 1, 1};

constexpr FieldRange UpTo(int high) {
  return {0, high, 1};
}

using enum FieldKind;
using enum FieldShape;

// clang-format off
constexpr SettingField Fields[] = {
    // Limits.
    {"MinPlacardBet", Amount, Amounts, Of<&S::MinPlacardBet>},
    {"MaxPlacardBet", Amount, Amounts, Of<&S::MaxPlacardBet>},
    {"MinPlacardPropBet", Amount, Amounts, Of<&S::MinPlacardPropBet>},
    {"MaxPropBetPayoff", Amount, Amounts, Of<&S::MaxPropBetPayoff>},
    {"MaxOddsBet", Amount, Amounts, Of<&S::MaxOddsBet>},
    {"MaxFireBet", Amount, Amounts, Of<&S::MaxFireBet>},
    {"OddsAllowed410", Amount, Multiples, Of<&S::OddsAllowed410>},
    {"OddsAllowed59", Amount, Multiples, Of<&S::OddsAllowed59>},
    {"OddsAllowed68", Amount, Multiples, Of<&S::OddsAllowed68>},
    {"OddsCalcMethod", WholeNumber, UpTo(5), Of<&S::OddsCalcMethod>},
    {"BarNumber", WholeNumber, {2, 12, 10}, Of<&S::BarNumber>},
    {"BetNeededToShoot", WholeNumber, UpTo(2), Of<&S::BetNeededToShoot>},
    {"AllowPutBets", Flag, Flags, Of<&S::AllowPutBets>},
    {"ReturnAbandonedBets", Flag, Flags, Of<&S::ReturnAbandonedBets>},

    // Bets on the layout, and those that work on the come-out.
    {"UseBig68", Flag, Flags, Of<&S::UseBig68>, false, ChangeLayout<LayoutOption::Big68>},
    {"UseSpecialPropBets", Flag, Flags, Of<&S::UseSpecialPropBets>, false, ChangeLayout<LayoutOption::SpecialProps>},
    {"UseMidwayBet", Flag, Flags, Of<&S::UseMidwayBet>, false, ChangeLayout<LayoutOption::Midway>},
    {"UseFireBet", Flag, Flags, Of<&S::UseFireBet>, false, ChangeLayout<LayoutOption::Fire>},
    {"HouseWorking", Mark, Flags, Of<&T::BetWorkingDefault>, false, nullptr, ByBet, 1, bet::Midway},

    // Vigorish.
    {"BuyVigPct", Amount, Fractions, Of<&S::BuyVigPct>, false, ChangeVigOf<&S::BuyVigPct>},
    {"LayVigPct", Amount, Fractions, Of<&S::LayVigPct>, false, ChangeVigOf<&S::LayVigPct>},
    {"BuyVigAllBets", Flag, Flags, Of<&S::BuyVigAllBets>, false, ChangeVigOf<&S::BuyVigAllBets>},
    {"LayVigAllBets", Flag, Flags, Of<&S::LayVigAllBets>, false, ChangeVigOf<&S::LayVigAllBets>},
    {"RoundBuyVig", WholeNumber, UpTo(2), Of<&S::RoundBuyVig>, false, ChangeVigOf<&S::RoundBuyVig>},
    {"RoundLayVig", WholeNumber, UpTo(2), Of<&S::RoundLayVig>, false, ChangeVigOf<&S::RoundLayVig>},

    // Checks and dice.
    {"Denomination", Amount, {0, AmountLimit, CentStep}, Of<&S::Denomination>, false, nullptr, InOrder, 1, 5},
    {"UseCentsSymbol", Flag, Flags, Of<&S::UseCentsSymbol>},
    {"AutoArrangeChips", Flag, Flags, Of<&S::AutoArrangeChips>},
    {"CheckStyle", WholeNumber, Positions, Of<&S::CheckStyle>},
    {"DiceStyle", WholeNumber, Positions, Of<&S::DiceStyle>},
    {"DiceAction", WholeNumber, UpTo(3), Of<&S::DiceAction>},
    {"SimRollRate", Amount, {FineStep, RollRateUnits[0].Maximum, FineStep}, Of<&S::SimRollRate>},
    {"AskForSeed", Flag, Flags, Of<&DiceState::AskForSeed>},
    {"ReseedEachSession", Flag, Flags, Of<&DiceState::ReseedEachSession>},

    // Bankroll and comps.
    {"AtmAmount", Amount, Amounts, Of<&S::AtmAmount>},
    {"CompRate", Amount, {0, 100, FineStep}, Of<&S::CompRate>},
    {"CompBase", WholeNumber, UpTo(2), Of<&S::CompBase>},
    {"CompsUseTrueProbs", Flag, Flags, Of<&S::CompsUseTrueProbs>},
    {"CompBet", Flag, Flags, Of<&S::CompBet>, false, nullptr, ByBet, 1, LastBet},

    // Sound and looks.
    {"StickPersonVoice", WholeNumber, Positions, Of<&S::StickPersonVoice>},
    {"DiceSound", WholeNumber, Positions, Of<&S::DiceSound>},
    {"CheckSound", WholeNumber, Positions, Of<&S::CheckSound>},
    {"WinSound", WholeNumber, Positions, Of<&S::WinSound>},
    {"DisableAutoBetSounds", Flag, Flags, Of<&S::DisableAutoBetSounds>},
    {"DisableAllSound", Flag, Flags, Of<&S::DisableAllSound>},
    {"InfoTipLevel", WholeNumber, UpTo(4), Of<&S::InfoTipLevel>},
    {"BasicFontSize", WholeNumber, {9, 13, 2}, Of<&S::BasicFontSize>},
    {"Notices", WholeNumber, UpTo(31), Of<&S::Notices>},
    {"SnapMouse", Flag, Flags, Of<&S::SnapMouse>},
    {"ColorPrint", Flag, Flags, Of<&S::ColorPrint>},
    {"Language", WholeNumber, UpTo(LanguageCount - 1), Of<&S::Language>, false, ChangeLanguage},
    {"TableColor", WholeNumber, Colors, Of<&S::TableColor>, false, nullptr, ByIndex, 0, 48},
    {"TableTexture", WholeNumber, Positions, Of<&S::TableTexture>, false, nullptr, ByIndex, 0, 4},
    {"Spotlight", WholeNumber, UpTo(3), Of<&S::Spotlight>},
    {"SeriesColor", WholeNumber, Colors, Of<&S::SeriesColor>, false, nullptr, ByIndex, 0, 5},

    // Session and automation.
    {"ClearEventsLogOnNew", Flag, Flags, Of<&S::ClearEventsLogOnNew>},
    {"AutoStopRolls", WholeNumber, UpTo(MaxRolls), Of<&S::AutoStopRolls>},
    {"RollDelay", Amount, {0, 300, FineStep}, Of<&S::RollDelay>},
    {"Throttle", WholeNumber, Positions, Of<&S::Throttle>},

    // Of each place.
    {"AllowNegBankroll", Flag, Flags, Of<&T::AllowNegBankroll>, true, ChangeAllowNegBankroll},
    {"BankrollInitType", WholeNumber, UpTo(2), Of<&T::BankrollInitType>, true, ChangeBankrollInitType},
    {"BankrollInitAmount", Amount, Bankrolls, Of<&T::BankrollInitAmount>, true, SetBankrollInitAmount},
    {"HandleWinningBets", WholeNumber, UpTo(7), Of<&T::HandleWinningBets>, true},
    {"HandleLosingBets", WholeNumber, UpTo(7), Of<&T::HandleLosingBets>, true},
    {"HandleAmount", Amount, Amounts, Of<&T::HandleAmount>, true, nullptr, ByIndex, FirstHandlingSlot, LastHandlingSlot},
    {"HandleOperator", WholeNumber, UpTo(3), Of<&T::HandleOperator>, true, nullptr, ByIndex, FirstHandlingSlot, LastHandlingSlot},
    {"HandleUnits", WholeNumber, UpTo(6), Of<&T::HandleUnits>, true, nullptr, ByIndex, FirstHandlingSlot, LastHandlingSlot},
    {"AutoTakeFullOdds", Flag, Flags, Of<&T::AutoTakeFullOdds>, true, ChangeTakeFullOdds},
    {"AutoLayFullOdds", Flag, Flags, Of<&T::AutoLayFullOdds>, true, ChangeLayFullOdds},
    {"AutoDownPlaceBets", Flag, Flags, Of<&T::AutoDownPlaceBets>, true, ChangeDownPlaceBets},
    {"AutoAdjustBetAmounts", Flag, Flags, Of<&T::AutoAdjustBetAmounts>, true},
    {"DoBias", WholeNumber, UpTo(2), Of<&T::DoBias>, true},
    {"DontBias", WholeNumber, UpTo(2), Of<&T::DontBias>, true},
    {"PlaceBias", WholeNumber, UpTo(2), Of<&T::PlaceBias>, true},
    {"LayBias", WholeNumber, UpTo(2), Of<&T::LayBias>, true},
    {"DeclinesDice", Flag, Flags, Of<&T::DeclinesDice>, true},
    {"BetWorkingDefault", Mark, Flags, Of<&T::BetWorkingDefault>, true, nullptr, ByBet, 1, bet::Midway},
    {"AllowReset", Flag, Flags, Of<&Rights::AllowReset>, true},
    {"AllowAct4Others", Flag, Flags, Of<&Rights::AllowAct4Others>, true},
    {"AllowActProb", Flag, Flags, Of<&Rights::AllowActProb>, true},
};
// clang-format on

using Error = std::optional<std::string>;

struct KeyedValue {
  int key = 0;
  Money value;
};

// What the field takes, to follow "must be".
std::string Allowed(const SettingField& field) {
  const auto [low, high, step] = field.Range;
  if (field.Kind == Flag || field.Kind == Mark) return Say(Text::AllowedFlag);
  if (field.Kind == Amount) {
    return SayChosen(step == CentStep ? Text::AllowedCents : Text::AllowedAmount, FormatExact(low),
                     FormatExact(high));
  }
  if (step == Money(1)) return Say(Text::AllowedWhole, FormatExact(low), FormatExact(high));
  std::string choices = PlainText(low);
  for (Money choice = low + step; choice < high; choice += step)
    choices += ", " + PlainText(choice);
  return Say(Text::OneOrOther, choices, PlainText(high));
}

// Reads one value; empty when the field does not take it.
std::optional<Money> ReadValue(const SettingField& field, std::string_view text) {
  const std::optional<Money> value = ParseMoney(TrimSpaces(text));
  const auto [low, high, step] = field.Range;
  if (!value || *value < low || *value > high || !IsMultiple(*value - low, step))
    return std::nullopt;
  if (field.Kind == Flag) return -Abs(*value);
  if (field.Kind == Mark) return Abs(*value);
  return value;
}

int ReadKey(const SettingField& field, std::string_view text) {
  int key = -1;
  const char* end = text.data() + text.size();
  const auto [rest, error] = std::from_chars(text.data(), end, key);
  const bool number = error == std::errc() && rest == end;
  if (!number) key = field.Shape == ByBet ? BetByName(text) : -1;
  return key >= field.FirstKey && key <= field.LastKey ? key : -1;
}

std::string KeyError(const SettingField& field, const std::string& label, std::string_view key) {
  if (field.Shape == ByBet) return Say(Text::SettingHasNoBet, label, key);
  return Say(Text::SettingHasNoEntry, label, key, field.FirstKey, field.LastKey);
}

std::vector<std::string_view> Split(std::string_view text) {
  std::vector<std::string_view> parts;
  for (size_t comma = text.find(','); comma != std::string_view::npos; comma = text.find(',')) {
    parts.push_back(TrimSpaces(text.substr(0, comma)));
    text.remove_prefix(comma + 1);
  }
  parts.push_back(TrimSpaces(text));
  return parts;
}

// Reads one part of the value, which for keyed fields begins with its key.
Error ReadPart(const SettingField& field,
               const std::string& label,
               std::string_view part,
               KeyedValue& read) {
  std::string which = label;
  if (field.Shape == ByBet || field.Shape == ByIndex) {
    const size_t colon = part.rfind(':');
    if (colon == std::string_view::npos) {
      return SayChosen(field.Shape == ByBet ? Text::SettingTakesBets : Text::SettingTakesNumbers,
                       label, part);
    }
    const std::string_view key = TrimSpaces(part.substr(0, colon));
    part.remove_prefix(colon + 1);
    read.key = ReadKey(field, key);
    if (read.key < 0) return KeyError(field, label, key);
    which = Say(Text::SettingEntry, label, key);
  }
  const std::optional<Money> value = ReadValue(field, part);
  if (!value) return Say(Text::SettingMustBe, which, Allowed(field), part);
  read.value = *value;
  return std::nullopt;
}

Error ReadAll(const SettingField& field,
              const std::string& label,
              std::string_view text,
              std::vector<KeyedValue>& values) {
  const auto parts = field.Shape == Single ? std::vector<std::string_view>{text} : Split(text);
  const auto count = static_cast<size_t>(field.LastKey - field.FirstKey + 1);
  if (field.Shape == InOrder && parts.size() != count) {
    return Say(Text::SettingTakesValues, label, count, text);
  }
  for (const std::string_view part : parts) {
    KeyedValue read{field.FirstKey + static_cast<int>(values.size()), Money()};
    if (Error error = ReadPart(field, label, part, read)) return error;
    values.push_back(read);
  }
  return std::nullopt;
}

void Write(FieldValue where, Money value) {
  if (Money* const* amount = std::get_if<Money*>(&where))
    **amount = value;
  else if (bool* const* flag = std::get_if<bool*>(&where))
    **flag = value != Money();
  else
    *std::get<int32_t*>(where) = static_cast<int32_t>(value.Floor());
}

Money Read(FieldValue where) {
  if (Money* const* amount = std::get_if<Money*>(&where)) return **amount;
  if (bool* const* flag = std::get_if<bool*>(&where)) return **flag ? -1 : 0;
  return *std::get<int32_t*>(where);
}

Money NearestAllowed(const SettingField& field, Money value) {
  const auto [low, high, step] = field.Range;
  if (field.Kind == Flag) return value >= low && value <= high ? value : Money(-1);
  if (field.Kind == Mark) return value != Money() ? 1 : 0;
  return low + FloorToMultiple(std::clamp(value, low, high) - low, step);
}

void BringIntoRange(const SettingField& field, int place) {
  for (int key = field.FirstKey; key <= field.LastKey; ++key) {
    const FieldValue where = field.Reach(place, key);
    const Money value = Read(where), allowed = NearestAllowed(field, value);
    if (value != allowed) Write(where, allowed);
  }
}

Error Apply(const SettingField& field,
            const std::string& label,
            int place,
            const std::vector<KeyedValue>& values) {
  if (field.Change != nullptr) {
    if (field.Change(place, values.front().value)) return std::nullopt;
    return Say(Text::SettingNotChanged, label, OnOneLine(Message.MsgText));
  }
  for (const auto& [key, value] : values)
    Write(field.Reach(place, key), value);
  return std::nullopt;
}

Error TestPlace(const SettingField& field, std::optional<int> place) {
  if (!place) return std::nullopt;
  const std::string name(field.Name);
  if (!field.PerPlace) return Say(Text::SettingTakesNoPlace, name);
  if (*place < 1 || *place > LastPlace) return Say(Text::SettingPlaceBeyond, name, *place);
  if (!IsTaken(Table, *place)) return Say(Text::SettingPlaceEmpty, name, *place);
  return std::nullopt;
}

}  // namespace

std::span<const SettingField> SettingFields() {
  return Fields;
}

void BringFieldsIntoRange() {
  for (const SettingField& field : Fields) {
    for (int place = field.PerPlace ? 1 : 0; place <= (field.PerPlace ? LastPlace : 0); ++place)
      BringIntoRange(field, place);
  }
}

std::optional<std::string> SetField(std::string_view name,
                                    std::optional<int> place,
                                    std::string_view value) {
  const auto* field = std::ranges::find_if(
      Fields, [name](const SettingField& row) { return EqualIgnoringCase(row.Name, name); });
  if (field == std::end(Fields)) return Say(Text::NoSettingNamed, name);
  if (Error error = TestPlace(*field, place)) return error;

  std::string label(field->Name);
  if (place) label.append("@").append(std::to_string(*place));
  std::vector<KeyedValue> values;
  if (Error error = ReadAll(*field, label, value, values)) return error;

  if (!field->PerPlace || place) return Apply(*field, label, place.value_or(0), values);
  Error error;
  ForEachPlayer([&](int player) {
    if (!error) error = Apply(*field, label, player, values);
  });
  return error;
}

}  // namespace tessarel
