#include "app/sim/game.h"

#include "app/sim/console.h"
#include "app/sim/failure.h"
#include "app/sim/run_files.h"
#include "app/sim/scripts.h"
#include "base/file_io.h"
#include "base/message.h"
#include "files/game_file.h"
#include "texts/say.h"

namespace tessarel::sim {

void OpenNamedGame(const std::string& name) {
  if (name.empty()) return;
  if (!FileExists(PathOf(name))) {
    throw Failure(CannotBeDone, Say(Text::SimDoesNotExist, Wording(Text::SimGame), name));
  }
  Console.holdsNotices = true;
  const bool opened = OpenGame(PathOf(name));
  Console.holdsNotices = false;
  if (!opened) {
    throw Failure(CannotBeDone, Say(Text::SimGameNotOpened, name, OnOneLine(Message.MsgText)));
  }
  for (const std::string& notice : Console.heldNotices)
    Notice(notice);
  ActivateSavedScripts();
}

void SaveNamedGame(const std::string& name) {
  if (name.empty()) return;
  WithFile(Text::SimGame, name, Text::SimCannotSave, [&name] { SaveGame(PathOf(name)); });
}

}  // namespace tessarel::sim
