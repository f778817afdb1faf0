#include "config/configuration.h"

#include "config/configuration_fixture.h"
#include "engine/bet_limits.h"
#include "engine/bets.h"

namespace tessarel {
namespace {

class Configuration : public ConfigurationTest {};

TEST_F(Configuration, StartUpRulesMayClose) {
  Settings.Denomination[1] = Money::FromRaw(2500);
  EXPECT_FALSE(ValidateConfiguration());
  EXPECT_EQ(Payoffs.Payoff[bet::Place6].PayUnit, Money::FromRaw(15000));
  EXPECT_TRUE(Shown.empty());
}

TEST_F(Configuration, ClosingRefusesTheFirstFaultInItsOrder) {
  using enum ConfigTab;
  static const RollRateEntry none{2, "0"};
  const struct {
    void (*Break)();
    ConfigTab Tab;
    std::string Setting, Text;  // how it begins
  } cases[] = {
      {[] { Settings.Denomination[1] = 0; }, ChecksDice, "Denomination", "Check values must be"},
      {[] { Settings.Denomination[3] = 4; }, ChecksDice, "Denomination",
       "Checks must be listed in"},
      {[] {
         Settings.Denomination = {0, 2, 6, 7, 8, 10};
         Settings.MinPlacardPropBet = 1;
       },
       ChecksDice, "Denomination", "All checks must be wholly divisible by the smallest check."},
      {[] { Settings.MinPlacardBet = Money::FromRaw(5000); }, Bets, "MinPlacardBet",
       "The minimum bet cannot be less than the smallest check denomination of 1.00"},
      {[] { Settings.MinPlacardBet = Money::FromRaw(25000); }, Bets, "MinPlacardBet",
       "The minimum bet must be a multiple of the smallest check denomination, such as 1.00,  "
       "2.00,  3.00 ..."},
      {[] { Settings.MinPlacardPropBet = 0; }, Bets, "MinPlacardPropBet",
       "The minimum prop bet cannot be less than the smallest check denomination of 1.00"},
      {[] { Settings.MinPlacardPropBet = Money::FromRaw(15000); }, Bets, "MinPlacardPropBet",
       "The minimum prop bet must be a multiple of"},
      {[] { Settings.MaxPlacardBet = 0; }, Bets, "MaxPlacardBet", "The maximum bet must be"},
      {[] {}, ChecksDice, "SimRollRate", "The simulated roll rate must be greater than zero."},
      {[] { Payoffs.Payoff[bet::Lay4].PayNum = 0; }, PayoffTables, "", "The payoff on Lay 4 must"},
      {[] { Settings.MaxFireBet = 0; }, Bets, "MaxFireBet", "The max Fire bet cannot be less"},
      {[] { Settings.MaxPropBetPayoff = 100; }, Bets, "MinPlacardPropBet",
       "Based on the selected payoffs, the maximum Make All bet is 0.\r\rThis is less"}};
  ValidationOptions options;
  // From the last test to the first, each hides those after it.
  for (size_t k = std::size(cases); k-- > 0;) {
    cases[k].Break();
    if (cases[k].Setting == "SimRollRate") options.RollRate = &none;
    const auto refusal = ValidateConfiguration(options);
    ASSERT_TRUE(refusal) << k;
    EXPECT_TRUE(refusal->Text.starts_with(cases[k].Text)) << refusal->Text;
    EXPECT_EQ(refusal->Tab, cases[k].Tab) << k;
    EXPECT_EQ(refusal->Setting, cases[k].Setting);
    if (cases[k].Text.starts_with("All checks")) {  // make way for the tests before it
      EXPECT_EQ(refusal->Index, 3);
      Settings.Denomination = SettingsState().Denomination;
    }
  }
}

TEST_F(Configuration, TheTestOfLargestBetsSkipsWhatIsOffTheLayout) {
  Settings.MaxPropBetPayoff = 40;  // only the special bets pay more on one smallest check
  EXPECT_TRUE(ValidateConfiguration());
  Settings.UseSpecialPropBets = false;
  EXPECT_FALSE(ValidateConfiguration());
  Settings.UseSpecialPropBets = true;
  EXPECT_FALSE(ValidateConfiguration({.TestLargestBets = false}));
}

TEST_F(Configuration, AChangedHouseStandardIsOfferedToEachPlayer) {
  const PerBet<int32_t> before = Table.BetWorkingDefault[0];
  const ValidationOptions options{.HouseWorkingBefore = &before};
  Table.BetWorkingDefault[0][bet::Place6] = 1;
  EXPECT_FALSE(ValidateConfiguration(options));
  EXPECT_TRUE(Shown.empty());  // nobody to ask

  Seat(2, "Ann", 100);
  Seat(5, "Bob", 100);
  Answers = {AnswerNo};
  EXPECT_FALSE(ValidateConfiguration(options));
  EXPECT_EQ(Shown.size(), 1u);
  Answers = {AnswerYes, AnswerNo, AnswerYes};
  EXPECT_FALSE(ValidateConfiguration(options));
  ASSERT_EQ(Shown.size(), 4u);
  EXPECT_EQ(Shown[2].Text, "Would you like to make Ann's settings match the house standard?");
  EXPECT_EQ(Shown[3].Title, "Work On Come-out Roll");
  EXPECT_EQ(Table.BetWorkingDefault[2][bet::Place6], 0);
  EXPECT_EQ(Table.BetWorkingDefault[5][bet::Place6], 1);
}

TEST_F(Configuration, BetsLeaveTheLayoutOnlyWithTheirOwnersConsent) {
  const struct {
    LayoutOption Option;
    bool SettingsState::*Flag;
    std::vector<int> Bets;
    std::string Names;
  } cases[] = {
      {LayoutOption::Big68, &SettingsState::UseBig68, {bet::Big6, bet::Big8}, "Big 6/8"},
      {LayoutOption::Midway, &SettingsState::UseMidwayBet, {bet::Midway}, "Midway"},
      {LayoutOption::Fire, &SettingsState::UseFireBet, {bet::Fire}, "Fire"},
      {LayoutOption::SpecialProps,
       &SettingsState::UseSpecialPropBets,
       {bet::AllSmall, bet::SevenPoint7, bet::RideTheLine},
       "All Small, All Tall, Make All, Four Rolls No 7, 7 Point 7, Point 7, Sharpshooter, or Ride "
       "The Line"}};
  Seat(1, "Ann", 1000);
  Seat(8, "Bob", 1000);
  for (const auto& [option, flag, bets, names] : cases) {
    for (const bool on : {false, true}) {
      EXPECT_TRUE(ChangeBetAvailability(option, on));
      EXPECT_EQ(Settings.*flag, on);
    }
    for (const int number : bets) {
      PutDown(1, number, 5);
      PutDown(8, number, 5);
    }
    Answers = {AnswerNo, AnswerYes};
    EXPECT_FALSE(ChangeBetAvailability(option, false));
    EXPECT_TRUE(Settings.*flag);
    EXPECT_EQ(Bet(8, bets.front()), Money(5));
    EXPECT_TRUE(ChangeBetAvailability(option, false));
    EXPECT_FALSE(Settings.*flag);
    EXPECT_FALSE(std::ranges::any_of(bets, AnyHolds));
    EXPECT_EQ(Shown.back().Flags, msg::AskYesNo);
    const std::string question = "Remove Bets: One or more wagers on " + names +
                                 " will be removed from the table.\r\rWould you like to continue?";
    EXPECT_EQ(Said(), (Strings{question, question}));
  }
}

TEST_F(Configuration, SpecialBetsStayWhileSevenPointSevenIsAContract) {
  Seat(1, "Ann", 1000);
  PutDown(1, bet::SevenPoint7, 5);
  Table.Point = 8;
  EXPECT_FALSE(ChangeBetAvailability(LayoutOption::SpecialProps, false));
  EXPECT_TRUE(Settings.UseSpecialPropBets);
  ASSERT_EQ(Shown.size(), 1u);
  EXPECT_EQ(Shown[0].Flags & msg::YesNo, 0);
  EXPECT_TRUE(Shown[0].Text.starts_with("You can't uncheck special prop bets now"));
}

TEST_F(Configuration, ChangedVigIsChargedAtOnce) {
  Seat(1, "Ann", 1000);
  ChangeBet({1, bet::Lay4, 100});
  ChangeBet({1, bet::Buy4, 100});
  // Lay: five percent of the win of 50, up from 2.50; Buy: of the bet.
  EXPECT_EQ(Table.MoneyOnTable[1], Money(208));
  struct {
    bool (*Change)();
    Money OnTable;
  } const cases[] = {
      {[] { return ChangeVig(&SettingsState::RoundLayVig, 1); }, 207},
      {[] { return ChangeVig(&SettingsState::LayVigPct, Money::FromRaw(1000)); }, 210},
      {[] { return ChangeVig(&SettingsState::BuyVigPct, Money()); }, 205},
      {[] { return ChangeVig(&SettingsState::LayVigAllBets, false); }, 200},
      {[] { return ChangeVig(&SettingsState::BuyVigPct, Money::FromRaw(310)); }, 203},
      {[] { return ChangeVig(&SettingsState::RoundBuyVig, 2); }, 204},
      {[] { return ChangeVig(&SettingsState::BuyVigAllBets, false); }, 200},
  };
  for (const auto& [change, onTable] : cases) {
    EXPECT_TRUE(change());
    EXPECT_EQ(Table.MoneyOnTable[1], onTable);
    EXPECT_EQ(CheckTable(), "");
  }
  EXPECT_EQ(Table.LayVig[1][0], Money(5));  // due on a win
}

TEST_F(Configuration, AVigThatAPlayerCannotPayIsUndone) {
  Seat(1, "Ann", 1000);
  Seat(4, "Bob", 107);
  for (const int place : {1, 4}) {
    ChangeBet({place, bet::Buy10, 100});
  }
  Shown.clear();
  EXPECT_TRUE(ChangeVig(&SettingsState::BuyVigPct, Money::FromRaw(700)));
  EXPECT_FALSE(ChangeVig(&SettingsState::BuyVigPct, Money::FromRaw(800)));
  EXPECT_EQ(Settings.BuyVigPct, Money::FromRaw(700));
  EXPECT_EQ(Table.BuyVig[1][5], Money(7));
  EXPECT_EQ(Table.MoneyOnTable[4], Money(107));
  ASSERT_EQ(Shown.size(), 1u);
  EXPECT_EQ(Shown[0].Title, "Vigorish");
  Table.AllowNegBankroll[4] = true;
  EXPECT_TRUE(ChangeVig(&SettingsState::BuyVigPct, Money::FromRaw(800)));
  EXPECT_EQ(Table.MoneyOnTable[4], Money(108));
}

TEST_F(Configuration, ABankrollMayBeBarredFromTheNegativeOnlyAboveIt) {
  Seat(3, "Ann", -10);
  EXPECT_TRUE(SetAllowNegBankroll(3, true));
  EXPECT_FALSE(SetAllowNegBankroll(3, false));
  SetBankrollSlots(3, 10);
  PutDown(3, bet::PassLine, 15);
  EXPECT_FALSE(SetAllowNegBankroll(3, false));
  EXPECT_TRUE(Table.AllowNegBankroll[3]);
  PutDown(3, bet::PassLine, 10);
  EXPECT_TRUE(SetAllowNegBankroll(3, false));
  EXPECT_FALSE(Table.AllowNegBankroll[3]);
  ASSERT_EQ(Shown.size(), 2u);
  EXPECT_TRUE(Shown[0].Text.starts_with("Ann currently has a negative bankroll.\r\rSome options:"));
  EXPECT_TRUE(Shown[1].Text.starts_with("Ann's current bets exceed current bankroll.\r\r"));
}

TEST_F(Configuration, BankrollsOfSessionsNeedAPlayer) {
  EXPECT_FALSE(SetBankrollInitType(1, 2) || SetBankrollInitAmount(1, 500));
  EXPECT_EQ(Shown.at(1).Title, "Missing Players");
  Seat(1, "Ann", 100);
  EXPECT_TRUE(SetBankrollInitType(1, 2));
  EXPECT_TRUE(SetBankrollInitAmount(1, 500));
  EXPECT_EQ(Table.BankrollInitAmount[1], Money(500));
}

TEST_F(Configuration, TheRollRateIsShownAndTakenInSixUnits) {
  Settings.SimRollRate = 120;
  const char* const shown[] = {"120", "2", "0.0333", "0.0083", "0.5", "30"};
  for (int unit = 0; unit < 6; ++unit)
    EXPECT_EQ(ShownRollRate(unit), At(shown, unit));
  Settings.SimRollRate = 36'000'000;
  EXPECT_EQ(ShownRollRate(0), "36,000,000");
  EXPECT_EQ(ShownRollRate(3), TinyRollRate);

  const struct {
    RollRateEntry Entry;
    Money Rate;
  } taken[] = {
      {{0, "36,000,000"}, 36'000'000},    {{1, "2.5"}, 150},
      {{2, "10000"}, 36'000'000},         {{3, "0.5"}, 2},
      {{4, "600000"}, Money::FromRaw(1)}, {{5, "36000000"}, Money::FromRaw(1)},
  };
  for (const auto& [entry, rate] : taken) {
    EXPECT_EQ(SetSimRollRate(entry), std::nullopt);
    EXPECT_EQ(Settings.SimRollRate, rate) << entry.Text;
  }
  for (int unit = 0; unit < 6; ++unit) {
    const Money past = Money(At(RollRateUnits, unit).Maximum) + Money::FromRaw(1);
    EXPECT_TRUE(SetSimRollRate({unit, PlainText(past)})->starts_with("The maximum simulated "));
    for (const char* const nothing : {"0", "", "<.0001"})
      EXPECT_EQ(SetSimRollRate({unit, nothing}),
                "The simulated roll rate must be greater than zero.");
  }
  EXPECT_EQ(Settings.SimRollRate, Money::FromRaw(1));
}

TEST_F(Configuration, ListsOfBetsChangeBySelection) {
  const int bets[] = {bet::Lay4, bet::Place6};
  ChangeWorkingDefaults(0, bets, ListChoice::Flip);
  EXPECT_EQ(Table.BetWorkingDefault[0][bet::Lay4], 0);
  EXPECT_EQ(Table.BetWorkingDefault[0][bet::Place6], 1);
  ChangeWorkingDefaults(2, bets, ListChoice::Yes);
  EXPECT_EQ(Table.BetWorkingDefault[2][bet::Lay4], 1);
  ChangeWorkingDefaults(2, bets, ListChoice::Default);  // the house's own table
  PerBet<int32_t> houses{};
  houses[bet::Place6] = 1;
  EXPECT_EQ(Table.BetWorkingDefault[2], houses);
  ChangeWorkingDefaults(0, bets, ListChoice::Default);  // the original standard
  EXPECT_EQ(Table.BetWorkingDefault[0][bet::Lay4], 1);
  EXPECT_EQ(Table.BetWorkingDefault[0][bet::Place6], 0);
  EXPECT_EQ(WorkingRowText(0, bet::Place6), "No - Place 6");

  const int comps[] = {bet::PassLineOdds, bet::Fire};
  ChangeCompBets(comps, ListChoice::Flip);
  EXPECT_EQ(CompBetRowText(bet::PassLineOdds), "Yes - Pass Line Odds");
  EXPECT_FALSE(Settings.CompBet[bet::Fire]);
  ChangeCompBets(comps, ListChoice::Default);
  EXPECT_EQ(Settings.CompBet, SettingsState::DefaultCompBets());

  const int tooFar[] = {bet::SharpShooter};
  EXPECT_THROW(ChangeWorkingDefaults(0, tooFar, ListChoice::Yes), Fault);
}

TEST_F(Configuration, ChecksAreRestoredOnRequest) {
  Settings.Denomination = {0, 2, 4, 8, 16, 32};
  Answers = {AnswerNo, AnswerYes};
  EXPECT_FALSE(RestoreDefaultDenoms());
  EXPECT_EQ(SmallestCheck(), Money(2));
  EXPECT_TRUE(RestoreDefaultDenoms());
  EXPECT_EQ(Settings.Denomination, SettingsState().Denomination);
}

TEST_F(Configuration, NoticesAreBitsOfTheirOwn) {
  SetNotice(NoticeAutoBetHyper, true);
  SetNotice(NoticeLimits, false);
  EXPECT_EQ(Settings.Notices, 29);
}

}  // namespace
}  // namespace tessarel
