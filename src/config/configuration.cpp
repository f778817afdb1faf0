#include "config/configuration.h"

#include <algorithm>
#include <initializer_list>
#include <utility>

#include "autobet/script_store.h"
#include "base/fault.h"
#include "base/front_end.h"
#include "base/message.h"
#include "base/number_format.h"
#include "config/language.h"
#include "config/payoffs.h"
#include "engine/bet_limits.h"
#include "engine/bets.h"

namespace tessarel {

namespace {

constexpr int LastWorkingBet = bet::Midway;  // the bets above it always work

constexpr std::string_view LineEnd = "\r", ParagraphEnd = "\r\r";

std::string Join(std::string_view separator, std::initializer_list<std::string_view> parts) {
  std::string text;
  for (const std::string_view part : parts) {
    if (!text.empty()) text += separator;
    text += part;
  }
  return text;
}

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
  const auto refuse = [](std::string text, int index) {
    return Refuse(ConfigTab::ChecksDice, std::move(text), "Denomination", index);
  };
  for (int index = 1; index <= 5; ++index) {
    const Money value = At(Settings.Denomination, index);
    if (value <= Money()) return refuse("Check values must be greater than zero.", index);
    if (index == 1) continue;
    if (value < At(Settings.Denomination, index - 1)) {
      return refuse(
          "Checks must be listed in ascending order with the lowest value check in the leftmost "
          "position.",
          index);
    }
    if (!IsMultiple(value, SmallestCheck()))
      return refuse("All checks must be wholly divisible by the smallest check.", index);
  }
  return std::nullopt;
}

Refusal TestMinimum(Money minimum, std::string_view setting, const std::string& name) {
  const Money check = SmallestCheck();
  if (minimum < check) {
    return Refuse(ConfigTab::Bets,
                  "The " + name + " cannot be less than the smallest check denomination of " +
                      WithCents(check),
                  setting);
  }
  if (IsMultiple(minimum, check)) return std::nullopt;
  return Refuse(ConfigTab::Bets,
                "The " + name + " must be a multiple of the smallest check denomination, such as " +
                    WithCents(check) + ",  " + WithCents(check * 2) + ",  " + WithCents(check * 3) +
                    " ...",
                setting);
}

Refusal TestMaximum() {
  if (Settings.MaxPlacardBet >= Settings.MinPlacardBet) return std::nullopt;
  return Refuse(ConfigTab::Bets,
                "The maximum bet must be greater than or equal to the minimum bet.",
                "MaxPlacardBet");
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
    const std::string name(At(BetName, number));
    const std::string amount = limit.IsWhole() ? PlainText(limit) : WithCents(limit);
    const std::string first =
        "Based on the selected payoffs, the maximum " + name + " bet is " + amount + ".";
    const std::string last = "-- raise the individual payoff(s) on " + name + ".";
    const std::string ways = Join(
        LineEnd, {"Please do one or more of the following:", "-- lower the minimum prop bet",
                  "-- raise the maximum prob bet payoff", "-- raise the maximum bet, or", last});
    return Refuse(
        ConfigTab::Bets,
        Join(ParagraphEnd,
             {first, "This is less than the minimum prop bet and must be adjusted.", ways}),
        "MinPlacardPropBet");
  }
  return std::nullopt;
}

bool Ask(std::string text, std::string title) {
  return ShowMessage(std::move(text), std::move(title), msg::AskYesNo) == AnswerYes;
}

void CopyHouseWorking(int place) {
  const PerBet<int32_t>& house = At(Table.BetWorkingDefault, 0);
  std::copy_n(house.begin() + 1, LastWorkingBet, At(Table.BetWorkingDefault, place).begin() + 1);
}

// Players keep their own working tables unless they are given the new standard.
void OfferHouseWorking(const PerBet<int32_t>& before) {
  const PerBet<int32_t>& house = At(Table.BetWorkingDefault, 0);
  const bool same =
      std::equal(house.begin() + 1, house.begin() + 1 + LastWorkingBet, before.begin() + 1);
  if (same || Table.PlayerCount == 0) return;
  constexpr const char* Title = "Work On Come-out Roll";
  const bool wanted =
      Ask(Join(ParagraphEnd,
               {"You've changed the house standard for bets that work on the come-out roll.",
                "New players will be initialized to the new house standard when they buy-in, but "
                "players who are already present will retain their personal settings unless you "
                "change them on the Auto-play screen (at any time) or here now.",
                "Would you like to make any of the present players' settings match the new house "
                "standard now?"}),
          Title);
  if (!wanted) return;
  ForEachPlayer([](int place) {
    if (Ask("Would you like to make " + At(Table.PlayerName, place) +
                "'s settings match the house standard?",
            Title))
      CopyHouseWorking(place);
  });
}

