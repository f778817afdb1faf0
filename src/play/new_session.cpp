#include "play/new_session.h"

#include <algorithm>
#include <utility>

#include "base/front_end.h"
#include "base/message.h"
#include "base/number_format.h"
#include "base/trap.h"
#include "dice/generators.h"
#include "dice/roll_file.h"
#include "engine/bet_handling.h"
#include "engine/seats.h"
#include "engine/settlement.h"
#include "files/events_log_view.h"
#include "files/sessions_log.h"
#include "log/event_lines.h"
#include "log/events_log.h"
#include "play/players.h"
#include "state/books.h"
#include "state/scripts.h"
#include "state/settings.h"
#include "state/table.h"
#include "stats/bankroll_graph.h"
#include "texts/say.h"

namespace tessarel {

namespace {

// A step that meets the disk: when it fails that is reported, and the session starts all the same.
// Returns whether it went through.
template <class Step>
bool Attempt(Step&& step) {
  return Trapped("NewSession", std::forward<Step>(step));
}

void LoseAbandoned(int number) {
  for (int visit = 1; visit <= LastPlace; ++visit)
    Attempt([=] { ResolveBet(visit, Lose, number); });
}

// The bets that cannot be taken back are lost with the session; nobody is asked what becomes of
// them.
void LoseAbandonedBets() {
  if (Settings.ReturnAbandonedBets) return;
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

// Every player's session goes into his log, unless the logs go with it.
void CloseSessionsLogs(bool keepLogs) {
  ForEachPlayer([keepLogs](int place) {
    Attempt([=] { keepLogs ? WriteSession(place) : DeleteSessionsLog(place); });
  });
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
    Table.BetAmountBefore[place][number] = Money();
    Table.BetAmountAfterRoll[place][number] = Money();
    SetBetContract(place, number, Money());
  }
  Table.ComeOriginal[place] = {};
  Table.LayVig[place] = Table.BuyVig[place] = {};
  Table.MoneyOnTable[place] = Money();
}

void ClearStacks(int place) {
  for (int number = FirstStack; number < FirstStack + StackCount; ++number) {
    SetBetAmount(place, number, Money());
    Table.BetAmountBefore[place][number] = Money();
    Table.BetAmountAfterRoll[place][number] = Money();
  }
  Table.CheckStackName[place] = {};
}

void ClearLayout(bool keepStacks) {
  for (int place = 1; place <= LastPlace; ++place) {
    ClearBets(place);
    if (!keepStacks) ClearStacks(place);
    Table.BetWorking[place] = Table.BetWorkingBefore[place] = Table.BetWorkingDefault[place];
  }
}

// A Cancel leaves the amount offered.
Money AskBeginningBankroll(int place) {
  const Money offered = std::clamp(Table.BankrollInitAmount[place], -BankrollLimit, BankrollLimit);
  return AskBankroll(Say(Text::AskBeginningBankroll, Table.PlayerName[place]),
                     Say(Text::BeginningBankroll), PlainText(offered))
      .value_or(offered);
}

void StartBankroll(int place, bool keepSessions) {
  Money amount = Table.BankrollInitAmount[place];
  if (Table.BankrollInitType[place] == 1 && !Table.HyperDriveOn) {
    amount = Table.BankrollInitAmount[place] = AskBeginningBankroll(place);
  } else if (Table.BankrollInitType[place] == 2) {
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
  CloseSessionsLogs(options.keepLogs);
  CloseStatistics(options.keepSessions);
  ClearSpecialBets();
  ClearLayout(options.keepStacks);
  ForEachPlayer([&](int place) { StartBankroll(place, options.keepSessions); });
  Table.GraphIndex = 0;
  BankrollGraph.GraphWidth = 150;
  BankrollGraph.GraphScrolledBack = 0;
  Table.Stop = StopCause::None;
  bool logs = !Settings.ClearEventsLogOnNew || Attempt(ClearEventsLog);
  Table.LastShooter = Table.Shooter;
  Table.Point = Table.LastPoint = Table.PointBeforeLast = Table.LastDecidedPoint = 0;
  Attempt([&] { ApplyRollFileAction(options.rollFileAction); });
  logs = logs && Attempt(LogNewSession);
  if (Dice.ReseedEachSession) Attempt([] { SeedRNG(0); });
  if (logs)
    Attempt(
        [] { LogFirstHand(RollFile.RollFileMode == RollFilePlay ? RollFile.RollFileName : ""); });
  Scripts.ScriptActiveAfterRoll = Scripts.ScriptActive;  // the log tells these once
  Table.BankrollStopPlace = 0;
  FrontEnd.RefreshViews();
  if (!Table.HyperDriveOn) FrontEnd.DrawTable();
}

}  // namespace

void NewSession(const SessionOptions& options) {
  Trapped("NewSession", [&options] { StartNewSession(options); });
}

}  // namespace tessarel
