#include "app/sim/game.h"

#include "app/sim/console.h"
#include "app/sim/failure.h"
#include "app/sim/run_files.h"
#include "app/sim/scripts.h"
#include "base/file_io.h"
#include "base/message.h"
#include "files/game_file.h"

namespace tessarel::sim {

void OpenNamedGame(const std::string& name) {
  if (name.empty()) return;
  if (!FileExists(PathOf(name))) {
    throw Failure(CannotBeDone, "The game \"" + name + "\" does not exist.");
  }
  Console.holdsNotices = true;
  const bool opened = OpenGame(PathOf(name));
  Console.holdsNotices = false;
  if (!opened) {
    throw Failure(CannotBeDone,
                  "The game \"" + name + "\" cannot be opened: " + OnOneLine(Message.MsgText));
  }
  for (const std::string& notice : Console.heldNotices)
    Notice(notice);
  ActivateSavedScripts();
}

void SaveNamedGame(const std::string& name) {
  if (name.empty()) return;
  WithFile("game", name, "cannot be saved", [&name] { SaveGame(PathOf(name)); });
}

}  // namespace tessarel::sim
