#include "config/configuration.h"

#include "base/fault.h"
#include "config/configuration_fixture.h"
#include "engine/bet_limits.h"
#include "engine/bets.h"
#include "texts/say.h"

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
  static const RollRateEntry none{2, "0"};
  struct Case {
    void (*Break)();
    ConfigTab Tab;
    std::string Setting, Text;
  };
  const Case cases[] = {
      {[] { Settings.Denomination[1] = 0; }, ConfigTab::ChecksDice, "Denomination",
       "Check values must be greater than zero."},
      {[] { Settings.Denomination[3] = 4; }, ConfigTab::ChecksDice, "Denomination",
       "Checks must be listed in ascending order with the lowest value check in the leftmost "
       "position."},
      {[] {
         Settings.Denomination = {0, 2, 6, 7, 8, 10};
         Settings.MinPlacardPropBet = 1;
       },
       ConfigTab::ChecksDice, "Denomination",
       "All checks must be wholly divisible by the smallest check."},
      {[] { Settings.MinPlacardBet = Money::FromRaw(5000); }, ConfigTab::Bets, "MinPlacardBet",
       "The minimum bet cannot be less than the smallest check denomination of 1.00"},
      {[] { Settings.MinPlacardBet = Money::FromRaw(25000); }, ConfigTab::Bets, "MinPlacardBet",
       "The minimum bet must be a multiple of the smallest check denomination, such as 1.00,  "
       "2.00,  3.00 ..."},
      {[] { Settings.MinPlacardPropBet = 0; }, ConfigTab::Bets, "MinPlacardPropBet",
       "The minimum prop bet cannot be less than the smallest check denomination of 1.00"},
      {[] { Settings.MinPlacardPropBet = Money::FromRaw(15000); }, ConfigTab::Bets,
       "MinPlacardPropBet",
       "The minimum prop bet must be a multiple of the smallest check denomination, such as 1.00,  "
       "2.00,  3.00 ..."},
      {[] { Settings.MaxPlacardBet = 0; }, ConfigTab::Bets, "MaxPlacardBet",
       "The maximum bet must be greater than or equal to the minimum bet."},
      {[] {}, ConfigTab::ChecksDice, "SimRollRate",
       "The simulated roll rate must be greater than zero."},
      {[] { Payoffs.Payoff[bet::Lay4].PayNum = 0; }, ConfigTab::PayoffTables, "",
       "The payoff on Lay 4 must be positive."},
      {[] { Settings.MaxFireBet = 0; }, ConfigTab::Bets, "MaxFireBet",
       "The max Fire bet cannot be less than the minimum prop bet."},
      {[] { Settings.MaxPropBetPayoff = 100; }, ConfigTab::Bets, "MinPlacardPropBet",
       "Based on the selected payoffs, the maximum Make All bet is 0.\r\rThis is less than the "
       "minimum prop bet and must be adjusted.\r\rPlease do one or more of the following:\r-- "
       "lower "
       "the minimum prop bet\r-- raise the maximum prob bet payoff\r-- raise the maximum bet, "
       "or\r-- raise the individual payoff(s) on Make All."},
  };
  ValidationOptions options;
  // From the last test to the first, each hides those behind it.
  for (size_t k = std::size(cases); k-- > 0;) {
    cases[k].Break();
    if (cases[k].Setting == "SimRollRate") options.RollRate = &none;
    const auto refusal = ValidateConfiguration(options);
    ASSERT_TRUE(refusal) << k;
    EXPECT_EQ(refusal->Text, cases[k].Text);
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
  struct {
    LayoutOption Option;
    bool* Flag;
    std::vector<int> Bets;
    std::string Names;
  } const cases[] = {
      {LayoutOption::Big68, &Settings.UseBig68, {bet::Big6, bet::Big8}, "Big 6/8"},
      {LayoutOption::Midway, &Settings.UseMidwayBet, {bet::Midway}, "Midway"},
      {LayoutOption::Fire, &Settings.UseFireBet, {bet::Fire}, "Fire"},
      {LayoutOption::SpecialProps,
       &Settings.UseSpecialPropBets,
       {bet::AllSmall, bet::SevenPoint7, bet::RideTheLine},
       "All Small, All Tall, Make All, Four Rolls No 7, 7 Point 7, Point 7, Sharpshooter, or Ride "
       "The Line"},
  };
  Seat(1, "Ann", 1000);
  Seat(8, "Bob", 1000);
  for (const auto& c : cases) {
    EXPECT_TRUE(ChangeBetAvailability(c.Option, false));
    EXPECT_FALSE(*c.Flag);
    EXPECT_TRUE(ChangeBetAvailability(c.Option, true));
    EXPECT_TRUE(*c.Flag);
    EXPECT_TRUE(Shown.empty());

    for (const int number : c.Bets) {
      PutDown(1, number, 5);
      PutDown(8, number, 5);
    }
    Answers = {AnswerNo, AnswerYes};
    EXPECT_FALSE(ChangeBetAvailability(c.Option, false));
    EXPECT_TRUE(*c.Flag);
    EXPECT_EQ(Bet(8, c.Bets.front()), Money(5));
    EXPECT_TRUE(ChangeBetAvailability(c.Option, false));
    EXPECT_FALSE(*c.Flag);
    for (const int number : c.Bets)
      EXPECT_FALSE(AnyHolds(number));
    ASSERT_EQ(Shown.size(), 2u);
    EXPECT_EQ(Shown[0].Title, "Remove Bets");
    EXPECT_EQ(Shown[0].Text, "One or more wagers on " + c.Names +
                                 " will be removed from the table.\r\rWould you like to continue?");
    EXPECT_EQ(Shown[0].Flags, msg::AskYesNo);
    Shown.clear();
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
  EXPECT_EQ(
      Shown[0].Text,
      "You can't uncheck special prop bets now because there are currently one or more wagers "
      "on 7 Point 7 which is a contract bet and can't be removed it until it resolves.");
}

TEST_F(Configuration, ChangedVigIsChargedAtOnce) {
  Seat(1, "Ann", 1000);
  Table.Amount = 100;
  ChangeBet(1, bet::Lay4);
  Table.Amount = 100;
  ChangeBet(1, bet::Buy4);
  // Lay: five percent of the win of 50, up from 2.50; Buy: of the bet.
  EXPECT_EQ(Table.MoneyOnTable[1], Money(208));
  struct {
    bool (*Change)();
    Money OnTable;
  } const cases[] = {
      {[] { return ChangeVig(&SettingsState::RoundLayVig, 1); }, 207},
      {[] { return ChangeVig(&SettingsState::LayVigPct, Money::FromRaw(1000)); }, 210},
      {[] { return ChangeVig(&SettingsState::BuyVigPct, Money()); }, 205},
      {[] { return ChangeVig(&SettingsState::LayVigAllBets, 0); }, 200},
      {[] { return ChangeVig(&SettingsState::BuyVigPct, Money::FromRaw(310)); }, 203},
      {[] { return ChangeVig(&SettingsState::RoundBuyVig, 2); }, 204},
      {[] { return ChangeVig(&SettingsState::BuyVigAllBets, 0); }, 200},
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
    Table.Amount = 100;
    ChangeBet(place, bet::Buy10);
  }
  Shown.clear();
  EXPECT_TRUE(ChangeVig(&SettingsState::BuyVigPct, Money::FromRaw(700)));
  EXPECT_FALSE(ChangeVig(&SettingsState::BuyVigPct, Money::FromRaw(800)));
  EXPECT_EQ(Settings.BuyVigPct, Money::FromRaw(700));
  EXPECT_EQ(Table.BuyVig[1][5], Money(7));
  EXPECT_EQ(Table.MoneyOnTable[4], Money(107));
  ASSERT_EQ(Shown.size(), 1u);
  EXPECT_EQ(Shown[0].Title, "Vigorish");
  EXPECT_EQ(Shown[0].Text,
            "You're not allowed to change this setting at this time because one or more players "
            "doesn't have enough bankroll remaining to pay the added up-front vig that would be "
            "required.\r\rThis can be remedied by doing one or more of the following:\r -- Make a "
            "withdrawal from the ATM\r -- Reduce the amount on current bets\r -- Check Allow "
            "negative bankroll");
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
  EXPECT_EQ(Shown[0].Text,
            "Ann currently has a negative bankroll.\r\rSome options:\r -- Win some more money\r -- "
            "Withdraw some money from the ATM\r -- Start a new session");
  EXPECT_EQ(
      Shown[1].Text,
      "Ann's current bets exceed current bankroll.\r\rSome options:\r -- Reduce the amount of "
      "current bets\r -- Win some more money\r -- Withdraw some money from the ATM\r -- Start "
      "a new session");
}

TEST_F(Configuration, BankrollsOfSessionsNeedAPlayer) {
  EXPECT_FALSE(SetBankrollInitType(1, 2));
  EXPECT_FALSE(SetBankrollInitAmount(1, 500));
  ASSERT_EQ(Shown.size(), 2u);
  EXPECT_EQ(Shown[0].Title, "Missing Players");
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
    const RollRateUnit& row = At(RollRateUnits, unit);
    const std::string past = PlainText(Money(row.Maximum) + Money::FromRaw(1));
    EXPECT_EQ(SetSimRollRate({unit, past}), "The maximum simulated " +
                                                std::string(Wording(row.Caption)) + " rate is " +
                                                std::string(row.Is));
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
  EXPECT_EQ(Table.BetWorkingDefault[2], ([] {
              PerBet<int32_t> expected{};
              expected[bet::Place6] = 1;
              return expected;
            })());
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
