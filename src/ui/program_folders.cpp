#include "ui/program_folders.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace tessarel {

std::string ProgramFolder() {
  QString folder = qEnvironmentVariable("TESSAREL_HOME");
  if (folder.isEmpty()) {
    folder = QCoreApplication::applicationDirPath();
    if (!QFileInfo(folder).isWritable()) {
      folder = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + "/tessarel";
    }
  }
  QDir().mkpath(folder);
  return QDir(folder).absolutePath().toStdString();
}

std::string DataFolder() {
  const QString program = QCoreApplication::applicationDirPath();
  for (const QString& folder : {program + "/data", program + "/../share/tessarel"}) {
    if (QFileInfo(folder + "/sounds").isDir()) return QDir(folder).absolutePath().toStdString();
  }
  return TESSAREL_DATA;
}

}  // namespace tessarel
