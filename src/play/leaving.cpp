#include "play/leaving.h"

#include <string>

#include "autobet/values.h"
#include "base/message.h"
#include "base/trap.h"
#include "dice/roll_file.h"
#include "dice/roll_file_edit.h"
#include "engine/unattended.h"
#include "files/game_file.h"
#include "files/hot_keys.h"
#include "play/auto_roll.h"
#include "play/game_commands.h"
#include "state/table.h"
#include "texts/say.h"

namespace tessarel {

namespace {

bool AskToStopUnattended() {
  const bool hyper = Table.HyperDriveOn;
  if (!hyper && !Table.AutoRollOn) return true;
  const Text title = hyper ? Text::HyperDriveActive : Text::AutoRollActive;
  const Text question = hyper ? Text::AskToStopHyperDrive : Text::AskToStopAutoRoll;
  if (ShowMessage(SayChosen(question), SayChosen(title), msg::AskYesDefault, help::AutoRoll) !=
      AnswerYes)
    return false;
  StopUnattended();
  return true;
}

bool AskToStopScripts() {
  if (!AutoBet.ScriptRunning) return true;
  if (ShowMessage(Say(Text::AskToStopAutoBetting), Say(Text::AutoBetActive), msg::AskYesDefault,
                  help::BettingSystems) != AnswerYes)
    return false;
  InterruptAutoBetting();
  return true;
}

// A table that finds no room on the disk is given up only by somebody who says so.
bool KeepTable() {
  return SaveDefaultGame() ||
         ShowMessage(Say(Text::AskToLeaveUnsaved), std::string(GameFile.WindowTitle),
                     msg::AskNoDefault, help::Saving) == AnswerYes;
}

}  // namespace

bool AskToLeave() {
  return AskToStopUnattended() && AskToStopScripts() && OfferToSaveScripts() && OfferToSaveMatrix();
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
