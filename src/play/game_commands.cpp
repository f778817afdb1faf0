#include "play/game_commands.h"

#include <string>

#include "autobet/interpreter.h"
#include "autobet/script_files.h"
#include "base/front_end.h"
#include "base/message.h"
#include "base/trap.h"
#include "dice/probability.h"
#include "dice/probability_file.h"
#include "dice/roll_file_edit.h"
#include "files/file_dialog.h"
#include "files/game_file.h"
#include "state/scripts.h"
#include "state/table.h"
#include "texts/say.h"

namespace tessarel {

namespace {

void EmptyScripts() {
  for (int place = 1; place <= LastPlace; ++place)
    NewScript(place);
}

// Saves a script, an untitled one where the user wants it; false when he gives up or it fails.
bool SaveScript(int place) {
  const bool untitled = Scripts.Places[place].ScriptFile.empty();
  const std::string file =
      untitled ? FrontEnd.AskSaveFile(FileAction::SaveScript, Table.PlayerName[place] + ".bet")
               : "";
  if (untitled && file.empty()) return false;
  return Trapped("SaveScriptFile",
                 [&] { untitled ? SaveScriptFileAs(place, file) : SaveScriptFile(place); });
}

bool OfferToSaveScript(int place) {
  if (!Scripts.Places[place].changed) return true;
  const std::string question = Say(Text::AskToSaveScript, Table.PlayerName[place]);
  const int32_t answer = ShowMessage(question, Say(Text::AskToSaveAutoBets),
                                     msg::AskYesDefault | msg::Cancel, help::BettingSystems);
  return answer == AnswerNo || (answer == AnswerYes && SaveScript(place));
}

bool SaveMatrix(const std::string& file) {
  return !file.empty() && Trapped("SaveProbabilityFile", [&file] { SaveProbabilityFile(file); });
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
  const int32_t answer = ShowMessage(Say(Text::AskToSaveSession), Say(Text::SaveSessionTitle),
                                     msg::AskYesDefault | msg::Cancel, help::Saving);
  return answer == AnswerNo || (answer == AnswerYes && SaveGameUnderItsName());
}

}  // namespace

bool OfferToSaveScripts() {
  bool goOn = true;
  for (int place = 1; place <= LastPlace && goOn; ++place)
    goOn = OfferToSaveScript(place);
  return goOn;
}

bool OfferToSaveMatrix() {
  const std::string& file = Probability.ProbabilityFileName;
  switch (AskToSaveOnExit()) {
    case SaveChoice::SaveUnderItsName:
      return SaveMatrix(std::string(file));
    case SaveChoice::SaveUnderNewName:
      return SaveMatrix(FrontEnd.AskSaveFile(FileAction::SaveProbability, file));
    case SaveChoice::Cancel:
      return false;
    case SaveChoice::GoOn:
      break;
  }
  return true;
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
  return SaveGameTo(FrontEnd.AskSaveFile(FileAction::SaveSession, GameFile.GameFileName));
}

bool AskToReplaceGame() {
  return OfferToSaveScripts() && OfferToSaveMatrix() && OfferToSaveGame();
}

}  // namespace tessarel
