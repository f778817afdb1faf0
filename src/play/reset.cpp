#include "play/reset.h"

#include "autobet/find_replace.h"
#include "autobet/values.h"
#include "base/message.h"
#include "config/advantage.h"
#include "dice/generators.h"
#include "dice/popup_roll.h"
#include "dice/probability.h"
#include "dice/roll_file.h"
#include "dice/roll_file_edit.h"
#include "files/events_log_view.h"
#include "files/file_dialog.h"
#include "files/game_file.h"
#include "files/hot_keys.h"
#include "files/sessions_log.h"
#include "log/events_log.h"
#include "play/roll_pace.h"
#include "state/books.h"
#include "state/payoffs.h"
#include "state/scripts.h"
#include "state/settings.h"
#include "state/table.h"
#include "state/view_state.h"
#include "stats/bankroll_graph.h"
#include "stats/selection.h"
#include "stats/session_statistics.h"

namespace tessarel {

void ResetAll() {
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
  GameViews = ViewState{};
  RollPace = RollPaceState{};
  Message = MessageState{};
}

}  // namespace tessarel
