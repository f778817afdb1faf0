// The desktop program: sets the core up, shows the table and leaves in order.
#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QIcon>

#include "app/session.h"
#include "base/front_end.h"
#include "engine/roll_pace.h"
#include "files/hot_keys.h"
#include "ui/main_window.h"
#include "ui/palette.h"
#include "ui/program_folders.h"
#include "ui/sound/sounds.h"
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

}  // namespace

int main(int argc, char** argv) {
  using namespace tessarel;
  QApplication application(argc, argv);
  QApplication::setApplicationName("Tessarel");
  QApplication::setDesktopFileName("tessarel");
  QApplication::setWindowIcon(ProgramIcon());
  ApplyCasinoStyle();

  const std::string folder = ProgramFolder();
  FrontEnd.ShowMessage = [] { ShowMessageWindow(nullptr); };
  StartUp(folder);
  ReadHotKeys();
  LoadSounds(DataFolder(), folder);
  MeasureLoopRate();
  MainWindow window(folder);
  OpenDefaultGame(CommandLine());
  window.Start();
  return QApplication::exec();
}
