#include "config/payoff_editor.h"

#include <set>

#include "config/configuration_fixture.h"

namespace tessarel {
namespace {

class PayoffEditor : public ConfigurationTest {};

constexpr PayoffCell Row(int row) {
  return {PayoffGrid::Bets, row};
}
constexpr PayoffCell FieldRow(int row) {
  return {PayoffGrid::Field, row};
}

void Store(PayoffRow& row, Money num, Money form, Money den) {
  row.PayNum = num;
  row.PayForm = form;
  row.PayDen = den;
}

TEST_F(PayoffEditor, CaptionsAndNamesOfTheRows) {
  const struct {
    PayoffCell Cell;
    std::string Caption, Name = {};  // the name is the caption where it is left out
    // clang-format off
  } cases[] = {
      {Row(1), "Lay 4"}, {Row(9), "DP/DC 6"}, {Row(18), "DP/DC 10 Odds"}, {Row(22), "Pass/Come 8"},
      {Row(25), "Pass/Come 4 Odds"}, {Row(42), "Buy 10"}, {Row(43), "Passline/Come (c.o.)"},
      {Row(44), "Don't Pass/Come (c.o.)"}, {Row(57), "Over 7"}, {Row(80), "Point 7"},
      {Row(81), "7 Point 7", "-"}, {Row(82), "      Comeout 7", "7 Point 7 Comeout 7"},
      {Row(83), "      Point 7", "7 Point 7 Point 7"}, {Row(85), "      Hard 6", "Midway Hard 6"},
      {Row(101), "      10+ points", "Sharp Shooter 10+"},
      {Row(104), "      1 pass", "Ride The Line 1"}, {Row(115), "Fire", "-"},
      {Row(122), "      6 points", "Fire 6"}, {FieldRow(3), "4    (1.3) (3.1)", "Field 1-3"},
      {FieldRow(21), "12   (6.6)", "Field 6-6"}};
  // clang-format on
  for (const auto& [cell, caption, name] : cases) {
    EXPECT_EQ(PayoffCaption(cell), caption);
    EXPECT_EQ(PayoffRowName(cell), name.empty() ? caption : name == "-" ? "" : name);
  }
}

TEST_F(PayoffEditor, EveryRowEditsItsOwnPayoffUnderItsOwnName) {
  std::set<const PayoffRow*> edited;
  std::set<std::string> names;
  for (int row = 1 - FieldRowCount; row <= PayoffEditorRowCount; ++row) {
    const PayoffCell cell = row > 0 ? Row(row) : FieldRow(1 - row);
    if (row > 0 && PayoffEditorRowAt(row).Heading) {
      EXPECT_THROW(SetShownPayoff(cell, 1), Fault);
      continue;
    }
    edited.insert(&PayoffOf(cell));
    names.insert(PayoffRowName(cell));
  }
  EXPECT_EQ(edited.size(), 138u);
  EXPECT_EQ(names.size(), 138u);
  for (const int number : {bet::PassLineOdds, bet::DontPassOdds, bet::Field, bet::CAndE})
    EXPECT_FALSE(edited.contains(&Payoffs.Payoff[number])) << number;
  for (const PayoffCell outside : {Row(0), Row(123), FieldRow(0), FieldRow(22)})
    EXPECT_THROW(PayoffOf(outside), Fault);
}

TEST_F(PayoffEditor, AFlipKeepsTheNumberOnTheScreen) {
  SetPayoffForm(Row(33), FormFor);  // Place 6
  const PayoffRow& place6 = Payoffs.Payoff[bet::Place6];
  EXPECT_EQ(ShownPayoff(place6), Money(7));
  EXPECT_EQ(place6.PayNum, Money(1));
  SetPayoffForm(Row(33), FormFor);
  EXPECT_EQ(place6.PayNum, Money(1));
  SetPayoffForm(Row(33), FormTo);
  EXPECT_EQ(place6.PayNum, Money(7));
}

TEST_F(PayoffEditor, EntriesAreTakenAsTheRowReads) {
  Store(Payoffs.FieldPayoff[1], 27, FormFor, 4);
  EXPECT_EQ(ShownPayoff(Payoffs.FieldPayoff[1]), Money(31));
  SetShownPayoff(FieldRow(1), 33);
  EXPECT_EQ(Payoffs.FieldPayoff[1].PayNum, Money(29));
  SetPayoffBase(FieldRow(1), 5);
  EXPECT_EQ(ShownPayoff(Payoffs.FieldPayoff[1]), Money(33));
  EXPECT_EQ(Payoffs.FieldPayoff[1].PayNum, Money(28));
}

TEST_F(PayoffEditor, TheBoxesPayLikeTheLinesTheyStandBeside) {
  SetShownPayoff(Row(43), 2);
  SetPayoffForm(Row(44), FormFor);
  SetPayoffBase(Row(44), 3);
  EXPECT_EQ(Payoffs.Payoff[bet::PassLine].PayNum, Money(2));
  EXPECT_EQ(Payoffs.Payoff[bet::Come].PayNum, Money(2));
  for (const int number : {bet::DontPass, bet::DontCome}) {
    EXPECT_EQ(Payoffs.Payoff[number].PayForm, Money(FormFor));
    EXPECT_EQ(Payoffs.Payoff[number].PayDen, Money(3));
    EXPECT_EQ(Payoffs.Payoff[number].PayNum, Money(-2));
  }
}

TEST_F(PayoffEditor, KeysOfTheWordColumn) {
  const std::tuple<char, int, std::optional<int>> cases[] = {{'F', FormTo, FormFor},
                                                             {'t', FormFor, FormTo},
                                                             {' ', FormTo, FormFor},
                                                             {' ', FormFor, FormTo},
                                                             {'5', FormTo, std::nullopt}};
  for (const auto& [key, form, chosen] : cases) {
    PayoffRow row;
    row.PayForm = form;
    EXPECT_EQ(PayoffFormOfKey(key, row), chosen) << key;
  }
}

// What the Field wins over all 36 rolls at one unit a roll.
double FieldSum() {
  double sum = 0;
  for (int first = 1; first <= 6; ++first) {
    for (int second = 1; second <= 6; ++second) {
      const PayoffRow& row = Payoffs.FieldPayoff[PairIndex(first, second)];
      sum += row.PayNum.ToDouble() / row.PayDen.ToDouble();
    }
  }
  return sum;
}

TEST_F(PayoffEditor, PresetsPayLikeTheBetsTheyAreNamedFor) {
  // The expectation of a decision, by 36 where one roll decides, else by the rolls that decide: of
  // the Field with doubles, Pass Line, Don't Pass, Place 6, Place to Lose 8, Buy 10, Lay 4, Hard 8,
  // Horn, World, Hop 13, Midway and Crapless.
  const double sums[FieldPresetCount] = {-2,
                                         -36 * 7 / 495.0,
                                         -36 * 27 / 1980.0,
                                         -1 / 6.0,
                                         -0.2,
                                         -3 + 18 / 7.0,
                                         -0.15,
                                         -1,
                                         -4.5,
                                         -4.8,
                                         -4,
                                         -2,
                                         6 - 10 / 11.0 - 5.6 - 10 / 7.0};
  for (size_t k = 0; k < FieldPresetCount; ++k) {
    SetFieldPayoffs(FieldPresets[k]);
    EXPECT_NEAR(FieldSum(), sums[k], 1e-12) << FieldPresets[k].Menu;
    EXPECT_FALSE(TestPayoffs()) << FieldPresets[k].Menu;
  }
  SetFieldPayoffs(FieldPresets[0]);
  const auto preset = Payoffs.FieldPayoff;
  DefaultPayoffs();
  for (size_t k = 1; k <= FieldRowCount; ++k)
    EXPECT_EQ(Payoffs.FieldPayoff[k].PayNum, preset[k].PayNum) << k;
}

TEST_F(PayoffEditor, RestoringAsksAndKeepsTheOddsOfThePoint) {
  Table.Point = 4;
  Payoffs.Payoff[bet::Place6].PayNum = 8;
  Answers = {AnswerNo, AnswerYes};
  EXPECT_FALSE(RestoreDefaultPayoffs());
  EXPECT_EQ(Payoffs.Payoff[bet::Place6].PayNum, Money(8));
  EXPECT_TRUE(RestoreDefaultPayoffs());
  EXPECT_EQ(Payoffs.Payoff[bet::Place6].PayNum, Money(7));
  EXPECT_EQ(Payoffs.Payoff[bet::PassLineOdds].PayNum, Money(2));
  EXPECT_EQ(Payoffs.Payoff[bet::DontPassOdds].PayDen, Money(2));
  EXPECT_EQ(Shown.front().Title, "Restore Default Payoffs");
}

void PayEach(auto& rows, Money num) {
  for (PayoffRow& row : rows)
    row.PayNum = num;
}

TEST_F(PayoffEditor, TheFieldsBaseIsWhatItsWinningRowsHaveInCommon) {
  const struct {
    int Preset;
    Money Base;
  } cases[] = {{0, 1}, {3, 6}, {6, 40}, {8, 4}, {2, 1}};  // Don't Pass: 11, 5, 3 and 1
  for (const auto& [preset, base] : cases) {
    SetFieldPayoffs(At(FieldPresets, preset));
    FigureFieldBase();
    EXPECT_EQ(Payoffs.Payoff[bet::Field].PayDen, base) << preset;
  }
  SetFieldPayoffs(FieldPresets[9]);  // World: 5, with a push on 7
  PayEach(Payoffs.FieldPayoff, -1);
  FigureFieldBase();
  EXPECT_EQ(Payoffs.Payoff[bet::Field].PayDen, Money(1));
}

TEST_F(PayoffEditor, ClosingTestsNameTheRowAtFault) {
  const struct {
    void (*Break)();
    std::string Text;
    std::optional<PayoffCell> Cell;
    // clang-format off
  } cases[] = {
      {[] { Payoffs.Payoff[bet::Come4].PayNum = 0; }, "The payoff on Pass/Come 4 must be positive.",
       Row(19)},
      {[] { Payoffs.Payoff[bet::Point7].PayNum = -1; }, "The payoff on Point 7 must be positive.",
       Row(80)},
      {[] { Payoffs.SevenPointSevenPayoff[2].PayNum = 0; },
       "The payoffs on 7 Point 7 must be positive.", Row(83)},
      {[] { Payoffs.MidwayPayoff[3].PayNum = 0; }, "The payoffs on Midway must be positive.",
       Row(87)},
      {[] { Payoffs.SharpShooterPayoff[2].PayNum = -2; },
       "Any loss on the Sharp Shooter bet cannot exceed the amount wagered.", Row(92)},
      {[] { PayEach(Payoffs.SharpShooterPayoff, -1); },
       "At least one of the Sharp Shooter bet payoffs must be positive.", Row(91)},
      {[] { Payoffs.RideTheLinePayoff[12].PayNum = Money::FromRaw(-10001); },
       "Any loss on the Ride The Line bet cannot exceed the amount wagered.", Row(114)},
      {[] { Settings.MinPlacardPropBet = 6; },
       "The max Fire bet cannot be less than the minimum prop bet.", std::nullopt},
      {[] { Payoffs.FirePayoff[0].PayNum = -2; },
       "Any loss on the Fire bet cannot exceed the amount wagered.", Row(116)},
      {[] { Payoffs.FieldPayoff[21].PayNum = -2; },
       "Any loss on the Field bet cannot exceed the amount wagered.", FieldRow(21)},
      {[] { PayEach(Payoffs.FieldPayoff, 0); },
       "At least one of the Field bet payoffs must be positive.", FieldRow(1)}};
  // clang-format on
  EXPECT_FALSE(TestPayoffs());
  // Broken from the last test to the first, each hides those after it.
  for (size_t k = std::size(cases); k-- > 0;) {
    cases[k].Break();
    const std::optional<PayoffRefusal> refusal = TestPayoffs();
    ASSERT_TRUE(refusal) << k;
    EXPECT_EQ(refusal->Text, cases[k].Text);
    EXPECT_EQ(refusal->Cell, cases[k].Cell) << k;
  }
}

TEST_F(PayoffEditor, ClosingTestsLetPassWhatIsOnlyOdd) {
  PayEach(Payoffs.FieldPayoff, 0);
  Payoffs.FieldPayoff[1].PayNum = 1;
  Payoffs.SharpShooterPayoff[1].PayNum = -1;
  Settings.UseFireBet = false;
  Settings.MaxFireBet = 0;
  EXPECT_FALSE(TestPayoffs());
}

TEST_F(PayoffEditor, PayoffsAreSetByTheNameOfTheirRow) {
  Payoffs.FirePayoff[4].PayForm = FormFor;
  const char* const assignments[] = {"Place 6=8:7", "fire 4=30:1", "Field 1-1=3:1",
                                     "Sharp Shooter 0=-1:2", "Passline/Come (c.o.)=1.5:1"};
  for (const char* const assignment : assignments)
    EXPECT_EQ(SetPayoffByName(assignment), std::nullopt) << assignment;
  EXPECT_EQ(Payoffs.Payoff[bet::Place6].PayNum, Money(8));
  EXPECT_EQ(Payoffs.Payoff[bet::Place6].PayDen, Money(7));
  EXPECT_EQ(Payoffs.FirePayoff[4].PayNum, Money(30));
  EXPECT_EQ(Payoffs.FirePayoff[4].PayForm, Money(FormTo));
  EXPECT_EQ(Payoffs.FieldPayoff[1].PayNum, Money(3));
  EXPECT_EQ(Payoffs.SharpShooterPayoff[1].PayDen, Money(2));
  EXPECT_EQ(Payoffs.Payoff[bet::Come].PayNum, Money::FromRaw(15000));
}

TEST_F(PayoffEditor, WrongPayoffsByNameAreRefusedWithTheReason) {
  const std::string positive = " must be greater than zero, not ",
                    numbers = " must be NUM:DEN, two numbers with at most four decimals, not ";
  const std::pair<const char*, std::string> cases[] = {
      {"Place 6", "A payoff is set as ROW=NUM:DEN, not as \"Place 6\"."},
      {"Place 7=7:6", "There is no payoff row named Place 7."},
      {"Fire=24:1", "The payoff row Fire cannot be edited."},
      {"World=1:4", "The payoff row World cannot be edited."},
      {"Pass Line Odds=2:1", "The payoff row Pass Line Odds cannot be edited."},
      {"Come=2:1", "The payoff row of Come is named Passline/Come (c.o.)."},
      {"Come 4=2:1", "The payoff row of Come 4 is named Pass/Come 4."},
      {"Place 6=7:0", "The second number in the payoff of Place 6" + positive + "0."},
      {"Fire 4=1:-1", "The second number in the payoff of Fire 4" + positive + "-1."},
      {"Place 6=7", "The payoff of Place 6" + numbers + "\"7\"."},
      {"Place 6=1.00001:1", "The payoff of Place 6" + numbers + "\"1.00001:1\"."}};
  for (const auto& [assignment, text] : cases)
    EXPECT_EQ(SetPayoffByName(assignment), text) << assignment;
  EXPECT_EQ(Payoffs.Payoff[bet::Place6].PayNum, Money(7));
}

}  // namespace
}  // namespace tessarel