struct LayoutRow {
  int32_t SettingsState::*Flag;
  std::string_view Names;  // in the question
  std::array<int, 8> Bets;
};

// clang-format off
constexpr std::array<LayoutRow, 4> LayoutRows = {{  // by LayoutOption
    {&SettingsState::UseBig68, "Big 6/8", {bet::Big6, bet::Big8}},
    {&SettingsState::UseMidwayBet, "Midway", {bet::Midway}},
    {&SettingsState::UseFireBet, "Fire", {bet::Fire}},
    {&SettingsState::UseSpecialPropBets,
     "All Small, All Tall, Make All, Four Rolls No 7, 7 Point 7, Point 7, Sharpshooter, or Ride The Line",
     {bet::AllSmall, bet::AllTall, bet::MakeAll, bet::FourRollsNo7, bet::Point7, bet::SevenPoint7,
      bet::SharpShooter, bet::RideTheLine}},
}};
// clang-format on

constexpr const char* RemoveBetsTitle = "Remove Bets";

bool MayRemove(LayoutOption option, const LayoutRow& row) {
  if (option == LayoutOption::SpecialProps && Table.Point != 0 && AnyHolds(bet::SevenPoint7)) {
    ShowMessage(
        "You can't uncheck special prop bets now because there are currently one or more wagers on "
        "7 Point 7 which is a contract bet and can't be removed it until it resolves.",
        RemoveBetsTitle, msg::OkAlert);
    return false;
  }
  const std::string first =
      "One or more wagers on " + std::string(row.Names) + " will be removed from the table.";
  return Ask(Join(ParagraphEnd, {first, "Would you like to continue?"}), RemoveBetsTitle);
}

// Writes a vig setting unless it would take a player's bankroll below zero.
template <class Value>
bool ChangeVigSetting(Value SettingsState::*setting, Value value) {
  const Value before = std::exchange(Settings.*setting, value);
  bool payable = true;
  ForEachPlayer([&](int place) {
    const Money rest = BankrollOf(place) - ChargeChangedVig(place);
    if (rest < Money() && At(Table.AllowNegBankroll, place) == 0) payable = false;
  });
  if (payable) return true;
  Settings.*setting = before;
  ForEachPlayer([](int place) { ChargeChangedVig(place); });
  const std::string ways =
      Join(LineEnd, {"This can be remedied by doing one or more of the following:",
                     " -- Make a withdrawal from the ATM", " -- Reduce the amount on current bets",
                     " -- Check Allow negative bankroll"});
  ShowMessage(Join(ParagraphEnd,
                   {"You're not allowed to change this setting at this time because one or more "
                    "players doesn't have enough bankroll remaining to pay the added up-front vig "
                    "that would be required.",
                    ways}),
              "Vigorish", msg::OkAlert);
  return false;
}

bool RefuseNonNegative(int place, std::string_view why, std::string_view firstOption) {
  const std::string first = At(Table.PlayerName, place) + std::string(why);
  std::string options = "Some options:";
  if (!firstOption.empty()) options.append(LineEnd).append(firstOption);
  for (const std::string_view option :
       {" -- Win some more money", " -- Withdraw some money from the ATM",
        " -- Start a new session"})
    options.append(LineEnd).append(option);
  ShowMessage(Join(ParagraphEnd, {first, options}), "Allow negative bankroll", msg::OkAlert);
  return false;
}

bool AnyPlayer() {
  if (Table.PlayerCount > 0) return true;
  ShowMessage(Join(ParagraphEnd,
                   {"You need to add one or more players before you can set bankroll parameters.",
                    "To add a player return to the main table and click on the Players menu."}),
              "Missing Players", msg::OkAlert);
  return false;
}

int32_t Chosen(ListChoice choice, int32_t now, int32_t standard, int32_t yes) {
  switch (choice) {
    case ListChoice::Yes:
      return yes;
    case ListChoice::No:
      return 0;
    case ListChoice::Flip:
      return now == 0 ? yes : 0;
    default:
      return standard;
  }
}

