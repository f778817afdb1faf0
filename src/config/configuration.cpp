#include "config/configuration.h"

#include <algorithm>
#include <utility>

#include "base/fault.h"
#include "base/front_end.h"
#include "base/message.h"
#include "base/number_format.h"
#include "engine/bet_limits.h"
#include "engine/bets.h"
#include "state/payoffs.h"
#include "state/scripts.h"
#include "texts/say.h"

namespace tessarel {

namespace {

constexpr int LastWorkingBet = bet::Midway;  // the bets above it always work

std::string WithCents(Money amount) {
  return FormatNumber(amount, "0.00");
}

ConfigurationRefusal Refuse(ConfigTab tab,
                            std::string text,
                            std::string_view setting,
                            int index = 0) {
  return {tab, std::move(text), setting, index, std::nullopt};
}

using Refusal = std::optional<ConfigurationRefusal>;

Refusal TestDenominations() {
  const auto refuse = [](CheckedText<0> text, int index) {
    return Refuse(ConfigTab::ChecksDice, Say(text), "Denomination", index);
  };
  for (int index = 1; index <= 5; ++index) {
    const Money value = Settings.Denomination[index];
    if (value <= Money()) return refuse(Text::ChecksNotPositive, index);
    if (index == 1) continue;
    if (value < Settings.Denomination[index - 1]) {
      return refuse(Text::ChecksNotAscending, index);
    }
    if (!IsMultiple(value, SmallestCheck())) return refuse(Text::ChecksNotDivisible, index);
  }
  return std::nullopt;
}

Refusal TestMinimum(Money minimum,
                    std::string_view setting,
                    CheckedText<1> belowCheck,
                    CheckedText<3> notMultiple) {
  const Money check = SmallestCheck();
  if (minimum < check) {
    return Refuse(ConfigTab::Bets, Say(belowCheck, WithCents(check)), setting);
  }
  if (IsMultiple(minimum, check)) return std::nullopt;
  return Refuse(ConfigTab::Bets,
                Say(notMultiple, WithCents(check), WithCents(check * 2), WithCents(check * 3)),
                setting);
}

Refusal TestMaximum() {
  if (Settings.MaxPlacardBet >= Settings.MinPlacardBet) return std::nullopt;
  return Refuse(ConfigTab::Bets, Say(Text::MaximumBelowMinimum), "MaxPlacardBet");
}

Refusal TakeRollRate(const RollRateEntry* entry) {
  if (entry == nullptr) return std::nullopt;
  std::optional<std::string> text = SetSimRollRate(*entry);
  if (!text) return std::nullopt;
  return Refuse(ConfigTab::ChecksDice, *std::move(text), "SimRollRate");
}

Refusal TestPayoffTables() {
  std::optional<PayoffRefusal> refusal = TestPayoffs();
  if (!refusal) return std::nullopt;
  if (!refusal->Cell) return Refuse(ConfigTab::Bets, std::move(refusal->Text), "MaxFireBet");
  return ConfigurationRefusal{ConfigTab::PayoffTables, std::move(refusal->Text), "", 0,
                              std::move(refusal->Cell)};
}

Refusal TestLargestBets() {
  for (int number = bet::Hard4; number <= LastBet; ++number) {
    if (!OnLayout(number)) continue;
    const Money limit = FigureMaxBet(0, number);
    if (limit >= Settings.MinPlacardPropBet) continue;
    const std::string amount = limit.IsWhole() ? PlainText(limit) : WithCents(limit);
    return Refuse(ConfigTab::Bets, Say(Text::LargestBetTooSmall, BetName[number], amount),
                  "MinPlacardPropBet");
  }
  return std::nullopt;
}

bool Ask(std::string text, CheckedText<0> title) {
  return ShowMessage(std::move(text), Say(title), msg::AskYesNo) == AnswerYes;
}

void CopyHouseWorking(int place) {
  const PerBet<int32_t>& house = Table.BetWorkingDefault[0];
  std::copy_n(house.begin() + 1, LastWorkingBet, Table.BetWorkingDefault[place].begin() + 1);
}

// Players keep their own working tables unless they are given the new standard.
void OfferHouseWorking(const PerBet<int32_t>& before) {
  const PerBet<int32_t>& house = Table.BetWorkingDefault[0];
  const bool same =
      std::equal(house.begin() + 1, house.begin() + 1 + LastWorkingBet, before.begin() + 1);
  if (same || Table.PlayerCount == 0) return;
  const bool wanted = Ask(Say(Text::HouseWorkingChanged), Text::WorkOnComeOut);
  if (!wanted) return;
  ForEachPlayer([](int place) {
    if (Ask(Say(Text::AskPlayerWorking, Table.PlayerName[place]), Text::WorkOnComeOut))
      CopyHouseWorking(place);
  });
}

struct LayoutRow {
  bool SettingsState::*Flag;
  std::string_view Names;  // in the question; empty: those of the special proposition bets
  std::array<int, 8> Bets;
};

// clang-format off
constexpr std::array<LayoutRow, 4> LayoutRows = {{  // by LayoutOption
    {&SettingsState::UseBig68, "Big 6/8", {bet::Big6, bet::Big8}},
    {&SettingsState::UseMidwayBet, "Midway", {bet::Midway}},
    {&SettingsState::UseFireBet, "Fire", {bet::Fire}},
    {&SettingsState::UseSpecialPropBets,
     "",
     {bet::AllSmall, bet::AllTall, bet::MakeAll, bet::FourRollsNo7, bet::Point7, bet::SevenPoint7,
      bet::SharpShooter, bet::RideTheLine}},
}};
// clang-format on

bool MayRemove(LayoutOption option, const LayoutRow& row) {
  if (option == LayoutOption::SpecialProps && Table.Point != 0 && AnyHolds(bet::SevenPoint7)) {
    ShowMessage(Say(Text::SpecialPropsBound), Say(Text::RemoveBets), msg::OkAlert);
    return false;
  }
  const std::string_view names = row.Names.empty() ? Wording(Text::SpecialPropNames) : row.Names;
  return Ask(Say(Text::WagersWillBeRemoved, names), Text::RemoveBets);
}

// Writes a vig setting unless it would take a player's bankroll below zero.
template <class Value>
bool ChangeVigSetting(Value SettingsState::*setting, Value value) {
  const Value before = std::exchange(Settings.*setting, value);
  bool payable = true;
  ForEachPlayer([&](int place) {
    const Money rest = BankrollOf(place) - ChargeChangedVig(place);
    if (rest < Money() && !Table.AllowNegBankroll[place]) payable = false;
  });
  if (payable) return true;
  Settings.*setting = before;
  ForEachPlayer([](int place) { ChargeChangedVig(place); });
  ShowMessage(Say(Text::VigNotPayable), Say(Text::Vigorish), msg::OkAlert);
  return false;
}

bool RefuseNonNegative(int place, CheckedText<1> why) {
  ShowMessage(Say(why, Table.PlayerName[place]), Say(Text::AllowNegativeBankroll), msg::OkAlert);
  return false;
}

bool AnyPlayer() {
  if (Table.PlayerCount > 0) return true;
  ShowMessage(Say(Text::PlayersNeeded), Say(Text::MissingPlayers), msg::OkAlert);
  return false;
}

bool Chosen(ListChoice choice, bool now, bool standard) {
  switch (choice) {
    case ListChoice::Yes:
      return true;
    case ListChoice::No:
      return false;
    case ListChoice::Flip:
      return !now;
    default:
      return standard;
  }
}

void RequireBet(int number, int last) {
  if (number < 1 || number > last) RaiseIndexOutOfRange();
}

std::string YesNoRow(bool yes, int number) {
  return SayChosen(yes ? Text::Yes : Text::No) + " - " + std::string(BetName[number]);
}

}  // namespace

std::optional<ConfigurationRefusal> ValidateConfiguration(const ValidationOptions& options) {
  Refusal refusal = TestDenominations();
  if (!refusal)
    refusal = TestMinimum(Settings.MinPlacardBet, "MinPlacardBet", Text::MinimumBelowCheck,
                          Text::MinimumNotMultiple);
  if (!refusal) {
    refusal = TestMinimum(Settings.MinPlacardPropBet, "MinPlacardPropBet",
                          Text::PropMinimumBelowCheck, Text::PropMinimumNotMultiple);
  }
  if (!refusal) refusal = TestMaximum();
  if (!refusal) refusal = TakeRollRate(options.RollRate);
  if (!refusal) refusal = TestPayoffTables();
  if (!refusal && options.TestLargestBets) refusal = TestLargestBets();
  if (refusal) return refusal;
  if (options.HouseWorkingBefore != nullptr) OfferHouseWorking(*options.HouseWorkingBefore);
  FigureFieldBase();
  FigurePayoffUnits();
  FrontEnd.DrawTable();
  return std::nullopt;
}

bool ChangeBetAvailability(LayoutOption option, bool use) {
  const LayoutRow& row = At(LayoutRows, static_cast<int>(option));
  if (!use && std::ranges::any_of(row.Bets, AnyHolds)) {
    if (!MayRemove(option, row)) return false;
    const SilentBets silent;
    ForEachPlayer([&row](int place) {
      for (const int number : row.Bets) {
        if (number != 0 && Bet(place, number) > Money()) RemoveBet(place, number);
      }
    });
  }
  Settings.*row.Flag = use;
  Scripts.ProgramReady = false;  // scripts may name only bets of the layout
  FrontEnd.DrawTable();
  return true;
}

Money ChargeChangedVig(int place) {
  Money total;
  Table.Standing[place].ForEach([&](int number) { total += Bet(place, number); });
  for (int k = 0; k < FamilySize; ++k) {
    const int lay = LayFamily + k, buy = BuyFamily + k;
    Table.LayVig[place][k] = FigureLayVig(lay, Bet(place, lay));
    Table.BuyVig[place][k] = FigureBuyVig(buy, Bet(place, buy));
    if (Settings.LayVigAllBets) total += Table.LayVig[place][k];
    if (Settings.BuyVigAllBets) total += Table.BuyVig[place][k];
  }
  Table.MoneyOnTable[place] = total;
  return total;
}

bool ChangeVig(Money SettingsState::*setting, Money value) {
  return ChangeVigSetting(setting, value);
}

bool ChangeVig(int32_t SettingsState::*setting, int32_t value) {
  return ChangeVigSetting(setting, value);
}

bool ChangeVig(bool SettingsState::*setting, bool value) {
  return ChangeVigSetting(setting, value);
}

bool SetAllowNegBankroll(int place, bool allow) {
  if (!allow && BankrollOf(place) < Money())
    return RefuseNonNegative(place, Text::BankrollIsNegative);
  if (!allow && Table.MoneyOnTable[place] > BankrollOf(place)) {
    return RefuseNonNegative(place, Text::BetsExceedBankroll);
  }
  Table.AllowNegBankroll[place] = allow;
  return true;
}

bool SetBankrollInitType(int place, int32_t type) {
  if (!AnyPlayer()) return false;
  Table.BankrollInitType[place] = type;
  return true;
}

bool SetBankrollInitAmount(int place, Money amount) {
  if (!AnyPlayer()) return false;
  Table.BankrollInitAmount[place] = amount;
  return true;
}

std::string ShownRollRate(int unit) {
  const RollRateUnit& shown = At(RollRateUnits, unit);
  const Money inAnHour = shown.InAnHour;
  const Money rate = shown.PerRoll
                         ? Money::FromDouble(inAnHour.ToDouble() / Settings.SimRollRate.ToDouble())
                         : Money::FromDouble(Settings.SimRollRate.ToDouble() / inAnHour.ToDouble());
  if (rate == Money()) return std::string(TinyRollRate);
  return FormatExact(rate);
}

std::optional<std::string> SetSimRollRate(const RollRateEntry& entry) {
  const RollRateUnit& unit = At(RollRateUnits, entry.Unit);
  std::string digits = entry.Text;
  std::erase(digits, ',');
  const Money value = ParseMoney(digits).value_or(Money());
  if (value <= Money()) return Say(Text::RollRateNotPositive);
  if (value > Money(unit.Maximum)) {
    return Say(Text::RollRateTooHigh, Wording(unit.Caption), unit.Is);
  }
  const Money inAnHour = unit.InAnHour;
  Settings.SimRollRate =
      unit.PerRoll ? Money::FromDouble(inAnHour.ToDouble() / value.ToDouble()) : value * inAnHour;
  return std::nullopt;
}

void ChangeWorkingDefaults(int place, std::span<const int> bets, ListChoice choice) {
  for (const int number : bets) {
    RequireBet(number, LastWorkingBet);
    const int32_t standard =
        place == 0 ? OriginalHouseWorking(number) : Table.BetWorkingDefault[0][number];
    int32_t& works = Table.BetWorkingDefault[place][number];
    works = Chosen(choice, works != 0, standard != 0) ? 1 : 0;
  }
}

void ChangeCompBets(std::span<const int> bets, ListChoice choice) {
  constexpr auto Standard = SettingsState::DefaultCompBets();
  for (const int number : bets) {
    RequireBet(number, LastBet);
    bool& counts = Settings.CompBet[number];
    counts = Chosen(choice, counts, Standard[number]);
  }
}

std::string WorkingRowText(int place, int number) {
  return YesNoRow(Table.BetWorkingDefault[place][number] != 0, number);
}

std::string CompBetRowText(int number) {
  return YesNoRow(Settings.CompBet[number], number);
}

bool RestoreDefaultDenoms() {
  if (!Ask(Say(Text::AskDefaultChecks), Text::RestoreDefaultChecks)) return false;
  Settings.Denomination = SettingsState().Denomination;
  return true;
}

void SetNotice(Notice notice, bool show) {
  Settings.Notices = show ? Settings.Notices | notice : Settings.Notices & ~notice;
}

}  // namespace tessarel
