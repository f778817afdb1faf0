// The automatic save beside the default game: once a minute the table goes to a file of its own,
// which an orderly end removes. A start that finds one knows that the program broke off and offers
// the table as it was then. A second program in the same folder leaves the file alone.
#pragma once

#include <QLockFile>
#include <QObject>
#include <QTimer>
#include <memory>
#include <string>

namespace tessarel {

class Autosave : public QObject {
  Q_OBJECT
 public:
  // Keeps its file in `folder`, the program's.
  Autosave(const std::string& folder, QObject* parent);

  // Whether the folder can be written, so that an orderly end can keep the table.
  bool CanWrite() const;
  // Whether a table was left behind, and when it was saved in local time ("" without one).
  bool FindsTable() const;
  std::string TimeOfTable() const;

  // The table that was left behind becomes the default game, or goes. Returns whether it did.
  bool TakeUp();
  void Discard();

  // Begins to save.
  void Start();
  // Saves if a minute has passed; called wherever the table is between two rolls.
  void SaveIfDue();
  // The orderly end: nothing is left behind.
  void End();

 private:
  void Tick();

  std::string file_;
  std::unique_ptr<QLockFile> lock_;
  bool owns_ = false, due_ = false;
  QTimer timer_;
};

}  // namespace tessarel
