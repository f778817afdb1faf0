#include "play/session.h"

#include <algorithm>
#include <utility>

#include "autobet/actions.h"
#include "autobet/find_replace.h"
#include "autobet/interpreter.h"
#include "autobet/script_files.h"
#include "autobet/script_host.h"
#include "autobet/values.h"
#include "base/file_io.h"
#include "base/folders.h"
#include "base/front_end.h"
#include "base/message.h"
#include "base/trap.h"
#include "config/advantage.h"
#include "dice/generators.h"
#include "dice/popup_roll.h"
#include "dice/probability.h"
#include "dice/probability_file.h"
#include "dice/roll_file.h"
#include "dice/roll_file_edit.h"
#include "engine/bet_limits.h"
#include "engine/bets.h"
#include "engine/seats.h"
#include "engine/settlement.h"
#include "engine/unattended.h"
#include "files/events_log_view.h"
#include "files/file_dialog.h"
#include "files/game_file.h"
#include "files/game_views.h"
#include "files/hot_keys.h"
#include "files/sessions_log.h"
#include "log/event_lines.h"
#include "log/events_log.h"
#include "play/auto_roll.h"
#include "play/players.h"
#include "play/roll_driver.h"
#include "state/books.h"
#include "state/payoffs.h"
#include "state/scripts.h"
#include "state/settings.h"
#include "state/table.h"
#include "stats/bankroll_graph.h"
#include "stats/selection.h"
#include "stats/session_statistics.h"
#include "texts/dice_texts.h"
#include "texts/file_texts.h"
#include "texts/language.h"
#include "texts/rail_texts.h"

