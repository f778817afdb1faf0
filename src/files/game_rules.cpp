// The records of the house rules in a game file: limits and vigorish, comps, payoffs, colours and
// the working standard.
#include <array>
#include <span>

#include "config/advantage.h"
#include "files/game_blocks.h"
#include "state/payoffs.h"
#include "state/settings.h"
#include "state/view_state.h"

namespace tessarel {

namespace {

// clang-format off
constexpr auto TableRuleFields = std::to_array<MoneyField>({
    {0, &Settings.MinPlacardBet},
    {1, &Settings.MinPlacardPropBet},
    {2, &Settings.MaxPlacardBet},
    {3, &Settings.MaxPropBetPayoff},
    {4, &Settings.MaxOddsBet},
    {5, &Settings.OddsAllowed410},
    {6, &Settings.OddsAllowed59},
    {7, &Settings.OddsAllowed68},
    {8, &Settings.OddsCalcMethod},
    {9, &Settings.BarNumber},
    {10, &Settings.LayVigPct},
    {11, &Settings.RoundLayVig},
    {12, &Settings.LayVigAllBets},
    {13, &Settings.BuyVigPct},
    {14, &Settings.RoundBuyVig},
    {15, &Settings.BuyVigAllBets},
    {16, &Settings.AllowPutBets},
    {17, &Settings.BetNeededToShoot},
    {18, &Settings.UseBig68},
    {19, &Settings.UseMidwayBet},
    {20, &Settings.UseSpecialPropBets},
    {21, &Settings.UseFireBet},
    {22, &Settings.MaxFireBet},
    {23, &Settings.ReturnAbandonedBets},
});
static_assert(TakeEachSlotOnce(TableRuleFields));

constexpr auto CompFields = std::to_array<MoneyField>({
    {0, &Settings.CompBase},
    {1, &Settings.CompsUseTrueProbs},
    {2, &Settings.CompRate},
    {3, &Advantage.IncludeZeroOutcomes},
    {4, &Advantage.ShowMiscData},
    {5, &GameViews.AdvantageFirstRow},
    {6, &GameViews.PayoffFirstRow},
    {7, &Settings.Denomination[1], 5},
});
static_assert(TakeEachSlotOnce(CompFields));

constexpr auto ColourFields = std::to_array({WordRow(0, Settings.TableColor)});
static_assert(TakeEachSlotOnce(ColourFields));
constexpr auto TextureFields = std::to_array({
    WordRow(0, Settings.TableTexture), WordField{5, &Settings.Spotlight}});
static_assert(TakeEachSlotOnce(TextureFields));
// clang-format on

void CompBetRecords(GameRecords& records) {
  SlotRun run(records, Record::Words);
  for (int number = 1; number <= 100; ++number)
    run.Word(Settings.CompBet[number]);
}

// Field by field: the wins of all rows, then how they read, then what they are on.
void PayoffTable(GameRecords& records, std::span<PayoffRow> rows) {
  SlotRun run(records, Record::Moneys);
  for (Money PayoffRow::*field : {&PayoffRow::PayNum, &PayoffRow::PayForm, &PayoffRow::PayDen}) {
    for (PayoffRow& row : rows)
      run.Amount(row.*field);
  }
}

void PayoffRecords(GameRecords& records) {
  const auto fromRow1 = [](auto& table) { return std::span<PayoffRow>(table).subspan(1); };
  PayoffTable(records, fromRow1(Payoffs.Payoff));
  PayoffTable(records, fromRow1(Payoffs.SevenPointSevenPayoff));
  PayoffTable(records, fromRow1(Payoffs.MidwayPayoff));
  PayoffTable(records, fromRow1(Payoffs.SharpShooterPayoff));
  PayoffTable(records, fromRow1(Payoffs.RideTheLinePayoff));
  PayoffTable(records, fromRow1(Payoffs.FirePayoff));
  PayoffTable(records, fromRow1(Payoffs.FieldPayoff));
}

}  // namespace

void RuleRecords(GameRecords& records) {
  records.Moneys(TableRuleFields);
  CompBetRecords(records);
  records.Moneys(CompFields);
  PayoffRecords(records);
  records.Words(ColourFields);
  records.Words(TextureFields);
  SlotRun working(records, Record::Shorts);
  for (int32_t& flag : Table.BetWorkingDefault[0])
    working.Short(flag);
}

}  // namespace tessarel
