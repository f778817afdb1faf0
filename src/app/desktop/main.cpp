// The desktop program: sets the core up, shows the table and leaves in order.
#include <QDir>
#include <QFileInfo>
#include <QIcon>
#include <cstdio>
#include <string_view>

#include "files/hot_keys.h"
#include "play/roll_pace.h"
#include "play/start_up.h"
#include "ui/front_end_bridge.h"
#include "ui/main_window.h"
#include "ui/palette.h"
#include "ui/program_folders.h"
#include "ui/sound/sounds.h"
#include "ui/trapped_application.h"
#include "ui/windows/message_window.h"

namespace {

// The game named on the command line, with every word of an unquoted name.
std::string CommandLine() {
  return QCoreApplication::arguments().mid(1).join(' ').toStdString();
}

QIcon ProgramIcon() {
  QIcon icon;
  for (const QFileInfo& picture :
       QDir(QString::fromStdString(tessarel::DataFolder() + "/icons")).entryInfoList({"*.png"}))
    icon.addFile(picture.filePath());
  return icon;
}

// What a shell may ask before there is a window. Returns whether that was all.
bool AnswersShell(int argc, char** argv) {
  const std::string_view word = argc == 2 ? argv[1] : "";
  if (word == "--version") {
    std::puts("Tessarel " TESSAREL_VERSION);
  } else if (word == "--help" || word == "-h") {
    std::puts(
        "Usage: tessarel [GAME.tsg]\n"
        "Opens the craps table: the game named, else the one of the last time.\n\n"
        "TESSAREL_HOME names the folder of what the program writes. The table without a window is\n"
        "tessarel-sim.");
  } else {
    return false;
  }
  return true;
}

}  // namespace

int main(int argc, char** argv) {
  using namespace tessarel;
  if (AnswersShell(argc, argv)) return 0;
  TrappedApplication application(argc, argv);
  QApplication::setApplicationName("Tessarel");
  QApplication::setDesktopFileName("tessarel");
  QApplication::setWindowIcon(ProgramIcon());
  ApplyCasinoStyle();

  const std::string folder = ProgramFolder();
  {
    // What is said before there is a window stands in the middle of the screen.
    const FrontEndBridge core;
    QObject::connect(&core, &FrontEndBridge::MessageAsked, [] { ShowMessageWindow(nullptr); });
    StartUp(folder);
    ReadHotKeys();
  }
  LoadSounds(DataFolder(), folder);
  MeasureLoopRate();
  MainWindow window(folder);
  QObject::connect(&application, &TrappedApplication::FaultReported, &window, &MainWindow::Recover);
  OpenDefaultGame(CommandLine());
  window.Start();
  return TrappedApplication::exec();
}