namespace tessarel {

namespace {

// A step that meets the disk: when it fails that is reported, and the session starts all the same.
template <class Step>
void Attempt(Step&& step) {
  Trapped("NewSession", std::forward<Step>(step));
}

void LoseAbandoned(int number) {
  for (int visit = 1; visit <= LastPlace; ++visit) {
    Attempt([=] {
      if (const auto lost = DecideBet(visit, Lose, number)) TakeDownBet(lost->place, lost->number);
    });
  }
}

// The bets that cannot be taken back are lost with the session; nobody is asked what becomes of
// them.
void LoseAbandonedBets() {
  if (Settings.ReturnAbandonedBets) return;
  if (Table.Point != 0) {
    LoseAbandoned(bet::PassLine);
    LoseAbandoned(bet::SevenPoint7);
  }
  for (int number = bet::Come4; number <= bet::Come10; ++number)
    LoseAbandoned(number);
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
  return AskBankroll(FillIn(RailTexts.AskBeginningBankroll, {Table.PlayerName[place]}),
                     LocalizedText(RailTexts.BeginningBankroll), PlainText(offered))
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
  Table.StopReason.clear();
  if (Settings.ClearEventsLogOnNew) Attempt(ClearEventsLog);
  Table.LastShooter = Table.Shooter;
  Table.Point = Table.LastPoint = Table.PointBeforeLast = Table.LastDecidedPoint = 0;
  Attempt([&] { ApplyRollFileAction(options.rollFileAction); });
  Attempt(LogNewSession);
  if (Dice.ReseedEachSession) Attempt([] { SeedRNG(0); });
  Attempt([] { LogFirstHand(RollFile.RollFileMode == RollFilePlay ? RollFile.RollFileName : ""); });
  Scripts.ScriptActiveAfterRoll = Scripts.ScriptActive;  // the log tells these once
  Table.BankrollStopPlace = 0;
  FrontEnd.RefreshViews();
  if (!Table.HyperDriveOn) FrontEnd.DrawTable();
}

// What a script cannot ask for is kept: the data of former sessions and the sessions logs.
void StartSessionOfScript(bool keepStacks, bool keepRollFile) {
  NewSession({.keepSessions = true,
              .keepStacks = keepStacks,
              .keepLogs = true,
              .rollFileAction = keepRollFile ? ContinueRollFile : CloseRollFileNow});
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
  EventsLog = EventsLogState{};
  EventsLogView = EventsLogViewState{};
  FileDialog = FileDialogState{};
  HotKeys = HotKeysState{};
  FindReplace = FindReplaceState{};
  SessionsLog = SessionsLogState{};
  SessionsView = SessionsViewState{};
  Scripts = ScriptStoreState{};
  AutoBet = AutoBetState{};
  GameFile = GameFileState{};
  GameViews = GameViewsState{};
  Message = MessageState{};
}

void SetTableDefaults() {
  for (int number = 1; number <= LastBet; ++number) {
    Table.BetWorkingDefault[0][number] = OriginalHouseWorking(number);
  }
  for (int place = 1; place <= LastPlace; ++place)
    OpenPlaceDefaults(place);
}

void EmptyScripts() {
  for (int place = 1; place <= LastPlace; ++place)
    NewScript(place);
}

// --- Leaving -----------------------------------------------------------------------------------

std::string Text(int id) {
  return std::string(GetText(id));
}

bool AskToStopScripts() {
  if (!AutoBet.ScriptRunning) return true;
  if (ShowMessage(Text(145), Text(121), msg::AskYesDefault, help::BettingSystems) != AnswerYes)
    return false;
  InterruptAutoBetting();
  return true;
}

// Saves a script, an untitled one where the user wants it; false when he gives up or it fails.
bool SaveScript(int place) {
  const bool untitled = Scripts.Places[place].ScriptFile.empty();
  const std::string file =
      untitled ? FrontEnd.AskSaveFile(Text(147), Table.PlayerName[place] + ".bet") : "";
  if (untitled && file.empty()) return false;
  return Trapped("SaveScriptFile",
                 [&] { untitled ? SaveScriptFileAs(place, file) : SaveScriptFile(place); });
}

bool OfferToSaveScript(int place) {
  if (!Scripts.Places[place].changed) return true;
  const std::string question = FillIn(FileTexts.AskToSaveScript, {Table.PlayerName[place]});
  const int32_t answer =
      ShowMessage(question, Text(120), msg::AskYesDefault | msg::Cancel, help::BettingSystems);
  return answer == AnswerNo || (answer == AnswerYes && SaveScript(place));
}

bool OfferToSaveScripts() {
  bool goOn = true;
  for (int place = 1; place <= LastPlace && goOn; ++place)
    goOn = OfferToSaveScript(place);
  return goOn;
}

bool SaveMatrix(const std::string& file) {
  return !file.empty() && Trapped("SaveProbabilityFile", [&file] { SaveProbabilityFile(file); });
}

bool OfferToSaveMatrix() {
  const std::string& file = Probability.ProbabilityFileName;
  switch (AskToSaveOnExit()) {
    case SaveChoice::SaveUnderItsName:
      return SaveMatrix(std::string(file));
    case SaveChoice::SaveUnderNewName:
      return SaveMatrix(
          FrontEnd.AskSaveFile(std::string(FileActionTitle(FileAction::SaveProbability)), file));
    case SaveChoice::Cancel:
      return false;
    case SaveChoice::GoOn:
      break;
  }
  return true;
}

bool SaveGameTo(const std::string& file) {
  return !file.empty() && Trapped("SaveGame", [&file] { SaveGame(file); });
}

bool SaveGameUnderItsName() {
  return GameFile.GameFileName.empty() ? SaveGameAs()
                                       : SaveGameTo(std::string(GameFile.GameFileName));
}

bool OfferToSaveGame() {
  if (!Table.TableDirty) return true;
  const int32_t answer =
      ShowMessage(Text(141), Text(139), msg::AskYesDefault | msg::Cancel, help::Saving);
  return answer == AnswerNo || (answer == AnswerYes && SaveGameUnderItsName());
}

// A table that finds no room on the disk is given up only by somebody who says so.
bool KeepTable() {
  return SaveDefaultGame() ||
         ShowMessage(LocalizedText(FileTexts.LeaveUnsaved), std::string(GameFile.WindowTitle),
                     msg::AskNoDefault, help::Saving) == AnswerYes;
}

void SetUpNewTable(const std::string& appFolder) {
  ResetModules();
  ScriptHost = {StartSessionOfScript, [] { PassDice(PlayerAsked, Telling::Silent); }};
  SetAppFolder(appFolder);
  SetLanguage(English);
  DefaultPayoffs();
  FigurePayoffUnits();
  SetTableDefaults();
  SeedAllGenerators();
  NewSession({});
}

void WarnOfMissingFiles() {
  const std::string text = MissingSupportText();
  if (!text.empty()) ShowMessage(text, LocalizedText(DiceTexts.MissingSupportFile), msg::Ok);
}

}  // namespace

void NewSession(const SessionOptions& options) {
  Trapped("NewSession", [&options] { StartNewSession(options); });
}

bool StartNewGame(const SessionOptions& options, bool keepScripts) {
  if (Table.HyperDriveOn) return false;
  if (!keepScripts && !OfferToSaveScripts()) return false;
  // The automatic game file is that of the program with a table to be seen.
  if (GameFile.MainWindowShown && Table.TableDirty) SaveDefaultGame();
  if (!keepScripts) EmptyScripts();
  const bool restart = Scripts.ScriptActive[0];
  if (restart && !Scripts.ProgramReady) Trapped("CheckScriptErrors", CheckScriptErrors);
  NewSession(options);
  Table.TableDirty = true;
  if (!restart) return true;
  Trapped("StartNewGame", DeleteRollClipboard);
  if (Scripts.ProgramReady) InitializeScripts();
  return true;
}

bool SaveGameInUse() {
  if (GameFile.GameFileName.empty()) return SaveGameAs();
  return OfferToSaveScripts() && SaveGameUnderItsName();
}

bool SaveGameAs() {
  const std::string title(FileActionTitle(FileAction::SaveSession));
  return SaveGameTo(FrontEnd.AskSaveFile(title, GameFile.GameFileName));
}

void StartUp(const std::string& appFolder) {
  Trapped("StartUp", [&appFolder] {
    SetUpNewTable(appFolder);
    WarnOfMissingFiles();
  });
}

void OpenDefaultGame(std::string_view commandLine) {
  if (LoadStartGame(commandLine)) return;
  // What an opened file may have left of a game is not the defaults. The hot keys are of no game.
  const HotKeysState hotKeys = HotKeys;
  Trapped("OpenDefaultGame", [] { SetUpNewTable(std::string(Folders.AppFolder)); });
  HotKeys = hotKeys;
}

bool AskToLeave() {
  return AskToStopRun() && AskToStopScripts() && OfferToSaveScripts() && OfferToSaveMatrix();
}

bool AskToReplaceGame() {
  return OfferToSaveScripts() && OfferToSaveMatrix() && OfferToSaveGame();
}

bool Leave() {
  if (!AskToLeave() || !KeepTable()) return false;
  WriteHotKeys();
  ShutDown();
  Trapped("Leave", DeleteRollClipboard);
  return true;
}

void ShutDown() {
  Trapped("ShutDown", CloseRollFile);
  if (RollFileEdit.ClipboardInUse) Trapped("ShutDown", DeleteRollClipboard);
}

}  // namespace tessarel
