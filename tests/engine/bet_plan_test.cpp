#include "engine/bet_plan.h"

#include "engine/bet_notices.h"
#include "engine/rules_fixture.h"

namespace tessarel {
namespace {

using namespace bet;

class BetPlan : public RulesTest {};

TEST_F(BetPlan, SaysWhatIsLeftWhatItCostsAndWhy) {
  struct Case {
    int Number;
    int Request;
    int Change, Cost;
    RefusalKind Refusal;
    std::vector<std::pair<LimitKind, int>> Limits;
    void (*Rule)() = [] {};
  };
  using enum RefusalKind;
  using enum LimitKind;
  const auto twenty = [] { SetBankrollSlots(Ann, Table.MoneyOnTable[Ann] + 20); };
  const auto adjusted = [] { Table.AutoAdjustBetAmounts[Ann] = true; };
  const auto lowered = [] {
    SetBetContract(Ann, PassLine, 500);
    PutDown(Ann, PassLine, 500);
    Settings.MaxPlacardBet = 100;
  };
  const Case cases[] = {
      {Place6, 12, 12, 12, None, {}},
      {Buy4, 40, 40, 42, None, {}},
      {Buy4, 40, 40, 40, None, {}, [] { Settings.BuyVigAllBets = false; }},
      {Come, 10, 0, 0, ComeWithoutPoint, {}, [] { Table.Point = 0; }},
      {Place6, 3, 10, 10, None, {{Minimum, 10}}, [] { Settings.MinPlacardBet = 10; }},
      {Place6, 2000, 1000, 1000, None, {{Maximum, 1000}}},
      {PassLine, 10, 0, 0, None, {{Maximum, 100}, {ContractAboveMaximum, 500}}, lowered},
      {Place6, 3, 3, 3, None, {{AdjustMinimum, 6}}, adjusted},
      {Place6, 50, 20, 20, None, {{Bankroll, 0}}, twenty},
      {Buy4, 20, 19, 20, None, {{Bankroll, 0}}, twenty},
      {FirstStack, -5, 0, 0, None, {{StackMinimum, 0}}},
      {0, 10, 0, 0, None, {}},
      {94, 10, 0, 0, None, {}},
  };
  for (const Case& test : cases) {
    StartOver();
    Table.Point = 6;
    test.Rule();
    const Plan plan = PlanChange({Ann, test.Number, test.Request});
    SCOPED_TRACE(test.Number);
    EXPECT_EQ(plan.change, Money(test.Change));
    EXPECT_EQ(plan.cost, Money(test.Cost));
    EXPECT_EQ(plan.refusal, test.Refusal);
    ASSERT_EQ(plan.LimitCount(), std::ssize(test.Limits));
    for (int k = 0; k < plan.LimitCount(); ++k) {
      EXPECT_EQ(plan.Limit(k).kind, At(test.Limits, k).first);
      EXPECT_EQ(plan.Limit(k).amount, Money(At(test.Limits, k).second));
    }
    EXPECT_TRUE(Shown.empty());
  }
}

// What stands, what goes, and what is left and free of it.
TEST_F(BetPlan, BetThatGoesFreesItsMoneyItsVigAndItsOdds) {
  const struct {
    int number;
    Money stands, contract, odds;
    Money left, money;
  } cases[] = {
      {Place6, 12, 0, 0, 0, 12},      {Buy4, 40, 0, 0, 0, 42},    {PassLine, 10, 10, 20, 10, 0},
      {PassLine, 15, 10, 60, 10, 15}, {Come4, 10, 10, 20, 10, 0}, {DontPass, 10, 10, 12, 0, 22},
  };
  for (const auto& each : cases) {
    StartOver();
    Ask(each.number, each.stands);
    Table.Point = 6;
    SetBetContract(Ann, each.number, each.contract);
    if (each.odds != Money()) PutDown(Ann, OddsOn(each.number), each.odds);
    const FreedBet freed = FreeUp(Ann, each.number);
    EXPECT_EQ(freed.left, each.left) << BetName[each.number];
    EXPECT_EQ(freed.money, each.money) << BetName[each.number];
  }
}

TEST_F(BetPlan, RoomIsMadeByTheBetThatGoesFirst) {
  Table.Point = 6;
  PutDown(Ann, Place8, 60);
  SetBankrollSlots(Ann, 60);
  EXPECT_EQ(PlanChange({Ann, Place6, 60}).change, Money());
  const FreedBet freed = FreeUp(Ann, Place8);
  EXPECT_EQ(PlanChange({.place = Ann, .number = Place6, .change = 60, .freed = freed}).change, 60);
  PutDown(Ann, DontPass, 10);
  const Plan odds = PlanChange(
      {.place = Ann, .number = DontPassOdds, .change = 10, .freed = FreeUp(Ann, DontPass)});
  EXPECT_EQ(odds.refusal, RefusalKind::OddsWithoutDontPass);
}

TEST_F(BetPlan, ReasonIsTheLastOneInItsOwnWords) {
  EXPECT_EQ(ReasonOf(PlanChange({Ann, Come, 10})),
            "You may not make a Come bet until a point is established.");
  PutDown(Ann, Place6, 1000);
  EXPECT_EQ(ReasonOf(PlanChange({Ann, Place6, 5})), "The maximum Place 6 bet is $1,000");
  EXPECT_EQ(ReasonOf(PlanChange({Ann, Field, 5})), "");
}

}  // namespace
}  // namespace tessarel
