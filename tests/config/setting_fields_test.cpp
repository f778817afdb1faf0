#include "config/setting_fields.h"

#include <algorithm>
#include <cctype>
#include <set>

#include "config/configuration_fixture.h"
#include "engine/bets.h"

namespace tessarel {
namespace {

class SettingFieldRows : public ConfigurationTest {};

Money Stored(const SettingField& field, int place, int key) {
  const FieldValue where = field.Reach(place, key);
  if (Money* const* amount = std::get_if<Money*>(&where)) return **amount;
  if (bool* const* flag = std::get_if<bool*>(&where)) return **flag ? -1 : 0;
  return *std::get<int32_t*>(where);
}

// A whole value of the field in which each entry is `value`.
std::string ValueText(const SettingField& field, Money value) {
  switch (field.Shape) {
    case FieldShape::Single:
      return PlainText(value);
    case FieldShape::InOrder:
      return "1,5,25,100," + PlainText(value);
    default:
      return std::to_string(field.LastKey) + ":" + PlainText(value);
  }
}

TEST_F(SettingFieldRows, HaveNamesOfTheirOwnAndReachValuesOfTheirOwn) {
  std::set<std::string> names;
  std::set<const void*> reached;
  for (const SettingField& field : SettingFields()) {
    std::string name(field.Name);
    std::ranges::transform(name, name.begin(), [](unsigned char c) { return std::tolower(c); });
    EXPECT_TRUE(names.insert(name).second) << field.Name;
    const FieldValue where = field.Reach(field.PerPlace ? 8 : 0, field.LastKey);
    const void* address = std::visit([](auto* p) { return static_cast<const void*>(p); }, where);
    EXPECT_TRUE(reached.insert(address).second) << field.Name;
  }
}

TEST_F(SettingFieldRows, StartWithinTheirLimits) {
  for (const SettingField& field : SettingFields()) {
    for (int key = field.FirstKey; key <= field.LastKey; ++key) {
      const Money value = Stored(field, field.PerPlace ? 1 : 0, key);
      const auto [low, high, step] = field.Range;
      EXPECT_GE(value, low) << field.Name;
      EXPECT_LE(value, high) << field.Name;
      EXPECT_TRUE(IsMultiple(value - low, step)) << field.Name;
    }
  }
}

TEST_F(SettingFieldRows, TakeTheirLimitsAndRefuseOnePastThem) {
  Seat(1, "Ann", 1000);
  for (const SettingField& field : SettingFields()) {
    const auto [low, high, step] = field.Range;
    const std::optional<int> place = field.PerPlace ? std::optional(1) : std::nullopt;
    const bool flag = field.Kind == FieldKind::Flag || field.Kind == FieldKind::Mark;
    for (const Money value : {low, high}) {
      const std::string text = ValueText(field, value);
      EXPECT_EQ(SetField(field.Name, place, text), std::nullopt) << field.Name << "=" << text;
      const Money stored = Stored(field, place.value_or(0), field.LastKey);
      EXPECT_EQ(flag ? Abs(stored) : stored, flag ? Abs(value) : value) << field.Name;
      if (flag && value != Money()) {
        EXPECT_EQ(stored, Money(field.Kind == FieldKind::Flag ? -1 : 1)) << field.Name;
      }
    }
    for (const Money value : {low - step, high + step, low + Money::FromRaw(step.Raw() / 2)}) {
      if (value == low) continue;
      const std::string text = ValueText(field, value);
      const Money before = Stored(field, place.value_or(0), field.LastKey);
      const auto error = SetField(field.Name, place, text);
      ASSERT_TRUE(error) << field.Name << "=" << text;
      EXPECT_TRUE(error->starts_with(field.Name)) << *error;
      EXPECT_EQ(Stored(field, place.value_or(0), field.LastKey), before) << field.Name;
    }
  }
}

TEST_F(SettingFieldRows, ErrorsSayWhatTheFieldTakes) {
  Seat(1, "Ann", 1000);
  const struct {
    const char* Name;
    std::optional<int> Place;
    const char* Value;
    std::string Text;
  } cases[] = {
      {"MinBet", {}, "5", "There is no setting named \"MinBet\"."},
      {"MinPlacardBet",
       {},
       "five",
       "MinPlacardBet must be an amount from 0 to 999,999,999 with at most four decimals, not "
       "\"five\"."},
      {"MinPlacardBet",
       {},
       "1.00001",
       "MinPlacardBet must be an amount from 0 to 999,999,999 with at most four decimals, not "
       "\"1.00001\"."},
      {"minplacardbet", 1, "5",
       "MinPlacardBet is a setting of the whole table and takes no place."},
      {"BarNumber", {}, "7", "BarNumber must be 2 or 12, not \"7\"."},
      {"BasicFontSize", {}, "10", "BasicFontSize must be 9, 11 or 13, not \"10\"."},
      {"SimRollRate",
       {},
       "0",
       "SimRollRate must be an amount from 0.0001 to 36,000,000 with at most four decimals, not "
       "\"0\"."},
      {"OddsCalcMethod", {}, "6", "OddsCalcMethod must be a whole number from 0 to 5, not \"6\"."},
      {"UseFireBet", {}, "yes", "UseFireBet must be 0, 1 or -1, not \"yes\"."},
      {"Denomination", {}, "1,5", "Denomination takes 5 values separated by commas, not \"1,5\"."},
      {"Denomination",
       {},
       "1,5,25,100,0.001",
       "Denomination must be an amount from 0 to 999,999,999 with at most two decimals, not "
       "\"0.001\"."},
      {"CompBet", {}, "Place 6", "CompBet takes BET:VALUE, separated by commas, not \"Place 6\"."},
      {"CompBet", {}, "Place 7:1", "CompBet has no bet \"Place 7\"."},
      {"HouseWorking", {}, "Place 6:1,91:1", "HouseWorking has no bet \"91\"."},
      {"HouseWorking", {}, "Place 6:2", "HouseWorking of Place 6 must be 0, 1 or -1, not \"2\"."},
      {"HandleAmount", 1, "13:5", "HandleAmount@1 has no entry \"13\"; its entries are 5 to 12."},
      {"DoBias", 9, "1", "The place of DoBias must be from 1 to 8, not 9."},
      {"DoBias", 2, "1", "DoBias cannot be set for place 2, where nobody plays."},
      {"DoBias", 1, "3", "DoBias@1 must be a whole number from 0 to 2, not \"3\"."},
  };
  for (const auto& c : cases)
    EXPECT_EQ(SetField(c.Name, c.Place, c.Value), c.Text);
  EXPECT_EQ(Table.BetWorkingDefault[0][bet::Place6],
            0);  // a list is taken as a whole or not at all
}

TEST_F(SettingFieldRows, ListsAreSetByBetNameOrNumber) {
  EXPECT_EQ(SetField("HouseWorking", {}, "place 6:1, 44:-1 ,Lay 4:0"), std::nullopt);
  EXPECT_EQ(Table.BetWorkingDefault[0][bet::Place6], 1);
  EXPECT_EQ(Table.BetWorkingDefault[0][bet::PassLineOdds], 1);
  EXPECT_EQ(Table.BetWorkingDefault[0][bet::Lay4], 0);
  EXPECT_EQ(SetField("CompBet", {}, "Fire:0,44:1"), std::nullopt);
  EXPECT_FALSE(Settings.CompBet[bet::Fire]);
  EXPECT_TRUE(Settings.CompBet[bet::PassLineOdds]);
  EXPECT_EQ(SetField("Denomination", {}, "0.25,1,5,25,100"), std::nullopt);
  EXPECT_EQ(SmallestCheck(), Money::FromRaw(2500));
}

TEST_F(SettingFieldRows, WithoutAPlaceEveryPlayerIsSet) {
  Seat(2, "Ann", 1000);
  Seat(7, "Bob", 1000);
  EXPECT_EQ(SetField("HandleWinningBets", {}, "2"), std::nullopt);
  for (int place = 1; place <= LastPlace; ++place)
    EXPECT_EQ(Table.HandleWinningBets[place], place == 2 || place == 7 ? 2 : 0) << place;
  EXPECT_EQ(SetField("HandleWinningBets", 7, "5"), std::nullopt);
  EXPECT_EQ(Table.HandleWinningBets[2], 2);
  EXPECT_EQ(Table.HandleWinningBets[7], 5);
}

TEST_F(SettingFieldRows, RulesOfChangeHoldAndTheirRefusalIsTheError) {
  Seat(1, "Ann", -5);
  Table.AllowNegBankroll[1] = true;
  const auto error = SetField("AllowNegBankroll", 1, "0");
  ASSERT_TRUE(error);
  EXPECT_EQ(*error,
            "AllowNegBankroll@1 was not changed: Ann currently has a negative bankroll. /  / Some "
            "options: /  -- Win some more money /  -- Withdraw some money from the ATM /  -- Start "
            "a new session");
  EXPECT_TRUE(Table.AllowNegBankroll[1]);

  Answers = {AnswerYes};
  PutDown(1, bet::Fire, 5);
  EXPECT_EQ(SetField("UseFireBet", {}, "0"), std::nullopt);
  EXPECT_EQ(Bet(1, bet::Fire), Money());
}

TEST_F(SettingFieldRows, FullOddsAreTakenAtOnce) {
  Seat(1, "Ann", 1000);
  Table.Point = 6;
  PutDown(1, bet::PassLine, 10);
  EXPECT_EQ(SetField("AutoTakeFullOdds", 1, "1"), std::nullopt);
  EXPECT_EQ(Bet(1, bet::PassLineOdds), Money(50));
}

TEST_F(SettingFieldRows, PlaceBetsUnderLineAndComeBetsComeDownAtOnce) {
  Seat(1, "Ann", 1000);
  Table.Point = 6;
  for (const int number : {bet::PassLine, bet::Come4, bet::Place4, bet::Place6, bet::Place8})
    PutDown(1, number, 12);
  EXPECT_EQ(SetField("AutoDownPlaceBets", 1, "1"), std::nullopt);
  EXPECT_EQ(Bet(1, bet::Place4) + Bet(1, bet::Place6), Money());
  EXPECT_EQ(Bet(1, bet::Place8), Money(12));
}

}  // namespace
}  // namespace tessarel
