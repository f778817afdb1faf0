#include "app/session.h"

#include <algorithm>
#include <utility>

#include "base/front_end.h"
#include "base/message.h"
#include "base/trap.h"
#include "config/advantage.h"
#include "config/folders.h"
#include "config/language.h"
#include "config/payoffs.h"
#include "config/settings.h"
#include "dice/generators.h"
#include "dice/popup_roll.h"
#include "dice/probability.h"
#include "dice/roll_file.h"
#include "dice/roll_file_edit.h"
#include "engine/bet_handling.h"
#include "engine/bet_limits.h"
#include "engine/bets.h"
#include "engine/players.h"
#include "engine/roll_driver.h"
#include "engine/settlement.h"
#include "engine/table.h"
#include "engine/unattended.h"
#include "files/event_lines.h"
#include "files/events_log.h"
#include "stats/bankroll_graph.h"
#include "stats/selection.h"
#include "stats/store.h"

namespace tessarel {

namespace {

// A step that meets the disk: when it fails that is reported, and the session starts all the same.
template <class Step>
void Attempt(Step&& step) {
  Trapped("NewSession", std::forward<Step>(step));
}

void LoseAbandoned(int number) {
  for (int visit = 1; visit <= LastPlace; ++visit)
    Attempt([=] { ResolveBet(visit, Lose, number); });
}

// The bets that cannot be taken back are lost with the session; nobody is asked what becomes of
// them.
void LoseAbandonedBets() {
  if (Settings.ReturnAbandonedBets != 0) return;
  const auto modes = std::exchange(Table.HandleLosingBets, {});
  Table.HandleLosingBets.fill(LossTakeDown);
  if (Table.Point != 0) {
    LoseAbandoned(bet::PassLine);
    LoseAbandoned(bet::SevenPoint7);
  }
  for (int number = bet::Come4; number <= bet::Come10; ++number)
    LoseAbandoned(number);
  Table.HandleLosingBets = modes;
}

void CloseStatistics(bool keepSessions) {
  if (RollsInHand() > 0) EndHand();
  if (!keepSessions) ClearAllSessions();
  StartSessionStatistics();
}

void ClearSpecialBets() {
  Table.FourRollCount = Table.MarkedNumbers = 0;
  Table.SharpShooterPoints = Table.RideTheLinePasses = 0;
  Table.FirePointsMask = Table.FirePoints = 0;
}

void ClearBets(int place) {
  for (int number = 0; number <= LastBet; ++number) {
    SetBetAmount(place, number, Money());
    At(At(Table.BetAmountBefore, place), number) = Money();
    At(At(Table.BetAmountAfterRoll, place), number) = Money();
    SetBetContract(place, number, Money());
  }
  At(Table.ComeOriginal, place) = {};
  At(Table.LayVig, place) = At(Table.BuyVig, place) = {};
  At(Table.MoneyOnTable, place) = Money();
}

void ClearStacks(int place) {
  for (int number = FirstStack; number < FirstStack + StackCount; ++number) {
    SetBetAmount(place, number, Money());
    At(At(Table.BetAmountBefore, place), number) = Money();
    At(At(Table.BetAmountAfterRoll, place), number) = Money();
  }
  At(Table.CheckStackName, place) = {};
}

void ClearLayout(bool keepStacks) {
  for (int place = 1; place <= LastPlace; ++place) {
    ClearBets(place);
    if (!keepStacks) ClearStacks(place);
    At(Table.BetWorking, place) = At(Table.BetWorkingBefore, place) =
        At(Table.BetWorkingDefault, place);
  }
}

// A Cancel leaves the amount offered.
Money AskBeginningBankroll(int place) {
  const Money offered =
      std::clamp(At(Table.BankrollInitAmount, place), -BankrollLimit, BankrollLimit);
  return AskBankroll("Enter " + At(Table.PlayerName, place) + "'s beginning bankroll:",
                     "Beginning Bankroll", PlainText(offered))
      .value_or(offered);
}

void StartBankroll(int place, bool keepSessions) {
  Money amount = At(Table.BankrollInitAmount, place);
  if (At(Table.BankrollInitType, place) == 1 && Table.HyperDriveOn == 0) {
    amount = At(Table.BankrollInitAmount, place) = AskBeginningBankroll(place);
  } else if (At(Table.BankrollInitType, place) == 2) {
    amount = BankrollOf(place);
  }
  if (!keepSessions) BeginBankroll(place + AllSessions, amount);
  SetBankroll(place, amount);
}

void ApplyRollFileAction(int32_t action) {
  if (action == RewindRollFile) {
    if (!RollFile.RollFileName.empty()) RewindForPlayback();
  } else if (action != ContinueRollFile) {
    CloseRollFile();
  }
}

void StartNewSession(const SessionOptions& options) {
  LoseAbandonedBets();
  CloseStatistics(options.keepSessions != 0);
  ClearSpecialBets();
  ClearLayout(options.keepStacks != 0);
  ForEachPlayer([&](int place) { StartBankroll(place, options.keepSessions != 0); });
  Table.GraphIndex = 0;
  BankrollGraph.GraphWidth = 150;
  BankrollGraph.GraphScrolledBack = 0;
  Table.StopReason.clear();
  if (Settings.ClearEventsLogOnNew != 0) Attempt(ClearEventsLog);
  Table.LastShooter = Table.Shooter;
  Table.Point = Table.LastPoint = Table.PointBeforeLast = Table.LastDecidedPoint = 0;
  Attempt([&] { ApplyRollFileAction(options.rollFileAction); });
  Attempt(LogNewSession);
  if (Dice.ReseedEachSession != 0) Attempt([] { SeedRNG(0); });
  Attempt([] { LogFirstHand(RollFile.RollFileMode == RollFilePlay ? RollFile.RollFileName : ""); });
  Table.BankrollStopPlace = 0;
  FrontEnd.RefreshViews();
  if (Table.HyperDriveOn == 0) FrontEnd.DrawTable();
}

void ResetModules() {
  CloseRollFile();
  Settings = SettingsState{};
  Payoffs = PayoffState{};
  Advantage = AdvantageState{};
  Table = TableState{};
  Stats = StatsState{};
  ViewSelections = ViewSelectionState{};
  BankrollGraph = BankrollGraphState{};
  Dice = DiceState{};
  Probability = ProbabilityState{};
  RollFile = RollFileState{};
  RollFileEdit = RollFileEditState{};
  PopupRoll = PopupRollState{};
  Roll = RollState{};
  EventsLog = EventsLogState{};
  Message = MessageState{};
}

void SetTableDefaults() {
  for (int number = 1; number <= LastBet; ++number) {
    At(Table.BetWorkingDefault[0], number) = OriginalHouseWorking(number);
  }
  for (int place = 1; place <= LastPlace; ++place)
    OpenPlaceDefaults(place);
}

void WarnOfMissingFiles() {
  const std::string text = MissingSupportText();
  if (!text.empty()) ShowMessage(text, "Missing Support File", msg::Ok);
}

}  // namespace

void NewSession(const SessionOptions& options) {
  Trapped("NewSession", [&options] { StartNewSession(options); });
}

void StartUp(const std::string& appFolder) {
  ResetModules();
  Trapped("StartUp", [&appFolder] {
    SetAppFolder(appFolder);
    SetLanguage(English);
    DefaultPayoffs();
    FigurePayoffUnits();
    SetTableDefaults();
    SeedAllGenerators();
    NewSession({});
    WarnOfMissingFiles();
  });
}

bool AskToLeave() {
  const bool hyper = Table.HyperDriveOn != 0;
  if (!hyper && Table.AutoRollOn == 0) return true;
  const std::string title(GetText(hyper ? 114 : 117)), question(GetText(hyper ? 118 : 119));
  if (ShowMessage(question, title, msg::AskYesDefault) != AnswerYes) return false;
  StopUnattended();
  return true;
}

void ShutDown() {
  Trapped("ShutDown", CloseRollFile);
  if (RollFileEdit.ClipboardInUse) Trapped("ShutDown", DeleteRollClipboard);
}

}  // namespace tessarel