void RequireBet(int number, int last) {
  if (number < 1 || number > last) RaiseIndexOutOfRange();
}

std::string YesNoRow(bool yes, int number) {
  constexpr int YesText = 33, NoText = 34;
  return std::string(GetText(yes ? YesText : NoText)) + " - " + std::string(At(BetName, number));
}

}  // namespace

std::optional<ConfigurationRefusal> ValidateConfiguration(const ValidationOptions& options) {
  Refusal refusal = TestDenominations();
  if (!refusal) refusal = TestMinimum(Settings.MinPlacardBet, "MinPlacardBet", "minimum bet");
  if (!refusal) {
    refusal = TestMinimum(Settings.MinPlacardPropBet, "MinPlacardPropBet", "minimum prop bet");
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
  Settings.*row.Flag = use ? -1 : 0;
  Scripts.ProgramReady = false;  // scripts may name only bets of the layout
  FrontEnd.DrawTable();
  return true;
}

Money ChargeChangedVig(int place) {
  Money total;
  At(Table.Standing, place).ForEach([&](int number) { total += Bet(place, number); });
  for (int k = 0; k < FamilySize; ++k) {
    const int lay = LayFamily + k, buy = BuyFamily + k;
    At(At(Table.LayVig, place), k) = FigureLayVig(lay, Bet(place, lay));
    At(At(Table.BuyVig, place), k) = FigureBuyVig(buy, Bet(place, buy));
    if (Settings.LayVigAllBets != 0) total += At(At(Table.LayVig, place), k);
    if (Settings.BuyVigAllBets != 0) total += At(At(Table.BuyVig, place), k);
  }
  At(Table.MoneyOnTable, place) = total;
  return total;
}

bool ChangeVig(Money SettingsState::*setting, Money value) {
  return ChangeVigSetting(setting, value);
}

bool ChangeVig(int32_t SettingsState::*setting, int32_t value) {
  return ChangeVigSetting(setting, value);
}

bool SetAllowNegBankroll(int place, bool allow) {
  if (!allow && BankrollOf(place) < Money())
    return RefuseNonNegative(place, " currently has a negative bankroll.", "");
  if (!allow && At(Table.MoneyOnTable, place) > BankrollOf(place)) {
    return RefuseNonNegative(place, "'s current bets exceed current bankroll.",
                             " -- Reduce the amount of current bets");
  }
  At(Table.AllowNegBankroll, place) = allow ? -1 : 0;
  return true;
}

bool SetBankrollInitType(int place, int32_t type) {
  if (!AnyPlayer()) return false;
  At(Table.BankrollInitType, place) = type;
  return true;
}

bool SetBankrollInitAmount(int place, Money amount) {
  if (!AnyPlayer()) return false;
  At(Table.BankrollInitAmount, place) = amount;
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
  if (value <= Money()) return "The simulated roll rate must be greater than zero.";
  if (value > Money(unit.Maximum)) {
    return "The maximum simulated " + std::string(unit.Caption) + " rate is " +
           std::string(unit.Is);
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
        place == 0 ? OriginalHouseWorking(number) : At(Table.BetWorkingDefault[0], number);
    int32_t& works = At(At(Table.BetWorkingDefault, place), number);
    works = Chosen(choice, works, standard, 1);
  }
}

void ChangeCompBets(std::span<const int> bets, ListChoice choice) {
  constexpr auto Standard = SettingsState::DefaultCompBets();
  for (const int number : bets) {
    RequireBet(number, LastBet);
    int32_t& counts = At(Settings.CompBet, number);
    counts = Chosen(choice, counts, At(Standard, number), -1);
  }
}

std::string WorkingRowText(int place, int number) {
  return YesNoRow(At(At(Table.BetWorkingDefault, place), number) != 0, number);
}

std::string CompBetRowText(int number) {
  return YesNoRow(At(Settings.CompBet, number) != 0, number);
}

bool RestoreDefaultDenoms() {
  if (!Ask("Do you want to restore all checks to their original Tessarel values?",
           "Restore Default Denominations"))
    return false;
  Settings.Denomination = SettingsState().Denomination;
  return true;
}

void SetNotice(Notice notice, bool show) {
  Settings.Notices = show ? Settings.Notices | notice : Settings.Notices & ~notice;
}

}  // namespace tessarel
