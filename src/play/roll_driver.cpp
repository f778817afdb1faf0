#include "play/roll_driver.h"

#include <cstdio>
#include <cstdlib>
#include <string>
#include <utility>

#include "autobet/interpreter.h"
#include "base/clock.h"
#include "base/front_end.h"
#include "base/message.h"
#include "base/trap.h"
#include "dice/generators.h"
#include "dice/popup_roll.h"
#include "dice/probability.h"
#include "dice/roll_file.h"
#include "dice/roll_file_edit.h"
#include "engine/bet_limits.h"
#include "engine/bets.h"
#include "engine/settlement.h"
#include "engine/special_bets.h"
#include "engine/unattended.h"
#include "log/event_lines.h"
#include "log/events_log.h"
#include "play/players.h"
#include "play/roll_pace.h"
#include "state/books.h"
#include "state/books_check.h"
#include "state/scripts.h"
#include "state/settings.h"
#include "state/table.h"
#include "texts/say.h"

namespace tessarel {

namespace {

// A roll that cannot be made: the message outside the Hyper-Drive, and the reason that a run ends.
bool Refuse(std::string text, std::string title, StopCause cause) {
  if (!Table.HyperDriveOn) ShowMessage(std::move(text), std::move(title), msg::OkAlert, help::Dice);
  Table.Stop = cause;
  return false;
}

// A demand on the shooter, with the note where it can be changed.
std::string BetDemand(Text demand) {
  return SayChosen(demand, Table.PlayerName[Table.Shooter]) + "\r\r" + Say(Text::BetRequiredNote);
}

bool HasAnyBet(int place) {
  return !Table.Standing[place].Empty();
}

bool RefuseWithoutLineBet() {
  const Text demand = Table.PlayerCount == 1 ? Text::LineBetAlone
                      : Table.Point != 0     ? Text::LineBetDuringPoint
                                             : Text::LineBetOrPass;
  return Refuse(BetDemand(demand), Say(Text::LineBetRequired), StopCause::ShooterWithoutLineBet);
}

bool RequiredBetStands() {
  if (Settings.BetNeededToShoot <= 0) return true;
  if (Table.PlayerCount == 0) {
    return Refuse(Say(Text::NoPlayersToBet), Say(Text::BetRequired), StopCause::NobodyToBet);
  }
  if (Settings.BetNeededToShoot == 1) return HasLineBet(Table.Shooter) || RefuseWithoutLineBet();
  if (HasAnyBet(Table.Shooter)) return true;
  return Refuse(BetDemand(Text::AnyBetOrPass), Say(Text::AnyBetRequired),
                StopCause::ShooterWithoutBet);
}

bool BelowMaximumRolls() {
  if (RollsInSession() < MaxRolls) return true;
  return Refuse(Say(Text::MaximumRolls) + "\r\r" + Say(Text::ResetTable),
                Say(Text::MaximumRollsTitle), StopCause::MaximumRolls);
}

void FigureAvailableBankrolls() {
  ForEachPlayer([](int place) {
    Table.AvailableBankroll[place] = BankrollOf(place) - Table.MoneyOnTable[place];
  });
}

// Where a roll's dice come from.
enum class DiceSource { None, ManualPad, PopupRoll, RollFile, Generator };

// Whether the roll may begin: a pop-up roll file that does not come leaves it unmade.
bool PopupRollIsThere(const std::optional<Faces>& chosen) {
  if (!PopupRoll.PopupRollActive || chosen) return true;
  if (WaitForPopupRoll()) return true;
  if (!Table.HyperDriveOn) FrontEnd.DrawTable();
  return false;
}

// The dice of a source that may stop the roll.
DiceSource DiceFrom(DiceSource source, std::optional<Faces> taken, Faces& faces) {
  if (!taken) return DiceSource::None;
  faces = *taken;
  return source;
}

// The dice of the next roll from the first source that has them. Nothing of the table has changed
// yet, so a source that stops the roll leaves no trace. A face that no die has raises the index
// fault.
DiceSource TakeDice(std::optional<Faces>& chosen, Faces& faces) {
  if (chosen) {
    faces = *std::exchange(chosen, std::nullopt);
    return DiceSource::ManualPad;
  }
  if (PopupRoll.PopupRollActive) {
    return DiceFrom(DiceSource::PopupRoll, TakePopupRoll(), faces);
  }
  if (RollFile.RollFileMode == RollFilePlay) {
    return DiceFrom(DiceSource::RollFile, PlayBackRoll(), faces);
  }
  faces = MakeDice(RollsInSession());
  if (faces.die1 == 0) {
    Table.Stop = StopCause::NoGenerator;
    return DiceSource::None;
  }
  const bool cubes = faces.die1 <= 6 && faces.die2 <= 6;
  if (!cubes) RaiseIndexOutOfRange();
  return DiceSource::Generator;
}

void SnapshotBeforeRoll() {
  ForEachPlayer([](int place) {
    Table.BankrollAtRoll[place] = BankrollOf(place);
    NumberSet& changed = Table.ChangedForRoll[place];
    changed.ForEach([place](int number) {
      const Money amount = Bet(place, number);
      Table.BetAmountBefore[place][number] = amount;
      if (number > LastBet) return;
      Table.BetContract[place][number] = amount;
      Table.BetStreakBefore[place][number] = Table.BetStreak[place][number];
    });
    changed.Clear();
  });
  Table.PointBeforeLast = std::exchange(Table.LastPoint, Table.Point);
}

std::string GeneratorText() {
  const std::string from = " from RNG #" + std::to_string(Dice.CurrentRNG);
  if (!Probability.ProbabilityMatrixActive) return from;
  return Probability.ProbabilityFileName.empty()
             ? from + " using untitled probability matrix"
             : from + " using probability matrix: " + Probability.ProbabilityFileName;
}

void LogRollLine(DiceSource source) {
  if (!Logs(&EventsLogState::LogRolls)) return;
  const std::string from = source == DiceSource::ManualPad   ? " from manual roll pad"
                           : source == DiceSource::PopupRoll ? " from pop-up roll file"
                           : source == DiceSource::RollFile  ? " from roll file"
                                                             : GeneratorText();
  LogRoll(RollsInSession() + 1, Table.Die1, Table.Die2, from);
}

void SetDice(Faces faces) {
  Table.Die1 = faces.die1;
  Table.Die2 = faces.die2;
  Table.DiceTotal = faces.die1 + faces.die2;
}

void ShowDice() {
  if (Table.HyperDriveOn) return;
  FrontEnd.AnimateDice();
  if (Settings.DisableAllSound) return;
  FrontEnd.PlaySound(Sound::Total);
  if (Table.Die1 == Table.Die2) FrontEnd.PlaySound(Sound::Doubles);
}

void DecidePoint(void (*record)(), const char* line) {
  record();
  if (Table.Point != 0) Table.LastDecidedPoint = std::exchange(Table.Point, 0);
  LogDecision(line);
}

void MoveFromComeOut() {
  switch (Table.DiceTotal) {
    case 7:
    case 11:
      DecidePoint(RecordPass, "    Pass (natural)");
      break;
    case 2:
    case 3:
    case 12:
      DecidePoint(RecordMiss, "    Miss (craps natural)");
      break;
    default:
      Table.Point = Table.DiceTotal;
      LogDecision("    Point established");
  }
  RecordComeoutRoll();
}

void MovePoint() {
  if (Table.Point == 0) {
    MoveFromComeOut();
  } else if (Table.DiceTotal == Table.Point) {
    DecidePoint(RecordPass, "    Pass (point rolled)");
  } else if (Table.DiceTotal == 7) {
    DecidePoint(RecordMiss, "    Miss (seven-out)");
  }
}

// Ends the hand on a seven-out and hands the dice on. Returns whether a hand ended.
bool EndHandOnSevenOut() {
  if (Table.DiceTotal != 7 || Table.LastPoint == 0) return false;
  EndHand();
  Table.PreviousShooter = Table.LastShooter;
  if (Table.Shooter != Table.LastShooter) {
    Table.LastShooter = Table.Shooter;
  } else {
    PassDice(HandEnded);
  }
  return true;
}

void PlaceAutomaticOdds(int place) {
  if (Bet(place, bet::PassLine) > Money()) {
    if (Table.AutoTakeFullOdds[place]) ReplaceBet(place, bet::PassLineOdds);
    if (Table.AutoDownPlaceBets[place]) RemovePlaceBets(place, Table.Point);
  }
  if (Bet(place, bet::DontPass) > Money() && Table.AutoLayFullOdds[place]) {
    if (!Table.HyperDriveOn) FrontEnd.DrawBet(place, bet::DontPass);
    ReplaceBet(place, bet::DontPassOdds);
  }
}

void FollowPoint() {
  if (Table.Point == Table.LastPoint) return;
  UpdateWorkingFlags();
  if (Table.Point == 0) return;
  SetOddsPayoffRows();
  ForEachPlayer(PlaceAutomaticOdds);
}

void StoreGraphPoint() {
  if (++Table.GraphIndex > GraphLength) Table.GraphIndex = 1;
  auto& bankrolls = Table.GraphBankroll[Table.GraphIndex];
  for (int place = 1; place <= LastPlace; ++place)
    At(bankrolls, place) = BankrollOf(place);
}

void SnapshotWorking() {
  ForEachPlayer([](int place) {
    if (std::exchange(Table.WorkingChanged[place], 0) == 0) return;
    Table.BetWorkingBefore[place] = Table.BetWorking[place];
  });
}

void SnapshotAfterRoll() {
  ForEachPlayer([](int place) {
    Table.BankrollAfterRoll[place] = BankrollOf(place);
    NumberSet& changed = Table.ChangedAfter[place];
    changed.ForEach(
        [place](int number) { Table.BetAmountAfterRoll[place][number] = Bet(place, number); });
    changed.Clear();
  });
  Scripts.ScriptActiveAfterRoll = Scripts.ScriptActive;
}

bool StoppedByBankroll() {
  for (uint32_t rest = Table.TakenPlaces; rest != 0; rest &= rest - 1) {
    const int place = std::countr_zero(rest);
    if (Abs(BankrollOf(place)) <= BankrollLimit) continue;
    BankrollLimitStop(place);
    return true;
  }
  return false;
}

void StopAtCount() {
  if (AutoStopIsDue()) Table.Stop = StopCause::AutoStop;
}

void CheckEverything() {
#ifdef TESSAREL_CHECK_TABLE
  for (const std::string& fault : {CheckTable(), CheckBooks()}) {
    if (fault.empty()) continue;
    std::fprintf(stderr, "After roll %d: %s\n", RollsInSession(), fault.c_str());
    std::abort();
  }
#endif
}

void PlayRoll(Faces faces, DiceSource source) {
  LogChangesSinceLastRoll();
  SnapshotBeforeRoll();
  SetDice(faces);
  LogRollLine(source);
  if (RollFile.RollFileMode == RollFileRecord) RecordToRollFile(faces);
  ShowDice();
  RecordRoll(faces.die1, faces.die2);
  if (Settings.UseSpecialPropBets) MarkRoll();
  MovePoint();
  SettleRoll();
  RecordBankrolls();
  const int shooterBefore = Table.LastShooter;
  const bool handEnded = EndHandOnSevenOut();
  FollowPoint();
  LogBankrollsAfterRoll();
  if (handEnded) LogNextHand(shooterBefore);
  StoreGraphPoint();
  SnapshotWorking();
  if (Scripts.ScriptActive[0]) RunAutoBet();
  SnapshotAfterRoll();
  CheckEverything();
}

// One roll, from its refusals to its last snapshot. Returns false when no roll can be made.
bool OneRoll(std::optional<Faces>& chosen) {
  Table.TableDirty = true;
  Table.Stop = StopCause::None;
  Table.RollInProgress = true;
  if (!RequiredBetStands() || !BelowMaximumRolls()) return false;
  if (!PopupRollIsThere(chosen)) return false;
  Table.BetChangedThisRoll = false;
  FigureAvailableBankrolls();
  Faces faces{};
  const DiceSource source = TakeDice(chosen, faces);
  if (source == DiceSource::None) return false;
  PlayRoll(faces, source);
  if (!Table.HyperDriveOn) FrontEnd.RefreshViews();
  return !StoppedByBankroll();
}

// Whether the active scripts, if there are any, are compiled as they stand now.
bool ScriptsCanRun() {
  if (!Scripts.ScriptActive[0]) return true;
  if (!Scripts.ProgramReady) CheckScriptErrors();
  return Scripts.ProgramReady;
}

// Once a second what a run has logged goes to the disk.
void KeepLogUpToDate() {
  if (!EventsLog.LogOn) return;
  constexpr int64_t Second = 1000;
  const int64_t now = TickMilliseconds();
  if (now - RollPace.LogStamp < Second) return;
  RollPace.LogStamp = now;
  Trapped("MakeRoll", FlushEventsLog);
}

// Between two rolls of the Hyper-Drive. Returns whether it goes on. The events may have changed the
// scripts.
bool GoOnRolling() {
  if (!Table.HyperDriveOn) return false;
  FrontEnd.RunPendingEvents();
  KeepLogUpToDate();
  StopAtCount();
  if (Table.HyperDriveOn && !ScriptsCanRun()) StopUnattended();
  if (!Table.HyperDriveOn || Table.Stop != StopCause::None) return false;
  if (Settings.Throttle > 0) ThrottleRoll();
  return true;
}

// A fault ends the roll where it stands; an unattended run goes on with the next one. Returns
// whether rolls can be made.
bool RollUntilStopped(std::optional<Faces>& chosen) {
  bool rolled = true;
  do {
    Trapped("MakeRoll", [&] { rolled = OneRoll(chosen); });
  } while (rolled && GoOnRolling());
  return rolled;
}

// Between two rolls of Auto-Roll: the table stands as it is until the next one may begin.
void PauseAutoRoll() {
  if (!Table.AutoRollOn || Table.HyperDriveOn || Table.Stop != StopCause::None) return;
  FrontEnd.DrawStatus();
  Trapped("MakeRoll", FlushEventsLog);
  if (AutoStopIsDue()) {
    StopUnattended();
    ShowMessage(Say(Text::AutoStopNotice), Say(Text::AutoRollStopped), msg::OkAlert,
                help::AutoRoll);
  } else {
    WaitForNextRoll();
  }
}

void CallComeOut() {
  if (Table.Point != 0 || Settings.DisableAllSound) return;
  if (RollsInSession() == 1) FrontEnd.PlaySound(Sound::FirstComeOut);
  FrontEnd.PlaySound(Sound::ComeOut);
}

// The end of play asks what becomes of the roll file: the end of a person's run, and that of the
// file itself. A Hyper-Drive that no one at the table has started asks nobody.
void EndPlay(bool ranUnattended) {
  const bool fileEnded = Table.Stop != StopCause::None && RollFile.EndReached;
  const bool asksNobody = Table.HyperDriveOn && !Table.AutoRollOn;
  if (Table.Stop != StopCause::None) StopUnattended();
  const bool runEnded = ranUnattended && !Table.AutoRollOn;
  if (!asksNobody && (fileEnded || runEnded)) Trapped("StopRollFile", StopRollFile);
}

void EndRolling(bool ranUnattended, bool rolled) {
  Table.LastStop = Table.Stop;
  EndPlay(ranUnattended);
  Table.Stop = StopCause::None;
  if (rolled) CallComeOut();
  Trapped("MakeRoll", CloseEventsLog);
  Table.RollInProgress = false;
  FrontEnd.DrawStatus();
}

// A roll, or all those of the Hyper-Drive, with the end of play. Returns whether the Auto-Roll goes
// on with the next one.
bool RollAndEnd(std::optional<Faces>& chosen) {
  ReplaceMissingGenerator();
  if (Table.BankrollStopPlace != 0) {
    BankrollLimitStop(Table.BankrollStopPlace);
    return false;
  }
  if (!ScriptsCanRun()) {
    if (Table.AutoRollOn) StopUnattended();
    return false;
  }
  const int32_t rollsBefore = RollsInSession();
  const bool ranUnattended = Table.AutoRollOn;
  const bool goesOn = RollUntilStopped(chosen);
  if (goesOn) PauseAutoRoll();
  EndRolling(ranUnattended, RollsInSession() != rollsBefore);
  return goesOn && Table.AutoRollOn;
}

}  // namespace

bool AutoStopIsDue() {
  const int64_t every = Settings.AutoStopRolls.Floor();
  return every > 0 && RollsInSession() > 0 && RollsInSession() % every == 0;
}

void MakeRoll(std::optional<Faces> chosen) {
  if (Table.RollInProgress || Message.AnswerPending != 0) return;
  while (RollAndEnd(chosen)) {
  }
}

}  // namespace tessarel
