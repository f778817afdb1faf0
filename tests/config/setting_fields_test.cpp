#include "config/setting_fields.h"

#include <set>

#include "base/single_byte_text.h"
#include "config/configuration_fixture.h"
#include "engine/bets.h"

namespace tessarel {
namespace {

class SettingFieldRows : public ConfigurationTest {
 protected:
  void SetUp() override {
    ConfigurationTest::SetUp();
    Seat(1, "Ann", 1000);
  }
};

Money Stored(const SettingField& field, int key) {
  return std::visit([](auto* value) { return Money(*value); },
                    field.Reach(field.PerPlace ? 1 : 0, key));
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

TEST_F(SettingFieldRows, HaveNamesAndValuesOfTheirOwnThatStartWithinTheirLimits) {
  std::set<std::string> names;
  std::set<const void*> reached;
  for (const SettingField& field : SettingFields()) {
    EXPECT_TRUE(names.insert(LowerCase(std::string(field.Name))).second) << field.Name;
    const FieldValue where = field.Reach(field.PerPlace ? 8 : 0, field.LastKey);
    const void* address = std::visit([](auto* p) { return static_cast<const void*>(p); }, where);
    EXPECT_TRUE(reached.insert(address).second) << field.Name;
    for (int key = field.FirstKey; key <= field.LastKey; ++key) {
      const Money value = Stored(field, key);
      const auto [low, high, step] = field.Range;
      EXPECT_TRUE(value >= low && value <= high && IsMultiple(value - low, step)) << field.Name;
    }
  }
}

TEST_F(SettingFieldRows, TakeTheirLimitsAndRefuseOnePastThem) {
  for (const SettingField& field : SettingFields()) {
    SCOPED_TRACE(field.Name);
    const auto [low, high, step] = field.Range;
    const std::optional<int> place = field.PerPlace ? std::optional(1) : std::nullopt;
    const bool flag = field.Kind == FieldKind::Flag || field.Kind == FieldKind::Mark;
    for (const Money value : {low, high}) {
      EXPECT_EQ(SetField(field.Name, place, ValueText(field, value)), std::nullopt);
      const Money stored = Stored(field, field.LastKey);
      EXPECT_EQ(flag ? Abs(stored) : stored, flag ? Abs(value) : value);
    }
    for (const Money value : {low - step, high + step, low + Money::FromRaw(step.Raw() / 2)}) {
      if (value == low) continue;
      const Money before = Stored(field, field.LastKey);
      const auto error = SetField(field.Name, place, ValueText(field, value));
      ASSERT_TRUE(error) << PlainText(value);
      EXPECT_TRUE(error->starts_with(field.Name)) << *error;
      EXPECT_EQ(Stored(field, field.LastKey), before);
    }
  }
}

TEST_F(SettingFieldRows, ErrorsSayWhatTheFieldTakes) {
  const struct {
    std::string Name;
    std::optional<int> Place;
    std::string Value, Text;  // which the value in quotes ends, unless it is whole
    // clang-format off
  } cases[] = {
      {"MinBet", {}, "5", "There is no setting named \"MinBet\"."},
      {"MinPlacardBet", {}, "five",
       " must be an amount from 0 to 999,999,999 with at most four decimals"},
      {"MinPlacardBet", {}, "1.00001",
       " must be an amount from 0 to 999,999,999 with at most four decimals"},
      {"minplacardbet", 1, "5",
       "MinPlacardBet is a setting of the whole table and takes no place."},
      {"BarNumber", {}, "7", " must be 2 or 12"},
      {"BasicFontSize", {}, "10", " must be 9, 11 or 13"},
      {"SimRollRate", {}, "0",
       " must be an amount from 0.0001 to 36,000,000 with at most four decimals"},
      {"OddsCalcMethod", {}, "6", " must be a whole number from 0 to 5"},
      {"UseFireBet", {}, "yes", " must be 0, 1 or -1"},
      {"Denomination", {}, "1,5", " takes 5 values separated by commas"},
      {"Denomination", {}, "1,5,25,100,0.001",
       "Denomination must be an amount from 0 to 999,999,999 with at most two decimals, not \"0.001\"."},
      {"CompBet", {}, "Place 6", " takes BET:VALUE, separated by commas"},
      {"CompBet", {}, "Place 7:1", "CompBet has no bet \"Place 7\"."},
      {"HouseWorking", {}, "Place 6:1,91:1", "HouseWorking has no bet \"91\"."},
      {"HouseWorking", {}, "Place 6:2", "HouseWorking of Place 6 must be 0, 1 or -1, not \"2\"."},
      {"HandleAmount", 1, "13:5", "HandleAmount@1 has no entry \"13\"; its entries are 5 to 12."},
      {"DoBias", 9, "1", "The place of DoBias must be from 1 to 8, not 9."},
      {"DoBias", 2, "1", "DoBias cannot be set for place 2, where nobody plays."},
      {"DoBias", 1, "3", "DoBias@1 must be a whole number from 0 to 2, not \"3\"."}};
  // clang-format on
  for (const auto& [name, place, value, text] : cases) {
    EXPECT_EQ(SetField(name, place, value),
              text[0] == ' ' ? name + text + ", not \"" + value + "\"." : text);
  }
  // A list is taken as a whole or not at all.
  EXPECT_EQ(Table.BetWorkingDefault[0][bet::Place6], 0);
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
  Seat(7, "Bob", 1000);
  EXPECT_EQ(SetField("HandleWinningBets", {}, "2"), std::nullopt);
  EXPECT_EQ(Table.HandleWinningBets, (PerPlace<int32_t>{0, 2, 0, 0, 0, 0, 0, 2}));
  EXPECT_EQ(SetField("HandleWinningBets", 7, "5"), std::nullopt);
  EXPECT_EQ(Table.HandleWinningBets, (PerPlace<int32_t>{0, 2, 0, 0, 0, 0, 0, 5}));
}

TEST_F(SettingFieldRows, RulesOfChangeHoldAndTheirRefusalIsTheError) {
  SetBankrollSlots(1, -5);
  Table.AllowNegBankroll[1] = true;
  EXPECT_EQ(SetField("AllowNegBankroll", 1, "0").value_or("").substr(0, 72),
            "AllowNegBankroll@1 was not changed: Ann currently has a negative bankrol");
  EXPECT_TRUE(Table.AllowNegBankroll[1]);
  Answers = {AnswerYes};
  PutDown(1, bet::Fire, 5);
  EXPECT_EQ(SetField("UseFireBet", {}, "0"), std::nullopt);
  EXPECT_EQ(Bet(1, bet::Fire), Money());
}

TEST_F(SettingFieldRows, FullOddsAndPlaceBetsFollowAtOnce) {
  Table.Point = 6;
  for (const int number : {bet::PassLine, bet::Come4, bet::Place4, bet::Place6, bet::Place8})
    PutDown(1, number, 12);
  EXPECT_EQ(SetField("AutoDownPlaceBets", 1, "1"), std::nullopt);
  EXPECT_EQ(Bet(1, bet::Place4) + Bet(1, bet::Place6), Money());
  EXPECT_EQ(Bet(1, bet::Place8), Money(12));
  EXPECT_EQ(SetField("AutoTakeFullOdds", 1, "1"), std::nullopt);
  EXPECT_EQ(Bet(1, bet::PassLineOdds), Money(60));
}

}  // namespace
}  // namespace tessarel
